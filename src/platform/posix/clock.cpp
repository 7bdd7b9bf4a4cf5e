#include "platform/clock.h"

#include <chrono>
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

}  // namespace tandekor::platform
