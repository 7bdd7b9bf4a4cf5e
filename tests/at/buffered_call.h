// Calls of AT functions with texts and caller's buffers, and what is expected of a whole table of them.
#pragma once

#include <functional>
#include <tuple>
#include <type_traits>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

// The bytes of an out-argument that holds more than one value.
struct Out
{
    size_t size;
};

// An in-argument, or the size of an out-argument.
struct Given
{
    Given(int number) : value(number) {}
    Given(const char* text) : bytes(Ascii(text)) {}
    Given(const std::string& text) : bytes(Ascii(text)) {}
    Given(Out out) : size(out.size) {}

    int value = 0;
    Bytes bytes = {};
    size_t size = 0;
};

class GivenList
{
public:
    explicit GivenList(const std::vector<Given>& all) : list(all) {}

    const Given& In() { return list.at(next++); }
    size_t OutSize(size_t usual) { return next < list.size() && list[next].size != 0 ? list[next++].size : usual; }

private:
    const std::vector<Given>& list;
    size_t next = 0;
};

struct BufferedResult
{
    uint8_t result = 0;
    std::vector<Bytes> outs;  // in the order of the arguments, *pStatus last; what was not written reads 0x55
    bool guardsIntact = true;
};
using BufferedCall = std::function<BufferedResult(ResourceContext)>;

template <typename T>
struct BufferedArgument
{
    explicit BufferedArgument(GivenList& given) : value(static_cast<T>(given.In().value)) {}
    T Value() { return value; }
    void AddTo(BufferedResult&) const {}

    T value;
};

// A text or byte array; a NUL is put behind it.
template <typename T>
struct BufferedArgument<const T*>
{
    explicit BufferedArgument(GivenList& given) : bytes(given.In().bytes) { bytes.push_back(0); }
    const T* Value() { return reinterpret_cast<const T*>(bytes.data()); }
    void AddTo(BufferedResult&) const {}

    Bytes bytes;
};

template <typename T>
struct BufferedArgument<T*>
{
    explicit BufferedArgument(GivenList& given) : buffer(given.OutSize(sizeof(T))) {}
    T* Value() { return reinterpret_cast<T*>(buffer.Data()); }
    void AddTo(BufferedResult& call) const
    {
        call.outs.push_back(buffer.Content());
        call.guardsIntact = call.guardsIntact && buffer.GuardsIntact();
    }

    GuardedBuffer buffer;
};

// In-arguments in their order, and between them the sizes of the out-arguments that are more than one value.
template <typename... Parameters>
BufferedCall With(uint8_t (*function)(ResourceContext, Parameters...), const std::vector<Given>& all = {})
{
    return [function, all](ResourceContext handle)
    {
        GivenList given(all);
        std::tuple<BufferedArgument<Parameters>...> arguments{BufferedArgument<Parameters>(given)...};
        BufferedResult call;
        std::apply([&](auto&... each) { call.result = function(handle, each.Value()...); }, arguments);
        std::apply([&](const auto&... each) { (each.AddTo(call), ...); }, arguments);
        return call;
    };
}

// Out-values as the bytes that they have in the caller's memory.
template <typename Number>
Bytes InMemory(const std::vector<Number>& numbers)
{
    const auto* start = reinterpret_cast<const uint8_t*>(numbers.data());
    return {start, start + numbers.size() * sizeof(Number)};
}
template <typename... Numbers>
Bytes U32(Numbers... numbers)
{
    return InMemory(std::vector{static_cast<uint32_t>(numbers)...});
}
inline Bytes U16(uint16_t number) { return InMemory(std::vector{number}); }

// The bytes of a text with the NUL behind it.
inline Bytes Text(const std::string& text) { return Ascii(text + '\0'); }

// A whole reply that ends in OK; without echo if that is empty.
inline std::string Reply(const std::string& echo, const std::string& lines)
{
    return echo + (echo.empty() ? "" : "\r") + "\r\n" + lines + "\r\n\r\nOK";
}

// A reply of 4096 bytes: the entry as often as it fits behind the head, and OK.
std::string Dense(const std::string& head, const std::string& entry);

struct SentCommand
{
    BufferedCall call;
    std::string request;  // without the carriage return and the NUL behind it
    std::string log;
    uint32_t timeoutMs = 3000;
};

struct ReadReply
{
    BufferedCall call;
    std::string reply;
    std::vector<Bytes> outs;  // what is written, from the first byte of each out-argument on
};

class BufferedAtTest : public BenchTest
{
protected:
    // Each is logged and then sent once, and a failed exchange writes nothing but what is named here. An unknown handle
    // does nothing of all that.
    void ExpectSent(const std::vector<SentCommand>& commands, const std::vector<Bytes>& writtenOnFailure = {});
    // The call succeeds with this status, and writes these bytes and no more.
    void ExpectOuts(const BufferedCall& call, uint16_t status, const std::vector<Bytes>& written);
    void ExpectRead(const std::vector<ReadReply>& replies);
    // Whatever the phone answers and the host library claims, the guard bytes stay: on every beginning of these
    // replies, on those that are dense with values, on one byte repeated.
    void ExpectGuardsHold(const std::vector<SentCommand>& commands, const std::vector<ReadReply>& replies,
                          const std::vector<std::string>& dense);
};

}  // namespace tandekor::test
