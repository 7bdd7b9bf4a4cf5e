// The text log. Its operations need no connection, are not recorded as calls and cannot be refused by a script.
#include <cstdio>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

namespace simulator
{

namespace
{

// Flushed each time, so that a person sees how far a run has come.
void WriteLine(const std::string& text)
{
    std::ofstream& file = TheState().log.file;
    if (!file.is_open())
        return;
    file << text;
    if (!text.ends_with('\n'))
        file << '\n';
    file.flush();
}

}  // namespace

void ReportNoEffect(const std::string& what) { WriteLine("SIMULATOR: " + what + " is accepted without effect"); }

void ReportNotSimulated(const std::string& what)
{
    const std::string line = "SIMULATOR: " + what + " is not simulated";
    WriteLine(line);
    std::fprintf(stderr, "%s\n", line.c_str());
}

}  // namespace simulator

using namespace simulator;

uint8_t QLIB_StartLogging(ResourceContext, const char* sLogFile)
{
    std::ofstream& file = TheState().log.file;
    file.close();
    file.clear();
    if (sLogFile == nullptr)
        return 0;
    file.open(sLogFile, std::ios::trunc);
    return file.is_open();
}

uint8_t QLIB_SetLogFlags(ResourceContext, uint32_t iFlags)
{
    LogState& log = TheState().log;
    log.flags = iFlags;
    Keep(log.flagsChanges, {iFlags, log.texts.size()});
    return 1;
}

uint8_t QLIB_AddUserMessageToTextLog(ResourceContext hResourceContext, uint32_t iLevel, const char* sText,
                                     uint32_t iReserved)
{
    if (sText == nullptr)
        return 0;
    LogState& log = TheState().log;
    Keep(log.texts, std::string(sText));
    Keep(log.arguments, {hResourceContext, iLevel, iReserved});
    Keep(TheState().timeline, std::string(sText));
    if (log.flags != 0)
        WriteLine(sText);
    return 1;
}
