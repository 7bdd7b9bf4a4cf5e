// The FM radio, the factory tracking byte, and the uploads.
#include <utility>

#include "procedures/upload_callback.h"
#include "tests/frame/guarded_call.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

using RadioTest = ProcedureTest;

namespace
{

const std::string i2cArguments
    = "(iI2C_AccessType = 0x0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0x0, iI2C_RegAddr = 0x0, iI2C_DataLen = 0x1C";
const Lines informationLines = Step(
    "TANDEKOR_FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0, iI2C_SlaveAddr = 0x10, iI2C_RegAddrLen = 0, "
    "iI2C_RegAddr = 0x00, iI2C_DataLen = 28)",
    Request("TANDEKOR_FTM_I2C_DATA_ACCESS" + i2cArguments + ", piI2C_Data[0] = 0x0)",
            "TANDEKOR_FTM_I2C_DATA_ACCESS2" + i2cArguments + ")"));
const Lines informationCalls{"QLIB_SendSync(17, 4B 0B 00 80 0F 00 07 00 28 00 00 00 10 00 00 00 1C, 3000)"};

}  // namespace

TEST_F(RadioTest, InformationIsInByte9OfWhatTheChipGives)
{
    const struct
    {
        uint8_t byte9;
        std::vector<uint32_t> values;  // by eFmData
    } cases[] = {{0xA4, {10, 0, 1}}, {0x58, {5, 1, 0}}, {0xF3, {15, 0, 0}}, {0x0F, {0, 1, 1}}};
    for (const auto& row : cases)
    {
        Phone().factory.i2c[{0x10, 0}] = Bytes(28, static_cast<uint8_t>(~row.byte9));
        Phone().factory.i2c[{0x10, 0}][9] = row.byte9;
        for (const uint8_t data : Bytes{0, 1, 2, 3, 255})
        {
            simulator::ForgetCalls();
            simulator::ForgetLog();
            const CallResult call = Call(TANDEKOR_SpecialGetFmRadioInfo, {data})(handle);
            EXPECT_EQ(call.result, data < 3 ? 1 : 0);
            EXPECT_EQ(call.outs[0], data < 3 ? row.values[data] : 0xFF);
            EXPECT_EQ(Calls(), check + informationCalls);
            EXPECT_EQ(Log(), informationLines);
        }
    }
}

TEST_F(RadioTest, InformationIsNoneWithoutAReplyAndUntouchedWithoutAPhone)
{
    FailsToReply();
    const GuardedCall call = Call(TANDEKOR_SpecialGetFmRadioInfo, {0});
    EXPECT_EQ(call(handle).outs[0], 0xFFU);
    EXPECT_TRUE(LastLogText().ends_with("iI2C_DataLen = 28) - Failure\n")) << LastLogText();
    Phone().on = false;
    EXPECT_TRUE(call(handle).outsUntouched);
}

TEST_F(RadioTest, WholeTestEndsWithTheSecondInformation)
{
    const CallResult call = Call(TANDEKOR_FM_RadioTest, {7, 9460})(handle);
    EXPECT_EQ(call.result, 1);
    EXPECT_EQ(call.outs, (std::vector<uint32_t>{0x1242, 0, 1})) << "chip, status word, information 2 of 0xA4";
    EXPECT_TRUE(call.guardsIntact);
    EXPECT_EQ(Calls(), (checkTwice
                        + Lines{"QLIB_FTM_AUDIO_SET_PATH(7)", "QLIB_SendSync(10, 4B 0B 00 80 16 00 00 00 0E 00, 3000)",
                                "QLIB_SendSync(12, 4B 0B 00 80 1C 00 02 00 0C 00 F4 24, 3000)"}
                        + check + informationCalls + check + informationCalls));
    EXPECT_EQ(
        Log(),
        Step("TANDEKOR_MicrophoneBiasVoltages(iAudioDevice = 7)", Step("QLIB_FTM_AUDIO_SET_PATH(iAudioDevice = 7)"))
            + Step("TANDEKOR_FTM_GET_FM_RADIO_ID()",
                   Request("TANDEKOR_FTM_GET_FM_RADIO_ID(iChip_Id = 21845)", "TANDEKOR_FTM_GET_FM_RADIO_ID()"))
            + Step("TANDEKOR_FTM_TUNE_FM_RADIO(iChannel = 9460)",
                   Request("TANDEKOR_FTM_TUNE_FM_RADIO(iChannel = 9460)"))
            + Step("TANDEKOR_SpecialGetFmRadioInfo(eFmData = 0)", informationLines)
            + Step("TANDEKOR_SpecialGetFmRadioInfo(eFmData = 2)", informationLines));
}

