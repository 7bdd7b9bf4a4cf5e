// Audio, keypad, Bluetooth, charger, clock, camera.
#include <algorithm>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

constexpr int64_t btAddressLength = 6;
constexpr uint32_t transistorStatusId = 11;
constexpr uint32_t readableTransistor = 1;

// An operation on the phone that changes or reports something and cannot fail.
template <typename Action, typename... Arguments>
uint8_t OnPhone(ResourceContext hResourceContext, const char* operation, Action action, const Arguments&... arguments)
{
    if (!Reaches(hResourceContext, operation, arguments...))
        return 0;
    action(ThePhone());
    return 1;
}

// The same, of one that the phone has in FTM mode only.
template <typename Action, typename... Arguments>
uint8_t OnPhoneInFtm(ResourceContext hResourceContext, const char* operation, Action action,
                     const Arguments&... arguments)
{
    if (!ReachesInFtm(hResourceContext, operation, arguments...))
        return 0;
    action(ThePhone());
    return 1;
}

// What an argument that comes in by pointer holds.
template <typename Value>
Value ValueAt(const Value* argument)
{
    return argument == nullptr ? Value{0} : *argument;
}

}  // namespace

// --- audio
uint8_t QLIB_FTM_AUDIO_SET_PATH(ResourceContext hResourceContext, uint16_t iAudioDevice)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.audio.path = iAudioDevice; }, iAudioDevice);
}

uint8_t QLIB_FTM_AUDIO_SET_VOLUME(ResourceContext hResourceContext, uint8_t iVolume)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.audio.volume = iVolume; }, iVolume);
}

uint8_t QLIB_FTM_AUDIO_PCM_LOOPBACK(ResourceContext hResourceContext, uint8_t bLoopbackOn)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.audio.loopback = bLoopbackOn != 0; }, bLoopbackOn);
}

uint8_t QLIB_FTM_AUDIO_TONES_PLAY(ResourceContext hResourceContext, uint16_t iHiFreq, uint16_t iLoFreq,
                                  uint16_t iMethod)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [](Phone& phone) { phone.audio.tone = true; }, iHiFreq, iLoFreq, iMethod);
}

uint8_t QLIB_FTM_AUDIO_TONES_STOP(ResourceContext hResourceContext)
{
    return OnPhoneInFtm(hResourceContext, __func__, [](Phone& phone) { phone.audio.tone = false; });
}

uint8_t QLIB_FTM_AUDIO_PCM_CAPTURE(ResourceContext hResourceContext, uint16_t iNumBuffers, uint32_t iDelay_ms)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [](Phone& phone) { phone.audio.capturing = true; }, iNumBuffers, iDelay_ms);
}

// A sawtooth, in which every byte is its own place; nothing without a capture.
uint8_t QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(ResourceContext hResourceContext, uint32_t iDataOffset, uint16_t iDataSize,
                                            void* pBuffer)
{
    if (!ReachesInFtm(hResourceContext, __func__, iDataOffset, iDataSize) || !ThePhone().audio.capturing
        || pBuffer == nullptr)
        return 0;
    for (uint32_t i = 0; i < iDataSize; ++i)
        static_cast<uint8_t*>(pBuffer)[i] = static_cast<uint8_t>(iDataOffset + i);
    return 1;
}

uint8_t QLIB_FTM_AUDIO_PCM_STOP_CAPTURE(ResourceContext hResourceContext)
{
    return OnPhoneInFtm(hResourceContext, __func__, [](Phone& phone) { phone.audio.capturing = false; });
}

uint8_t QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST(ResourceContext hResourceContext, int16_t iCodecTxGainAdjust)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.audio.codecTxGain = iCodecTxGainAdjust; },
        iCodecTxGainAdjust);
}

// --- keypad
uint8_t QLIB_DIAG_KeyPress_ClearMap(ResourceContext hResourceContext)
{
    return OnPhone(hResourceContext, __func__, [](Phone& phone) { phone.keypad.map.clear(); });
}

