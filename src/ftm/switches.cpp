// The phone's supporting circuits: switches, power modes, infrared port, A-GPS measurement, clock and tracer.
#include "channels/ftm_channel.h"

namespace tandekor
{

namespace
{

constexpr uint8_t deepestLowPowerMode = 3;
constexpr uint32_t deepestModeReplyTimeMs = 20;

constexpr char rtcStartText[] = "TANDEKOR_FTM_RTC_START(bStatus = %i, iTime = %i)";
constexpr char rtcOscCtrlText[] = "TANDEKOR_FTM_RTC_OSC_CTRL(bStatus = %i, bSwitch = %i)";

}  // namespace

uint8_t FtmChannel::CONFIGURE_SWITCH(uint8_t iSwitchID, uint8_t iSwitchState)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = %d, iSwitchState = %d)", iSwitchID, iSwitchState),
        catalogue::ConfigureSwitch,
        [&]
        {
            packetBuffer.AddWord(iSwitchID);
            packetBuffer.AddByte(iSwitchState);
        },
        [] {});
}

// In the deepest mode the phone can answer no more, so there an answer is the failure.
uint8_t FtmChannel::SET_LOW_POWER_MODE(uint8_t iLowPowerMode)
{
    const FormattedText entry("TANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = %d)", iLowPowerMode);
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::SetLowPowerMode);
    packetBuffer.AddByte(iLowPowerMode);

    uint8_t errorByte = 0;
    if (iLowPowerMode == deepestLowPowerMode)
    {
        if (ExchangeWithTimeout(deepestModeReplyTimeMs, &errorByte) != 0)
        {
            Trace(hResourceContext, "\t%s - Failure\n", entry.Text());
            return 0;
        }
    }
    else
    {
        if (Exchange(&errorByte) == 0)
            return NoReply(entry, errorByte);
        uint16_t status = 0;
        packetBuffer.PopWord(&status);
        if (status != 0)
            return ErrorCode(entry, status);
    }
    Trace(hResourceContext, "\t%s  - Completed successfully\n", entry.Text());
    return 1;
}

uint8_t FtmChannel::TEST_FTM_PMIC_USB(uint8_t iUSB_UART_Mode)
{
    Trace(hResourceContext, "TANDEKOR_FTM_TEST_PMIC_USB(iUSB_UART_Mode = %d)", iUSB_UART_Mode);
    return StandardBehindEntry(
        FormattedText("TANDEKOR_FTM_TEST_FTM_PMIC_USB(iUSB_UART_Mode = %d)", iUSB_UART_Mode), catalogue::TestPmicUsb,
        [&] { packetBuffer.AddByte(iUSB_UART_Mode); }, [] {});
}

uint8_t FtmChannel::IRDA_ON_OFF(uint8_t iTurnLED_On)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_IRDA_ON_OFF(iTurnLED_On = %d)", iTurnLED_On), catalogue::IrdaOnOff,
        [&] { packetBuffer.AddByte(iTurnLED_On); }, [] {});
}

uint8_t FtmChannel::IRDA_HIGH_CURRENT_TEST(uint16_t* piErrorCode, uint16_t iIrdaLength_ms)
{
    Trace(hResourceContext, "TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(iIrdaLength_ms = %d)", iIrdaLength_ms);
    BuildFtmHeader(catalogue::IrdaHighCurrentTest);
    packetBuffer.AddWord(iIrdaLength_ms);

    uint8_t errorByte = 0;
    const uint8_t result = ExchangeWithTimeout(iIrdaLength_ms + ftmReplyTimeMs, &errorByte);
    *piErrorCode = errorByte;
    const FormattedText closing("TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST()");
    return result == 0 ? NoReply(closing, errorByte) : Completed(closing);
}

