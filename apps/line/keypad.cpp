// The keys: the map that the host library needs for them, and whether one of them hangs.
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

Outcome Map(Context& context)
{
    const auto map = static_cast<uint8_t>(context.options.keyMap);
    if (TANDEKOR_SpecialSetKeypadMapping(context.handle, map) == 0)
        return Failed("TANDEKOR_SpecialSetKeypadMapping", "the key map %u cannot be loaded", map);
    return Done("key map %u loaded", map);
}

// The queue of key events is emptied first and nobody presses a key: what comes then comes from a key that hangs.
Outcome HangingKey(Context& context)
{
    uint16_t size = 0;
    uint16_t key = 0;
    uint8_t event = 0;
    if (TANDEKOR_TestKeypad(context.handle, &size, &key, &event) == 0)
        return Failed("TANDEKOR_TestKeypad", "the key queue could not be read");
    return Done("%s", "").Add("key", key).Add("queue", size);
}

constexpr Test tests[] = {
    {"key-map", "loads the map of the phone's keys", Map, {}, Changes::Setting},
    {"hanging-key", "no key reports itself while nobody presses one", HangingKey, {{"key"}, {"queue"}}},
};

}  // namespace

extern const Group keypadGroup;
constinit const Group keypadGroup{"keypad", "the phone's keys", tests};

}  // namespace tandekor::line
