// A forward-only cursor over a reply. Past the end it reads NUL, which is no digit, sign or letter.
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
    // Starts at the index, or at the first byte if the index is negative.
    ReplyCursor(const PacketBuffer& reply, int start)
        : bytes(reply.ResponseFrom(0)), length(reply.ResponseLength()), index(std::max(start, 0))
    {
    }

    bool AtEnd() const { return index >= length; }
    int Index() const { return index; }
    uint8_t Ahead(int distance) const { return index + distance < length ? bytes[index + distance] : uint8_t{0}; }
    uint8_t Current() const { return Ahead(0); }

    void Skip(int count = 1) { index += count; }
    // Moves to the first byte that fits, the current one included, or to the end.
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

    // Reads the decimal number that starts at the current byte; 0 without a digit.
    uint32_t Digits() { return DigitsAfter(0); }
    // The same, but the current byte counts as the first digit (less 0x30) whatever it is.
    uint32_t DigitsFromAnyStart()
    {
        const uint32_t start = Current() - uint32_t{'0'};
        Skip();
        return DigitsAfter(start);
    }

    // Copies the bytes before the stop character or the end of the reply, at most that many. No NUL is added.
    size_t CopyUpTo(char stop, char* text, size_t most)
    {
        size_t count = 0;
        for (; count < most && !AtEnd() && Current() != static_cast<uint8_t>(stop); Skip())
            text[count++] = static_cast<char>(Current());
        return count;
    }

private:
    uint32_t DigitsAfter(uint32_t value)
    {
        for (; IsDigit(Current()); Skip())
            value = value * 10 + (Current() - uint32_t{'0'});
        return value;
    }

    const uint8_t* bytes;
    int length;
    int index;
};

}  // namespace tandekor
