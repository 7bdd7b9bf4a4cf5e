/*
 * AT commands on the phone's diagnostic port, by 3GPP TS 27.007 and V.250; commands that begin with ^ are the phone
 * maker's own, and the meaning of their values is the phone maker's too.
 *
 * Each function sends one command and waits up to 3 seconds for the reply, unless it says more. The result says only
 * whether the exchange with the phone worked; what the phone answered stands in *pStatus. Look at both: after an ERROR
 * the out-values hold what happens to stand in the reply at their places. After a failed exchange no argument is
 * written, *pStatus included, unless a function says more.
 *
 *     uint8_t rssi = 99, ber = 99;
 *     uint16_t status = TANDEKOR_AT_OTHER;
 *     if (TANDEKOR_AT_Get_CSQ(phone, &rssi, &ber, &status) == 0)
 *         ...                                no reply
 *     else if (status != TANDEKOR_AT_OK)
 *         ...                                the phone answered, but not OK
 *     else
 *         ...                                rssi and ber are the phone's
 *
 * Let the phone echo commands (ATE1): values are read at fixed places of the reply, counted with the echo. Without
 * echo, only places counted from the start are right, and only for commands whose echo has nine bytes (AT+CMUT?);
 * values that are read from the end are not found. TANDEKOR_AT_CRSM alone wants no echo. An unsolicited line (RING,
 * +CREG: ...) before the reply shifts every value, and nothing notices it: switch such lines off first. A reply that is
 * too short for a value reads as the digit 0; a function that returns the reply's characters returns 0xBB for one that
 * is not there, unless it says that a value then stays.
 *
 * In the QPST library mode every function returns 0 and sends nothing. The log gets one text a call, at its start.
 *
 * [out] pStatus  how the reply ended (TandekorAtStatus)
 */
