// The exported procedures.
#include "connection/forward.h"
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

uint8_t TANDEKOR_RX_GSM_Adjust(ResourceContext hResourceContext, uint8_t* cBin3, uint16_t eNewMode, uint16_t iChannel,
                               uint8_t iSlotNum, int16_t iRxFunction, uint8_t iLNArange, void* piRSSI)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::RX_GSM_Adjust, cBin3, eNewMode, iChannel, iSlotNum,
                   iRxFunction, iLNArange, piRSSI);
}

uint8_t TANDEKOR_RX_WCDMA_Adjust(ResourceContext hResourceContext, uint8_t iLNArange, int16_t iDvgaExpectedRX_AGC,
                                 void* piDVGAoffsetValue, uint16_t iWriteItemID, uint8_t* pWriteItemData,
                                 int32_t iWriteLength, uint16_t* piWriteStatus, uint16_t eVgaNvBand, uint16_t iOffset,
                                 uint8_t* piVsFreq, uint16_t eFallNvBand, uint8_t* piFall1, uint8_t* piFall2,
                                 uint8_t* piFall3, uint16_t iReadItemID, uint8_t* pReadItemData, int32_t iReadLength,
                                 uint16_t* piReadStatus, uint16_t eRiseNvBand, uint8_t* piRise1, uint8_t* piRise2,
                                 uint8_t* piRise3, uint16_t iLNAindex, int16_t iLnaExpectedRX_AGC,
                                 int16_t* piLNAoffsetValue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::RX_WCDMA_Adjust, iLNArange, iDvgaExpectedRX_AGC,
                   piDVGAoffsetValue, iWriteItemID, pWriteItemData, iWriteLength, piWriteStatus, eVgaNvBand, iOffset,
                   piVsFreq, eFallNvBand, piFall1, piFall2, piFall3, iReadItemID, pReadItemData, iReadLength,
                   piReadStatus, eRiseNvBand, piRise1, piRise2, piRise3, iLNAindex, iLnaExpectedRX_AGC,
                   piLNAoffsetValue);
}

uint8_t TANDEKOR_Write_RX_Adjustment_Values(
    ResourceContext hResourceContext, uint8_t bStartBatchMode, uint8_t* Gsm900Range1, uint8_t* Gsm900Range2,
    uint8_t* Gsm900Range3, uint8_t* Gsm900Range4, uint8_t* Gsm1900Range1, uint8_t* Gsm1900Range2,
    uint8_t* Gsm1900Range3, uint8_t* Gsm1900Range4, uint8_t* Gsm1800Range1, uint8_t* Gsm1800Range2,
    uint8_t* Gsm1800Range3, uint8_t* Gsm1800Range4, uint8_t* Gsm850Range1, uint8_t* Gsm850Range2, uint8_t* Gsm850Range3,
    uint8_t* Gsm850Range4, uint8_t eNvBand, int16_t iOffset1, uint8_t* piVsFreq1, int16_t iOffset2, uint8_t* piVsFreq2,
    int16_t iOffset3, uint8_t* piVsFreq3, uint16_t eVgaNvBand, uint16_t iOffset, uint8_t* piVsFreq)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Write_RX_Adjustment_Values, bStartBatchMode,
                   Gsm900Range1, Gsm900Range2, Gsm900Range3, Gsm900Range4, Gsm1900Range1, Gsm1900Range2, Gsm1900Range3,
                   Gsm1900Range4, Gsm1800Range1, Gsm1800Range2, Gsm1800Range3, Gsm1800Range4, Gsm850Range1,
                   Gsm850Range2, Gsm850Range3, Gsm850Range4, eNvBand, iOffset1, piVsFreq1, iOffset2, piVsFreq2,
                   iOffset3, piVsFreq3, eVgaNvBand, iOffset, piVsFreq);
}

uint8_t TANDEKOR_GSM_PA_OutputPower(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                    uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex, uint32_t iNumBursts,
                                    uint8_t bIsInfiniteDuration, uint16_t iDACinput)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::GSM_PA_OutputPower, eNewMode, iChannel, iSlotNum,
                   iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration, iDACinput);
}

uint8_t TANDEKOR_Set_TX_PowerOn(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                uint8_t iPowerLevelID, uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                                uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Set_TX_PowerOn, eNewMode, iChannel, iPowerLevelID,
                   iSlotNum, iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration);
}

uint8_t TANDEKOR_WCDMA_PA_OutputPower(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                      uint16_t iPArange, uint8_t bSelectCW, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::WCDMA_PA_OutputPower, eNewMode, iChannel, iPArange,
                   bSelectCW, iPDMtype, iPDMvalue);
}

