// Texts for the host library's text log.
#pragma once

#include <cstdarg>
#include <cstddef>

#include "tandekor/common.h"

namespace tandekor
{

// Every text is formatted in an area of this size, NUL included, and cut to it.
constexpr size_t textAreaSize = 12292;

// A text formatted once, to be shown in one or several others. It ends at its first NUL, as C texts do: also at one
// that a %c field of the value 0 puts into it.
class FormattedText
{
public:
    explicit FormattedText(const char* format, ...) __attribute__((format(printf, 2, 3)));
    // The same from a list of values.
    static FormattedText Of(const char* format, va_list values) { return {FromList{}, format, values}; }

    const char* Text() const { return text; }

private:
    struct FromList
    {
    };
    FormattedText(FromList, const char* format, va_list values);

    char text[textAreaSize];
};

// Writes one text to the text log of the connection, as it is.
void WriteToLog(ResourceContext hResourceContext, const char* text);

// Formats one text and writes it to the text log of the connection. The channels' way of logging.
void Trace(ResourceContext hResourceContext, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace tandekor
