#include <cstdarg>
#include <cstdio>

#include "test.h"

namespace tandekor::line
{

extern const Group pinsGroup, simGroup, cardGroup, radioGroup, displayGroup, cameraGroup;
extern const Group audioGroup, keypadGroup, bluetoothGroup, chargingGroup, identityGroup, uploadGroup;
extern const Group receiverGroup, transmitterGroup, signallingGroup, networkGroup;
extern const Group startGroup, versionsGroup, identificationGroup, hardwareGroup, atGroup, phoneGroup, filesGroup,
    endGroup;

std::span<const Group* const> Groups()
{
    static constexpr const Group* groups[]
        = {&startGroup,   &versionsGroup, &identificationGroup, &hardwareGroup,    &pinsGroup,
           &simGroup,     &cardGroup,     &radioGroup,          &displayGroup,     &cameraGroup,
           &audioGroup,   &keypadGroup,   &bluetoothGroup,      &identityGroup,    &atGroup,
           &phoneGroup,   &filesGroup,    &receiverGroup,       &transmitterGroup, &signallingGroup,
           &networkGroup, &chargingGroup, &uploadGroup,         &endGroup};
    return groups;
}

namespace
{

std::string Format(const char* format, va_list values)
{
    char text[2048];
    std::vsnprintf(text, sizeof text, format, values);
    return text;
}

}  // namespace

Outcome Passed(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    const std::string text = Format(format, values);
    va_end(values);
    return {true, text};
}

Outcome Failed(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    const std::string text = Format(format, values);
    va_end(values);
    return {false, text};
}

}  // namespace tandekor::line
