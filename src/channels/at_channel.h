// AT commands on the phone's diagnostic port: how a command is built, sent and classified, how a reply is read, and the
// commands themselves. The exported functions of the same names document them.
#pragma once

#include <cstdint>

#include "channels/reply_cursor.h"
#include "core/packet_buffer.h"

namespace tandekor
{

// What *pStatus tells of a reply.
constexpr uint16_t statusOk = 0;     // it ends in OK
constexpr uint16_t statusError = 1;  // it ends in ERROR
constexpr uint16_t statusOther = 2;

class AtChannel
{
public:
    explicit AtChannel(ResourceContext handle) : hResourceContext(handle) {}

    // Commands without a value.
    uint8_t Switch_2_OBEX(uint16_t* pStatus);
    uint8_t CRMP(uint16_t* pStatus);
    uint8_t CHUP(uint16_t* pStatus);

    // One digit.
    uint8_t Get_CMUT(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CALM(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CRSL(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CLVL(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CTZU(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CTZR(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CMEC(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CLIP(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CAOC(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_SLNG(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_SNFS(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_SNFV(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_SICO(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Set_CMUT(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CALM(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CRSL(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CLVL(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CTZU(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CTZR(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CMEC(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CLIP(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_COLP(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CAOC(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SACM(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SLNG(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SNFS(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SNFV(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SICO(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CREG(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CBST(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CMEE(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CR(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SMSO(uint8_t iValue, uint16_t* pStatus);
    uint8_t CHLD(int32_t iValue, uint16_t* pStatus);
    uint8_t Set_SCKS(int32_t iValue, uint16_t* pStatus);

    // Two values.
    uint8_t Get_COLP(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    uint8_t Get_CSSN(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    uint8_t Get_CGEREP(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    uint8_t Set_CSSN(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);
    uint8_t Set_CGEREP(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);
    uint8_t Set_SRMP(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus);

    // Characters as they stand in the reply.
    uint8_t Get_CGATT(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CGREG(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    uint8_t Get_CR(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Get_CMEE(uint32_t* piValue, uint16_t* pStatus);
    uint8_t Get_CCWA(uint32_t* piValue, uint16_t* pStatus);

    // A digit looked for from the reply's end.
    uint8_t Get_CPAS(uint32_t* piValue, uint16_t* pStatus);
    uint8_t Get_SCKA(uint32_t* piValue, uint16_t* pStatus);
    uint8_t Get_SCKS(uint32_t* piFirst, uint32_t* piSecond, uint16_t* pStatus);

    // Values with a rule of their own.
    uint8_t Get_CVIB(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Set_CVIB(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_SKPD(uint8_t iValue, uint16_t* pStatus);
    uint8_t Set_CGATT(int32_t iValue, uint16_t* pStatus);
    uint8_t Get_WS46(uint8_t* piValue, uint16_t* pStatus);
    uint8_t Set_WS46(uint8_t iValue, uint16_t* pStatus);
    uint8_t Get_IPR(uint32_t* piValue, uint16_t* pStatus);
    uint8_t Set_IPR(int32_t iValue, uint16_t* pStatus);

    // Several fields.
    uint8_t Get_CCLK(uint8_t* piDate1, uint8_t* piDate2, uint8_t* piDate3, uint8_t* piHour, uint8_t* piMinute,
                     uint8_t* piSecond, int8_t* piZone, uint16_t* pStatus);
    uint8_t Set_CCLK(uint8_t iDate1, uint8_t iDate2, uint8_t iDate3, uint8_t iHour, uint8_t iMinute, uint8_t iSecond,
                     int8_t iZone, uint16_t* pStatus);
    uint8_t Get_CMER(uint8_t* piMode, uint8_t* piInd, uint8_t* piBfr, uint16_t* pStatus);
    uint8_t Set_CMER(uint8_t iMode, uint8_t iInd, uint8_t iBfr, uint16_t* pStatus);
    uint8_t Get_CACM(uint16_t* piValue, uint16_t* pStatus);
    uint8_t Get_CAMM(uint16_t* piValue, uint16_t* pStatus);
    uint8_t Get_SACM(uint8_t* piMode, uint8_t* piAcm, uint8_t* piAcmMax, uint16_t* pStatus);
    uint8_t Get_CBC(uint8_t* piBcs, uint8_t* piBcl, uint16_t* pStatus);
    uint8_t Get_CREG(uint8_t* piN, uint8_t* piStat, uint8_t* pLac, uint8_t* pCi, uint16_t* pStatus);
    uint8_t Get_CSQ(uint8_t* piRssi, uint8_t* piBer, uint16_t* pStatus);
    uint8_t Get_CIND(uint8_t* pi1, uint8_t* pi2, uint8_t* pi3, uint8_t* pi4, uint8_t* pi5, uint8_t* pi6, uint8_t* pi7,
                     uint8_t* pi8, uint16_t* pStatus);
    uint8_t Set_CIND(uint8_t i1, uint8_t i2, uint8_t i3, uint8_t i4, uint8_t i5, uint8_t i6, uint8_t i7, uint8_t i8,
                     uint16_t* pStatus);
    uint8_t Get_CBST(uint32_t* piSpeed, uint8_t* piName, uint8_t* piCe, uint16_t* pStatus);
    uint8_t Get_SIFS(uint8_t* piKind, uint16_t* pStatus);
    uint8_t Get_COPS(uint32_t* piMode, uint32_t* piFormat, char* sOper, uint16_t* pStatus);
    uint8_t Set_COPS(int32_t iMode, int32_t iFormat, const char* sOper, uint16_t* pStatus);
    uint8_t Get_CGACT(uint32_t* aiCid, uint32_t* aiState, uint32_t* piCount, uint16_t* pStatus);

    // Identification texts.
    uint8_t Get_CEER(char* sText, uint16_t* pStatus);
    uint8_t Get_CGMI(char* sText, uint16_t* pStatus);
    uint8_t Get_CGMM(char* sText, uint16_t* pStatus);
    uint8_t Get_CGMR(char* sText, uint16_t* pStatus);
    uint8_t Get_CGSN(char* sText, uint16_t* pStatus);
    uint8_t Get_CIMI(char* sText, uint16_t* pStatus);
    uint8_t Get_GSN(char* sText, uint16_t* pStatus);
    uint8_t Get_SCID(char* sText, uint16_t* pStatus);

    // Text parameters.
    uint8_t Set_CKPD(const char* sKeys, uint16_t iTime, uint16_t iPause, uint16_t* pStatus);
    uint8_t Set_CLCK(const char* sFac, uint8_t iMode, const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus);
    uint8_t Get_CLCK(const char* sFac, uint8_t* aState, uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus);
    uint8_t Set_SLCK(const char* sFac, uint8_t iMode, const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus);
    uint8_t Get_SLCK(const char* sFac, uint8_t* aState, uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus);
    uint8_t Get_CPIN(char* sCode, uint16_t* pStatus);
    uint8_t Set_CPIN(const char* sPin, const char* sNewPin, uint16_t* pStatus);
    uint8_t Set_CCFC(uint8_t iReason, uint8_t iMode, const char* sNumber, uint8_t iType, int32_t iClass, int32_t iTime,
                     uint16_t* pStatus);
    uint8_t Get_CCFC(uint8_t iReason, uint32_t* aiState, uint32_t* aiClass, char (*asNumber)[12], uint32_t* aiType,
                     uint32_t* aiTime, uint32_t* piCount, uint16_t* pStatus);
    uint8_t Set_CCWA(uint8_t iN, uint8_t iMode, int32_t iClass, uint32_t* aiState, uint32_t* aiClasses,
                     uint32_t* piCount, uint16_t* pStatus);
    uint8_t Get_CSCA(char* sSca, char* sTosca, uint16_t* pStatus);
    uint8_t Set_CSCA(const char* sSca, const char* sTosca, uint16_t* pStatus);
    uint8_t Get_CSCB(uint8_t* piMode, char* sMids, char* sDcss, uint16_t* pStatus);
    uint8_t Set_CSCB(uint8_t iMode, const char* sMids, const char* sDcss, uint16_t* pStatus);
    uint8_t Get_CSCS(char* sCharset, uint16_t* pStatus);
    uint8_t Set_CSCS(const char* sCharset, uint16_t* pStatus);
    uint8_t CRSM(uint8_t iCommand, int32_t iFileId, int32_t iP1, int32_t iP2, int32_t iP3, const uint8_t* pData,
                 uint32_t* piSw1, uint32_t* piSw2, char* sResponse, uint16_t* pStatus);

    // Messages.
    uint8_t CMGL(uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength,
                 char (*asData)[1024], uint32_t* piCount, uint16_t* pStatus);
    uint8_t SMGL(uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength,
                 char (*asData)[1024], uint32_t* piCount, uint16_t* pStatus);
    uint8_t Set_CMGR(uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat, char* sData,
                     uint16_t* pStatus);
    uint8_t Set_SMGR(uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat, char* sData,
                     uint16_t* pStatus);
    uint8_t CMSS(uint8_t iIndex, const char* sAddress, uint16_t* pStatus);

private:
    static constexpr uint32_t replyTimeMs = 3000;

    // --- sending a command

    // Writes the log text "<name>()", empties the buffer and appends the letters AT and the command.
    void StartNamed(const char* name, const char* command);
    // The same without the log text.
    void StartCommand(const char* command);
    void AddText(const char* text);
    void AddCharacter(char character);
    // The decimal text of the value, or its first characters.
    void AddDecimal(uint32_t value, int mostCharacters = 10);
    void AddFirstDigit(uint32_t value) { AddDecimal(value, 1); }
    // A comma, and the value's first digit or its decimal text.
    void AddCommaAndFirstDigit(uint32_t value);
    void AddCommaAndDecimal(uint32_t value);
    // At least two digits, of which the first two are sent.
    void AddTwoDigits(uint32_t value);
    // At most so many characters of a text, bare or between double quotes.
    void AddText(const char* text, size_t mostCharacters);
    void AddQuoted(const char* text, size_t mostCharacters = SIZE_MAX);
    // The first digit of each byte's value up to a NUL.
    template <typename Byte>
    void AddByteDigits(const Byte* bytes)
    {
        for (; *bytes != 0; ++bytes)
            AddFirstDigit(static_cast<uint8_t>(*bytes));
    }
    // Appends the carriage return and the NUL, which is sent as well, and exchanges. On success *pStatus tells how the
    // reply ends, and parseOffset whether it begins with the echo; on failure both keep their values.
    bool SendCommand(uint16_t* pStatus, uint32_t timeoutMs = replyTimeMs);

    // --- reading the reply
    // Positions count from 0 in a reply that begins with an echo of nine bytes. Every position may be asked for: what
    // lies behind a short reply reads as the fill, what lies outside the area as NUL, and neither is a digit.

    int IndexOf(int position) const { return position + parseOffset; }
    uint8_t CharacterAt(int position) const { return packetBuffer.ResponseAt(IndexOf(position)); }
    // The value of a digit; any other character gives 0.
    uint8_t DigitAt(int position) const;
    // The number of so many digits.
    uint32_t NumberAt(int position, int digits) const;
    // The index of the last digit, looked for from the reply's end; -1 if there is none.
    int IndexOfLastDigit() const;
    ReplyCursor CursorAt(int position) const { return {packetBuffer, IndexOf(position)}; }
    // The text from a position up to that byte, with a NUL behind it.
    void CopyTextAt(int position, char stop, char* text, size_t textSize) const;
    // Pairs of numbers up to the letter O, from the first colon behind position 16 on.
    void ReadPairs(uint32_t* aiFirst, uint32_t* aiSecond, uint32_t* piCount) const;

    // --- families of commands. The name is that of the exported function, for the log.

    bool Query(const char* name, const char* command, uint16_t* pStatus);
    uint8_t QueryDigit(const char* name, const char* command, int position, uint8_t* piValue, uint16_t* pStatus);
    uint8_t QueryTwoDigits(const char* name, const char* command, int firstPosition, int secondPosition,
                           uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus);
    uint8_t QueryLastDigit(const char* name, const char* command, uint32_t* piValue, uint16_t* pStatus);
    uint8_t SetFirstDigit(const char* name, const char* command, uint8_t iValue, uint16_t* pStatus);
    // The same with a log text that does not show the value.
    uint8_t SetFirstDigitUnshown(const char* name, const char* command, uint32_t iValue, uint16_t* pStatus,
                                 uint32_t timeoutMs = replyTimeMs);
    // Six digits, modulo 65536.
    uint8_t QueryMeter(const char* name, const char* command, uint16_t* piValue, uint16_t* pStatus);
    // The text from a position up to the result word, with the line ends in front of that word.
    uint8_t QueryTextToEnd(const char* name, const char* command, int position, char* sText, uint16_t* pStatus);
    uint8_t QueryFixedText(const char* name, const char* command, int position, int length, char* sText,
                           uint16_t* pStatus);
    uint8_t SetLock(const char* name, const char* command, const char* sFac, uint8_t iMode, const uint8_t* pPassword,
                    int32_t iClass, uint16_t* pStatus);
    uint8_t GetLock(const char* name, const char* command, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                    uint32_t* piCount, uint16_t* pStatus);
    uint8_t ListMessages(const char* name, const char* command, char marker, uint8_t iFilter, uint32_t* aiIndex,
                         uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024],
                         uint32_t* piCount, uint16_t* pStatus);
    uint8_t ReadMessage(const char* name, const char* command, uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength,
                        uint8_t* piStat, char* sData, uint16_t* pStatus);
    // The second value is left out if it is 255.
    uint8_t SetOneOrTwo(const char* name, const char* command, uint8_t iFirst, int firstCharacters, uint8_t iSecond,
                        uint16_t* pStatus);

    ResourceContext hResourceContext;
    int32_t parseOffset = 0;  // 0 for a reply with echo, -9 for one without
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
