// What a person on a phone production line runs.
#include <cstdio>

#include "options.h"
#include "report.h"
#include "runner.h"

using namespace tandekor::line;

int main(int argc, char** argv)
{
    CommandLine commandLine;
    if (const std::optional<int> status = Parse(argc, argv, commandLine))
        return *status;
    if (commandLine.list)
    {
        PrintList();
        return statusPassed;
    }
    Selection selection;
    if (const std::string problem = Select(commandLine.names, commandLine.options, selection); !problem.empty())
    {
        std::fprintf(stderr, "%s: %s\n", argv[0], problem.c_str());
        return statusBadOptions;
    }

    return Run(commandLine.options, selection) ? statusPassed : statusFailed;
}
