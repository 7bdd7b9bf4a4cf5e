#include "simulator/phone.h"

#include "phone/nv_items.h"
#include "simulator/state.h"

namespace simulator
{

namespace
{

// Catches up with the time that has gone by.
PhoneState& Settled()
{
    PhoneState& state = TheState().phone;
    if (state.runningOn && !state.runningOn->Running())
        PowerDown();
    if (state.starting && !state.starting->Running())
        state.starting.reset();
    return state;
}

}  // namespace

Phone& ThePhone() { return Settled().phone; }

bool PhoneAnswers()
{
    const PhoneState& state = Settled();
    return state.phone.on && !state.starting;
}

void TakeTime(uint32_t milliseconds)
{
    if (milliseconds == 0)
        return;
    TheState().phoneTakesTime = true;
    tandekor::platform::Sleep(milliseconds);
    TheState().phoneTakesTime = false;
}

void StartPhone()
{
    PhoneState& state = TheState().phone;
    const auto startMode = state.phone.nvItems.find(tandekor::nv::startMode.number);
    const bool ftm = startMode != state.phone.nvItems.end() && startMode->second == Bytes{1};
    state.phone.on = true;
    state.phone.mode = ftm ? Mode::Ftm : Mode::Online;
    state.phone.obexMode = false;
    state.obexSession.open = false;
    state.starting.emplace(state.phone.startTimeMs);
}

void PowerDown()
{
    PhoneState& state = TheState().phone;
    state.phone.on = false;
    state.starting.reset();
    state.runningOn.reset();
}

void SwitchSupply(bool on)
{
    PhoneState& state = Settled();
    if (on == state.supplied)
        return;
    state.supplied = on;
    state.runningOn.reset();
    if (!on && state.phone.on)
        state.runningOn.emplace(state.phone.runOnTimeMs);
    else if (on && !state.phone.on)
        StartPhone();
}

}  // namespace simulator
