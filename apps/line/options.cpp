#include "options.h"

#include <CLI/CLI.hpp>

#include <algorithm>

#include "judging.h"
#include "runner.h"
#include "station.h"
#include "tandekor/library.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

CLI::Validator Between(uint32_t low, uint32_t high) { return CLI::Range(low, high).description(""); }

// Becomes part of texts and file names.
CLI::Validator PlainName()
{
    return {[](const std::string& text)
            {
                const bool plain
                    = std::all_of(text.begin(), text.end(), [](char one) { return one > ' ' && one <= '~'; });
                return plain && !text.empty() && text.size() <= 64
                           ? std::string()
                           : "'" + text + "' has to be 1 to 64 printable characters without blanks";
            },
            ""};
}

// Each line is read by CLI11, one by one, so that what is wrong is told with its line. What the command line says
// stays.
class StationFile : public CLI::ConfigBase
{
public:
    StationFile(CLI::App& application, const CLI::Option*& file) : app(application), fileOption(file) {}

    std::vector<CLI::ConfigItem> from_config(std::istream& input) const override
    {
        Read(input, fileOption->as<std::string>());
        return {};
    }

    void Read(std::istream& input, const std::string& file) const
    {
        std::string section;
        std::string line;
        std::set<const CLI::Option*> setHere;
        for (int number = 1; std::getline(input, line); ++number)
        {
            const std::string place = file + ':' + std::to_string(number) + ": ";
            CLI::detail::trim(line);
            if (line.empty() || line.front() == '#' || line.front() == ';')
                continue;
            if (line.front() == '[' && line.back() == ']')
            {
                section = line.substr(1, line.size() - 2) + '.';
                continue;
            }
            std::istringstream one(line);
            const std::vector<CLI::ConfigItem> read = ConfigBase::from_config(one);
            if (read.size() != 1 || read.front().name.empty())
                throw CLI::ConfigError(std::string(place).append("no key with a value: ").append(line));
            Set(section + read.front().fullname(), read.front().inputs, place, setHere);
        }
    }

    bool HasSet(const CLI::Option* option) const { return fromFile.contains(option); }

private:
    void Set(const std::string& key, const std::vector<std::string>& values, const std::string& place,
             std::set<const CLI::Option*>& setHere) const
    {
        CLI::Option* option = app.get_option_no_throw("--" + key);
        if (option == nullptr || !option->get_configurable())
            throw CLI::ConfigError(place + "no such key: " + key);
        if (setHere.contains(option))
            throw CLI::ConfigError(place + key + " is set a second time");
        if (key == "run")
        {
            for (const std::string& name : values)
            {
                if (const std::string problem = UnknownName(name); !problem.empty())
                    throw CLI::ConfigError(place + problem);
            }
        }
        if (option->count() > 0)
            return;
        setHere.insert(option);
        fromFile.insert(option);
        try
        {
            if (option->get_expected_max() > 1)
                option->add_result(values);
            else
                option->add_result(CLI::detail::join(values, " "));
            option->run_callback();
        }
        catch (const CLI::ParseError& error)
        {
            throw CLI::ConfigError(place + error.what());
        }
    }

    CLI::App& app;
    const CLI::Option*& fileOption;
    mutable std::set<const CLI::Option*> fromFile;
};

void AddRunOptions(CLI::App& app, Options& options)
{
    app.add_option("names,--run", options.names, "Tests or groups to run; what they need runs with them")
        ->type_name("")
        ->option_text("...");
    app.add_flag("--all", options.all,
                 "Run also what changes the phone for good or transmits, but for what is named only")
        ->configurable(false);
    app.add_flag("--list", options.list, "Show all tests by their groups, and what they change; run none")
        ->configurable(false);
    app.add_option("--dut", options.dut, "Name of the phone under test; without it, its IMEI")
        ->type_name("ID")
        ->check(PlainName())
        ->configurable(false);
    app.add_flag("--operator", options.askOperator, "Ask on the terminal what only a person can judge");
    app.add_option("--operator-name", options.operatorName, "Who operates the station")->type_name("NAME");
    app.add_option("--repeat", options.repeat, "Number of runs, each with a record of its own")
        ->type_name("N")
        ->check(Between(1, 100000));
    app.add_option("--retry", options.retry, "How often a failed test is tried again")
        ->type_name("N")
        ->check(Between(0, 100));
    app.add_flag("--stop-on-fail", options.stopOnFail, "Run no further test after a failed one");
    app.add_option("--time-limit", options.timeLimit, "Seconds in which each test has to end; 0 is any time")
        ->type_name("S")
        ->check(Between(0, 86400));
    app.add_option("--records", options.recordFolder, "Folder of the records")->type_name("FOLDER");
    app.add_option("--summary", options.summaryFolder, "Show what the records of a folder say together; run no test")
        ->type_name("FOLDER")
        ->configurable(false);
}

