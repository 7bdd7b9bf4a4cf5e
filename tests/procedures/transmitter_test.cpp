// The transmitter's sequences, and the averages of the ADC.
#include "tests/procedures/chain_lines.h"

namespace tandekor::test
{

namespace
{

using simulator::Mode;

class TransmitterTest : public ProcedureTest
{
protected:
    TransmitterTest() { Phone().mode = Mode::Ftm; }
};

// Values of which each is another, characters where the log shows them as such.
constexpr uint16_t mode = 0xE001, channel = 0xE002, range = 0xE003, pdmType = 0xE004, pdmValue = 0xE005, dac = 0xE006;
constexpr uint32_t bursts = 2'100'000'000;

constexpr char setMode[] = "QLIB_FTM_SET_MODE(eNewMode = 57345)";
constexpr char setChannel[] = "QLIB_FTM_SET_CHAN(iChannel = 57346)";
constexpr char txOn[] = "QLIB_FTM_SET_TX_ON()";
constexpr char txOff[] = "QLIB_FTM_SET_TX_OFF()";
constexpr char setRange[] = "QLIB_FTM_SET_PA_RANGE(iPArange = 57347)";
constexpr char setPdm[] = "QLIB_FTM_SET_PDM(iPDMtype = 57348, iPDMvalue = 57349)";

}  // namespace

TEST_F(TransmitterTest, SequencesHaveTheirOwnOrderAndEnd)
{
    const struct
    {
        uint8_t (*run)(ResourceContext);
        Texts calls, log;
        bool onAtTheEnd;
    } cases[] = {
        {[](auto h) { return TANDEKOR_GSM_PA_OutputPower(h, mode, channel, 'S', -7, 'T', bursts, 'I', dac); },
         {"QLIB_FTM_SET_MODE(57345)", "QLIB_FTM_SET_CHAN(57346)", txOn,
          "QLIB_FTM_SET_TRANSMIT_BURST(83, -7, 84, 2100000000, 73)", "QLIB_FTM_SET_PA_DAC_INPUT(57350)", txOff},
         Chain(
             {setMode, setChannel, txOn,
              ("QLIB_FTM_SET_TRANSMIT_BURST(iSlotNum = S, iDataSource = -7, iTSCindex = T,\t iNumBursts = 2100000000, "
               "bIsInfiniteDuration = I)"),
              "QLIB_FTM_SET_PA_DAC_INPUT(iDACinput = 57350)", txOff}),
         false},
        {[](auto h) { return TANDEKOR_Set_TX_PowerOn(h, mode, channel, 'P', 'S', -7, 'T', bursts, 'I'); },
         {"QLIB_FTM_SET_MODE(57345)", "QLIB_FTM_SET_CHAN(57346)", "QLIB_FTM_SET_TX_POWER_LEVEL(80)",
          "QLIB_FTM_SET_TRANSMIT_BURST(83, -7, 84, 2100000000, 73)", txOn},
         Chain({setMode, setChannel, "QLIB_FTM_SET_TX_POWER_LEVEL(iPowerLevelID = P)",
                ("QLIB_FTM_SET_TRANSMIT_BURST(iSlotNum = S, iDataSource = -7, iTSCindex = T, iNumBursts = 2100000000, "
                 "bIsInfiniteDuration = I)"),
                txOn}),
         true},
        {[](auto h) { return TANDEKOR_WCDMA_PA_OutputPower(h, mode, channel, range, 'C', pdmType, pdmValue); },
         {"QLIB_FTM_SET_MODE(57345)", txOff, "QLIB_FTM_SET_CHAN(57346)", "QLIB_FTM_SET_PA_RANGE(57347)",
          "QLIB_FTM_CDMA_CW_WAVEFORM(67)", "QLIB_FTM_SET_PDM(57348, 57349)", txOn},
         Chain({setMode, txOff, setChannel, setRange, "QLIB_FTM_CDMA_CW_WAVEFORM(bSelectCW = C)", setPdm, txOn}),
         true},
        {[](auto h) { return TANDEKOR_AFC_Deviation(h, mode, channel, range, 0, pdmType, pdmValue); },
         {"QLIB_FTM_SET_MODE(57345)", "QLIB_FTM_SET_CHAN(57346)", txOn, "QLIB_FTM_SET_PA_RANGE(57347)",
          "QLIB_FTM_CDMA_CW_WAVEFORM(0)", "QLIB_FTM_SET_PDM(57348, 57349)", txOff},
         Chain({setMode, setChannel, txOn, setRange, "QLIB_FTM_CDMA_CW_WAVEFORM(bSelectCW = ", setPdm, txOff}),
         false},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(&row - cases);
        simulator::ForgetCalls();
        simulator::ForgetLog();
        Phone().radio.transmitting = !row.onAtTheEnd;
        EXPECT_EQ(row.run(handle), 1);
        Texts calls = row.calls;
        calls.insert(calls.begin(), "QLIB_IsPhoneConnected() x3");
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(Log(), row.log);
        EXPECT_EQ(Phone().radio.transmitting, row.onAtTheEnd);
    }
    EXPECT_EQ(Sleeps(), Waits{});
}

TEST_F(TransmitterTest, FailureLeavesTheTransmitterAsItIs)
{
    simulator::RefuseCall("QLIB_FTM_SET_PA_DAC_INPUT");
    EXPECT_EQ(TANDEKOR_GSM_PA_OutputPower(handle, mode, channel, 0, 0, 0, 0, 0, dac), 0);
    EXPECT_EQ(LastLogText(), Failure("QLIB_FTM_SET_PA_DAC_INPUT(iDACinput = 57350)"));
    EXPECT_TRUE(Phone().radio.transmitting);
}

// --- averages

namespace
{

class AdcTest : public TransmitterTest
{
protected:
    AdcTest() { Phone().radio.adc = {{0, 11}, {1, 22}, {3, 33}}; }

