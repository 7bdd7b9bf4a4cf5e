// The phone's power and its answers.
#pragma once

#include "simulator/control.h"

namespace simulator
{

// Whether the phone has power and has started.
bool PhoneAnswers();

// Power or reset: away for its start time, then in the mode of NV item 453.
void StartPhone();

// Off at once, until the supply is switched on anew.
void PowerDown();

// The answer to a request on the port, in AT or OBEX mode, or to a diagnostic request; empty when the phone stays
// silent.
Bytes AnswerAt(const Bytes& request);
Bytes AnswerObex(const Bytes& request);
Bytes AnswerDiagnostic(const Bytes& request);

}  // namespace simulator
