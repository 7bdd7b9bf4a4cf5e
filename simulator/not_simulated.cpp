// The operations that are still to be written. Each is recorded as it was called, and fails with a line that says so.
#include "platform/qmsl.h"
#include "simulator/operation.h"

using namespace simulator;

namespace
{

constexpr int64_t btAddressLength = 6;
constexpr int64_t gsdiBlockLength = 16;

// What an argument that comes in by pointer holds.
template <typename Value>
int ValueAt(const Value* argument)
{
    return argument == nullptr ? 0 : *argument;
}

}  // namespace

// --- diagnostics: state, identification
uint8_t QLIB_DIAG_SPC_F(ResourceContext h, char* iSPC, uint8_t*) { return NotSimulated(h, __func__, iSPC); }

// --- diagnostics: calls and key presses
uint8_t QLIB_DIAG_GSM_CALL_ORIG_F(ResourceContext h, uint8_t iNumDigits, uint8_t* aiIMSI)
{
    return NotSimulated(h, __func__, iNumDigits, BytesAt(aiIMSI, iNumDigits));
}
uint8_t QLIB_DIAG_GSM_CALL_END_F(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_DIAG_KeyPress_ClearMap(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_DIAG_KeyPress_AddMapEntry(ResourceContext h, uint16_t iHW_ID, uint8_t iKeyPressSW_ID)
{
    return NotSimulated(h, __func__, iHW_ID, iKeyPressSW_ID);
}
uint8_t QLIB_DIAG_KeyPress_ConfigureKeyDetect(ResourceContext h, const char* sKeyUpString, const char* sKeyDownString,
                                              uint16_t iSSID, uint32_t iRT_MASK)
{
    return NotSimulated(h, __func__, sKeyUpString, sKeyDownString, iSSID, iRT_MASK);
}
uint8_t QLIB_DIAG_KeyPress_ClearQueue(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_DIAG_KeyPress_GetQueueSize(ResourceContext h, uint16_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_DIAG_KeyPress_GetNextKeyEvent(ResourceContext h, uint16_t*, uint8_t*) { return NotSimulated(h, __func__); }

// --- factory mode: radio
uint8_t QLIB_FTM_SET_MODE(ResourceContext h, uint16_t eNewMode) { return NotSimulated(h, __func__, eNewMode); }
uint8_t QLIB_FTM_SET_CHAN(ResourceContext h, uint16_t iChannel) { return NotSimulated(h, __func__, iChannel); }
uint8_t QLIB_FTM_SET_TX_ON(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_SET_TX_OFF(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_SET_TX_POWER_LEVEL(ResourceContext h, uint8_t iPowerLevelID)
{
    return NotSimulated(h, __func__, iPowerLevelID);
}
uint8_t QLIB_FTM_SET_TRANSMIT_BURST(ResourceContext h, uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                                    uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    return NotSimulated(h, __func__, iSlotNum, iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration);
}
uint8_t QLIB_FTM_SET_PA_DAC_INPUT(ResourceContext h, uint16_t iDACinput)
{
    return NotSimulated(h, __func__, iDACinput);
}
uint8_t QLIB_FTM_SET_PA_RANGE(ResourceContext h, uint16_t iPArange) { return NotSimulated(h, __func__, iPArange); }
uint8_t QLIB_FTM_CDMA_CW_WAVEFORM(ResourceContext h, uint8_t bSelectCW) { return NotSimulated(h, __func__, bSelectCW); }
uint8_t QLIB_FTM_SET_PDM(ResourceContext h, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return NotSimulated(h, __func__, iPDMtype, iPDMvalue);
}
uint8_t QLIB_FTM_GET_ADC_VAL(ResourceContext h, uint16_t iADC_type, uint16_t*)
{
    return NotSimulated(h, __func__, iADC_type);
}
uint8_t QLIB_FTM_SET_RX_BURST(ResourceContext h, uint8_t iSlotNum, int16_t iRxFunction)
{
    return NotSimulated(h, __func__, iSlotNum, iRxFunction);
}
uint8_t QLIB_FTM_SET_LNA_RANGE(ResourceContext h, uint8_t iLNArange) { return NotSimulated(h, __func__, iLNArange); }
uint8_t QLIB_FTM_GET_RSSI(ResourceContext h, void*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_GET_DVGA_OFFSET(ResourceContext h, int16_t iExpectedRX_AGC, void*)
{
    return NotSimulated(h, __func__, iExpectedRX_AGC);
}
uint8_t QLIB_FTM_GET_LNA_OFFSET(ResourceContext h, uint16_t iLNAindex, int16_t iExpectedRX_AGC, int16_t*)
{
    return NotSimulated(h, __func__, iLNAindex, iExpectedRX_AGC);
}

// --- factory mode: test calls
uint8_t QLIB_FTM_GSM_BER_StartSession(ResourceContext h, uint32_t iTimeOut_ms)
{
    return NotSimulated(h, __func__, iTimeOut_ms);
}
uint8_t QLIB_FTM_GSM_BER_StopSession(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_GSM_BER_AssignBCCH(ResourceContext h, uint16_t iChannel, uint8_t iBand)
{
    return NotSimulated(h, __func__, iChannel, iBand);
}
uint8_t QLIB_FTM_GSM_BER_AssignTraffic(ResourceContext h, uint16_t iLoopbackType, uint8_t iSlot, uint8_t iMode)
{
    return NotSimulated(h, __func__, iLoopbackType, iSlot, iMode);
}
uint8_t QLIB_FTM_GSM_BER_Handover(ResourceContext h, uint16_t iChannel, uint8_t iBand, uint8_t iTSC, uint8_t iSlot,
                                  uint8_t iMode, uint8_t iPowerLevel, uint8_t iLoopbackType)
{
    return NotSimulated(h, __func__, iChannel, iBand, iTSC, iSlot, iMode, iPowerLevel, iLoopbackType);
}
uint8_t QLIB_FTM_GSM_BER_GetRxMetrics(ResourceContext h, uint8_t*, uint8_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_GSM_BER_ReleaseTCH(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_WCDMA_BER_AcquirePilot(ResourceContext h, uint16_t iChannel)
{
    return NotSimulated(h, __func__, iChannel);
}
uint8_t QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_WCDMA_BER_SetupRMC_DCH(ResourceContext h, uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr,
                                        uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
                                        uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode)
{
    return NotSimulated(h, __func__, iRMC_Type, iUL_MaxTxPwr, iUL_DPCH_ScrCode, iUL_PCA, iUL_TPC_StepSize,
                        iDL_PriCPICH_Scr_Code, iDL_ChanCode);
}
uint8_t QLIB_FTM_WCDMA_BER_StartSession(ResourceContext h, uint32_t iTimeOut_ms)
{
    return NotSimulated(h, __func__, iTimeOut_ms);
}
uint8_t QLIB_FTM_WCDMA_BER_StopSession(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_WCDMA_BER_ClearStatus(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_WCDMA_BER_GetStatus(ResourceContext h, uint8_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_HSDPA_BER_StartSession(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_HSDPA_BER_StopSession(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_HSDPA_BER_ClearStatus(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_HSDPA_BER_GetStatus(ResourceContext h, uint8_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_HSDPA_BLER_Reconfigure_HS(ResourceContext h, uint8_t iReconfigBitmask)
{
    return NotSimulated(h, __func__, iReconfigBitmask);
}
uint8_t QLIB_FTM_HSDPA_BLER_Configure_PDSCH(ResourceContext h, uint16_t iHS_PDSCH_RadioLink_PCS)
{
    return NotSimulated(h, __func__, iHS_PDSCH_RadioLink_PCS);
}
uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(ResourceContext h, uint8_t iNumCodes, uint8_t* aiCodes)
{
    return NotSimulated(h, __func__, iNumCodes, BytesAt(aiCodes, iNumCodes));
}
uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(ResourceContext h, uint16_t iH_RNTI, uint8_t iNum_HARQ_Processes,
                                              uint8_t bMemPartitionValid, void* aiMemPartitionInfo)
{
    return NotSimulated(h, __func__, iH_RNTI, iNum_HARQ_Processes, bMemPartitionValid, aiMemPartitionInfo != nullptr);
}
uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH(ResourceContext h, uint8_t iCPICH_PowerOffset,
                                               uint8_t iCQI_FeedbackCycle, uint8_t iCQI_RepetitionFactor,
                                               uint8_t iDeltaCQI, uint8_t iDeltaACK, uint8_t iDeltaNACK,
                                               uint8_t iACK_NACK_RepetitionFactor)
{
    return NotSimulated(h, __func__, iCPICH_PowerOffset, iCQI_FeedbackCycle, iCQI_RepetitionFactor, iDeltaCQI,
                        iDeltaACK, iDeltaNACK, iACK_NACK_RepetitionFactor);
}
uint8_t QLIB_FTM_EGPRS_BER_StartIdleMode(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_EGPRS_BER_AssignBCCH(ResourceContext h, uint16_t iChannel, uint8_t iBand)
{
    return NotSimulated(h, __func__, iChannel, iBand);
}
uint8_t QLIB_FTM_EGPRS_BER_Configure_DL_TBF(ResourceContext h, uint8_t iDL_TSC, uint8_t iDL_TFI, uint16_t iChannel,
                                            uint8_t iBand, uint8_t bFirstSlotActive, uint8_t iFirstSlotNum,
                                            uint8_t bSecondSlotActive, uint8_t iSecondSlotNum)
{
    return NotSimulated(h, __func__, iDL_TSC, iDL_TFI, iChannel, iBand, bFirstSlotActive, iFirstSlotNum,
                        bSecondSlotActive, iSecondSlotNum);
}
uint8_t QLIB_FTM_EGPRS_BER_Configure_UL_TBF(ResourceContext h, uint8_t iUL_TSC, uint8_t iUSF, uint8_t iGamma,
                                            uint8_t bFirstSlotActive, uint8_t iFirstSlotNum, uint8_t bSecondSlotActive,
                                            uint8_t iSecondSlotNum)
{
    return NotSimulated(h, __func__, iUL_TSC, iUSF, iGamma, bFirstSlotActive, iFirstSlotNum, bSecondSlotActive,
                        iSecondSlotNum);
}
uint8_t QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_EGPRS_BER_Release_All_TBF(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_EGPRS_BER_ClearStatus(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_EGPRS_BER_GetStatus(ResourceContext h, uint8_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_EGPRS_BER_GetRxMetrics(ResourceContext h, uint8_t*) { return NotSimulated(h, __func__); }

// --- factory mode: audio
uint8_t QLIB_FTM_AUDIO_SET_PATH(ResourceContext h, uint16_t iAudioDevice)
{
    return NotSimulated(h, __func__, iAudioDevice);
}
uint8_t QLIB_FTM_AUDIO_SET_VOLUME(ResourceContext h, uint8_t iVolume) { return NotSimulated(h, __func__, iVolume); }
uint8_t QLIB_FTM_AUDIO_PCM_LOOPBACK(ResourceContext h, uint8_t bLoopbackOn)
{
    return NotSimulated(h, __func__, bLoopbackOn);
}
uint8_t QLIB_FTM_AUDIO_TONES_PLAY(ResourceContext h, uint16_t iHiFreq, uint16_t iLoFreq, uint16_t iMethod)
{
    return NotSimulated(h, __func__, iHiFreq, iLoFreq, iMethod);
}
uint8_t QLIB_FTM_AUDIO_TONES_STOP(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_AUDIO_PCM_CAPTURE(ResourceContext h, uint16_t iNumBuffers, uint32_t iDelay_ms)
{
    return NotSimulated(h, __func__, iNumBuffers, iDelay_ms);
}
uint8_t QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(ResourceContext h, uint32_t iDataOffset, uint16_t iDataSize, void*)
{
    return NotSimulated(h, __func__, iDataOffset, iDataSize);
}
uint8_t QLIB_FTM_AUDIO_PCM_STOP_CAPTURE(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST(ResourceContext h, int16_t iCodecTxGainAdjust)
{
    return NotSimulated(h, __func__, iCodecTxGainAdjust);
}

// --- factory mode: Bluetooth
uint8_t QLIB_FTM_BT_SetCW(ResourceContext h, uint8_t iChannel) { return NotSimulated(h, __func__, iChannel); }
uint8_t QLIB_FTM_BT_HCI_USER_CMD(ResourceContext h, const uint8_t* pBuffer, uint8_t iLength)
{
    return NotSimulated(h, __func__, BytesAt(pBuffer, iLength), iLength);
}
uint8_t QLIB_FTM_BT_SetAddr(ResourceContext h, const uint8_t* iAddr)
{
    return NotSimulated(h, __func__, BytesAt(iAddr, btAddressLength));
}
uint8_t QLIB_FTM_BT_Enable_Bluetooth(ResourceContext h) { return NotSimulated(h, __func__); }
uint8_t QLIB_BT_GetModuleVersion(ResourceContext h, void*) { return NotSimulated(h, __func__); }

// --- factory mode: power management and camera
uint8_t QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(ResourceContext h, uint32_t iChargerSwitchType,
                                           uint8_t iChargerSwitchCommand)
{
    return NotSimulated(h, __func__, iChargerSwitchType, iChargerSwitchCommand);
}
uint8_t QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(ResourceContext h, uint8_t iChargerMaxCurrent,
                                                         uint8_t iChargerMaxVoltage)
{
    return NotSimulated(h, __func__, iChargerMaxCurrent, iChargerMaxVoltage);
}
uint8_t QLIB_FTM_PMIC_INT_GET_RT_STATUS(ResourceContext h, uint32_t iInterruptStatusId, uint8_t*)
{
    return NotSimulated(h, __func__, iInterruptStatusId);
}
uint8_t QLIB_FTM_PMIC_RTC_SET_GET_TIME(ResourceContext h, uint8_t iReadWrite, uint8_t* iTimeMode, uint8_t* iMonth,
                                       uint8_t* iDay, uint16_t* iYear, uint8_t* iHour, uint8_t* iMinute,
                                       uint8_t* iSecond)
{
    return NotSimulated(h, __func__, iReadWrite, ValueAt(iTimeMode), ValueAt(iMonth), ValueAt(iDay), ValueAt(iYear),
                        ValueAt(iHour), ValueAt(iMinute), ValueAt(iSecond));
}
uint8_t QLIB_FTM_SET_PMIC_DRIVE_LEVEL(ResourceContext h, uint8_t iDriver, uint8_t iLevel)
{
    return NotSimulated(h, __func__, iDriver, iLevel);
}
uint8_t QLIB_FTM_CAMERA_SET_SENSOR_ID(ResourceContext h, uint8_t iCamNum, uint32_t*)
{
    return NotSimulated(h, __func__, iCamNum);
}
uint8_t QLIB_FTM_CAMERA_START(ResourceContext h, uint32_t*) { return NotSimulated(h, __func__); }
uint8_t QLIB_FTM_CAMERA_STOP(ResourceContext h, uint32_t*) { return NotSimulated(h, __func__); }

// --- SIM and security diagnostics, storage
uint8_t QLIB_GSDIDIAG_ACTIVATE_ONCHIP_SIM_CMD(ResourceContext h, uint8_t iSlotId, uint8_t iSIM_AppIdLen,
                                              uint8_t* piSIM_AppId, uint32_t*, uint32_t*)
{
    return NotSimulated(h, __func__, iSlotId, iSIM_AppIdLen, BytesAt(piSIM_AppId, iSIM_AppIdLen));
}
uint8_t QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD(ResourceContext h, uint32_t iFirst, uint32_t iSecond, uint8_t* pBlock,
                                         uint32_t iKeyLength, const uint8_t* pKey, uint32_t*, uint32_t*)
{
    return NotSimulated(h, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength), iKeyLength,
                        BytesAt(pKey, iKeyLength));
}
uint8_t QLIB_GSDIDIAG_ROOT_KEY_READ_CMD(ResourceContext h, uint32_t iFirst, uint32_t iSecond, uint8_t* pBlock,
                                        uint32_t*, uint8_t*, uint32_t*, uint32_t*)
{
    return NotSimulated(h, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength));
}
uint8_t QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD(ResourceContext h, uint32_t iFirst, uint32_t iSecond, uint8_t* pBlock,
                                             uint32_t*, uint32_t*)
{
    return NotSimulated(h, __func__, iFirst, iSecond, BytesAt(pBlock, gsdiBlockLength));
}
uint8_t QLIB_EFS2_DIAG_DEV_INFO(ResourceContext h, uint32_t*, uint32_t*, uint32_t*, uint32_t*, uint32_t*, uint32_t*,
                                uint32_t*, uint8_t*, char*)
{
    return NotSimulated(h, __func__);
}

// --- uploads
void QLIB_ConfigureCallBacks(ResourceContext h, void* pFirst, QlibUploadCallback pProgress, void* pThird)
{
    const std::string arguments = ShownTogether(pFirst != nullptr, pProgress != nullptr, pThird != nullptr);
    if (Enter(__func__, arguments, false) && IsConnected(h))
        ReportNotSimulated(__func__);
}
uint8_t QLIB_UploadCEFS_File2(ResourceContext h, QlibUploadArgument a1, QlibUploadArgument a2, QlibUploadArgument a3)
{
    return NotSimulated(h, __func__, a1, a2, a3);
}
uint8_t QLIB_UploadCEFS_File(ResourceContext h, QlibUploadArgument a1, QlibUploadArgument a2)
{
    return NotSimulated(h, __func__, a1, a2);
}
uint8_t QLIB_UploadMultiImage(ResourceContext h, QlibUploadArgument a1, QlibUploadArgument a2, QlibUploadArgument a3,
                              QlibUploadArgument a4, QlibUploadArgument a5, QlibUploadArgument a6,
                              QlibUploadArgument a7, QlibUploadArgument a8, QlibUploadArgument a9,
                              QlibUploadArgument a10, QlibUploadArgument a11, QlibUploadArgument a12,
                              QlibUploadArgument a13, QlibUploadArgument a14, QlibUploadArgument a15,
                              QlibUploadArgument a16, QlibUploadArgument a17, QlibUploadArgument a18,
                              QlibUploadArgument a19, QlibUploadArgument a20, QlibUploadArgument a21,
                              QlibUploadArgument a22, QlibUploadArgument a23)
{
    return NotSimulated(h, __func__, a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12, a13, a14, a15, a16, a17, a18,
                        a19, a20, a21, a22, a23);
}
