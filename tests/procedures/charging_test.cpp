// The charger, and the supply lines by phone model.
#include "procedures/procedure_steps.h"
#include "tests/frame/guarded_call.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

using ChargingTest = ProcedureTest;

TEST_F(ChargingTest, WholeSequenceWithTheLimitsAsIndices)
{
    GuardedBuffer state(1);
    EXPECT_EQ(TANDEKOR_Charging_Test(handle, 1, '7', 1, 1, '3', 4375, 300, 1, state.Data()), 1);
    EXPECT_EQ(state.Content(), Bytes{1});
    EXPECT_TRUE(state.GuardsIntact());
    EXPECT_EQ(Calls(),
              (check
               + Lines{"QLIB_SendSync(11, 4B 0B 00 80 13 00 01 00 0C 00 01, 3000)",
                       "QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(7, 55)"}
               + check + Lines{"QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(1, 1)", "QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(3, 51)"}
               + check + Lines{"QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(29, 15)"} + check
               + Lines{"QLIB_FTM_PMIC_INT_GET_RT_STATUS(11)"}));
    const std::string power = "TANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = 1)";
    const auto chargerSwitch = [](const char* arguments)
    { return Step(std::string("QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(iChargerSwitchType = ") + arguments + ")"); };
    EXPECT_EQ(Log(),
              Step("TANDEKOR_FTM_SET_LOW_POWER_MODE(iLowPowerMode = \x01)", Request(power, power + " "))
                  + chargerSwitch("7, iChargerSwitchCommand = 7")
                  + Step("TANDEKOR_SpecialSetChargeFetState(eChgTransistor = \x01, bState = \x01)",
                         chargerSwitch("1, iChargerSwitchCommand = \x01"))
                  + chargerSwitch("3, iChargerSwitchCommand = 3")
                  + Step("TANDEKOR_SpecialSetPmicChargeLimits(iVoltage = 4375, iCurrent = 300)",
                         Step("QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(iChargerMaxCurrent = \x1D, "
                              "iChargerMaxVoltage = \x0F)"))
                  + Step("TANDEKOR_SpecialGetChargeFetState(eChgTransistor = \x01, bState = \x01)",
                         Step("QLIB_FTM_PMIC_INT_GET_RT_STATUS(iInterruptStatusId = 11, piInterruptStatus = \x01)")));
}

TEST_F(ChargingTest, DeepestLowPowerModeIsReportedAndTheRestIsTriedAllTheSame)
{
    uint8_t state = 9;
    const Texts report{"\t[!!! LPM3 -> PHONE HAS TO BE RESET NOW !!!] - Failure\n",
                       "\t[!!! NO MORE COMMUNICATION POSSIBLE !!!] - Failure\n"};
    const auto reported = [&]
    {
        const Texts log = Log();
        return Texts(log.begin() + 4, log.begin() + 6);
    };
    EXPECT_EQ(TANDEKOR_Charging_Test(handle, 3, 'c', 1, 1, 'c', 4000, 10, 1, &state), 0);
    EXPECT_EQ(reported(), report);
    EXPECT_EQ(Calls().back(), "QLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(7, 99)");
    EXPECT_EQ(LastLogText(),
              "\tQLIB_FTM_PMIC_CHG_SET_SWITCH_STATE(iChargerSwitchType = 7, "
              "iChargerSwitchCommand = c) - Failure\n");

    FreshBench();
    FailsToReply();
    EXPECT_EQ(TANDEKOR_Charging_Test(handle, 3, 'c', 1, 0, 'c', 4000, 10, 1, &state), 1) << "of a phone that stays on";
    EXPECT_EQ(reported(), report);
    EXPECT_EQ(state, 0);
    EXPECT_EQ(LastLogText(),
              "\tTANDEKOR_SpecialGetChargeFetState(eChgTransistor = \x01, bState =  - Completed "
              "successfully\n");
}

TEST_F(ChargingTest, LimitsAtTheirEndsAndBeyond)
{
    const struct
    {
        uint32_t voltage, current;
        int voltageIndex, currentIndex;
    } cases[] = {
        {4000, 10, 0, 0},         {4375, 300, 15, 29},     {4024, 19, 0, 0},   {4025, 20, 1, 1},
        {4049, 29, 1, 1},         {4374, 299, 14, 28},     {3999, 10, -1, -1}, {4376, 10, -1, -1},
        {4000, 9, -1, -1},        {4000, 301, -1, -1},     {0, 10, -1, -1},    {4000, 0, -1, -1},
        {0xFFFFFFFF, 10, -1, -1}, {4000, 0x1000A, -1, -1},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(testing::Message() << row.voltage << ", " << row.current);
        const bool allowed = row.voltageIndex >= 0;
        simulator::ForgetCalls();
        EXPECT_EQ(SpecialSetPmicChargeLimits(handle, row.voltage, row.current), allowed ? 1 : 0);
        const std::string call = "QLIB_FTM_PMIC_CONFIG_WALL_CHGR_TRANSISTOR_LIMITS(" + std::to_string(row.currentIndex)
                                 + ", " + std::to_string(row.voltageIndex) + ")";
        EXPECT_EQ(Calls(), (allowed ? check + Lines{call} : check));
        if (!allowed)
        {
            EXPECT_EQ(LastLogText(), "\tParameter out of range. - Failure\n");
        }
    }
}

