// The phone's power and its answers.
#pragma once

#include "simulator/control.h"

namespace simulator
{

// Whether the phone has power and has started.
bool PhoneAnswers();

// Time that the phone takes, and not the library.
void TakeTime(uint32_t milliseconds);

// Power or reset: away for its start time, then in the mode of NV item 453.
void StartPhone();

// Off at once, until the supply is switched on anew.
void PowerDown();

// The answer to a request on the port, in AT or OBEX mode, or to a diagnostic request. None when the phone stays
// silent; an empty one when it refuses the request, which the host library reports at once.
std::optional<Bytes> AnswerAt(const Bytes& request);
std::optional<Bytes> AnswerObex(const Bytes& request);
std::optional<Bytes> AnswerDiagnostic(const Bytes& request);

}  // namespace simulator