uint8_t TANDEKOR_AFC_Deviation(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                               uint16_t iPArange, uint8_t bSelectCW, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::AFC_Deviation, eNewMode, iChannel, iPArange,
                   bSelectCW, iPDMtype, iPDMvalue);
}

uint8_t TANDEKOR_CheckDACValues(ResourceContext hResourceContext, uint16_t iAverageCount, double* pdFirstValue,
                                uint16_t iSecondAverageCount, double* pdThirdValue, double* pdSecondValue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::CheckDACValues, iAverageCount, pdFirstValue,
                   iSecondAverageCount, pdThirdValue, pdSecondValue);
}

uint8_t TANDEKOR_Reduced_Signalling_GSM(ResourceContext hResourceContext, uint8_t* piDED_RPtRxLev_Full,
                                        uint8_t* piDED_RPtRxQual_Full, uint16_t iChannel, uint8_t iBand, uint8_t iTSC,
                                        uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel, uint8_t iLoopbackType,
                                        uint8_t bInitSession, uint16_t iBcchChannel, uint8_t iBcchBand,
                                        uint32_t iBCCH_TimeOut_ms, uint16_t iTrafficLoopbackType, uint8_t iTrafficSlot,
                                        uint8_t iTrafficMode, uint8_t bCloseControl)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Reduced_Signalling_GSM, piDED_RPtRxLev_Full,
                   piDED_RPtRxQual_Full, iChannel, iBand, iTSC, iSlot, iMode, iPowerLevel, iLoopbackType, bInitSession,
                   iBcchChannel, iBcchBand, iBCCH_TimeOut_ms, iTrafficLoopbackType, iTrafficSlot, iTrafficMode,
                   bCloseControl);
}

uint8_t TANDEKOR_Reduced_Signalling_WCDMA(ResourceContext hResourceContext, uint16_t iChannel, uint32_t iTimeOut_ms,
                                          uint8_t* pWCDMA_BER_State, uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr,
                                          uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
                                          uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Reduced_Signalling_WCDMA, iChannel, iTimeOut_ms,
                   pWCDMA_BER_State, iRMC_Type, iUL_MaxTxPwr, iUL_DPCH_ScrCode, iUL_PCA, iUL_TPC_StepSize,
                   iDL_PriCPICH_Scr_Code, iDL_ChanCode);
}

uint8_t TANDEKOR_Reduced_Signalling_HSDPA(ResourceContext hResourceContext, uint8_t iReconfigBitmask,
                                          uint16_t iHS_PDSCH_RadioLink_PCS, uint8_t iNumCodes, uint8_t* aiCodes,
                                          uint16_t iH_RNTI, uint8_t iNum_HARQ_Processes, uint8_t bMemPartitionValid,
                                          void* aiMemPartitionInfo, uint8_t iCPICH_PowerOffset,
                                          uint8_t iCQI_FeedbackCycle, uint8_t iCQI_RepetitionFactor, uint8_t iDeltaCQI,
                                          uint8_t iDeltaACK, uint8_t iDeltaNACK, uint8_t iACK_NACK_RepetitionFactor,
                                          uint8_t* pHSDPA_BER_State)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Reduced_Signalling_HSDPA, iReconfigBitmask,
                   iHS_PDSCH_RadioLink_PCS, iNumCodes, aiCodes, iH_RNTI, iNum_HARQ_Processes, bMemPartitionValid,
                   aiMemPartitionInfo, iCPICH_PowerOffset, iCQI_FeedbackCycle, iCQI_RepetitionFactor, iDeltaCQI,
                   iDeltaACK, iDeltaNACK, iACK_NACK_RepetitionFactor, pHSDPA_BER_State);
}

uint8_t TANDEKOR_Reduced_Signalling_EDGE(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                         uint8_t iBand, uint32_t iBCCH_TimeOut_ms, uint8_t iDL_TSC, uint8_t iDL_TFI,
                                         uint32_t iReserved7, uint32_t iReserved8, uint8_t bFirstSlotActive,
                                         uint8_t iFirstSlotNum, uint8_t bSecondSlotActive, uint8_t iSecondSlotNum,
                                         uint8_t iUL_TSC, uint8_t iUSF, uint8_t iGamma, uint32_t iReserved16,
                                         uint32_t iReserved17, uint32_t iReserved18, uint32_t iReserved19,
                                         uint8_t* pEGPRS_BER_State, uint8_t* piRxLev_average)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Reduced_Signalling_EDGE, bInitSession, iChannel,
                   iBand, iBCCH_TimeOut_ms, iDL_TSC, iDL_TFI, iReserved7, iReserved8, bFirstSlotActive, iFirstSlotNum,
                   bSecondSlotActive, iSecondSlotNum, iUL_TSC, iUSF, iGamma, iReserved16, iReserved17, iReserved18,
                   iReserved19, pEGPRS_BER_State, piRxLev_average);
}

