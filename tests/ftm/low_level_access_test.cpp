// Pins, I2C, ADC, fuel gauge and headset amplifier.
#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call getOut = With(TANDEKOR_GPIO_GET_OUT, {5}), setOut = With(TANDEKOR_GPIO_SET_OUT, {3, 1});
const Call getConfiguration = With(TANDEKOR_GPIO_GET_CFG, {9});
const Call setConfiguration = With(TANDEKOR_GPIO_SET_CFG, {9, 1, 2, 3, 4});
const Call adc = With(TANDEKOR_FTM_MGET_ADC_VAL, {3, 1000});
const Call gauge = With(TANDEKOR_FTM_GG_READ_REG, {2});

// The data are what the buffer holds before.
Call I2c(uint8_t type, uint8_t device, uint8_t addressLength, uint16_t address, const Bytes& data)
{
    return With(TANDEKOR_FTM_I2C_DATA_ACCESS, {type, device, addressLength, address, data.size(), data});
}
Call SelectedI2c(uint8_t type, const Bytes& data)
{
    return With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {type, 0x1C, 0x45, 2, 0x222F, data.size(), data});
}
const Call i2cWithoutBuffer = ReadOnly(With(TANDEKOR_FTM_I2C_DATA_ACCESS2, {2, 0, 0x10, 1, 5, 3, nullptr}));

const Bytes amplifier = Hex("01 00 00 80");
const Call readHeadset = With(TANDEKOR_FTM_HEADSET_AMP_READ, {amplifier});
const Call writeHeadset = With(TANDEKOR_FTM_HEADSET_AMP_WRITE, {amplifier});

Call GaugeMode(uint8_t mode) { return With(TANDEKOR_FTM_GG_MODE, {Bytes{mode}}); }

const std::string i2cText = "TANDEKOR_FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0x";

}  // namespace

std::vector<FtmRequest> LowLevelRequests()
{
    return {
        {getOut, "4B 00 00 01 00 00 00 00 05", "TANDEKOR_GPIO_GET_OUT(iGPIONum = 5, iValue = 85, iStatus = 85)"},
        {setOut, "4B 00 00 01 01 00 00 00 03 01", "TANDEKOR_GPIO_SET_OUT(iGPIONum = 3, iValue = 1, iStatus = 85)"},
        {With(TANDEKOR_GPIO_GET_IN, {7}), "4B 00 00 01 02 00 00 00 07",
         "TANDEKOR_GPIO_GET_IN(iGPIONum = 7, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_GET_OE, {255}), "4B 00 00 01 03 00 00 00 FF",
         "TANDEKOR_GPIO_GET_OE(iGPIONum = 255, iValue = 85, iStatus = 85)"},
        {With(TANDEKOR_GPIO_SET_OE, {4, 200}), "4B 00 00 01 04 00 00 00 04 C8",
         "TANDEKOR_GPIO_SET_OE(iGPIONum = 4, iValue = 200, iStatus = 85)"},
        {getConfiguration, "4B 00 00 01 05 00 00 00 09",
         "TANDEKOR_GPIO_GET_CFG(iGPIONum = 9, iSelect = 85, iPullUD = 85, iPullEn = 85, iDir = 85, iStatus = 85)"},
        {setConfiguration, "4B 00 00 01 06 00 00 00 09 01 02 03 04",
         "TANDEKOR_GPIO_SET_CFG(iGPIONum = 9, iSelect = 1, iPullUD = 2, iPullEn = 3, iDir = 4, iStatus = 85)"},
        {I2c(0, 0x10, 0, 0, Bytes(28, 0x55)), "4B 0B 00 80 0F 00 07 00 28 00 00 00 10 00 00 00 1C",
         i2cText
             + "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x0, iI2C_RegAddr = 0x0, iI2C_DataLen = 0x1C, "
               "piI2C_Data[0] = 0x55)"},
        {SelectedI2c(1, Hex("A1 B2")), "4B 0B 00 80 0F 00 09 00 0C 00 01 1C 45 02 2F 22 02 A1 B2",
         i2cText
             + "1, iI2C_SlaveAddr = 0x45, iI2C_RegAddrLen = 0x2, iI2C_RegAddr = 0x222F, iI2C_DataLen = 0x2, "
               "piI2C_Data[0] = 0xA1)"},
        {i2cWithoutBuffer, "4B 0B 00 80 0F 00 0A 00 0C 00 02 00 10 01 05 00 03",
         i2cText
             + "2, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0x5, iI2C_DataLen = 0x3, "
               "piI2C_Data[0] = 0x0)"},
        {adc, "4B 0B 00 80 10 00 04 00 10 00 03 00 E8 03",
         "TANDEKOR_FTM_MGET_ADC_VAL(iADC_Channel = 3, iReadCount = 1000)"},
        {gauge, "4B 0B 00 80 CF 00 04 00 0E 00 02 55 55 55",
         "TANDEKOR_FTM_GG_READ_REG(eNum = 2, sStatus = 85, iValue = 21845)"},
        {GaugeMode(0), "4B 0B 00 80 D0 00 01 00 0B 00 00", "TANDEKOR_FTM_GG_MODE(iSwitch = 0)"},
        {readHeadset, "4B 0B 00 80 D7 00 04 00 0E 00 01 00 00 80",
         "TANDEKOR_FTM_HEADSET_AMP_READ(iHeadsetReg = -2147483647)"},
        {writeHeadset, "4B 0B 00 80 D8 00 04 00 0E 00 01 00 00 80",
         "TANDEKOR_FTM_HEADSET_AMP_WRITE(iHeadsetReg = -2147483647)"},
    };
}

