#include "procedures/upload_callback.h"

#include <algorithm>

namespace tandekor
{

namespace
{

// Codes of the host library's events.
constexpr uint32_t statusEvent = 0;
constexpr uint32_t totalEvent = 11;
constexpr uint32_t progressEvent = 12;
constexpr uint32_t secondStatusEvent = 14;

constexpr uint32_t largestTotalWithoutProgress = 2000;

// Kept from one upload to the next.
uint32_t uploadStatus = 0;
uint32_t uploadTotal = 0;
uint32_t uploadPercent = 0;
TandekorCallback pCallback = nullptr;

void TellCaller()
{
    if (pCallback != nullptr)
        pCallback(uploadStatus, uploadPercent);
}

}  // namespace

uint8_t UploadProgressCallback(const uint32_t* record)
{
    if (record == nullptr)
        return 1;
    const uint32_t* value = record + 2;
    switch (record[0])
    {
        case statusEvent:
        case secondStatusEvent:
            if (*value != uploadStatus)
            {
                uploadStatus = *value;
                TellCaller();
            }
            break;
        case totalEvent:
            uploadTotal = *value;
            break;
        case progressEvent:
            if (uploadTotal > largestTotalWithoutProgress)
            {
                uploadPercent = std::min(*value * 100 / uploadTotal, uint32_t{100});
                TellCaller();
            }
            break;
        default:
            break;
    }
    return 1;
}

}  // namespace tandekor

// Belongs to the process, whatever the handle is.
void TANDEKOR_SetCallback(ResourceContext /*hResourceContext*/, TandekorCallback pCallback)
{
    tandekor::pCallback = pCallback;
}
