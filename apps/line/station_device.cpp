// A real phone, behind the host library that lies beside the program.
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "station.h"

namespace tandekor::line::station
{

void AddOptions(CLI::App&) {}

void Prepare(const Options&) {}

std::string Name(const Options& options) { return "phone on COM " + std::to_string(options.port); }

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
