// The stages of an HSDPA and of an EDGE test call, each once, without a wait between them; and a call on the phone's
// normal call stack, ended at once.
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

uint8_t TANDEKOR_Reduced_Signalling_HSDPA(ResourceContext hResourceContext, uint8_t iReconfigBitmask,
                                          uint16_t iHS_PDSCH_RadioLink_PCS, uint8_t iNumCodes, const uint8_t* aiCodes,
                                          uint16_t iH_RNTI, uint8_t iNum_HARQ_Processes, uint8_t bMemPartitionValid,
                                          const void* aiMemPartitionInfo, uint8_t iCPICH_PowerOffset,
                                          uint8_t iCQI_FeedbackCycle, uint8_t iCQI_RepetitionFactor, uint8_t iDeltaCQI,
                                          uint8_t iDeltaACK, uint8_t iDeltaNACK, uint8_t iACK_NACK_RepetitionFactor,
                                          uint8_t* pHSDPA_BER_State)
{
    const PhoneProcedure phone(hResourceContext);
    // The host library's structure is of a size that is not known here; a byte for each HARQ process is.
    const ItemOf<UINT8_MAX> memPartition(aiMemPartitionInfo, iNum_HARQ_Processes);
    return phone.CheckConnection()
           && phone.CallStep("QLIB_FTM_HSDPA_BER_StartSession", QLIB_FTM_HSDPA_BER_StartSession, "()")
           && phone.CallStep("QLIB_FTM_HSDPA_BLER_Reconfigure_HS", QLIB_FTM_HSDPA_BLER_Reconfigure_HS,
                             "(iReconfigBitmask = %c)", iReconfigBitmask)
           && phone.CallStep("QLIB_FTM_HSDPA_BLER_Configure_PDSCH", QLIB_FTM_HSDPA_BLER_Configure_PDSCH,
                             "(iHS_PDSCH_RadioLink_PCS = %d)", iHS_PDSCH_RadioLink_PCS)
           && phone.Step(
               "QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH", "(iNumCodes = %c, aiCodes = %s)",
               [&] { return QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(hResourceContext, iNumCodes, aiCodes); }, iNumCodes,
               ItemOf<UINT8_MAX>(aiCodes, iNumCodes))
           && phone.Step(
               "QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH",
               "(iH_RNTI = %d, iNum_HARQ_Processes = %c, bMemPartitionValid = %c, aiMemPartitionInfo = %s)",
               [&]
               {
                   return QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(hResourceContext, iH_RNTI, iNum_HARQ_Processes,
                                                                bMemPartitionValid, aiMemPartitionInfo);
               },
               iH_RNTI, iNum_HARQ_Processes, bMemPartitionValid, memPartition)
           && phone.CallStep("QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH", QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH,
                             "(iCPICH_PowerOffset = %c, iCQI_FeedbackCycle = %c, iCQI_RepetitionFactor = %c, "
                             "iDeltaCQI = %c, iDeltaACK = %c, iDeltaNACK = %c, iACK_NACK_RepetitionFactor = %c)",
                             iCPICH_PowerOffset, iCQI_FeedbackCycle, iCQI_RepetitionFactor, iDeltaCQI, iDeltaACK,
                             iDeltaNACK, iACK_NACK_RepetitionFactor)
           && phone.CallStep("QLIB_FTM_HSDPA_BER_ClearStatus", QLIB_FTM_HSDPA_BER_ClearStatus, "()")
           && phone.Step(
               "QLIB_FTM_HSDPA_BER_GetStatus", "(pHSDPA_BER_State = %c)",
               [&] { return QLIB_FTM_HSDPA_BER_GetStatus(hResourceContext, pHSDPA_BER_State); }, *pHSDPA_BER_State)
           && phone.CallStep("QLIB_FTM_HSDPA_BER_StopSession", QLIB_FTM_HSDPA_BER_StopSession, "()");
}

