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
        "and how it is set, and switches it off. Without names all tests run, but for those\n"
        "that --list marks.");
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
    app.add_option("--key-map", options.keyMap, "Map of the phone's keys")
        ->type_name("N")
        ->check(CLI::Range(1, 11).description(""));
    app.add_option("--low-power-mode", options.lowPowerMode, "In which the charger is tested; 3 ends all communication")
        ->type_name("N")
        ->check(CLI::Range(0, 3).description(""));
    app.add_option("--upload", options.uploadFile, "File system image to upload")->type_name("FILE");
    app.add_option("--vga-gain", options.vgaGain, "Gain offset that rx-wcdma and rx-store store")->type_name("N");
    app.add_option("--imei", options.imei, "IMEI that imei-write writes")->type_name("DIGITS");
    app.add_option("--freeze-values", options.freezeFile, "Identity and key of a phone to freeze")->type_name("FILE");
    app.add_flag("--i-know-freezing-cannot-be-undone", options.mayFreeze, "Let freeze run");
    bool all = false;
    app.add_flag("--all", all, "All tests, as without names")->excludes("names");
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
