#include "tests/ftm/ftm_test.h"

#include <regex>
#include <sstream>

namespace tandekor::test
{

namespace
{

std::string Expanded(const std::string& text, const std::string& entry, const Numbers& outs)
{
    const std::string name = entry.substr(entry[0] == '\n' ? 1 : 0, entry.find('('));
    if (text.starts_with('('))
        return '\t' + name.substr(0, name.find('(')) + text;
    if (!text.starts_with(' '))
        return text;
    std::string shown;
    auto out = outs.begin();
    std::smatch match;
    std::string rest = entry;
    while (out != outs.end() && std::regex_search(rest, match, std::regex("= (85|21845)\\b")))
    {
        shown += match.prefix().str() + "= " + std::to_string(*out++);
        rest = match.suffix();
    }
    return '\t' + shown + rest + text;
}

}  // namespace

void FtmTest::RepliesWith(const std::string& fields) { Replies(Hex("01 02 03 04 05 06 07 08 09 00 " + fields)); }

void FtmTest::ExpectAnswers(const std::vector<Answered>& rows)
{
    for (const Answered& row : rows)
    {
        simulator::ForgetCalls();
        simulator::ForgetLog();
        size_t replies = 0;
        std::istringstream stream(row.replies);
        for (std::string reply; std::getline(stream, reply, ';'); ++replies)
        {
            if (reply[0] == '!')
                FailsToReply(Hex(reply.substr(1)));
            else
                reply[0] == '=' ? Replies(Hex(reply.substr(1))) : RepliesWith(reply);
        }
        const CallResult call = row.call(handle);
        SCOPED_TRACE(Log().front() + " answered by " + row.replies);
        EXPECT_EQ(call.result, row.result);
        EXPECT_EQ(Values(call.outs), row.outs);
        EXPECT_TRUE(call.guardsIntact);
        Texts expected = {Log().front()};
        for (const std::string& text : row.log)
            expected.push_back(Expanded(text, Log().front(), row.outs));
        EXPECT_EQ(Log(), expected);
        EXPECT_EQ(CountExchanges(), replies);
    }
}

}  // namespace tandekor::test
