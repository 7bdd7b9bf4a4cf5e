// The phone between online and FTM mode: by a reset, which is slow and sure, or by the direct mode command.
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "procedures/start_mode.h"

namespace tandekor
{

uint8_t PhoneProcedures::ModeChangeResetMobile(uint8_t bFTMMode)
{
    const auto writeStartMode = [&]
    {
        return Step(
            "TANDEKOR_DIAG_NV_WRITE_F", "(iItemID = 453, pItemData = %u, iLength = 1)",
            [&] { return TANDEKOR_DIAG_NV_WRITE_F(hResourceContext, startModeItem, &bFTMMode, 1); },
            AddressOf{&bFTMMode});
    };
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SendControl(goOffline)
           && WaitForOffline(&PhoneProcedures::ReportState, "Mobile in Offline mode", "Mobile not in OFFLINE mode")
           && writeStartMode() && SendControl(reset) && WaitForRestart();
}

bool PhoneProcedures::ReportState(uint8_t* iTMC_State)
{
    return Step(
        "QLIB_DIAG_STATUS_F", "(iTMC_State = %d)", [&] { return QLIB_DIAG_STATUS_F(hResourceContext, iTMC_State); },
        *iTMC_State);
}

bool PhoneProcedures::WaitForRestart()
{
    platform::Sleep(18000);  // the phone restarts, and nothing is asked of it
    const platform::TimeLimit limit(40000);
    for (;;)
    {
        if (QLIB_IsPhoneConnected(hResourceContext) != 0)
        {
            platform::Sleep(1000);
            QLIB_IsPhoneConnected(hResourceContext);
            QLIB_IsPhoneConnected(hResourceContext);
            return StepTrace(STEP_START, "Mobile is on");
        }
        platform::Sleep(1000);
        if (limit.Passed())
        {
            StepTrace(STEP_START, "Time for turn mobile on is up");
            return false;
        }
    }
}

uint8_t PhoneProcedures::ONLINE_TO_FTM() { return DirectModeChange(true); }

uint8_t PhoneProcedures::FTM_TO_ONLINE() { return DirectModeChange(false); }

// Resets the phone only if the command did not take, and does not wait for its restart.
bool PhoneProcedures::DirectModeChange(bool toFtm)
{
    uint8_t mode = toFtm ? 1 : 0;
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && WriteItem(startModeItem, &mode, 1)
           && SendControl(toFtm ? goToFtm : goOnline)
           && Step(
               "QLIB_IsFTM_Mode", "(pbIsFTMMode = %i)", [&] { return QLIB_IsFTM_Mode(hResourceContext, &mode); }, mode)
           && ((mode != 0) == toFtm || SendControl(reset));
}

}  // namespace tandekor
