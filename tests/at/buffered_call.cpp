#include "tests/at/buffered_call.h"

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

void BufferedAtTest::ExpectSent(const std::vector<SentCommand>& commands, const std::vector<Bytes>& writtenOnFailure)
{
    for (const SentCommand& command : commands)
    {
        SCOPED_TRACE(command.log + " " + command.request);
        simulator::ForgetCalls();
        simulator::ForgetLog();
        const BufferedResult unreached = command.call(unknownHandle);
        EXPECT_EQ(unreached.result, 0);
        ExpectEqual(unreached.outs, Expected({}, unreached.outs));
        EXPECT_TRUE(simulator::Calls().empty() && Log().empty());

        size_t textsAtExchange = 0;
        simulator::BeforeCall("QLIB_SendRAW", 1, [&] { textsAtExchange = Log().size(); });
        FailsToReply(Ascii("AT+CMUT?\r\r\n+CMUT: 1,1,1,1\r\n\r\nERROR"));
        const BufferedResult call = command.call(handle);

        EXPECT_EQ(call.result, 0);
        ExpectEqual(call.outs, Expected(writtenOnFailure, call.outs));
        EXPECT_EQ(LastRequest(), ToHex(Ascii(command.request + "\r" + '\0')));
        EXPECT_EQ(LastTimeoutMs(), command.timeoutMs);
        EXPECT_EQ(CountExchanges(), 1U);
        EXPECT_EQ(Log(), std::vector<std::string>{command.log});
        EXPECT_EQ(textsAtExchange, 1U);
    }
}

void BufferedAtTest::ExpectOuts(const BufferedCall& call, uint16_t status, const std::vector<Bytes>& written)
{
    const BufferedResult made = call(handle);
    EXPECT_EQ(made.result, 1);
    EXPECT_EQ(made.outs.back(), U16(status));
    const std::vector<Bytes> outs(made.outs.begin(), made.outs.end() - 1);
    ASSERT_GE(outs.size(), written.size());
    ExpectEqual(outs, Expected(written, outs));
    EXPECT_TRUE(made.guardsIntact);
}

void BufferedAtTest::ExpectRead(const std::vector<ReadReply>& replies)
{
    for (const ReadReply& row : replies)
    {
        SCOPED_TRACE(row.reply.substr(0, 200));
        Replies(row.reply);
        ExpectOuts(row.call, row.reply.ends_with("OK") ? 0 : row.reply.ends_with("ERROR") ? 1 : 2, row.outs);
    }
}

void BufferedAtTest::ExpectGuardsHold(const std::vector<SentCommand>& commands, const std::vector<ReadReply>& replies,
                                      const std::vector<std::string>& dense)
{
    const auto expectFor = [&](const BufferedCall& call, const simulator::Reply& reply)
    {
        simulator::ForgetLog();
        simulator::QueueReply(reply);
        EXPECT_TRUE(call(handle).guardsIntact) << Log().front() << " on " << ToHex(reply.bytes).substr(0, 200);
    };
    for (const ReadReply& row : replies)
    {
        for (size_t length = 0; length <= std::min<size_t>(row.reply.size(), 128); ++length)
            expectFor(row.call, {Ascii(row.reply.substr(0, length)), 1, {}});
    }
    std::vector<std::string> texts = dense;
    for (const char fill : {'\0', '\xFF', '7', 'A', ',', ':', '"', '\r'})
        texts.emplace_back(4096, fill);
    for (const std::string& text : texts)
    {
        for (const uint16_t claimed : std::initializer_list<uint16_t>{0, 1, 2, 8, 4096, 4097, 65535})
        {
            for (const SentCommand& command : commands)
                expectFor(command.call, {Ascii(text), 1, claimed});
        }
    }
}

}  // namespace tandekor::test
