// Identification and switches, and what all requests have in common.
#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call gauge = With(TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION), loop = With(TANDEKOR_FTM_TEST_IRDA_TX_RX, {0xA7, 9});

using FtmRequestsTest = FtmTest;

}  // namespace

const std::vector<FtmRequest>& FtmRequests()
{
    static const std::vector<FtmRequest> requests = []
    {
        std::vector<FtmRequest> all = {
            {With(TANDEKOR_FTM_GET_HARDWARE_VERSION), "0A 00 00 00 10 00", "FTM_GET_HARDWARE_VERSION()", 4},
            {With(TANDEKOR_FTM_GET_HW_ID), "1D 00 00 00 0E 00", "FTM_GET_HW_ID()", 2},
            {With(TANDEKOR_FTM_GET_NAND_FLASH_ID), "0B 00 02 00 0E 00", "FTM_GET_NAND_FLASH_ID()", 2},
            {gauge, "0D 00 00 00 0D 00", "FTM_GET_FUEL_GAUGE_VERSION()"},
            {With(TANDEKOR_FTM_GET_BT_PARAM), "24 00 00 00 0F 00", "FTM_GET_BT_PARAM()", 3},
            {With(TANDEKOR_FTM_CONFIGURE_SWITCH, {254, 255}), "0E 00 03 00 0C 00 FE 00 FF",
             "FTM_CONFIGURE_SWITCH(iSwitchID = 254, iSwitchState = 255)", 0},
            {With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {2}), "13 00 01 00 0C 00 02",
             "FTM_SET_LOW_POWER_MODE(iLowPowerMode = 2)"},
            {With(TANDEKOR_FTM_SET_LOW_POWER_MODE, {3}), "13 00 01 00 0C 00 03",
             "FTM_SET_LOW_POWER_MODE(iLowPowerMode = 3)", ownProcedure, 20},
            {With(TANDEKOR_FTM_TEST_FTM_PMIC_USB, {2}), "19 00 00 00 0C 00 02", "FTM_TEST_PMIC_USB(iUSB_UART_Mode = 2)",
             0, 3000, "FTM_TEST_FTM_PMIC_USB(iUSB_UART_Mode = 2)"},
            {With(TANDEKOR_FTM_IRDA_ON_OFF, {1}), "0C 00 02 00 0C 00 01", "FTM_IRDA_ON_OFF(iTurnLED_On = 1)", 0},
            {With(TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST, {65535}), "21 00 02 00 0C 00 FF FF",
             "FTM_IRDA_HIGH_CURRENT_TEST(iIrdaLength_ms = 65535)", ownProcedure, 68535},
            {loop, "4B 0B 01 80 4A 05 0C 00 0C 00 00 05 0C", "FTM_TEST_IRDA_TX_RX()"},
            {With(TANDEKOR_FTM_START_AGPS_CTON_MEAS), "1F 00 00 00 0C 00", "FTM_START_AGPS_CTON_MEAS()"},
            {With(TANDEKOR_FTM_GET_AGPS_CTON_MEAS), "20 00 00 00 0E 00", "FTM_GET_AGPS_CTON_MEAS()"},
            {With(TANDEKOR_FTM_RTC_START, {32769}), "D5 00 03 00 0D 00 55 01 80",
             "FTM_RTC_START(bStatus = 85, iTime = 32769)"},
            {With(TANDEKOR_FTM_RTC_OSC_CTRL, {1}), "D6 00 02 00 0C 00 55 01",
             "FTM_RTC_OSC_CTRL(bStatus = 85, bSwitch = 1)"},
            {With(TANDEKOR_FTM_TRACER_CONTROL, {7, 255}), "D9 00 02 00 0C 00 07 FF",
             "FTM_TRACER_CONTROL(bStatus = 7, bSwitch = 255)"},
        };
        for (auto* more : {DataAccessRequests, DisplayCameraAndRadioRequests})
        {
            for (const FtmRequest& request : more())
                all.push_back(request);
        }
        for (FtmRequest& request : all)
        {
            for (std::string* text : {&request.entry, &request.closing})
            {
                if (text->starts_with("FTM_") || text->starts_with("LTM_") || text->starts_with("GPIO_"))
                    *text = "TANDEKOR_" + *text;
            }
            if (!request.bytes.starts_with("4B"))
                request.bytes
                    = (request.entry.starts_with("TANDEKOR_GPIO") ? "4B 00 00 01 " : "4B 0B 00 80 ") + request.bytes;
        }
        return all;
    }();
    return requests;
}

std::vector<Call> FtmCalls()
{
    std::vector<Call> calls;
    for (const FtmRequest& request : FtmRequests())
        calls.push_back(request.call);
    calls.push_back(With(TANDEKOR_FTM_WRITE_WCDMA_RF_CAL, std::vector<Given>(15, -1)));
    return calls;
}

