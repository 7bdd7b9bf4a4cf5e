// Pins, I2C, ADC, fuel gauge and headset amplifier.
#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call getOut = With(TANDEKOR_GPIO_GET_OUT, {5}), setOut = With(TANDEKOR_GPIO_SET_OUT, {3, 1});
const Call getIn = With(TANDEKOR_GPIO_GET_IN, {7}), getDirection = With(TANDEKOR_GPIO_GET_OE, {255});
const Call getConfiguration = With(TANDEKOR_GPIO_GET_CFG, {9});
const Call setConfiguration = With(TANDEKOR_GPIO_SET_CFG, {9, 1, 2, 3, 4});
const Call adc = With(TANDEKOR_FTM_MGET_ADC_VAL, {3, 1000}), gauge = With(TANDEKOR_FTM_GG_READ_REG, {2});
const Call mode = With(TANDEKOR_FTM_GG_MODE, {Bytes{3}});

const Call read = With(TANDEKOR_FTM_I2C_DATA_ACCESS, {0, 0x10, 1, 0x0B, 4, Out{4}});
const Call write = With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {1, 0x1C, 0x45, 2, 0x222F, 2, Hex("A1 B2")});
const Call withoutBuffer = ReadOnly(With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {2, 0, 0x10, 1, 5, 3, nullptr}));

const Bytes amplifier = Hex("01 00 00 80");
const Call readHeadset = With(TANDEKOR_FTM_HEADSET_AMP_READ, {amplifier});
const Call writeHeadset = With(TANDEKOR_FTM_HEADSET_AMP_WRITE, {amplifier});

// What is logged of an access.
const std::string readText = "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0xB, iI2C_DataLen = 0x4";
const std::string writeText
    = "1, iI2C_SlaveAddr = 0x45, iI2C_RegAddrLen = 0x2, iI2C_RegAddr = 0x222F, iI2C_DataLen = 0x2";
const std::string otherText = "2, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0x5, iI2C_DataLen = 0x3";

}  // namespace

std::vector<FtmRequest> LowLevelRequests()
{
    const std::string i2c = "FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0x", first = ", piI2C_Data[0] = 0x";
    return {
        {getOut, "4B 00 00 01 00 00 00 00 05", "GPIO_GET_OUT(iGPIONum = 5, iValue = 85, iStatus = 85)"},
        {setOut, "4B 00 00 01 01 00 00 00 03 01", "GPIO_SET_OUT(iGPIONum = 3, iValue = 1, iStatus = 85)"},
        {getIn, "4B 00 00 01 02 00 00 00 07", "GPIO_GET_IN(iGPIONum = 7, iValue = 85, iStatus = 85)"},
        {getDirection, "4B 00 00 01 03 00 00 00 FF", "GPIO_GET_OE(iGPIONum = 255, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_SET_OE, {4, 200}), "4B 00 00 01 04 00 00 00 04 C8",
         "GPIO_SET_OE(iGPIONum = 4, iValue = 200, iStatus = 85)"},
        {getConfiguration, "4B 00 00 01 05 00 00 00 09",
         "GPIO_GET_CFG(iGPIONum = 9, iSelect = 85, iPullUD = 85, iPullEn = 85, iDir = 85, iStatus = 85)"},
        {setConfiguration, "4B 00 00 01 06 00 00 00 09 01 02 03 04",
         "GPIO_SET_CFG(iGPIONum = 9, iSelect = 1, iPullUD = 2, iPullEn = 3, iDir = 4, iStatus = 85)"},
        {read, "0F 00 07 00 10 00 00 00 10 01 0B 00 04", i2c + readText + first + "55)"},
        {With(TANDEKOR_FTM_I2C_DATA_ACCESS, {0, 0x10, 0, 0, 28, Out{28}}), "0F 00 07 00 28 00 00 00 10 00 00 00 1C",
         i2c + "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x0, iI2C_RegAddr = 0x0, iI2C_DataLen = 0x1C" + first
             + "55)"},
        {write, "0F 00 09 00 0C 00 01 1C 45 02 2F 22 02 A1 B2", i2c + writeText + first + "A1)"},
        {withoutBuffer, "0F 00 0A 00 0C 00 02 00 10 01 05 00 03", i2c + otherText + first + "0)"},
        {adc, "10 00 04 00 10 00 03 00 E8 03", "FTM_MGET_ADC_VAL(iADC_Channel = 3, iReadCount = 1000)"},
        {gauge, "CF 00 04 00 0E 00 02 55 55 55", "FTM_GG_READ_REG(eNum = 2, sStatus = 85, iValue = 21845)"},
        {With(TANDEKOR_FTM_GG_MODE, {Bytes{0}}), "D0 00 01 00 0B 00 00", "FTM_GG_MODE(iSwitch = 0)"},
        {readHeadset, "D7 00 04 00 0E 00 01 00 00 80", "FTM_HEADSET_AMP_READ(iHeadsetReg = -2147483647)"},
        {writeHeadset, "D8 00 04 00 0E 00 01 00 00 80", "FTM_HEADSET_AMP_WRITE(iHeadsetReg = -2147483647)"},
    };
}

