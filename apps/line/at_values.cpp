// Settings and states that the phone tells by AT commands.
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

// The value is shown with its meaning where it has one, else with the unit.
template <typename Value>
Outcome Read(const Context& context, uint8_t (*get)(ResourceContext, Value*, uint16_t*), const char* command,
             const char* unit, std::initializer_list<Meaning> meanings = {})
{
    constexpr Value unread = std::numeric_limits<Value>::max();
    Value value = unread;
    uint16_t status = atStatusOk;
    const uint8_t result = get(context.handle, &value, &status);
    if (!AtAnswered(result, status))
        return AtNotAnswered(result, status, std::string("TANDEKOR_AT_Get_") + command);
    if (value == unread)
        return Failed("the phone answered OK without a number\nTANDEKOR_AT_Get_%s gave no value", command);
    const unsigned number = value;
    for (const Meaning& meaning : meanings)
    {
        if (meaning.value == number)
            return Passed("%u, %s", number, meaning.text);
    }
    return Passed("%u%s", number, unit);
}

constexpr Test tests[] = {
    {"mute", "mute control (+CMUT)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CMUT, "CMUT", "", {{0, "off"}, {1, "on"}});
     }},
    {"alert-mode", "alert sound mode (+CALM)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CALM, "CALM", "", {{0, "normal"}, {1, "silent"}});
     }},
    {"ringer-level", "ringer sound level (+CRSL)",
     [](Context& context) { return Read(context, TANDEKOR_AT_Get_CRSL, "CRSL", " (level)"); }},
    {"volume", "loudspeaker volume level (+CLVL)",
     [](Context& context) { return Read(context, TANDEKOR_AT_Get_CLVL, "CLVL", " (level)"); }},
    {"vibrator", "vibrator mode (+CVIB)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_CVIB, "CVIB", ", the phone maker's own mode", {{0, "off"}, {1, "on"}});
     }},
    {"activity", "activity state of the phone (+CPAS)",
     [](Context& context)
     {
         return Read(
             context, TANDEKOR_AT_Get_CPAS, "CPAS", "",
             {{0, "ready"}, {1, "unavailable"}, {2, "unknown"}, {3, "ringing"}, {4, "in a call"}, {5, "asleep"}});
     }},
    {"sim-card", "whether a SIM card is present (^SCKA)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_SCKA, "SCKA", "", {{0, "no card"}, {1, "present"}});
     }},
    {"network", "selected wireless network (+WS46)",
     [](Context& context)
     {
         return Read(context, TANDEKOR_AT_Get_WS46, "WS46", "",
                     {{12, "GSM only"}, {22, "UMTS only"}, {25, "GSM and UMTS"}});
     }},
    {"fixed-rate", "fixed rate of the port (+IPR)",
     [](Context& context) {
         return Read(context, TANDEKOR_AT_Get_IPR, "IPR", " bit/s", {{0, "found by the phone"}});
     }},
};

}  // namespace

extern const Group atGroup;
constinit const Group atGroup{"at", "settings and states, by AT commands", tests};

}  // namespace tandekor::line
