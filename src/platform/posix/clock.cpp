#include "platform/clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace tandekor::platform
{

uint32_t TickCount()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void Sleep(uint32_t milliseconds)
{
    if (milliseconds == 0)
        std::this_thread::yield();
    else
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

UtcTime CurrentUtcTime()
{
    const std::time_t now = std::time(nullptr);
    std::tm calendar{};
    ::gmtime_r(&now, &calendar);
    return {static_cast<uint16_t>(calendar.tm_year + 1900), static_cast<uint16_t>(calendar.tm_mon + 1),
            static_cast<uint16_t>(calendar.tm_mday),        static_cast<uint16_t>(calendar.tm_hour),
            static_cast<uint16_t>(calendar.tm_min),         static_cast<uint16_t>(calendar.tm_sec)};
}

}  // namespace tandekor::platform
