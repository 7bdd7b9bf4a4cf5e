// Functions of the exported form that are not exported: the procedures' own steps, reached through the handle like the
// exported ones. An unknown handle gives 0.
#pragma once

#include <cstdint>

#include "tandekor/common.h"

namespace tandekor
{

// Whether the phone answers; said in the log if it does not.
uint8_t TANDEKOR_CheckConnection(ResourceContext hResourceContext);

// NV items. The status that the phone gives counts as well as the call's result. iLength is in bytes.
uint8_t TANDEKOR_DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData,
                                 int32_t iLength);
uint8_t TANDEKOR_DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData,
                                int32_t iLength);
// In spite of its name the read of any item that shows what it read in the log.
uint8_t TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* cBin3,
                                            int32_t iLength);
uint8_t TANDEKOR_DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(ResourceContext hResourceContext);

// Registers: sets or clears the bits of the mask and reads them back. Only the 8-bit form checks the connection.
uint8_t TANDEKOR_SetBitState_8_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint8_t iMask, uint8_t bOnOff);
uint8_t TANDEKOR_SetBitState_32_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint32_t iMask,
                                    uint8_t bOnOff);

}  // namespace tandekor
