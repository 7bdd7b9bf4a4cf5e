// The phone's identity and its storage: IMEI, freezing, flash, memory card.
#include <algorithm>

#include "tests/frame/guarded_call.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

using IdentityTest = ProcedureTest;

TEST_F(IdentityTest, ImeiIsReadDigitByDigitFromTheNibblesOfItsItem)
{
    const struct
    {
        const char *item, *text;
    } cases[] = {
        {"08 1A 32 54 76 98 10 32 54", "123456789012345"},
        {"FF 05 00 00 00 00 00 00 90", "000000000000009"},
        {"08 FA BA DC FE 98 10 32 A4", "?:;<=>?8901234:"},
        {"08 FF FF FF FF FF FF FF FF", "???????????????"},
    };
    for (const auto& row : cases)
    {
        Phone().nvItems[550] = Hex(row.item);
        GuardedBuffer imei(16);
        EXPECT_EQ(TANDEKOR_NV_READ_IMEI(handle, imei.Text()), 1);
        EXPECT_STREQ(imei.Text(), row.text) << row.item;
        EXPECT_TRUE(imei.GuardsIntact());
    }
    simulator::ForgetCalls();
    simulator::ForgetLog();
    GuardedBuffer imei(16);
    Phone().nvItems[550] = Ascii("ABCDEFGHI");
    EXPECT_EQ(TANDEKOR_NV_READ_IMEI(handle, imei.Text()), 1);
    EXPECT_EQ(Calls(), (check + Lines{"QLIB_DIAG_NV_READ_F(550, 9)"}));
    EXPECT_EQ(Log(), Step("QLIB_DIAG_NV_READ_F(iItemID = 550, pItemData = ABCDEFGHI, iLength = 9)"));
}

TEST_F(IdentityTest, ImeiThatThePhoneRefusesIsAnEmptyTextAndOneThatDoesNotArriveIsNone)
{
    GuardedBuffer imei(16);
    simulator::RefuseCall("QLIB_DIAG_NV_READ_F");
    EXPECT_EQ(TANDEKOR_NV_READ_IMEI(handle, imei.Text()), 0);
    EXPECT_EQ(imei.Content(), Bytes(16, 0x55));
    EXPECT_EQ(LastLogText(), "\tQLIB_DIAG_NV_READ_F(iItemID = 550, pItemData = , iLength = 9) - Failure\n");
    Phone().nvStatus[550] = 65535;
    simulator::ForgetLog();
    EXPECT_EQ(TANDEKOR_NV_READ_IMEI(handle, imei.Text()), 0);
    EXPECT_EQ(imei.Content(), Bytes(16, 0));
    EXPECT_TRUE(imei.GuardsIntact());
    EXPECT_EQ(Log(), (Step("QLIB_DIAG_NV_READ_F(iItemID = 550, pItemData = , iLength = 9)")
                      + Lines{"\tQLIB_DIAG_NV_READ_F(iNvStatus = 65535) - Failure\n"}));
}

TEST_F(IdentityTest, ImeiIsWrittenFromTheLowFourBitsOfItsCharactersAndReadBack)
{
    const struct
    {
        Bytes text;
        const char* item;
    } cases[] = {
        {Ascii("123456789012345"), "08 1A 32 54 76 98 10 32 54"},
        {Hex("01 02 03 04 05 06 07 08 09 00 01 02 03 04 05"), "08 1A 32 54 76 98 10 32 54"},
        {Ascii("?:;<=>?89012345"), "08 FA BA DC FE 98 10 32 54"},
        {Bytes(15, 0xF7), "08 7A 77 77 77 77 77 77 77"},
    };
    for (const auto& row : cases)
    {
        FreshBench();
        const std::string text(row.text.begin(), row.text.end());
        EXPECT_EQ(TANDEKOR_NV_WRITE_IMEI(handle, text.c_str()), 1);
        EXPECT_EQ(Calls(), (checkTwice + Lines{std::string("QLIB_DIAG_NV_WRITE_F(550, ") + row.item + ", 9)"} + check
                            + Lines{"QLIB_DIAG_NV_READ_F(550, 9)"}));
        const Bytes item = Hex(row.item);
        const std::string shown(item.begin(), item.end());
        EXPECT_EQ(Log(), Step("TANDEKOR_DIAG_NV_WRITE_F(iItemID = 550, pItemData = " + shown + ", iLength = 9)",
                              Step("QLIB_DIAG_NV_WRITE_F(iItemID = 550, pItemData = @, iLength = 9)"))
                             + Step("TANDEKOR_DIAG_NV_READ_F(iItemID = 550, pItemData = " + shown + ", iLength = 9)",
                                    Step("QLIB_DIAG_NV_READ_F")));
    }
}

