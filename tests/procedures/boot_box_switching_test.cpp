// The phone's whole way on and off.
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

using simulator::Mode;

class SwitchOnTest : public ProcedureTest
{
protected:
    // A phone without power that starts in FTM mode.
    static void PhoneIsOff(uint32_t startTimeMs)
    {
        Phone().on = false;
        Phone().startTimeMs = startTimeMs;
        Phone().nvItems[453] = {1};
    }
};

TEST_F(SwitchOnTest, OnlinePhoneThatAnswersAtOnce)
{
    Phone().mode = simulator::Mode::Online;
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 0), 1);
    const Texts log{
        "\tSwitchPhoneOn(iBootBoxPort = 4) - Completed successfully\n",
        "\tQLIB_IsFTM_Mode(pbIsFTMMode = 0) - Completed successfully\n",
        "\tPhone already in correct mode",
        "\tQLIB_DIAG_STATUS_F - Completed successfully\n",
    };
    EXPECT_EQ(Log(), log);
    const Texts calls{"QLIB_IsPhoneConnected()", "QLIB_IsFTM_Mode()", "QLIB_IsPhoneConnected() x3",
                      "QLIB_DIAG_STATUS_F()"};
    EXPECT_EQ(Calls(), calls);
    EXPECT_EQ(Sleeps(), Waits{0});
}

TEST_F(SwitchOnTest, FtmPhoneThatStartsInASecond)
{
    PhoneIsOff(1000);
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 1), 1);
    const Texts log{
        "\tSwitchPhoneOn(iBootBoxPort = 4) - Completed successfully\n",
        "\tWaiting for mobile to respond(0 ms)",
        "\tWaiting for mobile to respond(400 ms)",
        "\tWaiting for mobile to respond(800 ms)",
        "\tQLIB_IsFTM_Mode(pbIsFTMMode = 1) - Completed successfully\n",
        "\tPhone already in correct mode",
        "\tQLIB_IsFTM_Mode(pbIsFTMMode = 1) - Completed successfully\n",
    };
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(Sleeps(), (Waits{0, 400, 400, 400}));
}

// With another mode number than 0 and 1, so that no mode is asked for.
TEST_F(SwitchOnTest, PhoneMustAnswerBeforeTheSeventiethPoll)
{
    for (const uint32_t startTimeMs : {27600U, 28000U, 1'000'000U})
    {
        SCOPED_TRACE(startTimeMs);
        FreshBench();
        PhoneIsOff(startTimeMs);
        const bool inTime = startTimeMs == 27600;
        EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 2), inTime ? 1 : 0);
        EXPECT_EQ(Calls(),
                  inTime ? (Texts{"QLIB_IsPhoneConnected() x70", "QLIB_IsFTM_Mode()", "QLIB_IsPhoneConnected() x3"})
                         : (Texts{"QLIB_IsPhoneConnected() x71"}));
        EXPECT_EQ(Log().size(), 1U + (inTime ? 69 + 1 : 70));
        EXPECT_EQ(LastLogText(), inTime ? "\tQLIB_IsFTM_Mode(pbIsFTMMode = 1) - Completed successfully\n"
                                        : "\tWaiting for mobile to respond(27600 ms)");
        EXPECT_TRUE(BootBox().dtr);
    }
}

TEST_F(SwitchOnTest, WrongModeBringsTheReset)
{
    for (const bool ftm : {true, false})
    {
        SCOPED_TRACE(ftm ? "to FTM" : "to online");
        FreshBench();
        Phone().mode = ftm ? Mode::Online : Mode::Ftm;
        EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, ftm ? 1 : 0), 1);
        const Texts log = Log();
        ASSERT_EQ(log.size(), 2U + 12 + 2) << "the log of the reset stands in between";
        EXPECT_EQ(log[1], ftm ? "\tQLIB_IsFTM_Mode(pbIsFTMMode = 0) - Completed successfully\n"
                              : "\tQLIB_IsFTM_Mode(pbIsFTMMode = 1) - Completed successfully\n");
        EXPECT_EQ(log[14], ftm ? "\tTANDEKOR_ModeChangeResetMobile(1) - Completed successfully\n"
                               : "\tTANDEKOR_ModeChangeResetMobile(0) - Completed successfully\n");
        EXPECT_EQ(log[15], ftm ? "\tQLIB_IsFTM_Mode(pbIsFTMMode = 1) - Completed successfully\n"
                               : "\tQLIB_DIAG_STATUS_F - Completed successfully\n");
        EXPECT_EQ(Phone().mode, ftm ? Mode::Ftm : Mode::Online);
    }
}

