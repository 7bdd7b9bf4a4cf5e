// Short messages in the phone's store: list, read, send again. The standard commands and the phone's own differ only in
// their texts.
#include <algorithm>
#include <cstring>

#include "at/command.h"

using namespace tandekor;

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

// Reads a line, starting after its colon and space. False if the reply ends before the last field.
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

// A message is dropped if the reply ends within its line.
uint8_t ListMessages(ResourceContext hResourceContext, const char* name, const char* command, char marker,
                     uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat, uint32_t* aiAlpha, uint32_t* aiLength,
                     char (*asData)[1024], uint32_t* piCount, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, name, command);
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iFilter == allMessages ? 0u : iFilter);
    *piCount = 0;
    if (!at->SendCommand(pStatus))
        return 0;

    ReplyCursor reply = at->CursorAt(1);  // a line end at position 0 does not count
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

// Positions count from the first byte of the reply here, with or without echo, and the reply is read even if the
// exchange failed. The text starts five bytes after the first comma, however long the length field is.
uint8_t ReadMessage(ResourceContext hResourceContext, const char* name, const char* command, uint16_t iIndex,
                    uint16_t iMaxLength, uint16_t* piLength, uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, name, command);
    if (at == nullptr)
        return 0;
    if (iIndex <= highestIndex)
        at->AddDecimal(iIndex);
    const bool exchanged = at->SendCommand(pStatus);

    const uint8_t last = at->Reply().ResponseAt(at->Reply().ResponseLength() - 1);
    if (last != 'K' && last != 'k')
        return exchanged;
    ReplyCursor reply(at->Reply(), 0);
    reply.GoToFirst([](uint8_t current) { return current == ',' || current == '\0'; });
    if (reply.AtEnd() || reply.Index() == 0)
    {
        *piStat = '5';
        *piLength = 0;
        sData[0] = '\0';
        return exchanged;
    }
    *piStat = at->Reply().ResponseAt(reply.Index() - 1);
    ReplyCursor lengthField(at->Reply(), reply.Index() + 2);
    *piLength = static_cast<uint16_t>(lengthField.Digits());

    const uint16_t size = std::min(iMaxLength, *piLength);
    if (size > 0)
    {
        const int start = reply.Index() + 5;
        const int left = std::max(at->Reply().ResponseLength() - start, 0);
        const auto copied = static_cast<size_t>(std::min(size - 1, left));
        std::memcpy(sData, at->Reply().ResponseFrom(start), copied);
        sData[copied] = '\0';
    }
    return exchanged;
}

}  // namespace

uint8_t TANDEKOR_AT_CMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat,
                         uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                         uint16_t* pStatus)
{
    return ListMessages(hResourceContext, __func__, "+CMGL=", '+', iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData,
                        piCount, pStatus);
}

uint8_t TANDEKOR_AT_SMGL(ResourceContext hResourceContext, uint8_t iFilter, uint32_t* aiIndex, uint32_t* aiStat,
                         uint32_t* aiAlpha, uint32_t* aiLength, char (*asData)[1024], uint32_t* piCount,
                         uint16_t* pStatus)
{
    return ListMessages(hResourceContext, __func__, "^SMGL=", '^', iFilter, aiIndex, aiStat, aiAlpha, aiLength, asData,
                        piCount, pStatus);
}

uint8_t TANDEKOR_AT_Set_CMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength,
                             uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    return ReadMessage(hResourceContext, __func__, "+CMGR=", iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t TANDEKOR_AT_Set_SMGR(ResourceContext hResourceContext, uint16_t iIndex, uint16_t iMaxLength, uint16_t* piLength,
                             uint8_t* piStat, char* sData, uint16_t* pStatus)
{
    return ReadMessage(hResourceContext, __func__, "^SMGR=", iIndex, iMaxLength, piLength, piStat, sData, pStatus);
}

uint8_t TANDEKOR_AT_CMSS(ResourceContext hResourceContext, uint8_t iIndex, const char* sAddress, uint16_t* pStatus)
{
    AtChannel* const at = Start(hResourceContext, __func__, "+CMSS=");
    if (at == nullptr)
        return 0;
    at->AddFirstDigit(iIndex);
    if (sAddress[0] != '-')
    {
        at->AddCharacter(',');
        at->AddQuoted(sAddress, 12);
    }
    return at->SendCommand(pStatus);
}
