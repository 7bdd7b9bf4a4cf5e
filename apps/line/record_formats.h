// The files of a record as texts; docs/records.md describes them.
#pragma once

#include <string>

#include "record.h"

namespace tandekor::line
{

std::string JsonOf(const RunRecord& record);
std::string JunitOf(const RunRecord& record);
std::string PageOf(const RunRecord& record);

// The file of the log without its folder: it lies beside the other files.
std::string LogName(const RunRecord& record);

}  // namespace tandekor::line
