// The codes of an OBEX session, and the frame in which every file operation runs.
#pragma once

#include "channels/obex_channel.h"
#include "tandekor/obex.h"

namespace tandekor
{

// Operations, with the final bit where they have it.
constexpr uint8_t connectOperation = 0x80;
constexpr uint8_t disconnectOperation = 0x81;
constexpr uint8_t putOperation = 0x02;
constexpr uint8_t finalPutOperation = 0x82;
constexpr uint8_t getOperation = 0x83;
constexpr uint8_t setPathOperation = 0x85;

// Response codes that decide, and one of our own for a file that does not exist.
constexpr uint16_t continueCode = 0x90;
constexpr uint16_t successCode = 0xA0;
constexpr uint16_t forbiddenCode = 0xC3;
constexpr uint16_t notFoundCode = 0xC4;
constexpr uint16_t missingFileCode = 0xFFFF;

// The disconnect follows every connect, whatever became of the walk and the operation.
template <typename Operation>
uint8_t ObexChannel::InSession(const char* psPhoneFolder, uint16_t* piObexError, Operation operation)
{
    uint16_t responseCode = 0;
    *piObexError = 0;
    if (!ObexConnect(&responseCode))
    {
        *piObexError = TANDEKOR_OBEX_CONNECT_FAILED;
        return 0;
    }
    if (psPhoneFolder != nullptr && !WalkPath(psPhoneFolder, &responseCode))
        *piObexError = TANDEKOR_OBEX_WALK_FAILED;
    else
        *piObexError = static_cast<uint16_t>(operation());
    if (!ObexDisconnect(&responseCode))
    {
        *piObexError = static_cast<uint16_t>(*piObexError | TANDEKOR_OBEX_DISCONNECT_FAILED);
        return 0;
    }
    return 1;
}

template <typename AddObject>
bool ObexChannel::ContinueGet(bool first, AddObject addObject, uint16_t* responseCode)
{
    StartPacket(getOperation);
    AddConnectionId();
    if (first)
        addObject();
    return SendPacketWithTimeout(getTimeMs, responseCode);
}

}  // namespace tandekor
