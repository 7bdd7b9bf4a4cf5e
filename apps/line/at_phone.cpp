// What the phone says of itself by AT commands: identity, supply, clock, messages.
#include <array>
#include <chrono>
#include <cstdlib>
#include <memory>

#include "at_reply.h"
#include "tandekor/at.h"

namespace tandekor::line
{

namespace
{

// A text that the phone reports, without the line ends after it.
using GetText = uint8_t (*)(ResourceContext, char*, uint16_t*);
struct Text
{
    const char* label;
    GetText get;
    const char* function;
};

Outcome ReadTexts(const Context& context, std::span<const Text> texts)
{
    Outcome outcome = Done("%s", "");
    for (const Text& text : texts)
    {
        constexpr size_t anyReply = 4096;
        std::array<char, anyReply + 1> buffer{};
        uint16_t status = atStatusOk;
        const uint8_t result = text.get(context.handle, buffer.data(), &status);
        if (!AtAnswered(result, status))
            return AtNotAnswered(result, status, text.function);
        std::string value = buffer.data();
        value.erase(std::min(value.find_first_of("\r\n"), value.size()));
        if (value.empty())
            return Failed(text.function, "the phone reports no %s", text.label);
        outcome.Add(text.label, value);
    }
    return outcome;
}

Outcome Identity(Context& context)
{
    static constexpr Text texts[] = {
        {"manufacturer", TANDEKOR_AT_Get_CGMI, "TANDEKOR_AT_Get_CGMI"},
        {"model", TANDEKOR_AT_Get_CGMM, "TANDEKOR_AT_Get_CGMM"},
        {"revision", TANDEKOR_AT_Get_CGMR, "TANDEKOR_AT_Get_CGMR"},
    };
    return ReadTexts(context, texts);
}

Outcome SerialNumbers(Context& context)
{
    static constexpr Text texts[] = {
        {"imei", TANDEKOR_AT_Get_CGSN, "TANDEKOR_AT_Get_CGSN"},
        {"subscriber", TANDEKOR_AT_Get_CIMI, "TANDEKOR_AT_Get_CIMI"},
        {"sim-card", TANDEKOR_AT_Get_SCID, "TANDEKOR_AT_Get_SCID"},
    };
    return ReadTexts(context, texts);
}

template <size_t Count>
const char* Meaning(const char* const (&meanings)[Count], uint32_t number)
{
    return number < Count ? meanings[number] : "not known";
}

Outcome Battery(Context& context)
{
    static constexpr const char* supplies[] = {"battery", "external", "no battery", "power fault"};
    uint8_t supply = UINT8_MAX;
    uint8_t charge = UINT8_MAX;
    uint16_t status = atStatusOk;
    const uint8_t result = TANDEKOR_AT_Get_CBC(context.handle, &supply, &charge, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_Get_CBC");
    return Done("%s", "").Add("charge", charge).Add("supply", Meaning(supplies, supply));
}

// The clock is set to the computer's universal time.
Outcome ClockSetAndReadBack(Context& context)
{
    using namespace std::chrono;
    constexpr seconds mostDelay{10};
    constexpr int century = 2000;
    const sys_seconds now = floor<seconds>(system_clock::now());
    const year_month_day date(floor<days>(now));
    const hh_mm_ss<seconds> time(now - floor<days>(now));
    uint16_t status = atStatusOk;
    uint8_t result = TANDEKOR_AT_Set_CCLK(
        context.handle, static_cast<uint8_t>(static_cast<int>(date.year()) - century),
        static_cast<uint8_t>(static_cast<unsigned>(date.month())),
        static_cast<uint8_t>(static_cast<unsigned>(date.day())), static_cast<uint8_t>(time.hours().count()),
        static_cast<uint8_t>(time.minutes().count()), static_cast<uint8_t>(time.seconds().count()), 0, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_Set_CCLK");

    uint8_t read[6] = {};
    int8_t zone = 0;
    result = TANDEKOR_AT_Get_CCLK(context.handle, &read[0], &read[1], &read[2], &read[3], &read[4], &read[5], &zone,
                                  &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_Get_CCLK");
    const year_month_day readDate = year(century + read[0]) / month(read[1]) / day(read[2]);
    const seconds delay = sys_days(readDate) + hours(read[3]) + minutes(read[4]) + seconds(read[5]) - now;
    char text[64];
    std::snprintf(text, sizeof text, "20%02u-%02u-%02u %02u:%02u:%02u, zone %+d quarters of an hour", read[0], read[1],
                  read[2], read[3], read[4], read[5], zone);
    if (delay < seconds(0) || delay > mostDelay || zone != 0)
        return Failed("TANDEKOR_AT_Get_CCLK", "the clock shows another time than it was set to: %s, %lld s off", text,
                      static_cast<long long>(delay.count()));
    return Passed("%s, as set", text);
}

Outcome Messages(Context& context)
{
    static constexpr const char* states[] = {"received, unread", "received, read", "stored, unsent", "stored, sent"};
    constexpr uint8_t allStates = 4;
    constexpr size_t most = 512;
    std::array<uint32_t, most> places{};
    std::array<uint32_t, most> stats{};
    std::array<uint32_t, most> alphas{};
    std::array<uint32_t, most> lengths{};
    const auto lines = std::make_unique<char[][1024]>(most);
    uint32_t count = 0;
    uint16_t status = atStatusOk;
    const uint8_t result = TANDEKOR_AT_CMGL(context.handle, allStates, places.data(), stats.data(), alphas.data(),
                                            lengths.data(), lines.get(), &count, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, "TANDEKOR_AT_CMGL");
    std::string text;
    for (uint32_t i = 0; i < count; ++i)
        text += (i == 0 ? "place " : "\nplace ") + std::to_string(places[i]) + ": " + Meaning(states, stats[i]) + ", "
                + std::to_string(lengths[i]) + " bytes";
    return Done("%s", text.c_str()).Add("stored", count);
}

constexpr Test tests[] = {
    {"maker",
     "manufacturer, model, revision (+CGMI, +CGMM, +CGMR)",
     Identity,
     {{"manufacturer", textUnit}, {"model", textUnit}, {"revision", textUnit}}},
    {"serial-numbers",
     "numbers of phone, subscriber and SIM card (+CGSN, +CIMI, ^SCID)",
     SerialNumbers,
     {{"imei", textUnit}, {"subscriber", textUnit}, {"sim-card", textUnit}}},
    {"battery", "battery charge and supply (+CBC)", Battery, {{"charge", "%"}, {"supply", textUnit}}},
    {"clock", "clock set to universal time and read back (+CCLK)", ClockSetAndReadBack, {}, Changes::Storage},
    {"messages", "short messages in the store (+CMGL)", Messages, {{"stored"}}},
};

}  // namespace

extern const Group phoneGroup;
constinit const Group phoneGroup{"phone", "identity, supply, clock and messages, by AT commands", tests};

}  // namespace tandekor::line
