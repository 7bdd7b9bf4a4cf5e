#include "tests/at/at_test.h"

#include <algorithm>

namespace tandekor::test
{

namespace
{

// The call writes these bytes, from the first one of each out-argument on, and leaves the rest.
void ExpectWritten(const CallResult& call, const std::vector<Bytes>& written)
{
    EXPECT_TRUE(call.guardsIntact);
    for (size_t i = 0; i < std::max(call.outs.size(), written.size()); ++i)
    {
        Bytes expected = i < written.size() ? written[i] : Bytes(), out = i < call.outs.size() ? call.outs[i] : Bytes();
        expected.resize(std::max(expected.size(), out.size()), 0x55);
        const auto at
            = std::mismatch(expected.begin(), expected.end(), out.begin(), out.end()).first - expected.begin();
        EXPECT_TRUE(out == expected) << "out-argument " << i << " from byte " << at << " on, and expected:\n"
                                     << ToHex({out.begin() + at, out.end()}).substr(0, 90) << '\n'
                                     << ToHex({expected.begin() + at, expected.end()}).substr(0, 90);
    }
}

std::string LogOf(const SentCommand& command)
{
    const std::string kind = command.request.find('=') == std::string::npos ? "Get_" : "Set_";
    const std::string name = kind + command.request.substr(1, command.request.find_first_of("=?") - 1);
    const bool whole = !command.log.empty() && command.log[0] != '(';
    const std::string log = whole ? command.log : name + command.log;
    return "TANDEKOR_AT_" + log + (log.find('(') == std::string::npos ? "()" : "");
}

}  // namespace

std::string Dense(const std::string& head, const std::string& entry)
{
    constexpr size_t mostBytes = 4094;
    std::string text = head;
    while (text.size() + entry.size() <= mostBytes)
        text += entry;
    return text + std::string(mostBytes - text.size(), ' ') + "OK";
}

std::vector<AtTable> AllAtCommands() { return {ValueCommands(), TextCommands()}; }

void AtTest::ExpectOuts(const Call& call, uint16_t status, std::vector<Bytes> written)
{
    const CallResult made = call(handle);
    SCOPED_TRACE(LastRequest());
    EXPECT_EQ(made.result, 1);
    written.resize(std::max(made.outs.size(), written.size() + 1) - 1);
    written.push_back(U16(status));
    ExpectWritten(made, written);
}

TEST_F(AtTest, EveryCommandIsLoggedAndThenSentOnceAndAFailedExchangeWritesNothingElse)
{
    for (const AtTable& table : AllAtCommands())
    {
        for (const SentCommand& command : table.commands)
        {
            SCOPED_TRACE(LogOf(command) + " " + command.request);
            simulator::ForgetCalls();
            simulator::ForgetLog();
            size_t textsAtExchange = 0;
            simulator::BeforeCall("QLIB_SendRAW", 1, [&] { textsAtExchange = Log().size(); });
            FailsToReply(Ascii("AT+CMUT?\r\r\n+CMUT: 1,1,1,1\r\n\r\nERROR"));
            const CallResult call = command.call(handle);

            EXPECT_EQ(call.result, 0);
            ExpectWritten(call, command.writtenOnFailure);
            EXPECT_EQ(LastRequest(), ToHex(Ascii("AT" + command.request + "\r" + '\0')));
            EXPECT_EQ(LastTimeoutMs(), command.timeoutMs);
            EXPECT_EQ(CountExchanges(), 1U);
            EXPECT_EQ(Log(), std::vector<std::string>{LogOf(command)});
            EXPECT_EQ(textsAtExchange, 1U);
        }
    }
}

TEST_F(AtTest, RepliesAreReadFieldByField)
{
    for (const AtTable& table : AllAtCommands())
    {
        for (const ReadReply& row : table.replies)
        {
            SCOPED_TRACE(row.reply.substr(0, 200));
            Replies(row.reply);
            ExpectOuts(row.call, row.reply.ends_with("OK") ? 0 : row.reply.ends_with("ERROR") ? 1 : 2, row.outs);
        }
    }
}

}  // namespace tandekor::test
