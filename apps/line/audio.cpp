// What the phone plays and hears: audio path, loopback, tone, microphone, FM radio.
#include <algorithm>
#include <cstdlib>
#include <initializer_list>

#include "phone/nv_items.h"
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr uint16_t handset = 0;  // audio device
constexpr uint8_t halfVolume = 50;

Outcome Path(Context& context)
{
    if (TANDEKOR_MicrophoneBiasVoltages(context.handle, handset) == 0)
        return Failed("TANDEKOR_MicrophoneBiasVoltages", "the audio path cannot be set");
    return Done("audio device %u", handset);
}

Outcome Loopback(Context& context)
{
    for (const uint8_t on : std::initializer_list<uint8_t>{1, 0})
    {
        if (TANDEKOR_AudioTest(context.handle, handset, on) == 0)
            return Failed("TANDEKOR_AudioTest", "the loopback cannot be switched %s", on != 0 ? "on" : "off");
    }
    return Done("on, and off again");
}

Outcome Speaker(Context& context)
{
    constexpr uint16_t highHz = 1336;
    constexpr uint16_t lowHz = 941;
    if (TANDEKOR_TestSpeaker(context.handle, handset, halfVolume, highHz, lowHz) == 0)
        return Failed("TANDEKOR_TestSpeaker", "no tone");
    return Done("tone of %u and %u Hz at volume %u", highHz, lowHz, halfVolume);
}

// The item that has to be written is the start mode, as switching on has written it already.
Outcome Microphone(Context& context)
{
    uint8_t startMode = 1;
    uint8_t pcm[512] = {};
    if (TANDEKOR_TestMicrophone(context.handle, 4, 0, sizeof pcm, pcm, nv::startMode.number, &startMode, 1, 0, 0) == 0)
        return Failed("TANDEKOR_TestMicrophone", "nothing was captured");
    int loudest = 0;
    for (size_t i = 0; i < sizeof pcm; i += 2)
        loudest = std::max(loudest, std::abs(static_cast<int16_t>(pcm[i] | pcm[i + 1] << 8)));
    return Done("loudest of %zu samples", sizeof pcm / 2).Add("level", loudest);
}

Outcome FmRadio(Context& context)
{
    const uint16_t channel = context.options.radio.channelFm;
    uint16_t chip = 0;
    uint16_t status = 0;
    uint8_t information = 0;
    if (TANDEKOR_FM_RadioTest(context.handle, handset, &chip, channel, &status, &information) == 0)
        return Failed("TANDEKOR_FM_RadioTest", "the radio cannot be tuned (status %u)", status);
    return Done("tuned to channel %u, information bit %u", channel, information).Add("chip", chip);
}

constexpr Test tests[] = {
    {"audio-path", "audio path with the microphone's bias", Path, {}, Changes::Setting},
    {"loopback", "loopback of the microphone, on and off", Loopback},
    {"speaker",
     "tone of two frequencies",
     Speaker,
     {},
     Changes::Setting,
     "Did you hear a tone of two frequencies from the phone?"},
    {"microphone", "captures what the microphone hears", Microphone, {{"level"}}},
    {"fm-radio", "tunes the FM radio", FmRadio, {{"chip"}}, Changes::Setting},
};

}  // namespace

extern const Group audioGroup;
constinit const Group audioGroup{"audio", "what the phone plays and hears", tests};

}  // namespace tandekor::line
