// The exported functions that need no service object: connecting, library mode, versions.
#include "tandekor/library.h"

#include <cstring>

#include "connection/connection_registry.h"
#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

const char* ExtensionVersion()
{
    return ConnectionRegistry::Instance().qpstMode ? "TANDEKOR V0" TANDEKOR_VERSION_TEXT ",QPST"
                                                   : "TANDEKOR V0" TANDEKOR_VERSION_TEXT ",QPHONEMS";
}

const char* SupportedHostVersion()
{
    return ConnectionRegistry::Instance().qpstMode ? "QLIB V5.0.40,QPST" : "QLIB V5.0.40,QPHONEMS";
}

// The host library's version text, in a buffer larger than the longest known one.
class HostVersion
{
public:
    HostVersion()
    {
        QLIB_GetLibraryVersion(text);
        text[sizeof text - 1] = '\0';
    }

    const char* Text() const { return text; }

private:
    char text[512] = {};
};

// Compares the host library's text up to its comma; the mode word after the comma is ignored. A text that ends before
// its comma passes, and so does an empty one.
bool HostVersionIsSupported()
{
    constexpr size_t mostCharacters = 50;
    const HostVersion host;
    char supported[mostCharacters] = {};
    std::strcpy(supported, SupportedHostVersion());
    const char* text = host.Text();
    for (size_t i = 0; i < mostCharacters && text[i] != '\0' && text[i] != ','; ++i)
    {
        if (text[i] != supported[i])
            return false;
    }
    return true;
}

template <typename Connect, typename... Arguments>
ResourceContext ConnectTo(Connect connect, uint32_t port, Arguments... arguments)
{
    if (!HostVersionIsSupported())
        return 0;
    const ResourceContext handle = connect(port, arguments...);
    if (handle == 0)
        return 0;
    if (!ConnectionRegistry::Instance().AddConnection(handle))
    {
        QLIB_DisconnectServer(handle);
        return 0;
    }
    return handle;
}

}  // namespace

}  // namespace tandekor

using tandekor::ConnectionRegistry;

ResourceContext TANDEKOR_ConnectServer(uint32_t iComPort) { return tandekor::ConnectTo(QLIB_ConnectServer, iComPort); }

ResourceContext TANDEKOR_ConnectServerWithWait(uint32_t iComPort, uint32_t iWaitMs)
{
    return tandekor::ConnectTo(QLIB_ConnectServerWithWait, iComPort, iWaitMs);
}

ResourceContext TANDEKOR_ConnectServer_LogicalPort(uint32_t iLogicalPort)
{
    return tandekor::ConnectTo(QLIB_ConnectServer_LogicalPort, iLogicalPort);
}

void TANDEKOR_DisconnectServer(ResourceContext hResourceContext)
{
    ConnectionRegistry::Instance().RemoveConnection(hResourceContext);
    QLIB_DisconnectServer(hResourceContext);
}

void TANDEKOR_DisconnectAllServers(void)
{
    ConnectionRegistry::Instance().RemoveAllConnections();
    QLIB_DisconnectAllServers();
}

void TANDEKOR_SetLibraryMode(uint8_t bMode)
{
    const bool qpst = bMode == 1;
    QLIB_SetLibraryMode(qpst ? 1 : 0);
    ConnectionRegistry::Instance().qpstMode = qpst;
}

uint8_t TANDEKOR_GetLibraryMode(void) { return std::strstr(tandekor::HostVersion().Text(), "QPST") != nullptr; }

void TANDEKOR_GetExtensionVersion(char* sVersion) { std::strcpy(sVersion, tandekor::ExtensionVersion()); }

void TANDEKOR_GetSupportedQLibVersion(char* sVersion) { std::strcpy(sVersion, tandekor::SupportedHostVersion()); }
