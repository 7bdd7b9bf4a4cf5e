// The set-up of a phone: network to look for, last good channel, roaming, auto answer, clock, on-chip SIM.
#include <algorithm>
#include <iterator>

#include "phone/nv_items.h"
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "procedures/start_mode.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr uint32_t logMuted = 0;
constexpr uint32_t logNormal = 2;

struct NetworkMode
{
    uint8_t eNetwMode;
    uint8_t scanMode1[nv::scanMode1.size];
    uint8_t scanMode2[nv::scanMode2.size];
    uint8_t scanMode3[nv::scanMode3.size];
    bool hasChannel;
    uint8_t channelKind;
};
constexpr NetworkMode networkModes[] = {
    {0, {0x00, 0x04}, {0x00, 0xFF, 0xFF}, {0x00, 0x02}, false, 0},
    {2, {0x00, 0x0D}, {0x00, 0x00, 0x01}, {0x00, 0x01}, true, 0},
    {3, {0x00, 0x0D}, {0x00, 0x80, 0x00}, {0x00, 0x01}, true, 3},
    {4, {0x00, 0x0D}, {0x00, 0x04, 0x00}, {0x00, 0x01}, true, 2},
    {5, {0x00, 0x0E}, {0x00, 0x01, 0x00}, {0x00, 0x02}, false, 0},
};

// Null for a mode that is refused.
const NetworkMode* FindNetworkMode(uint8_t eNetwMode)
{
    const auto* mode = std::find_if(std::begin(networkModes), std::end(networkModes),
                                    [&](const NetworkMode& entry) { return entry.eNetwMode == eNetwMode; });
    return mode == std::end(networkModes) ? nullptr : mode;
}

// --- the virtual SIM
int WaitForPhone(const PhoneProcedure& phone)
{
    constexpr int mostFurtherPolls = 20;
    int furtherPolls = 0;
    while (QLIB_IsPhoneConnected(phone.hResourceContext) == 0 && furtherPolls < mostFurtherPolls)
    {
        platform::Sleep(500);
        ++furtherPolls;
    }
    return furtherPolls;
}

bool ForceFtmMode(const PhoneProcedure& phone, bool* restartedSlowly)
{
    uint8_t isFtmMode = 0;
    QLIB_SetLogFlags(phone.hResourceContext, logMuted);
    QLIB_DIAG_CONTROL_F(phone.hResourceContext, goOffline);
    QLIB_DIAG_CONTROL_F(phone.hResourceContext, reset);
    platform::Sleep(2000);
    WaitForPhone(phone);
    platform::Sleep(3000);
    *restartedSlowly = WaitForPhone(phone) > 0;
    QLIB_IsFTM_Mode(phone.hResourceContext, &isFtmMode);
    if (isFtmMode != 0)
        return true;
    QLIB_SetLogFlags(phone.hResourceContext, logNormal);
    phone.StepTrace(STEP_FAILURE, "Cannot switch to FTM mode");
    return false;
}

}  // namespace

// A failed clock is reported and passed over. The log is muted only while the phone restarts.
uint8_t TANDEKOR_Virtual_SIM(ResourceContext hResourceContext, const char* iSPC, uint8_t* piSPC_Result)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection()
        || !phone.Step(
            "QLIB_DIAG_SPC_F", "(iSPC = %s)", [&] { return QLIB_DIAG_SPC_F(hResourceContext, iSPC, piSPC_Result); },
            ItemOf<textBufferSize>(iSPC))
        || !phone.StepWithoutStart("TANDEKOR_ONLINE_TO_FTM", "()",
                                   [&] { return TANDEKOR_ONLINE_TO_FTM(hResourceContext); }))
        return 0;

    platform::Sleep(1000);
    uint8_t isFtmMode = 0;
    bool restartedSlowly = false;
    QLIB_IsFTM_Mode(hResourceContext, &isFtmMode);
    if (isFtmMode == 0 && !ForceFtmMode(phone, &restartedSlowly))
        return 0;
    QLIB_SetLogFlags(hResourceContext, logNormal);

    if (!phone.CallStep("TANDEKOR_SpecialSetRtcActualTime", TANDEKOR_SpecialSetRtcActualTime, "()"))
        phone.StepTrace(STEP_FAILURE, "Cannot set actual time");
    if (!phone.StepWithoutStart("TANDEKOR_FTM_TO_ONLINE", "()",
                                [&] { return TANDEKOR_FTM_TO_ONLINE(hResourceContext); }))
        return 0;

    platform::Sleep(3000);
    if (restartedSlowly)
        platform::Sleep(3000);
    QLIB_SetLogFlags(hResourceContext, logMuted);
    WaitForPhone(phone);
    QLIB_SetLogFlags(hResourceContext, logNormal);
    return phone.CallStep("TANDEKOR_SimSimulation", SimSimulation, "()");
}

bool tandekor::SimSimulation(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint8_t slot = 1;
    constexpr uint8_t applicationIdSize = 16;
    uint8_t applicationId[applicationIdSize] = {};
    uint32_t commandStatus = 0;
    uint32_t status = 0;
    if (!phone.CheckConnection()
        || !phone.Step(
            "QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD", "(iSlotId = %c, iSIM_AppIdLen = %c, piSIM_AppId = %s)",
            [&]
            {
                return QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(hResourceContext, slot, applicationIdSize, applicationId,
                                                             &commandStatus, &status);
            },
            slot, applicationIdSize, ItemOf<applicationIdSize>(applicationId)))
        return false;
    if (status != 0)
    {
        phone.StepTrace(STEP_FAILURE, "(_iStatus != 0)");
        return false;
    }
    if (commandStatus != 0)
    {
        phone.StepTrace(STEP_FAILURE, "(_iCommandStatus != 0)");
        return false;
    }
    return true;
}

