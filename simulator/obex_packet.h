// OBEX packets as the phone's file server reads and makes them. Multi-byte fields are big-endian. The codes stand here
// and in the library, on purpose: an error in one of the two shows.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "simulator/control.h"

namespace simulator::obex
{

enum Operation : uint8_t
{
    PutPart = 0x02,
    ConnectFinal = 0x80,
    DisconnectFinal = 0x81,
    PutFinal = 0x82,
    GetFinal = 0x83,
    SetPathFinal = 0x85
};

enum ResponseCode : uint8_t
{
    Continue = 0x90,
    Success = 0xA0,
    BadRequest = 0xC0,
    Forbidden = 0xC3,
    NotFound = 0xC4,
    NotImplemented = 0xD1,
    Unavailable = 0xD3,
    DatabaseFull = 0xE0
};

enum HeaderId : uint8_t
{
    Name = 0x01,
    Type = 0x42,
    Time = 0x44,
    Target = 0x46,
    Body = 0x48,
    EndOfBody = 0x49,
    Who = 0x4A,
    Parameters = 0x4C,
    Length = 0xC3,
    ConnectionId = 0xCB
};

// Tags inside the Application Parameters.
enum Tag : uint8_t
{
    FreeSpace = 0x32,
    Action = 0x34,
    SourcePath = 0x35,
    DestinationPath = 0x36,
    Permissions = 0x38
};

constexpr uint16_t longestRequest = 4096;

// Headers or tags: which there are, in their order, and their values.
struct Fields
{
    Bytes form;
    std::map<uint8_t, Bytes> values;

    void Add(uint8_t id, const Bytes& value);
};

struct Packet
{
    uint8_t operation = 0;
    Bytes fixed;  // between the packet length and the headers
    Fields headers;

    bool Has(const Bytes& form) const { return headers.form == form; }
    const Bytes& operator[](uint8_t id) const { return headers.values.at(id); }
};

// Nothing for bytes whose lengths do not come out.
std::optional<Packet> PacketOf(const Bytes& request);
std::optional<Fields> TagsOf(const Bytes& parameters);

std::string TextOf(const Bytes& bytes);
// A text of characters of two bytes each, of which the first is 0; nothing for other bytes.
std::optional<std::string> WideTextOf(const Bytes& bytes);
uint32_t NumberOf(const Bytes& bytes);

void Append(Bytes& bytes, const Bytes& more);
Bytes Word(size_t value);
Bytes Dword(size_t value);
Bytes Header(uint8_t id, const Bytes& value);
Bytes Answer(uint8_t code, const Bytes& content = {});

}  // namespace simulator::obex
