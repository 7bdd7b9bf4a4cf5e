// Commands with texts, and messages.
#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

const std::string password("\1\2\3\4"), noPassword("-xyz");
constexpr size_t most = 1366, mostMessages = 512, rowSize = 1024;  // for any reply
const uint32_t noNumber = UINT32_MAX;

const Call getClck = With(TANDEKOR_AT_Get_CLCK, {"SCX", Out{most}, Out{most * 4}});
const Call getSlck = With(TANDEKOR_AT_Get_SLCK, {"PN", Out{most}, Out{most * 4}});
const Call getCcfc
    = With(TANDEKOR_AT_Get_CCFC, {12, Out{600 * 4}, Out{600 * 4}, Out{600 * 12}, Out{600 * 4}, Out{600 * 4}});
const Call getCsca = With(TANDEKOR_AT_Get_CSCA, {Out{50}, Out{50}});
const Call getCscb = With(TANDEKOR_AT_Get_CSCB, {Out{1}, Out{4097}, Out{4097}});
const Call getCscs = With(TANDEKOR_AT_Get_CSCS, {Out{16}}), getCpin = With(TANDEKOR_AT_Get_CPIN, {Out{16}});

Call SetCcwa(int n, int mode, int classNumber)
{
    return With(TANDEKOR_AT_Set_CCWA, {n, mode, classNumber, Out{most * 4}, Out{most * 4}});
}
Call Crsm(int command, int fileId, int p1, int p2, int p3, const std::string& data)
{
    return With(TANDEKOR_AT_CRSM, {command, fileId, p1, p2, p3, data, Out{4}, Out{4}, Out{4096}});
}
Call Keys(const std::string& text) { return With(TANDEKOR_AT_Set_CKPD, {text, 0xFFFF, 0}); }
Call Pin(const std::string& text) { return With(TANDEKOR_AT_Set_CPIN, {text, "-"}); }
Call CentreOf(const std::string& text) { return With(TANDEKOR_AT_Set_CSCA, {text, "-"}); }
Call Channels(const std::string& text) { return With(TANDEKOR_AT_Set_CSCB, {1, text, "-"}); }
Call Schemes(const std::string& text) { return With(TANDEKOR_AT_Set_CSCB, {1, "", text}); }
Call CrsmWith(const std::string& text) { return Crsm(1, 2, 3, 4, 5, text); }
const Call crsmStatus = Crsm(242, -1, 0, 0, 0, "-");

template <typename List>
Call ListWith(List* list, int filter)
{
    return With(list, {filter, Out{mostMessages * 4}, Out{mostMessages * 4}, Out{mostMessages * 4},
                       Out{mostMessages * 4}, Out{mostMessages * rowSize}});
}

const Call cmgl = ListWith(TANDEKOR_AT_CMGL, 4), smgl = ListWith(TANDEKOR_AT_SMGL, 4);
const Call cmgr = With(TANDEKOR_AT_Set_CMGR, {7, 10, Out{2}, Out{1}, Out{10}});
const Call smgr = With(TANDEKOR_AT_Set_SMGR, {7, 200, Out{2}, Out{1}, Out{200}});
const Call cmgrOfNothing = With(TANDEKOR_AT_Set_CMGR, {7, 0});

const std::vector<Bytes> nothing = {{}, {}, {}, {}, {}, U32(0)};

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

