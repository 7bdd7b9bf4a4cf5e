#include "runner.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "judging.h"
#include "machine.h"
#include "record_text.h"
#include "station.h"
#include "transmitter.h"

namespace tandekor::line
{

namespace
{

// What the library has written to its log since it was asked last.
class LogTail
{
public:
    explicit LogTail(const std::string& path) : file(path, std::ios::binary) {}

    std::vector<std::string> NewLines()
    {
        std::vector<std::string> lines;
        std::string line;
        file.clear();
        while (std::getline(file, line))
        {
            line.erase(line.find_last_not_of('\r') + 1);
            lines.push_back(Readable(line));
        }
        return lines;
    }

private:
    std::ifstream file;
};

bool Holds(const std::string& text, const char* words) { return text.find(words) != std::string::npos; }

// Steps are nested: the innermost one, in which the failure began, is logged first.
std::string FirstFailure(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
    {
        if (Holds(line, " - Failure") || Holds(line, "SendSync() fail") || Holds(line, " - error code")
            || Holds(line, " - Wrong "))
            return line.substr(std::min(line.find_first_not_of(" \t"), line.size()));
    }
    return "";
}

bool LeavesTransmitterOn(const std::vector<std::string>& lines, bool on)
{
    for (const std::string& line : lines)
    {
        if (Holds(line, "QLIB_FTM_SET_TX_ON() start"))
            on = true;
        if (Holds(line, "QLIB_FTM_SET_TX_OFF() - Completed"))
            on = false;
    }
    return on;
}

uint32_t ValueOf(const std::map<std::string, uint32_t>& values, const char* test, uint32_t other)
{
    const auto value = values.find(test);
    return value == values.end() ? other : value->second;
}

void AddText(Outcome& outcome, const std::string& text) { outcome.text += (outcome.text.empty() ? "" : "\n") + text; }

// One run of all tests on one phone.
class Runner
{
public:
    Runner(const Options& all, const Report& shown, RunRecord& record)
        : options(all), report(shown), run(record), context{all, record}, log(record.logFile)
    {
    }

    void Run(const Group& group, const Test& test, const std::string& place)
    {
        run.tests.push_back({.group = group.name,
                             .name = test.name,
                             .description = test.description,
                             .changes = Name(test.changes),
                             .text = {},
                             .failedStep = {},
                             .failedFunction = {},
                             .measures = {},
                             .logLines = {}});
        TestRecord& record = run.tests.back();
        if (std::string reason = ReasonNotToRun(group, test); !reason.empty())
            record.text = std::move(reason);
        else if (test.question != nullptr && !options.askOperator)
        {
            record.verdict = Verdict::Skipped;
            record.text = "judged by a person: --operator";
        }
        else
            Attempt(test, place, record);
        if (record.verdict == Verdict::Failed && (options.stopOnFail || test.name == std::string("log")))
            stopped = std::string("stopped after ") + test.name;
        run.interrupted = machine::WasInterrupted();
        report.Result(record);
    }

    bool IsDue(const Test& test) const { return test.run != TransmitterOff || context.transmitterOn; }

private:
    // What brings the phone to rest runs whatever has happened, if there is something to do.
    std::string ReasonNotToRun(const Group& group, const Test& test) const
    {
        const bool brings = &group == Groups().back() && test.fixtureOf != State::Unconnected;
        if (!brings && machine::WasInterrupted())
            return "interrupted";
        if (!brings && !stopped.empty())
            return stopped;
        if (context.state < test.needs)
            return context.state == State::Unconnected                            ? "not connected"
                   : test.needs == State::Online && context.state >= State::Ready ? "not online"
                                                                                  : "not switched on";
        return "";
    }

    void Attempt(const Test& test, const std::string& place, TestRecord& record)
    {
        const bool isFixture = test.fixtureOf != State::Unconnected;
        const uint32_t most = 1 + (isFixture ? 0 : ValueOf(options.retries, test.name, options.retry));
        do
        {
            ++record.attempts;
            Outcome outcome = RunOnce(test, place, record);
            record.verdict = outcome.verdict;
            record.text = Readable(outcome.text);
            record.failedFunction = outcome.Is(Verdict::Failed) ? outcome.function : "";
            record.measures = std::move(outcome.measures);
        } while (record.verdict == Verdict::Failed && record.attempts < most && context.state >= test.needs
                 && !machine::WasInterrupted());
    }

    Outcome RunOnce(const Test& test, const std::string& place, TestRecord& record)
    {
        Outcome outcome;
        const uint32_t start = station::Now();
        const auto elapsed = [start] { return station::Now() - start; };
        report.Progress(test, place, 0, context.percent);
        station::RunWithTicks([&] { outcome = test.run(context); },
                              [&] { report.Progress(test, place, elapsed(), context.percent); });
        const uint32_t duration = elapsed();
        record.durationMs += duration;

        std::vector<std::string> lines = log.NewLines();
        const bool wasOn = context.transmitterOn;
        context.transmitterOn = LeavesTransmitterOn(lines, wasOn);
        record.failedStep = outcome.Is(Verdict::Failed) ? FirstFailure(lines) : "";
        record.logLines.insert(record.logLines.end(), lines.begin(), lines.end());

        Judge(test, options, outcome);
        if (context.transmitterOn && !wasOn)
            AddText(outcome, "the transmitter may still be on");
        const uint32_t limit = ValueOf(options.timeLimits, test.name, options.timeLimit);
        if (limit != 0 && duration > limit * 1000)
        {
            outcome.verdict = Verdict::Failed;
            AddText(outcome, "took " + std::to_string(duration / 1000) + " s, longer than its limit of "
                                 + std::to_string(limit) + " s");
        }
        if (test.question != nullptr && outcome.Is(Verdict::NotJudged))
            Ask(test, outcome);
        return outcome;
    }

    void Ask(const Test& test, Outcome& outcome) const
    {
        outcome.verdict = Verdict::Skipped;
        for (std::string answer;;)
        {
            report.Question(test.question);
            if (!machine::ReadLine(answer))
            {
                AddText(outcome, "nobody answered");
                return;
            }
            if (answer == "y" || answer == "n")
            {
                outcome.verdict = answer == "y" ? Verdict::Passed : Verdict::Failed;
                AddText(outcome, std::string(test.question) + (answer == "y" ? " yes" : " no"));
                return;
            }
        }
    }

    const Options& options;
    const Report& report;
    RunRecord& run;
    Context context;
    LogTail log;
    std::string stopped;
};

}  // namespace

void Run(const Options& options, const Selection& selection, const Report& report, RunRecord& run)
{
    const uint32_t start = station::Now();
    run.simulatedTime = station::IsSimulated();
    Runner runner(options, report, run);
    size_t number = 0;
    for (const Group* group : Groups())
    {
        bool headed = false;
        for (const Test& test : group->tests)
        {
            if (!selection.contains(&test))
                continue;
            ++number;
            if (!runner.IsDue(test))
                continue;
            if (!headed)
                report.Heading(*group);
            headed = true;
            runner.Run(*group, test, std::to_string(number) + '/' + std::to_string(selection.size()));
        }
    }
    run.durationMs = station::Now() - start;
    run.end = std::chrono::system_clock::now();
    run.phone = station::Name(options);
    run.verdict = VerdictOf(run);
}

}  // namespace tandekor::line
