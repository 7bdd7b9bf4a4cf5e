// What tests say of factory requests without an answer.
#pragma once

#include "test.h"

namespace tandekor::line
{

inline Outcome NotAnswered(const char* function)
{
    return Failed(function, "no reply, or the phone refused the request");
}

// A phone's status before a call: it decides as it is where a reply is too short for one.
inline uint8_t* Unanswered(uint8_t& status)
{
    status = 1;
    return &status;
}

// The requests of a test, one after the other up to the first that fails.
struct Requests
{
    const char* last = nullptr;

    bool Fails(const char* function, uint8_t result)
    {
        last = function;
        return result == 0;
    }
};

}  // namespace tandekor::line
