// The simulated phone's AT side: its answers, in the form in which the library's tests have them read.
#include <algorithm>
#include <regex>

#include "platform/qmsl.h"
#include "tests/at/at_test.h"

namespace tandekor::test
{

class SimulatedAtTest : public BenchTest
{
protected:
    // A dialogue of "command > answer", with a | between two lines of an answer that ends in OK.
    void Expect(const std::string& dialogue)
    {
        const std::regex turn("(AT\\S+) > ([^;\n]*)");
        auto turns = std::count(dialogue.begin(), dialogue.end(), '>');
        for (std::sregex_iterator match(dialogue.begin(), dialogue.end(), turn), end; match != end; ++match, --turns)
        {
            const std::string command = match->str(1);
            std::string answer = std::regex_replace(match->str(2), std::regex("\\|"), "\r\n");
            if (answer != "OK" && answer.find("ERROR") == std::string::npos)
                answer += "\r\n\r\nOK";
            Bytes request = Text(command + '\r'), response(4096);
            uint16_t length = 4096;
            QLIB_SendRAW(handle, static_cast<uint16_t>(request.size()), request.data(), &length, response.data(), 1000);
            answer.insert(0, simulator::ThePhone().atEcho ? command + "\r\r\n" : "\r\n");
            EXPECT_EQ(std::string(response.begin(), response.begin() + length), answer);
        }
        EXPECT_EQ(turns, 0) << "each turn is read";
    }
};

TEST_F(SimulatedAtTest, QueriesAndSettingsThatAreKeptFieldByField)
{
    Expect(R"(
        AT+CCLK? > +CCLK: "24/03/09,07:05:02+00"; AT+CACM? > +CACM: "000123"; AT+CAMM? > +CAMM: "070000"
        AT^SACM? > ^SACM: 0,"000123","000200"; AT+CBC > +CBC: 0,85; AT+CSQ > +CSQ: 21,0; AT+CBST? > +CBST: 7,0,1
        AT^SIFS > ^SIFS: Wire; AT+CEER > +CEER: Normal call clearing; AT+CGMI > SIMULATED; AT+CGMM > T52
        AT+CGMR > T52-02.04.15; AT+CGSN > 490154203237518; AT+GSN > 490154203237518; AT+CIMI > 262019876543210
        AT^SCID > ^SCID: 89490200001234567890; AT+CGACT? > +CGACT: 1,1|+CGACT: 2,0; AT+XYZ > ERROR
        AT+CMER? > +CMER: 0,0,0,0,0; AT+CMER=3,0,0,2,1 > OK; AT+CMER? > +CMER: 3,0,0,2,1
        AT+CIND? > +CIND: 4,3,1,0,0,0,1,0; AT+CIND=,,0,,,,,9, > OK; AT+CIND? > +CIND: 4,3,0,0,0,0,1,9
        AT+COPS? > +COPS: 0,0,"SIMULATED NET"; AT+COPS=1,2,"26201" > OK; AT+COPS=4 > OK; AT+COPS=3,0 > OK
        AT+COPS? > +COPS: 4,0,"26201"; AT+CREG? > +CREG: 0,1; AT+CREG=2 > OK; AT+CREG? > +CREG: 2,1,1A,2B
        AT+CSCA? > +CSCA: "+491722270000",145; AT+CSCA="+4930","129" > OK; AT+CSCA? > +CSCA: "+4930",129
        AT+CSCB? > +CSCB: 0,"0,50,320-324","0-3"; AT+CSCB=1,"0,5" > OK; AT+CSCB? > +CSCB: 1,"0,5","0-3"
        AT+CSCS? > +CSCS: "GSM"; AT+CSCS="UCS2" > OK; AT+CSCS > OK; AT+CSCS? > +CSCS: "UCS2"; AT+CKPD=12#,5 > OK
    )");
    EXPECT_EQ(simulator::ThePhone().pressedKeys, "12#");
    simulator::ThePhone().atSettings.erase("+CSQ");
    simulator::ThePhone().atEcho = false;
    Expect("AT+CSQ > ERROR; AT+CBC > +CBC: 0,85; AT+CREG=0 > OK");
}

TEST_F(SimulatedAtTest, ClockRunsOnFromWhatItWasSetTo)
{
    Expect("AT+CCLK=\"06/12/31,23:59:58-04\" > OK; AT+CCLK=\"07/02/29,00:00:00+00\" > ERROR");
    simulator::TheClock().now += 3000;
    Expect("AT+CCLK? > +CCLK: \"07/01/01,00:00:01-04\"");
}

TEST_F(SimulatedAtTest, LocksAndPinAskForTheirPassword)
{
    Expect(R"(
        AT+CLCK="SC",2 > +CLCK: 0; AT+CLCK="SC",1,1111 > ERROR; AT^SLCK="SC",1,1234,7 > OK; AT+CLCK="SC",2 > +CLCK: 1
        AT+CLCK="ZZ",1,1234,7 > ERROR; AT^SLCK="AO",2 > ^SLCK: 0,1|^SLCK: 0,2|^SLCK: 0,4
        AT+CPIN? > +CPIN: READY; AT+CPIN="1234" > ERROR
    )");
    simulator::ThePhone().card.waitsForPin = true;
    Expect("AT+CPIN? > +CPIN: SIM PIN; AT+CPIN=\"1234\" > OK; AT+CPIN? > +CPIN: READY");
    simulator::ThePhone().card.waitsForPin = true;
    Expect(R"(
        AT+CMEE=1 > OK; AT+CPIN="9999" > +CME ERROR: 16; AT+CPIN="9999" > +CME ERROR: 16
        AT+CPIN="9999" > +CME ERROR: 12; AT+CPIN? > +CPIN: SIM PUK; AT+CPIN="12345678" > +CME ERROR: 16
        AT+CPIN="12345678","4321" > OK
    )");
    EXPECT_EQ(simulator::ThePhone().card.pin, "4321");
}

TEST_F(SimulatedAtTest, ServicesCardAndMessages)
{
    Expect(R"(
        AT+CCFC=2,2 > +CCFC: 0,7; AT+CCFC=2,1 > ERROR; AT+CCFC=2,3,"+4930123456",145,1,5 > OK; AT+CCFC=2,0 > OK
        AT+CCFC=2,2 > +CCFC: 0,1,+4930123456,145,5; AT+CCFC=2,4 > OK; AT+CCFC=2,2 > +CCFC: 0,7
        AT+CCWA? > +CCWA: 0; AT+CCWA=1,2 > +CCWA: 0,1; AT+CCWA=1,1 > OK; AT+CCWA=1,2 > +CCWA: 1,1; AT+CCWA? > +CCWA: 1
        AT+CRSM=242 > +CRSM: 144,0; AT+CRSM=176,12258,0,0,0 > +CRSM: 144,0,"98942000002143658709"
        AT+CRSM=176,1,0,0,0 > +CRSM: 148,4; AT+CRSM=214,12258,0,0,0 > +CRSM: 109,0
    )");
    const std::string received = "0791947122720000040C9194713254769800007030510100004009CCB4BB0CA297E774";
    const std::string stored = "0011000C919471325476980000AA04CCB4BB0C";
    Expect("AT^SMGL=4 > ^SMGL: 1,0,,27|" + received + "|^SMGL: 12,2,,18|" + stored + "; AT+CMSS=1 > +CMSS: 0");
    Expect("AT+CMSS=7,\"+4930\" > ERROR; AT+CMGL=0 > +CMGL: 1,0,,27|" + received + "; AT+CMGL=0 > OK");
    Expect("AT+CMGR=12 > +CMGR: 2,,18|" + stored + "; AT^SMGR=1 > ^SMGR: 1,,27|" + received + "; AT+CMGR=7 > ERROR");
}

TEST_F(SimulatedAtTest, SwitchedOffPhoneAnswersNoMore)
{
    Expect("AT^SMSO=1 > OK");
    EXPECT_EQ(With(TANDEKOR_AT_CHUP)(handle).result, 0);
}

}  // namespace tandekor::test
