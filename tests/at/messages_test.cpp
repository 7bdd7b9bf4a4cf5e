#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

// Arrays for any reply.
constexpr size_t most = 512;
constexpr size_t rowSize = 1024;

template <typename List>
Call ListWith(List* list, int filter)
{
    return With(list, {filter, Out{most * 4}, Out{most * 4}, Out{most * 4}, Out{most * 4}, Out{most * rowSize}});
}

const Call cmgl = ListWith(TANDEKOR_AT_CMGL, 4);
const Call smgl = ListWith(TANDEKOR_AT_SMGL, 4);
const Call cmgr = With(TANDEKOR_AT_Set_CMGR, {7, 10, Out{2}, Out{1}, Out{10}});
const Call smgr = With(TANDEKOR_AT_Set_SMGR, {7, 200, Out{2}, Out{1}, Out{200}});
const Call cmgrOfNothing = With(TANDEKOR_AT_Set_CMGR, {7, 0});

const uint32_t noNumber = UINT32_MAX;
const std::vector<Bytes> nothing = {{}, {}, {}, {}, {}, U32(0)};

const std::vector<SentCommand> commands = {
    {cmgl, "AT+CMGL=4", "CMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_CMGL, 255), "AT+CMGL=0", "CMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_SMGL, 12), "AT^SMGL=1", "SMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_SMGL, 255), "AT^SMGL=0", "SMGL", 3000, nothing},
    {cmgr, "AT+CMGR=7", "Set_CMGR"},
    {With(TANDEKOR_AT_Set_CMGR, {10, 1}), "AT+CMGR=10", "Set_CMGR"},
    {With(TANDEKOR_AT_Set_CMGR, {100, 1}), "AT+CMGR=100", "Set_CMGR"},
    {With(TANDEKOR_AT_Set_CMGR, {101, 1}), "AT+CMGR=", "Set_CMGR"},
    {smgr, "AT^SMGR=7", "Set_SMGR"},
    {With(TANDEKOR_AT_Set_SMGR, {65535, 1}), "AT^SMGR=", "Set_SMGR"},
    {With(TANDEKOR_AT_CMSS, {12, "-"}), "AT+CMSS=1", "CMSS"},
    {With(TANDEKOR_AT_CMSS, {3, "+49172123456789"}), "AT+CMSS=3,\"+49172123456\"", "CMSS"},
};

// Rows of data, of which each but the last is filled up with what the caller had.
Bytes Rows(const std::vector<std::string>& texts)
{
    Bytes rows;
    for (const std::string& text : texts)
    {
        rows.resize((rows.size() + rowSize - 1) / rowSize * rowSize, 0x55);
        rows.insert(rows.end(), text.begin(), text.end());
    }
    return rows;
}