TEST_F(ChargingTest, TransistorsThatCanBeSetAndRead)
{
    for (const uint8_t transistor : Bytes{0, 1, 2, 255})
    {
        simulator::ForgetCalls();
        simulator::ForgetLog();
        const bool settable = transistor <= 1, readable = transistor == 1;
        EXPECT_EQ(SpecialSetChargeFetState(handle, transistor, 1), settable ? 1 : 0);
        EXPECT_EQ(Calls().size(), settable ? 2U : 1U);
        const CallResult read = Call(SpecialGetChargeFetState, {transistor})(handle);
        EXPECT_EQ(read.result, readable ? 1 : 0);
        EXPECT_EQ(read.outsUntouched, !readable);
        EXPECT_EQ(Log().size(), (settable ? 2U : 0U) + (readable ? 2U : 0U)) << "refused in silence";
    }
    for (const uint8_t status : Bytes{0, 1, 2, 0x11, 0xFF})
    {
        Phone().charger.switches[1] = status;
        const CallResult read = Call(SpecialGetChargeFetState, {1})(handle);
        EXPECT_EQ(read.outs, std::vector<uint32_t>{status == 1 ? 1U : 0U}) << "only 1 counts as set";
    }
}

// --- supply

namespace
{

// Of one phone for each of the ways that a model's supply is set, and of the models at the edges of their ranges.
struct Supply
{
    uint32_t chip;
    uint16_t hardwareId;
    char sequence;  // ' ' for a model that has none
} const supplies[] = {
    {0x40, 8, 'A'},   {0x40, 12, 'A'}, {0x405, 10, 'A'}, {0x405, 11, 'A'}, {0x405, 13, 'A'},
    {0x405, 14, 'A'}, {0x40, 0, 'B'},  {0x40, 2, 'B'},   {0x40, 5, 'B'},   {0x405, 0, 'C'},
    {0x405, 1, 'C'},  {0x405, 9, 'C'}, {0x405, 12, 'C'}, {0x405, 2, ' '},  {0x405, 7, ' '},
    {0x60, 0, ' '},   {0x60, 12, ' '}, {0xC0, 1, ' '},   {0x405, 4, ' '},
};

const Lines switchCalls{"QLIB_SendSync(13, 4B 0B 00 80 0E 00 03 00 0C 00 01 00 01, 3000)"};
const Lines backlightCalls{"QLIB_SendSync(11, 4B 0B 00 80 1E 00 01 00 0C 00 2A, 3000)"};
const Lines biasCalls{"QLIB_DIAG_MEMORY_PEEK_F(2214592864, 1)", "QLIB_DIAG_MEMORY_POKE_F(2214592864, 1, 10)",
                      "QLIB_DIAG_MEMORY_PEEK_F(2214592864, 1)"};

Lines RegisterCalls(const std::string& address, const std::string& poked)
{
    const std::string peek = "QLIB_DIAG_MEMORY_PEEK_DWORD_F(" + address + ", 1)";
    return {peek, "QLIB_DIAG_MEMORY_POKE_DWORD_F(" + address + ", 1, " + poked + ")", peek};
}

const Lines supplyCalls = RegisterCalls("2214592868", "524288");

Lines RegisterLines(const std::string& form, const std::string& address)
{
    const std::string access = form + "(iAddress = " + address + ", iNumItems = 1, pItemArray = @)";
    const Lines peek = Step("QLIB_DIAG_MEMORY_PEEK" + access);
    return peek + Step("QLIB_DIAG_MEMORY_POKE" + access) + peek;
}

const Lines backlightLines = Step("TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(iLevel = 42)",
                                  Request("TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(iLevel = 42)"));
const Lines supplyLines = Step("TANDEKOR_SetBitState_32_Reg(iAddress = 0x84000164, iMask = 0x00080000, bOnOff = 1)",
                               RegisterLines("_DWORD_F", "2214592868"));

}  // namespace

TEST_F(ChargingTest, SupplySequenceFollowsFromThePhoneModel)
{
    for (const Supply& row : supplies)
    {
        SCOPED_TRACE(testing::Message() << std::hex << row.chip << ' ' << row.hardwareId);
        FreshBench();
        BecomePhone(row.chip, row.hardwareId);
        EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 1, 42, 2, 1), row.sequence == ' ' ? 0 : 1);
        Lines calls = check + modelCalls;
        if (row.sequence != ' ')
            calls = calls + switchCalls;
        if (row.sequence == 'A')
            calls = calls + check + biasCalls + RegisterCalls("2214592860", "536870912");
        if (row.sequence != ' ')
            calls = calls + backlightCalls;
        if (row.sequence == 'A' || row.sequence == 'B')
            calls = calls + supplyCalls;
        EXPECT_EQ(Calls(), calls);
        if (row.sequence == ' ')
        {
            EXPECT_EQ(LastLogText(), "\tTANDEKOR_Phone_Model() - Completed successfully\n") << "refused in silence";
        }

        simulator::ForgetCalls();
        const bool hasAccessories = row.sequence == 'A' || row.sequence == 'B';
        EXPECT_EQ(TANDEKOR_SpecialSwitchAccSupplyVoltage(handle, 1), hasAccessories ? 1 : 0);
        EXPECT_EQ(Calls(), check + modelCalls + (hasAccessories ? supplyCalls : Lines()));
    }
}

