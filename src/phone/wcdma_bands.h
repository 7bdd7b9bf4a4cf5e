// The receiver's NV items of each WCDMA band. A value has two bytes, a table over frequencies (VsFreq) sixteen.
#pragma once

#include <cstdint>

namespace tandekor
{

constexpr uint16_t bandValueSize = 2;
constexpr uint16_t bandTableSize = 16;

struct WcdmaBand
{
    uint16_t eNvBand;
    uint16_t vgaGainOffset;
    uint16_t vgaGainVsFreq;
    // Of the three LNA ranges.
    uint16_t fall[3];
    uint16_t rise[3];
    uint16_t lnaOffset[3];
    uint16_t lnaVsFreq[3];
};
constexpr WcdmaBand wcdmaBands[] = {
    {4, 856, 857, {520, 861, 862}, {519, 859, 860}, {524, 865, 866}, {525, 867, 868}},
    {5, 1143, 1144, {1164, 1148, 1149}, {1163, 1146, 1147}, {1168, 1152, 1153}, {1169, 1154, 1155}},
    {6, 1814, 1815, {1835, 1819, 1820}, {1834, 1817, 1818}, {1839, 1823, 1824}, {1840, 1825, 1826}},
};

// Null for a band that is not known.
constexpr const WcdmaBand* FindWcdmaBand(uint16_t eNvBand)
{
    for (const WcdmaBand& band : wcdmaBands)
    {
        if (band.eNvBand == eNvBand)
            return &band;
    }
    return nullptr;
}

}  // namespace tandekor
