// Phones by model: what a phone of each model says of its chip and of its hardware variant.
#include <algorithm>

#include "simulator/control.h"

namespace simulator
{

namespace
{

struct Model
{
    uint32_t number;
    uint32_t chip;
    uint16_t hardwareId;
};

// Where several chips or variants make a model, one of them.
constexpr Model models[] = {
    {1, 0x60, 0},   {2, 0x405, 7},   {3, 0x405, 3},   {13, 0x40, 8},   {15, 0x40, 12},  {23, 0x40, 0},  {24, 0x40, 2},
    {25, 0x40, 5},  {34, 0x405, 10}, {35, 0x405, 11}, {36, 0x405, 13}, {40, 0x405, 14}, {52, 0x405, 0}, {53, 0x405, 1},
    {54, 0x405, 9}, {55, 0x405, 12}, {62, 0x60, 12},  {71, 0xC0, 1},   {72, 0xC0, 2},   {73, 0xC0, 3},  {74, 0xC0, 4},
    {75, 0xC0, 5},  {76, 0xC0, 6},   {77, 0xC0, 7},   {78, 0xC0, 8},
};

constexpr int chipPosition = 12;  // in the hardware version of the factory request

}  // namespace

bool BecomeModel(Phone& phone, uint32_t model)
{
    const auto* row = std::ranges::find(models, model, &Model::number);
    if (row == std::end(models))
        return false;
    phone.msmHardwareVersion = row->chip;
    phone.hardwareVersion = row->chip << chipPosition;
    phone.hardwareId = row->hardwareId;
    phone.buildMobModel = model;
    phone.buildModel = "T" + std::to_string(model);
    phone.buildId = phone.buildModel + "-02.04.15";
    phone.versionDir = phone.buildModel + "_0204";
    return true;
}

std::optional<Phone> MakePhone(uint32_t model)
{
    std::optional<Phone> phone(std::in_place);
    if (!BecomeModel(*phone, model))
        phone.reset();
    return phone;
}

}  // namespace simulator
