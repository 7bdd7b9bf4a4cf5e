// The keys: the map that the host library needs for them, and the next key event.
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
        return Failed("the key map %u cannot be loaded\nTANDEKOR_SpecialSetKeypadMapping gave 0", map);
    return Passed("key map %u loaded", map);
}

Outcome Event(Context& context)
{
    uint16_t size = 0;
    uint16_t key = 0;
    uint8_t event = 0;
    if (TANDEKOR_TestKeypad(context.handle, &size, &key, &event) == 0)
        return Failed("no key events\nTANDEKOR_TestKeypad gave 0");
    return Passed("key 0x%04X, event %u, %u in the queue behind its clearing", key, event, size);
}

constexpr Test tests[] = {
    {"key-map", "loads the map of the phone's keys", Map},
    {"key-event", "reads the next key event", Event},
};

}  // namespace

extern const Group keypadGroup;
constinit const Group keypadGroup{"keypad", "the phone's keys", tests};

}  // namespace tandekor::line
