// The multi-step procedures of a connection: how a procedure reports its steps, the steps that several of them share,
// and the procedures themselves. The exported functions of the same names document them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "channels/boot_box_port.h"
#include "core/text_log.h"
#include "procedures/step_values.h"

namespace tandekor
{

// First argument of StepTrace. Any other value acts as STEP_START, which is also the level of plain remarks.
constexpr uint8_t STEP_FAILURE = 0;
constexpr uint8_t STEP_SUCCESS = 1;
constexpr uint8_t STEP_START = 2;

struct PinRegisters;

class PhoneProcedures : public BootBoxPort
{
public:
    explicit PhoneProcedures(ResourceContext handle) : hResourceContext(handle) {}

    bool CheckConnection();
    uint8_t Start_LOG(const char* sLogFile);

    // Mode changes.
    uint8_t ModeChangeResetMobile(uint8_t bFTMMode);
    uint8_t ONLINE_TO_FTM();
    uint8_t FTM_TO_ONLINE();

    // NV items and registers.
    bool DIAG_NV_WRITE_F(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength);
    bool DIAG_NV_READ_F(uint16_t iItemID, uint8_t* pItemData, int32_t iLength);
    bool NV_READ_GSM_RX_REL_OFFSETS(uint16_t iItemID, uint8_t* cBin3, int32_t iLength);
    bool DIAG_NV_WRITE_FLUSH_BATCH_QUEUE();
    bool SetBitState_8_Reg(uint32_t iAddress, uint8_t iMask, uint8_t bOnOff);
    bool SetBitState_32_Reg(uint32_t iAddress, uint32_t iMask, uint8_t bOnOff);
    // bitNum 0 to 31; 32 reads the register and finds no bit. *bOnOff becomes the character '0' or '1'.
    bool TK_GetBitState_32_Reg(uint32_t Address, uint16_t bitNum, uint32_t* reg, char* bOnOff);

    // Identification.
    uint8_t Phone_Model(uint32_t* piVerNumber, uint32_t* piMSMModel, uint32_t* piPhoneModel);
    uint8_t GetPhoneModel(uint32_t iVerNumber, uint32_t iMSMModel, uint32_t* piPhoneModel);
    uint8_t CheckSWBuild(char* sCompileDate, char* sCompileTime, char* sReleaseDate, char* sReleaseTime,
                         char* sVersionDir, void* pVernoField6, void* pVernoField7, void* pVernoField8,
                         void* pVernoField9, void* pVernoField10, void* pVernoField11, void* pVernoField12,
                         uint32_t* iMSMHardwareVersion, uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel);

    // Pins and cameras that depend on the phone model.
    uint8_t FTM_SetKeyPadBackLightGPIO(uint16_t iRowNumber, uint8_t bOnOff);
    uint8_t FTM_TestFlip(char* pcFlipState, uint8_t bSkipModelRead);
    uint8_t FTM_KOLT_CAMERA_SWITCH(uint8_t iCameraNum);
    uint8_t FTM_I2C_GetCameraId(uint8_t iCamNum, uint16_t* piCamId);

