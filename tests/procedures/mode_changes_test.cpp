// The phone between online and FTM mode.
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

using simulator::Mode;
using ModeChangeTest = ProcedureTest;

TEST_F(ModeChangeTest, ByResetIntoEitherMode)
{
    for (const bool ftm : {true, false})
    {
        SCOPED_TRACE(ftm ? "to FTM" : "to online");
        FreshBench();
        Phone().mode = ftm ? Mode::Online : Mode::Ftm;
        EXPECT_EQ(TANDEKOR_ModeChangeResetMobile(handle, ftm ? 1 : 0), 1);
        const Texts log{
            "\t\tQLIB_DIAG_CONTROL_F() start",
            "\tQLIB_DIAG_CONTROL_F(eMode = 0) - Completed successfully\n",
            "\t\tQLIB_DIAG_STATUS_F() start",
            "\tQLIB_DIAG_STATUS_F(iTMC_State = 0) - Completed successfully\n",
            "\tMobile in Offline mode",
            "\t\tTANDEKOR_DIAG_NV_WRITE_F() start",
            "\t\tQLIB_DIAG_NV_WRITE_F() start",
            "\tQLIB_DIAG_NV_WRITE_F(iItemID = 453, pItemData = @, iLength = 1) - Completed successfully\n",
            "\tTANDEKOR_DIAG_NV_WRITE_F(iItemID = 453, pItemData = @, iLength = 1) - Completed successfully\n",
            "\t\tQLIB_DIAG_CONTROL_F() start",
            "\tQLIB_DIAG_CONTROL_F(eMode = 2) - Completed successfully\n",
            "\tMobile is on",
        };
        EXPECT_EQ(Log(), log);
        const Texts calls{"QLIB_IsPhoneConnected() x3",
                          "QLIB_DIAG_CONTROL_F(0)",
                          "QLIB_DIAG_STATUS_F()",
                          "QLIB_IsPhoneConnected() x3",
                          ftm ? "QLIB_DIAG_NV_WRITE_F(453, 01, 1)" : "QLIB_DIAG_NV_WRITE_F(453, 00, 1)",
                          "QLIB_DIAG_CONTROL_F(2)",
                          "QLIB_IsPhoneConnected() x3"};
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(Sleeps(), (Waits{18000, 1000}));
        EXPECT_EQ(Phone().mode, ftm ? Mode::Ftm : Mode::Online);
    }
}

TEST_F(ModeChangeTest, ByResetOfAPhoneThatIsSlowToGoOfflineAndToComeBack)
{
    Phone().goesOffline = false;
    simulator::BeforeCall("QLIB_DIAG_STATUS_F", 3, [] { Phone().mode = Mode::Offline; });
    Phone().startTimeMs = 20500;
    EXPECT_EQ(TANDEKOR_ModeChangeResetMobile(handle, 5), 1);
    EXPECT_EQ(Sleeps(), (Waits{250, 250, 18000, 1000, 1000, 1000, 1000}));
    EXPECT_EQ(Calls().back(), "QLIB_IsPhoneConnected() x6") << "four polls and two whose answers are dropped";
    EXPECT_EQ(Phone().nvItems[453], Bytes{5}) << "the mode is written as it is";
}

TEST_F(ModeChangeTest, ByResetOfAPhoneThatStaysOnlineForTwelveSeconds)
{
    Phone().mode = simulator::Mode::Online;
    Phone().goesOffline = false;
    EXPECT_EQ(TANDEKOR_ModeChangeResetMobile(handle, 1), 0);
    EXPECT_EQ(Calls(), (Texts{"QLIB_IsPhoneConnected() x3", "QLIB_DIAG_CONTROL_F(0)", "QLIB_DIAG_STATUS_F() x48"}));
    EXPECT_EQ(Sleeps(), Waits(48, 250));
    const Texts log = Log();
    ASSERT_EQ(log.size(), 2 + 2 * 48 + 1);
    EXPECT_EQ(log[log.size() - 2], "\tQLIB_DIAG_STATUS_F(iTMC_State = 1) - Completed successfully\n");
    EXPECT_EQ(log.back(), "\tMobile not in OFFLINE mode - Failure\n");
}

