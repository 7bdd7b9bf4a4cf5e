#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const std::vector<FtmRequest>& Requests()
{
    static const std::vector<FtmRequest> identificationAndSwitches = {
        {With(TANDEKOR_FTM_GET_HARDWARE_VERSION), "4B 0B 00 80 0A 00 00 00 10 00",
         "TANDEKOR_FTM_GET_HARDWARE_VERSION()", 4},
        {With(TANDEKOR_FTM_GET_HW_ID), "4B 0B 00 80 1D 00 00 00 0E 00", "TANDEKOR_FTM_GET_HW_ID()", 2},
        {With(TANDEKOR_FTM_GET_NAND_FLASH_ID), "4B 0B 00 80 0B 00 02 00 0E 00", "TANDEKOR_FTM_GET_NAND_FLASH_ID()", 2},
        {With(TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION), "4B 0B 00 80 0D 00 00 00 0D 00",
         "TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION()"},
        {With(TANDEKOR_FTM_GET_BT_PARAM), "4B 0B 00 80 24 00 00 00 0F 00", "TANDEKOR_FTM_GET_BT_PARAM()", 3},
        {With(TANDEKOR_FTM_CONFIGURE_SWITCH, {1, 0}), "4B 0B 00 80 0E 00 03 00 0C 00 01 00 00",
         "TANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = 1, iSwitchState = 0)", 0},
        {With(TANDEKOR_FTM_CONFIGURE_SWITCH, {254, 255}), "4B 0B 00 80 0E 00 03 00 0C 00 FE 00 FF",
         "TANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = 254, iSwitchState = 255)", 0},
        {With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {1}), "4B 0B 00 80 13 00 01 00 0C 00 01",
         "TANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = 1)"},
        {With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {3}), "4B 0B 00 80 13 00 01 00 0C 00 03",
         "TANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = 3)", ownProcedure, 20},
        {With(TANDEKOR_FTM_TEST_FTM_PMIC_USB, {2}), "4B 0B 00 80 19 00 00 00 0C 00 02",
         "TANDEKOR_FTM_TEST_PMIC_USB(iUSB_UART_Mode = 2)", 0, 3000,
         "TANDEKOR_FTM_TEST_FTM_PMIC_USB(iUSB_UART_Mode = 2)"},
        {With(TANDEKOR_FTM_IRDA_ON_OFF, {1}), "4B 0B 00 80 0C 00 02 00 0C 00 01",
         "TANDEKOR_FTM_IRDA_ON_OFF(iTurnLED_On = 1)", 0},
        {With(TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST, {65535}), "4B 0B 00 80 21 00 02 00 0C 00 FF FF",
         "TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(iIrdaLength_ms = 65535)", ownProcedure, 68535},
        {With(TANDEKOR_FTM_TEST_IRDA_TX_RX, {0xA7, 9}), "4B 0B 01 80 4A 05 0C 00 0C 00 00 05 0C",
         "TANDEKOR_FTM_TEST_IRDA_TX_RX()"},
        {With(TANDEKOR_FTM_START_AGPS_CTON_MEAS), "4B 0B 00 80 1F 00 00 00 0C 00",
         "TANDEKOR_FTM_START_AGPS_CTON_MEAS()"},
        {With(TANDEKOR_FTM_GET_AGPS_CTON_MEAS), "4B 0B 00 80 20 00 00 00 0E 00", "TANDEKOR_FTM_GET_AGPS_CTON_MEAS()"},
        {With(TANDEKOR_FTM_RTC_START, {0x1234}), "4B 0B 00 80 D5 00 03 00 0D 00 55 34 12",
         "TANDEKOR_FTM_RTC_START(bStatus = 85, iTime = 4660)"},
        {With(TANDEKOR_FTM_RTC_OSC_CTRL, {1}), "4B 0B 00 80 D6 00 02 00 0C 00 55 01",
         "TANDEKOR_FTM_RTC_OSC_CTRL(bStatus = 85, bSwitch = 1)"},
        {With(TANDEKOR_FTM_TRACER_CONTROL, {7, 255}), "4B 0B 00 80 D9 00 02 00 0C 00 07 FF",
         "TANDEKOR_FTM_TRACER_CONTROL(bStatus = 7, bSwitch = 255)"},
    };
    static const std::vector<FtmRequest> requests = []
    {
        std::vector<FtmRequest> all = identificationAndSwitches;
        for (const auto& more :
             {LowLevelRequests(), PhoneDataRequests(), FmRadioRequests(), DisplayAndCameraRequests()})
            all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return requests;
}

using FtmRequestsTest = FtmTest;

}  // namespace

std::vector<Call> FtmCalls()
{
    std::vector<Call> calls;
    for (const FtmRequest& request : Requests())
        calls.push_back(request.call);
    calls.push_back(With(TANDEKOR_FTM_WRITE_WCDMA_RF_CAL, std::vector<Given>(15, -1)));
    return calls;
}