    // Receiver.
    uint8_t RX_GSM_Adjust(uint8_t* cBin3, uint16_t eNewMode, uint16_t iChannel, uint8_t iSlotNum, int16_t iRxFunction,
                          uint8_t iLNArange, void* piRSSI);
    uint8_t RX_WCDMA_Adjust(uint8_t iLNArange, int16_t iDvgaExpectedRX_AGC, void* piDVGAoffsetValue,
                            uint16_t iWriteItemID, uint8_t* pWriteItemData, int32_t iWriteLength,
                            uint16_t* piWriteStatus, uint16_t eVgaNvBand, uint16_t iOffset, uint8_t* piVsFreq,
                            uint16_t eFallNvBand, uint8_t* piFall1, uint8_t* piFall2, uint8_t* piFall3,
                            uint16_t iReadItemID, uint8_t* pReadItemData, int32_t iReadLength, uint16_t* piReadStatus,
                            uint16_t eRiseNvBand, uint8_t* piRise1, uint8_t* piRise2, uint8_t* piRise3,
                            uint16_t iLNAindex, int16_t iLnaExpectedRX_AGC, int16_t* piLNAoffsetValue);
    bool NV_WRITE_WCDMA_VGA_GAIN(uint16_t eNvBand, uint16_t iOffset, const uint8_t* piVsFreq);
    bool NV_READ_WCDMA_LNA_RANGE_FALL(uint16_t eNvBand, uint8_t* piFall1, uint8_t* piFall2, uint8_t* piFall3);
    bool NV_READ_WCDMA_LNA_RANGE_RISE(uint16_t eNvBand, uint8_t* piRise1, uint8_t* piRise2, uint8_t* piRise3);
    uint8_t Write_RX_Adjustment_Values(uint8_t bStartBatchMode, uint8_t* Gsm900Range1, uint8_t* Gsm900Range2,
                                       uint8_t* Gsm900Range3, uint8_t* Gsm900Range4, uint8_t* Gsm1900Range1,
                                       uint8_t* Gsm1900Range2, uint8_t* Gsm1900Range3, uint8_t* Gsm1900Range4,
                                       uint8_t* Gsm1800Range1, uint8_t* Gsm1800Range2, uint8_t* Gsm1800Range3,
                                       uint8_t* Gsm1800Range4, uint8_t* Gsm850Range1, uint8_t* Gsm850Range2,
                                       uint8_t* Gsm850Range3, uint8_t* Gsm850Range4, uint8_t eNvBand, int16_t iOffset1,
                                       uint8_t* piVsFreq1, int16_t iOffset2, uint8_t* piVsFreq2, int16_t iOffset3,
                                       uint8_t* piVsFreq3, uint16_t eVgaNvBand, uint16_t iOffset, uint8_t* piVsFreq);
    bool NV_WRITE_GSM_RX_GAIN_RANGE(uint8_t* Gsm900Range1, uint8_t* Gsm900Range2, uint8_t* Gsm900Range3,
                                    uint8_t* Gsm900Range4, uint8_t* Gsm1900Range1, uint8_t* Gsm1900Range2,
                                    uint8_t* Gsm1900Range3, uint8_t* Gsm1900Range4, uint8_t* Gsm1800Range1,
                                    uint8_t* Gsm1800Range2, uint8_t* Gsm1800Range3, uint8_t* Gsm1800Range4,
                                    uint8_t* Gsm850Range1, uint8_t* Gsm850Range2, uint8_t* Gsm850Range3,
                                    uint8_t* Gsm850Range4);
    bool NV_WRITE_WCDMA_LNA_OFFSET(uint8_t eNvBand, int16_t iOffset1, uint8_t* piVsFreq1, int16_t iOffset2,
                                   uint8_t* piVsFreq2, int16_t iOffset3, uint8_t* piVsFreq3);

    // Transmitter.
    uint8_t GSM_PA_OutputPower(uint16_t eNewMode, uint16_t iChannel, uint8_t iSlotNum, int16_t iDataSource,
                               uint8_t iTSCindex, uint32_t iNumBursts, uint8_t bIsInfiniteDuration, uint16_t iDACinput);
    uint8_t Set_TX_PowerOn(uint16_t eNewMode, uint16_t iChannel, uint8_t iPowerLevelID, uint8_t iSlotNum,
                           int16_t iDataSource, uint8_t iTSCindex, uint32_t iNumBursts, uint8_t bIsInfiniteDuration);
    uint8_t WCDMA_PA_OutputPower(uint16_t eNewMode, uint16_t iChannel, uint16_t iPArange, uint8_t bSelectCW,
                                 uint16_t iPDMtype, uint16_t iPDMvalue);
    uint8_t AFC_Deviation(uint16_t eNewMode, uint16_t iChannel, uint16_t iPArange, uint8_t bSelectCW, uint16_t iPDMtype,
                          uint16_t iPDMvalue);
    uint8_t CheckDACValues(uint16_t iAverageCount, double* pdFirstValue, uint16_t iSecondAverageCount,
                           double* pdThirdValue, double* pdSecondValue);