TEST_F(ModeChangeTest, ByResetOfAPhoneThatIsOfflineAlreadyAndStaysAway)
{
    Phone().mode = Mode::Offline;
    Phone().startTimeMs = 1'000'000;
    EXPECT_EQ(TANDEKOR_ModeChangeResetMobile(handle, 1), 0);
    EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_STATUS_F"), 1);
    EXPECT_EQ(LastLogText(), "\tTime for turn mobile on is up") << "a plain remark";
    EXPECT_EQ(Calls().back(), "QLIB_IsPhoneConnected() x41") << "once a second, at 0 to 40 seconds";
    Waits waits(42, 1000);
    waits[0] = 18000;
    EXPECT_EQ(Sleeps(), waits);
    EXPECT_EQ(Phone().nvItems[453], Bytes{1}) << "the phone may still come up in that mode";
}

TEST_F(ModeChangeTest, ByCommandResetsOnlyAPhoneOnWhichTheCommandDidNotTake)
{
    const struct
    {
        bool ftm;
        Mode before;
        bool switchesDirectly, reset;
    } cases[] = {
        {true, Mode::Online, true, false}, {true, Mode::Online, false, true}, {true, Mode::Ftm, false, false},
        {false, Mode::Ftm, true, false},   {false, Mode::Ftm, false, true},   {false, Mode::Online, false, false},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(&row - cases);
        FreshBench();
        Phone().mode = row.before;
        Phone().switchesModeDirectly = row.switchesDirectly;
        EXPECT_EQ(row.ftm ? TANDEKOR_ONLINE_TO_FTM(handle) : TANDEKOR_FTM_TO_ONLINE(handle), 1);
        const std::string shownItem = row.ftm ? "\x01" : "";
        const std::string control = row.ftm ? "3" : "4";
        const std::string isFtm = row.ftm != row.reset ? "1" : "0";
        Texts log{
            "\t\tTANDEKOR_DIAG_NV_WRITE_F() start",
            "\t\tQLIB_DIAG_NV_WRITE_F() start",
            "\tQLIB_DIAG_NV_WRITE_F(iItemID = 453, pItemData = @, iLength = 1) - Completed successfully\n",
            "\tTANDEKOR_DIAG_NV_WRITE_F(iItemID = 453, pItemData = " + shownItem
                + ", iLength = 1) - Completed successfully\n",
            "\t\tQLIB_DIAG_CONTROL_F() start",
            "\tQLIB_DIAG_CONTROL_F(eMode = " + control + ") - Completed successfully\n",
            "\t\tQLIB_IsFTM_Mode() start",
            "\tQLIB_IsFTM_Mode(pbIsFTMMode = " + isFtm + ") - Completed successfully\n",
        };
        Texts calls{"QLIB_IsPhoneConnected() x6",
                    row.ftm ? "QLIB_DIAG_NV_WRITE_F(453, 01, 1)" : "QLIB_DIAG_NV_WRITE_F(453, 00, 1)",
                    "QLIB_DIAG_CONTROL_F(" + control + ")", "QLIB_IsFTM_Mode()"};
        if (row.reset)
        {
            log.insert(log.end(), {"\t\tQLIB_DIAG_CONTROL_F() start",
                                   "\tQLIB_DIAG_CONTROL_F(eMode = 2) - Completed successfully\n"});
            calls.emplace_back("QLIB_DIAG_CONTROL_F(2)");
        }
        EXPECT_EQ(Log(), log);
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(Sleeps(), Waits{}) << "nobody waits for a restart";
    }
}

}  // namespace tandekor::test
