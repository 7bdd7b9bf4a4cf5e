// The eleven key maps, and the reading of a key event.
#include <cstdio>

#include "tests/frame/guarded_call.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

namespace
{

// A row is a hardware code and its key.
const std::string common
    = "E030/52 E035/53 E031/54 E032/55 E033/84 E034/85 E02F/50 E02E/51 E021/30 E022/31 E023/32 E024/33 "
      "E025/34 E026/35 E027/36 E028/37 E029/38 E02A/39 E02B/2A E02C/23 ";
const std::string mapOf1And3 = common + "04BA/09 E048/08 E047/06 E06D/86 E037/87 E036/88 E06C/8A E04D/8C ";

// Map by mapping ID, from 1 on, and how many rows it has.
const struct
{
    std::string rows;
    size_t count;
} keyMaps[] = {
    {mapOf1And3, 28},
    {common + "04BA/09 E048/08 E047/06 E06D/86 E037/87 E036/88 E049/89 E06C/8A E06B/8B E04D/8C ", 30},
    {mapOf1And3, 28},
    {common + "04BA/09 E048/08 E047/06 E06D/86 E037/87 E036/88 E049/89 E06C/8A E06B/8B E038/8C ", 30},
    {common + "E03E/08 E03D/06 E03F/09 E040/0A E06D/86 E037/87 E036/88 E06C/8B E049/89 ", 29},
    {common + "E03E/08 E03D/06 E070/09 E071/0A E06D/86 E06F/87 E06E/88 E06C/8B E049/89 ", 29},
    {common + "E06E/08 E06F/06 E070/09 E071/0A E06D/86 E037/87 E036/88 E06C/8B E049/89 ", 29},
    {"E031/54 E032/55 E034/84 E033/85 E035/53 E02E/51 E02F/50 E021/30 E022/31 E023/32 E024/33 E025/34 "
     "E026/35 E027/36 E028/37 E029/38 E02A/39 E02B/2A E02C/23 E030/52 E06D/86 E037/87 E036/88 E071/8B "
     "E010/A3 E06C/A1 ",
     26},
    {"E031/54 E032/55 E033/84 E034/85 E035/53 E02E/51 E02F/50 E021/30 E022/31 E023/32 E024/33 E025/34 "
     "E026/35 E027/36 E028/37 E029/38 E02A/39 E02B/2A E02C/23 E030/52 E06D/86 E037/87 E036/88 E06B/8B "
     "E06E/A3 E06C/A1 ",
     26},
    {common + "E048/08 E047/06 E038/86 E037/87 E036/88 E06B/8B ", 26},
    {common + "E048/08 E047/06 E06B/8B E037/87 E036/88 E06C/8A E06D/86 E06E/C0 E06F/C1 E070/C2 ", 30},
};

// What the host library holds, in the same words.
std::string LoadedRows()
{
    std::string rows;
    for (const auto& [code, key] : simulator::ThePhone().keypad.map)
    {
        char row[16];
        std::snprintf(row, sizeof row, "%04X/%02X ", code, key);
        rows += row;
    }
    return rows;
}

std::string ConfigureCall(size_t id)
{
    return R"(QLIB_DIAG_KeyPress_ConfigureKeyDetect("AEEKey_RemovePressed: ", "AEEKey_AddPressed: ", )"
           + std::string(id == 1 ? "0" : "6002") + ", 8)";
}

}  // namespace

using KeypadTest = ProcedureTest;

