// The exported AT functions.
#include "at/at_channel.h"
#include "frame/forward.h"
#include "tandekor/at.h"

using tandekor::At;
using tandekor::AtChannel;
using tandekor::Forward;

uint8_t TANDEKOR_AT_2_OBEX(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Switch_2_OBEX, pStatus);
}

uint8_t TANDEKOR_AT_CRMP(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CRMP, pStatus);
}

uint8_t TANDEKOR_AT_CHUP(ResourceContext hResourceContext, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CHUP, pStatus);
}

uint8_t TANDEKOR_AT_Get_CMUT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CMUT, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMUT(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CMUT, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CALM(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CALM, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CALM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CALM, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CRSL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CRSL, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CRSL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CRSL, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLVL(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CLVL, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CLVL(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CLVL, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CTZU(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CTZU, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CTZU(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CTZU, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CTZR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CTZR, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CTZR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CTZR, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CMEC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CMEC, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMEC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CMEC, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLIP(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CLIP, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CLIP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CLIP, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CAOC(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CAOC, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CAOC(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CAOC, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SLNG(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SLNG, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SLNG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SLNG, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SNFS(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SNFS, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SNFS(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SNFS, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SNFV(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SNFV, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SNFV(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SNFV, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SICO(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SICO, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SICO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SICO, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_COLP(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_COLP, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SACM(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SACM, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CREG(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CREG, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CBST(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CBST, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMEE(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CMEE, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CR(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CR, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SMSO(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SMSO, iValue, pStatus);
}

uint8_t TANDEKOR_AT_CHLD(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CHLD, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SCKS(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SCKS, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_COLP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_COLP, piFirst, piSecond, pStatus);
}

uint8_t TANDEKOR_AT_Get_CSSN(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CSSN, piFirst, piSecond, pStatus);
}

uint8_t TANDEKOR_AT_Set_CSSN(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CSSN, iFirst, iSecond, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGEREP(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGEREP, piFirst, piSecond, pStatus);
}

uint8_t TANDEKOR_AT_Set_CGEREP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CGEREP, iFirst, iSecond, pStatus);
}

uint8_t TANDEKOR_AT_Set_SRMP(ResourceContext hResourceContext, uint8_t iFirst, uint8_t iSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SRMP, iFirst, iSecond, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGATT(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGATT, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGREG(ResourceContext hResourceContext, uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGREG, piFirst, piSecond, pStatus);
}

uint8_t TANDEKOR_AT_Get_CR(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CR, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CMEE(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CMEE, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CCWA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CCWA, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CPAS(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CPAS, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCKA(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SCKA, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCKS(ResourceContext hResourceContext, uint32_t* piFirst, uint32_t* piSecond, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SCKS, piFirst, piSecond, pStatus);
}

uint8_t TANDEKOR_AT_Get_CVIB(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CVIB, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CVIB(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CVIB, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_SKPD(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SKPD, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_CGATT(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CGATT, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_WS46(ResourceContext hResourceContext, uint8_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_WS46, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_WS46(ResourceContext hResourceContext, uint8_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_WS46, iValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_IPR(ResourceContext hResourceContext, uint32_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_IPR, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Set_IPR(ResourceContext hResourceContext, int32_t iValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_IPR, iValue, pStatus);
}
