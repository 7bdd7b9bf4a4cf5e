// The transmitter through its fixed sequences, and averages of ADC readings by phone model.
#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "tandekor/ftm.h"

namespace tandekor
{

namespace
{

constexpr char burstArguments[]
    = "(iSlotNum = %c, iDataSource = %d, iTSCindex = %c, iNumBursts = %d, bIsInfiniteDuration = %c)";
constexpr char paBurstArguments[]
    = "(iSlotNum = %c, iDataSource = %d, iTSCindex = %c,\t iNumBursts = %d, bIsInfiniteDuration = %c)";

constexpr double notMeasured = 255.0;

// How the ADC of a phone model is read: by the sum of many readings, or by single ones.
enum class AdcReading
{
    Unknown,
    Summed,
    Single
};

AdcReading AdcReadingOf(uint32_t model)
{
    for (const uint32_t known : {13, 14, 15, 23, 24, 25, 33, 34, 35, 36, 40, 52, 53, 55})
    {
        if (model == known)
            return AdcReading::Summed;
    }
    for (const uint32_t known : {61, 62, 63, 64, 65, 74, 75, 76, 77})
    {
        if (model == known)
            return AdcReading::Single;
    }
    return AdcReading::Unknown;
}

// ADC types.
constexpr uint16_t firstAdc = 0;
constexpr uint16_t secondAdcSummed = 1;
constexpr uint16_t secondAdcSingle = 3;
constexpr uint16_t thirdAdcSummed = 3;

}  // namespace

bool PhoneProcedures::SetTransmitBurst(const char* arguments, uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                                       uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    return CallStep("QLIB_FTM_SET_TRANSMIT_BURST", QLIB_FTM_SET_TRANSMIT_BURST, arguments, iSlotNum, iDataSource,
                    iTSCindex, iNumBursts, bIsInfiniteDuration);
}

bool PhoneProcedures::SetPaRange(uint16_t iPArange)
{
    return CallStep("QLIB_FTM_SET_PA_RANGE", QLIB_FTM_SET_PA_RANGE, "(iPArange = %d)", iPArange);
}

bool PhoneProcedures::SelectCwWaveform(uint8_t bSelectCW)
{
    return CallStep("QLIB_FTM_CDMA_CW_WAVEFORM", QLIB_FTM_CDMA_CW_WAVEFORM, "(bSelectCW = %c)", bSelectCW);
}

bool PhoneProcedures::SetPdm(uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return CallStep("QLIB_FTM_SET_PDM", QLIB_FTM_SET_PDM, "(iPDMtype = %d, iPDMvalue = %d)", iPDMtype, iPDMvalue);
}

uint8_t PhoneProcedures::GSM_PA_OutputPower(uint16_t eNewMode, uint16_t iChannel, uint8_t iSlotNum, int16_t iDataSource,
                                            uint8_t iTSCindex, uint32_t iNumBursts, uint8_t bIsInfiniteDuration,
                                            uint16_t iDACinput)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SetMode(eNewMode) && SetChannel(iChannel) && TxOn()
           && SetTransmitBurst(paBurstArguments, iSlotNum, iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration)
           && CallStep("QLIB_FTM_SET_PA_DAC_INPUT", QLIB_FTM_SET_PA_DAC_INPUT, "(iDACinput = %d)", iDACinput)
           && TxOff();
}

uint8_t PhoneProcedures::Set_TX_PowerOn(uint16_t eNewMode, uint16_t iChannel, uint8_t iPowerLevelID, uint8_t iSlotNum,
                                        int16_t iDataSource, uint8_t iTSCindex, uint32_t iNumBursts,
                                        uint8_t bIsInfiniteDuration)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SetMode(eNewMode) && SetChannel(iChannel)
           && CallStep("QLIB_FTM_SET_TX_POWER_LEVEL", QLIB_FTM_SET_TX_POWER_LEVEL, "(iPowerLevelID = %c)",
                       iPowerLevelID)
           && SetTransmitBurst(burstArguments, iSlotNum, iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration)
           && TxOn();
}