uint8_t QLIB_DIAG_KeyPress_AddMapEntry(ResourceContext hResourceContext, uint16_t iHW_ID, uint8_t iKeyPressSW_ID)
{
    return OnPhone(
        hResourceContext, __func__, [&](Phone& phone) { phone.keypad.map.emplace_back(iHW_ID, iKeyPressSW_ID); },
        iHW_ID, iKeyPressSW_ID);
}

uint8_t QLIB_DIAG_KeyPress_ConfigureKeyDetect(ResourceContext hResourceContext, const char* sKeyUpString,
                                              const char* sKeyDownString, uint16_t iSSID, uint32_t iRT_MASK)
{
    return OnPhone(
        hResourceContext, __func__, [](Phone& phone) { phone.keypad.detecting = true; }, sKeyUpString, sKeyDownString,
        iSSID, iRT_MASK);
}

uint8_t QLIB_DIAG_KeyPress_ClearQueue(ResourceContext hResourceContext)
{
    const auto clear = [](Phone& phone)
    {
        constexpr uint8_t down = 1;
        phone.keypad.queue.clear();
        if (phone.keypad.hangingKey != 0)
            phone.keypad.queue.push_back({phone.keypad.hangingKey, down});
    };
    return OnPhone(hResourceContext, __func__, clear);
}

uint8_t QLIB_DIAG_KeyPress_GetQueueSize(ResourceContext hResourceContext, uint16_t* piKeypressQueueSize)
{
    return OnPhone(hResourceContext, __func__,
                   [&](Phone& phone) { Put(piKeypressQueueSize, static_cast<uint16_t>(phone.keypad.queue.size())); });
}

uint8_t QLIB_DIAG_KeyPress_GetNextKeyEvent(ResourceContext hResourceContext, uint16_t* piKeyPressID,
                                           uint8_t* piKeyPressEvent)
{
    const auto deliver = [&](Phone& phone)
    {
        std::deque<KeyEvent>& queue = phone.keypad.queue;
        const KeyEvent next = queue.empty() ? KeyEvent() : queue.front();
        if (!queue.empty())
            queue.pop_front();
        Put(piKeyPressID, next.key);
        Put(piKeyPressEvent, next.event);
    };
    return OnPhone(hResourceContext, __func__, deliver);
}

// --- Bluetooth
uint8_t QLIB_FTM_BT_SetCW(ResourceContext hResourceContext, uint8_t iChannel)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.bluetooth.cwChannel = iChannel; }, iChannel);
}

uint8_t QLIB_FTM_BT_HCI_USER_CMD(ResourceContext hResourceContext, const uint8_t* pBuffer, uint8_t iLength)
{
    const auto report = [&](Phone&) { ReportNoEffect("QLIB_FTM_BT_HCI_USER_CMD"); };
    return OnPhoneInFtm(hResourceContext, "QLIB_FTM_BT_HCI_USER_CMD", report, BytesAt(pBuffer, iLength), iLength);
}

uint8_t QLIB_FTM_BT_SetAddr(ResourceContext hResourceContext, const uint8_t* iAddr)
{
    const Bytes address = BytesAt(iAddr, btAddressLength);
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.bluetooth.address = address; }, address);
}

uint8_t QLIB_FTM_BT_Enable_Bluetooth(ResourceContext hResourceContext)
{
    return OnPhoneInFtm(hResourceContext, __func__, [](Phone& phone) { phone.bluetooth.enabled = true; });
}

uint8_t QLIB_BT_GetModuleVersion(ResourceContext hResourceContext, void* pModuleVersion)
{
    return OnPhoneInFtm(hResourceContext, __func__,
                        [&](Phone& phone)
                        { Put(static_cast<uint8_t*>(pModuleVersion), phone.bluetooth.moduleVersion); });
}

// --- charger, drivers and clock
uint8_t QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(ResourceContext hResourceContext, uint32_t iChargerSwitchType,
                                           uint8_t iChargerSwitchCommand)
{
    return OnPhoneInFtm(
        hResourceContext, __func__,
        [&](Phone& phone) { phone.charger.switches[iChargerSwitchType] = iChargerSwitchCommand; }, iChargerSwitchType,
        iChargerSwitchCommand);
}

