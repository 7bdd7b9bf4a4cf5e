// Commands whose reply or request holds several fields: clock, event reports, meters, battery, registration, signal,
// indicators, bearer, interface, operator, packet contexts.
#include <cstdlib>

#include "at/command.h"
#include "core/text_log.h"

using namespace tandekor;

namespace
{

constexpr uint8_t unchanged = 255;

// The phone's words for the interface, and their numbers.
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

// Six digits, modulo 65536.
uint8_t QueryMeter(ResourceContext hResourceContext, const char* name, const char* command, uint16_t* piValue,
                   uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, name, command, pStatus);
    if (at == nullptr)
        return 0;
    *piValue = static_cast<uint16_t>(at->NumberAt(19, 6));
    return 1;
}

}  // namespace

uint8_t TANDEKOR_AT_Get_CCLK(ResourceContext hResourceContext, uint8_t* piDate1, uint8_t* piDate2, uint8_t* piDate3,
                             uint8_t* piHour, uint8_t* piMinute, uint8_t* piSecond, int8_t* piZone, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CCLK?", pStatus);
    if (at == nullptr)
        return 0;
    const auto twoDigitsAt = [&](int position) { return static_cast<uint8_t>(at->NumberAt(position, 2)); };
    *piDate1 = twoDigitsAt(19);
    *piDate2 = twoDigitsAt(22);
    *piDate3 = twoDigitsAt(25);
    *piHour = twoDigitsAt(28);
    *piMinute = twoDigitsAt(31);
    *piSecond = twoDigitsAt(34);
    const int zone = twoDigitsAt(37);
    *piZone = static_cast<int8_t>(at->CharacterAt(36) == '-' ? -zone : zone);
    return 1;
}