TEST_F(ChargingTest, SupplyLogOfAModelWithEveryStep)
{
    BecomePhone(0x405, 10);
    EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 1, 42, 2, 1), 1);
    const Lines model = Step("TANDEKOR_Phone_Model()", ModelLines("10", "2"));
    EXPECT_EQ(Log(), model
                         + Step("TANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = 1, iSwitchState = 1)",
                                Request("TANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = 1, iSwitchState = 1)"))
                         + Step("TANDEKOR_SetBitState_8_Reg(iAddress = 0x840001600 + 0, iMask = 0x10, bOnOff = 1)",
                                RegisterLines("_F", "2214592864"))
                         + Step("TANDEKOR_SetBitState_32_Reg(iAddress = 0x8400015c, iMask = 0x20000000, bOnOff = 1)",
                                RegisterLines("_DWORD_F", "2214592860"))
                         + backlightLines + supplyLines);
    simulator::ForgetLog();
    EXPECT_EQ(TANDEKOR_SpecialSwitchAccSupplyVoltage(handle, 1), 1);
    EXPECT_EQ(Log(), model + supplyLines);
    simulator::RefuseCall("QLIB_DIAG_MEMORY_POKE_F");
    EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 1, 42, 2, 1), 0);
    EXPECT_EQ(LastLogText(),
              "\tTANDEKOR_SetBitState_8_Reg(iAddress = 0x84000160 + 0, iMask = 0x10, bOnOff = 1)"
              " - Failure\n")
        << "one digit less than in the success line";
}

TEST_F(ChargingTest, ModeBitIsSetByTheSupplyModes1And2AndTheSupplyBitByAnyState)
{
    BecomePhone(0x405, 10);
    for (const uint8_t mode : Bytes{1, 0, 2, 3, 255})
    {
        const uint8_t on = mode == 255 ? 0 : mode == 3 ? 77 : 1;
        EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 0, 42, mode, on), 1);
        EXPECT_EQ(Phone().memory[0x8400015F], mode == 1 || mode == 2 ? 0x20 : 0) << "supply mode " << int{mode};
        EXPECT_EQ(Phone().memory[0x84000166], on != 0 ? 0x08 : 0);
        EXPECT_EQ(Phone().memory[0x84000160], 0x10);
        EXPECT_TRUE(LastLogText().find("bOnOff = " + std::to_string(on) + ")") != std::string::npos) << LastLogText();
    }
}

TEST_F(ChargingTest, RefusedSwitchIsMadeUpForByTheCamerasOwnWhereThereIsOne)
{
    for (const bool hasOwn : {true, false})
    {
        FreshBench();
        BecomePhone(0x405, hasOwn ? 0 : 10);
        simulator::BeforeCall("QLIB_SendSync", 2, [] { Replies(Hex("4B 0B 00 80 0E 00 00 00 0C 00 07 00")); });
        EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 1, 42, 2, 1), hasOwn ? 1 : 0);
        const std::string refusedSwitch
            = "\tTANDEKOR_FTM_CONFIGURE_SWITCH(iSwitchID = 1, iSwitchState = 1) - Failure\n";
        const Texts log = Log();
        EXPECT_EQ(std::count_if(log.begin(), log.end(), [](const auto& text) { return text.ends_with("Failure\n"); }),
                  1);
        if (!hasOwn)
        {
            EXPECT_EQ(log.back(), refusedSwitch);
            continue;
        }
        const auto at = std::find(log.begin(), log.end(), refusedSwitch);
        ASSERT_NE(at, log.end());
        EXPECT_EQ(*(at + 1), "\t\tTANDEKOR_FTM_KOLT_CAMERA_SWITCH() start");
        EXPECT_EQ(log[log.size() - backlightLines.size() - 1],
                  "\tTANDEKOR_FTM_KOLT_CAMERA_SWITCH(iCameraNum = 1) - Completed successfully\n");
        EXPECT_TRUE(std::equal(backlightLines.rbegin(), backlightLines.rend(), log.rbegin()));
    }
}

TEST_F(ChargingTest, UnknownCameraIsRefusedBeforeTheModelIsRead)
{
    EXPECT_EQ(TANDEKOR_SupplyVoltageTest(handle, 2, 42, 2, 1), 0);
    EXPECT_EQ(Calls(), check);
    EXPECT_EQ(Log(), (Texts{"\tWrong camera number - Failure\n"}));
}

}  // namespace tandekor::test