TEST_F(IdentityTest, ImeiThatReadsBackChangedInAnyByteIsAFailure)
{
    for (size_t i = 0; i < 9; ++i)
    {
        FreshBench();
        simulator::BeforeCall("QLIB_DIAG_NV_READ_F", 1, [i] { Phone().nvItems[550][i] ^= 0x10; });
        EXPECT_EQ(TANDEKOR_NV_WRITE_IMEI(handle, "123456789012345"), 0);
        EXPECT_EQ(LastLogText(), "\tcImei[i] != cImeiRead[i] - Failure\n");
    }
}

// --- freezing

class FreezingTest : public ProcedureTest
{
protected:
    static constexpr size_t keySize = 260;
    static constexpr char imeiCharacters[] = "IMEIbytes";
    static constexpr char addressCharacters[] = "BTaddr";
    static constexpr char serialCharacters[] = "SerialNumber0123";

    FreezingTest() { Arrange(); }

    void Arrange()
    {
        FreshBench();
        imei = Ascii(imeiCharacters);
        address = Ascii(addressCharacters);
        serial = Ascii(serialCharacters);
        key = Bytes(keySize, 'K');
        key[0] = '#';
        key.back() = '$';
        Phone().nvItems[550] = imei;
        Phone().nvItems[447] = address;
        Phone().nvItems[2824] = serial;
    }

    uint8_t Freeze()
    {
        return TANDEKOR_DIAG_FREEZE_PHONE(handle, imei.data(), address.data(), serial.data(), key.data());
    }

    // The log of a run that goes all the way.
    static Lines WholeLog(const std::string& result)
    {
        const Lines read = Step("QLIB_DIAG_NV_READ_F");
        return Lines{"\t\nTANDEKOR_DIAG_FREEZE_PHONE() - Started\n"} + read
               + Lines{"\t\tTANDEKOR_DIAG_NV_READ_F() - read IMEI Completed successfully\n", "\t\tIMEI Correct\n"}
               + read
               + Lines{"\t\tTANDEKOR_DIAG_NV_READ_F() - read BT Address Completed successfully\n",
                       "\t\tBT Address Correct\n"}
               + read
               + Lines{"\t\tTANDEKOR_DIAG_NV_READ_F() - read Device Serial Number Completed successfully\n",
                       "\t\tDevice Serial Number Correct\n",
                       "\t\tRoot Key Write PASS, status: 0\n",
                       "\t\tRoot Key Read PASS, status: 0\n",
                       "\t\tPublic Key Correct\n",
                       "\t\tSecure Device Info PASS, status: 0\n",
                       "\t\nTANDEKOR_DIAG_FREEZE_PHONE() - Finished, Result = " + result + "\n"};
    }

    Lines WholeCalls() const
    {
        const std::string block = "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";
        return check + Lines{"QLIB_DIAG_NV_READ_F(550, 9)"} + check + Lines{"QLIB_DIAG_NV_READ_F(447, 6)"} + check
               + Lines{"QLIB_DIAG_NV_READ_F(2824, 16)",
                       "QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD(0, 0, " + block + ", 260, " + ToHex(key) + ")",
                       "QLIB_GSDIDIAG_ROOT_KEY_READ_CMD(0, 0, " + block + ")",
                       "QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD(0, 0, " + block + ")"};
    }

