// Where the phone stands: a simulated one in this process, or a real one behind the host library.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "test.h"

namespace CLI
{
class App;
}

namespace tandekor::line::station
{

// The options that only this kind of station has.
void AddOptions(CLI::App& app);

void Prepare(const Options& options);

// What kind of phone it is, for the summary.
std::string Name(const Options& options);

// Milliseconds since some moment, as they go by for the phone. Wraps.
uint32_t Now();

// Runs the action, and calls tick now and again while it waits for the phone, on any thread.
void RunWithTicks(const std::function<void()>& action, const std::function<void()>& tick);

}  // namespace tandekor::line::station
