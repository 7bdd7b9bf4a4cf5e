// What a call does to the bench, as text.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/procedures/runs.h"

namespace tandekor::test
{

struct Observation
{
    CallResult call;
    std::vector<std::string> events;  // calls, log texts and waits, then what else came of it
    std::vector<std::string> calls;   // host calls alone
    std::string lastLogText;
};

// Makes a call of a run on a fresh bench; the change comes last before the call.
Observation Observe(const ProcedureRun& run, const Call& call, const Change& change = nullptr);

// The events in short, in lines of at most 118 columns. A step is [NAME ... text], or [NAME ... text!] where it failed;
// within it ~ stands for its name, Q_ for QLIB_ and T_ for TANDEKOR_. ? is the question whether the phone answers.
std::string ShortForm(const std::vector<std::string>& events);

}  // namespace tandekor::test
