#include "summary.h"

#include <algorithm>
#include <cmath>

#include "record_files.h"
#include "record_text.h"

namespace tandekor::line
{

Spread SpreadOf(const Series& series)
{
    const auto& values = series.values;
    Spread spread;
    if (values.empty())
        return spread;
    const auto count = static_cast<double>(values.size());
    spread.low = *std::ranges::min_element(values);
    spread.high = *std::ranges::max_element(values);
    for (const double value : values)
        spread.mean += value / count;
    if (values.size() < 2)
        return spread;
    double squares = 0;
    for (const double value : values)
        squares += (value - spread.mean) * (value - spread.mean);
    spread.deviation = std::sqrt(squares / (count - 1));

    // Equal values differ from their mean by rounding at most: that is no spread.
    if (spread.low == spread.high || spread.deviation == 0)
        return spread;
    const auto take = [&spread](double distance)
    {
        const double capability = distance / (3 * spread.deviation);
        spread.cpk = std::min(spread.cpk.value_or(capability), capability);
    };
    if (series.limit.low)
        take(spread.mean - *series.limit.low);
    if (series.limit.high)
        take(*series.limit.high - spread.mean);
    return spread;
}

Yield YieldOf(const std::vector<RunInShort>& runs)
{
    struct Phone
    {
        bool goodAtFirst = false;
        bool goodAtLast = false;
    };
    std::map<std::string, Phone> phones;
    Yield yield{.runs = runs.size()};
    size_t unnamed = 0;
    for (const RunInShort& run : runs)
    {
        if (run.interrupted || (run.verdict != Verdict::Passed && run.verdict != Verdict::Failed))
            continue;
        const std::string name = run.dut.empty() ? "\n" + std::to_string(++unnamed) : run.dut;
        const bool good = run.verdict == Verdict::Passed;
        const auto [phone, isFirst] = phones.try_emplace(name);
        if (isFirst)
            phone->second.goodAtFirst = good && !run.retried;
        phone->second.goodAtLast = good;
    }
    yield.phones = phones.size();
    for (const auto& [name, phone] : phones)
    {
        yield.goodAtFirst += phone.goodAtFirst ? 1 : 0;
        yield.goodAtLast += phone.goodAtLast ? 1 : 0;
    }
    return yield;
}

std::vector<std::pair<std::string, size_t>> FailuresByTest(const Summary& summary)
{
    std::map<std::string, size_t> counts;
    for (const RunInShort& run : summary.runs)
        for (const std::string& test : run.failedTests)
            ++counts[test];
    std::vector<std::pair<std::string, size_t>> failures(counts.begin(), counts.end());
    std::ranges::stable_sort(failures, std::ranges::greater{}, &std::pair<std::string, size_t>::second);
    return failures;
}

std::string PercentText(size_t part, size_t whole)
{
    return whole == 0 ? "-" : Fixed(100.0 * static_cast<double>(part) / static_cast<double>(whole), 1) + " %";
}

std::string WriteSummary(const std::filesystem::path& folder, std::string& text)
{
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error))
        return folder.string() + " is not a folder";
    const Summary summary = ReadRecords(folder);
    const Yield yield = YieldOf(summary.runs);
    const std::filesystem::path page = folder / "summary.html";
    if (std::string problem = WriteWhole(page, folder / "summary.html.part", PageOf(summary)); !problem.empty())
        return problem;

    text = std::to_string(yield.runs) + " runs, " + std::to_string(yield.phones) + " phones judged\nyield "
           + PercentText(yield.goodAtLast, yield.phones) + ", first pass "
           + PercentText(yield.goodAtFirst, yield.phones) + "\n";
    size_t shown = 0;
    for (const auto& [test, count] : FailuresByTest(summary))
        if (shown++ < 5)
            text += (shown == 1 ? "failures: " : ", ") + Readable(test) + " " + std::to_string(count);
    text += shown == 0 ? "no failures\n" : shown > 5 ? " ...\n" : "\n";
    if (!summary.unreadable.empty())
    {
        text += std::to_string(summary.unreadable.size()) + " files are no readable records:";
        for (size_t index = 0; index < std::min<size_t>(summary.unreadable.size(), 5); ++index)
            text += " " + Readable(summary.unreadable[index]);
        text += summary.unreadable.size() > 5 ? " ...\n" : "\n";
    }
    text += "page: " + page.string() + "\n";
    return {};
}

}  // namespace tandekor::line
