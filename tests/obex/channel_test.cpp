#include "tests/support/bench_test.h"

namespace tandekor::test
{

namespace
{

using ObexChannelTest = BenchTest;

}  // namespace

TEST_F(ObexChannelTest, EscapeSequenceGoesOutBetweenTwoPauses)
{
    std::vector<size_t> sentAtPause;
    simulator::TheClock().onSleep = [&](uint32_t) { sentAtPause.push_back(CountExchanges()); };
    uint16_t firstByte = 0x5555;
    Replies("OK");
    EXPECT_EQ(TANDEKOR_OBEX_2_AT(handle, &firstByte), 1);
    EXPECT_EQ(firstByte, 'O');
    EXPECT_EQ(simulator::Exchanges().back().operation, "QLIB_SendRAW");
    EXPECT_EQ(LastRequest(), "2B 2B 2B 00");
    EXPECT_EQ(LastTimeoutMs(), 3000u);
    EXPECT_EQ(simulator::TheClock().sleeps, (std::vector<uint32_t>{1000, 1000}));
    EXPECT_EQ(sentAtPause, (std::vector<size_t>{0, 1}));
    EXPECT_EQ(Log(), std::vector<std::string>{"TANDEKOR_OBEX_2_AT()"});
}

TEST_F(ObexChannelTest, SilentPortIsNoFailureOfTheEscapeSequence)
{
    uint16_t firstByte = 0x5555;
    FailsToReply();
    EXPECT_EQ(TANDEKOR_OBEX_2_AT(handle, &firstByte), 1);
    EXPECT_EQ(firstByte, 187);
    EXPECT_EQ(simulator::TheClock().sleeps.size(), 2u);
}

}  // namespace tandekor::test