const std::vector<SentCommand> commands = {
    {With(TANDEKOR_AT_Set_CKPD, {"123", 5, 0xFFFF}), "+CKPD=123,5", "(Keys: 123, Time: 5, Pause: 65535)"},
    {With(TANDEKOR_AT_Set_CKPD, {"%s#", 0xFFFF, 5}), "+CKPD=%s#", "(Keys: %s#, Time: 65535, Pause: 5)"},
    {With(TANDEKOR_AT_Set_CKPD, {"*", 0, 65534}), "+CKPD=*,0,65534", "(Keys: *, Time: 0, Pause: 65534)"},
    {With(TANDEKOR_AT_Set_CLCK, {"SC", 1, password, 7}), "+CLCK=\"SC\",1,1234,7", "", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"AOX", 12, "1\12\x63\xFF", -1}), "+CLCK=\"AO\",1,4192", "", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"S", 0, noPassword, 7}), "+CLCK=\"S\",0", "", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"SC", 2, password, 7}), "+CLCK=\"SC\",2", "", 40000},
    {With(TANDEKOR_AT_Set_SLCK, {"PN", 1, password, 128}), "^SLCK=\"PN\",1,1234,128", "", 40000},
    {With(TANDEKOR_AT_Set_SLCK, {"PN", 1, password, 0}), "^SLCK=\"PN\",1,1234,0", "", 40000},
    {getClck, "+CLCK=\"SC\",2", "Get_CLCK", 5000},
    {getSlck, "^SLCK=\"PN\",2", "Get_SLCK", 5000},
    {getCpin, "+CPIN?"},
    {With(TANDEKOR_AT_Set_CPIN, {"1234", "-"}), "+CPIN=\"1234\""},
    {With(TANDEKOR_AT_Set_CPIN, {"12345678", "98765"}), "+CPIN=\"12345678\",\"9876\""},
    {With(TANDEKOR_AT_Set_CPIN, {"", "98"}), "+CPIN=\"\",\"98\""},
    {With(TANDEKOR_AT_Set_CCFC, {0, 3, "12345678901234567890", 145, 10, 20}), "+CCFC=0,3,\"123456789012\",145,10,2", "",
     25000},
    {With(TANDEKOR_AT_Set_CCFC, {2, 3, "+49", 255, -1, -1}), "+CCFC=2,3,\"+49\"", "", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {2, 3, "+49", 255, 1, 5}), "+CCFC=2,3,\"+49\",1,5", "", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {12, 4, "-", 145, 7, 5}), "+CCFC=1,4", "", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {0, 2, "+49", 145, 7, 5}), "+CCFC=0,2", "", 25000},
    {getCcfc, "+CCFC=1,2", "Get_CCFC", 10000},
    {SetCcwa(255, 2, 7), "+CCWA", "Set_CCWA", 20000},
    {SetCcwa(1, 255, 7), "+CCWA=1", "", 20000},
    {SetCcwa(1, 2, -1), "+CCWA=1,2", "", 20000},
    {SetCcwa(10, 20, 100), "+CCWA=1,2,100", "", 20000},
    {getCsca, "+CSCA?"},
    {With(TANDEKOR_AT_Set_CSCA, {"-1", "-"}), "+CSCA=\"-1\""},
    {With(TANDEKOR_AT_Set_CSCA, {std::string(60, '1'), std::string(60, '2')}),
     "+CSCA=\"" + std::string(60, '1') + "\",\"" + std::string(50, '2') + "\""},
    {getCscb, "+CSCB?"},
    {With(TANDEKOR_AT_Set_CSCB, {255, "1", "\1"}), "+CSCB", "Set_CSCB"},
    {With(TANDEKOR_AT_Set_CSCB, {10, "-1", "\1"}), "+CSCB=1"},
    {With(TANDEKOR_AT_Set_CSCB, {0, "0,5,320-478", "-"}), "+CSCB=0,\"0,5,320-478\""},
    {With(TANDEKOR_AT_Set_CSCB, {1, "", "\1\x0C\xC8"}), "+CSCB=1,\"\",\"112\""},
    {getCscs, "+CSCS?"},
    {With(TANDEKOR_AT_Set_CSCS, {"-"}), "+CSCS", "Set_CSCS"},
    {With(TANDEKOR_AT_Set_CSCS, {"12345678901234567"}), "+CSCS=\"1234567890123456\""},
    {Crsm(176, 28421, 0, 10, 255, "\1\2\x0C"), "+CRSM=176,28421,0,1,2,121", "CRSM"},
    {Crsm(7, 0, 1, 2, 3, "-\1"), "+CRSM=007,0,1,2,3", "CRSM"},
    {Crsm(0, 12258, 1, -1, 3, "\1"), "+CRSM=000,12258", "CRSM"},
    {Crsm(255, -1, 1, 2, 3, "\1"), "+CRSM=255", "CRSM"},
    {cmgl, "+CMGL=4", "CMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_CMGL, 255), "+CMGL=0", "CMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_SMGL, 12), "^SMGL=1", "SMGL", 3000, nothing},
    {ListWith(TANDEKOR_AT_SMGL, 255), "^SMGL=0", "SMGL", 3000, nothing},
    {cmgr, "+CMGR=7"},
    {With(TANDEKOR_AT_Set_CMGR, {10, 1}), "+CMGR=10"},
    {With(TANDEKOR_AT_Set_CMGR, {100, 1}), "+CMGR=100"},
    {With(TANDEKOR_AT_Set_CMGR, {101, 1}), "+CMGR="},
    {smgr, "^SMGR=7"},
    {With(TANDEKOR_AT_Set_SMGR, {65535, 1}), "^SMGR="},
    {With(TANDEKOR_AT_CMSS, {12, "-"}), "+CMSS=1", "CMSS"},
    {With(TANDEKOR_AT_CMSS, {3, "+49172123456789"}), "+CMSS=3,\"+49172123456\"", "CMSS"},
};

const Bytes untouched = {};
const Bytes none = Ascii("-");  // a field that the reply does not hold, without a NUL

// A state of call forwarding behind its echo.
std::string Forwarding(const std::string& lines) { return "AT+CCFC=1,2\r\r\n+CCFC: " + lines + "\r\n\r\nOK"; }
std::string Centre(const std::string& fields) { return "AT+CSCA?\r\r\n+CSCA: \"" + fields; }

