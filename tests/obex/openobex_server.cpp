#include "tests/obex/openobex_server.h"

#include <optional>

// libopenobex loses 16 bytes for each put, which the leak sanitizer is not to count.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libopenobex";
}

namespace tandekor::test
{

using simulator::Bytes;

namespace
{

// The header's macros mix enumerations, which C++20 deprecates.
constexpr uint8_t nameHeader = 0x01;
constexpr uint8_t targetHeader = 0x46;
constexpr uint8_t bodyHeader = 0x48;
constexpr uint8_t whoHeader = 0x4A;
constexpr uint8_t lengthHeader = 0xC3;
constexpr uint8_t connectionHeader = 0xCB;

constexpr uint32_t connectionId = 0xCB4A0102;  // of bytes that are headers' identifiers as well

int Good(obex_t*, void*) { return 1; }
int InputIsThere(obex_t*, void*, int) { return 1; }

int Write(obex_t*, void* answer, uint8_t* bytes, int count)
{
    static_cast<Bytes*>(answer)->insert(static_cast<Bytes*>(answer)->end(), bytes, bytes + count);
    return count;
}

}  // namespace

OpenObexServer::OpenObexServer() : obex(OBEX_Init(OBEX_TRANS_CUSTOM, OnEvent, 0))
{
    obex_ctrans_t transport{};
    transport.connect = transport.disconnect = transport.listen = Good;
    transport.write = Write;
    transport.handleinput = InputIsThere;
    transport.customdata = &answer;
    OBEX_SetUserData(obex, this);
    OBEX_RegisterCTransport(obex, &transport);
    OBEX_SetTransportMTU(obex, 4096, 4096);
    OBEX_ServerRegister(obex, nullptr, 0);
}

OpenObexServer::~OpenObexServer() { OBEX_Cleanup(obex); }

Bytes OpenObexServer::Answer(Bytes packet)
{
    answer.clear();
    OBEX_CustomDataFeed(obex, packet.data(), static_cast<int>(packet.size()));
    while (OBEX_Work(obex) > 0)
        continue;
    return answer;
}

void OpenObexServer::OnEvent(obex_t* self, obex_object_t* object, int, int event, int command, int)
{
    OpenObexServer& server = *static_cast<OpenObexServer*>(OBEX_GetUserData(self));
    if (event == OBEX_EV_REQHINT)
        OBEX_ObjectSetRsp(object, OBEX_RSP_CONTINUE, OBEX_RSP_SUCCESS);
    else if (event == OBEX_EV_REQ)
        server.OnRequest(object, command);
    else if (event == OBEX_EV_STREAMEMPTY)
        server.FeedBody(object);
    else if (event == OBEX_EV_PARSEERR || event == OBEX_EV_LINKERR || event == OBEX_EV_UNEXPECTED)
        server.answer.clear();
}

void OpenObexServer::OnRequest(obex_object_t* object, int command)
{
    std::string name;
    std::optional<Bytes> body;
    Bytes target;
    uint32_t connection = 0;
    uint8_t header = 0;
    obex_headerdata_t value{};
    uint32_t size = 0;
    while (OBEX_ObjectGetNextHeader(obex, object, &header, &value, &size) > 0)
    {
        if (header == nameHeader)
        {
            for (uint32_t i = 1; i + 2 < size; i += 2)
                name += static_cast<char>(value.bs[i]);
        }
        else if (header == bodyHeader)
            body.emplace(value.bs, value.bs + size);
        else if (header == targetHeader)
            target.assign(value.bs, value.bs + size);
        else if (header == connectionHeader)
            connection = value.bq4;
    }
    if (command == OBEX_CMD_CONNECT)
    {
        folder.clear();
        AddNumber(object, connectionHeader, connectionId);
        OBEX_ObjectAddHeader(obex, object, whoHeader, {.bs = target.data()}, static_cast<uint32_t>(target.size()), 0);
    }
    else if (connection != connectionId)
        Refuse(object, OBEX_RSP_SERVICE_UNAVAILABLE);
    else if (command == OBEX_CMD_SETPATH)
        SetPath(object, name);
    else if (command == OBEX_CMD_GET)
        Get(object, folder + name);
    else if (command == OBEX_CMD_PUT && body)
        files[folder + name] = *body;
    else if (command == OBEX_CMD_PUT && files.erase(folder + name) == 0)
        Refuse(object, OBEX_RSP_NOT_FOUND);
}

void OpenObexServer::SetPath(obex_object_t* object, const std::string& name)
{
    uint8_t* flags = nullptr;
    if (OBEX_ObjectGetNonHdrData(object, &flags) != 2)
        return Refuse(object, OBEX_RSP_BAD_REQUEST);
    const bool create = (flags[0] & 2) == 0;
    const std::string path = name.empty() ? "" : folder + name + '/';
    if (create)
        folders.insert(path);
    if (!folders.contains(path))
        return Refuse(object, OBEX_RSP_NOT_FOUND);
    folder = path;
}

// A streamed body goes out in Body headers, and an End of Body without data after them.
void OpenObexServer::Get(obex_object_t* object, const std::string& path)
{
    const auto file = files.find(path);
    if (file == files.end())
        return Refuse(object, OBEX_RSP_NOT_FOUND);
    AddNumber(object, lengthHeader, static_cast<uint32_t>(file->second.size()));
    outgoing = &file->second;
    OBEX_ObjectAddHeader(obex, object, bodyHeader, {.bs = nullptr}, 0, OBEX_FL_STREAM_START);
}

void OpenObexServer::FeedBody(obex_object_t* object)
{
    const Bytes nothing;
    const Bytes& data = outgoing == nullptr ? nothing : *outgoing;
    OBEX_ObjectAddHeader(obex, object, bodyHeader, {.bs = data.data()}, static_cast<uint32_t>(data.size()),
                         outgoing == nullptr ? OBEX_FL_STREAM_DATAEND : OBEX_FL_STREAM_DATA);
    outgoing = nullptr;
}

void OpenObexServer::AddNumber(obex_object_t* object, uint8_t header, uint32_t number)
{
    OBEX_ObjectAddHeader(obex, object, header, {.bq4 = number}, 4, 0);
}

void OpenObexServer::Refuse(obex_object_t* object, uint8_t response) { OBEX_ObjectSetRsp(object, response, response); }

}  // namespace tandekor::test
