// What the operator sees.
#pragma once

#include <cstdint>
#include <string>

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
    void Progress(const Test& test, const std::string& place, uint32_t elapsedMs, int percent) const;

    void Question(const char* question) const;
    void Result(const TestRecord& test) const;

    void Summary(const RunRecord& run) const;

private:
    bool terminal;
    bool colours;
};

// The verdict of all tests together. Fixtures alone do not make a good phone.
Verdict VerdictOf(const RunRecord& run);

}  // namespace tandekor::line
