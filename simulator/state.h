// Everything that Reset puts back, apart from the simulated clock and boot box, in one place.
#pragma once

#include <deque>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/qmsl.h"
#include "simulator/control.h"

namespace simulator
{

// Transfers that run in a session of the file server.
struct ObexGet
{
    Bytes object;
    size_t sent = 0;
    bool begun = false;
};
struct ObexPut
{
    std::string path;
    SimulatedFile file;
    size_t announced = 0;
};

struct ObexSession
{
    bool open = false;
    uint32_t connectionId = 0;  // of this session, or of the last one
    size_t mostReplyBytes = 0;  // as the connect announced it
    std::string folder = {};    // path of the current folder with a slash at its end; empty for the root
    std::optional<ObexGet> get = {};
    std::optional<ObexPut> put = {};
};

struct PhoneState
{
    Phone phone;
    ObexSession obexSession;
    bool supplied = false;
    std::optional<tandekor::platform::TimeLimit> starting;   // runs until the phone answers
    std::optional<tandekor::platform::TimeLimit> runningOn;  // runs until the phone is off, with its supply dropped
    uint8_t irdaByte = 0;                                    // what the infrared test sent last
};

struct LibraryState
{
    std::string version = "QLIB V5.0.40,QPHONEMS";
    std::optional<ResourceContext> connectHandle;
    std::map<std::pair<bool, uint32_t>, ResourceContext> handles;  // by kind (logical or not) and number of the port
    std::map<ResourceContext, uint32_t> connections;               // how many connects of a handle are open
    QlibUploadCallback uploadCallback = nullptr;
    bool batchMode = false;
    std::vector<std::pair<uint16_t, Bytes>> batch;  // NV writes that wait for the flush
    std::optional<bool> scriptSucceeded;            // of the file that the environment names; nothing before it is read
};

struct Refusal
{
    std::string operation;  // empty: all that have a result
    int first;
    int last;
};

struct Hook
{
    std::string operation;
    int call;
    std::function<void()> action;
};

struct CallState
{
    std::vector<std::string> calls;
    std::map<std::string, int> counts;     // by operation, and under "" all calls that have a result
    std::map<std::string, int> forgotten;  // how many of them ForgetCalls has dropped
    std::vector<Refusal> refusals;
    std::vector<Hook> hooks;
    std::vector<Exchange> exchanges;
    std::deque<Reply> queuedReplies;
    std::optional<Reply> repeatedReply;
    uint32_t silentExchanges = 0;
};

struct LogState
{
    std::ofstream file;
    std::vector<std::string> texts;
    std::vector<LogArguments> arguments;
    std::optional<uint32_t> flags;
    std::vector<LogFlagsChange> flagsChanges;
};

struct State
{
    PhoneState phone;
    LibraryState library;
    CallState calls;
    LogState log;
    std::vector<std::string> timeline;
    size_t mostRecorded = 1000;
    bool phoneTakesTime = false;  // the wait that runs is none of the library's
};

// Lives until the library is unloaded, and is made anew if something comes after that.
State& TheState();

// Adds to a record, within the number of entries that are kept.
template <typename Entry>
void Keep(std::vector<Entry>& record, Entry entry)
{
    const size_t most = TheState().mostRecorded;
    if (record.size() / 2 >= most)
        record.erase(record.begin(), record.end() - static_cast<ptrdiff_t>(most));
    if (most != 0)
        record.push_back(std::move(entry));
}

}  // namespace simulator
