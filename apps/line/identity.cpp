// Who the phone is, and what it stores.
#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <vector>

#include "phone/nv_items.h"
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr size_t imeiDigits = 15;

// Digits of which every second one counts twice; the sum of all is a multiple of ten. An erased item is no IMEI,
// although the sum of zeros is one.
bool IsImei(const std::string& text)
{
    int sum = 0;
    for (size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] < '0' || text[i] > '9')
            return false;
        const int digit = (text[i] - '0') * (i % 2 == 0 ? 1 : 2);
        sum += digit / 10 + digit % 10;
    }
    return text.size() == imeiDigits && sum > 0 && sum % 10 == 0;
}

Outcome ReadImei(Context& context)
{
    char imei[imeiDigits + 1] = {};
    if (TANDEKOR_NV_READ_IMEI(context.handle, imei) == 0)
        return Failed("TANDEKOR_NV_READ_IMEI", "the IMEI could not be read");
    return IsImei(imei) ? Passed("%s", imei) : Failed("", "not an IMEI, by its digits or its check digit: %s", imei);
}

Outcome WriteImei(Context& context)
{
    const std::string& imei = context.options.imei;
    if (TANDEKOR_NV_WRITE_IMEI(context.handle, imei.c_str()) == 0)
        return Failed("TANDEKOR_NV_WRITE_IMEI", "the IMEI could not be written, or reads back changed");
    return Passed("%s, written and read back", imei.c_str());
}

std::string MissingImei(const Options& options)
{
    return IsImei(options.imei) ? "" : "imei-write needs an IMEI of 15 digits, the last its check digit: --imei";
}

Outcome Flash(Context& context)
{
    uint32_t id = 0;
    if (TANDEKOR_FlashTest(context.handle, &id) == 0)
        return Failed("TANDEKOR_FlashTest", "the flash could not be identified");
    return Done("maker 0x%02X, device 0x%02X", id >> 8, id & 0xFF).Add("maker", id >> 8).Add("device", id & 0xFF);
}

Outcome MemoryCard(Context& context)
{
    if (TANDEKOR_SpecialMmcTest(context.handle) == 0)
        return Failed("TANDEKOR_SpecialMmcTest", "no card, or it does not keep what is written");
    return Passed("16 bytes written and read back");
}

// The four values of a freezing, in the order of the arguments.
struct FreezeValues
{
    struct Value
    {
        const char* name;
        size_t size;
        std::vector<uint8_t> bytes = {};
    };
    std::array<Value, 4> values = {{{"imei", nv::imei.size},
                                    {"bluetooth-address", nv::bluetoothAddress.size},
                                    {"serial-number", nv::serialNumber.size},
                                    {"public-key", 260}}};

    // From a file with a line for each: its name and its bytes as hexadecimal digits. Returns what is wrong with it.
    std::string ReadFrom(const std::string& path)
    {
        std::ifstream file(path);
        std::string text;
        while (std::getline(file, text))
        {
            std::istringstream line(text);
            std::string name;
            line >> name;
            for (Value& value : values)
            {
                unsigned byte = 0;
                while (name == value.name && line >> std::hex >> byte && byte <= 0xFF)
                    value.bytes.push_back(static_cast<uint8_t>(byte));
            }
        }
        for (const Value& value : values)
        {
            if (value.bytes.size() != value.size)
                return "freeze needs in " + path + " a line '" + value.name + "' with " + std::to_string(value.size)
                       + " bytes in hexadecimal digits; there are " + std::to_string(value.bytes.size());
        }
        return "";
    }
};

std::string MissingFreezeValues(const Options& options)
{
    if (!options.mayFreeze || options.freezeFile.empty())
        return "freeze needs --freeze-values and --i-know-freezing-cannot-be-undone";
    return FreezeValues().ReadFrom(options.freezeFile);
}

Outcome Freeze(Context& context)
{
    FreezeValues freezing;
    if (const std::string problem = freezing.ReadFrom(context.options.freezeFile); !problem.empty())
        return Failed("", "%s", problem.c_str());
    const auto& [imei, address, serial, key] = freezing.values;
    if (TANDEKOR_DIAG_FREEZE_PHONE(context.handle, imei.bytes.data(), address.bytes.data(), serial.bytes.data(),
                                   key.bytes.data())
        == 0)
        return Failed("TANDEKOR_DIAG_FREEZE_PHONE", "the phone is not frozen");
    return Passed("frozen, which cannot be undone");
}

constexpr Test tests[] = {
    {"imei", "IMEI and its check digit", ReadImei},
    {"flash", "maker and device of the flash", Flash, {{"maker"}, {"device"}}},
    {"memory-card", "writes a file on the memory card and reads it", MemoryCard, {}, Changes::Storage},
    {.name = "imei-write",
     .description = "writes the IMEI of --imei",
     .run = WriteImei,
     .changes = Changes::Storage,
     .missing = MissingImei},
    {.name = "freeze",
     .description = "compares the identity, writes the key and locks the phone for ever",
     .run = Freeze,
     .changes = Changes::Storage,
     .missing = MissingFreezeValues},
};

}  // namespace

extern const Group identityGroup;
constinit const Group identityGroup{"identity", "who the phone is, and what it stores", tests};

}  // namespace tandekor::line
