// The exported AT functions.
#include "channels/at_channel.h"
#include "connection/forward.h"
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

uint8_t TANDEKOR_AT_Get_CCLK(ResourceContext hResourceContext, uint8_t* piDate1, uint8_t* piDate2, uint8_t* piDate3,
                             uint8_t* piHour, uint8_t* piMinute, uint8_t* piSecond, int8_t* piZone, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CCLK, piDate1, piDate2, piDate3, piHour, piMinute, piSecond,
                   piZone, pStatus);
}

uint8_t TANDEKOR_AT_Set_CCLK(ResourceContext hResourceContext, uint8_t iDate1, uint8_t iDate2, uint8_t iDate3,
                             uint8_t iHour, uint8_t iMinute, uint8_t iSecond, int8_t iZone, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CCLK, iDate1, iDate2, iDate3, iHour, iMinute, iSecond, iZone,
                   pStatus);
}

uint8_t TANDEKOR_AT_Get_CMER(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piInd, uint8_t* piBfr,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CMER, piMode, piInd, piBfr, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMER(ResourceContext hResourceContext, uint8_t iMode, uint8_t iInd, uint8_t iBfr,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CMER, iMode, iInd, iBfr, pStatus);
}

uint8_t TANDEKOR_AT_Get_CACM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CACM, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_CAMM(ResourceContext hResourceContext, uint16_t* piValue, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CAMM, piValue, pStatus);
}

uint8_t TANDEKOR_AT_Get_SACM(ResourceContext hResourceContext, uint8_t* piMode, uint8_t* piAcm, uint8_t* piAcmMax,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SACM, piMode, piAcm, piAcmMax, pStatus);
}

uint8_t TANDEKOR_AT_Get_CBC(ResourceContext hResourceContext, uint8_t* piBcs, uint8_t* piBcl, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CBC, piBcs, piBcl, pStatus);
}

uint8_t TANDEKOR_AT_Get_CREG(ResourceContext hResourceContext, uint8_t* piN, uint8_t* piStat, uint8_t* pLac,
                             uint8_t* pCi, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CREG, piN, piStat, pLac, pCi, pStatus);
}

uint8_t TANDEKOR_AT_Get_CSQ(ResourceContext hResourceContext, uint8_t* piRssi, uint8_t* piBer, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CSQ, piRssi, piBer, pStatus);
}

uint8_t TANDEKOR_AT_Get_CIND(ResourceContext hResourceContext, uint8_t* pi1, uint8_t* pi2, uint8_t* pi3, uint8_t* pi4,
                             uint8_t* pi5, uint8_t* pi6, uint8_t* pi7, uint8_t* pi8, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CIND, pi1, pi2, pi3, pi4, pi5, pi6, pi7, pi8, pStatus);
}

uint8_t TANDEKOR_AT_Set_CIND(ResourceContext hResourceContext, uint8_t i1, uint8_t i2, uint8_t i3, uint8_t i4,
                             uint8_t i5, uint8_t i6, uint8_t i7, uint8_t i8, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CIND, i1, i2, i3, i4, i5, i6, i7, i8, pStatus);
}

uint8_t TANDEKOR_AT_Get_CBST(ResourceContext hResourceContext, uint32_t* piSpeed, uint8_t* piName, uint8_t* piCe,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CBST, piSpeed, piName, piCe, pStatus);
}

uint8_t TANDEKOR_AT_Get_SIFS(ResourceContext hResourceContext, uint8_t* piKind, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SIFS, piKind, pStatus);
}

uint8_t TANDEKOR_AT_Get_COPS(ResourceContext hResourceContext, uint32_t* piMode, uint32_t* piFormat, char* sOper,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_COPS, piMode, piFormat, sOper, pStatus);
}

uint8_t TANDEKOR_AT_Set_COPS(ResourceContext hResourceContext, int32_t iMode, int32_t iFormat, const char* sOper,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_COPS, iMode, iFormat, sOper, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGACT(ResourceContext hResourceContext, uint32_t* aiCid, uint32_t* aiState, uint32_t* piCount,
                              uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGACT, aiCid, aiState, piCount, pStatus);
}