uint8_t TANDEKOR_AT_Set_CCLK(ResourceContext hResourceContext, uint8_t iDate1, uint8_t iDate2, uint8_t iDate3,
                             uint8_t iHour, uint8_t iMinute, uint8_t iSecond, int8_t iZone, uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    if (at == nullptr)
        return 0;
    const char sign = iZone < 0 ? '-' : '+';
    const int magnitude = std::abs(int{iZone});
    Trace(hResourceContext, "TANDEKOR_AT_Set_CCLK(Date = %.2d/%.2d/%.2d\nTime = %.2d:%.2d:%.2d\nTime Zone = %c%.2d",
          iDate1, iDate2, iDate3, iHour, iMinute, iSecond, sign, magnitude);
    at->StartCommand("+CCLK=\"");
    at->AddTwoDigits(iDate1);
    at->AddCharacter('/');
    at->AddTwoDigits(iDate2);
    at->AddCharacter('/');
    at->AddTwoDigits(iDate3);
    at->AddCharacter(',');
    at->AddTwoDigits(iHour);
    at->AddCharacter(':');
    at->AddTwoDigits(iMinute);
    at->AddCharacter(':');
    at->AddTwoDigits(iSecond);
    at->AddCharacter(sign);
    at->AddTwoDigits(static_cast<uint32_t>(magnitude));
    at->AddCharacter('"');
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_CMER(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piInd, uint8_t* piBfr,
                             uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CMER?", pStatus);
    if (at == nullptr)
        return 0;
    *piMode = at->DigitAt(18);
    *piInd = at->DigitAt(24);
    *piBfr = at->DigitAt(26);
    return 1;
}

// The keypad and display fields have no argument and are sent as 0 (no report).
uint8_t TANDEKOR_AT_Set_CMER(ResourceContext hResourceContext, uint8_t iMode, uint8_t iInd, uint8_t iBfr,
                             uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    if (at == nullptr)
        return 0;
    Trace(hResourceContext, "TANDEKOR_AT_Set_CMER(%d, %d, %d)", iMode, iInd, iBfr);
    at->StartCommand("+CMER=");
    at->AddFirstDigit(iMode);
    at->AddCommaAndFirstDigit(0);
    at->AddCommaAndFirstDigit(0);
    at->AddCommaAndFirstDigit(iInd);
    at->AddCommaAndFirstDigit(iBfr);
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_CACM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus)
{
    return QueryMeter(hResourceContext, __func__, "+CACM?", piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CAMM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus)
{
    return QueryMeter(hResourceContext, __func__, "+CAMM?", piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SACM(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piAcm, uint8_t* piAcmMax,
                             uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "^SACM?", pStatus);
    if (at == nullptr)
        return 0;
    *piMode = at->DigitAt(18);
    *piAcm = static_cast<uint8_t>(at->NumberAt(21, 6));
    *piAcmMax = static_cast<uint8_t>(at->NumberAt(30, 6));
    return 1;
}

uint8_t TANDEKOR_AT_Get_CBC(ResourceContext hResourceContext, uint8_t* piBcs, uint8_t* piBcl, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CBC", pStatus);
    if (at == nullptr)
        return 0;
    *piBcs = at->DigitAt(15);
    const int digits = IsDigit(at->CharacterAt(19)) ? 3 : IsDigit(at->CharacterAt(18)) ? 2 : 1;
    *piBcl = static_cast<uint8_t>(at->NumberAt(17, digits));
    return 1;
}

uint8_t TANDEKOR_AT_Get_CREG(ResourceContext hResourceContext, uint8_t* piN, uint8_t* piStat, uint8_t* pLac,
                             uint8_t* pCi, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CREG?", pStatus);
    if (at == nullptr)
        return 0;
    *piN = at->DigitAt(18);
    *piStat = at->DigitAt(20);
    if (at->CharacterAt(21) == ',')
    {
        pLac[0] = at->CharacterAt(22);
        pLac[1] = at->CharacterAt(23);
        pCi[0] = at->CharacterAt(25);
        pCi[1] = at->CharacterAt(26);
    }
    else
    {
        pLac[0] = '-';
        pCi[0] = '-';
    }
    return 1;
}

// Read from the reply's end: one or two digits, a comma, one or two digits.
uint8_t TANDEKOR_AT_Get_CSQ(ResourceContext hResourceContext, uint8_t* piRssi, uint8_t* piBer, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CSQ", pStatus);
    if (at == nullptr)
        return 0;
    int index = at->IndexOfLastDigit();
    const auto isDigit = [&](int place) { return IsDigit(at->Reply().ResponseAt(place)); };
    const auto digit = [&](int place) { return at->Reply().ResponseAt(place) - '0'; };
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
uint8_t TANDEKOR_AT_Get_CIND(ResourceContext hResourceContext, uint8_t* pi1, uint8_t* pi2, uint8_t* pi3, uint8_t* pi4,
                             uint8_t* pi5, uint8_t* pi6, uint8_t* pi7, uint8_t* pi8, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CIND?", pStatus);
    if (at == nullptr)
        return 0;
    int index = at->IndexOfLastDigit();
    for (uint8_t* indicator : {pi8, pi7, pi6, pi5, pi4, pi3, pi2, pi1})
    {
        if (index >= 0)
            *indicator = at->Reply().ResponseAt(index);
        index -= 2;
    }
    return 1;
}

uint8_t TANDEKOR_AT_Set_CIND(ResourceContext hResourceContext, uint8_t i1, uint8_t i2, uint8_t i3, uint8_t i4,
                             uint8_t i5, uint8_t i6, uint8_t i7, uint8_t i8, uint16_t* pStatus)
{
    const uint8_t indicators[] = {i1, i2, i3, i4, i5, i6, i7, i8};
    bool any = false;
    AtChannel* const at = Start(hResourceContext, __func__, "+CIND=");
    if (at == nullptr)
        return 0;
    for (const uint8_t indicator : indicators)
    {
        if (indicator != unchanged)
        {
            any = true;
            at->AddFirstDigit(indicator);
        }
        at->AddCharacter(',');
    }
    return any ? at->SendCommand(pStatus) : uint8_t{1};
}

// Read from the reply's end: speed of one or two digits, a comma, name, a comma, ce.
uint8_t TANDEKOR_AT_Get_CBST(ResourceContext hResourceContext, uint32_t* piSpeed, uint8_t* piName, uint8_t* piCe,
                             uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CBST?", pStatus);
    if (at == nullptr)
        return 0;
    const int index = at->IndexOfLastDigit();
    if (index >= 0)
        *piCe = at->Reply().ResponseAt(index);
    if (index >= 2)
        *piName = at->Reply().ResponseAt(index - 2);
    if (index >= 4)
    {
        *piSpeed = at->Reply().ResponseAt(index - 4) - uint32_t{'0'};
        const uint8_t tens = at->Reply().ResponseAt(index - 5);
        if (IsDigit(tens))
            *piSpeed += 10 * (tens - uint32_t{'0'});
    }
    return 1;
}

uint8_t TANDEKOR_AT_Get_SIFS(ResourceContext hResourceContext, uint8_t* piKind, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "^SIFS", pStatus);
    if (at == nullptr)
        return 0;
    *piKind = 0;
    for (const InterfaceKind& entry : interfaceKinds)
    {
        if (BeginsWith(at->CursorAt(17), entry.word))
            *piKind = entry.kind;
    }
    return 1;
}

uint8_t TANDEKOR_AT_Get_COPS(ResourceContext hResourceContext, uint32_t* piMode, uint32_t* piFormat, char* sOper,
                             uint16_t* pStatus)
{
    constexpr size_t operSize = 16;
    const AtChannel* const at = Query(hResourceContext, __func__, "+COPS?", pStatus);
    if (at == nullptr)
        return 0;
    *piMode = at->CharacterAt(18) - uint32_t{'0'};
    *piFormat = at->CharacterAt(20) - uint32_t{'0'};
    at->CopyTextAt(23, '"', sOper, operSize);
    return 1;
}

uint8_t TANDEKOR_AT_Set_COPS(ResourceContext hResourceContext, int32_t iMode, int32_t iFormat, const char* sOper,
                             uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+COPS=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(static_cast<uint32_t>(iMode));
    if (iFormat != -1)
    {
        at->AddCommaAndFirstDigit(static_cast<uint32_t>(iFormat));
        if (sOper[0] != '-')
        {
            at->AddCharacter(',');
            at->AddQuoted(sOper, 16);
        }
    }
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_CGACT(ResourceContext hResourceContext, uint32_t* aiCid, uint32_t* aiState, uint32_t* piCount,
                              uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CGACT?", pStatus);
    if (at == nullptr)
        return 0;
    if (*pStatus == statusOk)
        at->ReadPairs(aiCid, aiState, piCount);
    return 1;
}
