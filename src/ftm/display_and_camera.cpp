// What the phone's user sees and touches: display, backlights, slider, and the camera's flash, focus and
// identification.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "core/operator_output.h"
#include "phone/phone_models.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr int fileNameSize = 128;
constexpr size_t cameraIdSize = 25;
constexpr uint8_t wrongCameraId = 0xCC;

// All bytes of the buffer are sent, whatever follows the name in it.
uint8_t DisplayFile(ResourceContext hResourceContext, const char* name, const factory::Request& request,
                    const char* sFileName)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "%s(sFileName[128] = '%.*s')", name, fileNameSize, sFileName);
                    return ftm.StandardAfterStart(FormattedText("%s()", name), request,
                                                  {.send = {SentBytes(sFileName, fileNameSize)}});
                });
}

// A short reply leaves the buffer unchanged, and then what the caller left there is checked.
uint8_t CameraId(ResourceContext hResourceContext, const char* name, const factory::Request& request,
                 const char* wrongId, char* sId)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "%s() - Started", name);
                    if (ftm.Exchange(request, {}) == 0)
                        return ftm.NoReply(FormattedText("%s()", name));
                    ftm.Take({ReplyBytes(sId, cameraIdSize)});
                    if (static_cast<uint8_t>(sId[0]) == wrongCameraId)
                    {
                        Trace(hResourceContext, "\t%s() - Failure%s", name, wrongId);
                        return false;
                    }
                    return true;
                });
}

}  // namespace

// --- display

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE(ResourceContext hResourceContext, char* sFileName)
{
    return DisplayFile(hResourceContext, __func__, factory::DisplayImage, sFileName);
}

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(ResourceContext hResourceContext, char* sFileName)
{
    return DisplayFile(hResourceContext, __func__, factory::DisplayImage24Bit, sFileName);
}

uint8_t TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(ResourceContext hResourceContext, uint8_t iLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s(iLevel = %d)", __func__, iLevel),
                   factory::SetLcdBacklightLevel, {.send = {iLevel}, .statusIsByte = true});
}

uint8_t TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(ResourceContext hResourceContext, uint8_t iSwitchLcdOn)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard,
                   FormattedText("%s(iSwitchLcdOn = %d)", __func__, iSwitchLcdOn), factory::SwitchLcdBacklight,
                   {.send = {iSwitchLcdOn}});
}

uint8_t TANDEKOR_FTM_SET_LCD_CONTRAST(ResourceContext hResourceContext, uint8_t iLcdContrastLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard,
                   FormattedText("%s(iLcdContrastLevel = %d)", __func__, iLcdContrastLevel), factory::SetLcdContrast,
                   {.send = {iLcdContrastLevel}});
}

// --- camera

uint8_t TANDEKOR_FTM_TEST_CAMERA_FLASH(ResourceContext hResourceContext, uint8_t iFlashByte1, uint8_t iFlashByte2,
                                       uint16_t* piErrorCode)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "TANDEKOR_FTM_TEST_CAMERA_FLASH(%d, %d)", iFlashByte1, iFlashByte2);
                    const uint8_t result = ftm.Exchange(factory::TestCameraFlash, {iFlashByte1, iFlashByte2});
                    *piErrorCode = ftm.ErrorByte();
                    return result == 0 ? ftm.NoReply(text) : ftm.Completed(text);
                });
}

uint8_t TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(ResourceContext hResourceContext, uint16_t iLevel)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s(iLevel = %d)", __func__, iLevel),
                   factory::SetFlashLightLevel, {.send = {iLevel}, .statusIsByte = true});
}

// The lines of the log have a name of their own, but for the refusal's.
uint8_t TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(ResourceContext hResourceContext, uint8_t focusLevel)
{
    const char* const name = __func__;
    const FormattedText text("TANDEKOR_FTM_SET_I2C_CAMERA_FOCUS(focusLevel = %d)", focusLevel);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    if (focusLevel == 0)
                    {
                        Trace(hResourceContext, "%s(focusLevel = %d) - Focus Level out of range", name, focusLevel);
                        return false;
                    }
                    return ftm.StandardAfterStart(text, factory::SetCameraFocus, {.send = {focusLevel}});
                });
}

uint8_t TANDEKOR_FTM_GetCameraIDString(ResourceContext hResourceContext, char* sId)
{
    return CameraId(hResourceContext, __func__, factory::GetCameraIdString, " (Wrong ID String)", sId);
}

