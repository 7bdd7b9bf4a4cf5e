// What the phone's user sees: display, backlights, and the camera's flash, focus and identification.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "tandekor/ftm.h"

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

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE(ResourceContext hResourceContext, const char* sFileName)
{
    return DisplayFile(hResourceContext, __func__, factory::DisplayImage, sFileName);
}

uint8_t TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(ResourceContext hResourceContext, const char* sFileName)
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
