#include "tests/support/bench_test.h"

#include <cstdio>
#include <cstring>
#include <sstream>

namespace tandekor::test
{

Bytes Hex(const std::string& digits)
{
    Bytes bytes;
    std::istringstream stream(digits);
    unsigned value = 0;
    while (stream >> std::hex >> value)
        bytes.push_back(static_cast<uint8_t>(value));
    return bytes;
}

std::string ToHex(const Bytes& bytes)
{
    std::string digits;
    for (const uint8_t byte : bytes)
    {
        char pair[4];
        std::snprintf(pair, sizeof pair, "%s%02X", digits.empty() ? "" : " ", byte);
        digits += pair;
    }
    return digits;
}

Numbers Values(const std::vector<Bytes>& outs)
{
    Numbers values;
    for (const Bytes& out : outs)
    {
        if (out.size() == 1 || out.size() == 2 || out.size() == 4)
            std::memcpy(&values.emplace_back(0), out.data(), out.size());
        else
            values.insert(values.end(), out.begin(), out.end());
    }
    return values;
}

BenchTest::BenchTest()
{
    simulator::Reset();
    TANDEKOR_SetLibraryMode(0);
    handle = TANDEKOR_ConnectServer(comPort);
    simulator::ForgetCalls();
    simulator::ForgetLog();
}

BenchTest::~BenchTest()
{
    TANDEKOR_DisconnectAllServers();
    TANDEKOR_SetCallback(handle, nullptr);
}

void BenchTest::Replies(const Bytes& bytes) { simulator::QueueReply({bytes, 1, {}}); }

void BenchTest::FailsToReply(const Bytes& bytes) { simulator::QueueReply({bytes, 0, {}}); }

std::string BenchTest::LastRequest()
{
    return simulator::Exchanges().empty() ? "nothing sent" : ToHex(simulator::Exchanges().back().request);
}

uint32_t BenchTest::LastTimeoutMs()
{
    return simulator::Exchanges().empty() ? 0 : simulator::Exchanges().back().timeoutMs;
}

}  // namespace tandekor::test
