// Display, backlights, slider and camera.
#include "tests/ftm/ftm_test.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

namespace
{

// A name with bytes behind its NUL, and one that fills the buffer.
const Bytes shortName = []
{
    Bytes buffer(128, 0xEE);
    buffer[0] = 'p';
    buffer[1] = 0;
    return buffer;
}();
const Bytes fullName(128, 'n');

Call CameraId(uint8_t (*function)(ResourceContext, char*), uint8_t before = 0x55)
{
    return With(function, {Bytes(25, before)});
}
const Call ftmId = CameraId(TANDEKOR_FTM_GetCameraIDString), ltmId = CameraId(TANDEKOR_LTM_GetCameraIdString);

const Call flash = With(TANDEKOR_FTM_TEST_CAMERA_FLASH, {1, 255});

}  // namespace

std::vector<FtmRequest> DisplayAndCameraRequests()
{
    return {
        {ReadOnly(With(TANDEKOR_FTM_DISPLAY_IMAGE, {shortName})), "4B 0B 00 80 17 00 80 00 0C 00 " + ToHex(shortName),
         "TANDEKOR_FTM_DISPLAY_IMAGE(sFileName[128] = 'p')", 0, 3000, "TANDEKOR_FTM_DISPLAY_IMAGE()"},
        {ReadOnly(With(TANDEKOR_FTM_DISPLAY_IMAGE_24BIT, {fullName})),
         "4B 0B 00 80 C9 00 80 00 0C 00 " + ToHex(fullName),
         "TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(sFileName[128] = '" + std::string(128, 'n') + "')", 0, 3000,
         "TANDEKOR_FTM_DISPLAY_IMAGE_24BIT()"},
        {With(TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL, {200}), "4B 0B 00 80 1E 00 01 00 0C 00 C8",
         "TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(iLevel = 200)", 0, 3000, "", true},
        {With(TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT, {1}), "4B 0B 00 80 97 00 01 00 0C 00 01",
         "TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(iSwitchLcdOn = 1)", 0},
        {With(TANDEKOR_FTM_SET_LCD_CONTRAST, {255}), "4B 0B 00 80 18 00 01 00 0C 00 FF",
         "TANDEKOR_FTM_SET_LCD_CONTRAST(iLcdContrastLevel = 255)", 0},
        {With(TANDEKOR_FTM_SetKeyPadBackLight, {3, 1}), "4B 0B 00 80 F5 00 04 00 0C 00 1F 00 00 00",
         "TANDEKOR_FTM_SetKeyPadBackLight()"},
        {With(TANDEKOR_FTM_GetSliderState, {0x35}), "4B 0B 00 80 F6 00 00 00 0C 00", "ZR_GetSliderState() start"},
        {flash, "4B 0B 00 80 26 00 02 00 0C 00 01 FF", "TANDEKOR_FTM_TEST_CAMERA_FLASH(1, 255)"},
        {With(TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL, {0x1234}), "4B 0B 00 80 96 00 02 00 0D 00 34 12",
         "TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(iLevel = 4660)", 0, 3000, "", true},
        {With(TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS, {1}), "4B 0B 00 80 F7 00 01 00 0C 00 01",
         "TANDEKOR_FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 1)", 0},
        {With(TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS, {255}), "4B 0B 00 80 F7 00 01 00 0C 00 FF",
         "TANDEKOR_FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 255)", 0},
        {ftmId, "4B 0B 00 80 CE 00 0A 00 23 00", "TANDEKOR_FTM_GetCameraIDString() - Started"},
        {ltmId, "4B 0B 01 80 3A 05 0A 00 23 00", "TANDEKOR_LTM_GetCameraIdString() - Started"},
    };
}

using CameraRequestsTest = FtmTest;

