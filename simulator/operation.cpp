#include "simulator/operation.h"

#include <cstdio>

#include "simulator/state.h"

namespace simulator
{

namespace
{

// Takes the actions that are due out of the list before they run, since they may script further ones.
void RunHooks(const std::string& operation, int call)
{
    auto& hooks = TheState().calls.hooks;
    std::vector<Hook> due;
    std::erase_if(hooks,
                  [&](const Hook& one)
                  {
                      if (one.operation != operation || one.call != call)
                          return false;
                      due.push_back(one);
                      return true;
                  });
    for (const Hook& one : due)
        one.action();
}

}  // namespace

std::string Shown(const char* text) { return text == nullptr ? "null" : '"' + std::string(text) + '"'; }

std::string Shown(const Bytes& bytes)
{
    std::string text;
    char digits[4];
    for (const uint8_t byte : bytes)
    {
        std::snprintf(digits, sizeof digits, text.empty() ? "%02X" : " %02X", byte);
        text += digits;
    }
    return text;
}

std::string Shown(const std::vector<uint32_t>& words)
{
    std::string text;
    for (const uint32_t word : words)
        text.append(text.empty() ? "" : " ").append(std::to_string(word));
    return text;
}

Bytes BytesAt(const void* start, int64_t length)
{
    const auto* bytes = static_cast<const uint8_t*>(start);
    return bytes == nullptr || length < 0 ? Bytes() : Bytes(bytes, bytes + length);
}

bool AnswersInTime()
{
    if (!PhoneAnswers())
        return false;
    TakeTime(ThePhone().latencyMs);
    return true;
}

bool Enter(const char* operation, const std::string& arguments, bool hasResult)
{
    CallState& state = TheState().calls;
    const int call = ++state.counts[operation];
    const int callOfAny = hasResult ? ++state.counts[""] : 0;
    const std::string text = std::string(operation) + '(' + arguments + ')';
    Keep(state.calls, text);
    Keep(TheState().timeline, text);
    RunHooks(operation, call);
    return std::ranges::none_of(state.refusals,
                                [&](const Refusal& refusal)
                                {
                                    const bool any = refusal.operation.empty();
                                    const int number = any ? callOfAny : call;
                                    return (any || refusal.operation == operation) && number >= refusal.first
                                           && number <= refusal.last;
                                });
}

}  // namespace simulator
