// The phone's whole way on and off, by its power and by its mode. These procedures write no start texts.
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "procedures/start_mode.h"
#include "tandekor/procedures.h"

namespace tandekor
{

bool PhoneProcedures::ReadState(uint8_t* iTMC_State)
{
    return StepWithoutStart("QLIB_DIAG_STATUS_F", "", [&] { return QLIB_DIAG_STATUS_F(hResourceContext, iTMC_State); });
}

bool PhoneProcedures::ReadIsFtmMode(uint8_t* pbIsFTMMode)
{
    return StepWithoutStart(
        "QLIB_IsFTM_Mode", "(pbIsFTMMode = %i)", [&] { return QLIB_IsFTM_Mode(hResourceContext, pbIsFTMMode); },
        *pbIsFTMMode);
}

// A phone that answers only at the last poll is too late.
bool PhoneProcedures::WaitForFirstAnswer()
{
    constexpr int pollTimeMs = 400;
    constexpr int mostPolls = 70;
    bool answers = QLIB_IsPhoneConnected(hResourceContext) != 0;
    int polls = 0;
    while (!answers && polls < mostPolls)
    {
        StepTrace(STEP_START, "Waiting for mobile to respond(%i ms)", polls * pollTimeMs);
        ++polls;
        platform::Sleep(pollTimeMs);
        answers = QLIB_IsPhoneConnected(hResourceContext) != 0;
    }
    return polls < mostPolls;
}

// 1 asks for FTM mode, 0 for online mode, and any other value leaves the phone as it is.
bool PhoneProcedures::BringIntoMode(uint8_t bFTMMode)
{
    uint8_t isFtmMode = 0;
    if (!ReadIsFtmMode(&isFtmMode))
        return false;
    if (bFTMMode > 1)
        return true;
    if (isFtmMode == bFTMMode)
        return StepTrace(STEP_START, "Phone already in correct mode");
    return StepWithoutStart(
        "TANDEKOR_ModeChangeResetMobile", "(%d)",
        [&] { return TANDEKOR_ModeChangeResetMobile(hResourceContext, bFTMMode); }, bFTMMode);
}

bool PhoneProcedures::ConfirmMode(uint8_t bFTMMode)
{
    if (bFTMMode == 1)
    {
        uint8_t isFtmMode = 0;
        if (!ReadIsFtmMode(&isFtmMode))
            return false;
        if (isFtmMode != 1)
        {
            StepTrace(STEP_FAILURE, "Mobile not in FTM mode");
            return false;
        }
    }
    else if (bFTMMode == 0)
    {
        uint8_t state = stateOffline;
        if (!ReadState(&state))
            return false;
        if (state != stateOnline)
        {
            StepTrace(STEP_FAILURE, "Mobile not in Online mode");
            return false;
        }
    }
    return true;
}

uint8_t PhoneProcedures::BootBox_SwitchMobileOn(uint16_t iBootBoxPort, uint8_t bFTMMode)
{
    return StepWithoutStart(
               "SwitchPhoneOn", "(iBootBoxPort = %i)", [&] { return SwitchPhoneOn(iBootBoxPort); }, iBootBoxPort)
           && WaitForFirstAnswer() && BringIntoMode(bFTMMode) && TANDEKOR_CheckConnection(hResourceContext) != 0
           && ConfirmMode(bFTMMode);
}

bool PhoneProcedures::WaitForSilence()
{
    const platform::TimeLimit limit(10000);
    platform::Sleep(1);
    while (QLIB_IsPhoneConnected(hResourceContext) != 0)
    {
        platform::Sleep(200);
        if (limit.Passed())
        {
            StepTrace(STEP_FAILURE, "Mobile is still on");
            return false;
        }
    }
    platform::Sleep(1);
    return true;
}

// The start mode item is written back as it was read. The line is dropped before the phone is told to power down.
uint8_t PhoneProcedures::BootBox_SwitchMobileOff(uint16_t iBootBoxPort)
{
    uint8_t startMode = 0;
    const auto control = [&](uint32_t eMode) {
        return StepWithoutStart("QLIB_DIAG_CONTROL_F", "",
                                [&] { return QLIB_DIAG_CONTROL_F(hResourceContext, eMode); });
    };
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && StepWithoutStart("TANDEKOR_DIAG_NV_READ_F", "",
                               [&] { return TANDEKOR_DIAG_NV_READ_F(hResourceContext, startModeItem, &startMode, 1); })
           && control(goOffline)
           && WaitForOffline(&PhoneProcedures::ReadState, "Mobile is in Offline mode", "Mobile not in Offline mode")
           && StepWithoutStart("TANDEKOR_DIAG_NV_WRITE_F", "",
                               [&] { return TANDEKOR_DIAG_NV_WRITE_F(hResourceContext, startModeItem, &startMode, 1); })
           && StepWithoutStart("SwitchPhoneOff", "", [&] { return SwitchPhoneOff(iBootBoxPort); }) && control(powerDown)
           && WaitForSilence();
}

}  // namespace tandekor
