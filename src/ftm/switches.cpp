// The phone's supporting circuits: switches, power modes, infrared port, A-GPS measurement, clock and tracer.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "tandekor/ftm.h"

using namespace tandekor;

namespace
{

constexpr uint8_t deepestLowPowerMode = 3;
constexpr uint32_t deepestModeReplyTimeMs = 20;

constexpr char rtcStartText[] = "TANDEKOR_FTM_RTC_START(bStatus = %i, iTime = %i)";
constexpr char rtcOscCtrlText[] = "TANDEKOR_FTM_RTC_OSC_CTRL(bStatus = %i, bSwitch = %i)";

}  // namespace

uint8_t TANDEKOR_FTM_CONFIGURE_SWITCH(ResourceContext hResourceContext, uint8_t iSwitchID, uint8_t iSwitchState)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard,
                   FormattedText("%s(iSwitchID = %d, iSwitchState = %d)", __func__, iSwitchID, iSwitchState),
                   factory::ConfigureSwitch, {.send = {uint16_t{iSwitchID}, iSwitchState}});
}

// In the deepest mode the phone stops answering, so there an answer is the failure.
uint8_t TANDEKOR_FTM_SET_LOW_POWER_MODE(ResourceContext hResourceContext, uint8_t iLowPowerMode)
{
    const FormattedText text("%s(iLowPowerMode = %d)", __func__, iLowPowerMode);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    if (iLowPowerMode == deepestLowPowerMode)
                    {
                        if (ftm.Exchange(factory::SetLowPowerMode, {iLowPowerMode}, deepestModeReplyTimeMs) != 0)
                        {
                            text.WriteWithPlainEnding(hResourceContext, failureEnding);
                            return false;
                        }
                    }
                    else
                    {
                        if (ftm.Exchange(factory::SetLowPowerMode, {iLowPowerMode}) == 0)
                            return ftm.NoReply(text);
                        const uint16_t status = ftm.TakeStatus();
                        if (status != 0)
                            return ftm.ErrorCode(text, status);
                    }
                    text.WriteWithPlainEnding(hResourceContext, "  - Completed successfully\n");
                    return true;
                });
}

uint8_t TANDEKOR_FTM_TEST_FTM_PMIC_USB(ResourceContext hResourceContext, uint8_t iUSB_UART_Mode)
{
    const FormattedText text("%s(iUSB_UART_Mode = %d)", __func__, iUSB_UART_Mode);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "TANDEKOR_FTM_TEST_PMIC_USB(iUSB_UART_Mode = %d)", iUSB_UART_Mode);
                    return ftm.StandardAfterStart(text, factory::TestPmicUsb, {.send = {iUSB_UART_Mode}});
                });
}

uint8_t TANDEKOR_FTM_IRDA_ON_OFF(ResourceContext hResourceContext, uint8_t iTurnLED_On)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard,
                   FormattedText("%s(iTurnLED_On = %d)", __func__, iTurnLED_On), factory::IrdaOnOff,
                   {.send = {iTurnLED_On}});
}

uint8_t TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(ResourceContext hResourceContext, uint16_t* piErrorCode,
                                            uint16_t iIrdaLength_ms)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(iIrdaLength_ms = %d)", iIrdaLength_ms);
                    const uint8_t result
                        = ftm.Exchange(factory::IrdaHighCurrentTest, {iIrdaLength_ms}, iIrdaLength_ms + ftmReplyTimeMs);
                    *piErrorCode = ftm.ErrorByte();
                    return result == 0 ? ftm.NoReply(text) : ftm.Completed(text);
                });
}

uint8_t TANDEKOR_FTM_TEST_IRDA_TX_RX(ResourceContext hResourceContext, uint8_t iIrdaTestByte,
                                     uint32_t /*iIrdaReservedWord*/, uint32_t* piIrdaResult1, uint32_t* piIrdaResult2)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    const auto request = [&](const factory::Request& row, uint8_t middleByte) {
                        return ftm.Exchange(row, {uint8_t{0}, middleByte, uint8_t{12}}) != 0;
                    };
                    if (!request(factory::IrdaTransmit, iIrdaTestByte) || !request(factory::IrdaReceive, 5))
                        return ftm.NoReply(text);
                    ftm.Take({piIrdaResult1, piIrdaResult2});
                    return ftm.Completed(text);
                });
}

// The caller judges the status word.
uint8_t TANDEKOR_FTM_START_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    if (ftm.Exchange(factory::StartAgpsCtonMeas, {}) == 0)
                        return ftm.NoReply(text);
                    ftm.Take({piStatusWord});
                    return ftm.Completed(text);
                });
}

uint8_t TANDEKOR_FTM_GET_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piCtoNValue, uint16_t* piErrorCode)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    const uint8_t result = ftm.Exchange(factory::GetAgpsCtonMeas, {});
                    *piErrorCode = ftm.ErrorByte();
                    if (result == 0)
                        return ftm.NoReply(text);
                    ftm.Take({piCtoNValue});
                    return ftm.Completed(text);
                });
}

uint8_t TANDEKOR_FTM_RTC_START(ResourceContext hResourceContext, uint8_t* bStatus, uint16_t iTime)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    const FormattedText text(rtcStartText, *bStatus, iTime);
                    ftm.Start(text);
                    if (ftm.Exchange(factory::RtcStart, {*bStatus, iTime}) == 0)
                        return ftm.ErrorCode(text, ftm.ErrorByte());
                    uint8_t timeLow = 0;
                    uint8_t timeHigh = 0;
                    uint8_t unused = 0;
                    ftm.Take({bStatus, &timeLow, &timeHigh, &unused, &unused});

                    const FormattedText reply(rtcStartText, *bStatus, timeHigh << 8 | timeLow);
                    if (*bStatus == 0)
                        return ftm.Completed(reply);
                    reply.WriteWithEnding(hResourceContext, " - Wrong status (%d)\n", *bStatus);
                    return false;
                });
}

uint8_t TANDEKOR_FTM_RTC_OSC_CTRL(ResourceContext hResourceContext, uint8_t* bStatus, uint8_t bSwitch)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    const FormattedText text(rtcOscCtrlText, *bStatus, bSwitch);
                    ftm.Start(text);
                    if (ftm.Exchange(factory::RtcOscCtrl, {*bStatus, bSwitch}) == 0)
                        return ftm.ErrorCode(text, ftm.ErrorByte());
                    uint8_t replySwitch = 0;
                    ftm.Take({bStatus, &replySwitch});

                    const FormattedText reply(rtcOscCtrlText, *bStatus, replySwitch);
                    if (*bStatus == 0)
                        return ftm.Completed(reply);
                    // The number at the end is an error code, which no reply has.
                    reply.WriteWithEnding(hResourceContext, " - Wrong status (%i) = 0", *bStatus);
                    return false;
                });
}

uint8_t TANDEKOR_FTM_TRACER_CONTROL(ResourceContext hResourceContext, uint8_t bStatus, uint8_t bSwitch)
{
    const FormattedText text("%s(bStatus = %i, bSwitch = %i)", __func__, bStatus, bSwitch);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    return ftm.Exchange(factory::TracerControl, {bStatus, bSwitch}) == 0
                               ? ftm.ErrorCode(text, ftm.ErrorByte())
                               : ftm.Completed(text);
                });
}