using LowLevelAccessTest = FtmTest;

TEST_F(LowLevelAccessTest, PinValuesAreWrittenOnlyWithAGoodStatusWhichIsTheLastByte)
{
    const std::string get = "\tTANDEKOR_GPIO_GET_OUT(iGPIONum = 5, iValue = ";
    const std::string set = "\tTANDEKOR_GPIO_SET_OUT(iGPIONum = 3, iValue = 1, iStatus = ";
    const std::string getAll = "\tTANDEKOR_GPIO_GET_CFG(iGPIONum = 9, iSelect = ";
    const std::string setAll
        = "\tTANDEKOR_GPIO_SET_CFG(iGPIONum = 9, iSelect = 1, iPullUD = 2, iPullEn = 3, iDir = 4, iStatus = ";
    ExpectAnswers({
        {getOut, {"07 00"}, 1, {7, 0}, {get + "7, iStatus = 0)" + done}},
        {getOut, {"07 02"}, 0, {0x55, 2}, {get + "85, iStatus = 2) - Wrong status = 2"}},
        {getOut, {nothing}, 0, {0x55, 0x55}, {get + "85, iStatus = 85) - Wrong status = 85"}},
        {getOut, {silence}, 0, {0x55, 0x55}, {get + "85, iStatus = 85) - error code = 187"}},
        {With(TANDEKOR_GPIO_GET_IN, {7}),
         {"07 00"},
         1,
         {7, 0},
         {"\tTANDEKOR_GPIO_GET_IN(iGPIONum = 7, iValue = 7, iStatus = 0)" + std::string(done)}},
        {With(TANDEKOR_GPIO_GET_OE, {255}),
         {"07 00"},
         1,
         {7, 0},
         {"\tTANDEKOR_GPIO_GET_OE(iGPIONum = 255, iValue = 7, iStatus = 0)" + std::string(done)}},
        {setOut, {"07 00"}, 1, {0}, {set + "0)" + done}},
        {setOut, {"00 FF"}, 0, {255}, {set + "255) - Wrong status = 255"}},
        {getConfiguration,
         {"01 02 03 04 00"},
         1,
         {1, 2, 3, 4, 0},
         {getAll + "1, iPullUD = 2, iPullEn = 3, iDir = 4, iStatus = 0)" + done}},
        {getConfiguration,
         {"01 02 03 04 06"},
         0,
         {85, 85, 85, 85, 6},
         {getAll + "85, iPullUD = 85, iPullEn = 85, iDir = 85, iStatus = 6) - Wrong status = 6"}},
        {setConfiguration, {"00"}, 1, {0}, {setAll + "0)" + done}},
        {setConfiguration, {"! 4B 00"}, 0, {85}, {setAll + "85) - error code = 75"}},
    });
}

