// What the phone's user sees and touches: display, backlights, slider, and the camera's flash, focus and
// identification.
#include "channels/ftm_channel.h"
#include "core/operator_output.h"
#include "phone/phone_models.h"
#include "tandekor/procedures.h"

namespace tandekor
{

namespace
{

constexpr int fileNameSize = 128;
constexpr uint16_t cameraIdSize = 25;
constexpr uint8_t wrongCameraId = 0xCC;

// What a reply word means on a phone model; the first row that fits counts.
constexpr uint32_t anyWord = UINT32_MAX;
struct SliderRow
{
    uint32_t firstModel;
    uint32_t lastModel;
    uint32_t word;
    uint8_t state;
};
constexpr SliderRow sliderStates[] = {
    {dravok, dravok, 0, 1}, {dravok, dravok, anyWord, 0},  //
    {52, 52, 3, 1},         {52, 52, 1, 2},
    {52, 52, 0, 0},        //
    {52, 52, anyWord, 3},  //
    {53, 55, 1, 1},         {53, 55, 2, 0},
    {53, 55, 3, 2},        //
    {53, 55, anyWord, 3},  //
};

const SliderRow* FindSliderState(uint32_t model, uint16_t word)
{
    for (const SliderRow& row : sliderStates)
    {
        if (model >= row.firstModel && model <= row.lastModel && (row.word == word || row.word == anyWord))
            return &row;
    }
    return nullptr;
}

}  // namespace

// --- display

// All bytes of the buffer are sent, whatever stands behind the name.
uint8_t FtmChannel::DisplayFile(const char* name, const catalogue::Command& command, const char* sFileName)
{
    Trace(hResourceContext, "%s(sFileName[128] = '%.*s')", name, fileNameSize, sFileName);
    return StandardBehindEntry(
        FormattedText("%s()", name), command, [&] { packetBuffer.AddBytes(sFileName, fileNameSize); }, [] {});
}

uint8_t FtmChannel::DISPLAY_IMAGE(char* sFileName)
{
    return DisplayFile("TANDEKOR_FTM_DISPLAY_IMAGE", catalogue::DisplayImage, sFileName);
}

uint8_t FtmChannel::DISPLAY_IMAGE_24BIT(char* sFileName)
{
    return DisplayFile("TANDEKOR_FTM_DISPLAY_IMAGE_24BIT", catalogue::DisplayImage24Bit, sFileName);
}

uint8_t FtmChannel::SET_LCD_BACKLIGHT_LEVEL(uint8_t iLevel)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(iLevel = %d)", iLevel), catalogue::SetLcdBacklightLevel,
        [&] { packetBuffer.AddByte(iLevel); }, [] {}, {.statusIsByte = true});
}

uint8_t FtmChannel::SWITCH_LCD_BACKLIGHT(uint8_t iSwitchLcdOn)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(iSwitchLcdOn = %d)", iSwitchLcdOn),
        catalogue::SwitchLcdBacklight, [&] { packetBuffer.AddByte(iSwitchLcdOn); }, [] {});
}

uint8_t FtmChannel::SET_LCD_CONTRAST(uint8_t iLcdContrastLevel)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_SET_LCD_CONTRAST(iLcdContrastLevel = %d)", iLcdContrastLevel),
        catalogue::SetLcdContrast, [&] { packetBuffer.AddByte(iLcdContrastLevel); }, [] {});
}

// --- keypad light and slider, which depend on the phone model

// The question runs on this channel's own buffer, so it comes before a request is built.
bool FtmChannel::AskPhoneModel(uint32_t* piPhoneModel)
{
    uint32_t verNumber = 0;
    uint32_t msmModel = 0;
    *piPhoneModel = 0;
    Trace(hResourceContext, "\tTANDEKOR_Phone_Model() start");
    const bool asked = TANDEKOR_Phone_Model(hResourceContext, &verNumber, &msmModel, piPhoneModel) != 0;
    Trace(hResourceContext, "TANDEKOR_Phone_Model(piVerNumber = %i, piMSMModel = %i, piPhoneModel = %i)%s", verNumber,
          msmModel, *piPhoneModel, asked ? " - Completed successfully\n" : " - Failure");
    return asked;
}

