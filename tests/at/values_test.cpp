// Commands with numbers and lists of numbers.
#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

// A value that is asked for, behind its name in the answer.
struct Query
{
    Call call;
    std::string request, value;
    std::vector<Bytes> outs;
};

// Settings whose value is logged, and others.
const std::vector<SentCommand> loggedSettings = {
    {With(TANDEKOR_AT_Set_CMUT, {1}), "+CMUT=1", "(1)"},    {With(TANDEKOR_AT_Set_CALM, {25}), "+CALM=2", "(25)"},
    {With(TANDEKOR_AT_Set_CRSL, {0}), "+CRSL=0", "(0)"},    {With(TANDEKOR_AT_Set_CLVL, {12}), "+CLVL=1", "(12)"},
    {With(TANDEKOR_AT_Set_CTZU, {9}), "+CTZU=9", "(9)"},    {With(TANDEKOR_AT_Set_CTZR, {10}), "+CTZR=1", "(10)"},
    {With(TANDEKOR_AT_Set_CMEC, {99}), "+CMEC=9", "(99)"},  {With(TANDEKOR_AT_Set_SACM, {7}), "^SACM=7", "(7)"},
    {With(TANDEKOR_AT_Set_SLNG, {2}), "^SLNG=2", "(2)"},    {With(TANDEKOR_AT_Set_SNFS, {30}), "^SNFS=3", "(30)"},
    {With(TANDEKOR_AT_Set_SNFV, {4}), "^SNFV=4", "(4)"},    {With(TANDEKOR_AT_Set_SICO, {5}), "^SICO=5", "(5)"},
    {With(TANDEKOR_AT_Set_CVIB, {0}), "+CVIB=2", "(0)"},    {With(TANDEKOR_AT_Set_CVIB, {1}), "+CVIB=0", "(1)"},
    {With(TANDEKOR_AT_Set_CVIB, {3}), "+CVIB=16", "(3)"},   {With(TANDEKOR_AT_Set_CVIB, {86}), "+CVIB=99", "(86)"},
    {With(TANDEKOR_AT_Set_CVIB, {87}), "+CVIB=10", "(87)"}, {With(TANDEKOR_AT_Set_SKPD, {0}), "^SKPD=0", "(0)"},
};

const std::vector<SentCommand> commands = {
    {With(TANDEKOR_AT_CRMP), "+CRMP", "CRMP"},     {With(TANDEKOR_AT_CHUP), "+CHUP", "CHUP"},
    {With(TANDEKOR_AT_Set_CREG, {2}), "+CREG=2"},  {With(TANDEKOR_AT_Set_CBST, {71}), "+CBST=7"},
    {With(TANDEKOR_AT_Set_CMEE, {1}), "+CMEE=1"},  {With(TANDEKOR_AT_Set_CR, {12}), "+CR=1"},
    {With(TANDEKOR_AT_Set_SCKS, {-1}), "^SCKS=4"}, {With(TANDEKOR_AT_Get_SCKA), "^SCKA?"},
    {With(TANDEKOR_AT_Get_SCKS), "^SCKS?"},        {With(TANDEKOR_AT_Set_WS46, {5}), "+WS46=05"},
    {With(TANDEKOR_AT_Set_IPR, {0}), "+IPR=0"},
};

