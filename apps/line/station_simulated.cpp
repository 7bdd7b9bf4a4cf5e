// The simulated phone in its box. Its time is played: waits take none, but count as on a real phone.
#include <CLI/CLI.hpp>

#include "simulator/control.h"
#include "station.h"

namespace tandekor::line::station
{

namespace
{

std::string refusedOperation;

}  // namespace

void AddOptions(CLI::App& app)
{
    app.add_option("--refuse", refusedOperation,
                   "Host operation that the simulated phone refuses, to see a failure (QLIB_DIAG_VERNO_F ...)")
        ->type_name("NAME");
}

void Prepare(const Options& options)
{
    simulator::ThePhone().on = false;
    simulator::ThePhone().nvItems[2824] = simulator::Bytes(16, '7');  // serial number
    simulator::TheBootBox().ports = {options.bootBox};
    if (!refusedOperation.empty())
        simulator::RefuseCallsFrom(refusedOperation);
}

std::string Name(const Options&)
{
    if (refusedOperation.empty())
        return "simulated phone";
    const bool called = simulator::CountCalls(refusedOperation) != 0;
    return "simulated phone that refuses " + refusedOperation + (called ? "" : ", which was not called");
}

uint32_t Now() { return simulator::TheClock().now; }

void RunWithTicks(const std::function<void()>& action, const std::function<void()>& tick)
{
    simulator::TheClock().onSleep = [&tick](uint32_t) { tick(); };
    action();
    simulator::TheClock().onSleep = nullptr;
}

}  // namespace tandekor::line::station
