#include "runner.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "report.h"
#include "station.h"

namespace tandekor::line
{

namespace
{

uintmax_t LogSize(const std::string& path)
{
    std::error_code error;
    const uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : size;
}

bool NamesFailure(const std::string& text)
{
    const auto holds = [&text](const char* words) { return text.find(words) != std::string::npos; };
    return holds(" - Failure") || holds("SendSync() fail") || holds(" - error code");
}

// What the log says behind its first `start` bytes: the last line that names a failure, else the last line.
std::string LastWords(const std::string& path, uintmax_t start)
{
    std::ifstream file(path, std::ios::binary);
    file.seekg(static_cast<std::streamoff>(start));
    std::string text;
    std::string last;
    std::string failure;
    while (std::getline(file, text))
    {
        constexpr char blanks[] = " \t\r";
        text.erase(0, text.find_first_not_of(blanks));
        text.erase(text.find_last_not_of(blanks) + 1);
        if (!text.empty())
            last = text;
        if (NamesFailure(text))
            failure = text;
    }
    if (!failure.empty())
        return "last failure in " + path + ": " + failure;
    return last.empty() ? "no line of this test in " + path : "last line in " + path + ": " + last;
}

void RunTest(const Test& test, Context& context, Report& report)
{
    const uintmax_t logStart = LogSize(context.options.logFile);
    const uint32_t start = station::Now();
    Outcome outcome{};
    report.Progress(test, 0, context.percent);
    station::RunWithTicks([&] { outcome = test.run(context); },
                          [&] { report.Progress(test, station::Now() - start, context.percent); });
    if (!outcome.passed && context.logStarted)
        outcome.text.append("\n").append(LastWords(context.options.logFile, logStart));
    report.Result(test, outcome, station::Now() - start);
}

}  // namespace

bool Run(const Options& options, const Selection& selection)
{
    std::error_code ignored;
    const std::string logPath = std::filesystem::absolute(options.logFile, ignored).string();
    station::Prepare(options);
    const uint32_t start = station::Now();
    Report report;
    Context context{options};
    for (const Group* group : Groups())
    {
        const auto selected = [&](const Test& test) { return selection.contains(&test); };
        if (std::any_of(group->tests.begin(), group->tests.end(), selected))
            report.Heading(*group);
        for (const Test& test : group->tests)
        {
            if (!selected(test))
                continue;
            if (context.state >= test.needs)
                RunTest(test, context, report);
            else
                report.NotRun(test, context.state == State::Unconnected ? "connect failed" : "switch-on failed");
        }
    }
    return report.Summary(station::Name(options), station::Now() - start, context.logStarted ? logPath : "not written");
}

}  // namespace tandekor::line
