#include "procedures/phone_procedures.h"

#include "platform/qmsl.h"
#include "tandekor/library.h"

namespace tandekor
{

bool PhoneProcedures::StepTrace(uint8_t iLevel, const char* sFormat, ...)
{
    va_list values;
    va_start(values, sFormat);
    const FormattedText text = FormattedText::Of(sFormat, values);
    va_end(values);
    if (iLevel == STEP_SUCCESS)
        Trace(hResourceContext, "\t%s - Completed successfully\n", text.Text());
    else if (iLevel == STEP_FAILURE)
        Trace(hResourceContext, "\t%s - Failure\n", text.Text());
    else
        Trace(hResourceContext, "\t%s", text.Text());
    return true;
}

// Only the third answer counts.
bool PhoneProcedures::CheckConnection()
{
    QLIB_IsPhoneConnected(hResourceContext);
    QLIB_IsPhoneConnected(hResourceContext);
    if (QLIB_IsPhoneConnected(hResourceContext) != 0)
        return true;
    StepTrace(STEP_FAILURE, "Invalid handle");
    return false;
}

uint8_t PhoneProcedures::Start_LOG(const char* sLogFile)
{
    constexpr uint32_t normalLogging = 2;
    char version[52] = {};
    TANDEKOR_GetExtensionVersion(version);
    QLIB_StartLogging(hResourceContext, sLogFile);
    QLIB_SetLogFlags(hResourceContext, normalLogging);
    StepTrace(STEP_START, "TANDEKOR DLL Version: %s", version);
    return 1;
}

}  // namespace tandekor
