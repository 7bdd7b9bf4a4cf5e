// The exported procedures.
#include "frame/forward.h"
#include "procedures/phone_procedures.h"
#include "procedures/upload_callback.h"
#include "tandekor/procedures.h"

using tandekor::Forward;
using tandekor::PhoneProcedures;
using tandekor::Procedures;

uint8_t TANDEKOR_Start_LOG(ResourceContext hResourceContext, const char* sLogFile)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Start_LOG, sLogFile);
}

uint8_t TANDEKOR_ModeChangeResetMobile(ResourceContext hResourceContext, uint8_t bFTMMode)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::ModeChangeResetMobile, bFTMMode);
}

uint8_t TANDEKOR_ONLINE_TO_FTM(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::ONLINE_TO_FTM);
}

uint8_t TANDEKOR_FTM_TO_ONLINE(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_TO_ONLINE);
}

uint8_t TANDEKOR_BootBox_SwitchMobileOn(ResourceContext hResourceContext, uint16_t iBootBoxPort, uint8_t bFTMMode)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::BootBox_SwitchMobileOn, iBootBoxPort, bFTMMode);
}

uint8_t TANDEKOR_BootBox_SwitchMobileOff(ResourceContext hResourceContext, uint16_t iBootBoxPort)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::BootBox_SwitchMobileOff, iBootBoxPort);
}

uint8_t TANDEKOR_Phone_Model(ResourceContext hResourceContext, uint32_t* piVerNumber, uint32_t* piMSMModel,
                             uint32_t* piPhoneModel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Phone_Model, piVerNumber, piMSMModel, piPhoneModel);
}

uint8_t TANDEKOR_GetPhoneModel(ResourceContext hResourceContext, uint32_t iVerNumber, uint32_t iMSMModel,
                               uint32_t* piPhoneModel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::GetPhoneModel, iVerNumber, iMSMModel, piPhoneModel);
}

uint8_t TANDEKOR_CheckSWBuild(ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime,
                              char* sReleaseDate, char* sReleaseTime, char* sVersionDir, void* pVernoField6,
                              void* pVernoField7, void* pVernoField8, void* pVernoField9, void* pVernoField10,
                              void* pVernoField11, void* pVernoField12, uint32_t* iMSMHardwareVersion,
                              uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::CheckSWBuild, sCompileDate, sCompileTime,
                   sReleaseDate, sReleaseTime, sVersionDir, pVernoField6, pVernoField7, pVernoField8, pVernoField9,
                   pVernoField10, pVernoField11, pVernoField12, iMSMHardwareVersion, iBuildMobModel, sBuildId,
                   sBuildModel);
}

uint8_t TANDEKOR_FTM_SetKeyPadBackLightGPIO(ResourceContext hResourceContext, uint16_t iRowNumber, uint8_t bOnOff)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_SetKeyPadBackLightGPIO, iRowNumber, bOnOff);
}

uint8_t TANDEKOR_FTM_TestFlip(ResourceContext hResourceContext, char* pcFlipState, uint8_t bSkipModelRead)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_TestFlip, pcFlipState, bSkipModelRead);
}

uint8_t TANDEKOR_FTM_KOLT_CAMERA_SWITCH(ResourceContext hResourceContext, uint8_t iCameraNum)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_KOLT_CAMERA_SWITCH, iCameraNum);
}

uint8_t TANDEKOR_FTM_I2C_GetCameraId(ResourceContext hResourceContext, uint8_t iCamNum, uint16_t* piCamId)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_I2C_GetCameraId, iCamNum, piCamId);
}

// Not of the common form: the callback belongs to the process, whatever the handle is.
void TANDEKOR_SetCallback(ResourceContext /*hResourceContext*/, TandekorCallback pCallback)
{
    tandekor::SetUploadCallback(pCallback);
}