void AddStationOptions(CLI::App& app, Options& options)
{
    app.add_option("--station-id", options.station, "Name of this station")->type_name("ID")->check(PlainName());
    app.add_option("--port", options.port, "COM port of the phone")->type_name("N")->check(Between(1, 65535));
    app.add_option("--boot-box", options.bootBox, "Serial port of the boot box")
        ->type_name("N")
        ->check(Between(1, 65535));
    if (!station::IsSimulated())
        app.add_option("--host-library", options.hostLibrary, "Host library, if not the one beside the program")
            ->type_name("FILE");
    else
        app.add_option("--refuse", options.refusals,
                       "Host operation that the simulated phone refuses, from its N-th call on (QLIB_DIAG_VERNO_F:2)")
            ->type_name("NAME[:N]")
            ->allow_extra_args(false)
            ->check(CLI::Validator(station::RefusalProblem, ""));
    app.add_option("--phone", options.phoneScript, "How the simulated phone is set up")
        ->type_name("FILE")
        ->check(CLI::ExistingFile.description(""));
}

void AddRadioOptions(CLI::App& app, RadioValues& radio)
{
    const auto add = [&app](const char* name, auto& value, const char* description, uint32_t most)
    {
        CLI::Option* option = app.add_option(name, value, description)->type_name("N")->group("Radio");
        option->check(Between(0, most))->default_str(std::to_string(value));  // a uint8_t would be shown as a character
    };
    add("--gsm-mode", radio.modeGsm, "GSM mode, as the host library counts", UINT16_MAX);
    add("--gsm-band", radio.bandGsm, "GSM band", UINT8_MAX);
    add("--gsm-channel", radio.channelGsm, "GSM channel", 1023);
    add("--gsm-power-level", radio.powerLevelGsm, "GSM power level", 31);
    add("--training-sequence", radio.trainingSequence, "GSM training sequence", 7);
    add("--wcdma-mode", radio.modeWcdma, "WCDMA mode, as the host library counts", UINT16_MAX);
    add("--wcdma-uplink", radio.channelWcdmaUplink, "WCDMA channel to transmit on", UINT16_MAX);
    add("--wcdma-downlink", radio.channelWcdmaDownlink, "WCDMA channel to receive on", UINT16_MAX);
    add("--wcdma-band", radio.bandReceiver, "Set of NV items of the WCDMA band", UINT8_MAX);
    add("--fm-channel", radio.channelFm, "FM channel", UINT16_MAX);
    add("--bluetooth-channel", radio.channelBluetooth, "Bluetooth channel", 78);
}

// Options of single tests, by the names of the tests.
struct TestOption
{
    CLI::Option* option;
    std::vector<const char*> tests;
};

std::vector<TestOption> AddTestOptions(CLI::App& app, Options& options)
{
    return {
        {app.add_option("--key-map", options.keyMap, "Map of the phone's keys")->type_name("N")->check(Between(1, 11)),
         {"key-map"}},
        {app.add_option("--low-power-mode", options.lowPowerMode,
                        "In which the charger is tested; 3 ends all communication")
             ->type_name("N")
             ->check(Between(0, 3)),
         {"charger"}},
        {app.add_option("--upload", options.uploadFile, "File system image to upload")->type_name("FILE"), {"upload"}},
        {app.add_option("--vga-gain", options.vgaGain, "Gain offset that rx-wcdma and rx-store store")->type_name("N"),
         {"rx-wcdma", "rx-store"}},
        {app.add_option("--imei", options.imei, "IMEI that imei-write writes")
             ->type_name("DIGITS")
             ->configurable(false),
         {"imei-write"}},
        {app.add_option("--freeze-values", options.freezeFile, "Identity and key of a phone to freeze")
             ->type_name("FILE")
             ->configurable(false),
         {"freeze"}},
        {app.add_flag("--i-know-freezing-cannot-be-undone", options.mayFreeze, "Let freeze run")->configurable(false),
         {"freeze"}},
    };
}

