/*
 * Multi-step procedures: power and mode of the phone, its identification.
 *
 * A procedure writes each of its steps to the text log: a start line, and a result line that ends in "Completed
 * successfully" or "Failure". The first step that fails ends the procedure with the result 0; its line says why, and
 * nothing that earlier steps did is undone. Nearly every procedure begins with a check that the phone answers and ends
 * with the line "Invalid handle" if it does not.
 */
#ifndef TANDEKOR_PROCEDURES_H
#define TANDEKOR_PROCEDURES_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* --- Log and callback */

    /*
     * Opens the host library's text log in the file sLogFile, which is handed on as it is, and writes the version of
     * this library to it. The phone need not answer yet. Gives 1 for every known handle: that the file could not be
     * opened shows by its absence.
     */
    TANDEKOR_API uint8_t TANDEKOR_Start_LOG(ResourceContext hResourceContext, const char* sLogFile);

    /* Called with the status and the percentage (0 to 100) of an upload; a result is not read. */
    typedef void (*TandekorCallback)(uint32_t iStatus, uint32_t iPercent);

    /*
     * Sets the function that uploads report their progress to; null sets none. It holds for all connections of the
     * process until the next call, whatever the handle is.
     */
    TANDEKOR_API void TANDEKOR_SetCallback(ResourceContext hResourceContext, TandekorCallback pCallback);

    /* --- Mode of the phone: online, or FTM (factory test) */

    /*
     * Takes the phone offline, writes the mode in which it starts, resets it and waits until it answers again, which
     * takes about 20 seconds and at most about 72. bFTMMode: 1 for FTM, 0 for online; written as it is.
     */
    TANDEKOR_API uint8_t TANDEKOR_ModeChangeResetMobile(ResourceContext hResourceContext, uint8_t bFTMMode);

    /*
     * Write the mode in which the phone starts and send the direct mode command; only if the command did not take is
     * the phone reset as well, and then these functions do not wait for its restart.
     */
    TANDEKOR_API uint8_t TANDEKOR_ONLINE_TO_FTM(ResourceContext hResourceContext);
    TANDEKOR_API uint8_t TANDEKOR_FTM_TO_ONLINE(ResourceContext hResourceContext);

    /* --- Power of the phone, by a boot box */

    /*
     * Switches the phone on by the boot box, waits up to 28 seconds for its first answer and brings it into the mode
     * asked for, by a reset if need be (then the time of TANDEKOR_ModeChangeResetMobile comes on top).
     * iBootBoxPort: number of the boot box's serial port. The port is opened by the first call for this process alone
     * and stays open until the connection ends; another number than the open one is refused. On Windows the port is
     * COM<number>. Elsewhere it is the device /dev/com<number> if there is one (a link such as /dev/com5 -> ttyUSB0
     * gives a USB adapter a number), else /dev/ttyS<number - 1>.
     * bFTMMode: 1 for FTM, 0 for online; any other value leaves the mode as it is.
     */
    TANDEKOR_API uint8_t TANDEKOR_BootBox_SwitchMobileOn(ResourceContext hResourceContext, uint16_t iBootBoxPort,
                                                         uint8_t bFTMMode);

    /*
     * Takes the phone offline, switches it off by the boot box and by command, and waits up to 10 seconds until it is
     * silent. iBootBoxPort: the port with which the phone was switched on in this connection; another number fails
     * after the phone has gone offline, and a phone that was switched on by other means cannot be switched off here.
     */
    TANDEKOR_API uint8_t TANDEKOR_BootBox_SwitchMobileOff(ResourceContext hResourceContext, uint16_t iBootBoxPort);

    /* --- Identification */

    /*
     * Reads which phone this is. Out: *piVerNumber the hardware variant (16 bits count), *piMSMModel the chip family
     * (1 to 4), *piPhoneModel the phone model that TANDEKOR_GetPhoneModel gives for both. A phone that is not
     * recognised is no failure: chip family or model are then 0. After a failure, values that were not reached keep
     * what they held. There is no check that the phone answers before the first question.
     */
    TANDEKOR_API uint8_t TANDEKOR_Phone_Model(ResourceContext hResourceContext, uint32_t* piVerNumber,
                                              uint32_t* piMSMModel, uint32_t* piPhoneModel);

    /* The phone model of a hardware variant on a chip family, 0 for a pair that is not known. No phone is asked. */
    TANDEKOR_API uint8_t TANDEKOR_GetPhoneModel(ResourceContext hResourceContext, uint32_t iVerNumber,
                                                uint32_t iMSMModel, uint32_t* piPhoneModel);

    /*
     * Reads the identity of the phone's software. All arguments are out. The five texts sCompileDate to sVersionDir:
     * at least 32 bytes each; cleared first, and cut to 11 characters (the dates) or 8 (the times and sVersionDir).
     * pVernoField6 to pVernoField12 go to the host library as they are. sBuildId and sBuildModel: at least 512 bytes.
     * Nothing is compared: the caller judges the values.
     */
    TANDEKOR_API uint8_t TANDEKOR_CheckSWBuild(ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime,
                                               char* sReleaseDate, char* sReleaseTime, char* sVersionDir,
                                               void* pVernoField6, void* pVernoField7, void* pVernoField8,
                                               void* pVernoField9, void* pVernoField10, void* pVernoField11,
                                               void* pVernoField12, uint32_t* iMSMHardwareVersion,
                                               uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel);

    /* --- Pins and cameras that depend on the phone model. Each asks for the model first. */

    /*
     * Switches the light of a keypad row by its pins: on the models 52 to 55 the rows 1 to 6, and 7 for all; on model 3
     * row 7 for the inside keypad and 5 for the outside one, whose drive level is 15 times bOnOff, cut to a byte. A
     * refusal on model 3 goes to standard output.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_SetKeyPadBackLightGPIO(ResourceContext hResourceContext, uint16_t iRowNumber,
                                                             uint8_t bOnOff);

    /*
     * The level of the flip's pin on model 3. *pcFlipState: out, the character '0' or '1'. bSkipModelRead: 0; any other
     * value leaves the model unknown, and the call fails as on another model, which is said on standard output.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_TestFlip(ResourceContext hResourceContext, char* pcFlipState,
                                               uint8_t bSkipModelRead);

    /* Chooses camera 0 or 1 on the models 52 to 55; on 54 the two are exchanged. */
    TANDEKOR_API uint8_t TANDEKOR_FTM_KOLT_CAMERA_SWITCH(ResourceContext hResourceContext, uint8_t iCameraNum);

    /*
     * Starts camera 0 or 1, reads its identification over I2C and stops it. *piCamId: out, the identification in the
     * low 8 bits; written only if it was read.
     */
    TANDEKOR_API uint8_t TANDEKOR_FTM_I2C_GetCameraId(ResourceContext hResourceContext, uint8_t iCamNum,
                                                      uint16_t* piCamId);

#ifdef __cplusplus
}
#endif

#endif
