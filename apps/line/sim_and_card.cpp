// What the SIM, the memory card and the factory keep. It is written only as it was read, but for one file on the card.
#include <algorithm>
#include <iterator>

#include "factory_request.h"
#include "tandekor/ftm.h"

namespace tandekor::line
{

namespace
{

// The SIM stores a length, then two digits a byte, the low half first; the first half is no digit.
Outcome Imsi(Context& context)
{
    uint8_t stored[9] = {};
    if (TANDEKOR_FTM_SIM_READ_IMSI(context.handle, stored) == 0)
        return NotAnswered("TANDEKOR_FTM_SIM_READ_IMSI");
    std::string digits;
    for (size_t half = 3; half < 2 + 2 * std::min<size_t>(stored[0], 8); ++half)
    {
        const unsigned digit = stored[half / 2] >> (half % 2 * 4) & 0x0F;
        if (digit > 9)
            break;
        digits += static_cast<char>('0' + digit);
    }
    if (digits.empty())
        return Failed("TANDEKOR_FTM_SIM_READ_IMSI", "no digits in the IMSI (length %u)", stored[0]);
    return Done("%s", "").Add("digits", digits);
}

Outcome SimMode(Context& context)
{
    uint8_t mode = 0;
    if (TANDEKOR_FTM_SIM_GET_MODE(context.handle, &mode) == 0)
        return NotAnswered("TANDEKOR_FTM_SIM_GET_MODE");
    return Done("%s", "").Add("mode", mode);
}

Outcome KcFile(Context& context)
{
    uint8_t file[9] = {}, again[9] = {}, status = 0;
    if (TANDEKOR_FTM_SIM_READ_KC_FILE(context.handle, file, Unanswered(status)) == 0)
        return NotAnswered("TANDEKOR_FTM_SIM_READ_KC_FILE");
    std::copy(std::begin(file), std::end(file), again);
    Requests requests;
    if (requests.Fails("TANDEKOR_FTM_SIM_WRITE_KC_FILE",
                       TANDEKOR_FTM_SIM_WRITE_KC_FILE(context.handle, again, Unanswered(status)))
        || requests.Fails("TANDEKOR_FTM_SIM_READ_KC_FILE",
                          TANDEKOR_FTM_SIM_READ_KC_FILE(context.handle, again, Unanswered(status))))
        return NotAnswered(requests.last);
    if (!std::equal(std::begin(file), std::end(file), again))
        return Failed("", "the Kc file came back changed");
    return Passed("%zu bytes, key number %u", sizeof file, file[8]);
}

Outcome CardFile(Context& context)
{
    constexpr char name[] = "\\line-test.bin";
    uint8_t written[64], read[sizeof written] = {};
    for (size_t i = 0; i < sizeof written; ++i)
        written[i] = static_cast<uint8_t>(i * 37 + 1);
    Requests requests;
    if (requests.Fails("TANDEKOR_FTM_MMC_FILE_ACCESS (write)",
                       TANDEKOR_FTM_MMC_FILE_ACCESS(context.handle, 1, sizeof written, name, written))
        || requests.Fails("TANDEKOR_FTM_MMC_FILE_ACCESS (read)",
                          TANDEKOR_FTM_MMC_FILE_ACCESS(context.handle, 0, sizeof read, name, read)))
        return NotAnswered(requests.last);
    if (!std::equal(std::begin(written), std::end(written), read))
        return Failed("", "the file came back changed");
    return Passed("%zu bytes written and read unchanged", sizeof written);
}

// A reply that is too short leaves the byte as it was, which must not be written: only what is read twice is.
Outcome FactoryByte(Context& context)
{
    constexpr uint16_t address = 127;
    constexpr char function[] = "TANDEKOR_FTM_READ_WRITE_FACTORY_DATA";
    uint8_t byte = 0, again = 0xFF;
    const auto access = [&](uint8_t operation, uint8_t* data)
    { return TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(context.handle, operation, address, data); };
    if (access(0, &byte) == 0 || access(0, &again) == 0)
        return NotAnswered(function);
    if (again == byte && (access(1, &byte) == 0 || access(0, &again) == 0))
        return NotAnswered(function);
    if (again != byte)
        return Failed(function, "byte %u was 0x%02X and then 0x%02X", address, byte, again);
    return Passed("byte %u: 0x%02X", address, byte);
}

constexpr Test simTests[] = {
    {"imsi", "number of the subscriber, as the SIM stores it", Imsi, {{"digits", textUnit}}},
    {"sim-mode", "mode of the SIM", SimMode, {{"mode"}}},
    {"kc-file", "Kc file of the SIM, written as it was read", KcFile},
};

constexpr Test cardTests[] = {
    {"card-file",
     "writes line-test.bin on the memory card, where it stays, and reads it",
     CardFile,
     {},
     Changes::Storage},
    {"factory-byte", "byte 127 of the factory data, written as it was read", FactoryByte},
};

}  // namespace

extern const Group simGroup, cardGroup;
constinit const Group simGroup{"sim", "data on the SIM, by factory requests", simTests};
constinit const Group cardGroup{"card", "memory card and factory data, by factory requests", cardTests};

}  // namespace tandekor::line
