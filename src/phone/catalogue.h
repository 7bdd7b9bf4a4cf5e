// The factory requests that this library sends, with the lengths that their headers declare. A declared length is a
// constant of the request: for several of them it differs from the bytes that follow, and is sent so all the same.
#pragma once

#include <cstdint>

namespace tandekor::catalogue
{

struct Command
{
    uint16_t modeId;
    uint16_t commandId;
    uint16_t dataLength;      // declared request data
    uint16_t responseLength;  // declared response, the 10 header bytes included
};

constexpr uint16_t ftm = 0x8000;
constexpr uint16_t ltm = 0x8001;

constexpr Command GetHardwareVersion{ftm, 10, 0, 16};
constexpr Command GetNandFlashId{ftm, 11, 2, 14};
constexpr Command IrdaOnOff{ftm, 12, 2, 12};
constexpr Command GetFuelGaugeVersion{ftm, 13, 0, 13};
constexpr Command ConfigureSwitch{ftm, 14, 3, 12};
constexpr Command I2cDataAccess{ftm, 15, 7, 12};  // and the data length, on one side
constexpr Command MgetAdcVal{ftm, 16, 4, 16};
constexpr Command SimReadImsi{ftm, 17, 0, 21};
constexpr Command MmcFileAccess{ftm, 18, 133, 12};  // and the data length, on one side
constexpr Command SetLowPowerMode{ftm, 19, 1, 12};
constexpr Command ReadWriteFactoryData{ftm, 21, 4, 13};
constexpr Command GetFmRadioId{ftm, 22, 0, 14};
constexpr Command DisplayImage{ftm, 23, 128, 12};
constexpr Command SetLcdContrast{ftm, 24, 1, 12};
constexpr Command TestPmicUsb{ftm, 25, 0, 12};
constexpr Command WriteGsmTxLinearizer{ftm, 26, 349, 12};
constexpr Command TuneFmRadio{ftm, 28, 2, 12};
constexpr Command GetHwId{ftm, 29, 0, 14};
constexpr Command SetLcdBacklightLevel{ftm, 30, 1, 12};
constexpr Command StartAgpsCtonMeas{ftm, 31, 0, 12};
constexpr Command GetAgpsCtonMeas{ftm, 32, 0, 14};
constexpr Command IrdaHighCurrentTest{ftm, 33, 2, 12};
constexpr Command RadioRdsTest{ftm, 34, 0, 12};
constexpr Command LoadRfNv{ftm, 35, 0, 12};
constexpr Command GetBtParam{ftm, 36, 0, 15};
constexpr Command TestCameraFlash{ftm, 38, 2, 12};
constexpr Command SetFlashLightLevel{ftm, 150, 2, 13};
constexpr Command SwitchLcdBacklight{ftm, 151, 1, 12};
constexpr Command DisplayImage24Bit{ftm, 201, 128, 12};
constexpr Command FmRadioBlock{ftm, 202, 111, 111};
constexpr Command SimGetMode{ftm, 203, 10, 12};
constexpr Command SimReadKcFile{ftm, 204, 22, 22};
constexpr Command SimWriteKcFile{ftm, 205, 22, 22};
constexpr Command GetCameraIdString{ftm, 206, 10, 35};
constexpr Command GgReadReg{ftm, 207, 4, 14};
constexpr Command GgMode{ftm, 208, 1, 11};
constexpr Command RtcStart{ftm, 213, 3, 13};
constexpr Command RtcOscCtrl{ftm, 214, 2, 12};
constexpr Command HeadsetAmpRead{ftm, 215, 4, 14};
constexpr Command HeadsetAmpWrite{ftm, 216, 4, 14};
constexpr Command TracerControl{ftm, 217, 2, 12};
constexpr Command SetKeyPadBackLight{ftm, 245, 4, 12};
constexpr Command GetSliderState{ftm, 246, 0, 12};
constexpr Command SetCameraFocus{ftm, 247, 1, 12};

constexpr Command LtmGetCameraIdString{ltm, 1338, 10, 35};
constexpr Command IrdaTransmit{ltm, 1340, 12, 12};
constexpr Command LtmGetFuelGaugeVersion{ltm, 1342, 10, 12};
constexpr Command IrdaReceive{ltm, 1354, 12, 12};

}  // namespace tandekor::catalogue
