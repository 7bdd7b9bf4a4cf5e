// A put and a get of 1 MiB over a host operation that only copies, by the library and, beside it, by libopenobex. All
// have a session for each file and packets of 4093 bytes. The library opens and closes the file of the host for each
// packet; libopenobex is shown with the same, and with a file that is held open. Once before it is measured each is run
// on a phone that looks at every byte. The library's run fails if it allocates.
#include <benchmark/benchmark.h>
#include <openobex/obex.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "allocations.h"
#include "platform/host_file.h"
#include "platform/qmsl.h"
#include "tandekor/tandekor.h"

namespace
{

using Bytes = std::vector<uint8_t>;

constexpr size_t fileSize = 1024 * 1024;
constexpr size_t packetSize = 4093;

// What the file holds: no two packets are alike.
const Bytes& Content()
{
    static const Bytes content = []
    {
        Bytes bytes(fileSize);
        for (size_t i = 0; i < fileSize; ++i)
            bytes[i] = static_cast<uint8_t>(i * 7 + (i >> 8) * 13 + (i >> 16));
        return bytes;
    }();
    return content;
}

// --- the phone: copies the request, and answers with bytes that are ready

class Phone
{
public:
    Phone()
    {
        for (size_t sent = 0; sent < fileSize;)
        {
            const size_t count = std::min(fileSize - sent, packetSize - 6);
            Bytes packet = {0x90, High(count + 6), Low(count + 6), 0x48, High(count + 3), Low(count + 3)};
            packet.insert(packet.end(), &Content()[sent], &Content()[sent] + count);
            getReplies.push_back(packet);
            sent += count;
        }
        getReplies.push_back({0xA0, 0, 6, 0x49, 0, 3});
    }

    // Gives the length of the response.
    size_t Answer(const uint8_t* packet, size_t size, uint8_t* response)
    {
        std::memcpy(request, packet, size);
        if (looks)
            KeepBody(size);
        const Bytes& answer = request[0] == 0x80   ? connected
                              : request[0] == 0x83 ? getReplies[part++ % getReplies.size()]
                              : request[0] == 0x02 ? more
                                                   : done;
        std::memcpy(response, answer.data(), answer.size());
        ++exchanges;
        return answer.size();
    }

    uint64_t exchanges = 0;
    bool looks = false;  // at what is put
    Bytes received;

private:
    static uint8_t High(size_t number) { return static_cast<uint8_t>(number >> 8); }
    static uint8_t Low(size_t number) { return static_cast<uint8_t>(number); }

    // The body headers of a put.
    void KeepBody(size_t size)
    {
        if ((request[0] & 0x7F) != 0x02)
            return;
        for (size_t at = 3; at + 3 <= size;)
        {
            const size_t length = request[at] >= 0xC0 ? 5 : request[at + 1] * size_t{256} + request[at + 2];
            if (length < 3 || at + length > size)
                return;
            if (request[at] == 0x48 || request[at] == 0x49)
                received.insert(received.end(), request + at + 3, request + at + length);
            at += length;
        }
    }

    uint8_t request[4096] = {};
    std::vector<Bytes> getReplies;
    size_t part = 0;
    const Bytes connected = {0xA0, 0, 12, 0x10, 0, 0x10, 0, 0xCB, 0, 0, 0, 1};
    const Bytes more = {0x90, 0, 3};
    const Bytes done = {0xA0, 0, 3};
};

Phone& ThePhone()
{
    static Phone phone;
    return phone;
}

// --- the same transfer by libopenobex

class OpenObexClient
{
public:
    explicit OpenObexClient(bool holdsOpen) : holdsFileOpen(holdsOpen), obex(OBEX_Init(OBEX_TRANS_CUSTOM, OnEvent, 0))
    {
        obex_ctrans_t transport{};
        transport.connect = transport.disconnect = [](obex_t*, void*) { return 1; };
        transport.write = Write;
        transport.handleinput = [](obex_t*, void*, int) { return 1; };
        OBEX_SetUserData(obex, this);
        OBEX_RegisterCTransport(obex, &transport);
        OBEX_SetTransportMTU(obex, packetSize, packetSize);
        OBEX_TransportConnect(obex, nullptr, 0);
    }
    ~OpenObexClient() { OBEX_Cleanup(obex); }
    OpenObexClient(const OpenObexClient&) = delete;
    OpenObexClient& operator=(const OpenObexClient&) = delete;

