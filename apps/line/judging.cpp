#include "judging.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "record_text.h"

namespace tandekor::line
{

namespace
{

std::string Trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// An empty text is no bound.
bool ReadBound(const std::string& text, std::optional<double>& bound)
{
    if (text.empty())
        return true;
    char* end = nullptr;
    bound = std::strtod(text.c_str(), &end);
    return *end == '\0' && std::isfinite(*bound);
}

bool IsText(const Quantity& quantity) { return quantity.unit == std::string(textUnit); }

bool IsOneOf(const std::string& value, const std::string& alternatives)
{
    size_t start = 0;
    while (start <= alternatives.size())
    {
        const size_t end = std::min(alternatives.find('|', start), alternatives.size());
        if (Trimmed(alternatives.substr(start, end - start)) == value)
            return true;
        start = end + 1;
    }
    return false;
}

bool Keeps(const Measure& measure)
{
    if (const auto* text = std::get_if<std::string>(&measure.value))
        return measure.limit.text && IsOneOf(*text, *measure.limit.text);
    const double value = std::get<double>(measure.value);
    return (!measure.limit.low || value >= *measure.limit.low) && (!measure.limit.high || value <= *measure.limit.high);
}

std::string Shown(const Limit& limit)
{
    if (limit.text)
        return *limit.text;
    return (limit.low ? NumberText(*limit.low) : "") + ".." + (limit.high ? NumberText(*limit.high) : "");
}

}  // namespace

std::string ReadLimit(const std::string& text, const Quantity& quantity, Limit& limit)
{
    limit = {};
    std::string bounds = Trimmed(text);
    if (IsText(quantity))
    {
        limit.text = bounds;
        return bounds.empty() ? "a text is missing" : "";
    }
    const std::string unit = quantity.unit;
    if (!unit.empty())
    {
        if (!bounds.ends_with(unit))
            return "the unit has to be " + unit + ", as in 1..2 " + unit + ", not '" + bounds + "'";
        bounds = Trimmed(bounds.substr(0, bounds.size() - unit.size()));
    }
    const size_t dots = bounds.find("..");
    const std::string low = Trimmed(bounds.substr(0, dots));
    const std::string high = dots == std::string::npos ? low : Trimmed(bounds.substr(dots + 2));
    if (!ReadBound(low, limit.low) || !ReadBound(high, limit.high) || (!limit.low && !limit.high))
        return "no limits" + (unit.empty() ? "" : " in " + unit) + ", as in 1..2: '" + bounds + "'";
    if (limit.low && limit.high && *limit.low > *limit.high)
        return "the lower limit is above the upper one: '" + bounds + "'";
    return "";
}

void Judge(const Test& test, const Options& options, Outcome& outcome)
{
    const bool done = !outcome.Is(Verdict::Failed);
    for (const Quantity& quantity : test.measures)
    {
        if (quantity.name == nullptr)
            break;
        const auto limit = options.limits.find(std::string(test.name) + '.' + quantity.name);
        const bool hasLimit = limit != options.limits.end();
        const auto measure = std::find_if(outcome.measures.begin(), outcome.measures.end(),
                                          [&](const Measure& one) { return one.name == quantity.name; });
        if (measure == outcome.measures.end())
        {
            if (hasLimit && done)
            {
                outcome.verdict = Verdict::Failed;
                outcome.text += (outcome.text.empty() ? "" : "\n") + limit->first + " was not measured ["
                                + Shown(limit->second) + ']';
            }
            continue;
        }
        if (!IsText(quantity))
            measure->unit = quantity.unit;
        if (!hasLimit)
            continue;
        measure->limit = limit->second;
        measure->verdict = Keeps(*measure) ? Verdict::Passed : Verdict::Failed;
        if (measure->verdict == Verdict::Failed || outcome.Is(Verdict::NotJudged))
            outcome.verdict = measure->verdict;
    }
}

std::string Shown(const std::string& test, const Measure& measure)
{
    return test + '.' + measure.name + ' ' + Readable(ValueText(measure))
           + (measure.verdict == Verdict::NotJudged ? "" : " [" + Shown(measure.limit) + ']') + ' '
           + VerdictShown(measure.verdict);
}

}  // namespace tandekor::line
