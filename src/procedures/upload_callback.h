// The progress of uploads, which the host library reports and the caller's function is told. One for the process.
#pragma once

#include <cstdint>

#include "tandekor/procedures.h"

namespace tandekor
{

// What the host library calls, with a record of words: word 0 is the event's code, word 2 its value. Returns 1.
uint8_t UploadProgressCallback(const uint32_t* record);

}  // namespace tandekor
