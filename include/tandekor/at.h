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
 * values that are searched from the end are then wrong or stay, and nothing notices it. Only TANDEKOR_AT_CRSM wants no
 * echo. An unsolicited line (RING, +CREG: ...) before the reply shifts every value, and nothing notices it: switch such
 * lines off first. A reply that is too short for a value reads as the digit 0; a function that returns the reply's
 * characters returns 0xBB for one that is not there (0x8B where 0x30 is taken off), unless it says that a value then
 * stays.
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
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMUT(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMUT(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Alert sound mode (+CALM): 0 normal, 1 silent. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CALM(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CALM(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Ringer sound level (+CRSL), in the phone's steps. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CRSL(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CRSL(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Loudspeaker volume level (+CLVL), in the phone's steps. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CLVL(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CLVL(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Automatic time zone update (+CTZU): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CTZU(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CTZU(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Time zone reporting (+CTZR): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CTZR(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CTZR(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Mobile termination control mode (+CMEC): who may press keys, 0 the phone only, 1 the port only, 2 both. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMEC(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMEC(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Calling line identification presentation (+CLIP): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CLIP(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CLIP(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Advice of charge (+CAOC): 0 asks for the current call meter, 1 stops and 2 starts unsolicited reports. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CAOC(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CAOC(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Language of the phone (^SLNG), by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SLNG(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SLNG(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* The phone maker's audio setting ^SNFS, by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SNFS(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SNFS(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* The phone maker's audio setting ^SNFV, by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SNFV(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SNFV(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* The phone maker's setting ^SICO, by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SICO(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SICO(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Sets the connected line identification presentation (+COLP): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_COLP(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Sets the display of the call meters (^SACM). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SACM(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Sets the reports of network registration (+CREG): 0 none, 1 changes of state, 2 with location and cell. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CREG(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Selects the bearer service type (+CBST), by its speed's number; only one digit is sent. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CBST(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Selects how errors of the mobile equipment are reported (+CMEE): 0 ERROR, 1 a number, 2 words. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMEE(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Sets service reporting (+CR): 0 off, 1 on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CR(ResourceContext hResourceContext, uint8_t iValue,
                                                          uint16_t* pStatus);

    /* Switches the phone off (^SMSO). Waits up to 12 seconds for the reply. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SMSO(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /* Call related supplementary services (+CHLD). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CHLD(ResourceContext hResourceContext, int32_t iValue,
                                                        uint16_t* pStatus);

    /* Sets the reports of the SIM reader (^SCKS). The value is sent as its unsigned number's first digit. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SCKS(ResourceContext hResourceContext, int32_t iValue,
                                                            uint16_t* pStatus);

    /* --- Two values
     *
     * [out] piFirst   first digit of the reply
     * [out] piSecond  second digit of the reply
     * [in]  iFirst    sent as one digit
     * [in]  iSecond   sent as one digit; 255 leaves it out
     */

    /* Connected line identification presentation (+COLP): setting, state in the network. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_COLP(ResourceContext hResourceContext, uint8_t* piFirst,
                                                            uint8_t* piSecond, uint16_t* pStatus);

    /* Supplementary service notifications (+CSSN): result code during call set-up, unsolicited result code. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSSN(ResourceContext hResourceContext, uint8_t* piFirst,
                                                            uint8_t* piSecond, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CSSN(ResourceContext hResourceContext, uint8_t iFirst,
                                                            uint8_t iSecond, uint16_t* pStatus);

    /* Packet domain event reporting (+CGEREP): mode, buffering. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGEREP(ResourceContext hResourceContext, uint8_t* piFirst,
                                                              uint8_t* piSecond, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CGEREP(ResourceContext hResourceContext, uint8_t iFirst,
                                                              uint8_t iSecond, uint16_t* pStatus);

    /*
     * Selects the ring melody (^SRMP).
     *
     * [in] iFirst  up to two characters are sent, so that 123 goes out as 12
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SRMP(ResourceContext hResourceContext, uint8_t iFirst,
                                                            uint8_t iSecond, uint16_t* pStatus);

    /* --- Characters of the reply
     *
     * Not converted: the digit 1 is '1', 0x31.
     *
     * [out] piValue   character of the reply
     * [out] piFirst   first character
     * [out] piSecond  second character
     */

    /* Whether the phone is attached to the packet domain (+CGATT): '0' or '1'. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGATT(ResourceContext hResourceContext, uint8_t* piValue,
                                                             uint16_t* pStatus);

    /* Registration in the packet domain (+CGREG): reporting, state (as those of TANDEKOR_AT_Get_CREG). */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGREG(ResourceContext hResourceContext, uint8_t* piFirst,
                                                             uint8_t* piSecond, uint16_t* pStatus);

    /* Service reporting (+CR): '0' off, '1' on. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CR(ResourceContext hResourceContext, uint8_t* piValue,
                                                          uint16_t* pStatus);

    /* How errors of the mobile equipment are reported (+CMEE): '0' to '2', see TANDEKOR_AT_Set_CMEE. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMEE(ResourceContext hResourceContext, uint32_t* piValue,
                                                            uint16_t* pStatus);

    /*
     * Call waiting (+CCWA): whether it is reported.
     *
     * [out] piValue  the character less 0x30, whether it is a digit or not
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CCWA(ResourceContext hResourceContext, uint32_t* piValue,
                                                            uint16_t* pStatus);

    /* --- The last digit of the reply
     *
     * It is looked for from the end. A reply without a digit leaves the arguments unchanged.
     *
     * [out] piValue  that digit
     */

    /* Activity state of the phone (+CPAS): 0 ready, 2 unknown, 3 ringing, 4 in a call. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CPAS(ResourceContext hResourceContext, uint32_t* piValue,
                                                            uint16_t* pStatus);

    /* Whether a SIM card is present (^SCKA), by the phone maker's number. */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SCKA(ResourceContext hResourceContext, uint32_t* piValue,
                                                            uint16_t* pStatus);

    /*
     * Reports of the SIM reader (^SCKS), by the phone maker's numbers.
     *
     * [out] piFirst   the character three places before the last digit, less 0x30, whether it is a digit or not; stays
     *                 if the reply has no such place
     * [out] piSecond  the last digit
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SCKS(ResourceContext hResourceContext, uint32_t* piFirst,
                                                            uint32_t* piSecond, uint16_t* pStatus);

    /* --- Values with a rule of their own */

    /*
     * Vibrator mode (+CVIB).
     *
     * [out] piValue  the number of one or two digits that the phone shows
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CVIB(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);

    /*
     * Vibrator mode (+CVIB) by a number of this function's own, which TANDEKOR_AT_Get_CVIB does not translate back.
     *
     * [in] iValue  1, 2 and 0 send 0, 1 and 2; from 3 on, iValue + 13 modulo 256 is sent, at most its first two digits,
     *              so that 3 sends 16 (243 to 252 send one digit)
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CVIB(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /*
     * The phone maker's keypad setting ^SKPD.
     *
     * [in] iValue  the phone maker's number; all digits are sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SKPD(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /*
     * Attaches to the packet domain or detaches from it (+CGATT).
     *
     * [in] iValue  1 attaches, 0 detaches, -1 sends no value; of any other value the first digit of its
     *              unsigned number is sent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CGATT(ResourceContext hResourceContext, int32_t iValue,
                                                             uint16_t* pStatus);

    /*
     * Selected wireless network (+WS46): 12 GSM, 22 WCDMA, 25 both.
     *
     * [out] piValue  a number of one or two digits; a reply without it leaves it unchanged
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_WS46(ResourceContext hResourceContext, uint8_t* piValue,
                                                            uint16_t* pStatus);

    /*
     * Selects the wireless network (+WS46).
     *
     * [in] iValue  two digits are sent, so that 5 goes out as 05; 255 sends no value. From 100 on the two
     *              characters are the first digit of iValue / 10 and the last digit of iValue
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_WS46(ResourceContext hResourceContext, uint8_t iValue,
                                                            uint16_t* pStatus);

    /*
     * Fixed rate of the port (+IPR).
     *
     * [out] piValue  bits per second: all digits up to the end of the line, 0 if there is none
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_IPR(ResourceContext hResourceContext, uint32_t* piValue,
                                                           uint16_t* pStatus);

    /*
     * Sets the fixed rate of the port (+IPR).
     *
     * [in] iValue  bits per second; a negative value is sent as its unsigned number
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_IPR(ResourceContext hResourceContext, int32_t iValue,
                                                           uint16_t* pStatus);

    /* --- Several fields
     *
     * By their meaning in TS 27.007; the functions do not judge the values.
     */

    /*
     * Clock of the phone (+CCLK).
     *
     * [out] piDate1   first number of the date, in the phone's order (year, month, day for most)
     * [out] piDate2   second number of the date
     * [out] piDate3   third number of the date
     * [out] piHour    0 to 23
     * [out] piMinute  0 to 59
     * [out] piSecond  0 to 59
     * [out] piZone    time zone in quarters of an hour, negative west of Greenwich
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CCLK(ResourceContext hResourceContext, uint8_t* piDate1,
                                                            uint8_t* piDate2, uint8_t* piDate3, uint8_t* piHour,
                                                            uint8_t* piMinute, uint8_t* piSecond, int8_t* piZone,
                                                            uint16_t* pStatus);

    /*
     * Sets the clock of the phone (+CCLK). Exactly two digits of each number are sent, so that 7 goes out as 07.
     *
     * [in] iDate1   first number of the date, in the phone's order
     * [in] iDate2   second number of the date
     * [in] iDate3   third number of the date
     * [in] iHour    0 to 23
     * [in] iMinute  0 to 59
     * [in] iSecond  0 to 59
     * [in] iZone    time zone in quarters of an hour, negative west of Greenwich
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CCLK(ResourceContext hResourceContext, uint8_t iDate1,
                                                            uint8_t iDate2, uint8_t iDate3, uint8_t iHour,
                                                            uint8_t iMinute, uint8_t iSecond, int8_t iZone,
                                                            uint16_t* pStatus);

    /*
     * Event reporting (+CMER). Of the five fields of the command the keypad and display fields have no argument: they
     * are not read, and sent as 0.
     *
     * [out] piMode  digit: how result codes are buffered or sent on
     * [out] piInd   digit: whether indicator events are reported
     * [out] piBfr   digit: what happens to the buffer when the mode changes
     * [in]  iMode   sent as one digit
     * [in]  iInd    sent as one digit
     * [in]  iBfr    sent as one digit
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CMER(ResourceContext hResourceContext, uint8_t* piMode,
                                                            uint8_t* piInd, uint8_t* piBfr, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMER(ResourceContext hResourceContext, uint8_t iMode,
                                                            uint8_t iInd, uint8_t iBfr, uint16_t* pStatus);

    /*
     * Accumulated call meter (+CACM) and its maximum (+CAMM). Mind that TS 27.007 writes both in hexadecimal and that
     * these functions read them as six decimal digits, any other character as 0: "00012F" is read as 120.
     *
     * [out] piValue  that decimal number modulo 65536
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CACM(ResourceContext hResourceContext, uint16_t* piValue,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CAMM(ResourceContext hResourceContext, uint16_t* piValue,
                                                            uint16_t* pStatus);

    /*
     * Display of the call meters (^SACM). Both meters are read as decimal, like those of TANDEKOR_AT_Get_CACM.
     *
     * [out] piMode    digit
     * [out] piAcm     call meter modulo 256
     * [out] piAcmMax  its maximum modulo 256
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SACM(ResourceContext hResourceContext, uint8_t* piMode,
                                                            uint8_t* piAcm, uint8_t* piAcmMax, uint16_t* pStatus);

    /*
     * Battery (+CBC).
     *
     * [out] piBcs  0 the phone runs on its battery, 1 a battery is connected but does not supply it, 2 no battery,
     *              3 a power fault
     * [out] piBcl  charge in percent, 0 to 100
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CBC(ResourceContext hResourceContext, uint8_t* piBcs,
                                                           uint8_t* piBcl, uint16_t* pStatus);

    /*
     * Network registration (+CREG). Location area and cell are read at fixed places, which are right for bare fields of
     * two characters; without these fields the first byte is '-' and the second stays.
     *
     * [out] piN     reporting, see TANDEKOR_AT_Set_CREG
     * [out] piStat  0 not registered, 1 home network, 2 searching, 3 denied, 4 unknown, 5 roaming
     * [out] pLac[2] two characters of the location area, no NUL
     * [out] pCi[2]  two characters of the cell, no NUL
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CREG(ResourceContext hResourceContext, uint8_t* piN,
                                                            uint8_t* piStat, uint8_t* pLac, uint8_t* pCi,
                                                            uint16_t* pStatus);

    /*
     * Signal quality (+CSQ), read from the reply's end. What the reply does not hold keeps its value.
     *
     * [out] piRssi  strength: 0 is -113 dBm or less, 31 is -51 dBm or more, 2 dB a step; 99 not known
     * [out] piBer   bit error rate, 0 (best) to 7; 99 not known
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSQ(ResourceContext hResourceContext, uint8_t* piRssi,
                                                           uint8_t* piBer, uint16_t* pStatus);

    /*
     * The eight indicators (+CIND), read from the reply's end. AT+CIND=? shows what each of them means in this phone.
     * What the reply does not hold keeps its value.
     *
     * [out] pi1, pi2, pi3, pi4, pi5, pi6, pi7, pi8  indicator as a character: the digit 1 is '1'
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CIND(ResourceContext hResourceContext, uint8_t* pi1,
                                                            uint8_t* pi2, uint8_t* pi3, uint8_t* pi4, uint8_t* pi5,
                                                            uint8_t* pi6, uint8_t* pi7, uint8_t* pi8,
                                                            uint16_t* pStatus);

    /*
     * Sets the eight indicators (+CIND). If all are 255 nothing is sent, the result is 1 and *pStatus stays.
     *
     * [in] i1, i2, i3, i4, i5, i6, i7, i8  indicator as a number, sent as one digit; 255 leaves it unchanged
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CIND(ResourceContext hResourceContext, uint8_t i1, uint8_t i2,
                                                            uint8_t i3, uint8_t i4, uint8_t i5, uint8_t i6, uint8_t i7,
                                                            uint8_t i8, uint16_t* pStatus);

    /*
     * Bearer service (+CBST), read from the reply's end. What the reply does not hold keeps its value.
     *
     * [out] piSpeed  number of the data rate, as TS 27.007 lists them
     * [out] piName   bearer service as a character: '0' asynchronous modem
     * [out] piCe     connection element as a character: '0' transparent, '1' non-transparent
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CBST(ResourceContext hResourceContext, uint32_t* piSpeed,
                                                            uint8_t* piName, uint8_t* piCe, uint16_t* pStatus);

    /*
     * The interface in use (^SIFS).
     *
     * [out] piKind  TandekorAtInterface
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SIFS(ResourceContext hResourceContext, uint8_t* piKind,
                                                            uint16_t* pStatus);

    /*
     * Operator (+COPS). A phone without one answers the mode alone: *piFormat is then no small number, and sOper is not
     * a name (it is "OK").
     *
     * [out] piMode    character less 0x30: 0 automatic, 1 manual, 2 deregistered, 4 manual and then automatic
     * [out] piFormat  character less 0x30: 0 long name, 1 short name, 2 number
     * [out] sOper[TANDEKOR_AT_SHORT_TEXT_SIZE]  the name with a NUL; a longer one is cut
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_COPS(ResourceContext hResourceContext, uint32_t* piMode,
                                                            uint32_t* piFormat, char* sOper, uint16_t* pStatus);

    /*
     * Selects the operator (+COPS).
     *
     * [in] iMode    as above; the first digit of its unsigned number is sent
     * [in] iFormat  as above; -1 sends only the mode
     * [in] sOper    name; at most 16 characters are sent, and none of a name that begins with '-'
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_COPS(ResourceContext hResourceContext, int32_t iMode,
                                                            int32_t iFormat, const char* sOper, uint16_t* pStatus);

    /*
     * Packet contexts (+CGACT). Nothing is written unless *pStatus is 0.
     *
     * [out] aiCid[TANDEKOR_AT_MOST_PAIRS]    identifier of each context
     * [out] aiState[TANDEKOR_AT_MOST_PAIRS]  1 active, 0 not
     * [out] piCount                          how many there are
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGACT(ResourceContext hResourceContext, uint32_t* aiCid,
                                                             uint32_t* aiState, uint32_t* piCount, uint16_t* pStatus);

    /* --- Identification texts
     *
     * No NUL is written: clear the buffer before the call.
     */

    /*
     * Reason of the last call's end (+CEER); manufacturer, model and revision of the phone (+CGMI, +CGMM, +CGMR).
     *
     * [out] sText[TANDEKOR_AT_REPLY_SIZE]  the text, with the line ends before the reply's OK; at least one byte is
     *                                      written
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CEER(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGMI(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGMM(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGMR(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);

    /*
     * Serial number of the phone (+CGSN, +GSN) and subscriber identity (+CIMI).
     *
     * [out] sText[TANDEKOR_AT_SERIAL_SIZE]  exactly 15 characters of the reply
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CGSN(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_GSN(ResourceContext hResourceContext, char* sText,
                                                           uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CIMI(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);

    /*
     * Number of the SIM card (^SCID).
     *
     * [out] sText[TANDEKOR_AT_CARD_NUMBER_SIZE]  exactly 20 characters of the reply
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SCID(ResourceContext hResourceContext, char* sText,
                                                            uint16_t* pStatus);

    /* --- Text parameters
     *
     * Left out is a text that begins with '-', a uint8_t of 255, a uint16_t of 65535, an int32_t of -1
     * (TandekorAtAbsent). An out-text that begins with '-' (without a NUL) and an out-number of 0xFFFFFFFF stand for a
     * field that the reply does not hold. A command that outgrows 4096 bytes is not sent: result 0.
     */

    /*
     * Presses keys (+CKPD).
     *
     * [in] sKeys   all of its characters are sent
     * [in] iTime   how long each key is pressed, in tenths of a second; may be left out, and iPause with it
     * [in] iPause  pause between keys, in tenths of a second; may be left out
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CKPD(ResourceContext hResourceContext, const char* sKeys,
                                                            uint16_t iTime, uint16_t iPause, uint16_t* pStatus);

    /*
     * Facility locks (+CLCK, and ^SLCK of the phone maker), up to 40 seconds.
     *
     * [in] sFac          facility, two characters as in "SC" (SIM) or "PS" (phone); a shorter text is sent as it is
     * [in] iMode         TandekorAtMode, sent as one digit
     * [in] pPassword[4]  four bytes of the values 0 to 9 (not characters); left out, and the class with it, if the
     *                    first is '-' or the mode is 2
     * [in] iClass        class of services, 0 to 999; may be left out
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CLCK(ResourceContext hResourceContext, const char* sFac,
                                                            uint8_t iMode, const uint8_t* pPassword, int32_t iClass,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SLCK(ResourceContext hResourceContext, const char* sFac,
                                                            uint8_t iMode, const uint8_t* pPassword, int32_t iClass,
                                                            uint16_t* pStatus);

    /*
     * State of a facility lock, up to 5 seconds: an entry for each line of the reply.
     *
     * [in]  sFac                             facility, as above
     * [out] aState[TANDEKOR_AT_MOST_PAIRS]   state as a character: '1' locked, '0' not
     * [out] aiClass[TANDEKOR_AT_MOST_PAIRS]  class as a character, 0xFFFFFFFF for none
     * [out] piCount                          how many entries there are
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CLCK(ResourceContext hResourceContext, const char* sFac,
                                                            uint8_t* aState, uint32_t* aiClass, uint32_t* piCount,
                                                            uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_SLCK(ResourceContext hResourceContext, const char* sFac,
                                                            uint8_t* aState, uint32_t* aiClass, uint32_t* piCount,
                                                            uint16_t* pStatus);

    /*
     * Which code the phone waits for (+CPIN).
     *
     * [out] sCode[TANDEKOR_AT_SHORT_TEXT_SIZE]  "READY", "SIM PIN" ..., with a NUL; a longer text is cut
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CPIN(ResourceContext hResourceContext, char* sCode,
                                                            uint16_t* pStatus);

    /*
     * Enters a code (+CPIN).
     *
     * [in] sPin     text of digits
     * [in] sNewPin  new code, of which the first four characters are sent; may be left out
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CPIN(ResourceContext hResourceContext, const char* sPin,
                                                            const char* sNewPin, uint16_t* pStatus);

    /*
     * Call forwarding (+CCFC), up to 25 seconds.
     *
     * [in] iReason  0 always, 1 busy, 2 no reply, 3 not reachable ...; sent as one digit
     * [in] iMode    0 disable, 1 enable, 2 query, 3 register, 4 erase; sent as one digit. With 2 nothing after it is
     *               sent
     * [in] sNumber  at most 12 characters are sent; left out, everything after it is left out too
     * [in] iType    type of the address, a whole number (129, 145 for +); may be left out
     * [in] iClass   class of services, 0 to 999; may be left out
     * [in] iTime    seconds before a call is forwarded, of which one digit is sent; may be left out
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CCFC(ResourceContext hResourceContext, uint8_t iReason,
                                                            uint8_t iMode, const char* sNumber, uint8_t iType,
                                                            int32_t iClass, int32_t iTime, uint16_t* pStatus);

    /*
     * State of call forwarding, up to 10 seconds. Nothing is written unless *pStatus is 0. A line end after any field
     * ends the list, so a reply with a line for each class gives only the first.
     *
     * [in]  iReason                                 as above
     * [out] aiState[TANDEKOR_AT_MOST_FORWARDINGS]   1 active, 0 not
     * [out] aiClass[TANDEKOR_AT_MOST_FORWARDINGS]   class of services
     * [out] asNumber[TANDEKOR_AT_MOST_FORWARDINGS]  rows of 12 characters without a NUL, at most the first 12 of a
     *                                               number; '-' for none. A number in double quotes counts as missing
     * [out] aiType[TANDEKOR_AT_MOST_FORWARDINGS]    type of the address
     * [out] aiTime[TANDEKOR_AT_MOST_FORWARDINGS]    seconds before a call is forwarded
     * [out] piCount                                 how many entries there are
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CCFC(ResourceContext hResourceContext, uint8_t iReason,
                                                            uint32_t* aiState, uint32_t* aiClass, char (*asNumber)[12],
                                                            uint32_t* aiType, uint32_t* aiTime, uint32_t* piCount,
                                                            uint16_t* pStatus);

    /*
     * Call waiting (+CCWA), up to 20 seconds. Only with iMode 2 and *pStatus 0 are the arrays and *piCount written.
     *
     * [in]  iN      1 reports waiting calls, 0 does not; one digit; may be left out, and with it what follows
     * [in]  iMode   TandekorAtMode; one digit; may be left out, and with it the class
     * [in]  iClass  class of services, 0 to 999; may be left out
     * [out] aiState[TANDEKOR_AT_MOST_PAIRS]    1 active, 0 not
     * [out] aiClasses[TANDEKOR_AT_MOST_PAIRS]  class of services of each entry
     * [out] piCount                            how many entries there are
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CCWA(ResourceContext hResourceContext, uint8_t iN, uint8_t iMode,
                                                            int32_t iClass, uint32_t* aiState, uint32_t* aiClasses,
                                                            uint32_t* piCount, uint16_t* pStatus);

    /*
     * Service centre (+CSCA).
     *
     * [out] sSca[TANDEKOR_AT_ADDRESS_SIZE]    address, with a NUL; a longer one is cut to 49 characters
     * [out] sTosca[TANDEKOR_AT_ADDRESS_SIZE]  type of the address, with a NUL unless it fills the buffer
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSCA(ResourceContext hResourceContext, char* sSca, char* sTosca,
                                                            uint16_t* pStatus);

    /*
     * Sets the service centre (+CSCA).
     *
     * [in] sSca    address, never left out
     * [in] sTosca  type of the address, at most 50 characters; may be left out
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CSCA(ResourceContext hResourceContext, const char* sSca,
                                                            const char* sTosca, uint16_t* pStatus);

    /*
     * Cell broadcast (+CSCB).
     *
     * [out] piMode                        character: '0' the types below are accepted, '1' they are not
     * [out] sMids[TANDEKOR_AT_TEXT_SIZE]  message identifiers, with a NUL
     * [out] sDcss[TANDEKOR_AT_TEXT_SIZE]  data coding schemes, with a NUL
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSCB(ResourceContext hResourceContext, uint8_t* piMode,
                                                            char* sMids, char* sDcss, uint16_t* pStatus);

    /*
     * Sets cell broadcast (+CSCB). Each argument may be left out, and with it those after it.
     *
     * [in] iMode  sent as one digit
     * [in] sMids  message identifiers
     * [in] sDcss  data coding schemes as bytes of the values 1 to 9 up to a NUL (not characters)
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CSCB(ResourceContext hResourceContext, uint8_t iMode,
                                                            const char* sMids, const char* sDcss, uint16_t* pStatus);

    /*
     * Character set (+CSCS).
     *
     * [out] sCharset[TANDEKOR_AT_SHORT_TEXT_SIZE]  "GSM", "UCS2" ..., with a NUL; a longer text is cut
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Get_CSCS(ResourceContext hResourceContext, char* sCharset,
                                                            uint16_t* pStatus);

    /*
     * Selects the character set (+CSCS).
     *
     * [in] sCharset  at most 16 characters are sent; left out, the command is sent without it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CSCS(ResourceContext hResourceContext, const char* sCharset,
                                                            uint16_t* pStatus);

    /*
     * Restricted SIM access (+CRSM). The reply is looked through from place 16 on, which lies inside an echo: switch
     * the echo off for it. Each argument from iFileId on may be left out, and with it those after it; iP1 to iP3 go
     * together.
     *
     * [in]  iCommand  176 read binary, 178 read record, 192 get response ...; sent as three digits
     * [in]  iFileId   file identifier, sent as a whole number
     * [in]  iP1       one digit, the command's first parameter
     * [in]  iP2       one digit, the second
     * [in]  iP3       one digit, the third
     * [in]  pData     bytes of the values 1 to 9 up to a NUL (not characters), sent after a comma; '-' for none
     * [out] piSw1     first status word of the card
     * [out] piSw2     second status word of the card
     * [out] sResponse[TANDEKOR_AT_REPLY_SIZE]  the card's answer with its closing quote, no NUL; clear it
     *                                          before, since a reply that ends early writes nothing
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CRSM(ResourceContext hResourceContext, uint8_t iCommand,
                                                        int32_t iFileId, int32_t iP1, int32_t iP2, int32_t iP3,
                                                        const uint8_t* pData, uint32_t* piSw1, uint32_t* piSw2,
                                                        char* sResponse, uint16_t* pStatus);

    /* --- Messages
     *
     * Short messages in the phone's store, in PDU form. The place of a message is its number in the store, as a list
     * returns it.
     */

    /*
     * List messages (+CMGL, and ^SMGL of the phone maker) of one state: an entry for each.
     *
     * [in]  iFilter                             TandekorAtMessageState, of which one digit is sent; 255 stands for 0
     * [out] aiIndex[TANDEKOR_AT_MOST_MESSAGES]  place in the store
     * [out] aiStat[TANDEKOR_AT_MOST_MESSAGES]   TandekorAtMessageState
     * [out] aiAlpha[TANDEKOR_AT_MOST_MESSAGES]  number in the name field, 0xFFFFFFFF if it is empty
     * [out] aiLength[TANDEKOR_AT_MOST_MESSAGES] length of the PDU in bytes, without the service centre
     * [out] asData[TANDEKOR_AT_MOST_MESSAGES]   the line with the message, one 1024-byte row per message, no NUL; an
     *                                           empty line leaves its row unchanged
     * [out] piCount                             how many there are; 0 after a failed exchange
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CMGL(ResourceContext hResourceContext, uint8_t iFilter,
                                                        uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha,
                                                        uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                                                        uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_SMGL(ResourceContext hResourceContext, uint8_t iFilter,
                                                        uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha,
                                                        uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                                                        uint16_t* pStatus);

    /*
     * Read a message (+CMGR, and ^SMGR of the phone maker); they set nothing, in spite of their names. The reply is
     * read only if it ends in K or k, also after a failed exchange; else only *pStatus is written, and that only after
     * an exchange that worked.
     *
     * [in]  iIndex      place in the store, 0 to 100; above 100 the command goes out without a number ("AT+CMGR=")
     * [in]  iMaxLength  size of sData
     * [out] piLength    length as the reply states it, modulo 65536; 0 for a reply without a comma
     * [out] piStat      the character before the comma, a state '0' to '3'; '5' for a reply without a comma
     * [out] sData[iMaxLength]  at least one byte. The text from the fifth character after the first comma on (for a
     *                   length of two digits it begins with the line end). At most the smaller of iMaxLength and
     *                   *piLength bytes are written, NUL included, fewer if the reply ends earlier. If one of
     *                   the two is 0, nothing is written and there is no NUL; a reply without a comma gives an empty
     *                   text
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_CMGR(ResourceContext hResourceContext, uint16_t iIndex,
                                                            uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat,
                                                            char* sData, uint16_t* pStatus);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_Set_SMGR(ResourceContext hResourceContext, uint16_t iIndex,
                                                            uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat,
                                                            char* sData, uint16_t* pStatus);

    /*
     * Sends a message from the store (+CMSS).
     *
     * [in] iIndex    place in the store, of which only the first digit is sent: place 12 sends the message of place 1
     * [in] sAddress  address, at most 12 characters; left out, the message's own
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_AT_CMSS(ResourceContext hResourceContext, uint8_t iIndex,
                                                        const char* sAddress, uint16_t* pStatus);

#ifdef __cplusplus
}
#endif

#endif
