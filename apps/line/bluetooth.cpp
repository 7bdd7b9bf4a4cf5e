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
        return Failed("the module does not tell what it is\nTANDEKOR_Bluetooth_HW_ID gave 0 with the status %u",
                      status);
    return Passed("version %u, parameters 0x%02X 0x%02X 0x%02X", version[0], first, second, third);
}

Outcome Start(Context& context)
{
    char address[13] = {};
    if (TANDEKOR_BluetoothTestConnect(context.handle, address) == 0)
        return Failed("the module cannot be started with the address '%s'\nTANDEKOR_BluetoothTestConnect gave 0",
                      address);
    const std::string text = address;
    if (text.find_first_not_of('0') == std::string::npos || text.find_first_not_of('F') == std::string::npos)
        return Failed("the phone has no Bluetooth address: %s", address);
    return Passed("started, address %s", address);
}

Outcome Carrier(Context& context)
{
    constexpr uint8_t channel = 39;
    if (TANDEKOR_SetCWPowerBluetooth(context.handle, channel) == 0)
        return Failed("no carrier\nTANDEKOR_SetCWPowerBluetooth gave 0");
    return Passed("on channel %u, then reset", channel);
}

constexpr Test tests[] = {
    {"bt-module", "version and parameters of the module", Module},
    {"bt-start", "starts the module with the phone's own address", Start},
    {"bt-carrier", "continuous wave on one channel", Carrier},
};

}  // namespace

extern const Group bluetoothGroup;
constinit const Group bluetoothGroup{"bluetooth", "the Bluetooth module", tests};

}  // namespace tandekor::line