const std::vector<SentCommand> longerCommands = {
    {With(TANDEKOR_AT_2_OBEX), "^SQWE=3", "2_OBEX"},
    {With(TANDEKOR_AT_CHLD, {-1}), "+CHLD=4", "CHLD"},
    {With(TANDEKOR_AT_Set_CGATT, {-1}), "+CGATT", "Set_CGATT"},
    {With(TANDEKOR_AT_Set_CGATT, {10}), "+CGATT=1"},
    {With(TANDEKOR_AT_Set_CGATT, {-2}), "+CGATT=4"},
    {With(TANDEKOR_AT_Set_WS46, {254}), "+WS46=24"},
    {With(TANDEKOR_AT_Set_WS46, {255}), "+WS46", "Set_WS46"},
    {With(TANDEKOR_AT_Set_IPR, {-1}), "+IPR=4294967295"},
    {With(TANDEKOR_AT_Set_CLIP, {100}), "+CLIP=1", "(100)"},
    {With(TANDEKOR_AT_Set_COLP, {123}), "+COLP=1", "(123)"},
    {With(TANDEKOR_AT_Set_CAOC, {255}), "+CAOC=2", "(255)"},
    {With(TANDEKOR_AT_Set_CVIB, {243}), "+CVIB=0", "(243)"},
    {With(TANDEKOR_AT_Set_CVIB, {252}), "+CVIB=9", "(252)"},
    {With(TANDEKOR_AT_Set_SMSO, {1}), "^SMSO=1", "", 12000},
    {With(TANDEKOR_AT_Set_CSSN, {12, 34}), "+CSSN=1,3", "(12, 34)"},
    {With(TANDEKOR_AT_Set_CSSN, {0, 255}), "+CSSN=0", "(0, 255)"},
    {With(TANDEKOR_AT_Set_CGEREP, {2, 1}), "+CGEREP=2,1", "(2, 1)"},
    {With(TANDEKOR_AT_Set_SRMP, {9, 25}), "^SRMP=9,2", "(9, 25)"},
    {With(TANDEKOR_AT_Set_SRMP, {12, 255}), "^SRMP=12", "(12, 255)"},
    {With(TANDEKOR_AT_Set_SRMP, {120, 0}), "^SRMP=12,0", "(120, 0)"},
    {With(TANDEKOR_AT_Set_SKPD, {123}), "^SKPD=123", "(123)"},
};

const std::vector<Query> queries = {
    {With(TANDEKOR_AT_Get_CMUT), "+CMUT?", "1", {{1}}},     {With(TANDEKOR_AT_Get_CALM), "+CALM?", "2", {{2}}},
    {With(TANDEKOR_AT_Get_CRSL), "+CRSL?", "34", {{3}}},    {With(TANDEKOR_AT_Get_CLVL), "+CLVL?", "7", {{7}}},
    {With(TANDEKOR_AT_Get_CTZU), "+CTZU?", "1", {{1}}},     {With(TANDEKOR_AT_Get_CTZR), "+CTZR?", "9", {{9}}},
    {With(TANDEKOR_AT_Get_CMEC), "+CMEC?", "2,0,0", {{2}}}, {With(TANDEKOR_AT_Get_CLIP), "+CLIP?", "1,2", {{1}}},
    {With(TANDEKOR_AT_Get_CAOC), "+CAOC?", "2", {{2}}},     {With(TANDEKOR_AT_Get_SLNG), "^SLNG?", "5", {{5}}},
    {With(TANDEKOR_AT_Get_SNFS), "^SNFS?", "4", {{4}}},     {With(TANDEKOR_AT_Get_SNFV), "^SNFV?", "3", {{3}}},
    {With(TANDEKOR_AT_Get_SICO), "^SICO?", "1, 6", {{6}}},  {With(TANDEKOR_AT_Get_CGATT), "+CGATT?", "1", {{'1'}}},
    {With(TANDEKOR_AT_Get_CR), "+CR?", "1", {{'1'}}},       {With(TANDEKOR_AT_Get_CMEE), "+CMEE?", "2", {U32('2')}},
    {With(TANDEKOR_AT_Get_CCWA), "+CCWA?", "1", {U32(1)}},  {With(TANDEKOR_AT_Get_CVIB), "+CVIB?", "16", {{16}}},
    {With(TANDEKOR_AT_Get_WS46), "+WS46?", "12", {{12}}},
};

const std::vector<Query> longerQueries = {
    {With(TANDEKOR_AT_Get_COLP), "+COLP?", "1,2", {{1}, {2}}},
    {With(TANDEKOR_AT_Get_CSSN), "+CSSN?", "0,1", {{0}, {1}}},
    {With(TANDEKOR_AT_Get_CGEREP), "+CGEREP?", "2,1", {{2}, {1}}},
    {With(TANDEKOR_AT_Get_CGREG), "+CGREG?", "0,5", {{'0'}, {'5'}}},
    {With(TANDEKOR_AT_Get_CPAS), "+CPAS", "34", {U32(4)}},
    {With(TANDEKOR_AT_Get_IPR), "+IPR?", "115200", {U32(115200)}},
};

