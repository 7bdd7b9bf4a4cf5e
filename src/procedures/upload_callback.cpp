#include "procedures/upload_callback.h"

namespace tandekor
{

namespace
{

TandekorCallback uploadCallback = nullptr;

}  // namespace

void SetUploadCallback(TandekorCallback callback) { uploadCallback = callback; }

TandekorCallback UploadCallback() { return uploadCallback; }

}  // namespace tandekor
