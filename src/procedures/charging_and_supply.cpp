// The phone's charger, and its supply lines by phone model. Nothing is measured here: the caller does that from
// outside.
#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr uint8_t deepestLowPowerMode = 3;

// Charger limits, as their first value, last value and step.
struct LimitRange
{
    uint32_t first;
    uint32_t last;
    uint32_t step;

    bool Holds(uint32_t value) const { return value >= first && value <= last; }
    uint8_t IndexOf(uint32_t value) const { return static_cast<uint8_t>((value - first) / step); }
};
constexpr LimitRange voltageLimits{4000, 4375, 25};
constexpr LimitRange currentLimits{10, 300, 10};

constexpr uint32_t transistorStatusId = 11;
constexpr uint8_t readableTransistor = 1;

// Register bits of the supply.
constexpr uint32_t biasRegister = 0x84000160;
constexpr uint8_t biasMask = 0x10;
constexpr uint32_t modeRegister = 0x8400015C;
constexpr uint32_t modeMask = 0x20000000;
constexpr uint32_t supplyRegister = 0x84000164;
constexpr uint32_t supplyMask = 0x00080000;

// --- charging
bool SetChargerSwitch(const PhoneProcedure& phone, uint32_t iChargerSwitchType, uint8_t iChargerSwitchCommand)
{
    return phone.CallStep("QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE", QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE,
                          "(iChargerSwitchType = %i, iChargerSwitchCommand = %c)", iChargerSwitchType,
                          iChargerSwitchCommand);
}

}  // namespace

// The deepest low power mode is reported like a failure, and the procedure goes on.
uint8_t TANDEKOR_Charging_Test(ResourceContext hResourceContext, uint8_t iLowPowerMode, uint8_t iChargerSwitchCommand7,
                               uint8_t eChgTransistor, uint8_t bState, uint8_t iChargerSwitchCommand3,
                               uint32_t iVoltage, uint32_t iCurrent, uint8_t eChgTransistorRead, uint8_t* pbState)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection()
        || !phone.CallStep("TANDEKOR_FTM_SET_LOW_POWER_MODE", TANDEKOR_FTM_SET_LOW_POWER_MODE, "(iLowPowerMode = %c)",
                           iLowPowerMode))
        return 0;
    if (iLowPowerMode == deepestLowPowerMode)
    {
        phone.StepTrace(STEP_FAILURE, "[!!! LPM3 -> PHONE HAS TO BE RESET NOW !!!]");
        phone.StepTrace(STEP_FAILURE, "[!!! NO MORE COMMUNICATION POSSIBLE !!!]");
    }
    return SetChargerSwitch(phone, 7, iChargerSwitchCommand7)
           && phone.CallStep("TANDEKOR_SpecialSetChargeFetState", SpecialSetChargeFetState,
                             "(eChgTransistor = %c, bState = %c)", eChgTransistor, bState)
           && SetChargerSwitch(phone, 3, iChargerSwitchCommand3)
           && phone.CallStep("TANDEKOR_SpecialSetPmicChargeLimits", SpecialSetPmicChargeLimits,
                             "(iVoltage = %d, iCurrent = %d)", iVoltage, iCurrent)
           && phone.Step(
               "TANDEKOR_SpecialGetChargeFetState", "(eChgTransistor = %c, bState = %c)",
               [&] { return SpecialGetChargeFetState(hResourceContext, eChgTransistorRead, pbState); },
               eChgTransistorRead, *pbState);
}

bool tandekor::SpecialSetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t bState)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && eChgTransistor <= 1 && SetChargerSwitch(phone, eChgTransistor, bState);
}

bool tandekor::SpecialSetPmicChargeLimits(ResourceContext hResourceContext, uint32_t iVoltage, uint32_t iCurrent)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    if (!voltageLimits.Holds(iVoltage) || !currentLimits.Holds(iCurrent))
    {
        phone.StepTrace(STEP_FAILURE, "Parameter out of range.");
        return false;
    }
    return phone.CallStep("QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS",
                          QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS,
                          "(iChargerMaxCurrent = %c, iChargerMaxVoltage = %c)", currentLimits.IndexOf(iCurrent),
                          voltageLimits.IndexOf(iVoltage));
}

bool tandekor::SpecialGetChargeFetState(ResourceContext hResourceContext, uint8_t eChgTransistor, uint8_t* pbState)
{
    const PhoneProcedure phone(hResourceContext);
    uint8_t status = 0;
    if (!phone.CheckConnection() || eChgTransistor != readableTransistor
        || !phone.Step(
            "QLIB_FTM_PMIC_INT_GET_RT_STATUS", "(iInterruptStatusId = 11, piInterruptStatus = %c)",
            [&] { return QLIB_FTM_PMIC_INT_GET_RT_STATUS(hResourceContext, transistorStatusId, &status); }, status))
        return false;
    *pbState = status == 1 ? 1 : 0;
    return true;
}

