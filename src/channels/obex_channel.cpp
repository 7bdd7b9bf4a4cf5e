#include "channels/obex_channel.h"

#include <cstring>

#include "channels/reply_reader.h"
#include "core/text_log.h"
#include "platform/clock.h"
#include "platform/qmsl.h"

namespace tandekor
{

void ObexChannel::StartPacket(uint8_t operation)
{
    packetBuffer.Reset();
    packetBuffer.AddByte(operation);
    AddBigEndianWord(0);
}

void ObexChannel::AddBigEndianWord(uint16_t value)
{
    packetBuffer.AddByte(static_cast<uint8_t>(value >> 8));
    packetBuffer.AddByte(static_cast<uint8_t>(value));
}

void ObexChannel::AddBigEndianDword(uint32_t value)
{
    AddBigEndianWord(static_cast<uint16_t>(value >> 16));
    AddBigEndianWord(static_cast<uint16_t>(value));
}

void ObexChannel::AddConnectionId()
{
    packetBuffer.AddByte(connectionIdHeader);
    AddBigEndianDword(connectionId);
}

// Byte by byte, without any code conversion.
void ObexChannel::AddWidened(const char* text, size_t length)
{
    for (size_t i = 0; i < length; ++i)
        AddBigEndianWord(static_cast<uint8_t>(text[i]));
}

void ObexChannel::AddName(const char* name, size_t length)
{
    packetBuffer.AddByte(nameHeader);
    AddBigEndianWord(static_cast<uint16_t>(2 * length + 5));
    AddWidened(name, length);
    AddBigEndianWord(0);
}

size_t ObexChannel::TextLength(const char* text) { return std::strlen(text); }

bool ObexChannel::SendPacketWithTimeout(uint32_t timeoutMs, uint16_t* responseCode)
{
    packetBuffer.SetBigEndianWord(1, packetBuffer.RequestLength());
    return Exchange(timeoutMs, responseCode);
}

bool ObexChannel::Exchange(uint32_t timeoutMs, uint16_t* responseCode)
{
    const uint8_t result = packetBuffer.Exchange(QLIB_SendRAW, hResourceContext, timeoutMs);
    *responseCode = packetBuffer.ResponseAt(0);
    return result != 0;
}

// The phone takes the escape sequence for one only between two pauses.
uint8_t ObexChannel::Switch_2_AT(uint16_t* piFirstByte)
{
    constexpr char escapeSequence[] = "+++";  // sent with its NUL
    constexpr uint32_t pauseMs = 1000;

    Trace(hResourceContext, "TANDEKOR_OBEX_2_AT()");
    packetBuffer.Reset();
    packetBuffer.AddBytes(escapeSequence, sizeof escapeSequence);
    platform::Sleep(pauseMs);
    Exchange(replyTimeMs, piFirstByte);
    platform::Sleep(pauseMs);
    return 1;
}

}  // namespace tandekor
