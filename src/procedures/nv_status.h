#pragma once

#include <cstdint>

namespace tandekor
{

// The status of an NV operation: 16 bits count, and there is room for a host library that writes 32.
class NvStatus
{
public:
    uint16_t* Out() { return words; }
    uint16_t Value() const { return words[0]; }

private:
    uint16_t words[2] = {};
};

}  // namespace tandekor
