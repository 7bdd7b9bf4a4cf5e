// The page over the records of a folder: yield, what fails, how each measure is spread, the last runs.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "record.h"

namespace tandekor::line
{

// What the page needs of one run.
struct RunInShort
{
    std::string name;  // of the record's files
    std::string dut;
    std::string station;
    std::string start;  // as in the record, so that it sorts as text
    uint32_t durationMs = 0;
    bool simulatedTime = false;
    bool interrupted = false;
    bool retried = false;
    Verdict verdict = Verdict::NotRun;
    std::vector<std::string> failedTests;
};

// The numbers of one measure over all runs.
struct Series
{
    Limit limit;  // of the latest run
    bool limitChanged = false;
    std::vector<double> values;
};

struct Spread
{
    double mean = 0;
    double deviation = 0;  // of a sample: n - 1
    double low = 0;
    double high = 0;
    std::optional<double> cpk;  // from the nearer limit; none without limits or without any spread
};

struct Yield
{
    size_t runs = 0;
    size_t phones = 0;       // with a run that reached a verdict
    size_t goodAtLast = 0;   // whose latest such run passed
    size_t goodAtFirst = 0;  // whose first one passed, and no test of it was retried
};

struct Summary
{
    std::vector<RunInShort> runs;  // in the order of their names, which begin with the time
    std::map<std::pair<std::string, std::string>, Series> series;  // by test.measure and unit
    std::vector<std::string> unreadable;                           // names of files
};

// Reads every record of a folder.
Summary ReadRecords(const std::filesystem::path& folder);

Spread SpreadOf(const Series& series);

// An interrupted run and one that was not judged count only as runs; a phone without a name is another one each time.
Yield YieldOf(const std::vector<RunInShort>& runs);

// How many runs each test failed in, most first.
std::vector<std::pair<std::string, size_t>> FailuresByTest(const Summary& summary);

// 96.1 %, or - of nothing.
std::string PercentText(size_t part, size_t whole);

std::string PageOf(const Summary& summary);

// Writes summary.html into a folder of records. Returns an empty text or what went wrong; the text for the terminal
// says what the page says, in short.
std::string WriteSummary(const std::filesystem::path& folder, std::string& text);

}  // namespace tandekor::line
