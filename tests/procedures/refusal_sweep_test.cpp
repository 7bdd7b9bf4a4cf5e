// Every procedure, with each of its host calls refused in turn: the first failure ends it, with a line in the log.
// A new procedure joins with a row in the first table, and with rows in the second for the calls that it may lose.
#include <functional>
#include <iterator>
#include <map>
#include <ostream>
#include <set>

#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

namespace
{

using simulator::ThePhone;

struct Procedure
{
    const char* name;
    std::function<uint8_t(ResourceContext)> call;
    std::function<void(ResourceContext)> prepare = nullptr;  // where it does not succeed on any fresh bench
};

// How a test is called in a report.
void PrintTo(const Procedure& procedure, std::ostream* out) { *out << procedure.name; }

// Out-arguments of all procedures.
struct Outs
{
    uint32_t dword = 91;
    uint16_t word = 92;
    uint8_t bytes[4] = {1, 2, 3, 4};
    char character = 'x';
    char text[512] = "as it was";
    int16_t level = 93;
    double average = 94;

    bool operator==(const Outs&) const = default;
} outs;

void ChooseQpstMode(ResourceContext) { TANDEKOR_SetLibraryMode(1); }
void GoOnline(ResourceContext) { ThePhone().mode = simulator::Mode::Online; }

uint8_t RxGsmAdjust(ResourceContext h)
{
    return TANDEKOR_RX_GSM_Adjust(h, reinterpret_cast<uint8_t*>(outs.text), 1, 2, 3, 4, 5, &outs.word);
}

uint8_t RxWcdmaAdjust(ResourceContext h)
{
    uint8_t* const b = outs.bytes;
    uint8_t table[16] = {};
    return TANDEKOR_RX_WCDMA_Adjust(h, 1, 2, &outs.level, 100, b, 4, &outs.word, 4, 1, table, 4, b, b, b, 453, b, 1,
                                    &outs.word, 4, b, b, b, 1, 2, &outs.level);
}

uint8_t WriteRxAdjustmentValues(ResourceContext h)
{
    uint8_t t[32] = {};
    return TANDEKOR_Write_RX_Adjustment_Values(h, 1, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, 4, 1, t, 2, t, 3,
                                               t, 4, 1, t);
}

uint8_t WriteGsmRxGainRange(ResourceContext h)
{
    uint8_t t[32] = {};
    return NV_WRITE_GSM_RX_GAIN_RANGE(h, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t, t);
}

void GoOnlineWithoutDirectSwitch(ResourceContext h)
{
    GoOnline(h);
    ThePhone().switchesModeDirectly = false;
}
void StoreImage(ResourceContext) { ThePhone().files[outs.text] = {}; }
void BecomeModel3(ResourceContext) { ThePhone().hardwareId = 3; }

const Procedure procedures[] = {
    {"Start_LOG", [](auto h) { return TANDEKOR_Start_LOG(h, "/dev/null"); }},
    {"CheckConnection", [](auto h) { return PhoneProcedure(h).CheckConnection(); }},
    {"DIAG_NV_WRITE_F", [](auto h) { return DIAG_NV_WRITE_F(h, 453, outs.bytes, 1); }},
    {"DIAG_NV_READ_F", [](auto h) { return DIAG_NV_READ_F(h, 453, outs.bytes, 1); }},
    {"NV_READ_GSM_RX_REL_OFFSETS", [](auto h) { return NV_READ_GSM_RX_REL_OFFSETS(h, 453, outs.bytes, 1); }},
    {"DIAG_NV_WRITE_FLUSH_BATCH_QUEUE", DIAG_NV_WRITE_FLUSH_BATCH_QUEUE},
    {"SetBitState_8_Reg", [](auto h) { return SetBitState_8_Reg(h, 16, 1, 1); }},
    {"SetBitState_32_Reg", [](auto h) { return SetBitState_32_Reg(h, 16, 1, 1); }},
    {"TK_GetBitState_32_Reg", [](auto h) { return TK_GetBitState_32_Reg(h, 16, 1, &outs.dword, &outs.character); }},
    {"ModeChangeResetMobile", [](auto h) { return TANDEKOR_ModeChangeResetMobile(h, 1); }},
    {"ONLINE_TO_FTM", TANDEKOR_ONLINE_TO_FTM, GoOnlineWithoutDirectSwitch},
    {"FTM_TO_ONLINE", TANDEKOR_FTM_TO_ONLINE},
    {"BootBox_SwitchMobileOn", [](auto h) { return TANDEKOR_BootBox_SwitchMobileOn(h, 4, 0); }, GoOnline},
    {"BootBox_SwitchMobileOn_WithReset", [](auto h) { return TANDEKOR_BootBox_SwitchMobileOn(h, 4, 1); }},
    {"BootBox_SwitchMobileOff", [](auto h) { return TANDEKOR_BootBox_SwitchMobileOff(h, 4); },
     [](auto h) { TANDEKOR_BootBox_SwitchMobileOn(h, 4, 2); }},
    {"Phone_Model", [](auto h) { return TANDEKOR_Phone_Model(h, &outs.dword, &outs.dword, &outs.dword); },
     [](auto) { ThePhone().msmHardwareVersion = 0; }},
    {"GetPhoneModel", [](auto h) { return TANDEKOR_GetPhoneModel(h, 1, 1, &outs.dword); }},
    {"CheckSWBuild",
     [](auto h)
     {
         return TANDEKOR_CheckSWBuild(h, outs.text, outs.text, outs.text, outs.text, outs.text, outs.bytes, outs.bytes,
                                      outs.bytes, outs.bytes, outs.bytes, outs.bytes, outs.bytes, &outs.dword,
                                      &outs.dword, outs.text, outs.text);
     }},
    {"MicrophoneBiasVoltages", [](auto h) { return TANDEKOR_MicrophoneBiasVoltages(h, 15); }},
    {"AudioTest", [](auto h) { return TANDEKOR_AudioTest(h, 15, 1); }},
    {"TestSpeaker", [](auto h) { return TANDEKOR_TestSpeaker(h, 15, 1, 2, 3); }},
    {"TestMicrophone", [](auto h) { return TANDEKOR_TestMicrophone(h, 1, 0, 4, outs.text, 453, outs.bytes, 1, 0, 0); }},
    {"DIAG_DISABLE_48KHz", TANDEKOR_DIAG_DISABLE_48KHz},
    {"SpecialSetKeypadMapping", [](auto h) { return TANDEKOR_SpecialSetKeypadMapping(h, 8); }},
    {"TestKeypad", [](auto h) { return TANDEKOR_TestKeypad(h, &outs.word, &outs.word, outs.bytes); }},
    {"SpecialSwitchDisplay", [](auto h) { return TANDEKOR_SpecialSwitchDisplay(h, 1); },
     [](auto) { ThePhone().hardwareId = 2; }},
    {"DrawContrastPattern", [](auto h) { return TANDEKOR_FTM_DrawContrastPattern(h, outs.text, 0); }, StoreImage},
    {"DrawContrastPattern24Bit", [](auto h) { return TANDEKOR_FTM_DrawContrastPattern24Bit(h, outs.text, 0); },
     StoreImage},
    {"SetCWPowerBluetooth", [](auto h) { return TANDEKOR_SetCWPowerBluetooth(h, 1); }},
    {"BluetoothTestConnect", [](auto h) { return TANDEKOR_BluetoothTestConnect(h, outs.text); }},
    {"FtmBtSetAddr",
     [](auto h)
     {
         char address[] = "0123456789AB";
         return FtmBtSetAddr(h, address);
     }},
    {"Bluetooth_HW_ID",
     [](auto h) { return TANDEKOR_Bluetooth_HW_ID(h, outs.bytes, &outs.word, outs.bytes, outs.bytes, outs.bytes); }},
    {"Charging_Test", [](auto h) { return TANDEKOR_Charging_Test(h, 1, 1, 1, 1, 1, 4000, 10, 1, outs.bytes); }},
    {"SpecialSetChargeFetState", [](auto h) { return SpecialSetChargeFetState(h, 0, 1); }},
    {"SpecialSetPmicChargeLimits", [](auto h) { return SpecialSetPmicChargeLimits(h, 4000, 10); }},
    {"SpecialGetChargeFetState", [](auto h) { return SpecialGetChargeFetState(h, 1, outs.bytes); }},
    {"SupplyVoltageTest_A", [](auto h) { return TANDEKOR_SupplyVoltageTest(h, 1, 2, 1, 1); },
     [](auto) { ThePhone().hardwareId = 10; }},
    {"SupplyVoltageTest_B", [](auto h) { return TANDEKOR_SupplyVoltageTest(h, 1, 2, 1, 1); },
     [](auto) { ThePhone().msmHardwareVersion = 0x40, ThePhone().hardwareVersion = 0x40000; }},
    {"SupplyVoltageTest_C", [](auto h) { return TANDEKOR_SupplyVoltageTest(h, 1, 2, 1, 1); }},
    {"SpecialSwitchAccSupplyVoltage", [](auto h) { return TANDEKOR_SpecialSwitchAccSupplyVoltage(h, 1); },
     [](auto) { ThePhone().hardwareId = 10; }},
    {"NV_READ_IMEI", [](auto h) { return TANDEKOR_NV_READ_IMEI(h, outs.text); }},
    {"NV_WRITE_IMEI", [](auto h) { return TANDEKOR_NV_WRITE_IMEI(h, "123456789012345"); }},
    {"DIAG_FREEZE_PHONE",
     [](auto h)
     {
         static constexpr uint8_t key[260] = {};
         const auto item = [](uint16_t number) { return ThePhone().nvItems[number].data(); };
         return TANDEKOR_DIAG_FREEZE_PHONE(h, item(550), item(447), item(2824), key);
     },
     [](auto) { ThePhone().nvItems[2824] = simulator::Bytes(16, 1); }},
    {"FlashTest", [](auto h) { return TANDEKOR_FlashTest(h, &outs.dword); }},
    {"SpecialMmcTest", TANDEKOR_SpecialMmcTest},
    {"SpecialGetFmRadioInfo", [](auto h) { return TANDEKOR_SpecialGetFmRadioInfo(h, 0, outs.bytes); }},
    {"FM_RadioTest", [](auto h) { return TANDEKOR_FM_RadioTest(h, 1, &outs.word, 2, &outs.word, outs.bytes); }},
    {"SetFactoryTrackingByte", [](auto h) { return TANDEKOR_SetFactoryTrackingByte(h, 1, 2, outs.bytes); }},
    {"UploadCEFS_File2", [](auto h) { return TANDEKOR_UploadCEFS_File2(h, 1, 2, 3); }, ChooseQpstMode},
    {"UploadCEFS_File", [](auto h) { return TANDEKOR_UploadCEFS_File(h, 1, 2); }, ChooseQpstMode},
    {"UploadMultiImage",
     [](auto h)
     {
         return TANDEKOR_UploadMultiImage(h, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
                                          22, 23);
     },
     ChooseQpstMode},
    {"RX_GSM_Adjust", RxGsmAdjust},
    {"RX_WCDMA_Adjust", RxWcdmaAdjust},
    {"NV_WRITE_WCDMA_VGA_GAIN",
     [](auto h) { return NV_WRITE_WCDMA_VGA_GAIN(h, 4, 1, reinterpret_cast<uint8_t*>(outs.text)); }},
    {"NV_READ_WCDMA_LNA_RANGE_FALL",
     [](auto h) { return NV_READ_WCDMA_LNA_RANGE_FALL(h, 4, outs.bytes, outs.bytes, outs.bytes); }},
    {"NV_READ_WCDMA_LNA_RANGE_RISE",
     [](auto h) { return NV_READ_WCDMA_LNA_RANGE_RISE(h, 4, outs.bytes, outs.bytes, outs.bytes); }},
    {"Write_RX_Adjustment_Values", WriteRxAdjustmentValues},
    {"NV_WRITE_GSM_RX_GAIN_RANGE", WriteGsmRxGainRange},
    {"NV_WRITE_WCDMA_LNA_OFFSET",
     [](auto h)
     {
         uint8_t t[16] = {};
         return NV_WRITE_WCDMA_LNA_OFFSET(h, 4, 1, t, 2, t, 3, t);
     }},
    {"Reduced_Signalling_GSM",
     [](auto h)
     {
         return TANDEKOR_Reduced_Signalling_GSM(h, outs.bytes, outs.bytes, 1, 2, 3, 4, 5, 6, 7, 1, 8, 9, 10, 11, 12, 13,
                                                1);
     }},
    {"FTM_GSM_BER_StartCall", [](auto h) { return FTM_GSM_BER_StartCall(h, 1, 2, 3, 4); }},
    {"FTM_GSM_BER_StopCall", [](auto h) { return FTM_GSM_BER_StopCall(h, 1); }},
    {"Reduced_Signalling_WCDMA",
     [](auto h) { return TANDEKOR_Reduced_Signalling_WCDMA(h, 1, 2, outs.bytes, 3, 4, 5, 6, 7, 8, 9); }},
    {"Reduced_Signalling_HSDPA",
     [](auto h)
     {
         return TANDEKOR_Reduced_Signalling_HSDPA(h, 1, 2, 3, outs.bytes, 4, 4, 1, outs.bytes, 5, 6, 7, 8, 9, 10, 11,
                                                  outs.bytes);
     }},
    {"Reduced_Signalling_EDGE",
     [](auto h)
     {
         return TANDEKOR_Reduced_Signalling_EDGE(h, 1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 13, 0, 0, 0, 0,
                                                 outs.bytes, outs.bytes);
     }},
    {"FTM_EGPRS_BER_StartCall", [](auto h) { return FTM_EGPRS_BER_StartCall(h, 1, 2, 3, 4); }},
    {"StartCall", [](auto h) { return TANDEKOR_StartCall(h, 3, outs.bytes); }, GoOnline},
    {"GSM_PA_OutputPower", [](auto h) { return TANDEKOR_GSM_PA_OutputPower(h, 1, 2, 3, 4, 5, 6, 7, 8); }},
    {"Set_TX_PowerOn", [](auto h) { return TANDEKOR_Set_TX_PowerOn(h, 1, 2, 3, 4, 5, 6, 7, 8); }},
    {"WCDMA_PA_OutputPower", [](auto h) { return TANDEKOR_WCDMA_PA_OutputPower(h, 1, 2, 3, 4, 5, 6); }},
    {"AFC_Deviation", [](auto h) { return TANDEKOR_AFC_Deviation(h, 1, 2, 3, 4, 5, 6); }},
    {"CheckDACValues_Summed",
     [](auto h) { return TANDEKOR_CheckDACValues(h, 2, &outs.average, 3, &outs.average, &outs.average); }},
    {"CheckDACValues_Single",
     [](auto h) { return TANDEKOR_CheckDACValues(h, 2, &outs.average, 3, &outs.average, &outs.average); },
     [](auto)
     { ThePhone().msmHardwareVersion = 0xC0, ThePhone().hardwareVersion = 0xC0000, ThePhone().hardwareId = 4; }},
    {"Virtual_SIM", [](auto h) { return TANDEKOR_Virtual_SIM(h, outs.text, outs.bytes); }},
    {"Virtual_SIM_Forced", [](auto h) { return TANDEKOR_Virtual_SIM(h, outs.text, outs.bytes); },
     GoOnlineWithoutDirectSwitch},
    {"SimSimulation", SimSimulation},
    {"SpecialSetRtcActualTime", TANDEKOR_SpecialSetRtcActualTime},
    {"NetworkAndChannelPreselection", [](auto h) { return TANDEKOR_NetworkAndChannelPreselection(h, 2, 3, 4); }},
    {"NV_WRITE_NETWORK_SCAN_MODE", [](auto h) { return NV_WRITE_NETWORK_SCAN_MODE(h, 2); }},
    {"NV_WRITE_LAST_GOOD_CHANNEL", [](auto h) { return NV_WRITE_LAST_GOOD_CHANNEL(h, 2, 3); }},
    {"NV_SetRoamingListStatus", [](auto h) { return TANDEKOR_NV_SetRoamingListStatus(h, 1); }},
    {"NVSetAutoAnswerStatus", [](auto h) { return TANDEKOR_NVSetAutoAnswerStatus(h, 1); }},
    {"FTM_SetKeyPadBackLightGPIO", [](auto h) { return TANDEKOR_FTM_SetKeyPadBackLightGPIO(h, 7, 1); }},
    {"FTM_SetKeyPadBackLightGPIO_Model3", [](auto h) { return TANDEKOR_FTM_SetKeyPadBackLightGPIO(h, 5, 1); },
     BecomeModel3},
    {"FTM_TestFlip", [](auto h) { return TANDEKOR_FTM_TestFlip(h, &outs.character, 0); }, BecomeModel3},
    {"FTM_KOLT_CAMERA_SWITCH", [](auto h) { return TANDEKOR_FTM_KOLT_CAMERA_SWITCH(h, 0); }},
    {"FTM_I2C_GetCameraId", [](auto h) { return TANDEKOR_FTM_I2C_GetCameraId(h, 1, &outs.word); }},
};

// Calls whose refusal does not end the procedure, or ends it with another text than a failure line.
struct Exception
{
    const char* procedure;
    const char* operation;
    int first, last;  // which calls of this operation, from 1
    const char* reason;
    const char* lastText = nullptr;  // set: the refusal ends it, with a text that begins so
    int callsBehind = 0;             // that are made all the same
};

constexpr char cameraFinish[] = "\t\tTANDEKOR_FTM_I2C_GetCameraId - finish";

// Last lines of a freezing that stops.
constexpr char imeiNotRead[] = "\t\tTANDEKOR_DIAG_NV_READ_F() - read IMEI Failure\n";
constexpr char addressNotRead[] = "\t\tTANDEKOR_DIAG_NV_READ_F() - read BT Address Failure\n";
constexpr char serialNotRead[] = "\t\tTANDEKOR_DIAG_NV_READ_F() - read Device Serial Number Failure\n";

constexpr Exception exceptions[] = {
    {"ModeChangeResetMobile", "QLIB_IsPhoneConnected", 7, 9, "polled until it answers; then two answers are dropped"},
    {"BootBox_SwitchMobileOn", "QLIB_IsPhoneConnected", 1, 1, "polled until it answers"},
    {"BootBox_SwitchMobileOn_WithReset", "QLIB_IsPhoneConnected", 1, 1, "polled until it answers"},
    {"BootBox_SwitchMobileOn_WithReset", "QLIB_IsPhoneConnected", 8, 10, "as in the mode change by reset"},
    {"BootBox_SwitchMobileOff", "QLIB_IsPhoneConnected", 10, 10, "silence is what is waited for"},
    {"FTM_SetKeyPadBackLightGPIO_Model3", "QLIB_FTM_SET_PMIC_DRIVE_LEVEL", 1, 1, "it has no trace",
     "\tTANDEKOR_Phone_Model(piVerNumber = 3, piMSMModel = 2, piPhoneModel = 3) - Completed successfully\n"},
    {"FTM_I2C_GetCameraId", "QLIB_FTM_CAMERA_SET_SENSOR_ID", 1, 1, "it closes with a remark", cameraFinish},
    {"FTM_I2C_GetCameraId", "QLIB_FTM_CAMERA_START", 1, 1, "the camera is stopped", cameraFinish, 1},
    {"FTM_I2C_GetCameraId", "QLIB_SendSync", 2, 2, "the camera is stopped", cameraFinish, 1},
    {"FTM_I2C_GetCameraId", "QLIB_FTM_CAMERA_STOP", 1, 1, "it closes with a remark", cameraFinish},
    {"DIAG_DISABLE_48KHz", "QLIB_DIAG_MEMORY_PEEK_DWORD_F", 1, 1, "writes no log", "nothing logged"},
    {"DIAG_DISABLE_48KHz", "QLIB_SendSync", 1, 1, "the result of the write is not looked at"},
    {"SupplyVoltageTest_C", "QLIB_SendSync", 2, 2, "the camera's own switch makes up for it"},
    {"DIAG_FREEZE_PHONE", "QLIB_IsPhoneConnected", 1, 3, "words of its own", imeiNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_IsPhoneConnected", 4, 6, "words of its own", addressNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_IsPhoneConnected", 7, 9, "words of its own", serialNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_DIAG_NV_READ_F", 1, 1, "words of its own", imeiNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_DIAG_NV_READ_F", 2, 2, "words of its own", addressNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_DIAG_NV_READ_F", 3, 3, "words of its own", serialNotRead},
    {"DIAG_FREEZE_PHONE", "QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD", 1, 1, "words of its own",
     "\t\tRoot Key Write FAILED status: 1\n"},
    {"DIAG_FREEZE_PHONE", "QLIB_GSDIDIAG_ROOT_KEY_READ_CMD", 1, 1, "words of its own",
     "\t\tRoot Key Read FAILED, status"},
    {"DIAG_FREEZE_PHONE", "QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD", 1, 1, "words of its own",
     "\t\t\tSecure Device Info FAILED, status"},
    {"SpecialMmcTest", "QLIB_SendSync", 1, 2, "the request's own line is the last",
     "\tTANDEKOR_FTM_MMC_FILE_ACCESS() - SendSync() fail (error code = 187)"},
    {"Virtual_SIM", "QLIB_IsFTM_Mode", 2, 2, "no answer counts as no: the phone is forced"},
    {"Virtual_SIM", "QLIB_IsPhoneConnected", 10, 12, "a failed clock is passed over"},
    {"Virtual_SIM", "QLIB_FTM_PMIC_RTC_SET_GET_TIME", 1, 1, "a failed clock is passed over"},
    {"Virtual_SIM", "QLIB_IsPhoneConnected", 19, 19, "polled until it answers"},
    {"Virtual_SIM_Forced", "QLIB_IsFTM_Mode", 2, 2, "no answer counts as no: the phone is forced"},
    {"Virtual_SIM_Forced", "QLIB_DIAG_CONTROL_F", 3, 4, "the results are not looked at"},
    {"Virtual_SIM_Forced", "QLIB_IsPhoneConnected", 10, 13, "polled until it answers"},
    {"Virtual_SIM_Forced", "QLIB_IsPhoneConnected", 14, 16, "a failed clock is passed over"},
    {"Virtual_SIM_Forced", "QLIB_FTM_PMIC_RTC_SET_GET_TIME", 1, 1, "a failed clock is passed over"},
    {"Virtual_SIM_Forced", "QLIB_IsPhoneConnected", 23, 25, "polled until it answers"},
};

constexpr Exception questionForTheModel{"any", "QLIB_DIAG_EXT_BUILD_ID_F", 1, 2,
                                        "there is a second way to the hardware version and id"};
constexpr Exception earlyPollOfACheck{"any", "QLIB_IsPhoneConnected", 1, 2, "only the third answer of a check counts"};

const std::set<std::string> operationsWithoutResult = {"QLIB_GetLibraryVersion", "QLIB_ConfigureCallBacks"};

}  // namespace

class RefusalSweepTest : public ProcedureTest, public ::testing::WithParamInterface<Procedure>
{
protected:
    // With the n-th call refused; 0 refuses none.
    uint8_t Run(int n)
    {
        FreshBench();
        if (GetParam().prepare)
            GetParam().prepare(handle);
        simulator::ForgetCalls();
        simulator::ForgetLog();
        simulator::RefuseAnyCall(n);
        return GetParam().call(handle);
    }

