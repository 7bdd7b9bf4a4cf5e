// Texts for the host library's text log.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <string_view>

#include "tandekor/common.h"

namespace tandekor
{

// Every text is formatted in a buffer of this size, NUL included, and cut to it.
constexpr size_t textBufferSize = 12292;

// How the lines about results end, where nothing else is usual.
constexpr char completedEnding[] = " - Completed successfully\n";
constexpr char failureEnding[] = " - Failure\n";

// A line of the log that is put together in one buffer. It ends at its first NUL, as C texts do: also at one that a %c
// field of the value 0 puts into it; what is added next then takes the place of that NUL.
class LogLine
{
public:
    explicit LogLine(std::string_view start);

    void Add(std::string_view text);
    void AddFormatted(const char* format, va_list values);
    void Write(ResourceContext hResourceContext) const;

private:
    size_t length = 0;
    char line[textBufferSize];
};

// A text that is formatted once and stands in several lines of the log.
class FormattedText
{
public:
    FormattedText() { line[0] = line[1] = '\0'; }
    explicit FormattedText(const char* format, ...) __attribute__((format(printf, 2, 3)));

    // The text anew, for one whose values change from line to line.
    const FormattedText& Format(const char* format, ...) __attribute__((format(printf, 2, 3)));

    const char* Text() const { return line + 1; }

    // Writes a tab, the text and an ending to the log; the plain one is no format.
    void WriteWithPlainEnding(ResourceContext hResourceContext, std::string_view ending) const;
    void WriteWithEnding(ResourceContext hResourceContext, const char* format, ...) const
        __attribute__((format(printf, 3, 4)));

private:
    void Fill(const char* format, va_list values);
    // Writes the line after the ending was put to its end by the function, which takes the place and the room there.
    template <typename PutEnding>
    void WriteLine(ResourceContext hResourceContext, PutEnding putEnding) const;

    mutable char line[1 + textBufferSize];  // with the tab, and an ending while that is written
};

// Writes one text to the text log of the connection, as it is.
void WriteToLog(ResourceContext hResourceContext, const char* text);

// Formats one text and writes it to the text log of the connection. The channels' way of logging.
void Trace(ResourceContext hResourceContext, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace tandekor
