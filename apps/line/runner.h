// Which tests run, and running them in the order of their tables.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "test.h"

namespace tandekor::line
{

using Selection = std::set<const Test*>;

// Selects the tests that are named, alone or by their group, and those of the frame that they need; no names select
// everything but what has to be named itself. Gives an empty text, or what to tell the user of a name that is not known
// or of what a test lacks.
std::string Select(const std::vector<std::string>& names, const Options& options, Selection& selection);

// Gives whether all of them passed.
bool Run(const Options& options, const Selection& selection);

}  // namespace tandekor::line
