#include "core/packet_buffer.h"

#include <algorithm>
#include <cstring>

namespace tandekor
{

void PacketBuffer::Reset()
{
    std::memset(request, 0xAA, sizeof request);
    std::memset(response, 0xBB, sizeof response);
    requestLength = 0;
    responseLength = areaSize;
    requestCut = false;
}

void PacketBuffer::AddByte(uint8_t value) { AddBytes(&value, 1); }

void PacketBuffer::AddWord(uint16_t value)
{
    const uint8_t bytes[] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8)};
    AddBytes(bytes, sizeof bytes);
}

void PacketBuffer::AddDword(uint32_t value)
{
    const uint8_t bytes[] = {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8),
                             static_cast<uint8_t>(value >> 16), static_cast<uint8_t>(value >> 24)};
    AddBytes(bytes, sizeof bytes);
}

void PacketBuffer::AddBytes(const void* bytes, size_t count)
{
    if (count > static_cast<size_t>(areaSize - requestLength))
    {
        requestCut = true;
        return;
    }
    if (count == 0)
        return;
    std::memcpy(request + requestLength, bytes, count);
    requestLength = static_cast<uint16_t>(requestLength + count);
}

void PacketBuffer::SetBigEndianWord(uint16_t position, uint16_t value)
{
    if (position + 2 > requestLength)
        return;
    request[position] = static_cast<uint8_t>(value >> 8);
    request[position + 1] = static_cast<uint8_t>(value);
}

uint8_t PacketBuffer::Exchange(ExchangeOperation operation, ResourceContext hResourceContext, uint32_t timeoutMs)
{
    if (requestCut)
    {
        SetResponseLength(0);
        return 0;
    }
    uint16_t length = responseLength;
    const uint8_t result = operation(hResourceContext, requestLength, request, &length, response, timeoutMs);
    SetResponseLength(length);
    return result;
}

void PacketBuffer::SetResponseLength(uint16_t length)
{
    responseLength = std::min(length, areaSize);
    readCursor = responseLength;
}

bool PacketBuffer::Take(uint16_t count)
{
    if (readCursor < count)
        return false;
    readCursor = static_cast<uint16_t>(readCursor - count);
    return true;
}

bool PacketBuffer::PopByte(uint8_t* value)
{
    if (!Take(1))
        return false;
    *value = response[readCursor];
    return true;
}

bool PacketBuffer::PopWord(uint16_t* value)
{
    if (!Take(2))
        return false;
    *value = static_cast<uint16_t>(response[readCursor] | response[readCursor + 1] << 8);
    return true;
}

bool PacketBuffer::PopDword(uint32_t* value)
{
    if (!Take(4))
        return false;
    const uint8_t* bytes = response + readCursor;
    *value = uint32_t{bytes[0]} | uint32_t{bytes[1]} << 8 | uint32_t{bytes[2]} << 16 | uint32_t{bytes[3]} << 24;
    return true;
}

bool PacketBuffer::PopBytes(void* bytes, uint16_t count)
{
    if (!Take(count))
        return false;
    if (count > 0)
        std::memcpy(bytes, response + readCursor, count);
    return true;
}

}  // namespace tandekor
