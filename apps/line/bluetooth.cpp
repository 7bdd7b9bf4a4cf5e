// The Bluetooth module.
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

Outcome Module(Context& context)
{
    uint8_t version[512] = {};  // a structure of the host library, of which the first byte is shown
    uint16_t status = 0;
    uint8_t first = 0;
    uint8_t second = 0;
    uint8_t third = 0;
    if (TANDEKOR_Bluetooth_HW_ID(context.handle, version, &status, &first, &second, &third) == 0)
        return Failed("TANDEKOR_Bluetooth_HW_ID", "the module does not say what it is (status %u)", status);
    return Done("parameters 0x%02X 0x%02X 0x%02X", first, second, third).Add("version", version[0]);
}

Outcome Start(Context& context)
{
    char address[13] = {};
    if (TANDEKOR_BluetoothTestConnect(context.handle, address) == 0)
        return Failed("TANDEKOR_BluetoothTestConnect", "the module cannot be started with the address '%s'", address);
    const std::string text = address;
    if (text.find_first_not_of('0') == std::string::npos || text.find_first_not_of('F') == std::string::npos)
        return Failed("", "the phone has no Bluetooth address: %s", address);
    return Passed("started, address %s", address);
}

Outcome Carrier(Context& context)
{
    const uint8_t channel = context.options.radio.channelBluetooth;
    if (TANDEKOR_SetCWPowerBluetooth(context.handle, channel) == 0)
        return Failed("TANDEKOR_SetCWPowerBluetooth", "the carrier was not switched on");
    return Done("on channel %u, then reset", channel);
}

constexpr Test tests[] = {
    {"bt-module", "version and parameters of the module", Module, {{"version"}}},
    {"bt-start", "starts the module with the phone's own address", Start, {}, Changes::Setting},
    {"bt-carrier", "continuous wave on one channel", Carrier, {}, Changes::Radiates},
};

}  // namespace

extern const Group bluetoothGroup;
constinit const Group bluetoothGroup{"bluetooth", "the Bluetooth module", tests};

}  // namespace tandekor::line
