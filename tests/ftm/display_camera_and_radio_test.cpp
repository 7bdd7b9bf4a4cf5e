// Display, backlights, slider, camera and FM radio.
#include <algorithm>
#include <numeric>

#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

// A name with bytes behind its NUL, and one that fills the buffer.
const Bytes shortName = Ascii(std::string("p\0", 2) + std::string(126, '\xEE'));
const std::string fullName(128, 'n');

const Call ftmId = With(TANDEKOR_FTM_GetCameraIDString, {Out{25}}),
           ltmId = With(TANDEKOR_LTM_GetCameraIdString, {Out{25}});
Call Focus(uint8_t level) { return With(TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS, {level}); }
Call Light(uint16_t row, uint8_t on) { return With(TANDEKOR_FTM_SetKeyPadBackLight, {row, on}); }
Call Slider(uint8_t hint, uint8_t before = 'q') { return With(TANDEKOR_FTM_GetSliderState, {Bytes{before}, hint}); }

const Call stationInfo = With(TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO);

// Status, valid, count; then a list of 48 words.
const Call scan = With(TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF, {Out{1}, Out{1}, Out{1}, Out{96}});

// Status, field 1, field 2; then the text, field 3 and field 4.
const Call programInfo
    = With(TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO, {Out{1}, Out{2}, Out{1}, Out{96}, Out{1}, Out{1}});

std::string BlockRequest(const char* subCommand)
{
    return std::string("CA 00 6F 00 6F 00 00 ") + subCommand + ' ' + ToHex(Bytes(99));
}

// A reply in which each byte is its position, but for the status 0 and these changes.
std::string Block(const std::vector<std::pair<size_t, uint8_t>>& changes = {})
{
    Bytes block(111);
    std::iota(block.begin(), block.end(), uint8_t{0});
    block[10] = 0;
    for (const auto& [position, byte] : changes)
        block[position] = byte;
    return ToHex(block);
}

// The outs of a scan and of a program: the bytes of the block that are written, from this one on, in an area of 96.
std::string Area(uint32_t from, uint32_t count, bool isText = false)
{
    std::string area;
    for (uint32_t i = 0; i < count; ++i)
        area += "," + std::to_string(from + i);
    return area + (isText ? ",0,85*" + std::to_string(95 - count) : ",85*" + std::to_string(96 - count));
}
const std::string station = ",13,0x0F0E,16,17,0x1312,20,21,22,23,0x1918", blocks = " \\nTANDEKOR_FTM_FM_RADIO_";

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
        {With(TANDEKOR_FTM_TEST_CAMERA_FLASH, {1, 255}), "26 00 02 00 0C 00 01 FF", "FTM_TEST_CAMERA_FLASH(1, 255)"},
        {With(TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL, {0x1234}), "96 00 02 00 0D 00 34 12",
         "FTM_SET_FLASH_LIGHT_LEVEL(iLevel = 4660)", 0, 3000, "", true},
        {Focus(1), "F7 00 01 00 0C 00 01", "FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 1)", 0},
        {Focus(255), "F7 00 01 00 0C 00 FF", "FTM_SET_I2C_CAMERA_FOCUS(focusLevel = 255)", 0},
        {ftmId, "CE 00 0A 00 23 00", "FTM_GetCameraIDString() - Started"},
        {ltmId, "4B 0B 01 80 3A 05 0A 00 23 00", "LTM_GetCameraIdString() - Started"},
        {With(TANDEKOR_FTM_GET_FM_RADIO_ID), "16 00 00 00 0E 00", "FTM_GET_FM_RADIO_ID(iChip_Id = 21845)", 2, 3000,
         "FTM_GET_FM_RADIO_ID()"},
        {With(TANDEKOR_FTM_TUNE_FM_RADIO, {8750}), "1C 00 02 00 0C 00 2E 22", "FTM_TUNE_FM_RADIO(iChannel = 8750)"},
        {With(TANDEKOR_FTM_RM_RADIO_RDS_TEST), "22 00 00 00 0C 00", "FTM_RM_RADIO_RDS_TEST()", 0},
        {scan, BlockRequest("02"), "FTM_FM_RADIO_SCAN_RF()", ownProcedure, 20000},
        {stationInfo, BlockRequest("00"), "FTM_FM_RADIO_GET_STATION_INFO()", ownProcedure, 20000},
        {programInfo, BlockRequest("01"), "FTM_FM_RADIO_GET_PROGRAM_INFO()", ownProcedure, 20000},
    };
}

using CameraAndRadioTest = FtmTest;

