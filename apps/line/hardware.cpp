// What the phone says about its own parts, by factory requests.
#include "factory_request.h"
#include "tandekor/ftm.h"

namespace tandekor::line
{

namespace
{

Outcome HardwareVersion(Context& context)
{
    uint32_t word = 0;
    if (TANDEKOR_FTM_GET_HARDWARE_VERSION(context.handle, &word) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_HARDWARE_VERSION");
    return Done("word 0x%08X", word).Add("chip", word >> 12 & 0xFFFF);
}

Outcome HardwareId(Context& context)
{
    uint16_t id = 0;
    if (TANDEKOR_FTM_GET_HW_ID(context.handle, &id) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_HW_ID");
    return Done("%s", "").Add("variant", id);
}

Outcome NandFlash(Context& context)
{
    uint16_t id = 0;
    if (TANDEKOR_FTM_GET_NAND_FLASH_ID(context.handle, &id) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_NAND_FLASH_ID");
    return Done("0x%04X", id).Add("identifier", id);
}

Outcome FuelGauge(Context& context)
{
    uint8_t version = 0;
    if (TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION(context.handle, &version) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION");
    return Done("%s", "").Add("version", version);
}

Outcome Bluetooth(Context& context)
{
    uint16_t status = 0;
    uint8_t first = 0;
    uint8_t second = 0;
    uint8_t third = 0;
    if (TANDEKOR_FTM_GET_BT_PARAM(context.handle, &status, &first, &second, &third) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_BT_PARAM");
    return Done("parameters 0x%02X 0x%02X 0x%02X", first, second, third);
}

constexpr Test tests[] = {
    {"hardware-version", "word of the hardware version", HardwareVersion, {{"chip"}}},
    {"hardware-id", "identifier of the hardware variant", HardwareId, {{"variant"}}},
    {"nand-flash", "identifier of the NAND flash", NandFlash, {{"identifier"}}},
    {"fuel-gauge", "version of the fuel gauge", FuelGauge, {{"version"}}},
    {"bt-parameters", "parameters of the Bluetooth module", Bluetooth},
};

}  // namespace

extern const Group hardwareGroup;
constinit const Group hardwareGroup{"hardware", "parts of the phone, by factory requests", tests};

}  // namespace tandekor::line
