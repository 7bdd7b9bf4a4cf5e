#include "channels/ftm_channel.h"

#include <iterator>

#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

constexpr uint8_t subsystemCommand = 0x4B;
constexpr uint8_t oemSubsystem = 0x00;

struct Append
{
    PacketBuffer& buffer;

    void operator()(uint8_t value) const { buffer.AddByte(value); }
    void operator()(uint16_t value) const { buffer.AddWord(value); }
    void operator()(uint32_t value) const { buffer.AddDword(value); }
    void operator()(std::span<const std::byte> bytes) const { buffer.AddBytes(bytes.data(), bytes.size()); }
    void operator()(std::span<const uint16_t> words) const
    {
        for (const uint16_t word : words)
            buffer.AddWord(word);
    }
};

struct Pop
{
    PacketBuffer& buffer;

    void operator()(uint8_t* value) const { buffer.PopByte(value); }
    void operator()(uint16_t* value) const { buffer.PopWord(value); }
    void operator()(uint32_t* value) const { buffer.PopDword(value); }
    void operator()(std::span<std::byte> bytes) const
    {
        buffer.PopBytes(bytes.data(), static_cast<uint16_t>(bytes.size()));
    }
};

}  // namespace

bool FtmChannel::Standard(const FormattedText& text, const factory::Request& request, const StandardFields& fields)
{
    Start(text);
    return StandardAfterStart(text, request, fields);
}

bool FtmChannel::StandardAfterStart(const FormattedText& text, const factory::Request& request,
                                    const StandardFields& fields)
{
    if (Exchange(request, fields.send, fields.timeoutMs) == 0)
        return NoReply(text);
    Take(fields.reply);
    uint16_t status = 0;
    if (fields.statusIsByte)
    {
        uint8_t statusByte = 0;
        packetBuffer.PopByte(&statusByte);
        status = statusByte;
    }
    else
        status = TakeStatus(fields.statusWord);
    return status != 0 ? ErrorCode(text, status) : Completed(text);
}

uint8_t FtmChannel::Exchange(const factory::Request& request, std::initializer_list<SentField> data, uint32_t timeoutMs)
{
    const auto header = factory::HeaderOf(request);
    packetBuffer.Reset();
    packetBuffer.AddBytes(header.data(), header.size());
    for (const SentField& field : data)
        std::visit(Append{packetBuffer}, field);
    return Send(timeoutMs);
}

uint8_t FtmChannel::ExchangeOem(uint16_t commandWord, uint32_t operationCode, std::initializer_list<uint8_t> data)
{
    packetBuffer.Reset();
    packetBuffer.AddByte(subsystemCommand);
    packetBuffer.AddByte(oemSubsystem);
    packetBuffer.AddWord(commandWord);
    packetBuffer.AddDword(operationCode);
    for (const uint8_t byte : data)
        packetBuffer.AddByte(byte);
    return Send(ftmReplyTimeMs);
}

uint8_t FtmChannel::Send(uint32_t timeoutMs)
{
    const uint8_t result = packetBuffer.Exchange(QLIB_SendSync, hResourceContext, timeoutMs);
    errorByte = result == 0 ? packetBuffer.ResponseAt(0) : uint8_t{0};
    return result;
}

void FtmChannel::Take(std::initializer_list<ReplyField> fields)
{
    for (auto field = std::rbegin(fields); field != std::rend(fields); ++field)
        std::visit(Pop{packetBuffer}, *field);
}

uint16_t FtmChannel::TakeStatus(uint16_t* statusWord)
{
    uint16_t status = 0;
    if (packetBuffer.PopWord(&status) && statusWord != nullptr)
        *statusWord = status;
    return status;
}

bool FtmChannel::NoReply(const FormattedText& text, uint16_t code)
{
    text.WriteWithEnding(hResourceContext, " - SendSync() fail (error code = %i)", code);
    return false;
}

bool FtmChannel::ErrorCode(const FormattedText& text, uint16_t code)
{
    text.WriteWithEnding(hResourceContext, " - error code = %d", code);
    return false;
}

bool FtmChannel::Completed(const FormattedText& text)
{
    text.WriteWithPlainEnding(hResourceContext, completedEnding);
    return true;
}

}  // namespace tandekor
