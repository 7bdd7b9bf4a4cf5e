// Which tests run, and running them in the order of their tables.
#pragma once

#include <set>
#include <string>

#include "report.h"
#include "test.h"

namespace tandekor::line
{

using Selection = std::set<const Test*>;

// Selects the tests that are named, singly or by their group, and the fixtures that they need. No names select
// everything but what has to be named itself; on a real phone without --all only what leaves the phone as it was.
// Returns an empty text, or what to tell the user of a name that is not known or of an option that a test misses.
std::string Select(const Options& options, Selection& selection);

// An empty text for the name of a test or group, in whatever case.
std::string UnknownName(const std::string& anyCase);

// Fills the record, of which the start and the log's file are known, and shows each result.
void Run(const Options& options, const Selection& selection, const Report& report, RunRecord& run);

}  // namespace tandekor::line