TEST_F(CameraRequestsTest, FlashTellsOfTheExchangeAloneAndFocusLevel0IsNotSent)
{
    const std::string text = "\tTANDEKOR_FTM_TEST_CAMERA_FLASH()";
    const std::string refusal = "TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(focusLevel = 0) - Focus Level out of range";
    ExpectAnswers({
        {flash, {"09 00"}, 1, {0}, {text + done}},
        {flash, {silence}, 0, {187}, {text + noReply}},
        {With(TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS, {0}), {}, 0, {}, {refusal}},
    });
}

TEST_F(CameraRequestsTest, IdentificationIsTheLast25BytesAndBadIfItBeginsWithCC)
{
    Numbers good(25, 'a'), wrong(25, 'a');
    wrong[0] = 0xCC;
    const std::string as = ToHex(Bytes(24, 'a'));
    const std::string ftm = "\tTANDEKOR_FTM_GetCameraIDString()", ltm = "\tTANDEKOR_LTM_GetCameraIdString()";
    const std::string wrongFtm = ftm + " - Failure (Wrong ID String)", wrongLtm = ltm + " - Failure - Wrong ID";
    ExpectAnswers({
        {ftmId, {"61 " + as}, 1, good, {}},
        {ltmId, {"EE EE 61 " + as}, 1, good, {}},
        {ftmId, {"CC " + as}, 0, wrong, {wrongFtm}},
        {ltmId, {"CC " + as}, 0, wrong, {wrongLtm}},
        {ftmId, {"CC CC"}, 1, Numbers(25, 0x55), {}},
        {CameraId(TANDEKOR_FTM_GetCameraIDString, 0xCC), {nothing}, 0, Numbers(25, 0xCC), {wrongFtm}},
        {ftmId, {silence}, 0, Numbers(25, 0x55), {ftm + noReply}},
        {ltmId, {silence}, 0, Numbers(25, 0x55), {ltm + noReply}},
    });
}

// Requests that depend on the phone model, which they ask for.
class ModelRequestsTest : public ProcedureTest
{
protected:
    // What the question logs on a phone of chip family 2.
    static Lines Question(const std::string& version, const std::string& model)
    {
        return Lines{"\tTANDEKOR_Phone_Model() start"} + ModelLines(version, "2")
               + Lines{"TANDEKOR_Phone_Model(piVerNumber = " + version + ", piMSMModel = 2, piPhoneModel = " + model
                       + ") - Completed successfully\n"};
    }

    struct Shown
    {
        uint8_t result;
        std::string output;  // on standard output
    };
    Shown SetLight(uint16_t row, uint8_t on)
    {
        simulator::ForgetCalls();
        simulator::ForgetLog();
        testing::internal::CaptureStdout();
        const uint8_t result = TANDEKOR_FTM_SetKeyPadBackLight(handle, row, on);
        return {result, testing::internal::GetCapturedStdout()};
    }
};

