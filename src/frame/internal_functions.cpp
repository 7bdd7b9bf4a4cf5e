#include "frame/internal_functions.h"

#include "frame/forward.h"
#include "procedures/phone_procedures.h"

namespace tandekor
{

uint8_t TANDEKOR_CheckConnection(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::CheckConnection);
}

uint8_t TANDEKOR_DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData,
                                 int32_t iLength)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::DIAG_NV_WRITE_F, iItemID, pItemData, iLength);
}

uint8_t TANDEKOR_DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData, int32_t iLength)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::DIAG_NV_READ_F, iItemID, pItemData, iLength);
}

uint8_t TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* cBin3,
                                            int32_t iLength)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_READ_GSM_RX_REL_OFFSETS, iItemID, cBin3, iLength);
}

uint8_t TANDEKOR_DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::DIAG_NV_WRITE_FLUSH_BATCH_QUEUE);
}

uint8_t TANDEKOR_SetBitState_8_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint8_t iMask, uint8_t bOnOff)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SetBitState_8_Reg, iAddress, iMask, bOnOff);
}

uint8_t TANDEKOR_SetBitState_32_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint32_t iMask, uint8_t bOnOff)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SetBitState_32_Reg, iAddress, iMask, bOnOff);
}

}  // namespace tandekor