// Behind a reply stands the fill 0xBB; 0x55 is what the caller had.
const std::vector<ReadReply> edges = {
    {With(TANDEKOR_AT_Get_CMUT), Reply("at+cmut?", "+CMUT: 1"), {{1}}},
    {With(TANDEKOR_AT_Get_CVIB), Reply("AT+CVIB?", "+CVIB: 1"), {{1}}},
    {With(TANDEKOR_AT_Get_CVIB), "AT+CVIB?\r\r\n+CVIB: 1", {{10}}},
    {With(TANDEKOR_AT_Get_CCWA), Reply("AT+CCWA?", "+CCWA:  "), {U32(0xFFFFFFF0)}},
    {With(TANDEKOR_AT_Get_CGATT), Reply("", "+CGATT: 1"), {{'\r'}}},
    {With(TANDEKOR_AT_Get_WS46), Reply("AT+WS46?", "9"), {{9}}},
    {With(TANDEKOR_AT_Get_WS46), Reply("AT+WS46?", "x2"), {}},
    {With(TANDEKOR_AT_Get_IPR), Reply("", "+IPR: 115200"), {U32(115200)}},
    {With(TANDEKOR_AT_Get_IPR), Reply("AT+IPR?", "+IPR:9 1 x2\n3\r4"), {U32(9123)}},
    {With(TANDEKOR_AT_Get_IPR), "AT+IPR?\r\r\n+IPR: 960", {U32(960)}},
    {With(TANDEKOR_AT_Get_SCKA), Reply("AT^SCKA?", "^SCKA: 0"), {U32(0)}},
    {With(TANDEKOR_AT_Get_SCKS), Reply("AT^SCKS?", "^SCKS: 2, 1"), {U32(2), U32(1)}},
    {With(TANDEKOR_AT_Get_SCKS), Reply("AT^SCKS?", "^SCKS: 2,1"), {U32(0xFFFFFFF0), U32(1)}},
    {With(TANDEKOR_AT_Get_SCKS), "A123", {U32('A' - '0'), U32(3)}},
    // The end of a reply without echo is looked for nine bytes early as well.
    {With(TANDEKOR_AT_Get_CPAS), Reply("", "+CPAS: 4"), {}},
    {With(TANDEKOR_AT_Get_CPAS), Reply("", "+CPAS: 4\r\n\r\n+CPAS: 5"), {U32(4)}},
};

// What is read of a reply that breaks off, of one of digits alone, and of one of letters.
const struct
{
    Call call;
    std::vector<Bytes> none, digits, letters;
} withoutTheValue[] = {
    {With(TANDEKOR_AT_Get_CMUT), {{0}}, {{7}}, {{0}}},
    {With(TANDEKOR_AT_Get_COLP), {{0}, {0}}, {{7}, {7}}, {{0}, {0}}},
    {With(TANDEKOR_AT_Get_CVIB), {{0}}, {{77}}, {{0}}},
    {With(TANDEKOR_AT_Get_CGATT), {{0xBB}}, {{'7'}}, {{'x'}}},
    {With(TANDEKOR_AT_Get_CMEE), {U32(0xBB)}, {U32('7')}, {U32('x')}},
    {With(TANDEKOR_AT_Get_CCWA), {U32(0xBB - '0')}, {U32(7)}, {U32('x' - '0')}},
    {With(TANDEKOR_AT_Get_CPAS), {}, {U32(7)}, {}},
    {With(TANDEKOR_AT_Get_SCKS), {}, {U32(7), U32(7)}, {}},
    {With(TANDEKOR_AT_Get_WS46), {}, {{77}}, {}},
    {With(TANDEKOR_AT_Get_IPR), {U32(0)}, {U32(7777777)}, {U32(0)}},
};

// The status is the word at the very end, as it is written here.
const std::string ends[] = {"OK",        "AT+CHUP\r\r\nOK", "NOK",        "ERROR",
                            "\r\nERROR", "+CME ERROR",      "",           "K",
                            "RROR",      "\r\nOK\r\n",      "ERROR\r\n",  "+CME ERROR: 10",
                            "ok",        "error",           "NO CARRIER", std::string(4094, '7') + "OK"};

