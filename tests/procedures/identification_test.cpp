// Which phone this is.
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

class IdentificationTest : public ProcedureTest
{
protected:
    std::vector<uint32_t> answer = {91, 92, 93};  // version, chip family, phone model

    uint8_t Ask() { return TANDEKOR_Phone_Model(handle, answer.data(), &answer[1], &answer[2]); }
};

TEST_F(IdentificationTest, PhoneModelFollowsFromChipFamilyAndVersion)
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
    EXPECT_EQ(Log(), Texts{});
    EXPECT_EQ(Calls(), Texts{});
}

TEST_F(IdentificationTest, ChipFamilyFollowsFromTheBuildAnswerOrElseFromBits12To27OfTheHardwareVersion)
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
        EXPECT_EQ(Ask(), 1);
        EXPECT_EQ(answer[1], row.expected) << std::hex << row.direct << ' ' << row.word;
    }
}

TEST_F(IdentificationTest, ByTheBuildAnswer)
{
    Phone().msmHardwareVersion = 0x120400E1;
    Phone().hardwareId = 12;
    EXPECT_EQ(Ask(), 1);
    EXPECT_EQ(answer, (std::vector<uint32_t>{12, 2, 55}));
    const Texts log{
        "\tQLIB_DIAG_EXT_BUILD_ID_F() start",
        "\tQLIB_DIAG_EXT_BUILD_ID_F() - Completed successfully\n",
        "\t\tTANDEKOR_FTM_GET_HW_ID() start",
        "TANDEKOR_FTM_GET_HW_ID()",
        "QLIB_DIAG_EXT_BUILD_ID_F()",
        "\tTANDEKOR_FTM_GET_HW_ID() - Completed successfully\n",
        "\tTANDEKOR_FTM_GET_HW_ID() - Completed successfully\n",
        "\t\tTANDEKOR_GetPhoneModel() start",
        "\tTANDEKOR_GetPhoneModel(ver_number = 12, msm_model = 2) - Completed successfully\n",
    };
    EXPECT_EQ(Log(), log);
    const Texts calls{"QLIB_DIAG_EXT_BUILD_ID_F() x2", "QLIB_SendSync(10, 4B 0B 00 80 1D 00 00 00 0E 00, 3000)"};
    EXPECT_EQ(Calls(), calls);
}

TEST_F(IdentificationTest, ByTheHardwareVersionIfTheBuildCallFails)
{
    simulator::RefuseCallsFrom("QLIB_DIAG_EXT_BUILD_ID_F");
    Phone().hardwareVersion = 0x00405000;
    Phone().hardwareId = 3;
    EXPECT_EQ(Ask(), 1);
    EXPECT_EQ(answer, (std::vector<uint32_t>{3, 2, 3}));
    const Texts fallback{
        "\tQLIB_DIAG_EXT_BUILD_ID_F() start",
        "\tQLIB_DIAG_EXT_BUILD_ID_F() - Failure\n",
        "\tTANDEKOR_FTM_GET_HARDWARE_VERSION() start",
        "TANDEKOR_FTM_GET_HARDWARE_VERSION()",
        "\tTANDEKOR_FTM_GET_HARDWARE_VERSION() - Completed successfully\n",
        "\tTANDEKOR_FTM_GET_HARDWARE_VERSION() - Completed successfully\n",
        "\t\tTANDEKOR_FTM_GET_HW_ID() start",
    };
    const Texts log = Log();
    ASSERT_EQ(log.size(), fallback.size() + 5) << "what follows is as behind the build answer";
    EXPECT_EQ(Texts(log.begin(), log.begin() + 7), fallback);
}

TEST_F(IdentificationTest, BuildTextThatNamesDraK2FStandsForHardwareId8)
{
    Phone().msmHardwareVersion = 0x405;
    Phone().buildId = "xx-DraK2F-01";
    Phone().hardwareId = 12;
    EXPECT_EQ(Ask(), 1);
    EXPECT_EQ(answer, (std::vector<uint32_t>{8, 2, 3}));
    EXPECT_EQ(CountExchanges(), 0U);
    EXPECT_EQ(Log().size(), 8U) << "one line less: the request itself has no closing text";
}

TEST_F(IdentificationTest, ValuesBehindAFailedStepKeepWhatTheyHeld)
{
    Phone().msmHardwareVersion = 0;
    FailsToReply();
    EXPECT_EQ(Ask(), 0);
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_FTM_GET_HARDWARE_VERSION() - Failure\n");
    EXPECT_EQ(answer, (std::vector<uint32_t>{91, 92, 93}));
    Phone().msmHardwareVersion = 0xC0;
    FailsToReply();
    EXPECT_EQ(Ask(), 0);
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_FTM_GET_HW_ID() - Failure\n");
    EXPECT_EQ(answer, (std::vector<uint32_t>{91, 4, 93}));
}

TEST_F(IdentificationTest, SoftwareBuildIsReadIntoTextsThatAreClearedAndCutInsideTheirBuffers)
{
    std::vector<GuardedBuffer> texts(5, GuardedBuffer(32));
    std::vector<GuardedBuffer> fields(7, GuardedBuffer(4));
    GuardedBuffer buildId(512), buildModel(512);
    const auto check = [&]
    {
        return TANDEKOR_CheckSWBuild(handle, texts[0].Text(), texts[1].Text(), texts[2].Text(), texts[3].Text(),
                                     texts[4].Text(), fields[0].Data(), fields[1].Data(), fields[2].Data(),
                                     fields[3].Data(), fields[4].Data(), fields[5].Data(), fields[6].Data(),
                                     answer.data(), &answer[1], buildId.Text(), buildModel.Text());
    };
    Phone().on = false;
    EXPECT_EQ(check(), 0);
    EXPECT_EQ(texts[0].Content(), Bytes(32, 0x55)) << "nothing is cleared before the phone answers";

    Phone().on = true;
    Phone().compileDate = "Mar 14 2006 and more";
    Phone().compileTime = "12:34:56.789";
    Phone().releaseDate = "Apr  1 2006!";
    Phone().releaseTime = "01:02:03";
    Phone().versionDir = "longer than eight";
    EXPECT_EQ(check(), 1);
    const Texts expected{"Mar 14 2006", "12:34:56", "Apr  1 2006", "01:02:03", "longer t"};
    for (size_t i = 0; i < texts.size(); ++i)
    {
        EXPECT_EQ(texts[i].Text(), expected[i]);
        EXPECT_EQ(texts[i].Content().back(), 0);
        EXPECT_TRUE(texts[i].GuardsIntact());
    }
    for (size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(fields[i].Content()[0], 6 + i) << "handed on in their order";
    EXPECT_EQ(buildId.Text(), Phone().buildId);
    EXPECT_EQ(buildModel.Text(), Phone().buildModel);
    EXPECT_EQ(buildId.Content().back(), 0x55) << "not cleared";
    EXPECT_EQ(answer, (std::vector<uint32_t>{0x405, 52, 93}));
    const Texts log{
        "\tInvalid handle - Failure\n",
        "\t\tQLIB_DIAG_VERNO_F() start",
        "\tQLIB_DIAG_VERNO_F() - Completed successfully\n",
        "\t\tQLIB_DIAG_EXT_BUILD_ID_F() start",
        "\tQLIB_DIAG_EXT_BUILD_ID_F() - Completed successfully\n",
    };
    EXPECT_EQ(Log(), log);
}

}  // namespace tandekor::test
