// Transmitter, receiver and test calls, of a phone in FTM mode.
#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

// An operation that only a phone in FTM mode takes, and what it does then.
template <typename Action, typename... Arguments>
uint8_t InFtm(ResourceContext hResourceContext, const char* operation, Action action, const Arguments&... arguments)
{
    if (!ReachesInFtm(hResourceContext, operation, arguments...))
        return 0;
    action();
    return 1;
}

void Nothing() {}

Radio& TheRadio() { return ThePhone().radio; }
TestCalls& TheCalls() { return ThePhone().testCalls; }

}  // namespace

// --- transmitter and receiver
uint8_t QLIB_FTM_SET_MODE(ResourceContext hResourceContext, uint16_t eNewMode)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().mode = eNewMode; }, eNewMode);
}

uint8_t QLIB_FTM_SET_CHAN(ResourceContext hResourceContext, uint16_t iChannel)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().channel = iChannel; }, iChannel);
}

uint8_t QLIB_FTM_SET_TX_ON(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheRadio().transmitting = true; });
}

uint8_t QLIB_FTM_SET_TX_OFF(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheRadio().transmitting = false; });
}

uint8_t QLIB_FTM_SET_TX_POWER_LEVEL(ResourceContext hResourceContext, uint8_t iPowerLevelID)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().powerLevel = iPowerLevelID; }, iPowerLevelID);
}

uint8_t QLIB_FTM_SET_TRANSMIT_BURST(ResourceContext hResourceContext, uint8_t iSlotNum, int16_t iDataSource,
                                    uint8_t iTSCindex, uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().bursts = iNumBursts; }, iSlotNum, iDataSource, iTSCindex,
        iNumBursts, bIsInfiniteDuration);
}

uint8_t QLIB_FTM_SET_PA_DAC_INPUT(ResourceContext hResourceContext, uint16_t iDACinput)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().paDac = iDACinput; }, iDACinput);
}

uint8_t QLIB_FTM_SET_PA_RANGE(ResourceContext hResourceContext, uint16_t iPArange)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().paRange = iPArange; }, iPArange);
}

uint8_t QLIB_FTM_CDMA_CW_WAVEFORM(ResourceContext hResourceContext, uint8_t bSelectCW)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().cwWaveform = bSelectCW != 0; }, bSelectCW);
}

uint8_t QLIB_FTM_SET_PDM(ResourceContext hResourceContext, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().pdm[iPDMtype] = iPDMvalue; }, iPDMtype, iPDMvalue);
}

uint8_t QLIB_FTM_GET_ADC_VAL(ResourceContext hResourceContext, uint16_t iADC_type, uint16_t* piADC_value)
{
    if (!ReachesInFtm(hResourceContext, __func__, iADC_type) || !TheRadio().adc.contains(iADC_type))
        return 0;
    Put(piADC_value, TheRadio().adc.at(iADC_type));
    return 1;
}

uint8_t QLIB_FTM_SET_RX_BURST(ResourceContext hResourceContext, uint8_t iSlotNum, int16_t iRxFunction)
{
    return InFtm(hResourceContext, __func__, Nothing, iSlotNum, iRxFunction);
}

uint8_t QLIB_FTM_SET_LNA_RANGE(ResourceContext hResourceContext, uint8_t iLNArange)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheRadio().lnaRange = iLNArange; }, iLNArange);
}

uint8_t QLIB_FTM_GET_RSSI(ResourceContext hResourceContext, void* piRSSI)
{
    return InFtm(hResourceContext, __func__, [&] { Put(static_cast<int16_t*>(piRSSI), TheRadio().rssi); });
}

uint8_t QLIB_FTM_GET_DVGA_OFFSET(ResourceContext hResourceContext, int16_t iExpectedRX_AGC, void* piDVGAoffsetValue)
{
    return InFtm(
        hResourceContext, __func__, [&] { Put(static_cast<int16_t*>(piDVGAoffsetValue), TheRadio().dvgaOffset); },
        iExpectedRX_AGC);
}

uint8_t QLIB_FTM_GET_LNA_OFFSET(ResourceContext hResourceContext, uint16_t iLNAindex, int16_t iExpectedRX_AGC,
                                int16_t* piLNAoffsetValue)
{
    if (InFtm(hResourceContext, __func__, Nothing, iLNAindex, iExpectedRX_AGC) == 0
        || iLNAindex >= TheRadio().lnaOffsets.size())
        return 0;
    Put(piLNAoffsetValue, TheRadio().lnaOffsets.at(iLNAindex));
    return 1;
}

