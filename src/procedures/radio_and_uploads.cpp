// The FM radio test, the factory tracking byte, and the uploads.
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "procedures/upload_callback.h"
#include "tandekor/ftm.h"
#include "tandekor/library.h"
#include "tandekor/procedures.h"

using namespace tandekor;

// --- FM radio

// Everything that is reported stands in one byte of the radio chip's data.
uint8_t TANDEKOR_SpecialGetFmRadioInfo(ResourceContext hResourceContext, uint8_t eFmData, uint8_t* pcFmValue)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint8_t readAccess = 0;
    constexpr uint8_t chipAddress = 0x10;
    constexpr uint8_t dataSize = 28;
    uint8_t data[32] = {};
    if (!phone.CheckConnection())
        return 0;
    *pcFmValue = 0xFF;
    if (!phone.Step(
            "TANDEKOR_FTM_I2C_DATA_ACCESS",
            "(iI2C_AccessType = 0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0, iI2C_RegAddr = 0x00, "
            "iI2C_DataLen = 28)",
            [&]
            { return TANDEKOR_FTM_I2C_DATA_ACCESS(hResourceContext, readAccess, chipAddress, 0, 0, dataSize, data); }))
        return 0;
    const uint8_t information = data[9];
    switch (eFmData)
    {
        case 0:
            *pcFmValue = information >> 4;
            return 1;
        case 1:
            *pcFmValue = information >> 3 & 1;
            return 1;
        case 2:
            *pcFmValue = information >> 2 & 1;
            return 1;
        default:
            return 0;
    }
}

// Both reads go to one byte, which ends with the second.
uint8_t TANDEKOR_FM_RadioTest(ResourceContext hResourceContext, uint16_t iAudioDevice, uint16_t* iChip_Id,
                              uint16_t iChannel, uint16_t* piStatusWord, uint8_t* pcFmValue)
{
    const PhoneProcedure phone(hResourceContext);
    const auto readInfo = [&](uint8_t eFmData)
    {
        return phone.Step(
            "TANDEKOR_SpecialGetFmRadioInfo", "(eFmData = %d)",
            [&] { return TANDEKOR_SpecialGetFmRadioInfo(hResourceContext, eFmData, pcFmValue); }, eFmData);
    };
    return phone.CheckConnection() && phone.SetMicrophoneBias(iAudioDevice)
           && phone.Step("TANDEKOR_FTM_GET_FM_RADIO_ID", "()",
                         [&] { return TANDEKOR_FTM_GET_FM_RADIO_ID(hResourceContext, iChip_Id); })
           && phone.Step(
               "TANDEKOR_FTM_TUNE_FM_RADIO", "(iChannel = %d)",
               [&] { return TANDEKOR_FTM_TUNE_FM_RADIO(hResourceContext, iChannel, piStatusWord); }, iChannel)
           && readInfo(0) && readInfo(2);
}

// --- tracking byte

uint8_t TANDEKOR_SetFactoryTrackingByte(ResourceContext hResourceContext, uint8_t iOperationType, uint16_t iDataAddress,
                                        uint8_t* pFactoryData)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint16_t addresses = 128;
    if (!phone.CheckConnection())
        return 0;
    if (iDataAddress >= addresses)
    {
        phone.StepTrace(STEP_FAILURE, "TANDEKOR_SetFactoryTrackingByte - iDataAddress >= 128");
        return 0;
    }
    return phone.Step(
        "TANDEKOR_FTM_READ_WRITE_FACTORY_DATA", "(iOperationType = %c, iDataAddress = %d)",
        [&]
        { return TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(hResourceContext, iOperationType, iDataAddress, pFactoryData); },
        iOperationType, iDataAddress);
}

// --- uploads, which only the QPST mode of the host library has. Its result is the result.

namespace
{

template <typename Operation, typename... Arguments>
uint8_t Upload(ResourceContext hResourceContext, const char* name, Operation operation, Arguments... arguments)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.IsKnown())
        return 0;
    if (TANDEKOR_GetLibraryMode() == 0)
    {
        phone.StepTrace(STEP_START, "Temporary not supported - HBLK removed");
        return 0;
    }
    QLIB_ConfigureCallBacks(hResourceContext, nullptr, UploadProgressCallback, nullptr);
    uint8_t result = 0;
    phone.StepWithoutStart(name, "()", [&] { return result = operation(hResourceContext, arguments...); });
    return result;
}

}  // namespace

uint8_t TANDEKOR_UploadCEFS_File2(ResourceContext hResourceContext, TandekorUploadArgument a1,
                                  TandekorUploadArgument a2, TandekorUploadArgument a3)
{
    return Upload(hResourceContext, "QLIB_UploadCEFS_File2", QLIB_UploadCEFS_File2, a1, a2, a3);
}

uint8_t TANDEKOR_UploadCEFS_File(ResourceContext hResourceContext, TandekorUploadArgument a1, TandekorUploadArgument a2)
{
    return Upload(hResourceContext, "QLIB_UploadCEFS_File", QLIB_UploadCEFS_File, a1, a2);
}

uint8_t TANDEKOR_UploadMultiImage(ResourceContext hResourceContext, TandekorUploadArgument a1,
                                  TandekorUploadArgument a2, TandekorUploadArgument a3, TandekorUploadArgument a4,
                                  TandekorUploadArgument a5, TandekorUploadArgument a6, TandekorUploadArgument a7,
                                  TandekorUploadArgument a8, TandekorUploadArgument a9, TandekorUploadArgument a10,
                                  TandekorUploadArgument a11, TandekorUploadArgument a12, TandekorUploadArgument a13,
                                  TandekorUploadArgument a14, TandekorUploadArgument a15, TandekorUploadArgument a16,
                                  TandekorUploadArgument a17, TandekorUploadArgument a18, TandekorUploadArgument a19,
                                  TandekorUploadArgument a20, TandekorUploadArgument a21, TandekorUploadArgument a22,
                                  TandekorUploadArgument a23)
{
    return Upload(hResourceContext, "QLIB_UploadMultiImage", QLIB_UploadMultiImage, a1, a2, a3, a4, a5, a6, a7, a8, a9,
                  a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20, a21, a22, a23);
}
