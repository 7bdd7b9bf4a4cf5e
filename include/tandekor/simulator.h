/*
 * The simulated phone, steered from a line application in any language: set it up, make it fail, read what was asked of
 * it. These functions are exported by the simulator that stands in for the host library (libQMSL_MSVC6R.so,
 * QMSL_MSVC6R.dll) and by nothing else; a process has one simulator with one phone. docs/simulator.md has examples.
 *
 * Results.   A function of type uint8_t returns 1 when it is done. It returns 0 and changes nothing when an argument
 *            names what does not exist or has a value that is out of range; PHONE_LastError says why.
 * Names.     An operation is a function of the host library by its full name, as in "QLIB_SendRAW". The three of the
 *            text log cannot be refused and are not counted.
 * Numbering. The n-th call is counted from 1, from the moment of the request on.
 * Buffers.   Texts end with a NUL and are cut to the size of the caller's buffer, NUL included. Bytes are copied; null
 *            is allowed for no bytes. Out-arguments and text arguments must not be null.
 * Scripts.   Every function whose comment shows a line in `quotes` can be written in a script as that line. A program
 *            that cannot be changed takes its script from the file that the environment variable TANDEKOR_PHONE names,
 *            which is read when the program connects first.
 */
#ifndef TANDEKOR_SIMULATOR_H
#define TANDEKOR_SIMULATOR_H

#include <stdint.h>

#if defined(_WIN32) && !defined(TANDEKOR_STATIC)
#define PHONE_API __declspec(dllimport)
#elif defined(__GNUC__)
#define PHONE_API __attribute__((visibility("default")))
#else
#define PHONE_API
#endif

