// The stages of a GSM and of a WCDMA test call, each once, without a wait between them.
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"

namespace tandekor
{

// The metrics are read in front of the handover and the call.
uint8_t PhoneProcedures::Reduced_Signalling_GSM(uint8_t* piDED_RPtRxLev_Full, uint8_t* piDED_RPtRxQual_Full,
                                                uint16_t iChannel, uint8_t iBand, uint8_t iTSC, uint8_t iSlot,
                                                uint8_t iMode, uint8_t iPowerLevel, uint8_t iLoopbackType,
                                                uint8_t bInitSession, uint16_t iBcchChannel, uint8_t iBcchBand,
                                                uint32_t iBCCH_TimeOut_ms, uint16_t iTrafficLoopbackType,
                                                uint8_t iTrafficSlot, uint8_t iTrafficMode, uint8_t bCloseControl)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && Step(
               "QLIB_FTM_GSM_BER_GetRxMetrics", "(piDED_RPtRxLev_Full = %c, piDED_RPtRxQual_Full = %c)",
               [&]
               { return QLIB_FTM_GSM_BER_GetRxMetrics(hResourceContext, piDED_RPtRxLev_Full, piDED_RPtRxQual_Full); },
               *piDED_RPtRxLev_Full, *piDED_RPtRxQual_Full)
           && CallStep("QLIB_FTM_GSM_BER_Handover", QLIB_FTM_GSM_BER_Handover,
                       "(iChannel = %d, iBand = %c, iTSC = %c, iSlot = %c, iMode = %c, iPowerLevel = %c, "
                       "iLoopbackType = %c)",
                       iChannel, iBand, iTSC, iSlot, iMode, iPowerLevel, iLoopbackType)
           && CallStep("TANDEKOR_FTM_GSM_BER_StartCall", TANDEKOR_FTM_GSM_BER_StartCall,
                       "(bInitSession = %c, iChannel = %d, iBand = %c, iBCCH_TimeOut_ms = %i)", bInitSession,
                       iBcchChannel, iBcchBand, iBCCH_TimeOut_ms)
           && CallStep("QLIB_FTM_GSM_BER_AssignTraffic", QLIB_FTM_GSM_BER_AssignTraffic,
                       "(iLoopbackType = %d, iSlot = %c, iMode = %c)", iTrafficLoopbackType, iTrafficSlot, iTrafficMode)
           && CallStep("TANDEKOR_FTM_GSM_BER_StopCall", TANDEKOR_FTM_GSM_BER_StopCall, "(bCloseControl = %c)",
                       bCloseControl);
}

bool PhoneProcedures::FTM_GSM_BER_StartCall(uint8_t bInitSession, uint16_t iChannel, uint8_t iBand,
                                            uint32_t iBCCH_TimeOut_ms)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && (bInitSession != 1
               || CallStep("QLIB_FTM_GSM_BER_StartSession", QLIB_FTM_GSM_BER_StartSession, "(iTimeOut_ms = %i)",
                           iBCCH_TimeOut_ms))
           && CallStep("QLIB_FTM_GSM_BER_AssignBCCH", QLIB_FTM_GSM_BER_AssignBCCH, "(iChannel = %d, iBand = %c)",
                       iChannel, iBand);
}

bool PhoneProcedures::FTM_GSM_BER_StopCall(uint8_t bCloseControl)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && CallStep("QLIB_FTM_GSM_BER_ReleaseTCH", QLIB_FTM_GSM_BER_ReleaseTCH, "()")
           && (bCloseControl == 0 || CallStep("QLIB_FTM_GSM_BER_StopSession", QLIB_FTM_GSM_BER_StopSession, "()"));
}

// The session is stopped in front of the status and of the channel's set-up.
uint8_t PhoneProcedures::Reduced_Signalling_WCDMA(uint16_t iChannel, uint32_t iTimeOut_ms, uint8_t* pWCDMA_BER_State,
                                                  uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr, uint32_t iUL_DPCH_ScrCode,
                                                  uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
                                                  uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && CallStep("QLIB_FTM_WCDMA_BER_AcquirePilot", QLIB_FTM_WCDMA_BER_AcquirePilot, "(iChannel = %d)", iChannel)
           && CallStep("QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH", QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH, "()")
           && CallStep("QLIB_FTM_WCDMA_BER_StartSession", QLIB_FTM_WCDMA_BER_StartSession, "(iTimeOut_ms = %d)",
                       iTimeOut_ms)
           && CallStep("QLIB_FTM_WCDMA_BER_StopSession", QLIB_FTM_WCDMA_BER_StopSession, "()")
           && CallStep("QLIB_FTM_WCDMA_BER_ClearStatus", QLIB_FTM_WCDMA_BER_ClearStatus, "()")
           && Step(
               "QLIB_FTM_WCDMA_BER_GetStatus", "(pWCDMA_BER_State = %c)",
               [&] { return QLIB_FTM_WCDMA_BER_GetStatus(hResourceContext, pWCDMA_BER_State); }, *pWCDMA_BER_State)
           && CallStep("QLIB_FTM_WCDMA_BER_SetupRMC_DCH", QLIB_FTM_WCDMA_BER_SetupRMC_DCH,
                       "(iRMC_Type = %c, iUL_MaxTxPwr = %c, iUL_DPCH_ScrCode = %d, iUL_PCA = %c, "
                       "iUL_TPC_StepSize = %c, iDL_PriCPICH_Scr_Code = %d, iDL_ChanCode = %d)",
                       iRMC_Type, iUL_MaxTxPwr, iUL_DPCH_ScrCode, iUL_PCA, iUL_TPC_StepSize, iDL_PriCPICH_Scr_Code,
                       iDL_ChanCode);
}

}  // namespace tandekor
