// The Bluetooth module: continuous wave, its address, its identification.
#include "procedures/procedure_steps.h"
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

using BluetoothTest = ProcedureTest;

TEST_F(BluetoothTest, ContinuousWaveWithAResetOfThreeBytes)
{
    EXPECT_EQ(TANDEKOR_SetCWPowerBluetooth(handle, 'N'), 1);
    EXPECT_EQ(Calls(), (check + Lines{"QLIB_FTM_BT_SetCW(78)", "QLIB_FTM_BT_HCI_USER_CMD(01 03 0C, 3)"}));
    EXPECT_EQ(Log(), Step("QLIB_FTM_BT_SetCW(iChannel = N)")
                         + Step("QLIB_FTM_BT_HCI_USER_CMD(pBuffer = \x01\x03\x0C, iLength = \x03)"));
}

TEST_F(BluetoothTest, ConnectGivesTheStoredAddressAsATextThatBeginsWithItsLastByte)
{
    Phone().nvItems[447] = Hex("56 34 12 BC 9A 78");
    GuardedBuffer address(13);
    EXPECT_EQ(TANDEKOR_BluetoothTestConnect(handle, address.Text()), 1);
    EXPECT_EQ(address.Content(), Ascii(std::string("789ABC123456\0", 13)));
    EXPECT_TRUE(address.GuardsIntact());
    EXPECT_EQ(Calls(), (checkTwice + Lines{"QLIB_DIAG_NV_READ_F(447, 6)"} + check
                        + Lines{"QLIB_FTM_BT_SetAddr(56 34 12 BC 9A 78)", "QLIB_FTM_BT_Enable_Bluetooth()",
                                "QLIB_FTM_BT_HCI_USER_CMD(01 1A 0C 01 00, 5)"}));
    EXPECT_EQ(Log(), Step("TANDEKOR_DIAG_NV_READ_F(iItemID = 447, pItemData = V4\x12\xBC\x9Ax, iLength = 6)",
                          Step("QLIB_DIAG_NV_READ_F"))
                         + Step("TANDEKOR_FtmBtSetAddr(szAddr = 789ABC123456)",
                                Step("QLIB_FTM_BT_SetAddr(iAddr=789ABC123456)"))
                         + Step("QLIB_FTM_BT_Enable_Bluetooth()")
                         + Step("QLIB_FTM_BT_HCI_USER_CMD(pBuffer = \x01\x1A\x0C\x01, iLength = \x05)"));
}

TEST_F(BluetoothTest, ConnectWritesTheTextOnlyOnceTheAddressIsRead)
{
    GuardedBuffer address(13);
    Phone().nvStatus[447] = 5;
    EXPECT_EQ(TANDEKOR_BluetoothTestConnect(handle, address.Text()), 0);
    EXPECT_EQ(address.Content(), Bytes(13, 0x55));
    Phone().nvStatus.clear();
    simulator::RefuseCall("QLIB_FTM_BT_SetAddr");
    EXPECT_EQ(TANDEKOR_BluetoothTestConnect(handle, address.Text()), 0);
    EXPECT_STREQ(address.Text(), "C0B0A0030201");
    EXPECT_EQ(LastLogText(), "\tTANDEKOR_FtmBtSetAddr(szAddr = C0B0A0030201) - Failure\n");
}

TEST_F(BluetoothTest, AddressTextBecomesUpperCaseAndItsFirstTwelveDigitsCount)
{
    const struct
    {
        const char *text, *left, *address;
    } cases[] = {
        {"789ABC123456", "789ABC123456", "56 34 12 BC 9A 78"},
        {"789abc123456", "789ABC123456", "56 34 12 BC 9A 78"},
        {"0123456789abcdef", "0123456789ABCDEF", "AB 89 67 45 23 01"},
        {"f0e1d2c3b4a5x", "F0E1D2C3B4A5X", "A5 B4 C3 D2 E1 F0"},
        {"g1-2 3\xE4"
         "4@5/6",
         "G1-2 3\xE4"
         "4@5/6",
         "06 05 04 03 02 01"},
    };
    for (const auto& row : cases)
    {
        std::string text = row.text;
        simulator::ForgetLog();
        EXPECT_EQ(FtmBtSetAddr(handle, text.data()), 1);
        EXPECT_EQ(text, row.left);
        EXPECT_EQ(ToHex(Phone().bluetooth.address), row.address) << row.text;
        EXPECT_EQ(Log(), Step("QLIB_FTM_BT_SetAddr(iAddr=" + text + ")"));
    }
    for (std::string text : {"", "789abc12345"})
    {
        simulator::ForgetCalls();
        EXPECT_EQ(FtmBtSetAddr(handle, text.data()), 0);
        EXPECT_EQ(Calls(), check);
        EXPECT_EQ(LastLogText(), "\tQLIB_FTM_BT_SetAddr(strlen(szAddr) < 12) - Failure\n");
    }
}

TEST_F(BluetoothTest, IdentificationIsThatOfTheModuleThenItsParameters)
{
    uint8_t version = 0;
    uint16_t status = 9;
    uint8_t first = 0, second = 0, third = 0;
    EXPECT_EQ(TANDEKOR_Bluetooth_HW_ID(handle, &version, &status, &first, &second, &third), 1);
    EXPECT_EQ((std::vector<int>{version, status, first, second, third}), (std::vector<int>{5, 0, 1, 2, 3}));
    EXPECT_EQ(Calls(),
              (check + Lines{"QLIB_BT_GetModuleVersion()", "QLIB_SendSync(10, 4B 0B 00 80 24 00 00 00 0F 00, 3000)"}));
    EXPECT_EQ(Log(), Step("QLIB_BT_GetModuleVersion()")
                         + Step("TANDEKOR_FTM_GET_BT_PARAM()", Request("TANDEKOR_FTM_GET_BT_PARAM()")));
}

}  // namespace tandekor::test
