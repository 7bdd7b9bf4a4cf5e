// Display, backlights, slider, camera and FM radio.
#include <algorithm>

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

const Call tune = With(TANDEKOR_FTM_TUNE_FM_RADIO, {8750}), rds = With(TANDEKOR_FTM_RM_RADIO_RDS_TEST);
const Call stationInfo = With(TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO);

// Status, valid, count; then a list of 48 words.
const Call scan = With(TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF, {Out{1}, Out{1}, Out{1}, Out{96}});

// Status, field 1, field 2; then the text, field 3 and field 4.
const Call programInfo
    = With(TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO, {Out{1}, Out{2}, Out{1}, Out{96}, Out{1}, Out{1}});

std::string BlockRequest(uint8_t subCommand)
{
    Bytes bytes = Hex("4B 0B 00 80 CA 00 6F 00 6F 00 00");
    bytes.push_back(subCommand);
    bytes.resize(111);
    return ToHex(bytes);
}

// A reply in which each byte is its position, but for the status 0 and these changes.
std::string Block(const std::vector<std::pair<size_t, uint8_t>>& changes = {})
{
    Bytes block(111);
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<uint8_t>(i == 10 ? 0 : i);
    for (const auto& [position, byte] : changes)
        block[position] = byte;
    return ToHex(block);
}

// The outs of a scan and of a program: the bytes of the block that are written, from this one on, in an area of 96.
Numbers Area(uint32_t from, uint32_t count)
{
    Numbers area(96, 0x55);
    for (uint32_t i = 0; i < count; ++i)
        area[i] = from + i;
    return area;
}
Numbers Scan(const Numbers& first, uint32_t written)
{
    Numbers outs = Area(15, written);
    outs.insert(outs.begin(), first.begin(), first.end());
    return outs;
}
Numbers Program(const Numbers& first, uint32_t written, const Numbers& last)
{
    Numbers outs = Area(16, written);
    outs[written] = 0;
    outs.insert(outs.begin(), first.begin(), first.end());
    outs.insert(outs.end(), last.begin(), last.end());
    return outs;
}

const Numbers station{0, 13, 0x0F0E, 16, 17, 0x1312, 20, 21, 22, 23, 0x1918};
const std::string blocks = "\nTANDEKOR_FTM_FM_RADIO_";

}  // namespace

std::vector<FtmRequest> DisplayCameraAndRadioRequests()
{
    return {
        {With(TANDEKOR_FTM_DISPLAY_IMAGE, {shortName}), "17 00 80 00 0C 00 " + ToHex(shortName),
         "FTM_DISPLAY_IMAGE(sFileName[128] = 'p')", 0, 3000, "FTM_DISPLAY_IMAGE()"},
        {With(TANDEKOR_FTM_DISPLAY_IMAGE_24BIT, {Ascii(fullName)}), "C9 00 80 00 0C 00 " + ToHex(Ascii(fullName)),
         "FTM_DISPLAY_IMAGE_24BIT(sFileName[128] = '" + fullName + "')", 0, 3000, "FTM_DISPLAY_IMAGE_24BIT()"},
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
        {With(TANDEKOR_FTM_GET_FM_RADIO_ID), "16 00 00 00 0E 00", "FTM_GET_FM_RADIO_ID(iChip_Id = 21845)", 2, 3000,
         "FTM_GET_FM_RADIO_ID()"},
        {tune, "1C 00 02 00 0C 00 2E 22", "FTM_TUNE_FM_RADIO(iChannel = 8750)"},
        {rds, "22 00 00 00 0C 00", "FTM_RM_RADIO_RDS_TEST()", 0},
        {scan, BlockRequest(2), "FTM_FM_RADIO_SCAN_RF()", ownProcedure, 20000},
        {stationInfo, BlockRequest(0), "FTM_FM_RADIO_GET_STATION_INFO()", ownProcedure, 20000},
        {programInfo, BlockRequest(1), "FTM_FM_RADIO_GET_PROGRAM_INFO()", ownProcedure, 20000},
    };
}

using CameraAndRadioTest = FtmTest;

TEST_F(CameraAndRadioTest, FlashAndIdentificationCloseWithTextsOfTheirOwn)
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

    const std::string noModel = "TANDEKOR_Phone_Model(piVerNumber = 0, piMSMModel = 2, piPhoneModel = 0) - Failure";
    const std::string keypad = "TANDEKOR_FTM_SetKeyPadBackLight", asks = "\tTANDEKOR_Phone_Model() start";

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

    // The log begins and ends so, with the lines of the question for the model between.
    static void ExpectLog(const Texts& first, const Texts& last)
    {
        ASSERT_GE(Log().size(), std::max(first.size(), last.size()));
        EXPECT_EQ(Texts(Log().begin(), Log().begin() + static_cast<ptrdiff_t>(first.size())), first);
        EXPECT_EQ(Texts(Log().end() - static_cast<ptrdiff_t>(last.size()), Log().end()), last);
    }
};

