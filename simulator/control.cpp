// The scripts and records of control.h; the phone's part is in phone.cpp, the bench's in bench.cpp.
#include "simulator/control.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "simulator/operation_names.h"
#include "simulator/state.h"

namespace simulator
{

namespace
{

constexpr size_t longestVersion = 39;
constexpr int forever = std::numeric_limits<int>::max();

// Scripts count from now on, the call record from the start.
int CallsSoFar(const std::string& operation) { return TheState().calls.counts[operation]; }

// Made when the host library is loaded, and so destroyed after everything that uses it.
struct Owned
{
    State* state = nullptr;

    Owned() = default;
    Owned(const Owned&) = delete;
    ~Owned()
    {
        delete state;
        state = nullptr;
    }
};
Owned owned;

void Refuse(const std::string& operation, int first, int last)
{
    TheState().calls.refusals.push_back({operation, first, last});
}

}  // namespace

State& TheState()
{
    if (owned.state == nullptr)
        owned.state = new State;
    return *owned.state;
}

void ResetPhone()
{
    State& state = TheState();
    state.phone = PhoneState();
    state.calls = CallState();
    state.timeline.clear();
    ForgetLog();
}

void Record(size_t most)
{
    TheState().mostRecorded = most;
    ForgetCalls();
    ForgetLog();
    ForgetTimeline();
}

void SetLibraryVersion(const std::string& version) { TheState().library.version = version.substr(0, longestVersion); }
void SetConnectHandle(ResourceContext handle) { TheState().library.connectHandle = handle; }

void QueueReply(const Reply& reply) { TheState().calls.queuedReplies.push_back(reply); }
void Silence(uint32_t exchanges) { TheState().calls.silentExchanges = exchanges; }
void RepeatReply(const Reply& reply) { TheState().calls.repeatedReply = reply; }

bool IsOperation(const std::string& name)
{
    constexpr const char* ofTheTextLog[] = {"QLIB_StartLogging", "QLIB_SetLogFlags", "QLIB_AddUserMessageToTextLog"};
    return std::ranges::find(operationNames, name) != std::end(operationNames)
           && std::ranges::find(ofTheTextLog, name) == std::end(ofTheTextLog);
}

void RefuseCall(const std::string& operation, int n)
{
    Refuse(operation, CallsSoFar(operation) + n, CallsSoFar(operation) + n);
}

void RefuseCallsFrom(const std::string& operation, int n) { Refuse(operation, CallsSoFar(operation) + n, forever); }
void RefuseAnyCall(int n) { RefuseCall("", n); }

void BeforeCall(const std::string& operation, int n, std::function<void()> action)
{
    TheState().calls.hooks.push_back({operation, CallsSoFar(operation) + n, std::move(action)});
}

const std::vector<std::string>& Calls() { return TheState().calls.calls; }

int CountCalls(const std::string& operation)
{
    CallState& state = TheState().calls;
    return state.counts[operation] - state.forgotten[operation];
}

void ForgetCalls()
{
    CallState& state = TheState().calls;
    state.calls.clear();
    state.exchanges.clear();
    state.forgotten = state.counts;
}

const std::vector<Exchange>& Exchanges() { return TheState().calls.exchanges; }

const std::vector<std::string>& LogTexts() { return TheState().log.texts; }
std::optional<uint32_t> LogFlags() { return TheState().log.flags; }
const std::vector<LogArguments>& LogTextArguments() { return TheState().log.arguments; }
const std::vector<LogFlagsChange>& LogFlagsChanges() { return TheState().log.flagsChanges; }

void ForgetLog()
{
    TheState().log.texts.clear();
    TheState().log.arguments.clear();
    TheState().log.flagsChanges.clear();
}

const std::vector<std::string>& Timeline() { return TheState().timeline; }
void ForgetTimeline() { TheState().timeline.clear(); }

}  // namespace simulator
