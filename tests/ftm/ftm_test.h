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
    std::string bytes;              // of the last request, if there are two; behind 4B 0B 00 80, which most begin with
    std::string entry;              // without TANDEKOR_ in front of FTM_, LTM_ and GPIO_
    int valueBytes = ownProcedure;  // behind the status word in the reply to a standard command
    uint32_t timeoutMs = 3000;
    std::string closing = {};  // what the closing texts repeat, where it is not the entry
    bool statusIsByte = false;
};

// The requests by subject, each function at least once.
std::vector<FtmRequest> DataAccessRequests();
std::vector<FtmRequest> DisplayCameraAndRadioRequests();

std::vector<Call> FtmCalls();

constexpr char done[] = " - Completed successfully\n";
constexpr char noReply[] = " - SendSync() fail (error code = 187)";

// What a call makes of replies. These are fields behind a header, with a semicolon between two of them; "= 01 02" is
// a whole reply, "!" an exchange that fails, and may deliver bytes behind the mark. Each serves one exchange.
// Of the log, what comes behind the entry text: " ..." is an ending behind the entry text, with the outs where that
// shows what they were; "(..." is text behind the function's name.
struct Answered
{
    Call call;
    std::string replies;
    uint8_t result;
    Numbers outs;
    Texts log;
};

class FtmTest : public BenchTest
{
protected:
    FtmTest() { simulator::ThePhone().mode = simulator::Mode::Ftm; }

    // The phone that answers with a header, whose last word is 9, and these fields.
    static void RepliesWith(const std::string& fields);
    void ExpectAnswers(const std::vector<Answered>& rows);
};

}  // namespace tandekor::test
