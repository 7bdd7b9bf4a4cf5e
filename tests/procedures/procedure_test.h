// What tests of procedures compare: the whole log, the whole list of host calls, and every wait.
#pragma once

#include <regex>
#include <string>
#include <vector>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

using Texts = std::vector<std::string>;
using Waits = std::vector<uint32_t>;

// A phone in FTM mode, where nothing else is said.
class ProcedureTest : public BenchTest
{
protected:
    ProcedureTest() { Phone().mode = simulator::Mode::Ftm; }

    // For tests that walk through several cases.
    void FreshBench()
    {
        TANDEKOR_DisconnectAllServers();
        simulator::Reset();
        Phone().mode = simulator::Mode::Ftm;
        handle = TANDEKOR_ConnectServer(comPort);
        simulator::ForgetCalls();
    }

    // The log with "@" for the addresses of buffers.
    static Texts Log()
    {
        static const std::regex address("(pItem(Data|Array)|piRequestBytes) = [0-9]+");
        Texts log;
        for (const std::string& text : simulator::LogTexts())
            log.push_back(std::regex_replace(text, address, "$1 = @"));
        return log;
    }

    static std::string LastLogText() { return Log().empty() ? "nothing logged" : Log().back(); }

    // The host calls; one that repeats stands once, with its number: "QLIB_IsPhoneConnected() x3".
    static Texts Calls()
    {
        Texts runs;
        const Texts& calls = simulator::Calls();
        for (size_t first = 0, next = 0; first < calls.size(); first = next)
        {
            while (next < calls.size() && calls[next] == calls[first])
                ++next;
            runs.push_back(calls[first] + (next - first > 1 ? " x" + std::to_string(next - first) : ""));
        }
        return runs;
    }

    static const Waits& Sleeps() { return simulator::TheClock().sleeps; }
    static simulator::Phone& Phone() { return simulator::ThePhone(); }
    static simulator::BootBox& BootBox() { return simulator::TheBootBox(); }
};

}  // namespace tandekor::test
