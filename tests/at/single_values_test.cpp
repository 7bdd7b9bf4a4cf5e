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
    std::string reply = {};  // line of an answer, where one is read
    Numbers values = {};     // what is read of it
    uint32_t timeoutMs = 3000;
};

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands = {
        {With(TANDEKOR_AT_2_OBEX), "AT^SQWE=3", "TANDEKOR_AT_2_OBEX()"},
        {With(TANDEKOR_AT_CRMP), "AT+CRMP", "TANDEKOR_AT_CRMP()"},
        {With(TANDEKOR_AT_CHUP), "AT+CHUP", "TANDEKOR_AT_CHUP()"},
        {With(TANDEKOR_AT_Get_CMUT), "AT+CMUT?", "TANDEKOR_AT_Get_CMUT()", "+CMUT: 1", {1}},
        {With(TANDEKOR_AT_Get_CALM), "AT+CALM?", "TANDEKOR_AT_Get_CALM()", "+CALM: 2", {2}},
        {With(TANDEKOR_AT_Get_CRSL), "AT+CRSL?", "TANDEKOR_AT_Get_CRSL()", "+CRSL: 34", {3}},
        {With(TANDEKOR_AT_Get_CLVL), "AT+CLVL?", "TANDEKOR_AT_Get_CLVL()", "+CLVL: 7", {7}},
        {With(TANDEKOR_AT_Get_CTZU), "AT+CTZU?", "TANDEKOR_AT_Get_CTZU()", "+CTZU: 1", {1}},
        {With(TANDEKOR_AT_Get_CTZR), "AT+CTZR?", "TANDEKOR_AT_Get_CTZR()", "+CTZR: 9", {9}},
        {With(TANDEKOR_AT_Get_CMEC), "AT+CMEC?", "TANDEKOR_AT_Get_CMEC()", "+CMEC: 2,0,0", {2}},
        {With(TANDEKOR_AT_Get_CLIP), "AT+CLIP?", "TANDEKOR_AT_Get_CLIP()", "+CLIP: 1,2", {1}},
        {With(TANDEKOR_AT_Get_CAOC), "AT+CAOC?", "TANDEKOR_AT_Get_CAOC()", "+CAOC: 2", {2}},
        {With(TANDEKOR_AT_Get_SLNG), "AT^SLNG?", "TANDEKOR_AT_Get_SLNG()", "^SLNG: 5", {5}},
        {With(TANDEKOR_AT_Get_SNFS), "AT^SNFS?", "TANDEKOR_AT_Get_SNFS()", "^SNFS: 4", {4}},
        {With(TANDEKOR_AT_Get_SNFV), "AT^SNFV?", "TANDEKOR_AT_Get_SNFV()", "^SNFV: 3", {3}},
        {With(TANDEKOR_AT_Get_SICO), "AT^SICO?", "TANDEKOR_AT_Get_SICO()", "^SICO: 1, 6", {6}},
        {With(TANDEKOR_AT_Set_CMUT, {1}), "AT+CMUT=1", "TANDEKOR_AT_Set_CMUT(1)"},
        {With(TANDEKOR_AT_Set_CALM, {25}), "AT+CALM=2", "TANDEKOR_AT_Set_CALM(25)"},
        {With(TANDEKOR_AT_Set_CRSL, {0}), "AT+CRSL=0", "TANDEKOR_AT_Set_CRSL(0)"},
        {With(TANDEKOR_AT_Set_CLVL, {12}), "AT+CLVL=1", "TANDEKOR_AT_Set_CLVL(12)"},
        {With(TANDEKOR_AT_Set_CTZU, {9}), "AT+CTZU=9", "TANDEKOR_AT_Set_CTZU(9)"},
        {With(TANDEKOR_AT_Set_CTZR, {10}), "AT+CTZR=1", "TANDEKOR_AT_Set_CTZR(10)"},
        {With(TANDEKOR_AT_Set_CMEC, {99}), "AT+CMEC=9", "TANDEKOR_AT_Set_CMEC(99)"},
        {With(TANDEKOR_AT_Set_CLIP, {100}), "AT+CLIP=1", "TANDEKOR_AT_Set_CLIP(100)"},
        {With(TANDEKOR_AT_Set_COLP, {123}), "AT+COLP=1", "TANDEKOR_AT_Set_COLP(123)"},
        {With(TANDEKOR_AT_Set_CAOC, {255}), "AT+CAOC=2", "TANDEKOR_AT_Set_CAOC(255)"},
        {With(TANDEKOR_AT_Set_SACM, {7}), "AT^SACM=7", "TANDEKOR_AT_Set_SACM(7)"},
        {With(TANDEKOR_AT_Set_SLNG, {2}), "AT^SLNG=2", "TANDEKOR_AT_Set_SLNG(2)"},
        {With(TANDEKOR_AT_Set_SNFS, {30}), "AT^SNFS=3", "TANDEKOR_AT_Set_SNFS(30)"},
        {With(TANDEKOR_AT_Set_SNFV, {4}), "AT^SNFV=4", "TANDEKOR_AT_Set_SNFV(4)"},
        {With(TANDEKOR_AT_Set_SICO, {5}), "AT^SICO=5", "TANDEKOR_AT_Set_SICO(5)"},
        {With(TANDEKOR_AT_Set_CREG, {2}), "AT+CREG=2", "TANDEKOR_AT_Set_CREG()"},
        {With(TANDEKOR_AT_Set_CBST, {71}), "AT+CBST=7", "TANDEKOR_AT_Set_CBST()"},
        {With(TANDEKOR_AT_Set_CMEE, {1}), "AT+CMEE=1", "TANDEKOR_AT_Set_CMEE()"},
        {With(TANDEKOR_AT_Set_CR, {12}), "AT+CR=1", "TANDEKOR_AT_Set_CR()"},
        {With(TANDEKOR_AT_Set_SMSO, {1}), "AT^SMSO=1", "TANDEKOR_AT_Set_SMSO()", "", {}, 12000},
        {With(TANDEKOR_AT_CHLD, {-1}), "AT+CHLD=4", "TANDEKOR_AT_CHLD()"},
        {With(TANDEKOR_AT_Set_SCKS, {-1}), "AT^SCKS=4", "TANDEKOR_AT_Set_SCKS()"},
        {With(TANDEKOR_AT_Get_COLP), "AT+COLP?", "TANDEKOR_AT_Get_COLP()", "+COLP: 1,2", {1, 2}},
        {With(TANDEKOR_AT_Get_CSSN), "AT+CSSN?", "TANDEKOR_AT_Get_CSSN()", "+CSSN: 0,1", {0, 1}},
        {With(TANDEKOR_AT_Get_CGEREP), "AT+CGEREP?", "TANDEKOR_AT_Get_CGEREP()", "+CGEREP: 2,1", {2, 1}},
        {With(TANDEKOR_AT_Set_CSSN, {12, 34}), "AT+CSSN=1,3", "TANDEKOR_AT_Set_CSSN(12, 34)"},
        {With(TANDEKOR_AT_Set_CSSN, {0, 255}), "AT+CSSN=0", "TANDEKOR_AT_Set_CSSN(0, 255)"},
        {With(TANDEKOR_AT_Set_CGEREP, {2, 1}), "AT+CGEREP=2,1", "TANDEKOR_AT_Set_CGEREP(2, 1)"},
        {With(TANDEKOR_AT_Set_SRMP, {9, 25}), "AT^SRMP=9,2", "TANDEKOR_AT_Set_SRMP(9, 25)"},
        {With(TANDEKOR_AT_Set_SRMP, {12, 255}), "AT^SRMP=12", "TANDEKOR_AT_Set_SRMP(12, 255)"},
        {With(TANDEKOR_AT_Set_SRMP, {120, 0}), "AT^SRMP=12,0", "TANDEKOR_AT_Set_SRMP(120, 0)"},
        {With(TANDEKOR_AT_Get_CGATT), "AT+CGATT?", "TANDEKOR_AT_Get_CGATT()", "+CGATT: 1", {'1'}},
        {With(TANDEKOR_AT_Get_CGREG), "AT+CGREG?", "TANDEKOR_AT_Get_CGREG()", "+CGREG: 0,5", {'0', '5'}},
        {With(TANDEKOR_AT_Get_CR), "AT+CR?", "TANDEKOR_AT_Get_CR()", "+CR: 1", {'1'}},
        {With(TANDEKOR_AT_Get_CMEE), "AT+CMEE?", "TANDEKOR_AT_Get_CMEE()", "+CMEE: 2", {'2'}},
        {With(TANDEKOR_AT_Get_CCWA), "AT+CCWA?", "TANDEKOR_AT_Get_CCWA()", "+CCWA: 1", {1}},
        {With(TANDEKOR_AT_Get_CPAS), "AT+CPAS", "TANDEKOR_AT_Get_CPAS()", "+CPAS: 34", {4}},
        {With(TANDEKOR_AT_Get_SCKA), "AT^SCKA?", "TANDEKOR_AT_Get_SCKA()"},
        {With(TANDEKOR_AT_Get_SCKS), "AT^SCKS?", "TANDEKOR_AT_Get_SCKS()"},
        {With(TANDEKOR_AT_Get_CVIB), "AT+CVIB?", "TANDEKOR_AT_Get_CVIB()", "+CVIB: 16", {16}},
        {With(TANDEKOR_AT_Set_CVIB, {0}), "AT+CVIB=2", "TANDEKOR_AT_Set_CVIB(0)"},
        {With(TANDEKOR_AT_Set_CVIB, {1}), "AT+CVIB=0", "TANDEKOR_AT_Set_CVIB(1)"},
        {With(TANDEKOR_AT_Set_CVIB, {3}), "AT+CVIB=16", "TANDEKOR_AT_Set_CVIB(3)"},
        {With(TANDEKOR_AT_Set_CVIB, {86}), "AT+CVIB=99", "TANDEKOR_AT_Set_CVIB(86)"},
        {With(TANDEKOR_AT_Set_CVIB, {87}), "AT+CVIB=10", "TANDEKOR_AT_Set_CVIB(87)"},
        {With(TANDEKOR_AT_Set_CVIB, {243}), "AT+CVIB=0", "TANDEKOR_AT_Set_CVIB(243)"},
        {With(TANDEKOR_AT_Set_CVIB, {252}), "AT+CVIB=9", "TANDEKOR_AT_Set_CVIB(252)"},
        {With(TANDEKOR_AT_Set_SKPD, {0}), "AT^SKPD=0", "TANDEKOR_AT_Set_SKPD(0)"},
        {With(TANDEKOR_AT_Set_SKPD, {123}), "AT^SKPD=123", "TANDEKOR_AT_Set_SKPD(123)"},
        {With(TANDEKOR_AT_Set_CGATT, {-1}), "AT+CGATT", "TANDEKOR_AT_Set_CGATT()"},
        {With(TANDEKOR_AT_Set_CGATT, {10}), "AT+CGATT=1", "TANDEKOR_AT_Set_CGATT()"},
        {With(TANDEKOR_AT_Set_CGATT, {-2}), "AT+CGATT=4", "TANDEKOR_AT_Set_CGATT()"},
        {With(TANDEKOR_AT_Get_WS46), "AT+WS46?", "TANDEKOR_AT_Get_WS46()", "12", {12}},
        {With(TANDEKOR_AT_Set_WS46, {5}), "AT+WS46=05", "TANDEKOR_AT_Set_WS46()"},
        {With(TANDEKOR_AT_Set_WS46, {254}), "AT+WS46=24", "TANDEKOR_AT_Set_WS46()"},
        {With(TANDEKOR_AT_Set_WS46, {255}), "AT+WS46", "TANDEKOR_AT_Set_WS46()"},
        {With(TANDEKOR_AT_Get_IPR), "AT+IPR?", "TANDEKOR_AT_Get_IPR()", "+IPR: 115200", {115200}},
        {With(TANDEKOR_AT_Set_IPR, {0}), "AT+IPR=0", "TANDEKOR_AT_Set_IPR()"},
        {With(TANDEKOR_AT_Set_IPR, {-1}), "AT+IPR=4294967295", "TANDEKOR_AT_Set_IPR()"},
    };
    return commands;
}

