// The gate through which the host operations go: it records a call, and refuses it where a script says so.
#pragma once

#include <algorithm>
#include <concepts>
#include <string>
#include <type_traits>

#include "simulator/phone.h"

namespace simulator
{

// Arguments as the call record shows them.
template <std::integral Number>
std::string Shown(Number number)
{
    return std::to_string(number);
}
std::string Shown(const char* text);
std::string Shown(const Bytes& bytes);
std::string Shown(const std::vector<uint32_t>& words);

template <typename... Arguments>
std::string ShownTogether(const Arguments&... arguments)
{
    std::string text;
    ((text.append(text.empty() ? "" : ", ").append(Shown(arguments))), ...);
    return text;
}

// An array argument; a null pointer or a negative length is an empty one.
Bytes BytesAt(const void* start, int64_t length);

// Writes an out-argument, if there is one.
template <typename Value>
void Put(Value* argument, std::type_identity_t<Value> value)
{
    if (argument != nullptr)
        *argument = value;
}

// Records the call. Returns whether it goes on, and is not refused.
bool Enter(const char* operation, const std::string& arguments, bool hasResult = true);

bool IsConnected(ResourceContext handle);

// Whether the phone answers an operation, which then takes its latency.
bool AnswersInTime();

// Puts the line "SIMULATOR: ... is accepted without effect" into the text log's file.
void ReportNoEffect(const std::string& what);

// Puts the line "SIMULATOR: ... is not simulated" where a person sees it: into the text log's file and on stderr.
void ReportNotSimulated(const std::string& what);

// The entry of an operation on a connection.
template <typename... Arguments>
bool Admits(ResourceContext handle, const char* operation, const Arguments&... arguments)
{
    return Enter(operation, ShownTogether(arguments...)) && IsConnected(handle);
}

// The entry of an operation on the phone.
template <typename... Arguments>
bool Reaches(ResourceContext handle, const char* operation, const Arguments&... arguments)
{
    return Admits(handle, operation, arguments...) && AnswersInTime();
}

// The same, of an operation that the phone has in FTM mode only.
template <typename... Arguments>
bool ReachesInFtm(ResourceContext handle, const char* operation, const Arguments&... arguments)
{
    return Reaches(handle, operation, arguments...) && ThePhone().mode == Mode::Ftm;
}

}  // namespace simulator
