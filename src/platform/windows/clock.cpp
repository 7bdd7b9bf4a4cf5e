#include "platform/clock.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace tandekor::platform
{

uint32_t TickCount() { return ::GetTickCount(); }

void Sleep(uint32_t milliseconds) { ::Sleep(milliseconds); }

UtcTime CurrentUtcTime()
{
    SYSTEMTIME now{};
    ::GetSystemTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

}  // namespace tandekor::platform
