// The choice of a display, and the test images.
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

using DisplayTest = ProcedureTest;

TEST_F(DisplayTest, RequestAndRoomForItsReplyFollowFromThePhoneModel)
{
    const struct
    {
        uint32_t chip;
        uint16_t hardwareId;
        int capacity;  // 0: nothing is sent
    } cases[] = {
        {0x405, 2, 256}, {0x405, 3, 256}, {0x405, 10, 12}, {0x405, 11, 12}, {0x405, 13, 12},
        {0x405, 14, 12}, {0x405, 0, 0},   {0x405, 1, 0},   {0x405, 7, 0},   {0x40, 2, 0},
        {0x60, 12, 0},   {0xC0, 1, 0},    {0x405, 6, 0},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(testing::Message() << std::hex << row.chip << ' ' << row.hardwareId);
        for (const uint8_t display : Bytes{0, 1, 255})
        {
            FreshBench();
            BecomePhone(row.chip, row.hardwareId);
            EXPECT_EQ(TANDEKOR_SpecialSwitchDisplay(handle, display), row.capacity > 0 || display == 0 ? 1 : 0);
            ASSERT_EQ(CountExchanges(), row.capacity > 0 ? 2U : 1U);
            if (row.capacity == 0)
            {
                if (display != 0)
                {
                    EXPECT_EQ(LastLogText(), "\tERROR: Mobile not supported - Failure\n");
                }
                continue;
            }
            EXPECT_EQ(simulator::Exchanges().back().capacity, row.capacity);
            EXPECT_EQ(Phone().factory.display, display);
        }
    }
}

TEST_F(DisplayTest, LogShowsTheModelAndTheSizeOfTheReplyWithItsSign)
{
    BecomePhone(0x405, 2);
    EXPECT_EQ(TANDEKOR_SpecialSwitchDisplay(handle, 1), 1);
    const Lines calls = check + modelCalls + Lines{"QLIB_SendSync(11, 4B 0B 00 80 C8 00 01 00 0C 00 01, 2000)"};
    EXPECT_EQ(Calls(), calls);
    const Lines model = Step("TANDEKOR_Phone_Model(piVerNumber = 2, piMobModel = 2)", ModelLines("2", "2"));
    EXPECT_EQ(Log(), model
                         + Step("QLIB_SendSync(iRequestSize = 11, piRequestBytes = @, piResponseSize = 12, "
                                "iTimeout = 2000)"));

    Phone().buildId = "DraK2F";
    simulator::QueueReply({Hex("FF FF FF FF FF FF FF FF FF FF FF FF"), 1, uint16_t{40000}});
    EXPECT_EQ(TANDEKOR_SpecialSwitchDisplay(handle, 1), 1) << "what the phone says in its reply does not count";
    EXPECT_EQ(LastLogText(),
              "\tQLIB_SendSync(iRequestSize = 11, piRequestBytes = @, piResponseSize = -25536, "
              "iTimeout = 2000) - Completed successfully\n");
}

TEST_F(DisplayTest, ImageIsShownOnTheDisplayOnceThatIsChosen)
{
    for (const bool colours24Bit : {false, true})
    {
        FreshBench();
        BecomePhone(0x405, 10);
        GuardedBuffer file(128);
        std::fill_n(file.Text(), 128, 'x');
        std::copy_n("\\a.jpg", 7, file.Text());
        Phone().files["\\a.jpg"] = Phone().files[std::string(128, 'x')] = {};
        const auto draw = colours24Bit ? TANDEKOR_FTM_DrawContrastPattern24Bit : TANDEKOR_FTM_DrawContrastPattern;
        const std::string command = colours24Bit ? "C9" : "17";
        const std::string name = colours24Bit ? "TANDEKOR_FTM_DISPLAY_IMAGE_24BIT" : "TANDEKOR_FTM_DISPLAY_IMAGE";
        EXPECT_EQ(draw(handle, file.Text(), 1), 1);
        EXPECT_EQ(Calls(), (checkTwice + modelCalls
                            + Lines{"QLIB_SendSync(11, 4B 0B 00 80 C8 00 01 00 0C 00 01, 2000)",
                                    "QLIB_SendSync(138, 4B 0B 00 80 " + command + " 00 80 00 0C 00 "
                                        + ToHex(file.Content()) + ", 3000)"}));
        EXPECT_EQ(Log(), Step("TANDEKOR_SpecialSwitchDisplay(uiDsplNum = 1)",
                              Step("TANDEKOR_Phone_Model(piVerNumber = 10, piMobModel = 2)", ModelLines("10", "2"))
                                  + Step("QLIB_SendSync(iRequestSize = 11, piRequestBytes = @, piResponseSize = 12, "
                                         "iTimeout = 2000)"))
                             + Step(name + "(sFileName = \\a.jpg)",
                                    Request(name + "(sFileName[128] = '\\a.jpg')", name + "()")));

        std::fill_n(file.Text(), 128, 'x');
        EXPECT_EQ(draw(handle, file.Text(), 1), 1);
        EXPECT_EQ(LastLogText(), "\t" + name + "(sFileName = " + std::string(128, 'x') + ") - Completed successfully\n")
            << "a name without its end";
        BecomePhone(0x405, 0);
        simulator::ForgetCalls();
        EXPECT_EQ(draw(handle, file.Text(), 1), 0);
        EXPECT_EQ(Calls(), checkTwice + modelCalls) << "no image without its display";
        EXPECT_EQ(LastLogText(), "\tTANDEKOR_SpecialSwitchDisplay(uiDsplNum = 1) - Failure\n");
    }
}

}  // namespace tandekor::test
