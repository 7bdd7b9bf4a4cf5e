// The simulated phone's AT side, as the library finds it.
#include "tests/at/at_test.h"

namespace tandekor::test
{

class SimulatedAtTest : public AtTest
{
protected:
    static constexpr uint16_t ok = 0;
    static constexpr uint16_t refused = 1;
    static constexpr uint16_t numberedError = 2;

    void ExpectStatus(const Call& call, uint16_t status) { ExpectOuts(call, status, {}); }
};

TEST_F(SimulatedAtTest, QueriesAreAnsweredWhereTheirValuesAreReadWithEcho)
{
    const struct
    {
        Call call;
        std::vector<Bytes> outs;
        bool withoutEchoToo = false;  // where the echo has nine bytes
    } cases[] = {
        {With(TANDEKOR_AT_Get_CCLK), {{24}, {3}, {9}, {7}, {5}, {2}, {0}}, true},
        {With(TANDEKOR_AT_Get_CMER), {{0}, {0}, {0}}, true},
        {With(TANDEKOR_AT_Get_CACM), {U16(123)}, true},
        {With(TANDEKOR_AT_Get_CAMM), {U16(4464)}, true},
        {With(TANDEKOR_AT_Get_SACM), {{0}, {123}, {200}}, true},
        {With(TANDEKOR_AT_Get_CBC), {{0}, {85}}},
        {With(TANDEKOR_AT_Get_CREG, {Out{1}, Out{1}, Out{2}, Out{2}}), {{0}, {1}, {'-'}, {'-'}}, true},
        {With(TANDEKOR_AT_Get_CSQ), {{21}, {0}}},
        {With(TANDEKOR_AT_Get_CIND), {{'4'}, {'3'}, {'1'}, {'0'}, {'0'}, {'0'}, {'1'}, {'0'}}},
        {With(TANDEKOR_AT_Get_CBST), {U32(7), {'0'}, {'1'}}},
        {With(TANDEKOR_AT_Get_SIFS), {{3}}},
        {With(TANDEKOR_AT_Get_CEER, {Out{64}}), {Ascii("Normal call clearing\r\n\r\n")}},
        {With(TANDEKOR_AT_Get_CGMI, {Out{64}}), {Ascii("SIMULATED\r\n\r\n")}},
        {With(TANDEKOR_AT_Get_CGMM, {Out{64}}), {Ascii("T52\r\n\r\n")}},
        {With(TANDEKOR_AT_Get_CGMR, {Out{64}}), {Ascii("T52-02.04.15\r\n\r\n")}},
        {With(TANDEKOR_AT_Get_CGSN, {Out{15}}), {Ascii("490154203237518")}},
        {With(TANDEKOR_AT_Get_GSN, {Out{15}}), {Ascii("490154203237518")}},
        {With(TANDEKOR_AT_Get_CIMI, {Out{15}}), {Ascii("262019876543210")}},
        {With(TANDEKOR_AT_Get_SCID, {Out{20}}), {Ascii("89490200001234567890")}},
        {With(TANDEKOR_AT_Get_COPS, {Out{4}, Out{4}, Out{16}}), {U32(0), U32(0), Text("SIMULATED NET")}, true},
        {With(TANDEKOR_AT_Get_CGACT, {Out{8}, Out{8}}), {U32(1, 2), U32(1, 0), U32(2)}, true},
        {With(TANDEKOR_AT_Get_CLCK, {"SC", Out{4}, Out{16}}), {{'0'}, U32(UINT32_MAX), U32(1)}},
        {With(TANDEKOR_AT_Get_SLCK, {"AO", Out{4}, Out{16}}), {{'0', '0', '0'}, U32('1', '2', '4'), U32(3)}},
        {With(TANDEKOR_AT_Get_CPIN, {Out{16}}), {Text("READY")}, true},
        {With(TANDEKOR_AT_Get_CCWA), {U32(0)}, true},
        {With(TANDEKOR_AT_Set_CCWA, {1, 2, -1, Out{4}, Out{4}}), {U32(0), U32(1), U32(1)}, true},
        {With(TANDEKOR_AT_Get_CSCA, {Out{50}, Out{50}}), {Text("+491722270000"), Text("145")}, true},
        {With(TANDEKOR_AT_Get_CSCB, {Out{1}, Out{64}, Out{64}}), {{'0'}, Text("0,50,320-324"), Text("0-3")}, true},
        {With(TANDEKOR_AT_Get_CSCS, {Out{16}}), {Text("GSM")}, true},
        {With(TANDEKOR_AT_CRSM, {242, -1, 0, 0, 0, "-", Out{4}, Out{4}, Out{64}}), {U32(144), U32(0), {'-'}}, true},
    };
    for (const auto& row : cases)
    {
        simulator::ThePhone().atEcho = true;
        ExpectOuts(row.call, ok, row.outs);
        SCOPED_TRACE(LastRequest());
        simulator::ThePhone().atEcho = false;
        if (row.withoutEchoToo)
            ExpectOuts(row.call, ok, row.outs);
    }
}

TEST_F(SimulatedAtTest, SettingsAreKeptFieldByField)
{
    const auto set = [&](const Call& call) { ExpectStatus(call, ok); };
    set(With(TANDEKOR_AT_Set_CMER, {3, 2, 1}));
    ExpectOuts(With(TANDEKOR_AT_Get_CMER), ok, {{3}, {2}, {1}});
    set(With(TANDEKOR_AT_Set_CIND, {255, 255, 0, 255, 255, 255, 255, 9}));
    ExpectOuts(With(TANDEKOR_AT_Get_CIND), ok, {{'4'}, {'3'}, {'0'}, {'0'}, {'0'}, {'0'}, {'1'}, {'9'}});
    set(With(TANDEKOR_AT_Set_COPS, {1, 2, "26201"}));
    set(With(TANDEKOR_AT_Set_COPS, {4, -1, ""}));
    set(With(TANDEKOR_AT_Set_COPS, {3, 0, "-"}));
    ExpectOuts(With(TANDEKOR_AT_Get_COPS, {Out{4}, Out{4}, Out{16}}), ok, {U32(4), U32(0), Text("26201")});
    set(With(TANDEKOR_AT_Set_CREG, {2}));
    ExpectOuts(With(TANDEKOR_AT_Get_CREG, {Out{1}, Out{1}, Out{2}, Out{2}}), ok, {{2}, {1}, {'1', 'A'}, {'2', 'B'}});
    set(With(TANDEKOR_AT_Set_CSCA, {"+4930", "129"}));
    ExpectOuts(With(TANDEKOR_AT_Get_CSCA, {Out{50}, Out{50}}), ok, {Text("+4930"), Text("129")});
    set(With(TANDEKOR_AT_Set_CSCB, {1, "0,5", "-"}));
    ExpectOuts(With(TANDEKOR_AT_Get_CSCB, {Out{1}, Out{64}, Out{64}}), ok, {{'1'}, Text("0,5"), Text("0-3")});
    set(With(TANDEKOR_AT_Set_CSCS, {"UCS2"}));
    set(With(TANDEKOR_AT_Set_CSCS, {"-"}));
    ExpectOuts(With(TANDEKOR_AT_Get_CSCS, {Out{16}}), ok, {Text("UCS2")});
    set(With(TANDEKOR_AT_Set_CKPD, {"12#", 5, 0xFFFF}));
    EXPECT_EQ(simulator::ThePhone().pressedKeys, "12#");
    simulator::ThePhone().atSettings.erase("+CSQ");
    ExpectStatus(With(TANDEKOR_AT_Get_CSQ), refused);
}

TEST_F(SimulatedAtTest, ClockRunsOnFromWhatItWasSetTo)
{
    ExpectStatus(With(TANDEKOR_AT_Set_CCLK, {6, 12, 31, 23, 59, 58, -4}), ok);
    simulator::TheClock().now += 3000;
    ExpectOuts(With(TANDEKOR_AT_Get_CCLK), ok, {{7}, {1}, {1}, {0}, {0}, {1}, {0xFC}});
    ExpectStatus(With(TANDEKOR_AT_Set_CCLK, {7, 2, 29, 0, 0, 0, 0}), refused);
}

TEST_F(SimulatedAtTest, LocksAndPinAskForTheirPassword)
{
    const Call askCode = With(TANDEKOR_AT_Get_CPIN, {Out{16}});
    ExpectStatus(With(TANDEKOR_AT_Set_CLCK, {"SC", 1, "\1\1\1\1", -1}), refused);
    ExpectStatus(With(TANDEKOR_AT_Set_SLCK, {"SC", 1, "\1\2\3\4", 7}), ok);
    ExpectOuts(With(TANDEKOR_AT_Get_CLCK, {"SC", Out{4}, Out{16}}), ok, {{'1'}, U32(UINT32_MAX), U32(1)});
    ExpectStatus(With(TANDEKOR_AT_Set_CLCK, {"ZZ", 1, "\1\2\3\4", 7}), refused);

    ExpectStatus(With(TANDEKOR_AT_Set_CPIN, {"1234", "-"}), refused);
    simulator::ThePhone().card.waitsForPin = true;
    ExpectOuts(askCode, ok, {Text("SIM PIN")});
    ExpectStatus(With(TANDEKOR_AT_Set_CPIN, {"1234", "-"}), ok);
    ExpectOuts(askCode, ok, {Text("READY")});
    simulator::ThePhone().card.waitsForPin = true;
    ExpectStatus(With(TANDEKOR_AT_Set_CMEE, {1}), ok);
    for (int i = 0; i < 3; ++i)
        ExpectStatus(With(TANDEKOR_AT_Set_CPIN, {"9999", "-"}), numberedError);
    ExpectOuts(askCode, ok, {Text("SIM PUK")});
    ExpectStatus(With(TANDEKOR_AT_Set_CPIN, {"12345678", "-"}), numberedError);
    ExpectStatus(With(TANDEKOR_AT_Set_CPIN, {"12345678", "4321"}), ok);
    EXPECT_EQ(simulator::ThePhone().card.pin, "4321");
}

TEST_F(SimulatedAtTest, ForwardingsAndCallWaitingAreKept)
{
    const Call ask = With(TANDEKOR_AT_Get_CCFC, {2, Out{4}, Out{4}, Out{12}, Out{4}, Out{4}});
    const Bytes noNumber = U32(UINT32_MAX);
    ExpectOuts(ask, ok, {U32(0), U32(7), {'-'}, noNumber, noNumber, U32(1)});
    ExpectStatus(With(TANDEKOR_AT_Set_CCFC, {2, 1, "-", 255, -1, -1}), refused);
    ExpectStatus(With(TANDEKOR_AT_Set_CCFC, {2, 3, "+4930123456", 145, 1, 5}), ok);
    ExpectStatus(With(TANDEKOR_AT_Set_CCFC, {2, 0, "-", 255, -1, -1}), ok);
    ExpectOuts(ask, ok, {U32(0), U32(1), Ascii("+4930123456"), U32(145), U32(5), U32(1)});
    ExpectStatus(With(TANDEKOR_AT_Set_CCFC, {2, 4, "-", 255, -1, -1}), ok);
    ExpectOuts(ask, ok, {U32(0), U32(7), {'-'}, noNumber, noNumber, U32(1)});
    ExpectStatus(With(TANDEKOR_AT_Set_CCWA, {1, 1, -1}), ok);
    ExpectOuts(With(TANDEKOR_AT_Set_CCWA, {1, 2, -1}), ok, {U32(1), U32(1), U32(1)});
    ExpectOuts(With(TANDEKOR_AT_Get_CCWA), ok, {U32(1)});
}

TEST_F(SimulatedAtTest, CardAnswersByFile)
{
    const auto read = [](int command, int file) {
        return With(TANDEKOR_AT_CRSM, {command, file, 0, 0, 0, "-", Out{4}, Out{4}, Out{64}});
    };
    simulator::ThePhone().atEcho = false;
    ExpectOuts(read(176, 12258), ok, {U32(144), U32(0), Ascii("98942000002143658709\"")});
    ExpectOuts(read(176, 1), ok, {U32(148), U32(4), {'-'}});
    ExpectOuts(read(214, 12258), ok, {U32(109), U32(0), {'-'}});
}

TEST_F(SimulatedAtTest, MessagesAreListedReadAndSent)
{
    const auto list = [](auto* function, int filter) {
        return With(function, {filter, Out{8}, Out{8}, Out{8}, Out{8}, Out{2048}});
    };
    const std::string received = "0791947122720000040C9194713254769800007030510100004009CCB4BB0CA297E774";
    const std::string stored = "0011000C919471325476980000AA04CCB4BB0C";
    const Bytes rows = Ascii(received + std::string(1024 - received.size(), 'U') + stored);
    const Bytes noAlpha = U32(UINT32_MAX, UINT32_MAX);
    ExpectOuts(list(TANDEKOR_AT_SMGL, 4), ok, {U32(1, 12), U32(0, 2), noAlpha, U32(27, 18), rows, U32(2)});
    ExpectStatus(With(TANDEKOR_AT_CMSS, {1, "-"}), ok);
    ExpectStatus(With(TANDEKOR_AT_CMSS, {7, "+4930"}), refused);
    ExpectOuts(list(TANDEKOR_AT_CMGL, 255), ok, {U32(1), U32(0), U32(UINT32_MAX), U32(27), Ascii(received), U32(1)});
    ExpectOuts(list(TANDEKOR_AT_CMGL, 255), ok, {{}, {}, {}, {}, {}, U32(0)});
    ExpectOuts(With(TANDEKOR_AT_Set_CMGR, {12, 64, Out{2}, Out{1}, Out{64}}), ok,
               {U16(18), {'2'}, Text('\n' + stored.substr(0, 16))});
    ExpectOuts(With(TANDEKOR_AT_Set_SMGR, {1, 4, Out{2}, Out{1}, Out{4}}), ok, {U16(27), {'1'}, Text("\n07")});
    ExpectStatus(With(TANDEKOR_AT_Set_CMGR, {7, 4, Out{2}, Out{1}, Out{4}}), refused);
}

TEST_F(SimulatedAtTest, SwitchedOffPhoneAnswersNoMore)
{
    ExpectStatus(With(TANDEKOR_AT_Set_SMSO, {1}), ok);
    EXPECT_EQ(With(TANDEKOR_AT_CHUP)(handle).result, 0);
}

}  // namespace tandekor::test
