// Keypad light, flip, choice and identification of a camera, by the pins and cameras of each phone model.
#include <functional>
#include <map>

#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

namespace
{

// Hardware identifiers of phone models.
constexpr uint32_t chip = 0x405;
constexpr uint16_t model3 = 3, model34 = 10, model52 = 0, model53 = 1, model54 = 9, model55 = 12;
const std::string good = " - Completed successfully\n";

// A bit mask and its level, written to a register.
struct Write
{
    uint32_t address, mask;
    bool on;
};
using Writes = std::vector<Write>;

// What a pin takes: its output is enabled, then its level is set.
Writes Pin(uint32_t oe, uint32_t out, uint32_t mask, bool on) { return {{oe, mask, true}, {out, mask, on}}; }

Writes operator+(Writes first, const Writes& further)
{
    first.insert(first.end(), further.begin(), further.end());
    return first;
}

Lines ModelStep(const std::string& version, const std::string& model)
{
    return Step("TANDEKOR_Phone_Model(piVerNumber = " + version + ", piMSMModel = 2, piPhoneModel = " + model + ")",
                ModelLines(version, "2"));
}

// What the write of a register logs, without the line of its own result.
Lines RegisterLines(const std::string& address)
{
    const std::string arguments = "_DWORD_F(iAddress = " + address + ", iNumItems = 1, pItemArray = @)";
    const Lines peek = Step("QLIB_DIAG_MEMORY_PEEK" + arguments);
    return peek + Step("QLIB_DIAG_MEMORY_POKE" + arguments) + peek;
}

// What a pin logs; the text ends as its procedure has it.
Lines PinLines(const std::string& oe, const std::string& out, const std::string& mask, char on, const char* ending)
{
    const auto result = [&](const std::string& address, char bit)
    {
        return Lines{"\tTK_SetBitState_32_Reg(Address = " + address + ",  mask = " + mask + ", bOnOff = " + bit + ending
                     + good};
    };
    return Lines{"\tTK_SetBitState_32_Reg start for OE REG"} + RegisterLines(oe) + result(oe, '1')
           + Lines{"\tTK_SetBitState_32_Reg start for OUT REG"} + RegisterLines(out) + result(out, on);
}

// What a reading of the flip's bit logs.
Lines FlipLines(const std::string& address, bool bit)
{
    const char* value = bit ? "512, bOnOff = 1)" : "4294966783, bOnOff = 0)";
    return Step("QLIB_DIAG_MEMORY_PEEK_DWORD_F(iAddress = " + address + ", iNumItems = 1, pItemArray = @)")
           + Lines{"\tTK_GetBitState_32_Reg(Address = " + address + ", bitNum = 9, reg = " + value + good};
}

class PinsTest : public ProcedureTest
{
protected:
    static void SetRegister(uint32_t address, uint32_t value)
    {
        for (uint32_t i = 0; i < 4; ++i)
            Phone().memory[address + i] = static_cast<uint8_t>(value >> (8 * i));
    }

    // On a fresh phone whose registers hold 0, and on one with all bits set, the call makes exactly these writes.
    void ExpectWrites(uint16_t hardwareId, const std::function<uint8_t(ResourceContext)>& call, const Writes& writes)
    {
        for (const uint32_t fill : {0x00000000U, 0xFFFFFFFFU})
        {
            FreshBench();
            BecomePhone(chip, hardwareId);
            std::map<uint32_t, uint32_t> registers;
            for (const Write& write : writes)
                SetRegister(write.address, registers[write.address] = fill);
            Texts expected;
            for (const Write& write : writes)
            {
                uint32_t& value = registers[write.address];
                value = write.on ? value | write.mask : value & ~write.mask;
                expected.push_back("QLIB_DIAG_MEMORY_POKE_DWORD_F(" + std::to_string(write.address) + ", 1, "
                                   + std::to_string(value) + ")");
            }
            EXPECT_EQ(call(handle), 1) << LastLogText();
            Texts pokes = simulator::Calls();
            std::erase_if(pokes, [](const auto& one) { return !one.starts_with("QLIB_DIAG_MEMORY_POKE"); });
            EXPECT_EQ(pokes, expected);
        }
    }

