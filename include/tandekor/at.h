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
 * Values are read at fixed places of the reply, which are right for a phone that echoes commands, and for one without
 * echo where the echo would take nine bytes (as that of AT+CMUT? does). A reply that is too short for a value reads as
 * the digit 0 (the character 0xBB where characters are handed over).
 *
 * In the QPST library mode every function gives 0 and sends nothing. The log gets one line a call, at its start.
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
     * of it less 0x30, whether it is a digit or not.
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

#ifdef __cplusplus
}
#endif

#endif