TEST_F(SwitchOnTest, FinalTestFindsAPhoneThatLeftTheMode)
{
    Phone().mode = Mode::Ftm;
    simulator::BeforeCall("QLIB_IsFTM_Mode", 2, [] { Phone().mode = Mode::Online; });
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 1), 0);
    EXPECT_EQ(LastLogText(), "\tMobile not in FTM mode - Failure\n");

    simulator::BeforeCall("QLIB_DIAG_STATUS_F", 1, [] { Phone().mode = Mode::Ftm; });
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 0), 0);
    EXPECT_EQ(LastLogText(), "\tMobile not in Online mode - Failure\n");
}

TEST_F(SwitchOnTest, RefusedPortEndsItBeforeThePhoneIsAsked)
{
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 65535, 0), 0);
    EXPECT_EQ(Log(), Texts{"\tSwitchPhoneOn(iBootBoxPort = 65535) - Failure\n"});
    EXPECT_EQ(Calls(), Texts{});
}

class SwitchOffTest : public ProcedureTest
{
protected:
    SwitchOffTest()
    {
        TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 2);
        simulator::ForgetCalls();
        simulator::ForgetLog();
        simulator::TheClock().sleeps.clear();
        BootBox().events.clear();
        Phone().nvItems[453] = {1};
    }
};

TEST_F(SwitchOffTest, PhoneThatGoesOffAtOnce)
{
    Texts eventsAtPowerDown;
    simulator::BeforeCall("QLIB_DIAG_CONTROL_F", 2, [&] { eventsAtPowerDown = BootBox().events; });
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOff(handle, 4), 1);
    const Texts log{
        "\t\tQLIB_DIAG_NV_READ_F() start",
        "\tQLIB_DIAG_NV_READ_F - Completed successfully\n",
        "\tTANDEKOR_DIAG_NV_READ_F - Completed successfully\n",
        "\tQLIB_DIAG_CONTROL_F - Completed successfully\n",
        "\tQLIB_DIAG_STATUS_F - Completed successfully\n",
        "\tMobile is in Offline mode",
        "\t\tQLIB_DIAG_NV_WRITE_F() start",
        "\tQLIB_DIAG_NV_WRITE_F(iItemID = 453, pItemData = @, iLength = 1) - Completed successfully\n",
        "\tTANDEKOR_DIAG_NV_WRITE_F - Completed successfully\n",
        "\tSwitchPhoneOff - Completed successfully\n",
        "\tQLIB_DIAG_CONTROL_F - Completed successfully\n",
    };
    EXPECT_EQ(Log(), log);
    const Texts calls{"QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_READ_F(453, 1)", "QLIB_DIAG_CONTROL_F(0)",
                      "QLIB_DIAG_STATUS_F()",       "QLIB_IsPhoneConnected() x3",  "QLIB_DIAG_NV_WRITE_F(453, 01, 1)",
                      "QLIB_DIAG_CONTROL_F(6)",     "QLIB_IsPhoneConnected()"};
    EXPECT_EQ(Calls(), calls);
    EXPECT_EQ(Sleeps(), (Waits{0, 1, 1}));
    EXPECT_EQ(eventsAtPowerDown, Texts{"DTR 0"}) << "the line is dropped first";
}

TEST_F(SwitchOffTest, WrongPortFailsBehindTheOfflineStep)
{
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOff(handle, 5), 0);
    EXPECT_EQ(LastLogText(), "\tSwitchPhoneOff - Failure\n");
    EXPECT_EQ(Phone().mode, Mode::Offline);
    EXPECT_EQ(BootBox().events, Texts{});
    EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_CONTROL_F"), 1);
}

TEST_F(SwitchOffTest, PhoneThatStaysOnlineKeepsItsPower)
{
    Phone().goesOffline = false;
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOff(handle, 4), 0);
    EXPECT_EQ(LastLogText(), "\tMobile not in Offline mode - Failure\n");
    EXPECT_EQ(Calls().back(), "QLIB_DIAG_STATUS_F() x48");
    EXPECT_EQ(Sleeps(), Waits(48, 250));
    EXPECT_EQ(BootBox().events, Texts{});
}

TEST_F(SwitchOffTest, PhoneThatIsStillOnAfterTenSeconds)
{
    // It hears the command to power down and comes back at once.
    simulator::TheClock().onSleep = [](uint32_t) { Phone().on = true; };
    EXPECT_EQ(TANDEKOR_BootBox_SwitchMobileOff(handle, 4), 0);
    EXPECT_EQ(LastLogText(), "\tMobile is still on - Failure\n");
    EXPECT_EQ(Calls().back(), "QLIB_IsPhoneConnected() x50");
    Waits waits(52, 200);
    waits[0] = 0;
    waits[1] = 1;
    EXPECT_EQ(Sleeps(), waits);
}

}  // namespace tandekor::test
