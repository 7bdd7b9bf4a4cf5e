// Scripts: lines of a verb and its arguments.
#pragma once

#include <string>

namespace simulator
{

// Carries out one line; an empty one and one that begins with # do nothing. Empty for success, else what is wrong.
std::string RunLine(const std::string& line);

// The script of the file that the environment names, at the first call. Returns whether it succeeded.
bool RunEnvironmentScript();

}  // namespace simulator
