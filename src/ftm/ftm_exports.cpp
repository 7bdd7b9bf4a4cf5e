// The exported factory requests.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "tandekor/ftm.h"

using tandekor::Forward;
using tandekor::Ftm;
using tandekor::FtmChannel;

uint8_t TANDEKOR_FTM_GET_HARDWARE_VERSION(ResourceContext hResourceContext, uint32_t* piHardwareVersion)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_HARDWARE_VERSION, piHardwareVersion);
}

uint8_t TANDEKOR_FTM_GET_HW_ID(ResourceContext hResourceContext, uint16_t* piHwId)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_HW_ID, piHwId);
}

uint8_t TANDEKOR_FTM_GET_NAND_FLASH_ID(ResourceContext hResourceContext, uint16_t* piNandFlashId)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_NAND_FLASH_ID, piNandFlashId);
}

uint8_t TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION(ResourceContext hResourceContext, uint8_t* piFuelGaugeVersion)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_FUEL_GAUGE_VERSION, piFuelGaugeVersion);
}

uint8_t TANDEKOR_FTM_GET_BT_PARAM(ResourceContext hResourceContext, uint16_t* piBtStatus, uint8_t* piBtParam1,
                                  uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_BT_PARAM, piBtStatus, piBtParam1, piBtParam2, piBtParam3);
}

uint8_t TANDEKOR_FTM_CONFIGURE_SWITCH(ResourceContext hResourceContext, uint8_t iSwitchID, uint8_t iSwitchState)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::CONFIGURE_SWITCH, iSwitchID, iSwitchState);
}

uint8_t TANDEKOR_FTM_SET_LOW_POWER_MODE(ResourceContext hResourceContext, uint8_t iLowPowerMode)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SET_LOW_POWER_MODE, iLowPowerMode);
}

uint8_t TANDEKOR_FTM_TEST_FTM_PMIC_USB(ResourceContext hResourceContext, uint8_t iUSB_UART_Mode)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::TEST_FTM_PMIC_USB, iUSB_UART_Mode);
}

uint8_t TANDEKOR_FTM_IRDA_ON_OFF(ResourceContext hResourceContext, uint8_t iTurnLED_On)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::IRDA_ON_OFF, iTurnLED_On);
}

uint8_t TANDEKOR_FTM_IRDA_HIGH_CURRENT_TEST(ResourceContext hResourceContext, uint16_t* piErrorCode,
                                            uint16_t iIrdaLength_ms)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::IRDA_HIGH_CURRENT_TEST, piErrorCode, iIrdaLength_ms);
}

uint8_t TANDEKOR_FTM_TEST_IRDA_TX_RX(ResourceContext hResourceContext, uint8_t iIrdaTestByte,
                                     uint32_t iIrdaReservedWord, uint32_t* piIrdaResult1, uint32_t* piIrdaResult2)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::TEST_IRDA_TX_RX, iIrdaTestByte, iIrdaReservedWord, piIrdaResult1,
                   piIrdaResult2);
}

uint8_t TANDEKOR_FTM_START_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::START_AGPS_CTON_MEAS, piStatusWord);
}

uint8_t TANDEKOR_FTM_GET_AGPS_CTON_MEAS(ResourceContext hResourceContext, uint16_t* piCtoNValue, uint16_t* piErrorCode)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_AGPS_CTON_MEAS, piCtoNValue, piErrorCode);
}

uint8_t TANDEKOR_FTM_RTC_START(ResourceContext hResourceContext, uint8_t* bStatus, uint16_t iTime)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::RTC_START, bStatus, iTime);
}

uint8_t TANDEKOR_FTM_RTC_OSC_CTRL(ResourceContext hResourceContext, uint8_t* bStatus, uint8_t bSwitch)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::RTC_OSC_CTRL, bStatus, bSwitch);
}

uint8_t TANDEKOR_FTM_TRACER_CONTROL(ResourceContext hResourceContext, uint8_t bStatus, uint8_t bSwitch)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::TRACER_CONTROL, bStatus, bSwitch);
}

uint8_t TANDEKOR_GPIO_GET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_GET_OUT, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_SET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_SET_OUT, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_IN(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_GET_IN, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_GET_OE, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_SET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_SET_OE, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iSelect, uint8_t* iPullUD,
                              uint8_t* iPullEn, uint8_t* iDir, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_GET_CFG, iGPIONum, iSelect, iPullUD, iPullEn, iDir,
                   iStatus);
}

