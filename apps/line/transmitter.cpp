// The transmitter, and the ADC that watches it. Each test that leaves the transmitter on switches it off by the
// procedure that ends so.
#include "radio_values.h"
#include "tandekor/procedures.h"
#include "test.h"

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

Outcome MayStillBeOn(const char* function) { return Failed("the transmitter may still be on\n%s gave 0", function); }

Outcome Gsm(Context& context)
{
    constexpr uint8_t powerLevel = 5;  // 33 dBm
    constexpr uint16_t paDac = 500;
    const bool on = TANDEKOR_Set_TX_PowerOn(context.handle, modeGsm900, channelGsm900, powerLevel, burstSlot,
                                            randomData, trainingSequence, bursts, counted)
                    != 0;
    const bool off = TANDEKOR_GSM_PA_OutputPower(context.handle, modeGsm900, channelGsm900, burstSlot, randomData,
                                                 trainingSequence, bursts, counted, paDac)
                     != 0;
    if (!off)
        return MayStillBeOn("TANDEKOR_GSM_PA_OutputPower");
    if (!on)
        return Failed("no power at level %u\nTANDEKOR_Set_TX_PowerOn gave 0", powerLevel);
    return Passed("channel %u at level %u, then with PA DAC %u; off again", channelGsm900, powerLevel, paDac);
}

Outcome Wcdma(Context& context)
{
    const bool on = TANDEKOR_WCDMA_PA_OutputPower(context.handle, modeWcdma, channelWcdmaUplink, paRange, cwWaveform,
                                                  pdmAgc, pdmMiddle)
                    != 0;
    const bool off
        = TANDEKOR_AFC_Deviation(context.handle, modeWcdma, channelWcdmaUplink, paRange, cwWaveform, pdmAgc, pdmMiddle)
          != 0;
    if (!off)
        return MayStillBeOn("TANDEKOR_AFC_Deviation");
    if (!on)
        return Failed("no power in PA range %u\nTANDEKOR_WCDMA_PA_OutputPower gave 0", paRange);
    return Passed("channel %u in PA range %u, PDM %u at %u; off again", channelWcdmaUplink, paRange, pdmAgc, pdmMiddle);
}

Outcome Adc(Context& context)
{
    constexpr uint16_t readings = 10;
    constexpr double notMeasured = 255.0;
    double first = notMeasured;
    double second = notMeasured;
    double third = notMeasured;
    if (TANDEKOR_CheckDACValues(context.handle, readings, &first, readings, &third, &second) == 0)
        return Failed("the ADC cannot be read, or is not known for this phone model\nTANDEKOR_CheckDACValues gave 0");
    if (third == notMeasured)
        return Passed("%.1f and %.1f, each of %u readings", first, second, readings);
    return Passed("%.1f, %.1f and %.1f, each of %u readings", first, second, third, readings);
}

constexpr Test tests[] = {
    {"tx-gsm", "GSM at full power and by the PA DAC, then off", Gsm},
    {"tx-wcdma", "WCDMA with a CW waveform and by the AFC, then off", Wcdma},
    {"adc-averages", "averages of the ADC channels of this phone model", Adc},
};

}  // namespace

extern const Group transmitterGroup;
constinit const Group transmitterGroup{"transmitter", "the transmitter, which is off at the end, and the ADC", tests};

}  // namespace tandekor::line
