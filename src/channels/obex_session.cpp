#include "channels/obex_session.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "channels/reply_reader.h"

namespace tandekor
{

namespace
{

// The phone's file server; it answers with the same bytes in a Who header.
constexpr uint8_t serverTarget[]
    = {0x6B, 0x01, 0xCB, 0x31, 0x41, 0x06, 0x11, 0xD4, 0x9A, 0x77, 0x00, 0x50, 0xDA, 0x3F, 0x47, 0x1F};

constexpr uint8_t obexVersion = 0x10;
constexpr uint8_t doNotCreateFolder = 0x02;

}  // namespace

// The headers of the reply are looked for byte by byte. The first Who header decides; without one, a connection
// identifier has to be known.
bool ObexChannel::ObexConnect(uint16_t* responseCode)
{
    *responseCode = 0;
    StartPacket(connectOperation);
    packetBuffer.AddByte(obexVersion);
    packetBuffer.AddByte(0);  // flags
    AddBigEndianWord(maxPacketLength);
    packetBuffer.AddByte(targetHeader);
    AddBigEndianWord(sizeof serverTarget + 3);
    packetBuffer.AddBytes(serverTarget, sizeof serverTarget);
    if (!SendPacket(responseCode) || *responseCode != successCode)
        return false;

    constexpr int fixedFields = 7;  // code, length, version, flags and packet length of the phone
    if (packetBuffer.ResponseLength() < fixedFields)
        return false;
    ReplyReader reply(packetBuffer, fixedFields);
    reply.EndWithPacket();
    for (; reply.Left() > 0; reply.Skip(1))
    {
        if (reply.NextIs(whoHeader))
        {
            const int who = reply.Position() + 3;
            return reply.Left() >= 3 + static_cast<int>(sizeof serverTarget)
                   && std::all_of(
                       std::begin(serverTarget), std::end(serverTarget),
                       [&](const uint8_t& byte)
                       { return packetBuffer.ResponseAt(who + static_cast<int>(&byte - serverTarget)) == byte; });
        }
        if (reply.NextIs(connectionIdHeader))
        {
            if (!reply.DwordFollows(&connectionId))
                return false;
            reply.Skip(4);
        }
    }
    return connectionId != 0;
}

bool ObexChannel::ObexDisconnect(uint16_t* responseCode)
{
    *responseCode = 0;
    StartPacket(disconnectOperation);
    AddConnectionId();
    if (!SendPacket(responseCode) || *responseCode != successCode)
        return false;

    constexpr int fixedFields = 3;  // code and length
    if (packetBuffer.ResponseLength() < fixedFields)
        return false;
    ReplyReader reply(packetBuffer, fixedFields);
    reply.EndWithPacket();
    for (; reply.Left() > 0; reply.Skip(1))
    {
        if (reply.NextIs(connectionIdHeader))
            return reply.PassConnectionId(connectionId);
    }
    return true;
}

// A component without a name goes to the root.
bool ObexChannel::WalkPath(const char* path, uint16_t* responseCode)
{
    *responseCode = 0;
    while (*path != '\0')
    {
        const char* end = std::strchr(path, '\\');
        if (end == nullptr)
            return false;
        StartPacket(setPathOperation);
        packetBuffer.AddByte(doNotCreateFolder);
        packetBuffer.AddByte(0);  // constants
        AddConnectionId();
        if (end > path)
            AddName(path, static_cast<size_t>(end - path));
        if (!SendPacket(responseCode) || *responseCode != successCode)
            return false;
        path = end + 1;
    }
    return true;
}

}  // namespace tandekor