    struct Model
    {
        uint32_t chip;  // version word that the phone's build answer holds
        uint16_t variant;
    };
    static constexpr Model summed{0x405, 0}, single{0xC0, 4};  // models 52 and 74

    uint8_t Read(const Model& model, uint16_t count, uint16_t secondCount)
    {
        Phone().msmHardwareVersion = model.chip;
        Phone().hardwareId = model.variant;
        first = second = third = untouched;
        return TANDEKOR_CheckDACValues(handle, count, &first, secondCount, &third, &second);
    }

    // The reading changes with each call of the operation, so that an average is that of all readings.
    static void ReadingsFollow(const std::vector<uint16_t>& readings, uint16_t type)
    {
        int call = 0;
        for (const uint16_t reading : readings)
            simulator::BeforeCall("QLIB_FTM_GET_ADC_VAL", ++call, [=] { Phone().radio.adc[type] = reading; });
    }

    // Calls behind those for the model.
    static Texts ReadingCalls()
    {
        Texts calls;
        for (const std::string& call : simulator::Calls())
        {
            if (call.starts_with("QLIB_FTM_GET_ADC_VAL") || call.find("80 10 00 04 00") != std::string::npos)
                calls.push_back(call);
        }
        return calls;
    }

    // The log behind the model.
    static Texts ReadingLog()
    {
        Texts log = Log();
        size_t at = 0;
        while (at < log.size() && !log[at].starts_with("\tTANDEKOR_Phone_Model("))
            ++at;
        log.erase(log.begin(), log.begin() + static_cast<ptrdiff_t>(std::min(at + 1, log.size())));
        return log;
    }

