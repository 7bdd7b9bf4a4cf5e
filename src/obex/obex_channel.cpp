#include "obex/obex_channel.h"

#include "frame/text_log.h"
#include "platform/clock.h"
#include "platform/qmsl.h"

namespace tandekor
{

bool ObexChannel::SendPacketWithTimeout(uint32_t timeoutMs, uint16_t* responseCode)
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
    SendPacket(piFirstByte);
    platform::Sleep(pauseMs);
    return 1;
}

}  // namespace tandekor
