// The phone's keys: which hardware code stands for which key, in eleven maps, and the reading of one key event.
#include <span>

#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

struct KeyRow
{
    uint16_t iHW_ID;
    uint8_t iKeyPressSW_ID;
};

// The rows with which most maps begin.
constexpr KeyRow commonRows[] = {
    {0xE030, 0x52}, {0xE035, 0x53}, {0xE031, 0x54}, {0xE032, 0x55}, {0xE033, 0x84}, {0xE034, 0x85}, {0xE02F, 0x50},
    {0xE02E, 0x51}, {0xE021, 0x30}, {0xE022, 0x31}, {0xE023, 0x32}, {0xE024, 0x33}, {0xE025, 0x34}, {0xE026, 0x35},
    {0xE027, 0x36}, {0xE028, 0x37}, {0xE029, 0x38}, {0xE02A, 0x39}, {0xE02B, 0x2A}, {0xE02C, 0x23},
};

// Map 3 has the same rows.
constexpr KeyRow rowsOfMap1[] = {
    {0x04BA, 0x09}, {0xE048, 0x08}, {0xE047, 0x06}, {0xE06D, 0x86},
    {0xE037, 0x87}, {0xE036, 0x88}, {0xE06C, 0x8A}, {0xE04D, 0x8C},
};
constexpr KeyRow rowsOfMap2[] = {
    {0x04BA, 0x09}, {0xE048, 0x08}, {0xE047, 0x06}, {0xE06D, 0x86}, {0xE037, 0x87},
    {0xE036, 0x88}, {0xE049, 0x89}, {0xE06C, 0x8A}, {0xE06B, 0x8B}, {0xE04D, 0x8C},
};
constexpr KeyRow rowsOfMap4[] = {
    {0x04BA, 0x09}, {0xE048, 0x08}, {0xE047, 0x06}, {0xE06D, 0x86}, {0xE037, 0x87},
    {0xE036, 0x88}, {0xE049, 0x89}, {0xE06C, 0x8A}, {0xE06B, 0x8B}, {0xE038, 0x8C},
};
constexpr KeyRow rowsOfMap5[] = {
    {0xE03E, 0x08}, {0xE03D, 0x06}, {0xE03F, 0x09}, {0xE040, 0x0A}, {0xE06D, 0x86},
    {0xE037, 0x87}, {0xE036, 0x88}, {0xE06C, 0x8B}, {0xE049, 0x89},
};
constexpr KeyRow rowsOfMap6[] = {
    {0xE03E, 0x08}, {0xE03D, 0x06}, {0xE070, 0x09}, {0xE071, 0x0A}, {0xE06D, 0x86},
    {0xE06F, 0x87}, {0xE06E, 0x88}, {0xE06C, 0x8B}, {0xE049, 0x89},
};
constexpr KeyRow rowsOfMap7[] = {
    {0xE06E, 0x08}, {0xE06F, 0x06}, {0xE070, 0x09}, {0xE071, 0x0A}, {0xE06D, 0x86},
    {0xE037, 0x87}, {0xE036, 0x88}, {0xE06C, 0x8B}, {0xE049, 0x89},
};
// The maps 8 and 9 have an order of their own. In 8 the codes 0xE033 and 0xE034 are crossed.
constexpr KeyRow rowsOfMap8[] = {
    {0xE031, 0x54}, {0xE032, 0x55}, {0xE034, 0x84}, {0xE033, 0x85}, {0xE035, 0x53}, {0xE02E, 0x51}, {0xE02F, 0x50},
    {0xE021, 0x30}, {0xE022, 0x31}, {0xE023, 0x32}, {0xE024, 0x33}, {0xE025, 0x34}, {0xE026, 0x35}, {0xE027, 0x36},
    {0xE028, 0x37}, {0xE029, 0x38}, {0xE02A, 0x39}, {0xE02B, 0x2A}, {0xE02C, 0x23}, {0xE030, 0x52}, {0xE06D, 0x86},
    {0xE037, 0x87}, {0xE036, 0x88}, {0xE071, 0x8B}, {0xE010, 0xA3}, {0xE06C, 0xA1},
};
constexpr KeyRow rowsOfMap9[] = {
    {0xE031, 0x54}, {0xE032, 0x55}, {0xE033, 0x84}, {0xE034, 0x85}, {0xE035, 0x53}, {0xE02E, 0x51}, {0xE02F, 0x50},
    {0xE021, 0x30}, {0xE022, 0x31}, {0xE023, 0x32}, {0xE024, 0x33}, {0xE025, 0x34}, {0xE026, 0x35}, {0xE027, 0x36},
    {0xE028, 0x37}, {0xE029, 0x38}, {0xE02A, 0x39}, {0xE02B, 0x2A}, {0xE02C, 0x23}, {0xE030, 0x52}, {0xE06D, 0x86},
    {0xE037, 0x87}, {0xE036, 0x88}, {0xE06B, 0x8B}, {0xE06E, 0xA3}, {0xE06C, 0xA1},
};
constexpr KeyRow rowsOfMap10[] = {
    {0xE048, 0x08}, {0xE047, 0x06}, {0xE038, 0x86}, {0xE037, 0x87}, {0xE036, 0x88}, {0xE06B, 0x8B},
};
constexpr KeyRow rowsOfMap11[] = {
    {0xE048, 0x08}, {0xE047, 0x06}, {0xE06B, 0x8B}, {0xE037, 0x87}, {0xE036, 0x88},
    {0xE06C, 0x8A}, {0xE06D, 0x86}, {0xE06E, 0xC0}, {0xE06F, 0xC1}, {0xE070, 0xC2},
};