#ifndef TANDEKOR_AT_H
#define TANDEKOR_AT_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* What the phone answered. */
    enum TandekorAtStatus
    {
        TANDEKOR_AT_OK = 0,
        TANDEKOR_AT_ERROR = 1,
        TANDEKOR_AT_OTHER = 2 /* any other ending, a "+CME ERROR: ..." line among them */
    };

    /* Values that leave a parameter out; a text is left out by a first character of '-'. */
    enum TandekorAtAbsent
    {
        TANDEKOR_AT_ABSENT_8 = 255,    /* uint8_t */
        TANDEKOR_AT_ABSENT_16 = 65535, /* uint16_t */
        TANDEKOR_AT_ABSENT_32 = -1     /* int32_t; as an out-value (uint32_t) 0xFFFFFFFF: the reply has no such field */
    };

    /* Sizes that hold any reply. Bytes, or entries of the arrays of a function. */
    enum TandekorAtSize
    {
        TANDEKOR_AT_REPLY_SIZE = 4096,      /* longest reply, and longest text without a NUL */
        TANDEKOR_AT_TEXT_SIZE = 4097,       /* longest text with its NUL */
        TANDEKOR_AT_SHORT_TEXT_SIZE = 16,   /* operator, code, character set, with the NUL */
        TANDEKOR_AT_ADDRESS_SIZE = 50,      /* service centre */
        TANDEKOR_AT_SERIAL_SIZE = 15,       /* serial number, subscriber identity, no NUL */
        TANDEKOR_AT_CARD_NUMBER_SIZE = 20,  /* number of the SIM card, no NUL */
        TANDEKOR_AT_MOST_PAIRS = 1366,      /* packet contexts, locks, call waiting */
        TANDEKOR_AT_MOST_FORWARDINGS = 600, /* call forwarding */
        TANDEKOR_AT_NUMBER_SIZE = 12,       /* a row of numbers, no NUL */
        TANDEKOR_AT_MOST_MESSAGES = 512,    /* listed messages */
        TANDEKOR_AT_MESSAGE_SIZE = 1024     /* a row of message data, no NUL */
    };

    /* The interface in use. */
    enum TandekorAtInterface
    {
        TANDEKOR_AT_INTERFACE_OTHER = 0,
        TANDEKOR_AT_INTERFACE_IRDA = 1,
        TANDEKOR_AT_INTERFACE_BLUETOOTH = 2,
        TANDEKOR_AT_INTERFACE_WIRE = 3
    };

    /* State of a message in the phone's store, as the PDU form of TS 27.005 numbers it. */
    enum TandekorAtMessageState
    {
        TANDEKOR_AT_MESSAGE_UNREAD = 0,
        TANDEKOR_AT_MESSAGE_READ = 1,
        TANDEKOR_AT_MESSAGE_UNSENT = 2,
        TANDEKOR_AT_MESSAGE_SENT = 3,
        TANDEKOR_AT_MESSAGE_ALL = 4 /* as the filter of a list only */
    };

    /* Mode of a facility lock, of call forwarding and of call waiting that asks for the state. */
    enum TandekorAtMode
    {
        TANDEKOR_AT_MODE_DISABLE = 0,
        TANDEKOR_AT_MODE_ENABLE = 1,
        TANDEKOR_AT_MODE_QUERY = 2
    };

    /* --- Commands without a value */

    /* Takes the port from AT commands to the phone's OBEX server (^SQWE=3); TANDEKOR_OBEX_2_AT takes it back. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_2_OBEX(ResourceContext hResourceContext, uint16_t* pStatus);

    /* Plays a ring melody (+CRMP). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CRMP(ResourceContext hResourceContext, uint16_t* pStatus);

    /* Ends all calls (+CHUP). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CHUP(ResourceContext hResourceContext, uint16_t* pStatus);

    /* --- One digit
     *
     * [out] piValue  the digit of the reply, 0 if there is none
     * [in]  iValue   only its first digit is sent, so that 25 goes out as 2
     */

    /* Mute control (+CMUT): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMUT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMUT(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Alert sound mode (+CALM): 0 normal, 1 silent. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CALM(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CALM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Ringer sound level (+CRSL), in the phone's steps. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CRSL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CRSL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Loudspeaker volume level (+CLVL), in the phone's steps. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CLVL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CLVL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Automatic time zone update (+CTZU): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CTZU(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CTZU(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Time zone reporting (+CTZR): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CTZR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CTZR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Mobile termination control mode (+CMEC): who may press keys, 0 the phone only, 1 the port only, 2 both. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMEC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMEC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Calling line identification presentation (+CLIP): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CLIP(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CLIP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Advice of charge (+CAOC): 0 asks for the current call meter, 1 stops and 2 starts unsolicited reports. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CAOC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CAOC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Language of the phone (^SLNG), by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SLNG(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SLNG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's audio setting ^SNFS, by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SNFS(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SNFS(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Audio volume of the profile (^SNFV), in the phone maker's steps. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SNFV(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SNFV(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* The phone maker's setting ^SICO, by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SICO(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SICO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the connected line identification presentation (+COLP): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_COLP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the display of the call meters (^SACM). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SACM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets the reports of network registration (+CREG): 0 none, 1 changes of state, 2 with location and cell. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CREG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Selects the bearer service type (+CBST), by its speed's number; only one digit is sent. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CBST(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Selects how errors of the mobile equipment are reported (+CMEE): 0 ERROR, 1 a number, 2 words. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMEE(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Sets service reporting (+CR): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Switches the phone off (^SMSO). Waits up to 12 seconds for the reply. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SMSO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /* Call related supplementary services (+CHLD). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CHLD(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* Sets the reports of the SIM reader (^SCKS). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SCKS(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /* --- Two values
     *
     * [out] piFirst   first digit of the reply
     * [out] piSecond  second digit of the reply
     * [in]  iFirst    sent as one digit
     * [in]  iSecond   sent as one digit; 255 leaves it out
     */

    /* Connected line identification presentation (+COLP): setting, state in the network. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_COLP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);

    /* Supplementary service notifications (+CSSN): result code during call set-up, unsolicited result code. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSSN(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CSSN(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);

    /* Packet domain event reporting (+CGEREP): mode, buffering. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGEREP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CGEREP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);

    /*
     * Selects the ring melody (^SRMP).
     *
     * [in] iFirst  up to two characters are sent, so that 123 goes out as 12
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SRMP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);

    /* --- Characters of the reply
     *
     * Not converted: the digit 1 is '1', 0x31.
     *
     * [out] piValue   character of the reply
     * [out] piFirst   first character
     * [out] piSecond  second character
     */

    /* Whether the phone is attached to the packet domain (+CGATT): '0' or '1'. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGATT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /* Registration in the packet domain (+CGREG): reporting, state (as those of TANDEKOR_AT_Get_CREG). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGREG(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);

    /* Service reporting (+CR): '0' off, '1' on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /* How errors of the mobile equipment are reported (+CMEE): '0' to '2', see TANDEKOR_AT_Set_CMEE. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMEE(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /*
     * Call waiting (+CCWA): whether it is reported.
     *
     * [out] piValue  the character less 0x30, whether it is a digit or not
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CCWA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* --- The last digit of the reply
     *
     * It is looked for from the end. A reply without a digit leaves the arguments unchanged.
     *
     * [out] piValue  that digit
     */

    /* Activity state of the phone (+CPAS): 0 ready, 2 unknown, 3 ringing, 4 in a call. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CPAS(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /* Whether a SIM card is present (^SCKA), by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SCKA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /*
     * Reports of the SIM reader (^SCKS), by the phone maker's numbers.
     *
     * [out] piFirst   the character three places before the last digit, less 0x30, whether it is a digit or not; stays
     *                 if the reply has no such place
     * [out] piSecond  the last digit
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SCKS(ResourceContext hResourceContext, uint32_t* piFirst, uint32_t* piSecond, uint16_t* pStatus);

    /* --- Values with a rule of their own */

    /*
     * Vibrator mode (+CVIB).
     *
     * [out] piValue  the number of one or two digits that the phone shows
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CVIB(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /*
     * Vibrator mode (+CVIB) by a number of this function's own, which TANDEKOR_AT_Get_CVIB does not translate back.
     *
     * [in] iValue  1, 2 and 0 send 0, 1 and 2; from 3 on, iValue + 13 modulo 256 is sent, at most its first two digits,
     *              so that 3 sends 16 (243 to 252 send one digit)
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CVIB(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /*
     * The phone maker's keypad setting ^SKPD.
     *
     * [in] iValue  the phone maker's number; all digits are sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SKPD(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /*
     * Attaches to the packet domain or detaches from it (+CGATT).
     *
     * [in] iValue  1 attaches, 0 detaches, -1 sends the command alone; of any other value the first digit of its
     *              unsigned number is sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CGATT(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

    /*
     * Selected wireless network (+WS46): 12 GSM, 22 WCDMA, 25 both.
     *
     * [out] piValue  a number of one or two digits; a reply without it leaves it unchanged
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_WS46(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus);

    /*
     * Selects the wireless network (+WS46).
     *
     * [in] iValue  two digits are sent, so that 5 goes out as 05; 255 sends the command alone. From 100 on the two
     *              characters are the first digit of iValue / 10 and the last digit of iValue
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_WS46(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus);

    /*
     * Fixed rate of the port (+IPR).
     *
     * [out] piValue  bits per second: all digits up to the end of the line, 0 if there is none
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_IPR(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus);

    /*
     * Sets the fixed rate of the port (+IPR).
     *
     * [in] iValue  bits per second; a negative value is sent as its unsigned number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_IPR(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus);

