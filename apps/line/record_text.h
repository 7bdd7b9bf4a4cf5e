// How the values of a record are written, the same in every file: texts, numbers, times, verdicts and limits.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "record.h"

namespace tandekor::line
{

// Control characters (but tabs and line ends) and bytes that are not UTF-8 are shown as \xNN.
std::string Readable(std::string_view text);

// Readable, and safe in HTML and XML, in an attribute as well.
std::string Escaped(std::string_view text);

// As few digits as lead back to the same number.
std::string NumberText(double number);
std::string Fixed(double number, int decimals);

// 2026-11-24T21:31:15.123Z, and for a person 2026-11-24 21:31:15 UTC.
std::string TimeText(std::chrono::system_clock::time_point time);
std::string TimeForPerson(std::string_view timeText);

// 23.0 s, or 3 min 05 s.
std::string DurationText(uint32_t durationMs);

// How a verdict is named in files, and how it is shown.
std::string_view VerdictName(Verdict verdict);
const char* VerdictShown(Verdict verdict);

std::string ValueText(const Measure& measure);
std::string LimitText(const Limit& limit, const std::string& unit);

// The name of a measure in station files: battery.charge.
std::string FullName(const TestRecord& test, const Measure& measure);

}  // namespace tandekor::line
