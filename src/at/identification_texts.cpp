// Commands that return a text by which the phone, its card or the last event is known. No NUL is put behind a text.
#include <algorithm>
#include <cstring>

#include "channels/at_channel.h"

namespace tandekor
{

// At least one byte is copied, also from behind a short reply.
uint8_t AtChannel::QueryTextToEnd(const char* name, const char* command, int position, char* sText, uint16_t* pStatus)
{
    constexpr int resultWordLength = 2;
    if (!Query(name, command, pStatus))
        return 0;
    const int start = IndexOf(position);
    const int end = IndexOf(packetBuffer.ResponseLength()) - resultWordLength;
    std::memcpy(sText, packetBuffer.ResponseFrom(start), static_cast<size_t>(std::max(end - start, 1)));
    return 1;
}

uint8_t AtChannel::QueryFixedText(const char* name, const char* command, int position, int length, char* sText,
                                  uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return 0;
    std::memcpy(sText, packetBuffer.ResponseFrom(IndexOf(position)), static_cast<size_t>(length));
    return 1;
}

uint8_t AtChannel::Get_CEER(char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd("TANDEKOR_AT_Get_CEER", "+CEER", 17, sText, pStatus);
}

uint8_t AtChannel::Get_CGMI(char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd("TANDEKOR_AT_Get_CGMI", "+CGMI", 10, sText, pStatus);
}

uint8_t AtChannel::Get_CGMM(char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd("TANDEKOR_AT_Get_CGMM", "+CGMM", 10, sText, pStatus);
}

uint8_t AtChannel::Get_CGMR(char* sText, uint16_t* pStatus)
{
    return QueryTextToEnd("TANDEKOR_AT_Get_CGMR", "+CGMR", 10, sText, pStatus);
}

uint8_t AtChannel::Get_CGSN(char* sText, uint16_t* pStatus)
{
    return QueryFixedText("TANDEKOR_AT_Get_CGSN", "+CGSN", 10, 15, sText, pStatus);
}

uint8_t AtChannel::Get_CIMI(char* sText, uint16_t* pStatus)
{
    return QueryFixedText("TANDEKOR_AT_Get_CIMI", "+CIMI", 10, 15, sText, pStatus);
}

uint8_t AtChannel::Get_GSN(char* sText, uint16_t* pStatus)
{
    return QueryFixedText("TANDEKOR_AT_Get_GSN", "+GSN", 9, 15, sText, pStatus);
}

uint8_t AtChannel::Get_SCID(char* sText, uint16_t* pStatus)
{
    return QueryFixedText("TANDEKOR_AT_Get_SCID", "^SCID", 17, 20, sText, pStatus);
}

}  // namespace tandekor
