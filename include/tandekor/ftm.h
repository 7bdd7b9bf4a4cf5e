/*
 * The phone maker's factory requests.
 *
 * Each function sends one request (a few send two) and waits up to 3 seconds for the reply unless it says more. A
 * missing reply and a status word other than 0 give 0; the log tells them apart: "SendSync() fail (error code = ...)"
 * or "error code = ...". Out-values are written before the status word is looked at, so they may have changed although
 * the result is 0. A reply too short for a value leaves that value alone, and one too short for a status word counts as
 * success. Replies are not checked for the request that they answer.
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
     * which decides (0 is success). The time that the phone answers is shown in the log only.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_RTC_START(ResourceContext hResourceContext, uint8_t* bStatus, uint16_t iTime);

    /* Switches the oscillator of the real-time clock. *bStatus as in TANDEKOR_FTM_RTC_START. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_RTC_OSC_CTRL(ResourceContext hResourceContext, uint8_t* bStatus, uint8_t bSwitch);

    /* Switches the tracer. Both values are sent; of the reply only the arrival counts. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TRACER_CONTROL(ResourceContext hResourceContext, uint8_t bStatus,
                                                     uint8_t bSwitch);

#ifdef __cplusplus
}
#endif

#endif
