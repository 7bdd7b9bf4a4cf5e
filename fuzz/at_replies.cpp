// Every AT function on any reply: with and without echo, of any claimed length, as success and as failure. Out-buffers
// are of exactly the size that the function asks for, so that the address sanitizer sees what goes beyond.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

#include "simulator/control.h"
#include "tandekor/tandekor.h"

namespace
{

// Calls a function with one number for all its numbers.
using TargetCall = std::function<void(ResourceContext handle, uint8_t number)>;

// An out-buffer as large as the function's number says.
constexpr size_t askedLength = SIZE_MAX;

class OutSizes
{
public:
    OutSizes(const std::vector<size_t>& allSizes, uint8_t askedNumber) : all(allSizes), number(askedNumber) {}

    size_t Next(size_t usual)
    {
        const size_t size = next < all.size() ? all[next++] : usual;
        return size == askedLength ? std::max<size_t>(number, 1) : size;
    }
    uint8_t Number() const { return number; }

private:
    const std::vector<size_t>& all;
    size_t next = 0;
    uint8_t number;
};

template <typename T>
struct Argument
{
    explicit Argument(OutSizes& sizes) : value(static_cast<T>(sizes.Number())) {}
    T Value() { return value; }

    T value;
};

// A text of digits, or one that stands for a parameter left out.
template <typename T>
struct Argument<const T*>
{
    explicit Argument(OutSizes& sizes) : text(sizes.Number() % 2 == 0 ? "5551234" : "-") {}
    const T* Value() { return reinterpret_cast<const T*>(text); }

    const char* text;
};

template <typename T>
struct Argument<T*>
{
    explicit Argument(OutSizes& sizes) : buffer(std::make_unique_for_overwrite<uint8_t[]>(sizes.Next(sizeof(T)))) {}
    T* Value() { return reinterpret_cast<T*>(buffer.get()); }

