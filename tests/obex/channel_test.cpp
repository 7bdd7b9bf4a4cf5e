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

TEST_F(ObexChannelTest, UnknownHandleAndQpstModeGiveZeroAndTouchNothing)
{
    uint16_t error = 0x5555;
    uint32_t number = 0x55555555;
    uint8_t listing = 0x55;
    simulator::ForgetCalls();
    for (const ResourceContext nobody : {unknownHandle, handle})
    {
        EXPECT_EQ(TANDEKOR_OBEX_2_AT(nobody, &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_ListDir(nobody, "", &listing, &number, &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_GetFile(nobody, "", "f", "", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_SendFile(nobody, "", "f", "", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_DeleteFile(nobody, "", "f", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_CreateFolder(nobody, "", "f", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_CopyFile(nobody, "a", "f", "b", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_MoveFile(nobody, "a", "f", "b", &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_SetAttr(nobody, "", "f", 1, 1, &error), 0);
        EXPECT_EQ(TANDEKOR_OBEX_FreeSpaceCheck(nobody, &number, &error), 0);
        EXPECT_TRUE(simulator::Calls().empty());
        TANDEKOR_SetLibraryMode(1);
        simulator::ForgetCalls();
    }
    EXPECT_TRUE(simulator::TheClock().sleeps.empty());
    EXPECT_EQ(error, 0x5555);
    EXPECT_EQ(number, 0x55555555U);
    EXPECT_EQ(listing, 0x55);
    EXPECT_TRUE(Log().empty());
}

}  // namespace tandekor::test
