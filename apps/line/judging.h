// What decides about a measure.
#pragma once

#include <string>

#include "test.h"

namespace tandekor::line
{

// Reads "50..100 %", "..3", "0..", a single number, or for a text what it has to be, alternatives divided by '|'.
// Returns an empty text, or what is wrong.
std::string ReadLimit(const std::string& text, const Quantity& quantity, Limit& limit);

// Sets unit, limit and verdict of each measure, and the verdict of the outcome. A limit without its measure fails.
void Judge(const Test& test, const Options& options, Outcome& outcome);

// As in "battery.charge 0 % [50..100] FAIL".
std::string Shown(const std::string& test, const Measure& measure);

}  // namespace tandekor::line