uint8_t TANDEKOR_StartCall(ResourceContext hResourceContext, uint8_t iNumDigits, uint8_t* aiIMSI)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::StartCall, iNumDigits, aiIMSI);
}

uint8_t TANDEKOR_Virtual_SIM(ResourceContext hResourceContext, char* iSPC, uint8_t* piSPC_Result)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Virtual_SIM, iSPC, piSPC_Result);
}

uint8_t TANDEKOR_SpecialSetRtcActualTime(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSetRtcActualTime);
}

uint8_t TANDEKOR_NetworkAndChannelPreselection(ResourceContext hResourceContext, uint8_t eNetwMode,
                                               uint8_t eChannelMode, uint16_t uiChannel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NetworkAndChannelPreselection, eNetwMode,
                   eChannelMode, uiChannel);
}

uint8_t TANDEKOR_NV_SetRoamingListStatus(ResourceContext hResourceContext, uint8_t bRoamingListOn)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_SetRoamingListStatus, bRoamingListOn);
}

uint8_t TANDEKOR_NVSetAutoAnswerStatus(ResourceContext hResourceContext, uint8_t bAutoAnswerOn)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NVSetAutoAnswerStatus, bAutoAnswerOn);
}

uint8_t TANDEKOR_MicrophoneBiasVoltages(ResourceContext hResourceContext, uint16_t iAudioDevice)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::MicrophoneBiasVoltages, iAudioDevice);
}

uint8_t TANDEKOR_AudioTest(ResourceContext hResourceContext, uint16_t iAudioDevice, uint8_t bLoopbackOn)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::AudioTest, iAudioDevice, bLoopbackOn);
}

uint8_t TANDEKOR_TestSpeaker(ResourceContext hResourceContext, uint16_t iAudioDevice, uint8_t iVolume, uint16_t iHiFreq,
                             uint16_t iLoFreq)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::TestSpeaker, iAudioDevice, iVolume, iHiFreq,
                   iLoFreq);
}

uint8_t TANDEKOR_DIAG_DISABLE_48KHz(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::DIAG_DISABLE_48KHz);
}

uint8_t TANDEKOR_SpecialSetKeypadMapping(ResourceContext hResourceContext, uint8_t iMappingID)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSetKeypadMapping, iMappingID);
}

uint8_t TANDEKOR_TestKeypad(ResourceContext hResourceContext, uint16_t* piKeypressQueueSize, uint16_t* piKeyPressID,
                            uint8_t* piKeyPressEvent)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::TestKeypad, piKeypressQueueSize, piKeyPressID,
                   piKeyPressEvent);
}

uint8_t TANDEKOR_SpecialSwitchDisplay(ResourceContext hResourceContext, uint8_t uiDsplNum)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSwitchDisplay, uiDsplNum);
}

uint8_t TANDEKOR_FTM_DrawContrastPattern(ResourceContext hResourceContext, char* sFileName, uint8_t uiDsplNum)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_DrawContrastPattern, sFileName, uiDsplNum);
}

uint8_t TANDEKOR_FTM_DrawContrastPattern24Bit(ResourceContext hResourceContext, char* sFileName, uint8_t uiDsplNum)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_DrawContrastPattern24Bit, sFileName, uiDsplNum);
}

uint8_t TANDEKOR_SetCWPowerBluetooth(ResourceContext hResourceContext, uint8_t iChannel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SetCWPowerBluetooth, iChannel);
}

uint8_t TANDEKOR_BluetoothTestConnect(ResourceContext hResourceContext, char* szAddr)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::BluetoothTestConnect, szAddr);
}

uint8_t TANDEKOR_Bluetooth_HW_ID(ResourceContext hResourceContext, void* pModuleVersion, uint16_t* piBtStatus,
                                 uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Bluetooth_HW_ID, pModuleVersion, piBtStatus,
                   piBtParam1, piBtParam2, piBtParam3);
}

