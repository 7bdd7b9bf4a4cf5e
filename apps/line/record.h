// What is known of one run of the tests on one phone: the runner fills it, the report on the terminal and the files of
// the record folder are written from it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tandekor::line
{

// A test or a measure that nobody judged is not called passed.
enum class Verdict
{
    Passed,
    Failed,
    NotJudged,  // done, and neither a limit nor a person decided
    Skipped,    // a person or a precondition is missing
    NotRun      // the run ended earlier
};

// Either bound may be missing. A text is compared whole, with each of the alternatives that | separates.
struct Limit
{
    std::optional<double> low;
    std::optional<double> high;
    std::optional<std::string> text;
};

struct Measure
{
    std::string name;  // without the test's: "charge" of the test battery is battery.charge in station files
    std::variant<double, std::string> value;
    std::string unit;  // empty for a count or a text
    Limit limit;
    Verdict verdict = Verdict::NotJudged;
};

struct TestRecord
{
    std::string group;
    std::string name;
    std::string description;
    std::string changes;  // nothing, setting, storage, radiates
    Verdict verdict = Verdict::NotRun;
    std::string text;            // what was read, or what went wrong
    std::string failedStep;      // the first step of the log that failed, empty if none did
    std::string failedFunction;  // the function of the library that returned the failure, empty if none did
    std::vector<Measure> measures;
    std::vector<std::string> logLines;  // what the library wrote to the log during the test
    uint32_t durationMs = 0;
    uint32_t attempts = 0;  // 2 and more: it was retried
};

struct RunRecord
{
    std::string dut;  // the phone under test
    std::string station;
    std::string operatorName;
    std::string host;            // the machine
    std::string phone;           // what kind of phone it is: simulated, or the port
    std::string libraryVersion;  // of Tandekor6R
    std::string hostVersion;     // of the host library
    std::string phoneVersion;    // the phone's software
    std::string logFile;
    std::chrono::system_clock::time_point start;
    std::chrono::system_clock::time_point end;
    uint32_t durationMs = 0;
    bool simulatedTime = false;
    bool interrupted = false;
    Verdict verdict = Verdict::NotRun;
    std::vector<TestRecord> tests;
};

}  // namespace tandekor::line
