#include "procedures/internal_functions.h"

#include "connection/forward.h"
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

uint8_t TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(ResourceContext hResourceContext, uint16_t eNvBand, uint16_t iOffset,
                                         const uint8_t* piVsFreq)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_WCDMA_VGA_GAIN, eNvBand, iOffset, piVsFreq);
}

uint8_t TANDEKOR_NV_READ_WCDMA_LNA_RANGE_FALL(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piFall1,
                                              uint8_t* piFall2, uint8_t* piFall3)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_READ_WCDMA_LNA_RANGE_FALL, eNvBand, piFall1,
                   piFall2, piFall3);
}

uint8_t TANDEKOR_NV_READ_WCDMA_LNA_RANGE_RISE(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piRise1,
                                              uint8_t* piRise2, uint8_t* piRise3)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_READ_WCDMA_LNA_RANGE_RISE, eNvBand, piRise1,
                   piRise2, piRise3);
}

uint8_t TANDEKOR_NV_WRITE_GSM_RX_GAIN_RANGE(ResourceContext hResourceContext, uint8_t* Gsm900Range1,
                                            uint8_t* Gsm900Range2, uint8_t* Gsm900Range3, uint8_t* Gsm900Range4,
                                            uint8_t* Gsm1900Range1, uint8_t* Gsm1900Range2, uint8_t* Gsm1900Range3,
                                            uint8_t* Gsm1900Range4, uint8_t* Gsm1800Range1, uint8_t* Gsm1800Range2,
                                            uint8_t* Gsm1800Range3, uint8_t* Gsm1800Range4, uint8_t* Gsm850Range1,
                                            uint8_t* Gsm850Range2, uint8_t* Gsm850Range3, uint8_t* Gsm850Range4)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_GSM_RX_GAIN_RANGE, Gsm900Range1,
                   Gsm900Range2, Gsm900Range3, Gsm900Range4, Gsm1900Range1, Gsm1900Range2, Gsm1900Range3, Gsm1900Range4,
                   Gsm1800Range1, Gsm1800Range2, Gsm1800Range3, Gsm1800Range4, Gsm850Range1, Gsm850Range2, Gsm850Range3,
                   Gsm850Range4);
}

uint8_t TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET(ResourceContext hResourceContext, uint8_t eNvBand, int16_t iOffset1,
                                           uint8_t* piVsFreq1, int16_t iOffset2, uint8_t* piVsFreq2, int16_t iOffset3,
                                           uint8_t* piVsFreq3)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_WCDMA_LNA_OFFSET, eNvBand, iOffset1,
                   piVsFreq1, iOffset2, piVsFreq2, iOffset3, piVsFreq3);
}

uint8_t TANDEKOR_FTM_GSM_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                       uint8_t iBand, uint32_t iBCCH_TimeOut_ms)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_GSM_BER_StartCall, bInitSession, iChannel, iBand,
                   iBCCH_TimeOut_ms);
}

uint8_t TANDEKOR_FTM_GSM_BER_StopCall(ResourceContext hResourceContext, uint8_t bCloseControl)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_GSM_BER_StopCall, bCloseControl);
}

uint8_t TANDEKOR_FTM_EGPRS_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                         uint8_t iBand, uint32_t iBCCH_TimeOut_ms)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FTM_EGPRS_BER_StartCall, bInitSession, iChannel,
                   iBand, iBCCH_TimeOut_ms);
}

uint8_t TANDEKOR_SimSimulation(ResourceContext hResourceContext)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SimSimulation);
}

uint8_t TANDEKOR_NV_WRITE_NETWORK_SCAN_MODE(ResourceContext hResourceContext, uint8_t eNetwMode)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_NETWORK_SCAN_MODE, eNetwMode);
}

uint8_t TANDEKOR_NV_WRITE_LAST_GOOD_CHANNEL(ResourceContext hResourceContext, uint8_t eNetwMode, uint16_t uiChannel)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::NV_WRITE_LAST_GOOD_CHANNEL, eNetwMode, uiChannel);
}

uint8_t TANDEKOR_FtmBtSetAddr(ResourceContext hResourceContext, char* szAddr)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::FtmBtSetAddr, szAddr);
}

uint8_t TANDEKOR_SpecialSetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t bState)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSetChargeFetState, eChgTransistor, bState);
}

uint8_t TANDEKOR_SpecialSetPmicChargeLimits(ResourceContext hResourceContext, uint32_t iVoltage, uint32_t iCurrent)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialSetPmicChargeLimits, iVoltage, iCurrent);
}

uint8_t TANDEKOR_SpecialGetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t* pbState)
{
    return Forward(Procedures(hResourceContext), &PhoneProcedures::SpecialGetChargeFetState, eChgTransistor, pbState);
}

}  // namespace tandekor
