/*
 * AT commands on the phone's diagnostic port, by 3GPP TS 27.007 and V.250; commands that begin with ^ are the phone
 * maker's own.
 *
 * Each function sends one command and waits up to 3 seconds for the reply, unless it says more. The result says only
 * whether the exchange with the phone worked. What the phone answered stands in *pStatus (out, always the last
 * argument): 0 for a reply that ends in OK, 1 for one that ends in ERROR, 2 for any other ending, a "+CME ERROR: ..."
 * line among them. Look at both: after an ERROR the out-values hold what happens to stand in the reply at their places.
 * After a failed exchange no argument is written, *pStatus included.
 *
 * Let the phone echo commands (ATE1): values are read at fixed places of the reply, counted with the echo. Without it
 * the places are right only where they are counted from the front and the echo would take nine bytes, as that of
 * AT+CMUT? does; what is read from the reply's end is then missed. TANDEKOR_AT_CRSM alone wants no echo. A reply that
 * is too short for a value reads as the digit 0 (the character 0xBB where characters are handed over).
 *
 * In the QPST library mode every function gives 0 and sends nothing. The log gets one text a call, at its start.
 */
#ifndef TANDEKOR_AT_H
#define TANDEKOR_AT_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* --- Commands without a value */

    /* Takes the port from AT commands to the phone's OBEX server (^SQWE=3); TANDEKOR_OBEX_2_AT takes it back. */
    TANDEKOR_API uint8_t TANDEKOR_AT_2_OBEX(ResourceContext hResourceContext, uint16_t* pStatus);

    /* Plays a ring melody (+CRMP). */
    TANDEKOR_API uint8_t TANDEKOR_AT_CRMP(ResourceContext hResourceContext, uint16_t* pStatus);

    /* Ends all calls (+CHUP). */
    TANDEKOR_API uint8_t TANDEKOR_AT_CHUP(ResourceContext hResourceContext, uint16_t* pStatus);

    /* --- One digit. Get: *piValue out, the digit of the reply, 0 if there is none. Set: only the first digit of iValue
     * is sent, so that 25 goes out as 2 */

    /* Mute control (+CMUT). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CMUT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CMUT(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Alert sound mode (+CALM). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CALM(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CALM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Ringer sound level (+CRSL). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CRSL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CRSL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Loudspeaker volume level (+CLVL). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CLVL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CLVL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Automatic time zone update (+CTZU). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CTZU(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CTZU(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Time zone reporting (+CTZR). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CTZR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CTZR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Mobile termination control mode (+CMEC). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CMEC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CMEC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Calling line identification presentation (+CLIP). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CLIP(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CLIP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Advice of charge (+CAOC). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CAOC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CAOC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Language of the phone (^SLNG). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SLNG(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SLNG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's audio setting ^SNFS. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SNFS(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SNFS(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's audio setting ^SNFV. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SNFV(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SNFV(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's setting ^SICO. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SICO(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SICO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the connected line identification presentation (+COLP). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_COLP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the display of the call meters (^SACM). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SACM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the reports of network registration (+CREG). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CREG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Selects the bearer service type (+CBST). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CBST(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Selects how errors of the mobile equipment are reported (+CMEE). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CMEE(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets service reporting (+CR). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Switches the phone off (^SMSO). Waits up to 12 seconds for the reply. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SMSO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Call related supplementary services (+CHLD). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_AT_CHLD(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* Sets the reports of the SIM reader (^SCKS). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SCKS(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* --- Two values. Get: digits of the reply. Set: iSecond 255 is left out; each value is sent as one digit */

    /* Connected line identification presentation (+COLP): setting, state in the network. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_COLP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond,
                                              uint16_t* pStatus);

    /* Supplementary service notifications (+CSSN): result code during call set-up, unsolicited result code. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CSSN(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond,
                                              uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CSSN(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond,
                                              uint16_t* pStatus);

    /* Packet domain event reporting (+CGEREP): mode, buffering. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGEREP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond,
                                                uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CGEREP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond,
                                                uint16_t* pStatus);

    /* Selects the ring melody (^SRMP): of iFirst up to two characters are sent. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SRMP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond,
                                              uint16_t* pStatus);

    /* --- Characters of the reply, not converted: '1' is 0x31 */

    /* Whether the phone is attached to the packet domain (+CGATT): '0' or '1'. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGATT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /* Registration in the packet domain (+CGREG): reporting, state. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGREG(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond,
                                               uint16_t* pStatus);

    /* Service reporting (+CR). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /* How errors of the mobile equipment are reported (+CMEE). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CMEE(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* Call waiting (+CCWA): the character less 0x30, whether it is a digit or not. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CCWA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* --- The last digit of the reply, looked for from its end. A reply without a digit leaves the arguments alone */

    /* Activity state of the phone (+CPAS). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CPAS(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* Whether a SIM card is present (^SCKA). */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SCKA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /*
     * Reports of the SIM reader (^SCKS): *piSecond is the last digit, *piFirst the character three places in front
     * of it less 0x30, whether it is a digit or not (it stays if the reply has no such place).
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SCKS(ResourceContext hResourceContext, uint32_t* piFirst, uint32_t* piSecond,
                                              uint16_t* pStatus);

    /* --- Values with a rule of their own */

    /* Vibrator mode (+CVIB): the number of one or two digits that the phone shows. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CVIB(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /*
     * Vibrator mode (+CVIB) by a number of this function's own: 1, 2 and 0 send 0, 1 and 2; from 3 on, iValue + 13
     * modulo 256 is sent, at most its first two digits, so that 3 sends 16 (243 to 252 send one digit).
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CVIB(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's keypad setting ^SKPD; all digits are sent. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SKPD(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /*
     * Attaches to the packet domain (1) or detaches from it (0), +CGATT. -1 sends the command alone; of any other
     * value the first digit of its unsigned number is sent.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CGATT(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* Selected wireless network (+WS46), a number of one or two digits. A reply without it leaves *piValue alone. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_WS46(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /*
     * Selects the wireless network (+WS46); two digits are sent, so that 5 goes out as 05. 255 sends the command
     * alone. From 100 on the two characters are the first digit of iValue / 10 and the last digit of iValue.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_WS46(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Fixed rate of the port in bits per second (+IPR): all digits up to the end of the line, 0 if there is none. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_IPR(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* Sets the fixed rate of the port in bits per second (+IPR); a negative value is sent as its unsigned number. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_IPR(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* --- Several fields, by their meaning in TS 27.007 */

    /*
     * Clock of the phone (+CCLK): the three numbers of the date in the phone's order, hour, minute, second, and the
     * time zone in quarters of an hour. Set sends exactly two digits of each number.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CCLK(ResourceContext hResourceContext, uint8_t* piDate1, uint8_t* piDate2,
                                              uint8_t* piDate3, uint8_t* piHour, uint8_t* piMinute, uint8_t* piSecond,
                                              int8_t* piZone, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CCLK(ResourceContext hResourceContext, uint8_t iDate1, uint8_t iDate2,
                                              uint8_t iDate3, uint8_t iHour, uint8_t iMinute, uint8_t iSecond,
                                              int8_t iZone, uint16_t* pStatus);

    /*
     * Event reporting (+CMER): mode, indicator events, buffering. Of the five fields of the command the keypad and
     * display fields have no argument: they are not read, and sent as 0.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CMER(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piInd,
                                              uint8_t* piBfr, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CMER(ResourceContext hResourceContext, uint8_t iMode, uint8_t iInd,
                                              uint8_t iBfr, uint16_t* pStatus);

    /* Accumulated call meter (+CACM) and its maximum (+CAMM), modulo 65536. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CACM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CAMM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus);

    /* Display of the call meters (^SACM): mode, and both meters modulo 256. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SACM(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piAcm,
                                              uint8_t* piAcmMax, uint16_t* pStatus);

    /* Battery (+CBC): connection status, charge in percent. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CBC(ResourceContext hResourceContext, uint8_t* piBcs, uint8_t* piBcl,
                                             uint16_t* pStatus);

    /*
     * Network registration (+CREG): reporting, state, and two characters each of location area and cell, read at
     * fixed places, which are right for bare fields of two characters. pLac, pCi: out, 2 bytes each, no NUL; without
     * these fields the first byte is '-' and the second stays.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CREG(ResourceContext hResourceContext, uint8_t* piN, uint8_t* piStat,
                                              uint8_t* pLac, uint8_t* pCi, uint16_t* pStatus);

    /*
     * Signal quality (+CSQ): strength and bit error rate by the scales of TS 27.007 (99: not known), read from the
     * reply's end. What the reply does not hold keeps its value.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CSQ(ResourceContext hResourceContext, uint8_t* piRssi, uint8_t* piBer,
                                             uint16_t* pStatus);

    /*
     * The eight indicators (+CIND) as characters, read from the reply's end. What the reply does not hold keeps its
     * value.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CIND(ResourceContext hResourceContext, uint8_t* pi1, uint8_t* pi2,
                                              uint8_t* pi3, uint8_t* pi4, uint8_t* pi5, uint8_t* pi6, uint8_t* pi7,
                                              uint8_t* pi8, uint16_t* pStatus);

    /*
     * Sets the eight indicators (+CIND), one digit each; 255 leaves one alone. If all are 255 nothing is sent, the
     * result is 1 and *pStatus stays.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CIND(ResourceContext hResourceContext, uint8_t i1, uint8_t i2, uint8_t i3,
                                              uint8_t i4, uint8_t i5, uint8_t i6, uint8_t i7, uint8_t i8,
                                              uint16_t* pStatus);

    /*
     * Bearer service (+CBST), read from the reply's end: speed as a number, name and connection element as
     * characters. What the reply does not hold keeps its value.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CBST(ResourceContext hResourceContext, uint32_t* piSpeed, uint8_t* piName,
                                              uint8_t* piCe, uint16_t* pStatus);

    /* The interface in use (^SIFS): 1 IrDA, 2 Bluetooth, 3 wire, 0 any other. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SIFS(ResourceContext hResourceContext, uint8_t* piKind, uint16_t* pStatus);

    /*
     * Operator (+COPS): mode and format as characters less 0x30, and the name. sOper: out, 16 bytes, NUL included; a
     * longer name is cut.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_COPS(ResourceContext hResourceContext, uint32_t* piMode, uint32_t* piFormat,
                                              char* sOper, uint16_t* pStatus);

    /*
     * Selects the operator (+COPS): first digits of mode and format, and at most 16 characters of the name. iFormat
     * -1 sends the mode alone; a name that begins with - is left out.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_COPS(ResourceContext hResourceContext, int32_t iMode, int32_t iFormat,
                                              const char* sOper, uint16_t* pStatus);

    /*
     * Packet contexts (+CGACT): identifier and state of each. Nothing is written unless *pStatus is 0. *piCount:
     * out, how many there are. The arrays need an entry for each context in the reply, which has at most 4096 bytes;
     * 1366 entries hold any reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGACT(ResourceContext hResourceContext, uint32_t* aiCid, uint32_t* aiState,
                                               uint32_t* piCount, uint16_t* pStatus);

    /* --- Identification texts, without a NUL: clear the buffer before the call */

    /*
     * Reason of the last call's end (+CEER); manufacturer, model and revision of the phone (+CGMI, +CGMM, +CGMR).
     * sText: out, 4096 bytes hold any reply. The text ends with the line ends in front of the reply's OK; at least
     * one byte is written.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CEER(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGMM(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGMR(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);

    /* Serial number of the phone (+CGSN, +GSN) and subscriber identity (+CIMI). sText: out, 15 bytes. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CGSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_GSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CIMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);

    /* Number of the SIM card (^SCID). sText: out, 20 bytes. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SCID(ResourceContext hResourceContext, char* sText, uint16_t* pStatus);

    /* --- Text parameters. Left out is a text that begins with -, a uint8_t of 255, a uint16_t of 65535, an int32_t of
     * -1. A text out that begins with - (without a NUL) and a number out of 0xFFFFFFFF stand for a field that the reply
     * does not hold. A command that outgrows 4096 bytes is not sent: result 0 */

    /*
     * Presses keys (+CKPD), all of sKeys; iTime and iPause in tenths of a second, each may be left out, iPause with
     * iTime.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CKPD(ResourceContext hResourceContext, const char* sKeys, uint16_t iTime,
                                              uint16_t iPause, uint16_t* pStatus);

    /*
     * Facility locks (+CLCK, and ^SLCK of the phone maker), up to 40 seconds: two characters of the facility (a
     * shorter text is sent as it is), mode as one digit, and unless the mode is 2 the password, four bytes of the
     * values 0 to 9 (left out if the first is 45, the hyphen), and with it the class, 0 to 999.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                                              const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                                              const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus);

    /*
     * State of a facility lock, up to 5 seconds: for each line of the reply state and class as characters,
     * 0xFFFFFFFF for no class. *piCount: out, how many there are. The arrays need an entry for each line; 1366
     * entries hold any reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState,
                                              uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState,
                                              uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus);

    /* Which code the phone waits for (+CPIN). sCode: out, 16 bytes, NUL included. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CPIN(ResourceContext hResourceContext, char* sCode, uint16_t* pStatus);

    /*
     * Gives a code (+CPIN), a text of digits, and a new one of which four characters are sent unless it is left out.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CPIN(ResourceContext hResourceContext, const char* sPin, const char* sNewPin,
                                              uint16_t* pStatus);

    /*
     * Call forwarding (+CCFC), up to 25 seconds: reason and mode as one digit each, and unless the mode is 2 or the
     * number is left out at most 12 characters of the number, type of address (a whole number), class and time (one
     * digit), of which each may be left out.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint8_t iMode,
                                              const char* sNumber, uint8_t iType, int32_t iClass, int32_t iTime,
                                              uint16_t* pStatus);

    /*
     * State of call forwarding, up to 10 seconds. Nothing is written unless *pStatus is 0. *piCount: out, how many
     * entries there are. asNumber: rows of 12 bytes without a NUL, at most the first 12 characters of a number; a
     * number in double quotes counts as missing. A line end behind any field ends the list, so a reply with a line
     * for each class gives the first alone. The arrays need an entry for each line; 600 entries hold any reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint32_t* aiState,
                                              uint32_t* aiClass, char (*asNumber)[12], uint32_t* aiType,
                                              uint32_t* aiTime, uint32_t* piCount, uint16_t* pStatus);

    /*
     * Call waiting (+CCWA), up to 20 seconds: one digit each of n and mode, and the class; each may be left out with
     * those behind it. Only for mode 2 and *pStatus 0 are state, class and *piCount written, as with
     * TANDEKOR_AT_Get_CGACT.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CCWA(ResourceContext hResourceContext, uint8_t iN, uint8_t iMode,
                                              int32_t iClass, uint32_t* aiState, uint32_t* aiClasses, uint32_t* piCount,
                                              uint16_t* pStatus);

    /*
     * Service centre (+CSCA). sSca, sTosca: out, 50 bytes each. A longer address is cut to 49 characters and a NUL;
     * a type that fills its buffer has no NUL.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CSCA(ResourceContext hResourceContext, char* sSca, char* sTosca,
                                              uint16_t* pStatus);

    /*
     * Sets the service centre (+CSCA), and at most 50 characters of its type unless it is left out. sSca is never
     * left out.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CSCA(ResourceContext hResourceContext, const char* sSca, const char* sTosca,
                                              uint16_t* pStatus);

    /*
     * Cell broadcast (+CSCB): mode as a character, message identifiers, data coding schemes. sMids, sDcss: out, 4097
     * bytes each hold any reply, NUL included.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CSCB(ResourceContext hResourceContext, uint8_t* piMode, char* sMids,
                                              char* sDcss, uint16_t* pStatus);

    /*
     * Sets cell broadcast (+CSCB): mode as one digit, message identifiers, and bytes of the values 1 to 9 up to a
     * NUL as data coding schemes; each may be left out with those behind it.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CSCB(ResourceContext hResourceContext, uint8_t iMode, const char* sMids,
                                              const char* sDcss, uint16_t* pStatus);

    /* Character set (+CSCS). sCharset: out, 16 bytes, NUL included. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Get_CSCS(ResourceContext hResourceContext, char* sCharset, uint16_t* pStatus);

    /* Selects the character set (+CSCS), at most 16 characters. Left out, the command is sent alone. */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CSCS(ResourceContext hResourceContext, const char* sCharset,
                                              uint16_t* pStatus);

    /*
     * Restricted SIM access (+CRSM): command as three digits, file identifier as a whole number, one digit each of
     * the three parameters, and behind a comma, if there are any, bytes of the values 1 to 9 up to a NUL; each may
     * be left out with those behind it, the three parameters together. Out: the two status words of the card, and
     * the card's answer with the closing quote, all looked for from place 16 on, which lies inside an echo, without
     * a NUL; sResponse: 4096 bytes hold any reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_CRSM(ResourceContext hResourceContext, uint8_t iCommand, int32_t iFileId,
                                          int32_t iP1, int32_t iP2, int32_t iP3, const uint8_t* pData, uint32_t* piSw1,
                                          uint32_t* piSw2, char* sResponse, uint16_t* pStatus);

    /* --- Messages in the phone's store, in PDU form */

    /*
     * Lists messages (+CMGL, and ^SMGL of the phone maker) of one state, the first digit of iFilter; 255 stands for
     * 0. For each message: place, state, alpha (0xFFFFFFFF if empty), length, and the line with its data, in rows of
     * 1024 bytes without a NUL, of which an empty line writes none. *piCount: out, how many there are, 0 after a
     * failed exchange. The arrays need an entry for each message in the reply; 512 entries hold any reply.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_CMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex,
                                          uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024],
                                          uint32_t* piCount, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_SMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex,
                                          uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024],
                                          uint32_t* piCount, uint16_t* pStatus);

    /*
     * Reads a message (+CMGR, and ^SMGR of the phone maker) at the place iIndex; above 100 no place is sent. The
     * reply is read, also after a failed exchange, if it ends in K or k; else nothing is written. Out: the state as
     * a character, the length that the reply states, and the text from the fifth place behind the first comma on
     * (for a length of two digits it begins with the line end), cut so that it fits iMaxLength bytes or that length
     * with its NUL, which stands earlier if the reply does. sData: out, at least iMaxLength bytes, and never less
     * than 1. A reply without a comma gives the state '5', length 0 and an empty text.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_CMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength,
                                              uint16_t* piLength, uint8_t* piStat, char* sData, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_AT_Set_SMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength,
                                              uint16_t* piLength, uint8_t* piStat, char* sData, uint16_t* pStatus);

    /*
     * Sends a message from the store (+CMSS): one digit of its place, and at most 12 characters of the address
     * unless it is left out.
     */
    TANDEKOR_API uint8_t TANDEKOR_AT_CMSS(ResourceContext hResourceContext, uint8_t iIndex, const char* sAddress,
                                          uint16_t* pStatus);

#ifdef __cplusplus
}
#endif

#endif
