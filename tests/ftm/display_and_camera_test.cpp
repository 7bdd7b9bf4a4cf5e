// Display, backlights, slider and camera.
#include "tests/ftm/ftm_test.h"

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
const std::string fullName(128, 'n');

const Call ftmId = With(TANDEKOR_FTM_GetCameraIDString, {Out{25}}),
           ltmId = With(TANDEKOR_LTM_GetCameraIdString, {Out{25}});
const Call flash = With(TANDEKOR_FTM_TEST_CAMERA_FLASH, {1, 255});
Call Focus(uint8_t level) { return With(TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS, {level}); }
Call Light(uint16_t row, uint8_t on) { return With(TANDEKOR_FTM_SetKeyPadBackLight, {row, on}); }
Call Slider(uint8_t hint, uint8_t before = 'q') { return With(TANDEKOR_FTM_GetSliderState, {Bytes{before}, hint}); }

}  // namespace

std::vector<FtmRequest> DisplayAndCameraRequests()
{
    return {
        {ReadOnly(With(TANDEKOR_FTM_DISPLAY_IMAGE, {shortName})), "17 00 80 00 0C 00 " + ToHex(shortName),
         "FTM_DISPLAY_IMAGE(sFileName[128] = 'p')", 0, 3000, "FTM_DISPLAY_IMAGE()"},
        {ReadOnly(With(TANDEKOR_FTM_DISPLAY_IMAGE_24BIT, {Ascii(fullName)})),
         "C9 00 80 00 0C 00 " + ToHex(Ascii(fullName)), "FTM_DISPLAY_IMAGE_24BIT(sFileName[128] = '" + fullName + "')",
         0, 3000, "FTM_DISPLAY_IMAGE_24BIT()"},
        {With(TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL, {200}), "1E 00 01 00 0C 00 C8",
         "FTM_SET_LCD_BACKLIGHT_LEVEL(iLevel = 200)", 0, 3000, "", true},
        {With(TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT, {1}), "97 00 01 00 0C 00 01",
         "FTM_SWITCH_LCD_BACKLIGHT(iSwitchLcdOn = 1)", 0},
        {With(TANDEKOR_FTM_SET_LCD_CONTRAST, {255}), "18 00 01 00 0C 00 FF",
         "FTM_SET_LCD_CONTRAST(iLcdContrastLevel = 255)", 0},
        {Light(3, 1), "F5 00 04 00 0C 00 1F 00 00 00", "FTM_SetKeyPadBackLight()"},
        {Slider(53), "F6 00 00 00 0C 00", "ZR_GetSliderState() start"},
        {flash, "26 00 02 00 0C 00 01 FF", "FTM_TEST_CAMERA_FLASH(1, 255)"},
        {With(TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL, {0x1234}), "96 00 02 00 0D 00 34 12",
         "FTM_SET_FLASH_LIGHT_LEVEL(iLevel = 4660)", 0, 3000, "", true},
        {Focus(1), "F7 00 01 00 0C 00 01", "FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 1)", 0},
        {Focus(255), "F7 00 01 00 0C 00 FF", "FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 255)", 0},
        {ftmId, "CE 00 0A 00 23 00", "FTM_GetCameraIDString() - Started"},
        {ltmId, "4B 0B 01 80 3A 05 0A 00 23 00", "LTM_GetCameraIdString() - Started"},
    };
}

using CameraRequestsTest = FtmTest;

TEST_F(CameraRequestsTest, FlashAndIdentificationCloseWithTextsOfTheirOwn)
{
    // The last 25 bytes are the identification, which is bad if it begins with CC.
    Numbers good(25, 'a'), wrong(25, 'a');
    wrong[0] = 0xCC;
    const Numbers untouched(25, 0x55);
    const std::string as = ToHex(Bytes(24, 'a')), called = "()";
    const std::string wrongFtm = "() - Failure (Wrong ID String)";
    ExpectAnswers({
        {flash, "09 00", 1, {0}, {called + done}},
        {flash, "!", 0, {187}, {called + noReply}},
        {Focus(0), "", 0, {}, {"TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(focusLevel = 0) - Focus Level out of range"}},
        {ftmId, "61 " + as, 1, good, {}},
        {ltmId, "EE EE 61 " + as, 1, good, {}},
        {ftmId, "CC " + as, 0, wrong, {wrongFtm}},
        {ltmId, "CC " + as, 0, wrong, {"() - Failure - Wrong ID"}},
        {ftmId, "CC CC", 1, untouched, {}},
        {With(TANDEKOR_FTM_GetCameraIDString, {Bytes(25, 0xCC)}), "=", 0, Numbers(25, 0xCC), {wrongFtm}},
        {ftmId, "!", 0, untouched, {called + noReply}},
        {ltmId, "!", 0, untouched, {called + noReply}},
    });
}