class AtSingleValuesTest : public AtTest
{
protected:
    // The out-arguments behind a reply, *pStatus last.
    Numbers Outs(const Call& call, const std::string& reply)
    {
        Replies(reply);
        const CallResult made = call(handle);
        EXPECT_EQ(made.result, 1) << reply;
        return Values(made.outs);
    }
};

}  // namespace

AtTable SingleValues()
{
    AtTable table;
    for (const Command& command : Commands())
        table.commands.push_back({command.call, command.request, command.log, command.timeoutMs});
    return table;
}

TEST_F(AtSingleValuesTest, StatusIsTheWordAtTheVeryEnd)
{
    struct
    {
        std::string reply;
        uint32_t status;
    } const cases[] = {
        {"OK", 0},        {"AT+CHUP\r\r\nOK", 0}, {"NOK", 0},        {"ERROR", 1},
        {"\r\nERROR", 1}, {"+CME ERROR", 1},      {"", 2},           {"K", 2},
        {"RROR", 2},      {"\r\nOK\r\n", 2},      {"ERROR\r\n", 2},  {"+CME ERROR: 10", 2},
        {"ok", 2},        {"error", 2},           {"NO CARRIER", 2}, {std::string(4094, '7') + "OK", 0},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Outs(With(TANDEKOR_AT_CHUP), row.reply), Numbers{row.status}) << row.reply;
}

