// Test calls with the tester that the phone's antenna is connected to.
#include "online_mode.h"
#include "radio_values.h"
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr uint8_t openSession = 1;
constexpr uint8_t closeSession = 1;
constexpr uint32_t timeOutMs = 5000;
constexpr uint8_t slot = 3;

Outcome Gsm(Context& context)
{
    constexpr uint8_t fullRate = 1;
    constexpr uint8_t loopback = 0;
    uint8_t level = 0;
    uint8_t quality = 0;
    const RadioValues& radio = context.options.radio;
    if (TANDEKOR_Reduced_Signalling_GSM(context.handle, &level, &quality, radio.channelGsm, radio.bandGsm,
                                        radio.trainingSequence, slot, fullRate, radio.powerLevelGsm, loopback,
                                        openSession, radio.channelGsm, radio.bandGsm, timeOutMs, loopback, slot,
                                        fullRate, closeSession)
        == 0)
        return Failed("TANDEKOR_Reduced_Signalling_GSM", "no GSM test call on channel %u", radio.channelGsm);
    return Done("channel %u, before the call", radio.channelGsm).Add("level", level).Add("quality", quality);
}

Outcome Wcdma(Context& context)
{
    constexpr uint8_t rmc12Point2 = 0;  // kbit/s
    constexpr uint8_t maxTxPower = 24;  // dBm
    constexpr uint32_t uplinkScrambling = 0;
    constexpr uint8_t powerControl = 0;
    constexpr uint8_t stepSize = 1;  // dB
    constexpr uint16_t primaryScrambling = 9;
    constexpr uint16_t channelCode = 9;
    const uint16_t channel = context.options.radio.channelWcdmaDownlink;
    uint8_t state = 0;
    if (TANDEKOR_Reduced_Signalling_WCDMA(context.handle, channel, timeOutMs, &state, rmc12Point2, maxTxPower,
                                          uplinkScrambling, powerControl, stepSize, primaryScrambling, channelCode)
        == 0)
        return Failed("TANDEKOR_Reduced_Signalling_WCDMA", "no WCDMA test call on channel %u", channel);
    return Done("channel %u", channel).Add("state", state);
}

Outcome Hsdpa(Context& context)
{
    constexpr uint8_t everything = 0x0F;
    constexpr uint16_t radioLink = 9;
    constexpr uint16_t rnti = 0xAAAA;
    constexpr uint8_t processes = 6;
    constexpr uint8_t ownPartition = 0;  // the phone divides its memory
    constexpr uint8_t cqiCycle = 2;      // ms
    constexpr uint8_t delta = 5;
    uint8_t codes[] = {1, 2, 3, 4};
    uint8_t state = 0;
    if (TANDEKOR_Reduced_Signalling_HSDPA(context.handle, everything, radioLink, sizeof codes, codes, rnti, processes,
                                          ownPartition, nullptr, 0, cqiCycle, 1, delta, delta, delta, 1, &state)
        == 0)
        return Failed("TANDEKOR_Reduced_Signalling_HSDPA", "no HSDPA test call");
    return Done("%zu codes, %u processes", sizeof codes, processes).Add("state", state);
}

Outcome Edge(Context& context)
{
    constexpr uint8_t flow = 1;
    constexpr uint8_t secondSlot = slot + 1;
    constexpr uint8_t uplinkState = 0;
    constexpr uint8_t gamma = 3;
    constexpr uint32_t reserved = 0;
    uint8_t state = 0;
    uint8_t level = 0;
    const RadioValues& radio = context.options.radio;
    if (TANDEKOR_Reduced_Signalling_EDGE(context.handle, openSession, radio.channelGsm, radio.bandGsm, timeOutMs,
                                         radio.trainingSequence, flow, reserved, reserved, 1, slot, 0, secondSlot,
                                         radio.trainingSequence, uplinkState, gamma, reserved, reserved, reserved,
                                         reserved, &state, &level)
        == 0)
        return Failed("TANDEKOR_Reduced_Signalling_EDGE", "no EDGE test call on channel %u", radio.channelGsm);
    return Done("channel %u, slot %u", radio.channelGsm, slot).Add("state", state).Add("level", level);
}

Outcome CallOnline(Context& context)
{
    uint8_t number[] = {'1', '2', '3', '4', '5', '6'};  // any that the tester takes
    if (TANDEKOR_StartCall(context.handle, sizeof number, number) == 0)
        return Failed("TANDEKOR_StartCall", "the call could not be begun, or not ended");
    return Done("begun and ended, %zu digits", sizeof number);
}

Outcome Call(Context& context) { return RunOnline(context, CallOnline); }

constexpr Test tests[] = {
    {"gsm-call", "stages of a GSM test call", Gsm, {{"level"}, {"quality"}}, Changes::Radiates},
    {"wcdma-call", "stages of a WCDMA test call", Wcdma, {{"state"}}, Changes::Radiates},
    {"hsdpa-call", "stages of an HSDPA test call", Hsdpa, {{"state"}}, Changes::Radiates},
    {"edge-call", "stages of an EDGE test call", Edge, {{"state"}, {"level"}}, Changes::Radiates},
    {.name = "call",
     .description = "begins and ends a GSM call of the phone online",
     .run = Call,
     .changes = Changes::Radiates,
     .waitsFor = "phone to change its mode"},
};

}  // namespace

extern const Group signallingGroup;
constinit const Group signallingGroup{"signalling", "test calls; a tester is connected to the phone", tests};

}  // namespace tandekor::line
