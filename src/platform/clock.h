// Time as the procedures need it: waits and a millisecond counter.
#pragma once

#include <cstdint>

namespace tandekor::platform
{

// Milliseconds since some moment; wraps to 0 after 2^32 - 1.
uint32_t TickCount();

// Blocks the calling thread; 0 only gives up the rest of its time slice.
void Sleep(uint32_t milliseconds);

// Coordinated Universal Time, as a calendar shows it.
struct UtcTime
{
    uint16_t year;
    uint16_t month;  // from 1
    uint16_t day;
    uint16_t hour;
    uint16_t minute;
    uint16_t second;
};
UtcTime CurrentUtcTime();

// A time limit that starts now. It compares elapsed time, so a wrap of the counter does no harm.
class TimeLimit
{
public:
    explicit TimeLimit(uint32_t milliseconds) : start(TickCount()), length(milliseconds) {}

    // Whether less than the limit's time has gone by.
    bool Running() const { return TickCount() - start < length; }

    // Whether more than the limit's time has gone by. Exactly at the limit both return false.
    bool Passed() const { return TickCount() - start > length; }

private:
    uint32_t start;
    uint32_t length;
};

}  // namespace tandekor::platform
