// The record as JSON. What a page over many records needs comes first and the log last, so that such a reader can stop
// at the log, which is most of the file.
#include <nlohmann/json.hpp>

#include "record_formats.h"
#include "record_text.h"

namespace tandekor::line
{

namespace
{

using Json = nlohmann::ordered_json;

Json JsonOf(const Measure& measure)
{
    Json json{{"name", Readable(measure.name)}};
    if (const double* number = std::get_if<double>(&measure.value))
        json["value"] = *number;
    else
        json["value"] = Readable(std::get<std::string>(measure.value));
    json["unit"] = Readable(measure.unit);
    if (measure.limit.low)
        json["low"] = *measure.limit.low;
    if (measure.limit.high)
        json["high"] = *measure.limit.high;
    if (measure.limit.text)
        json["expected"] = Readable(*measure.limit.text);
    json["verdict"] = VerdictName(measure.verdict);
    return json;
}

Json JsonOf(const TestRecord& test)
{
    Json measures = Json::array();
    for (const Measure& measure : test.measures)
        measures.push_back(JsonOf(measure));
    return {{"group", Readable(test.group)},
            {"name", Readable(test.name)},
            {"description", Readable(test.description)},
            {"changes", Readable(test.changes)},
            {"verdict", VerdictName(test.verdict)},
            {"text", Readable(test.text)},
            {"failed_step", Readable(test.failedStep)},
            {"failed_function", Readable(test.failedFunction)},
            {"duration_ms", test.durationMs},
            {"attempts", test.attempts},
            {"measures", std::move(measures)}};
}

}  // namespace

std::string JsonOf(const RunRecord& record)
{
    Json tests = Json::array();
    Json log = Json::array();
    for (const TestRecord& test : record.tests)
    {
        tests.push_back(JsonOf(test));
        Json lines = Json::array();
        for (const std::string& line : test.logLines)
            lines.push_back(Readable(line));
        if (!lines.empty())
            log.push_back(
                {{"group", Readable(test.group)}, {"test", Readable(test.name)}, {"lines", std::move(lines)}});
    }
    const Json json{{"format", 1},
                    {"dut", Readable(record.dut)},
                    {"verdict", VerdictName(record.verdict)},
                    {"interrupted", record.interrupted},
                    {"start", TimeText(record.start)},
                    {"end", TimeText(record.end)},
                    {"duration_ms", record.durationMs},
                    {"simulated_time", record.simulatedTime},
                    {"station", Readable(record.station)},
                    {"operator", Readable(record.operatorName)},
                    {"host", Readable(record.host)},
                    {"phone", Readable(record.phone)},
                    {"library_version", Readable(record.libraryVersion)},
                    {"host_version", Readable(record.hostVersion)},
                    {"phone_version", Readable(record.phoneVersion)},
                    {"log_file", Readable(LogName(record))},
                    {"tests", std::move(tests)},
                    {"log", std::move(log)}};
    return json.dump(1) + "\n";
}

}  // namespace tandekor::line
