// What calls cost, each beside its floor: the same host operations called directly, with the bytes laid ready, and with
// the fills of the buffers and the formatting of the log's lines, each done once, that the behaviour demands. A floor
// that does not ask the same of the host library, byte by byte, is an error, and so is an allocation in a call.
// scripts/measure-speed runs it and shows the ratios.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "allocations.h"
#include "host.h"
#include "platform/qmsl.h"
#include "tandekor/tandekor.h"

namespace
{

constexpr ResourceContext handle = 1;
constexpr size_t areaSize = 4096;

void Log(const char* text) { QLIB_AddUserMessageToTextLog(handle, 2, text, 0); }

// --- calls beside their floors

using Exchange = decltype(QLIB_SendRAW)*;

// The two areas of a channel, filled and with a request in front.
struct Areas
{
    template <size_t size>
    uint16_t Send(Exchange operation, const std::array<uint8_t, size>& bytes)
    {
        std::memset(request, 0xAA, sizeof request);
        std::memset(response, 0xBB, sizeof response);
        std::memcpy(request, bytes.data(), size);
        uint16_t length = sizeof response;
        operation(handle, size, request, &length, response, 3000);
        return length;
    }

    uint8_t request[areaSize];
    uint8_t response[areaSize];
};
Areas areas;

template <size_t size>
constexpr std::array<uint8_t, size> Sent(const char (&text)[size])
{
    std::array<uint8_t, size> bytes{};
    for (size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<uint8_t>(text[i]);
    return bytes;
}

uint8_t QueryByTheLibrary()
{
    uint8_t value = 0;
    uint16_t status = 0;
    return TANDEKOR_AT_Get_CVIB(handle, &value, &status) == 1 ? value : uint8_t{0};
}

uint8_t QueryFloor()
{
    char text[64];
    std::snprintf(text, sizeof text, "%s()", "TANDEKOR_AT_Get_CVIB");
    Log(text);
    const uint16_t length = areas.Send(QLIB_SendRAW, Sent("AT+CVIB?\r"));
    return areas.response[length - 1] == 'K' ? static_cast<uint8_t>(areas.response[18] - '0') : uint8_t{0};
}

constexpr uint32_t mostPairs = 1366;
uint32_t first[mostPairs], second[mostPairs];

uint32_t ListByTheLibrary()
{
    uint32_t count = 0;
    uint16_t status = 0;
    TANDEKOR_AT_Get_CGACT(handle, first, second, &count, &status);
    return count;
}

uint32_t ListFloor()
{
    char text[64];
    std::snprintf(text, sizeof text, "%s()", "TANDEKOR_AT_Get_CGACT");
    Log(text);
    const uint16_t length = areas.Send(QLIB_SendRAW, Sent("AT+CGACT?\r"));
    const uint8_t* byte = areas.response + 16;
    const uint8_t* const end = areas.response + length;
    const auto isDigit = [](uint8_t character) { return character >= '0' && character <= '9'; };
    const auto number = [&]
    {
        uint32_t value = 0;
        while (byte < end && isDigit(*byte))
            value = value * 10 + (*byte++ - uint32_t{'0'});
        return value;
    };
    uint32_t count = 0;
    for (;; ++count)
    {
        while (byte < end && !isDigit(*byte) && *byte != 'O')
            ++byte;
        if (byte == end || *byte == 'O')
            return count;
        first[count] = number();
        ++byte;
        second[count] = number();
    }
}

uint8_t RequestByTheLibrary() { return TANDEKOR_FTM_SET_LCD_CONTRAST(handle, 5); }

uint8_t RequestFloor()
{
    char text[128];
    text[0] = '\t';
    const int size
        = std::snprintf(text + 1, sizeof text - 1, "%s(iLcdContrastLevel = %d)", "TANDEKOR_FTM_SET_LCD_CONTRAST", 5);
    Log(text + 1);
    areas.Send(QLIB_SendSync, std::array<uint8_t, 11>{0x4B, 0x0B, 0x00, 0x80, 24, 0, 1, 0, 12, 0, 5});
    std::strcpy(text + 1 + size, " - Completed successfully\n");
    Log(text);
    return areas.response[10] == 0 && areas.response[11] == 0;
}

uint8_t ProcedureByTheLibrary() { return TANDEKOR_AFC_Deviation(handle, 1, 2, 3, 1, 5, 6); }

// Ten calls of the host library and two lines for each of the last seven. With the lines laid ready, those without
// a value in them are not formatted.
template <bool linesReady>
uint8_t ProcedureFloor()
{
    char text[128];
    const auto start = [&](const char* ready, const char* name)
    {
        if (!linesReady)
            std::snprintf(text, sizeof text, "\t\t%s() start", name);
        Log(linesReady ? ready : text);
    };
    const auto result = [&](const char* format, auto... values)
    {
        if (!linesReady || sizeof...(values) > 0)
            std::snprintf(text, sizeof text, format, values...);
        Log(linesReady && sizeof...(values) == 0 ? format : text);
    };
    QLIB_IsPhoneConnected(handle);
    QLIB_IsPhoneConnected(handle);
    QLIB_IsPhoneConnected(handle);
    start("\t\tQLIB_FTM_SET_MODE() start", "QLIB_FTM_SET_MODE");
    QLIB_FTM_SET_MODE(handle, 1);
    result("\tQLIB_FTM_SET_MODE(eNewMode = %d) - Completed successfully\n", 1);
    start("\t\tQLIB_FTM_SET_CHAN() start", "QLIB_FTM_SET_CHAN");
    QLIB_FTM_SET_CHAN(handle, 2);
    result("\tQLIB_FTM_SET_CHAN(iChannel = %d) - Completed successfully\n", 2);
    start("\t\tQLIB_FTM_SET_TX_ON() start", "QLIB_FTM_SET_TX_ON");
    QLIB_FTM_SET_TX_ON(handle);
    result("\tQLIB_FTM_SET_TX_ON() - Completed successfully\n");
    start("\t\tQLIB_FTM_SET_PA_RANGE() start", "QLIB_FTM_SET_PA_RANGE");
    QLIB_FTM_SET_PA_RANGE(handle, 3);
    result("\tQLIB_FTM_SET_PA_RANGE(iPArange = %d) - Completed successfully\n", 3);
    start("\t\tQLIB_FTM_CDMA_CW_WAVEFORM() start", "QLIB_FTM_CDMA_CW_WAVEFORM");
    QLIB_FTM_CDMA_CW_WAVEFORM(handle, 1);
    result("\tQLIB_FTM_CDMA_CW_WAVEFORM(bSelectCW = %c) - Completed successfully\n", 1);
    start("\t\tQLIB_FTM_SET_PDM() start", "QLIB_FTM_SET_PDM");
    QLIB_FTM_SET_PDM(handle, 5, 6);
    result("\tQLIB_FTM_SET_PDM(iPDMtype = %d, iPDMvalue = %d) - Completed successfully\n", 5, 6);
    start("\t\tQLIB_FTM_SET_TX_OFF() start", "QLIB_FTM_SET_TX_OFF");
    QLIB_FTM_SET_TX_OFF(handle);
    result("\tQLIB_FTM_SET_TX_OFF() - Completed successfully\n");
    return 1;
}

// Connecting makes the buffers of three channels and fills them.
uint8_t ConnectByTheLibrary()
{
    const ResourceContext connected = TANDEKOR_ConnectServer(4);
    TANDEKOR_DisconnectServer(connected);
    return connected != 0;
}

uint8_t ConnectFloor()
{
    char version[512] = {};
    QLIB_GetLibraryVersion(version);
    const ResourceContext connected = QLIB_ConnectServer(4);
    std::unique_ptr<Areas> channels[3];
    for (auto& channel : channels)
    {
        channel = std::make_unique_for_overwrite<Areas>();
        std::memset(channel->request, 0xAA, sizeof channel->request);
        std::memset(channel->response, 0xBB, sizeof channel->response);
    }
    benchmark::DoNotOptimize(channels);
    QLIB_DisconnectServer(connected);
    return connected != 0;
}

uint8_t UnknownByTheLibrary()
{
    uint8_t value = 0;
    uint16_t status = 0;
    return TANDEKOR_AT_Get_CVIB(0xDEAD, &value, &status) == 0;
}

[[gnu::noinline]] uint8_t NothingFound(ResourceContext unknown, uint8_t* value, uint16_t* status)
{
    benchmark::DoNotOptimize(value);
    benchmark::DoNotOptimize(status);
    return unknown != 0xDEAD;
}

uint8_t UnknownFloor()
{
    uint8_t value = 0;
    uint16_t status = 0;
    return NothingFound(0xDEAD, &value, &status) == 0;
}

// --- the runs

std::string CgactReply()
{
    std::string reply = "AT+CGACT?\r";
    while (reply.size() < areaSize - 32)
        reply += "\r\n+CGACT: " + std::to_string(reply.size()) + ",1";
    reply.append(areaSize - 4 - reply.size(), ' ');
    return reply + "\r\nOK";
}

const std::string queryReply = "AT+CVIB?\r\r\n+CVIB: 7\r\n\r\nOK";
const std::string listReply = CgactReply();
const std::string requestReply = {0x4B, 0x0B, 0, '\x80', 24, 0, 1, 0, 12, 0, 0, 0};

template <typename Function>
std::string AskedBy(Function function)
{
    std::string record;
    host::RecordIn(&record);
    const auto result = static_cast<uint32_t>(function());
    host::RecordIn(nullptr);
    return record + std::to_string(result);
}

// Measures the first function, of which the second is the other of the pair.
template <typename Function>
void Run(benchmark::State& state, Function measured, Function other, const std::string& reply, size_t connections)
{
    TANDEKOR_DisconnectAllServers();
    for (size_t i = connections; i > 0; --i)  // the one that is used is the last
    {
        host::ConnectAs(static_cast<ResourceContext>(i));
        TANDEKOR_ConnectServer(4);
    }
    host::DeliverOn(reply);
    const std::string asked = AskedBy(measured);
    if (asked != AskedBy(other) || asked.back() == '0')
        state.SkipWithError("the floor is another call");
    uint64_t allocated = CountAllocations();
    measured();
    allocated = CountAllocations() - allocated;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(measured());
    state.counters["allocations"] = static_cast<double>(allocated);
    if (connections != 0 && allocated != 0)
        state.SkipWithError("allocates");
}

template <typename Function>
void Pair(const std::string& name, Function library, Function floor, const std::string& reply, size_t connections = 1)
{
    benchmark::RegisterBenchmark((name + "/library").c_str(),
                                 [=](benchmark::State& state) { Run(state, library, floor, reply, connections); });
    benchmark::RegisterBenchmark((name + "/floor").c_str(),
                                 [=](benchmark::State& state) { Run(state, floor, library, reply, connections); });
}

}  // namespace

int main(int argc, char** argv)
{
    Pair("unknown handle", UnknownByTheLibrary, UnknownFloor, queryReply);
    Pair("AT query", QueryByTheLibrary, QueryFloor, queryReply);
    Pair("AT query, 16 connections", QueryByTheLibrary, QueryFloor, queryReply, 16);
    Pair("AT query, 1000 connections", QueryByTheLibrary, QueryFloor, queryReply, 1000);
    Pair("AT list of 4096 bytes", ListByTheLibrary, ListFloor, listReply);
    Pair("factory request", RequestByTheLibrary, RequestFloor, requestReply);
    Pair("procedure of ten steps", ProcedureByTheLibrary, ProcedureFloor<false>, requestReply);
    Pair("the same, most lines ready", ProcedureByTheLibrary, ProcedureFloor<true>, requestReply);
    Pair("connect and disconnect", ConnectByTheLibrary, ConnectFloor, requestReply, 0);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
