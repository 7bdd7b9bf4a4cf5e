#include "host.h"

#include <cstring>

#include "platform/qmsl.h"

namespace
{

std::string_view delivered;
ResourceContext nextHandle = 1;
std::string* kept = nullptr;
size_t loggedBytes = 0;

template <typename... Numbers>
uint8_t Done(const char* operation, Numbers... numbers)
{
    if (kept != nullptr)
    {
        kept->append(operation);
        ((kept->append(" ").append(std::to_string(numbers))), ...);
        kept->append("\n");
    }
    return 1;
}

uint8_t Exchange(const char* operation, ResourceContext handle, uint16_t requestLength, const uint8_t* request,
                 uint16_t* responseLength, uint8_t* response, uint32_t timeoutMs)
{
    Done(operation, handle, requestLength, *responseLength, timeoutMs);
    if (kept != nullptr)  // with the fills that the host library is shown
        kept->append(request, request + 4096).append(response, response + 4096);
    std::memcpy(response, delivered.data(), delivered.size());
    *responseLength = static_cast<uint16_t>(delivered.size());
    return 1;
}

}  // namespace

namespace host
{

void DeliverOn(std::string_view reply) { delivered = reply; }
void ConnectAs(ResourceContext handle) { nextHandle = handle; }
void RecordIn(std::string* record) { kept = record; }

}  // namespace host

uint8_t QLIB_SendRAW(ResourceContext handle, uint16_t requestLength, uint8_t* request, uint16_t* responseLength,
                     uint8_t* response, uint32_t timeoutMs)
{
    return Exchange(__func__, handle, requestLength, request, responseLength, response, timeoutMs);
}

uint8_t QLIB_SendSync(ResourceContext handle, uint16_t requestLength, uint8_t* request, uint16_t* responseLength,
                      uint8_t* response, uint32_t timeoutMs)
{
    return Exchange(__func__, handle, requestLength, request, responseLength, response, timeoutMs);
}

uint8_t QLIB_AddUserMessageToTextLog(ResourceContext handle, uint32_t level, const char* text, uint32_t last)
{
    loggedBytes += std::strlen(text);
    if (kept != nullptr)
        kept->append(text);
    return Done(__func__, handle, level, last);
}

void QLIB_GetLibraryVersion(char* text) { std::strcpy(text, "QLIB V5.0.40,QPHONEMS"); }

ResourceContext QLIB_ConnectServer(uint32_t port)
{
    Done(__func__, port);
    return nextHandle;
}

void QLIB_DisconnectServer(ResourceContext handle) { Done(__func__, handle); }
void QLIB_DisconnectAllServers() {}

uint8_t QLIB_IsPhoneConnected(ResourceContext handle) { return Done(__func__, handle); }
uint8_t QLIB_FTM_SET_MODE(ResourceContext handle, uint16_t mode) { return Done(__func__, handle, mode); }
uint8_t QLIB_FTM_SET_CHAN(ResourceContext handle, uint16_t channel) { return Done(__func__, handle, channel); }
uint8_t QLIB_FTM_SET_TX_ON(ResourceContext handle) { return Done(__func__, handle); }
uint8_t QLIB_FTM_SET_TX_OFF(ResourceContext handle) { return Done(__func__, handle); }
uint8_t QLIB_FTM_SET_PA_RANGE(ResourceContext handle, uint16_t range) { return Done(__func__, handle, range); }
uint8_t QLIB_FTM_CDMA_CW_WAVEFORM(ResourceContext handle, uint8_t wave) { return Done(__func__, handle, wave); }
uint8_t QLIB_FTM_SET_PDM(ResourceContext handle, uint16_t type, uint16_t value)
{
    return Done(__func__, handle, type, value);
}
