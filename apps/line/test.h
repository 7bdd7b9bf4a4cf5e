// What a test is: one row in the table of its group. A new group is a file with such a table and a line in groups.cpp.
#pragma once

#include <atomic>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "options.h"
#include "record.h"
#include "tandekor/common.h"

namespace tandekor::line
{

// How far the phone is. Each state includes those before it.
enum class State
{
    Unconnected,
    Connected,
    Powered,  // the boot box was told to supply the phone, and may do so
    Ready,    // the phone was switched on into FTM mode
    Online    // it went on from there to online mode
};

// What a test leaves changed. What it puts back itself does not count.
enum class Changes
{
    Nothing,
    Setting,  // until the phone is switched off
    Storage,  // for good: NV items, files, the phone's clock
    Radiates  // the antenna
};

struct Context
{
    const Options& options;
    RunRecord& run;
    ResourceContext handle = 0;
    State state = State::Unconnected;
    bool transmitterOn = false;     // or may be, as a step that switches it off has failed
    std::atomic<int> percent = -1;  // of what a test has done so far, if it knows
};

// What a test found out. Limits and persons judge its measures; a test says Passed only where it compared something.
struct Outcome
{
    Verdict verdict = Verdict::NotJudged;
    std::string text;
    std::string function = {};  // that returned a failure
    std::vector<Measure> measures = {};

    bool Is(Verdict other) const { return verdict == other; }

    Outcome& Add(const char* name, const std::string& value)
    {
        measures.push_back({.name = name, .value = value, .unit = {}, .limit = {}});
        return *this;
    }
    template <typename Number>
    std::enable_if_t<std::is_arithmetic_v<Number>, Outcome&> Add(const char* name, Number value)
    {
        measures.push_back({.name = name, .value = static_cast<double>(value), .unit = {}, .limit = {}});
        return *this;
    }
};

// The compiler checks the values against the format.
#if defined(__MINGW32__)
#define TANDEKOR_LINE_FORMAT(position) __attribute__((format(gnu_printf, position, (position) + 1)))
#elif defined(__GNUC__)
#define TANDEKOR_LINE_FORMAT(position) __attribute__((format(printf, position, (position) + 1)))
#else
#define TANDEKOR_LINE_FORMAT(position)
#endif
Outcome Passed(const char* format, ...) TANDEKOR_LINE_FORMAT(1);
Outcome Failed(const char* function, const char* format, ...) TANDEKOR_LINE_FORMAT(2);
Outcome Done(const char* format, ...) TANDEKOR_LINE_FORMAT(1);

// A quantity that a test may measure; the station file may set limits to it.
struct Quantity
{
    const char* name = nullptr;
    const char* unit = "";
};
constexpr char textUnit[] = "text";

struct Test
{
    const char* name;
    const char* description;
    Outcome (*run)(Context& context);
    Quantity measures[10] = {};  // those without a name are none
    Changes changes = Changes::Nothing;
    const char* question = nullptr;          // to the person who watches the phone, the only judge of the test
    State needs = State::Ready;              // below this state the test is not run
    State fixtureOf = State::Unconnected;    // runs along with every test that needs this state
    const char* waitsFor = "phone's reply";  // what a long run waits for
    // For what is never done in passing: the test runs only if it is named itself, and if no option is missing for it.
    std::string (*missing)(const Options& options) = nullptr;
};

struct Group
{
    const char* name;
    const char* description;
    std::span<const Test> tests;
};

// All groups in the order in which they run.
std::span<const Group* const> Groups();

const char* Name(Changes changes);

}  // namespace tandekor::line
