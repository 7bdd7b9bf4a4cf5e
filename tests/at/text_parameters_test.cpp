#include "tests/at/at_test.h"

namespace tandekor::test
{

namespace
{

const std::string password("\1\2\3\4");
const std::string noPassword("-xyz");
constexpr size_t most = 1366;

const Call getClck = With(TANDEKOR_AT_Get_CLCK, {"SCX", Out{most}, Out{most * 4}});
const Call getSlck = With(TANDEKOR_AT_Get_SLCK, {"PN", Out{most}, Out{most * 4}});
const Call getCpin = With(TANDEKOR_AT_Get_CPIN, {Out{16}});
const Call getCcfc
    = With(TANDEKOR_AT_Get_CCFC, {12, Out{600 * 4}, Out{600 * 4}, Out{600 * 12}, Out{600 * 4}, Out{600 * 4}});
const Call getCsca = With(TANDEKOR_AT_Get_CSCA, {Out{50}, Out{50}});
const Call getCscb = With(TANDEKOR_AT_Get_CSCB, {Out{1}, Out{4097}, Out{4097}});
const Call getCscs = With(TANDEKOR_AT_Get_CSCS, {Out{16}});

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

const std::vector<SentCommand> commands = {
    {With(TANDEKOR_AT_Set_CKPD, {"123", 5, 0xFFFF}), "AT+CKPD=123,5", "Set_CKPD(Keys: 123, Time: 5, Pause: 65535)"},
    {With(TANDEKOR_AT_Set_CKPD, {"%s#", 0xFFFF, 5}), "AT+CKPD=%s#", "Set_CKPD(Keys: %s#, Time: 65535, Pause: 5)"},
    {With(TANDEKOR_AT_Set_CKPD, {"*", 0, 65534}), "AT+CKPD=*,0,65534", "Set_CKPD(Keys: *, Time: 0, Pause: 65534)"},
    {With(TANDEKOR_AT_Set_CLCK, {"SC", 1, password, 7}), "AT+CLCK=\"SC\",1,1234,7", "Set_CLCK", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"AOX", 12, "1\12\x63\xFF", -1}), "AT+CLCK=\"AO\",1,4192", "Set_CLCK", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"S", 0, noPassword, 7}), "AT+CLCK=\"S\",0", "Set_CLCK", 40000},
    {With(TANDEKOR_AT_Set_CLCK, {"SC", 2, password, 7}), "AT+CLCK=\"SC\",2", "Set_CLCK", 40000},
    {With(TANDEKOR_AT_Set_SLCK, {"PN", 1, password, 128}), "AT^SLCK=\"PN\",1,1234,128", "Set_SLCK", 40000},
    {With(TANDEKOR_AT_Set_SLCK, {"PN", 1, password, 0}), "AT^SLCK=\"PN\",1,1234,0", "Set_SLCK", 40000},
    {getClck, "AT+CLCK=\"SC\",2", "Get_CLCK", 5000},
    {getSlck, "AT^SLCK=\"PN\",2", "Get_SLCK", 5000},
    {getCpin, "AT+CPIN?", "Get_CPIN"},
    {With(TANDEKOR_AT_Set_CPIN, {"1234", "-"}), "AT+CPIN=\"1234\"", "Set_CPIN"},
    {With(TANDEKOR_AT_Set_CPIN, {"12345678", "98765"}), "AT+CPIN=\"12345678\",\"9876\"", "Set_CPIN"},
    {With(TANDEKOR_AT_Set_CPIN, {"", "98"}), "AT+CPIN=\"\",\"98\"", "Set_CPIN"},
    {With(TANDEKOR_AT_Set_CCFC, {0, 3, "12345678901234567890", 145, 10, 20}), "AT+CCFC=0,3,\"123456789012\",145,10,2",
     "Set_CCFC", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {2, 3, "+49", 255, -1, -1}), "AT+CCFC=2,3,\"+49\"", "Set_CCFC", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {2, 3, "+49", 255, 1, 5}), "AT+CCFC=2,3,\"+49\",1,5", "Set_CCFC", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {12, 4, "-", 145, 7, 5}), "AT+CCFC=1,4", "Set_CCFC", 25000},
    {With(TANDEKOR_AT_Set_CCFC, {0, 2, "+49", 145, 7, 5}), "AT+CCFC=0,2", "Set_CCFC", 25000},
    {getCcfc, "AT+CCFC=1,2", "Get_CCFC", 10000},
    {SetCcwa(255, 2, 7), "AT+CCWA", "Set_CCWA", 20000},
    {SetCcwa(1, 255, 7), "AT+CCWA=1", "Set_CCWA", 20000},
    {SetCcwa(1, 2, -1), "AT+CCWA=1,2", "Set_CCWA", 20000},
    {SetCcwa(10, 20, 100), "AT+CCWA=1,2,100", "Set_CCWA", 20000},
    {getCsca, "AT+CSCA?", "Get_CSCA"},
    {With(TANDEKOR_AT_Set_CSCA, {"-1", "-"}), "AT+CSCA=\"-1\"", "Set_CSCA"},
    {With(TANDEKOR_AT_Set_CSCA, {std::string(60, '1'), std::string(60, '2')}),
     "AT+CSCA=\"" + std::string(60, '1') + "\",\"" + std::string(50, '2') + "\"", "Set_CSCA"},
    {getCscb, "AT+CSCB?", "Get_CSCB"},
    {With(TANDEKOR_AT_Set_CSCB, {255, "1", "\1"}), "AT+CSCB", "Set_CSCB"},
    {With(TANDEKOR_AT_Set_CSCB, {10, "-1", "\1"}), "AT+CSCB=1", "Set_CSCB"},
    {With(TANDEKOR_AT_Set_CSCB, {0, "0,5,320-478", "-"}), "AT+CSCB=0,\"0,5,320-478\"", "Set_CSCB"},
    {With(TANDEKOR_AT_Set_CSCB, {1, "", "\1\x0C\xC8"}), "AT+CSCB=1,\"\",\"112\"", "Set_CSCB"},
    {getCscs, "AT+CSCS?", "Get_CSCS"},
    {With(TANDEKOR_AT_Set_CSCS, {"-"}), "AT+CSCS", "Set_CSCS"},
    {With(TANDEKOR_AT_Set_CSCS, {"12345678901234567"}), "AT+CSCS=\"1234567890123456\"", "Set_CSCS"},
    {Crsm(176, 28421, 0, 10, 255, "\1\2\x0C"), "AT+CRSM=176,28421,0,1,2,121", "CRSM"},
    {Crsm(7, 0, 1, 2, 3, "-\1"), "AT+CRSM=007,0,1,2,3", "CRSM"},
    {Crsm(0, 12258, 1, -1, 3, "\1"), "AT+CRSM=000,12258", "CRSM"},
    {Crsm(255, -1, 1, 2, 3, "\1"), "AT+CRSM=255", "CRSM"},
};

