// Short messages in the phone's store: list, read, send again. The standard commands and the phone's own differ only in
// their texts.
#include <algorithm>
#include <cstring>

#include "channels/at_channel.h"

namespace tandekor
{

namespace
{

constexpr uint32_t emptyField = UINT32_MAX;
constexpr uint8_t allMessages = 255;
constexpr uint16_t highestIndex = 100;

// The line of one message in a list.
struct MessageLine
{
    uint32_t index;
    uint32_t stat;
    uint32_t alpha;
    uint32_t length;
};

// Reads from behind the colon and blank of a line to its end. False if the reply ends in front of the last field.
bool ReadMessageLine(ReplyCursor& reply, MessageLine* line)
{
    line->index = reply.Current() - uint32_t{'0'};
    reply.Skip();
    if (IsDigit(reply.Current()))
    {
        line->index = line->index * 10 + (reply.Current() - uint32_t{'0'});
        reply.Skip();
    }
    reply.Skip();  // comma
    line->stat = reply.Current() - uint32_t{'0'};
    reply.Skip(2);  // and comma
    line->alpha = IsDigit(reply.Current()) ? reply.Digits() : emptyField;
    reply.Skip();  // comma
    if (reply.AtEnd())
        return false;
    line->length = reply.DigitsFromAnyStart();
    return true;
}

}  // namespace

// A message whose line the reply's end cuts does not count.
uint8_t AtChannel::ListMessages(const char* name, const char* command, char marker, uint8_t iFilter, uint32_t* aiIndex,
                                uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024],
                                uint32_t* piCount, uint16_t* pStatus)
{
    StartNamed(name, command);
    AddFirstDigit(iFilter == allMessages ? 0u : iFilter);
    *piCount = 0;
    if (!SendCommand(pStatus))
        return 0;

    ReplyCursor reply = CursorAt(1);  // a line end at position 0 does not count
    uint32_t count = 0;
    for (;; ++count)
    {
        reply.GoTo('\n');
        reply.Skip();
        if (reply.Current() != static_cast<uint8_t>(marker))
            break;
        reply.GoTo(':');
        reply.Skip(2);
        MessageLine line{};
        if (!ReadMessageLine(reply, &line))
            break;
        aiIndex[count] = line.index;
        aiStat[count] = line.stat;
        aiAlpha[count] = line.alpha;
        aiLength[count] = line.length;
        reply.Skip(2);  // line end
        reply.CopyUpTo('\r', asData[count], sizeof asData[count]);
    }
    *piCount = count;
    return 1;
}

uint8_t AtChannel::CMGL(uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength,
                        char (*asData)[1024], uint32_t* piCount, uint16_t* pStatus)
{
    return ListMessages("TANDEKOR_AT_CMGL", "+CMGL=", '+', iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData, piCount,
                        pStatus);
}

uint8_t AtChannel::SMGL(uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength,
                        char (*asData)[1024], uint32_t* piCount, uint16_t* pStatus)
{
    return ListMessages("TANDEKOR_AT_SMGL", "^SMGL=", '^', iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData, piCount,
                        pStatus);
}

// Positions count from the reply's first byte here, with or without echo, and the reply is read even if the exchange
// failed. The text stands five places behind the first comma's, whatever the length field's digits are.
uint8_t AtChannel::ReadMessage(const char* name, const char* command, uint16_t iIndex, uint16_t iMaxLength,
                               uint16_t* piLength, uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    StartNamed(name, command);
    if (iIndex <= highestIndex)
        AddDecimal(iIndex);
    const bool exchanged = SendCommand(pStatus);

    const uint8_t last = packetBuffer.ResponseAt(packetBuffer.ResponseLength() - 1);
    if (last != 'K' && last != 'k')
        return exchanged;
    ReplyCursor reply(packetBuffer, 0);
    reply.GoToFirst([](uint8_t current) { return current == ',' || current == '\0'; });
    if (reply.AtEnd() || reply.Index() == 0)
    {
        *piStat = '5';
        *piLength = 0;
        sData[0] = '\0';
        return exchanged;
    }
    *piStat = packetBuffer.ResponseAt(reply.Index() - 1);
    ReplyCursor lengthField(packetBuffer, reply.Index() + 2);
    *piLength = static_cast<uint16_t>(lengthField.Digits());

    const uint16_t size = std::min(iMaxLength, *piLength);
    if (size > 0)
    {
        const int start = reply.Index() + 5;
        const int left = std::max(packetBuffer.ResponseLength() - start, 0);
        const auto copied = static_cast<size_t>(std::min(size - 1, left));
        std::memcpy(sData, packetBuffer.ResponseFrom(start), copied);
        sData[copied] = '\0';
    }
    return exchanged;
}

uint8_t AtChannel::Set_CMGR(uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat, char* sData,
                            uint16_t* pStatus)
{
    return ReadMessage("TANDEKOR_AT_Set_CMGR", "+CMGR=", iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t AtChannel::Set_SMGR(uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat, char* sData,
                            uint16_t* pStatus)
{
    return ReadMessage("TANDEKOR_AT_Set_SMGR", "^SMGR=", iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t AtChannel::CMSS(uint8_t iIndex, const char* sAddress, uint16_t* pStatus)
{
    StartNamed("TANDEKOR_AT_CMSS", "+CMSS=");
    AddFirstDigit(iIndex);
    if (sAddress[0] != '-')
    {
        AddCharacter(',');
        AddQuoted(sAddress, 12);
    }
    return SendCommand(pStatus);
}

}  // namespace tandekor
