// The FM radio, by factory requests. Nothing of what is set is stored.
#include "factory_request.h"
#include "tandekor/ftm.h"

namespace tandekor::line
{

namespace
{

Outcome Chip(Context& context)
{
    uint16_t chip = 0;
    if (TANDEKOR_FTM_GET_FM_RADIO_ID(context.handle, &chip) == 0)
        return NotAnswered("TANDEKOR_FTM_GET_FM_RADIO_ID");
    return Done("0x%04X", chip).Add("chip", chip);
}

Outcome Tune(Context& context)
{
    const uint16_t channel = context.options.radio.channelFm;
    uint16_t status = 0;
    if (TANDEKOR_FTM_TUNE_FM_RADIO(context.handle, channel, &status) == 0)
        return NotAnswered("TANDEKOR_FTM_TUNE_FM_RADIO");
    return Done("channel %u", channel).Add("status", status);
}

Outcome Scan(Context& context)
{
    uint8_t status = 0, valid = 0, count = 0;
    uint16_t stations[48] = {};
    if (TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF(context.handle, &status, &valid, &count, stations) == 0)
        return NotAnswered("TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF");
    std::string list;
    for (unsigned i = 0; valid == 1 && i < count; ++i)
        list += ' ' + std::to_string(stations[i]);
    return Done("received:%s", list.empty() ? " none" : list.c_str()).Add("stations", valid == 1 ? count : 0);
}

Outcome Station(Context& context)
{
    uint8_t status = 0, bytes[7] = {};
    uint16_t words[3] = {};
    if (TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO(context.handle, &status, &bytes[0], &words[0], &bytes[1], &bytes[2],
                                               &words[1], &bytes[3], &bytes[4], &bytes[5], &bytes[6], &words[2])
        == 0)
        return NotAnswered("TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO");
    return Done("fields %u %u %u %u %u %u %u %u %u %u", bytes[0], words[0], bytes[1], bytes[2], words[1], bytes[3],
                bytes[4], bytes[5], bytes[6], words[2]);
}

Outcome Program(Context& context)
{
    uint8_t status = 0, second = 0, third = 0, fourth = 0;
    uint16_t first = 0;
    char text[96] = {};
    if (TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO(context.handle, &status, &first, &second, text, &third, &fourth) == 0)
        return NotAnswered("TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO");
    return Done("fields %u %u %u %u", first, second, third, fourth).Add("text", text);
}

constexpr Test tests[] = {
    {"fm-chip", "identifier of the radio chip", Chip, {{"chip"}}},
    {"fm-tune", "tunes to the station file's channel", Tune, {{"status"}}, Changes::Setting},
    {.name = "fm-scan",
     .description = "stations that are received",
     .run = Scan,
     .measures = {{"stations"}},
     .changes = Changes::Setting,
     .waitsFor = "radio to go through its band"},
    {"fm-station", "fields of the station tuned to", Station},
    {"fm-program", "program text of the station", Program, {{"text", textUnit}}},
};

}  // namespace

extern const Group radioGroup;
constinit const Group radioGroup{"radio", "the FM radio, by factory requests", tests};

}  // namespace tandekor::line
