// Every factory request on any reply.
// Inputs of up to 8192 bytes.
#include "fuzz/support/replies.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return fuzz::CallOnReplies("ftm", data, size);
}
