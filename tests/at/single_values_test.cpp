#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

struct Command
{
    Call call;
    std::string request;  // without the carriage return and the NUL behind it
    std::string log;
    std::string reply = {};          // line of an answer, where one is read
    std::vector<Bytes> values = {};  // what is read of it
    uint32_t timeoutMs = 3000;
};

const std::vector<Command> commands = {
    {With(TANDEKOR_AT_2_OBEX), "AT^SQWE=3", "2_OBEX"},
    {With(TANDEKOR_AT_CRMP), "AT+CRMP", "CRMP"},
    {With(TANDEKOR_AT_CHUP), "AT+CHUP", "CHUP"},
    {With(TANDEKOR_AT_Get_CMUT), "AT+CMUT?", "Get_CMUT", "+CMUT: 1", {{1}}},
    {With(TANDEKOR_AT_Get_CALM), "AT+CALM?", "Get_CALM", "+CALM: 2", {{2}}},
    {With(TANDEKOR_AT_Get_CRSL), "AT+CRSL?", "Get_CRSL", "+CRSL: 34", {{3}}},
    {With(TANDEKOR_AT_Get_CLVL), "AT+CLVL?", "Get_CLVL", "+CLVL: 7", {{7}}},
    {With(TANDEKOR_AT_Get_CTZU), "AT+CTZU?", "Get_CTZU", "+CTZU: 1", {{1}}},
    {With(TANDEKOR_AT_Get_CTZR), "AT+CTZR?", "Get_CTZR", "+CTZR: 9", {{9}}},
    {With(TANDEKOR_AT_Get_CMEC), "AT+CMEC?", "Get_CMEC", "+CMEC: 2,0,0", {{2}}},
    {With(TANDEKOR_AT_Get_CLIP), "AT+CLIP?", "Get_CLIP", "+CLIP: 1,2", {{1}}},
    {With(TANDEKOR_AT_Get_CAOC), "AT+CAOC?", "Get_CAOC", "+CAOC: 2", {{2}}},
    {With(TANDEKOR_AT_Get_SLNG), "AT^SLNG?", "Get_SLNG", "^SLNG: 5", {{5}}},
    {With(TANDEKOR_AT_Get_SNFS), "AT^SNFS?", "Get_SNFS", "^SNFS: 4", {{4}}},
    {With(TANDEKOR_AT_Get_SNFV), "AT^SNFV?", "Get_SNFV", "^SNFV: 3", {{3}}},
    {With(TANDEKOR_AT_Get_SICO), "AT^SICO?", "Get_SICO", "^SICO: 1, 6", {{6}}},
    {With(TANDEKOR_AT_Set_CMUT, {1}), "AT+CMUT=1", "Set_CMUT(1)"},
    {With(TANDEKOR_AT_Set_CALM, {25}), "AT+CALM=2", "Set_CALM(25)"},
    {With(TANDEKOR_AT_Set_CRSL, {0}), "AT+CRSL=0", "Set_CRSL(0)"},
    {With(TANDEKOR_AT_Set_CLVL, {12}), "AT+CLVL=1", "Set_CLVL(12)"},
    {With(TANDEKOR_AT_Set_CTZU, {9}), "AT+CTZU=9", "Set_CTZU(9)"},
    {With(TANDEKOR_AT_Set_CTZR, {10}), "AT+CTZR=1", "Set_CTZR(10)"},
    {With(TANDEKOR_AT_Set_CMEC, {99}), "AT+CMEC=9", "Set_CMEC(99)"},
    {With(TANDEKOR_AT_Set_CLIP, {100}), "AT+CLIP=1", "Set_CLIP(100)"},
    {With(TANDEKOR_AT_Set_COLP, {123}), "AT+COLP=1", "Set_COLP(123)"},
    {With(TANDEKOR_AT_Set_CAOC, {255}), "AT+CAOC=2", "Set_CAOC(255)"},
    {With(TANDEKOR_AT_Set_SACM, {7}), "AT^SACM=7", "Set_SACM(7)"},
    {With(TANDEKOR_AT_Set_SLNG, {2}), "AT^SLNG=2", "Set_SLNG(2)"},
    {With(TANDEKOR_AT_Set_SNFS, {30}), "AT^SNFS=3", "Set_SNFS(30)"},
    {With(TANDEKOR_AT_Set_SNFV, {4}), "AT^SNFV=4", "Set_SNFV(4)"},
    {With(TANDEKOR_AT_Set_SICO, {5}), "AT^SICO=5", "Set_SICO(5)"},
    {With(TANDEKOR_AT_Set_CREG, {2}), "AT+CREG=2", "Set_CREG"},
    {With(TANDEKOR_AT_Set_CBST, {71}), "AT+CBST=7", "Set_CBST"},
    {With(TANDEKOR_AT_Set_CMEE, {1}), "AT+CMEE=1", "Set_CMEE"},
    {With(TANDEKOR_AT_Set_CR, {12}), "AT+CR=1", "Set_CR"},
    {With(TANDEKOR_AT_Set_SMSO, {1}), "AT^SMSO=1", "Set_SMSO", "", {}, 12000},
    {With(TANDEKOR_AT_CHLD, {-1}), "AT+CHLD=4", "CHLD"},
    {With(TANDEKOR_AT_Set_SCKS, {-1}), "AT^SCKS=4", "Set_SCKS"},
    {With(TANDEKOR_AT_Get_COLP), "AT+COLP?", "Get_COLP", "+COLP: 1,2", {{1}, {2}}},
    {With(TANDEKOR_AT_Get_CSSN), "AT+CSSN?", "Get_CSSN", "+CSSN: 0,1", {{0}, {1}}},
    {With(TANDEKOR_AT_Get_CGEREP), "AT+CGEREP?", "Get_CGEREP", "+CGEREP: 2,1", {{2}, {1}}},
    {With(TANDEKOR_AT_Set_CSSN, {12, 34}), "AT+CSSN=1,3", "Set_CSSN(12, 34)"},
    {With(TANDEKOR_AT_Set_CSSN, {0, 255}), "AT+CSSN=0", "Set_CSSN(0, 255)"},
    {With(TANDEKOR_AT_Set_CGEREP, {2, 1}), "AT+CGEREP=2,1", "Set_CGEREP(2, 1)"},
    {With(TANDEKOR_AT_Set_SRMP, {9, 25}), "AT^SRMP=9,2", "Set_SRMP(9, 25)"},
    {With(TANDEKOR_AT_Set_SRMP, {12, 255}), "AT^SRMP=12", "Set_SRMP(12, 255)"},
    {With(TANDEKOR_AT_Set_SRMP, {120, 0}), "AT^SRMP=12,0", "Set_SRMP(120, 0)"},
    {With(TANDEKOR_AT_Get_CGATT), "AT+CGATT?", "Get_CGATT", "+CGATT: 1", {{'1'}}},
    {With(TANDEKOR_AT_Get_CGREG), "AT+CGREG?", "Get_CGREG", "+CGREG: 0,5", {{'0'}, {'5'}}},
    {With(TANDEKOR_AT_Get_CR), "AT+CR?", "Get_CR", "+CR: 1", {{'1'}}},
    {With(TANDEKOR_AT_Get_CMEE), "AT+CMEE?", "Get_CMEE", "+CMEE: 2", {U32('2')}},
    {With(TANDEKOR_AT_Get_CCWA), "AT+CCWA?", "Get_CCWA", "+CCWA: 1", {U32(1)}},
    {With(TANDEKOR_AT_Get_CPAS), "AT+CPAS", "Get_CPAS", "+CPAS: 34", {U32(4)}},
    {With(TANDEKOR_AT_Get_SCKA), "AT^SCKA?", "Get_SCKA"},
    {With(TANDEKOR_AT_Get_SCKS), "AT^SCKS?", "Get_SCKS"},
    {With(TANDEKOR_AT_Get_CVIB), "AT+CVIB?", "Get_CVIB", "+CVIB: 16", {{16}}},
    {With(TANDEKOR_AT_Set_CVIB, {0}), "AT+CVIB=2", "Set_CVIB(0)"},
    {With(TANDEKOR_AT_Set_CVIB, {1}), "AT+CVIB=0", "Set_CVIB(1)"},
    {With(TANDEKOR_AT_Set_CVIB, {3}), "AT+CVIB=16", "Set_CVIB(3)"},
    {With(TANDEKOR_AT_Set_CVIB, {86}), "AT+CVIB=99", "Set_CVIB(86)"},
    {With(TANDEKOR_AT_Set_CVIB, {87}), "AT+CVIB=10", "Set_CVIB(87)"},
    {With(TANDEKOR_AT_Set_CVIB, {243}), "AT+CVIB=0", "Set_CVIB(243)"},
    {With(TANDEKOR_AT_Set_CVIB, {252}), "AT+CVIB=9", "Set_CVIB(252)"},
    {With(TANDEKOR_AT_Set_SKPD, {0}), "AT^SKPD=0", "Set_SKPD(0)"},
    {With(TANDEKOR_AT_Set_SKPD, {123}), "AT^SKPD=123", "Set_SKPD(123)"},
    {With(TANDEKOR_AT_Set_CGATT, {-1}), "AT+CGATT", "Set_CGATT"},
    {With(TANDEKOR_AT_Set_CGATT, {10}), "AT+CGATT=1", "Set_CGATT"},
    {With(TANDEKOR_AT_Set_CGATT, {-2}), "AT+CGATT=4", "Set_CGATT"},
    {With(TANDEKOR_AT_Get_WS46), "AT+WS46?", "Get_WS46", "12", {{12}}},
    {With(TANDEKOR_AT_Set_WS46, {5}), "AT+WS46=05", "Set_WS46"},
    {With(TANDEKOR_AT_Set_WS46, {254}), "AT+WS46=24", "Set_WS46"},
    {With(TANDEKOR_AT_Set_WS46, {255}), "AT+WS46", "Set_WS46"},
    {With(TANDEKOR_AT_Get_IPR), "AT+IPR?", "Get_IPR", "+IPR: 115200", {U32(115200)}},
    {With(TANDEKOR_AT_Set_IPR, {0}), "AT+IPR=0", "Set_IPR"},
    {With(TANDEKOR_AT_Set_IPR, {-1}), "AT+IPR=4294967295", "Set_IPR"},
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
    AtTable table{{}, edges};
    for (const Command& command : commands)
    {
        table.commands.push_back({command.call, command.request, command.log, command.timeoutMs});
        if (!command.reply.empty())
            table.replies.push_back({command.call, Reply(command.request, command.reply), command.values});
        // Without echo the values are found where the echo would have nine bytes.
        if (!command.reply.empty() && command.request.size() == 8)
            table.replies.push_back({command.call, Reply("", command.reply), command.values});
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
