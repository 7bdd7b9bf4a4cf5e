// Service code, on-chip SIM, root key, flash, uploads.
#include <algorithm>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

constexpr int64_t gsdiBlockLength = 16;
constexpr size_t longestKey = 260;

// Codes of upload events.
constexpr uint32_t statusEvent = 0;
constexpr uint32_t totalEvent = 11;
constexpr uint32_t progressEvent = 12;
constexpr uint32_t lastStatusEvent = 14;

// The security commands deliver a value and a status; what the phone is told by them counts only if the status is 0.
template <typename Action>
uint8_t SecurityCommand(uint32_t* piGsdiValue, uint32_t* piStatus, Action action)
{
    Security& security = ThePhone().security;
    if (security.status == 0)
        action(security);
    Put(piGsdiValue, 0);
    Put(piStatus, security.status);
    return security.result;
}

void Report(uint32_t event, uint32_t value)
{
    const uint32_t record[] = {event, 0, value};
    if (const QlibUploadCallback progress = TheState().library.uploadCallback)
        progress(record);
}

// An upload of some size that takes its time, told event by event. Only the QPST mode of the library has it. What the
// arguments mean is not known here, so no file is read, and the log's file says so.
uint8_t RunUpload(const std::string& operation)
{
    const UploadScript& upload = ThePhone().upload;
    if (!TheState().library.version.ends_with("QPST"))
        return 0;
    ReportNoEffect("the file of " + operation);
    Report(statusEvent, 1);
    Report(totalEvent, upload.totalSize);
    for (uint32_t step = 1; step <= upload.steps; ++step)
    {
        TakeTime(upload.stepTimeMs);
        Report(progressEvent, static_cast<uint32_t>(uint64_t{upload.totalSize} * step / upload.steps));
    }
    Report(lastStatusEvent, upload.lastStatus);
    return upload.result;
}

}  // namespace

uint8_t QLIB_DIAG_SPC_F(ResourceContext hResourceContext, const char* iSPC, uint8_t* piSPC_Result)
{
    if (!Reaches(hResourceContext, __func__, iSPC))
        return 0;
    Put(piSPC_Result, iSPC != nullptr && ThePhone().spc == iSPC);
    return 1;
}

// --- SIM and root key
uint8_t QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(ResourceContext hResourceContext, uint8_t iSlotId, uint8_t iSIM_AppIdLen,
                                              uint8_t* piSIM_AppId, uint32_t* piCommandStatus, uint32_t* piStatus)
{
    if (!Reaches(hResourceContext, __func__, iSlotId, iSIM_AppIdLen, BytesAt(piSIM_AppId, iSIM_AppIdLen)))
        return 0;
    Security& security = ThePhone().security;
    security.onChipSim = security.status == 0 && security.commandStatus == 0;
    Put(piCommandStatus, security.commandStatus);
    Put(piStatus, security.status);
    return 1;
}

uint8_t QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD(ResourceContext hResourceContext, uint32_t iFirst, uint32_t iSecond,
                                         uint8_t* pBlock, uint32_t iKeyLength, const uint8_t* pKey,
                                         uint32_t* piGsdiValue, uint32_t* piStatus)
{
    const Bytes key = BytesAt(pKey, iKeyLength);
    if (!Reaches(hResourceContext, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength), iKeyLength, key)
        || ThePhone().security.secured || key.size() > longestKey)
        return 0;
    return SecurityCommand(piGsdiValue, piStatus, [&](Security& security) { security.rootKey = key; });
}

uint8_t QLIB_GSDIDIAG_ROOT_KEY_READ_CMD(ResourceContext hResourceContext, uint32_t iFirst, uint32_t iSecond,
                                        uint8_t* pBlock, uint32_t* piKeyLength, uint8_t* pKey, uint32_t* piGsdiValue,
                                        uint32_t* piStatus)
{
    if (!Reaches(hResourceContext, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength)))
        return 0;
    const auto deliver = [&](Security& security)
    {
        Put(piKeyLength, static_cast<uint32_t>(security.rootKey.size()));
        if (pKey != nullptr)
            std::ranges::copy(security.rootKey, pKey);
    };
    return SecurityCommand(piGsdiValue, piStatus, deliver);
}

uint8_t QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD(ResourceContext hResourceContext, uint32_t iFirst, uint32_t iSecond,
                                             uint8_t* pBlock, uint32_t* piGsdiValue, uint32_t* piStatus)
{
    if (!Reaches(hResourceContext, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength)))
        return 0;
    return SecurityCommand(piGsdiValue, piStatus, [](Security& security) { security.secured = true; });
}

// --- flash: the first five values and the byte number their place, the last two are maker and device
uint8_t QLIB_EFS2_DIAG_DEV_INFO(ResourceContext hResourceContext, uint32_t* pi1, uint32_t* pi2, uint32_t* pi3,
                                uint32_t* pi4, uint32_t* pi5, uint32_t* pi6, uint32_t* pi7, uint8_t* piByte,
                                char* sDeviceName100)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    const uint16_t flash = ThePhone().nandFlashId;
    uint32_t number = 1;
    for (uint32_t* value : {pi1, pi2, pi3, pi4, pi5})
        Put(value, number++);
    Put(pi6, flash >> 8);
    Put(pi7, flash & 0xFFu);
    Put(piByte, uint8_t{8});
    constexpr char name[] = "SIM FLASH";
    if (sDeviceName100 != nullptr)
        std::ranges::copy(name, sDeviceName100);
    return 1;
}

// --- uploads
void QLIB_ConfigureCallBacks(ResourceContext hResourceContext, void* pFirst, QlibUploadCallback pProgress, void* pThird)
{
    const std::string arguments = ShownTogether(pFirst != nullptr, pProgress != nullptr, pThird != nullptr);
    if (Enter(__func__, arguments, false) && IsConnected(hResourceContext))
        TheState().library.uploadCallback = pProgress;
}

uint8_t QLIB_UploadCEFS_File2(ResourceContext hResourceContext, QlibUploadArgument a1, QlibUploadArgument a2,
                              QlibUploadArgument a3)
{
    return Reaches(hResourceContext, __func__, a1, a2, a3) ? RunUpload(__func__) : uint8_t{0};
}

uint8_t QLIB_UploadCEFS_File(ResourceContext hResourceContext, QlibUploadArgument a1, QlibUploadArgument a2)
{
    return Reaches(hResourceContext, __func__, a1, a2) ? RunUpload(__func__) : uint8_t{0};
}

uint8_t QLIB_UploadMultiImage(ResourceContext hResourceContext, QlibUploadArgument a1, QlibUploadArgument a2,
                              QlibUploadArgument a3, QlibUploadArgument a4, QlibUploadArgument a5,
                              QlibUploadArgument a6, QlibUploadArgument a7, QlibUploadArgument a8,
                              QlibUploadArgument a9, QlibUploadArgument a10, QlibUploadArgument a11,
                              QlibUploadArgument a12, QlibUploadArgument a13, QlibUploadArgument a14,
                              QlibUploadArgument a15, QlibUploadArgument a16, QlibUploadArgument a17,
                              QlibUploadArgument a18, QlibUploadArgument a19, QlibUploadArgument a20,
                              QlibUploadArgument a21, QlibUploadArgument a22, QlibUploadArgument a23)
{
    return Reaches(hResourceContext, __func__, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16,
                   a17, a18, a19, a20, a21, a22, a23)
               ? RunUpload(__func__)
               : uint8_t{0};
}
