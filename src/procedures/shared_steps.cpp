// Steps that several procedures take.
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "procedures/start_mode.h"
#include "tandekor/procedures.h"

namespace tandekor
{

bool PhoneProcedures::SendControl(uint32_t eMode)
{
    return CallStep("QLIB_DIAG_CONTROL_F", QLIB_DIAG_CONTROL_F, "(eMode = %d)", eMode);
}

bool PhoneProcedures::WaitForOffline(bool (PhoneProcedures::*askState)(uint8_t*), const char* reachedText,
                                     const char* missedText)
{
    uint8_t state = stateOnline;
    const platform::TimeLimit limit(12000);
    while (limit.Running())
    {
        if (!(this->*askState)(&state))
            return false;
        if (state == stateOffline)
            return StepTrace(STEP_START, "%s", reachedText);
        platform::Sleep(250);
    }
    StepTrace(STEP_FAILURE, "%s", missedText);
    return false;
}

bool PhoneProcedures::WriteItem(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength)
{
    return Step(
        "TANDEKOR_DIAG_NV_WRITE_F", "(iItemID = %d, pItemData = %s, iLength = %i)",
        [&] { return TANDEKOR_DIAG_NV_WRITE_F(hResourceContext, iItemID, pItemData, iLength); }, iItemID,
        ItemText<textAreaSize>(pItemData, iLength), iLength);
}

bool PhoneProcedures::ReadItem(uint16_t iItemID, uint8_t* cBin3, int32_t iLength)
{
    return Step(
        "TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS", "(iItemID = %d, cBin3 = %s, iLength = %i)",
        [&] { return TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS(hResourceContext, iItemID, cBin3, iLength); }, iItemID,
        ItemText<textAreaSize>(cBin3, iLength), iLength);
}

bool PhoneProcedures::SetMode(uint16_t eNewMode)
{
    return CallStep("QLIB_FTM_SET_MODE", QLIB_FTM_SET_MODE, "(eNewMode = %d)", eNewMode);
}

bool PhoneProcedures::SetChannel(uint16_t iChannel)
{
    return CallStep("QLIB_FTM_SET_CHAN", QLIB_FTM_SET_CHAN, "(iChannel = %d)", iChannel);
}

bool PhoneProcedures::SetLnaRange(uint8_t iLNArange)
{
    return CallStep("QLIB_FTM_SET_LNA_RANGE", QLIB_FTM_SET_LNA_RANGE, "(iLNArange = %c)", iLNArange);
}

bool PhoneProcedures::TxOn() { return CallStep("QLIB_FTM_SET_TX_ON", QLIB_FTM_SET_TX_ON, "()"); }

bool PhoneProcedures::TxOff() { return CallStep("QLIB_FTM_SET_TX_OFF", QLIB_FTM_SET_TX_OFF, "()"); }

bool PhoneProcedures::SetMicrophoneBias(uint16_t iAudioDevice)
{
    return CallStep("TANDEKOR_MicrophoneBiasVoltages", TANDEKOR_MicrophoneBiasVoltages, "(iAudioDevice = %d)",
                    iAudioDevice);
}

bool PhoneProcedures::AskPhoneModel(uint32_t* piPhoneModel)
{
    uint32_t verNumber = 0;
    uint32_t msmModel = 0;
    *piPhoneModel = 0;
    return Step(
        "TANDEKOR_Phone_Model", "(piVerNumber = %i, piMSMModel = %i, piPhoneModel = %i)",
        [&] { return TANDEKOR_Phone_Model(hResourceContext, &verNumber, &msmModel, piPhoneModel); }, verNumber,
        msmModel, *piPhoneModel);
}

}  // namespace tandekor