const Call getCmer = With(TANDEKOR_AT_Get_CMER), getCacm = With(TANDEKOR_AT_Get_CACM),
           getCamm = With(TANDEKOR_AT_Get_CAMM), getCeer = With(TANDEKOR_AT_Get_CEER, {Out{4096}}),
           getCgmm = With(TANDEKOR_AT_Get_CGMM, {Out{4096}}), getCgmr = With(TANDEKOR_AT_Get_CGMR, {Out{4096}}),
           getCimi = With(TANDEKOR_AT_Get_CIMI, {Out{15}}), getGsn = With(TANDEKOR_AT_Get_GSN, {Out{15}}),
           getScid = With(TANDEKOR_AT_Get_SCID, {Out{20}}), getSacm = With(TANDEKOR_AT_Get_SACM),
           getCclk = With(TANDEKOR_AT_Get_CCLK), getCbc = With(TANDEKOR_AT_Get_CBC),
           getCreg = With(TANDEKOR_AT_Get_CREG, {Out{1}, Out{1}, Out{2}, Out{2}}), getCsq = With(TANDEKOR_AT_Get_CSQ),
           getCind = With(TANDEKOR_AT_Get_CIND), getCbst = With(TANDEKOR_AT_Get_CBST),
           getSifs = With(TANDEKOR_AT_Get_SIFS), getCops = With(TANDEKOR_AT_Get_COPS, {Out{4}, Out{4}, Out{16}}),
           getCgact = With(TANDEKOR_AT_Get_CGACT, {Out{1366 * 4}, Out{1366 * 4}}),
           getCgmi = With(TANDEKOR_AT_Get_CGMI, {Out{4096}}), getCgsn = With(TANDEKOR_AT_Get_CGSN, {Out{15}});

const std::vector<SentCommand> structuredQueries = {
    {getCclk, "+CCLK?"},   {getCmer, "+CMER?"}, {getCacm, "+CACM?"}, {getCamm, "+CAMM?"}, {getSacm, "^SACM?"},
    {getCbc, "+CBC"},      {getCreg, "+CREG?"}, {getCsq, "+CSQ"},    {getCind, "+CIND?"}, {getCbst, "+CBST?"},
    {getSifs, "^SIFS"},    {getCeer, "+CEER"},  {getCgmi, "+CGMI"},  {getCgmm, "+CGMM"},  {getCgmr, "+CGMR"},
    {getCgsn, "+CGSN"},    {getCimi, "+CIMI"},  {getGsn, "+GSN"},    {getScid, "^SCID"},  {getCops, "+COPS?"},
    {getCgact, "+CGACT?"},
};

const std::vector<SentCommand> settings = {
    {With(TANDEKOR_AT_Set_CCLK, {6, 11, 18, 9, 5, 0, 4}), "+CCLK=\"06/11/18,09:05:00+04\"",
     "(Date = 06/11/18\nTime = 09:05:00\nTime Zone = +04"},
    {With(TANDEKOR_AT_Set_CCLK, {99, 12, 31, 23, 59, 59, -4}), "+CCLK=\"99/12/31,23:59:59-04\"",
     "(Date = 99/12/31\nTime = 23:59:59\nTime Zone = -04"},
    {With(TANDEKOR_AT_Set_CCLK, {0, 1, 1, 0, 0, 0, 0}), "+CCLK=\"00/01/01,00:00:00+00\"",
     "(Date = 00/01/01\nTime = 00:00:00\nTime Zone = +00"},
    {With(TANDEKOR_AT_Set_CCLK, {100, 0, 255, 1, 2, 3, -128}), "+CCLK=\"10/00/25,01:02:03-12\"",
     "(Date = 100/00/255\nTime = 01:02:03\nTime Zone = -128"},
    {With(TANDEKOR_AT_Set_CMER, {3, 25, 1}), "+CMER=3,0,0,2,1", "(3, 25, 1)"},
    {With(TANDEKOR_AT_Set_CIND, {1, 255, 255, 255, 255, 255, 255, 255}), "+CIND=1,,,,,,,,"},
    {With(TANDEKOR_AT_Set_CIND, {255, 0, 12, 3, 4, 5, 6, 254}), "+CIND=,0,1,3,4,5,6,2,"},
    {With(TANDEKOR_AT_Set_COPS, {12, 0, "12345678901234567"}), "+COPS=1,0,\"1234567890123456\""},
    {With(TANDEKOR_AT_Set_COPS, {1, 2, ""}), "+COPS=1,2,\"\""},
    {With(TANDEKOR_AT_Set_COPS, {4, 2, "-NET"}), "+COPS=4,2"},
    {With(TANDEKOR_AT_Set_COPS, {2, -1, "NET"}), "+COPS=2"},
};