uint8_t TANDEKOR_GPIO_SET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iSelect, uint8_t iPullUD,
                              uint8_t iPullEn, uint8_t iDir, uint8_t* iStatus)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GPIO_SET_CFG, iGPIONum, iSelect, iPullUD, iPullEn, iDir,
                   iStatus);
}

uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS(ResourceContext hResourceContext, uint8_t iI2C_AccessType, uint8_t iI2C_SlaveAddr,
                                     uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen,
                                     uint8_t* piI2C_Data)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::I2C_DATA_ACCESS, iI2C_AccessType, iI2C_SlaveAddr,
                   iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen, piI2C_Data);
}

uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS2(ResourceContext hResourceContext, uint8_t iI2C_AccessType, uint8_t iI2C_Selector,
                                      uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr,
                                      uint8_t iI2C_DataLen, uint8_t* piI2C_Data)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::I2C_DATA_ACCESS2, iI2C_AccessType, iI2C_Selector, iI2C_SlaveAddr,
                   iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen, piI2C_Data);
}

uint8_t TANDEKOR_FTM_MGET_ADC_VAL(ResourceContext hResourceContext, uint16_t iADC_Channel, uint16_t iReadCount,
                                  uint32_t* iADC_Sum)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::MGET_ADC_VAL, iADC_Channel, iReadCount, iADC_Sum);
}

uint8_t TANDEKOR_FTM_GG_READ_REG(ResourceContext hResourceContext, uint8_t eNum, uint8_t* sStatus, uint16_t* iValue)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GG_READ_REG, eNum, sStatus, iValue);
}

uint8_t TANDEKOR_FTM_GG_MODE(ResourceContext hResourceContext, uint8_t* iSwitch)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GG_MODE, iSwitch);
}

uint8_t TANDEKOR_FTM_HEADSET_AMP_READ(ResourceContext hResourceContext, uint32_t* iHeadsetReg)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::HEADSET_AMP_READ, iHeadsetReg);
}

uint8_t TANDEKOR_FTM_HEADSET_AMP_WRITE(ResourceContext hResourceContext, uint32_t* iHeadsetReg)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::HEADSET_AMP_WRITE, iHeadsetReg);
}

uint8_t TANDEKOR_FTM_SIM_READ_IMSI(ResourceContext hResourceContext, uint8_t* iIMSI_number)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SIM_READ_IMSI, iIMSI_number);
}

uint8_t TANDEKOR_FTM_SIM_GET_MODE(ResourceContext hResourceContext, uint8_t* SIM_MODE)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SIM_GET_MODE, SIM_MODE);
}

uint8_t TANDEKOR_FTM_SIM_READ_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File, uint8_t* Status)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SIM_READ_KC_FILE, KC_File, Status);
}

uint8_t TANDEKOR_FTM_SIM_WRITE_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File, uint8_t* Status)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SIM_WRITE_KC_FILE, KC_File, Status);
}

uint8_t TANDEKOR_FTM_MMC_FILE_ACCESS(ResourceContext hResourceContext, uint8_t iAccessType, uint16_t iMMC_DataLength,
                                     const char* psFileName, uint8_t* pData)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::MMC_FILE_ACCESS, iAccessType, iMMC_DataLength, psFileName,
                   pData);
}

uint8_t TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(ResourceContext hResourceContext, uint8_t iOperationType,
                                             uint16_t iDataAddress, uint8_t* pData)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::READ_WRITE_FACTORY_DATA, iOperationType, iDataAddress, pData);
}

uint8_t TANDEKOR_FTM_LOAD_RF_NV(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::LOAD_RF_NV, piStatusWord);
}

uint8_t TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER(ResourceContext hResourceContext, uint8_t iGSM_Band,
                                             const uint16_t* iGSM_DACvsPower, uint16_t iDelay_ms)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::WRITE_GSM_TX_LINEARIZER, iGSM_Band, iGSM_DACvsPower, iDelay_ms);
}

uint8_t TANDEKOR_FTM_WRITE_WCDMA_RF_CAL(ResourceContext hResourceContext, uint32_t i1, uint32_t i2, uint32_t i3,
                                        uint32_t i4, uint32_t i5, uint32_t i6, uint32_t i7, uint32_t i8, uint32_t i9,
                                        uint32_t i10, uint32_t i11, uint32_t i12, uint32_t i13, uint32_t i14,
                                        uint32_t i15)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::WRITE_WCDMA_RF_CAL, i1, i2, i3, i4, i5, i6, i7, i8, i9, i10, i11,
                   i12, i13, i14, i15);
}

