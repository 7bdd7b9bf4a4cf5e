// Pins and devices on the phone's board, by factory requests.
#include "factory_request.h"
#include "tandekor/ftm.h"

namespace tandekor::line
{

namespace
{

// What is read is written again, and must still be there.
Outcome Pin(Context& context)
{
    constexpr uint8_t pin = 0;
    const ResourceContext handle = context.handle;
    uint8_t out = 0, in = 0, enabled = 0, again = 0, status = 0;
    uint8_t function = 0, pull = 0, pullEnabled = 0, direction = 0;
    Requests requests;
    if (requests.Fails("TANDEKOR_GPIO_GET_OUT", TANDEKOR_GPIO_GET_OUT(handle, pin, &out, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_GET_IN", TANDEKOR_GPIO_GET_IN(handle, pin, &in, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_GET_OE", TANDEKOR_GPIO_GET_OE(handle, pin, &enabled, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_GET_CFG", TANDEKOR_GPIO_GET_CFG(handle, pin, &function, &pull, &pullEnabled,
                                                                         &direction, Unanswered(status))))
        return NotAnswered(requests.last);
    if (requests.Fails("TANDEKOR_GPIO_SET_OUT", TANDEKOR_GPIO_SET_OUT(handle, pin, out, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_SET_OE", TANDEKOR_GPIO_SET_OE(handle, pin, enabled, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_SET_CFG", TANDEKOR_GPIO_SET_CFG(handle, pin, function, pull, pullEnabled,
                                                                         direction, Unanswered(status)))
        || requests.Fails("TANDEKOR_GPIO_GET_OUT", TANDEKOR_GPIO_GET_OUT(handle, pin, &again, Unanswered(status))))
        return NotAnswered(requests.last);
    if (again != out)
        return Failed("TANDEKOR_GPIO_GET_OUT", "pin %u does not keep its level: %u, then %u", pin, out, again);
    return Passed("pin %u: output %u (%s), input %u, function %u, direction %u", pin, out,
                  enabled != 0 ? "enabled" : "not enabled", in, function, direction);
}

Outcome I2cDevice(Context& context)
{
    constexpr uint8_t radioChip = 0x10;
    uint8_t data[28] = {};
    if (TANDEKOR_FTM_I2C_DATA_ACCESS(context.handle, 0, radioChip, 0, 0, sizeof data, data) == 0)
        return NotAnswered("TANDEKOR_FTM_I2C_DATA_ACCESS");
    return Done("%zu bytes of device 0x%02X", sizeof data, radioChip).Add("byte-9", data[9]);
}

Outcome Adc(Context& context)
{
    constexpr uint16_t channel = 0;
    constexpr uint16_t readings = 10;
    uint32_t sum = 0;
    if (TANDEKOR_FTM_MGET_ADC_VAL(context.handle, channel, readings, &sum) == 0)
        return NotAnswered("TANDEKOR_FTM_MGET_ADC_VAL");
    return Done("channel %u, average of %u readings", channel, readings).Add("average", sum / double{readings});
}

Outcome GaugeRegister(Context& context)
{
    constexpr uint8_t number = 0;
    uint8_t status = 0;
    uint16_t value = 0;
    if (TANDEKOR_FTM_GG_READ_REG(context.handle, number, Unanswered(status), &value) == 0)
        return NotAnswered("TANDEKOR_FTM_GG_READ_REG");
    return Done("register %u", number).Add("value", value);
}

Outcome CameraSwitch(Context& context)
{
    constexpr uint8_t cameraSwitch = 1;
    if (TANDEKOR_FTM_CONFIGURE_SWITCH(context.handle, cameraSwitch, 0) == 0)
        return NotAnswered("TANDEKOR_FTM_CONFIGURE_SWITCH");
    return Done("switch %u at camera 0", cameraSwitch);
}

constexpr Test tests[] = {
    {"pin", "levels and configuration of pin 0, written as they were read", Pin},
    {"i2c", "registers of the radio chip, by I2C", I2cDevice, {{"byte-9"}}},
    {"adc", "average of channel 0 of the ADC", Adc, {{"average"}}},
    {"gauge-register", "register 0 of the fuel gauge", GaugeRegister, {{"value"}}},
    {"camera-switch", "sets the supply switch to camera 0 until the next start", CameraSwitch, {}, Changes::Setting},
};

}  // namespace

extern const Group pinsGroup;
constinit const Group pinsGroup{"pins", "pins and devices on the board, by factory requests", tests};

}  // namespace tandekor::line
