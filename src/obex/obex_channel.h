// The phone's OBEX file server, reached on the port that otherwise takes AT commands.
#pragma once

#include <cstdint>

#include "frame/packet_buffer.h"

namespace tandekor
{

class ObexChannel
{
public:
    explicit ObexChannel(ResourceContext handle) : hResourceContext(handle) {}

    uint8_t Switch_2_AT(uint16_t* piFirstByte);

private:
    static constexpr uint32_t replyTimeMs = 3000;

    // Exchanges the packet. *responseCode is the first byte of the response area whatever the result is: the response
    // code of a reply, or the fill 0xBB when nothing arrived.
    bool SendPacket(uint16_t* responseCode) { return SendPacketWithTimeout(replyTimeMs, responseCode); }
    bool SendPacketWithTimeout(uint32_t timeoutMs, uint16_t* responseCode);

    ResourceContext hResourceContext;
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
