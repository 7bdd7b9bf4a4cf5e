// How a command begins that takes more than one verb of the channel. The name is the one in the log: that of the
// exported function.
#pragma once

#include "channels/at_channel.h"
#include "connection/forward.h"
#include "tandekor/at.h"

namespace tandekor
{

// Starts a command to which values are appended. Null for an unknown handle.
inline AtChannel* Start(ResourceContext hResourceContext, const char* name, const char* command)
{
    AtChannel* const at = At(hResourceContext);
    if (at != nullptr)
        at->StartNamed(name, command);
    return at;
}

// Sends a command without a value; the channel then holds the reply. Null for an unknown handle or a failed exchange.
inline const AtChannel* Query(ResourceContext hResourceContext, const char* name, const char* command,
                              uint16_t* pStatus)
{
    AtChannel* const at = At(hResourceContext);
    return at != nullptr && at->Query(name, command, pStatus) ? at : nullptr;
}

}  // namespace tandekor
