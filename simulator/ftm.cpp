// The phone maker's factory requests: a header of ten bytes, then data; the reply has the same header, then its fields.
#include <algorithm>
#include <span>

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
constexpr uint16_t noDevice = 3;  // no such device, channel or file

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

// What a command does with its data, which are at least as long as its row says, and what the phone answers: status and
// values in wire order; nothing for no answer.
using Data = std::span<const uint8_t>;

uint16_t WordOf(Data data, size_t at) { return static_cast<uint16_t>(data[at] | data[at + 1] << 8); }
uint32_t DwordOf(Data data, size_t at) { return WordOf(data, at) | uint32_t{WordOf(data, at + 2)} << 16; }
std::string TextOf(Data data) { return {data.begin(), std::ranges::find(data, uint8_t{0})}; }

Bytes Behind(Bytes fields, const Bytes& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

Bytes Accept(Data) { return Fields(good); }

Bytes FuelGaugeVersion(Data) { return Fields(good, ThePhone().fuelGaugeVersion); }

Bytes EnterLowPowerMode(Data data)
{
    if (data[0] != sleepUntilPowerCycle)
        return Fields(good);
    PowerDown();
    return {};
}

Bytes SendInfrared(Data data)
{
    TheState().phone.irdaByte = data[1];
    return Fields(good);
}

// Access type, selector, device, length of the register address, register address (2 bytes), length; then data.
Bytes AccessI2c(Data data)
{
    auto& devices = ThePhone().factory.i2c;
    const auto device = devices.find({data[2], WordOf(data, 4)});
    const size_t length = data[6];
    if (data[0] == 1)
    {
        if (data.size() < 7 + length)
            return Fields(tooShort);
        devices[{data[2], WordOf(data, 4)}]
            = Bytes(data.begin() + 7, data.begin() + 7 + static_cast<ptrdiff_t>(length));
        return Fields(good);
    }
    Bytes content = device == devices.end() ? Bytes() : device->second;
    content.resize(length);
    return Behind(Fields(device == devices.end() && length > 0 ? noDevice : good), content);
}

Bytes SumAdc(Data data)
{
    const auto& adc = ThePhone().radio.adc;
    const auto channel = adc.find(WordOf(data, 0));
    if (channel == adc.end())
        return Fields(noDevice, uint32_t{0});
    return Fields(good, uint32_t{channel->second} * WordOf(data, 2));
}

// Access type, length (4 bytes), file name (128 bytes); then data.
Bytes AccessCard(Data data)
{
    auto& card = ThePhone().factory.card;
    const size_t length = DwordOf(data, 1);
    const std::string name = TextOf(data.subspan(5, 128));
    if (data[0] == 1)
    {
        if (data.size() < 133 + length)
            return Fields(tooShort);
        card[name] = Bytes(data.begin() + 133, data.begin() + 133 + static_cast<ptrdiff_t>(length));
        return Fields(good);
    }
    const auto file = card.find(name);
    if (file == card.end() || file->second.size() < length)
        return Fields(noDevice);
    return Behind(Fields(good), Bytes(file->second.begin(), file->second.begin() + static_cast<ptrdiff_t>(length)));
}

Bytes AccessFactoryData(Data data)
{
    uint8_t& byte = ThePhone().factory.data[WordOf(data, 1)];
    if (data[0] != 1)
        return Fields(good, byte);
    if (data.size() < 4)
        return Fields(tooShort);
    byte = data[3];
    return Fields(good);
}

Bytes WriteLinearizer(Data data)
{
    auto& linearizer = ThePhone().factory.linearizer;
    linearizer.clear();
    for (size_t i = 0; i < 174; ++i)
        linearizer.push_back(WordOf(data, 1 + 2 * i));
    return Fields(good);
}

Bytes WriteKcFile(Data data)
{
    ThePhone().factory.kcFile = Bytes(data.begin() + 3, data.begin() + 12);
    return Behind(Fields(uint8_t{good}, uint16_t{0}), ThePhone().factory.kcFile);
}

// The reply block begins with the status; positions count from behind the header.
Bytes FmBlock(Data data)
{
    const Factory& factory = ThePhone().factory;
    Bytes block(101);
    const auto put = [&](size_t at, uint16_t value)
    {
        block[at] = static_cast<uint8_t>(value);
        block[at + 1] = static_cast<uint8_t>(value >> 8);
    };
    if (data[1] == 2)
    {
        block[3] = 1;
        block[4] = static_cast<uint8_t>(factory.fmStations.size());
        for (size_t i = 0; i < factory.fmStations.size() && i < 48; ++i)
            put(5 + 2 * i, factory.fmStations[i]);
    }
    else if (data[1] == 1)
    {
        put(3, factory.fmChannel);
        std::copy_n(factory.fmProgram.begin(), std::min<size_t>(factory.fmProgram.size(), 8), block.begin() + 6);
    }
    else
        put(4, factory.fmChannel);
    return block;
}

Bytes TuneFm(Data data)
{
    ThePhone().factory.fmChannel = WordOf(data, 0);
    return Fields(good);
}

Bytes ShowImage(Data data)
{
    ThePhone().factory.image = TextOf(data.first(128));
    return Fields(good);
}

Bytes CameraIdentification(Data)
{
    Bytes id(25);
    const std::string& text = ThePhone().camera.id;
    std::copy_n(text.begin(), std::min(text.size(), id.size()), id.begin());
    return id;
}

Bytes ReadFuelGauge(Data data)
{
    const auto& registers = ThePhone().factory.fuelGaugeRegisters;
    const auto found = registers.find(data[0]);
    return found == registers.end() ? Fields(uint8_t{1}, uint16_t{0}) : Fields(uint8_t{good}, found->second);
}

// Keeps one byte of the data.
template <auto member>
Bytes KeepByte(Data data)
{
    ThePhone().factory.*member = data[0];
    return Fields(good);
}
// The same, with a status of one byte behind the 16-bit word of the others' status.
Bytes KeepBacklight(Data data)
{
    ThePhone().factory.backlight = data[0];
    return Fields(uint8_t{0}, uint8_t{good});
}

struct Command
{
    uint16_t mode;
    uint16_t id;
    size_t dataLength;  // the least that the phone needs, whatever the header declares
    Bytes (*fields)(Data data);
};

constexpr Command commands[] = {
    {ftm, 10, 0, [](Data) { return Fields(good, ThePhone().hardwareVersion); }},
    {ftm, 11, 0, [](Data) { return Fields(good, ThePhone().nandFlashId); }},
    {ftm, 12, 1, Accept},  // infrared on or off
    {ftm, 13, 0, FuelGaugeVersion},
    {ftm, 14, 3, Accept},  // switch
    {ftm, 15, 7, AccessI2c},
    {ftm, 16, 4, SumAdc},
    {ftm, 17, 0, [](Data) { return Behind(Fields(good), ThePhone().factory.imsi); }},
    {ftm, 18, 133, AccessCard},
    {ftm, 19, 1, EnterLowPowerMode},
    {ftm, 21, 3, AccessFactoryData},
    {ftm, 22, 0, [](Data) { return Fields(good, ThePhone().factory.fmChip); }},
    {ftm, 23, 128, ShowImage},
    {ftm, 24, 1, KeepByte<&Factory::contrast>},
    {ftm, 25, 1, Accept},  // USB or UART
    {ftm, 26, 349, WriteLinearizer},
    {ftm, 28, 2, TuneFm},
    {ftm, 29, 0, [](Data) { return Fields(good, ThePhone().hardwareId); }},
    {ftm, 30, 1, KeepBacklight},
    {ftm, 31, 0, Accept},  // start of the carrier-to-noise measurement
    {ftm, 32, 0, [](Data) { return Fields(good, carrierToNoise); }},
    {ftm, 33, 2, Accept},  // infrared with high current
    {ftm, 34, 0, Accept},  // radio data
    {ftm, 35, 0, Accept},  // load of the RF items
    // Bluetooth: three parameters.
    {ftm, 36, 0, [](Data) { return Fields(good, uint8_t{1}, uint8_t{2}, uint8_t{3}); }},
    {ftm, 38, 2, Accept},  // flash
    {ftm, 150, 2,
     [](Data data)
     {
         ThePhone().factory.flashLevel = WordOf(data, 0);
         return Fields(good, uint8_t{good});
     }},
    {ftm, 151, 1,
     [](Data data)
     {
         ThePhone().factory.backlightOn = data[0] != 0;
         return Fields(good);
     }},
    {ftm, 200, 1, KeepByte<&Factory::display>},
    {ftm, 201, 128, ShowImage},
    {ftm, 202, 101, FmBlock},
    {ftm, 203, 0, [](Data) { return Fields(uint16_t{ThePhone().factory.simMode}); }},
    {ftm, 204, 0, [](Data) { return Behind(Fields(uint8_t{good}, uint16_t{0}), ThePhone().factory.kcFile); }},
    {ftm, 205, 12, WriteKcFile},
    {ftm, 206, 0, CameraIdentification},
    {ftm, 207, 4, ReadFuelGauge},
    {ftm, 208, 1, [](Data data) { return Fields(data[0]); }},
    // Clock and oscillator, with a status of one byte: what was set comes back.
    {ftm, 213, 3, [](Data data) { return Fields(uint8_t{good}, data[1], data[2], uint16_t{0}); }},
    {ftm, 214, 2, [](Data data) { return Fields(uint8_t{good}, data[1]); }},
    {ftm, 215, 4, [](Data) { return Fields(ThePhone().factory.headsetRegister); }},
    {ftm, 216, 4,
     [](Data data)
     {
         ThePhone().factory.headsetRegister = DwordOf(data, 0);
         return Fields(ThePhone().factory.headsetRegister);
     }},
    {ftm, 217, 2, Accept},  // tracer
    {ftm, 245, 4,
     [](Data data)
     {
         ThePhone().factory.keypadLight = DwordOf(data, 0);
         return Fields(good);
     }},
    {ftm, 246, 0, [](Data) { return Fields(ThePhone().factory.slider); }},
    {ftm, 247, 1, KeepByte<&Factory::focus>},
    // Audio device 15: a status of one byte.
    {ltm, 1136, 4, [](Data) { return Fields(ThePhone().audio.biasStatus, uint8_t{0}, uint16_t{0}); }},
    {ltm, 1338, 0, CameraIdentification},
    {ltm, 1340, 3, SendInfrared},
    {ltm, 1342, 0, FuelGaugeVersion},
    // Infrared: the byte as it came back, and how many were lost.
    {ltm, 1354, 3, [](Data) { return Fields(good, uint32_t{TheState().phone.irdaByte}, uint32_t{0}); }},
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
    return command->fields(Data(request).subspan(headerLength));
}

// The pin requests: operation code and pin behind the command word; the status is the reply's last byte.
Bytes AnswerPin(const Bytes& request)
{
    constexpr size_t pinHeaderLength = 8;
    constexpr uint8_t pinGood = 0;
    if (request.size() <= pinHeaderLength)
        return {};
    const Data data = Data(request).subspan(pinHeaderLength);
    Pin& pin = ThePhone().factory.pins[data[0]];
    const uint32_t operation = DwordOf(request, 4);
    const Bytes header(request.begin(), request.begin() + static_cast<ptrdiff_t>(pinHeaderLength));
    const auto& configuration = pin.configuration;
    switch (operation)
    {
        case 0:
            return Behind(header, Fields(pin.out, pinGood));
        case 2:
            return Behind(header, Fields(pin.in, pinGood));
        case 3:
            return Behind(header, Fields(pin.outputEnabled, pinGood));
        case 5:
            return Behind(header,
                          Fields(configuration[0], configuration[1], configuration[2], configuration[3], pinGood));
        case 1:
        case 4:
            if (data.size() < 2)
                break;
            (operation == 1 ? pin.out : pin.outputEnabled) = data[1];
            return Behind(header, Fields(pinGood));
        case 6:
            if (data.size() < 5)
                break;
            std::copy_n(data.begin() + 1, 4, pin.configuration.begin());
            return Behind(header, Fields(pinGood));
        default:
            break;
    }
    return Behind(header, Fields(uint8_t{1}));
}

// A raw write of words to the phone's memory: address, count, words. The reply repeats the request.
Bytes PokeMemory(const Bytes& request)
{
    constexpr size_t pokeHeaderLength = 6;
    if (request.size() < pokeHeaderLength + 4)
        return {};
    const uint32_t address = DwordOf(request, 1);
    for (uint32_t i = 0; i < 4; ++i)
        ThePhone().memory[address + i] = request[pokeHeaderLength + i];
    return request;
}

}  // namespace

Bytes AnswerDiagnostic(const Bytes& request)
{
    constexpr uint8_t pokeDword = 5;
    constexpr uint8_t subsystemCommand = 75;
    constexpr uint8_t ftmSubsystem = 11;
    constexpr uint8_t pinSubsystem = 0;
    if (!request.empty() && request[0] == pokeDword)
        return PokeMemory(request);
    if (request.size() >= 2 && request[0] == subsystemCommand && request[1] == pinSubsystem)
        return AnswerPin(request);
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
    return Behind(reply, fields);
}

}  // namespace simulator
