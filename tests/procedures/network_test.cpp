// The set-up of a phone: network, roaming, clock, virtual SIM.
#include <numeric>

#include "procedures/procedure_steps.h"
#include "tests/procedures/chain_lines.h"

namespace tandekor::test
{

namespace
{

using simulator::Mode;

constexpr char scanModeStep[] = "TANDEKOR_NV_WRITE_NETWORK_SCAN_MODE";
constexpr char lastChannelStep[] = "TANDEKOR_NV_WRITE_LAST_GOOD_CHANNEL";

class NetworkTest : public ProcedureTest
{
protected:
    // The start of an item, with nothing but zeros behind it.
    static std::string StartOf(uint16_t item, size_t length)
    {
        const Bytes& content = Phone().nvItems.at(item);
        EXPECT_EQ(std::accumulate(content.begin() + static_cast<ptrdiff_t>(length), content.end(), 0), 0) << item;
        return ToHex({content.begin(), content.begin() + static_cast<ptrdiff_t>(length)});
    }
};

}  // namespace

TEST_F(NetworkTest, EachModeHasItsItems)
{
    const struct
    {
        uint8_t mode;
        std::string item10, item441, item848, channel;
    } modes[] = {
        {0, "00 04", "00 FF FF", "00 02", "00 00 00 00"}, {2, "00 0D", "00 00 01", "00 01", "01 34 12 00"},
        {3, "00 0D", "00 80 00", "00 01", "01 34 12 03"}, {4, "00 0D", "00 04 00", "00 01", "01 34 12 02"},
        {5, "00 0E", "00 01 00", "00 02", "00 00 00 00"},
    };
    for (const auto& mode : modes)
    {
        SCOPED_TRACE(mode.mode);
        simulator::ForgetCalls();
        EXPECT_EQ(NV_WRITE_NETWORK_SCAN_MODE(handle, mode.mode), 1);
        const Texts calls{
            "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(10, " + mode.item10 + ", 2)",
            "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(441, " + mode.item441 + ", 3)",
            "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(848, " + mode.item848 + ", 2)",
        };
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(NV_WRITE_LAST_GOOD_CHANNEL(handle, mode.mode, 0x1234), 1);
        EXPECT_EQ(Phone().nvItems[1894].size(), 128U);
        EXPECT_EQ(StartOf(1894, 4), mode.channel);
    }
}

TEST_F(NetworkTest, Mode1AndModesAbove5AreRefusedInSilence)
{
    for (const uint8_t mode : std::initializer_list<uint8_t>{1, 6, 255})
    {
        EXPECT_EQ(NV_WRITE_NETWORK_SCAN_MODE(handle, mode), 0);
        EXPECT_EQ(NV_WRITE_LAST_GOOD_CHANNEL(handle, mode, 1), 0);
    }
    EXPECT_EQ(Log(), Texts{});
    EXPECT_EQ(Calls(), Texts{"QLIB_IsPhoneConnected() x18"});
}

TEST_F(NetworkTest, PreselectionClearsThenTakesOneModeForTheNetworkAndTheOtherForTheChannel)
{
    EXPECT_EQ(TANDEKOR_NetworkAndChannelPreselection(handle, 3, 4, 0xE041), 1);
    const std::string zeros = StartOf(945, 128);
    const std::string channel = "01 41 E0 02" + zeros.substr(11);
    const Texts calls{
        "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(945, " + zeros + ", 128)",
        "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(10, 00 0D, 2)",
        "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(441, 00 80 00, 3)",
        "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(848, 00 01, 2)",
        "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(1894, " + channel + ", 128)",
    };
    EXPECT_EQ(Calls(), calls);
    const std::string shownChannel{1, 'A', '\xE0', 2};
    const Texts log = Chain({
        NvWrite(945, "@", 128),
        Step(std::string(scanModeStep) + "(eNetwMode = \x03)",
             Chain({NvWrite(10, "", 2), NvWrite(441, "", 3), NvWrite(848, "", 2)})),
        Step(std::string(lastChannelStep) + "(eNetwMode = \x04, uiChannel = 57409)", NvWrite(1894, shownChannel, 128)),
    });
    EXPECT_EQ(Log(), log);
}

TEST_F(NetworkTest, PreselectionJudgesEachModeOnlyWhenItComesToIt)
{
    EXPECT_EQ(TANDEKOR_NetworkAndChannelPreselection(handle, 1, 2, 7), 0);
    EXPECT_EQ(LastLogText(), Failure(std::string(scanModeStep) + "(eNetwMode = \x01)"));
    EXPECT_TRUE(Phone().nvItems.contains(945));
    EXPECT_FALSE(Phone().nvItems.contains(10));
    EXPECT_EQ(TANDEKOR_NetworkAndChannelPreselection(handle, 2, 6, 7), 0);
    EXPECT_EQ(LastLogText(), Failure(std::string(lastChannelStep) + "(eNetwMode = \x06, uiChannel = 7)"));
    EXPECT_TRUE(Phone().nvItems.contains(848));
    EXPECT_EQ(TANDEKOR_NetworkAndChannelPreselection(handle, 0, 0, 7), 1);
    EXPECT_EQ(LastLogText(), Success(std::string(lastChannelStep) + "(eNetwMode = "));
    EXPECT_EQ(StartOf(1894, 128), StartOf(945, 128));
}

TEST_F(NetworkTest, RoamingAndAutomaticAnswerAreOnForExactly1)
{
    for (const uint8_t value : std::initializer_list<uint8_t>{0, 1, 2, 255})
    {
        SCOPED_TRACE(value);
        const std::string stored = value == 1 ? "01" : "00";
        simulator::ForgetCalls();
        simulator::ForgetLog();
        EXPECT_EQ(TANDEKOR_NV_SetRoamingListStatus(handle, value), 1);
        EXPECT_EQ(TANDEKOR_NVSetAutoAnswerStatus(handle, value), 1);
        EXPECT_EQ(Calls(), (Texts{"QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(256, 00 " + stored + ", 2)",
                                  "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(1190, 80 00, 2)",
                                  "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(74, " + stored + ", 1)"}));
        EXPECT_EQ(Log(),
                  Chain({NvWrite(256, "", 2), NvWrite(1190, "\x80", 2), NvWrite(74, value == 1 ? "\x01" : "", 1)}));
    }
}

TEST_F(NetworkTest, ClockGetsUniversalTimeAndItsModeOf0EndsTheText)
{
    simulator::TheClock().utcStart = 1798761599;  // 2026-12-31 23:59:59
    EXPECT_EQ(TANDEKOR_SpecialSetRtcActualTime(handle), 1);
    EXPECT_EQ(Calls(),
              (Texts{"QLIB_IsPhoneConnected() x3", "QLIB_FTM_PMIC_RTC_SET_GET_TIME(0, 0, 12, 31, 2026, 23, 59, 59)"}));
    EXPECT_EQ(Log(), Step("QLIB_FTM_PMIC_RTC_SET_GET_TIME(iReadWrite = 0, iTimeMode = "));
}

// --- virtual SIM

namespace
{

using Flags = std::vector<uint32_t>;

constexpr char activateCall[]
    = "QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(1, 16, 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00)";
constexpr char activateText[]
    = "QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(iSlotId = \x01, iSIM_AppIdLen = \x10, piSIM_AppId = )";
constexpr char clockText[] = "QLIB_FTM_PMIC_RTC_SET_GET_TIME(iReadWrite = 0, iTimeMode = ";

// The mode changes have result lines without start lines.
const Lines toFtm = Chain({NvWrite(453, "\x01", 1), "QLIB_DIAG_CONTROL_F(eMode = 3)"});
const Lines toOnline = Chain({NvWrite(453, "", 1), "QLIB_DIAG_CONTROL_F(eMode = 4)"});
const Lines wentFtm{Success("TANDEKOR_ONLINE_TO_FTM()")};
const Lines wentOnline{Success("TANDEKOR_FTM_TO_ONLINE()")};
const Lines goodClock = Step("TANDEKOR_SpecialSetRtcActualTime()", Step(clockText));
const Lines goodSim = Step("TANDEKOR_SimSimulation()", Step(activateText));

class VirtualSimTest : public NetworkTest
{
protected:
    uint8_t Run()
    {
        Phone().mode = simulator::Mode::Online;
        simulator::TheClock().onSleep = [this](uint32_t milliseconds)
        {
            TakeCalls();
            timeline.push_back("Sleep " + std::to_string(milliseconds)
                               + (simulator::LogFlags() == 0U ? ", muted" : ""));
        };
        char code[] = "000000";
        const uint8_t result = TANDEKOR_Virtual_SIM(handle, code, &codeResult);
        TakeCalls();
        return result;
    }

