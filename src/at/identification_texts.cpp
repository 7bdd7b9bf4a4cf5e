// Commands that return a text: identification of the phone and its card, or the last event. No NUL follows a text.
#include <algorithm>
#include <cstring>

#include "at/command.h"

using namespace tandekor;

namespace
{

// The text from the position up to the result word, with the line ends before that word. At least one byte is copied,
// even if the reply is too short.
uint8_t QueryTextToEnd(ResourceContext hResourceContext, const char* name, const char* command, int position,
                       char* sText, uint16_t* pStatus)
{
    constexpr int resultWordLength = 2;
    const AtChannel* const at = Query(hResourceContext, name, command, pStatus);
    if (at == nullptr)
        return 0;
    const int start = at->IndexOf(position);
    const int end = at->IndexOf(at->Reply().ResponseLength()) - resultWordLength;
    std::memcpy(sText, at->Reply().ResponseFrom(start), static_cast<size_t>(std::max(end - start, 1)));
    return 1;
}

uint8_t QueryFixedText(ResourceContext hResourceContext, const char* name, const char* command, int position,
                       int length, char* sText, uint16_t* pStatus)
{
    const AtChannel* const at = Query(hResourceContext, name, command, pStatus);
    if (at == nullptr)
        return 0;
    std::memcpy(sText, at->Reply().ResponseFrom(at->IndexOf(position)), static_cast<size_t>(length));
    return 1;
}

}  // namespace

uint8_t TANDEKOR_AT_Get_CEER(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd(hResourceContext, __func__, "+CEER", 17, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd(hResourceContext, __func__, "+CGMI", 10, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMM(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd(hResourceContext, __func__, "+CGMM", 10, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGMR(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd(hResourceContext, __func__, "+CGMR", 10, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CGSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryFixedText(hResourceContext, __func__, "+CGSN", 10, 15, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_CIMI(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryFixedText(hResourceContext, __func__, "+CIMI", 10, 15, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_GSN(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryFixedText(hResourceContext, __func__, "+GSN", 9, 15, sText, pStatus);
}

uint8_t TANDEKOR_AT_Get_SCID(ResourceContext hResourceContext, char* sText, uint16_t* pStatus)
{
    return QueryFixedText(hResourceContext, __func__, "^SCID", 17, 20, sText, pStatus);
}