    // The call is refused with this on standard output, and touches no register.
    void ExpectRefusal(uint16_t hardwareId, const std::function<uint8_t(ResourceContext)>& call, const char* output,
                       const Lines& log)
    {
        FreshBench();
        BecomePhone(chip, hardwareId);
        testing::internal::CaptureStdout();
        EXPECT_EQ(call(handle), 0);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), output);
        EXPECT_EQ(Log(), log);
        EXPECT_EQ(Calls(), check + modelCalls);
    }
};

// Pins by name.
Writes Bank0(uint32_t mask, bool on) { return Pin(0x48000000, 0x48000008, mask, on); }
Writes Bank1(uint32_t mask, bool on) { return Pin(0x48000004, 0x4800000C, mask, on); }
Writes Bank4(uint32_t mask, bool on) { return Pin(0x84000158, 0x84000164, mask, on); }

auto Light(uint16_t row, uint8_t on)
{
    return [=](ResourceContext handle) { return TANDEKOR_FTM_SetKeyPadBackLightGPIO(handle, row, on); };
}

auto Choose(uint8_t camera)
{
    return [=](ResourceContext handle) { return TANDEKOR_FTM_KOLT_CAMERA_SWITCH(handle, camera); };
}

}  // namespace

TEST_F(PinsTest, KeypadLightWritesThePinsOfItsRow)
{
    for (const uint8_t on : Bytes{0, 1, 255})
    {
        const bool lit = on != 0;
        const Writes prepared = Pin(0x84000154, 0x84000160, 0x10, true);
        const struct
        {
            uint16_t row;
            Writes writes;
        } rows[] = {
            {1, Bank0(0x40, lit)},
            {2, Bank4(0x400000, lit)},
            {3, Bank0(0x08, lit)},
            {4, Bank1(0x800, lit)},
            {5, prepared + Bank1(0x200, lit)},
            {6, prepared + Bank4(0x2000000, lit)},
            {7, prepared + Bank0(0x48, lit) + Bank1(0xA00, lit) + Bank4(0x2400000, lit)},
        };
        for (const auto& [row, writes] : rows)
        {
            SCOPED_TRACE("row " + std::to_string(row) + ", state " + std::to_string(on));
            for (const uint16_t id : {model52, model53, model54, model55})
                ExpectWrites(id, Light(row, on), writes);
        }
        ExpectWrites(model3, Light(7, on), Pin(0x84000150, 0x8400015C, 0x2000, lit));
    }
}

TEST_F(PinsTest, LogOfAKeypadRow)
{
    BecomePhone(chip, model52);
    EXPECT_EQ(Light(5, 0)(handle), 1);
    const Lines log = Lines{"\tTK_SetKeyPadBackLight() start"} + ModelStep("0", "52")
                      + PinLines("2214592852", "2214592864", "16", '1', "")
                      + PinLines("1207959556", "1207959564", "512", '0', "");
    EXPECT_EQ(Log(), log);
}

TEST_F(PinsTest, OutsideKeypadOfModel3IsADriverWhoseResultIsTheResult)
{
    for (const uint8_t on : Bytes{0, 1})
    {
        FreshBench();
        BecomePhone(chip, model3);
        EXPECT_EQ(Light(5, on)(handle), 1);
        const std::string level = std::to_string(on * 15);
        EXPECT_EQ(Calls(), check + modelCalls + Lines{"QLIB_FTM_SET_PMIC_DRIVE_LEVEL(1, " + level + ")"});
        simulator::RefuseCall("QLIB_FTM_SET_PMIC_DRIVE_LEVEL");
        EXPECT_EQ(Light(5, on)(handle), 0);
        const Lines log = Lines{"\tTK_SetKeyPadBackLight() start"} + ModelStep("3", "3");
        EXPECT_EQ(Log(), log + log);
    }
}

