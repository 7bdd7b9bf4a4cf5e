#include "tests/procedures/runs.h"

#include <utility>

#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "simulator/control.h"
#include "tandekor/tandekor.h"
#include "tests/support/bench_test.h"

namespace tandekor::test
{

using simulator::BeforeCall;
using simulator::Mode;
using simulator::Phone;
using simulator::ThePhone;

Change BecomePhone(uint32_t chip, uint16_t hardwareId)
{
    return Set(&Phone::msmHardwareVersion, chip) + Set(&Phone::hardwareId, hardwareId)
           + Set(&Phone::hardwareVersion, chip << 12);
}

Change operator+(const Change& first, const Change& second)
{
    return [=]
    {
        first();
        second();
    };
}

Change SetItem(uint16_t number, const char* digits)
{
    return [=] { ThePhone().nvItems[number] = Hex(digits); };
}
Change SetStatus(uint16_t item)
{
    return [=] { ThePhone().nvStatus[item] = 5; };
}
Change Refuse(const char* operation, int n)
{
    return [=] { simulator::RefuseCall(operation, n); };
}
Change NoReply()
{
    return [] { simulator::QueueReply({{}, 0, {}}); };
}
Change Reply(const char* digits)
{
    return [=] { simulator::QueueReply({Hex(digits), 1, {}}); };
}
Change At(const char* operation, int n, const Change& change)
{
    return [=] { BeforeCall(operation, n, change); };
}

Change SetRegister(uint32_t address, uint32_t value)
{
    return [=]
    {
        for (uint32_t i = 0; i < 4; ++i)
            ThePhone().memory[address + i] = static_cast<uint8_t>(value >> (8 * i));
    };
}

Call After(const Change& change, const Call& call)
{
    return [=](ResourceContext handle)
    {
        change();
        return call(handle);
    };
}

Call After(const Call& first, const Call& second)
{
    return [=](ResourceContext handle)
    {
        const CallResult result = first(handle);
        return result.result == 0 ? result : second(handle);
    };
}

void MarkPhone()
{
    for (const int item :
         {519, 520, 859, 860, 861, 862, 1146, 1147, 1148, 1149, 1163, 1164, 1817, 1818, 1819, 1820, 1834, 1835})
        ThePhone().nvItems[static_cast<uint16_t>(item)]
            = {static_cast<uint8_t>(item), static_cast<uint8_t>('a' + item % 23)};
    ThePhone().nvItems[2499] = Ascii(std::string(127, 'o') + 'z');
    ThePhone().nvItems[0xEA61] = Ascii("hello");
    ThePhone().nvItems[550] = Ascii("IMEIbytes");
    ThePhone().nvItems[447] = Ascii("BTaddr");
    ThePhone().nvItems[2824] = Ascii("SerialNumber0123");
    ThePhone().radio.adc = {{0, 11}, {1, 22}, {3, 33}};
    ThePhone().testCalls.rxLevel = 'l';
    ThePhone().testCalls.rxQuality = 'q';
    ThePhone().testCalls.state = 's';
    ThePhone().compileDate = "Mar 14 2006 and more";
    ThePhone().compileTime = "12:34:56.789";
    ThePhone().releaseDate = "Apr  1 2006!";
    ThePhone().releaseTime = "01:02:03x";
    ThePhone().versionDir = "longer than eight";
    BeforeCall("QLIB_DIAG_KeyPress_GetQueueSize", 1, [] { ThePhone().keypad.queue = {{0xE030, 'd'}, {0xE031, 'u'}}; });
    ThePhone().files["picture"] = ThePhone().files[std::string(128, 'p')] = {};
}

namespace
{

// A caller's table: as long as its item, without a NUL.
Bytes Table(char content, size_t size) { return Bytes(size, static_cast<uint8_t>(content)); }

// --- calls with many arguments, each with a value of its own

Call RxWcdma(int vgaBand, const Given& vsFreq, int fallBand, int riseBand, int lnaIndex)
{
    return With(TANDEKOR_RX_WCDMA_Adjust,
                {'L',      -106,     Out{2}, 0xEA60, Ascii("data"), 3,      Out{2}, vgaBand, 0xE241,
                 vsFreq,   fallBand, Out{2}, Out{2}, Out{2},        0xEA61, Out{5}, 5,       Out{2},
                 riseBand, Out{2},   Out{2}, Out{2}, lnaIndex,      -75,    Out{2}});
}

std::vector<Given> GsmRanges(bool given)
{
    std::vector<Given> ranges;
    for (char i = 0; i < 16; ++i)
        ranges.push_back(given ? Given(Table(static_cast<char>('a' + i), i < 4 || i >= 12 ? 16 : 32)) : Given(nullptr));
    return ranges;
}

Call Calibration(int batch, int lnaBand, int vgaBand, bool given = true)
{
    const auto table = [given](char content) { return given ? Given(Table(content, 16)) : Given(nullptr); };
    std::vector<Given> all = GsmRanges(given);
    all.insert(all.begin(), batch);
    all.insert(all.end(),
               {lnaBand, -1, table('x'), 0x4142, table('y'), -0x7F9D, table('z'), vgaBand, 0x4344, table('g')});
    return With(TANDEKOR_Write_RX_Adjustment_Values, all);
}

Call Gsm(int initSession, int closeControl)
{
    return With(TANDEKOR_Reduced_Signalling_GSM, {0xE101, 'B', 'T', 'S', 'M', 'P', 'L', initSession, 0xE102, 'b',
                                                  4000000001, 0xE103, 't', 'm', closeControl});
}

Call Hsdpa(int bitmask, int numCodes, const Given& codes, int processes, const Given& memory)
{
    return With(TANDEKOR_Reduced_Signalling_HSDPA,
                {bitmask, 0xE401, numCodes, codes, 0xE402, processes, 'V', memory, 'O', 'C', 'R', 'q', 'a', 'n', 'r'});
}

Call Edge(int initSession, int64_t reserved)
{
    return With(TANDEKOR_Reduced_Signalling_EDGE,
                {initSession, 0xE301, 'B', 4000000003, 'D', 'F', reserved, reserved, 'A', '1', 'Z', '2', 'U', 'S', 'G',
                 reserved, reserved, reserved, reserved});
}

Call Charge(int powerMode, int transistor, int state, int read)
{
    return With(TANDEKOR_Charging_Test, {powerMode, '7', transistor, state, '3', 4375, 300, read});
}

// --- the runs

const Change online = Set(&Phone::mode, Mode::Online), noDirectSwitch = Set(&Phone::switchesModeDirectly, false);
const Change qpst = [] { TANDEKOR_SetLibraryMode(1); };

// Those whose way no other shares.
std::vector<ProcedureRun> ReadableRuns()
{
    const Out text{32}, field{4}, longText{512};
    const std::vector<Given> build{text,  text,  text,  text,  text,  field, field,    field,
                                   field, field, field, field, field, field, longText, longText};
    return {
        {"Start_LOG", {With(TANDEKOR_Start_LOG, {"/dev/null"})}},
        {"ModeChangeResetMobile", Sweep(TANDEKOR_ModeChangeResetMobile, {{1, 0}}), online},
        {"ONLINE_TO_FTM", {With(TANDEKOR_ONLINE_TO_FTM)}, online + noDirectSwitch},
        {"FTM_TO_ONLINE", {With(TANDEKOR_FTM_TO_ONLINE)}},
        {"BootBox_SwitchMobileOn",
         {With(TANDEKOR_BootBox_SwitchMobileOn, {4, 1})},
         Set(&Phone::on, false) + Set(&Phone::startTimeMs, 1000) + SetItem(453, "01")},
        {"BootBox_SwitchMobileOff",
         {After(With(TANDEKOR_BootBox_SwitchMobileOn, {4, 2}), With(TANDEKOR_BootBox_SwitchMobileOff, {4}))},
         SetItem(453, "01")},
        {"Phone_Model", {With(TANDEKOR_Phone_Model)}, BecomePhone(0, 12)},
        {"CheckSWBuild", {With(TANDEKOR_CheckSWBuild, build)}},
        {"AudioTest", {With(TANDEKOR_AudioTest, {15, 'y'})}},
        {"TestSpeaker", {With(TANDEKOR_TestSpeaker, {3, 'V', 0xFFFF, 440})}},
        {"TestMicrophone", {With(TANDEKOR_TestMicrophone, {3, 65, 5, Out{5}, 1000, Ascii("ab"), 2, 0xFFFFFFFF, -300})}},
        {"DIAG_DISABLE_48KHz", {With(TANDEKOR_DIAG_DISABLE_48KHz)}, SetRegister(0x84001308, 0xA5F0C3F1)},
        {"TestKeypad", {With(TANDEKOR_TestKeypad)}},
        {"SetCWPowerBluetooth", {With(TANDEKOR_SetCWPowerBluetooth, {'N'})}},
        {"BluetoothTestConnect", {With(TANDEKOR_BluetoothTestConnect, {Out{13}})}},
        {"Bluetooth_HW_ID", {With(TANDEKOR_Bluetooth_HW_ID)}},
        {"NV_WRITE_IMEI", {With(TANDEKOR_NV_WRITE_IMEI, {"123456789012345"})}},
        {"FlashTest", {With(TANDEKOR_FlashTest)}},
        {"SpecialMmcTest", {With(TANDEKOR_SpecialMmcTest)}},
        {"SetFactoryTrackingByte", Sweep(TANDEKOR_SetFactoryTrackingByte, {{1, 0}, {127, 128, 0x8001}, {Ascii("Z")}})},
        {"UploadMultiImage",
         {With(TANDEKOR_UploadMultiImage,
               {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23})},
         qpst},
        {"RX_GSM_Adjust", {With(TANDEKOR_RX_GSM_Adjust, {Out{128}, 0xE003, 0xE004, 'S', -5, 'L', Out{2}})}},
        {"Reduced_Signalling_GSM", {Gsm(1, 'C'), Gsm(0, 0), Gsm(2, 2)}},
        {"Reduced_Signalling_WCDMA",
         {With(TANDEKOR_Reduced_Signalling_WCDMA,
               {0xE201, 4000000002, Out{1}, 'R', 'M', 4000000003, 'P', 'Z', 0xE202, 0xE203})}},
        {"Reduced_Signalling_HSDPA",
         {Hsdpa('B', 3, Ascii("codes"), 4, Ascii("memory")), Hsdpa(0, 1, nullptr, 1, nullptr)}},
        {"Reduced_Signalling_EDGE", {Edge(1, 0), Edge(0, 0), Edge(1, 0xFFFFFFFF), Edge(2, 0)}},
        {"StartCall", {With(TANDEKOR_StartCall, {3, Ascii("4219")})}, online},
        {"GSM_PA_OutputPower",
         {With(TANDEKOR_GSM_PA_OutputPower, {0xE001, 0xE002, 'S', -7, 'T', 2100000000, 'I', 0xE006})}},
        {"Set_TX_PowerOn", {With(TANDEKOR_Set_TX_PowerOn, {0xE001, 0xE002, 'P', 'S', -7, 'T', 2100000000, 'I'})}},
        {"WCDMA_PA_OutputPower", {With(TANDEKOR_WCDMA_PA_OutputPower, {0xE001, 0xE002, 0xE003, 'C', 0xE004, 0xE005})}},
        {"AFC_Deviation", {With(TANDEKOR_AFC_Deviation, {0xE001, 0xE002, 0xE003, 'C', 0xE004, 0xE005})}},
        {"Virtual_SIM", Sweep(TANDEKOR_Virtual_SIM, {{"000000", "123456", nullptr}}), online},
        {"Virtual_SIM by resets", {With(TANDEKOR_Virtual_SIM, {"000000"})}, online + noDirectSwitch},
    };
}

// What the arguments, the phone and the host library change, and steps that are procedures of their own.
std::vector<ProcedureRun> FurtherRuns()
{
    const Given table = Table('t', 16), other = Table('u', 16), null = nullptr;
    return {
        {"FTM_DrawContrastPattern",
         {With(TANDEKOR_FTM_DrawContrastPattern, {Ascii("picture" + std::string(121, '\0')), 1})},
         BecomePhone(0x405, 10)},
        {"SupplyVoltageTest", Sweep(TANDEKOR_SupplyVoltageTest, {{1, 0, 2}, {42}, {2, 0, 1, 3}, {1, 0, 77}}),
         BecomePhone(0x405, 10)},
        {"FM_RadioTest", {With(TANDEKOR_FM_RadioTest, {7, 9460})}},
        {"RX_WCDMA_Adjust",
         {RxWcdma(4, table, 5, 6, 2), RxWcdma(6, null, 4, 5, 0), RxWcdma(7, table, 5, 6, 0), RxWcdma(4, table, 3, 6, 0),
          RxWcdma(4, table, 5, 7, 0), RxWcdma(4, table, 5, 6, 4)}},
        {"Write_RX_Adjustment_Values",
         {Calibration('B', 5, 6), Calibration(0, 4, 4, false), Calibration(1, 7, 4), Calibration(0, 0, 4),
          Calibration(1, 4, 0x0104)}},
        {"CheckDACValues", Sweep(TANDEKOR_CheckDACValues, {{3, 0, 1}, {256, 0}})},
        {"FTM_SetKeyPadBackLightGPIO",
         Sweep(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {{7, 0, 1, 2, 3, 4, 5, 6, 8, 0x0101}, {0, 1, 255}})},
        {"FTM_TestFlip", {With(TANDEKOR_FTM_TestFlip, {0})}, BecomePhone(0x405, 3)},
        {"NV_READ_IMEI", {With(TANDEKOR_NV_READ_IMEI, {Out{16}})}},
        {"FtmBtSetAddr", {With(FtmBtSetAddr, {"0123456789abx"})}},
        {"SpecialSetPmicChargeLimits", {With(SpecialSetPmicChargeLimits, {4375, 300})}},
        {"SimSimulation", {With(SimSimulation)}},
        {"FTM_I2C_GetCameraId", Sweep(TANDEKOR_FTM_I2C_GetCameraId, {{0, 1, 2}})},
        {"Charging_Test",
         {Charge(1, 1, 1, 1), Charge(0, 0, 0, 1), Charge(2, 1, 0, 1), Charge(1, 2, 1, 1), Charge(1, 1, 1, 2)}},
        {"DIAG_FREEZE_PHONE",
         {With(TANDEKOR_DIAG_FREEZE_PHONE,
               {Ascii("IMEIbytes"), Ascii("BTaddr"), Ascii("SerialNumber0123"), Table('K', 260)})}},
        {"NetworkAndChannelPreselection",
         Sweep(TANDEKOR_NetworkAndChannelPreselection, {{3, 0, 1, 2}, {4, 0, 2, 6}, {0xE041}})},
        {"DIAG_NV_WRITE_F", {With(DIAG_NV_WRITE_F, {40000, Ascii("abc"), 3})}},
        {"DIAG_NV_READ_F", {With(DIAG_NV_READ_F, {550, Out{9}, 9})}},
        {"NV_READ_GSM_RX_REL_OFFSETS", {With(NV_READ_GSM_RX_REL_OFFSETS, {550, Out{9}, 9})}},
        {"DIAG_NV_WRITE_FLUSH_BATCH_QUEUE", {With(DIAG_NV_WRITE_FLUSH_BATCH_QUEUE)}},
        {"SetBitState_8_Reg", Sweep(SetBitState_8_Reg, {{16}, {0x86}, {0, 1, 2}}), SetRegister(16, 0x80000083)},
        {"SetBitState_32_Reg", Sweep(SetBitState_32_Reg, {{16}, {0x80000086}, {0, 1, 2}}), SetRegister(16, 0x80000083)},
        {"TK_GetBitState_32_Reg", Sweep(TK_GetBitState_32_Reg, {{16}, {0, 1, 30, 31, 32, 33}}),
         SetRegister(16, 0x80000001)},
        {"ONLINE_TO_FTM by command", {With(TANDEKOR_ONLINE_TO_FTM)}, online},
        {"FTM_TO_ONLINE by reset", {With(TANDEKOR_FTM_TO_ONLINE)}, noDirectSwitch},
        {"BootBox_SwitchMobileOn online", {With(TANDEKOR_BootBox_SwitchMobileOn, {4, 0})}, online},
        {"BootBox_SwitchMobileOn with reset",
         {With(TANDEKOR_BootBox_SwitchMobileOn, {4, 0}), After(online, With(TANDEKOR_BootBox_SwitchMobileOn, {4, 1}))}},
        {"Phone_Model by the build", {With(TANDEKOR_Phone_Model)}},
        {"Phone_Model of DraK2F", {With(TANDEKOR_Phone_Model)}, Set(&Phone::buildId, "xx-DraK2F-01")},
        {"GetPhoneModel", {With(TANDEKOR_GetPhoneModel, {12, 2})}},
        {"MicrophoneBiasVoltages", Sweep(TANDEKOR_MicrophoneBiasVoltages, {{0, 14, 15, 16, 0x10F}})},
        {"SpecialSetKeypadMapping",
         Sweep(TANDEKOR_SpecialSetKeypadMapping, {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 255}})},
        {"SpecialSwitchDisplay", Sweep(TANDEKOR_SpecialSwitchDisplay, {{0, 1, 255}}), BecomePhone(0x405, 2)},
        {"FTM_DrawContrastPattern24Bit",
         {With(TANDEKOR_FTM_DrawContrastPattern24Bit, {Table('p', 128), 1})},
         BecomePhone(0x405, 10)},
        {"SpecialSetChargeFetState", Sweep(SpecialSetChargeFetState, {{0, 1, 2, 255}, {0, 1}})},
        {"SpecialGetChargeFetState", Sweep(SpecialGetChargeFetState, {{0, 1, 2, 255}})},
        {"SpecialSwitchAccSupplyVoltage", Sweep(TANDEKOR_SpecialSwitchAccSupplyVoltage, {{0, 1, 77}}),
         BecomePhone(0x40, 8)},
        {"SpecialGetFmRadioInfo", Sweep(TANDEKOR_SpecialGetFmRadioInfo, {{0, 1, 2, 3, 255}})},
        {"UploadCEFS_File2", {With(TANDEKOR_UploadCEFS_File2, {1, INT32_MAX, 3})}, qpst},
        {"UploadCEFS_File", {With(TANDEKOR_UploadCEFS_File, {1, 2})}, qpst},
        {"RX_WCDMA_Adjust with a status", {RxWcdma(4, table, 5, 6, 2)}, SetStatus(0xEA60) + SetStatus(0xEA61)},
        {"NV_WRITE_WCDMA_VGA_GAIN",
         Sweep(NV_WRITE_WCDMA_VGA_GAIN, {{0, 3, 4, 5, 6, 7, 0x0104}, {0x1234}, {table, null}})},
        {"NV_READ_WCDMA_LNA_RANGE_FALL",
         Sweep(NV_READ_WCDMA_LNA_RANGE_FALL, {{0, 3, 4, 5, 6, 7, 0x0104}, {Out{2}}, {Out{2}}, {Out{2}}})},
        {"NV_READ_WCDMA_LNA_RANGE_RISE",
         Sweep(NV_READ_WCDMA_LNA_RANGE_RISE, {{0, 3, 4, 5, 6, 7, 0x0104}, {Out{2}}, {Out{2}}, {Out{2}}})},
        {"NV_WRITE_WCDMA_LNA_OFFSET",
         Sweep(NV_WRITE_WCDMA_LNA_OFFSET,
               {{0, 3, 4, 5, 6, 7}, {0x0102}, {table, null}, {-2}, {other}, {-0x8000}, {table}})},
        {"NV_WRITE_GSM_RX_GAIN_RANGE", {With(NV_WRITE_GSM_RX_GAIN_RANGE, GsmRanges(true))}},
        {"Write_RX_Adjustment_Values refused",
         {Calibration(1, 5, 6), Calibration(0, 5, 6)},
         SetStatus(1103) + SetStatus(1115)},
        {"FTM_GSM_BER_StartCall", Sweep(FTM_GSM_BER_StartCall, {{0, 1, 255}, {2}, {3}, {4}})},
        {"FTM_GSM_BER_StopCall", Sweep(FTM_GSM_BER_StopCall, {{0, 1, 255}})},
        {"FTM_EGPRS_BER_StartCall", Sweep(FTM_EGPRS_BER_StartCall, {{0, 1, 255}, {2}, {3}, {4}})},
        {"CheckDACValues one by one", Sweep(TANDEKOR_CheckDACValues, {{1, 3}, {0, 2}}), BecomePhone(0xC0, 4)},
        {"SpecialSetRtcActualTime",
         {With(TANDEKOR_SpecialSetRtcActualTime)},
         [] { simulator::TheClock().utcStart = 1798761599; }},
        {"NV_WRITE_NETWORK_SCAN_MODE", Sweep(NV_WRITE_NETWORK_SCAN_MODE, {{0, 1, 2, 3, 4, 5, 6, 255}})},
        {"NV_WRITE_LAST_GOOD_CHANNEL", Sweep(NV_WRITE_LAST_GOOD_CHANNEL, {{0, 1, 2, 3, 4, 5, 6, 255}, {0x1234}})},
        {"NV_SetRoamingListStatus", Sweep(TANDEKOR_NV_SetRoamingListStatus, {{0, 1, 2, 255}})},
        {"NVSetAutoAnswerStatus", Sweep(TANDEKOR_NVSetAutoAnswerStatus, {{0, 1, 2, 255}})},
        {"FTM_SetKeyPadBackLightGPIO of model 3",
         Sweep(TANDEKOR_FTM_SetKeyPadBackLightGPIO, {{0, 1, 4, 5, 6, 7, 8, 0x0105}, {0, 1, 255}}),
         BecomePhone(0x405, 3)},
        {"FTM_KOLT_CAMERA_SWITCH", Sweep(TANDEKOR_FTM_KOLT_CAMERA_SWITCH, {{0, 1, 2, 255}})},
    };
}

}  // namespace

const std::vector<ProcedureRun>& Runs()
{
    static const std::vector<ProcedureRun> runs = []
    {
        std::vector<ProcedureRun> all = ReadableRuns();
        for (ProcedureRun& run : all)
            run.readable = true;
        for (ProcedureRun& run : FurtherRuns())
            all.push_back(std::move(run));
        return all;
    }();
    return runs;
}

}  // namespace tandekor::test
