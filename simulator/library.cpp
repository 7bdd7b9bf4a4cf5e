// Connections, the library's version and its mode.
#include <cstring>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/script.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

// A port keeps its handle, which is 1 for the first one, whether or not a phone answers there.
ResourceContext Connect(bool logical, uint32_t port)
{
    if (!RunEnvironmentScript())
        return 0;
    LibraryState& state = TheState().library;
    ResourceContext handle = 0;
    if (state.connectHandle)
        handle = *state.connectHandle;
    else
        handle
            = state.handles.try_emplace({logical, port}, static_cast<uint32_t>(state.handles.size() + 1)).first->second;
    if (handle != 0)
        ++state.connections[handle];
    return handle;
}

}  // namespace

bool simulator::IsConnected(ResourceContext handle) { return TheState().library.connections.contains(handle); }

void QLIB_GetLibraryVersion(char* sVersion)
{
    const std::string& version = TheState().library.version;
    if (Enter(__func__, "", false) && sVersion != nullptr)
        std::memcpy(sVersion, version.c_str(), version.size() + 1);
}

void QLIB_SetLibraryMode(uint8_t bQpstMode)
{
    std::string& version = TheState().library.version;
    if (!Enter(__func__, Shown(bQpstMode), false))
        return;
    if (const size_t comma = version.find(','); comma != std::string::npos)
        SetLibraryVersion(version.substr(0, comma) + (bQpstMode == 1 ? ",QPST" : ",QPHONEMS"));
}

ResourceContext QLIB_ConnectServer(uint32_t iComPort)
{
    return Enter(__func__, Shown(iComPort)) ? Connect(false, iComPort) : 0;
}

ResourceContext QLIB_ConnectServerWithWait(uint32_t iComPort, uint32_t iWaitMs)
{
    return Enter(__func__, ShownTogether(iComPort, iWaitMs)) ? Connect(false, iComPort) : 0;
}

ResourceContext QLIB_ConnectServer_LogicalPort(uint32_t iLogicalPort)
{
    return Enter(__func__, Shown(iLogicalPort)) ? Connect(true, iLogicalPort) : 0;
}

void QLIB_DisconnectServer(ResourceContext hResourceContext)
{
    if (!Enter(__func__, Shown(hResourceContext), false))
        return;
    auto& connections = TheState().library.connections;
    const auto connection = connections.find(hResourceContext);
    if (connection != connections.end() && --connection->second == 0)
        connections.erase(connection);
}

void QLIB_DisconnectAllServers()
{
    if (Enter(__func__, "", false))
        TheState().library.connections.clear();
}
