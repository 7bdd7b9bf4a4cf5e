// The form of every exported file function: an operation on the handle's channel, in a session of its own.
#pragma once

#include "channels/obex_channel.h"
#include "connection/forward.h"

namespace tandekor
{

template <typename Operation>
uint8_t InSession(ResourceContext hResourceContext, const char* psPhoneFolder, uint16_t* piObexError,
                  Operation operation)
{
    return With(Obex(hResourceContext),
                [&](ObexChannel& obex) { return obex.InSession(psPhoneFolder, piObexError, operation); });
}

}  // namespace tandekor