    // Calls and waits in order.
    void TakeCalls()
    {
        const Texts calls = Calls();
        timeline.insert(timeline.end(), calls.begin(), calls.end());
        simulator::ForgetCalls();
    }

    // The flags in order. While the log is muted nothing is written, and it never ends muted.
    static Flags FlagsSet()
    {
        Flags flags;
        size_t mutedAt = 0;
        for (const auto& change : simulator::LogFlagsChanges())
        {
            const bool muted = !flags.empty() && flags.back() == 0;
            EXPECT_TRUE(!muted || change.textsBefore == mutedAt) << "written while muted";
            flags.push_back(change.flags);
            mutedAt = change.textsBefore;
        }
        EXPECT_EQ(simulator::LogFlags(), 2U);
        return flags;
    }

    // The sleeps of a wait for the phone, with the one in front of it.
    static void Add(Waits& waits, uint32_t first, size_t polls)
    {
        waits.push_back(first);
        waits.insert(waits.end(), polls, 500);
    }

    Texts timeline;
    uint8_t codeResult = 91;
};

}  // namespace

TEST_F(VirtualSimTest, OnAPhoneThatChangesItsModeByItself)
{
    EXPECT_EQ(Run(), 1);
    const Texts expected{
        "QLIB_IsPhoneConnected() x3",
        "QLIB_DIAG_SPC_F(\"000000\")",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_WRITE_F(453, 01, 1)",
        "QLIB_DIAG_CONTROL_F(3)",
        "QLIB_IsFTM_Mode()",
        "Sleep 1000",
        "QLIB_IsFTM_Mode()",
        "QLIB_IsPhoneConnected() x3",
        "QLIB_FTM_PMIC_RTC_SET_GET_TIME(0, 0, 3, 9, 2024, 7, 5, 3)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_WRITE_F(453, 00, 1)",
        "QLIB_DIAG_CONTROL_F(4)",
        "QLIB_IsFTM_Mode()",
        "Sleep 3000",
        "QLIB_IsPhoneConnected() x4",
        activateCall,
    };
    EXPECT_EQ(timeline, expected);
    const Texts log = Chain({"QLIB_DIAG_SPC_F(iSPC = 000000)", toFtm, "QLIB_IsFTM_Mode(pbIsFTMMode = 1)", wentFtm,
                             goodClock, toOnline, "QLIB_IsFTM_Mode(pbIsFTMMode = 0)", wentOnline, goodSim});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(FlagsSet(), (Flags{2, 0, 2}));
    EXPECT_EQ(codeResult, 1);
    EXPECT_EQ(Phone().mode, Mode::Online);
    EXPECT_TRUE(Phone().security.onChipSim);
}

TEST_F(VirtualSimTest, OnAPhoneThatChangesItsModeByResetsOnly)
{
    Phone().switchesModeDirectly = false;
    EXPECT_EQ(Run(), 1);
    const Texts expected{
        "QLIB_IsPhoneConnected() x3", "QLIB_DIAG_SPC_F(\"000000\")",
        "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(453, 01, 1)",
        "QLIB_DIAG_CONTROL_F(3)",     "QLIB_IsFTM_Mode()",
        "QLIB_DIAG_CONTROL_F(2)",     "Sleep 1000",
        "QLIB_IsFTM_Mode()",          "QLIB_DIAG_CONTROL_F(0)",
        "QLIB_DIAG_CONTROL_F(2)",     "Sleep 2000, muted",
        "QLIB_IsPhoneConnected()",    "Sleep 500, muted",
        "QLIB_IsPhoneConnected()",    "Sleep 500, muted",
        "QLIB_IsPhoneConnected()",    "Sleep 3000, muted",
        "QLIB_IsPhoneConnected()",    "QLIB_IsFTM_Mode()",
        "QLIB_IsPhoneConnected() x3", "QLIB_FTM_PMIC_RTC_SET_GET_TIME(0, 0, 3, 9, 2024, 7, 5, 9)",
        "QLIB_IsPhoneConnected() x6", "QLIB_DIAG_NV_WRITE_F(453, 00, 1)",
        "QLIB_DIAG_CONTROL_F(4)",     "QLIB_IsFTM_Mode()",
        "QLIB_DIAG_CONTROL_F(2)",     "Sleep 3000",
        "QLIB_IsPhoneConnected()",    "Sleep 500, muted",
        "QLIB_IsPhoneConnected()",    "Sleep 500, muted",
        "QLIB_IsPhoneConnected() x4", activateCall,
    };
    EXPECT_EQ(timeline, expected);
    const Texts log
        = Chain({"QLIB_DIAG_SPC_F(iSPC = 000000)", toFtm, "QLIB_IsFTM_Mode(pbIsFTMMode = 0)",
                 "QLIB_DIAG_CONTROL_F(eMode = 2)", wentFtm, goodClock, toOnline, "QLIB_IsFTM_Mode(pbIsFTMMode = 1)",
                 "QLIB_DIAG_CONTROL_F(eMode = 2)", wentOnline, goodSim});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(FlagsSet(), (Flags{0, 2, 0, 2}));
}

TEST_F(VirtualSimTest, OnASlowPhoneTheSecondWaitBringsAFurtherSleepAndTheFirstOneDoesNot)
{
    const struct
    {
        uint32_t startTimeMs;
        size_t firstPolls, secondPolls, lastPolls;
        bool sleepsAgain;
    } cases[] = {{13000, 20, 0, 20, false}, {16000, 20, 0, 20, false}, {16001, 20, 1, 20, true}};
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.startTimeMs);
        FreshBench();
        Phone().switchesModeDirectly = false;
        Phone().startTimeMs = row.startTimeMs;
        Run();
        Waits waits{1000};
        Add(waits, 2000, row.firstPolls);
        Add(waits, 3000, row.secondPolls);
        if (row.sleepsAgain)
            waits.push_back(3000);
        Add(waits, 3000, row.lastPolls);
        EXPECT_EQ(Sleeps(), waits);
        FlagsSet();
    }
}

