#include "connection/connection_registry.h"

#include <algorithm>
#include <new>

#include "channels/at_channel.h"
#include "channels/boot_box_port.h"
#include "channels/ftm_channel.h"
#include "channels/obex_channel.h"

namespace tandekor
{

ConnectionRecord::ConnectionRecord(ResourceContext handle)
    : hResourceContext(handle),
      bootBoxPort(new (std::nothrow) BootBoxPort),
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

ConnectionRegistry::Position ConnectionRegistry::FindConnection(ResourceContext handle)
{
    return std::find_if(connections.begin(), connections.end(),
                        [handle](const ConnectionRecord& record) { return record.hResourceContext == handle; });
}

bool ConnectionRegistry::AddConnection(ResourceContext handle)
{
    const Position record = FindConnection(handle);
    if (record != connections.end())
    {
        ++record->useCount;
        return true;
    }
    try
    {
        connections.emplace_back(handle);
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    return true;
}

void ConnectionRegistry::RemoveConnection(ResourceContext handle)
{
    const Position record = FindConnection(handle);
    if (record == connections.end())
        return;
    if (record->useCount <= 1)
        connections.erase(record);
    else
        --record->useCount;
}

BootBoxPort* ConnectionRegistry::GetBootBoxPort(ResourceContext handle)
{
    return ServiceOf(handle, &ConnectionRecord::bootBoxPort);
}

FtmChannel* ConnectionRegistry::GetFtmChannel(ResourceContext handle)
{
    return ServiceOf(handle, &ConnectionRecord::ftmChannel);
}

AtChannel* ConnectionRegistry::GetAtChannel(ResourceContext handle)
{
    return qpstMode ? nullptr : ServiceOf(handle, &ConnectionRecord::atChannel);
}

ObexChannel* ConnectionRegistry::GetObexChannel(ResourceContext handle)
{
    return qpstMode ? nullptr : ServiceOf(handle, &ConnectionRecord::obexChannel);
}

}  // namespace tandekor
