// The transmitter through its fixed sequences, and averages of ADC readings by phone model.
#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr char burstArguments[]
    = "(iSlotNum = %c, iDataSource = %d, iTSCindex = %c, iNumBursts = %d, bIsInfiniteDuration = %c)";
constexpr char paBurstArguments[]
    = "(iSlotNum = %c, iDataSource = %d, iTSCindex = %c,\t iNumBursts = %d, bIsInfiniteDuration = %c)";

constexpr double notMeasured = 255.0;

// ADC types.
constexpr uint16_t firstAdc = 0;
constexpr uint16_t secondAdcSummed = 1;
constexpr uint16_t secondAdcSingle = 3;
constexpr uint16_t thirdAdcSummed = 3;

bool SetTransmitBurst(const PhoneProcedure& phone, const char* arguments, uint8_t iSlotNum, int16_t iDataSource,
                      uint8_t iTSCindex, uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    return phone.CallStep("QLIB_FTM_SET_TRANSMIT_BURST", QLIB_FTM_SET_TRANSMIT_BURST, arguments, iSlotNum, iDataSource,
                          iTSCindex, iNumBursts, bIsInfiniteDuration);
}

bool SetPaRange(const PhoneProcedure& phone, uint16_t iPArange)
{
    return phone.CallStep("QLIB_FTM_SET_PA_RANGE", QLIB_FTM_SET_PA_RANGE, "(iPArange = %d)", iPArange);
}

bool SelectCwWaveform(const PhoneProcedure& phone, uint8_t bSelectCW)
{
    return phone.CallStep("QLIB_FTM_CDMA_CW_WAVEFORM", QLIB_FTM_CDMA_CW_WAVEFORM, "(bSelectCW = %c)", bSelectCW);
}

bool SetPdm(const PhoneProcedure& phone, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    return phone.CallStep("QLIB_FTM_SET_PDM", QLIB_FTM_SET_PDM, "(iPDMtype = %d, iPDMvalue = %d)", iPDMtype, iPDMvalue);
}

}  // namespace

uint8_t TANDEKOR_GSM_PA_OutputPower(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                    uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex, uint32_t iNumBursts,
                                    uint8_t bIsInfiniteDuration, uint16_t iDACinput)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.SetMode(eNewMode) && phone.SetChannel(iChannel) && phone.TxOn()
           && SetTransmitBurst(phone, paBurstArguments, iSlotNum, iDataSource, iTSCindex, iNumBursts,
                               bIsInfiniteDuration)
           && phone.CallStep("QLIB_FTM_SET_PA_DAC_INPUT", QLIB_FTM_SET_PA_DAC_INPUT, "(iDACinput = %d)", iDACinput)
           && phone.TxOff();
}

uint8_t TANDEKOR_Set_TX_PowerOn(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                uint8_t iPowerLevelID, uint8_t iSlotNum, int16_t iDataSource, uint8_t iTSCindex,
                                uint32_t iNumBursts, uint8_t bIsInfiniteDuration)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.SetMode(eNewMode) && phone.SetChannel(iChannel)
           && phone.CallStep("QLIB_FTM_SET_TX_POWER_LEVEL", QLIB_FTM_SET_TX_POWER_LEVEL, "(iPowerLevelID = %c)",
                             iPowerLevelID)
           && SetTransmitBurst(phone, burstArguments, iSlotNum, iDataSource, iTSCindex, iNumBursts, bIsInfiniteDuration)
           && phone.TxOn();
}

uint8_t TANDEKOR_WCDMA_PA_OutputPower(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                                      uint16_t iPArange, uint8_t bSelectCW, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.SetMode(eNewMode) && phone.TxOff() && phone.SetChannel(iChannel)
           && SetPaRange(phone, iPArange) && SelectCwWaveform(phone, bSelectCW) && SetPdm(phone, iPDMtype, iPDMvalue)
           && phone.TxOn();
}

uint8_t TANDEKOR_AFC_Deviation(ResourceContext hResourceContext, uint16_t eNewMode, uint16_t iChannel,
                               uint16_t iPArange, uint8_t bSelectCW, uint16_t iPDMtype, uint16_t iPDMvalue)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.SetMode(eNewMode) && phone.SetChannel(iChannel) && phone.TxOn()
           && SetPaRange(phone, iPArange) && SelectCwWaveform(phone, bSelectCW) && SetPdm(phone, iPDMtype, iPDMvalue)
           && phone.TxOff();
}

namespace
{

bool AverageSummed(const PhoneProcedure& phone, uint16_t adcType, uint16_t count, double* average)
{
    uint32_t sum = 0;
    if (!phone.Step(
            "TANDEKOR_FTM_MGET_ADC_VAL", "(iADC_type = %i, iReadCount = %d, piADC_value = %d)",
            [&] { return TANDEKOR_FTM_MGET_ADC_VAL(phone.hResourceContext, adcType, count, &sum); }, adcType, count,
            sum))
        return false;
    *average = static_cast<double>(sum) / count;
    return true;
}

bool AverageSingle(const PhoneProcedure& phone, uint16_t adcType, uint16_t count, bool startTextEachTime,
                   double* average)
{
    uint32_t sum = 0;
    for (uint32_t i = 1; i <= count; ++i)
    {
        uint16_t reading = 0;
        if (startTextEachTime)
            phone.StepTrace(STEP_START, "\tQLIB_FTM_GET_ADC_VAL() start");
        if (!phone.StepWithoutStart(
                "QLIB_FTM_GET_ADC_VAL", "[Count = %i](iADC_type = %i, piADC_value = %d)",
                [&] { return QLIB_FTM_GET_ADC_VAL(phone.hResourceContext, adcType, &reading); }, i, adcType, reading))
            return false;
        sum += reading;
    }
    *average = static_cast<double>(sum) / count;
    return true;
}

}  // namespace

// A model whose ADC is not known fails after the question for it, with nothing written.
uint8_t TANDEKOR_CheckDACValues(ResourceContext hResourceContext, uint16_t iAverageCount, double* pdFirstValue,
                                uint16_t iSecondAverageCount, double* pdThirdValue, double* pdSecondValue)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return 0;
    if (iAverageCount == 0)
    {
        *pdFirstValue = 0.0;
        phone.StepTrace(STEP_START, "iAverageCount = 0");
        return 0;
    }
    uint32_t model = 0;
    if (!phone.AskPhoneModel(&model))
        return 0;
    const Adc adc = PhoneModelOf(model).adc;
    if (adc == Adc::Unknown)
        return 0;
    const bool summed = adc == Adc::Summed;

    if (!(summed ? AverageSummed(phone, firstAdc, iAverageCount, pdFirstValue)
                 : AverageSingle(phone, firstAdc, iAverageCount, true, pdFirstValue)))
        return 0;
    *pdThirdValue = notMeasured;
    if (iSecondAverageCount == 0)
    {
        *pdSecondValue = notMeasured;
        return 0;
    }
    if (summed)
        return AverageSummed(phone, secondAdcSummed, iSecondAverageCount, pdSecondValue)
               && AverageSummed(phone, thirdAdcSummed, iSecondAverageCount, pdThirdValue);
    phone.StepTrace(STEP_START, "\tQLIB_FTM_GET_ADC_VAL() loop start");
    return AverageSingle(phone, secondAdcSingle, iSecondAverageCount, false, pdSecondValue);
}
