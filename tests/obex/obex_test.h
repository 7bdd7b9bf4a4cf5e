// The fixture of the file service's tests: sessions as pairs of a request and a canned reply, and a folder of the host
// that is gone after the test.
#pragma once

#include <filesystem>
#include <functional>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

// What the library has to send, and what the phone answers.
struct Turn
{
    std::string request;
    std::string reply;
    uint32_t timeoutMs = 3000;
};

class ObexTest : public BenchTest
{
protected:
    // The canned sessions have the connection identifier 5.
    static inline const Turn connect
        = {"80 00 1A 10 00 0F FD 46 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1F",
           "A0 00 1F 10 00 10 00 CB 00 00 00 05 4A 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1F"};
    static inline const Turn disconnect = {"81 00 08 CB 00 00 00 05", "A0 00 08 CB 00 00 00 05"};
    static inline const std::string done = "A0 00 03";

    ObexTest();
    ~ObexTest() override;

    // Queues the canned replies, makes the call, and compares its outcome and all that it sent, with the time-outs.
    void ExpectTurns(const std::vector<Turn>& turns, uint8_t result, uint16_t bits,
                     const std::function<uint8_t()>& call);
    // The same between a connect and a disconnect.
    void ExpectSession(const std::vector<Turn>& turns, uint8_t result, uint16_t bits,
                       const std::function<uint8_t()>& call);
    void ExpectSession(const std::vector<Turn>& turns, const std::function<uint8_t()>& call)
    {
        ExpectSession(turns, 1, 0, call);
    }

    // Path of a host file, and its content; no file reads as "none".
    std::string HostPath(const std::string& name) const { return hostFolder + name; }
    void WriteHostFile(const std::string& name, const Bytes& content) const;
    std::string HostText(const std::string& name) const;
    Bytes HostContent(const std::string& name) const;

    // Ends in the host's separator, as the library wants it.
    const std::string hostFolder;
    const char* const host = hostFolder.c_str();
    uint16_t error = 0x5555;
};

// A file content without a pattern that a wrong offset could hide in.
Bytes Noise(size_t size);

// The characters of a text as two bytes each, as "00 61 00 62".
std::string Wide(const std::string& text);

}  // namespace tandekor::test