    std::unique_ptr<uint8_t[]> buffer;
};

// Bytes of the out-arguments in their order, as far as they are more than one value.
template <typename... Parameters>
TargetCall Target(uint8_t (*function)(ResourceContext, Parameters...), const std::vector<size_t>& outSizes = {})
{
    return [function, outSizes](ResourceContext handle, uint8_t number)
    {
        OutSizes sizes(outSizes, number);
        std::tuple<Argument<Parameters>...> arguments{Argument<Parameters>(sizes)...};
        std::apply([&](auto&... each) { function(handle, each.Value()...); }, arguments);
    };
}

constexpr size_t pairs = size_t{1366} * 4;

const std::vector<TargetCall> targets = {
    Target(TANDEKOR_AT_2_OBEX),
    Target(TANDEKOR_AT_CRMP),
    Target(TANDEKOR_AT_CHUP),
    Target(TANDEKOR_AT_Get_CMUT),
    Target(TANDEKOR_AT_Set_CMUT),
    Target(TANDEKOR_AT_Get_CALM),
    Target(TANDEKOR_AT_Set_CALM),
    Target(TANDEKOR_AT_Get_CRSL),
    Target(TANDEKOR_AT_Set_CRSL),
    Target(TANDEKOR_AT_Get_CLVL),
    Target(TANDEKOR_AT_Set_CLVL),
    Target(TANDEKOR_AT_Get_CTZU),
    Target(TANDEKOR_AT_Set_CTZU),
    Target(TANDEKOR_AT_Get_CTZR),
    Target(TANDEKOR_AT_Set_CTZR),
    Target(TANDEKOR_AT_Get_CMEC),
    Target(TANDEKOR_AT_Set_CMEC),
    Target(TANDEKOR_AT_Get_CLIP),
    Target(TANDEKOR_AT_Set_CLIP),
    Target(TANDEKOR_AT_Get_CAOC),
    Target(TANDEKOR_AT_Set_CAOC),
    Target(TANDEKOR_AT_Get_SLNG),
    Target(TANDEKOR_AT_Set_SLNG),
    Target(TANDEKOR_AT_Get_SNFS),
    Target(TANDEKOR_AT_Set_SNFS),
    Target(TANDEKOR_AT_Get_SNFV),
    Target(TANDEKOR_AT_Set_SNFV),
    Target(TANDEKOR_AT_Get_SICO),
    Target(TANDEKOR_AT_Set_SICO),
    Target(TANDEKOR_AT_Set_COLP),
    Target(TANDEKOR_AT_Set_SACM),
    Target(TANDEKOR_AT_Set_CREG),
    Target(TANDEKOR_AT_Set_CBST),
    Target(TANDEKOR_AT_Set_CMEE),
    Target(TANDEKOR_AT_Set_CR),
    Target(TANDEKOR_AT_Set_SMSO),
    Target(TANDEKOR_AT_CHLD),
    Target(TANDEKOR_AT_Set_SCKS),
    Target(TANDEKOR_AT_Get_COLP),
    Target(TANDEKOR_AT_Get_CSSN),
    Target(TANDEKOR_AT_Set_CSSN),
    Target(TANDEKOR_AT_Get_CGEREP),
    Target(TANDEKOR_AT_Set_CGEREP),
    Target(TANDEKOR_AT_Set_SRMP),
    Target(TANDEKOR_AT_Get_CGATT),
    Target(TANDEKOR_AT_Get_CGREG),
    Target(TANDEKOR_AT_Get_CR),
    Target(TANDEKOR_AT_Get_CMEE),
    Target(TANDEKOR_AT_Get_CCWA),
    Target(TANDEKOR_AT_Get_CPAS),
    Target(TANDEKOR_AT_Get_SCKA),
    Target(TANDEKOR_AT_Get_SCKS),
    Target(TANDEKOR_AT_Get_CVIB),
    Target(TANDEKOR_AT_Set_CVIB),
    Target(TANDEKOR_AT_Set_SKPD),
    Target(TANDEKOR_AT_Set_CGATT),
    Target(TANDEKOR_AT_Get_WS46),
    Target(TANDEKOR_AT_Set_WS46),
    Target(TANDEKOR_AT_Get_IPR),
    Target(TANDEKOR_AT_Set_IPR),
    Target(TANDEKOR_AT_Get_CCLK),
    Target(TANDEKOR_AT_Set_CCLK),
    Target(TANDEKOR_AT_Get_CMER),
    Target(TANDEKOR_AT_Set_CMER),
    Target(TANDEKOR_AT_Get_CACM),
    Target(TANDEKOR_AT_Get_CAMM),
    Target(TANDEKOR_AT_Get_SACM),
    Target(TANDEKOR_AT_Get_CBC),
    Target(TANDEKOR_AT_Get_CREG, {1, 1, 2, 2}),
    Target(TANDEKOR_AT_Get_CSQ),
    Target(TANDEKOR_AT_Get_CIND),
    Target(TANDEKOR_AT_Set_CIND),
    Target(TANDEKOR_AT_Get_CBST),
    Target(TANDEKOR_AT_Get_SIFS),
    Target(TANDEKOR_AT_Get_COPS, {4, 4, 16}),
    Target(TANDEKOR_AT_Set_COPS),
    Target(TANDEKOR_AT_Get_CGACT, {pairs, pairs}),
    Target(TANDEKOR_AT_Get_CEER, {4096}),
    Target(TANDEKOR_AT_Get_CGMI, {4096}),
    Target(TANDEKOR_AT_Get_CGMM, {4096}),
    Target(TANDEKOR_AT_Get_CGMR, {4096}),
    Target(TANDEKOR_AT_Get_CGSN, {15}),
    Target(TANDEKOR_AT_Get_GSN, {15}),
    Target(TANDEKOR_AT_Get_CIMI, {15}),
    Target(TANDEKOR_AT_Get_SCID, {20}),
    Target(TANDEKOR_AT_Set_CKPD),
    Target(TANDEKOR_AT_Set_CLCK),
    Target(TANDEKOR_AT_Set_SLCK),
    Target(TANDEKOR_AT_Get_CLCK, {1366, pairs}),
    Target(TANDEKOR_AT_Get_SLCK, {1366, pairs}),
    Target(TANDEKOR_AT_Get_CPIN, {16}),
    Target(TANDEKOR_AT_Set_CPIN),
    Target(TANDEKOR_AT_Set_CCFC),
    Target(TANDEKOR_AT_Get_CCFC, {600 * 4, 600 * 4, 600 * 12, 600 * 4, 600 * 4}),
    Target(TANDEKOR_AT_Set_CCWA, {pairs, pairs}),
    Target(TANDEKOR_AT_Get_CSCA, {50, 50}),
    Target(TANDEKOR_AT_Set_CSCA),
    Target(TANDEKOR_AT_Get_CSCB, {1, 4097, 4097}),
    Target(TANDEKOR_AT_Set_CSCB),
    Target(TANDEKOR_AT_Get_CSCS, {16}),
    Target(TANDEKOR_AT_Set_CSCS),
    Target(TANDEKOR_AT_CRSM, {4, 4, 4096}),
    Target(TANDEKOR_AT_CMGL, {512 * 4, 512 * 4, 512 * 4, 512 * 4, 512 * 1024}),
    Target(TANDEKOR_AT_SMGL, {512 * 4, 512 * 4, 512 * 4, 512 * 4, 512 * 1024}),
    Target(TANDEKOR_AT_Set_CMGR, {2, 1, askedLength}),
    Target(TANDEKOR_AT_Set_SMGR, {2, 1, askedLength}),
    Target(TANDEKOR_AT_CMSS),
};

// What an input chooses in front of the reply's bytes.
constexpr size_t targetAt = 0;
constexpr size_t flagsAt = 1;
constexpr size_t numberAt = 2;
constexpr size_t claimedAt = 3;  // two bytes
constexpr size_t replyAt = 5;

constexpr unsigned withEcho = 1;
constexpr unsigned claimsLength = 2;
constexpr unsigned fails = 4;

simulator::Reply ReplyOf(const uint8_t* data, size_t size)
{
    simulator::Reply reply;
    if ((data[flagsAt] & withEcho) != 0)
    {
        const simulator::Bytes& request = simulator::Exchanges().back().request;
        reply.bytes.assign(request.begin(), request.end() - 1);
    }
    reply.bytes.insert(reply.bytes.end(), data + replyAt, data + size);
    if ((data[flagsAt] & claimsLength) != 0)
        reply.claimedLength = static_cast<uint16_t>(data[claimedAt] | data[claimedAt + 1] << 8);
    reply.result = (data[flagsAt] & fails) != 0 ? 0 : 1;
    return reply;
}

ResourceContext Connect()
{
    TANDEKOR_DisconnectAllServers();
    simulator::Reset();
    return TANDEKOR_ConnectServer(1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static ResourceContext handle = Connect();
    if (size < replyAt)
        return 0;
    simulator::ForgetCalls();
    simulator::ForgetLog();
    simulator::BeforeCall("QLIB_SendRAW", 1, [&] { simulator::QueueReply(ReplyOf(data, size)); });
    targets[data[targetAt] % targets.size()](handle, data[numberAt]);
    if (simulator::Exchanges().empty())
        handle = Connect();  // the reply that nobody fetched is dropped
    return 0;
}