uint8_t QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(ResourceContext hResourceContext, uint8_t iChargerMaxCurrent,
                                                         uint8_t iChargerMaxVoltage)
{
    const auto keep = [&](Phone& phone)
    {
        phone.charger.maxCurrent = iChargerMaxCurrent;
        phone.charger.maxVoltage = iChargerMaxVoltage;
    };
    return OnPhoneInFtm(hResourceContext, __func__, keep, iChargerMaxCurrent, iChargerMaxVoltage);
}

uint8_t QLIB_FTM_PMIC_INT_GET_RT_STATUS(ResourceContext hResourceContext, uint32_t iInterruptStatusId,
                                        uint8_t* piInterruptStatus)
{
    if (!ReachesInFtm(hResourceContext, __func__, iInterruptStatusId) || iInterruptStatusId != transistorStatusId)
        return 0;
    Put(piInterruptStatus, ThePhone().charger.switches[readableTransistor]);
    return 1;
}

uint8_t QLIB_FTM_SET_PMIC_DRIVE_LEVEL(ResourceContext hResourceContext, uint8_t iDriver, uint8_t iLevel)
{
    return OnPhoneInFtm(
        hResourceContext, __func__, [&](Phone& phone) { phone.charger.driveLevels[iDriver] = iLevel; }, iDriver,
        iLevel);
}

uint8_t QLIB_FTM_PMIC_RTC_SET_GET_TIME(ResourceContext hResourceContext, uint8_t iReadWrite, uint8_t* iTimeMode,
                                       uint8_t* iMonth, uint8_t* iDay, uint16_t* iYear, uint8_t* iHour,
                                       uint8_t* iMinute, uint8_t* iSecond)
{
    PhoneClock given
        = {ValueAt(iYear), ValueAt(iMonth), ValueAt(iDay), ValueAt(iHour), ValueAt(iMinute), ValueAt(iSecond)};
    const auto keepOrTell = [&](Phone& phone)
    {
        if (iReadWrite == 0)
        {
            given.result = phone.clock.result;
            phone.clock = given;
            return;
        }
        Put(iYear, phone.clock.year);
        Put(iMonth, phone.clock.month);
        Put(iDay, phone.clock.day);
        Put(iHour, phone.clock.hour);
        Put(iMinute, phone.clock.minute);
        Put(iSecond, phone.clock.second);
    };
    const uint8_t reached = OnPhoneInFtm(hResourceContext, __func__, keepOrTell, iReadWrite, ValueAt(iTimeMode),
                                         given.month, given.day, given.year, given.hour, given.minute, given.second);
    return reached == 0 ? uint8_t{0} : ThePhone().clock.result;
}

// --- camera
uint8_t QLIB_FTM_CAMERA_SET_SENSOR_ID(ResourceContext hResourceContext, uint8_t iCamNum, uint32_t* piCameraStatus)
{
    const auto choose = [&](Phone& phone)
    {
        phone.camera.sensor = iCamNum;
        Put(piCameraStatus, phone.camera.status);
    };
    return OnPhoneInFtm(hResourceContext, __func__, choose, iCamNum);
}

uint8_t QLIB_FTM_CAMERA_START(ResourceContext hResourceContext, uint32_t* piCameraStatus)
{
    const auto start = [&](Phone& phone)
    {
        phone.camera.running = true;
        Put(piCameraStatus, phone.camera.status);
    };
    return OnPhoneInFtm(hResourceContext, __func__, start);
}

uint8_t QLIB_FTM_CAMERA_STOP(ResourceContext hResourceContext, uint32_t* piCameraStatus)
{
    const auto stop = [&](Phone& phone)
    {
        phone.camera.running = false;
        Put(piCameraStatus, phone.camera.status);
    };
    return OnPhoneInFtm(hResourceContext, __func__, stop);
}
