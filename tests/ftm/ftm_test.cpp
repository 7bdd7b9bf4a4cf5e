#include "tests/ftm/ftm_test.h"

#include <algorithm>
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
    std::string shown = entry;
    for (const uint32_t out : outs)  // each in the place of the next, where a mark keeps it
        shown = std::regex_replace(shown, std::regex("= (85|21845)\\b"), "=\a " + std::to_string(out),
                                   std::regex_constants::format_first_only);
    return '\t' + std::regex_replace(shown, std::regex("\a"), "") + text;
}

Texts ExpectedLog(std::string text, const std::string& entry, const Numbers& outs)
{
    for (const auto& [word, meant] :
         {std::pair(" done", done), {" noReply", noReply}, {R"(\\n)", "\n"}, {R"(\\t)", "\t"}, {R"(\\s)", " "}})
        text = std::regex_replace(text, std::regex(word), meant);
    Texts log = {entry};
    for (size_t end = 0; !text.empty(); text.erase(0, end + 2))
    {
        end = std::min(text.find(" / "), text.size());
        const std::string one = text.substr(0, end);
        log.push_back(Expanded(one.starts_with(" -") || one.starts_with("  ") ? one : one.substr(1), entry, outs));
    }
    return log;
}

}  // namespace

void FtmTest::RepliesWith(const std::string& fields) { Replies(Hex("01 02 03 04 05 06 07 08 09 00 " + fields)); }

void FtmTest::ExpectAnswers(const Call& call, const std::string& answers)
{
    static const std::regex form(R"(\s*([^>|]*?) ?> (\d) ([^\s|]+)( [^|]*[^|\s])?\s*(\||$))");
    static const std::regex value(R"((\w+)\*?(\d*))");
    const std::sregex_iterator first(answers.begin(), answers.end(), form), end;
    EXPECT_EQ(std::distance(first, end), std::count(answers.begin(), answers.end(), '>')) << answers;
    for (std::sregex_iterator answer = first; answer != end; ++answer)
    {
        simulator::ForgetCalls();
        simulator::ForgetLog();
        size_t replies = 0;
        std::istringstream stream((*answer)[1]);
        for (std::string reply; std::getline(stream, reply, ';'); ++replies)
        {
            if (reply[0] == '!')
                FailsToReply(Hex(reply.substr(1)));
            else
                reply[0] == '=' ? Replies(Hex(reply.substr(1))) : RepliesWith(reply);
        }
        const std::string values = (*answer)[3];
        Numbers outs;
        for (std::sregex_iterator out(values.begin(), values.end(), value); out != end; ++out)
            outs.insert(outs.end(), std::stoul('0' + (*out)[2].str()) + ((*out)[2].length() == 0 ? 1 : 0),
                        static_cast<uint32_t>(std::stoul((*out)[1], nullptr, 0)));
        const CallResult made = call(handle);
        SCOPED_TRACE(Log().front() + " answered by " + answer->str());
        EXPECT_EQ(made.result, std::stoi((*answer)[2]));
        EXPECT_EQ(Values(made.outs), outs);
        EXPECT_TRUE(made.guardsIntact);
        EXPECT_EQ(Log(), ExpectedLog((*answer)[4], Log().front(), outs));
        EXPECT_EQ(CountExchanges(), replies);
    }
}

void FtmTest::ExpectAnswers(const std::string& rows)
{
    std::istringstream stream(std::regex_replace(rows, std::regex("\n *([|/(])"), " $1"));
    for (std::string row; std::getline(stream, row);)
    {
        const size_t start = row.find_first_not_of(' '), colon = row.find(": ");
        if (start == std::string::npos)
            continue;
        const auto isMeant = [name = "TANDEKOR_" + row.substr(start, colon - start)](const FtmRequest& request)
        { return request.entry.starts_with(name); };
        const auto request = std::find_if(FtmRequests().begin(), FtmRequests().end(), isMeant);
        ASSERT_TRUE(colon != std::string::npos && request != FtmRequests().end()) << row;
        ExpectAnswers(request->call, row.substr(colon + 1));
    }
}

}  // namespace tandekor::test