uint8_t TANDEKOR_Charging_Test(ResourceContext hResourceContext, uint8_t iLowPowerMode, uint8_t iChargerSwitchCommand7,
                               uint8_t eChgTransistor, uint8_t bState, uint8_t iChargerSwitchCommand3,
                               uint32_t iVoltage, uint32_t iCurrent, uint8_t eChgTransistorRead, uint8_t* pbState)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::Charging_Test, iLowPowerMode, iChargerSwitchCommand7,
                   eChgTransistor, bState, iChargerSwitchCommand3, iVoltage, iCurrent, eChgTransistorRead, pbState);
}

uint8_t TANDEKOR_SupplyVoltageTest(ResourceContext hResourceContext, uint8_t iCameraNum, uint8_t iLevel,
                                   uint8_t iSupplyMode, uint8_t bOnOff)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SupplyVoltageTest, iCameraNum, iLevel, iSupplyMode,
                   bOnOff);
}

uint8_t TANDEKOR_SpecialSwitchAccSupplyVoltage(ResourceContext hResourceContext, uint8_t bOnOff)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSwitchAccSupplyVoltage, bOnOff);
}

uint8_t TANDEKOR_NV_READ_IMEI(ResourceContext hResourceContext, char* sImei)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_READ_IMEI, sImei);
}

uint8_t TANDEKOR_NV_WRITE_IMEI(ResourceContext hResourceContext, const char* sImei)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_IMEI, sImei);
}

uint8_t TANDEKOR_DIAG_FREEZE_PHONE(ResourceContext hResourceContext, const uint8_t* pExpectedImei,
                                   const uint8_t* pExpectedBtAddress, const uint8_t* pExpectedSerial,
                                   const uint8_t* pPublicKey)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::DIAG_FREEZE_PHONE, pExpectedImei, pExpectedBtAddress,
                   pExpectedSerial, pPublicKey);
}

uint8_t TANDEKOR_FlashTest(ResourceContext hResourceContext, uint32_t* piFlashId)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FlashTest, piFlashId);
}

uint8_t TANDEKOR_SpecialMmcTest(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialMmcTest);
}

uint8_t TANDEKOR_FM_RadioTest(ResourceContext hResourceContext, uint16_t iAudioDevice, uint16_t* iChip_Id,
                              uint16_t iChannel, uint16_t* piStatusWord, uint8_t* pcFmValue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FM_RadioTest, iAudioDevice, iChip_Id, iChannel,
                   piStatusWord, pcFmValue);
}

uint8_t TANDEKOR_SpecialGetFmRadioInfo(ResourceContext hResourceContext, uint8_t eFmData, uint8_t* pcFmValue)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialGetFmRadioInfo, eFmData, pcFmValue);
}

uint8_t TANDEKOR_SetFactoryTrackingByte(ResourceContext hResourceContext, uint8_t iOperationType, uint16_t iDataAddress,
                                        uint8_t* pFactoryData)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SetFactoryTrackingByte, iOperationType, iDataAddress,
                   pFactoryData);
}

uint8_t TANDEKOR_UploadCEFS_File2(ResourceContext hResourceContext, TandekorUploadArgument a1,
                                  TandekorUploadArgument a2, TandekorUploadArgument a3)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::UploadCEFS_File2, a1, a2, a3);
}

uint8_t TANDEKOR_UploadCEFS_File(ResourceContext hResourceContext, TandekorUploadArgument a1, TandekorUploadArgument a2)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::UploadCEFS_File, a1, a2);
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
    return Forward(Procedures(hResourceContext), &PhoneProcedures::UploadMultiImage, a1, a2, a3, a4, a5, a6, a7, a8, a9,
                   a10, a11, a12, a13, a14, a15, a16, a17, a18, a19, a20, a21, a22, a23);
}

// Not of the common form: the reserved word is not handed on.
uint8_t TANDEKOR_TestMicrophone(ResourceContext hResourceContext, uint16_t iNumBuffers, uint32_t iDataOffset,
                                uint16_t iDataSize, void* pBuffer, uint16_t iItemID, uint8_t* pItemData,
                                int32_t iLength, uint32_t /*iReservedWord*/, int16_t iCodecTxGainAdjust)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::TestMicrophone, iNumBuffers, iDataOffset, iDataSize,
                   pBuffer, iItemID, pItemData, iLength, iCodecTxGainAdjust);
}

// Not of the common form: the callback belongs to the process, whatever the handle is.
void TANDEKOR_SetCallback(ResourceContext /*hResourceContext*/, TandekorCallback pCallback)
{
    tandekor::SetUploadCallback(pCallback);
}