    static const Exception* FindException(const std::string& operation, int number)
    {
        for (const Exception& row : exceptions)
        {
            if (std::string(row.procedure) == GetParam().name && row.operation == operation && number >= row.first
                && number <= row.last)
                return &row;
        }
        const bool asksModel
            = operation == questionForTheModel.operation && GetParam().name != std::string("CheckSWBuild");
        return asksModel ? &questionForTheModel : nullptr;
    }
};

TEST_P(RefusalSweepTest, FirstRefusedCallEndsTheProcedure)
{
    ASSERT_NE(Run(0), 0) << LastLogText();
    std::map<std::string, int> numbers;
    int n = 0;
    int withoutResult = 0;
    int checkPolls = 0;
    for (const std::string& call : Texts(simulator::Calls()))
    {
        const std::string operation = call.substr(0, call.find('('));
        if (operationsWithoutResult.contains(operation))
        {
            ++withoutResult;
            continue;
        }
        SCOPED_TRACE("call " + std::to_string(++n) + ", " + call);
        const Exception* exception = FindException(operation, ++numbers[operation]);
        const bool checks = exception == nullptr || exception->lastText != nullptr;
        if (checks && operation == "QLIB_IsPhoneConnected" && ++checkPolls % 3 != 0)
            exception = &earlyPollOfACheck;
        const bool goesOn = exception != nullptr && exception->lastText == nullptr;
        EXPECT_EQ(Run(n) != 0, goesOn) << (exception != nullptr ? exception->reason : "nothing excuses it");
        if (goesOn)
            continue;
        const int behind = exception != nullptr ? exception->callsBehind : 0;
        EXPECT_EQ(std::ssize(simulator::Calls()), n + withoutResult + behind)
            << "the last call is " << simulator::Calls().back();
        if (exception != nullptr)
            EXPECT_TRUE(LastLogText().starts_with(exception->lastText)) << LastLogText();
        else
            EXPECT_TRUE(LastLogText().ends_with(" - Failure\n")) << LastLogText();
    }
}

TEST_P(RefusalSweepTest, UnknownHandleDoesNothing)
{
    outs = Outs();
    EXPECT_EQ(GetParam().call(unknownHandle), 0);
    EXPECT_EQ(Calls(), Texts{});
    EXPECT_EQ(Log(), Texts{});
    EXPECT_EQ(outs, Outs());
}

INSTANTIATE_TEST_SUITE_P(Procedures, RefusalSweepTest, ::testing::ValuesIn(procedures),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace tandekor::test
