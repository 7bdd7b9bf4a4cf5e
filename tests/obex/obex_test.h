// The fixture of the file service's tests: sessions as pairs of a request and a canned reply, and a folder of the host
// that is gone after the test.
#pragma once

#include <filesystem>

#include "tests/support/bench_test.h"
#include "tests/support/call.h"

namespace tandekor::test
{

// A packet by its parts, as hexadecimal digits: "continue id body:ab" is 90 00 0D CB 00 00 00 05 48 00 05 61 62. An
// operation or a response stands first and counts the packet's length; id is the session's; digits are bytes.
std::string Packet(const std::string& parts);

// What the library has to send, and what the phone answers, in turns: "get id > continue body:ab @5000; get id >
// missing", with the time-out where it is not 3000.
struct Turn
{
    std::string request;
    std::string reply;
    std::string timeoutMs;
};
std::vector<Turn> Turns(const std::string& turns);

// A call of which the error is the last out-argument, and the turns of its session.
struct Session
{
    Call call;
    std::string turns;
    uint16_t bits = 0;
    uint8_t result = 1;
    std::vector<Bytes> outs = {};  // in front of the error; not compared where there are none
};

class ObexTest : public BenchTest
{
protected:
    // The canned sessions have the connection identifier 5.
    static inline const std::string who = " 4A 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1F";
    static inline const std::string connect
        = "80 00 1A 10 00 0F FD 46 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1F > ";
    static inline const std::string connected = connect + "done 10 00 10 00 id" + who + ";";
    static inline const std::string disconnect = "disconnect id > ", disconnected = ";disconnect id > done id";
    static std::string InSession(const std::string& turns) { return connected + turns + disconnected; }
    static inline const std::string walk = "path 02 00 id name:a > done;";  // to the folder a

    ObexTest();
    ~ObexTest() override;

    // Queues the canned replies, makes the call, and compares its outcome and all that it sent, with the time-outs.
    void ExpectTurns(const Session& session);
    // The same between a connect and a disconnect.
    void ExpectSessions(const std::vector<Session>& sessions);

    // The out-arguments of a call that goes well but for these bits.
    std::vector<Bytes> Outs(const Call& call, uint16_t bits = 0) const;

    // Path of a host file, and its content; no file reads as "none".
    std::string HostPath(const std::string& name) const { return hostFolder + name; }
    void WriteHostFile(const std::string& name, const Bytes& content) const;
    std::string HostText(const std::string& name) const;
    Bytes HostContent(const std::string& name) const { return Ascii(HostText(name)); }

    // Ends in the host's separator, as the library wants it.
    const std::string hostFolder;
    const char* const host = hostFolder.c_str();
};

// A file content without a pattern that a wrong offset could hide in, and a part of it as hexadecimal digits.
Bytes Noise(size_t size);
std::string NoisePart(size_t from, size_t count);

}  // namespace tandekor::test
