#include "record_text.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace tandekor::line
{

namespace
{

constexpr std::array<std::string_view, 5> verdictNames{"passed", "failed", "not_judged", "skipped", "not_run"};
constexpr std::array<const char*, 5> verdictsShown{"PASS", "FAIL", "NOT JUDGED", "SKIPPED", "NOT RUN"};

uint8_t ByteAt(std::string_view text, size_t index)
{
    return index < text.size() ? static_cast<uint8_t>(text[index]) : uint8_t{0};
}

// The length of the character that begins here, 0 if it is none or none that every file may hold.
size_t CharacterLength(std::string_view text)
{
    const uint8_t first = ByteAt(text, 0);
    if (first < 0x80)
        return (first >= 0x20 && first != 0x7F) || first == '\n' || first == '\t' ? 1 : 0;
    const size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    uint32_t code = first & (0xFFU >> (length + 1));
    for (size_t index = 1; index < length; ++index)
    {
        if ((ByteAt(text, index) & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (ByteAt(text, index) & 0x3FU);
    }
    const bool tooLong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool control = code < 0xA0 || code == 0xFFFE || code == 0xFFFF;
    const bool turnsDirection = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    return tooLong || surrogate || control || turnsDirection || code > 0x10FFFF ? 0 : length;
}

}  // namespace

std::string Readable(std::string_view text)
{
    std::string readable;
    readable.reserve(text.size());
    while (!text.empty())
    {
        size_t length = CharacterLength(text);
        if (length > 0)
            readable += text.substr(0, length);
        else
        {
            std::array<char, 8> code{};
            std::snprintf(code.data(), code.size(), "\\x%02X", static_cast<unsigned>(ByteAt(text, 0)));
            readable += code.data();
            length = 1;
        }
        text.remove_prefix(length);
    }
    return readable;
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char character : Readable(text))
        switch (character)
        {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\'':
                escaped += "&#39;";
                break;
            case '\n':
                escaped += "&#10;";
                break;
            case '\t':
                escaped += "&#9;";
                break;
            default:
                escaped += character;
        }
    return escaped;
}

std::string NumberText(double number)
{
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

std::string Fixed(double number, int decimals)
{
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, number);
    return text.data();
}

std::string TimeText(std::chrono::system_clock::time_point time)
{
    const auto day = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date{day};
    const std::chrono::hh_mm_ss clock{std::chrono::floor<std::chrono::milliseconds>(time - day)};
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
    return text.data();
}

std::string TimeForPerson(std::string_view timeText)
{
    return timeText.size() < 19
               ? std::string{timeText}
               : std::string{timeText.substr(0, 10)} + " " + std::string{timeText.substr(11, 8)} + " UTC";
}

std::string DurationText(uint32_t durationMs)
{
    if (durationMs < 100'000)
        return Fixed(durationMs / 1000.0, 1) + " s";
    const uint32_t seconds = (durationMs + 500) / 1000;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%u min %02u s", seconds / 60, seconds % 60);
    return text.data();
}

std::string_view VerdictName(Verdict verdict) { return verdictNames.at(static_cast<size_t>(verdict)); }

const char* VerdictShown(Verdict verdict) { return verdictsShown.at(static_cast<size_t>(verdict)); }

std::string ValueText(const Measure& measure)
{
    const double* number = std::get_if<double>(&measure.value);
    const std::string value = number != nullptr ? NumberText(*number) : std::get<std::string>(measure.value);
    return measure.unit.empty() ? value : value + " " + measure.unit;
}

std::string LimitText(const Limit& limit, const std::string& unit)
{
    const std::string tail = unit.empty() ? "" : " " + unit;
    if (limit.text)
        return (limit.text->find('|') == std::string::npos ? "exactly \"" : "one of \"") + *limit.text + "\"";
    if (limit.low && limit.high)
        return *limit.low == *limit.high ? "exactly " + NumberText(*limit.low) + tail
                                         : NumberText(*limit.low) + " to " + NumberText(*limit.high) + tail;
    if (limit.low)
        return "at least " + NumberText(*limit.low) + tail;
    if (limit.high)
        return "at most " + NumberText(*limit.high) + tail;
    return "no limit";
}

std::string FullName(const TestRecord& test, const Measure& measure) { return test.name + "." + measure.name; }

}  // namespace tandekor::line
