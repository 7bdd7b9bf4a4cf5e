#include "tests/support/bench_test.h"

#include <algorithm>
#include <cstdio>
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

Bytes Ascii(const std::string& text) { return {text.begin(), text.end()}; }

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

GuardedBuffer::GuardedBuffer(size_t bufferSize) : memory(bufferSize + 2 * guardSize, 0xA5)
{
    std::fill(memory.begin() + guardSize, memory.end() - guardSize, uint8_t{0x55});
}

bool GuardedBuffer::GuardsIntact() const
{
    const auto intact = [](uint8_t byte) { return byte == 0xA5; };
    return std::all_of(memory.begin(), memory.begin() + guardSize, intact)
           && std::all_of(memory.end() - guardSize, memory.end(), intact);
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
