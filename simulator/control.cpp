// The scripts and records of control.h; the phone's part is in phone.cpp, the bench's in bench.cpp.
#include "simulator/control.h"

#include <algorithm>
#include <limits>

#include "simulator/state.h"

namespace simulator
{

namespace
{

constexpr size_t longestVersion = 39;
constexpr int forever = std::numeric_limits<int>::max();

// Scripts count from now on, the call record from the start.
int CallsSoFar(const std::string& operation) { return TheState().calls.counts[operation]; }

void Refuse(const std::string& operation, int first, int last)
{
    TheState().calls.refusals.push_back({operation, first, last});
}

}  // namespace

// Not destroyed: whatever is destroyed at the process's end may still come here.
State& TheState()
{
    static State& state = *new State;
    return state;
}

void SetLibraryVersion(const std::string& version) { TheState().library.version = version.substr(0, longestVersion); }
void SetConnectHandle(ResourceContext handle) { TheState().library.connectHandle = handle; }

void QueueReply(const Reply& reply) { TheState().calls.queuedReplies.push_back(reply); }
void RepeatReply(const Reply& reply) { TheState().calls.repeatedReply = reply; }

void RefuseCall(const std::string& operation, int n)
{
    Refuse(operation, CallsSoFar(operation) + n, CallsSoFar(operation) + n);
}

void RefuseCallsFrom(const std::string& operation, int n) { Refuse(operation, CallsSoFar(operation) + n, forever); }
void RefuseAnyCall(int n) { RefuseCall("", n); }

void BeforeCall(const std::string& operation, int n, std::function<void()> action)
{
    TheState().calls.interventions.push_back({operation, CallsSoFar(operation) + n, std::move(action)});
}

const std::vector<std::string>& Calls() { return TheState().calls.calls; }

int CountCalls(const std::string& operation)
{
    const auto ofOperation = [&](const std::string& call) { return call.starts_with(operation + '('); };
    return static_cast<int>(std::ranges::count_if(Calls(), ofOperation));
}

void ForgetCalls()
{
    TheState().calls.calls.clear();
    TheState().calls.exchanges.clear();
}

const std::vector<Exchange>& Exchanges() { return TheState().calls.exchanges; }

const std::vector<std::string>& LogTexts() { return TheState().log.texts; }
std::optional<uint32_t> LogFlags() { return TheState().log.flags; }
const std::vector<LogFlagsChange>& LogFlagsChanges() { return TheState().log.flagsChanges; }

void ForgetLog()
{
    TheState().log.texts.clear();
    TheState().log.flagsChanges.clear();
}

}  // namespace simulator
