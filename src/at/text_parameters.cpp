// Commands with texts, quoted fields or optional parameters: keypad, locks, PIN, forwarding, waiting,
// service centre, cell broadcast, character set, restricted SIM access.
#include <algorithm>

#include "at/command.h"
#include "core/text_log.h"

using namespace tandekor;

namespace
{

// Whether the caller leaves the parameter out.
bool IsAbsent(const char* text) { return text[0] == '-'; }
bool IsAbsent(const uint8_t* bytes) { return bytes[0] == '-'; }
bool IsAbsent(uint8_t value) { return value == UINT8_MAX; }
bool IsAbsent(uint16_t value) { return value == UINT16_MAX; }
bool IsAbsent(int32_t value) { return value == -1; }

// What the caller gets for a field that the reply does not hold.
constexpr char absentText = '-';  // no NUL follows
constexpr uint32_t absentNumber = UINT32_MAX;

constexpr uint8_t queryMode = 2;

constexpr uint32_t setLockTimeMs = 40000;
constexpr uint32_t getLockTimeMs = 5000;
constexpr uint32_t setForwardingTimeMs = 25000;
constexpr uint32_t getForwardingTimeMs = 10000;
constexpr uint32_t callWaitingTimeMs = 20000;

uint8_t SetLock(ResourceContext hResourceContext, const char* name, const char* command, const char* sFac,
                uint8_t iMode, const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, name, command);
    if (at == nullptr)
        return 0;
    at->AddQuoted(sFac, 2);
    at->AddCommaAndFirstDigit(iMode);
    if (iMode != queryMode && !IsAbsent(pPassword))
    {
        at->AddCharacter(',');
        for (int i = 0; i < 4; ++i)
            at->AddFirstDigit(pPassword[i]);
        if (!IsAbsent(iClass))
            at->AddCommaAndDecimal(static_cast<uint32_t>(iClass));
    }
    return at->SendCommand(pStatus, setLockTimeMs);
}

uint8_t GetLock(ResourceContext hResourceContext, const char* name, const char* command, const char* sFac,
                uint8_t* aState, uint32_t* aiClass, uint32_t* piCount, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, name, command);
    if (at == nullptr)
        return 0;
    at->AddQuoted(sFac, 2);
    at->AddCommaAndFirstDigit(queryMode);
    if (!at->SendCommand(pStatus, getLockTimeMs))
        return 0;

    ReplyCursor reply = at->CursorAt(18);
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

// Reads the phone number of a list entry, of which the first 12 characters are stored; false if there is none.
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

// Skips the separator and reads one more number; false if the line ends there or no digit follows.
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

uint8_t TANDEKOR_AT_Set_CKPD(ResourceContext hResourceContext, const char* sKeys, uint16_t iTime, uint16_t iPause,
                             uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    if (at == nullptr)
        return 0;
    Trace(hResourceContext, "TANDEKOR_AT_Set_CKPD(Keys: %s, Time: %d, Pause: %d)", sKeys, iTime, iPause);
    at->StartCommand("+CKPD=");
    at->AddText(sKeys);
    if (!IsAbsent(iTime))
    {
        at->AddCommaAndDecimal(iTime);
        if (!IsAbsent(iPause))
            at->AddCommaAndDecimal(iPause);
    }
    return at->SendCommand(pStatus);
}

// --- facility locks

uint8_t TANDEKOR_AT_Set_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                             const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    return SetLock(hResourceContext, __func__, "+CLCK=", sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t TANDEKOR_AT_Set_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                             const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    return SetLock(hResourceContext, __func__, "^SLCK=", sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                             uint32_t* piCount, uint16_t* pStatus)
{
    return GetLock(hResourceContext, __func__, "+CLCK=", sFac, aState, aiClass, piCount, pStatus);
}

uint8_t TANDEKOR_AT_Get_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                             uint32_t* piCount, uint16_t* pStatus)
{
    return GetLock(hResourceContext, __func__, "^SLCK=", sFac, aState, aiClass, piCount, pStatus);
}

// --- PIN

uint8_t TANDEKOR_AT_Get_CPIN(ResourceContext hResourceContext, char* sCode, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CPIN?", pStatus);
    if (at == nullptr)
        return 0;
    at->CopyTextAt(18, '\r', sCode, 16);
    return 1;
}

// Each character of the PIN is sent as the first digit of its value less 0x30: a digit as itself.
uint8_t TANDEKOR_AT_Set_CPIN(ResourceContext hResourceContext, const char* sPin, const char* sNewPin, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CPIN=\"");
    if (at == nullptr)
        return 0;
    for (; *sPin != '\0'; ++sPin)
        at->AddFirstDigit(static_cast<uint8_t>(*sPin) - uint32_t{'0'});
    at->AddCharacter('"');
    if (!IsAbsent(sNewPin))
    {
        at->AddCharacter(',');
        at->AddQuoted(sNewPin, 4);
    }
    return at->SendCommand(pStatus);
}

// --- call forwarding and waiting

uint8_t TANDEKOR_AT_Set_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint8_t iMode, const char* sNumber,
                             uint8_t iType, int32_t iClass, int32_t iTime, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CCFC=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iReason);
    at->AddCommaAndFirstDigit(iMode);
    if (iMode != queryMode && !IsAbsent(sNumber))
    {
        at->AddCharacter(',');
        at->AddQuoted(sNumber, 12);
        if (!IsAbsent(iType))
            at->AddCommaAndDecimal(iType);
        if (!IsAbsent(iClass))
            at->AddCommaAndDecimal(static_cast<uint32_t>(iClass));
        if (!IsAbsent(iTime))
            at->AddCommaAndFirstDigit(static_cast<uint32_t>(iTime));
    }
    return at->SendCommand(pStatus, setForwardingTimeMs);
}