uint8_t TANDEKOR_Reduced_Signalling_EDGE(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                         uint8_t iBand, uint32_t iBCCH_TimeOut_ms, uint8_t iDL_TSC, uint8_t iDL_TFI,
                                         uint32_t /*iReserved7*/, uint32_t /*iReserved8*/, uint8_t bFirstSlotActive,
                                         uint8_t iFirstSlotNum, uint8_t bSecondSlotActive, uint8_t iSecondSlotNum,
                                         uint8_t iUL_TSC, uint8_t iUSF, uint8_t iGamma, uint32_t /*iReserved16*/,
                                         uint32_t /*iReserved17*/, uint32_t /*iReserved18*/, uint32_t /*iReserved19*/,
                                         uint8_t* pEGPRS_BER_State, uint8_t* piRxLev_average)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("TANDEKOR_FTM_EGPRS_BER_StartCall", FTM_EGPRS_BER_StartCall,
                             "(bInitSession = %c, iChannel = %d, iBand = %c, iBCCH_TimeOut_ms = %i)", bInitSession,
                             iChannel, iBand, iBCCH_TimeOut_ms)
           && phone.CallStep("QLIB_FTM_EGPRS_BER_StartIdleMode", QLIB_FTM_EGPRS_BER_StartIdleMode, "()")
           && phone.CallStep("QLIB_FTM_EGPRS_BER_Configure_DL_TBF", QLIB_FTM_EGPRS_BER_Configure_DL_TBF,
                             "(iDL_TSC = %c, iDL_TFI = %c, iChannel = %d, iBand = %c, bFirstSlotActive = %c, "
                             "iFirstSlotNum = %c, bSecondSlotActive = %c, iSecondSlotNum = %c)",
                             iDL_TSC, iDL_TFI, iChannel, iBand, bFirstSlotActive, iFirstSlotNum, bSecondSlotActive,
                             iSecondSlotNum)
           && phone.CallStep("QLIB_FTM_EGPRS_BER_Configure_UL_TBF", QLIB_FTM_EGPRS_BER_Configure_UL_TBF,
                             "(iUL_TSC = %c, iUSF = %c, iGamma = %c, bFirstSlotActive = %c, iFirstSlotNum = %c, "
                             "bSecondSlotActive = %c, iSecondSlotNum = %c)",
                             iUL_TSC, iUSF, iGamma, bFirstSlotActive, iFirstSlotNum, bSecondSlotActive, iSecondSlotNum)
           && phone.CallStep("QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK", QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK,
                             "()")
           && phone.CallStep("QLIB_FTM_EGPRS_BER_Release_All_TBF", QLIB_FTM_EGPRS_BER_Release_All_TBF, "()")
           && phone.CallStep("QLIB_FTM_EGPRS_BER_ClearStatus", QLIB_FTM_EGPRS_BER_ClearStatus, "()")
           && phone.Step(
               "QLIB_FTM_EGPRS_BER_GetStatus", "(pEGPRS_BER_State = %c)",
               [&] { return QLIB_FTM_EGPRS_BER_GetStatus(hResourceContext, pEGPRS_BER_State); }, *pEGPRS_BER_State)
           && phone.Step(
               "QLIB_FTM_EGPRS_BER_GetRxMetrics", "(piRxLev_average = %c)",
               [&] { return QLIB_FTM_EGPRS_BER_GetRxMetrics(hResourceContext, piRxLev_average); }, *piRxLev_average);
}

// The session is the GSM one here too.
bool tandekor::FTM_EGPRS_BER_StartCall(ResourceContext hResourceContext, uint8_t bInitSession, uint16_t iChannel,
                                       uint8_t iBand, uint32_t iBCCH_TimeOut_ms)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && (bInitSession != 1
               || phone.CallStep("QLIB_FTM_GSM_BER_StartSession", QLIB_FTM_GSM_BER_StartSession, "(iTimeOut_ms = %d)",
                                 iBCCH_TimeOut_ms))
           && phone.CallStep("QLIB_FTM_EGPRS_BER_AssignBCCH", QLIB_FTM_EGPRS_BER_AssignBCCH,
                             "(iChannel = %d, iBand = %c)", iChannel, iBand);
}

uint8_t TANDEKOR_StartCall(ResourceContext hResourceContext, uint8_t iNumDigits, const uint8_t* aiIMSI)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.Step(
               "QLIB_DIAG_GSM_CALL_ORIG_F", "(iNumDigits = %d, aiIMSI = %s)",
               [&] { return QLIB_DIAG_GSM_CALL_ORIG_F(hResourceContext, iNumDigits, aiIMSI); }, iNumDigits,
               ItemOf<UINT8_MAX>(aiIMSI, iNumDigits))
           && phone.CallStep("QLIB_DIAG_GSM_CALL_END_F", QLIB_DIAG_GSM_CALL_END_F, "()");
}