struct KeyMap
{
    std::span<const KeyRow> firstRows;
    std::span<const KeyRow> furtherRows;
    uint16_t iSSID;
};

// By mapping ID, from 1 on.
constexpr KeyMap keyMaps[] = {
    {commonRows, rowsOfMap1, 0},     {commonRows, rowsOfMap2, 6002},  {commonRows, rowsOfMap1, 6002},
    {commonRows, rowsOfMap4, 6002},  {commonRows, rowsOfMap5, 6002},  {commonRows, rowsOfMap6, 6002},
    {commonRows, rowsOfMap7, 6002},  {{}, rowsOfMap8, 6002},          {{}, rowsOfMap9, 6002},
    {commonRows, rowsOfMap10, 6002}, {commonRows, rowsOfMap11, 6002},
};

constexpr char keyUpText[] = "AEEKey_RemovePressed: ";
constexpr char keyDownText[] = "AEEKey_AddPressed: ";
constexpr uint32_t rtMask = 8;

bool AddMapEntry(const PhoneProcedure& phone, uint16_t iHW_ID, uint8_t iKeyPressSW_ID)
{
    return phone.CallStep("QLIB_DIAG_KeyPress_AddMapEntry", QLIB_DIAG_KeyPress_AddMapEntry,
                          "(iHW_ID = %d, iKeyPressSW_ID = %c)", iHW_ID, iKeyPressSW_ID);
}

}  // namespace

// The host library's map is cleared before everything else. A row that fails leaves the rows before it there.
uint8_t TANDEKOR_SpecialSetKeypadMapping(ResourceContext hResourceContext, uint8_t iMappingID)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection() || !phone.CallStep("QLIB_DIAG_KeyPress_ClearMap", QLIB_DIAG_KeyPress_ClearMap, "()"))
        return 0;
    if (iMappingID < 1 || iMappingID > std::size(keyMaps))
    {
        phone.StepTrace(STEP_FAILURE, "Wrong mapping ID specified");
        return 0;
    }
    const KeyMap& map = keyMaps[iMappingID - 1];
    for (const std::span<const KeyRow> rows : {map.firstRows, map.furtherRows})
    {
        for (const KeyRow& row : rows)
        {
            if (!AddMapEntry(phone, row.iHW_ID, row.iKeyPressSW_ID))
                return 0;
        }
    }
    return phone.Step(
        "QLIB_DIAG_KeyPress_ConfigureKeyDetect", "(sKeyUpString = %s, sKeyDownString = %s, iSSID = %d, iRT_MASK = 8)",
        [&]
        { return QLIB_DIAG_KeyPress_ConfigureKeyDetect(hResourceContext, keyUpText, keyDownText, map.iSSID, rtMask); },
        ItemOf<sizeof keyUpText>(keyUpText), ItemOf<sizeof keyDownText>(keyDownText), map.iSSID);
}

// The queue is emptied first, so the size is that just after the clearing.
uint8_t TANDEKOR_TestKeypad(ResourceContext hResourceContext, uint16_t* piKeypressQueueSize, uint16_t* piKeyPressID,
                            uint8_t* piKeyPressEvent)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("QLIB_DIAG_KeyPress_ClearQueue", QLIB_DIAG_KeyPress_ClearQueue, "()")
           && phone.Step(
               "QLIB_DIAG_KeyPress_GetQueueSize", "(piKeypressQueueSize = %d)",
               [&] { return QLIB_DIAG_KeyPress_GetQueueSize(hResourceContext, piKeypressQueueSize); },
               *piKeypressQueueSize)
           && phone.Step(
               "QLIB_DIAG_KeyPress_GetNextKeyEvent", "(piKeyPressID = %d, piKeyPressEvent = %c)",
               [&] { return QLIB_DIAG_KeyPress_GetNextKeyEvent(hResourceContext, piKeyPressID, piKeyPressEvent); },
               *piKeyPressID, *piKeyPressEvent);
}
