// The way back from OBEX to AT commands.
#include "channels/obex_channel.h"
#include "connection/forward.h"
#include "core/text_log.h"
#include "platform/clock.h"

// The phone recognises the escape sequence only between two pauses.
uint8_t TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte)
{
    constexpr char escapeSequence[] = "+++";  // sent with its NUL
    constexpr uint32_t pauseMs = 1000;

    const auto leaveObex = [&](tandekor::ObexChannel& obex)
    {
        tandekor::Trace(hResourceContext, "TANDEKOR_OBEX_2_AT()");
        tandekor::platform::Sleep(pauseMs);
        *piFirstByte = obex.SendRaw(escapeSequence, sizeof escapeSequence).code;
        tandekor::platform::Sleep(pauseMs);
        return true;
    };
    return tandekor::With(tandekor::Obex(hResourceContext), leaveObex);
}