    static constexpr double untouched = -1.0;
    double first = untouched, second = untouched, third = untouched;
};

// A summed reading as it stands in the log.
Lines SummedRead(int type, int count, int sum)
{
    const std::string values = std::to_string(type) + ", iReadCount = " + std::to_string(count);
    const std::string name = "TANDEKOR_FTM_MGET_ADC_VAL(iADC_";
    return Step(name + "type = " + values + ", piADC_value = " + std::to_string(sum) + ')',
                Request(name + "Channel = " + values + ')',
                        name + "Channel = " + values + ", iADC_Sum = " + std::to_string(sum) + ')'));
}

}  // namespace

TEST_F(AdcTest, SummedReadsOfTheAdcTypes0And1And3)
{
    EXPECT_EQ(Read(summed, 3, 256), 1);
    EXPECT_EQ(first, 11.0);
    EXPECT_EQ(second, 22.0);
    EXPECT_EQ(third, 33.0);
    const Texts calls{"QLIB_SendSync(14, 4B 0B 00 80 10 00 04 00 10 00 00 00 03 00, 3000)",
                      "QLIB_SendSync(14, 4B 0B 00 80 10 00 04 00 10 00 01 00 00 01, 3000)",
                      "QLIB_SendSync(14, 4B 0B 00 80 10 00 04 00 10 00 03 00 00 01, 3000)"};
    EXPECT_EQ(ReadingCalls(), calls);
    EXPECT_EQ(simulator::Calls()[2], "QLIB_IsPhoneConnected()");
    EXPECT_EQ(ReadingLog(), Chain({SummedRead(0, 3, 33), SummedRead(1, 256, 5632), SummedRead(3, 256, 8448)}));
    EXPECT_EQ(Log().front(), "\t\tTANDEKOR_Phone_Model() start");
}

TEST_F(AdcTest, SingleReadsOfTheAdcTypes0And3WithTheirFraction)
{
    ReadingsFollow({0xFFFF, 0xFFFF, 1}, 0);
    EXPECT_EQ(Read(single, 3, 2), 1);
    EXPECT_EQ(first, (0xFFFF + 0xFFFF + 1) / 3.0);
    EXPECT_EQ(second, 33.0);
    EXPECT_EQ(third, 255.0);
    EXPECT_EQ(ReadingCalls(), (Texts{"QLIB_FTM_GET_ADC_VAL(0)", "QLIB_FTM_GET_ADC_VAL(0)", "QLIB_FTM_GET_ADC_VAL(0)",
                                     "QLIB_FTM_GET_ADC_VAL(3)", "QLIB_FTM_GET_ADC_VAL(3)"}));
    const std::string start = "\t\tQLIB_FTM_GET_ADC_VAL() ";
    const Texts log{
        start + "start",
        Success("QLIB_FTM_GET_ADC_VAL[Count = 1](iADC_type = 0, piADC_value = 65535)"),
        start + "start",
        Success("QLIB_FTM_GET_ADC_VAL[Count = 2](iADC_type = 0, piADC_value = 65535)"),
        start + "start",
        Success("QLIB_FTM_GET_ADC_VAL[Count = 3](iADC_type = 0, piADC_value = 1)"),
        start + "loop start",
        Success("QLIB_FTM_GET_ADC_VAL[Count = 1](iADC_type = 3, piADC_value = 33)"),
        Success("QLIB_FTM_GET_ADC_VAL[Count = 2](iADC_type = 3, piADC_value = 33)"),
    };
    EXPECT_EQ(ReadingLog(), log);
}

TEST_F(AdcTest, CountsOf0AreNotMeasuredAndFail)
{
    EXPECT_EQ(Read(summed, 0, 5), 0);
    EXPECT_EQ(first, 0.0);
    EXPECT_EQ(second, untouched);
    EXPECT_EQ(third, untouched);
    EXPECT_EQ(Calls(), Texts{"QLIB_IsPhoneConnected() x3"});
    EXPECT_EQ(Log(), Texts{"\tiAverageCount = 0"});
    for (const Model& model : {summed, single})
    {
        simulator::ForgetCalls();
        EXPECT_EQ(Read(model, 1, 0), 0);
        EXPECT_EQ(first, 11.0);
        EXPECT_EQ(second, 255.0);
        EXPECT_EQ(third, 255.0);
        EXPECT_EQ(ReadingCalls().size(), 1U);
        EXPECT_TRUE(LastLogText().ends_with("piADC_value = 11) - Completed successfully\n")) << LastLogText();
    }
}

TEST_F(AdcTest, LargestCountEnds)
{
    EXPECT_EQ(Read(single, 1, 0xFFFF), 1);
    EXPECT_EQ(second, 33.0);
    EXPECT_EQ(simulator::LogTexts().back(),
              Success("QLIB_FTM_GET_ADC_VAL[Count = 65535](iADC_type = 3, piADC_value = 33)"));
}

TEST_F(AdcTest, FailedReadingKeepsTheValuesInFrontOfIt)
{
    const struct
    {
        Model model;
        uint16_t failingType;
        double first, second, third;
        std::string last;
    } cases[] = {
        {summed, 0, untouched, untouched, untouched,
         "TANDEKOR_FTM_MGET_ADC_VAL(iADC_type = 0, iReadCount = 2, piADC_value = 0)"},
        {summed, 1, 11, untouched, 255, "TANDEKOR_FTM_MGET_ADC_VAL(iADC_type = 1, iReadCount = 4, piADC_value = 0)"},
        {summed, 3, 11, 22, 255, "TANDEKOR_FTM_MGET_ADC_VAL(iADC_type = 3, iReadCount = 4, piADC_value = 0)"},
        {single, 0, untouched, untouched, untouched, "QLIB_FTM_GET_ADC_VAL[Count = 1](iADC_type = 0, piADC_value = 0)"},
        {single, 3, 11, untouched, 255, "QLIB_FTM_GET_ADC_VAL[Count = 1](iADC_type = 3, piADC_value = 0)"},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.last);
        Phone().radio.adc = {{0, 11}, {1, 22}, {3, 33}};
        Phone().radio.adc.erase(row.failingType);
        EXPECT_EQ(Read(row.model, 2, 4), 0);
        EXPECT_EQ(first, row.first);
        EXPECT_EQ(second, row.second);
        EXPECT_EQ(third, row.third);
        EXPECT_EQ(LastLogText(), Failure(row.last));
    }
    Phone().radio.adc = {{0, 11}, {3, 33}};
    simulator::RefuseCall("QLIB_FTM_GET_ADC_VAL", 4);
    EXPECT_EQ(Read(single, 2, 4), 0);
    EXPECT_EQ(LastLogText(), Failure("QLIB_FTM_GET_ADC_VAL[Count = 2](iADC_type = 3, piADC_value = 0)"));
    EXPECT_EQ(second, untouched);
}

