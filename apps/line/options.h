// The command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "test.h"

namespace tandekor::line
{

constexpr int statusPassed = 0;
constexpr int statusFailed = 1;
constexpr int statusBadOptions = 2;

struct CommandLine
{
    Options options;
    bool list = false;
    std::vector<std::string> names;
};

// Gives the status with which the program ends at once, or nothing if it goes on.
std::optional<int> Parse(int argc, char** argv, CommandLine& commandLine);

}  // namespace tandekor::line