using LowLevelAccessTest = FtmTest;

TEST_F(LowLevelAccessTest, PinValuesAreWrittenOnlyWithAGoodStatusWhichIsTheLastByte)
{
    ExpectAnswers({
        {getOut, "07 00", 1, {7, 0}, {done}},
        {getOut, "07 02", 0, {85, 2}, {" - Wrong status = 2"}},
        {getOut, "=", 0, {85, 85}, {" - Wrong status = 85"}},
        {getOut, "!", 0, {85, 85}, {" - error code = 187"}},
        {getIn, "07 00", 1, {7, 0}, {done}},
        {getDirection, "07 00", 1, {7, 0}, {done}},
        {setOut, "07 00", 1, {0}, {done}},
        {setOut, "00 FF", 0, {255}, {" - Wrong status = 255"}},
        {getConfiguration, "01 02 03 04 00", 1, {1, 2, 3, 4, 0}, {done}},
        {getConfiguration, "01 02 03 04 06", 0, {85, 85, 85, 85, 6}, {" - Wrong status = 6"}},
        {setConfiguration, "00", 1, {0}, {done}},
        {setConfiguration, "! 4B 00", 0, {85}, {" - error code = 75"}},
    });
}

TEST_F(LowLevelAccessTest, I2cReadIsJudgedByItsLengthAndStatusAndAWriteByTheExchange)
{
    const Numbers data{0xA4A3A2A1}, untouched{0x55555555}, sent{0xB2A1};
    const std::string text = "\tTANDEKOR_FTM_I2C_DATA_ACCESS2(iI2C_AccessType = 0x", reads = text + readText + ")";
    ExpectAnswers({
        {read, "00 00 A1 A2 A3 A4", 1, data, {reads + done}},
        {read, "07 81 A1 A2 A3 A4", 0, data, {reads + " - error code = 33031"}},
        {read, "A1 A2 A3 A4", 0, data, {reads + " - error code = 9"}},  // of the header's last word
        {read, "00 A2 A3", 0, untouched, {reads + " - error code = 0"}},
        {read, "=", 0, untouched, {reads + " - error code = 0"}},
        {read, "!", 0, untouched, {reads + noReply}},
        {read, "! 00 01 02", 0, untouched, {reads + " - error code = 0"}},
        {write, "07 00", 1, sent, {text + writeText + ")" + done}},
        {write, "!", 0, sent, {text + writeText + ")" + noReply}},
        {withoutBuffer, "=", 1, {}, {text + otherText + ")" + done}},
    });
}

TEST_F(LowLevelAccessTest, ValuesOfAdcAndFuelGauge)
{
    const std::string sum = "(iADC_Channel = 3, iReadCount = 1000, iADC_Sum = ";
    ExpectAnswers({
        {adc, "00 00 E8 03 00 00", 1, {1000}, {sum + "1000)" + done}},
        {adc, "02 80 01 00 00 80", 0, {0x80000001}, {sum + "-2147483647) - error code = 32770"}},
        {adc, "=", 1, {0x55555555}, {sum + "1431655765)" + done}},
        {adc, "!", 0, {0x55555555}, {sum + "1431655765)" + noReply}},
        {gauge, "00 34 92", 1, {0, 0x9234}, {done}},
        {gauge, "07 34 92", 0, {7, 0x9234}, {" - Wrong status (7)\n"}},
        {gauge, "=", 0, {85, 0x5555}, {" - Wrong status (85)\n"}},
        {gauge, "!", 0, {85, 0x5555}, {" - error code = 187\n"}},
        {mode, "03", 1, {}, {done}},
        {mode, "02", 0, {}, {" - Wrong iSwitch value received (2) = 0\n"}},
        {mode, "=", 0, {}, {" - Wrong iSwitch value received (0) = 0\n"}},
        {mode, "!", 0, {}, {" - error code = 187\n"}},
    });
}

TEST_F(LowLevelAccessTest, HeadsetReplyIsNotUnpackedAndTheResultIsTheHostLibrarys)
{
    const std::string writes = "(iHeadsetReg = 2147483649)";
    ExpectAnswers({
        {readHeadset, "0A 0B 0C 0D", 1, {}, {done}},
        {readHeadset, "!", 0, {}, {" - error code = 187"}},
        {writeHeadset, "0A 0B 0C 0D", 1, {}, {writes + done}},
        {writeHeadset, "!", 0, {}, {writes + " - error code = 187"}},
    });
    simulator::RepeatReply({{}, 7, {}});
    EXPECT_EQ(readHeadset(handle).result, 7);
    EXPECT_EQ(writeHeadset(handle).result, 7);
}

}  // namespace tandekor::test
