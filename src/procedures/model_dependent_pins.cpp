// Pins that registers control, and the camera, which differ from phone model to phone model: keypad light, flip, camera
// choice, camera identification.
#include "core/operator_output.h"
#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

// The registers of an output pin: one enables it, the other holds its level, by the same bit.
struct PinRegisters
{
    uint32_t oe;
    uint32_t out;
};

namespace
{

constexpr PinRegisters bank0{0x48000000, 0x48000008};
constexpr PinRegisters bank1{0x48000004, 0x4800000C};
constexpr PinRegisters bank2{0x84000150, 0x8400015C};
constexpr PinRegisters bank3{0x84000154, 0x84000160};
constexpr PinRegisters bank4{0x84000158, 0x84000164};

// --- keypad light of the KOLT models. A row of the table may take several writes.

struct LightWrite
{
    uint16_t row;
    PinRegisters registers;
    uint32_t mask;
};
constexpr LightWrite lightWrites[] = {
    {1, bank0, 1u << 6},              //
    {2, bank4, 1u << 22},             //
    {3, bank0, 1u << 3},              //
    {4, bank1, 1u << 11},             //
    {5, bank1, 1u << 9},              //
    {6, bank4, 1u << 25},             //
    {7, bank0, 1u << 3 | 1u << 6},    //
    {7, bank1, 1u << 11 | 1u << 9},   //
    {7, bank4, 1u << 25 | 1u << 22},  //
};
constexpr uint16_t firstPreparedRow = 5;
constexpr uint16_t lastRow = 7;
constexpr uint32_t preparationMask = 0x10;

// --- the two rows of the DRAVOK model

constexpr uint16_t outsideKeypadRow = 5;
constexpr uint16_t insideKeypadRow = 7;
constexpr uint32_t insideKeypadMask = 1u << 13;

// --- flip

constexpr uint16_t flipBit = 9;
constexpr uint32_t flipDirectionRegister = 0x48000004;
constexpr uint32_t flipOutputRegister = 0x4800000C;
constexpr uint32_t flipInputRegister = 0x48000064;

// --- camera choice of the KOLT models: what goes off comes before what goes on

struct CameraWrite
{
    PinRegisters registers;
    uint32_t mask;
    uint8_t state;
};
constexpr CameraWrite cameraWrites[2][4] = {
    {{bank0, 0x4, 0}, {bank1, 0x400, 0}, {bank4, 0x100000, 1}, {bank0, 0x20, 1}},
    {{bank4, 0x100000, 0}, {bank0, 0x20, 0}, {bank0, 0x4, 1}, {bank1, 0x400, 1}},
};

// --- camera identification

constexpr CameraIdRead firstCamera{0x45, 0x222F, 1, 2, 0, 0};

// The pin is enabled before its level goes out. The arguments' text is that of the caller's result lines.
bool WritePin(const PhoneProcedure& phone, const PinRegisters& registers, uint32_t mask, uint8_t state,
              const char* arguments)
{
    constexpr uint8_t on = 1;
    const auto write = [&](uint32_t address, const uint8_t& bit)
    {
        return phone.StepWithoutStart(
            "TK_SetBitState_32_Reg", arguments,
            [&] { return SetBitState_32_Reg(phone.hResourceContext, address, mask, bit); }, address, mask, bit);
    };
    return phone.StepTrace(STEP_START, "TK_SetBitState_32_Reg start for OE REG") && write(registers.oe, on)
           && phone.StepTrace(STEP_START, "TK_SetBitState_32_Reg start for OUT REG") && write(registers.out, state);
}

}  // namespace

