// What a person on a phone production line runs.
#include <algorithm>
#include <cstdio>

#include "judging.h"
#include "machine.h"
#include "options.h"
#include "record_files.h"
#include "report.h"
#include "runner.h"
#include "station.h"
#include "summary.h"
#include "tandekor/library.h"

using namespace tandekor::line;

namespace
{

int Refuse(const char* program, const std::string& problem)
{
    std::fprintf(stderr, "%s: %s\n", program, problem.c_str());
    return statusBadOptions;
}

// Returns the status of the run, or of its record.
int RunAndRecord(const Options& options, const Selection& selection, const Report& report, const char* program)
{
    RunRecord run;
    run.start = std::chrono::system_clock::now();
    const RecordNames names = ReserveRecord(options.recordFolder, options.dut, run.start);
    if (!names.problem.empty())
        return Refuse(program, names.problem);
    run.dut = options.dut;
    run.station = options.station;
    run.operatorName = options.operatorName;
    run.host = machine::HostName();
    run.logFile = names.log.string();
    char version[64] = {};
    TANDEKOR_GetExtensionVersion(version);
    run.libraryVersion = version;

    Run(options, selection, report, run);

    const std::string problem = WriteRecords(run, names.base);
    report.Summary(run);
    if (problem.empty())
        std::printf("page: %s\nlog:  %s\n", names.page.string().c_str(), run.logFile.c_str());
    else
        std::fprintf(stderr, "%s: %s\n", program, problem.c_str());
    std::fflush(stdout);
    const bool good = run.verdict == Verdict::Passed || run.verdict == Verdict::NotJudged;
    return good && problem.empty() ? statusPassed : statusFailed;
}

}  // namespace

int main(int argc, char** argv)
{
    Options options;
    if (const std::optional<int> status = Parse(argc, argv, options))
        return *status;
    if (options.list)
    {
        PrintList();
        return statusPassed;
    }
    if (!options.summaryFolder.empty())
    {
        std::string text;
        if (const std::string problem = WriteSummary(options.summaryFolder, text); !problem.empty())
            return Refuse(argv[0], problem);
        std::printf("%s", text.c_str());
        return statusPassed;
    }
    Selection selection;
    if (const std::string problem = Select(options, selection); !problem.empty())
        return Refuse(argv[0], problem);
    if (options.askOperator && !machine::InputIsTerminal())
        return Refuse(argv[0], "--operator needs a terminal to ask on");
    if (!options.hostLibrary.empty())
    {
        if (const std::string problem = machine::UseHostLibrary(options.hostLibrary, argv); !problem.empty())
            return Refuse(argv[0], "host library " + options.hostLibrary + ": " + problem);
    }
    if (const std::string problem = PrepareRecordFolder(options.recordFolder); !problem.empty())
        return Refuse(argv[0], problem);
    if (const std::string problem = station::Prepare(options); !problem.empty())
        return Refuse(argv[0], problem);

    machine::CatchInterruptions(statusInterrupted);
    const Report report;
    int status = statusPassed;
    for (uint32_t i = 0; i < options.repeat && !machine::WasInterrupted(); ++i)
        status = std::max(status, RunAndRecord(options, selection, report, argv[0]));
    return machine::WasInterrupted() ? statusInterrupted : status;
}