TEST_F(VirtualSimTest, APhoneThatStaysAwayFromItsFirstRestartCannotBeSwitched)
{
    Phone().switchesModeDirectly = false;
    Phone().startTimeMs = 1'000'000;
    EXPECT_EQ(Run(), 0);
    Waits waits{1000};
    Add(waits, 2000, 20);
    Add(waits, 3000, 20);
    EXPECT_EQ(Sleeps(), waits);
    EXPECT_EQ(timeline.back(), "QLIB_IsFTM_Mode()");
    const Texts log = Log();
    EXPECT_EQ(Texts(log.end() - 2, log.end()), Chain({wentFtm, Lines{Failure("Cannot switch to FTM mode")}}));
    EXPECT_EQ(FlagsSet(), (Flags{0, 2}));
    EXPECT_EQ(simulator::LogFlagsChanges().back().textsBefore, log.size() - 1) << "the failure is to be seen";
}

TEST_F(VirtualSimTest, APhoneThatStaysAwayFromItsLastRestartFailsAtTheSimsCheck)
{
    simulator::BeforeCall("QLIB_IsFTM_Mode", 3, [] { simulator::RefuseCallsFrom("QLIB_IsPhoneConnected"); });
    EXPECT_EQ(Run(), 0);
    Waits waits{1000};
    Add(waits, 3000, 20);
    EXPECT_EQ(Sleeps(), waits);
    EXPECT_EQ(timeline.back(), "QLIB_IsPhoneConnected() x4");
    const Texts log = Log();
    EXPECT_EQ(Texts(log.end() - 3, log.end()), FailedStep("TANDEKOR_SimSimulation()", {Failure("Invalid handle")}));
    EXPECT_EQ(FlagsSet(), (Flags{2, 0, 2}));
}

