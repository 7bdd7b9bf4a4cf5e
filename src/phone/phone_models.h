// What is known of each phone model: how a phone shows which model it is, and what procedures decide by model. One row
// a model.
#pragma once

#include <cstdint>

namespace tandekor
{

// Model 3 and models 52 to 55 go by their code names, also in the log and for the operator.
enum class Family : uint8_t
{
    Other,
    Dravok,
    Kolt
};

// How the ADC is read: by the sum of many readings, or by single ones.
enum class Adc : uint8_t
{
    Unknown,
    Summed,
    Single
};

// What is set for the supply: the mode bit and the supply bit, the supply bit alone, or the camera switch alone.
enum class Supply : uint8_t
{
    Unknown,
    TwoBits,
    OneBit,
    CameraSwitch
};

// What the slider's reply word means; the meanings stand where they are read.
enum class Slider : uint8_t
{
    None,
    Dravok,
    Kolt52,
    Kolt53To55
};

// Where a camera is identified over I2C.
struct CameraIdRead
{
    uint8_t slaveAddr = 0;
    uint16_t regAddr = 0;
    uint8_t dataLen = 0;
    uint8_t regAddrLen = 2;
    uint8_t selector = 0;
    uint8_t idByte = 0;  // which byte of the data is the identification
};
constexpr CameraIdRead cameraAt51{0x51, 0, 2, 2, 0, 1};
constexpr CameraIdRead dravokCamera{0x21, 0x0B, 1, 1, 1, 0};
constexpr CameraIdRead koltCamera{0x47, 0x2560, 1, 2, 0, 0};

// Chip families (MSM models) by the hardware version that a phone reports. The simulated phone has a family's first.
struct ChipVersion
{
    uint32_t hardwareVersion;
    uint32_t msmModel;
};
constexpr ChipVersion chipVersions[] = {
    {0x40, 1},  {0x403, 1},                    //
    {0x405, 2}, {0x2040, 2}, {0x120400E1, 2},  //
    {0x60, 3},  {0x601, 3},                    //
    {0xC0, 4},  {0xC00, 4},                    //
};

struct VersionRange  // empty unless it is given
{
    uint32_t first = 1;
    uint32_t last = 0;

    constexpr bool Holds(uint32_t version) const { return version >= first && version <= last; }
};

struct PhoneModel
{
    uint32_t number = 0;
    uint32_t msmModel = 0;       // 0: no phone shows itself as this model
    VersionRange versions[3]{};  // of the hardware; the simulated phone has the first
    Family family = Family::Other;
    Adc adc = Adc::Unknown;
    Supply supply = Supply::Unknown;
    uint16_t displayResponse = 0;  // response size offered when a display is chosen; 0: the model has display 0 only
    Slider slider = Slider::None;
    CameraIdRead secondCamera{};
    bool camerasExchanged = false;
};

// The first row that fits a chip family and a version counts: model 1 comes after 62.
constexpr PhoneModel phoneModels[] = {
    {2, 2, {{7, 7}}},
    {3, 2, {{3, 3}, {2, 2}, {8, 8}}, Family::Dravok, Adc::Unknown, Supply::Unknown, 256, Slider::Dravok, dravokCamera},
    {12, 0, {}, Family::Other, Adc::Unknown, Supply::TwoBits, 0, Slider::None, cameraAt51},
    {13, 1, {{8, 9}}, Family::Other, Adc::Summed, Supply::TwoBits, 0, Slider::None, cameraAt51},
    {14, 0, {}, Family::Other, Adc::Summed, Supply::TwoBits, 0, Slider::None, cameraAt51},
    {15, 1, {{12, 12}, {15, 15}}, Family::Other, Adc::Summed, Supply::TwoBits, 0, Slider::None, cameraAt51},
    {16, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {17, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {18, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {19, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {20, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {21, 0, {}, Family::Other, Adc::Unknown, Supply::Unknown, 0, Slider::None, cameraAt51},
    {22, 0, {}, Family::Other, Adc::Unknown, Supply::OneBit, 0, Slider::None, cameraAt51},
    {23, 1, {{0, 1}}, Family::Other, Adc::Summed, Supply::OneBit, 0, Slider::None, cameraAt51},
    {24, 1, {{2, 4}}, Family::Other, Adc::Summed, Supply::OneBit, 0, Slider::None, cameraAt51},
    {25, 1, {{5, 6}}, Family::Other, Adc::Summed, Supply::OneBit, 0, Slider::None, cameraAt51},
    {32, 0, {}, Family::Other, Adc::Unknown, Supply::TwoBits, 12},
    {33, 0, {}, Family::Other, Adc::Summed, Supply::TwoBits, 12},
    {34, 2, {{10, 10}}, Family::Other, Adc::Summed, Supply::TwoBits, 12},
    {35, 2, {{11, 11}}, Family::Other, Adc::Summed, Supply::TwoBits, 12},
    {36, 2, {{13, 13}}, Family::Other, Adc::Summed, Supply::TwoBits, 12},
    {40, 2, {{14, 14}}, Family::Other, Adc::Summed, Supply::TwoBits, 12},
    {52, 2, {{0, 0}}, Family::Kolt, Adc::Summed, Supply::CameraSwitch, 0, Slider::Kolt52, koltCamera},
    {53, 2, {{1, 1}}, Family::Kolt, Adc::Summed, Supply::CameraSwitch, 0, Slider::Kolt53To55, koltCamera},
    {54, 2, {{9, 9}}, Family::Kolt, Adc::Unknown, Supply::CameraSwitch, 0, Slider::Kolt53To55, koltCamera, true},
    {55, 2, {{12, 12}}, Family::Kolt, Adc::Summed, Supply::CameraSwitch, 0, Slider::Kolt53To55, koltCamera},
    {61, 0, {}, Family::Other, Adc::Single},
    {62, 3, {{12, 12}}, Family::Other, Adc::Single},
    {1, 3, {{0, UINT32_MAX}}},
    {63, 0, {}, Family::Other, Adc::Single},
    {64, 0, {}, Family::Other, Adc::Single},
    {65, 0, {}, Family::Other, Adc::Single},
    {71, 4, {{1, 1}}},
    {72, 4, {{2, 2}}},
    {73, 4, {{3, 3}}},
    {74, 4, {{4, 4}}, Family::Other, Adc::Single},
    {75, 4, {{5, 5}}, Family::Other, Adc::Single},
    {76, 4, {{6, 6}}, Family::Other, Adc::Single},
    {77, 4, {{7, 7}}, Family::Other, Adc::Single},
    {78, 4, {{8, 8}}},
};
constexpr PhoneModel unknownPhoneModel{};

// The model's row, or one in which nothing is known.
constexpr const PhoneModel& PhoneModelOf(uint32_t number)
{
    for (const PhoneModel& model : phoneModels)
    {
        if (model.number == number)
            return model;
    }
    return unknownPhoneModel;
}

constexpr bool IsDravok(uint32_t model) { return PhoneModelOf(model).family == Family::Dravok; }
constexpr bool IsKolt(uint32_t model) { return PhoneModelOf(model).family == Family::Kolt; }

}  // namespace tandekor