uint8_t TANDEKOR_FTM_GET_FM_RADIO_ID(ResourceContext hResourceContext, uint16_t* iChip_Id)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GET_FM_RADIO_ID, iChip_Id);
}

uint8_t TANDEKOR_FTM_TUNE_FM_RADIO(ResourceContext hResourceContext, uint16_t iChannel, uint16_t* piStatusWord)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::TUNE_FM_RADIO, iChannel, piStatusWord);
}

uint8_t TANDEKOR_FTM_RM_RADIO_RDS_TEST(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::RM_RADIO_RDS_TEST, piStatusWord);
}

uint8_t TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF(ResourceContext hResourceContext, uint8_t* piFmStatus, uint8_t* piFmScanValid,
                                          uint8_t* piFmScanCount, uint16_t* piFmScanList)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::FM_RADIO_SCAN_ALL_RF, piFmStatus, piFmScanValid, piFmScanCount,
                   piFmScanList);
}

uint8_t TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                               uint8_t* piStationField1, uint16_t* piStationField2,
                                               uint8_t* piStationField3, uint8_t* piStationField4,
                                               uint16_t* piStationField5, uint8_t* piStationField6,
                                               uint8_t* piStationField7, uint8_t* piStationField8,
                                               uint8_t* piStationField9, uint16_t* piStationField10)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::FM_RADIO_GET_STATION_INFO, piFmStatus, piStationField1,
                   piStationField2, piStationField3, piStationField4, piStationField5, piStationField6, piStationField7,
                   piStationField8, piStationField9, piStationField10);
}

uint8_t TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                               uint16_t* piProgramField1, uint8_t* piProgramField2, char* psProgramText,
                                               uint8_t* piProgramField3, uint8_t* piProgramField4)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::FM_RADIO_GET_PROGRAM_INFO, piFmStatus, piProgramField1,
                   piProgramField2, psProgramText, piProgramField3, piProgramField4);
}

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE(ResourceContext hResourceContext, char* sFileName)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::DISPLAY_IMAGE, sFileName);
}

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(ResourceContext hResourceContext, char* sFileName)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::DISPLAY_IMAGE_24BIT, sFileName);
}

uint8_t TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(ResourceContext hResourceContext, uint8_t iLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SET_LCD_BACKLIGHT_LEVEL, iLevel);
}

uint8_t TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(ResourceContext hResourceContext, uint8_t iSwitchLcdOn)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SWITCH_LCD_BACKLIGHT, iSwitchLcdOn);
}

uint8_t TANDEKOR_FTM_SET_LCD_CONTRAST(ResourceContext hResourceContext, uint8_t iLcdContrastLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SET_LCD_CONTRAST, iLcdContrastLevel);
}

uint8_t TANDEKOR_FTM_SetKeyPadBackLight(ResourceContext hResourceContext, uint16_t rowNumber, uint8_t backLightOn)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SetKeyPadBackLight, rowNumber, backLightOn);
}

uint8_t TANDEKOR_FTM_GetSliderState(ResourceContext hResourceContext, uint8_t* sState, uint8_t iPhoneModelHint)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GetSliderState, sState, iPhoneModelHint);
}

uint8_t TANDEKOR_FTM_TEST_CAMERA_FLASH(ResourceContext hResourceContext, uint8_t iFlashByte1, uint8_t iFlashByte2,
                                       uint16_t* piErrorCode)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::TEST_CAMERA_FLASH, iFlashByte1, iFlashByte2, piErrorCode);
}

uint8_t TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(ResourceContext hResourceContext, uint16_t iLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::SET_FLASH_LIGHT_LEVEL, iLevel);
}

uint8_t TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(ResourceContext hResourceContext, uint8_t focusLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::I2C_SET_CAMERA_FOCUS, focusLevel);
}

uint8_t TANDEKOR_FTM_GetCameraIDString(ResourceContext hResourceContext, char* sId)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::GetCameraIDString, sId);
}

uint8_t TANDEKOR_LTM_GetCameraIdString(ResourceContext hResourceContext, char* sId)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::LTM_GetCameraIdString, sId);
}
