// Pins, I2C, ADC, fuel gauge and headset amplifier; SIM, memory card, factory data and RF items.
#include <regex>

#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call read = With(TANDEKOR_FTM_I2C_DATA_ACCESS, {0, 0x10, 1, 0x0B, 4, Out{4}});
const Call write = With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {1, 0x1C, 0x45, 2, 0x222F, 2, Hex("A1 B2")});
const Call withoutBuffer = With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {2, 0, 0x10, 1, 5, 3, nullptr});

const Bytes amplifier = Hex("01 00 00 80");
const Call readHeadset = With(TANDEKOR_FTM_HEADSET_AMP_READ, {amplifier});
const Call writeHeadset = With(TANDEKOR_FTM_HEADSET_AMP_WRITE, {amplifier});

// What is logged of an access.
const std::string readText = "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0xB, iI2C_DataLen = 0x4";
const std::string writeText
    = "1, iI2C_SlaveAddr = 0x45, iI2C_RegAddrLen = 0x2, iI2C_RegAddr = 0x222F, iI2C_DataLen = 0x2";
const std::string otherText = "2, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0x5, iI2C_DataLen = 0x3";

// The file is a text without a NUL.
const Call readKc = With(TANDEKOR_FTM_SIM_READ_KC_FILE, {Ascii("Kc file 9"), Bytes{3}});
const Call writeKc = With(TANDEKOR_FTM_SIM_WRITE_KC_FILE, {Ascii("Kc file 9"), Bytes{3}});

Call Card(uint8_t accessType, const Bytes& data, const std::string& name = "Test.bin")
{
    return With(TANDEKOR_FTM_MMC_FILE_ACCESS, {accessType, data.size(), name, data});
}

// An access by the bytes in front of the name, which are type and length, and those behind it.
FtmRequest CardRequest(uint8_t accessType, const Bytes& data, const std::string& start, const std::string& end = "",
                       const std::string& name = "Test.bin")
{
    Bytes sent = Ascii(name);
    sent.resize(128);
    return {Card(accessType, data, name), "12 00 " + start + " 00 00 00 " + ToHex(sent) + end,
            "FTM_MMC_FILE_ACCESS(iAccessType = " + std::to_string(accessType)
                + ", iMMC_DataLength = " + std::to_string(data.size()) + ", psFileName= '" + name + "')"};
}

// The values 0x8000, 0x8001 and so on, as they stand in memory and on the wire.
const Bytes linearizer = []
{
    Bytes bytes;
    for (int i = 0; i < 174; ++i)
        bytes.insert(bytes.end(), {static_cast<uint8_t>(i), 0x80});
    return bytes;
}();
const Call writeLinearizer = With(TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER, {2, linearizer, 60000});

}  // namespace

