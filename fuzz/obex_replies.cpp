// Every OBEX function on any conversation, with a folder of the host for the transfers.
// Inputs of up to 8192 bytes.
#include "fuzz/support/replies.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return fuzz::CallOnReplies("obex", data, size);
}
