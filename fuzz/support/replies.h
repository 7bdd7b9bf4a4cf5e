// One call on any replies.
#pragma once

#include "fuzz/support/input.h"

namespace fuzz
{

// Calls a function of the header as the input says, with the replies of the input: each a byte of flags (1 the echo of
// the request comes first, 2 the length is claimed, 4 the exchange fails), the claimed length and the number of its
// bytes, low byte first, and the bytes. When they are used up no exchange succeeds.
int CallOnReplies(const char* header, const uint8_t* data, size_t size);

}  // namespace fuzz