const Bytes untouched = {};

// An empty field of what is read was not written; 0xBB is what stands behind a short reply.
const std::vector<ReadReply> replies = {
    {getCclk, Reply("AT+CCLK?", "+CCLK: \"06/11/18,09:05:00-04\""), {{6}, {11}, {18}, {9}, {5}, {0}, {0xFC}}},
    {getCclk, Reply("", "+CCLK: \"06/11/18,09:05:59+48\""), {{6}, {11}, {18}, {9}, {5}, {59}, {48}}},
    {getCclk, "AT+CCLK?\r\r\n+CCLK: \"06/1", {{6}, {10}, {0}, {0}, {0}, {0}, {0}}},
    {getCclk, std::string(4096, '7'), {{77}, {77}, {77}, {77}, {77}, {77}, {77}}},
    {getCmer, Reply("AT+CMER?", "+CMER: 3,9,8,2,1"), {{3}, {2}, {1}}},
    {getCacm, Reply("AT+CACM?", "+CACM: \"00F123\""), {U16(123)}},
    {getSacm, Reply("AT^SACM?", "^SACM: 1,\"000300\",\"000200\""), {{1}, {44}, {200}}},
    {getSacm, "", {{0}, {0}, {0}}},
    {getCreg, Reply("AT+CREG?", "+CREG: 2,5,1A,2B"), {{2}, {5}, {'1', 'A'}, {'2', 'B'}}},
    {getCreg, Reply("", "+CREG: 0,1"), {{0}, {1}, {'-'}, {'-'}}},
    {getCreg, "AT+CREG?\r\r\n+CREG: 2,5,1", {{2}, {5}, {'1', 0xBB}, {0xBB, 0xBB}}},
    {getCsq, "A12", {untouched, {12}}},
    // Without echo the end is looked for nine bytes early.
    {getCsq, Reply("", "+CSQ: 21,99"), {untouched, {21}}},
    {getCind, Reply("AT+CIND?", "+CIND: 1,2,3,4,5,6,7,8"), {{'1'}, {'2'}, {'3'}, {'4'}, {'5'}, {'6'}, {'7'}, {'8'}}},
    {getCind, "A\r\n7,8", {untouched, untouched, untouched, untouched, untouched, {'\r'}, {'7'}, {'8'}}},
    {getCind, "", {}},
    {getCbst, Reply("AT+CBST?", "+CBST: 7,0,1"), {U32(7), {'0'}, {'1'}}},
    {getCbst, Reply("AT+CBST?", "+CBST: 71,4,3"), {U32(71), {'4'}, {'3'}}},
    {getCbst, "A1,2", {untouched, {'1'}, {'2'}}},
    {getCbst, "AT+CBST?\r\r\nERROR", {}},
    {getSifs, "", {{0}}},
    {getCeer, Reply("AT+CEER", "+CEER: Busy"), {Ascii("Busy\r\n\r\n")}},
    {getCgmi, Reply("AT+CGMI", "MAKER"), {Ascii("MAKER\r\n\r\n")}},
    {getCgmm, Reply("AT+CGMM", "T52"), {Ascii("T52\r\n\r\n")}},
    {getCgmr, Reply("AT+CGMR", "2.4"), {Ascii("2.4\r\n\r\n")}},
    {getCgmi, "AT+CGMI\r\r\nM", {{'M'}}},
    {getCgmi, "AT+CGMI\r\r\n", {{0xBB}}},
    {getCgmi, "", {{0xBB}}},
    {getCgmi, Reply("", "MAKER"), {{'\n'}}},
    {getCgmi, 'A' + std::string(4095, 'x'), {Bytes(4084, 'x')}},
    {getCgsn, Reply("AT+CGSN", "490154203237518"), {Ascii("490154203237518")}},
    {getCgsn, "AT+CGSN\r\r\n49", {Hex("34 39 BB BB BB BB BB BB BB BB BB BB BB BB BB")}},
    {getCimi, Reply("AT+CIMI", "262019876543210"), {Ascii("262019876543210")}},
    {getGsn, Reply("AT+GSN", "490154203237518"), {Ascii("490154203237518")}},
    {getScid, Reply("AT^SCID", "^SCID: 89490200001234567890"), {Ascii("89490200001234567890")}},
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

// Replies of a few values.
const std::vector<ReadReply> shortReplies = {
    {With(TANDEKOR_AT_Get_SCKS), "A12", {{}, U32(2)}},      {getCmer, "AT+CMER?\r\r\nERROR", {{0}, {0}, {0}}},
    {getCacm, "AT+CACM?\r\r\n+CACM: \"12", {U16(54464)}},   {getCamm, Reply("", "+CAMM: \"070000\""), {U16(4464)}},
    {getCbc, Reply("AT+CBC", "+CBC: 0,100"), {{0}, {100}}}, {getCbc, Reply("AT+CBC", "+CBC: 1,85"), {{1}, {85}}},
    {getCbc, Reply("at+cbc", "+CBC: 2,7"), {{2}, {7}}},     {getCbc, "AT+CBC\r\r\n+CBC: 0,999", {{0}, {231}}},
    {getCsq, Reply("AT+CSQ", "+CSQ: 21,99"), {{21}, {99}}}, {getCsq, Reply("AT+CSQ", "+CSQ: 5,3"), {{5}, {3}}},
    {getCsq, Reply("AT+CSQ", "+CSQ: 31,0"), {{31}, {0}}},   {getCsq, "AT+CSQ\r\r\n+CSQ: 9,12", {{9}, {12}}},
    {getCsq, "AT+CSQ\r\r\n+CSQ: 21", {untouched, {21}}},    {getCsq, "AT+CSQ\r\r\nERROR", {untouched, untouched}},
    {getCsq, std::string(4096, '7'), {{77}, {77}}},         {getCbst, "A: x,0,1", {U32('x' - '0'), {'0'}, {'1'}}},
    {getCbst, "A,0,1", {U32('A' - '0'), {'0'}, {'1'}}},     {getSifs, Reply("AT^SIFS", "^SIFS: IrDA"), {{1}}},
    {getSifs, Reply("AT^SIFS", "^SIFS: Bluetooth"), {{2}}}, {getSifs, "AT^SIFS\r\r\n^SIFS: Wireless", {{3}}},
    {getSifs, Reply("AT^SIFS", "^SIFS: wire"), {{0}}},      {getSifs, "AT^SIFS\r\r\n^SIFS: Bluetoot", {{0}}},
};

}  // namespace

