// Settings and states that the phone reports by AT commands.
#include <initializer_list>
#include <limits>

#include "at_reply.h"
#include "tandekor/at.h"

namespace tandekor::line
{

namespace
{

struct Meaning
{
    unsigned value;
    const char* text;
};

// Where the value has a meaning, the meaning is measured, else the number.
template <typename Value>
Outcome Read(const Context& context, uint8_t (*get)(ResourceContext, Value*, uint16_t*), const char* command,
             const char* measure, std::initializer_list<Meaning> meanings = {})
{
    constexpr Value unread = std::numeric_limits<Value>::max();
    Value value = unread;
    uint16_t status = atStatusOk;
    const std::string function = std::string("TANDEKOR_AT_Get_") + command;
    const uint8_t result = get(context.handle, &value, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, function);
    if (value == unread)
        return Failed(function.c_str(), "the phone answered OK without a number");
    const unsigned number = value;
    if (meanings.size() == 0)
        return Done("%s", "").Add(measure, number);
    for (const Meaning& meaning : meanings)
    {
        if (meaning.value == number)
            return Done("%s", "").Add(measure, meaning.text);
    }
    return Done("%s", "").Add(measure, "value " + std::to_string(number));
}

constexpr Test tests[] = {
    {"mute",
     "mute control (+CMUT)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CMUT, "CMUT", "state", {{0, "off"}, {1, "on"}});
     },
     {{"state", textUnit}}},
    {"alert-mode",
     "alert sound mode (+CALM)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CALM, "CALM", "mode", {{0, "normal"}, {1, "silent"}});
     },
     {{"mode", textUnit}}},
    {"ringer-level",
     "ringer sound level (+CRSL)",
     [](Context& context) { return Read(context, TANDEKOR_AT_Get_CRSL, "CRSL", "level"); },
     {{"level"}}},
    {"volume",
     "loudspeaker volume level (+CLVL)",
     [](Context& context) { return Read(context, TANDEKOR_AT_Get_CLVL, "CLVL", "level"); },
     {{"level"}}},
    {"vibrator",
     "vibrator mode (+CVIB)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CVIB, "CVIB", "mode", {{0, "off"}, {1, "on"}});
     },
     {{"mode", textUnit}}},
    {"activity",
     "activity state of the phone (+CPAS)",
     [](Context& context)
     {
         return Read(
             context, TANDEKOR_AT_Get_CPAS, "CPAS", "state",
             {{0, "ready"}, {1, "unavailable"}, {2, "unknown"}, {3, "ringing"}, {4, "in a call"}, {5, "asleep"}});
     },
     {{"state", textUnit}}},
    {"sim-card",
     "whether a SIM card is present (^SCKA)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_SCKA, "SCKA", "card", {{0, "no card"}, {1, "present"}});
     },
     {{"card", textUnit}}},
    {"network",
     "selected wireless network (+WS46)",
     [](Context& context)
     {
         return Read(context, TANDEKOR_AT_Get_WS46, "WS46", "selection",
                     {{12, "GSM only"}, {22, "UMTS only"}, {25, "GSM and UMTS"}});
     },
     {{"selection", textUnit}}},
    {"fixed-rate",
     "fixed rate of the port, 0 where the phone finds it (+IPR)",
     [](Context& context) { return Read(context, TANDEKOR_AT_Get_IPR, "IPR", "rate"); },
     {{"rate", "bit/s"}}},
};

}  // namespace

extern const Group atGroup;
constinit const Group atGroup{"at", "settings and states, by AT commands", tests};

}  // namespace tandekor::line