    // Puts the file, or gets it.
    bool Transfer(bool put, const char* path)
    {
        hostPath = path;
        moved = 0;
        if (holdsFileOpen)
            file = std::fopen(path, put ? "rb" : "wb");
        obex_object_t* connect = OBEX_ObjectNew(obex, OBEX_CMD_CONNECT);
        Add(connect, OBEX_HDR_TARGET, "0123456789ABCDEF", 16);
        const bool connected = Request(connect);
        obex_object_t* object = OBEX_ObjectNew(obex, put ? OBEX_CMD_PUT : OBEX_CMD_GET);
        Add(object, OBEX_HDR_CONNECTION, 1);
        Add(object, OBEX_HDR_NAME, "\0f\0\0", 4);
        if (put)
        {
            Add(object, OBEX_HDR_LENGTH, fileSize);
            Add(object, OBEX_HDR_TIME, "20240309T070502", 15);
            Add(object, OBEX_HDR_BODY, nullptr, 0, OBEX_FL_STREAM_START);
        }
        const bool transferred = Request(object, !put);
        obex_object_t* disconnect = OBEX_ObjectNew(obex, OBEX_CMD_DISCONNECT);
        Add(disconnect, OBEX_HDR_CONNECTION, 1);
        if (holdsFileOpen)
            std::fclose(file);
        return Request(disconnect) && connected && transferred;
    }

private:
    static int Write(obex_t* self, void*, uint8_t* bytes, int count)
    {
        uint8_t response[4096];
        const size_t size = ThePhone().Answer(bytes, static_cast<size_t>(count), response);
        OBEX_CustomDataFeed(self, response, static_cast<int>(size));
        return count;
    }

    static void OnEvent(obex_t* self, obex_object_t* object, int, int event, int, int response)
    {
        OpenObexClient& client = *static_cast<OpenObexClient*>(OBEX_GetUserData(self));
        if (event == OBEX_EV_REQDONE)
        {
            client.running = false;
            client.good = response == OBEX_RSP_SUCCESS;
        }
        else if (event == OBEX_EV_STREAMEMPTY)
        {
            const size_t count = client.ReadChunk();
            client.moved += count;
            OBEX_ObjectAddHeader(self, object, OBEX_HDR_BODY, {.bs = client.chunk}, static_cast<uint32_t>(count),
                                 client.moved == fileSize ? OBEX_FL_STREAM_DATAEND : OBEX_FL_STREAM_DATA);
        }
        else if (event == OBEX_EV_STREAMAVAIL)
        {
            const uint8_t* data = nullptr;
            const int count = OBEX_ObjectReadStream(self, object, &data);
            if (count <= 0)
                return;
            client.Write(data, static_cast<size_t>(count));
            client.moved += static_cast<size_t>(count);
        }
    }

    size_t ReadChunk()
    {
        return holdsFileOpen ? std::fread(chunk, 1, sizeof chunk, file)
                             : tandekor::platform::ReadFromFile(hostPath, moved, chunk, sizeof chunk);
    }

    void Write(const uint8_t* data, size_t count)
    {
        if (holdsFileOpen)
            std::fwrite(data, 1, count, file);
        else if (moved == 0)
            tandekor::platform::OverwriteFile(hostPath, data, count);
        else
            tandekor::platform::AppendToFile(hostPath, data, count);
    }

    bool Request(obex_object_t* object, bool takesStream = false)
    {
        running = true;
        OBEX_Request(obex, object);
        if (takesStream)
            OBEX_ObjectReadStream(obex, object, nullptr);
        while (running)
            OBEX_Work(obex);
        return good;
    }

    void Add(obex_object_t* object, uint8_t header, const void* bytes, size_t count, unsigned flags = 0)
    {
        OBEX_ObjectAddHeader(obex, object, header, {.bs = static_cast<const uint8_t*>(bytes)},
                             static_cast<uint32_t>(count), flags);
    }
    void Add(obex_object_t* object, uint8_t header, uint32_t number)
    {
        OBEX_ObjectAddHeader(obex, object, header, {.bq4 = number}, 4, 0);
    }