TEST_F(AdcTest, WayOfReadingFollowsFromThePhoneModelAndAModelWithoutOneEndsBehindTheQuestion)
{
    const struct
    {
        uint32_t chip;
        std::string ways;  // by variant from 0 on: summed, single, or none
    } families[] = {
        {0x40, "+++++++-++--+--+"},   // models 23 23 24 24 24 25 25 0 13 13 0 0 15 0 0 15
        {0x405, "++--------+++++-"},  // 52 53 3 3 0 0 0 2 3 54 34 35 55 36 40 0
        {0x60, "------------1---"},   // 1, but 62 for variant 12
        {0xC0, "----1111--------"},   // 0 71 72 73 74 75 76 77 78
        {0x1, "----------------"},
    };
    for (const auto& family : families)
    {
        for (uint16_t variant = 0; variant < 16; ++variant)
        {
            SCOPED_TRACE("chip " + std::to_string(family.chip) + ", variant " + std::to_string(variant));
            simulator::ForgetCalls();
            simulator::ForgetLog();
            const char way = family.ways[variant];
            EXPECT_EQ(Read({family.chip, variant}, 1, 1), way == '-' ? 0 : 1);
            EXPECT_EQ(ReadingCalls().size(), way == '-' ? 0U : way == '+' ? 3U : 2U);
            EXPECT_EQ(third, way == '-' ? untouched : way == '+' ? 33.0 : 255.0);
            EXPECT_EQ(LastLogText().starts_with("\tTANDEKOR_Phone_Model(piVerNumber = "), way == '-');
        }
    }
}

}  // namespace tandekor::test
