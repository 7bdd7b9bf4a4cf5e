// Reads the records of a folder as a stream, without building them in memory.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <future>
#include <iterator>
#include <nlohmann/json.hpp>
#include <span>
#include <thread>

#include "record_text.h"
#include "summary.h"

namespace tandekor::line
{

namespace
{

namespace fs = std::filesystem;

struct NamedMeasure
{
    std::string test;
    Measure measure;
};

// Takes what the parser finds. Its functions return whether to go on; it stops at the log once the rest is known.
class RecordReader
{
public:
    RunInShort run;
    std::vector<NamedMeasure> measures;

    bool IsComplete() const { return isWellFormed && hasFormat && hasVerdict && hasTests && !run.start.empty(); }

    // NOLINTBEGIN(readability-identifier-naming): the parser gives the names
    bool null() { return true; }
    bool boolean(bool value)
    {
        if (depth == inRun && runKey == "interrupted")
            run.interrupted = value;
        else if (depth == inRun && runKey == "simulated_time")
            run.simulatedTime = value;
        return true;
    }
    bool number_integer(int64_t value) { return Number(static_cast<double>(value)); }
    bool number_unsigned(uint64_t value) { return Number(static_cast<double>(value)); }
    bool number_float(double value, const std::string& /*text*/) { return Number(value); }
    bool string(std::string& value) { return Text(value); }
    bool binary(std::vector<uint8_t>& /*value*/) { return true; }
    bool start_object(size_t /*elements*/)
    {
        ++depth;
        if (depth == inTest)
            test = {};
        else if (depth == inMeasure)
            test.measures.emplace_back().value = std::nan("");  // until a number is read
        return true;
    }
    bool key(std::string& name)
    {
        if (depth == inRun)
            runKey = name;
        else if (depth == inTest)
            testKey = name;
        else if (depth == inMeasure)
            measureKey = name;
        hasTests = hasTests || (depth == inRun && name == "tests");
        return !(depth == inRun && name == "log" && IsComplete());
    }
    bool end_object()
    {
        if (depth == inTest && runKey == "tests")
            EndTest();
        --depth;
        return true;
    }
    bool start_array(size_t /*elements*/) { return ++depth > 1; }
    bool end_array()
    {
        --depth;
        return true;
    }
    bool parse_error(size_t /*position*/, const std::string& /*token*/, const nlohmann::detail::exception& /*error*/)
    {
        isWellFormed = false;
        return false;
    }
    // NOLINTEND(readability-identifier-naming)

private:
    // How many objects and arrays are open.
    static constexpr int inRun = 1;
    static constexpr int inTest = 3;
    static constexpr int inMeasure = 5;

    bool Number(double value)
    {
        if (depth == inRun)
        {
            hasFormat = hasFormat || (runKey == "format" && value == 1);
            if (runKey == "duration_ms" && value >= 0 && value <= UINT32_MAX)
                run.durationMs = static_cast<uint32_t>(value);
        }
        else if (depth == inTest && testKey == "attempts")
            run.retried = run.retried || value > 1;
        else if (depth == inMeasure && !test.measures.empty())
        {
            Measure& measure = test.measures.back();
            if (measureKey == "value")
                measure.value = value;
            else if (measureKey == "low")
                measure.limit.low = value;
            else if (measureKey == "high")
                measure.limit.high = value;
        }
        return true;
    }

    bool Text(std::string& value)
    {
        if (depth == inRun && runKey == "verdict")
            return hasVerdict = ReadVerdict(value, run.verdict);
        if (depth == inRun && runKey == "dut")
            run.dut = std::move(value);
        else if (depth == inRun && runKey == "station")
            run.station = std::move(value);
        else if (depth == inRun && runKey == "start")
            run.start = std::move(value);
        else if (depth == inTest && testKey == "name")
            test.name = std::move(value);
        else if (depth == inTest && testKey == "verdict")
            return isWellFormed = ReadVerdict(value, test.verdict);
        else if (depth == inMeasure && measureKey == "name" && !test.measures.empty())
            test.measures.back().name = std::move(value);
        else if (depth == inMeasure && measureKey == "unit" && !test.measures.empty())
            test.measures.back().unit = std::move(value);
        return true;
    }

    static bool ReadVerdict(const std::string& name, Verdict& verdict)
    {
        for (const Verdict candidate :
             {Verdict::Passed, Verdict::Failed, Verdict::NotJudged, Verdict::Skipped, Verdict::NotRun})
            if (VerdictName(candidate) == name)
            {
                verdict = candidate;
                return true;
            }
        return false;
    }

    void EndTest()
    {
        if (test.verdict == Verdict::Failed)
            run.failedTests.push_back(test.name);
        for (Measure& measure : test.measures)
            measures.push_back({test.name, std::move(measure)});
    }

    int depth = 0;
    bool isWellFormed = true;
    bool hasFormat = false;
    bool hasVerdict = false;
    bool hasTests = false;
    std::string runKey;
    std::string testKey;
    std::string measureKey;
    TestRecord test;
};

void Append(Series& series, const Series& later)
{
    const bool differs = series.limit.low != later.limit.low || series.limit.high != later.limit.high;
    series.limitChanged = series.limitChanged || later.limitChanged || (!series.values.empty() && differs);
    series.limit = later.limit;
    series.values.insert(series.values.end(), later.values.begin(), later.values.end());
}

bool ReadWhole(const fs::path& path, std::string& content)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const auto size = file.tellg();
    if (!file || size < 0)
        return false;
    content.resize(static_cast<size_t>(size));
    file.seekg(0);
    return !file.read(content.data(), size).fail();
}

void Add(Summary& summary, RecordReader& reader)
{
    for (const auto& [test, measure] : reader.measures)
    {
        const double* value = std::get_if<double>(&measure.value);
        if (value == nullptr || !std::isfinite(*value))
            continue;
        Series& series = summary.series[{test + "." + measure.name, measure.unit}];
        Append(series, {.limit = measure.limit, .values = {*value}});
    }
    summary.runs.push_back(std::move(reader.run));
}

Summary ReadFiles(std::span<const fs::path> files)
{
    Summary summary;
    std::string content;
    for (const fs::path& path : files)
    {
        RecordReader reader;
        if (ReadWhole(path, content))
            nlohmann::json::sax_parse(content, &reader, nlohmann::json::input_format_t::json, false);
        if (reader.IsComplete())
        {
            reader.run.name = path.stem().string();
            Add(summary, reader);
        }
        else
            summary.unreadable.push_back(path.filename().string());
    }
    return summary;
}

// Appends what was read of later runs.
void Append(Summary& summary, Summary later)
{
    for (auto& [name, series] : later.series)
        Append(summary.series[name], series);
    std::ranges::move(later.runs, std::back_inserter(summary.runs));
    std::ranges::move(later.unreadable, std::back_inserter(summary.unreadable));
}

}  // namespace

Summary ReadRecords(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (entry->path().extension() == ".json")
            files.push_back(entry->path());
    std::ranges::sort(files);

    // Reading and parsing is all the time there is: the files are shared out among the processors.
    const size_t parts = std::clamp<size_t>(std::thread::hardware_concurrency(), 1, 8);
    std::vector<std::future<Summary>> readers;
    for (size_t part = 0; part < parts; ++part)
        readers.push_back(
            std::async(std::launch::async, ReadFiles,
                       std::span{files}.subspan(files.size() * part / parts,
                                                files.size() * (part + 1) / parts - files.size() * part / parts)));
    Summary summary;
    for (std::future<Summary>& reader : readers)
        Append(summary, reader.get());
    return summary;
}

}  // namespace tandekor::line
