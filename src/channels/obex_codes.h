// The codes of OBEX packets, requests and replies alike, and those of the phone's own server.
#pragma once

#include <cstdint>

namespace tandekor
{

// Operations, with the final bit where they have it.
constexpr uint8_t connectOperation = 0x80;
constexpr uint8_t disconnectOperation = 0x81;
constexpr uint8_t putOperation = 0x02;
constexpr uint8_t finalPutOperation = 0x82;
constexpr uint8_t getOperation = 0x83;
constexpr uint8_t setPathOperation = 0x85;

// Flags of a SetPath.
constexpr uint8_t createFolder = 0x00;
constexpr uint8_t doNotCreateFolder = 0x02;

// Response codes that decide.
constexpr uint8_t continueCode = 0x90;
constexpr uint8_t successCode = 0xA0;
constexpr uint8_t forbiddenCode = 0xC3;
constexpr uint8_t notFoundCode = 0xC4;

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

// Tags of the server's Application Parameters.
constexpr uint8_t freeSpaceTag = 0x32;
constexpr uint8_t actionTag = 0x34;
constexpr uint8_t sourcePathTag = 0x35;
constexpr uint8_t destinationPathTag = 0x36;
constexpr uint8_t permissionsTag = 0x38;

}  // namespace tandekor
