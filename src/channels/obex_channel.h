// The phone's OBEX file server, reached on the port that otherwise takes AT commands: packets and sessions. Multi-byte
// fields are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "channels/obex_codes.h"
#include "channels/reply_reader.h"
#include "core/packet_buffer.h"
#include "tandekor/obex.h"

namespace tandekor
{

// The first byte of the response buffer whatever the result is: the response code of a reply, or the fill 0xBB when
// nothing arrived.
struct Outcome
{
    bool exchanged;
    uint8_t code;

    bool Is(uint8_t expected) const { return exchanged && code == expected; }
};

class ObexChannel
{
public:
    explicit ObexChannel(ResourceContext handle) : hResourceContext(handle) {}

    static constexpr uint32_t maxPacketLength = 4093;  // announced to the phone, and the limit of our Put packets
    static constexpr uint32_t replyTimeMs = 3000;
    static constexpr uint32_t getTimeMs = 5000;
    static constexpr uint32_t copyTimeMs = 6000;
    static constexpr uint32_t putTimeMs = 9000;

    // --- building a packet

    // Empties the buffer and appends the operation, a place for the packet length, which the sending fills in, and the
    // Connection Id.
    void StartRequest(uint8_t operation);
    void StartSetPath(uint8_t flags);
    void AddByte(uint8_t value) { packetBuffer.AddByte(value); }
    void AddWord(uint16_t value);
    void AddDword(uint32_t value);
    void AddBytes(const void* bytes, size_t count) { packetBuffer.AddBytes(bytes, count); }
    // Each character as two bytes, without any code conversion.
    void AddWidened(const char* text, size_t length);
    void AddName(const char* name) { AddName(name, std::strlen(name)); }
    void AddName(const char* name, size_t length);

    // --- exchanging it. A packet that outgrew the buffer is not sent.

    Outcome SendPacket(uint32_t timeoutMs = replyTimeMs);
    // Bytes that are no packet.
    Outcome SendRaw(const void* bytes, size_t count);

    ReplyReader ReplyFrom(int position) const { return {packetBuffer, position}; }
    // The reply that ends a Get has to hold an End of Body; data in it are not taken.
    bool EndOfBodyFollows() const;

    // --- a session

    bool ObexConnect();
    bool ObexDisconnect();
    // A SetPath for each component of a folder path. A component that is not closed by a backslash fails.
    bool WalkPath(const char* path);

    // Runs an operation in a session of its own, in the folder (none for null). The operation returns its error bits.
    // The disconnect follows every connect, whatever became of the folder and the operation.
    template <typename Operation>
    bool InSession(const char* psPhoneFolder, uint16_t* piObexError, Operation operation)
    {
        if (!ObexConnect())
        {
            *piObexError = TANDEKOR_OBEX_CONNECT_FAILED;
            return false;
        }
        const bool inFolder = psPhoneFolder == nullptr || WalkPath(psPhoneFolder);
        *piObexError = static_cast<uint16_t>(inFolder ? operation(*this) : TANDEKOR_OBEX_WALK_FAILED);
        if (!ObexDisconnect())
        {
            *piObexError = static_cast<uint16_t>(*piObexError | TANDEKOR_OBEX_DISCONNECT_FAILED);
            return false;
        }
        return true;
    }

    uint32_t ConnectionId() const { return connectionId; }

private:
    void StartPacket(uint8_t operation);
    void AddConnectionId();
    Outcome Exchange(uint32_t timeoutMs);

    ResourceContext hResourceContext;
    uint32_t connectionId = 0;  // of the last session, also after its end
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