TEST_F(RadioTest, TrackingByteIsWrittenAndReadBelowAddress128)
{
    uint8_t byte = 0x5A;
    EXPECT_EQ(TANDEKOR_SetFactoryTrackingByte(handle, 1, 127, &byte), 1);
    byte = 0;
    EXPECT_EQ(TANDEKOR_SetFactoryTrackingByte(handle, 0, 127, &byte), 1);
    EXPECT_EQ(byte, 0x5A);
    EXPECT_EQ(Calls(), (check + Lines{"QLIB_SendSync(14, 4B 0B 00 80 15 00 04 00 0D 00 01 7F 00 5A, 3000)"} + check
                        + Lines{"QLIB_SendSync(13, 4B 0B 00 80 15 00 04 00 0D 00 00 7F 00, 3000)"}));
    const std::string data = "TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(iOperationType = ";
    EXPECT_EQ(Log(), Step(data + "\x01, iDataAddress = 127)", Request(data + "1, iDataAddress = 127)"))
                         + Step(data, Request(data + "0, iDataAddress = 127)")));
    for (const uint16_t address : std::initializer_list<uint16_t>{128, 0x8001})
    {
        simulator::ForgetCalls();
        EXPECT_EQ(TANDEKOR_SetFactoryTrackingByte(handle, 1, address, &byte), 0);
        EXPECT_EQ(Calls(), check);
        EXPECT_EQ(LastLogText(), "\tTANDEKOR_SetFactoryTrackingByte - iDataAddress >= 128 - Failure\n");
    }
}

// --- uploads

using Told = std::vector<std::pair<uint32_t, uint32_t>>;

class UploadTest : public ProcedureTest
{
protected:
    UploadTest()
    {
        TANDEKOR_SetLibraryMode(1);
        Event(11, 4000);
        Event(12, 0);
        Event(0, 0);
        TANDEKOR_SetCallback(handle, Callback);
        told.clear();
        simulator::ForgetCalls();
    }
    ~UploadTest() override { TANDEKOR_SetLibraryMode(0); }

    static void Event(uint32_t code, uint32_t value)
    {
        const uint32_t record[] = {code, 0xDEADBEEF, value};
        EXPECT_EQ(UploadProgressCallback(record), 1);
    }
    static void Callback(uint32_t status, uint32_t percent) { told.emplace_back(status, percent); }

    static Told told;  // since it was looked at last
    static Told Since() { return std::exchange(told, {}); }

    uint8_t MultiImage()
    {
        return TANDEKOR_UploadMultiImage(handle, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,
                                         21, 22, 23);
    }
};

Told UploadTest::told;

TEST_F(UploadTest, ArgumentsAreHandedOnAsTheyAre)
{
    const uintptr_t pointer = UINTPTR_MAX - 7;
    const std::string configure = "QLIB_ConfigureCallBacks(0, 1, 0)", mode = "QLIB_GetLibraryVersion()";
    EXPECT_EQ(TANDEKOR_UploadCEFS_File2(handle, 1, pointer, 3), 1);
    EXPECT_EQ(Calls(), (Texts{mode, configure, "QLIB_UploadCEFS_File2(1, " + std::to_string(pointer) + ", 3)"}));
    simulator::ForgetCalls();
    EXPECT_EQ(TANDEKOR_UploadCEFS_File(handle, pointer, 2), 1);
    EXPECT_EQ(Calls(), (Texts{mode, configure, "QLIB_UploadCEFS_File(" + std::to_string(pointer) + ", 2)"}));
    simulator::ForgetCalls();
    EXPECT_EQ(MultiImage(), 1);
    EXPECT_EQ(Calls(), (Texts{mode, configure,
                              "QLIB_UploadMultiImage(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, "
                              "19, 20, 21, 22, 23)"}));
    Phone().upload.result = 0;
    EXPECT_EQ(MultiImage(), 0);
    EXPECT_EQ(Log(),
              (Texts{"\tQLIB_UploadCEFS_File2() - Completed successfully\n",
                     "\tQLIB_UploadCEFS_File() - Completed successfully\n",
                     "\tQLIB_UploadMultiImage() - Completed successfully\n", "\tQLIB_UploadMultiImage() - Failure\n"}));
}

