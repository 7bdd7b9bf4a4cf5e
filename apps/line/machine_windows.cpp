#include <io.h>
#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "machine.h"

namespace tandekor::line::machine
{

namespace
{

std::atomic<int> interruptions = 0;
std::atomic<int> statusToEndWith = 0;

// Runs on a thread of its own. The program ends as soon as it returns from a closing console, so it stays then.
BOOL WINAPI Interrupt(DWORD event)
{
    if (++interruptions > 1)
        ::ExitProcess(static_cast<UINT>(statusToEndWith.load()));
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::Sleep(INFINITE);
    return TRUE;
}

}  // namespace

bool OutputIsTerminal() { return ::_isatty(1) != 0 && ::_isatty(2) != 0; }

bool InputIsTerminal() { return ::_isatty(0) != 0; }

// An interruption ends the read of a console.
bool ReadLine(std::string& line) { return std::getline(std::cin, line) && !WasInterrupted(); }

std::string HostName()
{
    char name[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = sizeof name;
    return ::GetComputerNameA(name, &size) != 0 ? name : "";
}

unsigned ProcessId() { return static_cast<unsigned>(::GetCurrentProcessId()); }

void SetVariable(const char* name, const std::string& value)
{
    ::SetEnvironmentVariableA(name, value.c_str());
    ::_putenv_s(name, value.c_str());
}

void CatchInterruptions(int statusOfSecond)
{
    statusToEndWith = statusOfSecond;
    ::SetConsoleCtrlHandler(Interrupt, TRUE);
}

bool WasInterrupted() { return interruptions > 0; }

// The loader takes the file beside the program first, so that another one cannot be taken.
std::string UseHostLibrary(const std::string& file, char**)
{
    char loaded[MAX_PATH] = {};
    ::GetModuleFileNameA(::GetModuleHandleA("QMSL_MSVC6R.dll"), loaded, sizeof loaded);
    std::error_code error;
    const bool same = std::filesystem::equivalent(file, loaded, error);
    if (error)
        return error.message();
    return same ? "" : std::string("in use is ") + loaded + "; lay the other one in its place";
}

}  // namespace tandekor::line::machine