// --- supply

namespace
{

bool AskModelQuietly(const PhoneProcedure& phone, uint32_t* piPhoneModel)
{
    uint32_t verNumber = 0;
    uint32_t msmModel = 0;
    *piPhoneModel = 0;
    return phone.Step("TANDEKOR_Phone_Model", "()",
                      [&]
                      { return TANDEKOR_Phone_Model(phone.hResourceContext, &verNumber, &msmModel, piPhoneModel); });
}

bool ConfigureCameraSwitch(const PhoneProcedure& phone, uint8_t iCameraNum)
{
    return phone.Step(
        "TANDEKOR_FTM_CONFIGURE_SWITCH", "(iSwitchID = 1, iSwitchState = %d)",
        [&] { return TANDEKOR_FTM_CONFIGURE_SWITCH(phone.hResourceContext, 1, iCameraNum); }, iCameraNum);
}

// The address has one digit more in the success line.
bool SetBiasBit(const PhoneProcedure& phone)
{
    constexpr uint8_t on = 1;
    phone.StepTrace(STEP_START, "\tTANDEKOR_SetBitState_8_Reg() start");
    const bool done = SetBitState_8_Reg(phone.hResourceContext, biasRegister, biasMask, on) != 0;
    if (done)
        phone.StepTrace(STEP_SUCCESS, "TANDEKOR_SetBitState_8_Reg(iAddress = 0x%x0 + 0, iMask = 0x10, bOnOff = %d)",
                        biasRegister, on);
    else
        phone.StepTrace(STEP_FAILURE, "TANDEKOR_SetBitState_8_Reg(iAddress = 0x%x + 0, iMask = 0x10, bOnOff = %d)",
                        biasRegister, on);
    return done;
}

bool SetModeBit(const PhoneProcedure& phone, uint8_t bOnOff)
{
    return phone.Step(
        "TANDEKOR_SetBitState_32_Reg", "(iAddress = 0x%x, iMask = 0x20000000, bOnOff = %d)",
        [&] { return SetBitState_32_Reg(phone.hResourceContext, modeRegister, modeMask, bOnOff); }, modeRegister,
        bOnOff);
}

bool SetSupplyBit(const PhoneProcedure& phone, uint8_t bOnOff)
{
    return phone.Step(
        "TANDEKOR_SetBitState_32_Reg", "(iAddress = 0x%x, iMask = 0x00080000, bOnOff = %d)",
        [&] { return SetBitState_32_Reg(phone.hResourceContext, supplyRegister, supplyMask, bOnOff); }, supplyRegister,
        bOnOff);
}

bool SetBacklight(const PhoneProcedure& phone, uint8_t iLevel)
{
    return phone.CallStep("TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL", TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL, "(iLevel = %d)",
                          iLevel);
}

}  // namespace

uint8_t TANDEKOR_SupplyVoltageTest(ResourceContext hResourceContext, uint8_t iCameraNum, uint8_t iLevel,
                                   uint8_t iSupplyMode, uint8_t bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return 0;
    if (iCameraNum > 1)
    {
        phone.StepTrace(STEP_FAILURE, "Wrong camera number");
        return 0;
    }
    uint32_t model = 0;
    if (!AskModelQuietly(phone, &model))
        return 0;
    const Supply supply = PhoneModelOf(model).supply;
    if (supply == Supply::TwoBits)
    {
        const uint8_t mode = iSupplyMode == 1 || iSupplyMode == 2 ? 1 : 0;
        return ConfigureCameraSwitch(phone, iCameraNum) && SetBiasBit(phone) && SetModeBit(phone, mode)
               && SetBacklight(phone, iLevel) && SetSupplyBit(phone, bOnOff);
    }
    if (supply == Supply::OneBit)
        return ConfigureCameraSwitch(phone, iCameraNum) && SetBacklight(phone, iLevel) && SetSupplyBit(phone, bOnOff);
    // If the switch is refused, the camera switch is used instead.
    return supply == Supply::CameraSwitch
           && (ConfigureCameraSwitch(phone, iCameraNum)
               || phone.CallStep("TANDEKOR_FTM_KOLT_CAMERA_SWITCH", TANDEKOR_FTM_KOLT_CAMERA_SWITCH,
                                 "(iCameraNum = %i)", iCameraNum))
           && SetBacklight(phone, iLevel);
}

uint8_t TANDEKOR_SpecialSwitchAccSupplyVoltage(ResourceContext hResourceContext, uint8_t bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t model = 0;
    if (!phone.CheckConnection() || !AskModelQuietly(phone, &model))
        return 0;
    const Supply supply = PhoneModelOf(model).supply;
    return (supply == Supply::TwoBits || supply == Supply::OneBit) && SetSupplyBit(phone, bOnOff);
}
