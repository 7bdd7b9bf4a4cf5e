// The items of a phone's non-volatile memory that are known by name: number and size in bytes. The items of
// the receiver's bands are in wcdma_bands.h and where they are written.
#pragma once

#include <cstdint>

namespace tandekor::nv
{

struct Item
{
    uint16_t number;
    uint16_t size;
};

constexpr Item scanMode1{10, 2};  // the three parts of the network to look for
constexpr Item scanMode2{441, 3};
constexpr Item scanMode3{848, 2};
constexpr Item autoAnswer{74, 1};
constexpr Item roaming{256, 2};
constexpr Item secondRoaming{1190, 2};
constexpr Item bluetoothAddress{447, 6};  // its last byte first
constexpr Item startMode{453, 1};         // the mode in which the phone starts: 1 FTM, 0 online
constexpr Item imei{550, 9};
constexpr Item clearedBeforeScan{945, 128};
constexpr Item lastGoodChannel{1894, 128};
constexpr Item gsmRxRelOffsets{2499, 128};
constexpr Item serialNumber{2824, 16};

}  // namespace tandekor::nv
