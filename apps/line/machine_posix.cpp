#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "machine.h"

namespace tandekor::line::machine
{

namespace
{

std::atomic<int> interruptions = 0;
std::atomic<int> statusToEndWith = 0;

void Interrupt(int)
{
    if (++interruptions > 1)
        ::_exit(statusToEndWith);
}

}  // namespace

bool OutputIsTerminal() { return ::isatty(STDOUT_FILENO) != 0 && ::isatty(STDERR_FILENO) != 0; }

bool InputIsTerminal() { return ::isatty(STDIN_FILENO) != 0; }

// An interruption does not end a read: it is looked for now and again. A terminal delivers whole lines.
bool ReadLine(std::string& line)
{
    constexpr int lookMs = 200;
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (std::cin.rdbuf()->in_avail() <= 0)
    {
        if (WasInterrupted())
            return false;
        if (::poll(&input, 1, lookMs) > 0)
            break;
    }
    return static_cast<bool>(std::getline(std::cin, line));
}

std::string HostName()
{
    char name[256] = {};
    return ::gethostname(name, sizeof name - 1) == 0 ? name : "";
}

unsigned ProcessId() { return static_cast<unsigned>(::getpid()); }

void SetVariable(const char* name, const std::string& value) { ::setenv(name, value.c_str(), 1); }

void CatchInterruptions(int statusOfSecond)
{
    statusToEndWith = statusOfSecond;
    struct sigaction action = {};
    action.sa_handler = Interrupt;
    action.sa_flags = SA_RESTART;  // what the library waits for goes on
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

bool WasInterrupted() { return interruptions > 0; }

// The loader takes the first file of the name that this program is linked with, and reads the search path at the start.
std::string UseHostLibrary(const std::string& file, char** arguments)
{
    constexpr char variable[] = "LD_LIBRARY_PATH";
    constexpr char name[] = "libQMSL_MSVC6R.so";
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(file, error);
    if (error)
        return error.message();
    if (path.filename() != name)
        return std::string("the file has to have the name ") + name;
    const std::string folder = path.parent_path().string();
    const char* present = std::getenv(variable);
    const std::string before = present == nullptr ? "" : present;
    if (before == folder || before.starts_with(folder + ':'))
        return "";
    SetVariable(variable, before.empty() ? folder : folder + ':' + before);
    ::execv("/proc/self/exe", arguments);
    return std::strerror(errno);
}

}  // namespace tandekor::line::machine