// An entry that ends before its last field is the last of the list.
uint8_t TANDEKOR_AT_Get_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint32_t* aiState, uint32_t* aiClass,
                             char (*asNumber)[12], uint32_t* aiType, uint32_t* aiTime, uint32_t* piCount,
                             uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CCFC=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iReason);
    at->AddCommaAndFirstDigit(queryMode);
    if (!at->SendCommand(pStatus, getForwardingTimeMs))
        return 0;
    if (*pStatus != statusOk)
        return 1;

    ReplyCursor reply = at->CursorAt(1);
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

uint8_t TANDEKOR_AT_Set_CCWA(ResourceContext hResourceContext, uint8_t iN, uint8_t iMode, int32_t iClass,
                             uint32_t* aiState, uint32_t* aiClasses, uint32_t* piCount, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CCWA");
    if (at == nullptr)
        return 0;
    if (!IsAbsent(iN))
    {
        at->AddCharacter('=');
        at->AddFirstDigit(iN);
        if (!IsAbsent(iMode))
        {
            at->AddCommaAndFirstDigit(iMode);
            if (!IsAbsent(iClass))
                at->AddCommaAndDecimal(static_cast<uint32_t>(iClass));
        }
    }
    if (!at->SendCommand(pStatus, callWaitingTimeMs))
        return 0;
    if (*pStatus == statusOk && iMode == queryMode)
        at->ReadPairs(aiState, aiClasses, piCount);
    return 1;
}

// --- service centre, cell broadcast, character set

// A field is cut at the size of its buffer. The first then loses its last byte to the NUL, and the next byte of the
// reply is taken for its closing quote; the second then gets no NUL.
uint8_t TANDEKOR_AT_Get_CSCA(ResourceContext hResourceContext, char* sSca, char* sTosca, uint16_t* pStatus)
{
    constexpr size_t fieldSize = 50;
    const AtChannel* const at = Query(hResourceContext, __func__, "+CSCA?", pStatus);
    if (at == nullptr)
        return 0;
    ReplyCursor reply = at->CursorAt(19);
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

uint8_t TANDEKOR_AT_Set_CSCA(ResourceContext hResourceContext, const char* sSca, const char* sTosca, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CSCA=");
    if (at == nullptr)
        return 0;
    at->AddQuoted(sSca);
    if (!IsAbsent(sTosca))
    {
        at->AddCharacter(',');
        at->AddQuoted(sTosca, 50);
    }
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_CSCB(ResourceContext hResourceContext, uint8_t* piMode, char* sMids, char* sDcss,
                             uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CSCB?", pStatus);
    if (at == nullptr)
        return 0;
    *piMode = at->CharacterAt(18);
    ReplyCursor reply = at->CursorAt(21);
    sMids[reply.CopyUpTo('"', sMids, PacketBuffer::areaSize)] = '\0';
    reply.Skip(3);
    sDcss[reply.CopyUpTo('"', sDcss, PacketBuffer::areaSize)] = '\0';
    return 1;
}

uint8_t TANDEKOR_AT_Set_CSCB(ResourceContext hResourceContext, uint8_t iMode, const char* sMids, const char* sDcss,
                             uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CSCB");
    if (at == nullptr)
        return 0;
    if (!IsAbsent(iMode))
    {
        at->AddCharacter('=');
        at->AddFirstDigit(iMode);
        if (!IsAbsent(sMids))
        {
            at->AddCharacter(',');
            at->AddQuoted(sMids);
            if (!IsAbsent(sDcss))
            {
                at->AddText(",\"");
                at->AddByteDigits(sDcss);
                at->AddCharacter('"');
            }
        }
    }
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_CSCS(ResourceContext hResourceContext, char* sCharset, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CSCS?", pStatus);
    if (at == nullptr)
        return 0;
    at->CopyTextAt(19, '"', sCharset, 16);
    return 1;
}

uint8_t TANDEKOR_AT_Set_CSCS(ResourceContext hResourceContext, const char* sCharset, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CSCS");
    if (at == nullptr)
        return 0;
    if (!IsAbsent(sCharset))
    {
        at->AddCharacter('=');
        at->AddQuoted(sCharset, 16);
    }
    return at->SendCommand(pStatus);
}

// --- restricted SIM access

// The file identifier is sent in full and the data after a comma, as in TS 27.007.
uint8_t TANDEKOR_AT_CRSM(ResourceContext hResourceContext, uint8_t iCommand, int32_t iFileId, int32_t iP1, int32_t iP2,
                         int32_t iP3, const uint8_t* pData, uint32_t* piSw1, uint32_t* piSw2, char* sResponse,
                         uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CRSM=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iCommand / 100u);
    at->AddFirstDigit(iCommand / 10u % 10u);
    at->AddFirstDigit(iCommand % 10u);
    if (!IsAbsent(iFileId))
    {
        at->AddCommaAndDecimal(static_cast<uint32_t>(iFileId));
        if (!IsAbsent(iP1) && !IsAbsent(iP2) && !IsAbsent(iP3))
        {
            at->AddCommaAndFirstDigit(static_cast<uint32_t>(iP1));
            at->AddCommaAndFirstDigit(static_cast<uint32_t>(iP2));
            at->AddCommaAndFirstDigit(static_cast<uint32_t>(iP3));
            if (!IsAbsent(pData) && pData[0] != 0)
            {
                at->AddCharacter(',');
                at->AddByteDigits(pData);
            }
        }
    }
    if (!at->SendCommand(pStatus))
        return 0;

    ReplyCursor reply = at->CursorAt(16);
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
