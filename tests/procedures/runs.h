// Every procedure with the arguments and on the phones on which its way is recorded in transcripts.txt.
#pragma once

#include <cstdint>
#include <functional>
#include <type_traits>
#include <vector>

#include "simulator/control.h"
#include "tests/support/call.h"

namespace tandekor::test
{

// A change of the phone or of the host library.
using Change = std::function<void()>;
Change operator+(const Change& first, const Change& second);
template <typename Member>
Change Set(Member simulator::Phone::*member, std::type_identity_t<Member> value)
{
    return [=] { simulator::ThePhone().*member = value; };
}
Change SetItem(uint16_t number, const char* digits);
Change SetStatus(uint16_t item);  // 5: the phone refuses it
Change SetRegister(uint32_t address, uint32_t value);
Change Refuse(const char* operation, int n = 1);
Change NoReply();
Change Reply(const char* digits);
Change At(const char* operation, int n, const Change& change);  // just before the n-th call of the operation

// A call before which something changes, or another call has succeeded.
Call After(const Change& change, const Call& call);
Call After(const Call& first, const Call& second);

// Calls that belong together, each made on a fresh bench with a phone in FTM mode.
struct ProcedureRun
{
    const char* name = "a case";
    std::vector<Call> calls = {};
    Change change = nullptr;  // what else the bench needs
    bool readable = false;    // its transcript is recorded as text
};

const std::vector<ProcedureRun>& Runs();

// Gives the phone a content by which its parts can be told apart.
void MarkPhone();

// The phone that answers with this chip's version and this hardware identifier.
Change BecomePhone(uint32_t chip, uint16_t hardwareId);

}  // namespace tandekor::test
