// The charger and the supply of the camera. What flows is measured from outside.
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

Outcome Charger(Context& context)
{
    constexpr uint8_t on = 1;
    constexpr uint8_t transistor = 1;
    constexpr uint32_t voltage = 4200;
    constexpr uint32_t current = 100;
    const auto powerMode = static_cast<uint8_t>(context.options.lowPowerMode);
    uint8_t state = 0;
    if (TANDEKOR_Charging_Test(context.handle, powerMode, on, transistor, on, on, voltage, current, transistor, &state)
        == 0)
        return Failed("TANDEKOR_Charging_Test", "the charger cannot be set");
    if (state != on)
        return Failed("TANDEKOR_Charging_Test", "the charger's transistor %u stays off (state %u)", transistor, state);
    return Passed("transistor %u on, limits %u and %u, low power mode %u", transistor, voltage, current, powerMode);
}

Outcome Supply(Context& context)
{
    constexpr uint8_t camera = 0;
    constexpr uint8_t level = 10;
    if (TANDEKOR_SupplyVoltageTest(context.handle, camera, level, 1, 1) == 0)
        return Failed("TANDEKOR_SupplyVoltageTest", "the supply cannot be set, or this phone model has none to set");
    return Done("camera %u supplied, backlight at level %u", camera, level);
}

constexpr Test tests[] = {
    {"camera-supply", "supply of the camera, with the display's backlight", Supply, {}, Changes::Setting},
    {"charger", "charger switches, limits and transistor", Charger, {}, Changes::Setting},
};

}  // namespace

extern const Group chargingGroup;
constinit const Group chargingGroup{"charging", "the charger and the supply lines", tests};

}  // namespace tandekor::line
