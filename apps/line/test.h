// What a test is: one row in the table of its group. A new group is a file with such a table and a line in groups.cpp.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "tandekor/common.h"

namespace tandekor::line
{

struct Options
{
    uint32_t port = 1;
    uint16_t bootBox = 4;
    std::string logFile = "line.log";
    uint16_t keyMap = 1;
    uint16_t lowPowerMode = 0;
    std::string uploadFile = "upload.cefs";
    std::optional<uint16_t> vgaGain;
    std::string imei;
    std::string freezeFile;
    bool mayFreeze = false;
};

// How far the phone is. Each state includes those in front of it.
enum class State
{
    Unconnected,
    Connected,
    Powered,  // the boot box was told to supply the phone, and may do so
    Ready     // the phone was switched on into FTM mode
};

struct Context
{
    const Options& options;
    ResourceContext handle = 0;
    State state = State::Unconnected;
    bool logStarted = false;
    std::atomic<int> percent = -1;  // of what a test has done so far, if it knows
};

// The text is what was read, or in two lines what went wrong and which function said so.
struct Outcome
{
    bool passed;
    std::string text;
};
Outcome Passed(const char* format, ...) __attribute__((format(printf, 1, 2)));
Outcome Failed(const char* format, ...) __attribute__((format(printf, 1, 2)));

struct Test
{
    const char* name;
    const char* description;
    Outcome (*run)(Context& context);
    State needs = State::Ready;             // below this state the test is not run
    State frameOf = State::Unconnected;     // runs along with every test that needs this state
    const char* awaited = "phone's reply";  // what a long run waits for
    // For what is never done in passing: the test runs only if it is named itself, and if nothing is lacking for it.
    std::string (*lacks)(const Options& options) = nullptr;
};

struct Group
{
    const char* name;
    const char* description;
    std::span<const Test> tests;
};

// All groups in the order in which they run.
std::span<const Group* const> Groups();

}  // namespace tandekor::line