#ifdef __cplusplus
extern "C"
{
#endif

    /* Why the last function that returned 0 did so. The text is valid until the next call; never null. */
    PHONE_API const char* PHONE_LastError(void);

    /* `reset`: a fresh phone of model 52, on and online; no scripts, no records. Connections and the log's file stay
     * open. */
    PHONE_API uint8_t PHONE_Reset(void);

    /* One line of a script, or all lines of a file up to the first that is wrong; the error then begins with FILE:LINE.
     * What stands before that line has taken effect. */
    PHONE_API uint8_t PHONE_Run(const char* sLine);
    PHONE_API uint8_t PHONE_RunScript(const char* sFile);

    /* --- the phone */

    /* `model 3`: a fresh phone of this model; scripts and records stay. */
    PHONE_API uint8_t PHONE_SetModel(uint32_t iModel);

    /* `set battery 5`: a value by name. Names that begin with + or ^ are the phone's AT settings, as in `set +CLVL 4`;
     * docs/simulator.md lists the others. Numbers are decimal, or hexadecimal after 0x. */
    PHONE_API uint8_t PHONE_Set(const char* sName, const char* sValue);
    /* iSize: bytes of the buffer at sValue, 1 at least. */
    PHONE_API uint8_t PHONE_Get(const char* sName, char* sValue, uint32_t iSize);

    /* `nv 453 01`: content of an NV item. Reading: *piLength is the item's length in bytes, of which at most iSize are
     * copied; 0 for an item that is not there. */
    PHONE_API uint8_t PHONE_SetNvItem(uint16_t iItem, const uint8_t* pBytes, uint32_t iLength);
    PHONE_API uint8_t PHONE_GetNvItem(uint16_t iItem, uint8_t* pBytes, uint32_t iSize, uint32_t* piLength);
    /* `nv-status 453 5`: the item is refused with this status, when read and when written; status 0 ends that. */
    PHONE_API uint8_t PHONE_SetNvStatus(uint16_t iItem, uint16_t iStatus);

    /* `memory 0x80001000 01 02`: bytes of the phone's memory and of the registers in it. */
    PHONE_API uint8_t PHONE_SetMemory(uint32_t iAddress, const uint8_t* pBytes, uint32_t iLength);
    PHONE_API uint8_t PHONE_GetMemory(uint32_t iAddress, uint8_t* pBytes, uint32_t iLength);
    /* `i2c 0x45 0x222F 13`: content of a register on the I2C bus, by device and register address. */
    PHONE_API uint8_t PHONE_SetI2cRegister(uint8_t iDevice, uint16_t iRegister, const uint8_t* pBytes,
                                           uint32_t iLength);
    /* `adc 1 640`: reading of an ADC channel. */
    PHONE_API uint8_t PHONE_SetAdc(uint16_t iChannel, uint16_t iValue);
    /* `pin 12 1`: level at a pin's input, 0 or 1. *piOutput: the level that the pin was told to drive. */
    PHONE_API uint8_t PHONE_SetPin(uint8_t iPin, uint8_t iLevel);
    PHONE_API uint8_t PHONE_GetPin(uint8_t iPin, uint8_t* piOutput);
    /* `key 32 1`: puts a key event at the end of the key queue. */
    PHONE_API uint8_t PHONE_QueueKey(uint16_t iKey, uint8_t iEvent);

    /* `sim-file 28589 00000002`: file of the SIM card by its number, content as hexadecimal digits. */
    PHONE_API uint8_t PHONE_SetSimFile(uint16_t iFile, const char* sDigits);
    /* `card-file test.txt "abc"`: file of the memory card, name of 1 to 127 characters. */
    PHONE_API uint8_t PHONE_SetCardFile(const char* sName, const uint8_t* pBytes, uint32_t iLength);

    /* `file Pictures/new.jpg FF D8`: a file in the phone's tree; its folders are made. `delete Pictures`: a file, or a
     * folder with all that is in it. Reading is as with an NV item, but 0 is returned for a file that is not there. */
    PHONE_API uint8_t PHONE_SetFile(const char* sPath, const uint8_t* pBytes, uint32_t iLength);
    PHONE_API uint8_t PHONE_GetFile(const char* sPath, uint8_t* pBytes, uint32_t iSize, uint32_t* piLength);
    PHONE_API uint8_t PHONE_DeleteFile(const char* sPath);

    /* --- failures */

    /* `refuse QLIB_SendRAW 3`, `refuse-from QLIB_SendRAW 3`: the n-th call of an operation, or that one and all later
     * ones, has no effect and returns 0. iCall: 1 at least. */
    PHONE_API uint8_t PHONE_Refuse(const char* sOperation, uint32_t iCall);
    PHONE_API uint8_t PHONE_RefuseFrom(const char* sOperation, uint32_t iCall);
    /* `delay QLIB_SendSync 2 1500`: the n-th call takes these milliseconds more. What every answer takes is the value
     * "latency". */
    PHONE_API uint8_t PHONE_Delay(const char* sOperation, uint32_t iCall, uint32_t iMilliseconds);
    /* `silence 2`: that many of the next raw and synchronous exchanges are not answered, and take their time-out.
     * 0xFFFFFFFF: all until the next PHONE_Silence; 0: none. */
    PHONE_API uint8_t PHONE_Silence(uint32_t iExchanges);
    /* `reply QLIB_SendSync 1 - 4B 0B 00`: the reply to the next exchange of QLIB_SendRAW or QLIB_SendSync for which
     * none is queued, in the place of the phone's own. iResult is what the operation returns; iClaimedLength what it
     * reports as the length whatever it delivers, - or -1 for the true one. iLength: up to 65535. */
    PHONE_API uint8_t PHONE_QueueReply(const char* sOperation, uint8_t iResult, int32_t iClaimedLength,
                                       const uint8_t* pBytes, uint32_t iLength);
    /* `obex-response 0x83 0xD3`: the file server answers every packet of this operation with only the response code; 0
     * ends that. */
    PHONE_API uint8_t PHONE_SetObexResponse(uint8_t iOperation, uint8_t iResponse);

    /* --- what was asked */

    /* `record 100000`: how many calls and how many log texts are kept; after twice as many the older half is dropped.
     * 1000 at first. What was kept before is forgotten. */
    PHONE_API uint8_t PHONE_Record(uint32_t iMost);
    /* How often an operation was called since the last PHONE_Reset or PHONE_Record; 0xFFFFFFFF for one that does not
     * exist. */
    PHONE_API uint32_t PHONE_CountCalls(const char* sOperation);
    /* The last call of an operation as "QLIB_DIAG_CONTROL_F(2)": the in-arguments after the handle, numbers in decimal,
     * bytes in hexadecimal. An empty name asks for the last call of all. */
    PHONE_API uint8_t PHONE_LastCall(const char* sOperation, char* sCall, uint32_t iSize);
    /* Texts that the library has written to the text log, muted or not; of those that are kept the n-th, from 1. */
    PHONE_API uint32_t PHONE_CountLogTexts(void);
    PHONE_API uint8_t PHONE_GetLogText(uint32_t iText, char* sText, uint32_t iSize);

#ifdef __cplusplus
}
#endif

#endif
