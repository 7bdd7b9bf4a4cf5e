// Whether an AT command did its work, and what to tell if not.
#pragma once

#include "test.h"

namespace tandekor::line
{

constexpr uint16_t atStatusOk = 0;
constexpr uint16_t atStatusError = 1;

inline bool AtAnswered(uint8_t result, uint16_t status) { return result != 0 && status == atStatusOk; }

inline Outcome AtNotAnswered(uint8_t result, uint16_t status, const std::string& function)
{
    if (result == 0)
        return Failed(function.c_str(), "the exchange with the phone failed");
    return Failed(function.c_str(), "the phone answered %s (status %u)",
                  status == atStatusError ? "ERROR" : "neither OK nor ERROR, as in +CME ERROR", status);
}

}  // namespace tandekor::line
