// AT commands on the phone's diagnostic port: how a command is built, sent and classified, how a reply is read, and the
// commands themselves. The exported functions of the same names document them.
#pragma once

#include <cstdint>

#include "frame/packet_buffer.h"

namespace tandekor
{

inline bool IsDigit(uint8_t character) { return character >= '0' && character <= '9'; }

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

private:
    static constexpr uint32_t replyTimeMs = 3000;

    // --- sending a command

    // Empties the buffer and appends the letters AT.
    void StartCommand();
    void AddText(const char* text);
    void AddCharacter(char character);
    // The decimal text of the value, or its first characters.
    void AddDecimal(uint32_t value, int mostCharacters = 10);
    void AddFirstDigit(uint32_t value) { AddDecimal(value, 1); }
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
    // The index of the last digit, looked for from the reply's end; -1 if there is none.
    int IndexOfLastDigit() const;

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
    // The second value is left out if it is 255.
    uint8_t SetOneOrTwo(const char* name, const char* command, uint8_t iFirst, int firstCharacters, uint8_t iSecond,
                        uint16_t* pStatus);

    ResourceContext hResourceContext;
    int32_t parseOffset = 0;  // 0 for a reply with echo, -9 for one without
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
