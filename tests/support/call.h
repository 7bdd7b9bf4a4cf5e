// Calls of any function that takes a handle, with every caller's buffer between guard bytes. For tests, sweeps and fuzz
// targets: it knows no test framework.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tandekor/common.h"
#include "tests/support/guarded_buffer.h"

namespace tandekor::test
{

inline namespace calls
{

// The size of an out-argument that holds more than one value.
struct Out
{
    size_t size;
};

// What a call is given for one argument: a number; or, for a pointer, what is there before the call: a text with its
// NUL, bytes as they are, an untouched buffer of some size, nothing at all. A pointer to one value that is only written
// is not given.
class Given
{
public:
    template <std::integral Number>
    Given(Number number) : value(static_cast<int64_t>(number)), isNumber(true)
    {
    }
    Given(const char* text) : content(Ascii(text)) { content.push_back(0); }
    Given(const std::string& text) : Given(text.c_str()) {}
    Given(Bytes bytes) : content(std::move(bytes)) {}
    Given(Out out) : content(out.size, 0x55) {}
    Given(std::nullptr_t) : isNull(true) {}

    int64_t value = 0;
    bool isNumber = false, isNull = false;
    Bytes content = {};
};

struct CallResult
{
    uint8_t result = 0;
    std::vector<Bytes> outs;    // the buffers behind all pointers to non-constant data, in the order of the arguments
    std::vector<bool> written;  // whether each of them was changed
    bool guardsIntact = true;
};

// A function with its arguments, to be called for a handle.
using Call = std::function<CallResult(ResourceContext)>;

// Every list that takes one of each choice; the last choice changes fastest.
std::vector<std::vector<Given>> Combinations(const std::vector<std::vector<Given>>& choices);

// What a parameter takes.
struct Parameter
{
    bool isPointer, isConstant;
    size_t size;  // of the value, or of the one that a pointer leads to
};

template <typename T>
constexpr Parameter ParameterOf()
{
    using Pointed = std::remove_pointer_t<T>;
    using Value = std::conditional_t<std::is_void_v<Pointed>, char, Pointed>;
    return {std::is_pointer_v<T>, std::is_const_v<Pointed>, sizeof(Value)};
}

// The arguments of one call, with their buffers.
class Arguments
{
public:
    Arguments(const std::vector<Parameter>& parameters, const std::vector<Given>& all);

    template <typename T>
    T Value(size_t place)
    {
        if constexpr (std::is_pointer_v<T>)
            return starts[place].isNull ? nullptr : static_cast<T>(static_cast<void*>(buffers[place].Data()));
        else
            return static_cast<T>(starts[place].value);
    }
    CallResult Result(const std::vector<Parameter>& parameters, uint8_t result) const;

private:
    std::vector<Given> starts;
    std::vector<GuardedBuffer> buffers;
};

using Invoke = std::function<uint8_t(ResourceContext, Arguments&)>;
Call MakeCall(std::vector<Parameter> parameters, std::vector<Given> all, Invoke invoke);

template <std::integral Result, typename... Parameters, size_t... places>
Invoke InvokeOf(Result (*function)(ResourceContext, Parameters...), std::index_sequence<places...>)
{
    return [function](ResourceContext handle, [[maybe_unused]] Arguments& arguments)
    { return static_cast<uint8_t>(function(handle, arguments.Value<Parameters>(places)...)); };
}

template <std::integral Result, typename... Parameters>
Call With(Result (*function)(ResourceContext, Parameters...), std::vector<Given> all = {})
{
    return MakeCall({ParameterOf<Parameters>()...}, std::move(all),
                    InvokeOf(function, std::index_sequence_for<Parameters...>()));
}

// A function with each combination of what its arguments may be.
template <std::integral Result, typename... Parameters>
std::vector<Call> Sweep(Result (*function)(ResourceContext, Parameters...),
                        const std::vector<std::vector<Given>>& choices)
{
    std::vector<Call> calls;
    for (const std::vector<Given>& all : Combinations(choices))
        calls.push_back(With(function, all));
    return calls;
}

}  // namespace calls

}  // namespace tandekor::test
