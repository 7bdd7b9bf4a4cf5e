// The phone maker's factory requests: a header of ten bytes, then data; the reply has the same header, then its fields.
#include <algorithm>

#include "simulator/operation.h"
#include "simulator/state.h"

namespace simulator
{

namespace
{

constexpr size_t headerLength = 10;
constexpr uint16_t ftm = 0x8000;
constexpr uint16_t ltm = 0x8001;

constexpr uint16_t good = 0;
constexpr uint16_t tooShort = 1;
constexpr uint16_t unknownCommand = 2;

constexpr uint8_t sleepUntilPowerCycle = 3;
constexpr uint16_t carrierToNoise = 45;

// Fields one behind the other, each low byte first.
template <typename... Values>
Bytes Fields(Values... values)
{
    Bytes bytes;
    const auto append = [&](uint32_t value, size_t width)
    {
        for (size_t i = 0; i < width; ++i)
            bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
    };
    (append(values, sizeof values), ...);
    return bytes;
}

Bytes Accept(const uint8_t*) { return Fields(good); }

Bytes FuelGaugeVersion(const uint8_t*) { return Fields(good, ThePhone().fuelGaugeVersion); }

Bytes EnterLowPowerMode(const uint8_t* data)
{
    if (data[0] != sleepUntilPowerCycle)
        return Fields(good);
    PowerDown();
    return {};
}

Bytes SendInfrared(const uint8_t* data)
{
    TheState().phone.irdaByte = data[1];
    return Fields(good);
}

struct Command
{
    uint16_t mode;
    uint16_t id;
    size_t dataLength;                     // the least that the phone needs, whatever the header declares
    Bytes (*fields)(const uint8_t* data);  // status and values in wire order; nothing: no answer
};

constexpr Command commands[] = {
    {ftm, 10, 0, [](const uint8_t*) { return Fields(good, ThePhone().hardwareVersion); }},
    {ftm, 11, 0, [](const uint8_t*) { return Fields(good, ThePhone().nandFlashId); }},
    {ftm, 12, 1, Accept},  // infrared on or off
    {ftm, 13, 0, FuelGaugeVersion},
    {ftm, 14, 3, Accept},  // switch
    {ftm, 19, 1, EnterLowPowerMode},
    {ftm, 25, 1, Accept},  // USB or UART
    {ftm, 29, 0, [](const uint8_t*) { return Fields(good, ThePhone().hardwareId); }},
    {ftm, 31, 0, Accept},  // start of the carrier-to-noise measurement
    {ftm, 32, 0, [](const uint8_t*) { return Fields(good, carrierToNoise); }},
    {ftm, 33, 2, Accept},  // infrared with high current
    // Bluetooth: three parameters.
    {ftm, 36, 0, [](const uint8_t*) { return Fields(good, uint8_t{1}, uint8_t{2}, uint8_t{3}); }},
    // Clock and oscillator, with a status of one byte: what was set comes back.
    {ftm, 213, 3, [](const uint8_t* data) { return Fields(uint8_t{good}, data[1], data[2], uint16_t{0}); }},
    {ftm, 214, 2, [](const uint8_t* data) { return Fields(uint8_t{good}, data[1]); }},
    {ftm, 217, 2, Accept},  // tracer
    {ltm, 1340, 3, SendInfrared},
    {ltm, 1342, 0, FuelGaugeVersion},
    // Infrared: the byte as it came back, and how many were lost.
    {ltm, 1354, 3, [](const uint8_t*) { return Fields(good, uint32_t{TheState().phone.irdaByte}, uint32_t{0}); }},
};

Bytes FieldsOf(const Bytes& request)
{
    if (request.size() < headerLength)
        return Fields(tooShort);
    const auto word = [&](size_t at) { return static_cast<uint16_t>(request[at] | (request[at + 1] << 8)); };
    const auto* command
        = std::ranges::find_if(commands, [&](const Command& one) { return one.mode == word(2) && one.id == word(4); });
    if (command == std::end(commands))
    {
        ReportNotSimulated("factory request " + Shown(word(4)) + " of mode " + Shown(word(2)));
        return Fields(unknownCommand);
    }
    if (request.size() < headerLength + command->dataLength)
        return Fields(tooShort);
    return command->fields(request.data() + headerLength);
}

}  // namespace

Bytes AnswerDiagnostic(const Bytes& request)
{
    constexpr uint8_t subsystemCommand = 75;
    constexpr uint8_t ftmSubsystem = 11;
    Bytes reply(request.begin(), request.begin() + static_cast<ptrdiff_t>(std::min(request.size(), headerLength)));
    if (reply.size() < 2 || reply[0] != subsystemCommand || reply[1] != ftmSubsystem)
    {
        ReportNotSimulated("the diagnostic request " + Shown(reply));
        return {};
    }
    const Bytes fields = FieldsOf(request);
    if (fields.empty())
        return {};
    reply.resize(headerLength);
    reply.insert(reply.end(), fields.begin(), fields.end());
    return reply;
}

}  // namespace simulator
