// The fixture of the tests: a clean simulator with one connected phone, and what tests need to say what was sent, what
// came back and what was logged.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "simulator/control.h"
#include "tandekor/tandekor.h"
#include "tests/support/guarded_buffer.h"

namespace tandekor::test
{

// "4B 0B 00 80" as bytes.
Bytes Hex(const std::string& digits);

// Bytes as "4B 0B 00 80", for readable failures.
std::string ToHex(const Bytes& bytes);

// Out-arguments as numbers: those of 1, 2 or 4 bytes as the values that they are, others byte by byte.
using Numbers = std::vector<uint32_t>;
Numbers Values(const std::vector<Bytes>& outs);

// Out-values as the bytes that they have in the caller's memory.
template <typename Number>
Bytes InMemory(const std::vector<Number>& numbers)
{
    const auto* start = reinterpret_cast<const uint8_t*>(numbers.data());
    return {start, start + numbers.size() * sizeof(Number)};
}
template <typename... Numbers>
Bytes U32(Numbers... numbers)
{
    return InMemory(std::vector{static_cast<uint32_t>(numbers)...});
}
inline Bytes U16(uint16_t number) { return InMemory(std::vector{number}); }

class BenchTest : public ::testing::Test
{
protected:
    static constexpr uint32_t comPort = 7;
    static constexpr ResourceContext unknownHandle = 0xDEAD;

    BenchTest();
    ~BenchTest() override;

    // The phone that gives these replies next, whatever is asked.
    static void Replies(const Bytes& bytes);
    static void Replies(const std::string& text) { Replies(Ascii(text)); }
    // The host library that reports a failure of the next exchange, with these bytes delivered all the same.
    static void FailsToReply(const Bytes& bytes = {});

    // Request of the last exchange, as hexadecimal digits.
    static std::string LastRequest();
    static uint32_t LastTimeoutMs();
    static size_t CountExchanges() { return simulator::Exchanges().size(); }
    static const std::vector<std::string>& Log() { return simulator::LogTexts(); }

    ResourceContext handle = 0;
};

}  // namespace tandekor::test