uint8_t FtmChannel::TEST_IRDA_TX_RX(uint8_t iIrdaTestByte, uint32_t /*iIrdaReservedWord*/, uint32_t* piIrdaResult1,
                                    uint32_t* piIrdaResult2)
{
    const FormattedText entry("TANDEKOR_FTM_TEST_IRDA_TX_RX()");
    WriteToLog(hResourceContext, entry.Text());

    uint8_t errorByte = 0;
    const auto request = [&](const catalogue::Command& command, uint8_t middleByte)
    {
        BuildFtmHeader(command);
        packetBuffer.AddByte(0);
        packetBuffer.AddByte(middleByte);
        packetBuffer.AddByte(12);
        return Exchange(&errorByte) != 0;
    };
    if (!request(catalogue::IrdaTransmit, iIrdaTestByte) || !request(catalogue::IrdaReceive, 5))
        return NoReply(entry, errorByte);
    packetBuffer.PopDword(piIrdaResult2);
    packetBuffer.PopDword(piIrdaResult1);
    return Completed(entry);
}

// The caller judges the status word.
uint8_t FtmChannel::START_AGPS_CTON_MEAS(uint16_t* piStatusWord)
{
    const FormattedText entry("TANDEKOR_FTM_START_AGPS_CTON_MEAS()");
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::StartAgpsCtonMeas);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(entry, errorByte);
    packetBuffer.PopWord(piStatusWord);
    return Completed(entry);
}

uint8_t FtmChannel::GET_AGPS_CTON_MEAS(uint16_t* piCtoNValue, uint16_t* piErrorCode)
{
    const FormattedText entry("TANDEKOR_FTM_GET_AGPS_CTON_MEAS()");
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::GetAgpsCtonMeas);
    uint8_t errorByte = 0;
    const uint8_t result = Exchange(&errorByte);
    *piErrorCode = errorByte;
    if (result == 0)
        return NoReply(entry, errorByte);
    packetBuffer.PopWord(piCtoNValue);
    return Completed(entry);
}

uint8_t FtmChannel::RTC_START(uint8_t* bStatus, uint16_t iTime)
{
    const FormattedText entry(rtcStartText, *bStatus, iTime);
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::RtcStart);
    packetBuffer.AddByte(*bStatus);
    packetBuffer.AddWord(iTime);

    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return ErrorCode(entry, errorByte);
    uint8_t unused = 0;
    uint8_t timeHigh = 0;
    uint8_t timeLow = 0;
    packetBuffer.PopByte(&unused);
    packetBuffer.PopByte(&unused);
    packetBuffer.PopByte(&timeHigh);
    packetBuffer.PopByte(&timeLow);
    packetBuffer.PopByte(bStatus);

    const FormattedText reply(rtcStartText, *bStatus, timeHigh << 8 | timeLow);
    if (*bStatus == 0)
        return Completed(reply);
    Trace(hResourceContext, "\t%s - Wrong status (%d)\n", reply.Text(), *bStatus);
    return 0;
}

uint8_t FtmChannel::RTC_OSC_CTRL(uint8_t* bStatus, uint8_t bSwitch)
{
    const FormattedText entry(rtcOscCtrlText, *bStatus, bSwitch);
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::RtcOscCtrl);
    packetBuffer.AddByte(*bStatus);
    packetBuffer.AddByte(bSwitch);

    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return ErrorCode(entry, errorByte);
    uint8_t replySwitch = 0;
    packetBuffer.PopByte(&replySwitch);
    packetBuffer.PopByte(bStatus);

    const FormattedText reply(rtcOscCtrlText, *bStatus, replySwitch);
    if (*bStatus == 0)
        return Completed(reply);
    Trace(hResourceContext, "\t%s - Wrong status (%i) = %d", reply.Text(), *bStatus, errorByte);
    return 0;
}

uint8_t FtmChannel::TRACER_CONTROL(uint8_t bStatus, uint8_t bSwitch)
{
    const FormattedText entry("TANDEKOR_FTM_TRACER_CONTROL(bStatus = %i, bSwitch = %i)", bStatus, bSwitch);
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::TracerControl);
    packetBuffer.AddByte(bStatus);
    packetBuffer.AddByte(bSwitch);
    uint8_t errorByte = 0;
    return Exchange(&errorByte) == 0 ? ErrorCode(entry, errorByte) : Completed(entry);
}

}  // namespace tandekor
