// The numbers by which the phone's mode is asked for and told.
#pragma once

#include <cstdint>

namespace tandekor
{

// Modes that QLIB_DIAG_CONTROL_F takes.
constexpr uint32_t goOffline = 0;
constexpr uint32_t reset = 2;  // the phone restarts in the mode of the start mode item
constexpr uint32_t goToFtm = 3;
constexpr uint32_t goOnline = 4;
constexpr uint32_t powerDown = 6;

// States that QLIB_DIAG_STATUS_F reports.
constexpr uint8_t stateOffline = 0;
constexpr uint8_t stateOnline = 1;

}  // namespace tandekor
