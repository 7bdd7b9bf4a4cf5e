// The form of every exported function: find the channel of the handle and do the work with it; 0 without one.
#pragma once

#include <cstdint>
#include <type_traits>

#include "connection/connection_registry.h"

namespace tandekor
{

inline AtChannel* At(ResourceContext handle) { return ConnectionRegistry::Instance().GetAtChannel(handle); }
inline FtmChannel* Ftm(ResourceContext handle) { return ConnectionRegistry::Instance().GetFtmChannel(handle); }
inline ObexChannel* Obex(ResourceContext handle) { return ConnectionRegistry::Instance().GetObexChannel(handle); }

// The result of the work, which takes the channel and returns a byte or a bool.
template <typename Channel, typename Work>
uint8_t With(Channel* channel, Work work)
{
    return channel == nullptr ? uint8_t{0} : static_cast<uint8_t>(work(*channel));
}

// The result of one verb of the channel.
template <typename Channel, typename Result, typename... Parameters>
uint8_t Forward(Channel* channel, Result (Channel::*verb)(Parameters...), std::type_identity_t<Parameters>... arguments)
{
    return With(channel, [&](Channel& found) { return (found.*verb)(arguments...); });
}

}  // namespace tandekor