uint8_t TANDEKOR_AT_Get_CEER(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CEER, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGMI, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMM(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGMM, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMR(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGMR, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CGSN, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_GSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_GSN, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CIMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CIMI, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCID(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SCID, sText, pStatus);
}

uint8_t TANDEKOR_AT_Set_CKPD(ResourceContext hResourceContext, const char* sKeys, uint16_t iTime, uint16_t iPause,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CKPD, sKeys, iTime, iPause, pStatus);
}

uint8_t TANDEKOR_AT_Set_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                             const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CLCK, sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t TANDEKOR_AT_Set_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t iMode,
                             const uint8_t* pPassword, int32_t iClass, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SLCK, sFac, iMode, pPassword, iClass, pStatus);
}

uint8_t TANDEKOR_AT_Get_CLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                             uint32_t* piCount, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CLCK, sFac, aState, aiClass, piCount, pStatus);
}

uint8_t TANDEKOR_AT_Get_SLCK(ResourceContext hResourceContext, const char* sFac, uint8_t* aState, uint32_t* aiClass,
                             uint32_t* piCount, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_SLCK, sFac, aState, aiClass, piCount, pStatus);
}

uint8_t TANDEKOR_AT_Get_CPIN(ResourceContext hResourceContext, char* sCode, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CPIN, sCode, pStatus);
}

uint8_t TANDEKOR_AT_Set_CPIN(ResourceContext hResourceContext, const char* sPin, const char* sNewPin, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CPIN, sPin, sNewPin, pStatus);
}

uint8_t TANDEKOR_AT_Set_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint8_t iMode, const char* sNumber,
                             uint8_t iType, int32_t iClass, int32_t iTime, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CCFC, iReason, iMode, sNumber, iType, iClass, iTime, pStatus);
}

uint8_t TANDEKOR_AT_Get_CCFC(ResourceContext hResourceContext, uint8_t iReason, uint32_t* aiState, uint32_t* aiClass,
                             char (*asNumber)[12], uint32_t* aiType, uint32_t* aiTime, uint32_t* piCount,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CCFC, iReason, aiState, aiClass, asNumber, aiType, aiTime,
                   piCount, pStatus);
}

uint8_t TANDEKOR_AT_Set_CCWA(ResourceContext hResourceContext, uint8_t iN, uint8_t iMode, int32_t iClass,
                             uint32_t* aiState, uint32_t* aiClasses, uint32_t* piCount, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CCWA, iN, iMode, iClass, aiState, aiClasses, piCount, pStatus);
}

uint8_t TANDEKOR_AT_Get_CSCA(ResourceContext hResourceContext, char* sSca, char* sTosca, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CSCA, sSca, sTosca, pStatus);
}

uint8_t TANDEKOR_AT_Set_CSCA(ResourceContext hResourceContext, const char* sSca, const char* sTosca, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CSCA, sSca, sTosca, pStatus);
}

uint8_t TANDEKOR_AT_Get_CSCB(ResourceContext hResourceContext, uint8_t* piMode, char* sMids, char* sDcss,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CSCB, piMode, sMids, sDcss, pStatus);
}

uint8_t TANDEKOR_AT_Set_CSCB(ResourceContext hResourceContext, uint8_t iMode, const char* sMids, const char* sDcss,
                             uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CSCB, iMode, sMids, sDcss, pStatus);
}

uint8_t TANDEKOR_AT_Get_CSCS(ResourceContext hResourceContext, char* sCharset, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Get_CSCS, sCharset, pStatus);
}

uint8_t TANDEKOR_AT_Set_CSCS(ResourceContext hResourceContext, const char* sCharset, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CSCS, sCharset, pStatus);
}

uint8_t TANDEKOR_AT_CRSM(ResourceContext hResourceContext, uint8_t iCommand, int32_t iFileId, int32_t iP1, int32_t iP2,
                         int32_t iP3, const uint8_t* pData, uint32_t* piSw1, uint32_t* piSw2, char* sResponse,
                         uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CRSM, iCommand, iFileId, iP1, iP2, iP3, pData, piSw1, piSw2,
                   sResponse, pStatus);
}

uint8_t TANDEKOR_AT_CMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat,
                         uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                         uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CMGL, iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData, piCount,
                   pStatus);
}

uint8_t TANDEKOR_AT_SMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat,
                         uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                         uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::SMGL, iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData, piCount,
                   pStatus);
}

uint8_t TANDEKOR_AT_Set_CMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength,
                             uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_CMGR, iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t TANDEKOR_AT_Set_SMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength,
                             uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::Set_SMGR, iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t TANDEKOR_AT_CMSS(ResourceContext hResourceContext, uint8_t iIndex, const char* sAddress, uint16_t* pStatus)
{
    return Forward(At(hResourceContext), &AtChannel::CMSS, iIndex, sAddress, pStatus);
}
