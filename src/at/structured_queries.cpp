// Commands whose reply or request holds several fields: clock, event reports, meters, battery, registration, signal,
// indicators, bearer, interface, operator, packet contexts.
#include <cstdlib>

#include "channels/at_channel.h"
#include "core/text_log.h"

namespace tandekor
{

namespace
{

constexpr uint8_t leftAlone = 255;

// Words by which the phone names the interface, and the numbers for them.
struct InterfaceKind
{
    const char* word;
    uint8_t kind;
};
constexpr InterfaceKind interfaceKinds[] = {{"IrDA", 1}, {"Bluetooth", 2}, {"Wire", 3}};

bool BeginsWith(const ReplyCursor& reply, const char* word)
{
    for (int i = 0; word[i] != '\0'; ++i)
    {
        if (reply.Ahead(i) != static_cast<uint8_t>(word[i]))
            return false;
    }
    return true;
}

}  // namespace

uint8_t AtChannel::Get_CCLK(uint8_t* piDate1, uint8_t* piDate2, uint8_t* piDate3, uint8_t* piHour, uint8_t* piMinute,
                            uint8_t* piSecond, int8_t* piZone, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CCLK", "+CCLK?", pStatus))
        return 0;
    const auto twoDigitsAt = [&](int position) { return static_cast<uint8_t>(NumberAt(position, 2)); };
    *piDate1 = twoDigitsAt(19);
    *piDate2 = twoDigitsAt(22);
    *piDate3 = twoDigitsAt(25);
    *piHour = twoDigitsAt(28);
    *piMinute = twoDigitsAt(31);
    *piSecond = twoDigitsAt(34);
    const int zone = twoDigitsAt(37);
    *piZone = static_cast<int8_t>(CharacterAt(36) == '-' ? -zone : zone);
    return 1;
}

uint8_t AtChannel::Set_CCLK(uint8_t iDate1, uint8_t iDate2, uint8_t iDate3, uint8_t iHour, uint8_t iMinute,
                            uint8_t iSecond, int8_t iZone, uint16_t* pStatus)
{
    const char sign = iZone < 0 ? '-' : '+';
    const int magnitude = std::abs(int{iZone});
    Trace(hResourceContext, "TANDEKOR_AT_Set_CCLK(Date = %.2d/%.2d/%.2d\nTime = %.2d:%.2d:%.2d\nTime Zone = %c%.2d",
          iDate1, iDate2, iDate3, iHour, iMinute, iSecond, sign, magnitude);
    StartCommand("+CCLK=\"");
    AddTwoDigits(iDate1);
    AddCharacter('/');
    AddTwoDigits(iDate2);
    AddCharacter('/');
    AddTwoDigits(iDate3);
    AddCharacter(',');
    AddTwoDigits(iHour);
    AddCharacter(':');
    AddTwoDigits(iMinute);
    AddCharacter(':');
    AddTwoDigits(iSecond);
    AddCharacter(sign);
    AddTwoDigits(static_cast<uint32_t>(magnitude));
    AddCharacter('"');
    return SendCommand(pStatus);
}

uint8_t AtChannel::Get_CMER(uint8_t* piMode, uint8_t* piInd, uint8_t* piBfr, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CMER", "+CMER?", pStatus))
        return 0;
    *piMode = DigitAt(18);
    *piInd = DigitAt(24);
    *piBfr = DigitAt(26);
    return 1;
}

// The keypad and display fields have no argument and are sent as 0: no report.
uint8_t AtChannel::Set_CMER(uint8_t iMode, uint8_t iInd, uint8_t iBfr, uint16_t* pStatus)
{
    Trace(hResourceContext, "TANDEKOR_AT_Set_CMER(%d, %d, %d)", iMode, iInd, iBfr);
    StartCommand("+CMER=");
    AddFirstDigit(iMode);
    AddCommaAndFirstDigit(0);
    AddCommaAndFirstDigit(0);
    AddCommaAndFirstDigit(iInd);
    AddCommaAndFirstDigit(iBfr);
    return SendCommand(pStatus);
}

uint8_t AtChannel::QueryMeter(const char* name, const char* command, uint16_t* piValue, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return 0;
    *piValue = static_cast<uint16_t>(NumberAt(19, 6));
    return 1;
}

uint8_t AtChannel::Get_CACM(uint16_t* piValue, uint16_t* pStatus)
{
    return QueryMeter("TANDEKOR_AT_Get_CACM", "+CACM?", piValue, pStatus);
}

uint8_t AtChannel::Get_CAMM(uint16_t* piValue, uint16_t* pStatus)
{
    return QueryMeter("TANDEKOR_AT_Get_CAMM", "+CAMM?", piValue, pStatus);
}

uint8_t AtChannel::Get_SACM(uint8_t* piMode, uint8_t* piAcm, uint8_t* piAcmMax, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_SACM", "^SACM?", pStatus))
        return 0;
    *piMode = DigitAt(18);
    *piAcm = static_cast<uint8_t>(NumberAt(21, 6));
    *piAcmMax = static_cast<uint8_t>(NumberAt(30, 6));
    return 1;
}

uint8_t AtChannel::Get_CBC(uint8_t* piBcs, uint8_t* piBcl, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CBC", "+CBC", pStatus))
        return 0;
    *piBcs = DigitAt(15);
    const int digits = IsDigit(CharacterAt(19)) ? 3 : IsDigit(CharacterAt(18)) ? 2 : 1;
    *piBcl = static_cast<uint8_t>(NumberAt(17, digits));
    return 1;
}

uint8_t AtChannel::Get_CREG(uint8_t* piN, uint8_t* piStat, uint8_t* pLac, uint8_t* pCi, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CREG", "+CREG?", pStatus))
        return 0;
    *piN = DigitAt(18);
    *piStat = DigitAt(20);
    if (CharacterAt(21) == ',')
    {
        pLac[0] = CharacterAt(22);
        pLac[1] = CharacterAt(23);
        pCi[0] = CharacterAt(25);
        pCi[1] = CharacterAt(26);
    }
    else
    {
        pLac[0] = '-';
        pCi[0] = '-';
    }
    return 1;
}

// Read from the reply's end: one or two digits, a comma, one or two digits.
uint8_t AtChannel::Get_CSQ(uint8_t* piRssi, uint8_t* piBer, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CSQ", "+CSQ", pStatus))
        return 0;
    int index = IndexOfLastDigit();
    const auto isDigit = [&](int place) { return IsDigit(packetBuffer.ResponseAt(place)); };
    const auto digit = [&](int place) { return packetBuffer.ResponseAt(place) - '0'; };
    if (index < 0)
        return 1;
    *piBer = static_cast<uint8_t>(digit(index));
    --index;
    if (isDigit(index))
    {
        *piBer = static_cast<uint8_t>(*piBer + 10 * digit(index));
        --index;
    }
    --index;
    if (!isDigit(index))
        return 1;
    *piRssi = static_cast<uint8_t>(digit(index));
    if (isDigit(index - 1))
        *piRssi = static_cast<uint8_t>(*piRssi + 10 * digit(index - 1));
    return 1;
}

// Read from the reply's end, where every second byte is an indicator.
uint8_t AtChannel::Get_CIND(uint8_t* pi1, uint8_t* pi2, uint8_t* pi3, uint8_t* pi4, uint8_t* pi5, uint8_t* pi6,
                            uint8_t* pi7, uint8_t* pi8, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CIND", "+CIND?", pStatus))
        return 0;
    int index = IndexOfLastDigit();
    for (uint8_t* indicator : {pi8, pi7, pi6, pi5, pi4, pi3, pi2, pi1})
    {
        if (index >= 0)
            *indicator = packetBuffer.ResponseAt(index);
        index -= 2;
    }
    return 1;
}

uint8_t AtChannel::Set_CIND(uint8_t i1, uint8_t i2, uint8_t i3, uint8_t i4, uint8_t i5, uint8_t i6, uint8_t i7,
                            uint8_t i8, uint16_t* pStatus)
{
    const uint8_t indicators[] = {i1, i2, i3, i4, i5, i6, i7, i8};
    bool any = false;
    StartNamed("TANDEKOR_AT_Set_CIND", "+CIND=");
    for (const uint8_t indicator : indicators)
    {
        if (indicator != leftAlone)
        {
            any = true;
            AddFirstDigit(indicator);
        }
        AddCharacter(',');
    }
    return any ? SendCommand(pStatus) : uint8_t{1};
}

// Read from the reply's end: speed of one or two digits, a comma, name, a comma, ce.
uint8_t AtChannel::Get_CBST(uint32_t* piSpeed, uint8_t* piName, uint8_t* piCe, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CBST", "+CBST?", pStatus))
        return 0;
    const int index = IndexOfLastDigit();
    if (index >= 0)
        *piCe = packetBuffer.ResponseAt(index);
    if (index >= 2)
        *piName = packetBuffer.ResponseAt(index - 2);
    if (index >= 4)
    {
        *piSpeed = packetBuffer.ResponseAt(index - 4) - uint32_t{'0'};
        const uint8_t tens = packetBuffer.ResponseAt(index - 5);
        if (IsDigit(tens))
            *piSpeed += 10 * (tens - uint32_t{'0'});
    }
    return 1;
}

uint8_t AtChannel::Get_SIFS(uint8_t* piKind, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_SIFS", "^SIFS", pStatus))
        return 0;
    *piKind = 0;
    for (const InterfaceKind& entry : interfaceKinds)
    {
        if (BeginsWith(CursorAt(17), entry.word))
            *piKind = entry.kind;
    }
    return 1;
}

uint8_t AtChannel::Get_COPS(uint32_t* piMode, uint32_t* piFormat, char* sOper, uint16_t* pStatus)
{
    constexpr size_t operSize = 16;
    if (!Query("TANDEKOR_AT_Get_COPS", "+COPS?", pStatus))
        return 0;
    *piMode = CharacterAt(18) - uint32_t{'0'};
    *piFormat = CharacterAt(20) - uint32_t{'0'};
    CopyTextAt(23, '"', sOper, operSize);
    return 1;
}

uint8_t AtChannel::Set_COPS(int32_t iMode, int32_t iFormat, const char* sOper, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_COPS", "+COPS=");
    AddFirstDigit(static_cast<uint32_t>(iMode));
    if (iFormat != -1)
    {
        AddCommaAndFirstDigit(static_cast<uint32_t>(iFormat));
        if (sOper[0] != '-')
        {
            AddCharacter(',');
            AddQuoted(sOper, 16);
        }
    }
    return SendCommand(pStatus);
}

uint8_t AtChannel::Get_CGACT(uint32_t* aiCid, uint32_t* aiState, uint32_t* piCount, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CGACT", "+CGACT?", pStatus))
        return 0;
    if (*pStatus == statusOk)
        ReadPairs(aiCid, aiState, piCount);
    return 1;
}

// A pair that the reply's end cuts in front of its second number does not count.
void AtChannel::ReadPairs(uint32_t* aiFirst, uint32_t* aiSecond, uint32_t* piCount) const
{
    ReplyCursor reply = CursorAt(16);
    uint32_t count = 0;
    for (reply.GoTo(':');; ++count)
    {
        reply.GoToFirst([](uint8_t current) { return IsDigit(current) || current == 'O'; });
        if (!IsDigit(reply.Current()))
            break;
        const uint32_t first = reply.Digits();
        reply.Skip();
        if (reply.AtEnd())
            break;
        aiFirst[count] = first;
        aiSecond[count] = reply.DigitsFromAnyStart();
    }
    *piCount = count;
}

}  // namespace tandekor