TEST_F(FtmRequestsTest, EveryRequestGoesOutWholeBehindItsEntryText)
{
    for (const FtmRequest& request : Requests())
    {
        SCOPED_TRACE(request.entry);
        simulator::ForgetLog();
        simulator::RepeatReply({Bytes(40, 0), 1, {}});
        EXPECT_EQ(request.call(handle).result, request.timeoutMs == 20 ? 0 : 1);
        EXPECT_EQ(LastRequest(), request.bytes);
        EXPECT_EQ(LastTimeoutMs(), request.timeoutMs);
        EXPECT_EQ(simulator::Exchanges().back().operation, "QLIB_SendSync");
        EXPECT_EQ(Log().front(), request.entry);
    }
}

TEST_F(FtmRequestsTest, StandardCommandClosesWithOneOfThreeTexts)
{
    for (const FtmRequest& request : Requests())
    {
        if (request.valueBytes == ownProcedure)
            continue;
        const std::string values = std::string(" 77 77 77 77").substr(0, 3 * static_cast<size_t>(request.valueBytes));
        const std::string closing = "\t" + (request.closing.empty() ? request.entry : request.closing);
        const auto expect = [&](uint8_t result, bool outsWritten, const std::string& ending)
        {
            const CallResult call = request.call(handle);
            EXPECT_EQ(call.result, result) << request.entry;
            EXPECT_EQ(call.written, std::vector<bool>(call.outs.size(), outsWritten)) << request.entry;
            EXPECT_EQ(Log().back(), closing + ending);
        };
        RepliesWith("00 00" + values);
        expect(1, true, done);
        Replies(Bytes());
        expect(1, false, done);
        RepliesWith("2C 81" + values);
        expect(0, true, request.statusIsByte ? " - error code = 129" : " - error code = 33068");
        FailsToReply();
        expect(0, false, noReply);
        FailsToReply(Hex("4B 00 00"));
        expect(0, false, " - SendSync() fail (error code = 75)");
    }
}

TEST_F(FtmRequestsTest, FieldsAreTakenFromTheEndOfTheReplyAsFarAsItGoes)
{
    const Call hardware = With(TANDEKOR_FTM_GET_HARDWARE_VERSION), bluetooth = With(TANDEKOR_FTM_GET_BT_PARAM);
    struct
    {
        Call call;
        std::string reply;
        uint8_t result;
        Numbers outs;
    } const cases[] = {
        {hardware, "00 01 02 03 04 05 06 07 08 09 00 00 78 56 34 92", 1, {0x92345678}},
        {hardware, "00 01 02 03 04 05 06 07 08 09 FF FF FF 00 00 78 56 34 92", 1, {0x92345678}},
        {hardware, "07 00 01 02 03 04", 0, {0x04030201}},
        {hardware, "07 01 02 03 04", 1, {0x04030201}},
        {hardware, "07 00 00", 1, {0x55555555}},
        {hardware, "07 00", 0, {0x55555555}},
        {hardware, "07", 1, {0x55555555}},
        {With(TANDEKOR_FTM_GET_NAND_FLASH_ID), "00 00 34 12", 1, {0x1234}},
        {bluetooth, "05 01 01 02 03", 0, {0x0105, 1, 2, 3}},
        {bluetooth, "09 01 02 03", 1, {0x5555, 1, 2, 3}},
        {bluetooth, "03", 1, {0x5555, 0x55, 0x55, 3}},
    };
    for (const auto& row : cases)
    {
        Replies(Hex(row.reply));
        const CallResult call = row.call(handle);
        EXPECT_EQ(call.result, row.result) << row.reply;
        EXPECT_EQ(Values(call.outs), row.outs) << row.reply;
    }
}

TEST_F(FtmRequestsTest, HardwareIdOfOneBuildNeedsNoRequest)
{
    const Call call = With(TANDEKOR_FTM_GET_HW_ID);
    const std::string entry = "TANDEKOR_FTM_GET_HW_ID()", asked = "QLIB_DIAG_EXT_BUILD_ID_F()";
    const std::string completed = "\tTANDEKOR_FTM_GET_HW_ID() - Completed successfully\n";
    simulator::ThePhone().buildId = "M-DraK2F-07";
    EXPECT_EQ(Values(call(handle).outs), Numbers{8});
    EXPECT_EQ(CountExchanges(), 0u);

    RepliesWith("00 00 02 01");
    simulator::RefuseCall("QLIB_DIAG_EXT_BUILD_ID_F");
    EXPECT_EQ(Values(call(handle).outs), Numbers{0x0102});
    simulator::ThePhone().buildId = "DraK2";
    simulator::ThePhone().buildModel = "DraK2F";
    RepliesWith("00 00 02 01");
    EXPECT_EQ(Values(call(handle).outs), Numbers{0x0102});
    EXPECT_EQ(Log(), (Texts{entry, asked, entry, completed, entry, asked, completed}));
}

