#include "options.h"

#include <CLI/CLI.hpp>

#include "station.h"

namespace tandekor::line
{

std::optional<int> Parse(int argc, char** argv, CommandLine& commandLine)
{
    Options& options = commandLine.options;
    CLI::App app(
        "Tests a phone on the production line: switches it on by the boot box, reads what it is\n"
        "and how it is set, and switches it off. Without names all tests run.");
    app.get_formatter()->column_width(24);
    app.option_defaults()->always_capture_default();
    app.add_option("names", commandLine.names, "Tests or groups to run; what they need runs with them")
        ->type_name("")
        ->option_text("...");
    app.add_option("--port", options.port, "COM port of the phone")
        ->type_name("N")
        ->check(CLI::Range(1, 65535).description(""));
    app.add_option("--boot-box", options.bootBox, "Serial port of the boot box")
        ->type_name("N")
        ->check(CLI::Range(1, 65535).description(""));
    app.add_option("--log", options.logFile, "Text log of the library")->type_name("FILE");
    app.add_flag("--list", commandLine.list, "Show all tests by their groups, and run none");
    station::AddOptions(app);
    app.footer("Exit status: 0 all tests passed, 1 a test failed or could not run, 2 bad options.");
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? statusPassed : statusBadOptions;
    }
    return std::nullopt;
}

}  // namespace tandekor::line
