// The phone between online and FTM mode: by a reset, which is slow and sure, or by the direct mode command.
#include "phone/nv_items.h"
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "procedures/start_mode.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

bool ReportState(const PhoneProcedure& phone, uint8_t* iTMC_State)
{
    return phone.Step(
        "QLIB_DIAG_STATUS_F", "(iTMC_State = %d)",
        [&] { return QLIB_DIAG_STATUS_F(phone.hResourceContext, iTMC_State); }, *iTMC_State);
}

bool WaitForRestart(const PhoneProcedure& phone)
{
    platform::Sleep(18000);  // the phone restarts, and nothing is asked of it
    const platform::TimeLimit limit(40000);
    for (;;)
    {
        if (QLIB_IsPhoneConnected(phone.hResourceContext) != 0)
        {
            platform::Sleep(1000);
            QLIB_IsPhoneConnected(phone.hResourceContext);
            QLIB_IsPhoneConnected(phone.hResourceContext);
            return phone.StepTrace(STEP_START, "Mobile is on");
        }
        platform::Sleep(1000);
        if (limit.Passed())
        {
            phone.StepTrace(STEP_START, "Time for turn mobile on is up");
            return false;
        }
    }
}

// Resets the phone only if the command did not take, and does not wait for its restart.
bool DirectModeChange(const PhoneProcedure& phone, bool toFtm)
{
    uint8_t mode = toFtm ? 1 : 0;
    return phone.CheckConnection() && phone.WriteItem(nv::startMode.number, &mode, nv::startMode.size)
           && phone.SendControl(toFtm ? goToFtm : goOnline)
           && phone.Step(
               "QLIB_IsFTM_Mode", "(pbIsFTMMode = %i)", [&] { return QLIB_IsFTM_Mode(phone.hResourceContext, &mode); },
               mode)
           && ((mode != 0) == toFtm || phone.SendControl(reset));
}

}  // namespace

uint8_t TANDEKOR_ModeChangeResetMobile(ResourceContext hResourceContext, uint8_t bFTMMode)
{
    const PhoneProcedure phone(hResourceContext);
    const auto writeStartMode = [&]
    {
        return phone.Step(
            "TANDEKOR_DIAG_NV_WRITE_F", "(iItemID = 453, pItemData = %u, iLength = 1)",
            [&] { return DIAG_NV_WRITE_F(hResourceContext, nv::startMode.number, &bFTMMode, nv::startMode.size); },
            AddressOf{&bFTMMode});
    };
    return phone.CheckConnection() && phone.SendControl(goOffline)
           && phone.WaitForOffline(ReportState, "Mobile in Offline mode", "Mobile not in OFFLINE mode")
           && writeStartMode() && phone.SendControl(reset) && WaitForRestart(phone);
}

uint8_t TANDEKOR_ONLINE_TO_FTM(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    return DirectModeChange(phone, true);
}

uint8_t TANDEKOR_FTM_TO_ONLINE(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    return DirectModeChange(phone, false);
}