TEST_F(UploadTest, OtherLibraryModeIsToldByTheHostLibraryAlone)
{
    simulator::SetLibraryVersion("QLIB V5.0.40,QPHONEMS");
    simulator::ForgetCalls();
    EXPECT_EQ(TANDEKOR_UploadCEFS_File2(handle, 1, 2, 3), 0);
    EXPECT_EQ(TANDEKOR_UploadCEFS_File(handle, 1, 2), 0);
    EXPECT_EQ(MultiImage(), 0);
    EXPECT_EQ(Log(), Texts(3, "\tTemporary not supported - HBLK removed"));
    EXPECT_EQ(Calls(), (Texts{"QLIB_GetLibraryVersion() x3"}));
}

TEST_F(UploadTest, CallbackIsToldEachStepAndThePercentageOfTheUploadBefore)
{
    Phone().upload = {.totalSize = 100000, .steps = 4, .stepTimeMs = 1, .lastStatus = 2, .result = 1};
    TANDEKOR_UploadCEFS_File(handle, 1, 2);
    EXPECT_EQ(Since(), (Told{{1, 0}, {1, 25}, {1, 50}, {1, 75}, {1, 100}, {2, 100}}));
    Phone().upload.totalSize = 2000;
    TANDEKOR_UploadCEFS_File(handle, 1, 2);
    EXPECT_EQ(Since(), (Told{{1, 100}, {2, 100}})) << "no percentages of a small upload";
    Phone().upload.totalSize = 2001;
    int sleeps = 0;
    simulator::TheClock().onSleep = [&](uint32_t)
    {
        if (++sleeps == 2)
            TANDEKOR_SetCallback(unknownHandle, nullptr);
    };
    TANDEKOR_UploadCEFS_File(handle, 1, 2);
    EXPECT_EQ(Since(), (Told{{1, 100}, {1, 24}})) << "taken away in the middle";
}

TEST_F(UploadTest, EventsOneByOne)
{
    Event(0, 7);
    Event(14, 7);
    Event(0, 7);
    EXPECT_EQ(Since(), (Told{{7, 0}})) << "a status is told once, whichever event carries it";
    Event(14, 8);
    Event(0, 7);
    EXPECT_EQ(Since(), (Told{{8, 0}, {7, 0}}));
    Event(11, 3000);
    for (const uint32_t other : {1, 2, 10, 13, 15, 0x10000})
        Event(other, 1);
    EXPECT_EQ(Since(), Told{});
    Event(12, 1500);
    Event(12, 1500);
    Event(12, 3001);
    Event(12, 99999);
    EXPECT_EQ(Since(), (Told{{7, 50}, {7, 50}, {7, 100}, {7, 100}}));
    Event(12, 42949673);
    EXPECT_EQ(Since(), (Told{{7, 0}})) << "times 100 it leaves 4 in 32 bits";
    Event(11, 2000);
    Event(12, 1000);
    EXPECT_EQ(Since(), Told{});
    Event(11, 0);
    Event(12, 1);
    Event(11, 0xFFFFFFFF);
    Event(12, 21474836);
    EXPECT_EQ(Since(), (Told{{7, 0}}));

    static Told others;
    TANDEKOR_SetCallback(handle, [](uint32_t status, uint32_t percent) { others.emplace_back(percent, status); });
    Event(0, 1);
    EXPECT_EQ(std::exchange(others, {}), (Told{{0, 1}}));
    TANDEKOR_SetCallback(unknownHandle, nullptr);
    Event(0, 2);
    TANDEKOR_SetCallback(unknownHandle, Callback);
    Event(0, 3);
    EXPECT_EQ(Since(), (Told{{3, 0}})) << "set for every handle";
    EXPECT_EQ(others, Told{});
}

}  // namespace tandekor::test
