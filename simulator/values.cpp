#include "simulator/values.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <type_traits>
#include <variant>

#include "simulator/at.h"
#include "simulator/phone.h"

namespace simulator
{

namespace
{

// Where in the phone a value stands, by its type.
template <typename Type>
using Member = Type& (*)(Phone& phone);
using Place = std::variant<Member<bool>, Member<uint8_t>, Member<uint16_t>, Member<uint32_t>, Member<int16_t>,
                           Member<std::string>>;

template <auto member>
auto& In(Phone& phone)
{
    return phone.*member;
}
template <auto part, auto member>
auto& InPart(Phone& phone)
{
    return phone.*part.*member;
}

struct PlainValue
{
    const char* name;
    Place place;
};

const PlainValue plainValues[] = {
    {"build-id", &In<&Phone::buildId>},
    {"build-model", &In<&Phone::buildModel>},
    {"compile-date", &In<&Phone::compileDate>},
    {"compile-time", &In<&Phone::compileTime>},
    {"release-date", &In<&Phone::releaseDate>},
    {"release-time", &In<&Phone::releaseTime>},
    {"version-dir", &In<&Phone::versionDir>},
    {"msm-hardware-version", &In<&Phone::msmHardwareVersion>},
    {"hardware-version", &In<&Phone::hardwareVersion>},
    {"hardware-id", &In<&Phone::hardwareId>},
    {"nand-flash-id", &In<&Phone::nandFlashId>},
    {"fuel-gauge-version", &In<&Phone::fuelGaugeVersion>},
    {"spc", &In<&Phone::spc>},
    {"start-time", &In<&Phone::startTimeMs>},
    {"run-on-time", &In<&Phone::runOnTimeMs>},
    {"latency", &In<&Phone::latencyMs>},
    {"goes-offline", &In<&Phone::goesOffline>},
    {"switches-mode", &In<&Phone::switchesModeDirectly>},
    {"at-echo", &In<&Phone::atEcho>},
    {"obex-mode", &In<&Phone::obexMode>},
    {"storage-size", &In<&Phone::storageSize>},
    {"sim-pin", &InPart<&Phone::card, &SimCard::pin>},
    {"sim-puk", &InPart<&Phone::card, &SimCard::puk>},
    {"sim-waits-for-pin", &InPart<&Phone::card, &SimCard::waitsForPin>},
    {"sim-mode", &InPart<&Phone::factory, &Factory::simMode>},
    {"rssi", &InPart<&Phone::radio, &Radio::rssi>},
    {"rx-level", &InPart<&Phone::testCalls, &TestCalls::rxLevel>},
    {"rx-quality", &InPart<&Phone::testCalls, &TestCalls::rxQuality>},
    {"test-call-state", &InPart<&Phone::testCalls, &TestCalls::state>},
    {"camera-status", &InPart<&Phone::camera, &Camera::status>},
    {"camera-id", &InPart<&Phone::camera, &Camera::id>},
    {"bluetooth-version", &InPart<&Phone::bluetooth, &Bluetooth::moduleVersion>},
    {"headset-register", &InPart<&Phone::factory, &Factory::headsetRegister>},
    {"hanging-key", &InPart<&Phone::keypad, &Keypad::hangingKey>},
    {"slider", &InPart<&Phone::factory, &Factory::slider>},
    {"fm-chip", &InPart<&Phone::factory, &Factory::fmChip>},
    {"fm-program", &InPart<&Phone::factory, &Factory::fmProgram>},
    {"security-status", &InPart<&Phone::security, &Security::status>},
    {"upload-result", &InPart<&Phone::upload, &UploadScript::result>},
    {"upload-step-time", &InPart<&Phone::upload, &UploadScript::stepTimeMs>},
};

// Values that stand in several places, or that are words.
struct ComposedValue
{
    const char* name;
    std::string (*get)();
    std::string (*set)(const std::string& value);
};

std::string OutOfRange(const std::string& name, const std::string& value, int64_t least, int64_t most)
{
    return name + " is " + std::to_string(least) + " to " + std::to_string(most) + ", not \"" + value + '"';
}

constexpr const char* modes[] = {"offline", "online", "ftm"};

std::string SetMode(const std::string& value)
{
    const auto* mode = std::ranges::find(modes, value);
    if (mode == std::end(modes))
        return "mode is offline, online or ftm, not \"" + value + '"';
    ThePhone().mode = static_cast<Mode>(mode - modes);
    return "";
}

std::string SetPower(const std::string& value)
{
    if (!NumberIn(value, 0, 1))
        return OutOfRange("power", value, 0, 1);
    if (value == "0")
        PowerDown();
    else if (!ThePhone().on)
        StartPhone();
    return "";
}

// A field of an AT setting that is a number, from 0.
std::string FieldOf(const char* command, size_t field)
{
    return FieldAt(FieldsOf(ThePhone().atSettings[command]), field);
}

std::string SetField(const char* name, const char* command, size_t field, const std::string& value, int64_t most)
{
    if (!NumberIn(value, 0, most))
        return OutOfRange(name, value, 0, most);
    std::string& setting = ThePhone().atSettings[command];
    std::vector<std::string> fields = FieldsOf(setting);
    fields.resize(std::max(fields.size(), field + 1));
    fields[field] = value;
    setting = Joined(fields);
    return "";
}

// In percent, to the AT side and to the fuel gauge alike.
std::string SetBattery(const std::string& value)
{
    constexpr uint8_t chargeRegister = 1;
    std::string error = SetField("battery", "+CBC", 1, value, 100);
    if (error.empty())
        ThePhone().factory.fuelGaugeRegisters[chargeRegister] = static_cast<uint16_t>(*NumberIn(value, 0, 100));
    return error;
}

std::string SetBatteryVoltage(const std::string& value)
{
    const auto millivolts = NumberIn(value, 0, UINT16_MAX);
    if (!millivolts)
        return OutOfRange("battery-voltage", value, 0, UINT16_MAX);
    ThePhone().factory.fuelGaugeRegisters[0] = static_cast<uint16_t>(*millivolts);
    return "";
}

std::string SetRegistration(const std::string& value)
{
    const std::string error = SetField("registration", "+CREG", 1, value, 5);
    return error.empty() ? SetField("registration", "+CGREG", 1, value, 5) : error;
}

const ComposedValue composedValues[] = {
    {"mode", [] { return std::string(modes[static_cast<size_t>(ThePhone().mode)]); }, SetMode},
    {"power", [] { return std::string(ThePhone().on ? "1" : "0"); }, SetPower},
    {"battery", [] { return FieldOf("+CBC", 1); }, SetBattery},
    {"battery-voltage", [] { return std::to_string(ThePhone().factory.fuelGaugeRegisters[0]); }, SetBatteryVoltage},
    {"charger", [] { return FieldOf("+CBC", 0); },
     [](const std::string& value) { return SetField("charger", "+CBC", 0, value, 3); }},
    {"signal", [] { return FieldOf("+CSQ", 0); },
     [](const std::string& value) { return SetField("signal", "+CSQ", 0, value, 99); }},
    {"registration", [] { return FieldOf("+CREG", 1); }, SetRegistration},
};

bool IsAtName(const std::string& name) { return name.starts_with('+') || name.starts_with('^'); }

template <typename Type>
std::string SetMember(const std::string& name, Type& member, const std::string& value)
{
    if constexpr (std::is_same_v<Type, std::string>)
        member = value;
    else
    {
        constexpr int64_t least = std::numeric_limits<Type>::min();
        constexpr int64_t most = std::numeric_limits<Type>::max();
        const auto number = NumberIn(value, least, most);
        if (!number)
            return OutOfRange(name, value, least, most);
        member = static_cast<Type>(*number);
    }
    return "";
}

template <typename Type>
std::string Text(const Type& member)
{
    if constexpr (std::is_same_v<Type, std::string>)
        return member;
    else
        return std::to_string(member);
}

}  // namespace

std::optional<int64_t> NumberIn(const std::string& text, int64_t least, int64_t most)
{
    const bool hexadecimal = text.starts_with("0x");
    const char* const end = text.data() + text.size();
    int64_t number = 0;
    const auto [stop, error] = std::from_chars(text.data() + (hexadecimal ? 2 : 0), end, number, hexadecimal ? 16 : 10);
    const bool good = error == std::errc() && stop == end && number >= least && number <= most;
    return good ? std::optional(number) : std::nullopt;
}

std::string SetValue(const std::string& name, const std::string& value)
{
    auto& settings = ThePhone().atSettings;
    if (const auto setting = settings.find(name); setting != settings.end())
    {
        setting->second = value;
        return "";
    }
    if (const auto* composed = std::ranges::find(composedValues, name, &ComposedValue::name);
        composed != std::end(composedValues))
        return composed->set(value);
    if (const auto* plain = std::ranges::find(plainValues, name, &PlainValue::name); plain != std::end(plainValues))
        return std::visit([&](auto reach) { return SetMember(name, reach(ThePhone()), value); }, plain->place);
    return (IsAtName(name) ? "the phone has no AT setting " : "there is no value ") + name;
}

std::optional<std::string> ValueOf(const std::string& name)
{
    const auto& settings = ThePhone().atSettings;
    if (const auto setting = settings.find(name); setting != settings.end())
        return setting->second;
    if (const auto* composed = std::ranges::find(composedValues, name, &ComposedValue::name);
        composed != std::end(composedValues))
        return composed->get();
    if (const auto* plain = std::ranges::find(plainValues, name, &PlainValue::name); plain != std::end(plainValues))
        return std::visit([](auto reach) { return Text(reach(ThePhone())); }, plain->place);
    return std::nullopt;
}

}  // namespace simulator