const std::vector<ReadReply> replies = {
    {getClck, Reply("AT+CLCK=\"SC\",2", "+CLCK: 1"), {{'1'}, U32(noNumber), U32(1)}},
    {getClck,
     Reply("AT+CLCK=\"AO\",2", "+CLCK: 0,1\r\n+CLCK: 1,2\r\n+CLCK: 1,16"),
     {{'0', '1', '1'}, U32('1', '2', '1'), U32(3)}},
    {getSlck, Reply("AT^SLCK=\"PN\",2", "^SLCK: 0,7"), {{'0'}, U32('7'), U32(1)}},
    // Without echo the first colon lies in front of the place where the walk begins.
    {getClck, Reply("", "+CLCK: 0,1\r\n+CLCK: 1,2"), {{'1'}, U32('2'), U32(1)}},
    {getClck, "AT+CLCK=\"SC\",2\r\r\n+CLCK: 1,", {{'1'}, U32(noNumber), U32(1)}},
    {getClck, "AT+CLCK=\"SC\",2\r\r\n+CLCK: ", {untouched, untouched, U32(0)}},
    {getClck, "AT+CLCK=\"SC\",2\r\r\nERROR", {untouched, untouched, U32(0)}},
    {getClck, "", {untouched, untouched, U32(0)}},
    {getCpin, Reply("AT+CPIN?", "+CPIN: SIM PIN"), {Text("SIM PIN")}},
    {getCpin, Reply("", "+CPIN: READY"), {Text("READY")}},
    {getCpin, "AT+CPIN?\r\r\n+CPIN: 12345678901234567890", {Text("123456789012345")}},
    {getCpin, "AT+CPIN?\r\r\nERROR", {Text("")}},
    {getCscs, Reply("AT+CSCS?", "+CSCS: \"UCS2\""), {Text("UCS2")}},
    {getCscs, Reply("", "+CSCS: \"1234567890123456\""), {Text("123456789012345")}},
    {getCscs, "AT+CSCS?\r\r\n+CSCS: \"GS", {Text("GS")}},

    {getCcfc, Forwarding("1,7,+4930123456,145,20"), {U32(1), U32(7), Ascii("+4930123456"), U32(145), U32(20), U32(1)}},
    {getCcfc, Reply("", "+CCFC: 0,255"), {U32(0), U32(255), none, U32(noNumber), U32(noNumber), U32(1)}},
    {getCcfc, Forwarding("1,7,\"+4930123456\",145"), {U32(1), U32(7), none, U32(noNumber), U32(noNumber), U32(1)}},
    {getCcfc, Forwarding("1,,555,,20"), {U32(1), U32(0), Ascii("555"), U32(noNumber), U32(noNumber), U32(1)}},
    {getCcfc, Forwarding("1,7,555,129,x"), {U32(1), U32(7), Ascii("555"), U32(129), U32(noNumber), U32(1)}},
    {getCcfc,
     Forwarding("1,1,+,129,5;2 0,2,12345678901234,145,6\r\n+CCFC: 1,4"),
     {U32(1, 0), U32(1, 2), Ascii("+UUUUUUUUUUU123456789012"), U32(129, 145), U32(5, 6), U32(2)}},
    {getCcfc, "AT+CCFC=1,2\r\r\n\r\nOK", {untouched, untouched, untouched, untouched, untouched, U32(0)}},
    {getCcfc, "AT+CCFC=1,2\r\r\n+CCFC: 1,7\r\nERROR", {}},
    {getCcfc, "AT+CCFC=1,2\r\r\n+CCFC: 1,7", {}},

    {SetCcwa(1, 2, -1), Reply("AT+CCWA=1,2", "+CCWA: 1,1\r\n+CCWA: 0,4"), {U32(1, 0), U32(1, 4), U32(2)}},
    {SetCcwa(255, 2, -1), Reply("AT+CCWA", "\r\n+CCWA: 1,64"), {U32(1), U32(64), U32(1)}},
    {SetCcwa(1, 1, -1), Reply("AT+CCWA=1,1", "+CCWA: 1,1"), {}},
    {SetCcwa(1, 2, -1), "AT+CCWA=1,2\r\r\n+CCWA: 1,1\r\nERROR", {}},

    {getCsca, Centre("+49172\",145\r\n\r\nOK"), {Text("+49172"), Text("145")}},
    {getCsca, Centre("+49172\"\r\n\r\nOK"), {Text("+49172"), none}},
    {getCsca, Centre(std::string(49, '1') + "\",145\r\n\r\nOK"), {Text(std::string(49, '1')), Text("145")}},
    {getCsca, Centre(std::string(50, '1') + "x,145\r\n\r\nOK"), {Text(std::string(49, '1')), Text("145")}},
    {getCsca, Centre("1\"," + std::string(49, '2') + "\r\n\r\nOK"), {Text("1"), Text(std::string(49, '2'))}},
    {getCsca, Centre("1\"," + std::string(60, '2') + "\r\n\r\nOK"), {Text("1"), Bytes(50, '2')}},
    {getCsca, Centre("+49"), {Text("+49"), none}},
    {getCsca, Centre("+49\",14"), {Text("+49"), Text("14")}},
    {getCscb, Reply("AT+CSCB?", "+CSCB: 1,\"0,5\",\"0-3\""), {{'1'}, Text("0,5"), Text("0-3")}},
    {getCscb, Reply("", "+CSCB: 0,\"\",\"\""), {{'0'}, Text(""), Text("")}},
    {getCscb, "AT+CSCB?\r\r\n+CSCB: 1,\"0,5", {{'1'}, Text("0,5"), Text("")}},
    {getCscb, "", {{0xBB}, Text(""), Text("")}},
    {getCscb, 'A' + std::string(4095, 'x'), {{'x'}, Text(std::string(4075, 'x')), Text("")}},

    {crsmStatus, Reply("AT+CRSM=242", "+CRSM: 144,0,\"AB\""), {U32(144), U32(0), Ascii("AB\"")}},
    {crsmStatus, Reply("", "+CRSM: 148,12"), {U32(148), U32(12), none}},
    {crsmStatus, Reply("", "+CRSM: 144,x,\"\""), {U32(144), U32('x' - '0'), none}},
    {crsmStatus, "\r\n+CRSM: 144,0,12AB", {U32(144), U32(0), Ascii("2AB")}},
    // The digits of a long command's echo are read as the reply's.
    {crsmStatus, Reply("AT+CRSM=176,28421", "+CRSM: 144,0"), {U32(1), U32('\r' - '0'), none}},
    {crsmStatus, "AT+CRSM=242\r\r\n+CRSM: 14", {U32(14), U32(noNumber), none}},
    {crsmStatus, "AT+CRSM=242\r\r\nERROR", {U32(noNumber), U32(noNumber), none}},
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

AtTable TextCommands()
{
    return {commands,
            replies,
            {Dense("\r\n+CLCK", ": 1"), Dense("\r\n+CLCK", ": 1,"), Dense("\n", "0x,+,1,1,"),
             Dense("\r\n+CCWA:", "1,x "), Dense("AT+CRSM=242  144,0,\"", "x"), Dense("\r", "\n+: 1,1,,1\r\n\r"),
             Dense("\r", "\n^: 1,1,,1\r\n\r"), Dense("\r\n+CMGR: 1,,4000\r\n", "x")}};
}

using AtTextParametersTest = AtTest;

// A command that outgrows the 4096 bytes of a request is logged, but not sent.
TEST_F(AtTextParametersTest, TextsThatOutgrowTheRequestAreNotSent)
{
    // A call with a text, its log, how long the text may be, and of what it is.
    const std::tuple<Call (*)(const std::string&), const char*, size_t, char> cases[] = {
        {Keys, "TANDEKOR_AT_Set_CKPD(Keys: 5", 4086, '5'}, {Pin, "TANDEKOR_AT_Set_CPIN()", 4084, '5'},
        {CentreOf, "TANDEKOR_AT_Set_CSCA()", 4084, '5'},   {Channels, "TANDEKOR_AT_Set_CSCB()", 4082, '5'},
        {Schemes, "TANDEKOR_AT_Set_CSCB()", 4079, '\5'},   {CrsmWith, "TANDEKOR_AT_CRSM()", 4074, '\5'},
    };
    for (const auto& [with, log, longest, fill] : cases)
    {
        for (const size_t more : {0, 1})
        {
            SCOPED_TRACE(log + std::to_string(more));
            simulator::ForgetLog();
            simulator::ForgetCalls();
            simulator::RepeatReply({Ascii("OK"), 1, {}});
            const CallResult call = with(std::string(longest + more, fill))(handle);
            EXPECT_EQ(call.result, 1 - more);
            EXPECT_EQ(call.written.back(), more == 0);
            EXPECT_EQ(CountExchanges(), 1 - more);
            EXPECT_TRUE(more == 1 || simulator::Exchanges().back().request.size() == 4096);
            EXPECT_TRUE(Log().size() == 1 && Log()[0].starts_with(log));
        }
    }
    EXPECT_EQ(With(TANDEKOR_AT_Set_CKPD, {std::string(20000, '5'), 1, 1})(handle).result, 0);
    EXPECT_EQ(Log().back(), "TANDEKOR_AT_Set_CKPD(Keys: " + std::string(12291 - 27, '5'));
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
