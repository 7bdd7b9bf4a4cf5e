// Commands that set or read one small number, and the three that are sent without a value.
#include "channels/at_channel.h"
#include "core/text_log.h"

namespace tandekor
{

namespace
{

constexpr uint32_t switchOffTimeMs = 12000;

}  // namespace

// --- commands without a value

uint8_t AtChannel::Switch_2_OBEX(uint16_t* pStatus) { return Query("TANDEKOR_AT_2_OBEX", "^SQWE=3", pStatus); }

uint8_t AtChannel::CRMP(uint16_t* pStatus) { return Query("TANDEKOR_AT_CRMP", "+CRMP", pStatus); }

uint8_t AtChannel::CHUP(uint16_t* pStatus) { return Query("TANDEKOR_AT_CHUP", "+CHUP", pStatus); }

// --- query of one digit

uint8_t AtChannel::Get_CMUT(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CMUT", "+CMUT?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CALM(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CALM", "+CALM?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CRSL(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CRSL", "+CRSL?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CLVL(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CLVL", "+CLVL?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CTZU(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CTZU", "+CTZU?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CTZR(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CTZR", "+CTZR?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CMEC(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CMEC", "+CMEC?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CLIP(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CLIP", "+CLIP?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_CAOC(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_CAOC", "+CAOC?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_SLNG(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_SLNG", "^SLNG?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_SNFS(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_SNFS", "^SNFS?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_SNFV(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_SNFV", "^SNFV?", 18, piValue, pStatus);
}

uint8_t AtChannel::Get_SICO(uint8_t* piValue, uint16_t* pStatus)
{
    return QueryDigit("TANDEKOR_AT_Get_SICO", "^SICO?", 21, piValue, pStatus);
}

// --- setting of one value, shown in the log

uint8_t AtChannel::Set_CMUT(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CMUT", "+CMUT=", iValue, pStatus);
}

uint8_t AtChannel::Set_CALM(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CALM", "+CALM=", iValue, pStatus);
}

uint8_t AtChannel::Set_CRSL(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CRSL", "+CRSL=", iValue, pStatus);
}

uint8_t AtChannel::Set_CLVL(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CLVL", "+CLVL=", iValue, pStatus);
}

uint8_t AtChannel::Set_CTZU(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CTZU", "+CTZU=", iValue, pStatus);
}

uint8_t AtChannel::Set_CTZR(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CTZR", "+CTZR=", iValue, pStatus);
}

uint8_t AtChannel::Set_CMEC(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CMEC", "+CMEC=", iValue, pStatus);
}

uint8_t AtChannel::Set_CLIP(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CLIP", "+CLIP=", iValue, pStatus);
}

uint8_t AtChannel::Set_COLP(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_COLP", "+COLP=", iValue, pStatus);
}

uint8_t AtChannel::Set_CAOC(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_CAOC", "+CAOC=", iValue, pStatus);
}

uint8_t AtChannel::Set_SACM(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_SACM", "^SACM=", iValue, pStatus);
}

uint8_t AtChannel::Set_SLNG(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_SLNG", "^SLNG=", iValue, pStatus);
}

uint8_t AtChannel::Set_SNFS(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_SNFS", "^SNFS=", iValue, pStatus);
}

uint8_t AtChannel::Set_SNFV(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_SNFV", "^SNFV=", iValue, pStatus);
}

uint8_t AtChannel::Set_SICO(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigit("TANDEKOR_AT_Set_SICO", "^SICO=", iValue, pStatus);
}

// --- setting of one value, not shown in the log

uint8_t AtChannel::Set_CREG(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_CREG", "+CREG=", iValue, pStatus);
}

uint8_t AtChannel::Set_CBST(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_CBST", "+CBST=", iValue, pStatus);
}

uint8_t AtChannel::Set_CMEE(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_CMEE", "+CMEE=", iValue, pStatus);
}

uint8_t AtChannel::Set_CR(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_CR", "+CR=", iValue, pStatus);
}

uint8_t AtChannel::Set_SMSO(uint8_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_SMSO", "^SMSO=", iValue, pStatus, switchOffTimeMs);
}

uint8_t AtChannel::CHLD(int32_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_CHLD", "+CHLD=", static_cast<uint32_t>(iValue), pStatus);
}

uint8_t AtChannel::Set_SCKS(int32_t iValue, uint16_t* pStatus)
{
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_SCKS", "^SCKS=", static_cast<uint32_t>(iValue), pStatus);
}

// --- two values

uint8_t AtChannel::Get_COLP(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return QueryTwoDigits("TANDEKOR_AT_Get_COLP", "+COLP?", 18, 20, piFirst, piSecond, pStatus);
}

uint8_t AtChannel::Get_CSSN(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return QueryTwoDigits("TANDEKOR_AT_Get_CSSN", "+CSSN?", 18, 20, piFirst, piSecond, pStatus);
}

uint8_t AtChannel::Get_CGEREP(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return QueryTwoDigits("TANDEKOR_AT_Get_CGEREP", "+CGEREP?", 22, 24, piFirst, piSecond, pStatus);
}

uint8_t AtChannel::Set_CSSN(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return SetOneOrTwo("TANDEKOR_AT_Set_CSSN", "+CSSN=", iFirst, 1, iSecond, pStatus);
}

uint8_t AtChannel::Set_CGEREP(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return SetOneOrTwo("TANDEKOR_AT_Set_CGEREP", "+CGEREP=", iFirst, 1, iSecond, pStatus);
}

uint8_t AtChannel::Set_SRMP(uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return SetOneOrTwo("TANDEKOR_AT_Set_SRMP", "^SRMP=", iFirst, 2, iSecond, pStatus);
}

// --- characters as they stand in the reply

uint8_t AtChannel::Get_CGATT(uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CGATT", "+CGATT?", pStatus))
        return 0;
    *piValue = CharacterAt(20);
    return 1;
}

uint8_t AtChannel::Get_CGREG(uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CGREG", "+CGREG?", pStatus))
        return 0;
    *piFirst = CharacterAt(20);
    *piSecond = CharacterAt(22);
    return 1;
}

uint8_t AtChannel::Get_CR(uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CR", "+CR?", pStatus))
        return 0;
    *piValue = CharacterAt(14);
    return 1;
}

uint8_t AtChannel::Get_CMEE(uint32_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CMEE", "+CMEE?", pStatus))
        return 0;
    *piValue = CharacterAt(18);
    return 1;
}

uint8_t AtChannel::Get_CCWA(uint32_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CCWA", "+CCWA?", pStatus))
        return 0;
    *piValue = CharacterAt(18) - uint32_t{'0'};
    return 1;
}

// --- a digit looked for from the reply's end

uint8_t AtChannel::Get_CPAS(uint32_t* piValue, uint16_t* pStatus)
{
    return QueryLastDigit("TANDEKOR_AT_Get_CPAS", "+CPAS", piValue, pStatus);
}

uint8_t AtChannel::Get_SCKA(uint32_t* piValue, uint16_t* pStatus)
{
    return QueryLastDigit("TANDEKOR_AT_Get_SCKA", "^SCKA?", piValue, pStatus);
}

uint8_t AtChannel::Get_SCKS(uint32_t* piFirst, uint32_t* piSecond, uint16_t* pStatus)
{
    if (!QueryLastDigit("TANDEKOR_AT_Get_SCKS", "^SCKS?", piSecond, pStatus))
        return 0;
    const int index = IndexOfLastDigit() - 3;
    if (index >= 0)
        *piFirst = packetBuffer.ResponseAt(index) - uint32_t{'0'};
    return 1;
}

// --- values with a rule of their own

uint8_t AtChannel::Get_CVIB(uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_CVIB", "+CVIB?", pStatus))
        return 0;
    *piValue = DigitAt(18);
    if (CharacterAt(19) != '\r')
        *piValue = static_cast<uint8_t>(DigitAt(18) * 10 + DigitAt(19));
    return 1;
}

// The value is not the number of the command: 1, 2 stand for 0, 1, and the values from 3 on for 16 and up.
uint8_t AtChannel::Set_CVIB(uint8_t iValue, uint16_t* pStatus)
{
    Trace(hResourceContext, "TANDEKOR_AT_Set_CVIB(%d)", iValue);
    StartCommand("+CVIB=");
    if (iValue < 3)
        AddFirstDigit(static_cast<uint8_t>(iValue - 1));
    else
        AddDecimal(static_cast<uint8_t>(iValue + 13), 2);
    return SendCommand(pStatus);
}

uint8_t AtChannel::Set_SKPD(uint8_t iValue, uint16_t* pStatus)
{
    Trace(hResourceContext, "TANDEKOR_AT_Set_SKPD(%d)", iValue);
    StartCommand("^SKPD=");
    AddDecimal(iValue);
    return SendCommand(pStatus);
}

uint8_t AtChannel::Set_CGATT(int32_t iValue, uint16_t* pStatus)
{
    if (iValue == -1)
        return Query("TANDEKOR_AT_Set_CGATT", "+CGATT", pStatus);
    return SetFirstDigitUnshown("TANDEKOR_AT_Set_CGATT", "+CGATT=", static_cast<uint32_t>(iValue), pStatus);
}

uint8_t AtChannel::Get_WS46(uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_WS46", "+WS46?", pStatus))
        return 0;
    if (IsDigit(CharacterAt(11)))
    {
        *piValue = DigitAt(11);
        if (IsDigit(CharacterAt(12)))
            *piValue = static_cast<uint8_t>(DigitAt(11) * 10 + DigitAt(12));
    }
    return 1;
}

uint8_t AtChannel::Set_WS46(uint8_t iValue, uint16_t* pStatus)
{
    if (iValue == 255)
        return Query("TANDEKOR_AT_Set_WS46", "+WS46", pStatus);
    StartNamed("TANDEKOR_AT_Set_WS46", "+WS46=");
    AddFirstDigit(iValue / 10u);
    AddFirstDigit(iValue % 10u);
    return SendCommand(pStatus);
}

uint8_t AtChannel::Get_IPR(uint32_t* piValue, uint16_t* pStatus)
{
    if (!Query("TANDEKOR_AT_Get_IPR", "+IPR?", pStatus))
        return 0;
    *piValue = 0;
    for (int index = IndexOf(15); index < packetBuffer.ResponseLength(); ++index)
    {
        const uint8_t character = packetBuffer.ResponseAt(index);
        if (character == '\r')
            break;
        if (IsDigit(character))
            *piValue = *piValue * 10 + (character - uint32_t{'0'});
    }
    return 1;
}

uint8_t AtChannel::Set_IPR(int32_t iValue, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_Set_IPR", "+IPR=");
    AddDecimal(static_cast<uint32_t>(iValue));
    return SendCommand(pStatus);
}

}  // namespace tandekor
