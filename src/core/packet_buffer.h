// The request and response area of a service object, and its exchange with the host library.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "tandekor/common.h"

namespace tandekor
{

// A host operation that exchanges one request for one response (QLIB_SendRAW, QLIB_SendSync).
using ExchangeOperation = uint8_t (*)(ResourceContext hResourceContext, uint16_t requestLength, uint8_t* request,
                                      uint16_t* responseLength, uint8_t* response, uint32_t timeoutMs);

// Requests are built by appends, responses are read by position or popped off their end. Multi-byte values are
// little-endian in both directions.
class PacketBuffer
{
public:
    static constexpr uint16_t areaSize = 4096;

    PacketBuffer() { Reset(); }

    // Empties both areas (request to 0xAA, response to 0xBB) and offers the whole response area.
    void Reset();

    // An append that does not fit stores nothing, and the request is not sent any more.
    void AddByte(uint8_t value);
    void AddWord(uint16_t value);
    void AddDword(uint32_t value);
    void AddBytes(const void* bytes, size_t count);

    // Overwrites two bytes of the request, high byte first, which must have been appended.
    void SetBigEndianWord(uint16_t position, uint16_t value);

    // Sends the request and takes the response's length, whatever the result is. Returns the operation's result; 0
    // without a call if an append did not fit, since a request cut short must not reach a phone.
    uint8_t Exchange(ExchangeOperation operation, ResourceContext hResourceContext, uint32_t timeoutMs);

    // A length beyond the response area is held to the area's size, so that no reader is led out of it.
    void SetResponseLength(uint16_t length);

    // Pops take the last unread bytes of the response. A pop that finds too few changes nothing and returns false.
    bool PopByte(uint8_t* value);
    bool PopWord(uint16_t* value);
    bool PopDword(uint32_t* value);
    bool PopBytes(void* bytes, uint16_t count);

    uint16_t RequestLength() const { return requestLength; }
    uint16_t ResponseLength() const { return responseLength; }

    // A byte of the response area, after a short reply the fill. 0 for a position outside the area.
    uint8_t ResponseAt(int position) const
    {
        return position >= 0 && position < areaSize ? response[position] : uint8_t{0};
    }
    // The response area from a position on, which is held to the area.
    const uint8_t* ResponseFrom(int position) const { return response + std::clamp<int>(position, 0, areaSize); }

private:
    bool Take(uint16_t count);

    uint8_t request[areaSize];
    uint8_t response[areaSize];
    uint16_t requestLength = 0;
    uint16_t responseLength = areaSize;
    uint16_t readCursor = 0;
    bool requestCut = false;
};

}  // namespace tandekor
