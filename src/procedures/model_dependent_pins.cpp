// Pins behind registers and the camera, which differ from phone model to phone model: keypad light, flip, camera
// choice, camera identification.
#include "core/operator_output.h"
#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

namespace tandekor
{

// The registers of an output pin: one enables it, the other gives its level, by the same bit.
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

// --- camera choice of the KOLT models: what goes off stands in front of what comes on

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

// --- where a camera is identified over I2C

struct CameraIdRead
{
    uint8_t slaveAddr;
    uint16_t regAddr;
    uint8_t dataLen;
    uint8_t regAddrLen;
    uint8_t selector;
    uint8_t idByte;  // which byte of the data is the identification
};

CameraIdRead CameraIdReadOf(uint8_t camera, uint32_t model)
{
    if (camera == 0)
        return {0x45, 0x222F, 1, 2, 0, 0};
    if (model >= 12 && model <= 25)
        return {0x51, 0, 2, 2, 0, 1};
    if (IsKolt(model))
        return {0x47, 0x2560, 1, 2, 0, 0};
    if (model == dravok)
        return {0x21, 0x0B, 1, 1, 1, 0};
    return {0, 0, 0, 2, 0, 0};
}

}  // namespace

// The pin is enabled before its level goes out. The arguments' text is that of the caller's result lines.
bool PhoneProcedures::WritePin(const PinRegisters& registers, uint32_t mask, uint8_t state, const char* arguments)
{
    constexpr uint8_t on = 1;
    const auto write = [&](uint32_t address, const uint8_t& bit)
    {
        return StepWithoutStart(
            "TK_SetBitState_32_Reg", arguments, [&] { return SetBitState_32_Reg(address, mask, bit); }, address, mask,
            bit);
    };
    return StepTrace(STEP_START, "TK_SetBitState_32_Reg start for OE REG") && write(registers.oe, on)
           && StepTrace(STEP_START, "TK_SetBitState_32_Reg start for OUT REG") && write(registers.out, state);
}

uint8_t PhoneProcedures::FTM_SetKeyPadBackLightGPIO(uint16_t iRowNumber, uint8_t bOnOff)
{
    constexpr char arguments[] = "(Address = %u,  mask = %u, bOnOff = %d";
    StepTrace(STEP_START, "TK_SetKeyPadBackLight() start");
    uint32_t model = 0;
    if (TANDEKOR_CheckConnection(hResourceContext) == 0 || !AskPhoneModel(&model))
        return 0;
    if (model == dravok)
    {
        if (iRowNumber == outsideKeypadRow)
            return QLIB_FTM_SET_PMIC_DRIVE_LEVEL(hResourceContext, 1, static_cast<uint8_t>(bOnOff * 15));
        if (iRowNumber == insideKeypadRow)
            return WritePin(bank2, insideKeypadMask, bOnOff, arguments);
        PrintForOperator("\nDRAVOK not support, Please choose 7(Insidekeypad) or 5(OutsideKeypad).");
        return 0;
    }
    if (!IsKolt(model))
    {
        StepTrace(STEP_START, "\tWrong mobile model");
        return 0;
    }
    if (iRowNumber < 1 || iRowNumber > lastRow)
    {
        StepTrace(STEP_START, "\tParameter RowNumber over the range (1-7).");
        return 0;
    }
    if (iRowNumber >= firstPreparedRow && !WritePin(bank3, preparationMask, 1, arguments))
        return 0;
    for (const LightWrite& light : lightWrites)
    {
        if (light.row == iRowNumber && !WritePin(light.registers, light.mask, bOnOff, arguments))
            return 0;
    }
    return 1;
}

bool PhoneProcedures::ReadFlipBit(uint32_t address, char* pcFlipState)
{
    uint32_t reg = 0;
    return StepWithoutStart(
        "TK_GetBitState_32_Reg", "(Address = %u, bitNum = %u, reg = %u, bOnOff = %c)",
        [&] { return TK_GetBitState_32_Reg(address, flipBit, &reg, pcFlipState); }, address, flipBit, reg,
        *pcFlipState);
}

// The direction of the pin decides which register gives its level.
uint8_t PhoneProcedures::FTM_TestFlip(char* pcFlipState, uint8_t bSkipModelRead)
{
    uint32_t model = 0;
    if (TANDEKOR_CheckConnection(hResourceContext) == 0 || (bSkipModelRead == 0 && !AskPhoneModel(&model)))
        return 0;
    if (model != dravok)
    {
        PrintForOperator("\nNot support this model");
        return 0;
    }
    return ReadFlipBit(flipDirectionRegister, pcFlipState) && StepTrace(STEP_START, "TK_GetBitState_32_Reg start")
           && ReadFlipBit(*pcFlipState == '0' ? flipInputRegister : flipOutputRegister, pcFlipState);
}