    bool holdsFileOpen;
    obex_t* obex;
    const char* hostPath = nullptr;
    std::FILE* file = nullptr;
    size_t moved = 0;
    bool running = false;
    bool good = false;
    uint8_t chunk[packetSize - 11] = {};  // what a packet takes after its first headers
};

// --- the runs

// A folder of the host with the file, that is gone at the end.
struct HostFolder
{
    HostFolder()
    {
        std::filesystem::create_directory(folder);
        Write(Content());
    }
    ~HostFolder() { std::filesystem::remove_all(folder); }
    HostFolder(const HostFolder&) = delete;
    HostFolder& operator=(const HostFolder&) = delete;

    void Write(const Bytes& bytes) const
    {
        std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    }
    Bytes Read() const
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const std::string folder = std::filesystem::temp_directory_path() / "tandekor-benchmark/";
    const std::string path = folder + "f";
};

// Whether every byte of the file arrives, at the phone or here.
template <typename Transfer>
bool Arrives(bool put, const HostFolder& host, Transfer transfer)
{
    Phone& phone = ThePhone();
    if (!put)
        host.Write({});
    phone.received.clear();
    phone.looks = true;
    const bool good = transfer(host);
    phone.looks = false;
    return good && (put ? phone.received : host.Read()) == Content();
}

template <typename Transfer>
void Run(benchmark::State& state, bool put, bool mayAllocate, Transfer transfer)
{
    const HostFolder host;
    bool good = Arrives(put, host, transfer);
    uint64_t allocated = 0;
    const uint64_t exchangesBefore = ThePhone().exchanges;
    for ([[maybe_unused]] auto _ : state)
    {
        const uint64_t before = CountAllocations();
        good = transfer(host) && good;
        allocated += CountAllocations() - before;
    }
    const auto files = static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<int64_t>(fileSize) * static_cast<int64_t>(state.iterations()));
    state.counters["exchanges"] = static_cast<double>(ThePhone().exchanges - exchangesBefore) / files;
    state.counters["allocations"] = static_cast<double>(allocated) / files;
    if (!good || !Arrives(put, host, transfer))
        state.SkipWithError("the file was not transferred");
    else if (!mayAllocate && allocated != 0)
        state.SkipWithError("allocates");
}

void ByTheLibrary(benchmark::State& state, bool put)
{
    const ResourceContext handle = TANDEKOR_ConnectServer(1);
    Run(state, put, false,
        [&](const HostFolder& host)
        {
            uint16_t error = 0;
            return (put ? TANDEKOR_OBEX_SendFile(handle, host.folder.c_str(), "f", "", &error)
                        : TANDEKOR_OBEX_GetFile(handle, "", "f", host.folder.c_str(), &error))
                       == 1
                   && error == 0;
        });
    TANDEKOR_DisconnectServer(handle);
}

void ByLibopenobex(benchmark::State& state, bool put, bool holdsFileOpen)
{
    OpenObexClient client(holdsFileOpen);
    Run(state, put, true, [&](const HostFolder& host) { return client.Transfer(put, host.path.c_str()); });
}

}  // namespace

// In the place of the simulator's two exchanges.
uint8_t QLIB_SendRAW(ResourceContext, uint16_t iRequestLength, uint8_t* piRequest, uint16_t* piResponseLength,
                     uint8_t* piResponse, uint32_t)
{
    *piResponseLength = static_cast<uint16_t>(ThePhone().Answer(piRequest, iRequestLength, piResponse));
    return 1;
}

uint8_t QLIB_SendSync(ResourceContext, uint16_t, uint8_t*, uint16_t*, uint8_t*, uint32_t) { return 0; }

int main(int argc, char** argv)
{
    for (const bool put : {true, false})
    {
        const std::string name = put ? "OBEX put of 1 MiB" : "OBEX get of 1 MiB";
        const auto add = [&](const char* by, auto run)
        { benchmark::RegisterBenchmark((name + '/' + by).c_str(), run)->Unit(benchmark::kMicrosecond); };
        add("library", [=](benchmark::State& state) { ByTheLibrary(state, put); });
        add("libopenobex", [=](benchmark::State& state) { ByLibopenobex(state, put, false); });
        add("libopenobex, file held open", [=](benchmark::State& state) { ByLibopenobex(state, put, true); });
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
