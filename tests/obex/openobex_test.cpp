// The library against an implementation of the protocol that knows nothing of it: a file server on libopenobex, with
// files in memory and the standard operations alone.
#include <openobex/obex.h>

#include <map>
#include <set>

#include "tests/obex/obex_test.h"

// libopenobex loses 16 bytes for each put, which the leak sanitizer is not to count.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libopenobex";
}

namespace tandekor::test
{

namespace
{

constexpr uint32_t connectionId = 0xCB4A0102;  // of bytes that are headers' identifiers as well

class OpenObexTest : public ObexTest
{
protected:
    OpenObexTest() : obex(OBEX_Init(OBEX_TRANS_CUSTOM, OnEvent, 0))
    {
        obex_ctrans_t transport{};
        transport.connect = transport.disconnect = transport.listen = [](obex_t*, void*) { return 1; };
        transport.handleinput = [](obex_t*, void*, int) { return 1; };
        transport.write = [](obex_t*, void* all, uint8_t* bytes, int count)
        { return static_cast<Bytes*>(all)->insert(static_cast<Bytes*>(all)->end(), bytes, bytes + count), count; };
        transport.customdata = &answer;
        OBEX_SetUserData(obex, this);
        OBEX_RegisterCTransport(obex, &transport);
        OBEX_SetTransportMTU(obex, 4096, 4096);
        OBEX_ServerRegister(obex, nullptr, 0);
        simulator::ThePhone().obexMode = true;
        simulator::ThePhone().obexPeer = [this](Bytes packet)
        {
            answer.clear();
            OBEX_CustomDataFeed(obex, packet.data(), static_cast<int>(packet.size()));
            while (OBEX_Work(obex) > 0)
                continue;
            codes.insert(answer.empty() ? 0 : answer[0]);
            return answer;
        };
    }
    ~OpenObexTest() override
    {
        simulator::ThePhone().obexPeer = nullptr;
        OBEX_Cleanup(obex);
    }

    static void OnEvent(obex_t* self, obex_object_t* object, int, int event, int command, int)
    {
        OpenObexTest& server = *static_cast<OpenObexTest*>(OBEX_GetUserData(self));
        if (event == OBEX_EV_REQHINT)
            OBEX_ObjectSetRsp(object, OBEX_RSP_CONTINUE, OBEX_RSP_SUCCESS);
        else if (event == OBEX_EV_REQ)
            server.OnRequest(object, command);
        else if (event == OBEX_EV_STREAMEMPTY)
            server.FeedBody(object);
        else if (event == OBEX_EV_PARSEERR || event == OBEX_EV_LINKERR || event == OBEX_EV_UNEXPECTED)
            server.answer.clear();
    }

    void OnRequest(obex_object_t* object, int command)
    {
        std::map<uint8_t, Bytes> values;  // those that are bytes, by header
        std::string name;
        uint32_t connection = 0, size = 0;
        uint8_t header = 0;
        obex_headerdata_t value{};
        while (OBEX_ObjectGetNextHeader(obex, object, &header, &value, &size) > 0)
        {
            if (header == 0xCB)  // Connection Id
                connection = value.bq4;
            else if (header != 0xC3)  // Length
                values[header].assign(value.bs, value.bs + size);
        }
        for (size_t i = 1; i + 2 < values[0x01].size(); i += 2)  // Name
            name += static_cast<char>(values[0x01][i]);
        if (command == OBEX_CMD_CONNECT)
        {
            folder.clear();
            OBEX_ObjectAddHeader(obex, object, 0xCB, {.bq4 = connectionId}, 4, 0);
            const Bytes& target = values[0x46];
            OBEX_ObjectAddHeader(obex, object, 0x4A, {.bs = target.data()}, static_cast<uint32_t>(target.size()), 0);
        }
        else if (connection != connectionId)
            Refuse(object, OBEX_RSP_SERVICE_UNAVAILABLE);
        else if (command == OBEX_CMD_SETPATH)
            SetPath(object, name);
        else if (command == OBEX_CMD_GET)
            Get(object, folder + name);
        else if (command == OBEX_CMD_PUT && values.contains(0x48))  // Body
            files[folder + name] = values[0x48];
        else if (command == OBEX_CMD_PUT && files.erase(folder + name) == 0)
            Refuse(object, OBEX_RSP_NOT_FOUND);
    }

    void SetPath(obex_object_t* object, const std::string& name)
    {
        uint8_t* flags = nullptr;
        const bool whole = OBEX_ObjectGetNonHdrData(object, &flags) == 2;
        folder = name.empty() ? "" : folder + name + '/';
        if (whole && (flags[0] & 2) == 0)
            folders.insert(folder);
        if (!whole || !folders.contains(folder))
            Refuse(object, OBEX_RSP_NOT_FOUND);
    }

    // A streamed body goes out in Body headers, and an End of Body without data after them.
    void Get(obex_object_t* object, const std::string& path)
    {
        const auto file = files.find(path);
        if (file == files.end())
            return Refuse(object, OBEX_RSP_NOT_FOUND);
        outgoing = &file->second;
        OBEX_ObjectAddHeader(obex, object, 0xC3, {.bq4 = static_cast<uint32_t>(outgoing->size())}, 4, 0);
        OBEX_ObjectAddHeader(obex, object, 0x48, {.bs = nullptr}, 0, OBEX_FL_STREAM_START);
    }

    void FeedBody(obex_object_t* object)
    {
        static const Bytes nothing;
        const Bytes& data = outgoing == nullptr ? nothing : *outgoing;
        OBEX_ObjectAddHeader(obex, object, 0x48, {.bs = data.data()}, static_cast<uint32_t>(data.size()),
                             outgoing == nullptr ? OBEX_FL_STREAM_DATAEND : OBEX_FL_STREAM_DATA);
        outgoing = nullptr;
    }

    static void Refuse(obex_object_t* object, uint8_t response) { OBEX_ObjectSetRsp(object, response, response); }

    obex_t* obex;
    Bytes answer;
    std::map<std::string, Bytes> files;    // by path, as in "a/b/f"
    std::set<std::string> folders = {""};  // with a slash at the end
    std::string folder;                    // the one that the session is in
    const Bytes* outgoing = nullptr;       // the body that is still to be fed
    std::set<int> codes;                   // with which the server answered
};

}  // namespace

TEST_F(OpenObexTest, ServerTakesEveryPacketAndHasTheSameFiles)
{
    const std::string name = "f\xE4 .x";
    Outs(With(TANDEKOR_OBEX_CreateFolder, {"", "a"}));
    Outs(With(TANDEKOR_OBEX_CreateFolder, {"a\\", "b"}));
    EXPECT_EQ(folders, (std::set<std::string>{"", "a/", "a/b/"}));
    for (const size_t size : {0, 1, 4043, 4044, 4045, 4044 + 4082, 100'000})
    {
        SCOPED_TRACE(size);
        const Bytes content = Noise(size);
        WriteHostFile(name, content);
        Outs(With(TANDEKOR_OBEX_SendFile, {host, name, "\\a\\b\\"}));
        ASSERT_EQ(files.size(), 1U);
        EXPECT_TRUE(files["a/b/" + name] == content);
        std::filesystem::remove(HostPath(name));
        Outs(With(TANDEKOR_OBEX_GetFile, {"a\\b\\", name, host}));
        EXPECT_TRUE(HostContent(name) == content);
    }
    Outs(With(TANDEKOR_OBEX_DeleteFile, {"a\\b\\", name}));
    EXPECT_TRUE(files.empty());
    EXPECT_EQ(codes, (std::set<int>{0x90, 0xA0}));
}

}  // namespace tandekor::test
