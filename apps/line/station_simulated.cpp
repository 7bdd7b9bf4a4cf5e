// The simulated phone in its box. Its time is simulated: waits take none, but count as on a real phone.
#include <algorithm>
#include <charconv>

#include "phone/nv_items.h"
#include "simulated_station.h"
#include "simulator/control.h"
#include "station.h"
#include "tandekor/simulator.h"

namespace tandekor::line::station
{

namespace
{

struct Refusal
{
    std::string operation;
    int from = 1;
    bool valid = false;
};

Refusal Read(const std::string& text)
{
    Refusal refusal;
    const size_t colon = std::min(text.find(':'), text.size());
    refusal.operation = text.substr(0, colon);
    const char* end = text.data() + text.size();
    if (colon == text.size())
        refusal.valid = true;
    else
    {
        const auto [rest, error] = std::from_chars(text.data() + colon + 1, end, refusal.from);
        refusal.valid = error == std::errc() && rest == end && refusal.from > 0;
    }
    return refusal;
}

}  // namespace

bool IsSimulated() { return true; }

const char* DefaultStationFile() { return simulatedStation; }

std::string RefusalProblem(const std::string& text)
{
    const Refusal refusal = Read(text);
    if (!refusal.valid)
        return "'" + text + "': the number of the first call that is refused has to be 1 or more";
    constexpr uint32_t noSuchOperation = UINT32_MAX;
    if (PHONE_CountCalls(refusal.operation.c_str()) == noSuchOperation)
        return "the host library has no operation '" + refusal.operation + "'";
    return "";
}

std::string Prepare(const Options& options)
{
    if (!options.phoneScript.empty())
    {
        if (std::string problem = simulator::RunScript(options.phoneScript); !problem.empty())
            return problem;
    }
    simulator::ThePhone().on = false;
    simulator::ThePhone().nvItems[nv::serialNumber.number] = simulator::Bytes(nv::serialNumber.size, '7');
    simulator::TheBootBox().ports = {options.bootBox};
    for (const std::string& text : options.refusals)
        simulator::RefuseCallsFrom(Read(text).operation, Read(text).from);
    return "";
}

std::string Name(const Options& options)
{
    std::string name = "simulated phone";
    if (!options.phoneScript.empty())
        name += " of " + options.phoneScript;
    for (const std::string& text : options.refusals)
    {
        const Refusal refusal = Read(text);
        name += (&text == options.refusals.data() ? " that refuses " : ", ") + text
                + (simulator::CountCalls(refusal.operation) < refusal.from ? " (not reached)" : "");
    }
    return name;
}

uint32_t Now() { return simulator::TheClock().now; }

void RunWithTicks(const std::function<void()>& action, const std::function<void()>& tick)
{
    simulator::TheClock().onSleep = [&tick](uint32_t) { tick(); };
    action();
    simulator::TheClock().onSleep = nullptr;
}

}  // namespace tandekor::line::station