TEST_F(PinsTest, WrongModelsRowsAndCamerasAreRefusedBeforeAnyRegister)
{
    const Lines start{"\tTK_SetKeyPadBackLight() start"};
    const Lines model52Step = ModelStep("0", "52"), model3Step = ModelStep("3", "3");
    const Lines model34Step = ModelStep("10", "34");
    const char* advice = "\nDRAVOK not support, Please choose 7(Insidekeypad) or 5(OutsideKeypad).";
    const Lines wrongRow{"\t\tParameter RowNumber over the range (1-7)."}, wrongModel{"\t\tWrong mobile model"};
    for (const uint16_t row : std::vector<uint16_t>{0, 8, 0x0101})
        ExpectRefusal(model52, Light(row, 1), "", start + model52Step + wrongRow);
    for (const uint16_t row : std::vector<uint16_t>{0, 1, 4, 6, 8, 0x0105})
        ExpectRefusal(model3, Light(row, 1), advice, start + model3Step);
    ExpectRefusal(model34, Light(1, 1), "", start + model34Step + wrongModel);
    ExpectRefusal(model34, Choose(0), "", model34Step + wrongModel);
    ExpectRefusal(model3, Choose(0), "", model3Step + wrongModel);
    ExpectRefusal(model52, Choose(2), "", model52Step + Lines{"\t\tWrong camera number (2)"});
    ExpectRefusal(model54, Choose(255), "", ModelStep("9", "54") + Lines{"\t\tWrong camera number (255)"});
    char state = 'x';
    const auto flip = [&](ResourceContext h) { return TANDEKOR_FTM_TestFlip(h, &state, 0); };
    ExpectRefusal(model52, flip, "\nNot support this model", model52Step);
    FreshBench();
    BecomePhone(chip, model3);
    testing::internal::CaptureStdout();
    EXPECT_EQ(TANDEKOR_FTM_TestFlip(handle, &state, 1), 0) << "the model is not asked for";
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\nNot support this model");
    EXPECT_EQ(Calls(), check);
    EXPECT_EQ(state, 'x');
}

TEST_F(PinsTest, FlipIsReadWhereTheDirectionOfItsPinSays)
{
    for (const bool output : {false, true})
    {
        for (const bool level : {false, true})
        {
            FreshBench();
            BecomePhone(chip, model3);
            SetRegister(0x48000004, output ? 0x200 : 0xFFFFFDFF);
            SetRegister(output ? 0x4800000C : 0x48000064, level ? 0x200 : 0xFFFFFDFF);
            SetRegister(output ? 0x48000064 : 0x4800000C, level ? 0xFFFFFDFF : 0x200);
            char state = 'x';
            EXPECT_EQ(TANDEKOR_FTM_TestFlip(handle, &state, 0), 1);
            EXPECT_EQ(state, level ? '1' : '0');
            const std::string register1 = "1207959556", register2 = output ? "1207959564" : "1207959652";
            const auto peek = [](const std::string& address)
            { return check + Lines{"QLIB_DIAG_MEMORY_PEEK_DWORD_F(" + address + ", 1)"}; };
            EXPECT_EQ(Calls(), check + modelCalls + peek(register1) + peek(register2));
            EXPECT_EQ(Log(), ModelStep("3", "3") + FlipLines(register1, output) + Lines{"\tTK_GetBitState_32_Reg start"}
                                 + FlipLines(register2, level));
        }
    }
}

TEST_F(PinsTest, CameraIsChosenByFourPinsAndTheOtherIsSwitchedOffFirst)
{
    const Writes first = Bank0(0x4, false) + Bank1(0x400, false) + Bank4(0x100000, true) + Bank0(0x20, true);
    const Writes second = Bank4(0x100000, false) + Bank0(0x20, false) + Bank0(0x4, true) + Bank1(0x400, true);
    for (const uint16_t id : {model52, model53, model55})
    {
        ExpectWrites(id, Choose(0), first);
        ExpectWrites(id, Choose(1), second);
    }
    ExpectWrites(model54, Choose(1), first);
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_FTM_KOLT_CAMERA_SWITCH(iCameraNum = 0)" + good);
    ExpectWrites(model54, Choose(0), second);
    const Lines log = ModelStep("9", "54") + PinLines("2214592856", "2214592868", "1048576", '0', ")")
                      + PinLines("1207959552", "1207959560", "32", '0', ")")
                      + PinLines("1207959552", "1207959560", "4", '1', ")")
                      + PinLines("1207959556", "1207959564", "1024", '1', ")")
                      + Lines{"\tTANDEKOR_FTM_KOLT_CAMERA_SWITCH(iCameraNum = 1)" + good};
    EXPECT_EQ(Log(), log);
}