    Bytes imei, address, serial, key;
};

TEST_F(FreezingTest, GoesAllTheWayWhenEverythingIsEqual)
{
    EXPECT_EQ(Freeze(), 1);
    EXPECT_EQ(Calls(), WholeCalls());
    EXPECT_EQ(Log(), WholeLog("1")) << "and nothing of the key";
    EXPECT_TRUE(Phone().security.secured);
    EXPECT_EQ(Phone().security.rootKey, key);
    Arrange();
    Phone().security.result = 200;
    EXPECT_EQ(Freeze(), 200) << "the byte of the last command";
    EXPECT_EQ(Log(), WholeLog("200"));
}

TEST_F(FreezingTest, StopsAtTheFirstRowThatFailsWithNothingWrittenTooEarly)
{
    const auto setStatusBefore
        = [](const char* operation) { simulator::BeforeCall(operation, 1, [] { Phone().security.status = 5; }); };
    const std::string refused = "\tQLIB_DIAG_NV_READ_F(iNvStatus = 5) - Failure\n";
    const struct
    {
        size_t calls, lines;  // of the whole list and of the whole log, in front of the failure
        Lines failure;
        std::function<void()> arrange;
    } cases[] = {
        {2, 3, {refused, "\t\tTANDEKOR_DIAG_NV_READ_F() - read IMEI Failure\n"}, [] { Phone().nvStatus[550] = 5; }},
        {2, 4, {"\t\tIMEI Mismatch\n"}, [&] { imei[8] ^= 1; }},
        {4,
         7,
         {refused, "\t\tTANDEKOR_DIAG_NV_READ_F() - read BT Address Failure\n"},
         [] { Phone().nvStatus[447] = 5; }},
        {4, 8, {"\t\tBT Address Mismatch\n"}, [&] { address[5] ^= 1; }},
        {6,
         11,
         {refused, "\t\tTANDEKOR_DIAG_NV_READ_F() - read Device Serial Number Failure\n"},
         [] { Phone().nvItems.erase(2824); }},
        {6, 12, {"\t\tDevice Serial Number Mismatch\n"}, [&] { serial[15] ^= 1; }},
        {7, 13, {"\t\tRoot Key Write FAILED status: 5\n"}, [] { Phone().security.status = 5; }},
        {7,
         13,
         {"\t\tRoot Key Write FAILED status: 1\n"},
         [] { simulator::RefuseCall("QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD"); }},
        {7, 13, {"\t\tRoot Key Write FAILED status: 0\n"}, [] { Phone().security.result = 0; }},
        {8, 14, {"\t\tRoot Key Read FAILED, status: 5\n"}, [&] { setStatusBefore("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD"); }},
        {8,
         15,
         {"\t\tPublic Key Mismatch\n"},
         [] {
             simulator::BeforeCall("QLIB_GSDIDIAG_ROOT_KEY_READ_CMD", 1, [] { Phone().security.rootKey.back() ^= 1; });
         }},
        {9,
         16,
         {"\t\t\tSecure Device Info FAILED, status: 5\n"},
         [&] { setStatusBefore("QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD"); }},
    };
    for (const auto& row : cases)
    {
        SCOPED_TRACE(row.failure.back());
        Arrange();
        row.arrange();
        EXPECT_EQ(Freeze(), 0);
        Lines calls = WholeCalls(), log = WholeLog("");
        calls.resize(row.calls);
        log.resize(row.lines);
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(Log(), log + row.failure);
        EXPECT_FALSE(Phone().security.secured);
    }
}

