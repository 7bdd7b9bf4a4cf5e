// Steps that several procedures take.
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "procedures/start_mode.h"
#include "tandekor/procedures.h"

namespace tandekor
{

bool PhoneProcedure::SendControl(uint32_t eMode) const
{
    return CallStep("QLIB_DIAG_CONTROL_F", QLIB_DIAG_CONTROL_F, "(eMode = %d)", eMode);
}

bool PhoneProcedure::WaitForOffline(bool (*askState)(const PhoneProcedure&, uint8_t*), const char* reachedText,
                                    const char* missedText) const
{
    uint8_t state = stateOnline;
    const platform::TimeLimit limit(12000);
    while (limit.Running())
    {
        if (!askState(*this, &state))
            return false;
        if (state == stateOffline)
            return StepTrace(STEP_START, "%s", reachedText);
        platform::Sleep(250);
    }
    StepTrace(STEP_FAILURE, "%s", missedText);
    return false;
}

bool PhoneProcedure::WriteItem(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength) const
{
    return Step(
        "TANDEKOR_DIAG_NV_WRITE_F", "(iItemID = %d, pItemData = %s, iLength = %i)",
        [&] { return tandekor::DIAG_NV_WRITE_F(hResourceContext, iItemID, pItemData, iLength); }, iItemID,
        ItemOf<textBufferSize>(pItemData, iLength), iLength);
}

bool PhoneProcedure::ReadItem(uint16_t iItemID, uint8_t* cBin3, int32_t iLength) const
{
    return Step(
        "TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS", "(iItemID = %d, cBin3 = %s, iLength = %i)",
        [&] { return tandekor::NV_READ_GSM_RX_REL_OFFSETS(hResourceContext, iItemID, cBin3, iLength); }, iItemID,
        ItemOf<textBufferSize>(cBin3, iLength), iLength);
}

bool PhoneProcedure::SetMode(uint16_t eNewMode) const
{
    return CallStep("QLIB_FTM_SET_MODE", QLIB_FTM_SET_MODE, "(eNewMode = %d)", eNewMode);
}

bool PhoneProcedure::SetChannel(uint16_t iChannel) const
{
    return CallStep("QLIB_FTM_SET_CHAN", QLIB_FTM_SET_CHAN, "(iChannel = %d)", iChannel);
}

bool PhoneProcedure::SetLnaRange(uint8_t iLNArange) const
{
    return CallStep("QLIB_FTM_SET_LNA_RANGE", QLIB_FTM_SET_LNA_RANGE, "(iLNArange = %c)", iLNArange);
}

bool PhoneProcedure::TxOn() const { return CallStep("QLIB_FTM_SET_TX_ON", QLIB_FTM_SET_TX_ON, "()"); }

bool PhoneProcedure::TxOff() const { return CallStep("QLIB_FTM_SET_TX_OFF", QLIB_FTM_SET_TX_OFF, "()"); }

bool PhoneProcedure::SetMicrophoneBias(uint16_t iAudioDevice) const
{
    return CallStep("TANDEKOR_MicrophoneBiasVoltages", TANDEKOR_MicrophoneBiasVoltages, "(iAudioDevice = %d)",
                    iAudioDevice);
}

bool PhoneProcedure::AskPhoneModel(uint32_t* piPhoneModel) const
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
