// The simulated clock and boot box, in place of those of the machine.
#include <algorithm>
#include <chrono>

#include "platform/clock.h"
#include "platform/serial_port.h"
#include "simulator/state.h"

namespace simulator
{

// The two are not destroyed: a connection that lives to the process's end closes its boot box port there.
Clock& TheClock()
{
    static Clock& clock = *new Clock;
    return clock;
}

BootBox& TheBootBox()
{
    static BootBox& box = *new BootBox;
    return box;
}

namespace
{

// The handle of the last open; each open returns a new one, so that an old one is refused.
tandekor::platform::SerialHandle lastHandle = 0;

// Whether the handle is good; if so, the boot box was told.
bool Tell(tandekor::platform::SerialHandle port, const std::string& event)
{
    if (!TheBootBox().open || port != lastHandle)
        return false;
    TheBootBox().events.push_back(event);
    return true;
}

}  // namespace

void Reset()
{
    TheState() = State();
    TheState().mostRecorded = everything;
    TheClock() = Clock();
    TheBootBox() = BootBox();
}

}  // namespace simulator

namespace tandekor::platform
{

using namespace simulator;

uint32_t TickCount() { return TheClock().now; }

void Sleep(uint32_t milliseconds)
{
    if (!TheState().phoneTakesTime)
    {
        TheClock().sleeps.push_back(milliseconds);
        Keep(TheState().timeline, "Sleep(" + std::to_string(milliseconds) + ')');
    }
    if (const auto action = TheClock().onSleep)
        action(milliseconds);
    TheClock().now += milliseconds;
}

UtcTime CurrentUtcTime()
{
    using namespace std::chrono;
    const sys_seconds now{seconds(TheClock().utcStart + TheClock().now / 1000)};
    const sys_days today = floor<days>(now);
    const year_month_day date(today);
    const hh_mm_ss<seconds> time(now - today);
    return {static_cast<uint16_t>(static_cast<int>(date.year())),
            static_cast<uint16_t>(static_cast<unsigned>(date.month())),
            static_cast<uint16_t>(static_cast<unsigned>(date.day())),
            static_cast<uint16_t>(time.hours().count()),
            static_cast<uint16_t>(time.minutes().count()),
            static_cast<uint16_t>(time.seconds().count())};
}

SerialHandle OpenSerialPort(uint16_t portNumber)
{
    BootBox& box = TheBootBox();
    if (box.open || std::ranges::find(box.ports, portNumber) == box.ports.end())
        return invalidSerialHandle;
    box.open = box.dtr = box.rts = true;
    box.events.push_back("open " + std::to_string(portNumber));
    SwitchSupply(true);
    return ++lastHandle;
}

bool ConfigureSerialPort(SerialHandle port) { return Tell(port, "configure"); }

bool PurgeSerialPort(SerialHandle port) { return Tell(port, "purge"); }

bool SetSerialLine(SerialHandle port, SerialLine line, bool raised)
{
    BootBox& box = TheBootBox();
    const bool dtr = line == SerialLine::Dtr;
    if (!Tell(port, std::string(dtr ? "DTR " : "RTS ") + (raised ? '1' : '0')) || box.refuseLineChanges)
        return false;
    (dtr ? box.dtr : box.rts) = raised;
    if (dtr)
        SwitchSupply(raised);
    return true;
}

bool CloseSerialPort(SerialHandle port)
{
    if (!Tell(port, "close") || TheBootBox().refuseClose)
        return false;
    TheBootBox().open = false;
    return true;
}

}  // namespace tandekor::platform