class CameraIdTest : public PinsTest
{
protected:
    uint16_t id = 0xBEEF;

    uint8_t Ask(uint8_t camera) { return TANDEKOR_FTM_I2C_GetCameraId(handle, camera, &(id = 0xBEEF)); }
};

TEST_F(CameraIdTest, IsReadWhereTheModelHasIt)
{
    const std::string camera0 = "0D 00 00 00 45 02 2F 22 01";
    const struct
    {
        uint32_t chip;
        uint16_t hardwareId;
        uint8_t camera;
        std::string request;  // behind the declared data length
        uint16_t id;
    } cases[] = {
        {0x40, 8, 0, camera0, 0x13},                       // model 13
        {0x40, 8, 1, "0E 00 00 00 51 02 00 00 02", 0xB2},  //
        {0x40, 5, 1, "0E 00 00 00 51 02 00 00 02", 0xB2},  // 25
        {chip, model3, 0, camera0, 0x13},
        {chip, model3, 1, "0D 00 00 01 21 01 0B 00 01", 0x21},
        {chip, model52, 0, camera0, 0x13},
        {chip, model52, 1, "0D 00 00 00 47 02 60 25 01", 0x47},
        {chip, model54, 1, "0D 00 00 00 47 02 60 25 01", 0x47},
        {chip, model34, 0, camera0, 0x13},
        {chip, model34, 1, "0C 00 00 00 00 02 00 00 00", 0},
        {0x60, 12, 1, "0C 00 00 00 00 02 00 00 00", 0},  // 62
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.request);
        FreshBench();
        BecomePhone(row.chip, row.hardwareId);
        Phone().factory.i2c[{0x51, 0}] = {0xA1, 0xB2};
        EXPECT_EQ(Ask(row.camera), 1);
        EXPECT_EQ(id, row.id);
        const Lines camera{
            "QLIB_FTM_CAMERA_SET_SENSOR_ID(" + std::to_string(row.camera) + ")", "QLIB_FTM_CAMERA_START()",
            "QLIB_SendSync(17, 4B 0B 00 80 0F 00 07 00 " + row.request + ", 3000)", "QLIB_FTM_CAMERA_STOP()"};
        EXPECT_EQ(Calls(), check + modelCalls + camera);
    }
}

TEST_F(CameraIdTest, LogAndTheStatusOfTheStopWhichDoesNotCount)
{
    BecomePhone(chip, model52);
    Phone().camera.status = 0x10000;  // of which the low word counts
    simulator::BeforeCall("QLIB_FTM_CAMERA_STOP", 1, [] { Phone().camera.status = 0x10009; });
    EXPECT_EQ(Ask(1), 1);
    const std::string read
        = "(iI2C_AccessType = 0x0, iI2C_SlaveAddr = 0x47, iI2C_RegAddrLen = 0x2, iI2C_RegAddr = 0x2560, "
          "iI2C_DataLen = 0x1";
    const std::string step
        = "(accessType = 0 (READ), slaveAddr = 71, regAddrLen = 2, regAddr = 9568, dataLen = 1, data = 71)";
    const Lines log = ModelStep("0", "52")
                      + Lines{"\tQLIB_FTM_CAMERA_SET_SENSOR_ID(iCamNum = 1, piCameraStatus = 0)" + good,
                              "\tQLIB_FTM_CAMERA_START(piCameraStatus = 0)" + good,
                              "TANDEKOR_FTM_I2C_DATA_ACCESS" + read + ", piI2C_Data[0] = 0x0)",
                              "\tTANDEKOR_FTM_I2C_DATA_ACCESS2" + read + ")" + good,
                              "\tTANDEKOR_FTM_I2C_DATA_ACCESS" + step + good,
                              "\tQLIB_FTM_CAMERA_STOP(piCameraStatus = 9)" + good,
                              "\tTANDEKOR_FTM_I2C_GetCameraId(iCamNum = 1, iCamId = 71)" + good,
                              "\t\tTANDEKOR_FTM_I2C_GetCameraId - finish"};
    EXPECT_EQ(Log(), log);
}