// Without echo the values are found where the echo would have nine bytes.
TEST_F(AtSingleValuesTest, ValuesAreReadBehindTheEchoAndWithoutIt)
{
    for (const Command& command : Commands())
    {
        if (command.reply.empty())
            continue;
        Numbers expected = command.values;
        expected.push_back(0);
        const std::string reply = "\r\n" + command.reply + "\r\n\r\nOK";
        EXPECT_EQ(Outs(command.call, command.request + '\r' + reply), expected) << command.request;
        if (command.request.size() == 8)
        {
            EXPECT_EQ(Outs(command.call, reply), expected) << command.request << " without echo";
        }
    }
}

TEST_F(AtSingleValuesTest, ValuesAtTheEdgesOfTheirRules)
{
    struct
    {
        Call call;
        std::string reply;
        Numbers outs;
    } const cases[] = {
        {With(TANDEKOR_AT_Get_CMUT), "at+cmut?\r\r\n+CMUT: 1\r\n\r\nOK", {1, 0}},
        {With(TANDEKOR_AT_Get_CVIB), "AT+CVIB?\r\r\n+CVIB: 1\r\n\r\nOK", {1, 0}},
        {With(TANDEKOR_AT_Get_CVIB), "AT+CVIB?\r\r\n+CVIB: 1", {10, 2}},
        {With(TANDEKOR_AT_Get_CCWA), "AT+CCWA?\r\r\n+CCWA:  \r\n\r\nOK", {0xFFFFFFF0, 0}},
        {With(TANDEKOR_AT_Get_CGATT), "\r\n+CGATT: 1\r\n\r\nOK", {'\r', 0}},
        {With(TANDEKOR_AT_Get_WS46), "AT+WS46?\r\r\n9\r\n\r\nOK", {9, 0}},
        {With(TANDEKOR_AT_Get_WS46), "AT+WS46?\r\r\nx2\r\n\r\nOK", {0x55, 0}},
        {With(TANDEKOR_AT_Get_IPR), "\r\n+IPR: 115200\r\n\r\nOK", {115200, 0}},
        {With(TANDEKOR_AT_Get_IPR), "AT+IPR?\r\r\n+IPR:9 1 x2\n3\r4\r\n\r\nOK", {9123, 0}},
        {With(TANDEKOR_AT_Get_IPR), "AT+IPR?\r\r\n+IPR: 960", {960, 2}},
        {With(TANDEKOR_AT_Get_SCKA), "AT^SCKA?\r\r\n^SCKA: 0\r\n\r\nOK", {0, 0}},
        {With(TANDEKOR_AT_Get_SCKS), "AT^SCKS?\r\r\n^SCKS: 2, 1\r\n\r\nOK", {2, 1, 0}},
        {With(TANDEKOR_AT_Get_SCKS), "AT^SCKS?\r\r\n^SCKS: 2,1\r\n\r\nOK", {0xFFFFFFF0, 1, 0}},
        {With(TANDEKOR_AT_Get_SCKS), "A12", {0x55555555, 2, 2}},
        {With(TANDEKOR_AT_Get_SCKS), "A123", {'A' - '0', 3, 2}},
        // The end of a reply without echo is looked for nine bytes early as well.
        {With(TANDEKOR_AT_Get_CPAS), "\r\n+CPAS: 4\r\n\r\nOK", {0x55555555, 0}},
        {With(TANDEKOR_AT_Get_CPAS), "\r\n+CPAS: 4\r\n\r\n+CPAS: 5\r\n\r\nOK", {4, 0}},
    };
    for (const auto& row : cases)
        EXPECT_EQ(Outs(row.call, row.reply), row.outs) << row.reply;
}

