// Every procedure with the arguments and on the phones on which its way is recorded in transcripts.txt.
#pragma once

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

// Gives the phone a content by which its parts can be told apart.
void MarkPhone();

// The phone that answers with this chip's version and this hardware identifier.
void BecomePhone(uint32_t chip, uint16_t hardwareId);

}  // namespace tandekor::test
