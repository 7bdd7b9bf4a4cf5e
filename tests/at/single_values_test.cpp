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
    {With(TANDEKOR_AT_Get_SCKS), "A12", {{}, U32(2)}},
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

}  // namespace

AtTable SingleValues()
{
    AtTable table{commands, edges};
    for (const auto& list : {loggedSettings, longerCommands})
        table.commands.insert(table.commands.end(), list.begin(), list.end());
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

}  // namespace tandekor::test
