// The phone's whole way on and off, by its power and by its mode. These procedures write no start texts.
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

bool ReadState(const PhoneProcedure& phone, uint8_t* iTMC_State)
{
    return phone.StepWithoutStart("QLIB_DIAG_STATUS_F", "",
                                  [&] { return QLIB_DIAG_STATUS_F(phone.hResourceContext, iTMC_State); });
}

bool ReadIsFtmMode(const PhoneProcedure& phone, uint8_t* pbIsFTMMode)
{
    return phone.StepWithoutStart(
        "QLIB_IsFTM_Mode", "(pbIsFTMMode = %i)", [&] { return QLIB_IsFTM_Mode(phone.hResourceContext, pbIsFTMMode); },
        *pbIsFTMMode);
}

// A phone that answers only at the last poll is too late.
bool WaitForFirstAnswer(const PhoneProcedure& phone)
{
    constexpr int pollTimeMs = 400;
    constexpr int mostPolls = 70;
    bool answers = QLIB_IsPhoneConnected(phone.hResourceContext) != 0;
    int polls = 0;
    while (!answers && polls < mostPolls)
    {
        phone.StepTrace(STEP_START, "Waiting for mobile to respond(%i ms)", polls * pollTimeMs);
        ++polls;
        platform::Sleep(pollTimeMs);
        answers = QLIB_IsPhoneConnected(phone.hResourceContext) != 0;
    }
    return polls < mostPolls;
}

// 1 asks for FTM mode, 0 for online mode, and any other value leaves the phone as it is.
bool BringIntoMode(const PhoneProcedure& phone, uint8_t bFTMMode)
{
    uint8_t isFtmMode = 0;
    if (!ReadIsFtmMode(phone, &isFtmMode))
        return false;
    if (bFTMMode > 1)
        return true;
    if (isFtmMode == bFTMMode)
        return phone.StepTrace(STEP_START, "Phone already in correct mode");
    return phone.StepWithoutStart(
        "TANDEKOR_ModeChangeResetMobile", "(%d)",
        [&] { return TANDEKOR_ModeChangeResetMobile(phone.hResourceContext, bFTMMode); }, bFTMMode);
}

bool ConfirmMode(const PhoneProcedure& phone, uint8_t bFTMMode)
{
    if (bFTMMode == 1)
    {
        uint8_t isFtmMode = 0;
        if (!ReadIsFtmMode(phone, &isFtmMode))
            return false;
        if (isFtmMode != 1)
        {
            phone.StepTrace(STEP_FAILURE, "Mobile not in FTM mode");
            return false;
        }
    }
    else if (bFTMMode == 0)
    {
        uint8_t state = stateOffline;
        if (!ReadState(phone, &state))
            return false;
        if (state != stateOnline)
        {
            phone.StepTrace(STEP_FAILURE, "Mobile not in Online mode");
            return false;
        }
    }
    return true;
}

}  // namespace

uint8_t TANDEKOR_BootBox_SwitchMobileOn(ResourceContext hResourceContext, uint16_t iBootBoxPort, uint8_t bFTMMode)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.StepWithoutStart(
               "SwitchPhoneOn", "(iBootBoxPort = %i)", [&] { return phone.BootBox().SwitchPhoneOn(iBootBoxPort); },
               iBootBoxPort)
           && WaitForFirstAnswer(phone) && BringIntoMode(phone, bFTMMode) && phone.CheckConnection()
           && ConfirmMode(phone, bFTMMode);
}

namespace
{

bool WaitForSilence(const PhoneProcedure& phone)
{
    const platform::TimeLimit limit(10000);
    platform::Sleep(1);
    while (QLIB_IsPhoneConnected(phone.hResourceContext) != 0)
    {
        platform::Sleep(200);
        if (limit.Passed())
        {
            phone.StepTrace(STEP_FAILURE, "Mobile is still on");
            return false;
        }
    }
    platform::Sleep(1);
    return true;
}

}  // namespace

// The start mode item is written back as it was read. The line is dropped before the phone is told to power down.
uint8_t TANDEKOR_BootBox_SwitchMobileOff(ResourceContext hResourceContext, uint16_t iBootBoxPort)
{
    const PhoneProcedure phone(hResourceContext);
    uint8_t startMode = 0;
    const auto control = [&](uint32_t eMode)
    {
        return phone.StepWithoutStart("QLIB_DIAG_CONTROL_F", "",
                                      [&] { return QLIB_DIAG_CONTROL_F(hResourceContext, eMode); });
    };
    return phone.CheckConnection()
           && phone.StepWithoutStart(
               "TANDEKOR_DIAG_NV_READ_F", "",
               [&] { return DIAG_NV_READ_F(hResourceContext, nv::startMode.number, &startMode, nv::startMode.size); })
           && control(goOffline)
           && phone.WaitForOffline(ReadState, "Mobile is in Offline mode", "Mobile not in Offline mode")
           && phone.StepWithoutStart(
               "TANDEKOR_DIAG_NV_WRITE_F", "",
               [&] { return DIAG_NV_WRITE_F(hResourceContext, nv::startMode.number, &startMode, nv::startMode.size); })
           && phone.StepWithoutStart("SwitchPhoneOff", "", [&] { return phone.BootBox().SwitchPhoneOff(iBootBoxPort); })
           && control(powerDown) && WaitForSilence(phone);
}
