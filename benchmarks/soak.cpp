// Connects, disconnects and calls of all functions in turn over sixteen connections, so many rounds. Fails if the
// process has more memory, open files or threads at the end than it had after a part of the rounds. Usage: soak ROUNDS
#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "simulator/control.h"
#include "tandekor/tandekor.h"
#include "tests/support/every_function.h"

namespace
{

using namespace tandekor::test;

constexpr uint32_t connections = 16;

size_t CountEntries(const char* folder)
{
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

struct Use
{
    size_t bytes = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    size_t openFiles = CountEntries("/proc/self/fd");
    size_t threads = CountEntries("/proc/self/task");
    size_t residentKilobytes = ResidentKilobytes();

    static size_t ResidentKilobytes()
    {
        std::ifstream status("/proc/self/status");
        for (std::string word; status >> word;)
        {
            if (word == "VmRSS:" && status >> word)
                return std::stoul(word);
        }
        return 0;
    }
};

void Show(const char* when, const Use& use)
{
    std::fprintf(stderr, "%s: %zu bytes allocated, %zu KB resident, %zu open files, %zu threads\n", when, use.bytes,
                 use.residentKilobytes, use.openFiles, use.threads);
}

class Soak
{
public:
    Soak()
    {
        simulator::Reset();
        simulator::Record(0);
        const std::string folder = std::filesystem::temp_directory_path() / "";
        for (const Function& function : EveryFunction())
        {
            for (const int64_t number : {1, 2, 55})
                calls.push_back(CallOf(function, {{number, 4, number, 3}, {"tandekor-soak", "1234"}, false, folder}));
        }
    }

    ~Soak() { std::filesystem::remove(std::filesystem::temp_directory_path() / "tandekor-soak"); }
    Soak(const Soak&) = delete;
    Soak& operator=(const Soak&) = delete;

    // The oldest connection makes place for a new one; the call goes to any.
    void Round(uint32_t number)
    {
        ResourceContext& handle = handles[number % connections];
        TANDEKOR_DisconnectServer(handle);
        handle = TANDEKOR_ConnectServer(number % connections + 1);
        if (number % calls.size() == 0)
            FreshPhone();
        simulator::ThePhone().mode = number % 2 == 0 ? simulator::Mode::Ftm : simulator::Mode::Online;
        succeeded += calls[number % calls.size()](handles[number * 7 % connections]).result != 0 ? 1 : 0;
    }

    Use UseWithoutConnections()
    {
        FreshPhone();
        TANDEKOR_DisconnectAllServers();
        ::malloc_trim(0);
        return {};
    }

    uint32_t succeeded = 0;

private:
    static void FreshPhone()
    {
        simulator::ResetPhone();
        simulator::TheClock().sleeps = {};
        simulator::TheBootBox().events = {};
    }

    std::vector<Call> calls;
    ResourceContext handles[connections] = {};
};

}  // namespace

int main(int argc, char** argv)
{
    const uint32_t rounds = argc == 2 ? static_cast<uint32_t>(std::strtoul(argv[1], nullptr, 10)) : 0;
    if (rounds == 0)
    {
        std::fputs("usage: soak ROUNDS\n", stderr);
        return 2;
    }
    Soak soak;
    uint32_t number = 0;
    while (number < rounds / 4)
        soak.Round(number++);
    const Use before = soak.UseWithoutConnections();
    while (number < rounds)
        soak.Round(number++);
    const Use after = soak.UseWithoutConnections();
    std::fprintf(stderr, "%u rounds, %u calls succeeded\n", rounds, soak.succeeded);
    Show("after a quarter", before);
    Show("at the end", after);
    constexpr size_t slackBytes = 4096, slackKilobytes = 2048;  // the simulator's texts, the C library's own
    return after.bytes > before.bytes + slackBytes || after.openFiles != before.openFiles
           || after.threads != before.threads || after.residentKilobytes > before.residentKilobytes + slackKilobytes;
}
