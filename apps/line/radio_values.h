// Modes and channels on which the radio is tested: each the middle of its band, if the station file says nothing else.
#pragma once

#include <cstdint>

namespace tandekor::line
{

struct RadioValues
{
    // Numbers of the host library.
    uint16_t modeWcdma = 9;
    uint16_t modeGsm = 10;
    uint8_t bandGsm = 0;

    uint16_t channelGsm = 62;               // 902.4 MHz up, 947.4 MHz down
    uint16_t channelWcdmaUplink = 9750;     // 1950.0 MHz
    uint16_t channelWcdmaDownlink = 10700;  // 2140.0 MHz
    uint8_t powerLevelGsm = 5;              // 33 dBm
    uint8_t trainingSequence = 5;
    uint8_t bandReceiver = 4;  // the set of NV items of the phone's WCDMA band
    uint16_t channelFm = 9460;
    uint8_t channelBluetooth = 39;
};

constexpr uint8_t burstSlot = 0;

}  // namespace tandekor::line
