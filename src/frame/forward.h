// The form of every exported function: find the service of the handle, call its method with the same arguments.
#pragma once

#include "frame/connection_registry.h"

namespace tandekor
{

inline AtChannel* At(ResourceContext handle) { return ConnectionRegistry::Instance().GetAtChannel(handle); }
inline FtmChannel* Ftm(ResourceContext handle) { return ConnectionRegistry::Instance().GetFtmChannel(handle); }
inline ObexChannel* Obex(ResourceContext handle) { return ConnectionRegistry::Instance().GetObexChannel(handle); }
inline PhoneProcedures* Procedures(ResourceContext handle)
{
    return ConnectionRegistry::Instance().GetPhoneProcedures(handle);
}

// 0 for a missing service. The method may give a byte or a bool.
template <typename Service, typename Result, typename... Parameters>
uint8_t Forward(Service* service, Result (Service::*method)(Parameters...), Parameters... arguments)
{
    return service == nullptr ? uint8_t{0} : static_cast<uint8_t>((service->*method)(arguments...));
}

}  // namespace tandekor
