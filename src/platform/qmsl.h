// The operations of the chip vendor's host library that this library calls, 114 in all. Every operation but those that
// connect or steer the library itself takes the handle of a connection first. A uint8_t result is non-zero for success.
// Pointers named as opaque are passed on: only the host library knows what they point to.
#pragma once

#include <cstdint>

#include "tandekor/common.h"

#if defined(_WIN32)
#define QLIB_API
#else
#define QLIB_API __attribute__((visibility("default")))
#endif

extern "C"
{
    // Progress events of an upload: word 0 of the record is the event's code, word 2 its value.
    using QlibUploadCallback = uint8_t (*)(const uint32_t* record);

    // An argument of an upload operation, which may be a pointer.
    using QlibUploadArgument = uintptr_t;

    // --- connection and library
    QLIB_API void QLIB_GetLibraryVersion(char* sVersion);
    QLIB_API void QLIB_SetLibraryMode(uint8_t bQpstMode);
    QLIB_API ResourceContext QLIB_ConnectServer(uint32_t iComPort);
    QLIB_API ResourceContext QLIB_ConnectServerWithWait(uint32_t iComPort, uint32_t iWaitMs);
    QLIB_API ResourceContext QLIB_ConnectServer_LogicalPort(uint32_t iLogicalPort);
    QLIB_API void QLIB_DisconnectServer(ResourceContext hResourceContext);
    QLIB_API void QLIB_DisconnectAllServers();
    QLIB_API uint8_t QLIB_IsPhoneConnected(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_IsFTM_Mode(ResourceContext hResourceContext, uint8_t* pbIsFTMMode);

    // --- text log
    QLIB_API uint8_t QLIB_StartLogging(ResourceContext hResourceContext, const char* sLogFile);
    QLIB_API uint8_t QLIB_SetLogFlags(ResourceContext hResourceContext, uint32_t iFlags);
    QLIB_API uint8_t QLIB_AddUserMessageToTextLog(ResourceContext hResourceContext, uint32_t iLevel, const char* sText,
                                                  uint32_t iReserved);

    // --- raw exchange. piResponseLength: in the capacity of piResponse, out the number of bytes received.
    QLIB_API uint8_t QLIB_SendRAW(ResourceContext hResourceContext, uint16_t iRequestLength, uint8_t* piRequest,
                                  uint16_t* piResponseLength, uint8_t* piResponse, uint32_t iTimeout_ms);
    QLIB_API uint8_t QLIB_SendSync(ResourceContext hResourceContext, uint16_t iRequestLength, uint8_t* piRequest,
                                   uint16_t* piResponseLength, uint8_t* piResponse, uint32_t iTimeout_ms);

    // --- diagnostics: state, identification
    QLIB_API uint8_t QLIB_DIAG_CONTROL_F(ResourceContext hResourceContext, uint32_t eMode);
    QLIB_API uint8_t QLIB_DIAG_STATUS_F(ResourceContext hResourceContext, uint8_t* iTMC_State);
    QLIB_API uint8_t QLIB_DIAG_SPC_F(ResourceContext hResourceContext, const char* iSPC, uint8_t* piSPC_Result);
    QLIB_API uint8_t QLIB_DIAG_EXT_BUILD_ID_F(ResourceContext hResourceContext, uint32_t* iMSMHardwareVersion,
                                              uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel);
    QLIB_API uint8_t QLIB_DIAG_VERNO_F(ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime,
                                       char* sReleaseDate, char* sReleaseTime, char* sVersionDir, void* pField6,
                                       void* pField7, void* pField8, void* pField9, void* pField10, void* pField11,
                                       void* pField12);

    // --- diagnostics: NV items and memory
    QLIB_API uint8_t QLIB_DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData,
                                         int32_t iLength, uint16_t* iNvStatus);
    QLIB_API uint8_t QLIB_DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData,
                                          int32_t iLength, uint16_t* iNvStatus);
    QLIB_API uint8_t QLIB_DIAG_NV_WRITE_SetBatchMode(ResourceContext hResourceContext, uint8_t bStartBatchMode);
    QLIB_API uint8_t QLIB_DIAG_NV_WRITE_FlushBatchQueue(ResourceContext hResourceContext, uint32_t* piLastErrorNvId,
                                                        uint32_t* piLastTotalStatus, uint8_t* piLastItemStatus);
    QLIB_API uint8_t QLIB_DIAG_MEMORY_PEEK_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                             uint8_t* pItemArray);
    QLIB_API uint8_t QLIB_DIAG_MEMORY_POKE_F(ResourceContext hResourceContext, uint32_t iAddress, uint16_t iNumItems,
                                             const uint8_t* pItemArray);
    QLIB_API uint8_t QLIB_DIAG_MEMORY_PEEK_DWORD_F(ResourceContext hResourceContext, uint32_t iAddress,
                                                   uint16_t iNumItems, uint32_t* pItemArray);
    QLIB_API uint8_t QLIB_DIAG_MEMORY_POKE_DWORD_F(ResourceContext hResourceContext, uint32_t iAddress,
                                                   uint16_t iNumItems, const uint32_t* pItemArray);

    // --- diagnostics: calls and key presses
    QLIB_API uint8_t QLIB_DIAG_GSM_CALL_ORIG_F(ResourceContext hResourceContext, uint8_t iNumDigits,
                                               const uint8_t* aiIMSI);
    QLIB_API uint8_t QLIB_DIAG_GSM_CALL_END_F(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_ClearMap(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_AddMapEntry(ResourceContext hResourceContext, uint16_t iHW_ID,
                                                    uint8_t iKeyPressSW_ID);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_ConfigureKeyDetect(ResourceContext hResourceContext, const char* sKeyUpString,
                                                           const char* sKeyDownString, uint16_t iSSID,
                                                           uint32_t iRT_MASK);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_ClearQueue(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_GetQueueSize(ResourceContext hResourceContext, uint16_t* piKeypressQueueSize);
    QLIB_API uint8_t QLIB_DIAG_KeyPress_GetNextKeyEvent(ResourceContext hResourceContext, uint16_t* piKeyPressID,
                                                        uint8_t* piKeyPressEvent);

    // --- factory mode: radio
    QLIB_API uint8_t QLIB_FTM_SET_MODE(ResourceContext hResourceContext, uint16_t eNewMode);
    QLIB_API uint8_t QLIB_FTM_SET_CHAN(ResourceContext hResourceContext, uint16_t iChannel);
    QLIB_API uint8_t QLIB_FTM_SET_TX_ON(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_SET_TX_OFF(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_SET_TX_POWER_LEVEL(ResourceContext hResourceContext, uint8_t iPowerLevelID);
    QLIB_API uint8_t QLIB_FTM_SET_TRANSMIT_BURST(ResourceContext hResourceContext, uint8_t iSlotNum,
                                                 int16_t iDataSource, uint8_t iTSCindex, uint32_t iNumBursts,
                                                 uint8_t bIsInfiniteDuration);
    QLIB_API uint8_t QLIB_FTM_SET_PA_DAC_INPUT(ResourceContext hResourceContext, uint16_t iDACinput);
    QLIB_API uint8_t QLIB_FTM_SET_PA_RANGE(ResourceContext hResourceContext, uint16_t iPArange);
    QLIB_API uint8_t QLIB_FTM_CDMA_CW_WAVEFORM(ResourceContext hResourceContext, uint8_t bSelectCW);
    QLIB_API uint8_t QLIB_FTM_SET_PDM(ResourceContext hResourceContext, uint16_t iPDMtype, uint16_t iPDMvalue);
    QLIB_API uint8_t QLIB_FTM_GET_ADC_VAL(ResourceContext hResourceContext, uint16_t iADC_type, uint16_t* piADC_value);
    QLIB_API uint8_t QLIB_FTM_SET_RX_BURST(ResourceContext hResourceContext, uint8_t iSlotNum, int16_t iRxFunction);
    QLIB_API uint8_t QLIB_FTM_SET_LNA_RANGE(ResourceContext hResourceContext, uint8_t iLNArange);
    QLIB_API uint8_t QLIB_FTM_GET_RSSI(ResourceContext hResourceContext, void* piRSSI);
    QLIB_API uint8_t QLIB_FTM_GET_DVGA_OFFSET(ResourceContext hResourceContext, int16_t iExpectedRX_AGC,
                                              void* piDVGAoffsetValue);
    QLIB_API uint8_t QLIB_FTM_GET_LNA_OFFSET(ResourceContext hResourceContext, uint16_t iLNAindex,
                                             int16_t iExpectedRX_AGC, int16_t* piLNAoffsetValue);

    // --- factory mode: test calls
    QLIB_API uint8_t QLIB_FTM_GSM_BER_StartSession(ResourceContext hResourceContext, uint32_t iTimeOut_ms);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_StopSession(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_AssignBCCH(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_AssignTraffic(ResourceContext hResourceContext, uint16_t iLoopbackType,
                                                    uint8_t iSlot, uint8_t iMode);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_Handover(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand,
                                               uint8_t iTSC, uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel,
                                               uint8_t iLoopbackType);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_GetRxMetrics(ResourceContext hResourceContext, uint8_t* piDED_RPtRxLev_Full,
                                                   uint8_t* piDED_RPtRxQual_Full);
    QLIB_API uint8_t QLIB_FTM_GSM_BER_ReleaseTCH(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_AcquirePilot(ResourceContext hResourceContext, uint16_t iChannel);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_SetupRMC_DCH(ResourceContext hResourceContext, uint8_t iRMC_Type,
                                                     uint8_t iUL_MaxTxPwr, uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA,
                                                     uint8_t iUL_TPC_StepSize, uint16_t iDL_PriCPICH_Scr_Code,
                                                     uint16_t iDL_ChanCode);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_StartSession(ResourceContext hResourceContext, uint32_t iTimeOut_ms);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_StopSession(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_ClearStatus(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_WCDMA_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pWCDMA_BER_State);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BER_StartSession(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BER_StopSession(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BER_ClearStatus(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pHSDPA_BER_State);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BLER_Reconfigure_HS(ResourceContext hResourceContext, uint8_t iReconfigBitmask);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BLER_Configure_PDSCH(ResourceContext hResourceContext,
                                                         uint16_t iHS_PDSCH_RadioLink_PCS);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(ResourceContext hResourceContext, uint8_t iNumCodes,
                                                           const uint8_t* aiCodes);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(ResourceContext hResourceContext, uint16_t iH_RNTI,
                                                           uint8_t iNum_HARQ_Processes, uint8_t bMemPartitionValid,
                                                           const void* aiMemPartitionInfo);
    QLIB_API uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH(ResourceContext hResourceContext,
                                                            uint8_t iCPICH_PowerOffset, uint8_t iCQI_FeedbackCycle,
                                                            uint8_t iCQI_RepetitionFactor, uint8_t iDeltaCQI,
                                                            uint8_t iDeltaACK, uint8_t iDeltaNACK,
                                                            uint8_t iACK_NACK_RepetitionFactor);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_StartIdleMode(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_AssignBCCH(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_Configure_DL_TBF(ResourceContext hResourceContext, uint8_t iDL_TSC,
                                                         uint8_t iDL_TFI, uint16_t iChannel, uint8_t iBand,
                                                         uint8_t bFirstSlotActive, uint8_t iFirstSlotNum,
                                                         uint8_t bSecondSlotActive, uint8_t iSecondSlotNum);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_Configure_UL_TBF(ResourceContext hResourceContext, uint8_t iUL_TSC,
                                                         uint8_t iUSF, uint8_t iGamma, uint8_t bFirstSlotActive,
                                                         uint8_t iFirstSlotNum, uint8_t bSecondSlotActive,
                                                         uint8_t iSecondSlotNum);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_Release_All_TBF(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_ClearStatus(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pEGPRS_BER_State);
    QLIB_API uint8_t QLIB_FTM_EGPRS_BER_GetRxMetrics(ResourceContext hResourceContext, uint8_t* piRxLev_average);

    // --- factory mode: audio
    QLIB_API uint8_t QLIB_FTM_AUDIO_SET_PATH(ResourceContext hResourceContext, uint16_t iAudioDevice);
    QLIB_API uint8_t QLIB_FTM_AUDIO_SET_VOLUME(ResourceContext hResourceContext, uint8_t iVolume);
    QLIB_API uint8_t QLIB_FTM_AUDIO_PCM_LOOPBACK(ResourceContext hResourceContext, uint8_t bLoopbackOn);
    QLIB_API uint8_t QLIB_FTM_AUDIO_TONES_PLAY(ResourceContext hResourceContext, uint16_t iHiFreq, uint16_t iLoFreq,
                                               uint16_t iMethod);
    QLIB_API uint8_t QLIB_FTM_AUDIO_TONES_STOP(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_AUDIO_PCM_CAPTURE(ResourceContext hResourceContext, uint16_t iNumBuffers,
                                                uint32_t iDelay_ms);
    QLIB_API uint8_t QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(ResourceContext hResourceContext, uint32_t iDataOffset,
                                                         uint16_t iDataSize, void* pBuffer);
    QLIB_API uint8_t QLIB_FTM_AUDIO_PCM_STOP_CAPTURE(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST(ResourceContext hResourceContext,
                                                           int16_t iCodecTxGainAdjust);

    // --- factory mode: Bluetooth
    QLIB_API uint8_t QLIB_FTM_BT_SetCW(ResourceContext hResourceContext, uint8_t iChannel);
    QLIB_API uint8_t QLIB_FTM_BT_HCI_USER_CMD(ResourceContext hResourceContext, const uint8_t* pBuffer,
                                              uint8_t iLength);
    QLIB_API uint8_t QLIB_FTM_BT_SetAddr(ResourceContext hResourceContext, const uint8_t* iAddr);
    QLIB_API uint8_t QLIB_FTM_BT_Enable_Bluetooth(ResourceContext hResourceContext);
    QLIB_API uint8_t QLIB_BT_GetModuleVersion(ResourceContext hResourceContext, void* pModuleVersion);

    // --- factory mode: power management and camera
    QLIB_API uint8_t QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(ResourceContext hResourceContext, uint32_t iChargerSwitchType,
                                                        uint8_t iChargerSwitchCommand);
    QLIB_API uint8_t QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(ResourceContext hResourceContext,
                                                                      uint8_t iChargerMaxCurrent,
                                                                      uint8_t iChargerMaxVoltage);
    QLIB_API uint8_t QLIB_FTM_PMIC_INT_GET_RT_STATUS(ResourceContext hResourceContext, uint32_t iInterruptStatusId,
                                                     uint8_t* piInterruptStatus);
    QLIB_API uint8_t QLIB_FTM_PMIC_RTC_SET_GET_TIME(ResourceContext hResourceContext, uint8_t iReadWrite,
                                                    uint8_t* iTimeMode, uint8_t* iMonth, uint8_t* iDay, uint16_t* iYear,
                                                    uint8_t* iHour, uint8_t* iMinute, uint8_t* iSecond);
    QLIB_API uint8_t QLIB_FTM_SET_PMIC_DRIVE_LEVEL(ResourceContext hResourceContext, uint8_t iDriver, uint8_t iLevel);
    QLIB_API uint8_t QLIB_FTM_CAMERA_SET_SENSOR_ID(ResourceContext hResourceContext, uint8_t iCamNum,
                                                   uint32_t* piCameraStatus);
    QLIB_API uint8_t QLIB_FTM_CAMERA_START(ResourceContext hResourceContext, uint32_t* piCameraStatus);
    QLIB_API uint8_t QLIB_FTM_CAMERA_STOP(ResourceContext hResourceContext, uint32_t* piCameraStatus);

    // --- SIM and security diagnostics, storage
    QLIB_API uint8_t QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(ResourceContext hResourceContext, uint8_t iSlotId,
                                                           uint8_t iSIM_AppIdLen, uint8_t* piSIM_AppId,
                                                           uint32_t* piCommandStatus, uint32_t* piStatus);
    QLIB_API uint8_t QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD(ResourceContext hResourceContext, uint32_t iFirst,
                                                      uint32_t iSecond, uint8_t* pBlock, uint32_t iKeyLength,
                                                      const uint8_t* pKey, uint32_t* piGsdiValue, uint32_t* piStatus);
    QLIB_API uint8_t QLIB_GSDIDIAG_ROOT_KEY_READ_CMD(ResourceContext hResourceContext, uint32_t iFirst,
                                                     uint32_t iSecond, uint8_t* pBlock, uint32_t* piKeyLength,
                                                     uint8_t* pKey, uint32_t* piGsdiValue, uint32_t* piStatus);
    QLIB_API uint8_t QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD(ResourceContext hResourceContext, uint32_t iFirst,
                                                          uint32_t iSecond, uint8_t* pBlock, uint32_t* piGsdiValue,
                                                          uint32_t* piStatus);
    QLIB_API uint8_t QLIB_EFS2_DIAG_DEV_INFO(ResourceContext hResourceContext, uint32_t* pi1, uint32_t* pi2,
                                             uint32_t* pi3, uint32_t* pi4, uint32_t* pi5, uint32_t* pi6, uint32_t* pi7,
                                             uint8_t* piByte, char* sDeviceName100);

    // --- uploads
    QLIB_API void QLIB_ConfigureCallBacks(ResourceContext hResourceContext, void* pFirst, QlibUploadCallback pProgress,
                                          void* pThird);
    QLIB_API uint8_t QLIB_UploadCEFS_File2(ResourceContext hResourceContext, QlibUploadArgument a1,
                                           QlibUploadArgument a2, QlibUploadArgument a3);
    QLIB_API uint8_t QLIB_UploadCEFS_File(ResourceContext hResourceContext, QlibUploadArgument a1,
                                          QlibUploadArgument a2);
    QLIB_API uint8_t QLIB_UploadMultiImage(ResourceContext hResourceContext, QlibUploadArgument a1,
                                           QlibUploadArgument a2, QlibUploadArgument a3, QlibUploadArgument a4,
                                           QlibUploadArgument a5, QlibUploadArgument a6, QlibUploadArgument a7,
                                           QlibUploadArgument a8, QlibUploadArgument a9, QlibUploadArgument a10,
                                           QlibUploadArgument a11, QlibUploadArgument a12, QlibUploadArgument a13,
                                           QlibUploadArgument a14, QlibUploadArgument a15, QlibUploadArgument a16,
                                           QlibUploadArgument a17, QlibUploadArgument a18, QlibUploadArgument a19,
                                           QlibUploadArgument a20, QlibUploadArgument a21, QlibUploadArgument a22,
                                           QlibUploadArgument a23);
}