TEST_F(FreezingTest, ComparisonEndsBehindTheFirstZeroByteOfTheCallersValue)
{
    imei = Hex("49 4D 45 00 11 22 33 44 55");
    Phone().nvItems[550] = Hex("49 4D 45 00 99 99 99 99 99");
    address = Hex("00 01 02 03 04 05");
    Phone().nvItems[447] = Hex("00 FF FF FF FF FF");
    EXPECT_EQ(Freeze(), 1);
    for (const char* item : {"49 4D 45 01 11 22 33 44 55", "49 4D 00 00 11 22 33 44 55"})
    {
        Phone().security.secured = false;
        Phone().nvItems[550] = Hex(item);
        EXPECT_EQ(Freeze(), 0);
        EXPECT_EQ(LastLogText(), "\t\tIMEI Mismatch\n") << item;
    }
}

// --- storage

TEST_F(IdentityTest, FlashIdentificationIsTheSixthValueTimes256PlusTheSeventh)
{
    Phone().nandFlashId = 0xEC1A;
    const CallResult call = Call(TANDEKOR_FlashTest)(handle);
    EXPECT_EQ(call.result, 1);
    EXPECT_EQ(call.outs, std::vector<uint32_t>{0xEC1A});
    EXPECT_EQ(Calls(), (check + Lines{"QLIB_EFS2_DIAG_DEV_INFO()"}));
    EXPECT_EQ(Log(), Step("QLIB_EFS2_DIAG_DEV_INFO()"));
    simulator::RefuseCall("QLIB_EFS2_DIAG_DEV_INFO");
    EXPECT_TRUE(Call(TANDEKOR_FlashTest)(handle).outsUntouched);
}

TEST_F(IdentityTest, MemoryCardKeepsSixteenRandomBytes)
{
    EXPECT_EQ(TANDEKOR_SpecialMmcTest(handle), 1);
    const Bytes file = Phone().factory.card["\\Test.bin"];
    ASSERT_EQ(file.size(), 16U);
    EXPECT_TRUE(std::all_of(file.begin(), file.end(), [](uint8_t byte) { return byte >= 0x40 && byte <= 0x77; }));
    Bytes name = Ascii("\\Test.bin");
    name.resize(128);
    EXPECT_EQ(Calls(),
              (check
               + Lines{"QLIB_SendSync(159, 4B 0B 00 80 12 00 95 00 0C 00 01 10 00 00 00 " + ToHex(name) + " "
                           + ToHex(file) + ", 3000)",
                       "QLIB_SendSync(143, 4B 0B 00 80 12 00 85 00 1C 00 00 10 00 00 00 " + ToHex(name) + ", 3000)"}));
    const std::string access = "TANDEKOR_FTM_MMC_FILE_ACCESS(",
                      rest = ", iMMC_DataLength = 16, psFileName= '\\Test.bin')";
    EXPECT_EQ(
        Log(),
        (Lines{"\t\tTANDEKOR_SpecialMmcTest - start"} + Request(access + "iAccessType = 1" + rest, access + ")")
         + Request(access + "iAccessType = 0" + rest, access + ")") + Lines{"\t\tTANDEKOR_SpecialMmcTest - finish"}));
    TANDEKOR_SpecialMmcTest(handle);
    EXPECT_NE(Phone().factory.card["\\Test.bin"], file) << "other bytes each time";
}

TEST_F(IdentityTest, MemoryCardThatChangesAByteIsToldByItsPlace)
{
    const std::pair<size_t, const char*> cases[]
        = {{0, "\t\tcOutData[0] != cInData[0]"}, {15, "\t\tcOutData[15] != cInData[15]"}};
    for (const auto& [place, text] : cases)
    {
        simulator::BeforeCall("QLIB_SendSync", 2, [at = place] { Phone().factory.card["\\Test.bin"][at] ^= 1; });
        EXPECT_EQ(TANDEKOR_SpecialMmcTest(handle), 0);
        EXPECT_EQ(LastLogText(), text);
    }
    simulator::ForgetLog();
    Phone().on = false;
    EXPECT_EQ(TANDEKOR_SpecialMmcTest(handle), 0);
    EXPECT_EQ(Log(), (Texts{"\t\tTANDEKOR_SpecialMmcTest - start", "\tInvalid handle - Failure\n"}));
}

}  // namespace tandekor::test
