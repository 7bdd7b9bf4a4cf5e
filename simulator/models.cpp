// Phones by model: what a phone of each model says of its chip and of its hardware variant.
#include <algorithm>

#include "phone/phone_models.h"
#include "simulator/control.h"

namespace simulator
{

namespace
{

constexpr int chipPosition = 12;  // in the hardware version of the factory request

}  // namespace

bool BecomeModel(Phone& phone, uint32_t model)
{
    // Where several chips or variants make a model, the first of them.
    const tandekor::PhoneModel& row = tandekor::PhoneModelOf(model);
    const auto* chip = std::ranges::find(tandekor::chipVersions, row.msmModel, &tandekor::ChipVersion::msmModel);
    if (chip == std::end(tandekor::chipVersions))
        return false;
    phone.msmHardwareVersion = chip->hardwareVersion;
    phone.hardwareVersion = chip->hardwareVersion << chipPosition;
    phone.hardwareId = static_cast<uint16_t>(row.versions[0].first);
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
