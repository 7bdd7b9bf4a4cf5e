// How the phone leaves the line: which network it looks for, and what it does by itself. And its virtual SIM.
#include "online_mode.h"
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr uint8_t on = 1;
constexpr uint8_t off = 0;

Outcome Roaming(Context& context)
{
    if (TANDEKOR_NV_SetRoamingListStatus(context.handle, on) == 0)
        return Failed("TANDEKOR_NV_SetRoamingListStatus", "the roaming list could not be switched");
    return Done("list on");
}

Outcome AutoAnswer(Context& context)
{
    if (TANDEKOR_NVSetAutoAnswerStatus(context.handle, off) == 0)
        return Failed("TANDEKOR_NVSetAutoAnswerStatus", "the automatic answer could not be switched");
    return Done("off");
}

Outcome Preselection(Context& context)
{
    constexpr uint8_t automatic = 0;  // any network, with no channel to begin at
    constexpr uint16_t noChannel = 0;
    if (TANDEKOR_NetworkAndChannelPreselection(context.handle, automatic, automatic, noChannel) == 0)
        return Failed("TANDEKOR_NetworkAndChannelPreselection", "the network could not be preselected");
    return Done("network mode %u, no last channel", automatic);
}

Outcome Clock(Context& context)
{
    if (TANDEKOR_SpecialSetRtcActualTime(context.handle) == 0)
        return Failed("TANDEKOR_SpecialSetRtcActualTime", "the clock could not be set");
    return Done("set to this machine's universal time");
}

Outcome ActivateSim(Context& context)
{
    char serviceCode[] = "000000";  // as phones have it on the line
    constexpr uint8_t accepted = 1;
    uint8_t answer = 0;
    if (TANDEKOR_Virtual_SIM(context.handle, serviceCode, &answer) == 0)
        return Failed("TANDEKOR_Virtual_SIM", "the virtual SIM is not active");
    return Done("active").Add("service-code", answer == accepted ? "accepted" : "refused");
}

Outcome VirtualSim(Context& context) { return RunOnline(context, ActivateSim); }

constexpr Test tests[] = {
    {"roaming", "switches the roaming list on", Roaming, {}, Changes::Storage},
    {"auto-answer", "switches the automatic answer off", AutoAnswer, {}, Changes::Storage},
    {"preselection", "lets the phone look for any network", Preselection, {}, Changes::Storage},
    {"rtc", "sets the phone's clock to universal time", Clock, {}, Changes::Storage},
    {.name = "virtual-sim",
     .description = "activates the virtual SIM of the phone online",
     .run = VirtualSim,
     .measures = {{"service-code", textUnit}},
     .changes = Changes::Storage,
     .waitsFor = "phone to change its mode"},
};

}  // namespace

extern const Group networkGroup;
constinit const Group networkGroup{"network-setup", "network, roaming, clock, virtual SIM", tests};

}  // namespace tandekor::line
