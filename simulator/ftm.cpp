// The phone maker's factory requests: a header of ten bytes, then data; the reply has the same header, then its fields.
#include <algorithm>
#include <span>

#include "phone/factory_requests.h"
#include "simulator/operation.h"
#include "simulator/state.h"

namespace simulator
{

namespace
{

namespace factory = tandekor::factory;

constexpr size_t headerLength = 10;

constexpr uint16_t good = 0;
constexpr uint16_t tooShort = 1;
constexpr uint16_t unknownCommand = 2;
constexpr uint16_t noDevice = 3;  // no such device, channel or file

constexpr uint8_t sleepUntilPowerCycle = 3;
constexpr uint16_t carrierToNoise = 45;

// Fields one after the other, each low byte first.
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

Bytes Concat(Bytes fields, const Bytes& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

// For a command of which nothing could be read back. It is reported.
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
    return Concat(Fields(device == devices.end() && length > 0 ? noDevice : good), content);
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
    return Concat(Fields(good), Bytes(file->second.begin(), file->second.begin() + static_cast<ptrdiff_t>(length)));
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
    return Concat(Fields(uint8_t{good}, uint16_t{0}), ThePhone().factory.kcFile);
}

// The reply block begins with the status; positions count from the end of the header.
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
    const std::string name = TextOf(data.first(128));
    const auto file = ThePhone().files.find(name);
    if (file == ThePhone().files.end() || file->second.folder)
        return Fields(noDevice);
    ThePhone().factory.image = name;
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
// The same, with a status of one byte after the 16-bit word of the others' status.
Bytes KeepBacklight(Data data)
{
    ThePhone().factory.backlight = data[0];
    return Fields(uint8_t{0}, uint8_t{good});
}

struct Command
{
    factory::Request request;
    size_t dataLength;  // the least that the phone needs, whatever the header declares
    Bytes (*fields)(Data data);
};

constexpr Command commands[] = {
    {factory::GetHardwareVersion, 0, [](Data) { return Fields(good, ThePhone().hardwareVersion); }},
    {factory::GetNandFlashId, 0, [](Data) { return Fields(good, ThePhone().nandFlashId); }},
    {factory::IrdaOnOff, 1, Accept},
    {factory::GetFuelGaugeVersion, 0, FuelGaugeVersion},
    {factory::ConfigureSwitch, 3, Accept},
    {factory::I2cDataAccess, 7, AccessI2c},
    {factory::MgetAdcVal, 4, SumAdc},
    {factory::SimReadImsi, 0, [](Data) { return Concat(Fields(good), ThePhone().factory.imsi); }},
    {factory::MmcFileAccess, 133, AccessCard},
    {factory::SetLowPowerMode, 1, EnterLowPowerMode},
    {factory::ReadWriteFactoryData, 3, AccessFactoryData},
    {factory::GetFmRadioId, 0, [](Data) { return Fields(good, ThePhone().factory.fmChip); }},
    {factory::DisplayImage, 128, ShowImage},
    {factory::SetLcdContrast, 1, KeepByte<&Factory::contrast>},
    {factory::TestPmicUsb, 1, Accept},
    {factory::WriteGsmTxLinearizer, 349, WriteLinearizer},
    {factory::TuneFmRadio, 2, TuneFm},
    {factory::GetHwId, 0, [](Data) { return Fields(good, ThePhone().hardwareId); }},
    {factory::SetLcdBacklightLevel, 1, KeepBacklight},
    {factory::StartAgpsCtonMeas, 0, Accept},
    {factory::GetAgpsCtonMeas, 0, [](Data) { return Fields(good, carrierToNoise); }},
    {factory::IrdaHighCurrentTest, 2, Accept},
    {factory::RadioRdsTest, 0, Accept},
    {factory::LoadRfNv, 0, Accept},
    // Bluetooth: three parameters.
    {factory::GetBtParam, 0, [](Data) { return Fields(good, uint8_t{1}, uint8_t{2}, uint8_t{3}); }},
    {factory::TestCameraFlash, 2, Accept},
    {factory::SetFlashLightLevel, 2,
     [](Data data)
     {
         ThePhone().factory.flashLevel = WordOf(data, 0);
         return Fields(good, uint8_t{good});
     }},
    {factory::SwitchLcdBacklight, 1,
     [](Data data)
     {
         ThePhone().factory.backlightOn = data[0] != 0;
         return Fields(good);
     }},
    {factory::SelectDisplay, 1, KeepByte<&Factory::display>},
    {factory::DisplayImage24Bit, 128, ShowImage},
    {factory::FmRadioBlock, 101, FmBlock},
    {factory::SimGetMode, 0, [](Data) { return Fields(uint16_t{ThePhone().factory.simMode}); }},
    {factory::SimReadKcFile, 0,
     [](Data) { return Concat(Fields(uint8_t{good}, uint16_t{0}), ThePhone().factory.kcFile); }},
    {factory::SimWriteKcFile, 12, WriteKcFile},
    {factory::GetCameraIdString, 0, CameraIdentification},
    {factory::GgReadReg, 4, ReadFuelGauge},
    {factory::GgMode, 1, [](Data data) { return Fields(data[0]); }},
    // Clock and oscillator, with a status of one byte: what was set comes back.
    {factory::RtcStart, 3, [](Data data) { return Fields(uint8_t{good}, data[1], data[2], uint16_t{0}); }},
    {factory::RtcOscCtrl, 2, [](Data data) { return Fields(uint8_t{good}, data[1]); }},
    {factory::HeadsetAmpRead, 4, [](Data) { return Fields(ThePhone().factory.headsetRegister); }},
    {factory::HeadsetAmpWrite, 4,
     [](Data data)
     {
         ThePhone().factory.headsetRegister = DwordOf(data, 0);
         return Fields(ThePhone().factory.headsetRegister);
     }},
    {factory::TracerControl, 2, Accept},
    {factory::SetKeyPadBackLight, 4,
     [](Data data)
     {
         ThePhone().factory.keypadLight = DwordOf(data, 0);
         return Fields(good);
     }},
    {factory::GetSliderState, 0, [](Data) { return Fields(ThePhone().factory.slider); }},
    {factory::SetCameraFocus, 1, KeepByte<&Factory::focus>},
    // Audio device 15: a status of one byte.
    {factory::MicrophoneBias, 4, [](Data) { return Fields(ThePhone().audio.biasStatus, uint8_t{0}, uint16_t{0}); }},
    {factory::LtmGetCameraIdString, 0, CameraIdentification},
    {factory::IrdaTransmit, 3, SendInfrared},
    {factory::LtmGetFuelGaugeVersion, 0, FuelGaugeVersion},
    // Infrared: the byte as it came back, and how many were lost.
    {factory::IrdaReceive, 3, [](Data) { return Fields(good, uint32_t{TheState().phone.irdaByte}, uint32_t{0}); }},
};

Bytes FieldsOf(const Bytes& request)
{
    if (request.size() < headerLength)
        return Fields(tooShort);
    const auto word = [&](size_t at) { return static_cast<uint16_t>(request[at] | (request[at + 1] << 8)); };
    const auto* command
        = std::ranges::find_if(commands, [&](const Command& one)
                               { return one.request.modeId == word(2) && one.request.requestId == word(4); });
    if (command == std::end(commands))
    {
        ReportNotSimulated("factory request " + Shown(word(4)) + " of mode " + Shown(word(2)));
        return Fields(unknownCommand);
    }
    if (request.size() < headerLength + command->dataLength)
        return Fields(tooShort);
    if (command->fields == Accept)
        ReportNoEffect("factory request " + Shown(command->request.requestId));
    return command->fields(Data(request).subspan(headerLength));
}

// The pin requests: operation code and pin after the command word; the status is the reply's last byte.
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
            return Concat(header, Fields(pin.out, pinGood));
        case 2:
            return Concat(header, Fields(pin.in, pinGood));
        case 3:
            return Concat(header, Fields(pin.outputEnabled, pinGood));
        case 5:
            return Concat(header,
                          Fields(configuration[0], configuration[1], configuration[2], configuration[3], pinGood));
        case 1:
        case 4:
            if (data.size() < 2)
                break;
            (operation == 1 ? pin.out : pin.outputEnabled) = data[1];
            return Concat(header, Fields(pinGood));
        case 6:
            if (data.size() < 5)
                break;
            std::copy_n(data.begin() + 1, 4, pin.configuration.begin());
            return Concat(header, Fields(pinGood));
        default:
            break;
    }
    return Concat(header, Fields(uint8_t{1}));
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

std::optional<Bytes> AnswerDiagnostic(const Bytes& request)
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
        return Bytes();
    }
    if (ThePhone().mode != Mode::Ftm)
        return Bytes();
    const Bytes fields = FieldsOf(request);
    if (fields.empty())
        return {};
    reply.resize(headerLength);
    return Concat(reply, fields);
}

}  // namespace simulator
