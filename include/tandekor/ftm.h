/*
 * The phone maker's factory requests. The phone has to be in FTM mode.
 *
 * Each function sends one request (a few send two) and waits up to 3 seconds for the reply unless it says more. A
 * missing reply and a status word other than 0 return 0; for most functions the log tells them apart: "SendSync() fail
 * (error code = ...)" or "error code = ...". Out-values are written before the status word is checked, so they may have
 * changed although the result is 0. A reply too short for a value leaves that value unchanged, unless a function says
 * more, and one too short for a status word counts as success. Replies are not checked for the request that they
 * answer. An error code is the first byte that arrived; after a missing reply with no byte it is 187.
 *
 *     uint16_t id = 0;
 *     if (TANDEKOR_FTM_GET_NAND_FLASH_ID(phone, &id) == 0)
 *         ...                                           no reply or a refusal: the log says which
 */
#ifndef TANDEKOR_FTM_H
#define TANDEKOR_FTM_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* Bits of the word of TANDEKOR_FTM_GET_HARDWARE_VERSION: shift and mask of the chip's version. */
    enum TandekorHardwareVersion
    {
        TANDEKOR_HARDWARE_VERSION_SHIFT = 12,
        TANDEKOR_HARDWARE_VERSION_MASK = 65535
    };

    /* Sizes of buffers, and limits. */
    enum TandekorFtmSize
    {
        TANDEKOR_FTM_FILE_NAME_SIZE = 128,
        TANDEKOR_FTM_IMSI_SIZE = 9,
        TANDEKOR_FTM_KC_FILE_SIZE = 9,
        TANDEKOR_FTM_CAMERA_ID_SIZE = 25, /* no NUL */
        TANDEKOR_FTM_SCAN_ENTRIES = 48,
        TANDEKOR_FTM_PROGRAM_TEXT_SIZE = 96,
        TANDEKOR_FTM_LINEARIZER_ENTRIES = 174,
        TANDEKOR_FTM_LONGEST_FILE_WRITE = 3953
    };

    /* --- Identification */

    /*
     * The word of the hardware version.
     *
     * [out] piHardwareVersion  the chip's version stands in its bits 12 to 27
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_HARDWARE_VERSION(ResourceContext hResourceContext,
                                                                         uint32_t* piHardwareVersion);

    /*
     * The identifier of the hardware variant.
     *
     * [out] piHwId  8 without a request for a phone whose build text holds "DraK2F"
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_HW_ID(ResourceContext hResourceContext, uint16_t* piHwId);

    /*
     * The identifier of the NAND flash.
     *
     * [out] piNandFlashId  as the phone reports it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_NAND_FLASH_ID(ResourceContext hResourceContext,
                                                                      uint16_t* piNandFlashId);

    /*
     * The version of the fuel gauge. A phone that refuses the request by its status word is asked once more in another
     * form; the version of the last reply counts. A missing reply is not logged.
     *
     * [out] piFuelGaugeVersion  as the phone reports it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION(ResourceContext hResourceContext,
                                                                           uint8_t* piFuelGaugeVersion);

    /*
     * The parameters of the Bluetooth module.
     *
     * [out] piBtStatus  status word, 0 for success
     * [out] piBtParam1, piBtParam2, piBtParam3  parameters of the module, as the phone reports them
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_BT_PARAM(ResourceContext hResourceContext, uint16_t* piBtStatus,
                                                                 uint8_t* piBtParam1, uint8_t* piBtParam2,
                                                                 uint8_t* piBtParam3);

    /* --- Switches and supporting circuits */

    /*
     * Sets a hardware switch.
     *
     * [in] iSwitchID     number of the switch; 1 chooses the camera
     * [in] iSwitchState  its state, the phone's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_CONFIGURE_SWITCH(ResourceContext hResourceContext,
                                                                     uint8_t iSwitchID, uint8_t iSwitchState);

    /*
     * Sets the low power mode. In mode 3 the phone stops answering: 20 ms of silence is success, any answer is failure,
     * and the phone has to be reset afterwards.
     *
     * [in] iLowPowerMode  the phone's number of the mode
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SET_LOW_POWER_MODE(ResourceContext hResourceContext,
                                                                       uint8_t iLowPowerMode);

    /*
     * Sets the power management circuit to its USB or UART mode.
     *
     * [in] iUSB_UART_Mode  the phone's number of the mode
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TEST_FTM_PMIC_USB(ResourceContext hResourceContext,
                                                                      uint8_t iUSB_UART_Mode);

    /*
     * Switches the infrared LED.
     *
     * [in] iTurnLED_On  1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_IRDA_ON_OFF(ResourceContext hResourceContext, uint8_t iTurnLED_On);

    /*
     * Drives the infrared LED with high current, and waits for the reply that much longer. Of the reply only the
     * arrival counts.
     *
     * [out] piErrorCode     0, or after a missing reply the error code of the log
     * [in]  iIrdaLength_ms  how long, in milliseconds
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(ResourceContext hResourceContext,
                                                                           uint16_t* piErrorCode,
                                                                           uint16_t iIrdaLength_ms);

    /*
     * Sends a byte by infrared and asks what was received, in two requests. No status is checked.
     *
     * [in]  iIrdaTestByte      the byte
     * [in]  iIrdaReservedWord  not read
     * [out] piIrdaResult1      the first of the last two double words of the second reply
     * [out] piIrdaResult2      the second
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TEST_IRDA_TX_RX(ResourceContext hResourceContext,
                                                                    uint8_t iIrdaTestByte, uint32_t iIrdaReservedWord,
                                                                    uint32_t* piIrdaResult1, uint32_t* piIrdaResult2);

    /*
     * Starts the A-GPS carrier-to-noise measurement.
     *
     * [out] piStatusWord  for the caller to judge (0 is success): it does not affect the result
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_START_AGPS_CTON_MEAS(ResourceContext hResourceContext,
                                                                         uint16_t* piStatusWord);

    /*
     * Fetches the result of the A-GPS carrier-to-noise measurement; no status is checked.
     *
     * [out] piCtoNValue  carrier-to-noise ratio in the phone's unit
     * [out] piErrorCode  0, or after a missing reply the error code of the log
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_AGPS_CTON_MEAS(ResourceContext hResourceContext,
                                                                       uint16_t* piCtoNValue, uint16_t* piErrorCode);

    /*
     * Starts the real-time clock. The time that the phone answers is shown in the log only.
     *
     * [in,out] bStatus  sent with the request; then the phone's status, which decides (0 is success). A reply that is
     *                   too short for it leaves it unchanged, and then the value sent decides
     * [in]     iTime    time to start with, in the phone's unit
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_RTC_START(ResourceContext hResourceContext, uint8_t* bStatus,
                                                              uint16_t iTime);

    /*
     * Switches the oscillator of the real-time clock.
     *
     * [in,out] bStatus  as of TANDEKOR_FTM_RTC_START
     * [in]     bSwitch  1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_RTC_OSC_CTRL(ResourceContext hResourceContext, uint8_t* bStatus,
                                                                 uint8_t bSwitch);

    /*
     * Switches the tracer. Of the reply only the arrival counts.
     *
     * [in] bStatus  sent as it is
     * [in] bSwitch  1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TRACER_CONTROL(ResourceContext hResourceContext, uint8_t bStatus,
                                                                   uint8_t bSwitch);

    /* --- Pins of the phone
     *
     * The status is the reply's last byte, and the other out-values are written only if it is 0. An empty reply leaves
     * *iStatus unchanged, and that value then decides the result: set it to non-zero before the call.
     *
     * [in]     iGPIONum  number of the pin
     * [in,out] iStatus   0 for success
     */

    /*
     * Read the output level, the input level and the output enable of a pin.
     *
     * [out] iValue  0 or 1
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_GET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                             uint8_t* iValue, uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_GET_IN(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                            uint8_t* iValue, uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_GET_OE(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                            uint8_t* iValue, uint8_t* iStatus);

    /*
     * Set the output level and the output enable of a pin.
     *
     * [in] iValue  0 or 1
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_SET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                             uint8_t iValue, uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_SET_OE(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                            uint8_t iValue, uint8_t* iStatus);

    /*
     * Reads the configuration of a pin.
     *
     * [out] iSelect  function, the phone's number
     * [out] iPullUD  pull up or down, the phone's number
     * [out] iPullEn  whether the pull is enabled
     * [out] iDir     direction, the phone's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_GET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                             uint8_t* iSelect, uint8_t* iPullUD, uint8_t* iPullEn,
                                                             uint8_t* iDir, uint8_t* iStatus);

    /*
     * Sets the configuration of a pin.
     *
     * [in] iSelect  function, the phone's number
     * [in] iPullUD  pull up or down, the phone's number
     * [in] iPullEn  whether the pull is enabled
     * [in] iDir     direction, the phone's number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GPIO_SET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum,
                                                             uint8_t iSelect, uint8_t iPullUD, uint8_t iPullEn,
                                                             uint8_t iDir, uint8_t* iStatus);

    /* --- I2C, ADC, fuel gauge, headset amplifier */

    /*
     * Read or write a register of an I2C device. A read whose reply is shorter than its data and ten bytes fails.
     * TANDEKOR_FTM_I2C_DATA_ACCESS2 also passes a selector on, which the first sends as 0.
     *
     * [in]     iI2C_AccessType  TandekorAccess; other access types send no data and expect none
     * [in]     iI2C_Selector    sent as it is; the phone maker's
     * [in]     iI2C_SlaveAddr   address of the device, 7 bits
     * [in]     iI2C_RegAddrLen  bytes of the register's address, 0 for none
     * [in]     iI2C_RegAddr     address of the register
     * [in]     iI2C_DataLen     bytes to read or write
     * [in,out, or null] piI2C_Data[iI2C_DataLen]  written by a read, sent by a write. Its first byte is shown before
     *                           the call, so it holds at least one byte, or is null when there are no data
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_I2C_DATA_ACCESS(ResourceContext hResourceContext,
                                                                    uint8_t iI2C_AccessType, uint8_t iI2C_SlaveAddr,
                                                                    uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr,
                                                                    uint8_t iI2C_DataLen, uint8_t* piI2C_Data);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_I2C_DATA_ACCESS2(ResourceContext hResourceContext,
                                                                     uint8_t iI2C_AccessType, uint8_t iI2C_Selector,
                                                                     uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen,
                                                                     uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen,
                                                                     uint8_t* piI2C_Data);

    /*
     * Reads an ADC channel several times.
     *
     * [in]  iADC_Channel  the phone's number of the channel
     * [in]  iReadCount    how many readings
     * [out] iADC_Sum      their sum
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_MGET_ADC_VAL(ResourceContext hResourceContext,
                                                                 uint16_t iADC_Channel, uint16_t iReadCount,
                                                                 uint32_t* iADC_Sum);

    /*
     * Reads a register of the fuel gauge. Both values are sent with the request, and written also when the status is
     * not 0.
     *
     * [in]     eNum     number of the register
     * [in,out] sStatus  the phone's status, 0 for success; a reply too short for it leaves it unchanged, and then the
     *                   value sent decides
     * [in,out] iValue   content of the register
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GG_READ_REG(ResourceContext hResourceContext, uint8_t eNum,
                                                                uint8_t* sStatus, uint16_t* iValue);

    /*
     * Switches the fuel gauge. The phone has to repeat the value.
     *
     * [in] iSwitch  1 on, 0 off
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GG_MODE(ResourceContext hResourceContext, const uint8_t* iSwitch);

    /*
     * Requests to the headset amplifier. The reply is not unpacked: the read returns no value. The result is the host
     * library's byte.
     *
     * [in] iHeadsetReg  the word that is sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_HEADSET_AMP_READ(ResourceContext hResourceContext,
                                                                     const uint32_t* iHeadsetReg);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_HEADSET_AMP_WRITE(ResourceContext hResourceContext,
                                                                      const uint32_t* iHeadsetReg);

    /* --- SIM, memory card, factory data, RF items */

    /*
     * The IMSI as the SIM stores it.
     *
     * [in,out] iIMSI_number[TANDEKOR_FTM_IMSI_SIZE]  shown in the log, then written
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SIM_READ_IMSI(ResourceContext hResourceContext,
                                                                  uint8_t* iIMSI_number);

    /*
     * The mode of the SIM; no status is checked.
     *
     * [in,out] SIM_MODE  shown in the log; then the low byte of the reply's last word, 0 for a reply without one
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SIM_GET_MODE(ResourceContext hResourceContext, uint8_t* SIM_MODE);

    /*
     * Read and write the Kc file of the SIM.
     *
     * [in,out] KC_File[TANDEKOR_FTM_KC_FILE_SIZE]  shown in the log as text and sent by the write; then, also after a
     *                   write, what the reply holds
     * [in,out] Status   shown in the log; then the phone's status, 0 for success. A reply that is too short for it
     *                   leaves it unchanged, and then the caller's value decides
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SIM_READ_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File,
                                                                     uint8_t* Status);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SIM_WRITE_KC_FILE(ResourceContext hResourceContext,
                                                                      uint8_t* KC_File, uint8_t* Status);

    /*
     * Reads or writes a file on the memory card.
     *
     * [in]     iAccessType      TandekorAccess; other access types send and read no data
     * [in]     iMMC_DataLength  bytes to read or write. A write of more than TANDEKOR_FTM_LONGEST_FILE_WRITE is refused
     *                           and nothing is sent. A read of more than the reply holds leaves pData unchanged; the
     *                           status is then taken from the reply's end
     * [in]     psFileName       path on the card, as in "\Test.bin", of which the first 128 characters are sent
     * [in,out] pData[iMMC_DataLength]  written by a read, sent by a write
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_MMC_FILE_ACCESS(ResourceContext hResourceContext,
                                                                    uint8_t iAccessType, uint16_t iMMC_DataLength,
                                                                    const char* psFileName, uint8_t* pData);

    /*
     * Writes or reads a byte of the factory data.
     *
     * [in]     iOperationType  1 writes, any other value reads
     * [in]     iDataAddress    address of the byte
     * [in,out] pData           the byte
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(ResourceContext hResourceContext,
                                                                            uint8_t iOperationType,
                                                                            uint16_t iDataAddress, uint8_t* pData);

    /*
     * Loads the RF calibration items.
     *
     * [out] piStatusWord  the phone's status, 0 for success
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_LOAD_RF_NV(ResourceContext hResourceContext,
                                                               uint16_t* piStatusWord);

    /*
     * Writes the GSM transmit linearizer of a band.
     *
     * [in] iGSM_Band  the phone's number of the band
     * [in] iGSM_DACvsPower[TANDEKOR_FTM_LINEARIZER_ENTRIES]  DAC values, sent in this order
     * [in] iDelay_ms  how long to wait for the reply, in milliseconds
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER(ResourceContext hResourceContext,
                                                                            uint8_t iGSM_Band,
                                                                            const uint16_t* iGSM_DACvsPower,
                                                                            uint16_t iDelay_ms);

    /*
     * Always fails: nothing is sent.
     *
     * [in] i1, i2, i3, i4, i5, i6, i7, i8, i9, i10, i11, i12, i13, i14, i15  not read
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_WRITE_WCDMA_RF_CAL(ResourceContext hResourceContext, uint32_t i1,
                                                                       uint32_t i2, uint32_t i3, uint32_t i4,
                                                                       uint32_t i5, uint32_t i6, uint32_t i7,
                                                                       uint32_t i8, uint32_t i9, uint32_t i10,
                                                                       uint32_t i11, uint32_t i12, uint32_t i13,
                                                                       uint32_t i14, uint32_t i15);

    /* --- FM radio */

    /*
     * The identifier of the radio chip.
     *
     * [in,out] iChip_Id  shown in the log, then written
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GET_FM_RADIO_ID(ResourceContext hResourceContext,
                                                                    uint16_t* iChip_Id);

    /*
     * Tunes the radio.
     *
     * [in]  iChannel      channel, in the phone's unit
     * [out] piStatusWord  the last word of whatever arrived, also after a missing reply (if nothing did it is unchanged
     *                     or 48059); 0 and 3 are success
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TUNE_FM_RADIO(ResourceContext hResourceContext, uint16_t iChannel,
                                                                  uint16_t* piStatusWord);

    /*
     * Tests the reception of radio data.
     *
     * [out] piStatusWord  the phone's status, 0 for success
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_RM_RADIO_RDS_TEST(ResourceContext hResourceContext,
                                                                      uint16_t* piStatusWord);

    /*
     * Scans for stations, up to 20 seconds. All values are written whatever the status is, the list only if it is
     * valid; a reply shorter than 111 bytes reads as zeros.
     *
     * [out] piFmStatus     0 for success
     * [out] piFmScanValid  1 if the list is written
     * [out] piFmScanCount  entries of the list, at most 48
     * [out] piFmScanList[TANDEKOR_FTM_SCAN_ENTRIES]  frequencies, in the phone's unit
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF(ResourceContext hResourceContext,
                                                                         uint8_t* piFmStatus, uint8_t* piFmScanValid,
                                                                         uint8_t* piFmScanCount,
                                                                         uint16_t* piFmScanList);

    /*
     * Asks about the station, up to 20 seconds. All values are written whatever the status is; a reply shorter than 111
     * bytes reads as zeros. The numbered fields are the phone's, in the order of its reply.
     *
     * [out] piFmStatus  0 for success
     * [out] piStationField1, piStationField2, piStationField3, piStationField4, piStationField5  as the phone has them
     * [out] piStationField6, piStationField7, piStationField8, piStationField9, piStationField10  as the phone has them
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO(
        ResourceContext hResourceContext, uint8_t* piFmStatus, uint8_t* piStationField1, uint16_t* piStationField2,
        uint8_t* piStationField3, uint8_t* piStationField4, uint16_t* piStationField5, uint8_t* piStationField6,
        uint8_t* piStationField7, uint8_t* piStationField8, uint8_t* piStationField9, uint16_t* piStationField10);

    /*
     * Asks about the program, up to 20 seconds. All values are written whatever the status is; a reply shorter than 111
     * bytes reads as zeros.
     *
     * [out] piFmStatus  0 for success
     * [out] piProgramField1, piProgramField2, piProgramField3, piProgramField4  as the phone has them
     * [out] psProgramText[TANDEKOR_FTM_PROGRAM_TEXT_SIZE]  text of the program, always with a NUL
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO(
        ResourceContext hResourceContext, uint8_t* piFmStatus, uint16_t* piProgramField1, uint8_t* piProgramField2,
        char* psProgramText, uint8_t* piProgramField3, uint8_t* piProgramField4);

    /* --- Display, backlights, slider, camera */

    /*
     * Show an image file of the phone.
     *
     * [in] sFileName[TANDEKOR_FTM_FILE_NAME_SIZE]  path on the phone; all 128 bytes are sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_DISPLAY_IMAGE(ResourceContext hResourceContext,
                                                                  const char* sFileName);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(ResourceContext hResourceContext,
                                                                        const char* sFileName);

    /*
     * Level and switch of the display's backlight, and the display's contrast.
     *
     * [in] iLevel             level, in the phone's steps
     * [in] iSwitchLcdOn       1 on, 0 off
     * [in] iLcdContrastLevel  contrast, in the phone's steps
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(ResourceContext hResourceContext,
                                                                            uint8_t iLevel);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(ResourceContext hResourceContext,
                                                                         uint8_t iSwitchLcdOn);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SET_LCD_CONTRAST(ResourceContext hResourceContext,
                                                                     uint8_t iLcdContrastLevel);

    /*
     * Switches the light of a keypad row, after asking for the phone model. On model 3 the rows 5 and 7 go to
     * TANDEKOR_FTM_SetKeyPadBackLightGPIO, and another row is also remarked on standard output.
     *
     * [in] rowNumber    1 to 7
     * [in] backLightOn  1 on, 0 off; another value is refused, unless it is passed on
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SetKeyPadBackLight(ResourceContext hResourceContext,
                                                                       uint16_t rowNumber, uint8_t backLightOn);

    /*
     * The state of the slider, from the word that the phone answers: for model 3 the word 0 is state 1 and any other 0;
     * for model 52 the words 3, 1 and 0 are 1, 2 and 0; for 53 to 55 the words 1, 2 and 3 are 1, 0 and 2; any other
     * word of 52 to 55 is 3, not known. Which of 0 to 2 is open, closed or between is the phone maker's. After a
     * missing reply the state is that of the word 0, although the result is 0; a reply that is too short counts as the
     * word 0.
     *
     * [out] sState           see above; unchanged on any other model, with the result 0
     * [in]  iPhoneModelHint  52 to 55 is taken for the model; any other value asks the phone
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GetSliderState(ResourceContext hResourceContext, uint8_t* sState,
                                                                   uint8_t iPhoneModelHint);

    /*
     * Fires the camera's flash; of the reply only the arrival counts.
     *
     * [in]  iFlashByte1, iFlashByte2  sent as they are; the phone maker's
     * [out] piErrorCode  0, or after a missing reply the error code of the log
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_TEST_CAMERA_FLASH(ResourceContext hResourceContext,
                                                                      uint8_t iFlashByte1, uint8_t iFlashByte2,
                                                                      uint16_t* piErrorCode);

    /*
     * Level of the flash light.
     *
     * [in] iLevel  in the phone's steps
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(ResourceContext hResourceContext,
                                                                          uint16_t iLevel);

    /*
     * Focus of the camera.
     *
     * [in] focusLevel  1 to 255; 0 is refused and nothing is sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(ResourceContext hResourceContext,
                                                                         uint8_t focusLevel);

    /*
     * The identification of the camera, by an FTM or an LTM request. A reply shorter than 25 bytes leaves the text
     * unchanged: clear it before the call.
     *
     * [in,out] sId[TANDEKOR_FTM_CAMERA_ID_SIZE]  no NUL; a first byte of 0xCC is a failure
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_FTM_GetCameraIDString(ResourceContext hResourceContext, char* sId);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_LTM_GetCameraIdString(ResourceContext hResourceContext, char* sId);

#ifdef __cplusplus
}
#endif

#endif
