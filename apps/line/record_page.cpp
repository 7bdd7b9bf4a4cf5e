// The page of one run: verdict first, then what failed with its log, every measure between its limits, every test.
#include <algorithm>
#include <cmath>

#include "record_formats.h"
#include "record_style.h"
#include "record_text.h"

namespace tandekor::line
{

namespace
{

// Where the limits stand across every bar, so that bars under each other compare.
constexpr double lowPlace = 0.2;
constexpr double highPlace = 0.8;

// Where the number stands across a bar; 0 to 1, and further out is drawn at the edge.
double Place(const Limit& limit, double number)
{
    const double low = limit.low.value_or(*limit.high);
    const double high = limit.high.value_or(low);
    if (high > low)
        return lowPlace + (number - low) / (high - low) * (highPlace - lowPlace);
    // One limit alone: its own size is the scale, or twice the distance where that is more.
    const double middle = limit.low && limit.high ? 0.5 : limit.low ? lowPlace : highPlace;
    const double scale = std::max(std::abs(low), 2 * std::abs(number - low));
    return scale > 0 ? middle + (number - low) / scale * (highPlace - lowPlace) : middle;
}

std::string Bar(const Measure& measure)
{
    const double* number = std::get_if<double>(&measure.value);
    const Limit& limit = measure.limit;
    if (number == nullptr || !std::isfinite(*number) || (!limit.low && !limit.high))
        return {};
    const bool exact = limit.low && limit.high && *limit.low == *limit.high;
    const double from = exact ? 0.49 : limit.low ? lowPlace : 0.0;
    const double to = exact ? 0.51 : limit.high ? highPlace : 1.0;
    const double place = Place(limit, *number);
    std::string svg = "<svg height=\"34\" role=\"img\" aria-label=\"" + Escaped(ValueText(measure)) + ", allowed "
                      + Escaped(LimitText(limit, measure.unit))
                      + "\"><rect class=\"rail\" y=\"5\" width=\"100%\" height=\"12\" "
                      + "rx=\"3\"/><rect class=\"band\" x=\"" + Across(from) + "\" y=\"5\" width=\"" + Across(to - from)
                      + "\" height=\"12\"/>";
    const auto label = [&svg](double at, double text)
    { svg += "<text x=\"" + Across(at) + "\" y=\"32\" text-anchor=\"middle\">" + NumberText(text) + "</text>"; };
    if (exact)
        label(0.5, *limit.low);
    else
    {
        if (limit.low)
            label(lowPlace, *limit.low);
        if (limit.high)
            label(highPlace, *limit.high);
    }
    const std::string x = Across(std::clamp(place, 0.015, 0.985));
    if (measure.verdict == Verdict::Failed)  // a cross among dots, for who sees no colours
        svg += "<svg x=\"" + x + "\" y=\"11\"><path class=\"mark\" transform=\"rotate(45)\" "
               "d=\"M-9-3h6v-6h6v6h6v6h-6v6h-6v-6h-6z\"/></svg>";
    else
        svg += "<circle class=\"mark\" cx=\"" + x + "\" cy=\"11\" r=\"7\"/>";
    return svg + "</svg>";
}

std::string MeasureRow(const TestRecord& test, const Measure& measure)
{
    return "<tr class=\"" + std::string{VerdictName(measure.verdict)} + "\"><td>" + Escaped(FullName(test, measure))
           + "</td><td class=\"number\"><b>" + Escaped(ValueText(measure)) + "</b></td><td class=\"bar\">"
           + Bar(measure) + "</td><td>" + Escaped(LimitText(measure.limit, measure.unit)) + "</td><td>"
           + Badge(measure.verdict) + "</td></tr>\n";
}

constexpr std::string_view measureTable
    = "<table class=\"stack\"><thead><tr><th>Measure</th><th class=\"number\">Value</th><th>Between its limits</th>"
      "<th>Allowed</th><th>Verdict</th></tr></thead>\n<tbody>\n";

// The lines of the log, the failed step marked.
std::string LogOf(const TestRecord& test)
{
    std::string html = "<pre tabindex=\"0\" aria-label=\"Log of " + Escaped(test.name) + "\">";
    bool found = false;
    for (const std::string& line : test.logLines)
    {
        const bool failed = !found && !test.failedStep.empty() && line.find(test.failedStep) != std::string::npos;
        found = found || failed;
        html += failed ? "<mark>" + Escaped(line) + "</mark>" : Escaped(line) + "\n";
    }
    return html + "</pre>\n";
}

std::string Failure(const TestRecord& test, size_t number)
{
    std::string html = "<article class=\"card failed\" id=\"failure-" + std::to_string(number) + "\"><header>"
                       + Badge(test.verdict) + "<h3>" + Escaped(test.group) + " / " + Escaped(test.name)
                       + "</h3><span class=\"soft\">" + Escaped(test.description) + "</span></header>\n<p>"
                       + Escaped(test.text) + "</p>\n<dl class=\"cause\">";
    if (!test.failedStep.empty())
        html += "<dt>Failed step</dt><dd><code>" + Escaped(test.failedStep) + "</code></dd>";
    if (!test.failedFunction.empty())
        html += "<dt>In function</dt><dd><code>" + Escaped(test.failedFunction) + "</code></dd>";
    if (test.attempts > 1)
        html += "<dt>Attempts</dt><dd>" + std::to_string(test.attempts) + "</dd>";
    html += "</dl>\n";
    if (std::ranges::any_of(test.measures, [](const Measure& measure) { return measure.verdict == Verdict::Failed; }))
    {
        html += measureTable;
        for (const Measure& measure : test.measures)
            html += MeasureRow(test, measure);
        html += "</tbody></table>\n";
    }
    return html + (test.logLines.empty() ? "<p class=\"soft\">Nothing in the log.</p>\n" : LogOf(test))
           + "</article>\n";
}

std::string TestRow(const TestRecord& test, uint32_t longestMs)
{
    std::string html = "<tr class=\"" + std::string{VerdictName(test.verdict)} + "\"><td>" + Badge(test.verdict)
                       + "</td><td><b>" + Escaped(test.name) + "</b></td><td class=\"wide\">" + Escaped(test.text);
    if (test.attempts > 1)
        html += " <span class=\"soft\">(" + std::to_string(test.attempts) + " attempts)</span>";
    html += "<div class=\"soft\">" + Escaped(test.description);
    if (!test.changes.empty() && test.changes != "nothing")
        html += "; changes: " + Escaped(test.changes);
    html += "</div>";
    if (!test.logLines.empty())
        html += "<details><summary>" + std::to_string(test.logLines.size()) + " lines of log</summary>" + LogOf(test)
                + "</details>";
    html += "</td><td class=\"number\">";
    if (test.verdict != Verdict::NotRun && test.verdict != Verdict::Skipped)
        html += DurationText(test.durationMs)
                + ShareBar(longestMs == 0 ? 0.0 : static_cast<double>(test.durationMs) / longestMs, "skipped");
    return html + "</td></tr>\n";
}

std::string Banner(const RunRecord& record, const std::vector<const TestRecord*>& failed)
{
    std::string html = "<div class=\"banner " + std::string{VerdictName(record.verdict)} + "\"><div class=\"verdict\">"
                       + std::string{VerdictSign(record.verdict)} + " " + std::string{VerdictShown(record.verdict)}
                       + "</div><div><h1>Phone " + (record.dut.empty() ? "without a name" : Escaped(record.dut))
                       + "</h1>\n<p>";
    if (record.interrupted)
        html += "<b>Interrupted before the end.</b> ";
    html += failed.empty() ? "No test failed." : "Failed:";
    for (size_t number = 0; number < failed.size(); ++number)
        html += (number == 0 ? " <a href=\"#failure-" : ", <a href=\"#failure-") + std::to_string(number) + "\">"
                + Escaped(failed[number]->name) + "</a>";
    html += "</p></div></div>\n<ul class=\"counts\">";
    for (const Verdict verdict :
         {Verdict::Passed, Verdict::Failed, Verdict::NotJudged, Verdict::Skipped, Verdict::NotRun})
        html += "<li class=\"" + std::string{VerdictName(verdict)} + "\"><b>"
                + std::to_string(std::ranges::count(record.tests, verdict, &TestRecord::verdict)) + "</b>"
                + std::string{VerdictShown(verdict)} + "</li>";
    return html + "</ul>\n";
}

std::string Facts(const RunRecord& record)
{
    const std::string log = Escaped(LogName(record));
    return "<dl class=\"facts\">\n" + Fact("Start", TimeForPerson(TimeText(record.start)))
           + Fact("Duration", DurationText(record.durationMs) + (record.simulatedTime ? " of simulated time" : ""))
           + Fact("Station", Escaped(record.station)) + Fact("Operator", Escaped(record.operatorName))
           + Fact("Machine", Escaped(record.host)) + Fact("Connected to", Escaped(record.phone))
           + Fact("Phone software", Escaped(record.phoneVersion)) + Fact("Library", Escaped(record.libraryVersion))
           + Fact("Host library", Escaped(record.hostVersion))
           + Fact("Log", log.empty() ? "" : "<a href=\"./" + log + "\">" + log + "</a>") + "</dl>\n";
}

}  // namespace

std::string LogName(const RunRecord& record) { return record.logFile.substr(record.logFile.find_last_of("/\\") + 1); }

std::string PageOf(const RunRecord& record)
{
    std::vector<const TestRecord*> failed;
    uint32_t longestMs = 0;
    std::string measures;
    std::string tests;
    for (const TestRecord& test : record.tests)
    {
        if (test.verdict == Verdict::Failed)
            failed.push_back(&test);
        longestMs = std::max(longestMs, test.durationMs);
        for (const Measure& measure : test.measures)
            measures += MeasureRow(test, measure);
    }
    const std::string* group = nullptr;
    for (const TestRecord& test : record.tests)
    {
        if (group == nullptr || *group != test.group)
            tests += "<tr class=\"group\"><th colspan=\"4\" scope=\"colgroup\">" + Escaped(test.group) + "</th></tr>\n";
        group = &test.group;
        tests += TestRow(test, longestMs);
    }

    std::string html = PageHead(std::string{VerdictShown(record.verdict)} + " " + record.dut, record.verdict)
                       + Banner(record, failed) + Facts(record);
    if (!failed.empty())
        html += "<h2>Failures</h2>\n";
    for (size_t number = 0; number < failed.size(); ++number)
        html += Failure(*failed[number], number);
    if (!measures.empty())
        html += "<h2>Measures</h2>\n" + std::string{measureTable} + measures + "</tbody></table>\n";
    html += "<h2>Tests</h2>\n<table class=\"stack\"><thead><tr><th>Verdict</th><th>Test</th><th>Result</th>"
            "<th class=\"number\">Duration</th></tr></thead>\n<tbody>\n";
    return html + tests + "</tbody></table>\n" + PageFoot();
}

}  // namespace tandekor::line
