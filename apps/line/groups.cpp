#include <cstdarg>
#include <cstdio>
#include <utility>

#include "test.h"

namespace tandekor::line
{

extern const Group pinsGroup, simGroup, cardGroup, radioGroup, displayGroup, cameraGroup;
extern const Group audioGroup, keypadGroup, bluetoothGroup, chargingGroup, identityGroup, uploadGroup;
extern const Group receiverGroup, transmitterGroup, signallingGroup, networkGroup;
extern const Group startGroup, serviceGroup, versionsGroup, identificationGroup, hardwareGroup, atGroup, phoneGroup,
    filesGroup, endGroup;

std::span<const Group* const> Groups()
{
    static constexpr const Group* groups[]
        = {&startGroup,   &versionsGroup, &identificationGroup, &hardwareGroup,    &pinsGroup,
           &simGroup,     &cardGroup,     &radioGroup,          &displayGroup,     &cameraGroup,
           &audioGroup,   &keypadGroup,   &bluetoothGroup,      &identityGroup,    &atGroup,
           &phoneGroup,   &filesGroup,    &receiverGroup,       &transmitterGroup, &signallingGroup,
           &networkGroup, &chargingGroup, &uploadGroup,         &serviceGroup,     &endGroup};
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
    std::string text = Format(format, values);
    va_end(values);
    return {.verdict = Verdict::Passed, .text = std::move(text)};
}

Outcome Failed(const char* function, const char* format, ...)
{
    va_list values;
    va_start(values, format);
    std::string text = Format(format, values);
    va_end(values);
    return {.verdict = Verdict::Failed, .text = std::move(text), .function = function};
}

Outcome Done(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    std::string text = Format(format, values);
    va_end(values);
    return {.verdict = Verdict::NotJudged, .text = std::move(text)};
}

const char* Name(Changes changes)
{
    static constexpr const char* names[] = {"nothing", "setting", "storage", "radiates"};
    return names[static_cast<size_t>(changes)];
}

}  // namespace tandekor::line
