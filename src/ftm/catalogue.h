// The factory requests that this library sends, with the lengths that their headers declare. A declared length is a
// constant of the request: for several of them it differs from the bytes that follow, and is sent so all the same.
#pragma once

#include <cstdint>

namespace tandekor::catalogue
{

struct Command
{
    uint16_t modeId;
    uint16_t commandId;
    uint16_t dataLength;      // declared request data
    uint16_t responseLength;  // declared response, the 10 header bytes included
};

constexpr uint16_t ftm = 0x8000;
constexpr uint16_t ltm = 0x8001;

constexpr Command GetHardwareVersion{ftm, 10, 0, 16};
constexpr Command GetNandFlashId{ftm, 11, 2, 14};
constexpr Command IrdaOnOff{ftm, 12, 2, 12};
constexpr Command GetFuelGaugeVersion{ftm, 13, 0, 13};
constexpr Command ConfigureSwitch{ftm, 14, 3, 12};
constexpr Command SetLowPowerMode{ftm, 19, 1, 12};
constexpr Command TestPmicUsb{ftm, 25, 0, 12};
constexpr Command GetHwId{ftm, 29, 0, 14};
constexpr Command StartAgpsCtonMeas{ftm, 31, 0, 12};
constexpr Command GetAgpsCtonMeas{ftm, 32, 0, 14};
constexpr Command IrdaHighCurrentTest{ftm, 33, 2, 12};
constexpr Command GetBtParam{ftm, 36, 0, 15};
constexpr Command RtcStart{ftm, 213, 3, 13};
constexpr Command RtcOscCtrl{ftm, 214, 2, 12};
constexpr Command TracerControl{ftm, 217, 2, 12};

constexpr Command IrdaTransmit{ltm, 1340, 12, 12};
constexpr Command LtmGetFuelGaugeVersion{ltm, 1342, 10, 12};
constexpr Command IrdaReceive{ltm, 1354, 12, 12};

}  // namespace tandekor::catalogue