    // Test calls.
    uint8_t Reduced_Signalling_GSM(uint8_t* piDED_RPtRxLev_Full, uint8_t* piDED_RPtRxQual_Full, uint16_t iChannel,
                                   uint8_t iBand, uint8_t iTSC, uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel,
                                   uint8_t iLoopbackType, uint8_t bInitSession, uint16_t iBcchChannel,
                                   uint8_t iBcchBand, uint32_t iBCCH_TimeOut_ms, uint16_t iTrafficLoopbackType,
                                   uint8_t iTrafficSlot, uint8_t iTrafficMode, uint8_t bCloseControl);
    bool FTM_GSM_BER_StartCall(uint8_t bInitSession, uint16_t iChannel, uint8_t iBand, uint32_t iBCCH_TimeOut_ms);
    bool FTM_GSM_BER_StopCall(uint8_t bCloseControl);
    uint8_t Reduced_Signalling_WCDMA(uint16_t iChannel, uint32_t iTimeOut_ms, uint8_t* pWCDMA_BER_State,
                                     uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr, uint32_t iUL_DPCH_ScrCode,
                                     uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize, uint16_t iDL_PriCPICH_Scr_Code,
                                     uint16_t iDL_ChanCode);
    uint8_t Reduced_Signalling_HSDPA(uint8_t iReconfigBitmask, uint16_t iHS_PDSCH_RadioLink_PCS, uint8_t iNumCodes,
                                     uint8_t* aiCodes, uint16_t iH_RNTI, uint8_t iNum_HARQ_Processes,
                                     uint8_t bMemPartitionValid, void* aiMemPartitionInfo, uint8_t iCPICH_PowerOffset,
                                     uint8_t iCQI_FeedbackCycle, uint8_t iCQI_RepetitionFactor, uint8_t iDeltaCQI,
                                     uint8_t iDeltaACK, uint8_t iDeltaNACK, uint8_t iACK_NACK_RepetitionFactor,
                                     uint8_t* pHSDPA_BER_State);
    uint8_t Reduced_Signalling_EDGE(uint8_t bInitSession, uint16_t iChannel, uint8_t iBand, uint32_t iBCCH_TimeOut_ms,
                                    uint8_t iDL_TSC, uint8_t iDL_TFI, uint32_t iReserved7, uint32_t iReserved8,
                                    uint8_t bFirstSlotActive, uint8_t iFirstSlotNum, uint8_t bSecondSlotActive,
                                    uint8_t iSecondSlotNum, uint8_t iUL_TSC, uint8_t iUSF, uint8_t iGamma,
                                    uint32_t iReserved16, uint32_t iReserved17, uint32_t iReserved18,
                                    uint32_t iReserved19, uint8_t* pEGPRS_BER_State, uint8_t* piRxLev_average);
    bool FTM_EGPRS_BER_StartCall(uint8_t bInitSession, uint16_t iChannel, uint8_t iBand, uint32_t iBCCH_TimeOut_ms);
    uint8_t StartCall(uint8_t iNumDigits, uint8_t* aiIMSI);

    // Network and SIM.
    uint8_t Virtual_SIM(char* iSPC, uint8_t* piSPC_Result);
    bool SimSimulation();
    uint8_t SpecialSetRtcActualTime();
    uint8_t NetworkAndChannelPreselection(uint8_t eNetwMode, uint8_t eChannelMode, uint16_t uiChannel);
    bool NV_WRITE_NETWORK_SCAN_MODE(uint8_t eNetwMode);
    bool NV_WRITE_LAST_GOOD_CHANNEL(uint8_t eNetwMode, uint16_t uiChannel);
    uint8_t NV_SetRoamingListStatus(uint8_t bRoamingListOn);
    uint8_t NVSetAutoAnswerStatus(uint8_t bAutoAnswerOn);

    // Audio.
    uint8_t MicrophoneBiasVoltages(uint16_t iAudioDevice);
    uint8_t AudioTest(uint16_t iAudioDevice, uint8_t bLoopbackOn);
    uint8_t TestSpeaker(uint16_t iAudioDevice, uint8_t iVolume, uint16_t iHiFreq, uint16_t iLoFreq);
    uint8_t TestMicrophone(uint16_t iNumBuffers, uint32_t iDataOffset, uint16_t iDataSize, void* pBuffer,
                           uint16_t iItemID, uint8_t* pItemData, int32_t iLength, int16_t iCodecTxGainAdjust);
    uint8_t DIAG_DISABLE_48KHz();

