// The exported factory requests.
#include "frame/forward.h"
#include "ftm/ftm_channel.h"
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