TEST_F(ModelRequestsTest, KeypadLightGoesByFactoryRequestButForTwoRowsOfModel3)
{
    const std::string row = "\tParameter RowNumber over the range (1-7).";
    const std::string state = "\tParameter BackLightOn over the range (0-1).";
    // Version and model, row and state, the data of the request, or the closing text if none is sent.
    const std::tuple<int, int, uint16_t, uint8_t, const char*, std::string> cases[] = {
        {0, 52, 3, 1, "1F", ""},          {9, 54, 1, 0, "0A", ""},        {10, 34, 7, 1, "47", ""},
        {6, 0, 5, 0, "32", ""},           {0, 52, 0, 1, nullptr, row},    {0, 52, 8, 1, nullptr, row},
        {0, 52, 0x0103, 2, nullptr, row}, {0, 52, 7, 2, nullptr, state},  {3, 3, 2, 1, "15", ""},
        {3, 3, 8, 1, nullptr, row},       {3, 3, 6, 255, nullptr, state},
    };
    for (const auto& [version, model, place, on, data, closing] : cases)
    {
        const bool sent = data != nullptr;
        const std::string numbers = std::to_string(place) + ", backLightOn = " + std::to_string(on);
        SCOPED_TRACE("model " + std::to_string(model) + " row " + numbers);
        EXPECT_EQ(Run(Light(place, on), sent ? 1 : 0, version),
                  model == 3 ? "\nDRAVOK not support, only row 5 and 7! " : "");
        ExpectLog({keypad + "()", asks}, {sent ? "\t" + keypad + "(rowNumber = " + numbers + ")" + done : closing});
        EXPECT_EQ(CountExchanges(), sent ? 2U : 1U);
        EXPECT_EQ(LastRequest(), sent ? "4B 0B 00 80 F5 00 04 00 0C 00 " + std::string(data) + " 00 00 00"
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
    ExpectLog({keypad + "()", asks}, {text + "5, backLightOn= 0) - Failure"});
    EXPECT_EQ(std::count(Log().begin(), Log().end(), "\tTK_SetKeyPadBackLight() start"), 1);
    EXPECT_EQ(std::count(Log().begin(), Log().end(), "\t" + asks), 1);
    EXPECT_EQ(CountExchanges(), 2U) << "for the hardware id alone";
}

TEST_F(ModelRequestsTest, KeypadLightWithoutAReplyOrWithAStatusOrAModel)
{
    const std::string light = "\tTANDEKOR_FTM_SetKeyPadBackLight(rowNumber = 4, backLightOn = 1)";
    const std::tuple<int, simulator::Reply, std::string> rows[]
        = {{2, {Hex("07 81"), 1, {}}, light + " - error code = 33031"},
           {2, {{}, 0, {}}, light + noReply},
           {1, {{}, 0, {}}, noModel}};
    for (const auto& [place, reply, closing] : rows)
    {
        simulator::BeforeCall("QLIB_SendSync", place, [queued = reply] { simulator::QueueReply(queued); });
        Run(Light(4, 1), 0, 0);
        EXPECT_EQ(Log().back(), closing);
        EXPECT_EQ(CountExchanges(), static_cast<size_t>(place));
    }
}

TEST_F(ModelRequestsTest, SliderStateFollowsFromWordAndModelAndTheHintSavesTheQuestion)
{
    // Hint and version, and the states by the words 0, 1, 2, 3, 4 and 0x0103, and without a reply.
    const std::tuple<uint8_t, uint16_t, Bytes> cases[] = {
        {0, 3, {1, 0, 0, 0, 0, 0, 1}},  {52, 3, {0, 2, 3, 1, 3, 3, 0}}, {0, 0, {0, 2, 3, 1, 3, 3, 0}},
        {53, 3, {3, 1, 0, 2, 3, 3, 3}}, {54, 3, {3, 1, 0, 2, 3, 3, 3}}, {55, 3, {3, 1, 0, 2, 3, 3, 3}},
        {51, 1, {3, 1, 0, 2, 3, 3, 3}}, {56, 3, {1, 0, 0, 0, 0, 0, 1}}, {3, 10, Bytes(7, 'q')},
    };
    const uint16_t words[] = {0, 1, 2, 3, 4, 0x0103};
    for (const auto& [hint, version, states] : cases)
    {
        simulator::ThePhone().hardwareId = version;
        const bool asked = hint < 52 || hint > 55;
        for (size_t i = 0; i <= std::size(words); ++i)
        {
            SCOPED_TRACE("hint " + std::to_string(hint) + ", version " + std::to_string(version) + ", word "
                         + std::to_string(i));
            const bool answers = i < std::size(words);
            if (answers)
                simulator::ThePhone().factory.slider = words[i];
            else
                simulator::BeforeCall("QLIB_SendSync", asked ? 2 : 1, [] { FailsToReply(); });
            simulator::ForgetCalls();
            const CallResult made = Slider(hint)(handle);
            EXPECT_EQ(made.result, answers && states[0] != 'q' ? 1 : 0);
            EXPECT_EQ(made.outs[0], Bytes{states[i]});
            EXPECT_EQ(CountExchanges(), asked ? 2U : 1U);
            EXPECT_EQ(LastRequest(), "4B 0B 00 80 F6 00 00 00 0C 00");
        }
    }
}

TEST_F(ModelRequestsTest, SliderLog)
{
    const std::string start = "ZR_GetSliderState() start", entry = "TANDEKOR_FTM_GetSliderState()";
    ExpectAnswers({{Slider(52), "!", 0, {0}, {entry, "\t" + entry + noReply}}});
    simulator::QueueReply({{}, 7, {}});
    Run(Slider(52), 7, 0);  // the result of the exchange
    ExpectLog({start}, {entry, "\t" + entry + done});
    Run(Slider(0), 0, 10);
    ExpectLog({start, asks}, {entry, "\t" + entry + done, "\tTANDEKOR_FTM_GetSliderState(sState = q)"});
    Run(Slider(0, 0), 0, 10);
    EXPECT_EQ(Log().back(), "\tTANDEKOR_FTM_GetSliderState(sState = ") << "a NUL ends the text";
    FailsToReply();
    Run(Slider(0), 0, 10);
    EXPECT_EQ(Log().back(), noModel);
    EXPECT_EQ(CountExchanges(), 1U);
}

TEST_F(CameraAndRadioTest, TuningTakesItsStatusFromWhateverArrivesAnd3IsGoodToo)
{
    ExpectAnswers({
        {tune, "00 00", 1, {0}, {done}},
        {tune, "03 00", 1, {3}, {done}},
        {tune, "01 00", 0, {1}, {" - error code = 1"}},
        {tune, "03 81", 0, {0x8103}, {" - error code = 33027"}},
        {tune, "=", 1, {0x5555}, {done}},
        {tune, "!", 0, {0x5555}, {noReply}},
        {tune, "! 4B 03 00", 0, {3}, {" - SendSync() fail (error code = 75)"}},
        {rds, "07 81", 0, {0x8107}, {" - error code = 33031"}},
    });
}

TEST_F(CameraAndRadioTest, BlocksAreTakenWhateverTheirStatusIsAndCloseWithTextsOfTheirOwnLine)
{
    const std::tuple<Call, std::string, Numbers, Numbers> rows[] = {
        {scan, "SCAN_ALL_RF()", Scan({0, 13, 14}, 0), Scan({0, 0, 0}, 0)},
        {stationInfo, "GET_STATION_INFO()", station, Numbers(11)},
        {programInfo, "GET_PROGRAM_INFO()", Program({0, 0x0E0D, 15}, 95, {25, 26}), Program({0, 0, 0}, 0, {0, 0})},
    };
    for (const auto& [call, name, outs, ofAShortReply] : rows)
    {
        Numbers refused = outs, untouched = outs;
        refused[0] = 200;
        for (uint32_t& number : untouched)
            number = number > 0xFF ? 0x5555 : 0x55;
        ExpectAnswers({
            {call, "=" + Block(), 1, outs, {blocks + name + done}},
            {call, "=" + Block({{10, 200}}), 0, refused, {blocks + name + " - error code = 200"}},
            {call, "=" + ToHex(Bytes(110, 7)), 1, ofAShortReply, {blocks + name + done}},
            {call, "!" + Block(), 0, untouched, {blocks + name + " - SendSync() fail (error code = 0)"}},
        });
    }
}

TEST_F(CameraAndRadioTest, ScanListIsWrittenIfValidIs1AndTextsEndAtTheirNul)
{
    // Valid and count in the block, the count that is shown, and how many bytes are written.
    const Bytes cases[]
        = {{1, 3, 3, 6}, {1, 48, 48, 96}, {1, 49, 48, 96}, {1, 255, 48, 96}, {1, 0, 0, 0}, {0, 3, 3, 0}, {2, 3, 3, 0}};
    for (const Bytes& row : cases)
        ExpectAnswers({{scan,
                        "=" + Block({{13, row[0]}, {14, row[1]}}),
                        1,
                        Scan({0, row[0], row[2]}, row[3]),
                        {blocks + "SCAN_ALL_RF()" + done}}});
    ExpectAnswers({
        {programInfo,
         "=" + Block({{20, 0}}),
         1,
         Program({0, 0x0E0D, 15}, 4, {25, 26}),
         {blocks + "GET_PROGRAM_INFO()" + done}},
        // The last 111 bytes count.
        {stationInfo, "=EE EE EE EE EE " + Block(), 1, station, {blocks + "GET_STATION_INFO()" + done}},
    });
}

}  // namespace tandekor::test
