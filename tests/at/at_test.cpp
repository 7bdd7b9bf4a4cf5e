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

}  // namespace

std::string Dense(const std::string& head, const std::string& entry)
{
    constexpr size_t mostBytes = 4094;
    std::string text = head;
    while (text.size() + entry.size() <= mostBytes)
        text += entry;
    return text + std::string(mostBytes - text.size(), ' ') + "OK";
}

std::vector<AtTable> AllAtCommands() { return {SingleValues(), StructuredQueries(), TextParameters(), Messages()}; }

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
            SCOPED_TRACE(command.log + " " + command.request);
            simulator::ForgetCalls();
            simulator::ForgetLog();
            size_t textsAtExchange = 0;
            simulator::BeforeCall("QLIB_SendRAW", 1, [&] { textsAtExchange = Log().size(); });
            FailsToReply(Ascii("AT+CMUT?\r\r\n+CMUT: 1,1,1,1\r\n\r\nERROR"));
            const CallResult call = command.call(handle);

            EXPECT_EQ(call.result, 0);
            ExpectWritten(call, command.writtenOnFailure);
            EXPECT_EQ(LastRequest(), ToHex(Ascii(command.request + "\r" + '\0')));
            EXPECT_EQ(LastTimeoutMs(), command.timeoutMs);
            EXPECT_EQ(CountExchanges(), 1U);
            const std::string end = command.log.find('(') == std::string::npos ? "()" : "";
            EXPECT_EQ(Log(), std::vector<std::string>{"TANDEKOR_AT_" + command.log + end});
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
