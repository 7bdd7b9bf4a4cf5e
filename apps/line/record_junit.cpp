// The record as JUnit XML, for CI servers: a suite is a group, a case is a test. What was not judged, skipped or not
// run is skipped there, with the reason; a run that did not reach its end has an error of its own, so that it is not
// taken for a good one.
#include <algorithm>
#include <numeric>

#include "record_formats.h"
#include "record_text.h"

namespace tandekor::line
{

namespace
{

std::string Attribute(const char* name, std::string_view value)
{
    return std::string{" "} + name + "=\"" + Escaped(value) + "\"";
}

std::string Counts(int64_t tests, int64_t failures, int64_t errors, uint64_t durationMs)
{
    return Attribute("tests", std::to_string(tests)) + Attribute("failures", std::to_string(failures))
           + Attribute("errors", std::to_string(errors))
           + Attribute("time", Fixed(static_cast<double>(durationMs) / 1000.0, 3));
}

bool IsFailed(const TestRecord& test) { return test.verdict == Verdict::Failed; }
bool IsSkipped(const TestRecord& test) { return test.verdict != Verdict::Passed && !IsFailed(test); }

std::string Shown(const TestRecord& test, const Measure& measure)
{
    return FullName(test, measure) + " " + ValueText(measure) + " [" + LimitText(measure.limit, measure.unit) + "] "
           + VerdictShown(measure.verdict);
}

// What the test says itself, and the measures that its limits refused.
std::string Reason(const TestRecord& test)
{
    std::string reason = test.text;
    for (const Measure& measure : test.measures)
    {
        if (measure.verdict == Verdict::Failed)
            reason += (reason.empty() ? "" : ", ") + Shown(test, measure);
    }
    return reason;
}

std::string Case(const TestRecord& test)
{
    std::string xml = "  <testcase" + Attribute("classname", test.group) + Attribute("name", test.name)
                      + Attribute("time", Fixed(test.durationMs / 1000.0, 3)) + ">\n";
    if (IsSkipped(test))
        xml += "   <skipped" + Attribute("message", std::string{VerdictShown(test.verdict)} + ": " + test.text)
               + "/>\n";
    if (IsFailed(test))
        xml += "   <failure" + Attribute("message", Reason(test)) + Attribute("type", test.failedFunction) + ">"
               + Escaped(test.failedStep) + "</failure>\n";
    std::string output;
    for (const Measure& measure : test.measures)
        output += Shown(test, measure) + "\n";
    for (const std::string& line : test.logLines)
        output += line + "\n";
    if (!output.empty())
        xml += "   <system-out>" + Escaped(output) + "</system-out>\n";
    return xml + "  </testcase>\n";
}

}  // namespace

std::string JunitOf(const RunRecord& record)
{
    const auto& tests = record.tests;
    const int64_t errors = record.interrupted ? 1 : 0;
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites" + Attribute("name", record.dut)
                      + Counts(static_cast<int64_t>(tests.size()) + errors, std::ranges::count_if(tests, IsFailed),
                               errors, record.durationMs)
                      + ">\n";
    const std::string place = Attribute("timestamp", TimeText(record.start).substr(0, 19))
                              + Attribute("hostname", record.host.empty() ? "unknown" : record.host);
    for (auto first = tests.begin(); first != tests.end();)
    {
        const auto last
            = std::find_if(first, tests.end(), [&](const TestRecord& test) { return test.group != first->group; });
        const uint64_t durationMs = std::accumulate(
            first, last, uint64_t{0}, [](uint64_t sum, const TestRecord& test) { return sum + test.durationMs; });
        xml += " <testsuite" + Attribute("name", first->group)
               + Counts(last - first, std::count_if(first, last, IsFailed), 0, durationMs)
               + Attribute("skipped", std::to_string(std::count_if(first, last, IsSkipped))) + place
               + ">\n  <properties>\n";
        for (const auto& [name, value] :
             {std::pair{"dut", record.dut}, std::pair{"station", record.station},
              std::pair{"operator", record.operatorName}, std::pair{"phone", record.phone},
              std::pair{"library_version", record.libraryVersion}, std::pair{"host_version", record.hostVersion},
              std::pair{"phone_version", record.phoneVersion}})
            xml += "   <property" + Attribute("name", name) + Attribute("value", value) + "/>\n";
        xml += "  </properties>\n";
        for (; first != last; ++first)
            xml += Case(*first);
        xml += " </testsuite>\n";
    }
    if (record.interrupted)
        xml += " <testsuite" + Attribute("name", "run") + Counts(1, 0, 1, 0) + place
               + ">\n  <testcase classname=\"run\" name=\"complete\" time=\"0\">\n"
                 "   <error message=\"the run was interrupted\" type=\"interrupted\"/>\n  </testcase>\n </testsuite>\n";
    return xml + "</testsuites>\n";
}

}  // namespace tandekor::line
