// Calls of exported functions whose out-arguments lie between guard bytes, so that one table serves a whole family.
#pragma once

#include <cstring>
#include <functional>
#include <tuple>
#include <vector>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

struct CallResult
{
    uint8_t result = 0;
    std::vector<uint32_t> outs;  // in the order of the arguments; one that was not written reads 0x55 in each byte
    bool guardsIntact = true;
    bool outsUntouched = true;
};

// A function with its arguments, to be called for a handle. A function with texts or buffers takes a lambda.
using GuardedCall = std::function<CallResult(ResourceContext)>;

template <typename T>
struct Argument
{
    explicit Argument(const int64_t*& inValue) : value(static_cast<T>(*inValue++)) {}

    T Value() { return value; }
    void AddTo(CallResult&) const {}

    T value;
};

template <typename T>
struct Argument<T*>
{
    explicit Argument(const int64_t*&) {}

    T* Value() { return reinterpret_cast<T*>(buffer.Data()); }
    void AddTo(CallResult& call) const
    {
        T value;
        std::memcpy(&value, buffer.Content().data(), sizeof value);
        call.outs.push_back(static_cast<uint32_t>(value));
        call.guardsIntact = call.guardsIntact && buffer.GuardsIntact();
        call.outsUntouched = call.outsUntouched && buffer.Content() == Bytes(sizeof(T), 0x55);
    }

    GuardedBuffer buffer{sizeof(T)};
};

// The values are those of the in-arguments, in their order.
template <typename Result, typename... Parameters>
GuardedCall Call(Result (*function)(ResourceContext, Parameters...), const std::vector<int64_t>& inValues = {})
{
    return [function, inValues](ResourceContext handle)
    {
        [[maybe_unused]] const int64_t* value = inValues.data();
        std::tuple<Argument<Parameters>...> arguments{Argument<Parameters>(value)...};
        CallResult call;
        std::apply([&](auto&... each) { call.result = static_cast<uint8_t>(function(handle, each.Value()...)); },
                   arguments);
        std::apply([&](const auto&... each) { (each.AddTo(call), ...); }, arguments);
        return call;
    };
}

}  // namespace tandekor::test
