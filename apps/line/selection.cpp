#include <algorithm>
#include <numeric>

#include "runner.h"

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

std::string UnknownName(const std::string& name)
{
    std::string close;
    const auto consider = [&](const std::string& known)
    {
        if (EditDistance(name, known) <= std::max<size_t>(1, name.size() / 3) || known.find(name) != std::string::npos)
            close += (close.empty() ? "" : ", ") + known;
    };
    for (const Group* group : Groups())
    {
        consider(group->name);
        for (const Test& test : group->tests)
            consider(test.name);
    }
    return "no test or group is named '" + name + "'; " + (close.empty() ? "" : "near: " + close + "; ")
           + "--list shows all";
}

bool AddNamed(const std::string& name, Selection& selection)
{
    bool found = false;
    for (const Group* group : Groups())
    {
        for (const Test& test : group->tests)
        {
            if (name != test.name && (name != group->name || test.lacks != nullptr))
                continue;
            selection.insert(&test);
            found = true;
        }
    }
    return found;
}

void AddFrame(Selection& selection)
{
    State reached = State::Unconnected;
    for (const Test* test : selection)
        reached = std::max({reached, test->needs, test->frameOf});
    for (const Group* group : Groups())
    {
        for (const Test& test : group->tests)
        {
            if (test.frameOf != State::Unconnected && test.frameOf <= reached)
                selection.insert(&test);
        }
    }
}

}  // namespace

std::string Select(const std::vector<std::string>& names, const Options& options, Selection& selection)
{
    for (const std::string& name : names)
    {
        if (!AddNamed(name, selection))
            return UnknownName(name);
    }
    if (names.empty())
    {
        for (const Group* group : Groups())
            AddNamed(group->name, selection);
    }
    for (const Test* test : selection)
    {
        if (std::string problem = test->lacks == nullptr ? "" : test->lacks(options); !problem.empty())
            return problem;
    }
    AddFrame(selection);
    return "";
}

}  // namespace tandekor::line
