// AT commands on the phone's diagnostic port: how a command is built and sent, and how its reply is classified and
// read.
#pragma once

#include <cstdint>

#include "channels/reply_cursor.h"
#include "core/packet_buffer.h"

namespace tandekor
{

// The values of *pStatus.
constexpr uint16_t statusOk = 0;     // it ends with OK
constexpr uint16_t statusError = 1;  // it ends with ERROR
constexpr uint16_t statusOther = 2;

class AtChannel
{
public:
    explicit AtChannel(ResourceContext handle) : hResourceContext(handle) {}

    static constexpr uint32_t replyTimeMs = 3000;

    // --- sending a command

    // Writes the log text "<name>()", empties the buffer and appends the letters AT and the command.
    void StartNamed(const char* name, const char* command);
    // The same without the log text.
    void StartCommand(const char* command);
    void AddText(const char* text);
    void AddCharacter(char character);
    // The decimal text of the value, or its first characters.
    void AddDecimal(uint32_t value, int mostCharacters = 10);
    void AddFirstDigit(uint32_t value) { AddDecimal(value, 1); }
    // A comma, and the value's first digit or its decimal text.
    void AddCommaAndFirstDigit(uint32_t value);
    void AddCommaAndDecimal(uint32_t value);
    // At least two digits, of which the first two are sent.
    void AddTwoDigits(uint32_t value);
    // The text, cut to that many characters, as it is or between double quotes.
    void AddText(const char* text, size_t mostCharacters);
    void AddQuoted(const char* text, size_t mostCharacters = SIZE_MAX);
    // The first digit of each byte's value up to a NUL.
    template <typename Byte>
    void AddByteDigits(const Byte* bytes)
    {
        for (; *bytes != 0; ++bytes)
            AddFirstDigit(static_cast<uint8_t>(*bytes));
    }
    // Appends a carriage return and a NUL, which is sent too, and exchanges. On success it sets *pStatus from the end
    // of the reply and parseOffset from its start (with or without echo); on failure both are unchanged.
    bool SendCommand(uint16_t* pStatus, uint32_t timeoutMs = replyTimeMs);

    // --- reading the reply
    // Positions count from 0 in a reply that starts with an echo of nine bytes. Every position is safe: after the end
    // of a short reply the fill byte is read, outside the buffer a NUL, and neither is a digit.

    const PacketBuffer& Reply() const { return packetBuffer; }
    int IndexOf(int position) const { return position + parseOffset; }
    uint8_t CharacterAt(int position) const { return packetBuffer.ResponseAt(IndexOf(position)); }
    // The value of the digit, 0 for any other character.
    uint8_t DigitAt(int position) const;
    // The decimal number of that many digits.
    uint32_t NumberAt(int position, int digits) const;
    // The index of the reply's last digit, -1 if there is none.
    int IndexOfLastDigit() const;
    ReplyCursor CursorAt(int position) const { return {packetBuffer, IndexOf(position)}; }
    // The text from the position up to the stop character, followed by a NUL.
    void CopyTextAt(int position, char stop, char* text, size_t textSize) const;
    // Pairs of numbers, from the first colon at position 16 or later up to the letter O. A pair is dropped if the reply
    // ends before its second number.
    void ReadPairs(uint32_t* aiFirst, uint32_t* aiSecond, uint32_t* piCount) const;

    // --- whole commands, named in the log after the exported function

    bool Query(const char* name, const char* command, uint16_t* pStatus);
    bool QueryDigit(const char* name, const char* command, int position, uint8_t* piValue, uint16_t* pStatus);
    bool QueryTwoDigits(const char* name, const char* command, int firstPosition, int secondPosition, uint8_t* piFirst,
                        uint8_t* piSecond, uint16_t* pStatus);
    bool QueryLastDigit(const char* name, const char* command, uint32_t* piValue, uint16_t* pStatus);
    bool SetFirstDigit(const char* name, const char* command, uint8_t iValue, uint16_t* pStatus);
    // The same, with a log text that does not show the value.
    bool SetFirstDigitUnshown(const char* name, const char* command, uint32_t iValue, uint16_t* pStatus);
    // The second value is left out if it is 255.
    bool SetOneOrTwo(const char* name, const char* command, uint8_t iFirst, int firstCharacters, uint8_t iSecond,
                     uint16_t* pStatus);

private:
    ResourceContext hResourceContext;
    int32_t parseOffset = 0;  // 0 for a reply with echo, -9 for one without
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
