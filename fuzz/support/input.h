// How a fuzz target takes an input apart, and how it calls functions of the library.
//
// An input begins with the name of a function and a line feed, and six bytes that its arguments are made of. A name
// that no function has leads to one all the same, so that no input is lost. What follows is the target's own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/every_function.h"

namespace fuzz
{

using tandekor::test::Bytes;
using tandekor::test::Call;
using tandekor::test::Function;

// Past its end an input reads as zeros and empty texts.
class Input
{
public:
    Input(const uint8_t* bytes, size_t length) : next(bytes), left(length) {}

    bool AtEnd() const { return left == 0; }
    uint8_t Byte();
    uint16_t Word();  // low byte first
    uint32_t Dword();
    Bytes Some(size_t most);
    std::string Line();

private:
    const uint8_t* next;
    size_t left;
};

// The functions of a header.
std::vector<const Function*> Family(const std::string& header);

// The call that an input begins with.
Call TakeCall(Input& input, const std::vector<const Function*>& functions);

// A folder of the host with the file "f", for all transfers of this process.
const std::string& HostFolder();

// Calls, and ends the process if the function wrote beyond a buffer.
void Make(const Call& call, ResourceContext handle);

}  // namespace fuzz
