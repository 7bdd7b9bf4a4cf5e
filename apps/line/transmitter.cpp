// The transmitter, and the ADC that watches it. Each test that leaves the transmitter on switches it off by the
// procedure that ends so.
#include "transmitter.h"

#include "tandekor/procedures.h"

namespace tandekor::line
{

namespace
{

constexpr int16_t randomData = 0;
constexpr uint32_t bursts = 100;
constexpr uint8_t counted = 0;  // the bursts end by themselves

constexpr uint16_t paRange = 0;
constexpr uint8_t cwWaveform = 1;
constexpr uint16_t pdmAgc = 2;
constexpr uint16_t pdmMiddle = 256;
constexpr uint16_t paDac = 500;

// Both switch on before they switch off.
bool GsmOff(const Context& context)
{
    const RadioValues& radio = context.options.radio;
    return TANDEKOR_GSM_PA_OutputPower(context.handle, radio.modeGsm, radio.channelGsm, burstSlot, randomData,
                                       radio.trainingSequence, bursts, counted, paDac)
           != 0;
}

bool WcdmaOff(const Context& context)
{
    const RadioValues& radio = context.options.radio;
    return TANDEKOR_AFC_Deviation(context.handle, radio.modeWcdma, radio.channelWcdmaUplink, paRange, cwWaveform,
                                  pdmAgc, pdmMiddle)
           != 0;
}

Outcome Gsm(Context& context)
{
    const RadioValues& radio = context.options.radio;
    const bool on = TANDEKOR_Set_TX_PowerOn(context.handle, radio.modeGsm, radio.channelGsm, radio.powerLevelGsm,
                                            burstSlot, randomData, radio.trainingSequence, bursts, counted)
                    != 0;
    const bool off = GsmOff(context);
    if (!on)
        return Failed("TANDEKOR_Set_TX_PowerOn", "no power at level %u", radio.powerLevelGsm);
    if (!off)
        return Failed("TANDEKOR_GSM_PA_OutputPower", "no power with PA DAC %u, or not switched off after it", paDac);
    return Done("channel %u at level %u, then with PA DAC %u; off again", radio.channelGsm, radio.powerLevelGsm, paDac);
}

Outcome Wcdma(Context& context)
{
    const RadioValues& radio = context.options.radio;
    const bool on = TANDEKOR_WCDMA_PA_OutputPower(context.handle, radio.modeWcdma, radio.channelWcdmaUplink, paRange,
                                                  cwWaveform, pdmAgc, pdmMiddle)
                    != 0;
    const bool off = WcdmaOff(context);
    if (!on)
        return Failed("TANDEKOR_WCDMA_PA_OutputPower", "no power in PA range %u", paRange);
    if (!off)
        return Failed("TANDEKOR_AFC_Deviation", "no power with the CW waveform, or not switched off after it");
    return Done("channel %u in PA range %u, PDM %u at %u; off again", radio.channelWcdmaUplink, paRange, pdmAgc,
                pdmMiddle);
}

Outcome Adc(Context& context)
{
    constexpr uint16_t readings = 10;
    constexpr double notMeasured = 255.0;
    double first = notMeasured;
    double second = notMeasured;
    double third = notMeasured;
    if (TANDEKOR_CheckDACValues(context.handle, readings, &first, readings, &third, &second) == 0)
        return Failed("TANDEKOR_CheckDACValues", "the ADC cannot be read, or is not known for this phone model");
    Outcome outcome = Done("averages of %u readings", readings);
    outcome.Add("first", first).Add("second", second);
    if (third != notMeasured)
        outcome.Add("third", third);
    return outcome;
}

constexpr Test tests[] = {
    {"tx-gsm", "GSM at full power and by the PA DAC, then off", Gsm, {}, Changes::Radiates},
    {"tx-wcdma", "WCDMA with a CW waveform and by the AFC, then off", Wcdma, {}, Changes::Radiates},
    {"adc-averages", "averages of the ADC channels of this phone model", Adc, {{"first"}, {"second"}, {"third"}}},
};

}  // namespace

Outcome TransmitterOff(Context& context)
{
    if (!WcdmaOff(context) && !GsmOff(context))
        return Failed("TANDEKOR_GSM_PA_OutputPower", "the transmitter may still be on");
    context.transmitterOn = false;
    return Passed("off");
}

extern const Group transmitterGroup;
constinit const Group transmitterGroup{"transmitter", "the transmitter, which is off at the end, and the ADC", tests};

}  // namespace tandekor::line
