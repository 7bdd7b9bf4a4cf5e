#include "core/packet_buffer.h"

#include <algorithm>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

namespace
{

// What a host operation was given: the request; handle, capacity, time limit and last byte of the request area.
Bytes request;
Numbers numbers;
// And what it answers: its result, a response, and the length that it claims to have.
uint8_t result;
Bytes response;
uint16_t claimed;

uint8_t Exchange(PacketBuffer& buffer, uint8_t hostResult, const Bytes& hostResponse, int claimedLength)
{
    numbers.clear();
    result = hostResult, response = hostResponse, claimed = static_cast<uint16_t>(claimedLength);
    const auto played = [](ResourceContext handle, uint16_t requestLength, uint8_t* sent, uint16_t* responseLength,
                           uint8_t* area, uint32_t timeoutMs)
    {
        numbers = {handle, *responseLength, timeoutMs, sent[4095]};
        request.assign(sent, sent + requestLength);
        std::copy(response.begin(), response.end(), area);
        *responseLength = claimed;
        return result;
    };
    return buffer.Exchange(played, 77, 68535);
}

}  // namespace

TEST(PacketBufferTest, SendsAppendsInLittleEndianOrderAndNothingOnceOneDoesNotFit)
{
    PacketBuffer buffer;
    buffer.AddByte(0x01);
    buffer.AddWord(0x2345);
    buffer.AddDword(0x6789ABCD);
    buffer.AddBytes("xyz", 3);
    buffer.AddBytes(nullptr, 0);
    EXPECT_EQ(Exchange(buffer, 1, {}, 0), 1);
    EXPECT_EQ(ToHex(request), "01 45 23 CD AB 89 67 78 79 7A");
    EXPECT_EQ(numbers, (Numbers{77, 4096, 68535, 0xAA}));

    const Bytes source(4096, 0x11);
    for (const size_t size : {1, 2, 4, 4096})
    {
        for (const size_t tooMany : {0, 1})
        {
            SCOPED_TRACE(std::to_string(size) + (tooMany ? " after too many" : ""));
            const size_t before = 4096 - size + tooMany;
            buffer.Reset();
            buffer.AddBytes(source.data(), before);
            size == 1   ? buffer.AddByte(0x22)
            : size == 2 ? buffer.AddWord(0x2222)
            : size == 4 ? buffer.AddDword(0x22222222)
                        : buffer.AddBytes(source.data(), size);
            EXPECT_EQ(buffer.RequestLength(), tooMany ? before : 4096);
            EXPECT_EQ(Exchange(buffer, 1, {}, 4096), tooMany ? 0 : 1);
            EXPECT_EQ(numbers.empty(), tooMany == 1);
        }
        EXPECT_EQ(buffer.ResponseLength(), 0) << "nothing of an earlier reply is left to be read";
    }
    buffer.Reset();
    EXPECT_EQ(Exchange(buffer, 1, {}, 0), 1) << "the next request is sent again";
}

TEST(PacketBufferTest, TakesTheResponseLengthWhateverTheResultButNoMoreThanTheArea)
{
    PacketBuffer buffer;
    for (const auto& [claim, taken] : {std::pair(0, 0), {5, 5}, {4096, 4096}, {4097, 4096}, {65535, 4096}})
    {
        for (const uint8_t hostResult : Bytes{0, 1})
        {
            buffer.Reset();
            EXPECT_EQ(Exchange(buffer, hostResult, {}, claim), hostResult);
            EXPECT_EQ(buffer.ResponseLength(), taken);
        }
    }
}

TEST(PacketBufferTest, PopsTakeFieldsFromTheEndOrChangeNothing)
{
    PacketBuffer buffer;
    uint8_t byte = 0;
    uint16_t word = 0;
    uint32_t dword = 0;
    GuardedBuffer bytes(3);
    Exchange(buffer, 1, Hex("01 02 0A 0B 0C 78 56 34 92 03 04 05"), 12);
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x05 && buffer.PopWord(&word) && buffer.PopDword(&dword));
    EXPECT_TRUE(buffer.PopBytes(bytes.Data(), 3));
    EXPECT_FALSE(buffer.PopDword(&dword) || buffer.PopBytes(bytes.Data(), 3));
    EXPECT_TRUE(buffer.PopByte(&byte) && byte == 0x02 && !buffer.PopWord(&word));
    EXPECT_TRUE(buffer.PopByte(&byte) && !buffer.PopByte(&byte) && buffer.PopBytes(bytes.Data(), 0));
    EXPECT_TRUE(byte == 0x01 && word == 0x0403 && dword == 0x92345678);
    EXPECT_EQ(ToHex(bytes.Content()), "0A 0B 0C");
    EXPECT_TRUE(bytes.GuardsIntact());

    // A reset refills the response and leaves the place that pops have come to.
    Exchange(buffer, 1, Hex("01 02 03 04"), 4);
    buffer.Reset();
    EXPECT_TRUE(buffer.PopDword(&dword) && dword == 0xBBBBBBBB && !buffer.PopByte(&byte));
}

}  // namespace tandekor::test