TEST_F(ModelRequestsTest, KeypadLightGoesByFactoryRequestButForTwoRowsOfModel3)
{
    const std::string light = "\tTANDEKOR_FTM_SetKeyPadBackLight(rowNumber = ";
    const std::string row = "\tParameter RowNumber over the range (1-7).";
    const std::string state = "\tParameter BackLightOn over the range (0-1).";
    const std::string advice = "\nDRAVOK not support, only row 5 and 7! ";
    const struct
    {
        const char *version, *model;
        uint16_t row;
        uint8_t on, result;
        const char* data;  // of the request; null if none is sent
        std::string output, closing;
    } cases[] = {
        {"0", "52", 3, 1, 1, "1F 00 00 00", "", light + "3, backLightOn = 1)" + done},
        {"9", "54", 1, 0, 1, "0A 00 00 00", "", light + "1, backLightOn = 0)" + done},
        {"10", "34", 7, 1, 1, "47 00 00 00", "", light + "7, backLightOn = 1)" + done},
        {"6", "0", 5, 0, 1, "32 00 00 00", "", light + "5, backLightOn = 0)" + done},
        {"0", "52", 0, 1, 0, nullptr, "", row},
        {"0", "52", 8, 1, 0, nullptr, "", row},
        {"0", "52", 0x0103, 2, 0, nullptr, "", row},
        {"0", "52", 7, 2, 0, nullptr, "", state},
        {"3", "3", 2, 1, 1, "15 00 00 00", advice, light + "2, backLightOn = 1)" + done},
        {"3", "3", 8, 1, 0, nullptr, advice, row},
        {"3", "3", 6, 255, 0, nullptr, advice, state},
    };
    for (const auto& one : cases)
    {
        SCOPED_TRACE(one.model + (" row " + std::to_string(one.row)));
        BecomePhone(0x405, static_cast<uint16_t>(std::stoi(one.version)));
        const Shown shown = SetLight(one.row, one.on);
        EXPECT_EQ(shown.result, one.result);
        EXPECT_EQ(shown.output, one.output);
        EXPECT_EQ(Log(),
                  Lines{"TANDEKOR_FTM_SetKeyPadBackLight()"} + Question(one.version, one.model) + Lines{one.closing});
        EXPECT_EQ(CountExchanges(), one.data == nullptr ? 1U : 2U);
        const std::string last = one.data == nullptr ? "1D 00 00 00 0E 00" : "F5 00 04 00 0C 00 ";
        EXPECT_EQ(LastRequest(), "4B 0B 00 80 " + last + (one.data == nullptr ? "" : one.data));
    }
}

TEST_F(ModelRequestsTest, KeypadLightOfModel3GoesByItsPinsInRows5And7WhateverTheStateIs)
{
    BecomePhone(0x405, 8);
    const std::string text
        = "TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext = " + std::to_string(handle) + ", rowNumber = ";
    EXPECT_EQ(SetLight(7, 2).result, 1);
    EXPECT_EQ(simulator::LogTexts().back(), text + "7, backLightOn= 2) - Completed successfully\n");
    EXPECT_EQ(SetLight(5, 1).result, 1);
    EXPECT_EQ(Phone().charger.driveLevels[1], 15);
    simulator::RefuseCall("QLIB_FTM_SET_PMIC_DRIVE_LEVEL");
    const Shown refused = SetLight(5, 0);
    EXPECT_EQ(refused.result, 0);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(
        Log(),
        Lines{"TANDEKOR_FTM_SetKeyPadBackLight()"} + Question("8", "3") + Lines{"\tTK_SetKeyPadBackLight() start"}
            + Step("TANDEKOR_Phone_Model(piVerNumber = 8, piMSMModel = 2, piPhoneModel = 3)", ModelLines("8", "2"))
            + Lines{text + "5, backLightOn= 0) - Failure"});
    EXPECT_EQ(CountExchanges(), 2U) << "for the hardware id alone";
}

TEST_F(ModelRequestsTest, KeypadLightWithoutAReplyOrWithAStatusOrAModel)
{
    const std::string light = "\tTANDEKOR_FTM_SetKeyPadBackLight(rowNumber = 4, backLightOn = 1)";
    const Bytes id = Hex("00 00 00 00");
    Replies(id);
    Replies(Hex("07 81"));
    EXPECT_EQ(SetLight(4, 1).result, 0);
    EXPECT_EQ(LastLogText(), light + " - error code = 33031");
    Replies(id);
    FailsToReply();
    EXPECT_EQ(SetLight(4, 1).result, 0);
    EXPECT_EQ(LastLogText(), light + noReply);
    FailsToReply();
    EXPECT_EQ(SetLight(4, 1).result, 0);
    EXPECT_EQ(LastLogText(), "TANDEKOR_Phone_Model(piVerNumber = 0, piMSMModel = 2, piPhoneModel = 0) - Failure");
    EXPECT_EQ(CountExchanges(), 1U);
}

