// Every AT function on any reply: with and without echo, of any claimed length, as success and as failure.
// Inputs of up to 8192 bytes.
#include "fuzz/support/replies.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return fuzz::CallOnReplies("at", data, size);
}
