// The FM radio test, the factory tracking byte, and the uploads.
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "procedures/upload_callback.h"
#include "tandekor/ftm.h"
#include "tandekor/library.h"
#include "tandekor/procedures.h"

namespace tandekor
{

// --- FM radio

// Everything that is reported stands in one byte of what the radio chip gives.
uint8_t PhoneProcedures::SpecialGetFmRadioInfo(uint8_t eFmData, uint8_t* pcFmValue)
{
    constexpr uint8_t readAccess = 0;
    constexpr uint8_t chipAddress = 0x10;
    constexpr uint8_t dataSize = 28;
    uint8_t data[32] = {};
    if (TANDEKOR_CheckConnection(hResourceContext) == 0)
        return 0;
    *pcFmValue = 0xFF;
    if (!Step("TANDEKOR_FTM_I2C_DATA_ACCESS",
              "(iI2C_AccessType = 0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0, iI2C_RegAddr = 0x00, "
              "iI2C_DataLen = 28)",
              [&] {
                  return TANDEKOR_FTM_I2C_DATA_ACCESS(hResourceContext, readAccess, chipAddress, 0, 0, dataSize, data);
              }))
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
uint8_t PhoneProcedures::FM_RadioTest(uint16_t iAudioDevice, uint16_t* iChip_Id, uint16_t iChannel,
                                      uint16_t* piStatusWord, uint8_t* pcFmValue)
{
    const auto readInfo = [&](uint8_t eFmData)
    {
        return Step(
            "TANDEKOR_SpecialGetFmRadioInfo", "(eFmData = %d)",
            [&] { return TANDEKOR_SpecialGetFmRadioInfo(hResourceContext, eFmData, pcFmValue); }, eFmData);
    };
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SetMicrophoneBias(iAudioDevice)
           && Step("TANDEKOR_FTM_GET_FM_RADIO_ID", "()",
                   [&] { return TANDEKOR_FTM_GET_FM_RADIO_ID(hResourceContext, iChip_Id); })
           && Step(
               "TANDEKOR_FTM_TUNE_FM_RADIO", "(iChannel = %d)",
               [&] { return TANDEKOR_FTM_TUNE_FM_RADIO(hResourceContext, iChannel, piStatusWord); }, iChannel)
           && readInfo(0) && readInfo(2);
}

// --- tracking byte

uint8_t PhoneProcedures::SetFactoryTrackingByte(uint8_t iOperationType, uint16_t iDataAddress, uint8_t* pFactoryData)
{
    constexpr uint16_t addresses = 128;
    if (TANDEKOR_CheckConnection(hResourceContext) == 0)
        return 0;
    if (iDataAddress >= addresses)
    {
        StepTrace(STEP_FAILURE, "TANDEKOR_SetFactoryTrackingByte - iDataAddress >= 128");
        return 0;
    }
    return Step(
        "TANDEKOR_FTM_READ_WRITE_FACTORY_DATA", "(iOperationType = %c, iDataAddress = %d)",
        [&]
        { return TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(hResourceContext, iOperationType, iDataAddress, pFactoryData); },
        iOperationType, iDataAddress);
}

// --- uploads, which only the QPST mode of the host library has

template <typename Operation, typename... Arguments>
uint8_t PhoneProcedures::Upload(const char* name, Operation operation, Arguments... arguments)
{
    if (TANDEKOR_GetLibraryMode() == 0)
    {
        StepTrace(STEP_START, "Temporary not supported - HBLK removed");
        return 0;
    }
    QLIB_ConfigureCallBacks(hResourceContext, nullptr, UploadProgressCallback, nullptr);
    return StepWithoutStart(name, "()", [&] { return operation(hResourceContext, arguments...); });
}

uint8_t PhoneProcedures::UploadCEFS_File2(uintptr_t a1, uintptr_t a2, uintptr_t a3)
{
    return Upload("QLIB_UploadCEFS_File2", QLIB_UploadCEFS_File2, a1, a2, a3);
}

uint8_t PhoneProcedures::UploadCEFS_File(uintptr_t a1, uintptr_t a2)
{
    return Upload("QLIB_UploadCEFS_File", QLIB_UploadCEFS_File, a1, a2);
}

uint8_t PhoneProcedures::UploadMultiImage(uintptr_t a1, uintptr_t a2, uintptr_t a3, uintptr_t a4, uintptr_t a5,
                                          uintptr_t a6, uintptr_t a7, uintptr_t a8, uintptr_t a9, uintptr_t a10,
                                          uintptr_t a11, uintptr_t a12, uintptr_t a13, uintptr_t a14, uintptr_t a15,
                                          uintptr_t a16, uintptr_t a17, uintptr_t a18, uintptr_t a19, uintptr_t a20,
                                          uintptr_t a21, uintptr_t a22, uintptr_t a23)
{
    return Upload("QLIB_UploadMultiImage", QLIB_UploadMultiImage, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12,
                  a13, a14, a15, a16, a17, a18, a19, a20, a21, a22, a23);
}

}  // namespace tandekor