TEST_F(LowLevelAccessTest, I2cReadIsJudgedByItsLengthAndStatusAndAWriteByTheExchange)
{
    const Call read = I2c(0, 0x10, 1, 0x0B, Bytes(4, 0x55)), write = SelectedI2c(1, Hex("A1 B2"));
    const Numbers data{0xA4A3A2A1}, untouched{0x55555555}, sent{0xB2A1};
    const std::string text = "\tTANDEKOR_FTM_I2C_DATA_ACCESS2(iI2C_AccessType = 0x";
    const std::string readText
        = text + "0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0xB, iI2C_DataLen = 0x4)";
    const std::string writeText
        = text + "1, iI2C_SlaveAddr = 0x45, iI2C_RegAddrLen = 0x2, iI2C_RegAddr = 0x222F, iI2C_DataLen = 0x2)";
    const std::string otherText
        = text + "2, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x1, iI2C_RegAddr = 0x5, iI2C_DataLen = 0x3)";
    ExpectAnswers({
        {read, {"00 00 A1 A2 A3 A4"}, 1, data, {readText + done}},
        {read, {"07 81 A1 A2 A3 A4"}, 0, data, {readText + " - error code = 33031"}},
        {read, {"A1 A2 A3 A4"}, 0, data, {readText + " - error code = 9"}},  // of the header's last word
        {read, {"00 A2 A3"}, 0, untouched, {readText + " - error code = 0"}},
        {read, {nothing}, 0, untouched, {readText + " - error code = 0"}},
        {read, {silence}, 0, untouched, {readText + noReply}},
        {read, {"! 00 01 02"}, 0, untouched, {readText + " - error code = 0"}},
        {write, {"07 00"}, 1, sent, {writeText + done}},
        {write, {silence}, 0, sent, {writeText + noReply}},
        {i2cWithoutBuffer, {nothing}, 1, {}, {otherText + done}},
    });
}

TEST_F(LowLevelAccessTest, ValuesOfAdcAndFuelGauge)
{
    const std::string adcText = "\tTANDEKOR_FTM_MGET_ADC_VAL(iADC_Channel = 3, iReadCount = 1000, iADC_Sum = ";
    const std::string gaugeText = "\tTANDEKOR_FTM_GG_READ_REG(eNum = 2, sStatus = ";
    const std::string modeText = "\tTANDEKOR_FTM_GG_MODE(iSwitch = 3)";
    ExpectAnswers({
        {adc, {"00 00 E8 03 00 00"}, 1, {1000}, {adcText + "1000)" + done}},
        {adc, {"02 80 01 00 00 80"}, 0, {0x80000001}, {adcText + "-2147483647) - error code = 32770"}},
        {adc, {nothing}, 1, {0x55555555}, {adcText + "1431655765)" + done}},
        {adc, {silence}, 0, {0x55555555}, {adcText + "1431655765)" + noReply}},
        {gauge, {"00 34 92"}, 1, {0, 0x9234}, {gaugeText + "0, iValue = 37428)" + done}},
        {gauge, {"07 34 92"}, 0, {7, 0x9234}, {gaugeText + "7, iValue = 37428) - Wrong status (7)\n"}},
        {gauge, {nothing}, 0, {85, 0x5555}, {gaugeText + "85, iValue = 21845) - Wrong status (85)\n"}},
        {gauge, {silence}, 0, {85, 0x5555}, {gaugeText + "85, iValue = 21845) - error code = 187\n"}},
        {GaugeMode(3), {"03"}, 1, {3}, {modeText + done}},
        {GaugeMode(3), {"02"}, 0, {3}, {modeText + " - Wrong iSwitch value received (2) = 0\n"}},
        {GaugeMode(3), {nothing}, 0, {3}, {modeText + " - Wrong iSwitch value received (0) = 0\n"}},
        {GaugeMode(3), {silence}, 0, {3}, {modeText + " - error code = 187\n"}},
    });
}

TEST_F(LowLevelAccessTest, HeadsetReplyIsNotUnpackedAndTheResultIsTheHostLibrarys)
{
    const std::string readText = "\tTANDEKOR_FTM_HEADSET_AMP_READ(iHeadsetReg = -2147483647)";
    const std::string writeText = "\tTANDEKOR_FTM_HEADSET_AMP_WRITE(iHeadsetReg = 2147483649)";
    const Numbers value{0x80000001};
    ExpectAnswers({
        {readHeadset, {"0A 0B 0C 0D"}, 1, value, {readText + done}},
        {readHeadset, {silence}, 0, value, {readText + " - error code = 187"}},
        {writeHeadset, {"0A 0B 0C 0D"}, 1, value, {writeText + done}},
        {writeHeadset, {silence}, 0, value, {writeText + " - error code = 187"}},
    });
    simulator::RepeatReply({{}, 7, {}});
    EXPECT_EQ(readHeadset(handle).result, 7);
    EXPECT_EQ(writeHeadset(handle).result, 7);
}

}  // namespace tandekor::test
