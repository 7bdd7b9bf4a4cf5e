#include "core/text_log.h"

#include <cstdio>

#include "platform/qmsl.h"

namespace tandekor
{

FormattedText::FormattedText(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
}

FormattedText::FormattedText(FromList, const char* format, va_list values)
{
    std::vsnprintf(text, sizeof text, format, values);
}

void WriteToLog(ResourceContext hResourceContext, const char* text)
{
    QLIB_AddUserMessageToTextLog(hResourceContext, 2, text, 0);
}

void Trace(ResourceContext hResourceContext, const char* format, ...)
{
    va_list values;
    va_start(values, format);
    const FormattedText text = FormattedText::Of(format, values);
    va_end(values);
    WriteToLog(hResourceContext, text.Text());
}

}  // namespace tandekor
