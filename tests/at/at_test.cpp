#include "tests/at/at_test.h"

#include <algorithm>

namespace tandekor::test
{

namespace
{

// The out-arguments of a call that writes these bytes and leaves the rest.
std::vector<Bytes> Expected(std::vector<Bytes> written, const std::vector<Bytes>& outs)
{
    written.resize(outs.size());
    for (size_t i = 0; i < outs.size(); ++i)
        written[i].resize(std::max(written[i].size(), outs[i].size()), 0x55);
    return written;
}

void ExpectEqual(const std::vector<Bytes>& outs, const std::vector<Bytes>& expected)
{
    for (size_t i = 0; i < outs.size(); ++i)
    {
        const auto shown = [](Bytes bytes) { return bytes.resize(std::min<size_t>(bytes.size(), 64)), ToHex(bytes); };
        EXPECT_TRUE(outs[i] == expected[i])
            << "out-argument " << i << " begins " << shown(outs[i]) << "\nnot " << shown(expected[i]);
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

void AtTest::ExpectOuts(const Call& call, uint16_t status, const std::vector<Bytes>& written)
{
    const CallResult made = call(handle);
    EXPECT_EQ(made.result, 1);
    EXPECT_EQ(made.outs.back(), U16(status)) << LastRequest();
    const std::vector<Bytes> outs(made.outs.begin(), made.outs.end() - 1);
    ASSERT_GE(outs.size(), written.size());
    ExpectEqual(outs, Expected(written, outs));
    EXPECT_TRUE(made.guardsIntact);
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
            ExpectEqual(call.outs, Expected(command.writtenOnFailure, call.outs));
            EXPECT_EQ(LastRequest(), ToHex(Ascii(command.request + "\r" + '\0')));
            EXPECT_EQ(LastTimeoutMs(), command.timeoutMs);
            EXPECT_EQ(CountExchanges(), 1U);
            EXPECT_EQ(Log(), std::vector<std::string>{command.log});
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
