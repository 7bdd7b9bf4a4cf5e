// The stages of a GSM and of a WCDMA test call, each once, without a wait between them.
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

// The metrics are read before the handover and the call.
uint8_t TANDEKOR_Reduced_Signalling_GSM(ResourceContext hResourceContext, uint8_t* piDED_RPtRxLev_Full,
                                        uint8_t* piDED_RPtRxQual_Full, uint16_t iChannel, uint8_t iBand, uint8_t iTSC,
                                        uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel, uint8_t iLoopbackType,
                                        uint8_t bInitSession, uint16_t iBcchChannel, uint8_t iBcchBand,
                                        uint32_t iBCCH_TimeOut_ms, uint16_t iTrafficLoopbackType, uint8_t iTrafficSlot,
                                        uint8_t iTrafficMode, uint8_t bCloseControl)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.Step(
               "QLIB_FTM_GSM_BER_GetRxMetrics", "(piDED_RPtRxLev_Full = %c, piDED_RPtRxQual_Full = %c)",
               [&]
               { return QLIB_FTM_GSM_BER_GetRxMetrics(hResourceContext, piDED_RPtRxLev_Full, piDED_RPtRxQual_Full); },
               *piDED_RPtRxLev_Full, *piDED_RPtRxQual_Full)
           && phone.CallStep("QLIB_FTM_GSM_BER_Handover", QLIB_FTM_GSM_BER_Handover,
                             "(iChannel = %d, iBand = %c, iTSC = %c, iSlot = %c, iMode = %c, iPowerLevel = %c, "
                             "iLoopbackType = %c)",
                             iChannel, iBand, iTSC, iSlot, iMode, iPowerLevel, iLoopbackType)
           && phone.CallStep("TANDEKOR_FTM_GSM_BER_StartCall", FTM_GSM_BER_StartCall,
                             "(bInitSession = %c, iChannel = %d, iBand = %c, iBCCH_TimeOut_ms = %i)", bInitSession,
                             iBcchChannel, iBcchBand, iBCCH_TimeOut_ms)
           && phone.CallStep("QLIB_FTM_GSM_BER_AssignTraffic", QLIB_FTM_GSM_BER_AssignTraffic,
                             "(iLoopbackType = %d, iSlot = %c, iMode = %c)", iTrafficLoopbackType, iTrafficSlot,
                             iTrafficMode)
           && phone.CallStep("TANDEKOR_FTM_GSM_BER_StopCall", FTM_GSM_BER_StopCall, "(bCloseControl = %c)",
                             bCloseControl);
}

bool tandekor::FTM_GSM_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                     uint8_t iBand, uint32_t iBCCH_TimeOut_ms)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && (bInitSession != 1
               || phone.CallStep("QLIB_FTM_GSM_BER_StartSession", QLIB_FTM_GSM_BER_StartSession, "(iTimeOut_ms = %i)",
                                 iBCCH_TimeOut_ms))
           && phone.CallStep("QLIB_FTM_GSM_BER_AssignBCCH", QLIB_FTM_GSM_BER_AssignBCCH, "(iChannel = %d, iBand = %c)",
                             iChannel, iBand);
}

bool tandekor::FTM_GSM_BER_StopCall(ResourceContext hResourceContext, uint8_t bCloseControl)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.CallStep("QLIB_FTM_GSM_BER_ReleaseTCH", QLIB_FTM_GSM_BER_ReleaseTCH, "()")
           && (bCloseControl == 0
               || phone.CallStep("QLIB_FTM_GSM_BER_StopSession", QLIB_FTM_GSM_BER_StopSession, "()"));
}

// The session is stopped before the status and of the channel's set-up.
uint8_t TANDEKOR_Reduced_Signalling_WCDMA(ResourceContext hResourceContext, uint16_t iChannel, uint32_t iTimeOut_ms,
                                          uint8_t* pWCDMA_BER_State, uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr,
                                          uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
                                          uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("QLIB_FTM_WCDMA_BER_AcquirePilot", QLIB_FTM_WCDMA_BER_AcquirePilot, "(iChannel = %d)",
                             iChannel)
           && phone.CallStep("QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH", QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH, "()")
           && phone.CallStep("QLIB_FTM_WCDMA_BER_StartSession", QLIB_FTM_WCDMA_BER_StartSession, "(iTimeOut_ms = %d)",
                             iTimeOut_ms)
           && phone.CallStep("QLIB_FTM_WCDMA_BER_StopSession", QLIB_FTM_WCDMA_BER_StopSession, "()")
           && phone.CallStep("QLIB_FTM_WCDMA_BER_ClearStatus", QLIB_FTM_WCDMA_BER_ClearStatus, "()")
           && phone.Step(
               "QLIB_FTM_WCDMA_BER_GetStatus", "(pWCDMA_BER_State = %c)",
               [&] { return QLIB_FTM_WCDMA_BER_GetStatus(hResourceContext, pWCDMA_BER_State); }, *pWCDMA_BER_State)
           && phone.CallStep("QLIB_FTM_WCDMA_BER_SetupRMC_DCH", QLIB_FTM_WCDMA_BER_SetupRMC_DCH,
                             "(iRMC_Type = %c, iUL_MaxTxPwr = %c, iUL_DPCH_ScrCode = %d, iUL_PCA = %c, "
                             "iUL_TPC_StepSize = %c, iDL_PriCPICH_Scr_Code = %d, iDL_ChanCode = %d)",
                             iRMC_Type, iUL_MaxTxPwr, iUL_DPCH_ScrCode, iUL_PCA, iUL_TPC_StepSize,
                             iDL_PriCPICH_Scr_Code, iDL_ChanCode);
}
