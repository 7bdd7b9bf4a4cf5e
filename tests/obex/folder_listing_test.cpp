#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

class FolderListingTest : public ObexTest
{
protected:
    static inline const std::string first
        = "83 00 21 CB 00 00 00 05 42 00 19 78 2D 6F 62 65 78 2F 66 6F 6C 64 65 72 2D "
          "6C 69 73 74 69 6E 67 00";
    static inline const std::string next = "83 00 08 CB 00 00 00 05";
    static inline const std::string end = "A0 00 06 49 00 03";

    // The listing of the root, with these replies, into a buffer of this size.
    void ExpectListing(const std::vector<std::string>& replies, uint32_t capacity, uint16_t bits, uint32_t sizeAfter,
                       const std::string& content)
    {
        SCOPED_TRACE(::testing::PrintToString(replies));
        std::vector<Turn> turns;
        turns.reserve(replies.size());
        for (const std::string& reply : replies)
            turns.push_back({turns.empty() ? first : next, reply, 5000});
        GuardedBuffer listing(capacity);
        uint32_t size = capacity;
        ExpectSession(turns, 1, bits, [&] { return TANDEKOR_OBEX_ListDir(handle, "", listing.Data(), &size, &error); });
        EXPECT_EQ(size, sizeAfter);
        Bytes expected = Ascii(content);
        expected.resize(capacity, 0x55);
        EXPECT_EQ(ToHex(listing.Content()), ToHex(expected));
        EXPECT_TRUE(listing.GuardsIntact());
    }
};

}  // namespace

TEST_F(FolderListingTest, BodiesArePutTogether)
{
    ExpectListing({"90 00 0A 48 00 07 61 62 63 64", end}, 8, 0, 4, "abcd");
    ExpectListing({"90 00 0F CB 00 00 00 05 48 00 07 61 62 63 64", "90 00 08 48 00 05 65 66", "90 00 06 48 00 03",
                   "A0 00 0B CB 00 00 00 05 49 00 03"},
                  8, 0, 6, "abcdef");
    ExpectListing({end}, 8, 0, 0, "");
    ExpectListing({"90 00 08 48 00 05 61 62", "A0 00 08 49 00 05 63 64"}, 8, 0, 2, "ab");
    ExpectListing({"90 00 0A 48 00 04 61 62 63 64", end}, 8, 0, 4, "abcd");
    ExpectListing({"90 00 08 48 00 07 61 62 63 64", end}, 8, 0, 2, "ab");
}

TEST_F(FolderListingTest, LargerThanTheBufferIsTold)
{
    ExpectListing({"90 00 0D C3 00 00 00 04 48 00 05 61 62", "90 00 08 48 00 05 63 64", end}, 4, 0, 4, "abcd");
    ExpectListing({"90 00 0D C3 00 00 00 05 48 00 05 61 62"}, 4, 16, 5, "");
    ExpectListing({"90 00 0D C3 FF FF FF FF 48 00 05 61 62"}, 4, 16, 0xFFFFFFFF, "");
    // Unannounced, at once and later, or more than was announced.
    ExpectListing({"90 00 0B 48 00 08 61 62 63 64 65"}, 4, 16, 4, "abcd");
    ExpectListing({"90 00 0A 48 00 07 61 62 63 64", "90 00 08 48 00 05 65 66"}, 4, 16, 4, "abcd");
    ExpectListing({"90 00 10 C3 00 00 00 01 48 00 08 61 62 63 64 65"}, 4, 16, 1, "abcd");
    ExpectListing({"90 00 07 48 00 04 61"}, 0, 16, 0, "");
}

TEST_F(FolderListingTest, RepliesOfAnotherFormFail)
{
    const std::string good = "90 00 08 48 00 05 61 62";
    ExpectListing({"90 00 0D CB 00 00 00 06 48 00 05 61 62"}, 8, 8, 8, "");
    ExpectListing({good, "A0 00 0B CB 00 00 00 06 49 00 03"}, 8, 8, 8, "ab");
    ExpectListing({good, "A0 00 03"}, 8, 8, 8, "ab");
    ExpectListing({good, "A0 00 06 48 00 03"}, 8, 8, 8, "ab");
    ExpectListing({"90 00 06 49 00 03"}, 8, 8, 8, "");
    ExpectListing({"90 00 0D 48 00 05 61 62 C3 00 00 00 02", "A0"}, 16, 8, 16, "ab\xC3" + std::string("\0\0\0\2", 4));
    ExpectListing({"90 00 0D C3 00 00 00 04 42 00 05 61 62"}, 8, 8, 4, "");
    ExpectListing({"90 00 0D C3 00 00 00 04 48 00 05 61 62", "C1 00 03"}, 8, 8, 4, "ab");
    // Cut before the Body, and before the End of Body.
    ExpectListing({"90 00 0D CB 00 00 00 05"}, 8, 8, 8, "");
    ExpectListing({good, "A0 00 0B CB 00 00 00 05"}, 8, 8, 8, "ab");
}

}  // namespace tandekor::test