uint8_t FtmChannel::SetKeyPadBackLight(uint16_t rowNumber, uint8_t backLightOn)
{
    Trace(hResourceContext, "TANDEKOR_FTM_SetKeyPadBackLight()");
    uint32_t model = 0;
    if (!AskPhoneModel(&model))
        return 0;
    if (model == dravok && (rowNumber == 5 || rowNumber == 7))
    {
        const bool done = TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext, rowNumber, backLightOn) != 0;
        Trace(hResourceContext,
              "TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext = %i, rowNumber = %i, backLightOn= %i)%s",
              hResourceContext, rowNumber, backLightOn, done ? " - Completed successfully\n" : " - Failure");
        return done;
    }
    if (model == dravok)
        PrintForOperator("\nDRAVOK not support, only row 5 and 7! ");

    if (rowNumber < 1 || rowNumber > 7)
    {
        Trace(hResourceContext, "\tParameter RowNumber over the range (1-7).");
        return 0;
    }
    if (backLightOn > 1)
    {
        Trace(hResourceContext, "\tParameter BackLightOn over the range (0-1).");
        return 0;
    }
    return StandardBehindEntry(
        FormattedText("TANDEKOR_FTM_SetKeyPadBackLight(rowNumber = %d, backLightOn = %d)", rowNumber, backLightOn),
        catalogue::SetKeyPadBackLight, [&] { packetBuffer.AddDword(rowNumber * 10u + backLightOn); }, [] {});
}

// The request goes out before the model is judged, and a missing reply is mapped like the word 0.
uint8_t FtmChannel::GetSliderState(uint8_t* sState, uint8_t iPhoneModelHint)
{
    Trace(hResourceContext, "ZR_GetSliderState() start");
    uint32_t model = iPhoneModelHint;
    if ((iPhoneModelHint < 52 || iPhoneModelHint > 55) && !AskPhoneModel(&model))
        return 0;

    const FormattedText entry("TANDEKOR_FTM_GetSliderState()");
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::GetSliderState);
    uint8_t errorByte = 0;
    uint16_t word = 0;
    const uint8_t result = Exchange(&errorByte);
    if (result != 0)
    {
        packetBuffer.PopWord(&word);
        Completed(entry);
    }
    else
        NoReply(entry, errorByte);

    const SliderRow* row = FindSliderState(model, word);
    if (row == nullptr)
    {
        Trace(hResourceContext, "\tTANDEKOR_FTM_GetSliderState(sState = %c)", *sState);
        return 0;
    }
    *sState = row->state;
    return result;
}

// --- camera

uint8_t FtmChannel::TEST_CAMERA_FLASH(uint8_t iFlashByte1, uint8_t iFlashByte2, uint16_t* piErrorCode)
{
    Trace(hResourceContext, "TANDEKOR_FTM_TEST_CAMERA_FLASH(%d, %d)", iFlashByte1, iFlashByte2);
    BuildFtmHeader(catalogue::TestCameraFlash);
    packetBuffer.AddByte(iFlashByte1);
    packetBuffer.AddByte(iFlashByte2);
    uint8_t errorByte = 0;
    const uint8_t result = Exchange(&errorByte);
    *piErrorCode = errorByte;
    const FormattedText closing("TANDEKOR_FTM_TEST_CAMERA_FLASH()");
    return result == 0 ? NoReply(closing, errorByte) : Completed(closing);
}

uint8_t FtmChannel::SET_FLASH_LIGHT_LEVEL(uint16_t iLevel)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(iLevel = %d)", iLevel), catalogue::SetFlashLightLevel,
        [&] { packetBuffer.AddWord(iLevel); }, [] {}, {.statusIsByte = true});
}

uint8_t FtmChannel::I2C_SET_CAMERA_FOCUS(uint8_t focusLevel)
{
    const FormattedText entry("TANDEKOR_FTM_SET_I2C_CAMERA_FOCUS(focusLevel = %d)", focusLevel);
    WriteToLog(hResourceContext, entry.Text());
    if (focusLevel == 0)
    {
        Trace(hResourceContext, "TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(focusLevel = %d) - Focus Level out of range",
              focusLevel);
        return 0;
    }
    return StandardBehindEntry(
        entry, catalogue::SetCameraFocus, [&] { packetBuffer.AddByte(focusLevel); }, [] {});
}

// A short reply leaves the buffer alone, and then what the caller left there is looked at.
uint8_t FtmChannel::CameraId(const char* name, const catalogue::Command& command, const char* wrongId, char* sId)
{
    Trace(hResourceContext, "%s() - Started", name);
    BuildFtmHeader(command);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(FormattedText("%s()", name), errorByte);
    packetBuffer.PopBytes(sId, cameraIdSize);
    if (static_cast<uint8_t>(sId[0]) == wrongCameraId)
    {
        Trace(hResourceContext, "\t%s() - Failure%s", name, wrongId);
        return 0;
    }
    return 1;
}

uint8_t FtmChannel::GetCameraIDString(char* sId)
{
    return CameraId("TANDEKOR_FTM_GetCameraIDString", catalogue::GetCameraIdString, " (Wrong ID String)", sId);
}

uint8_t FtmChannel::LTM_GetCameraIdString(char* sId)
{
    return CameraId("TANDEKOR_LTM_GetCameraIdString", catalogue::LtmGetCameraIdString, " - Wrong ID", sId);
}

}  // namespace tandekor
