// Commands with text, quoted fields or parameters that may be left out: keypad, locks, PIN, forwarding, waiting,
// service centre, cell broadcast, character set, restricted SIM access.
#include "channels/at_channel.h"
#include "core/text_log.h"

namespace tandekor
{

namespace
{

// A parameter that the caller leaves out.
bool IsAbsent(const char* text) { return text[0] == '-'; }
bool IsAbsent(const uint8_t* bytes) { return bytes[0] == '-'; }
bool IsAbsent(uint8_t value) { return value == UINT8_MAX; }
bool IsAbsent(uint16_t value) { return value == UINT16_MAX; }
bool IsAbsent(int32_t value) { return value == -1; }

// In the other direction: a field that the reply does not hold.
constexpr char absentText = '-';  // no NUL follows
constexpr uint32_t absentNumber = UINT32_MAX;

constexpr uint8_t queryMode = 2;

constexpr uint32_t setLockTimeMs = 40000;
constexpr uint32_t getLockTimeMs = 5000;
constexpr uint32_t setForwardingTimeMs = 25000;
constexpr uint32_t getForwardingTimeMs = 10000;
constexpr uint32_t callWaitingTimeMs = 20000;

}  // namespace

uint8_t AtChannel::Set_CKPD(const char* sKeys, uint16_t iTime, uint16_t iPause, uint16_t* pStatus)
{
    Trace(hResourceContext, "TANDEKOR_AT_Set_CKPD(Keys: %s, Time: %d, Pause: %d)", sKeys, iTime, iPause);
    StartCommand("+CKPD=");
    AddText(sKeys);
    if (!IsAbsent(iTime))
    {
        AddCommaAndDecimal(iTime);
        if (!IsAbsent(iPause))
            AddCommaAndDecimal(iPause);
    }
    return SendCommand(pStatus);
}

// --- facility locks

uint8_t AtChannel::SetLock(const char* name, const char* command, const char* sFac, uint8_t iMode,
                           const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    StartNamed(name, command);
    AddQuoted(sFac, 2);
    AddCommaAndFirstDigit(iMode);
    if (iMode != queryMode && !IsAbsent(pPassword))
    {
        AddCharacter(',');
        for (int i = 0; i < 4; ++i)
            AddFirstDigit(pPassword[i]);
        if (!IsAbsent(iClass))
            AddCommaAndDecimal(static_cast<uint32_t>(iClass));
    }
    return SendCommand(pStatus, setLockTimeMs);
}

uint8_t AtChannel::GetLock(const char* name, const char* command, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                           uint32_t* piCount, uint16_t* pStatus)
{
    StartNamed(name, command);
    AddQuoted(sFac, 2);
    AddCommaAndFirstDigit(queryMode);
    if (!SendCommand(pStatus, getLockTimeMs))
        return 0;

    ReplyCursor reply = CursorAt(18);
    uint32_t count = 0;
    for (;; ++count)
    {
        reply.GoToFirst([](uint8_t current) { return current == ':' || current == 'O'; });
        if (reply.Current() != ':')
            break;
        reply.Skip(2);
        if (reply.AtEnd())
            break;
        aState[count] = reply.Current();
        aiClass[count] = absentNumber;
        reply.Skip();
        if (reply.Current() == ',')
        {
            reply.Skip();
            if (!reply.AtEnd())
                aiClass[count] = reply.Current();
            reply.Skip();
        }
    }
    *piCount = count;
    return 1;
}

uint8_t AtChannel::Set_CLCK(const char* sFac, uint8_t iMode, const uint8_t* pPassword, int32_t iClass,
                            uint16_t* pStatus)
{
    return SetLock("TANDEKOR_AT_Set_CLCK", "+CLCK=", sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t AtChannel::Set_SLCK(const char* sFac, uint8_t iMode, const uint8_t* pPassword, int32_t iClass,
                            uint16_t* pStatus)
{
    return SetLock("TANDEKOR_AT_Set_SLCK", "^SLCK=", sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t AtChannel::Get_CLCK(const char* sFac, uint8_t* aState, uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus)
{
    return GetLock("TANDEKOR_AT_Get_CLCK", "+CLCK=", sFac, aState, aiClass, piCount, pStatus);
}

uint8_t AtChannel::Get_SLCK(const char* sFac, uint8_t* aState, uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus)
{
    return GetLock("TANDEKOR_AT_Get_SLCK", "^SLCK=", sFac, aState, aiClass, piCount, pStatus);
}

// --- PIN

uint8_t AtChannel::Get_CPIN(char* sCode, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CPIN", "+CPIN?", pStatus))
        return 0;
    CopyTextAt(18, '\r', sCode, 16);
    return 1;
}

// Each character of the PIN goes out as the first digit of its value less 0x30: a digit as itself.
uint8_t AtChannel::Set_CPIN(const char* sPin, const char* sNewPin, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CPIN", "+CPIN=\"");
    for (; *sPin != '\0'; ++sPin)
        AddFirstDigit(static_cast<uint8_t>(*sPin) - uint32_t{'0'});
    AddCharacter('"');
    if (!IsAbsent(sNewPin))
    {
        AddCharacter(',');
        AddQuoted(sNewPin, 4);
    }
    return SendCommand(pStatus);
}

// --- call forwarding and waiting

uint8_t AtChannel::Set_CCFC(uint8_t iReason, uint8_t iMode, const char* sNumber, uint8_t iType, int32_t iClass,
                            int32_t iTime, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CCFC", "+CCFC=");
    AddFirstDigit(iReason);
    AddCommaAndFirstDigit(iMode);
    if (iMode != queryMode && !IsAbsent(sNumber))
    {
        AddCharacter(',');
        AddQuoted(sNumber, 12);
        if (!IsAbsent(iType))
            AddCommaAndDecimal(iType);
        if (!IsAbsent(iClass))
            AddCommaAndDecimal(static_cast<uint32_t>(iClass));
        if (!IsAbsent(iTime))
            AddCommaAndFirstDigit(static_cast<uint32_t>(iTime));
    }
    return SendCommand(pStatus, setForwardingTimeMs);
}

namespace
{

// Goes behind the number of one list entry and stores its first 12 characters; false if there is none.
bool ReadNumber(ReplyCursor& reply, char (&number)[12])
{
    if (!IsDigit(reply.Current()) && reply.Current() != '+')
        return false;
    size_t length = 0;
    do
    {
        if (length < sizeof number)
            number[length++] = static_cast<char>(reply.Current());
        reply.Skip();
    } while (IsDigit(reply.Current()));
    return true;
}

// A further numeric field behind the byte that parts it from the last one; false if the line ends there or holds none.
bool ReadFurtherNumber(ReplyCursor& reply, uint32_t* value)
{
    if (reply.Current() == '\r')
        return false;
    reply.Skip();
    if (!IsDigit(reply.Current()))
        return false;
    *value = reply.Digits();
    return true;
}

}  // namespace

// An entry that ends in front of its last field ends the list with it.
uint8_t AtChannel::Get_CCFC(uint8_t iReason, uint32_t* aiState, uint32_t* aiClass, char (*asNumber)[12],
                            uint32_t* aiType, uint32_t* aiTime, uint32_t* piCount, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Get_CCFC", "+CCFC=");
    AddFirstDigit(iReason);
    AddCommaAndFirstDigit(queryMode);
    if (!SendCommand(pStatus, getForwardingTimeMs))
        return 0;
    if (*pStatus != statusOk)
        return 1;

    ReplyCursor reply = CursorAt(1);
    reply.GoTo('\n');
    uint32_t count = 0;
    for (bool further = true; further; ++count)
    {
        reply.GoToFirst([](uint8_t current) { return current == '0' || current == '1' || current == 'O'; });
        if (!IsDigit(reply.Current()))
            break;
        aiState[count] = reply.Current() - uint32_t{'0'};
        reply.Skip(2);
        aiClass[count] = reply.Digits();
        asNumber[count][0] = absentText;
        aiType[count] = absentNumber;
        aiTime[count] = absentNumber;

        further = false;
        if (reply.Current() == '\r')
            continue;
        reply.Skip();
        further = ReadNumber(reply, asNumber[count]) && ReadFurtherNumber(reply, &aiType[count])
                  && ReadFurtherNumber(reply, &aiTime[count]) && reply.Current() != '\r';
    }
    *piCount = count;
    return 1;
}

uint8_t AtChannel::Set_CCWA(uint8_t iN, uint8_t iMode, int32_t iClass, uint32_t* aiState, uint32_t* aiClasses,
                            uint32_t* piCount, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CCWA", "+CCWA");
    if (!IsAbsent(iN))
    {
        AddCharacter('=');
        AddFirstDigit(iN);
        if (!IsAbsent(iMode))
        {
            AddCommaAndFirstDigit(iMode);
            if (!IsAbsent(iClass))
                AddCommaAndDecimal(static_cast<uint32_t>(iClass));
        }
    }
    if (!SendCommand(pStatus, callWaitingTimeMs))
        return 0;
    if (*pStatus == statusOk && iMode == queryMode)
        ReadPairs(aiState, aiClasses, piCount);
    return 1;
}

// --- service centre, cell broadcast, character set

// A field that fills its buffer is cut there: the first loses its last byte to the NUL, and the byte behind it counts
// as its closing quote; the second gets no NUL.
uint8_t AtChannel::Get_CSCA(char* sSca, char* sTosca, uint16_t* pStatus)
{
    constexpr size_t fieldSize = 50;
    if (!Query("TANDEKOR_AT_Get_CSCA", "+CSCA?", pStatus))
        return 0;
    ReplyCursor reply = CursorAt(19);
    const size_t scaLength = reply.CopyUpTo('"', sSca, fieldSize);
    sSca[std::min(scaLength, fieldSize - 1)] = '\0';
    reply.Skip();
    if (reply.Current() != ',')
    {
        sTosca[0] = absentText;
        return 1;
    }
    reply.Skip();
    const size_t toscaLength = reply.CopyUpTo('\r', sTosca, fieldSize);
    if (toscaLength < fieldSize)
        sTosca[toscaLength] = '\0';
    return 1;
}

uint8_t AtChannel::Set_CSCA(const char* sSca, const char* sTosca, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CSCA", "+CSCA=");
    AddQuoted(sSca);
    if (!IsAbsent(sTosca))
    {
        AddCharacter(',');
        AddQuoted(sTosca, 50);
    }
    return SendCommand(pStatus);
}

uint8_t AtChannel::Get_CSCB(uint8_t* piMode, char* sMids, char* sDcss, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CSCB", "+CSCB?", pStatus))
        return 0;
    *piMode = CharacterAt(18);
    ReplyCursor reply = CursorAt(21);
    sMids[reply.CopyUpTo('"', sMids, PacketBuffer::areaSize)] = '\0';
    reply.Skip(3);
    sDcss[reply.CopyUpTo('"', sDcss, PacketBuffer::areaSize)] = '\0';
    return 1;
}

uint8_t AtChannel::Set_CSCB(uint8_t iMode, const char* sMids, const char* sDcss, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CSCB", "+CSCB");
    if (!IsAbsent(iMode))
    {
        AddCharacter('=');
        AddFirstDigit(iMode);
        if (!IsAbsent(sMids))
        {
            AddCharacter(',');
            AddQuoted(sMids);
            if (!IsAbsent(sDcss))
            {
                AddText(",\"");
                AddByteDigits(sDcss);
                AddCharacter('"');
            }
        }
    }
    return SendCommand(pStatus);
}

uint8_t AtChannel::Get_CSCS(char* sCharset, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CSCS", "+CSCS?", pStatus))
        return 0;
    CopyTextAt(19, '"', sCharset, 16);
    return 1;
}

uint8_t AtChannel::Set_CSCS(const char* sCharset, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_CSCS", "+CSCS");
    if (!IsAbsent(sCharset))
    {
        AddCharacter('=');
        AddQuoted(sCharset, 16);
    }
    return SendCommand(pStatus);
}

// --- restricted SIM access

// The file identifier is sent whole and the data behind a comma, as TS 27.007 has them.
uint8_t AtChannel::CRSM(uint8_t iCommand, int32_t iFileId, int32_t iP1, int32_t iP2, int32_t iP3, const uint8_t* pData,
                        uint32_t* piSw1, uint32_t* piSw2, char* sResponse, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_CRSM", "+CRSM=");
    AddFirstDigit(iCommand / 100u);
    AddFirstDigit(iCommand / 10u % 10u);
    AddFirstDigit(iCommand % 10u);
    if (!IsAbsent(iFileId))
    {
        AddCommaAndDecimal(static_cast<uint32_t>(iFileId));
        if (!IsAbsent(iP1) && !IsAbsent(iP2) && !IsAbsent(iP3))
        {
            AddCommaAndFirstDigit(static_cast<uint32_t>(iP1));
            AddCommaAndFirstDigit(static_cast<uint32_t>(iP2));
            AddCommaAndFirstDigit(static_cast<uint32_t>(iP3));
            if (!IsAbsent(pData) && pData[0] != 0)
            {
                AddCharacter(',');
                AddByteDigits(pData);
            }
        }
    }
    if (!SendCommand(pStatus))
        return 0;

    ReplyCursor reply = CursorAt(16);
    reply.GoToFirst(IsDigit);
    *piSw1 = reply.AtEnd() ? absentNumber : reply.Digits();
    reply.Skip();
    *piSw2 = reply.AtEnd() ? absentNumber : reply.DigitsFromAnyStart();
    if (reply.Current() != ',' || reply.Ahead(2) == '"')
    {
        sResponse[0] = absentText;
        return 1;
    }
    reply.Skip(2);
    reply.CopyUpTo('\r', sResponse, PacketBuffer::areaSize);
    return 1;
}

}  // namespace tandekor