    // Keypad and display.
    uint8_t SpecialSetKeypadMapping(uint8_t iMappingID);
    uint8_t TestKeypad(uint16_t* piKeypressQueueSize, uint16_t* piKeyPressID, uint8_t* piKeyPressEvent);
    uint8_t SpecialSwitchDisplay(uint8_t uiDsplNum);
    uint8_t FTM_DrawContrastPattern(char* sFileName, uint8_t uiDsplNum);
    uint8_t FTM_DrawContrastPattern24Bit(char* sFileName, uint8_t uiDsplNum);

    // Bluetooth.
    uint8_t SetCWPowerBluetooth(uint8_t iChannel);
    uint8_t BluetoothTestConnect(char* szAddr);
    bool FtmBtSetAddr(char* szAddr);
    uint8_t Bluetooth_HW_ID(void* pModuleVersion, uint16_t* piBtStatus, uint8_t* piBtParam1, uint8_t* piBtParam2,
                            uint8_t* piBtParam3);

    // Charging and supply.
    uint8_t Charging_Test(uint8_t iLowPowerMode, uint8_t iChargerSwitchCommand7, uint8_t eChgTransistor, uint8_t bState,
                          uint8_t iChargerSwitchCommand3, uint32_t iVoltage, uint32_t iCurrent,
                          uint8_t eChgTransistorRead, uint8_t* pbState);
    bool SpecialSetChargeFetState(uint8_t eChgTransistor, uint8_t bState);
    bool SpecialSetPmicChargeLimits(uint32_t iVoltage, uint32_t iCurrent);
    bool SpecialGetChargeFetState(uint8_t eChgTransistor, uint8_t* pbState);
    uint8_t SupplyVoltageTest(uint8_t iCameraNum, uint8_t iLevel, uint8_t iSupplyMode, uint8_t bOnOff);
    uint8_t SpecialSwitchAccSupplyVoltage(uint8_t bOnOff);

    // Identity and storage.
    uint8_t NV_READ_IMEI(char* sImei);
    uint8_t NV_WRITE_IMEI(const char* sImei);
    uint8_t DIAG_FREEZE_PHONE(const uint8_t* pExpectedImei, const uint8_t* pExpectedBtAddress,
                              const uint8_t* pExpectedSerial, const uint8_t* pPublicKey);
    uint8_t FlashTest(uint32_t* piFlashId);
    uint8_t SpecialMmcTest();

    // FM radio, tracking byte, uploads.
    uint8_t FM_RadioTest(uint16_t iAudioDevice, uint16_t* iChip_Id, uint16_t iChannel, uint16_t* piStatusWord,
                         uint8_t* pcFmValue);
    uint8_t SpecialGetFmRadioInfo(uint8_t eFmData, uint8_t* pcFmValue);
    uint8_t SetFactoryTrackingByte(uint8_t iOperationType, uint16_t iDataAddress, uint8_t* pFactoryData);
    uint8_t UploadCEFS_File2(uintptr_t a1, uintptr_t a2, uintptr_t a3);
    uint8_t UploadCEFS_File(uintptr_t a1, uintptr_t a2);
    uint8_t UploadMultiImage(uintptr_t a1, uintptr_t a2, uintptr_t a3, uintptr_t a4, uintptr_t a5, uintptr_t a6,
                             uintptr_t a7, uintptr_t a8, uintptr_t a9, uintptr_t a10, uintptr_t a11, uintptr_t a12,
                             uintptr_t a13, uintptr_t a14, uintptr_t a15, uintptr_t a16, uintptr_t a17, uintptr_t a18,
                             uintptr_t a19, uintptr_t a20, uintptr_t a21, uintptr_t a22, uintptr_t a23);

    // Boot box.
    uint8_t BootBox_SwitchMobileOn(uint16_t iBootBoxPort, uint8_t bFTMMode);
    uint8_t BootBox_SwitchMobileOff(uint16_t iBootBoxPort);

private:
    // --- reporting

    // Writes one text of a procedure to the log, in the form of its level. Always true.
    bool StepTrace(uint8_t iLevel, const char* sFormat, ...) __attribute__((format(printf, 3, 4)));

    // One step: the text that it starts, the call, the text that tells how it ended. The result text is the callee's
    // name with its arguments as a format, filled with the values as they stand behind the call.
    template <typename Call, typename... Values>
    bool Step(const char* name, const char* arguments, Call call, const Values&... values)
    {
        StepTrace(STEP_START, "\t%s() start", name);
        return StepWithoutStart(name, arguments, call, values...);
    }

