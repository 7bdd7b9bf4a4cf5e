// The receiver, as an application that adjusts it would ask: it measures, and works the corrections out itself.
#include "phone/nv_items.h"
#include "phone/wcdma_bands.h"
#include "radio_values.h"
#include "tandekor/procedures.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr uint8_t lnaRange = 0;

// 0 for a band that has none; the measurement fails there.
uint16_t LnaOffsetItem(const Context& context, int range)
{
    const WcdmaBand* band = FindWcdmaBand(context.options.radio.bandReceiver);
    return band != nullptr ? band->lnaOffset[range] : uint16_t{0};
}

int16_t WordAt(const uint8_t* bytes) { return static_cast<int16_t>(bytes[0] | bytes[1] << 8); }

Outcome Gsm(Context& context)
{
    constexpr int16_t rxFunction = 0;
    uint8_t offsets[128] = {};
    int16_t rssi[4] = {};  // the host library may write more than the first one
    const RadioValues& radio = context.options.radio;
    if (TANDEKOR_RX_GSM_Adjust(context.handle, offsets, radio.modeGsm, radio.channelGsm, burstSlot, rxFunction,
                               lnaRange, rssi)
        == 0)
        return Failed("TANDEKOR_RX_GSM_Adjust", "the receiver could not be measured");
    return Done("channel %u, LNA range %u", radio.channelGsm, lnaRange).Add("rssi", rssi[0]);
}

struct WcdmaValues
{
    int16_t dvga[4] = {};  // as above
    uint8_t fall[3][2] = {};
    uint8_t rise[3][2] = {};
    int16_t lnaOffset = 0;
    uint8_t item[2] = {};
};

// Stores the gain of --vga-gain on the way, and the start mode as it stands in FTM mode; reads one item of 2 bytes.
bool Measure(const Context& context, uint16_t item, WcdmaValues& values)
{
    constexpr int16_t expectedAgc = -106;
    constexpr uint16_t lnaIndex = 0;
    uint8_t startMode[] = {1};
    uint16_t writeStatus = 0;
    uint16_t readStatus = 0;
    return TANDEKOR_RX_WCDMA_Adjust(context.handle, lnaRange, expectedAgc, values.dvga, nv::startMode.number, startMode,
                                    1, &writeStatus, context.options.radio.bandReceiver, *context.options.vgaGain,
                                    nullptr, context.options.radio.bandReceiver, values.fall[0], values.fall[1],
                                    values.fall[2], item, values.item, 2, &readStatus,
                                    context.options.radio.bandReceiver, values.rise[0], values.rise[1], values.rise[2],
                                    lnaIndex, expectedAgc, &values.lnaOffset)
               != 0
           && writeStatus == 0 && readStatus == 0;
}

Outcome NotMeasured()
{
    return Failed("TANDEKOR_RX_WCDMA_Adjust", "the receiver could not be measured, or an item not read");
}

Outcome Wcdma(Context& context)
{
    WcdmaValues values;
    if (!Measure(context, LnaOffsetItem(context, 0), values))
        return NotMeasured();
    return Done("thresholds fall %d %d %d, rise %d %d %d", WordAt(values.fall[0]), WordAt(values.fall[1]),
                WordAt(values.fall[2]), WordAt(values.rise[0]), WordAt(values.rise[1]), WordAt(values.rise[2]))
        .Add("dvga-offset", values.dvga[0])
        .Add("lna-offset", values.lnaOffset);
}

// The offsets are stored as they stand in the phone; the tables are not written.
Outcome Store(Context& context)
{
    int16_t offsets[3] = {};
    for (int i = 0; i < 3; ++i)
    {
        WcdmaValues values;
        if (!Measure(context, LnaOffsetItem(context, i), values))
            return NotMeasured();
        offsets[i] = WordAt(values.item);
    }
    constexpr uint8_t batch = 1;
    if (TANDEKOR_Write_RX_Adjustment_Values(context.handle, batch, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                            nullptr, nullptr, context.options.radio.bandReceiver, offsets[0], nullptr,
                                            offsets[1], nullptr, offsets[2], nullptr,
                                            context.options.radio.bandReceiver, *context.options.vgaGain, nullptr)
        == 0)
        return Failed("TANDEKOR_Write_RX_Adjustment_Values", "the calibration could not be stored");
    return Done("LNA offsets %d %d %d stored as they were, gain %u", offsets[0], offsets[1], offsets[2],
                *context.options.vgaGain);
}

std::string MissingVgaGain(const Options& options)
{
    return options.vgaGain ? "" : "rx-wcdma and rx-store store a gain: --vga-gain";
}

constexpr Test tests[] = {
    {"rx-gsm", "measures the GSM receiver", Gsm, {{"rssi", "dBm"}}, Changes::Setting},
    {.name = "rx-wcdma",
     .description = "measures the WCDMA receiver and stores --vga-gain",
     .run = Wcdma,
     .measures = {{"dvga-offset"}, {"lna-offset"}},
     .changes = Changes::Storage,
     .missing = MissingVgaGain},
    {.name = "rx-store",
     .description = "stores the LNA offsets as they are, and --vga-gain",
     .run = Store,
     .changes = Changes::Storage,
     .missing = MissingVgaGain},
};

}  // namespace

extern const Group receiverGroup;
constinit const Group receiverGroup{"receiver", "the receiver; its calibration is stored by name only", tests};

}  // namespace tandekor::line
