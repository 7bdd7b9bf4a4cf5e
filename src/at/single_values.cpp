// Commands that set or read one small number, and the three that are sent without a value.
#include "at/command.h"
#include "core/text_log.h"

using namespace tandekor;

namespace
{

constexpr uint32_t switchOffTimeMs = 12000;

}  // namespace

// --- commands without a value

uint8_t TANDEKOR_AT_2_OBEX(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Query, __func__, "^SQWE=3", pStatus);
}

uint8_t TANDEKOR_AT_CRMP(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Query, __func__, "+CRMP", pStatus);
}

uint8_t TANDEKOR_AT_CHUP(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Query, __func__, "+CHUP", pStatus);
}

// --- query of one digit

uint8_t TANDEKOR_AT_Get_CMUT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CMUT?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CALM(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CALM?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CRSL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CRSL?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLVL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CLVL?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CTZU(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CTZU?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CTZR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CTZR?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CMEC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CMEC?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLIP(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CLIP?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CAOC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "+CAOC?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SLNG(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "^SLNG?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SNFS(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "^SNFS?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SNFV(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "^SNFV?", 18, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SICO(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryDigit, __func__, "^SICO?", 21, piValue, pStatus);
}

// --- setting of one value, shown in the log

uint8_t TANDEKOR_AT_Set_CMUT(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CMUT=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CALM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CALM=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CRSL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CRSL=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CLVL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CLVL=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CTZU(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CTZU=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CTZR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CTZR=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMEC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CMEC=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CLIP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CLIP=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_COLP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+COLP=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CAOC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "+CAOC=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SACM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "^SACM=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SLNG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "^SLNG=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SNFS(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "^SNFS=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SNFV(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "^SNFV=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SICO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigit, __func__, "^SICO=", iValue, pStatus);
}

// --- setting of one value, not shown in the log

uint8_t TANDEKOR_AT_Set_CREG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__, "+CREG=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CBST(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__, "+CBST=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMEE(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__, "+CMEE=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__, "+CR=", iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SMSO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "^SMSO=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iValue);
    return at->SendCommand(pStatus, switchOffTimeMs);
}

uint8_t TANDEKOR_AT_CHLD(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__,
                   "+CHLD=", static_cast<uint32_t>(iValue), pStatus);
}

uint8_t TANDEKOR_AT_Set_SCKS(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__,
                   "^SCKS=", static_cast<uint32_t>(iValue), pStatus);
}

// --- two values

uint8_t TANDEKOR_AT_Get_COLP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryTwoDigits, __func__, "+COLP?", 18, 20, piFirst, piSecond,
                   pStatus);
}

uint8_t TANDEKOR_AT_Get_CSSN(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryTwoDigits, __func__, "+CSSN?", 18, 20, piFirst, piSecond,
                   pStatus);
}

uint8_t TANDEKOR_AT_Get_CGEREP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryTwoDigits, __func__, "+CGEREP?", 22, 24, piFirst, piSecond,
                   pStatus);
}

uint8_t TANDEKOR_AT_Set_CSSN(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetOneOrTwo, __func__, "+CSSN=", iFirst, 1, iSecond, pStatus);
}

uint8_t TANDEKOR_AT_Set_CGEREP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetOneOrTwo, __func__, "+CGEREP=", iFirst, 1, iSecond, pStatus);
}

uint8_t TANDEKOR_AT_Set_SRMP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SetOneOrTwo, __func__, "^SRMP=", iFirst, 2, iSecond, pStatus);
}

// --- characters as they stand in the reply

uint8_t TANDEKOR_AT_Get_CGATT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CGATT?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = at->CharacterAt(20);
    return 1;
}

uint8_t TANDEKOR_AT_Get_CGREG(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CGREG?", pStatus);
    if (at == nullptr)
        return 0;
    *piFirst = at->CharacterAt(20);
    *piSecond = at->CharacterAt(22);
    return 1;
}

uint8_t TANDEKOR_AT_Get_CR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CR?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = at->CharacterAt(14);
    return 1;
}

