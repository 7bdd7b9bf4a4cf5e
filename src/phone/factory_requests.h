// The phone maker's factory requests: what is sent, and by which numbers a phone knows them. The declared lengths are
// constants of the request and are sent as they stand here, also where the request's data have another length: those
// rows say how many data bytes really follow.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tandekor::factory
{

struct Request
{
    uint16_t modeId;
    uint16_t requestId;
    uint16_t dataLength;      // declared request data
    uint16_t responseLength;  // declared response, the 10 header bytes included
};

// The ten header bytes of a request; its data follow.
constexpr std::array<uint8_t, 10> HeaderOf(const Request& request)
{
    constexpr uint8_t subsystemCommand = 0x4B;
    constexpr uint8_t ftmSubsystem = 0x0B;
    std::array<uint8_t, 10> header = {subsystemCommand, ftmSubsystem};
    size_t end = 2;
    for (const uint16_t word : {request.modeId, request.requestId, request.dataLength, request.responseLength})
    {
        header[end++] = static_cast<uint8_t>(word);
        header[end++] = static_cast<uint8_t>(word >> 8);
    }
    return header;
}

// A whole request.
template <typename... Data>
constexpr std::array<uint8_t, 10 + sizeof...(Data)> BytesOf(const Request& request, Data... data)
{
    std::array<uint8_t, 10 + sizeof...(Data)> bytes = {};
    size_t end = 0;
    for (const uint8_t byte : HeaderOf(request))
        bytes[end++] = byte;
    ((bytes[end++] = static_cast<uint8_t>(data)), ...);
    return bytes;
}

// The two modes in which a phone takes requests, each with numbers of its own.
constexpr uint16_t ftm = 0x8000;
constexpr uint16_t ltm = 0x8001;

constexpr Request GetHardwareVersion{ftm, 10, 0, 16};
constexpr Request GetNandFlashId{ftm, 11, 2, 14};  // no data follow
constexpr Request IrdaOnOff{ftm, 12, 2, 12};       // 1 byte follows
constexpr Request GetFuelGaugeVersion{ftm, 13, 0, 13};
constexpr Request ConfigureSwitch{ftm, 14, 3, 12};
constexpr Request I2cDataAccess{ftm, 15, 7, 12};  // a write adds its length to the first, a read to the second
constexpr Request MgetAdcVal{ftm, 16, 4, 16};
constexpr Request SimReadImsi{ftm, 17, 0, 21};
constexpr Request MmcFileAccess{ftm, 18, 133, 12};  // likewise
constexpr Request SetLowPowerMode{ftm, 19, 1, 12};
constexpr Request ReadWriteFactoryData{ftm, 21, 4, 13};  // 3 bytes follow in a read
constexpr Request GetFmRadioId{ftm, 22, 0, 14};
constexpr Request DisplayImage{ftm, 23, 128, 12};
constexpr Request SetLcdContrast{ftm, 24, 1, 12};
constexpr Request TestPmicUsb{ftm, 25, 0, 12};  // 1 byte follows
constexpr Request WriteGsmTxLinearizer{ftm, 26, 349, 12};
constexpr Request TuneFmRadio{ftm, 28, 2, 12};
constexpr Request GetHwId{ftm, 29, 0, 14};
constexpr Request SetLcdBacklightLevel{ftm, 30, 1, 12};
constexpr Request StartAgpsCtonMeas{ftm, 31, 0, 12};
constexpr Request GetAgpsCtonMeas{ftm, 32, 0, 14};
constexpr Request IrdaHighCurrentTest{ftm, 33, 2, 12};
constexpr Request RadioRdsTest{ftm, 34, 0, 12};
constexpr Request LoadRfNv{ftm, 35, 0, 12};
constexpr Request GetBtParam{ftm, 36, 0, 15};
constexpr Request TestCameraFlash{ftm, 38, 2, 12};
constexpr Request SetFlashLightLevel{ftm, 150, 2, 13};
constexpr Request SwitchLcdBacklight{ftm, 151, 1, 12};
constexpr Request SelectDisplay{ftm, 200, 1, 12};
constexpr Request DisplayImage24Bit{ftm, 201, 128, 12};
constexpr Request FmRadioBlock{ftm, 202, 111, 111};     // 101 bytes follow
constexpr Request SimGetMode{ftm, 203, 10, 12};         // no data follow
constexpr Request SimReadKcFile{ftm, 204, 22, 22};      // no data follow
constexpr Request SimWriteKcFile{ftm, 205, 22, 22};     // 12 bytes follow
constexpr Request GetCameraIdString{ftm, 206, 10, 35};  // no data follow
constexpr Request GgReadReg{ftm, 207, 4, 14};
constexpr Request GgMode{ftm, 208, 1, 11};
constexpr Request RtcStart{ftm, 213, 3, 13};
constexpr Request RtcOscCtrl{ftm, 214, 2, 12};
constexpr Request HeadsetAmpRead{ftm, 215, 4, 14};
constexpr Request HeadsetAmpWrite{ftm, 216, 4, 14};
constexpr Request TracerControl{ftm, 217, 2, 12};
constexpr Request SetKeyPadBackLight{ftm, 245, 4, 12};
constexpr Request GetSliderState{ftm, 246, 0, 12};
constexpr Request SetCameraFocus{ftm, 247, 1, 12};

constexpr Request MicrophoneBias{ltm, 1136, 14, 14};          // 4 bytes follow
constexpr Request LtmGetCameraIdString{ltm, 1338, 10, 35};    // no data follow
constexpr Request IrdaTransmit{ltm, 1340, 12, 12};            // 3 bytes follow
constexpr Request LtmGetFuelGaugeVersion{ltm, 1342, 10, 12};  // no data follow
constexpr Request IrdaReceive{ltm, 1354, 12, 12};             // 3 bytes follow

}  // namespace tandekor::factory