// --- clock

// The phone gets Coordinated Universal Time. The time mode has no value of its own here and is sent as 0, which ends
// the text of the result line. The host library's result is the result.
uint8_t TANDEKOR_SpecialSetRtcActualTime(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint8_t write = 0;
    if (!phone.CheckConnection())
        return 0;
    const platform::UtcTime now = platform::CurrentUtcTime();
    uint8_t iTimeMode = 0;
    uint16_t iYear = now.year;
    auto iMonth = static_cast<uint8_t>(now.month);
    auto iDay = static_cast<uint8_t>(now.day);
    auto iHour = static_cast<uint8_t>(now.hour);
    auto iMinute = static_cast<uint8_t>(now.minute);
    auto iSecond = static_cast<uint8_t>(now.second);
    uint8_t result = 0;
    phone.Step(
        "QLIB_FTM_PMIC_RTC_SET_GET_TIME",
        "(iReadWrite = 0, iTimeMode = %c, iMonth = %c, iDay = %c, iYear = %c, iHour = %c, iMinute = %c, "
        "iSecond = %c)",
        [&]
        {
            return result = QLIB_FTM_PMIC_RTC_SET_GET_TIME(hResourceContext, write, &iTimeMode, &iMonth, &iDay, &iYear,
                                                           &iHour, &iMinute, &iSecond);
        },
        iTimeMode, iMonth, iDay, iYear, iHour, iMinute, iSecond);
    return result;
}

// --- network

uint8_t TANDEKOR_NetworkAndChannelPreselection(ResourceContext hResourceContext, uint8_t eNetwMode,
                                               uint8_t eChannelMode, uint16_t uiChannel)
{
    const PhoneProcedure phone(hResourceContext);
    const uint8_t cleared[nv::clearedBeforeScan.size] = {};
    return phone.CheckConnection()
           && phone.Step(
               "TANDEKOR_DIAG_NV_WRITE_F", "(iItemID = %d, pItemData = %u, iLength = 128)",
               [&] {
                   return DIAG_NV_WRITE_F(hResourceContext, nv::clearedBeforeScan.number, cleared,
                                          nv::clearedBeforeScan.size);
               },
               nv::clearedBeforeScan.number, AddressOf{cleared})
           && phone.CallStep("TANDEKOR_NV_WRITE_NETWORK_SCAN_MODE", NV_WRITE_NETWORK_SCAN_MODE, "(eNetwMode = %c)",
                             eNetwMode)
           && phone.CallStep("TANDEKOR_NV_WRITE_LAST_GOOD_CHANNEL", NV_WRITE_LAST_GOOD_CHANNEL,
                             "(eNetwMode = %c, uiChannel = %d)", eChannelMode, uiChannel);
}

bool tandekor::NV_WRITE_NETWORK_SCAN_MODE(ResourceContext hResourceContext, uint8_t eNetwMode)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    const NetworkMode* mode = FindNetworkMode(eNetwMode);
    return mode != nullptr && phone.WriteItem(nv::scanMode1.number, mode->scanMode1, nv::scanMode1.size)
           && phone.WriteItem(nv::scanMode2.number, mode->scanMode2, nv::scanMode2.size)
           && phone.WriteItem(nv::scanMode3.number, mode->scanMode3, nv::scanMode3.size);
}

bool tandekor::NV_WRITE_LAST_GOOD_CHANNEL(ResourceContext hResourceContext, uint8_t eNetwMode, uint16_t uiChannel)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    const NetworkMode* mode = FindNetworkMode(eNetwMode);
    if (mode == nullptr)
        return false;
    uint8_t item[nv::lastGoodChannel.size] = {};
    if (mode->hasChannel)
    {
        item[0] = 1;
        item[1] = static_cast<uint8_t>(uiChannel);
        item[2] = static_cast<uint8_t>(uiChannel >> 8);
        item[3] = mode->channelKind;
    }
    return phone.WriteItem(nv::lastGoodChannel.number, item, nv::lastGoodChannel.size);
}

uint8_t TANDEKOR_NV_SetRoamingListStatus(ResourceContext hResourceContext, uint8_t bRoamingListOn)
{
    const PhoneProcedure phone(hResourceContext);
    const uint8_t roaming[nv::roaming.size] = {0, static_cast<uint8_t>(bRoamingListOn == 1 ? 1 : 0)};
    const uint8_t secondRoaming[nv::secondRoaming.size] = {0x80, 0x00};
    return phone.CheckConnection() && phone.WriteItem(nv::roaming.number, roaming, nv::roaming.size)
           && phone.WriteItem(nv::secondRoaming.number, secondRoaming, nv::secondRoaming.size);
}

uint8_t TANDEKOR_NVSetAutoAnswerStatus(ResourceContext hResourceContext, uint8_t bAutoAnswerOn)
{
    const PhoneProcedure phone(hResourceContext);
    const uint8_t autoAnswer = bAutoAnswerOn == 1 ? 1 : 0;
    return phone.CheckConnection() && phone.WriteItem(nv::autoAnswer.number, &autoAnswer, nv::autoAnswer.size);
}
