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
        return Failed("the exchange with the phone failed\n%s gave 0", function.c_str());
    return Failed("the phone answered %s\n%s gave the status %u",
                  status == atStatusError ? "ERROR" : "neither OK nor ERROR, as in +CME ERROR", function.c_str(),
                  status);
}

}  // namespace tandekor::line