TEST_F(FtmRequestsTest, EveryRequestGoesOutWholeBehindItsEntryTextAndAStandardOneClosesWithOneOfThree)
{
    for (const FtmRequest& request : FtmRequests())
    {
        SCOPED_TRACE(request.entry);
        simulator::ForgetLog();
        simulator::RepeatReply({Bytes(40, 0), 1, {}});
        EXPECT_EQ(request.call(handle).result, request.timeoutMs == 20 ? 0 : 1);
        EXPECT_EQ(LastRequest(), request.bytes);
        EXPECT_EQ(LastTimeoutMs(), request.timeoutMs);
        EXPECT_EQ(simulator::Exchanges().back().operation, "QLIB_SendSync");
        EXPECT_EQ(Log().front(), request.entry);
        if (request.valueBytes == ownProcedure)
            continue;
        const std::string values = std::string(" 77 77 77 77").substr(0, 3 * static_cast<size_t>(request.valueBytes));
        const std::string closing = "\t" + (request.closing.empty() ? request.entry : request.closing);
        const auto expect = [&](uint8_t result, bool outsWritten, const std::string& ending)
        {
            const CallResult call = request.call(handle);
            EXPECT_EQ(call.result, result);
            EXPECT_EQ(call.written, std::vector<bool>(call.outs.size(), outsWritten));
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
    ExpectAnswers(R"(
        FTM_GET_HARDWARE_VERSION: 00 00 78 56 34 92 > 1 0x92345678 done | FF FF FF 00 00 78 56 34 92 > 1 0x92345678 done
        | =07 00 01 02 03 04 > 0 0x04030201 - error code = 7 | =07 01 02 03 04 > 1 0x04030201 done
        | =07 00 00 > 1 0x55555555 done | =07 00 > 0 0x55555555 - error code = 7 | =07 > 1 0x55555555 done
        FTM_GET_NAND_FLASH_ID: =00 00 34 12 > 1 0x1234 done
        FTM_GET_BT_PARAM: =05 01 01 02 03 > 0 0x0105,1,2,3 - error code = 261 | =09 01 02 03 > 1 0x5555,1,2,3 done
        | =03 > 1 0x5555,85,85,3 done
    )");
}

TEST_F(FtmRequestsTest, HardwareIdOfOneBuildNeedsNoRequest)
{
    simulator::ThePhone().buildId = "M-DraK2F-07";
    ExpectAnswers("FTM_GET_HW_ID: > 1 8 QLIB_DIAG_EXT_BUILD_ID_F()");
    simulator::RefuseCall("QLIB_DIAG_EXT_BUILD_ID_F");
    ExpectAnswers("FTM_GET_HW_ID: 00 00 02 01 > 1 0x0102 done");
    simulator::ThePhone().buildId = "DraK2";
    simulator::ThePhone().buildModel = "DraK2F";
    ExpectAnswers("FTM_GET_HW_ID: 00 00 02 01 > 1 0x0102 QLIB_DIAG_EXT_BUILD_ID_F() / done");
}

TEST_F(FtmRequestsTest, CommandsWithAProcedureOfTheirOwn)
{
    ExpectAnswers(R"(
        FTM_SET_LOW_POWER_MODE(iLowPowerMode = 2: 00 00 > 1 -  done | 09 00 > 0 - - error code = 9 | ! > 0 - noReply
        FTM_SET_LOW_POWER_MODE(iLowPowerMode = 3: ! > 1 -  done | 00 00 > 0 - - Failure\n
        FTM_IRDA_HIGH_CURRENT_TEST: 09 00 > 1 0 () done | ! > 0 187 () noReply
        FTM_TEST_IRDA_TX_RX: 01 02 03 04;11 00 00 00 22 00 00 80 > 1 0x11,0x80000022 done
        | ! > 0 0x55555555*2 noReply | 01 02 03 04;! > 0 0x55555555*2 noReply
        FTM_START_AGPS_CTON_MEAS: 05 81 > 1 0x8105 done | ! > 0 0x5555 noReply
        FTM_GET_AGPS_CTON_MEAS: 05 00 34 12 > 1 0x1234,0 done | ! > 0 0x5555,187 noReply
        FTM_RTC_START: 00 34 92 EE FF > 1 0 (bStatus = 0, iTime = 37428) done
        | 07 34 12 EE FF > 0 7 (bStatus = 7, iTime = 4660) - Wrong status (7)\n | ! > 0 85 - error code = 187
        | = > 0 85 (bStatus = 85, iTime = 0) - Wrong status (85)\n
        FTM_RTC_OSC_CTRL: 00 02 > 1 0 (bStatus = 0, bSwitch = 2) done
        | 07 02 > 0 7 (bStatus = 7, bSwitch = 2) - Wrong status (7) = 0 | ! > 0 85 - error code = 187
        FTM_TRACER_CONTROL: 09 00 > 1 - done | ! > 0 - - error code = 187
        FTM_GET_FUEL_GAUGE_VERSION: 00 00 21 > 1 0x21 done | ! > 0 0x55
        | 05 00 21;! > 0 0x21 - error code = 5 / TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()
        | 05 00 21;00 00 22 > 1 0x22 - error code = 5 / TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()
          / \tTANDEKOR_LTM_GET_FUEL_GAUGE_VERSION() done
        | 05 00 21;06 00 22 > 0 0x22 - error code = 5 / TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()
          / \tTANDEKOR_LTM_GET_FUEL_GAUGE_VERSION() - error code = 6
        | 05 00 21;= > 1 0x21 - error code = 5 / TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()
          / \tTANDEKOR_LTM_GET_FUEL_GAUGE_VERSION() done
    )");

    // Their first requests.
    RepliesWith("05 00 21");
    gauge(handle);
    EXPECT_EQ(LastRequest(), "4B 0B 01 80 3E 05 0A 00 0C 00");
    FailsToReply();
    loop(handle);
    EXPECT_EQ(LastRequest(), "4B 0B 01 80 3C 05 0C 00 0C 00 00 A7 0C");
}

}  // namespace tandekor::test
