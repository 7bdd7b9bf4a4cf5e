// What branches within the procedures, in words that a person can check: each row is a call and a part of its
// transcript.
#include <algorithm>
#include <cstdio>

#include "procedures/procedure_steps.h"
#include "tests/procedures/procedure_test.h"
#include "tests/procedures/transcript.h"

namespace tandekor::test
{

namespace
{

using simulator::BeforeCall;
using simulator::Mode;

struct Case
{
    Call call;
    std::string part;  // one that ends with "= 0" is the end
};

class CasesTest : public ProcedureTest
{
protected:
    static void Expect(const std::vector<Case>& cases)
    {
        for (const Case& row : cases)
        {
            std::string text = ShortForm(Observe({}, row.call).events);
            for (size_t at = text.find("\n  "); at != std::string::npos; at = text.find("\n  "))
                text.erase(at, 3);
            EXPECT_NE(text.find(row.part), std::string::npos) << row.part << "\nis not in\n" << text;
        }
    }

    static Call On(uint32_t chip, uint16_t hardwareId, const Call& call)
    {
        return After([=] { BecomePhone(chip, hardwareId); }, call);
    }

    static Call WithItem(uint16_t number, const char* digits, const Call& call)
    {
        return After([=] { Phone().nvItems[number] = Hex(digits); }, call);
    }

