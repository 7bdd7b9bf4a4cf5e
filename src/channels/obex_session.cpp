// A session with the phone's file server: connect, folder, disconnect.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "channels/obex_channel.h"

namespace tandekor
{

namespace
{

// The phone's file server; it answers with the same bytes in a Who header.
constexpr uint8_t serverTarget[]
    = {0x6B, 0x01, 0xCB, 0x31, 0x41, 0x06, 0x11, 0xD4, 0x9A, 0x77, 0x00, 0x50, 0xDA, 0x3F, 0x47, 0x1F};

constexpr uint8_t obexVersion = 0x10;

}  // namespace

// The reply is searched byte by byte for its headers, which may reach past the packet length. The first Who header
// decides; without one, a connection identifier has to be known, also from an earlier session.
bool ObexChannel::ObexConnect()
{
    StartPacket(connectOperation);
    AddByte(obexVersion);
    AddByte(0);  // flags
    AddWord(maxPacketLength);
    AddByte(targetHeader);
    AddWord(sizeof serverTarget + 3);
    AddBytes(serverTarget, sizeof serverTarget);
    if (!SendPacket().Is(successCode))
        return false;

    constexpr int fixedFields = 7;  // code, length, version, flags and packet length of the phone
    for (ReplyReader reply = ReplyFrom(fixedFields); reply.LeftOfPacket() > 0; reply.Skip(1))
    {
        if (reply.NextIs(whoHeader))
        {
            return reply.Left() >= 3 + static_cast<int>(sizeof serverTarget)
                   && std::equal(std::begin(serverTarget), std::end(serverTarget), reply.Bytes() + 3);
        }
        if (reply.NextIs(connectionIdHeader))
        {
            reply.DwordFollows(&connectionId);
            reply.Skip(4);
        }
    }
    return connectionId != 0;
}

bool ObexChannel::ObexDisconnect()
{
    StartRequest(disconnectOperation);
    if (!SendPacket().Is(successCode))
        return false;

    constexpr int fixedFields = 3;  // code and length
    for (ReplyReader reply = ReplyFrom(fixedFields); reply.LeftOfPacket() > 0; reply.Skip(1))
    {
        if (reply.NextIs(connectionIdHeader))
            return reply.PassConnectionId(connectionId);
    }
    return true;
}

// A component without a name goes to the root.
bool ObexChannel::WalkPath(const char* path)
{
    while (*path != '\0')
    {
        const char* end = std::strchr(path, '\\');
        if (end == nullptr)
            return false;
        StartSetPath(doNotCreateFolder);
        if (end > path)
            AddName(path, static_cast<size_t>(end - path));
        if (!SendPacket().Is(successCode))
            return false;
        path = end + 1;
    }
    return true;
}

}  // namespace tandekor
