#include "core/text_log.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/qmsl.h"

namespace tandekor
{

LogLine::LogLine(std::string_view start)
{
    line[0] = '\0';
    Add(start);
}

void LogLine::Add(std::string_view text)
{
    const size_t added = std::min(text.size(), sizeof line - 1 - length);
    std::memcpy(line + length, text.data(), added);
    length += added;
    line[length] = '\0';
}

void LogLine::AddFormatted(const char* format, va_list values)
{
    std::vsnprintf(line + length, sizeof line - length, format, values);
    length += std::strlen(line + length);
}

void LogLine::Write(ResourceContext hResourceContext) const { WriteToLog(hResourceContext, line); }

FormattedText::FormattedText(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    Fill(format, values);
    va_end(values);
}

const FormattedText& FormattedText::Format(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    Fill(format, values);
    va_end(values);
    return *this;
}

void FormattedText::Fill(const char* format, va_list values)
{
    line[0] = '\t';
    std::vsnprintf(line + 1, textBufferSize, format, values);
}

template <typename PutEnding>
void FormattedText::WriteLine(ResourceContext hResourceContext, PutEnding putEnding) const
{
    char* const end = line + std::strlen(line);
    const char last = line[textBufferSize - 1];
    line[textBufferSize - 1] = '\0';
    if (end < line + textBufferSize - 1)
        putEnding(end, static_cast<size_t>(line + textBufferSize - end));
    WriteToLog(hResourceContext, line);
    line[textBufferSize - 1] = last;
    *end = '\0';
}

void FormattedText::WriteWithPlainEnding(ResourceContext hResourceContext, std::string_view ending) const
{
    WriteLine(hResourceContext,
              [ending](char* end, size_t room)
              {
                  const size_t length = std::min(ending.size(), room - 1);
                  std::memcpy(end, ending.data(), length);
                  end[length] = '\0';
              });
}

void FormattedText::WriteWithEnding(ResourceContext hResourceContext, const char* format, ...) const
{
    va_list values;
    va_start(values, format);
    WriteLine(hResourceContext, [&](char* end, size_t room) { std::vsnprintf(end, room, format, values); });
    va_end(values);
}

void WriteToLog(ResourceContext hResourceContext, const char* text)
{
    QLIB_AddUserMessageToTextLog(hResourceContext, 2, text, 0);
}

void Trace(ResourceContext hResourceContext, const char* format, ...)
{
    LogLine line("");
    va_list values;
    va_start(values, format);
    line.AddFormatted(format, values);
    va_end(values);
    line.Write(hResourceContext);
}

}  // namespace tandekor
