// The procedures' own steps that are no exported functions. Each makes its own connection check unless it says
// otherwise, and does nothing and returns false on an unknown handle.
#pragma once

#include <cstdint>

#include "tandekor/common.h"

namespace tandekor
{

// NV items. The status that the phone returns counts as well as the call's result. iLength is in bytes.
bool DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData, int32_t iLength);
bool DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData, int32_t iLength);
// In spite of its name the read of any item that shows what it read in the log.
bool NV_READ_GSM_RX_REL_OFFSETS(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* cBin3, int32_t iLength);
bool DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(ResourceContext hResourceContext);

// Registers: sets or clears the bits of the mask and reads them back. Only the 8-bit form checks the connection.
bool SetBitState_8_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint8_t iMask, uint8_t bOnOff);
bool SetBitState_32_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint32_t iMask, uint8_t bOnOff);
// bitNum 0 to 31; 32 reads the register and finds no bit. *bOnOff becomes the character '0' or '1'.
bool TK_GetBitState_32_Reg(ResourceContext hResourceContext, uint32_t Address, uint16_t bitNum, uint32_t* reg,
                           char* bOnOff);

// Receiver NV items of a WCDMA band (eNvBand 4, 5 or 6; any other returns 0 with nothing logged) and of the GSM bands.
// A table is 16 bytes (32 for GSM 1900 and 1800) or null, which leaves its item unchanged; a value out is 2 bytes.
bool NV_WRITE_WCDMA_VGA_GAIN(ResourceContext hResourceContext, uint16_t eNvBand, uint16_t iOffset,
                             const uint8_t* piVsFreq);
bool NV_READ_WCDMA_LNA_RANGE_FALL(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piFall1,
                                  uint8_t* piFall2, uint8_t* piFall3);
bool NV_READ_WCDMA_LNA_RANGE_RISE(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piRise1,
                                  uint8_t* piRise2, uint8_t* piRise3);
bool NV_WRITE_GSM_RX_GAIN_RANGE(ResourceContext hResourceContext, const uint8_t* Gsm900Range1,
                                const uint8_t* Gsm900Range2, const uint8_t* Gsm900Range3, const uint8_t* Gsm900Range4,
                                const uint8_t* Gsm1900Range1, const uint8_t* Gsm1900Range2,
                                const uint8_t* Gsm1900Range3, const uint8_t* Gsm1900Range4,
                                const uint8_t* Gsm1800Range1, const uint8_t* Gsm1800Range2,
                                const uint8_t* Gsm1800Range3, const uint8_t* Gsm1800Range4, const uint8_t* Gsm850Range1,
                                const uint8_t* Gsm850Range2, const uint8_t* Gsm850Range3, const uint8_t* Gsm850Range4);
bool NV_WRITE_WCDMA_LNA_OFFSET(ResourceContext hResourceContext, uint8_t eNvBand, int16_t iOffset1,
                               const uint8_t* piVsFreq1, int16_t iOffset2, const uint8_t* piVsFreq2, int16_t iOffset3,
                               const uint8_t* piVsFreq3);

// Test calls. bInitSession 1 opens the session first; a bCloseControl that is not 0 closes it.
bool FTM_GSM_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel, uint8_t iBand,
                           uint32_t iBCCH_TimeOut_ms);
bool FTM_GSM_BER_StopCall(ResourceContext hResourceContext, uint8_t bCloseControl);
bool FTM_EGPRS_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel, uint8_t iBand,
                             uint32_t iBCCH_TimeOut_ms);

// The on-chip SIM, the network that the phone looks for, and its last good channel. Of the modes 0 to 5, 1 is refused,
// and so is every mode above 5, with nothing logged.
bool SimSimulation(ResourceContext hResourceContext);
bool NV_WRITE_NETWORK_SCAN_MODE(ResourceContext hResourceContext, uint8_t eNetwMode);
bool NV_WRITE_LAST_GOOD_CHANNEL(ResourceContext hResourceContext, uint8_t eNetwMode, uint16_t uiChannel);

// Sets the Bluetooth module's address, of at least 12 hexadecimal digits, which become upper case in place. A
// character that is no such digit counts as 0.
bool FtmBtSetAddr(ResourceContext hResourceContext, char* szAddr);

// The charger: a transistor (0 or 1), the limits, and the state of transistor 1. Another transistor returns 0 with
// nothing logged.
bool SpecialSetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t bState);
bool SpecialSetPmicChargeLimits(ResourceContext hResourceContext, uint32_t iVoltage, uint32_t iCurrent);
bool SpecialGetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t* pbState);

}  // namespace tandekor