// Behind the reply stands the fill 0xBB; 0x55 is what the caller had. None of the replies ends in OK.
TEST_F(AtSingleValuesTest, RepliesWithoutTheValue)
{
    constexpr uint32_t untouched = 0x55555555;
    struct
    {
        Call call;
        Numbers none, digits, letters;  // read of a reply that breaks off, of one of digits alone, of one of letters
    } const cases[] = {
        {With(TANDEKOR_AT_Get_CMUT), {0}, {7}, {0}},
        {With(TANDEKOR_AT_Get_COLP), {0, 0}, {7, 7}, {0, 0}},
        {With(TANDEKOR_AT_Get_CVIB), {0}, {77}, {0}},
        {With(TANDEKOR_AT_Get_CGATT), {0xBB}, {'7'}, {'x'}},
        {With(TANDEKOR_AT_Get_CMEE), {0xBB}, {'7'}, {'x'}},
        {With(TANDEKOR_AT_Get_CCWA), {0xBB - '0'}, {7}, {'x' - '0'}},
        {With(TANDEKOR_AT_Get_CPAS), {untouched}, {7}, {untouched}},
        {With(TANDEKOR_AT_Get_SCKS), {untouched, untouched}, {7, 7}, {untouched, untouched}},
        {With(TANDEKOR_AT_Get_WS46), {0x55}, {77}, {0x55}},
        {With(TANDEKOR_AT_Get_IPR), {0}, {7777777}, {0}},
    };
    const auto with = [](Numbers values, uint32_t status) { return values.push_back(status), values; };
    for (size_t i = 0; i < std::size(cases); ++i)
    {
        SCOPED_TRACE(i);
        const auto& row = cases[i];
        EXPECT_EQ(Outs(row.call, "AT+CMUT?\r\r\nERROR"), with(row.none, 1));
        EXPECT_EQ(Outs(row.call, ""), with(row.none, 2));
        EXPECT_EQ(Outs(row.call, "AT+CMUT?\r\r\n+CMUT: "), with(row.none, 2));
        EXPECT_EQ(Outs(row.call, "7777777777777"), with(row.digits, 2));
        EXPECT_EQ(Outs(row.call, std::string(4096, 'x')), with(row.letters, 2));
    }
}

}  // namespace tandekor::test