uint8_t TANDEKOR_AT_Get_CMEE(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CMEE?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = at->CharacterAt(18);
    return 1;
}

uint8_t TANDEKOR_AT_Get_CCWA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CCWA?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = at->CharacterAt(18) - uint32_t{'0'};
    return 1;
}

// --- a digit searched from the end of the reply

uint8_t TANDEKOR_AT_Get_CPAS(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryLastDigit, __func__, "+CPAS", piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCKA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::QueryLastDigit, __func__, "^SCKA?", piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCKS(ResourceContext hResourceContext, uint32_t* piFirst, uint32_t* piSecond, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "^SCKS?", pStatus);
    if (at == nullptr)
        return 0;
    const int index = at->IndexOfLastDigit();
    if (index >= 0)
        *piSecond = at->Reply().ResponseAt(index) - uint32_t{'0'};
    if (index >= 3)
        *piFirst = at->Reply().ResponseAt(index - 3) - uint32_t{'0'};
    return 1;
}

// --- values with a rule of their own

uint8_t TANDEKOR_AT_Get_CVIB(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+CVIB?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = at->DigitAt(18);
    if (at->CharacterAt(19) != '\r')
        *piValue = static_cast<uint8_t>(at->DigitAt(18) * 10 + at->DigitAt(19));
    return 1;
}

// The number sent is not the value: 0 and 1 are sent for 1 and 2, and 16 and up for 3 and up.
uint8_t TANDEKOR_AT_Set_CVIB(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    if (at == nullptr)
        return 0;
    Trace(hResourceContext, "TANDEKOR_AT_Set_CVIB(%d)", iValue);
    at->StartCommand("+CVIB=");
    if (iValue < 3)
        at->AddFirstDigit(static_cast<uint8_t>(iValue - 1));
    else
        at->AddDecimal(static_cast<uint8_t>(iValue + 13), 2);
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Set_SKPD(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    if (at == nullptr)
        return 0;
    Trace(hResourceContext, "TANDEKOR_AT_Set_SKPD(%d)", iValue);
    at->StartCommand("^SKPD=");
    at->AddDecimal(iValue);
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Set_CGATT(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    if (iValue == -1)
        return Forward(At(hResourceContext), &AtChannel::Query, __func__, "+CGATT", pStatus);
    return Forward(At(hResourceContext), &AtChannel::SetFirstDigitUnshown, __func__,
                   "+CGATT=", static_cast<uint32_t>(iValue), pStatus);
}

uint8_t TANDEKOR_AT_Get_WS46(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+WS46?", pStatus);
    if (at == nullptr)
        return 0;
    if (IsDigit(at->CharacterAt(11)))
    {
        *piValue = at->DigitAt(11);
        if (IsDigit(at->CharacterAt(12)))
            *piValue = static_cast<uint8_t>(at->DigitAt(11) * 10 + at->DigitAt(12));
    }
    return 1;
}

uint8_t TANDEKOR_AT_Set_WS46(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    if (iValue == 255)
        return Forward(At(hResourceContext), &AtChannel::Query, __func__, "+WS46", pStatus);
    AtChannel* const at = Start(hResourceContext, __func__, "+WS46=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iValue / 10u);
    at->AddFirstDigit(iValue % 10u);
    return at->SendCommand(pStatus);
}

uint8_t TANDEKOR_AT_Get_IPR(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, __func__, "+IPR?", pStatus);
    if (at == nullptr)
        return 0;
    *piValue = 0;
    for (int index = at->IndexOf(15); index < at->Reply().ResponseLength(); ++index)
    {
        const uint8_t character = at->Reply().ResponseAt(index);
        if (character == '\r')
            break;
        if (IsDigit(character))
            *piValue = *piValue * 10 + (character - uint32_t{'0'});
    }
    return 1;
}

uint8_t TANDEKOR_AT_Set_IPR(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+IPR=");
    if (at == nullptr)
        return 0;
    at->AddDecimal(static_cast<uint32_t>(iValue));
    return at->SendCommand(pStatus);
}
