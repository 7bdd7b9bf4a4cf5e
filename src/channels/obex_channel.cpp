#include "channels/obex_channel.h"

#include "platform/qmsl.h"

namespace tandekor
{

void ObexChannel::StartPacket(uint8_t operation)
{
    packetBuffer.Reset();
    AddByte(operation);
    AddWord(0);
}

void ObexChannel::StartRequest(uint8_t operation)
{
    StartPacket(operation);
    AddConnectionId();
}

void ObexChannel::StartSetPath(uint8_t flags)
{
    StartPacket(setPathOperation);
    AddByte(flags);
    AddByte(0);  // constants
    AddConnectionId();
}

void ObexChannel::AddWord(uint16_t value)
{
    AddByte(static_cast<uint8_t>(value >> 8));
    AddByte(static_cast<uint8_t>(value));
}

void ObexChannel::AddDword(uint32_t value)
{
    AddWord(static_cast<uint16_t>(value >> 16));
    AddWord(static_cast<uint16_t>(value));
}

void ObexChannel::AddConnectionId()
{
    AddByte(connectionIdHeader);
    AddDword(connectionId);
}

void ObexChannel::AddWidened(const char* text, size_t length)
{
    for (size_t i = 0; i < length; ++i)
        AddWord(static_cast<uint8_t>(text[i]));
}

void ObexChannel::AddName(const char* name, size_t length)
{
    AddByte(nameHeader);
    AddWord(static_cast<uint16_t>(2 * length + 5));
    AddWidened(name, length);
    AddWord(0);
}

Outcome ObexChannel::SendPacket(uint32_t timeoutMs)
{
    packetBuffer.SetBigEndianWord(1, packetBuffer.RequestLength());
    return Exchange(timeoutMs);
}

Outcome ObexChannel::SendRaw(const void* bytes, size_t count)
{
    packetBuffer.Reset();
    AddBytes(bytes, count);
    return Exchange(replyTimeMs);
}

Outcome ObexChannel::Exchange(uint32_t timeoutMs)
{
    const uint8_t result = packetBuffer.Exchange(QLIB_SendRAW, hResourceContext, timeoutMs);
    return {result != 0, packetBuffer.ResponseAt(0)};
}

bool ObexChannel::EndOfBodyFollows() const
{
    ReplyReader reply = ReplyFrom(3);
    return reply.PassConnectionId(connectionId) && reply.NextIs(endOfBodyHeader);
}

}  // namespace tandekor
