// Reads an OBEX reply front to back, inside the bytes that were delivered, whatever its length fields say.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/packet_buffer.h"

namespace tandekor
{

// Header identifiers.
constexpr uint8_t nameHeader = 0x01;
constexpr uint8_t typeHeader = 0x42;
constexpr uint8_t timeHeader = 0x44;
constexpr uint8_t targetHeader = 0x46;
constexpr uint8_t bodyHeader = 0x48;
constexpr uint8_t endOfBodyHeader = 0x49;
constexpr uint8_t whoHeader = 0x4A;
constexpr uint8_t applicationParametersHeader = 0x4C;
constexpr uint8_t lengthHeader = 0xC3;
constexpr uint8_t connectionIdHeader = 0xCB;

class ReplyReader
{
public:
    // Starts at a position of the reply and ends with what was delivered.
    ReplyReader(const PacketBuffer& replyBuffer, int start)
        : reply(replyBuffer), position(start), end(replyBuffer.ResponseLength())
    {
    }

    // The packet length of the reply's bytes 1 and 2, which may be more or less than what was delivered.
    int PacketLength() const { return reply.ResponseAt(1) << 8 | reply.ResponseAt(2); }
    // Makes the packet length the end, where it comes first.
    void EndWithPacket() { end = std::min(end, PacketLength()); }

    int Left() const { return end > position ? end - position : 0; }
    int Position() const { return position; }
    void Skip(int count) { position += count; }

    bool NextIs(uint8_t byte) const { return Left() > 0 && reply.ResponseAt(position) == byte; }

    // The bytes behind the next one, which is a header's identifier.
    bool WordFollows(uint16_t* value) const
    {
        if (Left() < 3)
            return false;
        *value = static_cast<uint16_t>(reply.ResponseAt(position + 1) << 8 | reply.ResponseAt(position + 2));
        return true;
    }
    bool DwordFollows(uint32_t* value) const
    {
        if (Left() < 5)
            return false;
        *value = 0;
        for (int i = 1; i <= 4; ++i)
            *value = *value << 8 | reply.ResponseAt(position + i);
        return true;
    }

    // Goes behind a Connection Id header if one is next. False if it holds another identifier than this one.
    bool PassConnectionId(uint32_t connectionId)
    {
        if (!NextIs(connectionIdHeader))
            return true;
        uint32_t value = 0;
        if (!DwordFollows(&value) || value != connectionId)
            return false;
        Skip(5);
        return true;
    }

private:
    const PacketBuffer& reply;
    int position;
    int end;
};

}  // namespace tandekor
