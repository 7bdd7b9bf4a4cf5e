// Tables of AT commands and replies, and what is expected of each row.
#pragma once

#include "tests/support/bench_test.h"
#include "tests/support/call.h"

namespace tandekor::test
{

// The bytes of a text with the NUL behind it.
inline Bytes Text(const std::string& text) { return Ascii(text + '\0'); }

// A whole reply that ends in OK; without echo if that is empty.
inline std::string Reply(const std::string& echo, const std::string& lines)
{
    return echo + (echo.empty() ? "" : "\r") + "\r\n" + lines + "\r\n\r\nOK";
}

// A reply of 4096 bytes: the entry as often as it fits behind the head, and OK.
std::string Dense(const std::string& head, const std::string& entry);

struct SentCommand
{
    Call call;
    std::string request;   // without AT, and without the carriage return and the NUL behind it
    std::string log = {};  // behind TANDEKOR_AT_; in parentheses only what follows Get_CMUT or Set_CMUT; () if empty
    uint32_t timeoutMs = 3000;
    std::vector<Bytes> writtenOnFailure = {};
};

struct ReadReply
{
    Call call;
    std::string reply;
    std::vector<Bytes> outs;  // what is written, from the first byte of each out-argument on
};

// The commands of one file by what is sent, what is read, and replies that are dense with values.
struct AtTable
{
    std::vector<SentCommand> commands;
    std::vector<ReadReply> replies;
    std::vector<std::string> dense = {};
};
AtTable ValueCommands();
AtTable TextCommands();
std::vector<AtTable> AllAtCommands();

class AtTest : public BenchTest
{
protected:
    // The call succeeds with this status, and writes these bytes and no more.
    void ExpectOuts(const Call& call, uint16_t status, std::vector<Bytes> written);
};

}  // namespace tandekor::test
