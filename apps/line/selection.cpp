#include <algorithm>
#include <cctype>
#include <numeric>

#include "runner.h"
#include "station.h"

namespace tandekor::line
{

namespace
{

// How many letters have to be put in, taken out or replaced to make one word of the other.
size_t EditDistance(const std::string& from, const std::string& to)
{
    std::vector<size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), size_t{0});
    for (size_t i = 0; i < from.size(); ++i)
    {
        size_t diagonal = row[0];
        row[0] = i + 1;
        for (size_t j = 0; j < to.size(); ++j)
        {
            const size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char one) { return static_cast<char>(std::tolower(one)); });
    return text;
}

template <typename Action>
void ForEachTest(Action action)
{
    for (const Group* group : Groups())
    {
        for (const Test& test : group->tests)
            action(*group, test);
    }
}

// Tests that are missing something are selected only by their own names.
bool AddNamed(const std::string& anyCase, Selection& selection)
{
    const std::string name = LowerCase(anyCase);
    bool found = false;
    ForEachTest(
        [&](const Group& group, const Test& test)
        {
            if (name != test.name && (name != group.name || test.missing != nullptr))
                return;
            selection.insert(&test);
            found = true;
        });
    return found;
}

void AddFixtures(Selection& selection)
{
    State reached = State::Unconnected;
    for (const Test* test : selection)
        reached = std::max({reached, test->needs, test->fixtureOf});
    ForEachTest(
        [&](const Group&, const Test& test)
        {
            if (test.fixtureOf != State::Unconnected && test.fixtureOf <= reached)
                selection.insert(&test);
        });
}

}  // namespace

std::string UnknownName(const std::string& anyCase)
{
    const std::string name = LowerCase(anyCase);
    bool known = false;
    std::string close;
    const auto consider = [&](const std::string& other)
    {
        known = known || name == other;
        if (EditDistance(name, other) <= std::max<size_t>(1, name.size() / 3) || other.find(name) != std::string::npos)
            close += (close.empty() ? "" : ", ") + other;
    };
    for (const Group* group : Groups())
    {
        consider(group->name);
        for (const Test& test : group->tests)
            consider(test.name);
    }
    if (known)
        return "";
    return "no test or group is named '" + anyCase + "'; " + (close.empty() ? "" : "near: " + close + "; ")
           + "--list shows all";
}

std::string Select(const Options& options, Selection& selection)
{
    for (const std::string& name : options.names)
    {
        if (!AddNamed(name, selection))
            return UnknownName(name);
    }
    if (options.names.empty())
    {
        const bool everything = options.all || station::IsSimulated();
        ForEachTest(
            [&](const Group&, const Test& test)
            {
                if (test.missing == nullptr && (everything || test.changes == Changes::Nothing))
                    selection.insert(&test);
            });
    }
    for (const Test* test : selection)
    {
        if (std::string problem = test->missing == nullptr ? "" : test->missing(options); !problem.empty())
            return problem;
    }
    for (const std::string& name : options.names)
    {
        for (const Test* test : selection)
        {
            if (LowerCase(name) == test->name && test->question != nullptr && !options.askOperator)
                return std::string(test->name) + " is judged by a person: --operator";
        }
    }
    AddFixtures(selection);
    return "";
}

}  // namespace tandekor::line