TEST_F(KeypadTest, EveryMapGoesRowByRowToTheHostLibraryBehindAClearing)
{
    for (size_t id = 1; id <= std::size(keyMaps); ++id)
    {
        SCOPED_TRACE("mapping ID " + std::to_string(id));
        FreshBench();
        Phone().keypad.map = {{1, 2}};
        EXPECT_EQ(TANDEKOR_SpecialSetKeypadMapping(handle, static_cast<uint8_t>(id)), 1);
        EXPECT_EQ(LoadedRows(), keyMaps[id - 1].rows);
        EXPECT_EQ(Phone().keypad.map.size(), keyMaps[id - 1].count);
        Lines calls = check + Lines{"QLIB_DIAG_KeyPress_ClearMap()"};
        for (const auto& [code, key] : Phone().keypad.map)
            calls.push_back("QLIB_DIAG_KeyPress_AddMapEntry(" + std::to_string(code) + ", " + std::to_string(key)
                            + ")");
        EXPECT_EQ(Calls(), (calls + Lines{ConfigureCall(id)}));
    }
}

TEST_F(KeypadTest, RowsAreLoggedWithTheCodeUnsignedAndTheKeyAsItsCharacter)
{
    EXPECT_EQ(TANDEKOR_SpecialSetKeypadMapping(handle, 10), 1);
    Lines log = Step("QLIB_DIAG_KeyPress_ClearMap()");
    for (const auto& [code, key] : Phone().keypad.map)
        log = log
              + Step("QLIB_DIAG_KeyPress_AddMapEntry(iHW_ID = " + std::to_string(code)
                     + ", iKeyPressSW_ID = " + static_cast<char>(key) + ")");
    EXPECT_EQ(Log(), log
                         + Step("QLIB_DIAG_KeyPress_ConfigureKeyDetect(sKeyUpString = AEEKey_RemovePressed: , "
                                "sKeyDownString = AEEKey_AddPressed: , iSSID = 6002, iRT_MASK = 8)"));
    EXPECT_EQ(Log()[3],
              "\tQLIB_DIAG_KeyPress_AddMapEntry(iHW_ID = 57392, iKeyPressSW_ID = R)"
              " - Completed successfully\n");
}

TEST_F(KeypadTest, UnknownMapLeavesTheHostLibraryWithAnEmptyOne)
{
    for (const uint8_t id : Bytes{0, 12, 255})
    {
        FreshBench();
        Phone().keypad.map = {{1, 2}};
        EXPECT_EQ(TANDEKOR_SpecialSetKeypadMapping(handle, id), 0);
        EXPECT_EQ(Calls(), (check + Lines{"QLIB_DIAG_KeyPress_ClearMap()"}));
        EXPECT_EQ(Log(), (Step("QLIB_DIAG_KeyPress_ClearMap()") + Lines{"\tWrong mapping ID specified - Failure\n"}));
    }
}

TEST_F(KeypadTest, EventIsReadBehindAClearingOfTheQueue)
{
    Phone().keypad.queue = {{1, 1}};
    simulator::BeforeCall("QLIB_DIAG_KeyPress_GetQueueSize", 1,
                          [] {
                              Phone().keypad.queue = {{0xE030, 'd'}, {0xE031, 'u'}};
                          });
    const CallResult call = Call(TANDEKOR_TestKeypad)(handle);
    EXPECT_EQ(call.result, 1);
    EXPECT_EQ(call.outs, (std::vector<uint32_t>{2, 0xE030, 'd'}));
    EXPECT_TRUE(call.guardsIntact);
    EXPECT_EQ(Calls(), (check
                        + Lines{"QLIB_DIAG_KeyPress_ClearQueue()", "QLIB_DIAG_KeyPress_GetQueueSize()",
                                "QLIB_DIAG_KeyPress_GetNextKeyEvent()"}));
    EXPECT_EQ(Log(), Step("QLIB_DIAG_KeyPress_ClearQueue()")
                         + Step("QLIB_DIAG_KeyPress_GetQueueSize(piKeypressQueueSize = 2)")
                         + Step("QLIB_DIAG_KeyPress_GetNextKeyEvent(piKeyPressID = 57392, piKeyPressEvent = d)"));
    EXPECT_EQ(Sleeps(), Waits{}) << "nobody waits for a key";
}

}  // namespace tandekor::test
