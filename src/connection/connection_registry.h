// The process-wide table of connected phones, with the service objects of each.
#pragma once

#include <cstdint>
#include <list>

#include "tandekor/common.h"

namespace tandekor
{

class AtChannel;
class FtmChannel;
class ObexChannel;
class BootBoxPort;

// One connected phone. A service object that could not be made for lack of memory is null, which its callers take for
// an unknown handle.
struct ConnectionRecord
{
    ConnectionRecord(ResourceContext handle, uint32_t port);
    ~ConnectionRecord();
    ConnectionRecord(const ConnectionRecord&) = delete;
    ConnectionRecord& operator=(const ConnectionRecord&) = delete;

    ResourceContext hResourceContext;
    int32_t useCount = 1;  // connects of this handle that are open
    uint32_t portNumber;
    BootBoxPort* bootBoxPort;
    AtChannel* atChannel;
    FtmChannel* ftmChannel;
    ObexChannel* obexChannel;
};

class ConnectionRegistry
{
public:
    // Made by the first call and destroyed when the process ends, without a call to the host library.
    static ConnectionRegistry& Instance();

    // Whether the record stands. A handle that is known already counts one use more and keeps its record.
    bool AddConnection(ResourceContext handle, uint32_t port);
    // The last use takes the record away.
    void RemoveConnection(ResourceContext handle);
    void RemoveAllConnections() { connections.clear(); }

    // Null for an unknown handle; the AT and OBEX channels are also out of reach in the QPST mode.
    BootBoxPort* GetBootBoxPort(ResourceContext handle);
    FtmChannel* GetFtmChannel(ResourceContext handle);
    AtChannel* GetAtChannel(ResourceContext handle);
    ObexChannel* GetObexChannel(ResourceContext handle);

    bool qpstMode = false;

private:
    using Position = std::list<ConnectionRecord>::iterator;

    ConnectionRegistry() = default;
    ~ConnectionRegistry() = default;

    Position FindConnection(ResourceContext handle);

    // The service of the handle's record, or null.
    template <typename Service>
    Service* ServiceOf(ResourceContext handle, Service* ConnectionRecord::*service)
    {
        const Position record = FindConnection(handle);
        return record == connections.end() ? nullptr : (*record).*service;
    }

    std::list<ConnectionRecord> connections;  // in the order of the connects
};

}  // namespace tandekor
