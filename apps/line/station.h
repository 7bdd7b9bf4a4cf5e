// Where the phone stands: a simulated one in this process, or a real one with the host library between.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "options.h"

namespace tandekor::line::station
{

bool IsSimulated();

// What the station file of this kind of station says where the user's says nothing.
const char* DefaultStationFile();

// What is wrong with a NAME or NAME:N of --refuse, or an empty text.
std::string RefusalProblem(const std::string& text);

// Returns an empty text, or why the phone cannot be had.
std::string Prepare(const Options& options);

// What kind of phone it is, for the summary.
std::string Name(const Options& options);

// Milliseconds since some moment, as they go by for the phone. Wraps.
uint32_t Now();

// Runs the action, and calls tick now and again while it waits for the phone, on any thread.
void RunWithTicks(const std::function<void()>& action, const std::function<void()>& tick);

}  // namespace tandekor::line::station
