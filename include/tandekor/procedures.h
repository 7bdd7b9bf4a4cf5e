/*
 * Multi-step procedures: power, mode and identification of the phone, and the tests and calibrations of a line.
 *
 * A procedure writes each of its steps to the text log: a start line, and a result line that ends in "Completed
 * successfully" or "Failure". The first step that fails ends the procedure with the result 0; its line says why (a few
 * refusals have no line, where their functions say so), and nothing that earlier steps did is undone. Nearly every
 * procedure begins with a check that the phone answers and ends with the line "Invalid handle" if it does not.
 *
 *     uint32_t version = 0, chip = 0, model = 0;
 *     TANDEKOR_Start_LOG(phone, "line.log");
 *     if (TANDEKOR_BootBox_SwitchMobileOn(phone, 4, TANDEKOR_MODE_FTM) != 0)
 *     {
 *         if (TANDEKOR_Phone_Model(phone, &version, &chip, &model) == 0)
 *             ...                                     line.log says which step failed
 *         TANDEKOR_BootBox_SwitchMobileOff(phone, 4);
 *     }
 *
 * A value that is passed on to the host library or to the phone is not checked here; its numbers and units are theirs.
 */
#ifndef TANDEKOR_PROCEDURES_H
#define TANDEKOR_PROCEDURES_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* Networks of TANDEKOR_NetworkAndChannelPreselection, by the bytes of the NV items that they write. */
    enum TandekorNetwork
    {
        TANDEKOR_NETWORK_0 = 0, /* without a channel */
        TANDEKOR_NETWORK_2 = 2, /* channel of kind 0 */
        TANDEKOR_NETWORK_3 = 3, /* channel of kind 3 */
        TANDEKOR_NETWORK_4 = 4, /* channel of kind 2 */
        TANDEKOR_NETWORK_5 = 5  /* without a channel */
    };

    /* WCDMA bands, by the host library's numbers, as they choose NV items. */
    enum TandekorWcdmaBand
    {
        TANDEKOR_WCDMA_BAND_4 = 4,
        TANDEKOR_WCDMA_BAND_5 = 5,
        TANDEKOR_WCDMA_BAND_6 = 6
    };

    /* Audio device whose path needs a request of its own. The other numbers are the host library's. */
    enum TandekorAudioDevice
    {
        TANDEKOR_AUDIO_DEVICE_WITH_BIAS = 15
    };

    /* What TANDEKOR_SpecialGetFmRadioInfo asks for. */
    enum TandekorFmData
    {
        TANDEKOR_FM_DATA_NUMBER = 0,
        TANDEKOR_FM_DATA_BIT_3 = 1,
        TANDEKOR_FM_DATA_BIT_2 = 2,
        TANDEKOR_FM_DATA_NONE = 255 /* its answer when there is none */
    };

    /* Sizes of buffers in bytes, and limits. */
    enum TandekorProcedureSize
    {
        TANDEKOR_VERSION_FIELD_SIZE = 32,
        TANDEKOR_BUILD_TEXT_SIZE = 512,
        TANDEKOR_HOST_VALUE_SIZE = 64, /* room for a value whose type only the host library knows */
        TANDEKOR_GSM_OFFSETS_SIZE = 128,
        TANDEKOR_BT_ADDRESS_TEXT_SIZE = 13,
        TANDEKOR_BT_ADDRESS_SIZE = 6,
        TANDEKOR_IMEI_TEXT_SIZE = 16,
        TANDEKOR_IMEI_SIZE = 9,
        TANDEKOR_SERIAL_NUMBER_SIZE = 16,
        TANDEKOR_PUBLIC_KEY_SIZE = 260,
        TANDEKOR_IMAGE_NAME_SIZE = 128,
        TANDEKOR_LOWEST_CHARGE_VOLTAGE = 4000,
        TANDEKOR_HIGHEST_CHARGE_VOLTAGE = 4375,
        TANDEKOR_LOWEST_CHARGE_CURRENT = 10,
        TANDEKOR_HIGHEST_CHARGE_CURRENT = 300,
        TANDEKOR_LAST_KEY_MAP = 11
    };

    /* --- Log and callback */

    /*
     * Opens the host library's text log and writes the version of this library to it. The phone need not answer yet.
     * Returns 1 for every known handle: that the file could not be opened shows by its absence.
     *
     * [in] sLogFile  name of the file, passed on as it is
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Start_LOG(ResourceContext hResourceContext, const char* sLogFile);

    /*
     * Called with the status and the percentage (0 to 100) of an upload, on the thread on which the host library
     * reports its progress, before the upload function returns. It may call the library on the same handle, except to
     * disconnect it. It has no way of stopping the upload.
     */
    typedef void(TANDEKOR_CALL* TandekorCallback)(uint32_t iStatus, uint32_t iPercent);

    /*
     * Sets the function that uploads report their progress to. It holds for all connections of the process until the
     * next call, whatever the handle is, and must stay callable as long.
     *
     * [in, or null] pCallback  the function; null sets none
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_SetCallback(ResourceContext hResourceContext, TandekorCallback pCallback);

    /* --- Mode of the phone: online, or FTM (factory test) */

    /*
     * Takes the phone offline, writes the mode in which it starts, resets it and waits until it answers again, which
     * takes about 20 seconds and at most about 72. Of a phone that does not answer again a remark is logged, without
     * "Failure".
     *
     * [in] bFTMMode  TandekorPhoneMode; written as it is
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_ModeChangeResetMobile(ResourceContext hResourceContext,
                                                                      uint8_t bFTMMode);

    /*
     * Write the mode in which the phone starts and send the direct mode command; only if the command did not take is
     * the phone reset as well, and then these functions do not wait for its restart.
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_ONLINE_TO_FTM(ResourceContext hResourceContext);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TO_ONLINE(ResourceContext hResourceContext);

    /* --- Power of the phone, by a boot box */

    /*
     * Switches the phone on by the boot box, asks up to 70 times in 28 seconds for its first answer and brings it
     * into the mode asked for, by a reset if need be (then the time of TANDEKOR_ModeChangeResetMobile comes on top).
     * An answer to the last of the 70 is too late; no line says so. No step has a start line here.
     *
     * [in] iBootBoxPort  number of the boot box's serial port. The first call opens the port for this process only; it
     *                    stays open until the connection ends, and another number than the open one is refused. On
     *                    Windows the port is COM<number>. Elsewhere it is the device /dev/com<number> if there is one
     *                    (a link such as /dev/com5 -> ttyUSB0 gives a USB adapter a number), else
     *                    /dev/ttyS<number - 1>. Where another process holds the port, its lines may be raised before
     *                    it is refused
     * [in] bFTMMode      TandekorPhoneMode; any other value than its first two leaves the mode unchanged
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_BootBox_SwitchMobileOn(ResourceContext hResourceContext,
                                                                       uint16_t iBootBoxPort, uint8_t bFTMMode);

    /*
     * Takes the phone offline, switches it off by the boot box and by command, and waits up to 10 seconds until it is
     * silent.
     *
     * [in] iBootBoxPort  the port with which the phone was switched on in this connection; another number fails after
     *                    the phone has gone offline, and a phone that was switched on by other means cannot be switched
     *                    off here
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_BootBox_SwitchMobileOff(ResourceContext hResourceContext,
                                                                        uint16_t iBootBoxPort);

    /* --- Identification */

    /*
     * Reads which phone this is. A phone that is not recognised is no failure: chip family or model are then 0. After a
     * failure, values that were not reached keep what they held. There is no check that the phone answers before the
     * first question.
     *
     * [out] piVerNumber   hardware variant; 16 bits count
     * [out] piMSMModel    chip family, 1 to 4
     * [out] piPhoneModel  TandekorPhoneModel
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Phone_Model(ResourceContext hResourceContext, uint32_t* piVerNumber,
                                                            uint32_t* piMSMModel, uint32_t* piPhoneModel);

    /*
     * The phone model of a hardware variant on a chip family. No phone is asked, and nothing is
     * logged.
     *
     * [in]  iVerNumber    hardware variant
     * [in]  iMSMModel     chip family, 1 to 4
     * [out] piPhoneModel  TandekorPhoneModel, 0 for a pair that is not known
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GetPhoneModel(ResourceContext hResourceContext, uint32_t iVerNumber,
                                                              uint32_t iMSMModel, uint32_t* piPhoneModel);

    /*
     * Reads the identity of the phone's software. Nothing is compared: the caller judges the values. The five version
     * texts are cleared first, and cut to 11 characters (the dates) or 8 (the times and sVersionDir).
     *
     * [out] sCompileDate[TANDEKOR_VERSION_FIELD_SIZE]  date of the build
     * [out] sCompileTime[TANDEKOR_VERSION_FIELD_SIZE]  its time
     * [out] sReleaseDate[TANDEKOR_VERSION_FIELD_SIZE]  date of the release
     * [out] sReleaseTime[TANDEKOR_VERSION_FIELD_SIZE]  its time
     * [out] sVersionDir[TANDEKOR_VERSION_FIELD_SIZE]   directory of the version
     * [out] pVernoField6[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField7[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField8[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField9[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField10[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField11[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] pVernoField12[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] iMSMHardwareVersion  hardware version of the chip
     * [out] iBuildMobModel       model number of the build
     * [out] sBuildId[TANDEKOR_BUILD_TEXT_SIZE]     text of the build
     * [out] sBuildModel[TANDEKOR_BUILD_TEXT_SIZE]  text of the model
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_CheckSWBuild(
        ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime, char* sReleaseDate,
        char* sReleaseTime, char* sVersionDir, void* pVernoField6, void* pVernoField7, void* pVernoField8,
        void* pVernoField9, void* pVernoField10, void* pVernoField11, void* pVernoField12,
        uint32_t* iMSMHardwareVersion, uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel);

    /* --- Pins and cameras that depend on the phone model
     *
     * Each asks for the model first.
     */

    /*
     * Switches the light of a keypad row by its pins. A refusal on model 3 goes to standard output, and row 5 of model
     * 3 writes no line.
     *
     * [in] iRowNumber  on the models 52 to 55 the rows 1 to 6, and 7 for all; on model 3 row 7 for the inside keypad
     *                  and 5 for the outside one
     * [in] bOnOff      1 on, 0 off. The outside keypad's drive level, 0 to 15, is 15 times this value cut to a byte
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SetKeyPadBackLightGPIO(ResourceContext hResourceContext,
                                                                           uint16_t iRowNumber, uint8_t bOnOff);

    /*
     * The level of the flip's pin on model 3.
     *
     * [out] pcFlipState     the character '0' or '1'
     * [in]  bSkipModelRead  0; any other value leaves the model unknown, and the call fails as on another model, which
     *                       is said on standard output
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TestFlip(ResourceContext hResourceContext, char* pcFlipState,
                                                             uint8_t bSkipModelRead);

    /*
     * Chooses a camera on the models 52 to 55; on 54 the two are exchanged.
     *
     * [in] iCameraNum  0 or 1
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_KOLT_CAMERA_SWITCH(ResourceContext hResourceContext,
                                                                       uint8_t iCameraNum);

    /*
     * Starts a camera, reads its identification over I2C and stops it.
     *
     * [in]  iCamNum  0 or 1
     * [out] piCamId  the identification in the low 8 bits; written only if it was read
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_I2C_GetCameraId(ResourceContext hResourceContext, uint8_t iCamNum,
                                                                    uint16_t* piCamId);

    /* --- Receiver
     *
     * The phone is in FTM mode. The library computes nothing: the caller works out the corrections.
     */

    /*
     * One measurement of the GSM receiver.
     *
     * [out] cBin3[TANDEKOR_GSM_OFFSETS_SIZE]  the receive offsets stored in the phone
     * [in]  eNewMode     mode of the radio, the host library's number
     * [in]  iChannel     channel (ARFCN)
     * [in]  iSlotNum     slot of the burst, 0 to 7
     * [in]  iRxFunction  receive function, the host library's number
     * [in]  iLNArange    LNA range, the host library's number
     * [out] piRSSI[TANDEKOR_HOST_VALUE_SIZE]  received level, as the host library has it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_RX_GSM_Adjust(ResourceContext hResourceContext, uint8_t* cBin3,
                                                              uint16_t eNewMode, uint16_t iChannel, uint8_t iSlotNum,
                                                              int16_t iRxFunction, uint8_t iLNArange, void* piRSSI);

    /*
     * One measurement of the WCDMA receiver, with what the caller stores on the way; the arguments stand in the order
     * of the steps. An unknown band fails at its step. The status of the two direct operations is for the caller: it
     * does not end the procedure.
     *
     * [in]  iLNArange            LNA range, the host library's number
     * [in]  iDvgaExpectedRX_AGC  expected AGC value for the DVGA offset, in the host library's unit
     * [out] piDVGAoffsetValue[TANDEKOR_HOST_VALUE_SIZE]  DVGA offset, as the host library has it
     * [in]  iWriteItemID         NV item that is written directly
     * [in]  pWriteItemData[iWriteLength]  its bytes
     * [in]  iWriteLength         how many there are
     * [out] piWriteStatus        status of the write, 0 for success
     * [in]  eVgaNvBand           TandekorWcdmaBand of the VGA gain
     * [in]  iOffset              VGA gain offset to store
     * [in, or null] piVsFreq[16] VGA gain by frequency to store; null leaves it unchanged
     * [in]  eFallNvBand          TandekorWcdmaBand of the LNA fall thresholds
     * [out] piFall1[2], piFall2[2], piFall3[2]  the thresholds, low byte first
     * [in]  iReadItemID          NV item that is read directly
     * [out] pReadItemData[iReadLength]  its bytes
     * [in]  iReadLength          how many to read
     * [out] piReadStatus         status of the read, 0 for success
     * [in]  eRiseNvBand          TandekorWcdmaBand of the LNA rise thresholds
     * [out] piRise1[2], piRise2[2], piRise3[2]  the thresholds, low byte first
     * [in]  iLNAindex            LNA stage
     * [in]  iLnaExpectedRX_AGC   expected AGC value for the LNA offset, in the host library's unit
     * [out] piLNAoffsetValue     LNA offset
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_RX_WCDMA_Adjust(
        ResourceContext hResourceContext, uint8_t iLNArange, int16_t iDvgaExpectedRX_AGC, void* piDVGAoffsetValue,
        uint16_t iWriteItemID, const uint8_t* pWriteItemData, int32_t iWriteLength, uint16_t* piWriteStatus,
        uint16_t eVgaNvBand, uint16_t iOffset, const uint8_t* piVsFreq, uint16_t eFallNvBand, uint8_t* piFall1,
        uint8_t* piFall2, uint8_t* piFall3, uint16_t iReadItemID, uint8_t* pReadItemData, int32_t iReadLength,
        uint16_t* piReadStatus, uint16_t eRiseNvBand, uint8_t* piRise1, uint8_t* piRise2, uint8_t* piRise3,
        uint16_t iLNAindex, int16_t iLnaExpectedRX_AGC, int16_t* piLNAoffsetValue);

    /*
     * Stores a receiver calibration in one batch of NV writes. After a failure the writes so far stay in the host
     * library's queue. Every table may be null to be left unchanged; its content is the caller's and is not checked.
     *
     * [in] bStartBatchMode  passed to the host library; the batch is flushed whatever it is
     * [in, or null] Gsm900Range1[16], Gsm900Range2[16], Gsm900Range3[16], Gsm900Range4[16]  gain ranges of GSM 900
     * [in, or null] Gsm1900Range1[32], Gsm1900Range2[32], Gsm1900Range3[32], Gsm1900Range4[32]  gain ranges of GSM 1900
     * [in, or null] Gsm1800Range1[32], Gsm1800Range2[32], Gsm1800Range3[32], Gsm1800Range4[32]  gain ranges of GSM 1800
     * [in, or null] Gsm850Range1[16], Gsm850Range2[16], Gsm850Range3[16], Gsm850Range4[16]  gain ranges of GSM 850
     * [in] eNvBand     TandekorWcdmaBand of the LNA offsets
     * [in] iOffset1, iOffset2, iOffset3  LNA offsets
     * [in, or null] piVsFreq1[16], piVsFreq2[16], piVsFreq3[16]  LNA offsets by frequency
     * [in] eVgaNvBand  TandekorWcdmaBand of the VGA gain
     * [in] iOffset     VGA gain offset
     * [in, or null] piVsFreq[16]  VGA gain by frequency
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Write_RX_Adjustment_Values(
        ResourceContext hResourceContext, uint8_t bStartBatchMode, const uint8_t* Gsm900Range1,
        const uint8_t* Gsm900Range2, const uint8_t* Gsm900Range3, const uint8_t* Gsm900Range4,
        const uint8_t* Gsm1900Range1, const uint8_t* Gsm1900Range2, const uint8_t* Gsm1900Range3,
        const uint8_t* Gsm1900Range4, const uint8_t* Gsm1800Range1, const uint8_t* Gsm1800Range2,
        const uint8_t* Gsm1800Range3, const uint8_t* Gsm1800Range4, const uint8_t* Gsm850Range1,
        const uint8_t* Gsm850Range2, const uint8_t* Gsm850Range3, const uint8_t* Gsm850Range4, uint8_t eNvBand,
        int16_t iOffset1, const uint8_t* piVsFreq1, int16_t iOffset2, const uint8_t* piVsFreq2, int16_t iOffset3,
        const uint8_t* piVsFreq3, uint16_t eVgaNvBand, uint16_t iOffset, const uint8_t* piVsFreq);

    /* --- Transmitter
     *
     * The phone answers FTM requests. A procedure that fails leaves the transmitter as it is then.
     */

    /*
     * GSM burst on a mode and channel with a PA DAC input; the transmitter is off at the end.
     *
     * [in] eNewMode             mode of the radio, the host library's number
     * [in] iChannel             channel (ARFCN)
     * [in] iSlotNum             slot of the burst, 0 to 7
     * [in] iDataSource          what is sent, the host library's number
     * [in] iTSCindex            training sequence, 0 to 7
     * [in] iNumBursts           number of bursts
     * [in] bIsInfiniteDuration  bursts without end
     * [in] iDACinput            input of the power amplifier's DAC
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GSM_PA_OutputPower(ResourceContext hResourceContext, uint16_t eNewMode,
                                                                   uint16_t iChannel, uint8_t iSlotNum,
                                                                   int16_t iDataSource, uint8_t iTSCindex,
                                                                   uint32_t iNumBursts, uint8_t bIsInfiniteDuration,
                                                                   uint16_t iDACinput);

    /*
     * GSM burst on a mode and channel at a power level; the transmitter is on at the end.
     *
     * [in] eNewMode             mode of the radio, the host library's number
     * [in] iChannel             channel (ARFCN)
     * [in] iPowerLevelID        power level, the host library's number
     * [in] iSlotNum             slot of the burst, 0 to 7
     * [in] iDataSource          what is sent, the host library's number
     * [in] iTSCindex            training sequence, 0 to 7
     * [in] iNumBursts           number of bursts
     * [in] bIsInfiniteDuration  bursts without end
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Set_TX_PowerOn(ResourceContext hResourceContext, uint16_t eNewMode,
                                                               uint16_t iChannel, uint8_t iPowerLevelID,
                                                               uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                                                               uint32_t iNumBursts, uint8_t bIsInfiniteDuration);

    /*
     * WCDMA transmission on a mode and channel; the transmitter is on at the end of the first and off at the end of the
     * second.
     *
     * [in] eNewMode   mode of the radio, the host library's number
     * [in] iChannel   channel (UARFCN)
     * [in] iPArange   range of the power amplifier, the host library's number
     * [in] bSelectCW  1 for an unmodulated carrier, 0 for the modulated one
     * [in] iPDMtype   which PDM, the host library's number
     * [in] iPDMvalue  its value
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_WCDMA_PA_OutputPower(ResourceContext hResourceContext,
                                                                     uint16_t eNewMode, uint16_t iChannel,
                                                                     uint16_t iPArange, uint8_t bSelectCW,
                                                                     uint16_t iPDMtype, uint16_t iPDMvalue);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AFC_Deviation(ResourceContext hResourceContext, uint16_t eNewMode,
                                                              uint16_t iChannel, uint16_t iPArange, uint8_t bSelectCW,
                                                              uint16_t iPDMtype, uint16_t iPDMvalue);

    /*
     * Averages of ADC readings, by the phone model. 255.0 is a value that was not measured. A model whose ADC is not
     * known returns 0 with nothing written and no line of its own. A failure leaves the values that it did not reach
     * unchanged.
     *
     * [in]  iAverageCount        readings for the first value; 0 returns 0 with a first value of 0.0
     * [out] pdFirstValue         average of the first ADC channel
     * [in]  iSecondAverageCount  readings for the others; 0 returns 0 with the first value measured and the others
     *                            255.0
     * [out] pdThirdValue         third channel; mind that its pointer stands before the second's
     * [out] pdSecondValue        second channel
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_CheckDACValues(ResourceContext hResourceContext, uint16_t iAverageCount,
                                                               double* pdFirstValue, uint16_t iSecondAverageCount,
                                                               double* pdThirdValue, double* pdSecondValue);

    /* --- Test calls of a phone in FTM mode
     *
     * What a failed chain has opened stays open. Times are in milliseconds.
     */

    /*
     * A GSM call, in this order: receive metrics, handover to a channel, call on another channel, its traffic channel,
     * end.
     *
     * [out] piDED_RPtRxLev_Full   receive level before the handover
     * [out] piDED_RPtRxQual_Full  receive quality before the handover
     * [in]  iChannel              handover: channel (ARFCN)
     * [in]  iBand                 handover: band, the host library's number
     * [in]  iTSC                  handover: training sequence, 0 to 7
     * [in]  iSlot                 handover: slot, 0 to 7
     * [in]  iMode                 handover: channel mode, the host library's number
     * [in]  iPowerLevel           handover: power level
     * [in]  iLoopbackType         handover: kind of loopback, the host library's number
     * [in]  bInitSession          call: 1 opens the session, any other value does not
     * [in]  iBcchChannel          call: channel of the cell (ARFCN)
     * [in]  iBcchBand             call: its band
     * [in]  iBCCH_TimeOut_ms      call: time limit in milliseconds
     * [in]  iTrafficLoopbackType  traffic channel: kind of loopback
     * [in]  iTrafficSlot          traffic channel: slot, 0 to 7
     * [in]  iTrafficMode          traffic channel: mode
     * [in]  bCloseControl         0 leaves the session open, any other value closes it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Reduced_Signalling_GSM(
        ResourceContext hResourceContext, uint8_t* piDED_RPtRxLev_Full, uint8_t* piDED_RPtRxQual_Full,
        uint16_t iChannel, uint8_t iBand, uint8_t iTSC, uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel,
        uint8_t iLoopbackType, uint8_t bInitSession, uint16_t iBcchChannel, uint8_t iBcchBand,
        uint32_t iBCCH_TimeOut_ms, uint16_t iTrafficLoopbackType, uint8_t iTrafficSlot, uint8_t iTrafficMode,
        uint8_t bCloseControl);

    /*
     * A WCDMA call. The session is opened and stopped again before the state is read and the channel of the arguments
     * is set up.
     *
     * [in]  iChannel               channel (UARFCN) of the pilot
     * [in]  iTimeOut_ms            time limit of the session in milliseconds
     * [out] pWCDMA_BER_State       state, the host library's number
     * [in]  iRMC_Type              kind of the reference measurement channel, the host library's number
     * [in]  iUL_MaxTxPwr           uplink: largest transmit power
     * [in]  iUL_DPCH_ScrCode       uplink: scrambling code
     * [in]  iUL_PCA                uplink: power control algorithm
     * [in]  iUL_TPC_StepSize       uplink: step of the power control
     * [in]  iDL_PriCPICH_Scr_Code  downlink: scrambling code of the pilot
     * [in]  iDL_ChanCode           downlink: channel code
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Reduced_Signalling_WCDMA(
        ResourceContext hResourceContext, uint16_t iChannel, uint32_t iTimeOut_ms, uint8_t* pWCDMA_BER_State,
        uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr, uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
        uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode);

    /*
     * HSDPA: opens a session, configures each channel, reads the state, stops the session. All numbers are the host
     * library's.
     *
     * [in]  iReconfigBitmask            what the reconfiguration touches, a sum of bits
     * [in]  iHS_PDSCH_RadioLink_PCS     HS-PDSCH: scrambling code of the radio link
     * [in]  iNumCodes                   HS-SCCH: number of codes
     * [in]  aiCodes[iNumCodes]          HS-SCCH: the codes, a byte each
     * [in]  iH_RNTI                     HS-DSCH: identity of the phone
     * [in]  iNum_HARQ_Processes         HS-DSCH: number of HARQ processes
     * [in]  bMemPartitionValid          HS-DSCH: 1 if the next argument counts
     * [in, or null] aiMemPartitionInfo[TANDEKOR_HOST_VALUE_SIZE]  HS-DSCH: partition of the memory, as the host has
     *                                   it; at least one byte for each HARQ process
     * [in]  iCPICH_PowerOffset          HS-DPCCH: power offset of the pilot
     * [in]  iCQI_FeedbackCycle          HS-DPCCH: cycle of the channel quality reports
     * [in]  iCQI_RepetitionFactor       HS-DPCCH: their repetition
     * [in]  iDeltaCQI                   HS-DPCCH: their power offset
     * [in]  iDeltaACK                   HS-DPCCH: power offset of ACK
     * [in]  iDeltaNACK                  HS-DPCCH: power offset of NACK
     * [in]  iACK_NACK_RepetitionFactor  HS-DPCCH: repetition of both
     * [out] pHSDPA_BER_State            state, the host library's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Reduced_Signalling_HSDPA(
        ResourceContext hResourceContext, uint8_t iReconfigBitmask, uint16_t iHS_PDSCH_RadioLink_PCS, uint8_t iNumCodes,
        const uint8_t* aiCodes, uint16_t iH_RNTI, uint8_t iNum_HARQ_Processes, uint8_t bMemPartitionValid,
        const void* aiMemPartitionInfo, uint8_t iCPICH_PowerOffset, uint8_t iCQI_FeedbackCycle,
        uint8_t iCQI_RepetitionFactor, uint8_t iDeltaCQI, uint8_t iDeltaACK, uint8_t iDeltaNACK,
        uint8_t iACK_NACK_RepetitionFactor, uint8_t* pHSDPA_BER_State);

    /*
     * EDGE: call, downlink and uplink on one pair of slots, loopback, release, state and receive level.
     *
     * [in]  bInitSession       1 opens the session, any other value does not
     * [in]  iChannel           channel of the cell and of the downlink (ARFCN)
     * [in]  iBand              its band, the host library's number
     * [in]  iBCCH_TimeOut_ms   time limit in milliseconds
     * [in]  iDL_TSC            downlink: training sequence, 0 to 7
     * [in]  iDL_TFI            downlink: temporary flow identity
     * [in]  iReserved7, iReserved8  not read
     * [in]  bFirstSlotActive   whether the first slot is used
     * [in]  iFirstSlotNum      the first slot, 0 to 7
     * [in]  bSecondSlotActive  whether the second slot is used
     * [in]  iSecondSlotNum     the second slot, 0 to 7
     * [in]  iUL_TSC            uplink: training sequence, 0 to 7
     * [in]  iUSF               uplink: state flag
     * [in]  iGamma             uplink: power control
     * [in]  iReserved16, iReserved17, iReserved18, iReserved19  not read
     * [out] pEGPRS_BER_State   state, the host library's number
     * [out] piRxLev_average    average receive level
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Reduced_Signalling_EDGE(
        ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel, uint8_t iBand,
        uint32_t iBCCH_TimeOut_ms, uint8_t iDL_TSC, uint8_t iDL_TFI, uint32_t iReserved7, uint32_t iReserved8,
        uint8_t bFirstSlotActive, uint8_t iFirstSlotNum, uint8_t bSecondSlotActive, uint8_t iSecondSlotNum,
        uint8_t iUL_TSC, uint8_t iUSF, uint8_t iGamma, uint32_t iReserved16, uint32_t iReserved17, uint32_t iReserved18,
        uint32_t iReserved19, uint8_t* pEGPRS_BER_State, uint8_t* piRxLev_average);

    /*
     * Originates a GSM call on the phone's normal call stack and ends it at once.
     *
     * [in] iNumDigits           how many digits
     * [in] aiIMSI[iNumDigits]   the digits, as the host library has them; shown in the log as a text
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_StartCall(ResourceContext hResourceContext, uint8_t iNumDigits,
                                                          const uint8_t* aiIMSI);

    /* --- Network and SIM */

    /*
     * Activates the on-chip virtual SIM of an online phone: service programming code, FTM mode (by a reset if need be),
     * clock, back online, SIM; takes at least 4 and at most 42 seconds of waits. A failed clock is logged and passed
     * over. The log is muted while the phone restarts, and never left muted.
     *
     * [in]  iSPC          service programming code, six digits and a NUL; shown in the log
     * [out] piSPC_Result  as the host library has it; not checked
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Virtual_SIM(ResourceContext hResourceContext, const char* iSPC,
                                                            uint8_t* piSPC_Result);

    /* Sets the phone's clock to Coordinated Universal Time. The host library's time mode is given as 0. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialSetRtcActualTime(ResourceContext hResourceContext);

    /*
     * Stores which network the phone looks for and its last good channel. An unknown network fails, after the items
     * before it were written.
     *
     * [in] eNetwMode     TandekorNetwork to look for
     * [in] eChannelMode  TandekorNetwork of the channel
     * [in] uiChannel     last good channel, which the networks 0 and 5 ignore
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_NetworkAndChannelPreselection(ResourceContext hResourceContext,
                                                                              uint8_t eNetwMode, uint8_t eChannelMode,
                                                                              uint16_t uiChannel);

    /*
     * Roaming list and automatic answer, in the phone's NV items.
     *
     * [in] bRoamingListOn  1 on, any other value off
     * [in] bAutoAnswerOn   1 on, any other value off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_NV_SetRoamingListStatus(ResourceContext hResourceContext,
                                                                        uint8_t bRoamingListOn);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_NVSetAutoAnswerStatus(ResourceContext hResourceContext,
                                                                      uint8_t bAutoAnswerOn);

    /* --- Audio */

    /*
     * Sets the audio path with the microphone's bias.
     *
     * [in] iAudioDevice  the host library's number; TANDEKOR_AUDIO_DEVICE_WITH_BIAS needs a request of its own
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_MicrophoneBiasVoltages(ResourceContext hResourceContext,
                                                                       uint16_t iAudioDevice);

    /*
     * Sets the audio path and switches the loopback of the microphone.
     *
     * [in] iAudioDevice  as above
     * [in] bLoopbackOn   1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AudioTest(ResourceContext hResourceContext, uint16_t iAudioDevice,
                                                          uint8_t bLoopbackOn);

    /*
     * Sets the audio path and volume, starts a tone of two frequencies, and stops it at once.
     *
     * [in] iAudioDevice  as above
     * [in] iVolume       volume, the host library's number
     * [in] iHiFreq       the higher frequency, in Hz
     * [in] iLoFreq       the lower frequency, in Hz
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_TestSpeaker(ResourceContext hResourceContext, uint16_t iAudioDevice,
                                                            uint8_t iVolume, uint16_t iHiFreq, uint16_t iLoFreq);

    /*
     * Captures PCM data for a second and fetches a part of them; then writes an NV item and adjusts the transmit gain
     * of the codec. After a failed fetch the capture goes on. The log shows pBuffer and pItemData as text, up to their
     * first NUL.
     *
     * [in]  iNumBuffers         buffers to capture
     * [in]  iDataOffset         from which byte on to fetch
     * [in]  iDataSize           how many bytes to fetch
     * [out] pBuffer[iDataSize]  the data
     * [in]  iItemID             NV item to write
     * [in]  pItemData[iLength]  its bytes
     * [in]  iLength             how many there are
     * [in]  iReservedWord       not read
     * [in]  iCodecTxGainAdjust  gain, the host library's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_TestMicrophone(ResourceContext hResourceContext, uint16_t iNumBuffers,
                                                               uint32_t iDataOffset, uint16_t iDataSize, void* pBuffer,
                                                               uint16_t iItemID, const uint8_t* pItemData,
                                                               int32_t iLength, uint32_t iReservedWord,
                                                               int16_t iCodecTxGainAdjust);

    /* Clears bit 0 and sets the bits 1 to 3 of the register 0x84001308. Not checked, not logged; fails only if the
     * register cannot be read. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_DIAG_DISABLE_48KHz(ResourceContext hResourceContext);

    /* --- Keypad and display */

    /*
     * Loads one of the key maps into the host library, whose map is emptied first, also for another number.
     *
     * [in] iMappingID  1 to TANDEKOR_LAST_KEY_MAP; which map a phone needs is for the caller to know
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialSetKeypadMapping(ResourceContext hResourceContext,
                                                                        uint8_t iMappingID);

    /*
     * Empties the queue of key events and reads its size and the next event. There is no wait for a key.
     *
     * [out] piKeypressQueueSize  events in the queue just after it was emptied
     * [out] piKeyPressID         key, by the software identifier of the loaded map (its ASCII code for 0 to 9, * and #)
     * [out] piKeyPressEvent      whether the key went down or up, the host library's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_TestKeypad(ResourceContext hResourceContext,
                                                           uint16_t* piKeypressQueueSize, uint16_t* piKeyPressID,
                                                           uint8_t* piKeyPressEvent);

    /*
     * Chooses a display on the models 3, 32 to 36 and 40; other models have display 0 only.
     *
     * [in] uiDsplNum  number of the display, from 0 on
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialSwitchDisplay(ResourceContext hResourceContext,
                                                                     uint8_t uiDsplNum);

    /*
     * Choose a display and show an image file on it.
     *
     * [in] sFileName[TANDEKOR_IMAGE_NAME_SIZE]  path on the phone; all 128 bytes are sent
     * [in] uiDsplNum  number of the display, from 0 on
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_DrawContrastPattern(ResourceContext hResourceContext,
                                                                        const char* sFileName, uint8_t uiDsplNum);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_DrawContrastPattern24Bit(ResourceContext hResourceContext,
                                                                             const char* sFileName, uint8_t uiDsplNum);

    /* --- Bluetooth */

    /*
     * Continuous wave on a channel of the module.
     *
     * [in] iChannel  channel of the module, 0 to 78
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SetCWPowerBluetooth(ResourceContext hResourceContext, uint8_t iChannel);

    /*
     * Starts the module with the phone's stored address.
     *
     * [out] szAddr[TANDEKOR_BT_ADDRESS_TEXT_SIZE]  that address, twelve hexadecimal digits and a NUL
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_BluetoothTestConnect(ResourceContext hResourceContext, char* szAddr);

    /*
     * Identification of the module.
     *
     * [out] pModuleVersion[TANDEKOR_HOST_VALUE_SIZE]  as the host library has it
     * [out] piBtStatus  as of TANDEKOR_FTM_GET_BT_PARAM
     * [out] piBtParam1, piBtParam2, piBtParam3  as of TANDEKOR_FTM_GET_BT_PARAM
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Bluetooth_HW_ID(ResourceContext hResourceContext, void* pModuleVersion,
                                                                uint16_t* piBtStatus, uint8_t* piBtParam1,
                                                                uint8_t* piBtParam2, uint8_t* piBtParam3);

    /* --- Charging and supply
     *
     * Nothing is measured: the caller does that from outside.
     */

    /*
     * Low power mode, charger switch 7, a charger transistor, charger switch 3, charge limits, state of a transistor.
     * After low power mode 3 the phone has to be reset, which the log says, and the further steps are tried all the
     * same.
     *
     * [in]  iLowPowerMode           as of TANDEKOR_FTM_SET_LOW_POWER_MODE
     * [in]  iChargerSwitchCommand7  command to charger switch 7, the host library's number
     * [in]  eChgTransistor          transistor to set, 0 or 1; another fails without a line of its own
     * [in]  bState                  its state: 1 on, 0 off
     * [in]  iChargerSwitchCommand3  command to charger switch 3
     * [in]  iVoltage                limit, 4000 to 4375 in steps of 25, in the unit of the phone's charger
     * [in]  iCurrent                limit, 10 to 300 in steps of 10, in the unit of the phone's charger
     * [in]  eChgTransistorRead      transistor to read: 1; another fails without a line of its own
     * [out] pbState                 1 or 0
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_Charging_Test(ResourceContext hResourceContext, uint8_t iLowPowerMode,
                                                              uint8_t iChargerSwitchCommand7, uint8_t eChgTransistor,
                                                              uint8_t bState, uint8_t iChargerSwitchCommand3,
                                                              uint32_t iVoltage, uint32_t iCurrent,
                                                              uint8_t eChgTransistorRead, uint8_t* pbState);

    /*
     * Supply of a camera with the display's backlight. On the models 12 to 15, 32 to 36 and 40 also the supply mode and
     * the accessory supply; on 22 to 25 the accessory supply; on 52 to 55 neither. Any other model fails without a
     * line.
     *
     * [in] iCameraNum   0 or 1
     * [in] iLevel       level of the backlight, in the phone's steps
     * [in] iSupplyMode  1 or 2 sets its bit, any other value clears it
     * [in] bOnOff       accessory supply: 1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SupplyVoltageTest(ResourceContext hResourceContext, uint8_t iCameraNum,
                                                                  uint8_t iLevel, uint8_t iSupplyMode, uint8_t bOnOff);

    /*
     * Accessory supply on the models 12 to 15, 22 to 25, 32 to 36 and 40; any other fails without a line in the log.
     *
     * [in] bOnOff  1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialSwitchAccSupplyVoltage(ResourceContext hResourceContext,
                                                                              uint8_t bOnOff);

    /* --- Identity and storage */

    /*
     * Reads the IMEI.
     *
     * [out] sImei[TANDEKOR_IMEI_TEXT_SIZE]  15 digits and a NUL; empty if the phone refuses the item, and untouched if
     *                                       the exchange fails
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_NV_READ_IMEI(ResourceContext hResourceContext, char* sImei);

    /*
     * Writes the IMEI and reads it back. A difference leaves the new one in the phone.
     *
     * [in] sImei[15]  15 digits; of each character the low four bits count, and no NUL is needed
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_NV_WRITE_IMEI(ResourceContext hResourceContext, const char* sImei);

    /*
     * Freezes the phone. THIS CANNOT BE UNDONE. Compares IMEI, Bluetooth address and serial number in the form in which
     * the phone stores them; only if all are equal does it write the key, read it back, compare it and lock the device.
     * Each comparison stops after the caller's first zero byte; later bytes are NOT compared. On success the result is
     * the host library's byte of the last command. The steps are logged in words of their own; nothing of the key is.
     *
     * [in] pExpectedImei[TANDEKOR_IMEI_SIZE]            08, then 15 digits as half-bytes, the first over an A: 8A 21
     * [in] pExpectedBtAddress[TANDEKOR_BT_ADDRESS_SIZE] last byte of the address first
     * [in] pExpectedSerial[TANDEKOR_SERIAL_NUMBER_SIZE] as the phone stores it
     * [in] pPublicKey[TANDEKOR_PUBLIC_KEY_SIZE]         the key that is written
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_DIAG_FREEZE_PHONE(ResourceContext hResourceContext,
                                                                  const uint8_t* pExpectedImei,
                                                                  const uint8_t* pExpectedBtAddress,
                                                                  const uint8_t* pExpectedSerial,
                                                                  const uint8_t* pPublicKey);

    /*
     * The identification of the flash.
     *
     * [out] piFlashId  the sixth of the host library's values times 256, plus the seventh
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FlashTest(ResourceContext hResourceContext, uint32_t* piFlashId);

    /* Writes 16 random bytes to the file \Test.bin on the memory card and reads them back. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialMmcTest(ResourceContext hResourceContext);

    /* --- FM radio, tracking byte, uploads */

    /*
     * Sets the audio path, reads the radio chip's identifier, tunes to a channel and reads the radio's information
     * twice.
     *
     * [in]     iAudioDevice  audio device of the path, the host library's number
     * [in,out] iChip_Id      identifier of the chip
     * [in]     iChannel      channel to tune to, in the phone's unit
     * [out]    piStatusWord  as of TANDEKOR_FTM_TUNE_FM_RADIO
     * [out]    pcFmValue     as that of TANDEKOR_SpecialGetFmRadioInfo for TANDEKOR_FM_DATA_BIT_2
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FM_RadioTest(ResourceContext hResourceContext, uint16_t iAudioDevice,
                                                             uint16_t* iChip_Id, uint16_t iChannel,
                                                             uint16_t* piStatusWord, uint8_t* pcFmValue);

    /*
     * Information of the radio chip.
     *
     * [in]  eFmData    TandekorFmData: 0 asks for a number 0 to 15, 1 and 2 for a bit; any other value fails after the
     *                  exchange
     * [out] pcFmValue  the answer, TANDEKOR_FM_DATA_NONE when there is none; not written if the phone does not answer
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SpecialGetFmRadioInfo(ResourceContext hResourceContext, uint8_t eFmData,
                                                                      uint8_t* pcFmValue);

    /*
     * As TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, for the addresses 0 to 127 only.
     *
     * [in]     iOperationType  1 writes, any other value reads
     * [in]     iDataAddress    0 to 127
     * [in,out] pFactoryData    the byte
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_SetFactoryTrackingByte(ResourceContext hResourceContext,
                                                                       uint8_t iOperationType, uint16_t iDataAddress,
                                                                       uint8_t* pFactoryData);

    /* An argument of an upload, the host library's own: a number, or a pointer to a text. As wide as a pointer. */
    typedef uintptr_t TandekorUploadArgument;

    /*
     * Uploads of the host library, which it has only in its QPST mode. The result is the host library's byte. Progress
     * goes to the function that TANDEKOR_SetCallback has set, with percentages only for an upload whose total is above
     * 2000. Status and percentage are kept from one upload to the next, so the first status of an upload comes with the
     * last percentage of the one before. Nothing checks that the phone answers.
     *
     * [in] a1, a2, a3, a4, a5, a6, a7, a8, a9, a10, a11, a12  arguments of the host library, passed on as they are
     * [in] a13, a14, a15, a16, a17, a18, a19, a20, a21, a22, a23  arguments of the host library, passed on as they are
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_UploadCEFS_File2(ResourceContext hResourceContext,
                                                                 TandekorUploadArgument a1, TandekorUploadArgument a2,
                                                                 TandekorUploadArgument a3);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_UploadCEFS_File(ResourceContext hResourceContext,
                                                                TandekorUploadArgument a1, TandekorUploadArgument a2);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_UploadMultiImage(
        ResourceContext hResourceContext, TandekorUploadArgument a1, TandekorUploadArgument a2,
        TandekorUploadArgument a3, TandekorUploadArgument a4, TandekorUploadArgument a5, TandekorUploadArgument a6,
        TandekorUploadArgument a7, TandekorUploadArgument a8, TandekorUploadArgument a9, TandekorUploadArgument a10,
        TandekorUploadArgument a11, TandekorUploadArgument a12, TandekorUploadArgument a13, TandekorUploadArgument a14,
        TandekorUploadArgument a15, TandekorUploadArgument a16, TandekorUploadArgument a17, TandekorUploadArgument a18,
        TandekorUploadArgument a19, TandekorUploadArgument a20, TandekorUploadArgument a21, TandekorUploadArgument a22,
        TandekorUploadArgument a23);

#ifdef __cplusplus
}
#endif

#endif