std::vector<FtmRequest> DataAccessRequests()
{
    const std::string i2c = "FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0x", first = ", piI2C_Data[0] = 0x";
    return {
        {With(TANDEKOR_GPIO_GET_OUT, {5}), "00 00 00 00 05", "GPIO_GET_OUT(iGPIONum = 5, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_SET_OUT, {3, 1}), "01 00 00 00 03 01",
         "GPIO_SET_OUT(iGPIONum = 3, iValue = 1, iStatus = 85)"},
        {With(TANDEKOR_GPIO_GET_IN, {7}), "02 00 00 00 07", "GPIO_GET_IN(iGPIONum = 7, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_GET_OE, {255}), "03 00 00 00 FF", "GPIO_GET_OE(iGPIONum = 255, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_SET_OE, {4, 200}), "04 00 00 00 04 C8",
         "GPIO_SET_OE(iGPIONum = 4, iValue = 200, iStatus = 85)"},
        {With(TANDEKOR_GPIO_GET_CFG, {9}), "05 00 00 00 09",
         "GPIO_GET_CFG(iGPIONum = 9, iSelect = 85, iPullUD = 85, iPullEn = 85, iDir = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_SET_CFG, {9, 1, 2, 3, 4}), "06 00 00 00 09 01 02 03 04",
         "GPIO_SET_CFG(iGPIONum = 9, iSelect = 1, iPullUD = 2, iPullEn = 3, iDir = 4, iStatus = 85)"},
        {read, "0F 00 07 00 10 00 00 00 10 01 0B 00 04", i2c + readText + first + "55)"},
        {With(TANDEKOR_FTM_I2C_DATA_ACCESS, {0, 0x10, 0, 0, 28, Out{28}}), "0F 00 07 00 28 00 00 00 10 00 00 00 1C",
         i2c + "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x0, iI2C_RegAddr = 0x0, iI2C_DataLen = 0x1C" + first
             + "55)"},
        {write, "0F 00 09 00 0C 00 01 1C 45 02 2F 22 02 A1 B2", i2c + writeText + first + "A1)"},
        {withoutBuffer, "0F 00 0A 00 0C 00 02 00 10 01 05 00 03", i2c + otherText + first + "0)"},
        {With(TANDEKOR_FTM_MGET_ADC_VAL, {3, 1000}), "10 00 04 00 10 00 03 00 E8 03",
         "FTM_MGET_ADC_VAL(iADC_Channel = 3, iReadCount = 1000)"},
        {With(TANDEKOR_FTM_GG_READ_REG, {2}), "CF 00 04 00 0E 00 02 55 55 55",
         "FTM_GG_READ_REG(eNum = 2, sStatus = 85, iValue = 21845)"},
        {With(TANDEKOR_FTM_GG_MODE, {Bytes{0}}), "D0 00 01 00 0B 00 00", "FTM_GG_MODE(iSwitch = 0)"},
        {readHeadset, "D7 00 04 00 0E 00 01 00 00 80", "FTM_HEADSET_AMP_READ(iHeadsetReg = -2147483647)"},
        {writeHeadset, "D8 00 04 00 0E 00 01 00 00 80", "FTM_HEADSET_AMP_WRITE(iHeadsetReg = -2147483647)"},
        {With(TANDEKOR_FTM_SIM_READ_IMSI, {Hex("00 01 02 03 04 05 06 07 FF")}), "11 00 00 00 15 00",
         "FTM_SIM_READ_IMSI(iIMSI_number[9] = {0, 1, 2, 3, 4, 5, 6, 7, 255 })"},
        {With(TANDEKOR_FTM_SIM_GET_MODE), "CB 00 0A 00 0C 00", "FTM_SIM_GET_MODE(SIM_MODE = 85)"},
        {readKc, "CC 00 16 00 16 00", "\nTANDEKOR_FTM_SIM_READ_KC_FILE(KC_File = Kc file 9, Status = 3)"},
        {writeKc, "CD 00 16 00 16 00 00 00 09 4B 63 20 66 69 6C 65 20 39",
         "\nTANDEKOR_FTM_SIM_WRITE_KC_FILE(KC_File = Kc file 9, Status = 3)"},
        CardRequest(0, Bytes(4), "85 00 10 00 00 04"),
        CardRequest(0, {}, "85 00 0C 00 00 00"),
        CardRequest(1, Hex("A1 B2"), "87 00 0C 00 01 02", " A1 B2"),
        CardRequest(2, Hex("A1 B2"), "87 00 0C 00 02 02"),
        CardRequest(2, {}, "85 00 0C 00 02 00", "", std::string(128, 'n')),
        CardRequest(2, {}, "85 00 0C 00 02 00", "", std::string(300, 'n')),
        {With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {0, 0x0102}), "15 00 04 00 0D 00 00 02 01",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 0, iDataAddress = 258)", 1},
        {With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {255, 65535}), "15 00 04 00 0D 00 FF FF FF",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 255, iDataAddress = 65535)", 1},
        {With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {1, 0x0102, Bytes{0xA7}}), "15 00 04 00 0D 00 01 02 01 A7",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 1, iDataAddress = 258)"},
        {With(TANDEKOR_FTM_LOAD_RF_NV), "23 00 00 00 0C 00", "FTM_LOAD_RF_NV() ", 0, 3000, "FTM_LOAD_RF_NV()"},
        {writeLinearizer, "1A 00 5D 01 0C 00 02 " + ToHex(linearizer),
         "FTM_WRITE_GSM_TX_LINEARIZER(iGSM_Band = 2, iGSM_DACvsPower[0] = 32768, iDelay_ms = 60000)", 0, 60000},
    };
}

using DataAccessTest = FtmTest;

