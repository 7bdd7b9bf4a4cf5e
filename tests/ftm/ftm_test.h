// What the tests of the factory requests share: the shape of their tables, and what is expected of each row.
#pragma once

#include <string>
#include <vector>

#include "tests/support/bench_test.h"
#include "tests/support/call.h"

namespace tandekor::test
{

using Texts = std::vector<std::string>;

constexpr int ownProcedure = -1;

// An in-and-out argument goes out as the 0x55 that a guarded call puts into it.
struct FtmRequest
{
    Call call;
    std::string bytes;  // of the last request, if there are two
    std::string entry;
    int valueBytes = ownProcedure;  // behind the status word in the reply to a standard command
    uint32_t timeoutMs = 3000;
    std::string closing = {};  // what the closing texts repeat, where it is not the entry
    bool statusIsByte = false;
};

// The requests by subject, each function at least once.
std::vector<FtmRequest> LowLevelRequests();
std::vector<FtmRequest> PhoneDataRequests();
std::vector<FtmRequest> FmRadioRequests();
std::vector<FtmRequest> DisplayAndCameraRequests();

std::vector<Call> FtmCalls();

// A call whose non-constant arguments are read alone.
Call ReadOnly(const Call& call);

// Replies other than fields behind a header: an exchange that fails, which may deliver bytes behind the mark, and one
// that gives nothing.
constexpr char silence[] = "!";
constexpr char nothing[] = "nothing";

constexpr char done[] = " - Completed successfully\n";
constexpr char noReply[] = " - SendSync() fail (error code = 187)";

struct Answered
{
    Call call;
    Texts replies;
    uint8_t result;
    Numbers outs;
    Texts log;  // behind the entry text
};

class FtmTest : public BenchTest
{
protected:
    FtmTest() { simulator::ThePhone().mode = simulator::Mode::Ftm; }

    // The phone that answers with a header, whose last word is 9, and these fields.
    static void RepliesWith(const std::string& fields);
    // Each call makes as many exchanges as it has replies.
    void ExpectAnswers(const std::vector<Answered>& rows);
};

}  // namespace tandekor::test
