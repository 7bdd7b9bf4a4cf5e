// What branches within the procedures, in words that a person can check.
#include <algorithm>
#include <cstdio>

#include "procedures/procedure_steps.h"
#include "tests/procedures/procedure_test.h"
#include "tests/procedures/transcript.h"

namespace tandekor::test
{

namespace
{

using simulator::Mode;
using simulator::Phone;
using simulator::ThePhone;

// A call and a part of its transcript; one that ends with "= 0" is the end.
struct Case
{
    Call call;
    std::string part;
};

void Expect(const std::vector<Case>& cases)
{
    for (const Case& row : cases)
    {
        std::string text = ShortForm(Observe({}, row.call).events);
        for (size_t at = text.find("\n  "); at != std::string::npos; at = text.find("\n  "))
            text.erase(at, 3);
        EXPECT_NE(text.find(row.part), std::string::npos) << row.part << "\nis not in\n" << text;
    }
}

// On the phone with this chip and this hardware identifier.
Call On(uint32_t chip, uint16_t id, const Call& call) { return After(BecomePhone(chip, id), call); }

const Change goOnline = Set(&Phone::mode, Mode::Online), staysOnline = Set(&Phone::goesOffline, false);
const Call switchOff = With(TANDEKOR_BootBox_SwitchMobileOff, {4}), sim = With(TANDEKOR_Virtual_SIM, {"000000"});

Call SwitchOn(int mode) { return With(TANDEKOR_BootBox_SwitchMobileOn, {4, mode}); }

}  // namespace

TEST(ProcedureCases, PhoneThatDoesNotTakeItsMode)
{
    const Change never = Set(&Phone::startTimeMs, 1'000'000);
    Expect({
        {With(TANDEKOR_BootBox_SwitchMobileOn, {65535, 0}), "   SwitchPhoneOn(iBootBoxPort = 65535)!] = 0"},
        {After(At("QLIB_IsFTM_Mode", 1, goOnline), SwitchOn(1)), "T_ModeChangeResetMobile(1)] ? x3 Q_IsFTM_Mode()"},
        {After(At("QLIB_IsFTM_Mode", 2, goOnline), SwitchOn(1)), "already in correct mode\" ? x3 Q_IsFTM_Mode()"},
        {After(At("QLIB_IsFTM_Mode", 2, goOnline), SwitchOn(1)), "Mobile not in FTM mode!]"},
        {After(At("QLIB_DIAG_STATUS_F", 2, Set(&Phone::mode, Mode::Ftm)), SwitchOn(0)), "Mobile not in Online mode!]"},
        {switchOff, "\"\\09Mobile is in Offline mode\" ? x3"},
        {switchOff, "SwitchPhoneOff!] = 0"},
        {After(SwitchOn(2), With(TANDEKOR_BootBox_SwitchMobileOff, {5})), "SwitchPhoneOff!]"},
        {After(staysOnline, After(SwitchOn(2), switchOff)), "Mobile not in Offline mode!]"},
        {With(TANDEKOR_ModeChangeResetMobile, {5}), "~(453, 05, 1)"},
        {After(never, With(TANDEKOR_ModeChangeResetMobile, {1})), "turn mobile on is up\" = 0"},
        {After(never + Set(&Phone::switchesModeDirectly, false) + goOnline, sim),
         "Q_IsFTM_Mode() Cannot switch to FTM mode!] flags 0 after 13 flags 2 after 13"},
        {After(At("QLIB_IsFTM_Mode", 3, [] { simulator::RefuseCallsFrom("QLIB_IsPhoneConnected"); }), sim),
         "[T_SimSimulation ? x3 Invalid handle!] T_SimSimulation()!]"},
        {After(Refuse("QLIB_FTM_PMIC_RTC_SET_GET_TIME"), sim), "~()!] Cannot set actual time!]"},
    });
}

TEST(ProcedureCases, UploadsAndClockReturnTheByteOfTheHostLibrary)
{
    const Change resultIs2 = []
    {
        TANDEKOR_SetLibraryMode(1);
        ThePhone().upload.result = ThePhone().clock.result = 2;
    };
    Expect({
        {After(resultIs2, With(TANDEKOR_UploadCEFS_File2, {1, -8, 3})),
         "(1, " + std::to_string(SIZE_MAX - 7) + ", 3) Q_UploadCEFS_File2()] = 2"},
        {After(resultIs2, With(TANDEKOR_UploadCEFS_File, {1, 2})), "Q_UploadCEFS_File()] = 2"},
        {After(resultIs2, With(TANDEKOR_UploadMultiImage, std::vector<Given>(23, 1))), "Q_UploadMultiImage()] = 2"},
        {After(resultIs2, With(TANDEKOR_SpecialSetRtcActualTime)), "(iReadWrite = 0, iTimeMode = ] = 2"},
        {With(TANDEKOR_UploadCEFS_File, {1, 2}),
         "   Q_GetLibraryVersion() \"\\09Temporary not supported - HBLK removed\" = 0"},
    });
}

TEST(ProcedureCases, PollsAndWaits)
{
    const Call reset = With(TANDEKOR_ModeChangeResetMobile, {1});
    const auto starts = [](uint32_t time)
    { return Set(&Phone::startTimeMs, time) + Set(&Phone::switchesModeDirectly, false) + goOnline; };
    const Change off = Set(&Phone::on, false);
    const Change comesBack = [] { simulator::TheClock().onSleep = [](uint32_t) { ThePhone().on = true; }; };
    const struct
    {
        Call call;
        int result;
        ptrdiff_t questions;  // whether the phone answers, or what its state is
        int waitedMs;
    } cases[] = {
        {After(starts(27600) + off, SwitchOn(2)), 1, 73, 27600},
        {After(starts(28000) + off, SwitchOn(2)), 0, 71, 28000},
        {After(staysOnline, reset), 0, 3 + 48, 12000},
        {After(starts(20500), reset), 1, 7 + 6, 18000 + 4 * 1000},
        {After(starts(1'000'000), reset), 0, 6 + 1 + 41, 18000 + 41 * 1000},
        {After(SwitchOn(2), After(comesBack, switchOff)), 0, 4 + 10 + 50, 1 + 50 * 200},
        {After(SwitchOn(2), After(staysOnline, switchOff)), 0, 4 + 6 + 48, 12000},
        {After(starts(13000), sim), 1, 64, 1000 + 12000 + 3000 + 13000},
        {After(starts(16000), sim), 0, 64, 1000 + 12000 + 3000 + 13000},
        {After(starts(16001), sim), 0, 65, 1000 + 12000 + 3500 + 3000 + 13000},
        {After(starts(1'000'000), sim), 0, 51, 1000 + 12000 + 13000},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(&row - cases);
        const Observation seen = Observe({}, row.call);
        ptrdiff_t questions = 0;
        int waitedMs = 0;
        for (const std::string& event : seen.events)
        {
            questions += event == "QLIB_IsPhoneConnected()" || event == "QLIB_DIAG_STATUS_F()" ? 1 : 0;
            waitedMs += event.starts_with("Sleep(") ? std::stoi(event.substr(6)) : 0;
        }
        EXPECT_EQ(seen.call.result, row.result);
        EXPECT_EQ(questions, row.questions);
        EXPECT_EQ(waitedMs, row.waitedMs);
    }
}

TEST(ProcedureCases, ItemsRegistersAndReadings)
{
    const auto reads = [](const char* operation, uint32_t value) { return At(operation, 2, SetRegister(16, value)); };
    const Call set = With(SetBitState_32_Reg, {16, 0x0F, 1}), clear = With(SetBitState_8_Reg, {16, 0x0F, 0});
    const Call rise = With(NV_READ_WCDMA_LNA_RANGE_RISE, {4, Out{2}, Out{2}, Out{2}});
    const auto adc = [](int count, int secondCount) { return With(TANDEKOR_CheckDACValues, {count, secondCount}); };
    const Change adcRises = [] { ThePhone().radio.adc[0] = 0xFFFF; };
    const auto simGives = [](uint32_t status, uint32_t commandStatus)
    {
        return After([=] { ThePhone().security.status = status, ThePhone().security.commandStatus = commandStatus; },
                     With(SimSimulation));
    };
    Expect({
        {After(SetStatus(453), With(DIAG_NV_WRITE_F, {453, Ascii("a"), 1})), "Q_DIAG_NV_WRITE_F(iNvStatus = 5)!] = 0"},
        {With(NV_READ_GSM_RX_REL_OFFSETS, {10, Out{1}, 0}), "pItemData = , iL"},
        {After(SetStatus(550), With(NV_READ_GSM_RX_REL_OFFSETS, {550, Ascii("abc"), 3})),
         "~(iNvStatus = 5)!] T_DIAG_NV_READ_F(iItemID = 550, pItemData = abc, iLength = 3)!] out - = 0"},
        {After(SetItem(10, "78 00 7A"), With(NV_READ_GSM_RX_REL_OFFSETS, {10, Out{3}, 3})), "pItemData = x, iL"},
        {After(SetItem(10, "25 73 25 6E"), With(NV_READ_GSM_RX_REL_OFFSETS, {10, Out{4}, 4})), "= %s%n, iL"},
        {After(SetStatus(859), rise), "(iItemID = 859, cBin3 = UU, iLength = 2)!] out 07 6E out - x2 = 0"},
        {After(reads("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0xFF00000F), set), "= 1"},
        {After(reads("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0x07), set), "(_iPokeStorage != _iPeekStorage)!] = 0"},
        {After(reads("QLIB_DIAG_MEMORY_PEEK_F", 0xF0), clear), "= 1"},
        {After(reads("QLIB_DIAG_MEMORY_PEEK_F", 0xF8), clear), "(_iPokeStorage != _iPeekStorage)!] = 0"},
        {With(TK_GetBitState_32_Reg, {16, 33}), "   ? x3 \"\\09bitNum over the range: 33\" out - x2 = 0"},
        {With(NV_WRITE_NETWORK_SCAN_MODE, {1}), "   ? x3 = 0"},
        {With(NV_WRITE_NETWORK_SCAN_MODE, {2}), "~(441, 00 00 01, 3)"},
        {With(NV_WRITE_LAST_GOOD_CHANNEL, {3, 0x1234}), "~(1894, 01 34 12 03 00 *123 00, 128)"},
        {simGives(7, 0), "(_iStatus != 0)!] = 0"},
        {simGives(0, 0x10000), "(_iCommandStatus != 0)!] = 0"},
        {simGives(1, 1), "(_iStatus != 0)!] = 0"},
        {adc(0, 5), "   ? x3 \"\\09iAverageCount = 0\" out 00 *7 00 out - x2 = 0"},
        {On(0xC0, 4, adc(1, 0)), "out 00 *6 26 40 out 00 *5 E0 6F 40 x2 = 0"},
        {On(0xC0, 4, After(At("QLIB_FTM_GET_ADC_VAL", 2, adcRises), adc(2, 1))), "A0 00 E0 40 out"},  // 32773
    });
}

TEST(ProcedureCases, AudioChargerAndSupply)
{
    const auto limits = [](uint32_t voltage, uint32_t current) {
        return With(SpecialSetPmicChargeLimits, {voltage, current});
    };
    const std::string outOfRange = "   ? x3 Parameter out of range.!] = 0";
    const auto supply = [](int camera) { return With(TANDEKOR_SupplyVoltageTest, {camera, 42, 2, 1}); };
    const Change switchRefused = At("QLIB_SendSync", 2, Reply("4B 0B 00 80 0E 00 00 00 0C 00 07 00"));
    const Change longReply = [] { simulator::QueueReply({Bytes(12, 0xFF), 1, uint16_t{40000}}); };
    const auto bias
        = [](const char* reply) { return After(Reply(reply), With(TANDEKOR_MicrophoneBiasVoltages, {15})); };
    const auto display = [](int number) { return With(TANDEKOR_SpecialSwitchDisplay, {number}); };
    Expect({
        {bias("FF FF FF FF FF FF FF FF FF FF 00 FF FF FF"), "= 1"},
        {bias("4B 0B 01 80 70 04 0E 00 0E 00 01 00 00 00"), "Q_SendSync <cResponse[10] != 0>!] room 14 = 0"},
        {bias("4B 0B 01 80 70 04 0E 00 0E 00"), "= 1"},
        {limits(4000, 10), "~(0, 0)"},
        {limits(4375, 300), "~(29, 15)"},
        {limits(4025, 20), "~(1, 1)"},
        {limits(4374, 299), "~(28, 14)"},
        {limits(3999, 10), outOfRange},
        {limits(4000, 9), outOfRange},
        {limits(4000, 301), outOfRange},
        {limits(4000, 0x1000A), outOfRange},
        {After([] { ThePhone().charger.switches[1] = 0x11; }, With(SpecialGetChargeFetState, {1})), "out 00 = 1"},
        {After(NoReply(), With(TANDEKOR_Charging_Test, {3, 'c', 1, 0, 'c', 4000, 10, 1})),
         "[!!! LPM3 -> PHONE HAS TO BE RESET NOW !!!]!] [!!! NO MORE COMMUNICATION POSSIBLE !!!]!]"},
        {With(TANDEKOR_Charging_Test, {3, 'c', 1, 1, 'c', 4000, 10, 1}), "iChargerSwitchCommand = c)!]"},
        {supply(2), "   ? x3 Wrong camera number!] = 0"},
        {On(0x60, 0, supply(1)), "T_Phone_Model()] room 4096 = 0"},
        {After(switchRefused, supply(1)), "(iSwitchID = 1, iSwitchState = 1)!] [T_FTM_KOLT_CAMERA_SWITCH ? x3"},
        {On(0x405, 10, After(switchRefused, supply(1))), "(iSwitchID = 1, iSwitchState = 1)!] room 4096 x2 = 0"},
        {On(0x405, 10, After(Refuse("QLIB_DIAG_MEMORY_POKE_F"), supply(1))),
         "iAddress = 0x84000160 + 0, iMask = 0x10,"},
        {On(0x60, 0, display(1)), "ERROR: Mobile not supported!]"},
        {On(0x60, 0, display(0)), "= 1"},
        {On(0x405, 2, After(At("QLIB_SendSync", 2, longReply), display(1))), "piResponseSize = -25536, iTime"},
        {On(0, 0, After(NoReply(), With(TANDEKOR_Phone_Model))), "ARE_VERSION()!] room 4096 out - x3 = 0"},
        {After(NoReply(), With(TANDEKOR_Phone_Model)), "~()!] room 4096 out - out 02 00 00 00 out - = 0"},
    });
}

TEST(ProcedureCases, IdentityAndStorage)
{
    const Call read = With(TANDEKOR_NV_READ_IMEI, {Out{16}}), write = With(TANDEKOR_NV_WRITE_IMEI, {"123456789012345"});
    const auto imeiChanges
        = [](size_t place) { return At("QLIB_DIAG_NV_READ_F", 1, [=] { ThePhone().nvItems[550][place] ^= 0x10; }); };
    const Call card = With(TANDEKOR_SpecialMmcTest);
    const auto cardChanges = [](size_t place)
    { return At("QLIB_SendSync", 2, [=] { ThePhone().factory.card["\\Test.bin"][place] ^= 1; }); };
    const auto address = [](const char* text) { return With(FtmBtSetAddr, {text}); };
    const auto radio = [](uint8_t byte, int data)
    {
        const auto change = [=]
        {
            ThePhone().factory.i2c[{0x10, 0}] = Bytes(28, static_cast<uint8_t>(~byte));
            ThePhone().factory.i2c[{0x10, 0}][9] = byte;
        };
        return After(change, With(TANDEKOR_SpecialGetFmRadioInfo, {data}));
    };
    Expect({
        {After(SetItem(550, "08 1A 32 54 76 98 10 32 54"), read),
         "out 31 32 33 34 35 36 37 38 39 30 31 32 33 34 35 00"},
        {After(SetItem(550, "FF 05 00 00 00 00 00 00 90"), read), "out 30 *14 39 00 = 1"},
        {After(SetItem(550, "08 FA BA DC FE 98 10 32 A4"), read),
         "out 3F 3A 3B 3C 3D 3E 3F 38 39 30 31 32 33 34 3A 00"},
        {After(SetStatus(550), read), "Q_DIAG_NV_READ_F(iNvStatus = 5)!] out 00 *15 00 = 0"},
        {After(Refuse("QLIB_DIAG_NV_READ_F"), read), "out - = 0"},
        {With(TANDEKOR_NV_WRITE_IMEI, {"?:;<=>?89012345"}), "~(550, 08 FA BA DC FE 98 10 32 54, 9)"},
        {After(imeiChanges(0), write), "cImei[i] != cImeiRead[i]!] = 0"},
        {After(imeiChanges(8), write), "cImei[i] != cImeiRead[i]!] = 0"},
        {After(cardChanges(0), card), "cOutData[0] != cInData[0]\" room 4096 x2 = 0"},
        {After(cardChanges(15), card), "cOutData[15] != cInData[15]\" room 4096 x2 = 0"},
        {address("789abc123456"), "~(56 34 12 BC 9A 78) ~(iAddr=789ABC123456)] out 37 38 39 41 42 43 31"},
        {address("0123456789abcdef"), "~(AB 89 67 45 23 01)"},
        {address("g1-2 3\xE4@@5/6"), "~(06 05 00 03 02 01)"},
        {address("789abc12345"), "   ? x3 Q_FTM_BT_SetAddr(strlen(szAddr) < 12)!] out - = 0"},
        {After(SetStatus(447), With(TANDEKOR_BluetoothTestConnect, {Out{13}})), "out - = 0"},
        {With(TANDEKOR_SpecialSetKeypadMapping, {12}), "~() ~()] Wrong mapping ID specified!] = 0"},
        {With(TANDEKOR_SetFactoryTrackingByte, {1, 128, Bytes{1}}),
         "   ? x3 T_SetFactoryTrackingByte - iDataAddress >= 128!]"},
        {radio(0xA4, 0), "out 0A = 1"},
        {radio(0xA4, 1), "out 00 = 1"},
        {radio(0xA4, 2), "out 01 = 1"},
        {radio(0x58, 0), "out 05 = 1"},
        {radio(0x58, 1), "out 01 = 1"},
        {radio(0x58, 2), "out 00 = 1"},
        {radio(0xA4, 3), "out FF = 0"},
    });
}

TEST(ProcedureCases, FreezingStopsAtTheFirstRowThatFails)
{
    const auto freeze = [](const Bytes& imei, const char* address, const char* serial) {
        return With(TANDEKOR_DIAG_FREEZE_PHONE, {imei, Ascii(address), Ascii(serial), Bytes(260, 'K')});
    };
    const Bytes imei = Ascii("IMEIbytes"), zero = Hex("49 4D 45 00 11 22 33 44 55");
    const Call right = freeze(imei, "BTaddr", "SerialNumber0123"),
               withZero = freeze(zero, "BTaddr", "SerialNumber0123");
    const auto fails = [](const char* operation) { return At(operation, 1, [] { ThePhone().security.status = 5; }); };
    const auto gives = [](uint8_t result) { return Change([=] { ThePhone().security.result = result; }); };
    const Change keyChanges = [] { ThePhone().security.rootKey.back() ^= 1; };
    Expect({
        {After(SetStatus(550), right), "- read IMEI Failure\\0A\" = 0"},
        {freeze(Ascii("IMEIbytex"), "BTaddr", "SerialNumber0123"), "IMEI Mismatch\\0A\" = 0"},
        {After(SetStatus(447), right), "- read BT Address Failure\\0A\" = 0"},
        {freeze(imei, "BTaddx", "SerialNumber0123"), "BT Address Mismatch\\0A\" = 0"},
        {After(SetStatus(2824), right), "- read Device Serial Number Failure\\0A\" = 0"},
        {freeze(imei, "BTaddr", "SerialNumber012x"), "Device Serial Number Mismatch\\0A\" = 0"},
        {After(fails("QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD"), right), "Root Key Write FAILED status: 5\\0A\" = 0"},
        {After(gives(0), right), "Root Key Write FAILED status: 0\\0A\" = 0"},
        {After(fails("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD"), right), "Root Key Read FAILED, status: 5\\0A\" = 0"},
        {After(At("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD", 1, keyChanges), right), "Public Key Mismatch\\0A\" = 0"},
        {After(fails("QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD"), right), "Secure Device Info FAILED, status: 5\\0A\" = 0"},
        {After(gives(200), right), "Finished, Result = 200\\0A\" = 200"},
        // The comparison ends after the first zero byte of the caller's value.
        {After(SetItem(550, "49 4D 45 00 99 99 99 99 99"), withZero), "= 1"},
        {After(SetItem(550, "49 4D 45 01 11 22 33 44 55"), withZero), "IMEI Mismatch\\0A\" = 0"},
    });
}

// --- pins and cameras

namespace
{

Call Light(int row, int on = 1) { return With(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {row, on}); }
Call Choose(int camera) { return With(TANDEKOR_FTM_KOLT_CAMERA_SWITCH, {camera}); }

}  // namespace

TEST(ProcedureCases, WrongModelsRowsAndCameras)
{
    const auto flip = [](uint32_t direction, uint32_t output, uint32_t input)
    {
        const Change change
            = SetRegister(0x48000004, direction) + SetRegister(0x4800000C, output) + SetRegister(0x48000064, input);
        return On(0x405, 3, After(change, With(TANDEKOR_FTM_TestFlip, {0})));
    };
    constexpr uint32_t bit = 0x200;
    const Call camera = With(TANDEKOR_FTM_I2C_GetCameraId, {1});
    const Change status = [] { ThePhone().camera.status = 0x10005; };
    const std::string failed = "T_FTM_I2C_GetCameraId(iCamNum = 1)!]",
                      stopped = "Q_FTM_CAMERA_STOP() Q_FTM_CAMERA_STOP(piCameraStatus = ";
    const std::string wrongRow = "\"\\09\\09Parameter RowNumber over the range (1-7).\" room 4096 = 0";
    const std::string wrongModel = "\"\\09\\09Wrong mobile model\" room 4096 = 0";
    const Change secondPeekRefused = SetRegister(0x48000004, 0x1234) + Refuse("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 2);
    const std::string advice = "stdout: \\0ADRAVOK not support, Please choose 7(Insidekeypad) or 5(OutsideKeypad). = 0";
    Expect({
        {Light(0), wrongRow},
        {Light(8), wrongRow},
        {Light(0x0101), wrongRow},
        {On(0x405, 3, Light(4)), advice},
        {On(0x405, 3, Light(6)), advice},
        {On(0x405, 3, Light(0x0105)), advice},
        {On(0x405, 3, Light(5)), "piPhoneModel = 3)] Q_FTM_SET_PMIC_DRIVE_LEVEL(1, 15) room 4096 = 1"},
        {On(0x405, 10, Light(1)), wrongModel},
        {On(0x405, 3, Choose(0)), wrongModel},
        {Choose(2), "\"\\09\\09Wrong camera number (2)\" room 4096 = 0"},
        {On(0x405, 9, Choose(0)), "T_FTM_KOLT_CAMERA_SWITCH(iCameraNum = 1)]"},
        {flip(bit, bit, ~bit), "out 31 = 1"},
        {flip(bit, ~bit, bit), "out 30 = 1"},
        {flip(~bit, ~bit, bit), "out 31 = 1"},
        {flip(~bit, bit, ~bit), "out 30 = 1"},
        {With(TANDEKOR_FTM_TestFlip, {0}), "room 4096 stdout: \\0ANot support this model out - = 0"},
        {On(0x405, 3, With(TANDEKOR_FTM_TestFlip, {1})), "   ? x3 stdout: \\0ANot support this model out - = 0"},
        {On(0x405, 3, After(secondPeekRefused, With(TANDEKOR_FTM_TestFlip, {0}))), "reg = 4660, bOnOff = 1)!]"},
        {On(0x405, 10, With(TANDEKOR_FTM_I2C_GetCameraId, {2})), "(0-1).\" T_FTM_I2C_GetCameraId(iCamNum = 2)!]"},
        {After(Refuse("QLIB_FTM_CAMERA_SET_SENSOR_ID"), camera), "piCameraStatus = 4)!] " + failed},
        {After(At("QLIB_FTM_CAMERA_SET_SENSOR_ID", 1, status), camera), "piCameraStatus = 5)!] " + failed},
        {After(Refuse("QLIB_FTM_CAMERA_START"), camera), stopped + "0)] " + failed},
        {After(At("QLIB_FTM_CAMERA_START", 1, status), camera), "(piCameraStatus = 5)!] " + stopped + "5)]"},
        {After([] { ThePhone().factory.i2c.clear(); }, camera), "data = 0)!] " + stopped + "0)] " + failed},
        {After(Refuse("QLIB_FTM_CAMERA_STOP"), camera), "data = 71)] " + stopped + "0)!] " + failed},
        {After(At("QLIB_FTM_CAMERA_STOP", 1, status), camera), stopped + "5)] T_FTM_I2C_GetCameraId(iCamNum = 1, i"},
    });
}

// What becomes of which register: of those of a pin's direction, then of those of its level.
TEST(ProcedureCases, PinsOfKeypadRowsAndCameras)
{
    Change allSet = SetRegister(0x84000158, 0xFFFFFFFF) + SetRegister(0x84000164, 0xFFFFFFFF);
    for (const uint32_t address : {0x48000000U, 0x48000004U, 0x48000008U, 0x4800000CU})
        allSet = allSet + SetRegister(address, 0xFFFFFFFF);
    const std::string prepared = "84000154=10 84000160=10 ";
    const std::string camera0
        = "48000000=4 48000008=0 48000004=400 4800000C=0 84000158=100000 84000164=100000 48000000=24 48000008=20 ";
    const std::string camera1
        = "84000158=100000 84000164=0 48000000=20 48000008=0 48000000=24 48000008=4 48000004=400 4800000C=400 ";
    const struct
    {
        Call call;
        std::string pokes;
    } cases[] = {
        {Light(1), "48000000=40 48000008=40 "},
        {Light(2), "84000158=400000 84000164=400000 "},
        {Light(3), "48000000=8 48000008=8 "},
        {Light(4), "48000004=800 4800000C=800 "},
        {Light(5), prepared + "48000004=200 4800000C=200 "},
        {Light(6), prepared + "84000158=2000000 84000164=2000000 "},
        {Light(7), prepared + "48000000=48 48000008=48 48000004=A00 4800000C=A00 84000158=2400000 84000164=2400000 "},
        {On(0x405, 3, Light(7)), "84000150=2000 8400015C=2000 "},
        {After(allSet, Light(3, 0)), "48000000=FFFFFFFF 48000008=FFFFFFF7 "},
        {Choose(0), camera0},
        {Choose(1), camera1},
        {On(0x405, 9, Choose(1)), camera0},
        {On(0x405, 9, Choose(0)), camera1},
        {After(allSet, Choose(1)),
         "84000158=FFFFFFFF 84000164=FFEFFFFF 48000000=FFFFFFFF 48000008=FFFFFFDF 48000000=FFFFFFFF "
         "48000008=FFFFFFDF 48000004=FFFFFFFF 4800000C=FFFFFFFF "},
    };
    for (const auto& row : cases)
    {
        std::string pokes;
        for (const std::string& call : Observe({}, row.call).calls)
        {
            unsigned address = 0, value = 0;
            char poke[32];
            if (std::sscanf(call.c_str(), "QLIB_DIAG_MEMORY_POKE_DWORD_F(%u, 1, %u)", &address, &value) != 2)
                continue;
            std::snprintf(poke, sizeof poke, "%X=%X ", address, value);
            pokes += poke;
        }
        EXPECT_EQ(pokes, row.pokes);
    }
}

}  // namespace tandekor::test
