// The page over many records. Measures with the lowest Cpk come first: they are what a line looks at.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>

#include "record_style.h"
#include "record_text.h"
#include "summary.h"

namespace tandekor::line
{

namespace
{

constexpr size_t histogramColumns = 24;
constexpr size_t lastRuns = 50;
constexpr size_t mostShownFailures = 15;
constexpr size_t mostNamedFiles = 20;
constexpr double goodCpk = 1.33;  // usual for a process under control
constexpr double badCpk = 1.0;    // some are out of their limits

// A link to another file of the folder, whatever its name holds.
std::string Address(const std::string& name)
{
    std::string address = "./";
    for (const char character : name)
    {
        const bool plain
            = std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '-' || character == '_';
        constexpr std::string_view digits = "0123456789ABCDEF";
        const auto byte = static_cast<uint8_t>(character);
        address += plain ? std::string{character} : std::string{'%', digits[byte >> 4], digits[byte & 15]};
    }
    return address + ".html";
}

std::string Tile(std::string_view cssClass, const std::string& value, std::string_view name)
{
    return "<li class=\"" + std::string{cssClass} + "\"><b>" + value + "</b>" + std::string{name} + "</li>";
}

std::string Failures(const Summary& summary)
{
    const auto failures = FailuresByTest(summary);
    std::string html = "<h2>Failures by test</h2>\n";
    if (failures.empty())
        return html + "<p>No test failed.</p>\n";
    const auto table = [&](size_t first, size_t last)
    {
        std::string rows
            = "<table><thead><tr><th>Test</th><th class=\"number\">Runs</th><th class=\"number\">Of all</th>"
              "<td class=\"bar\"></td></tr></thead><tbody>\n";
        for (; first < last; ++first)
        {
            const auto& [test, count] = failures[first];
            rows += "<tr><td>" + Escaped(test) + "</td><td class=\"number\">" + std::to_string(count)
                    + "</td><td class=\"number\">" + PercentText(count, summary.runs.size()) + "</td><td class=\"bar\">"
                    + ShareBar(static_cast<double>(count) / static_cast<double>(failures.front().second), "failed")
                    + "</td></tr>\n";
        }
        return rows + "</tbody></table>\n";
    };
    html += table(0, std::min(failures.size(), mostShownFailures));
    if (failures.size() > mostShownFailures)
        html += "<details><summary>" + std::to_string(failures.size() - mostShownFailures) + " more tests</summary>"
                + table(mostShownFailures, failures.size()) + "</details>\n";
    return html;
}

std::string Stations(const Summary& summary)
{
    std::map<std::string, std::vector<RunInShort>> stations;
    for (const RunInShort& run : summary.runs)
        stations[run.station].push_back(run);
    std::string html
        = "<h2>Stations</h2>\n<table><thead><tr><th>Station</th><th class=\"number\">Runs</th>"
          "<th class=\"number\">Phones</th><th class=\"number\">Yield</th><th class=\"number\">First pass</th>"
          "</tr></thead><tbody>\n";
    for (const auto& [station, runs] : stations)
    {
        const Yield yield = YieldOf(runs);
        html += "<tr><td>" + (station.empty() ? "<span class=\"soft\">without a name</span>" : Escaped(station))
                + "</td><td class=\"number\">" + std::to_string(yield.runs) + "</td><td class=\"number\">"
                + std::to_string(yield.phones) + "</td><td class=\"number\">"
                + PercentText(yield.goodAtLast, yield.phones) + "</td><td class=\"number\">"
                + PercentText(yield.goodAtFirst, yield.phones) + "</td></tr>\n";
    }
    return html + "</tbody></table>\n";
}

// The ends of a histogram: limits and values, but values far out of the limits are gathered in the outermost columns.
std::pair<double, double> Ends(const Series& series, const Spread& spread)
{
    double from = std::min(spread.low, series.limit.low.value_or(spread.low));
    double to = std::max(spread.high, series.limit.high.value_or(spread.high));
    if (series.limit.low && series.limit.high && *series.limit.high > *series.limit.low)
    {
        const double margin = (*series.limit.high - *series.limit.low) / 2;
        from = std::max(from, *series.limit.low - margin);
        to = std::min(to, *series.limit.high + margin);
    }
    const double edge = to > from ? (to - from) * 0.04 : std::max(std::abs(to) * 0.1, 1.0);
    return {from - edge, to + edge};
}

std::string Histogram(const Series& series, const Spread& spread)
{
    const auto [from, to] = Ends(series, spread);
    const double width = (to - from) / histogramColumns;
    struct Column
    {
        size_t good = 0;
        size_t bad = 0;
    };
    std::vector<Column> columns(histogramColumns);
    for (const double value : series.values)
    {
        const double index = std::clamp((value - from) / width, 0.0, histogramColumns - 1.0);
        Column& column = columns[static_cast<size_t>(index)];
        const bool bad = value < series.limit.low.value_or(value) || value > series.limit.high.value_or(value);
        ++(bad ? column.bad : column.good);
    }
    size_t most = 1;
    for (const Column& column : columns)
        most = std::max(most, column.good + column.bad);

    constexpr double height = 90;
    const double low = from;
    const double all = to - from;
    const auto across = [low, all](double value) { return Across((value - low) / all); };
    std::string svg = "<svg height=\"112\" role=\"img\" aria-label=\"Histogram of "
                      + std::to_string(series.values.size()) + " values from " + NumberText(spread.low) + " to "
                      + NumberText(spread.high) + "\">";
    for (size_t index = 0; index < columns.size(); ++index)
    {
        double bottom = height;
        for (const auto& [count, name] :
             {std::pair{columns[index].good, "passed"}, std::pair{columns[index].bad, "failed"}})
        {
            if (count == 0)
                continue;
            const double size = std::max(height * 0.92 * static_cast<double>(count) / static_cast<double>(most), 1.5);
            bottom -= size;
            svg += "<rect class=\"share " + std::string{name} + "\" x=\""
                   + Across((static_cast<double>(index) + 0.06) / histogramColumns) + "\" width=\""
                   + Across(0.88 / histogramColumns) + "\" y=\"" + Fixed(bottom, 1) + "\" height=\"" + Fixed(size, 1)
                   + "\"><title>" + std::to_string(count) + "</title></rect>";
        }
    }
    svg += "<rect class=\"rail\" y=\"90\" width=\"100%\" height=\"2\"/>";
    for (const auto& limit : {series.limit.low, series.limit.high})
        if (limit)
            svg += "<line class=\"limit\" x1=\"" + across(*limit) + "\" x2=\"" + across(*limit)
                   + "\" y1=\"0\" y2=\"94\"/><text text-anchor=\"middle\" y=\"108\" x=\"" + across(*limit) + "\">"
                   + NumberText(*limit) + "</text>";
    return svg + "</svg>";
}

std::string Card(const std::string& name, const std::string& unit, const Series& series, const Spread& spread)
{
    const int decimals
        = spread.deviation > 0 ? std::clamp(2 - static_cast<int>(std::floor(std::log10(spread.deviation))), 0, 9) : 2;
    const Verdict verdict = !spread.cpk             ? Verdict::Skipped
                            : *spread.cpk < badCpk  ? Verdict::Failed
                            : *spread.cpk < goodCpk ? Verdict::NotJudged
                                                    : Verdict::Passed;
    const std::string cssClass{VerdictName(verdict)};
    const std::string tail = unit.empty() ? "" : " " + Escaped(unit);
    return "<div class=\"card " + cssClass + "\"><header><h3>" + Escaped(name) + "</h3><span class=\"badge " + cssClass
           + "\">" + (spread.cpk ? "Cpk " + Fixed(*spread.cpk, 2) : "no Cpk") + "</span></header>\n"
           + Histogram(series, spread) + "<p class=\"number\">mean " + Fixed(spread.mean, decimals) + ", sigma "
           + Fixed(spread.deviation, decimals) + tail + "</p><p class=\"soft\">" + std::to_string(series.values.size())
           + " values from " + NumberText(spread.low) + " to " + NumberText(spread.high) + tail + "; "
           + Escaped(LimitText(series.limit, unit))
           + (series.limitChanged ? "; limits have changed, these are the latest" : "") + "</p></div>\n";
}

std::string Measures(const Summary& summary)
{
    struct Drawn
    {
        double order;
        std::string html;
    };
    std::vector<Drawn> measures;
    for (const auto& [name, series] : summary.series)
    {
        const Spread spread = SpreadOf(series);
        measures.push_back({spread.cpk.value_or(std::numeric_limits<double>::infinity()),
                            Card(name.first, name.second, series, spread)});
    }
    if (measures.empty())
        return {};
    std::ranges::stable_sort(measures, {}, &Drawn::order);
    std::string html = "<h2>Measures, lowest Cpk first</h2>\n<div class=\"columns\">\n";
    for (const Drawn& measure : measures)
        html += measure.html;
    return html + "</div>\n";
}

std::string LastRuns(const Summary& summary)
{
    const size_t count = std::min(lastRuns, summary.runs.size());
    std::string html = "<h2>Last " + std::to_string(count) + " runs</h2>\n<table class=\"stack\"><thead><tr><th>Verdict</th>"
                       "<th>Start</th><th>Phone</th><th>Station</th><th class=\"number\">Duration</th><th>Failed</th></tr>"
                       "</thead><tbody>\n";
    for (size_t index = summary.runs.size(); index > summary.runs.size() - count; --index)
    {
        const RunInShort& run = summary.runs[index - 1];
        std::string failed;
        for (const std::string& test : run.failedTests)
            failed += (failed.empty() ? "" : ", ") + Escaped(test);
        html += "<tr><td>" + Badge(run.verdict) + (run.interrupted ? " interrupted" : "") + "</td><td class=\"number\">"
                + Escaped(TimeForPerson(run.start)) + "</td><td><a href=\"" + Address(run.name) + "\">"
                + (run.dut.empty() ? Escaped(run.name) : Escaped(run.dut)) + "</a></td><td>" + Escaped(run.station)
                + "</td><td class=\"number\">" + DurationText(run.durationMs) + "</td><td class=\"wide\">" + failed
                + "</td></tr>\n";
    }
    return html + "</tbody></table>\n";
}

}  // namespace

std::string PageOf(const Summary& summary)
{
    const Yield yield = YieldOf(summary.runs);
    const auto simulated = static_cast<size_t>(std::ranges::count(summary.runs, true, &RunInShort::simulatedTime));
    const auto interrupted = static_cast<size_t>(std::ranges::count(summary.runs, true, &RunInShort::interrupted));
    std::string html = PageHead("Summary of the line", Verdict::Skipped) + "<h1>Summary of the line</h1>\n";
    if (summary.runs.empty())
        html += "<p>There are no records.</p>\n";
    else
        html += "<p class=\"soft\">" + Escaped(TimeForPerson(summary.runs.front().start)) + " to "
                + Escaped(TimeForPerson(summary.runs.back().start)) + "</p>\n";
    html += "<ul class=\"counts\">" + Tile("", PercentText(yield.goodAtLast, yield.phones), "yield")
            + Tile("", PercentText(yield.goodAtFirst, yield.phones), "first-pass yield")
            + Tile("", std::to_string(yield.phones), "phones judged") + Tile("", std::to_string(yield.runs), "runs");
    if (interrupted > 0)
        html += Tile("not_judged", std::to_string(interrupted), "interrupted");
    if (!summary.unreadable.empty())
        html += Tile("failed", std::to_string(summary.unreadable.size()), "unreadable");
    html += "</ul>\n";
    if (simulated > 0)
        html += "<p class=\"badge not_judged\">" + std::to_string(simulated)
                + " of the runs were in simulated time</p>\n";
    html += Failures(summary) + Measures(summary) + Stations(summary) + LastRuns(summary);
    if (!summary.unreadable.empty())
    {
        html += "<h2>Not readable as records</h2>\n<ul>";
        for (size_t index = 0; index < std::min(summary.unreadable.size(), mostNamedFiles); ++index)
            html += "<li>" + Escaped(summary.unreadable[index]) + "</li>";
        html += "</ul>\n";
        if (summary.unreadable.size() > mostNamedFiles)
            html += "<p>and " + std::to_string(summary.unreadable.size() - mostNamedFiles) + " more</p>\n";
    }
    return html + "<footer>Yield: phones whose latest run passed. First pass: whose first run passed with no test retried. "
                  "Interrupted runs and runs that were not judged are left out of both.</footer>\n" + PageFoot();
}

}  // namespace tandekor::line
