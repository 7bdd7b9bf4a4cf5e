// Display, keypad light, slider and cameras. Nothing of what is set is stored.
#include <algorithm>
#include <iterator>

#include "factory_request.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

namespace tandekor::line
{

namespace
{

Outcome Backlight(Context& context)
{
    constexpr uint8_t level = 10;
    Requests requests;
    if (requests.Fails("TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT", TANDEKOR_FTM_SWITCH_LCD_BACKLIGHT(context.handle, 1))
        || requests.Fails("TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL",
                          TANDEKOR_FTM_SET_LCD_BACKLIGHT_LEVEL(context.handle, level)))
        return NotAnswered(requests.last);
    return Done("on, level %u", level);
}

Outcome Contrast(Context& context)
{
    constexpr uint8_t level = 128;
    if (TANDEKOR_FTM_SET_LCD_CONTRAST(context.handle, level) == 0)
        return NotAnswered("TANDEKOR_FTM_SET_LCD_CONTRAST");
    return Done("level %u", level);
}

Outcome Image(Context& context)
{
    char name[128] = "contrast.bmp";
    if (TANDEKOR_FTM_DISPLAY_IMAGE(context.handle, name) == 0)
        return Failed("TANDEKOR_FTM_DISPLAY_IMAGE", "no reply, or the phone has no file %s", name);
    return Done("%s", name);
}

// The one row that all models have.
Outcome KeypadLight(Context& context)
{
    constexpr uint16_t row = 5;
    Requests requests;
    if (requests.Fails("TANDEKOR_FTM_SetKeyPadBackLight (on)", TANDEKOR_FTM_SetKeyPadBackLight(context.handle, row, 1))
        || requests.Fails("TANDEKOR_FTM_SetKeyPadBackLight (off)",
                          TANDEKOR_FTM_SetKeyPadBackLight(context.handle, row, 0)))
        return NotAnswered(requests.last);
    return Done("row %u on and off", row);
}

Outcome Slider(Context& context)
{
    uint8_t state = 0;
    if (TANDEKOR_FTM_GetSliderState(context.handle, &state, 0) == 0)
        return Failed("TANDEKOR_FTM_GetSliderState", "no reply, or this phone model has no slider");
    return Done("%s", "").Add("state", state);
}

Outcome CameraIds(Context& context)
{
    uint16_t ids[2] = {};
    for (const uint8_t camera : {uint8_t{0}, uint8_t{1}})
    {
        if (TANDEKOR_FTM_I2C_GetCameraId(context.handle, camera, &ids[camera]) == 0)
            return Failed("TANDEKOR_FTM_I2C_GetCameraId", "camera %u was not started or not read", camera);
    }
    return Done("0x%02X and 0x%02X", ids[0], ids[1]).Add("first", ids[0]).Add("second", ids[1]);
}

Outcome CameraText(Context& context)
{
    char id[26] = {};
    if (TANDEKOR_FTM_GetCameraIDString(context.handle, id) == 0)
        return NotAnswered("TANDEKOR_FTM_GetCameraIDString");
    std::replace_if(
        std::begin(id), std::end(id) - 1, [](char one) { return one != 0 && (one < ' ' || one > '~'); }, '.');
    return Done("%s", "").Add("text", id);
}

Outcome Flash(Context& context)
{
    uint16_t error = 0;
    Requests requests;
    if (requests.Fails("TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL", TANDEKOR_FTM_SET_FLASH_LIGHT_LEVEL(context.handle, 1))
        || requests.Fails("TANDEKOR_FTM_TEST_CAMERA_FLASH",
                          TANDEKOR_FTM_TEST_CAMERA_FLASH(context.handle, 1, 0, &error)))
        return NotAnswered(requests.last);
    return Done("fired");
}

Outcome Focus(Context& context)
{
    constexpr uint8_t level = 128;
    if (TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS(context.handle, level) == 0)
        return NotAnswered("TANDEKOR_FTM_I2C_SET_CAMERA_FOCUS");
    return Done("level %u of 255", level);
}

constexpr Test displayTests[] = {
    {"backlight",
     "switches the display's backlight on, at a level",
     Backlight,
     {},
     Changes::Setting,
     "Is the display lit?"},
    {"contrast", "sets the display's contrast", Contrast, {}, Changes::Setting, "Is the display readable?"},
    {"image",
     "shows the phone's file contrast.bmp",
     Image,
     {},
     Changes::Setting,
     "Does the display show the test image?"},
    {"keypad-light",
     "light of keypad row 5, on and off",
     KeypadLight,
     {},
     Changes::Nothing,
     "Did the keypad light up?"},
    {"slider", "state of the slider", Slider, {{"state"}}},
};

constexpr Test cameraTests[] = {
    {"camera-ids", "starts each camera, reads its identification, stops it", CameraIds, {{"first"}, {"second"}}},
    {"camera-text", "identification text of the camera", CameraText, {{"text", textUnit}}},
    {"camera-flash", "sets the flash light's level and fires it", Flash, {}, Changes::Setting, "Did the flash fire?"},
    {"camera-focus", "sets the focus", Focus, {}, Changes::Setting},
};

}  // namespace

extern const Group displayGroup, cameraGroup;
constinit const Group displayGroup{"display", "display, keypad light, slider", displayTests};
constinit const Group cameraGroup{"camera", "cameras and their flash", cameraTests};

}  // namespace tandekor::line
