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
    std::string bytes;  // of the last request, if there are two; 4B 0B 00 80 or, for a pin, 4B 00 00 01 is left out
    std::string entry;  // without TANDEKOR_ in front of FTM_, LTM_ and GPIO_
    int valueBytes = ownProcedure;  // behind the status word in the reply to a standard command
    uint32_t timeoutMs = 3000;
    std::string closing = {};  // what the closing texts repeat, where it is not the entry
    bool statusIsByte = false;
};

// The requests by subject, each function at least once.
std::vector<FtmRequest> DataAccessRequests();
std::vector<FtmRequest> DisplayCameraAndRadioRequests();

// All of them, with the names and the bytes in full.
const std::vector<FtmRequest>& FtmRequests();

std::vector<Call> FtmCalls();

constexpr char done[] = " - Completed successfully\n";
constexpr char noReply[] = " - SendSync() fail (error code = 187)";

class FtmTest : public BenchTest
{
protected:
    FtmTest() { simulator::ThePhone().mode = simulator::Mode::Ftm; }

    // The phone that answers with a header, whose last word is 9, and these fields.
    static void RepliesWith(const std::string& fields);

    // What a call makes of replies: "replies > result outs log | replies > ...". Replies are fields behind a header,
    // with a semicolon between two of them; "= 01 02" is a whole reply, "!" an exchange that fails, and may deliver
    // bytes behind the mark. Each serves one exchange. Outs are "7,0x12,85*3", or "-" for none. Of the log, what comes
    // behind the entry text, with a slash between two texts: " ..." is an ending behind the entry text, with the outs
    // where that shows what they were; "(..." is text behind the function's name; "done" and "noReply" are the endings
    // of the same names.
    void ExpectAnswers(const Call& call, const std::string& answers);
    // Lines of "name: answers", which call the first request with an entry text of this name. A line that begins with a
    // slash, | or ( belongs to the one before.
    void ExpectAnswers(const std::string& rows);
};

}  // namespace tandekor::test