    static std::function<void()> ItemRefused(uint16_t number)
    {
        return [=] { Phone().nvStatus[number] = 5; };
    }
};

}  // namespace

TEST_F(CasesTest, PhoneThatDoesNotTakeItsMode)
{
    const Call on = With(TANDEKOR_BootBox_SwitchMobileOn, {4, 1}), off = With(TANDEKOR_BootBox_SwitchMobileOff, {4});
    const Call online = With(TANDEKOR_BootBox_SwitchMobileOn, {4, 0});
    const auto goOnline = [] { Phone().mode = Mode::Online; };
    const auto staysOnline = [] { Phone().goesOffline = false; };
    Expect({
        {With(TANDEKOR_BootBox_SwitchMobileOn, {65535, 0}), "   SwitchPhoneOn(iBootBoxPort = 65535)!] = 0"},
        {After([=] { BeforeCall("QLIB_IsFTM_Mode", 2, goOnline); }, on), "\"\\09Phone already in correct mode\" ? x3"},
        {After([=] { BeforeCall("QLIB_IsFTM_Mode", 2, goOnline); }, on), "Mobile not in FTM mode!]"},
        {After([=] { BeforeCall("QLIB_DIAG_STATUS_F", 2, [] { Phone().mode = Mode::Ftm; }); }, online),
         "Mobile not in Online mode!]"},
        {After([=] { BeforeCall("QLIB_IsFTM_Mode", 1, goOnline); }, on),
         "T_ModeChangeResetMobile(1)] ? x3 Q_IsFTM_Mode()"},
        {After(on, With(TANDEKOR_BootBox_SwitchMobileOff, {5})), "SwitchPhoneOff!]"},
        {off, "\"\\09Mobile is in Offline mode\" ? x3"},
        {off, "SwitchPhoneOff!] = 0"},
        {With(TANDEKOR_ModeChangeResetMobile, {5}), "~(453, 05, 1)"},
        {After(staysOnline, After(on, off)), "Mobile not in Offline mode!]"},
    });
}

TEST_F(CasesTest, PollsAndWaits)
{
    const Call on = With(TANDEKOR_BootBox_SwitchMobileOn, {4, 2}), off = With(TANDEKOR_BootBox_SwitchMobileOff, {4});
    const Call reset = With(TANDEKOR_ModeChangeResetMobile, {1}), sim = With(TANDEKOR_Virtual_SIM, {"000000"});
    const auto starts = [](bool isOn, uint32_t time)
    {
        return [=]
        {
            Phone().on = isOn;
            Phone().mode = Mode::Online;
            Phone().switchesModeDirectly = false;
            Phone().startTimeMs = time;
        };
    };
    const auto staysOnline = [] { Phone().goesOffline = false; };
    const auto comesBack = [] { simulator::TheClock().onSleep = [](uint32_t) { Phone().on = true; }; };
    const struct
    {
        Call call;
        int result;
        ptrdiff_t questions;  // whether the phone answers, or what its state is
        int waitedMs;
    } cases[] = {
        {After(starts(false, 27600), on), 1, 73, 27600},
        {After(starts(false, 28000), on), 0, 71, 28000},
        {After(staysOnline, reset), 0, 3 + 48, 12000},
        {After(starts(true, 20500), reset), 1, 7 + 6, 18000 + 4 * 1000},
        {After(starts(true, 1'000'000), reset), 0, 6 + 1 + 41, 18000 + 41 * 1000},
        {After(on, After(comesBack, off)), 0, 4 + 10 + 50, 1 + 50 * 200},
        {After(on, After(staysOnline, off)), 0, 4 + 6 + 48, 12000},
        {After(starts(true, 13000), sim), 1, 64, 1000 + 12000 + 3000 + 13000},
        {After(starts(true, 16000), sim), 0, 64, 1000 + 12000 + 3000 + 13000},
        {After(starts(true, 16001), sim), 0, 65, 1000 + 12000 + 3500 + 3000 + 13000},
        {After(starts(true, 1'000'000), sim), 0, 51, 1000 + 12000 + 13000},
    };
    for (const auto& row : cases)
    {
        const Observation seen = Observe({}, row.call);
        const auto asks
            = [](const auto& call) { return call == "QLIB_IsPhoneConnected()" || call == "QLIB_DIAG_STATUS_F()"; };
        int waited = 0;
        for (const std::string& event : seen.events)
            waited += event.starts_with("Sleep(") ? std::stoi(event.substr(6)) : 0;
        SCOPED_TRACE(&row - cases);
        EXPECT_EQ(seen.call.result, row.result);
        EXPECT_EQ(std::ranges::count_if(seen.calls, asks), row.questions);
        EXPECT_EQ(waited, row.waitedMs);
    }
}

TEST_F(CasesTest, ItemsAndRegisters)
{
    const Bytes abc = Ascii("abc");
    const auto readsBack = [](const char* operation, uint32_t value)
    { return [=] { BeforeCall(operation, 2, [=] { SetRegister(16, value); }); }; };
    const Call unknownRise = With(NV_READ_WCDMA_LNA_RANGE_RISE, {7, Out{2}, Out{2}, Out{2}});
    Expect({
        {After(ItemRefused(40000), With(DIAG_NV_WRITE_F, {40000, abc, 3})), "Q_DIAG_NV_WRITE_F(iNvStatus = 5)!] = 0"},
        {After(ItemRefused(550), With(NV_READ_GSM_RX_REL_OFFSETS, {550, abc, 3})),
         "~(iNvStatus = 5)!] T_DIAG_NV_READ_F(iItemID = 550, pItemData = abc, iLength = 3)!] out - = 0"},
        {After(readsBack("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0xFF00000F), With(SetBitState_32_Reg, {16, 0x0F, 1})), "= 1"},
        {After(readsBack("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0x07), With(SetBitState_32_Reg, {16, 0x0F, 1})),
         "(_iPokeStorage != _iPeekStorage)!] = 0"},
        {After(readsBack("QLIB_DIAG_MEMORY_PEEK_F", 0xF0), With(SetBitState_8_Reg, {16, 0x0F, 0})), "= 1"},
        {After(readsBack("QLIB_DIAG_MEMORY_PEEK_F", 0xF8), With(SetBitState_8_Reg, {16, 0x0F, 0})),
         "(_iPokeStorage != _iPeekStorage)!] = 0"},
        {With(TK_GetBitState_32_Reg, {16, 33}), "   ? x3 \"\\09bitNum over the range: 33\" out - x2 = 0"},
        {unknownRise, "   ? x3 out - x3 = 0"},
        {After(ItemRefused(859), With(NV_READ_WCDMA_LNA_RANGE_RISE, {4, Out{2}, Out{2}, Out{2}})),
         "T_NV_READ_GSM_RX_REL_OFFSETS(iItemID = 859, cBin3 = UU, iLength = 2)!] out 07 6E out - x2 = 0"},
        {With(NV_WRITE_NETWORK_SCAN_MODE, {1}), "   ? x3 = 0"},
        {With(NV_WRITE_NETWORK_SCAN_MODE, {2}), "~(441, 00 00 01, 3)"},
        {With(NV_WRITE_NETWORK_SCAN_MODE, {5}), "~(441, 00 01 00, 3)"},
        {With(NV_WRITE_LAST_GOOD_CHANNEL, {6, 1}), "   ? x3 = 0"},
        {With(NV_WRITE_LAST_GOOD_CHANNEL, {3, 0x1234}), "~(1894, 01 34 12 03 00 *123 00, 128)"},
        {With(TANDEKOR_NV_SetRoamingListStatus, {2}), "~(256, 00 00, 2)"},
        {With(TANDEKOR_NVSetAutoAnswerStatus, {1}), "~(74, 01, 1)"},
    });
}

TEST_F(CasesTest, AudioChargerAndSupply)
{
    const auto limits = [](uint32_t voltage, uint32_t current) {
        return With(SpecialSetPmicChargeLimits, {voltage, current});
    };
    const auto supply = [](int camera) { return With(TANDEKOR_SupplyVoltageTest, {camera, 42, 2, 1}); };
    const auto switchRefused = [] { BeforeCall("QLIB_SendSync", 2, Reply("4B 0B 00 80 0E 00 00 00 0C 00 07 00")); };
    const auto longReply = []
    {
        Phone().buildId = "DraK2F";
        simulator::QueueReply({Bytes(12, 0xFF), 1, uint16_t{40000}});
    };
    const auto bias
        = [](const char* reply) { return After(Reply(reply), With(TANDEKOR_MicrophoneBiasVoltages, {15})); };
    Expect({
        {bias("FF FF FF FF FF FF FF FF FF FF 00 FF FF FF"), "= 1"},
        {bias("4B 0B 01 80 70 04 0E 00 0E 00 01 00 00 00"), "Q_SendSync <cResponse[10] != 0>!] room 14 = 0"},
        {bias("4B 0B 01 80 70 04 0E 00 0E 00"), "= 1"},
        {limits(4000, 10), "~(0, 0)"},
        {limits(4375, 300), "~(29, 15)"},
        {limits(4024, 19), "~(0, 0)"},
        {limits(4025, 20), "~(1, 1)"},
        {limits(4374, 299), "~(28, 14)"},
        {limits(3999, 10), "   ? x3 Parameter out of range.!] = 0"},
        {limits(4376, 10), "   ? x3 Parameter out of range.!] = 0"},
        {limits(4000, 9), "   ? x3 Parameter out of range.!] = 0"},
        {limits(4000, 0x1000A), "   ? x3 Parameter out of range.!] = 0"},
        {With(SpecialSetChargeFetState, {2, 1}), "   ? x3 = 0"},
        {With(SpecialGetChargeFetState, {0}), "   ? x3 out - = 0"},
        {After([] { Phone().charger.switches[1] = 0x11; }, With(SpecialGetChargeFetState, {1})), "out 00 = 1"},
        {After(NoReply(), With(TANDEKOR_Charging_Test, {3, 'c', 1, 0, 'c', 4000, 10, 1})),
         "[!!! LPM3 -> PHONE HAS TO BE RESET NOW !!!]!] [!!! NO MORE COMMUNICATION POSSIBLE !!!]!]"},
        {With(TANDEKOR_Charging_Test, {3, 'c', 1, 1, 'c', 4000, 10, 1}), "iChargerSwitchCommand = c)!]"},
        {supply(2), "   ? x3 Wrong camera number!] = 0"},
        {On(0x60, 0, supply(1)), "T_Phone_Model()] room 4096 = 0"},
        {After(switchRefused, supply(1)), "(iSwitchID = 1, iSwitchState = 1)!] [T_FTM_KOLT_CAMERA_SWITCH ? x3"},
        {On(0x405, 10, After(switchRefused, supply(1))), "(iSwitchID = 1, iSwitchState = 1)!] room 4096 x2 = 0"},
        {On(0x405, 10, After(Refuse("QLIB_DIAG_MEMORY_POKE_F"), supply(1))),
         "(iAddress = 0x84000160 + 0, iMask = 0x10, bOnOff = 1)!]"},
        {On(0x60, 0, With(TANDEKOR_SpecialSwitchDisplay, {1})), "ERROR: Mobile not supported!]"},
        {On(0x60, 0, With(TANDEKOR_SpecialSwitchDisplay, {0})), "= 1"},
        {On(0x405, 2, After(longReply, With(TANDEKOR_SpecialSwitchDisplay, {1}))),
         "piResponseSize = -25536, iTimeout = 2000)] room 256 = 1"},
        {On(0, 0, After(NoReply(), With(TANDEKOR_Phone_Model))),
         "T_FTM_GET_HARDWARE_VERSION()!] room 4096 out - x3 = 0"},
        {After(NoReply(), With(TANDEKOR_Phone_Model)), "~()!] room 4096 out - out 02 00 00 00 out - = 0"},
    });
}

TEST_F(CasesTest, IdentityAndStorage)
{
    const Call read = With(TANDEKOR_NV_READ_IMEI, {Out{16}}), write = With(TANDEKOR_NV_WRITE_IMEI, {"123456789012345"});
    const auto readsBackChanged = [](size_t place)
    { return [=] { BeforeCall("QLIB_DIAG_NV_READ_F", 1, [=] { Phone().nvItems[550][place] ^= 0x10; }); }; };
    const auto cardChanges = [](size_t place)
    { return [=] { BeforeCall("QLIB_SendSync", 2, [=] { Phone().factory.card["\\Test.bin"][place] ^= 1; }); }; };
    const auto address = [](const char* text) { return With(FtmBtSetAddr, {text}); };
    const Call card = With(TANDEKOR_SpecialMmcTest);
    const auto fm = [](uint8_t byte9, int data)
    {
        const auto change = [=]
        {
            Phone().factory.i2c[{0x10, 0}] = Bytes(28, static_cast<uint8_t>(~byte9));
            Phone().factory.i2c[{0x10, 0}][9] = byte9;
        };
        return After(change, With(TANDEKOR_SpecialGetFmRadioInfo, {data}));
    };
    Expect({
        {WithItem(550, "08 1A 32 54 76 98 10 32 54", read), "out 31 32 33 34 35 36 37 38 39 30 31 32 33 34 35 00 = 1"},
        {WithItem(550, "FF 05 00 00 00 00 00 00 90", read), "out 30*14 39 00 = 1"},
        {WithItem(550, "08 FA BA DC FE 98 10 32 A4", read), "out 3F 3A 3B 3C 3D 3E 3F 38 39 30 31 32 33 34 3A 00 = 1"},
        {After(ItemRefused(550), read), "Q_DIAG_NV_READ_F(iNvStatus = 5)!] out 00*16 = 0"},
        {After(Refuse("QLIB_DIAG_NV_READ_F"), read), "out - = 0"},
        {With(TANDEKOR_NV_WRITE_IMEI, {"?:;<=>?89012345"}), "~(550, 08 FA BA DC FE 98 10 32 54, 9)"},
        {After(readsBackChanged(0), write), "cImei[i] != cImeiRead[i]!] = 0"},
        {After(readsBackChanged(8), write), "cImei[i] != cImeiRead[i]!] = 0"},
        {After(cardChanges(0), card), "\"\\09\\09cOutData[0] != cInData[0]\" room 4096 x2 = 0"},
        {After(cardChanges(15), card), "\"\\09\\09cOutData[15] != cInData[15]\" room 4096 x2 = 0"},
        {address("789abc123456"),
         "~(56 34 12 BC 9A 78) ~(iAddr=789ABC123456)] out 37 38 39 41 42 43 31 32 33 34 35 36 00 = 1"},
        {address("0123456789abcdef"), "~(AB 89 67 45 23 01)"},
        {address("g1-2 3x4@5/6"), "~(06 05 04 03 02 01)"},
        {address("789abc12345"), "   ? x3 Q_FTM_BT_SetAddr(strlen(szAddr) < 12)!] out - = 0"},
        {After(ItemRefused(447), With(TANDEKOR_BluetoothTestConnect, {Out{13}})), "out - = 0"},
        {With(TANDEKOR_SpecialSetKeypadMapping, {12}), "~() ~()] Wrong mapping ID specified!] = 0"},
        {With(TANDEKOR_SetFactoryTrackingByte, {1, 128, Bytes{1}}),
         "   ? x3 T_SetFactoryTrackingByte - iDataAddress >= 128!] out - = 0"},
        {fm(0xA4, 0), "out 0A = 1"},
        {fm(0xA4, 1), "out 00 = 1"},
        {fm(0xA4, 2), "out 01 = 1"},
        {fm(0x58, 0), "out 05 = 1"},
        {fm(0x58, 1), "out 01 = 1"},
        {fm(0x58, 2), "out 00 = 1"},
        {fm(0xA4, 3), "out FF = 0"},
        {With(TANDEKOR_UploadCEFS_File, {1, 2}),
         "   Q_GetLibraryVersion() \"\\09Temporary not supported - HBLK removed\" = 0"},
    });
}

TEST_F(CasesTest, FreezingStopsAtTheFirstRowThatFails)
{
    const auto freeze = [](const char* imei, const char* address, const char* serial) {
        return With(TANDEKOR_DIAG_FREEZE_PHONE, {Ascii(imei), Ascii(address), Ascii(serial), Bytes(260, 'K')});
    };
    const Call right = freeze("IMEIbytes", "BTaddr", "SerialNumber0123");
    const auto statusBefore
        = [](const char* operation) { return [=] { BeforeCall(operation, 1, [] { Phone().security.status = 5; }); }; };
    const auto keyChanges
        = [] { BeforeCall("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD", 1, [] { Phone().security.rootKey.back() ^= 1; }); };
    Expect({
        {After(ItemRefused(550), right), "- read IMEI Failure\\0A\" = 0"},
        {freeze("IMEIbytex", "BTaddr", "SerialNumber0123"), "IMEI Mismatch\\0A\" = 0"},
        {After(ItemRefused(447), right), "- read BT Address Failure\\0A\" = 0"},
        {freeze("IMEIbytes", "BTaddx", "SerialNumber0123"), "BT Address Mismatch\\0A\" = 0"},
        {After(ItemRefused(2824), right), "- read Device Serial Number Failure\\0A\" = 0"},
        {freeze("IMEIbytes", "BTaddr", "SerialNumber012x"), "Device Serial Number Mismatch\\0A\" = 0"},
        {After(statusBefore("QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD"), right), "Root Key Write FAILED status: 5\\0A\" = 0"},
        {After([] { Phone().security.result = 0; }, right), "Root Key Write FAILED status: 0\\0A\" = 0"},
        {After(statusBefore("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD"), right), "Root Key Read FAILED, status: 5\\0A\" = 0"},
        {After(keyChanges, right), "Public Key Mismatch\\0A\" = 0"},
        {After(statusBefore("QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD"), right),
         "Secure Device Info FAILED, status: 5\\0A\" = 0"},
        {After([] { Phone().security.result = 200; }, right), "Finished, Result = 200\\0A\" = 200"},
        // The comparison ends after the first zero byte of the caller's value.
        {WithItem(550, "49 4D 45 00 99 99 99 99 99",
                  With(TANDEKOR_DIAG_FREEZE_PHONE, {Hex("49 4D 45 00 11 22 33 44 55"), Ascii("BTaddr"),
                                                    Ascii("SerialNumber0123"), Bytes(260, 'K')})),
         "= 1"},
        {WithItem(550, "49 4D 45 01 11 22 33 44 55",
                  With(TANDEKOR_DIAG_FREEZE_PHONE, {Hex("49 4D 45 00 11 22 33 44 55"), Ascii("BTaddr"),
                                                    Ascii("SerialNumber0123"), Bytes(260, 'K')})),
         "IMEI Mismatch\\0A\" = 0"},
    });
}

TEST_F(CasesTest, VirtualSimAndReadings)
{
    const Call sim = With(TANDEKOR_Virtual_SIM, {"000000"});
    const auto byResets = [](uint32_t time)
    {
        return [=]
        {
            Phone().mode = Mode::Online;
            Phone().switchesModeDirectly = false;
            Phone().startTimeMs = time;
        };
    };
    const auto awayAtTheEnd
        = [] { BeforeCall("QLIB_IsFTM_Mode", 3, [] { simulator::RefuseCallsFrom("QLIB_IsPhoneConnected"); }); };
    const auto readingsRise = [] { BeforeCall("QLIB_FTM_GET_ADC_VAL", 2, [] { Phone().radio.adc[0] = 0xFFFF; }); };
    const auto simStatus = [](uint32_t status, uint32_t commandStatus)
    { return [=] { Phone().security.status = status, Phone().security.commandStatus = commandStatus; }; };
    const auto read = [](int count, int secondCount) { return With(TANDEKOR_CheckDACValues, {count, secondCount}); };
    Expect({
        {After(byResets(1'000'000), sim),
         "Q_IsFTM_Mode() Cannot switch to FTM mode!] flags 0 after 13 flags 2 after 13"},
        {After(awayAtTheEnd, sim), "[T_SimSimulation ? x3 Invalid handle!] T_SimSimulation()!]"},
        {After(Refuse("QLIB_FTM_PMIC_RTC_SET_GET_TIME"), sim), "~()!] Cannot set actual time!]"},
        {After(simStatus(7, 0), With(SimSimulation)), "(_iStatus != 0)!] = 0"},
        {After(simStatus(0, 0x10000), With(SimSimulation)), "(_iCommandStatus != 0)!] = 0"},
        {After(simStatus(1, 1), With(SimSimulation)), "(_iStatus != 0)!] = 0"},
        {After([] { simulator::TheClock().utcStart = 1798761599; }, With(TANDEKOR_SpecialSetRtcActualTime)),
         "~(0, 0, 12, 31, 2026, 23, 59, 59)"},
        {read(0, 5), "   ? x3 \"\\09iAverageCount = 0\" out 00*8 out - x2 = 0"},
        {On(0xC0, 4, After(readingsRise, read(2, 1))), "out 00*4 A0 00 E0 40 out"},  // 32773
        {On(0xC0, 4, read(1, 0)), "room 4096 out 00*6 26 40 out 00*5 E0 6F 40 x2 = 0"},
    });
}

// --- pins

TEST_F(CasesTest, WrongModelsRowsAndCameras)
{
    const auto light = [](int row) { return With(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {row, 1}); };
    const auto choose = [](int camera) { return With(TANDEKOR_FTM_KOLT_CAMERA_SWITCH, {camera}); };
    const auto flip = [](int skips) { return With(TANDEKOR_FTM_TestFlip, {skips}); };
    const auto flipPin = [](uint32_t direction, uint32_t output, uint32_t input)
    {
        return [=]
        {
            SetRegister(0x48000004, direction);
            SetRegister(0x4800000C, output);
            SetRegister(0x48000064, input);
        };
    };
    const Call camera = With(TANDEKOR_FTM_I2C_GetCameraId, {1});
    const auto statusAt = [](const char* operation)
    { return [=] { BeforeCall(operation, 1, [] { Phone().camera.status = 0x10005; }); }; };
    const std::string advice = "stdout: \\0ADRAVOK not support, Please choose 7(Insidekeypad) or 5(OutsideKeypad). = 0";
    Expect({
        {light(0), "\"\\09\\09Parameter RowNumber over the range (1-7).\" room 4096 = 0"},
        {light(8), "\"\\09\\09Parameter RowNumber over the range (1-7).\" room 4096 = 0"},
        {light(0x0101), "\"\\09\\09Parameter RowNumber over the range (1-7).\" room 4096 = 0"},
        {On(0x405, 3, light(4)), advice},
        {On(0x405, 3, light(6)), advice},
        {On(0x405, 3, light(0x0105)), advice},
        {On(0x405, 3, light(5)), "piPhoneModel = 3)] Q_FTM_SET_PMIC_DRIVE_LEVEL(1, 15) room 4096 = 1"},
        {On(0x405, 10, light(1)), "\"\\09\\09Wrong mobile model\" room 4096 = 0"},
        {On(0x405, 3, choose(0)), "\"\\09\\09Wrong mobile model\" room 4096 = 0"},
        {choose(2), "\"\\09\\09Wrong camera number (2)\" room 4096 = 0"},
        {On(0x405, 9, choose(0)), "T_FTM_KOLT_CAMERA_SWITCH(iCameraNum = 1)]"},
        {On(0x405, 3, After(flipPin(0x200, 0x200, ~0x200U), flip(0))), "out 31 = 1"},
        {On(0x405, 3, After(flipPin(0x200, ~0x200U, 0x200), flip(0))), "out 30 = 1"},
        {On(0x405, 3, After(flipPin(~0x200U, ~0x200U, 0x200), flip(0))), "out 31 = 1"},
        {On(0x405, 3, After(flipPin(~0x200U, 0x200, ~0x200U), flip(0))), "out 30 = 1"},
        {flip(0), "stdout: \\0ANot support this model out - = 0"},
        {On(0x405, 3, flip(1)), "   ? x3 stdout: \\0ANot support this model out - = 0"},
        {On(0x405, 10, With(TANDEKOR_FTM_I2C_GetCameraId, {2})),
         "\"\\09Parameter iCamId over the range (0-1).\" T_FTM_I2C_GetCameraId(iCamNum = 2)!]"},
        {After(Refuse("QLIB_FTM_CAMERA_START"), camera),
         "Q_FTM_CAMERA_STOP() Q_FTM_CAMERA_STOP(piCameraStatus = 0)] T_FTM_I2C_GetCameraId(iCamNum = 1)!]"},
        {After(Refuse("QLIB_FTM_CAMERA_SET_SENSOR_ID"), camera),
         "piCameraStatus = 4)!] T_FTM_I2C_GetCameraId(iCamNum = 1)!]"},
        {After(statusAt("QLIB_FTM_CAMERA_SET_SENSOR_ID"), camera),
         "piCameraStatus = 5)!] T_FTM_I2C_GetCameraId(iCamNum = 1)!]"},
        {After(statusAt("QLIB_FTM_CAMERA_START"), camera),
         "(piCameraStatus = 5)!] Q_FTM_CAMERA_STOP() Q_FTM_CAMERA_STOP(piCameraStatus = 5)]"},
        {After(statusAt("QLIB_FTM_CAMERA_STOP"), camera),
         "Q_FTM_CAMERA_STOP(piCameraStatus = 5)] T_FTM_I2C_GetCameraId(iCamNum = 1, iCamId = 71)]"},
        {After([] { Phone().factory.i2c.clear(); }, camera), "data = 0)!] Q_FTM_CAMERA_STOP()"},
        {After(Refuse("QLIB_FTM_CAMERA_STOP"), camera),
         "Q_FTM_CAMERA_STOP(piCameraStatus = 0)!] T_FTM_I2C_GetCameraId(iCamNum = 1)!]"},
    });
}

// On a phone whose registers hold 0: what becomes of which, those of a pin's direction in front of those of its level.
TEST_F(CasesTest, PinsOfKeypadRowsAndCameras)
{
    const auto light = [](int row) { return With(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {row, 1}); };
    const auto choose = [](int camera) { return With(TANDEKOR_FTM_KOLT_CAMERA_SWITCH, {camera}); };
    const auto allSet = []
    {
        for (const uint32_t address : {0x48000000, 0x48000004, 0x48000008, 0x4800000C})
            SetRegister(address, 0xFFFFFFFF), SetRegister(address + 0x3C000150, 0xFFFFFFFF);
        SetRegister(0x84000164, 0xFFFFFFFF);
    };
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
        {light(1), "48000000=40 48000008=40 "},
        {light(2), "84000158=400000 84000164=400000 "},
        {light(3), "48000000=8 48000008=8 "},
        {light(4), "48000004=800 4800000C=800 "},
        {light(5), prepared + "48000004=200 4800000C=200 "},
        {light(6), prepared + "84000158=2000000 84000164=2000000 "},
        {light(7), prepared + "48000000=48 48000008=48 48000004=A00 4800000C=A00 84000158=2400000 84000164=2400000 "},
        {On(0x405, 3, light(7)), "84000150=2000 8400015C=2000 "},
        {choose(0), camera0},
        {choose(1), camera1},
        {On(0x405, 9, choose(1)), camera0},
        {After(allSet, With(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {3, 0})), "48000000=FFFFFFFF 48000008=FFFFFFF7 "},
        {After(allSet, choose(0)),
         "48000000=FFFFFFFF 48000008=FFFFFFFB 48000004=FFFFFFFF 4800000C=FFFFFBFF 84000158=FFFFFFFF 84000164=FFFFFFFF "
         "48000000=FFFFFFFF 48000008=FFFFFFFB "},
        {On(0x405, 9, choose(0)), camera1},
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
