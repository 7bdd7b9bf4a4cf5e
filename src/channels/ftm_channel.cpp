#include "channels/ftm_channel.h"

#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

constexpr uint8_t subsystemCommand = 0x4B;
constexpr uint8_t ftmSubsystem = 0x0B;
constexpr uint8_t oemSubsystem = 0x00;

}  // namespace

void FtmChannel::BuildFtmHeader(const catalogue::Command& command)
{
    packetBuffer.Reset();
    packetBuffer.AddByte(subsystemCommand);
    packetBuffer.AddByte(ftmSubsystem);
    packetBuffer.AddWord(command.modeId);
    packetBuffer.AddWord(command.commandId);
    packetBuffer.AddWord(command.dataLength);
    packetBuffer.AddWord(command.responseLength);
}

void FtmChannel::BuildOemHeader(uint16_t commandWord, uint32_t operationCode)
{
    packetBuffer.Reset();
    packetBuffer.AddByte(subsystemCommand);
    packetBuffer.AddByte(oemSubsystem);
    packetBuffer.AddWord(commandWord);
    packetBuffer.AddDword(operationCode);
}

uint8_t FtmChannel::ExchangeWithTimeout(uint32_t timeoutMs, uint8_t* errorByte)
{
    const uint8_t result = packetBuffer.Exchange(QLIB_SendSync, hResourceContext, timeoutMs);
    *errorByte = result == 0 ? packetBuffer.ResponseAt(0) : uint8_t{0};
    return result;
}

uint16_t FtmChannel::PopStatus(const Difference& difference)
{
    if (difference.statusIsByte)
    {
        uint8_t status = 0;
        packetBuffer.PopByte(&status);
        return status;
    }
    uint16_t status = 0;
    if (packetBuffer.PopWord(&status) && difference.statusWord != nullptr)
        *difference.statusWord = status;
    return status;
}

uint8_t FtmChannel::NoReply(const FormattedText& entry, uint16_t code)
{
    Trace(hResourceContext, "\t%s - SendSync() fail (error code = %i)", entry.Text(), code);
    return 0;
}

uint8_t FtmChannel::ErrorCode(const FormattedText& entry, uint16_t code)
{
    Trace(hResourceContext, "\t%s - error code = %d", entry.Text(), code);
    return 0;
}

uint8_t FtmChannel::Completed(const FormattedText& entry)
{
    Trace(hResourceContext, "\t%s - Completed successfully\n", entry.Text());
    return 1;
}

}  // namespace tandekor
