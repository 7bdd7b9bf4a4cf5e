// The caller's function that uploads report their progress to, one for the process.
#pragma once

#include "tandekor/procedures.h"

namespace tandekor
{

// Null sets none.
void SetUploadCallback(TandekorCallback callback);
TandekorCallback UploadCallback();

}  // namespace tandekor
