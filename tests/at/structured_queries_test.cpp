#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

const Call getCclk = With(TANDEKOR_AT_Get_CCLK);
const Call getCbc = With(TANDEKOR_AT_Get_CBC);
const Call getCreg = With(TANDEKOR_AT_Get_CREG, {Out{1}, Out{1}, Out{2}, Out{2}});
const Call getCsq = With(TANDEKOR_AT_Get_CSQ);
const Call getCind = With(TANDEKOR_AT_Get_CIND);
const Call getCbst = With(TANDEKOR_AT_Get_CBST);
const Call getSifs = With(TANDEKOR_AT_Get_SIFS);
const Call getCops = With(TANDEKOR_AT_Get_COPS, {Out{4}, Out{4}, Out{16}});
const Call getCgact = With(TANDEKOR_AT_Get_CGACT, {Out{1366 * 4}, Out{1366 * 4}});
const Call getCgmi = With(TANDEKOR_AT_Get_CGMI, {Out{4096}});
const Call getCgsn = With(TANDEKOR_AT_Get_CGSN, {Out{15}});

const std::vector<SentCommand> commands = {
    {getCclk, "AT+CCLK?", "Get_CCLK"},
    {With(TANDEKOR_AT_Set_CCLK, {6, 11, 18, 9, 5, 0, 4}), "AT+CCLK=\"06/11/18,09:05:00+04\"",
     "Set_CCLK(Date = 06/11/18\nTime = 09:05:00\nTime Zone = +04"},
    {With(TANDEKOR_AT_Set_CCLK, {99, 12, 31, 23, 59, 59, -4}), "AT+CCLK=\"99/12/31,23:59:59-04\"",
     "Set_CCLK(Date = 99/12/31\nTime = 23:59:59\nTime Zone = -04"},
    {With(TANDEKOR_AT_Set_CCLK, {0, 1, 1, 0, 0, 0, 0}), "AT+CCLK=\"00/01/01,00:00:00+00\"",
     "Set_CCLK(Date = 00/01/01\nTime = 00:00:00\nTime Zone = +00"},
    {With(TANDEKOR_AT_Set_CCLK, {100, 0, 255, 1, 2, 3, -128}), "AT+CCLK=\"10/00/25,01:02:03-12\"",
     "Set_CCLK(Date = 100/00/255\nTime = 01:02:03\nTime Zone = "
     "-128"},
    {With(TANDEKOR_AT_Get_CMER), "AT+CMER?", "Get_CMER"},
    {With(TANDEKOR_AT_Set_CMER, {3, 25, 1}), "AT+CMER=3,0,0,2,1", "Set_CMER(3, 25, 1)"},
    {With(TANDEKOR_AT_Get_CACM), "AT+CACM?", "Get_CACM"},
    {With(TANDEKOR_AT_Get_CAMM), "AT+CAMM?", "Get_CAMM"},
    {With(TANDEKOR_AT_Get_SACM), "AT^SACM?", "Get_SACM"},
    {getCbc, "AT+CBC", "Get_CBC"},
    {getCreg, "AT+CREG?", "Get_CREG"},
    {getCsq, "AT+CSQ", "Get_CSQ"},
    {getCind, "AT+CIND?", "Get_CIND"},
    {With(TANDEKOR_AT_Set_CIND, {1, 255, 255, 255, 255, 255, 255, 255}), "AT+CIND=1,,,,,,,,", "Set_CIND"},
    {With(TANDEKOR_AT_Set_CIND, {255, 0, 12, 3, 4, 5, 6, 254}), "AT+CIND=,0,1,3,4,5,6,2,", "Set_CIND"},
    {getCbst, "AT+CBST?", "Get_CBST"},
    {getSifs, "AT^SIFS", "Get_SIFS"},
    {With(TANDEKOR_AT_Get_CEER, {Out{4096}}), "AT+CEER", "Get_CEER"},
    {getCgmi, "AT+CGMI", "Get_CGMI"},
    {With(TANDEKOR_AT_Get_CGMM, {Out{4096}}), "AT+CGMM", "Get_CGMM"},
    {With(TANDEKOR_AT_Get_CGMR, {Out{4096}}), "AT+CGMR", "Get_CGMR"},
    {getCgsn, "AT+CGSN", "Get_CGSN"},
    {With(TANDEKOR_AT_Get_CIMI, {Out{15}}), "AT+CIMI", "Get_CIMI"},
    {With(TANDEKOR_AT_Get_GSN, {Out{15}}), "AT+GSN", "Get_GSN"},
    {With(TANDEKOR_AT_Get_SCID, {Out{20}}), "AT^SCID", "Get_SCID"},
    {getCops, "AT+COPS?", "Get_COPS"},
    {With(TANDEKOR_AT_Set_COPS, {12, 0, "12345678901234567"}), "AT+COPS=1,0,\"1234567890123456\"", "Set_COPS"},
    {With(TANDEKOR_AT_Set_COPS, {1, 2, ""}), "AT+COPS=1,2,\"\"", "Set_COPS"},
    {With(TANDEKOR_AT_Set_COPS, {4, 2, "-NET"}), "AT+COPS=4,2", "Set_COPS"},
    {With(TANDEKOR_AT_Set_COPS, {2, -1, "NET"}), "AT+COPS=2", "Set_COPS"},
    {getCgact, "AT+CGACT?", "Get_CGACT"},
};

