#pragma once

#include <cstdint>

namespace tandekor
{

// A 16-bit value that the host library delivers, with room for one that writes 32 bits.
class HostWord
{
public:
    explicit HostWord(uint16_t value = 0) : words{value, 0} {}

    uint16_t* Out() { return words; }
    uint16_t Value() const { return words[0]; }

private:
    uint16_t words[2];
};

}  // namespace tandekor