uint8_t TANDEKOR_FTM_SetKeyPadBackLightGPIO(ResourceContext hResourceContext, uint16_t iRowNumber, uint8_t bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr char arguments[] = "(Address = %u,  mask = %u, bOnOff = %d";
    phone.StepTrace(STEP_START, "TK_SetKeyPadBackLight() start");
    uint32_t model = 0;
    if (!phone.CheckConnection() || !phone.AskPhoneModel(&model))
        return 0;
    if (IsDravok(model))
    {
        if (iRowNumber == outsideKeypadRow)
            return QLIB_FTM_SET_PMIC_DRIVE_LEVEL(hResourceContext, 1, static_cast<uint8_t>(bOnOff * 15));
        if (iRowNumber == insideKeypadRow)
            return WritePin(phone, bank2, insideKeypadMask, bOnOff, arguments);
        PrintForOperator("\nDRAVOK not support, Please choose 7(Insidekeypad) or 5(OutsideKeypad).");
        return 0;
    }
    if (!IsKolt(model))
    {
        phone.StepTrace(STEP_START, "\tWrong mobile model");
        return 0;
    }
    if (iRowNumber < 1 || iRowNumber > lastRow)
    {
        phone.StepTrace(STEP_START, "\tParameter RowNumber over the range (1-7).");
        return 0;
    }
    if (iRowNumber >= firstPreparedRow && !WritePin(phone, bank3, preparationMask, 1, arguments))
        return 0;
    for (const LightWrite& light : lightWrites)
    {
        if (light.row == iRowNumber && !WritePin(phone, light.registers, light.mask, bOnOff, arguments))
            return 0;
    }
    return 1;
}

namespace
{

bool ReadFlipBit(const PhoneProcedure& phone, uint32_t address, uint32_t* reg, char* pcFlipState)
{
    return phone.StepWithoutStart(
        "TK_GetBitState_32_Reg", "(Address = %u, bitNum = %u, reg = %u, bOnOff = %c)",
        [&] { return TK_GetBitState_32_Reg(phone.hResourceContext, address, flipBit, reg, pcFlipState); }, address,
        flipBit, *reg, *pcFlipState);
}

}  // namespace

// The direction of the pin decides which register holds its level. A second read that fails shows what the first read.
uint8_t TANDEKOR_FTM_TestFlip(ResourceContext hResourceContext, char* pcFlipState, uint8_t bSkipModelRead)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t model = 0;
    if (!phone.CheckConnection() || (bSkipModelRead == 0 && !phone.AskPhoneModel(&model)))
        return 0;
    if (!IsDravok(model))
    {
        PrintForOperator("\nNot support this model");
        return 0;
    }
    uint32_t reg = 0;
    return ReadFlipBit(phone, flipDirectionRegister, &reg, pcFlipState)
           && phone.StepTrace(STEP_START, "TK_GetBitState_32_Reg start")
           && ReadFlipBit(phone, *pcFlipState == '0' ? flipInputRegister : flipOutputRegister, &reg, pcFlipState);
}

uint8_t TANDEKOR_FTM_KOLT_CAMERA_SWITCH(ResourceContext hResourceContext, uint8_t iCameraNum)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr char arguments[] = "(Address = %u,  mask = %u, bOnOff = %d)";
    uint32_t model = 0;
    if (!phone.CheckConnection() || !phone.AskPhoneModel(&model))
        return 0;
    if (!IsKolt(model))
    {
        phone.StepTrace(STEP_START, "\tWrong mobile model");
        return 0;
    }
    if (PhoneModelOf(model).camerasExchanged && iCameraNum <= 1)
        iCameraNum = iCameraNum == 0 ? 1 : 0;
    if (iCameraNum > 1)
    {
        phone.StepTrace(STEP_START, "\tWrong camera number (%d)", iCameraNum);
        return 0;
    }
    for (const CameraWrite& camera : cameraWrites[iCameraNum])
    {
        if (!WritePin(phone, camera.registers, camera.mask, camera.state, arguments))
            return 0;
    }
    phone.StepTrace(STEP_SUCCESS, "TANDEKOR_FTM_KOLT_CAMERA_SWITCH(iCameraNum = %d)", iCameraNum);
    return 1;
}

