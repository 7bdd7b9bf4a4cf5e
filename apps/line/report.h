// What the operator sees.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "test.h"

namespace tandekor::line
{

void PrintList();

class Report
{
public:
    Report();

    void Heading(const Group& group) const;

    // A line that stands for the running test until its result is there; only on a terminal. A percentage below 0
    // is not known.
    void Progress(const Test& test, uint32_t elapsedMs, int percent) const;

    void Result(const Test& test, const Outcome& outcome, uint32_t elapsedMs);
    void NotRun(const Test& test, const char* reason);

    // Gives whether all tests passed.
    bool Summary(const std::string& phone, uint32_t elapsedMs, const std::string& logPath) const;

private:
    void Line(const char* verdict, const char* colour, const std::string& time, const Test& test,
              const std::string& text) const;

    bool terminal;
    bool colours;
    int passed = 0;
    int notRun = 0;
    std::vector<std::string> failed;
};

}  // namespace tandekor::line