uint8_t TANDEKOR_LTM_GetCameraIdString(ResourceContext hResourceContext, char* sId)
{
    return CameraId(hResourceContext, __func__, factory::LtmGetCameraIdString, " - Wrong ID", sId);
}

// --- keypad light and slider, which depend on the phone model

namespace
{

// What a reply word means; the first row that fits counts.
constexpr uint32_t anyWord = UINT32_MAX;
struct SliderRow
{
    Slider slider;
    uint32_t word;
    uint8_t state;
};
constexpr SliderRow sliderStates[] = {
    {Slider::Dravok, 0, 1},           {Slider::Dravok, anyWord, 0},                              //
    {Slider::Kolt52, 3, 1},           {Slider::Kolt52, 1, 2},       {Slider::Kolt52, 0, 0},      //
    {Slider::Kolt52, anyWord, 3},                                                                //
    {Slider::Kolt53To55, 1, 1},       {Slider::Kolt53To55, 2, 0},   {Slider::Kolt53To55, 3, 2},  //
    {Slider::Kolt53To55, anyWord, 3},                                                            //
};

const SliderRow* FindSliderState(Slider slider, uint16_t word)
{
    for (const SliderRow& row : sliderStates)
    {
        if (row.slider == slider && (row.word == word || row.word == anyWord))
            return &row;
    }
    return nullptr;
}

bool AskPhoneModel(ResourceContext hResourceContext, uint32_t* piPhoneModel)
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

}  // namespace

uint8_t TANDEKOR_FTM_SetKeyPadBackLight(ResourceContext hResourceContext, uint16_t rowNumber, uint8_t backLightOn)
{
    return With(
        Ftm(hResourceContext),
        [&](FtmChannel& ftm)
        {
            Trace(hResourceContext, "TANDEKOR_FTM_SetKeyPadBackLight()");
            uint32_t model = 0;
            if (!AskPhoneModel(hResourceContext, &model))
                return false;
            if (IsDravok(model) && (rowNumber == 5 || rowNumber == 7))
            {
                const bool done = TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext, rowNumber, backLightOn) != 0;
                Trace(hResourceContext,
                      "TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext = %i, rowNumber = %i, backLightOn= %i)%s",
                      hResourceContext, rowNumber, backLightOn, done ? " - Completed successfully\n" : " - Failure");
                return done;
            }
            if (IsDravok(model))
                PrintForOperator("\nDRAVOK not support, only row 5 and 7! ");

            if (rowNumber < 1 || rowNumber > 7)
            {
                Trace(hResourceContext, "\tParameter RowNumber over the range (1-7).");
                return false;
            }
            if (backLightOn > 1)
            {
                Trace(hResourceContext, "\tParameter BackLightOn over the range (0-1).");
                return false;
            }
            return ftm.StandardAfterStart(
                FormattedText("TANDEKOR_FTM_SetKeyPadBackLight(rowNumber = %d, backLightOn = %d)", rowNumber,
                              backLightOn),
                factory::SetKeyPadBackLight, {.send = {rowNumber * 10u + backLightOn}});
        });
}

// The request goes out before the model is judged, and a missing reply is mapped like the word 0.
uint8_t TANDEKOR_FTM_GetSliderState(ResourceContext hResourceContext, uint8_t* sState, uint8_t iPhoneModelHint)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "ZR_GetSliderState() start");
                    uint32_t model = iPhoneModelHint;
                    if (!IsKolt(iPhoneModelHint) && !AskPhoneModel(hResourceContext, &model))
                        return uint8_t{0};

                    const FormattedText entry("TANDEKOR_FTM_GetSliderState()");
                    ftm.Start(entry);
                    uint16_t word = 0;
                    const uint8_t result = ftm.Exchange(factory::GetSliderState, {});
                    if (result != 0)
                    {
                        ftm.Take({&word});
                        ftm.Completed(entry);
                    }
                    else
                        ftm.NoReply(entry);

                    const SliderRow* row = FindSliderState(PhoneModelOf(model).slider, word);
                    if (row == nullptr)
                    {
                        Trace(hResourceContext, "\tTANDEKOR_FTM_GetSliderState(sState = %c)", *sState);
                        return uint8_t{0};
                    }
                    *sState = row->state;
                    return result;
                });
}