const std::vector<ReadReply> replies = {
    {cmgl,
     Reply("AT+CMGL=4", "+CMGL: 3,1,,25\r\n07914912"),
     {U32(3), U32(1), U32(noNumber), U32(25), Rows({"07914912"}), U32(1)}},
    {cmgl,
     "\r\n+CMGL: 1,0,34,7\r\nAB\r\n+CMGL: 12,3,,160\r\nCDE\r\n+CMGL: 99,x,,1\r\n\r\n+CMGL: 2,1,,y23\r\nF\r\n\r\nOK",
     {U32(1, 12, 99, 2), U32(0, 3, 'x' - '0', 1), U32(34, noNumber, noNumber, noNumber), U32(7, 160, 1, 7323),
      Rows({"AB", "CDE", std::string(rowSize, 'U'), "F"}), U32(4)}},
    {cmgl,
     "AT+CMGL=4\r\r\n+CMGL: 1,1,,9\r\n" + std::string(1030, 'A') + "\r\n+CMGL: 2,1,,8\r\nB"
         + Reply("", "+CMGL: 3,1,,7\r\n" + std::string(1025, 'C')),
     {U32(1, 2, 3), U32(1, 1, 1), U32(noNumber, noNumber, noNumber), U32(9, 8, 7),
      Rows({std::string(rowSize, 'A'), "B", std::string(rowSize, 'C')}), U32(3)}},
    {smgl,
     Reply("AT^SMGL=4", "^SMGL: 7,2,,18\r\nCAFE\r\n+CMGL: 1,1,,1\r\nXX"),
     {U32(7), U32(2), U32(noNumber), U32(18), Rows({"CAFE"}), U32(1)}},
    {cmgl, Reply("AT+CMGL=4", "^SMGL: 7,2,,18\r\nCAFE"), nothing},
    {cmgl, "AT+CMGL=4\r\r\n\r\nOK", nothing},
    {cmgl, "AT+CMGL=4\r\r\nERROR", nothing},
    {cmgl, "", nothing},
    {cmgl, "AT+CMGL=4\r\r\n+CMGL: 3,1,,", nothing},
    {cmgl, "AT+CMGL=4\r\r\n+CMGL: 3,1,,25\r\nAB", {U32(3), U32(1), U32(noNumber), U32(25), Rows({"AB"}), U32(1)}},

    // The text begins behind the place of a one-digit length, whatever the length.
    {smgr, Reply("AT^SMGR=7", "^SMGR: 1,,9\r\n0791491234"), {U16(9), {'1'}, Text("07914912")}},
    {cmgr, Reply("", "+CMGR: 2,,25\r\n0791491234"), {U16(25), {'2'}, Text("\n07914912")}},
    {cmgr, Reply("", "+CMGR: 1,,125\r\n0791491234"), {U16(125), {'1'}, Text("\r\n0791491")}},
    {cmgr, "\r\n+CMGR: 3,,1\r\nAB\r\n\r\nok", {U16(1), {'3'}, Text("")}},
    {cmgr, Reply("", "+CMGR: 3,,0\r\nAB"), {U16(0), {'3'}}},
    {cmgr, Reply("", "+CMGR: 3,,65545\r\nABCDEFGHIJ"), {U16(9), {'3'}, Text("45\r\nABCD")}},
    {cmgr, std::string("AB\0,,7", 6) + "\r\nK", {U16(0), {'B'}}},
    {cmgr, "AT+CMGR=7\r\r\n\r\nOK", {U16(0), {'5'}, Text("")}},
    {cmgr, ",,7\r\nABCDEFGHI OK", {U16(0), {'5'}, Text("")}},
    {smgr, "\r\n+CMGR: 1,,99\r\nOK", {U16(99), {'1'}, Text("\nOK")}},  // the text ends with the reply
    {cmgrOfNothing, Reply("", "+CMGR: 1,,9\r\nAB"), {U16(9), {'1'}}},
    {cmgr, "AT+CMGR=7\r\r\nERROR", {}},
    {cmgr, "AT+CMGR=7\r\r\n+CMGR: 1,,9\r\n0791", {}},
    {cmgr, "", {}},
    {With(TANDEKOR_AT_CMSS, {1, "-"}), Reply("", "+CMSS: 5"), {}},
};

}  // namespace

AtTable Messages()
{
    return {commands,
            replies,
            {Dense("\r", "\n+: 1,1,,1\r\n\r"), Dense("\r", "\n^: 1,1,,1\r\n\r"), Dense("\r\n+CMGR: 1,,4000\r\n", "x")}};
}

using AtMessagesTest = AtTest;

// A reply that comes with a failed exchange is read all the same.
TEST_F(AtMessagesTest, MessageOfAFailedExchangeIsRead)
{
    FailsToReply(Ascii(Reply("", "+CMGR: 1,,9\r\n0791491234")));
    const CallResult call = cmgr(handle);
    EXPECT_EQ(call.result, 0);
    const std::vector<Bytes> expected = {U16(9), {'1'}, Hex("30 37 39 31 34 39 31 32 00 55"), {0x55, 0x55}};
    EXPECT_EQ(call.outs, expected);
}

}  // namespace tandekor::test
