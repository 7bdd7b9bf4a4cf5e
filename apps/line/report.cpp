#include "report.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tandekor::line
{

namespace
{

constexpr char green[] = "\033[32m";
constexpr char red[] = "\033[31m";
constexpr char yellow[] = "\033[33m";
constexpr char plain[] = "\033[0m";
constexpr char startOfLine[] = "\r\033[K";  // also clears the line
constexpr size_t textColumn = 38;

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string Seconds(uint32_t elapsedMs)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.1f s", elapsedMs / 1000.0);
    return text;
}

// The further lines of a text begin under its first one.
std::string Indented(const std::string& text)
{
    std::string indented;
    for (const char character : text)
    {
        indented += character;
        if (character == '\n')
            indented.append(textColumn, ' ');
    }
    return indented;
}

}  // namespace

void PrintList()
{
    for (const Group* group : Groups())
    {
        std::printf("%-20s%s\n", group->name, group->description);
        for (const Test& test : group->tests)
            std::printf("  %-18s%s%s\n", test.name, test.description,
                        test.lacks == nullptr ? "" : " (only by its own name)");
    }
}

Report::Report()
    : terminal(::isatty(STDOUT_FILENO) != 0 && Environment("TERM") != "dumb"),
      colours(terminal && Environment("NO_COLOR").empty())
{
}

void Report::Line(const char* verdict, const char* colour, const std::string& time, const Test& test,
                  const std::string& text) const
{
    std::printf("%s  %s%-7s%s %8s  %-16s  %s\n", terminal ? startOfLine : "", colours ? colour : "", verdict,
                colours ? plain : "", time.c_str(), test.name, Indented(text).c_str());
    std::fflush(stdout);
}

void Report::Heading(const Group& group) const
{
    std::printf("%s\n", group.name);
    std::fflush(stdout);
}

void Report::Progress(const Test& test, uint32_t elapsedMs, int percent) const
{
    if (!terminal)
        return;
    std::printf("%s  ...     %6u s  %-16s  ", startOfLine, elapsedMs / 1000, test.name);
    if (percent < 0)
        std::printf("waits for the %s", test.awaited);
    else
        std::printf("[%-20s] %3d %%", std::string(static_cast<size_t>(std::min(percent, 100) / 5), '#').c_str(),
                    percent);
    std::fflush(stdout);
}

void Report::Result(const Test& test, const Outcome& outcome, uint32_t elapsedMs)
{
    if (outcome.passed)
        ++passed;
    else
        failed.emplace_back(test.name);
    Line(outcome.passed ? "PASS" : "FAIL", outcome.passed ? green : red, Seconds(elapsedMs), test, outcome.text);
}

void Report::NotRun(const Test& test, const char* reason)
{
    ++notRun;
    Line("NOT RUN", yellow, "", test, reason);
}

bool Report::Summary(const std::string& phone, uint32_t elapsedMs, const std::string& logPath) const
{
    const bool good = failed.empty() && notRun == 0;
    std::printf("\n%s%s%s  %d passed, %zu failed, %d not run, in %s on the %s\n", colours ? (good ? green : red) : "",
                good ? "PASS" : "FAIL", colours ? plain : "", passed, failed.size(), notRun, Seconds(elapsedMs).c_str(),
                phone.c_str());
    const char* lead = "failed: ";
    for (const std::string& name : failed)
    {
        std::printf("%s%s", lead, name.c_str());
        lead = ", ";
    }
    std::printf("%slog: %s\n", failed.empty() ? "" : "\n", logPath.c_str());
    return good;
}

}  // namespace tandekor::line
