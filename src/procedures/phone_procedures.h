// The multi-step procedures of a connection: how a procedure reports its steps, the steps that several of them share,
// and the procedures themselves. The exported functions of the same names document them.
#pragma once

#include <cstdint>

#include "frame/text_log.h"
#include "procedures/boot_box_port.h"
#include "procedures/step_values.h"

namespace tandekor
{

// First argument of StepTrace. Any other value acts as STEP_START, which is also the level of plain remarks.
constexpr uint8_t STEP_FAILURE = 0;
constexpr uint8_t STEP_SUCCESS = 1;
constexpr uint8_t STEP_START = 2;

struct PinRegisters;

class PhoneProcedures : public BootBoxPort
{
public:
    explicit PhoneProcedures(ResourceContext handle) : hResourceContext(handle) {}

    bool CheckConnection();
    uint8_t Start_LOG(const char* sLogFile);

    // Mode changes.
    uint8_t ModeChangeResetMobile(uint8_t bFTMMode);
    uint8_t ONLINE_TO_FTM();
    uint8_t FTM_TO_ONLINE();

    // NV items and registers.
    bool DIAG_NV_WRITE_F(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength);
    bool DIAG_NV_READ_F(uint16_t iItemID, uint8_t* pItemData, int32_t iLength);
    bool NV_READ_GSM_RX_REL_OFFSETS(uint16_t iItemID, uint8_t* cBin3, int32_t iLength);
    bool DIAG_NV_WRITE_FLUSH_BATCH_QUEUE();
    bool SetBitState_8_Reg(uint32_t iAddress, uint8_t iMask, uint8_t bOnOff);
    bool SetBitState_32_Reg(uint32_t iAddress, uint32_t iMask, uint8_t bOnOff);
    // bitNum 0 to 31; 32 reads the register and finds no bit. *bOnOff becomes the character '0' or '1'.
    bool TK_GetBitState_32_Reg(uint32_t Address, uint16_t bitNum, uint32_t* reg, char* bOnOff);

    // Identification.
    uint8_t Phone_Model(uint32_t* piVerNumber, uint32_t* piMSMModel, uint32_t* piPhoneModel);
    uint8_t GetPhoneModel(uint32_t iVerNumber, uint32_t iMSMModel, uint32_t* piPhoneModel);
    uint8_t CheckSWBuild(char* sCompileDate, char* sCompileTime, char* sReleaseDate, char* sReleaseTime,
                         char* sVersionDir, void* pVernoField6, void* pVernoField7, void* pVernoField8,
                         void* pVernoField9, void* pVernoField10, void* pVernoField11, void* pVernoField12,
                         uint32_t* iMSMHardwareVersion, uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel);

    // Pins and cameras that depend on the phone model.
    uint8_t FTM_SetKeyPadBackLightGPIO(uint16_t iRowNumber, uint8_t bOnOff);
    uint8_t FTM_TestFlip(char* pcFlipState, uint8_t bSkipModelRead);
    uint8_t FTM_KOLT_CAMERA_SWITCH(uint8_t iCameraNum);
    uint8_t FTM_I2C_GetCameraId(uint8_t iCamNum, uint16_t* piCamId);

    // Boot box.
    uint8_t BootBox_SwitchMobileOn(uint16_t iBootBoxPort, uint8_t bFTMMode);
    uint8_t BootBox_SwitchMobileOff(uint16_t iBootBoxPort);

private:
    // --- reporting

    // Writes one text of a procedure to the log, in the form of its level. Always true.
    bool StepTrace(uint8_t iLevel, const char* sFormat, ...) __attribute__((format(printf, 3, 4)));

    // One step: the text that it starts, the call, the text that tells how it ended. The result text is the callee's
    // name with its arguments as a format, filled with the values as they stand behind the call.
    template <typename Call, typename... Values>
    bool Step(const char* name, const char* arguments, Call call, const Values&... values)
    {
        StepTrace(STEP_START, "\t%s() start", name);
        return StepWithoutStart(name, arguments, call, values...);
    }

    template <typename Call, typename... Values>
    bool StepWithoutStart(const char* name, const char* arguments, Call call, const Values&... values)
    {
        const bool done = call() != 0;
        StepTrace(done ? STEP_SUCCESS : STEP_FAILURE, "%s%s", name, FormattedText(arguments, Shown(values)...).Text());
        return done;
    }

    // --- steps that several procedures share

    bool SendControl(uint32_t eMode);
    // Asks for the phone's state, in the log with the state (ReportState) or without (ReadState).
    bool ReportState(uint8_t* iTMC_State);
    bool ReadState(uint8_t* iTMC_State);
    // Asks until the phone is offline.
    bool WaitForOffline(bool (PhoneProcedures::*askState)(uint8_t*), const char* reachedText, const char* missedText);
    bool ReadIsFtmMode(uint8_t* pbIsFTMMode);
    bool AskPhoneModel(uint32_t* piPhoneModel);
    bool WritePin(const PinRegisters& registers, uint32_t mask, uint8_t state, const char* arguments);

    // --- parts of single procedures

    bool DirectModeChange(bool toFtm);
    bool WaitForRestart();
    bool WaitForFirstAnswer();
    bool BringIntoMode(uint8_t bFTMMode);
    bool ConfirmMode(uint8_t bFTMMode);
    bool WaitForSilence();
    bool ReadHardwareVersion(uint32_t* value);
    bool ReadFlipBit(uint32_t address, char* pcFlipState);
    template <typename Value, typename Access>
    bool SetBits(const Access& access, uint32_t iAddress, Value iMask, uint8_t bOnOff);

    ResourceContext hResourceContext;
};

}  // namespace tandekor