TEST_F(VirtualSimTest, AFailedClockIsReportedTwiceAndPassedOver)
{
    simulator::RefuseCall("QLIB_FTM_PMIC_RTC_SET_GET_TIME");
    EXPECT_EQ(Run(), 1);
    const Texts log = Chain({"QLIB_DIAG_SPC_F(iSPC = 000000)", toFtm, "QLIB_IsFTM_Mode(pbIsFTMMode = 1)", wentFtm,
                             FailedStep("TANDEKOR_SpecialSetRtcActualTime()", FailedStep(clockText)),
                             Lines{Failure("Cannot set actual time")}, toOnline, "QLIB_IsFTM_Mode(pbIsFTMMode = 0)",
                             wentOnline, goodSim});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(Sleeps(), (Waits{1000, 3000}));
    EXPECT_EQ(FlagsSet(), (Flags{2, 0, 2}));
}

TEST_F(VirtualSimTest, ServiceCodeIsPassedOnUnseenAndItsOutcomeNotLookedAt)
{
    Phone().spc = "123456";
    EXPECT_EQ(Run(), 1);
    EXPECT_EQ(codeResult, 0);
    simulator::ForgetLog();
    EXPECT_EQ(TANDEKOR_Virtual_SIM(handle, nullptr, &codeResult), 1);
    EXPECT_EQ(Log()[1], Success("QLIB_DIAG_SPC_F(iSPC = (null))"));
}

TEST_F(VirtualSimTest, SimReportsItsStatusInFrontOfTheCommandStatus)
{
    const struct
    {
        uint32_t status, commandStatus;
        const char* failure;
    } cases[] = {{7, 0, "(_iStatus != 0)"}, {0, 0x10000, "(_iCommandStatus != 0)"}, {1, 1, "(_iStatus != 0)"}};
    for (const auto& row : cases)
    {
        simulator::ForgetLog();
        Phone().security.status = row.status;
        Phone().security.commandStatus = row.commandStatus;
        EXPECT_EQ(SimSimulation(handle), 0);
        EXPECT_EQ(Log(), Chain({activateText, Lines{Failure(row.failure)}}));
    }
    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(LastLogText(), Failure("TANDEKOR_SimSimulation()"));
}

}  // namespace tandekor::test