    template <typename Call, typename... Values>
    bool StepWithoutStart(const char* name, const char* arguments, Call call, const Values&... values)
    {
        const bool done = call() != 0;
        StepTrace(done ? STEP_SUCCESS : STEP_FAILURE, "%s%s", name, FormattedText(arguments, Shown(values)...).Text());
        return done;
    }

    // A step whose call takes the values that are shown, and nothing else behind the handle.
    template <typename Function, typename... Values>
    bool CallStep(const char* name, Function function, const char* arguments, Values... values)
    {
        return Step(
            name, arguments, [&] { return function(hResourceContext, values...); }, values...);
    }

    // --- steps that several procedures share

    bool SendControl(uint32_t eMode);
    // NV items, shown as text. iLength is in bytes.
    bool WriteItem(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength);
    bool ReadItem(uint16_t iItemID, uint8_t* cBin3, int32_t iLength);
    bool ReadThresholds(const uint16_t (&items)[3], uint8_t* first, uint8_t* second, uint8_t* third);
    bool SetMode(uint16_t eNewMode);
    bool SetChannel(uint16_t iChannel);
    bool SetLnaRange(uint8_t iLNArange);
    bool TxOn();
    bool TxOff();
    bool SetMicrophoneBias(uint16_t iAudioDevice);
    // Asks for the phone's state, in the log with the state (ReportState) or without (ReadState).
    bool ReportState(uint8_t* iTMC_State);
    bool ReadState(uint8_t* iTMC_State);
    // Asks until the phone is offline.
    bool WaitForOffline(bool (PhoneProcedures::*askState)(uint8_t*), const char* reachedText, const char* missedText);
    bool ReadIsFtmMode(uint8_t* pbIsFTMMode);
    bool AskPhoneModel(uint32_t* piPhoneModel);
    bool WritePin(const PinRegisters& registers, uint32_t mask, uint8_t state, const char* arguments);

    // --- parts of single procedures

    bool DirectModeChange(bool toFtm);
    bool WaitForRestart();
    bool WaitForFirstAnswer();
    bool BringIntoMode(uint8_t bFTMMode);
    bool ConfirmMode(uint8_t bFTMMode);
    bool WaitForSilence();
    bool ReadHardwareVersion(uint32_t* value);
    bool ReadFlipBit(uint32_t address, char* pcFlipState);
    bool SetTransmitBurst(const char* arguments, uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                          uint32_t iNumBursts, uint8_t bIsInfiniteDuration);
    bool SetPaRange(uint16_t iPArange);
    bool SelectCwWaveform(uint8_t bSelectCW);
    bool SetPdm(uint16_t iPDMtype, uint16_t iPDMvalue);
    bool AverageSummed(uint16_t adcType, uint16_t count, double* average);
    bool AverageSingle(uint16_t adcType, uint16_t count, bool startTextEachTime, double* average);
    // Waits until the phone answers, at most for 20 further polls; gives how many it took. It cannot fail.
    int WaitForPhone();
    bool ForceFtmMode(bool* restartedSlowly);
    bool AddMapEntry(uint16_t iHW_ID, uint8_t iKeyPressSW_ID);
    template <size_t size>
    bool SendHci(const uint8_t (&packet)[size]);
    bool SetChargerSwitch(uint32_t iChargerSwitchType, uint8_t iChargerSwitchCommand);
    bool AskModelQuietly(uint32_t* piPhoneModel);
    bool ConfigureCameraSwitch(uint8_t iCameraNum);
    bool SetBiasBit();
    bool SetModeBit(uint8_t bOnOff);
    bool SetSupplyBit(uint8_t bOnOff);
    bool SetBacklight(uint8_t iLevel);
    bool Remark(bool passed, const char* passedText, const char* failedText);
    bool ReadIdentity(uint16_t iItemID, uint8_t* item, size_t size, const char* what);
    template <typename Operation, typename... Arguments>
    uint8_t Upload(const char* name, Operation operation, Arguments... arguments);
    template <typename Value, typename Access>
    bool SetBits(const Access& access, uint32_t iAddress, Value iMask, uint8_t bOnOff);

    ResourceContext hResourceContext;
};

}  // namespace tandekor