namespace
{

// Selects the camera. Every camera operation has to succeed and leave the status 0.
bool SelectCamera(const PhoneProcedure& phone, uint8_t iCamNum, uint32_t* cameraStatus)
{
    return phone.StepWithoutStart(
        "QLIB_FTM_CAMERA_SET_SENSOR_ID", "(iCamNum = %d, piCameraStatus = %d)",
        [&]
        {
            return QLIB_FTM_CAMERA_SET_SENSOR_ID(phone.hResourceContext, iCamNum, cameraStatus) != 0
                   && static_cast<uint16_t>(*cameraStatus) == 0;
        },
        iCamNum, LowWordOf{cameraStatus});
}

bool StartCamera(const PhoneProcedure& phone, uint32_t* cameraStatus)
{
    return phone.StepWithoutStart(
        "QLIB_FTM_CAMERA_START", "(piCameraStatus = %d)",
        [&]
        {
            return QLIB_FTM_CAMERA_START(phone.hResourceContext, cameraStatus) != 0
                   && static_cast<uint16_t>(*cameraStatus) == 0;
        },
        LowWordOf{cameraStatus});
}

bool StopCamera(const PhoneProcedure& phone, uint32_t* cameraStatus)
{
    return phone.StepWithoutStart(
        "QLIB_FTM_CAMERA_STOP", "(piCameraStatus = %d)",
        [&] { return QLIB_FTM_CAMERA_STOP(phone.hResourceContext, cameraStatus); }, LowWordOf{cameraStatus});
}

bool ReadCameraId(const PhoneProcedure& phone, const CameraIdRead& read, uint16_t* piCamId)
{
    uint8_t data[2] = {};
    if (!phone.StepWithoutStart(
            "TANDEKOR_FTM_I2C_DATA_ACCESS",
            "(accessType = 0 (READ), slaveAddr = %d, regAddrLen = %d, regAddr = %d, dataLen = %d, data = %d)",
            [&]
            {
                return TANDEKOR_FTM_I2C_DATA_ACCESS2(phone.hResourceContext, 0, read.selector, read.slaveAddr,
                                                     read.regAddrLen, read.regAddr, read.dataLen, data);
            },
            read.slaveAddr, read.regAddrLen, read.regAddr, read.dataLen, data[0]))
        return false;
    *piCamId = data[read.idByte];
    return true;
}

// The camera is stopped once it was asked to start, also after a failure.
bool IdentifyCamera(const PhoneProcedure& phone, uint8_t iCamNum, uint32_t model, uint16_t* piCamId)
{
    if (iCamNum > 1)
    {
        phone.StepTrace(STEP_START, "Parameter iCamId over the range (0-1).");
        return false;
    }
    uint32_t cameraStatus = 4;
    if (!SelectCamera(phone, iCamNum, &cameraStatus))
        return false;
    const CameraIdRead read = iCamNum == 0 ? firstCamera : PhoneModelOf(model).secondCamera;
    const bool identified = StartCamera(phone, &cameraStatus) && ReadCameraId(phone, read, piCamId);
    return StopCamera(phone, &cameraStatus) && identified;
}

}  // namespace

uint8_t TANDEKOR_FTM_I2C_GetCameraId(ResourceContext hResourceContext, uint8_t iCamNum, uint16_t* piCamId)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t model = 0;
    if (!phone.CheckConnection() || !phone.AskPhoneModel(&model))
        return 0;
    const bool identified = IdentifyCamera(phone, iCamNum, model, piCamId);
    if (identified)
        phone.StepTrace(STEP_SUCCESS, "TANDEKOR_FTM_I2C_GetCameraId(iCamNum = %d, iCamId = %d)", iCamNum, *piCamId);
    else
        phone.StepTrace(STEP_FAILURE, "TANDEKOR_FTM_I2C_GetCameraId(iCamNum = %d)", iCamNum);
    phone.StepTrace(STEP_START, "\tTANDEKOR_FTM_I2C_GetCameraId - finish");
    return identified;
}
