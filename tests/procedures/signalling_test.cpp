// Test calls: each chain whole, with a value of its own for every argument.
#include <functional>

#include "procedures/procedure_steps.h"
#include "tests/procedures/chain_lines.h"

namespace tandekor::test
{

namespace
{

using simulator::Mode;

class SignallingTest : public ProcedureTest
{
protected:
    SignallingTest()
    {
        Phone().mode = Mode::Ftm;
        Phone().testCalls.rxLevel = 'l';
        Phone().testCalls.rxQuality = 'q';
        Phone().testCalls.state = 's';
    }

    uint8_t Gsm(uint8_t initSession, uint8_t closeControl)
    {
        return TANDEKOR_Reduced_Signalling_GSM(handle, out.Data(), out.Data() + 1, 0xE101, 'B', 'T', 'S', 'M', 'P', 'L',
                                               initSession, 0xE102, 'b', 4000000001, 0xE103, 't', 'm', closeControl);
    }

    uint8_t Edge(uint8_t initSession, uint32_t reserved = 0)
    {
        return TANDEKOR_Reduced_Signalling_EDGE(handle, initSession, 0xE301, 'B', 4000000003, 'D', 'F', reserved,
                                                reserved, 'A', '1', 'Z', '2', 'U', 'S', 'G', reserved, reserved,
                                                reserved, reserved, out.Data(), out.Data() + 1);
    }