const Bytes untouched = {};

// An empty field of what is read was not written; 0xBB is what stands behind a short reply.
const std::vector<ReadReply> replies = {
    {getCclk, Reply("AT+CCLK?", "+CCLK: \"06/11/18,09:05:00-04\""), {{6}, {11}, {18}, {9}, {5}, {0}, {0xFC}}},
    {getCclk, Reply("", "+CCLK: \"06/11/18,09:05:59+48\""), {{6}, {11}, {18}, {9}, {5}, {59}, {48}}},
    {getCclk, "AT+CCLK?\r\r\n+CCLK: \"06/1", {{6}, {10}, {0}, {0}, {0}, {0}, {0}}},
    {getCclk, std::string(4096, '7'), {{77}, {77}, {77}, {77}, {77}, {77}, {77}}},
    {With(TANDEKOR_AT_Get_CMER), Reply("AT+CMER?", "+CMER: 3,9,8,2,1"), {{3}, {2}, {1}}},
    {With(TANDEKOR_AT_Get_CMER), "AT+CMER?\r\r\nERROR", {{0}, {0}, {0}}},
    {With(TANDEKOR_AT_Get_CACM), Reply("AT+CACM?", "+CACM: \"00F123\""), {U16(123)}},
    {With(TANDEKOR_AT_Get_CACM), "AT+CACM?\r\r\n+CACM: \"12", {U16(54464)}},
    {With(TANDEKOR_AT_Get_CAMM), Reply("", "+CAMM: \"070000\""), {U16(4464)}},
    {With(TANDEKOR_AT_Get_SACM), Reply("AT^SACM?", "^SACM: 1,\"000300\",\"000200\""), {{1}, {44}, {200}}},
    {With(TANDEKOR_AT_Get_SACM), "", {{0}, {0}, {0}}},
    {getCbc, Reply("AT+CBC", "+CBC: 0,100"), {{0}, {100}}},
    {getCbc, Reply("AT+CBC", "+CBC: 1,85"), {{1}, {85}}},
    {getCbc, Reply("at+cbc", "+CBC: 2,7"), {{2}, {7}}},
    {getCbc, "AT+CBC\r\r\n+CBC: 0,999", {{0}, {231}}},
    {getCreg, Reply("AT+CREG?", "+CREG: 2,5,1A,2B"), {{2}, {5}, {'1', 'A'}, {'2', 'B'}}},
    {getCreg, Reply("", "+CREG: 0,1"), {{0}, {1}, {'-'}, {'-'}}},
    {getCreg, "AT+CREG?\r\r\n+CREG: 2,5,1", {{2}, {5}, {'1', 0xBB}, {0xBB, 0xBB}}},
    {getCsq, Reply("AT+CSQ", "+CSQ: 21,99"), {{21}, {99}}},
    {getCsq, Reply("AT+CSQ", "+CSQ: 5,3"), {{5}, {3}}},
    {getCsq, Reply("AT+CSQ", "+CSQ: 31,0"), {{31}, {0}}},
    {getCsq, "AT+CSQ\r\r\n+CSQ: 9,12", {{9}, {12}}},
    {getCsq, "AT+CSQ\r\r\n+CSQ: 21", {untouched, {21}}},
    {getCsq, "A12", {untouched, {12}}},
    {getCsq, "AT+CSQ\r\r\nERROR", {untouched, untouched}},
    {getCsq, std::string(4096, '7'), {{77}, {77}}},
    // Without echo the end is looked for nine bytes early.
    {getCsq, Reply("", "+CSQ: 21,99"), {untouched, {21}}},
    {getCind, Reply("AT+CIND?", "+CIND: 1,2,3,4,5,6,7,8"), {{'1'}, {'2'}, {'3'}, {'4'}, {'5'}, {'6'}, {'7'}, {'8'}}},
    {getCind, "A\r\n7,8", {untouched, untouched, untouched, untouched, untouched, {'\r'}, {'7'}, {'8'}}},
    {getCind, "", {}},
    {getCbst, Reply("AT+CBST?", "+CBST: 7,0,1"), {U32(7), {'0'}, {'1'}}},
    {getCbst, Reply("AT+CBST?", "+CBST: 71,4,3"), {U32(71), {'4'}, {'3'}}},
    {getCbst, "A: x,0,1", {U32('x' - '0'), {'0'}, {'1'}}},
    {getCbst, "A,0,1", {U32('A' - '0'), {'0'}, {'1'}}},
    {getCbst, "A1,2", {untouched, {'1'}, {'2'}}},
    {getCbst, "AT+CBST?\r\r\nERROR", {}},
    {getSifs, Reply("AT^SIFS", "^SIFS: IrDA"), {{1}}},
    {getSifs, Reply("AT^SIFS", "^SIFS: Bluetooth"), {{2}}},
    {getSifs, "AT^SIFS\r\r\n^SIFS: Wireless", {{3}}},
    {getSifs, Reply("AT^SIFS", "^SIFS: wire"), {{0}}},
    {getSifs, "AT^SIFS\r\r\n^SIFS: Bluetoot", {{0}}},
    {getSifs, "", {{0}}},
    {With(TANDEKOR_AT_Get_CEER, {Out{4096}}), Reply("AT+CEER", "+CEER: Busy"), {Ascii("Busy\r\n\r\n")}},
    {getCgmi, Reply("AT+CGMI", "MAKER"), {Ascii("MAKER\r\n\r\n")}},
    {With(TANDEKOR_AT_Get_CGMM, {Out{4096}}), Reply("AT+CGMM", "T52"), {Ascii("T52\r\n\r\n")}},
    {With(TANDEKOR_AT_Get_CGMR, {Out{4096}}), Reply("AT+CGMR", "2.4"), {Ascii("2.4\r\n\r\n")}},
    {getCgmi, "AT+CGMI\r\r\nM", {{'M'}}},
    {getCgmi, "AT+CGMI\r\r\n", {{0xBB}}},
    {getCgmi, "", {{0xBB}}},
    {getCgmi, Reply("", "MAKER"), {{'\n'}}},
    {getCgmi, 'A' + std::string(4095, 'x'), {Bytes(4084, 'x')}},
    {getCgsn, Reply("AT+CGSN", "490154203237518"), {Ascii("490154203237518")}},
    {getCgsn, "AT+CGSN\r\r\n49", {Hex("34 39 BB BB BB BB BB BB BB BB BB BB BB BB BB")}},
    {With(TANDEKOR_AT_Get_CIMI, {Out{15}}), Reply("AT+CIMI", "262019876543210"), {Ascii("262019876543210")}},
    {With(TANDEKOR_AT_Get_GSN, {Out{15}}), Reply("AT+GSN", "490154203237518"), {Ascii("490154203237518")}},
    {With(TANDEKOR_AT_Get_SCID, {Out{20}}),
     Reply("AT^SCID", "^SCID: 89490200001234567890"),
     {Ascii("89490200001234567890")}},
    {getCops, Reply("AT+COPS?", "+COPS: 1,2,\"26201\""), {U32(1), U32(2), Text("26201")}},
    {getCops, Reply("", "+COPS: 0,0,\"12345678901234567890\""), {U32(0), U32(0), Text("123456789012345")}},
    {getCops, "AT+COPS?\r\r\n+COPS: 0,0,\"NE", {U32(0), U32(0), Text("NE")}},
    {getCops, Reply("AT+COPS?", "+COPS: 0"), {U32(0), U32('\n' - '0'), Text("OK")}},
    {getCgact, Reply("AT+CGACT?", "+CGACT: 1,1\r\n+CGACT: 12,0"), {U32(1, 12), U32(1, 0), U32(2)}},
    {getCgact, Reply("", "+CGACT: 1,1"), {U32(1), U32(1), U32(1)}},
    {getCgact, "AT+CGACT?\r\r\n+CGACT: 1:x4,2,34O5,6\r\nOK", {U32(1, 2), U32(724, 34), U32(2)}},
    {getCgact, "AT+CGACT?\r\r\n\r\nOK", {untouched, untouched, U32(0)}},
    {getCgact, "AT+CGACT?\r\r\nERROR", {}},
    {getCgact, "AT+CGACT?\r\r\n+CGACT: 1,1\r\n+CGACT: 2", {}},
};

}  // namespace

AtTable StructuredQueries()
{
    return {commands, replies, {Dense("\r\n+CGACT:", "1,x "), Dense("\r\n+CGACT:", "1,1 ")}};
}

using AtStructuredQueriesTest = AtTest;

TEST_F(AtStructuredQueriesTest, IndicatorsThatAreAllLeftAloneAreNotSent)
{
    const CallResult call = With(TANDEKOR_AT_Set_CIND, {255, 255, 255, 255, 255, 255, 255, 255})(handle);
    EXPECT_EQ(call.result, 1);
    EXPECT_EQ(call.outs, std::vector<Bytes>{Bytes(2, 0x55)});
    EXPECT_TRUE(simulator::Calls().empty());
    EXPECT_EQ(Log(), std::vector<std::string>{"TANDEKOR_AT_Set_CIND()"});
}

}  // namespace tandekor::test
