#include "core/packet_buffer.h"

#include <algorithm>
#include <functional>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

namespace
{

// A host operation that keeps what it was given and answers as it was told.
struct PlayedHost
{
    std::vector<uint32_t> numbers;  // handle, capacity, time limit, last byte of the request area
    Bytes request, response;
    uint8_t result = 1;
    uint16_t claimedLength = 4096;
};
PlayedHost host;

uint8_t PlayedExchange(ResourceContext handle, uint16_t requestLength, uint8_t* request, uint16_t* responseLength,
                       uint8_t* response, uint32_t timeoutMs)
{
    host.numbers = {handle, *responseLength, timeoutMs, request[4095]};
    host.request.assign(request, request + requestLength);
    std::copy(host.response.begin(), host.response.end(), response);
    *responseLength = host.claimedLength;
    return host.result;
}

class PacketBufferTest : public ::testing::Test
{
protected:
    PacketBufferTest() { host = {}; }

    uint8_t Exchange() { return buffer.Exchange(PlayedExchange, 77, 3000); }

    void Receive(const std::string& response)
    {
        host.response = Hex(response);
        host.claimedLength = static_cast<uint16_t>(host.response.size());
        Exchange();
    }

    PacketBuffer buffer;
};

}  // namespace

TEST_F(PacketBufferTest, SendsAppendsInLittleEndianOrder)
{
    buffer.AddByte(0x01);
    buffer.AddWord(0x2345);
    buffer.AddDword(0x6789ABCD);
    buffer.AddBytes("xyz", 3);
    buffer.AddBytes(nullptr, 0);
    EXPECT_EQ(buffer.Exchange(PlayedExchange, 77, 68535), 1);
    EXPECT_EQ(ToHex(host.request), "01 45 23 CD AB 89 67 78 79 7A");
    EXPECT_EQ(host.numbers, (std::vector<uint32_t>{77, 4096, 68535, 0xAA}));
}

TEST_F(PacketBufferTest, AppendThatDoesNotFitStoresNothingAndTheRequestIsNotSent)
{
    const Bytes source(4096, 0x11);
    const std::function<void()> appends[]
        = {[&] { buffer.AddByte(0x22); }, [&] { buffer.AddWord(0x2222); }, [&] { buffer.AddDword(0x22222222); },
           [&] { buffer.AddBytes(source.data(), 4096); }};
    const size_t sizes[] = {1, 2, 4, 4096};
    for (size_t i = 0; i < std::size(sizes); ++i)
    {
        for (const size_t tooMany : {0U, 1U})
        {
            const size_t before = 4096 - sizes[i] + tooMany;
            buffer.Reset();
            buffer.AddBytes(source.data(), before);
            appends[i]();
            host.numbers.clear();
            EXPECT_EQ(buffer.RequestLength(), tooMany ? before : 4096) << sizes[i];
            EXPECT_EQ(Exchange(), tooMany ? 0 : 1) << sizes[i];
            EXPECT_EQ(host.numbers.empty(), tooMany == 1) << sizes[i];
        }
        EXPECT_EQ(buffer.ResponseLength(), 0) << "nothing of an earlier reply is left to be read";
    }
    buffer.Reset();
    EXPECT_EQ(Exchange(), 1) << "the next request is sent again";
}

TEST_F(PacketBufferTest, TakesTheResponseLengthWhateverTheResultButNoMoreThanTheArea)
{
    for (const uint8_t result : Bytes{0, 1})
    {
        host.result = result;
        for (const int claimed : {0, 5, 4096, 4097, 65535})
        {
            buffer.Reset();
            host.claimedLength = static_cast<uint16_t>(claimed);
            EXPECT_EQ(Exchange(), result);
            EXPECT_EQ(buffer.ResponseLength(), std::min(claimed, 4096));
        }
    }
}

TEST_F(PacketBufferTest, PopsTakeFieldsFromTheEndOrChangeNothing)
{
    uint8_t byte = 0;
    uint16_t word = 0;
    uint32_t dword = 0;
    GuardedBuffer bytes(3);
    Receive("01 02 0A 0B 0C 78 56 34 92 03 04 05");
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x05);
    EXPECT_TRUE(buffer.PopWord(&word) && word == 0x0403);
    EXPECT_TRUE(buffer.PopDword(&dword) && dword == 0x92345678);
    EXPECT_TRUE(buffer.PopBytes(bytes.Data(), 3));
    EXPECT_FALSE(buffer.PopDword(&dword));
    EXPECT_FALSE(buffer.PopBytes(bytes.Data(), 3));
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x02);
    EXPECT_FALSE(buffer.PopWord(&word));
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x01);
    EXPECT_FALSE(buffer.PopByte(&byte));
    EXPECT_TRUE(buffer.PopBytes(bytes.Data(), 0));
    EXPECT_TRUE(byte == 0x01 && word == 0x0403 && dword == 0x92345678);
    EXPECT_EQ(ToHex(bytes.Content()), "0A 0B 0C");
    EXPECT_TRUE(bytes.GuardsIntact());
}

TEST_F(PacketBufferTest, ResetRefillsTheResponseAndLeavesTheCursor)
{
    uint8_t byte = 0;
    uint32_t dword = 0;
    Receive("01 02 03 04");
    buffer.Reset();
    EXPECT_TRUE(buffer.PopDword(&dword) && dword == 0xBBBBBBBB);
    EXPECT_FALSE(buffer.PopByte(&byte));
}

}  // namespace tandekor::test