TEST_F(DataAccessTest, PinValuesAreWrittenOnlyWithAGoodStatusWhichIsTheLastByte)
{
    ExpectAnswers(R"(
        GPIO_GET_OUT: 07 00 > 1 7,0 done | 07 02 > 0 85,2 - Wrong status = 2 | = > 0 85,85 - Wrong status = 85
        | ! > 0 85,85 - error code = 187
        GPIO_GET_IN: 07 00 > 1 7,0 done
        GPIO_GET_OE: 07 00 > 1 7,0 done
        GPIO_SET_OUT: 07 00 > 1 0 done | 00 FF > 0 255 - Wrong status = 255
        GPIO_GET_CFG: 01 02 03 04 00 > 1 1,2,3,4,0 done | 01 02 03 04 06 > 0 85*4,6 - Wrong status = 6
        GPIO_SET_CFG: 00 > 1 0 done | ! 4B 00 > 0 85 - error code = 75
    )");
}

TEST_F(DataAccessTest, I2cReadIsJudgedByItsLengthAndStatusAndAWriteByTheExchange)
{
    const auto expect = [this](const Call& call, const std::string& text, const std::string& answers)
    {
        const std::string called = "\\tTANDEKOR_FTM_I2C_DATA_ACCESS2(iI2C_AccessType = 0x" + text + ")";
        ExpectAnswers(call, std::regex_replace(answers, std::regex(R"(\(\))"), called));
    };
    // An error code of 9 is of the header's last word.
    expect(read, readText, R"(
        00 00 A1 A2 A3 A4 > 1 0xA4A3A2A1 () done | 07 81 A1 A2 A3 A4 > 0 0xA4A3A2A1 () - error code = 33031
        | A1 A2 A3 A4 > 0 0xA4A3A2A1 () - error code = 9 | 00 A2 A3 > 0 0x55555555 () - error code = 0
        | = > 0 0x55555555 () - error code = 0 | ! > 0 0x55555555 () noReply
        | ! 00 01 02 > 0 0x55555555 () - error code = 0)");
    expect(write, writeText, "07 00 > 1 0xB2A1 () done | ! > 0 0xB2A1 () noReply");
    expect(withoutBuffer, otherText, "= > 1 - () done");
}

TEST_F(DataAccessTest, ValuesOfAdcAndFuelGauge)
{
    ExpectAnswers(R"(
        FTM_MGET_ADC_VAL: 00 00 E8 03 00 00 > 1 1000 (iADC_Channel = 3, iReadCount = 1000, iADC_Sum = 1000) done
        | 02 80 01 00 00 80 > 0 0x80000001
          (iADC_Channel = 3, iReadCount = 1000, iADC_Sum = -2147483647) - error code = 32770
        | = > 1 0x55555555 (iADC_Channel = 3, iReadCount = 1000, iADC_Sum = 1431655765) done
        | ! > 0 0x55555555 (iADC_Channel = 3, iReadCount = 1000, iADC_Sum = 1431655765) noReply
        FTM_GG_READ_REG: 00 34 92 > 1 0,0x9234 done | 07 34 92 > 0 7,0x9234 - Wrong status (7)\n
        | = > 0 85,0x5555 - Wrong status (85)\n | ! > 0 85,0x5555 - error code = 187\n
    )");
    ExpectAnswers(With(TANDEKOR_FTM_GG_MODE, {Bytes{3}}), R"(
        03 > 1 - done | 02 > 0 - - Wrong iSwitch value received (2) = 0\n
        | = > 0 - - Wrong iSwitch value received (0) = 0\n | ! > 0 - - error code = 187\n)");
}

TEST_F(DataAccessTest, HeadsetReplyIsNotUnpackedAndTheResultIsTheHostLibrarys)
{
    ExpectAnswers(R"(
        FTM_HEADSET_AMP_READ: 0A 0B 0C 0D > 1 - done | ! > 0 - - error code = 187
        FTM_HEADSET_AMP_WRITE: 0A 0B 0C 0D > 1 - (iHeadsetReg = 2147483649) done
        | ! > 0 - (iHeadsetReg = 2147483649) - error code = 187
    )");
    simulator::RepeatReply({{}, 7, {}});
    EXPECT_EQ(readHeadset(handle).result, 7);
    EXPECT_EQ(writeHeadset(handle).result, 7);
}