    GuardedBuffer out{2};
};

}  // namespace

TEST_F(SignallingTest, GsmReadsTheMetricsThenHandsOverThenCalls)
{
    EXPECT_EQ(Gsm(1, 'C'), 1);
    const Texts calls{"QLIB_IsPhoneConnected() x3",
                      "QLIB_FTM_GSM_BER_GetRxMetrics()",
                      "QLIB_FTM_GSM_BER_Handover(57601, 66, 84, 83, 77, 80, 76)",
                      "QLIB_IsPhoneConnected() x3",
                      "QLIB_FTM_GSM_BER_StartSession(4000000001)",
                      "QLIB_FTM_GSM_BER_AssignBCCH(57602, 98)",
                      "QLIB_FTM_GSM_BER_AssignTraffic(57603, 116, 109)",
                      "QLIB_IsPhoneConnected() x3",
                      "QLIB_FTM_GSM_BER_ReleaseTCH()",
                      "QLIB_FTM_GSM_BER_StopSession()"};
    EXPECT_EQ(Calls(), calls);
    const Texts log = Chain(
        {"QLIB_FTM_GSM_BER_GetRxMetrics(piDED_RPtRxLev_Full = l, piDED_RPtRxQual_Full = q)",
         ("QLIB_FTM_GSM_BER_Handover(iChannel = 57601, iBand = B, iTSC = T, iSlot = S, iMode = M, iPowerLevel = P, "
          "iLoopbackType = L)"),
         Step("TANDEKOR_FTM_GSM_BER_StartCall(bInitSession = \x01, iChannel = 57602, iBand = b, "
              "iBCCH_TimeOut_ms = -294967295)",
              Chain({"QLIB_FTM_GSM_BER_StartSession(iTimeOut_ms = -294967295)",
                     "QLIB_FTM_GSM_BER_AssignBCCH(iChannel = 57602, iBand = b)"})),
         "QLIB_FTM_GSM_BER_AssignTraffic(iLoopbackType = 57603, iSlot = t, iMode = m)",
         Step("TANDEKOR_FTM_GSM_BER_StopCall(bCloseControl = C)",
              Chain({"QLIB_FTM_GSM_BER_ReleaseTCH()", "QLIB_FTM_GSM_BER_StopSession()"}))});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(out.Content(), Ascii("lq"));
    EXPECT_TRUE(out.GuardsIntact());
    EXPECT_EQ(Sleeps(), Waits{});
}

TEST_F(SignallingTest, OnlyExactly1OpensASessionAndAnyValueBut0ClosesIt)
{
    for (const uint8_t value : std::initializer_list<uint8_t>{0, 1, 2, 255})
    {
        SCOPED_TRACE(value);
        simulator::ForgetCalls();
        EXPECT_EQ(Gsm(value, value), 1);
        EXPECT_EQ(Edge(value), 1);
        EXPECT_EQ(simulator::CountCalls("QLIB_FTM_GSM_BER_StartSession"), value == 1 ? 2 : 0);
        EXPECT_EQ(simulator::CountCalls("QLIB_FTM_GSM_BER_StopSession"), value == 0 ? 0 : 1);
    }
    simulator::ForgetLog();
    EXPECT_EQ(Gsm(0, 0), 1);
    const Texts log = Log();
    EXPECT_EQ(Texts(log.begin() + 4, log.begin() + 8),
              Chain({Step("TANDEKOR_FTM_GSM_BER_StartCall(bInitSession = ",
                          Chain({"QLIB_FTM_GSM_BER_AssignBCCH(iChannel = 57602, iBand = b)"}))}));
    EXPECT_EQ(log.back(), Success("TANDEKOR_FTM_GSM_BER_StopCall(bCloseControl = "));
}

TEST_F(SignallingTest, WcdmaStopsTheSessionInFrontOfItsStatusAndOfTheSetUp)
{
    EXPECT_EQ(TANDEKOR_Reduced_Signalling_WCDMA(handle, 0xE201, 4000000002, out.Data(), 'R', 'M', 4000000003, 'P', 'Z',
                                                0xE202, 0xE203),
              1);
    const Texts calls{"QLIB_IsPhoneConnected() x3",
                      "QLIB_FTM_WCDMA_BER_AcquirePilot(57857)",
                      "QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH()",
                      "QLIB_FTM_WCDMA_BER_StartSession(4000000002)",
                      "QLIB_FTM_WCDMA_BER_StopSession()",
                      "QLIB_FTM_WCDMA_BER_ClearStatus()",
                      "QLIB_FTM_WCDMA_BER_GetStatus()",
                      "QLIB_FTM_WCDMA_BER_SetupRMC_DCH(82, 77, 4000000003, 80, 90, 57858, 57859)"};
    EXPECT_EQ(Calls(), calls);
    const Texts log
        = Chain({"QLIB_FTM_WCDMA_BER_AcquirePilot(iChannel = 57857)", "QLIB_FTM_WCDMA_BER_SetupDefaultRMC_DCH()",
                 "QLIB_FTM_WCDMA_BER_StartSession(iTimeOut_ms = -294967294)", "QLIB_FTM_WCDMA_BER_StopSession()",
                 "QLIB_FTM_WCDMA_BER_ClearStatus()", "QLIB_FTM_WCDMA_BER_GetStatus(pWCDMA_BER_State = s)",
                 ("QLIB_FTM_WCDMA_BER_SetupRMC_DCH(iRMC_Type = R, iUL_MaxTxPwr = M, iUL_DPCH_ScrCode = -294967293, "
                  "iUL_PCA = P, "
                  "iUL_TPC_StepSize = Z, iDL_PriCPICH_Scr_Code = 57858, iDL_ChanCode = 57859)")});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(out.Content(), Hex("73 55"));
}

TEST_F(SignallingTest, HsdpaConfiguresEachChannelAndShowsCodesAndMemoryUpToTheirCount)
{
    uint8_t codes[] = {'c', 'o', 'd', 'e', 's'};
    uint8_t memory[] = {'m', 'e', 'm', 'o', 'r', 'y'};
    const auto run = [&](uint8_t bitmask, uint8_t numCodes, uint8_t* theCodes, uint8_t numProcesses, void* theMemory)
    {
        return TANDEKOR_Reduced_Signalling_HSDPA(handle, bitmask, 0xE401, numCodes, theCodes, 0xE402, numProcesses, 'V',
                                                 theMemory, 'O', 'C', 'R', 'q', 'a', 'n', 'r', out.Data());
    };
    EXPECT_EQ(run('B', 3, codes, 4, memory), 1);
    const Texts calls{"QLIB_IsPhoneConnected() x3",
                      "QLIB_FTM_HSDPA_BER_StartSession()",
                      "QLIB_FTM_HSDPA_BLER_Reconfigure_HS(66)",
                      "QLIB_FTM_HSDPA_BLER_Configure_PDSCH(58369)",
                      "QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(3, 63 6F 64)",
                      "QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(58370, 4, 86, 1)",
                      "QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH(79, 67, 82, 113, 97, 110, 114)",
                      "QLIB_FTM_HSDPA_BER_ClearStatus()",
                      "QLIB_FTM_HSDPA_BER_GetStatus()",
                      "QLIB_FTM_HSDPA_BER_StopSession()"};
    EXPECT_EQ(Calls(), calls);
    const Texts log = Chain(
        {"QLIB_FTM_HSDPA_BER_StartSession()", "QLIB_FTM_HSDPA_BLER_Reconfigure_HS(iReconfigBitmask = B)",
         "QLIB_FTM_HSDPA_BLER_Configure_PDSCH(iHS_PDSCH_RadioLink_PCS = 58369)",
         "QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(iNumCodes = \x03, aiCodes = cod)",
         ("QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(iH_RNTI = 58370, iNum_HARQ_Processes = \x04, bMemPartitionValid = V, "
          "aiMemPartitionInfo = memo)"),
         ("QLIB_FTM_HSDPA_BLER_Configure_HS_DPCCH(iCPICH_PowerOffset = O, iCQI_FeedbackCycle = C, "
          "iCQI_RepetitionFactor = R, iDeltaCQI = q, iDeltaACK = a, iDeltaNACK = n, iACK_NACK_RepetitionFactor = r)"),
         "QLIB_FTM_HSDPA_BER_ClearStatus()", "QLIB_FTM_HSDPA_BER_GetStatus(pHSDPA_BER_State = s)",
         "QLIB_FTM_HSDPA_BER_StopSession()"});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(out.Content(), Hex("73 55"));

    simulator::ForgetLog();
    EXPECT_EQ(run(0, 1, nullptr, 1, nullptr), 1);
    const Texts nulls = Log();
    EXPECT_EQ(nulls[3], Success("QLIB_FTM_HSDPA_BLER_Reconfigure_HS(iReconfigBitmask = "));
    EXPECT_EQ(nulls[7], Success("QLIB_FTM_HSDPA_BLER_Configure_HS_SCCH(iNumCodes = \x01, aiCodes = (null))"));
    EXPECT_EQ(nulls[9], Success("QLIB_FTM_HSDPA_BLER_Configure_HS_DSCH(iH_RNTI = 58370, iNum_HARQ_Processes = \x01, "
                                "bMemPartitionValid = V, aiMemPartitionInfo = (null))"));
}

TEST_F(SignallingTest, EdgeSharesChannelAndSlotsBetweenItsDirectionsAndDoesNotReadTheReservedWords)
{
    EXPECT_EQ(Edge(1), 1);
    const Texts calls{"QLIB_IsPhoneConnected() x6",
                      "QLIB_FTM_GSM_BER_StartSession(4000000003)",
                      "QLIB_FTM_EGPRS_BER_AssignBCCH(58113, 66)",
                      "QLIB_FTM_EGPRS_BER_StartIdleMode()",
                      "QLIB_FTM_EGPRS_BER_Configure_DL_TBF(68, 70, 58113, 66, 65, 49, 90, 50)",
                      "QLIB_FTM_EGPRS_BER_Configure_UL_TBF(85, 83, 71, 65, 49, 90, 50)",
                      "QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK()",
                      "QLIB_FTM_EGPRS_BER_Release_All_TBF()",
                      "QLIB_FTM_EGPRS_BER_ClearStatus()",
                      "QLIB_FTM_EGPRS_BER_GetStatus()",
                      "QLIB_FTM_EGPRS_BER_GetRxMetrics()"};
    EXPECT_EQ(Calls(), calls);
    const Texts log
        = Chain({Step("TANDEKOR_FTM_EGPRS_BER_StartCall(bInitSession = \x01, iChannel = 58113, iBand = B, "
                      "iBCCH_TimeOut_ms = -294967293)",
                      Chain({"QLIB_FTM_GSM_BER_StartSession(iTimeOut_ms = -294967293)",
                             "QLIB_FTM_EGPRS_BER_AssignBCCH(iChannel = 58113, iBand = B)"})),
                 "QLIB_FTM_EGPRS_BER_StartIdleMode()",
                 ("QLIB_FTM_EGPRS_BER_Configure_DL_TBF(iDL_TSC = D, iDL_TFI = F, iChannel = 58113, iBand = B, "
                  "bFirstSlotActive = A, iFirstSlotNum = 1, bSecondSlotActive = Z, iSecondSlotNum = 2)"),
                 ("QLIB_FTM_EGPRS_BER_Configure_UL_TBF(iUL_TSC = U, iUSF = S, iGamma = G, bFirstSlotActive = A, "
                  "iFirstSlotNum = 1, bSecondSlotActive = Z, iSecondSlotNum = 2)"),
                 "QLIB_FTM_EGPRS_BER_Establish_SRB_LOOPBACK()", "QLIB_FTM_EGPRS_BER_Release_All_TBF()",
                 "QLIB_FTM_EGPRS_BER_ClearStatus()", "QLIB_FTM_EGPRS_BER_GetStatus(pEGPRS_BER_State = s)",
                 "QLIB_FTM_EGPRS_BER_GetRxMetrics(piRxLev_average = l)"});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(out.Content(), Ascii("sl"));
    simulator::ForgetCalls();
    EXPECT_EQ(Edge(1, 0xFFFFFFFF), 1);
    EXPECT_EQ(Calls(), calls);
}

TEST_F(SignallingTest, CallOnTheNormalStackIsEndedAtOnce)
{
    Phone().mode = Mode::Online;
    uint8_t digits[] = {'4', '2', '1', '9'};
    EXPECT_EQ(TANDEKOR_StartCall(handle, 3, digits), 1);
    EXPECT_EQ(Calls(), (Texts{"QLIB_IsPhoneConnected() x3", "QLIB_DIAG_GSM_CALL_ORIG_F(3, 34 32 31)",
                              "QLIB_DIAG_GSM_CALL_END_F()"}));
    EXPECT_EQ(Log(), Chain({"QLIB_DIAG_GSM_CALL_ORIG_F(iNumDigits = 3, aiIMSI = 421)", "QLIB_DIAG_GSM_CALL_END_F()"}));
    EXPECT_FALSE(Phone().testCalls.callUp);
    EXPECT_EQ(Sleeps(), Waits{});
}

TEST_F(SignallingTest, WhatAFailedChainOpenedStaysOpen)
{
    simulator::RefuseCall("QLIB_FTM_GSM_BER_AssignTraffic");
    EXPECT_EQ(Gsm(1, 1), 0);
    EXPECT_EQ(LastLogText(), Failure("QLIB_FTM_GSM_BER_AssignTraffic(iLoopbackType = 57603, iSlot = t, iMode = m)"));
    EXPECT_TRUE(Phone().testCalls.gsmSession);
    simulator::RefuseCall("QLIB_FTM_EGPRS_BER_GetStatus");
    EXPECT_EQ(Edge(1), 0);
    EXPECT_EQ(LastLogText(), Failure("QLIB_FTM_EGPRS_BER_GetStatus(pEGPRS_BER_State = l)")) << "the caller's value";
}

}  // namespace tandekor::test
