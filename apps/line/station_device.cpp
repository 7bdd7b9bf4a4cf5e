// A real phone, with the host library that lies beside the program.
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "machine.h"
#include "station.h"

namespace tandekor::line::station
{

bool IsSimulated() { return false; }

const char* DefaultStationFile() { return ""; }

std::string RefusalProblem(const std::string&) { return "a real phone refuses nothing on demand"; }

// For a host library that simulates its phone; another one does not know the variable.
std::string Prepare(const Options& options)
{
    if (!options.phoneScript.empty())
        machine::SetVariable("TANDEKOR_PHONE", options.phoneScript);
    return "";
}

std::string Name(const Options& options)
{
    return "phone on COM " + std::to_string(options.port)
           + (options.phoneScript.empty() ? "" : ", simulated by " + options.phoneScript);
}

uint32_t Now()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void RunWithTicks(const std::function<void()>& action, const std::function<void()>& tick)
{
    std::mutex mutex;
    std::condition_variable_any done;
    // Its destructor asks it to stop, wakes it up and waits for its end.
    const std::jthread ticker(
        [&](const std::stop_token& stop)
        {
            std::unique_lock lock(mutex);
            while (!done.wait_for(lock, stop, std::chrono::milliseconds(500), [&] { return stop.stop_requested(); }))
                tick();
        });
    action();
}

}  // namespace tandekor::line::station