// Requests that depend on the phone model, which they ask for.
class ModelRequestsTest : public FtmTest
{
protected:
    ModelRequestsTest() { simulator::ThePhone().msmHardwareVersion = 0x405; }  // of chip family 2

    // What the question for the model logs.
    static Texts Question(int version, int model)
    {
        const std::string build = "QLIB_DIAG_EXT_BUILD_ID_F()", id = "TANDEKOR_FTM_GET_HW_ID()";
        const std::string start = "TANDEKOR_", shown = std::to_string(version);
        return {"\tTANDEKOR_Phone_Model() start",
                "\t" + build + " start",
                "\t" + build + done,
                "\t\t" + id + " start",
                id,
                build,
                "\t" + id + done,
                "\t" + id + done,
                "\t\tTANDEKOR_GetPhoneModel() start",
                "\tTANDEKOR_GetPhoneModel(ver_number = " + shown + ", msm_model = 2)" + done,
                "TANDEKOR_Phone_Model(piVerNumber = " + shown
                    + ", piMSMModel = 2, piPhoneModel = " + std::to_string(model) + ")" + done};
    }
    const std::string noModel = "TANDEKOR_Phone_Model(piVerNumber = 0, piMSMModel = 2, piPhoneModel = 0) - Failure";

    // Makes the call on a phone of this version. What stands on standard output.
    std::string Run(const Call& call, uint8_t result, int version)
    {
        simulator::ThePhone().hardwareId = static_cast<uint16_t>(version);
        simulator::ForgetCalls();
        simulator::ForgetLog();
        testing::internal::CaptureStdout();
        EXPECT_EQ(call(handle).result, result);
        return testing::internal::GetCapturedStdout();
    }

    static void ExpectLog(const std::string& entry, const Texts& middle, const Texts& closing)
    {
        Texts log = {entry};
        log.insert(log.end(), middle.begin(), middle.end());
        log.insert(log.end(), closing.begin(), closing.end());
        EXPECT_EQ(Log(), log);
    }
};

TEST_F(ModelRequestsTest, KeypadLightGoesByFactoryRequestButForTwoRowsOfModel3)
{
    const std::string row = "\tParameter RowNumber over the range (1-7).";
    const std::string state = "\tParameter BackLightOn over the range (0-1).";
    const struct
    {
        int version, model;
        uint16_t row;
        uint8_t on;
        const char* data;     // of the request; null if none is sent
        std::string closing;  // where none is sent
    } cases[] = {
        {0, 52, 3, 1, "1F", ""},          {9, 54, 1, 0, "0A", ""},        {10, 34, 7, 1, "47", ""},
        {6, 0, 5, 0, "32", ""},           {0, 52, 0, 1, nullptr, row},    {0, 52, 8, 1, nullptr, row},
        {0, 52, 0x0103, 2, nullptr, row}, {0, 52, 7, 2, nullptr, state},  {3, 3, 2, 1, "15", ""},
        {3, 3, 8, 1, nullptr, row},       {3, 3, 6, 255, nullptr, state},
    };
    for (const auto& one : cases)
    {
        const bool sent = one.data != nullptr;
        const std::string numbers = std::to_string(one.row) + ", backLightOn = " + std::to_string(one.on);
        SCOPED_TRACE("model " + std::to_string(one.model) + " row " + numbers);
        EXPECT_EQ(Run(Light(one.row, one.on), sent ? 1 : 0, one.version),
                  one.model == 3 ? "\nDRAVOK not support, only row 5 and 7! " : "");
        ExpectLog("TANDEKOR_FTM_SetKeyPadBackLight()", Question(one.version, one.model),
                  {sent ? "\tTANDEKOR_FTM_SetKeyPadBackLight(rowNumber = " + numbers + ")" + done : one.closing});
        EXPECT_EQ(CountExchanges(), sent ? 2U : 1U);
        EXPECT_EQ(LastRequest(), sent ? "4B 0B 00 80 F5 00 04 00 0C 00 " + std::string(one.data) + " 00 00 00"
                                      : "4B 0B 00 80 1D 00 00 00 0E 00");
    }
}