// Replies without their header, and what is logged behind the entry text.
TEST_F(FtmRequestsTest, CommandsWithAProcedureOfTheirOwn)
{
    constexpr uint32_t untouched = 0x55555555;
    const Call gauge = With(TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION);
    const std::string gaugeText = "\tTANDEKOR_FTM_GET_FUEL_GAUGE_VERSION()", refused = gaugeText + " - error code = 5";
    const std::string secondText = "TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()";
    const Call power2 = With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {2});
    const Call power3 = With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {3});
    const std::string powerText = "\tTANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = ";
    const Call led = With(TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST, {500});
    const std::string ledText = "\tTANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST()";
    const Call loop = With(TANDEKOR_FTM_TEST_IRDA_TX_RX, {0xA7, 9});
    const std::string loopText = "\tTANDEKOR_FTM_TEST_IRDA_TX_RX()";
    const Call start = With(TANDEKOR_FTM_START_AGPS_CTON_MEAS), get = With(TANDEKOR_FTM_GET_AGPS_CTON_MEAS);
    const std::string startText = "\tTANDEKOR_FTM_START_AGPS_CTON_MEAS()";
    const std::string getText = "\tTANDEKOR_FTM_GET_AGPS_CTON_MEAS()";
    const Call clock = With(TANDEKOR_FTM_RTC_START, {32769}), osc = With(TANDEKOR_FTM_RTC_OSC_CTRL, {1});
    const std::string clockText = "\tTANDEKOR_FTM_RTC_START(bStatus = ";
    const std::string oscText = "\tTANDEKOR_FTM_RTC_OSC_CTRL(bStatus = ";
    const Call tracer = With(TANDEKOR_FTM_TRACER_CONTROL, {7, 1});
    const std::string tracerText = "\tTANDEKOR_FTM_TRACER_CONTROL(bStatus = 7, bSwitch = 1)";
    ExpectAnswers({
        {gauge, {"00 00 21"}, 1, {0x21}, {gaugeText + done}},
        {gauge, {silence}, 0, {0x55}, {}},
        {gauge, {"05 00 21", "00 00 22"}, 1, {0x22}, {refused, secondText, "\t" + secondText + done}},
        {gauge, {"05 00 21", "06 00 22"}, 0, {0x22}, {refused, secondText, "\t" + secondText + " - error code = 6"}},
        {gauge, {"05 00 21", silence}, 0, {0x21}, {refused, secondText}},
        {power2, {"00 00"}, 1, {}, {powerText + "2) " + done}},
        {power2, {"09 00"}, 0, {}, {powerText + "2) - error code = 9"}},
        {power2, {silence}, 0, {}, {powerText + "2)" + noReply}},
        {power3, {silence}, 1, {}, {powerText + "3) " + done}},
        {power3, {"00 00"}, 0, {}, {powerText + "3) - Failure\n"}},
        {led, {"09 00"}, 1, {0}, {ledText + done}},
        {led, {silence}, 0, {187}, {ledText + noReply}},
        {loop, {"01 02 03 04", "11 00 00 00 22 00 00 80"}, 1, {0x11, 0x80000022}, {loopText + done}},
        {loop, {silence}, 0, {untouched, untouched}, {loopText + noReply}},
        {loop, {"01 02 03 04", silence}, 0, {untouched, untouched}, {loopText + noReply}},
        {start, {"05 81"}, 1, {0x8105}, {startText + done}},
        {start, {silence}, 0, {0x5555}, {startText + noReply}},
        {get, {"05 00 34 12"}, 1, {0x1234, 0}, {getText + done}},
        {get, {silence}, 0, {0x5555, 187}, {getText + noReply}},
        {clock, {"00 34 92 EE FF"}, 1, {0}, {clockText + "0, iTime = 37428)" + done}},
        {clock, {"07 34 12 EE FF"}, 0, {7}, {clockText + "7, iTime = 4660) - Wrong status (7)\n"}},
        {clock, {silence}, 0, {85}, {clockText + "85, iTime = 32769) - error code = 187"}},
        {osc, {"00 02"}, 1, {0}, {oscText + "0, bSwitch = 2)" + done}},
        {osc, {"07 02"}, 0, {7}, {oscText + "7, bSwitch = 2) - Wrong status (7) = 0"}},
        {osc, {silence}, 0, {85}, {oscText + "85, bSwitch = 1) - error code = 187"}},
        {tracer, {"09 00"}, 1, {}, {tracerText + done}},
        {tracer, {silence}, 0, {}, {tracerText + " - error code = 187"}},
    });
}

TEST_F(FtmRequestsTest, RequestsThatTheTableDoesNotShow)
{
    RepliesWith("05 00 21");
    Replies(Bytes());
    EXPECT_EQ(With(TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION)(handle).result, 1) << "the first status does not count twice";
    EXPECT_EQ(LastRequest(), "4B 0B 01 80 3E 05 0A 00 0C 00");
    FailsToReply();
    With(TANDEKOR_FTM_TEST_IRDA_TX_RX, {0xA7, 9})(handle);
    EXPECT_EQ(LastRequest(), "4B 0B 01 80 3C 05 0C 00 0C 00 00 A7 0C");
}

}  // namespace tandekor::test
