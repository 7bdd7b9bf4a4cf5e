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

namespace tandekor::test
{

using simulator::Bytes;

// "4B 0B 00 80" as bytes.
Bytes Hex(const std::string& digits);

// The characters of a text as bytes, without its NUL.
Bytes Ascii(const std::string& text);

// Bytes as "4B 0B 00 80", for readable failures.
std::string ToHex(const Bytes& bytes);

// A caller's buffer of a given size between guard bytes. It starts filled with 0x55.
class GuardedBuffer
{
public:
    explicit GuardedBuffer(size_t bufferSize);

    uint8_t* Data() { return memory.data() + guardSize; }
    char* Text() { return reinterpret_cast<char*>(Data()); }
    Bytes Content() const { return {memory.begin() + guardSize, memory.end() - guardSize}; }
    bool GuardsIntact() const;

private:
    static constexpr ptrdiff_t guardSize = 64;
    Bytes memory;
};

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