uint8_t PhoneProcedures::FTM_KOLT_CAMERA_SWITCH(uint8_t iCameraNum)
{
    constexpr char arguments[] = "(Address = %u,  mask = %u, bOnOff = %d)";
    constexpr uint32_t modelWithExchangedCameras = 54;
    uint32_t model = 0;
    if (TANDEKOR_CheckConnection(hResourceContext) == 0 || !AskPhoneModel(&model))
        return 0;
    if (!IsKolt(model))
    {
        StepTrace(STEP_START, "\tWrong mobile model");
        return 0;
    }
    if (model == modelWithExchangedCameras && iCameraNum <= 1)
        iCameraNum = iCameraNum == 0 ? 1 : 0;
    if (iCameraNum > 1)
    {
        StepTrace(STEP_START, "\tWrong camera number (%d)", iCameraNum);
        return 0;
    }
    for (const CameraWrite& camera : cameraWrites[iCameraNum])
    {
        if (!WritePin(camera.registers, camera.mask, camera.state, arguments))
            return 0;
    }
    StepTrace(STEP_SUCCESS, "TANDEKOR_FTM_KOLT_CAMERA_SWITCH(iCameraNum = %d)", iCameraNum);
    return 1;
}

// The camera is stopped once it was asked to start, also after a failure.
uint8_t PhoneProcedures::FTM_I2C_GetCameraId(uint8_t iCamNum, uint16_t* piCamId)
{
    uint32_t model = 0;
    if (TANDEKOR_CheckConnection(hResourceContext) == 0 || !AskPhoneModel(&model))
        return 0;

    uint32_t cameraStatus = 4;
    const auto statusIsGood = [&] { return static_cast<uint16_t>(cameraStatus) == 0; };
    const auto stopCamera = [&]
    {
        return StepWithoutStart(
            "QLIB_FTM_CAMERA_STOP", "(piCameraStatus = %d)",
            [&] { return QLIB_FTM_CAMERA_STOP(hResourceContext, &cameraStatus); }, LowWordOf{&cameraStatus});
    };
    const auto fail = [&]
    {
        StepTrace(STEP_FAILURE, "TANDEKOR_FTM_I2C_GetCameraId(iCamNum = %d)", iCamNum);
        StepTrace(STEP_START, "\tTANDEKOR_FTM_I2C_GetCameraId - finish");
        return uint8_t{0};
    };

    if (iCamNum > 1)
    {
        StepTrace(STEP_START, "Parameter iCamId over the range (0-1).");
        return fail();
    }
    if (!StepWithoutStart(
            "QLIB_FTM_CAMERA_SET_SENSOR_ID", "(iCamNum = %d, piCameraStatus = %d)",
            [&]
            { return QLIB_FTM_CAMERA_SET_SENSOR_ID(hResourceContext, iCamNum, &cameraStatus) != 0 && statusIsGood(); },
            iCamNum, LowWordOf{&cameraStatus}))
        return fail();
    const CameraIdRead read = CameraIdReadOf(iCamNum, model);
    uint8_t data[2] = {};
    const bool identified
        = StepWithoutStart(
              "QLIB_FTM_CAMERA_START", "(piCameraStatus = %d)",
              [&] { return QLIB_FTM_CAMERA_START(hResourceContext, &cameraStatus) != 0 && statusIsGood(); },
              LowWordOf{&cameraStatus})
          && StepWithoutStart(
              "TANDEKOR_FTM_I2C_DATA_ACCESS",
              "(accessType = 0 (READ), slaveAddr = %d, regAddrLen = %d, regAddr = %d, dataLen = %d, "
              "data = %d)",
              [&]
              {
                  return TANDEKOR_FTM_I2C_DATA_ACCESS2(hResourceContext, 0, read.selector, read.slaveAddr,
                                                       read.regAddrLen, read.regAddr, read.dataLen, data);
              },
              read.slaveAddr, read.regAddrLen, read.regAddr, read.dataLen, data[0]);
    if (identified)
        *piCamId = data[read.idByte];
    if (!stopCamera() || !identified)
        return fail();
    StepTrace(STEP_SUCCESS, "TANDEKOR_FTM_I2C_GetCameraId(iCamNum = %d, iCamId = %d)", iCamNum, *piCamId);
    StepTrace(STEP_START, "\tTANDEKOR_FTM_I2C_GetCameraId - finish");
    return 1;
}

}  // namespace tandekor
