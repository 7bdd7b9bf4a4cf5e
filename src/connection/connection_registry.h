// The process-wide table of connected phones, with the service objects of each.
#pragma once

#include <cstdint>
#include <list>
#include <unordered_map>

#include "tandekor/common.h"

namespace tandekor
{

class AtChannel;
class BootBoxPort;
class FtmChannel;
class ObexChannel;

// One connected phone. A service object is null if memory ran out for it; callers then treat the handle as unknown.
struct ConnectionRecord
{
    explicit ConnectionRecord(ResourceContext handle);
    ~ConnectionRecord();
    ConnectionRecord(const ConnectionRecord&) = delete;
    ConnectionRecord& operator=(const ConnectionRecord&) = delete;

    int32_t useCount = 1;      // open connects of this handle
    BootBoxPort* bootBoxPort;  // what procedures need of a connection
    AtChannel* atChannel;
    FtmChannel* ftmChannel;
    ObexChannel* obexChannel;
};

class ConnectionRegistry
{
public:
    // Created on first use and destroyed at the end of the process, without a call to the host library.
    static ConnectionRegistry& Instance();

    // Adds a record, or counts one more use of a known handle. False if memory runs out.
    bool AddConnection(ResourceContext handle);
    // Counts one use less; the last one removes the record.
    void RemoveConnection(ResourceContext handle);
    void RemoveAllConnections();

    // Null for an unknown handle; the AT and OBEX channels are null in QPST mode too.
    BootBoxPort* GetBootBoxPort(ResourceContext handle) const;
    FtmChannel* GetFtmChannel(ResourceContext handle) const;
    AtChannel* GetAtChannel(ResourceContext handle) const;
    ObexChannel* GetObexChannel(ResourceContext handle) const;

    bool qpstMode = false;

private:
    using Position = std::list<ConnectionRecord>::iterator;

    ConnectionRegistry() = default;
    ~ConnectionRegistry() = default;

    // The service of the handle's record, or null.
    template <typename Service>
    Service* ServiceOf(ResourceContext handle, Service* ConnectionRecord::*service) const
    {
        const auto found = positions.find(handle);
        return found == positions.end() ? nullptr : (*found->second).*service;
    }

    std::list<ConnectionRecord> connections;                  // in the order of the connects
    std::unordered_map<ResourceContext, Position> positions;  // of all of them, so that a call finds its own at once
};

}  // namespace tandekor
