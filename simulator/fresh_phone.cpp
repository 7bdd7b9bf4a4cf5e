// The phone as it leaves the store: what is in it that is not 0 or empty. Files and AT settings stand beside the code
// that serves them.
#include "phone/nv_items.h"
#include "phone/wcdma_bands.h"
#include "simulator/control.h"

namespace simulator
{

namespace
{

// The phone knows one WCDMA band.
constexpr const tandekor::WcdmaBand& band = tandekor::wcdmaBands[0];

}  // namespace

std::map<uint16_t, Bytes> FreshNvItems()
{
    using namespace tandekor::nv;
    return {
        {bluetoothAddress.number, {0x01, 0x02, 0x03, 0xA0, 0xB0, 0xC0}},
        {startMode.number, {0}},
        {imei.number, {0x08, 0x4A, 0x09, 0x51, 0x24, 0x30, 0x32, 0x57, 0x81}},
        {band.vgaGainOffset, {0x0C, 0x00}},
        {band.rise[0], {0x38, 0xFF}},
        {band.rise[1], {0x60, 0xFF}},
        {band.rise[2], {0x88, 0xFF}},
        {band.fall[0], {0x24, 0xFF}},
        {band.fall[1], {0x4C, 0xFF}},
        {band.fall[2], {0x74, 0xFF}},
        {band.lnaOffset[0], {0x78, 0x00}},
        {band.lnaOffset[1], {0xF0, 0x00}},
        {band.lnaOffset[2], {0x68, 0x01}},
        {gsmRxRelOffsets.number, Bytes(gsmRxRelOffsets.size)},
    };
}

// The serial number of the card, the subscriber, and the administrative data.
std::map<uint16_t, std::string> FreshSimFiles()
{
    return {{12258, "98942000002143658709"}, {28423, "082926108967452301"}, {28589, "00000002"}};
}

Radio::Radio() : rssi(-72), dvgaOffset(14), lnaOffsets({3, 5, 8, 13}), adc({{0, 820}, {1, 640}, {3, 512}}) {}

// The I2C devices are the cameras, which have their identification there, and the radio chip.
Factory::Factory()
    : i2c({
        {{0x45, 0x222F}, {0x13}},
        {{0x51, 0}, {0x00, 0x51}},
        {{0x47, 0x2560}, {0x47}},
        {{0x21, 0x0B}, {0x21}},
        {{0x10, 0}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0xA4}},
    }),
      fuelGaugeRegisters({{0, 3700}, {1, 98}}),
      imsi({0x08, 0x29, 0x26, 0x10, 0x00, 0x00, 0x00, 0x00, 0x10}),
      kcFile({1, 2, 3, 4, 5, 6, 7, 8, 9}),
      fmChip(0x1242),
      fmStations({8750, 9460, 10130}),
      fmProgram("SIM FM")
{
}

Phone::Phone()
    : startTimeMs(4000),
      runOnTimeMs(500),
      compileDate("Mar 14 2007"),
      compileTime("09:26:53"),
      releaseDate("Mar 15 2007"),
      releaseTime("10:00:00"),
      nandFlashId(0xECA1),
      fuelGaugeVersion(3),
      spc("000000"),
      locks({{"AO", false}, {"AI", false}, {"PN", false}, {"SC", false}}),
      storageSize(16 * 1024 * 1024)
{
    camera.id = "SIM CAMERA 1.3MP REV B";
    BecomeModel(*this, 52);
}

}  // namespace simulator