uint8_t PhoneProcedures::WCDMA_PA_OutputPower(uint16_t eNewMode, uint16_t iChannel, uint16_t iPArange,
                                              uint8_t bSelectCW, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SetMode(eNewMode) && TxOff() && SetChannel(iChannel)
           && SetPaRange(iPArange) && SelectCwWaveform(bSelectCW) && SetPdm(iPDMtype, iPDMvalue) && TxOn();
}

uint8_t PhoneProcedures::AFC_Deviation(uint16_t eNewMode, uint16_t iChannel, uint16_t iPArange, uint8_t bSelectCW,
                                       uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0 && SetMode(eNewMode) && SetChannel(iChannel) && TxOn()
           && SetPaRange(iPArange) && SelectCwWaveform(bSelectCW) && SetPdm(iPDMtype, iPDMvalue) && TxOff();
}

bool PhoneProcedures::AverageSummed(uint16_t adcType, uint16_t count, double* average)
{
    uint32_t sum = 0;
    if (!Step(
            "TANDEKOR_FTM_MGET_ADC_VAL", "(iADC_type = %i, iReadCount = %d, piADC_value = %d)",
            [&] { return TANDEKOR_FTM_MGET_ADC_VAL(hResourceContext, adcType, count, &sum); }, adcType, count, sum))
        return false;
    *average = static_cast<double>(sum) / count;
    return true;
}

bool PhoneProcedures::AverageSingle(uint16_t adcType, uint16_t count, bool startTextEachTime, double* average)
{
    uint32_t sum = 0;
    for (uint32_t i = 1; i <= count; ++i)
    {
        uint16_t reading = 0;
        if (startTextEachTime)
            StepTrace(STEP_START, "\tQLIB_FTM_GET_ADC_VAL() start");
        if (!StepWithoutStart(
                "QLIB_FTM_GET_ADC_VAL", "[Count = %i](iADC_type = %i, piADC_value = %d)",
                [&] { return QLIB_FTM_GET_ADC_VAL(hResourceContext, adcType, &reading); }, i, adcType, reading))
            return false;
        sum += reading;
    }
    *average = static_cast<double>(sum) / count;
    return true;
}

// A model whose ADC is not known fails behind the question for it, with nothing written.
uint8_t PhoneProcedures::CheckDACValues(uint16_t iAverageCount, double* pdFirstValue, uint16_t iSecondAverageCount,
                                        double* pdThirdValue, double* pdSecondValue)
{
    if (TANDEKOR_CheckConnection(hResourceContext) == 0)
        return 0;
    if (iAverageCount == 0)
    {
        *pdFirstValue = 0.0;
        StepTrace(STEP_START, "iAverageCount = 0");
        return 0;
    }
    uint32_t model = 0;
    if (!AskPhoneModel(&model))
        return 0;
    const AdcReading reading = AdcReadingOf(model);
    if (reading == AdcReading::Unknown)
        return 0;
    const bool summed = reading == AdcReading::Summed;

    if (!(summed ? AverageSummed(firstAdc, iAverageCount, pdFirstValue)
                 : AverageSingle(firstAdc, iAverageCount, true, pdFirstValue)))
        return 0;
    *pdThirdValue = notMeasured;
    if (iSecondAverageCount == 0)
    {
        *pdSecondValue = notMeasured;
        return 0;
    }
    if (summed)
        return AverageSummed(secondAdcSummed, iSecondAverageCount, pdSecondValue)
               && AverageSummed(thirdAdcSummed, iSecondAverageCount, pdThirdValue);
    StepTrace(STEP_START, "\tQLIB_FTM_GET_ADC_VAL() loop start");
    return AverageSingle(secondAdcSingle, iSecondAverageCount, false, pdSecondValue);
}

}  // namespace tandekor
