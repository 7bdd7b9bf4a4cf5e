// The phone in its network, at the end of a run: from FTM mode it goes online and finds service.
#include <chrono>
#include <iterator>
#include <thread>

#include "at_reply.h"
#include "machine.h"
#include "tandekor/tandekor.h"
#include "transmitter.h"

namespace tandekor::line
{

namespace
{

Outcome GoOnline(Context& context)
{
    if (context.transmitterOn)
    {
        if (Outcome outcome = TransmitterOff(context); outcome.Is(Verdict::Failed))
            return outcome;
    }
    if (TANDEKOR_FTM_TO_ONLINE(context.handle) == 0)
        return Failed("TANDEKOR_FTM_TO_ONLINE", "the phone did not go online");
    context.state = State::Online;
    return Passed("in online mode");
}

Outcome Signal(Context& context)
{
    constexpr uint8_t notKnown = 99;
    uint8_t strength = notKnown;
    uint8_t errorRate = notKnown;
    uint16_t status = atStatusOk;
    const uint8_t result = TANDEKOR_AT_Get_CSQ(context.handle, &strength, &errorRate, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_Get_CSQ");
    if (strength == notKnown)
        return Failed("TANDEKOR_AT_Get_CSQ", "the phone does not know its signal strength");
    Outcome outcome = Done("%s", errorRate == notKnown ? "bit error rate not known" : "");
    outcome.Add("strength", 2 * strength - 113);
    if (errorRate != notKnown)
        outcome.Add("error-class", errorRate);
    return outcome;
}

// The phone has the time that it needs to find its network.
Outcome Registration(Context& context)
{
    static constexpr const char* states[] = {"not registered", "home", "searching", "denied", "not known", "roaming"};
    uint8_t reports = 0;
    uint8_t state = UINT8_MAX;
    uint8_t area[2] = {};
    uint8_t cell[2] = {};
    uint32_t mode = 0;
    uint32_t format = 0;
    char name[16] = {};
    uint16_t status = atStatusOk;
    constexpr int mostLooks = 30;
    constexpr uint8_t searching = 2;
    for (int look = 0; look < mostLooks && !machine::WasInterrupted(); ++look)
    {
        const uint8_t result = TANDEKOR_AT_Get_CREG(context.handle, &reports, &state, area, cell, &status);
        if (!AtAnswered(result, status))
            return AtNotAnswered(result, status, "TANDEKOR_AT_Get_CREG");
        if (state != searching)
            break;
        std::this_thread::sleep_for(std::chrono::seconds(1));
    }
    const uint8_t result = TANDEKOR_AT_Get_COPS(context.handle, &mode, &format, name, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_Get_COPS");
    return Done("%s", "").Add("state", state < std::size(states) ? states[state] : "not known").Add("operator", name);
}

constexpr Test tests[] = {
    {.name = "online",
     .description = "takes the phone from FTM mode to online mode",
     .run = GoOnline,
     .changes = Changes::Radiates,
     .fixtureOf = State::Online,
     .waitsFor = "phone to go online"},
    {.name = "registration",
     .description = "network registration and operator (+CREG, +COPS)",
     .run = Registration,
     .measures = {{"state", textUnit}, {"operator", textUnit}},
     .changes = Changes::Radiates,
     .needs = State::Online,
     .waitsFor = "phone to find its network"},
    {.name = "signal",
     .description = "signal strength and class of bit errors (+CSQ)",
     .run = Signal,
     .measures = {{"strength", "dBm"}, {"error-class"}},
     .changes = Changes::Radiates,
     .needs = State::Online},
};

}  // namespace

extern const Group serviceGroup;
constinit const Group serviceGroup{"service", "the phone online, in its network", tests};

}  // namespace tandekor::line
