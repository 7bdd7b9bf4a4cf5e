#include "core/packet_buffer.h"

#include <algorithm>
#include <functional>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

namespace
{

// A host operation that keeps what it was given and answers as it was told.
Bytes request, response;
Numbers numbers;  // handle, capacity, time limit, last byte of the request area
uint8_t result;
uint16_t claimedLength;

uint8_t PlayedExchange(ResourceContext handle, uint16_t requestLength, uint8_t* sent, uint16_t* responseLength,
                       uint8_t* area, uint32_t timeoutMs)
{
    numbers = {handle, *responseLength, timeoutMs, sent[4095]};
    request.assign(sent, sent + requestLength);
    std::copy(response.begin(), response.end(), area);
    *responseLength = claimedLength;
    return result;
}

class PacketBufferTest : public ::testing::Test
{
protected:
    uint8_t Exchange(uint8_t hostResult, const Bytes& hostResponse, int claimed)
    {
        numbers.clear();
        result = hostResult;
        response = hostResponse;
        claimedLength = static_cast<uint16_t>(claimed);
        return buffer.Exchange(PlayedExchange, 77, 68535);
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
    EXPECT_EQ(Exchange(1, {}, 0), 1);
    EXPECT_EQ(ToHex(request), "01 45 23 CD AB 89 67 78 79 7A");
    EXPECT_EQ(numbers, (Numbers{77, 4096, 68535, 0xAA}));
}

TEST_F(PacketBufferTest, AppendThatDoesNotFitStoresNothingAndTheRequestIsNotSent)
{
    const Bytes source(4096, 0x11);
    const std::pair<size_t, std::function<void()>> appends[] = {{1, [&] { buffer.AddByte(0x22); }},
                                                                {2, [&] { buffer.AddWord(0x2222); }},
                                                                {4, [&] { buffer.AddDword(0x22222222); }},
                                                                {4096, [&] { buffer.AddBytes(source.data(), 4096); }}};
    for (const auto& [size, append] : appends)
    {
        for (const size_t tooMany : {0U, 1U})
        {
            const size_t before = 4096 - size + tooMany;
            buffer.Reset();
            buffer.AddBytes(source.data(), before);
            append();
            EXPECT_EQ(buffer.RequestLength(), tooMany ? before : 4096) << size;
            EXPECT_EQ(Exchange(1, {}, 4096), tooMany ? 0 : 1) << size;
            EXPECT_EQ(numbers.empty(), tooMany == 1) << size;
        }
        EXPECT_EQ(buffer.ResponseLength(), 0) << "nothing of an earlier reply is left to be read";
    }
    buffer.Reset();
    EXPECT_EQ(Exchange(1, {}, 0), 1) << "the next request is sent again";
}

TEST_F(PacketBufferTest, TakesTheResponseLengthWhateverTheResultButNoMoreThanTheArea)
{
    for (const int claimed : {0, 5, 4096, 4097, 65535})
    {
        for (const uint8_t hostResult : Bytes{0, 1})
        {
            buffer.Reset();
            EXPECT_EQ(Exchange(hostResult, {}, claimed), hostResult);
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
    Exchange(1, Hex("01 02 0A 0B 0C 78 56 34 92 03 04 05"), 12);
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x05);
    EXPECT_TRUE(buffer.PopWord(&word) && word == 0x0403);
    EXPECT_TRUE(buffer.PopDword(&dword) && dword == 0x92345678);
    EXPECT_TRUE(buffer.PopBytes(bytes.Data(), 3));
    EXPECT_FALSE(buffer.PopDword(&dword) || buffer.PopBytes(bytes.Data(), 3));
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
    Exchange(1, Hex("01 02 03 04"), 4);
    buffer.Reset();
    EXPECT_TRUE(buffer.PopDword(&dword) && dword == 0xBBBBBBBB);
    EXPECT_FALSE(buffer.PopByte(&byte));
}

}  // namespace tandekor::test
