// Every procedure with the arguments and on the phones on which its way is recorded in transcripts.txt.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "tests/support/call.h"

namespace tandekor::test
{

// Calls that belong together, each made on a fresh bench with a phone in FTM mode.
struct ProcedureRun
{
    const char* name;
    std::vector<Call> calls;
    std::function<void(ResourceContext)> prepare = nullptr;  // what else the bench needs
    bool readable = false;                                   // its transcript is recorded as text
};

const std::vector<ProcedureRun>& Runs();

// A call before which the phone or the host library changes, or another call is made.
Call After(const std::function<void()>& change, const Call& call);
Call After(const Call& first, const Call& second);

// A host call that will be refused, a request that will not be answered, and one that will be answered so.
std::function<void()> Refuse(const char* operation, int n = 1);
std::function<void()> NoReply();
std::function<void()> Reply(const char* digits);

void SetRegister(uint32_t address, uint32_t value);

// Gives the phone a content by which its parts can be told apart.
void MarkPhone();

// The phone that answers with this chip's version and this hardware identifier.
void BecomePhone(uint32_t chip, uint16_t hardwareId);

}  // namespace tandekor::test
