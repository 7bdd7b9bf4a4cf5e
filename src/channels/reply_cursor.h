// A place in a reply that moves forward. It never reads behind the reply: there every byte is a NUL, which is neither a
// digit nor any of the bytes that parsers look for.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "core/packet_buffer.h"

namespace tandekor
{

inline bool IsDigit(uint8_t character) { return character >= '0' && character <= '9'; }

class ReplyCursor
{
public:
    // Starts at an index, or at the first byte if that lies in front of it.
    ReplyCursor(const PacketBuffer& replyBuffer, int start) : reply(replyBuffer), index(std::max(start, 0)) {}

    bool AtEnd() const { return index >= reply.ResponseLength(); }
    int Index() const { return index; }
    uint8_t Ahead(int distance) const
    {
        return index + distance < reply.ResponseLength() ? reply.ResponseAt(index + distance) : uint8_t{0};
    }
    uint8_t Current() const { return Ahead(0); }

    void Skip(int count = 1) { index += count; }
    // Goes to the next byte that fits, from the current one on.
    template <typename Fits>
    void GoToFirst(Fits fits)
    {
        while (!AtEnd() && !fits(Current()))
            Skip();
    }
    void GoTo(char character)
    {
        GoToFirst([character](uint8_t current) { return current == static_cast<uint8_t>(character); });
    }

    // The number of the digits from the current byte on, 0 if there are none.
    uint32_t Digits() { return DigitsBehind(0); }
    // The same, with the current byte less 0x30 in front of them whatever it is.
    uint32_t DigitsFromAnyStart()
    {
        const uint32_t start = Current() - uint32_t{'0'};
        Skip();
        return DigitsBehind(start);
    }

    // Copies up to that byte, which is not copied, up to the reply's end, or as many bytes as told. No NUL is added.
    size_t CopyUpTo(char stop, char* text, size_t most)
    {
        size_t count = 0;
        for (; count < most && !AtEnd() && Current() != static_cast<uint8_t>(stop); Skip())
            text[count++] = static_cast<char>(Current());
        return count;
    }

private:
    uint32_t DigitsBehind(uint32_t value)
    {
        for (; IsDigit(Current()); Skip())
            value = value * 10 + (Current() - uint32_t{'0'});
        return value;
    }

    const PacketBuffer& reply;
    int index;
};

}  // namespace tandekor