const Bytes untouched = {};
const Bytes none = Ascii("-");  // a field that the reply does not hold, without a NUL
const uint32_t noNumber = UINT32_MAX;

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
};

}  // namespace

AtTable TextParameters()
{
    return {commands,
            replies,
            {Dense("\r\n+CLCK", ": 1"), Dense("\r\n+CLCK", ": 1,"), Dense("\n", "0x,+,1,1,"),
             Dense("\r\n+CCWA:", "1,x "), Dense("AT+CRSM=242  144,0,\"", "x")}};
}

using AtTextParametersTest = AtTest;

// A command that outgrows the 4096 bytes of a request is logged, but not sent.
TEST_F(AtTextParametersTest, TextsThatOutgrowTheRequestAreNotSent)
{
    const struct
    {
        Call (*with)(const std::string&);
        const char* log;
        size_t longest;
        char fill;
    } cases[] = {
        {Keys, "TANDEKOR_AT_Set_CKPD(Keys: 5", 4086, '5'}, {Pin, "TANDEKOR_AT_Set_CPIN()", 4084, '5'},
        {CentreOf, "TANDEKOR_AT_Set_CSCA()", 4084, '5'},   {Channels, "TANDEKOR_AT_Set_CSCB()", 4082, '5'},
        {Schemes, "TANDEKOR_AT_Set_CSCB()", 4079, '\5'},   {CrsmWith, "TANDEKOR_AT_CRSM()", 4074, '\5'},
    };
    for (const auto& row : cases)
    {
        for (const size_t length : {row.longest, row.longest + 1})
        {
            SCOPED_TRACE(row.log + std::to_string(length));
            simulator::ForgetLog();
            simulator::ForgetCalls();
            const bool fits = length == row.longest;
            if (fits)
                Replies("OK");
            const CallResult call = row.with(std::string(length, row.fill))(handle);
            EXPECT_EQ(call.result, fits ? 1 : 0);
            EXPECT_EQ(call.written.back(), fits);
            EXPECT_EQ(CountExchanges(), fits ? 1U : 0U);
            EXPECT_TRUE(!fits || simulator::Exchanges().back().request.size() == 4096);
            EXPECT_TRUE(Log().size() == 1 && Log()[0].starts_with(row.log));
        }
    }
    EXPECT_EQ(With(TANDEKOR_AT_Set_CKPD, {std::string(20000, '5'), 1, 1})(handle).result, 0);
    EXPECT_EQ(Log().back(), "TANDEKOR_AT_Set_CKPD(Keys: " + std::string(12291 - 27, '5'));
}

}  // namespace tandekor::test