TEST_F(DataAccessTest, SimAndRfItems)
{
    ExpectAnswers(R"(
        FTM_SIM_READ_IMSI: 00 00 08 29 26 10 00 00 00 00 FF > 1 8,41,38,16,0*4,255
          (iIMSI_number[9] = {8, 41, 38, 16, 0, 0, 0, 0, 255 }) done
        | 07 81 08 29 26 10 00 00 00 00 FF > 0 8,41,38,16,0*4,255 () - SendSync() fail (error code = 33031)
        | ! > 0 0,1,2,3,4,5,6,7,255 () noReply
        FTM_SIM_GET_MODE: 00 00 02 81 > 1 2 (SIM_MODE = 2\s | = > 1 0 (SIM_MODE = 0\s | ! > 0 85 () noReply
        FTM_READ_WRITE_FACTORY_DATA(iOperationType = 1: 00 00 > 1 0xA7 done | 2C 81 > 0 0xA7 - error code = 33068
        | ! > 0 0xA7 noReply
        FTM_LOAD_RF_NV: 07 81 > 0 0x8107 () - error code = 33031
    )");
    // Is never sent.
    ExpectAnswers(With(TANDEKOR_FTM_WRITE_WCDMA_RF_CAL, std::vector<Given>(15, 1)), "> 0 -");
    // The reply's file replaces the caller's, whatever its status is.
    for (const Call& call : {readKc, writeKc})
        ExpectAnswers(call, R"(
        00 EE FF 01 02 03 04 05 06 07 08 09 > 1 1,2,3,4,5,6,7,8,9,0 (Status = 0)
        | 07 00 00 01 02 03 04 05 06 07 08 09 > 0 1,2,3,4,5,6,7,8,9,7 () - (Status = 7)
        | = > 0 75,99,32,102,105,108,101,32,57,3 () - (Status = 3)
        | ! > 0 75,99,32,102,105,108,101,32,57,3 () noReply)");
}

TEST_F(DataAccessTest, CardReadTakesDataAndStatusAndOtherAccessLooksAtTheExchangeAlone)
{
    ExpectAnswers(Card(0, Bytes(4)), R"(
        00 00 A1 A2 A3 A4 > 1 0xA4A3A2A1 () done | = > 1 0 () done | ! > 0 0 () noReply
        | 07 81 A1 A2 A3 A4 > 0 0xA4A3A2A1 () - SendSync() fail (error code = 33031))");
    ExpectAnswers(Card(0, Bytes(20)), R"(
        00 00 A1 A2 A3 A4 00 00 > 1 0*20 () done
        | 00 00 A1 A2 A3 A4 07 00 > 0 0*20 () - SendSync() fail (error code = 7))");
    ExpectAnswers(Card(0, {}), "05 00 > 0 - () - SendSync() fail (error code = 5)");
    ExpectAnswers(Card(1, {0xA1}), "05 00 > 1 0xA1 () done | ! > 0 0xA1 () noReply");
    ExpectAnswers(Card(2, {0xA1}), "05 00 > 1 0xA1 () done");
    // Nothing is cut and sent.
    ExpectAnswers(Card(1, Bytes(3954)), "> 0 0*3954 () noReply");
    ExpectAnswers(Card(1, Bytes(65535)), "> 0 0*65535 () noReply");
}

TEST_F(DataAccessTest, CardDataAreHeldToTheRequestAndReplyAreas)
{
    RepliesWith("00 00");
    EXPECT_EQ(Card(1, Bytes(3953, 0xD5))(handle).result, 1);
    const Bytes request = simulator::Exchanges().back().request;
    EXPECT_EQ(request.size(), 4096U);
    EXPECT_EQ(ToHex({request.begin() + 4, request.begin() + 15}), "12 00 F6 0F 0C 00 01 71 0F 00 00");
    EXPECT_EQ(ToHex({request.end() - 3954, request.end() - 3952}), "00 D5");

    const Bytes fullReply(4096, 0x01);
    Replies(fullReply);
    CallResult call = Card(0, Bytes(4094))(handle);
    EXPECT_EQ(call.outs[0], Bytes(4094, 0x01));
    EXPECT_TRUE(call.guardsIntact);
    Replies(fullReply);
    call = Card(0, Bytes(65535))(handle);
    EXPECT_FALSE(call.written[0]);
    EXPECT_EQ(Log().back(), "\tTANDEKOR_FTM_MMC_FILE_ACCESS() - SendSync() fail (error code = 257)");
    EXPECT_TRUE(LastRequest().starts_with("4B 0B 00 80 12 00 85 00 0B 00 00 FF FF 00 00 ")) << "65547 as 16 bits";
}

}  // namespace tandekor::test
