#include "at/at_channel.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "frame/text_log.h"
#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

constexpr uint16_t statusOk = 0;
constexpr uint16_t statusError = 1;
constexpr uint16_t statusOther = 2;

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

void AtChannel::StartCommand()
{
    packetBuffer.Reset();
    AddText("AT");
}

void AtChannel::AddText(const char* text) { packetBuffer.AddBytes(text, std::strlen(text)); }

void AtChannel::AddCharacter(char character) { packetBuffer.AddByte(static_cast<uint8_t>(character)); }

void AtChannel::AddDecimal(uint32_t value, int mostCharacters)
{
    char digits[10];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    packetBuffer.AddBytes(digits, static_cast<size_t>(std::min<ptrdiff_t>(end - digits, mostCharacters)));
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

int AtChannel::IndexOfLastDigit() const
{
    int index = IndexOf(packetBuffer.ResponseLength()) - 1;
    while (index >= 0 && !IsDigit(packetBuffer.ResponseAt(index)))
        --index;
    return std::max(index, -1);
}

bool AtChannel::Query(const char* name, const char* command, uint16_t* pStatus)
{
    Trace(hResourceContext, "%s()", name);
    StartCommand();
    AddText(command);
    return SendCommand(pStatus);
}

uint8_t AtChannel::QueryDigit(const char* name, const char* command, int position, uint8_t* piValue, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return 0;
    *piValue = DigitAt(position);
    return 1;
}

uint8_t AtChannel::QueryTwoDigits(const char* name, const char* command, int firstPosition, int secondPosition,
                                  uint8_t* piFirst, uint8_t* piSecond, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return 0;
    *piFirst = DigitAt(firstPosition);
    *piSecond = DigitAt(secondPosition);
    return 1;
}

uint8_t AtChannel::QueryLastDigit(const char* name, const char* command, uint32_t* piValue, uint16_t* pStatus)
{
    if (!Query(name, command, pStatus))
        return 0;
    const int index = IndexOfLastDigit();
    if (index >= 0)
        *piValue = packetBuffer.ResponseAt(index) - uint32_t{'0'};
    return 1;
}

uint8_t AtChannel::SetFirstDigit(const char* name, const char* command, uint8_t iValue, uint16_t* pStatus)
{
    Trace(hResourceContext, "%s(%d)", name, iValue);
    StartCommand();
    AddText(command);
    AddFirstDigit(iValue);
    return SendCommand(pStatus);
}

uint8_t AtChannel::SetFirstDigitUnshown(const char* name, const char* command, uint32_t iValue, uint16_t* pStatus,
                                        uint32_t timeoutMs)
{
    Trace(hResourceContext, "%s()", name);
    StartCommand();
    AddText(command);
    AddFirstDigit(iValue);
    return SendCommand(pStatus, timeoutMs);
}

uint8_t AtChannel::SetOneOrTwo(const char* name, const char* command, uint8_t iFirst, int firstCharacters,
                               uint8_t iSecond, uint16_t* pStatus)
{
    Trace(hResourceContext, "%s(%d, %d)", name, iFirst, iSecond);
    StartCommand();
    AddText(command);
    AddDecimal(iFirst, firstCharacters);
    if (iSecond != 255)
    {
        AddCharacter(',');
        AddFirstDigit(iSecond);
    }
    return SendCommand(pStatus);
}

}  // namespace tandekor
