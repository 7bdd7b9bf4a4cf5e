#include "procedures/phone_procedure.h"

#include "connection/connection_registry.h"
#include "platform/qmsl.h"
#include "tandekor/library.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

std::string_view EndingOf(uint8_t iLevel)
{
    switch (iLevel)
    {
        case STEP_SUCCESS:
            return completedEnding;
        case STEP_FAILURE:
            return failureEnding;
        default:
            return "";
    }
}

}  // namespace

PhoneProcedure::PhoneProcedure(ResourceContext handle)
    : hResourceContext(handle), bootBoxPort(ConnectionRegistry::Instance().GetBootBoxPort(handle))
{
}

bool PhoneProcedure::StepTrace(uint8_t iLevel, const char* sFormat, ...) const
{
    if (!IsKnown())
        return false;
    LogLine line("\t");
    va_list values;
    va_start(values, sFormat);
    line.AddFormatted(sFormat, values);
    va_end(values);
    line.Add(EndingOf(iLevel));
    line.Write(hResourceContext);
    return true;
}

bool PhoneProcedure::StepStart(std::string_view name) const
{
    if (!IsKnown())
        return false;
    LogLine line("\t\t");
    line.Add(name);
    line.Add("() start");
    line.Write(hResourceContext);
    return true;
}

void PhoneProcedure::WriteResult(bool done, std::string_view name, const char* arguments, ...) const
{
    LogLine line("\t");
    line.Add(name);
    va_list values;
    va_start(values, arguments);
    line.AddFormatted(arguments, values);
    va_end(values);
    line.Add(EndingOf(done ? STEP_SUCCESS : STEP_FAILURE));
    line.Write(hResourceContext);
}

void PhoneProcedure::WritePlainResult(bool done, std::string_view name, const char* arguments) const
{
    LogLine line("\t");
    line.Add(name);
    line.Add(arguments);
    line.Add(EndingOf(done ? STEP_SUCCESS : STEP_FAILURE));
    line.Write(hResourceContext);
}

// Only the third answer counts.
bool PhoneProcedure::CheckConnection() const
{
    if (!IsKnown())
        return false;
    QLIB_IsPhoneConnected(hResourceContext);
    QLIB_IsPhoneConnected(hResourceContext);
    if (QLIB_IsPhoneConnected(hResourceContext) != 0)
        return true;
    StepTrace(STEP_FAILURE, "Invalid handle");
    return false;
}

uint8_t TANDEKOR_Start_LOG(ResourceContext hResourceContext, const char* sLogFile)
{
    constexpr uint32_t normalLogging = 2;
    const PhoneProcedure phone(hResourceContext);
    if (!phone.IsKnown())
        return 0;
    char version[52] = {};
    TANDEKOR_GetExtensionVersion(version);
    QLIB_StartLogging(hResourceContext, sLogFile);
    QLIB_SetLogFlags(hResourceContext, normalLogging);
    return phone.StepTrace(STEP_START, "TANDEKOR DLL Version: %s", version);
}