TEST_F(ModelRequestsTest, KeypadLightOfModel3GoesByItsPinsInRows5And7WhateverTheStateIs)
{
    const std::string text
        = "TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext = " + std::to_string(handle) + ", rowNumber = ";
    Run(Light(7, 2), 1, 8);
    EXPECT_EQ(Log().back(), text + "7, backLightOn= 2)" + done);
    Run(Light(5, 1), 1, 8);
    EXPECT_EQ(simulator::ThePhone().charger.driveLevels[1], 15);
    simulator::RefuseCall("QLIB_FTM_SET_PMIC_DRIVE_LEVEL");
    EXPECT_EQ(Run(Light(5, 0), 0, 8), "");
    Texts asked = Question(8, 3), again = asked;
    again.erase(again.begin());
    again.back().insert(0, "\t");
    asked.insert(asked.end(), {"\tTK_SetKeyPadBackLight() start", "\t\tTANDEKOR_Phone_Model() start"});
    asked.insert(asked.end(), again.begin(), again.end());
    ExpectLog("TANDEKOR_FTM_SetKeyPadBackLight()", asked, {text + "5, backLightOn= 0) - Failure"});
    EXPECT_EQ(CountExchanges(), 2U) << "for the hardware id alone";
}

TEST_F(ModelRequestsTest, KeypadLightWithoutAReplyOrWithAStatusOrAModel)
{
    const std::string light = "\tTANDEKOR_FTM_SetKeyPadBackLight(rowNumber = 4, backLightOn = 1)";
    const auto expect = [&](const std::string& closing, size_t exchanges)
    {
        Run(Light(4, 1), 0, 0);
        EXPECT_EQ(Log().back(), closing);
        EXPECT_EQ(CountExchanges(), exchanges);
    };
    simulator::BeforeCall("QLIB_SendSync", 2, [] { Replies(Hex("07 81")); });
    expect(light + " - error code = 33031", 2);
    simulator::BeforeCall("QLIB_SendSync", 2, [] { FailsToReply(); });
    expect(light + noReply, 2);
    FailsToReply();
    expect(noModel, 1);
}

TEST_F(ModelRequestsTest, SliderStateFollowsFromWordAndModelAndTheHintSavesTheQuestion)
{
    const struct
    {
        uint8_t hint;
        uint16_t version;
        Bytes states;  // by the words 0, 1, 2, 3, 4 and 0x0103, and without a reply
    } cases[] = {
        {0, 3, {1, 0, 0, 0, 0, 0, 1}},  {52, 3, {0, 2, 3, 1, 3, 3, 0}}, {0, 0, {0, 2, 3, 1, 3, 3, 0}},
        {53, 3, {3, 1, 0, 2, 3, 3, 3}}, {54, 3, {3, 1, 0, 2, 3, 3, 3}}, {55, 3, {3, 1, 0, 2, 3, 3, 3}},
        {51, 1, {3, 1, 0, 2, 3, 3, 3}}, {56, 3, {1, 0, 0, 0, 0, 0, 1}}, {3, 10, Bytes(7, 'q')},
    };
    const uint16_t words[] = {0, 1, 2, 3, 4, 0x0103};
    for (const auto& row : cases)
    {
        simulator::ThePhone().hardwareId = row.version;
        const bool asks = row.hint < 52 || row.hint > 55;
        for (size_t i = 0; i <= std::size(words); ++i)
        {
            SCOPED_TRACE("hint " + std::to_string(row.hint) + ", version " + std::to_string(row.version) + ", word "
                         + std::to_string(i));
            const bool answers = i < std::size(words);
            if (answers)
                simulator::ThePhone().factory.slider = words[i];
            else
                simulator::BeforeCall("QLIB_SendSync", asks ? 2 : 1, [] { FailsToReply(); });
            simulator::ForgetCalls();
            const CallResult made = Slider(row.hint)(handle);
            EXPECT_EQ(made.result, answers && row.states[0] != 'q' ? 1 : 0);
            EXPECT_EQ(made.outs[0], Bytes{row.states[i]});
            EXPECT_EQ(CountExchanges(), asks ? 2U : 1U);
            EXPECT_EQ(LastRequest(), "4B 0B 00 80 F6 00 00 00 0C 00");
        }
    }
}

TEST_F(ModelRequestsTest, SliderLog)
{
    const std::string start = "ZR_GetSliderState() start", entry = "TANDEKOR_FTM_GetSliderState()";
    simulator::QueueReply({{}, 7, {}});
    Run(Slider(52), 7, 0);  // the result of the exchange
    ExpectLog(start, {}, {entry, "\t" + entry + done});
    FailsToReply();
    Run(Slider(52), 0, 0);
    ExpectLog(start, {}, {entry, "\t" + entry + noReply});
    Run(Slider(0), 0, 10);
    ExpectLog(start, Question(10, 34), {entry, "\t" + entry + done, "\tTANDEKOR_FTM_GetSliderState(sState = q)"});
    Run(Slider(0, 0), 0, 10);
    EXPECT_EQ(Log().back(), "\tTANDEKOR_FTM_GetSliderState(sState = ") << "a NUL ends the text";
    FailsToReply();
    Run(Slider(0), 0, 10);
    EXPECT_EQ(Log().back(), noModel);
    EXPECT_EQ(CountExchanges(), 1U);
}

}  // namespace tandekor::test