TEST_F(CameraIdTest, CameraThatWasAskedToStartIsStoppedAfterAnyFailure)
{
    const std::string failed = " - Failure\n";
    const std::string sensor = "\tQLIB_FTM_CAMERA_SET_SENSOR_ID(iCamNum = 1, piCameraStatus = ";
    const std::string start = "\tQLIB_FTM_CAMERA_START(piCameraStatus = ";
    const std::string stop = "\tQLIB_FTM_CAMERA_STOP(piCameraStatus = ";
    const std::string read
        = "\tTANDEKOR_FTM_I2C_DATA_ACCESS(accessType = 0 (READ), slaveAddr = 71, regAddrLen = 2, "
          "regAddr = 9568, dataLen = 1, data = ";
    const auto refuse = [](const char* operation, int n = 1) { return [=] { simulator::RefuseCall(operation, n); }; };
    const auto status = [](const char* operation)
    { return [=] { simulator::BeforeCall(operation, 1, [] { Phone().camera.status = 0x10005; }); }; };
    const struct
    {
        std::vector<std::function<void()>> faults;
        Texts log;  // in front of the closing lines
        uint16_t id = 0xBEEF;
    } cases[] = {
        {{refuse("QLIB_FTM_CAMERA_SET_SENSOR_ID")}, {sensor + "4)" + failed}},
        {{status("QLIB_FTM_CAMERA_SET_SENSOR_ID")}, {sensor + "5)" + failed}},
        {{refuse("QLIB_FTM_CAMERA_START")}, {start + "0)" + failed, stop + "0)" + good}},
        {{status("QLIB_FTM_CAMERA_START")}, {start + "5)" + failed, stop + "5)" + good}},
        {{refuse("QLIB_FTM_CAMERA_START"), refuse("QLIB_FTM_CAMERA_STOP")},
         {start + "0)" + failed, stop + "0)" + failed}},
        {{refuse("QLIB_SendSync", 2)}, {read + "0)" + failed, stop + "0)" + good}},
        {{[] { Phone().factory.i2c.clear(); }}, {read + "0)" + failed, stop + "0)" + good}},
        {{refuse("QLIB_SendSync", 2), refuse("QLIB_FTM_CAMERA_STOP")}, {read + "0)" + failed, stop + "0)" + failed}},
        {{refuse("QLIB_FTM_CAMERA_STOP")}, {read + "71)" + good, stop + "0)" + failed}, 0x47},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.log[0]);
        FreshBench();
        BecomePhone(chip, model52);
        for (const auto& fault : row.faults)
            fault();
        EXPECT_EQ(Ask(1), 0);
        EXPECT_EQ(id, row.id);
        Texts expected = row.log;
        expected.push_back("\tTANDEKOR_FTM_I2C_GetCameraId(iCamNum = 1) - Failure\n");
        expected.push_back("\t\tTANDEKOR_FTM_I2C_GetCameraId - finish");
        const Texts log = Log();
        ASSERT_GE(log.size(), expected.size());
        EXPECT_EQ(Texts(log.end() - std::ssize(expected), log.end()), expected);
        EXPECT_EQ(simulator::CountCalls("QLIB_FTM_CAMERA_STOP"), row.log.size() == 1 ? 0 : 1);
    }
}

TEST_F(CameraIdTest, CameraNumberIsJudgedBehindTheModelAndWithoutAModelThereAreNoClosingLines)
{
    ExpectRefusal(
        model34, [&](ResourceContext) { return Ask(2); }, "",
        ModelStep("10", "34")
            + Lines{"\tParameter iCamId over the range (0-1).",
                    "\tTANDEKOR_FTM_I2C_GetCameraId(iCamNum = 2) - Failure\n",
                    "\t\tTANDEKOR_FTM_I2C_GetCameraId - finish"});
    FailsToReply();
    EXPECT_EQ(Ask(1), 0);
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_Phone_Model(piVerNumber = 0, piMSMModel = 2, piPhoneModel = 0) - Failure\n");
    EXPECT_EQ(id, 0xBEEF);
}

}  // namespace tandekor::test
