#include "connection/connection_registry.h"

#include <new>

#include "channels/at_channel.h"
#include "channels/boot_box_port.h"
#include "channels/ftm_channel.h"
#include "channels/obex_channel.h"

namespace tandekor
{

ConnectionRecord::ConnectionRecord(ResourceContext handle)
    : bootBoxPort(new (std::nothrow) BootBoxPort),
      atChannel(new (std::nothrow) AtChannel(handle)),
      ftmChannel(new (std::nothrow) FtmChannel(handle)),
      obexChannel(new (std::nothrow) ObexChannel(handle))
{
}

// In the order of their creation, so that the boot box port is released first.
ConnectionRecord::~ConnectionRecord()
{
    delete bootBoxPort;
    delete atChannel;
    delete ftmChannel;
    delete obexChannel;
}

ConnectionRegistry& ConnectionRegistry::Instance()
{
    static ConnectionRegistry registry;
    return registry;
}

bool ConnectionRegistry::AddConnection(ResourceContext handle)
{
    const auto found = positions.find(handle);
    if (found != positions.end())
    {
        ++found->second->useCount;
        return true;
    }
    try
    {
        std::list<ConnectionRecord> added;
        added.emplace_back(handle);
        positions.emplace(handle, added.begin());
        connections.splice(connections.end(), added);
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    return true;
}

void ConnectionRegistry::RemoveConnection(ResourceContext handle)
{
    const auto found = positions.find(handle);
    if (found == positions.end() || --found->second->useCount > 0)
        return;
    connections.erase(found->second);
    positions.erase(found);
}

void ConnectionRegistry::RemoveAllConnections()
{
    positions.clear();
    connections.clear();
}

BootBoxPort* ConnectionRegistry::GetBootBoxPort(ResourceContext handle) const
{
    return ServiceOf(handle, &ConnectionRecord::bootBoxPort);
}

FtmChannel* ConnectionRegistry::GetFtmChannel(ResourceContext handle) const
{
    return ServiceOf(handle, &ConnectionRecord::ftmChannel);
}

AtChannel* ConnectionRegistry::GetAtChannel(ResourceContext handle) const
{
    return qpstMode ? nullptr : ServiceOf(handle, &ConnectionRecord::atChannel);
}

ObexChannel* ConnectionRegistry::GetObexChannel(ResourceContext handle) const
{
    return qpstMode ? nullptr : ServiceOf(handle, &ConnectionRecord::obexChannel);
}

}  // namespace tandekor
