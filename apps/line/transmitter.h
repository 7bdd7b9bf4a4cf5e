#pragma once

#include "test.h"

namespace tandekor::line
{

// For the end of a run of which a test has left the transmitter on.
Outcome TransmitterOff(Context& context);

}  // namespace tandekor::line
