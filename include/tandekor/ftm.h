/*
 * The phone maker's factory requests.
 *
 * Each function sends one request (a few send two) and waits up to 3 seconds for the reply unless it says more. A
 * missing reply and a status word other than 0 give 0; for most functions the log tells them apart: "SendSync() fail
 * (error code = ...)" or "error code = ...". Out-values are written before the status word is looked at, so they may
 * have changed although the result is 0. A reply too short for a value leaves that value alone, and one too short for a
 * status word counts as success. Replies are not checked for the request that they answer.
 */
#ifndef TANDEKOR_FTM_H
#define TANDEKOR_FTM_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* --- Identification */

    /* The word of the hardware version; the chip's version stands in its bits 12 to 27. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_HARDWARE_VERSION(ResourceContext hResourceContext,
                                                           uint32_t* piHardwareVersion);

    /* The identifier of the hardware variant. 8 without a request for a phone whose build text holds "DraK2F". */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_HW_ID(ResourceContext hResourceContext, uint16_t* piHwId);

    /* The identifier of the NAND flash. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_NAND_FLASH_ID(ResourceContext hResourceContext, uint16_t* piNandFlashId);

    /*
     * The version of the fuel gauge. A phone that refuses the request by its status word is asked once more in another
     * form; the version of the last reply counts. A missing reply is not logged.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION(ResourceContext hResourceContext,
                                                             uint8_t* piFuelGaugeVersion);

    /* Status word and three parameter bytes of the Bluetooth module. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_BT_PARAM(ResourceContext hResourceContext, uint16_t* piBtStatus,
                                                   uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3);

    /* --- Switches and supporting circuits */

    /* Sets the hardware switch iSwitchID to iSwitchState. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_CONFIGURE_SWITCH(ResourceContext hResourceContext, uint8_t iSwitchID,
                                                       uint8_t iSwitchState);

    /*
     * Sets the low power mode. In mode 3 the phone can answer no more: there silence for 20 ms is success, an answer
     * is failure, and the phone has to be reset afterwards.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SET_LOW_POWER_MODE(ResourceContext hResourceContext, uint8_t iLowPowerMode);

    /* Sets the power management circuit to its USB or UART mode. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TEST_FTM_PMIC_USB(ResourceContext hResourceContext, uint8_t iUSB_UART_Mode);

    /* Switches the infrared LED on (1) or off (0). */
    TANDEKOR_API uint8_t TANDEKOR_FTM_IRDA_ON_OFF(ResourceContext hResourceContext, uint8_t iTurnLED_On);

    /*
     * Drives the infrared LED with high current for iIrdaLength_ms milliseconds and waits that much longer for the
     * reply, of which only the arrival counts. *piErrorCode: out, 0, or after a missing reply the error code of the
     * log.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(ResourceContext hResourceContext, uint16_t* piErrorCode,
                                                             uint16_t iIrdaLength_ms);

    /*
     * Sends iIrdaTestByte by infrared and asks what was received, in two requests. iIrdaReservedWord is not read. The
     * two result words are the last eight bytes of the second reply; no status is looked at.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TEST_IRDA_TX_RX(ResourceContext hResourceContext, uint8_t iIrdaTestByte,
                                                      uint32_t iIrdaReservedWord, uint32_t* piIrdaResult1,
                                                      uint32_t* piIrdaResult2);

    /* Starts the A-GPS carrier-to-noise measurement. The caller judges *piStatusWord: it does not affect the result. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_START_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piStatusWord);

    /*
     * Fetches the result of the A-GPS carrier-to-noise measurement; no status is looked at. *piErrorCode: out, 0, or
     * after a missing reply the error code of the log.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piCtoNValue,
                                                         uint16_t* piErrorCode);

    /*
     * Starts the real-time clock with the time iTime. *bStatus: in, sent with the request; out, the phone's status,
     * which decides (0 is success); a reply that is too short for it leaves it alone, and then the value sent
     * decides. The time that the phone answers is shown in the log only.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_RTC_START(ResourceContext hResourceContext, uint8_t* bStatus, uint16_t iTime);

    /* Switches the oscillator of the real-time clock. *bStatus as in TANDEKOR_FTM_RTC_START. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_RTC_OSC_CTRL(ResourceContext hResourceContext, uint8_t* bStatus, uint8_t bSwitch);

    /* Switches the tracer. Both values are sent; of the reply only the arrival counts. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TRACER_CONTROL(ResourceContext hResourceContext, uint8_t bStatus,
                                                     uint8_t bSwitch);

    /* --- Pins of the phone. In these the status is the reply's last byte (*iStatus, out; 0 is success), and the other
     * out-values are written only if it is 0. A reply without a byte leaves *iStatus alone, which then decides. */

    /* Output level, input level and output enable of the pin iGPIONum. */
    TANDEKOR_API uint8_t TANDEKOR_GPIO_GET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue,
                                               uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_GPIO_SET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue,
                                               uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_GPIO_GET_IN(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue,
                                              uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_GPIO_GET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue,
                                              uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_GPIO_SET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue,
                                              uint8_t* iStatus);

    /* Configuration of a pin: function, pull up or down, pull enable, direction. */
    TANDEKOR_API uint8_t TANDEKOR_GPIO_GET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iSelect,
                                               uint8_t* iPullUD, uint8_t* iPullEn, uint8_t* iDir, uint8_t* iStatus);
    TANDEKOR_API uint8_t TANDEKOR_GPIO_SET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iSelect,
                                               uint8_t iPullUD, uint8_t iPullEn, uint8_t iDir, uint8_t* iStatus);

    /* --- I2C, ADC, fuel gauge, headset amplifier */

    /*
     * Reads from (iI2C_AccessType 0) or writes to (1) a register of an I2C device; other access types send no data and
     * expect none. iI2C_RegAddrLen: bytes of the register address, 0 for none. piI2C_Data: iI2C_DataLen bytes, out for
     * a read, in for a write; its first byte is shown in the log before the call, so it must hold at least one byte, or
     * be null when there are no data. A read whose reply is shorter than its data and ten bytes fails.
     * TANDEKOR_FTM_I2C_DATA_ACCESS2 also passes a selector on, which the first sends as 0.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS(ResourceContext hResourceContext, uint8_t iI2C_AccessType,
                                                      uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen,
                                                      uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen, uint8_t* piI2C_Data);
    TANDEKOR_API uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS2(ResourceContext hResourceContext, uint8_t iI2C_AccessType,
                                                       uint8_t iI2C_Selector, uint8_t iI2C_SlaveAddr,
                                                       uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr,
                                                       uint8_t iI2C_DataLen, uint8_t* piI2C_Data);

    /* The sum of iReadCount readings of an ADC channel. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_MGET_ADC_VAL(ResourceContext hResourceContext, uint16_t iADC_Channel,
                                                   uint16_t iReadCount, uint32_t* iADC_Sum);

    /*
     * Reads the fuel gauge register eNum. *sStatus and *iValue: in, sent with the request; out, the phone's status (0
     * is success) and value, both written also when the status is not 0; a reply too short for the status leaves it
     * alone, and then the value sent decides.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GG_READ_REG(ResourceContext hResourceContext, uint8_t eNum, uint8_t* sStatus,
                                                  uint16_t* iValue);

    /* Switches the fuel gauge. *iSwitch: in only. The phone has to repeat the value. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GG_MODE(ResourceContext hResourceContext, uint8_t* iSwitch);

    /*
     * Requests to the headset amplifier with the word *iHeadsetReg, in only. The reply is not unpacked: the read hands
     * nothing out. The result is the host library's byte.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_HEADSET_AMP_READ(ResourceContext hResourceContext, uint32_t* iHeadsetReg);
    TANDEKOR_API uint8_t TANDEKOR_FTM_HEADSET_AMP_WRITE(ResourceContext hResourceContext, uint32_t* iHeadsetReg);

    /* --- SIM, memory card, factory data, RF items */

    /* The IMSI as the SIM stores it. iIMSI_number: in (shown in the log) and out, 9 bytes. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SIM_READ_IMSI(ResourceContext hResourceContext, uint8_t* iIMSI_number);

    /* The mode of the SIM, the low byte of the reply's last word, 0 for a reply without one; no status is looked at. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SIM_GET_MODE(ResourceContext hResourceContext, uint8_t* SIM_MODE);

    /*
     * Read and write the Kc file of the SIM. KC_File: 9 bytes; also after a write it holds what the reply holds.
     * *Status: in (shown in the log) and out, the phone's status, 0 for success; a reply that is too short for it
     * leaves it alone, and then the caller's value decides.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SIM_READ_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File,
                                                       uint8_t* Status);
    TANDEKOR_API uint8_t TANDEKOR_FTM_SIM_WRITE_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File,
                                                        uint8_t* Status);

    /*
     * Reads (iAccessType 0) or writes (1) a file on the memory card; other access types send and read no data.
     * psFileName: text, of which the first 128 characters are sent. pData: iMMC_DataLength bytes, out for a read, in
     * for a write. A write of more than 3953 bytes is refused and nothing is sent. A read of more than the reply holds
     * leaves pData alone; the status is then taken from the reply's end.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_MMC_FILE_ACCESS(ResourceContext hResourceContext, uint8_t iAccessType,
                                                      uint16_t iMMC_DataLength, const char* psFileName, uint8_t* pData);

    /* Writes (iOperationType 1) or reads (any other) the byte *pData of the factory data at iDataAddress. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(ResourceContext hResourceContext, uint8_t iOperationType,
                                                              uint16_t iDataAddress, uint8_t* pData);

    /* Loads the RF calibration items. *piStatusWord: out, the phone's status. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_LOAD_RF_NV(ResourceContext hResourceContext, uint16_t* piStatusWord);

    /* Writes the GSM transmit linearizer of a band: 174 DAC values. Waits up to iDelay_ms milliseconds for the reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER(ResourceContext hResourceContext, uint8_t iGSM_Band,
                                                              const uint16_t* iGSM_DACvsPower, uint16_t iDelay_ms);

    /* Always fails: the arguments are not read, and nothing is sent. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_WRITE_WCDMA_RF_CAL(ResourceContext hResourceContext, uint32_t i1, uint32_t i2,
                                                         uint32_t i3, uint32_t i4, uint32_t i5, uint32_t i6,
                                                         uint32_t i7, uint32_t i8, uint32_t i9, uint32_t i10,
                                                         uint32_t i11, uint32_t i12, uint32_t i13, uint32_t i14,
                                                         uint32_t i15);

    /* --- FM radio */

    /* The identifier of the radio chip; the value before the call is shown in the log. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GET_FM_RADIO_ID(ResourceContext hResourceContext, uint16_t* iChip_Id);

    /* Tunes the radio. *piStatusWord: out, the last word of whatever arrived, also after a missing reply; 0 and 3 are
     * success. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TUNE_FM_RADIO(ResourceContext hResourceContext, uint16_t iChannel,
                                                    uint16_t* piStatusWord);

    /* Tests the reception of radio data. *piStatusWord: out, the phone's status. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_RM_RADIO_RDS_TEST(ResourceContext hResourceContext, uint16_t* piStatusWord);

    /*
     * These three wait up to 20 seconds, and write all their values whatever *piFmStatus is (0 is success); a reply
     * shorter than 111 bytes reads as zeros.
     * The scan: *piFmScanValid 1 if the list is written, *piFmScanCount its entries, at most 48; piFmScanList: out, 48
     * entries. The program text: psProgramText, out, 96 bytes, always with a NUL. The numbered fields are the phone's.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                                           uint8_t* piFmScanValid, uint8_t* piFmScanCount,
                                                           uint16_t* piFmScanList);
    TANDEKOR_API uint8_t TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                                                uint8_t* piStationField1, uint16_t* piStationField2,
                                                                uint8_t* piStationField3, uint8_t* piStationField4,
                                                                uint16_t* piStationField5, uint8_t* piStationField6,
                                                                uint8_t* piStationField7, uint8_t* piStationField8,
                                                                uint8_t* piStationField9, uint16_t* piStationField10);
    TANDEKOR_API uint8_t TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                                                uint16_t* piProgramField1, uint8_t* piProgramField2,
                                                                char* psProgramText, uint8_t* piProgramField3,
                                                                uint8_t* piProgramField4);

    /* --- Display, backlights, slider, camera */

    /* Show an image file of the phone. sFileName: a buffer of 128 bytes, all of which are sent. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_DISPLAY_IMAGE(ResourceContext hResourceContext, char* sFileName);
    TANDEKOR_API uint8_t TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(ResourceContext hResourceContext, char* sFileName);

    /* Level and switch of the display's backlight, and the display's contrast. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(ResourceContext hResourceContext, uint8_t iLevel);
    TANDEKOR_API uint8_t TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(ResourceContext hResourceContext, uint8_t iSwitchLcdOn);
    TANDEKOR_API uint8_t TANDEKOR_FTM_SET_LCD_CONTRAST(ResourceContext hResourceContext, uint8_t iLcdContrastLevel);

    /*
     * Switches the light of a keypad row, 1 to 7, on (1) or off (0), after asking for the phone model. On model 3 the
     * rows 5 and 7 go to TANDEKOR_FTM_SetKeyPadBackLightGPIO, and another row is also remarked on standard output.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SetKeyPadBackLight(ResourceContext hResourceContext, uint16_t rowNumber,
                                                         uint8_t backLightOn);

    /*
     * The state of the slider by the phone model, for the models 3 and 52 to 55; on any other *sState stays and the
     * result is 0. iPhoneModelHint: 52 to 55 is taken for the model; any other value asks the phone. After a missing
     * reply *sState is that of the reply 0, and the result is 0.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GetSliderState(ResourceContext hResourceContext, uint8_t* sState,
                                                     uint8_t iPhoneModelHint);

    /*
     * Fires the camera's flash; of the reply only the arrival counts. *piErrorCode: out, 0, or after a missing reply
     * the error code of the log.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TEST_CAMERA_FLASH(ResourceContext hResourceContext, uint8_t iFlashByte1,
                                                        uint8_t iFlashByte2, uint16_t* piErrorCode);

    /* Level of the flash light. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(ResourceContext hResourceContext, uint16_t iLevel);

    /* Focus of the camera, 1 to 255; 0 is refused and nothing is sent. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(ResourceContext hResourceContext, uint8_t focusLevel);

    /*
     * The identification of the camera, by an FTM or an LTM request. sId: out, 25 bytes, no NUL; clear it before the
     * call, since a reply shorter than that leaves it alone. A first byte of 0xCC is a failure.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_GetCameraIDString(ResourceContext hResourceContext, char* sId);
    TANDEKOR_API uint8_t TANDEKOR_LTM_GetCameraIdString(ResourceContext hResourceContext, char* sId);

#ifdef __cplusplus
}
#endif

#endif
