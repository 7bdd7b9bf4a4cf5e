#include "channels/at_channel.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "core/text_log.h"
#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

bool EndsIn(const PacketBuffer& reply, const char* word)
{
    const int length = static_cast<int>(std::strlen(word));
    const int start = reply.ResponseLength() - length;
    if (start < 0)
        return false;
    for (int i = 0; i < length; ++i)
    {
        if (reply.ResponseAt(start + i) != static_cast<uint8_t>(word[i]))
            return false;
    }
    return true;
}

}  // namespace

void AtChannel::StartNamed(const char* name, const char* command)
{
    LogLine line(name);
    line.Add("()");
    line.Write(hResourceContext);
    StartCommand(command);
}

void AtChannel::StartCommand(const char* command)
{
    packetBuffer.Reset();
    AddText("AT");
    AddText(command);
}

void AtChannel::AddText(const char* text) { packetBuffer.AddBytes(text, std::strlen(text)); }

void AtChannel::AddCharacter(char character) { packetBuffer.AddByte(static_cast<uint8_t>(character)); }

void AtChannel::AddDecimal(uint32_t value, int mostCharacters)
{
    char digits[10];
    const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    packetBuffer.AddBytes(digits, static_cast<size_t>(std::min<ptrdiff_t>(end - digits, mostCharacters)));
}

void AtChannel::AddCommaAndFirstDigit(uint32_t value)
{
    AddCharacter(',');
    AddFirstDigit(value);
}

void AtChannel::AddCommaAndDecimal(uint32_t value)
{
    AddCharacter(',');
    AddDecimal(value);
}

void AtChannel::AddTwoDigits(uint32_t value)
{
    if (value < 10)
        AddCharacter('0');
    AddDecimal(value, 2);
}

void AtChannel::AddText(const char* text, size_t mostCharacters)
{
    for (size_t i = 0; i < mostCharacters && text[i] != '\0'; ++i)
        AddCharacter(text[i]);
}

void AtChannel::AddQuoted(const char* text, size_t mostCharacters)
{
    AddCharacter('"');
    AddText(text, mostCharacters);
    AddCharacter('"');
}

bool AtChannel::SendCommand(uint16_t* pStatus, uint32_t timeoutMs)
{
    AddCharacter('\r');
    AddCharacter('\0');
    if (packetBuffer.Exchange(QLIB_SendRAW, hResourceContext, timeoutMs) == 0)
        return false;
    *pStatus = EndsIn(packetBuffer, "OK") ? statusOk : EndsIn(packetBuffer, "ERROR") ? statusError : statusOther;
    const uint8_t first = packetBuffer.ResponseAt(0);
    parseOffset = first == 'A' || first == 'a' ? 0 : -9;
    return true;
}

uint8_t AtChannel::DigitAt(int position) const
{
    const uint8_t character = CharacterAt(position);
    return IsDigit(character) ? static_cast<uint8_t>(character - '0') : uint8_t{0};
}

uint32_t AtChannel::NumberAt(int position, int digits) const
{
    uint32_t value = 0;
    for (int i = 0; i < digits; ++i)
        value = value * 10 + DigitAt(position + i);
    return value;
}

void AtChannel::CopyTextAt(int position, char stop, char* text, size_t textSize) const
{
    text[CursorAt(position).CopyUpTo(stop, text, textSize - 1)] = '\0';
}

int AtChannel::IndexOfLastDigit() const
{
    int index = IndexOf(packetBuffer.ResponseLength()) - 1;
    while (index >= 0 && !IsDigit(packetBuffer.ResponseAt(index)))
        --index;
    return std::max(index, -1);
}

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

bool AtChannel::Query(const char* name, const char* command, uint16_t* pStatus)
{
    StartNamed(name, command);
    return SendCommand(pStatus);
}

bool AtChannel::QueryDigit(const char* name, const char* command, int position, uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return false;
    *piValue = DigitAt(position);
    return true;
}

bool AtChannel::QueryTwoDigits(const char* name, const char* command, int firstPosition, int secondPosition,
                               uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return false;
    *piFirst = DigitAt(firstPosition);
    *piSecond = DigitAt(secondPosition);
    return true;
}

bool AtChannel::QueryLastDigit(const char* name, const char* command, uint32_t* piValue, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return false;
    const int index = IndexOfLastDigit();
    if (index >= 0)
        *piValue = packetBuffer.ResponseAt(index) - uint32_t{'0'};
    return true;
}

bool AtChannel::SetFirstDigit(const char* name, const char* command, uint8_t iValue, uint16_t* pStatus)
{
    Trace(hResourceContext, "%s(%d)", name, iValue);
    StartCommand(command);
    AddFirstDigit(iValue);
    return SendCommand(pStatus);
}

bool AtChannel::SetFirstDigitUnshown(const char* name, const char* command, uint32_t iValue, uint16_t* pStatus)
{
    StartNamed(name, command);
    AddFirstDigit(iValue);
    return SendCommand(pStatus);
}

bool AtChannel::SetOneOrTwo(const char* name, const char* command, uint8_t iFirst, int firstCharacters, uint8_t iSecond,
                            uint16_t* pStatus)
{
    Trace(hResourceContext, "%s(%d, %d)", name, iFirst, iSecond);
    StartCommand(command);
    AddDecimal(iFirst, firstCharacters);
    if (iSecond != 255)
        AddCommaAndFirstDigit(iSecond);
    return SendCommand(pStatus);
}

}  // namespace tandekor