AtTable ValueCommands()
{
    AtTable table{commands, edges, {Dense("\r\n+CGACT:", "1,x "), Dense("\r\n+CGACT:", "1,1 ")}};
    for (const auto& list : {loggedSettings, longerCommands, structuredQueries, settings})
        table.commands.insert(table.commands.end(), list.begin(), list.end());
    for (const auto& list : {replies, shortReplies})
        table.replies.insert(table.replies.end(), list.begin(), list.end());
    for (const std::vector<Query>& list : {queries, longerQueries})
    {
        for (const Query& query : list)
        {
            const std::string name = query.request.substr(0, query.request.find('?'));
            const std::string answer = name == "+WS46" ? query.value : name + ": " + query.value;
            table.commands.push_back({query.call, query.request});
            table.replies.push_back({query.call, Reply("AT" + query.request, answer), query.outs});
            // Without echo the values are found where the echo would have nine bytes.
            if (query.request.size() == 6)
                table.replies.push_back({query.call, Reply("", answer), query.outs});
        }
    }
    for (const auto& row : withoutTheValue)
    {
        for (const char* reply : {"AT+CMUT?\r\r\nERROR", "", "AT+CMUT?\r\r\n+CMUT: "})
            table.replies.push_back({row.call, reply, row.none});
        table.replies.push_back({row.call, "7777777777777", row.digits});
        table.replies.push_back({row.call, std::string(4096, 'x'), row.letters});
    }
    for (const std::string& end : ends)
        table.replies.push_back({With(TANDEKOR_AT_CHUP), end, {}});
    return table;
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
