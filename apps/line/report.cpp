#include "report.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "judging.h"
#include "machine.h"
#include "record_text.h"

namespace tandekor::line
{

namespace
{

constexpr char startOfLine[] = "\r\033[K";  // also clears the line
constexpr size_t textColumn = 41;

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

const char* Colour(Verdict verdict)
{
    static constexpr const char* colours[] = {"\033[32m", "\033[31m", "\033[33m", "\033[33m", "\033[33m"};
    return colours[static_cast<size_t>(verdict)];
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

void AddLine(std::string& text, const std::string& line)
{
    if (!line.empty())
        text += (text.empty() ? "" : "\n") + line;
}

int Count(const RunRecord& run, Verdict verdict)
{
    return static_cast<int>(std::count_if(run.tests.begin(), run.tests.end(),
                                          [verdict](const TestRecord& test) { return test.verdict == verdict; }));
}

}  // namespace

void PrintList()
{
    for (const Group* group : Groups())
    {
        std::printf("%-20s%s\n", group->name, group->description);
        for (const Test& test : group->tests)
        {
            std::printf("  %-18s%-10s%s%s\n", test.name, Name(test.changes), test.description,
                        test.missing != nullptr    ? " (only by its own name)"
                        : test.question != nullptr ? " (with --operator)"
                                                   : "");
            const char* lead = "                              measures ";
            for (const Quantity& quantity : test.measures)
            {
                if (quantity.name == nullptr)
                    break;
                std::printf("%s%s.%s%s%s%s", lead, test.name, quantity.name, *quantity.unit == '\0' ? "" : " (",
                            quantity.unit, *quantity.unit == '\0' ? "" : ")");
                lead = ", ";
            }
            if (test.measures[0].name != nullptr)
                std::printf("\n");
        }
    }
    std::printf(
        "\nThe second column says what a test leaves changed: nothing; a setting, until the phone is switched off; "
        "its\n"
        "storage; or that it transmits. Limits of the measures stand in the station file.\n");
}

Report::Report()
    : terminal(machine::OutputIsTerminal() && Environment("TERM") != "dumb"),
      colours(terminal && Environment("NO_COLOR").empty())
{
}

void Report::Heading(const Group& group) const
{
    std::printf("%s\n", group.name);
    std::fflush(stdout);
}

// On the error output, as the library prints on the other one meanwhile.
void Report::Progress(const Test& test, const std::string& place, uint32_t elapsedMs, int percent) const
{
    if (!terminal)
        return;
    char bar[64] = "";
    if (percent >= 0)
        std::snprintf(bar, sizeof bar, "[%-20s] %3d %%",
                      std::string(static_cast<size_t>(std::min(percent, 100) / 5), '#').c_str(), percent);
    std::fprintf(stderr, "%s  %-10s %8s  %-16s  %s%s", startOfLine, place.c_str(), Seconds(elapsedMs).c_str(),
                 test.name, percent < 0 ? "waits for the " : bar, percent < 0 ? test.waitsFor : "");
    std::fflush(stderr);
}

void Report::Question(const char* question) const
{
    if (terminal)
        std::fprintf(stderr, "%s", startOfLine);
    std::printf("    %s [y/n] ", question);
    std::fflush(stdout);
}

void Report::Result(const TestRecord& test) const
{
    constexpr uint32_t worthTelling = 100;
    std::string text = test.text;
    for (const Measure& measure : test.measures)
        AddLine(text, Shown(test.name, measure));
    if (!test.failedStep.empty())
        AddLine(text, "first failure in the log: " + test.failedStep);
    if (!test.failedFunction.empty())
        AddLine(text, "function: " + test.failedFunction);
    if (test.attempts > 1)
        AddLine(text, "after " + std::to_string(test.attempts) + " attempts");
    if (terminal)
        std::fprintf(stderr, "%s", startOfLine);
    std::printf("  %s%-10s%s %8s  %-16s  %s\n", colours ? Colour(test.verdict) : "", VerdictShown(test.verdict),
                colours ? "\033[0m" : "", test.durationMs < worthTelling ? "" : Seconds(test.durationMs).c_str(),
                test.name.c_str(), Indented(text).c_str());
    std::fflush(stdout);
}

void Report::Summary(const RunRecord& run) const
{
    std::printf("\n%s%s%s  %s: %d passed, %d failed, %d not judged, %d skipped, %d not run, in %s%s on the %s%s\n",
                colours ? Colour(run.verdict) : "", VerdictShown(run.verdict), colours ? "\033[0m" : "",
                run.dut.empty() ? "phone without a name" : run.dut.c_str(), Count(run, Verdict::Passed),
                Count(run, Verdict::Failed), Count(run, Verdict::NotJudged), Count(run, Verdict::Skipped),
                Count(run, Verdict::NotRun), Seconds(run.durationMs).c_str(),
                run.simulatedTime ? " of simulated time" : "", run.phone.c_str(),
                run.interrupted ? "; interrupted" : "");
    const char* lead = "failed: ";
    for (const TestRecord& test : run.tests)
    {
        if (test.verdict != Verdict::Failed)
            continue;
        std::printf("%s%s", lead, test.name.c_str());
        lead = ", ";
    }
    if (Count(run, Verdict::Failed) > 0)
        std::printf("\n");
    std::fflush(stdout);
}

Verdict VerdictOf(const RunRecord& run)
{
    if (Count(run, Verdict::Failed) > 0)
        return Verdict::Failed;
    if (run.interrupted || Count(run, Verdict::NotRun) > 0)
        return Verdict::NotRun;
    const auto isFixture = [](const TestRecord& record)
    {
        for (const Group* group : Groups())
        {
            for (const Test& test : group->tests)
            {
                if (record.name == test.name)
                    return test.fixtureOf != State::Unconnected;
            }
        }
        return false;
    };
    const bool fixturesAlone = std::all_of(run.tests.begin(), run.tests.end(), isFixture);
    const bool judged = std::any_of(run.tests.begin(), run.tests.end(),
                                    [&](const TestRecord& test)
                                    { return test.verdict == Verdict::Passed && (fixturesAlone || !isFixture(test)); });
    return judged ? Verdict::Passed : Verdict::NotJudged;
}

}  // namespace tandekor::line
