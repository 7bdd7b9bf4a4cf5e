// All functions that take a handle, with what the public headers say of their arguments. The table is made from the
// headers when the project is built, so a new function is in it at once.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/call.h"

namespace tandekor::test
{

enum class Kind : uint8_t
{
    Number,
    Text,  // up to a NUL
    In,
    Out,
    InOut
};

struct ArgumentForm
{
    Kind kind;
    const char* name;
    size_t count;   // of elements, unless another argument says it
    int countFrom;  // the place of that argument, or -1
    bool mayBeNull;
};

struct Function
{
    const char* name;
    const char* family;  // the header, "at" or "obex"
    std::vector<ArgumentForm> forms;
    std::vector<Parameter> parameters;
    Invoke invoke;
};

const std::vector<Function>& EveryFunction();

template <typename... Parameters>
Function Describe(const char* name, const char* family, uint8_t (*function)(ResourceContext, Parameters...),
                  std::vector<ArgumentForm> forms)
{
    return {name,
            family,
            std::move(forms),
            {ParameterOf<Parameters>()...},
            InvokeOf(function, std::index_sequence_for<Parameters...>())};
}

// What a call is given: argument i gets number i of the list, and texts likewise, from the front again at its end.
struct Choices
{
    std::vector<int64_t> numbers = {1};
    std::vector<std::string> texts = {"5551234"};
    bool nulls = false;           // for every pointer that may be null
    std::string hostFolder = "";  // with a slash at its end; for texts that name one

    // A number that says the size of a buffer.
    static constexpr int64_t mostElements = 600;
};

// Buffers have the sizes that the headers ask for.
Call CallOf(const Function& function, const Choices& choices);

}  // namespace tandekor::test