TEST_F(ModelRequestsTest, SliderStateFollowsFromWordAndModelAndTheHintSavesTheQuestion)
{
    constexpr uint8_t kept = 'q';
    const struct
    {
        uint8_t hint;
        uint16_t version;
        std::vector<uint8_t> states;  // by the words 0, 1, 2, 3, 4 and 0x0103
        uint8_t withoutReply;
    } cases[] = {
        {0, 3, {1, 0, 0, 0, 0, 0}, 1},  {52, 3, {0, 2, 3, 1, 3, 3}, 0}, {0, 0, {0, 2, 3, 1, 3, 3}, 0},
        {53, 3, {3, 1, 0, 2, 3, 3}, 3}, {54, 3, {3, 1, 0, 2, 3, 3}, 3}, {55, 3, {3, 1, 0, 2, 3, 3}, 3},
        {51, 1, {3, 1, 0, 2, 3, 3}, 3}, {56, 3, {1, 0, 0, 0, 0, 0}, 1}, {3, 10, std::vector(6, kept), kept},
    };
    for (const auto& row : cases)
    {
        BecomePhone(0x405, row.version);
        const bool asks = row.hint < 52 || row.hint > 55;
        const auto expect = [&, hint = row.hint](uint8_t result, uint8_t state)
        {
            uint8_t written = kept;
            simulator::ForgetCalls();
            EXPECT_EQ(TANDEKOR_FTM_GetSliderState(handle, &written, hint), result);
            EXPECT_EQ(written, state) << "hint " << int{hint} << ", version " << row.version;
            EXPECT_EQ(CountExchanges(), asks ? 2U : 1U);
            EXPECT_EQ(LastRequest(), "4B 0B 00 80 F6 00 00 00 0C 00");
        };
        const bool known = row.states[0] != kept;
        const uint16_t words[] = {0, 1, 2, 3, 4, 0x0103};
        for (size_t i = 0; i < std::size(words); ++i)
        {
            Phone().factory.slider = words[i];
            expect(known ? 1 : 0, row.states[i]);
        }
        simulator::BeforeCall("QLIB_SendSync", asks ? 2 : 1, [] { FailsToReply(); });
        expect(0, row.withoutReply);
    }
}

TEST_F(ModelRequestsTest, SliderLog)
{
    uint8_t state = 'q';
    const std::string start = "ZR_GetSliderState() start", entry = "TANDEKOR_FTM_GetSliderState()";
    simulator::QueueReply({{}, 7, {}});
    EXPECT_EQ(TANDEKOR_FTM_GetSliderState(handle, &state, 52), 7) << "the result of the exchange";
    FailsToReply();
    EXPECT_EQ(TANDEKOR_FTM_GetSliderState(handle, &state, 52), 0);
    EXPECT_EQ(Log(), (Texts{start, entry, "\t" + entry + done, start, entry, "\t" + entry + noReply}));

    simulator::ForgetLog();
    BecomePhone(0x405, 10);
    state = 'q';
    EXPECT_EQ(TANDEKOR_FTM_GetSliderState(handle, &state, 0), 0);
    const Lines closing{entry, "\t" + entry + done, "\tTANDEKOR_FTM_GetSliderState(sState = q)"};
    EXPECT_EQ(Log(), Lines{start} + Question("10", "34") + closing);
    state = 0;
    TANDEKOR_FTM_GetSliderState(handle, &state, 0);
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_FTM_GetSliderState(sState = ") << "a NUL ends the text";
    simulator::ForgetCalls();
    FailsToReply();
    EXPECT_EQ(TANDEKOR_FTM_GetSliderState(handle, &state, 0), 0);
    EXPECT_EQ(LastLogText(), "TANDEKOR_Phone_Model(piVerNumber = 0, piMSMModel = 2, piPhoneModel = 0) - Failure");
    EXPECT_EQ(CountExchanges(), 1U);
}

}  // namespace tandekor::test
