// Which phone this is, and what follows from it.
#include <algorithm>

#include "tests/procedures/procedure_test.h"
#include "tests/procedures/transcript.h"

namespace tandekor::test
{

using ModelsTest = ProcedureTest;

TEST_F(ModelsTest, PhoneModelFollowsFromChipFamilyAndVersion)
{
    constexpr uint32_t models[6][17] = {
        {},
        {23, 23, 24, 24, 24, 25, 25, 0, 13, 13, 0, 0, 15, 0, 0, 15, 0},
        {52, 53, 3, 3, 0, 0, 0, 2, 3, 54, 34, 35, 55, 36, 40, 0, 0},
        {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 62, 1, 1, 1, 1},
        {0, 71, 72, 73, 74, 75, 76, 77, 78, 0, 0, 0, 0, 0, 0, 0, 0},
        {},
    };
    uint32_t model = 0;
    for (uint32_t msm = 0; msm < 6; ++msm)
    {
        for (uint32_t version = 0; version < 17; ++version)
        {
            EXPECT_EQ(TANDEKOR_GetPhoneModel(handle, version, msm, &model), 1);
            EXPECT_EQ(model, models[msm][version]) << "chip family " << msm << ", version " << version;
        }
        TANDEKOR_GetPhoneModel(handle, 0x1000C, msm, &model);
        EXPECT_EQ(model, msm == 3 ? 1U : 0U) << "chip family " << msm << ", version 65548";
    }
}

TEST_F(ModelsTest, ChipFamilyFollowsFromTheBuildAnswerOrElseFromBits12To27OfTheHardwareVersion)
{
    const struct
    {
        uint32_t direct, word, expected;
    } cases[] = {
        {0x40, 0, 1},       {0x403, 0, 1},      {0x405, 0, 2},      {0x2040, 0, 2},     {0x120400E1, 0, 2},
        {0x60, 0, 3},       {0x601, 0, 3},      {0xC0, 0, 4},       {0xC00, 0, 4},      {1, 0x00405000, 0},
        {0x404, 0, 0},      {0x00E1, 0, 0},     {0x10040, 0, 0},    {0, 0x00040000, 1}, {0, 0xF0405FFF, 2},
        {0, 0x120400E1, 2}, {0, 0x00060000, 3}, {0, 0x00C00000, 4}, {0, 0x000E1000, 0}, {0, 0x405, 0},
    };
    for (const auto& row : cases)
    {
        Phone().msmHardwareVersion = row.direct;
        Phone().hardwareVersion = row.word;
        uint32_t version = 0, chip = 0, model = 0;
        EXPECT_EQ(TANDEKOR_Phone_Model(handle, &version, &chip, &model), 1);
        EXPECT_EQ(chip, row.expected) << std::hex << row.direct << ' ' << row.word;
    }
}

// By the hardware identifiers 0 to 15 of each chip: how the ADC is read ('+' summed, '1' one by one), the sequence of
// the supply ('A' with two registers and the supply's, 'B' with the supply's, 'C' with neither), the room for the
// display's reply ('L' large, 's' small),
TEST_F(ModelsTest, WhatFollowsFromTheModel)
{
    const struct
    {
        uint32_t chip;
        std::string adc, supply, display;
    } families[] = {
        {0x40, "+++++++-++--+--+", "BBBBBBB-AA--A--A", "----------------"},
        {0x405, "++--------+++++-", "CC-------CAACAA-", "--LL----L-ss-ss-"},
        {0x60, "------------1---", "----------------", "----------------"},
        {0xC0, "----1111--------", "----------------", "----------------"},
        {0x1, "----------------", "----------------", "----------------"},
    };
    for (const auto& family : families)
    {
        const auto count = [&](uint16_t id, const Call& call, const std::string& part)
        {
            const Observation seen = Observe({}, call, BecomePhone(family.chip, id));
            return std::ranges::count_if(seen.events,
                                         [&](const auto& event) { return event.find(part) != std::string::npos; });
        };
        std::string adc, supply, display;
        for (uint16_t id = 0; id < 16; ++id)
        {
            const Call read = With(TANDEKOR_CheckDACValues, {1, 1}),
                       test = With(TANDEKOR_SupplyVoltageTest, {1, 42, 2, 1});
            adc += count(id, read, "QLIB_SendSync(14") == 3          ? '+'
                   : count(id, read, "QLIB_FTM_GET_ADC_VAL(3)") == 1 ? '1'
                                                                     : '-';
            const auto pokes = count(id, test, "QLIB_DIAG_MEMORY_POKE_DWORD_F(2");
            supply += pokes == 2 ? 'A' : pokes == 1 ? 'B' : count(id, test, "80 1E 00") == 1 ? 'C' : '-';
            const Call show = With(TANDEKOR_SpecialSwitchDisplay, {1});
            display += count(id, show, "room 256") == 1 ? 'L' : count(id, show, "room 12") == 1 ? 's' : '-';
        }
        EXPECT_EQ(adc, family.adc) << std::hex << family.chip;
        EXPECT_EQ(supply, family.supply) << std::hex << family.chip;
        EXPECT_EQ(display, family.display) << std::hex << family.chip;
    }
}

}  // namespace tandekor::test
