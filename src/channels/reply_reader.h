// Reads an OBEX reply from its start, only as far as it was delivered, whatever its length fields say.
#pragma once

#include <algorithm>
#include <cstdint>

#include "channels/obex_codes.h"
#include "core/packet_buffer.h"

namespace tandekor
{

class ReplyReader
{
public:
    ReplyReader(const PacketBuffer& replyBuffer, int start) : reply(replyBuffer), position(start) {}

    // The length in bytes 1 and 2, which may be more or less than what was delivered.
    int PacketLength() const { return reply.ResponseAt(1) << 8 | reply.ResponseAt(2); }
    bool PacketIsWhole() const { return PacketLength() <= reply.ResponseLength(); }

    // Delivered bytes from the position on: all, and those of the packet.
    int Left() const { return std::max(reply.ResponseLength() - position, 0); }
    int LeftOfPacket() const { return std::max(std::min<int>(reply.ResponseLength(), PacketLength()) - position, 0); }

    void Skip(int count) { position += count; }
    const uint8_t* Bytes() const { return reply.ResponseFrom(position); }

    bool NextIs(uint8_t byte) const { return Left() > 0 && reply.ResponseAt(position) == byte; }

    // The bytes after the next one, which is a header's identifier. False, and *value unchanged, if there are too few.
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
        for (int i = 1; i <= 4; ++i)
            *value = *value << 8 | reply.ResponseAt(position + i);
        return true;
    }

    // Skips a Connection Id header if one is next. False if it holds another identifier than this one.
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
};

}  // namespace tandekor
