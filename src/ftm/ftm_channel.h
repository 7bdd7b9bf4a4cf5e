// The phone maker's factory requests: the two headers, the exchange, the standard procedure of a command, and the
// commands themselves. The exported functions of the same names document them.
#pragma once

#include <cstdint>

#include "frame/packet_buffer.h"
#include "frame/text_log.h"
#include "ftm/catalogue.h"

namespace tandekor
{

class FtmChannel
{
public:
    explicit FtmChannel(ResourceContext handle) : hResourceContext(handle) {}

    // Identification.
    uint8_t GET_HARDWARE_VERSION(uint32_t* piHardwareVersion);
    uint8_t GET_HW_ID(uint16_t* piHwId);
    uint8_t GET_NAND_FLASH_ID(uint16_t* piNandFlashId);
    uint8_t GET_FUEL_GAUGE_VERSION(uint8_t* piFuelGaugeVersion);
    uint8_t GET_BT_PARAM(uint16_t* piBtStatus, uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3);

    // Switches and supporting circuits.
    uint8_t CONFIGURE_SWITCH(uint8_t iSwitchID, uint8_t iSwitchState);
    uint8_t SET_LOW_POWER_MODE(uint8_t iLowPowerMode);
    uint8_t TEST_FTM_PMIC_USB(uint8_t iUSB_UART_Mode);
    uint8_t IRDA_ON_OFF(uint8_t iTurnLED_On);
    uint8_t IRDA_HIGH_CURRENT_TEST(uint16_t* piErrorCode, uint16_t iIrdaLength_ms);
    uint8_t TEST_IRDA_TX_RX(uint8_t iIrdaTestByte, uint32_t iIrdaReservedWord, uint32_t* piIrdaResult1,
                            uint32_t* piIrdaResult2);
    uint8_t START_AGPS_CTON_MEAS(uint16_t* piStatusWord);
    uint8_t GET_AGPS_CTON_MEAS(uint16_t* piCtoNValue, uint16_t* piErrorCode);
    uint8_t RTC_START(uint8_t* bStatus, uint16_t iTime);
    uint8_t RTC_OSC_CTRL(uint8_t* bStatus, uint8_t bSwitch);
    uint8_t TRACER_CONTROL(uint8_t bStatus, uint8_t bSwitch);

private:
    static constexpr uint32_t replyTimeMs = 3000;

    // Empties the buffer and appends the ten header bytes; the command's data follow.
    void BuildFtmHeader(const catalogue::Command& command);
    // The same for a request of the OEM format, which declares no lengths.
    void BuildOemHeader(uint16_t commandWord, uint32_t operationCode);

    // Sends the request and gives the host library's result. After a failure *errorByte is the first byte of the
    // response area, which is the fill 0xBB when nothing arrived; else it is 0.
    uint8_t Exchange(uint8_t* errorByte) { return ExchangeWithTimeout(replyTimeMs, errorByte); }
    uint8_t ExchangeWithTimeout(uint32_t timeoutMs, uint8_t* errorByte);

    // The closing texts of a command, behind the text that names it and its arguments. Each gives the result that
    // belongs to it.
    uint8_t NoReply(const FormattedText& entry, uint8_t errorByte);
    uint8_t ErrorCode(const FormattedText& entry, uint16_t code);
    uint8_t Completed(const FormattedText& entry);

    // A command with nothing of its own: entry text, request, exchange, pop of the value fields (what append and pop
    // do), pop of the status word, closing text. A reply too short to hold a status word counts as success. The status
    // word goes to *statusWord as well, where a command hands it out and the reply holds one.
    template <typename Append, typename Pop>
    uint8_t Standard(const FormattedText& entry, const catalogue::Command& command, Append append, Pop pop,
                     uint16_t* statusWord = nullptr)
    {
        WriteToLog(hResourceContext, entry.Text());
        return StandardBehindEntry(entry, command, append, pop, statusWord);
    }

    // The same for a command whose entry text differs from the one that its closing texts repeat, and is written.
    template <typename Append, typename Pop>
    uint8_t StandardBehindEntry(const FormattedText& entry, const catalogue::Command& command, Append append, Pop pop,
                                uint16_t* statusWord = nullptr)
    {
        BuildFtmHeader(command);
        append();
        uint8_t errorByte = 0;
        if (Exchange(&errorByte) == 0)
            return NoReply(entry, errorByte);
        pop();
        uint16_t status = 0;
        if (packetBuffer.PopWord(&status) && statusWord != nullptr)
            *statusWord = status;
        return status != 0 ? ErrorCode(entry, status) : Completed(entry);
    }

    ResourceContext hResourceContext;
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