// Not shown by --help: they are for the sections [limits], [retry] and [time-limit] of the station file.
void AddOptionsOfEachTest(CLI::App& app, Options& options)
{
    constexpr char notShown[] = "";
    for (const Group* group : Groups())
    {
        for (const Test& test : group->tests)
        {
            const std::string name = test.name;
            app.add_option_function<uint32_t>(
                   "--retry." + name, [&options, name](const uint32_t& value) { options.retries[name] = value; })
                ->check(Between(0, 100))
                ->group(notShown);
            app.add_option_function<uint32_t>("--time-limit." + name, [&options, name](const uint32_t& value)
                                              { options.timeLimits[name] = value; })
                ->check(Between(0, 86400))
                ->group(notShown);
            for (const Quantity& quantity : test.measures)
            {
                if (quantity.name == nullptr)
                    break;
                const std::string measure = name + '.' + quantity.name;
                app.add_option_function<std::string>(
                       "--limits." + measure,
                       [&options, measure, quantity](const std::string& text)
                       {
                           if (const std::string problem = ReadLimit(text, quantity, options.limits[measure]);
                               !problem.empty())
                               throw CLI::ValidationError(measure, problem);
                       })
                    ->group(notShown);
            }
        }
    }
}

std::string Contradiction(const CLI::App& app, const Options& options, const std::vector<TestOption>& testOptions,
                          const StationFile& file)
{
    const auto given = [&](const CLI::Option* option) { return option->count() > 0 && !file.HasSet(option); };
    if (options.all && given(app.get_option("--run")))
        return "--all and names exclude each other";
    Selection selection;
    if (options.list || !options.summaryFolder.empty() || !Select(options, selection).empty())
        return "";
    for (const TestOption& one : testOptions)
    {
        const auto runs = [&](const char* name)
        {
            return std::any_of(selection.begin(), selection.end(),
                               [name](const Test* test) { return test->name == std::string(name); });
        };
        if (given(one.option) && std::none_of(one.tests.begin(), one.tests.end(), runs))
            return one.option->get_name() + " has no effect, as " + one.tests.front() + " does not run";
    }
    return "";
}

}  // namespace

std::optional<int> Parse(int argc, char** argv, Options& options)
{
    CLI::App app(station::IsSimulated()
                     ? "Tests a simulated phone as on the production line: switches it on by the boot box, reads\n"
                       "what it is and how it is set, and switches it off. Without names all tests run, but for\n"
                       "those that --list marks."
                     : "Tests a phone on the production line: switches it on by the boot box, reads what it is\n"
                       "and how it is set, and switches it off. Without names those tests run that leave the\n"
                       "phone as it was and do not transmit.");
    app.get_formatter()->column_width(26);
    app.option_defaults()->always_capture_default();
    const CLI::Option* fileOption
        = app.set_config("--station", "", "Station file: options without their dashes, limits, retries");
    app.get_config_ptr()->type_name("FILE")->configurable(false);
    const auto file = std::make_shared<StationFile>(app, fileOption);
    app.config_formatter(file);
    AddRunOptions(app, options);
    AddStationOptions(app, options);
    const std::vector<TestOption> testOptions = AddTestOptions(app, options);
    AddRadioOptions(app, options.radio);
    AddOptionsOfEachTest(app, options);
    app.get_help_ptr()->configurable(false);
    char version[64] = {};
    TANDEKOR_GetExtensionVersion(version);
    app.add_flag_callback(
           "--version", [&version] { throw CLI::CallForVersion(version, 0); }, "Show the library's version")
        ->configurable(false);
    app.footer(
        "Exit status: 0 no test failed, 1 a test failed or could not run, 2 bad options,\n"
        "130 interrupted, with the phone switched off.");
    try
    {
        app.parse(argc, argv);
        std::istringstream defaults(station::DefaultStationFile());
        file->Read(defaults, "built-in station file");
        if (options.all && file->HasSet(app.get_option("--run")))
            options.names.clear();
        if (const std::string problem = Contradiction(app, options, testOptions, *file); !problem.empty())
            throw CLI::ValidationError(problem);
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error) == 0 ? statusPassed : statusBadOptions;
    }
    return std::nullopt;
}

}  // namespace tandekor::line