// --- GSM
uint8_t QLIB_FTM_GSM_BER_StartSession(ResourceContext hResourceContext, uint32_t iTimeOut_ms)
{
    return InFtm(
        hResourceContext, __func__, [] { TheCalls().gsmSession = true; }, iTimeOut_ms);
}

uint8_t QLIB_FTM_GSM_BER_StopSession(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().gsmSession = false; });
}

uint8_t QLIB_FTM_GSM_BER_AssignBCCH(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheCalls().channel = iChannel; }, iChannel, iBand);
}

uint8_t QLIB_FTM_GSM_BER_AssignTraffic(ResourceContext hResourceContext, uint16_t iLoopbackType, uint8_t iSlot,
                                       uint8_t iMode)
{
    return InFtm(
        hResourceContext, __func__, [] { TheCalls().gsmTraffic = true; }, iLoopbackType, iSlot, iMode);
}

uint8_t QLIB_FTM_GSM_BER_Handover(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand, uint8_t iTSC,
                                  uint8_t iSlot, uint8_t iMode, uint8_t iPowerLevel, uint8_t iLoopbackType)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheCalls().channel = iChannel; }, iChannel, iBand, iTSC, iSlot, iMode,
        iPowerLevel, iLoopbackType);
}

uint8_t QLIB_FTM_GSM_BER_GetRxMetrics(ResourceContext hResourceContext, uint8_t* piDED_RPtRxLev_Full,
                                      uint8_t* piDED_RPtRxQual_Full)
{
    const auto deliver = [&]
    {
        Put(piDED_RPtRxLev_Full, TheCalls().rxLevel);
        Put(piDED_RPtRxQual_Full, TheCalls().rxQuality);
    };
    return InFtm(hResourceContext, __func__, deliver);
}

uint8_t QLIB_FTM_GSM_BER_ReleaseTCH(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().gsmTraffic = false; });
}

// --- WCDMA
uint8_t QLIB_FTM_WCDMA_BER_AcquirePilot(ResourceContext hResourceContext, uint16_t iChannel)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheCalls().channel = iChannel; }, iChannel);
}

uint8_t QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, Nothing);
}

uint8_t QLIB_FTM_WCDMA_BER_SetupRMC_DCH(ResourceContext hResourceContext, uint8_t iRMC_Type, uint8_t iUL_MaxTxPwr,
                                        uint32_t iUL_DPCH_ScrCode, uint8_t iUL_PCA, uint8_t iUL_TPC_StepSize,
                                        uint16_t iDL_PriCPICH_Scr_Code, uint16_t iDL_ChanCode)
{
    return InFtm(hResourceContext, __func__, Nothing, iRMC_Type, iUL_MaxTxPwr, iUL_DPCH_ScrCode, iUL_PCA,
                 iUL_TPC_StepSize, iDL_PriCPICH_Scr_Code, iDL_ChanCode);
}

uint8_t QLIB_FTM_WCDMA_BER_StartSession(ResourceContext hResourceContext, uint32_t iTimeOut_ms)
{
    return InFtm(
        hResourceContext, __func__, [] { TheCalls().wcdmaSession = true; }, iTimeOut_ms);
}

uint8_t QLIB_FTM_WCDMA_BER_StopSession(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().wcdmaSession = false; });
}

uint8_t QLIB_FTM_WCDMA_BER_ClearStatus(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, Nothing);
}

uint8_t QLIB_FTM_WCDMA_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pWCDMA_BER_State)
{
    return InFtm(hResourceContext, __func__, [&] { Put(pWCDMA_BER_State, TheCalls().state); });
}

// --- HSDPA
uint8_t QLIB_FTM_HSDPA_BER_StartSession(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().hsdpaSession = true; });
}

uint8_t QLIB_FTM_HSDPA_BER_StopSession(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().hsdpaSession = false; });
}

uint8_t QLIB_FTM_HSDPA_BER_ClearStatus(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, Nothing);
}

uint8_t QLIB_FTM_HSDPA_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pHSDPA_BER_State)
{
    return InFtm(hResourceContext, __func__, [&] { Put(pHSDPA_BER_State, TheCalls().state); });
}

uint8_t QLIB_FTM_HSDPA_BLER_Reconfigure_HS(ResourceContext hResourceContext, uint8_t iReconfigBitmask)
{
    return InFtm(hResourceContext, __func__, Nothing, iReconfigBitmask);
}

uint8_t QLIB_FTM_HSDPA_BLER_Configure_PDSCH(ResourceContext hResourceContext, uint16_t iHS_PDSCH_RadioLink_PCS)
{
    return InFtm(hResourceContext, __func__, Nothing, iHS_PDSCH_RadioLink_PCS);
}

uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(ResourceContext hResourceContext, uint8_t iNumCodes,
                                              const uint8_t* aiCodes)
{
    return InFtm(hResourceContext, __func__, Nothing, iNumCodes, BytesAt(aiCodes, iNumCodes));
}

uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(ResourceContext hResourceContext, uint16_t iH_RNTI,
                                              uint8_t iNum_HARQ_Processes, uint8_t bMemPartitionValid,
                                              const void* aiMemPartitionInfo)
{
    return InFtm(hResourceContext, __func__, Nothing, iH_RNTI, iNum_HARQ_Processes, bMemPartitionValid,
                 aiMemPartitionInfo != nullptr);
}

uint8_t QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH(ResourceContext hResourceContext, uint8_t iCPICH_PowerOffset,
                                               uint8_t iCQI_FeedbackCycle, uint8_t iCQI_RepetitionFactor,
                                               uint8_t iDeltaCQI, uint8_t iDeltaACK, uint8_t iDeltaNACK,
                                               uint8_t iACK_NACK_RepetitionFactor)
{
    return InFtm(hResourceContext, __func__, Nothing, iCPICH_PowerOffset, iCQI_FeedbackCycle, iCQI_RepetitionFactor,
                 iDeltaCQI, iDeltaACK, iDeltaNACK, iACK_NACK_RepetitionFactor);
}

// --- EDGE
uint8_t QLIB_FTM_EGPRS_BER_StartIdleMode(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().edgeIdle = true; });
}

uint8_t QLIB_FTM_EGPRS_BER_AssignBCCH(ResourceContext hResourceContext, uint16_t iChannel, uint8_t iBand)
{
    return InFtm(
        hResourceContext, __func__, [&] { TheCalls().channel = iChannel; }, iChannel, iBand);
}

uint8_t QLIB_FTM_EGPRS_BER_Configure_DL_TBF(ResourceContext hResourceContext, uint8_t iDL_TSC, uint8_t iDL_TFI,
                                            uint16_t iChannel, uint8_t iBand, uint8_t bFirstSlotActive,
                                            uint8_t iFirstSlotNum, uint8_t bSecondSlotActive, uint8_t iSecondSlotNum)
{
    return InFtm(hResourceContext, __func__, Nothing, iDL_TSC, iDL_TFI, iChannel, iBand, bFirstSlotActive,
                 iFirstSlotNum, bSecondSlotActive, iSecondSlotNum);
}

uint8_t QLIB_FTM_EGPRS_BER_Configure_UL_TBF(ResourceContext hResourceContext, uint8_t iUL_TSC, uint8_t iUSF,
                                            uint8_t iGamma, uint8_t bFirstSlotActive, uint8_t iFirstSlotNum,
                                            uint8_t bSecondSlotActive, uint8_t iSecondSlotNum)
{
    return InFtm(hResourceContext, __func__, Nothing, iUL_TSC, iUSF, iGamma, bFirstSlotActive, iFirstSlotNum,
                 bSecondSlotActive, iSecondSlotNum);
}

uint8_t QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().edgeLoopback = true; });
}

uint8_t QLIB_FTM_EGPRS_BER_Release_All_TBF(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, [] { TheCalls().edgeLoopback = false; });
}

uint8_t QLIB_FTM_EGPRS_BER_ClearStatus(ResourceContext hResourceContext)
{
    return InFtm(hResourceContext, __func__, Nothing);
}

uint8_t QLIB_FTM_EGPRS_BER_GetStatus(ResourceContext hResourceContext, uint8_t* pEGPRS_BER_State)
{
    return InFtm(hResourceContext, __func__, [&] { Put(pEGPRS_BER_State, TheCalls().state); });
}

uint8_t QLIB_FTM_EGPRS_BER_GetRxMetrics(ResourceContext hResourceContext, uint8_t* piRxLev_average)
{
    return InFtm(hResourceContext, __func__, [&] { Put(piRxLev_average, TheCalls().rxLevel); });
}

// --- the normal call stack
uint8_t QLIB_DIAG_GSM_CALL_ORIG_F(ResourceContext hResourceContext, uint8_t iNumDigits, const uint8_t* aiIMSI)
{
    if (!Reaches(hResourceContext, __func__, iNumDigits, BytesAt(aiIMSI, iNumDigits))
        || ThePhone().mode != Mode::Online)
        return 0;
    TheCalls().callUp = true;
    return 1;
}

uint8_t QLIB_DIAG_GSM_CALL_END_F(ResourceContext hResourceContext)
{
    if (!Reaches(hResourceContext, __func__))
        return 0;
    TheCalls().callUp = false;
    return 1;
}
