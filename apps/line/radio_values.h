// Modes and channels on which the radio is tested: each the middle of its band.
#pragma once

#include <cstdint>

namespace tandekor::line
{

// Numbers of the host library.
constexpr uint16_t modeWcdma = 9;
constexpr uint16_t modeGsm900 = 10;
constexpr uint8_t bandGsm900 = 0;

constexpr uint16_t channelGsm900 = 62;         // 902.4 MHz up, 947.4 MHz down
constexpr uint16_t channelWcdmaUplink = 9750;  // 1950.0 MHz
constexpr uint16_t channelWcdmaDownlink = 10700;

constexpr uint8_t burstSlot = 0;
constexpr uint8_t trainingSequence = 5;

}  // namespace tandekor::line