TEST_F(CameraAndRadioTest, FlashAndIdentificationCloseWithTextsOfTheirOwn)
{
    ExpectAnswers("FTM_TEST_CAMERA_FLASH: 09 00 > 1 0 () done | ! > 0 187 () noReply");
    ExpectAnswers(Focus(0), "> 0 - TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(focusLevel = 0) - Focus Level out of range");
    // The last 25 bytes are the identification, which is bad if it begins with CC.
    const std::string as = ToHex(Bytes(24, 'a')), wrong = "CC " + as + " > 0 0xCC,97*24 () - Failure ";
    const std::string noAnswer = " | ! > 0 85*25 () noReply";
    ExpectAnswers(ftmId, "61 " + as + " > 1 97*25 | CC CC > 1 85*25 | " + wrong + "(Wrong ID String)" + noAnswer);
    ExpectAnswers(ltmId, "EE EE 61 " + as + " > 1 97*25 | " + wrong + "- Wrong ID" + noAnswer);
    ExpectAnswers(With(TANDEKOR_FTM_GetCameraIDString, {Bytes(25, 0xCC)}),
                  "= > 0 0xCC*25 () - Failure (Wrong ID String)");
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
            SCOPED_TRACE(testing::PrintToString(std::tuple(hint, version, i)));
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
    ExpectAnswers(Slider(52), "! > 0 0 " + entry + " / \\t" + entry + " noReply");
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
    ExpectAnswers(R"(
        FTM_TUNE_FM_RADIO: 00 00 > 1 0 done | 03 00 > 1 3 done | 01 00 > 0 1 - error code = 1
        | 03 81 > 0 0x8103 - error code = 33027 | = > 1 0x5555 done | ! > 0 0x5555 noReply
        | ! 4B 03 00 > 0 3 - SendSync() fail (error code = 75)
        FTM_RM_RADIO_RDS_TEST: 07 81 > 0 0x8107 - error code = 33031
    )");
}

TEST_F(CameraAndRadioTest, BlocksAreTakenWhateverTheirStatusIsAndCloseWithTextsOfTheirOwnLine)
{
    // The outs behind the status: of a block, of a reply that is short, and untouched.
    const std::tuple<Call, std::string, std::string, std::string, std::string> rows[] = {
        {scan, blocks + "SCAN_ALL_RF()", ",13,14" + Area(15, 0), ",0,0" + Area(15, 0), ",85*98"},
        {stationInfo, blocks + "GET_STATION_INFO()", station, ",0*10", ",85,0x5555,85,85,0x5555,85*4,0x5555"},
        {programInfo, blocks + "GET_PROGRAM_INFO()", ",0x0E0D,15" + Area(16, 95, true) + ",25,26",
         ",0,0" + Area(16, 0, true) + ",0,0", ",0x5555,85*99"},
    };
    for (const auto& [call, text, outs, ofAShortReply, untouched] : rows)
    {
        for (const auto& [reply, meant, ending] :
             {std::tuple("=" + Block() + " > 1 0", outs, " done"),
              {"=" + Block({{10, 200}}) + " > 0 200", outs, " - error code = 200"},
              {"=" + ToHex(Bytes(110, 7)) + " > 1 0", ofAShortReply, " done"},
              {"!" + Block() + " > 0 85", untouched, " - SendSync() fail (error code = 0)"}})
            ExpectAnswers(call, (reply + meant).append(text).append(ending));
    }
}

TEST_F(CameraAndRadioTest, ScanListIsWrittenIfValidIs1AndTextsEndAtTheirNul)
{
    // Valid and count in the block, the outs of them, and how many bytes are written.
    const std::tuple<uint8_t, uint8_t, const char*, uint32_t> cases[]
        = {{1, 3, ",1,3", 6}, {1, 48, ",1,48", 96}, {1, 49, ",1,48", 96}, {1, 255, ",1,48", 96},
           {1, 0, ",1,0", 0}, {0, 3, ",0,3", 0},    {2, 3, ",2,3", 0}};
    for (const auto& [valid, count, first, written] : cases)
        ExpectAnswers(scan, "=" + Block({{13, valid}, {14, count}}) + " > 1 0" + first + Area(15, written) + blocks
                                + "SCAN_ALL_RF() done");
    ExpectAnswers(programInfo, "=" + Block({{20, 0}}) + " > 1 0,0x0E0D,15" + Area(16, 4, true) + ",25,26" + blocks
                                   + "GET_PROGRAM_INFO() done");
    // The last 111 bytes count.
    ExpectAnswers(stationInfo, "=EE EE EE EE EE " + Block() + " > 1 0" + station + blocks + "GET_STATION_INFO() done");
}

}  // namespace tandekor::test
