// NV items and hardware registers.
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

// The address of a buffer as the log shows it.
static std::string Address(const void* buffer)
{
    return std::to_string(static_cast<uint32_t>(reinterpret_cast<uintptr_t>(buffer)));
}

using NvItemTest = ProcedureTest;

TEST_F(NvItemTest, WriteShowsAddressAndLengthAndFailsByStatusBehindItsSuccessLine)
{
    const uint8_t data[] = {1, 2, 3};
    EXPECT_EQ(DIAG_NV_WRITE_F(handle, 40000, data, 3), 1);
    EXPECT_EQ(Calls(), (Texts{"QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_F(40000, 01 02 03, 3)"}));
    Phone().nvStatus[40000] = 0xFFFE;
    EXPECT_EQ(DIAG_NV_WRITE_F(handle, 40000, data, 3), 0);
    const std::string result = "\tQLIB_DIAG_NV_WRITE_F(iItemID = 40000, pItemData = " + Address(data)
                               + ", iLength = 3) - Completed successfully\n";
    const Texts log{"\t\tQLIB_DIAG_NV_WRITE_F() start", result, "\t\tQLIB_DIAG_NV_WRITE_F() start", result,
                    "\tQLIB_DIAG_NV_WRITE_F(iNvStatus = 65534) - Failure\n"};
    EXPECT_EQ(simulator::LogTexts(), log);
}

TEST_F(NvItemTest, ReadLogsTheBareNameAndARefusalStandsUnderBothNames)
{
    uint8_t data[3] = {};
    Phone().nvItems[10] = {'a', 'b', 'c'};
    EXPECT_EQ(DIAG_NV_READ_F(handle, 10, data, 3), 1);
    EXPECT_EQ(Bytes(data, data + 3), Ascii("abc"));
    Phone().nvStatus[10] = 5;
    EXPECT_EQ(NV_READ_GSM_RX_REL_OFFSETS(handle, 10, data, 3), 0);
    const Texts log{
        "\t\tQLIB_DIAG_NV_READ_F() start",
        "\tQLIB_DIAG_NV_READ_F - Completed successfully\n",
        "\t\tQLIB_DIAG_NV_READ_F() start",
        "\t\tQLIB_DIAG_NV_READ_F() start",
        "\tQLIB_DIAG_NV_READ_F - Completed successfully\n",
        "\tQLIB_DIAG_NV_READ_F(iNvStatus = 5) - Failure\n",
        "\tTANDEKOR_DIAG_NV_READ_F(iItemID = 10, pItemData = abc, iLength = 3) - Failure\n",
    };
    EXPECT_EQ(simulator::LogTexts(), log);
}

TEST_F(NvItemTest, TracedReadShowsTheItemAsTextOfAtMostItsLength)
{
    const struct
    {
        Bytes item;
        std::string shown;
    } cases[] = {{Ascii("xyz"), "xyz"}, {{'x', 0, 'z'}, "x"}, {Ascii("%s%n%d"), "%s%n%d"}, {{0xBB}, "\xBB"}};
    for (const auto& row : cases)
    {
        Phone().nvItems[10] = row.item;
        const auto length = static_cast<int32_t>(row.item.size());
        Bytes data(row.item.size());  // no NUL behind it
        EXPECT_EQ(NV_READ_GSM_RX_REL_OFFSETS(handle, 10, data.data(), length), 1);
        EXPECT_EQ(data, row.item);
        const std::string start = "\tTANDEKOR_DIAG_NV_READ_F(iItemID = 10, pItemData = " + row.shown + ", iLength = ";
        EXPECT_TRUE(LastLogText().starts_with(start)) << LastLogText();
    }
}

TEST_F(NvItemTest, FlushShowsItsValuesAsCharactersSoThatAZeroEndsTheText)
{
    EXPECT_EQ(DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(handle), 1);
    constexpr uint16_t item = 0x0141;  // shown by its low byte, A
    const uint8_t data = 1;
    Phone().nvStatus[item] = 'B';
    QLIB_DIAG_NV_WRITE_SetBatchMode(handle, 1);
    EXPECT_EQ(DIAG_NV_WRITE_F(handle, item, &data, 1), 1) << "only queued";
    EXPECT_EQ(DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(handle), 0);
    const std::string values = "(piLastErrorNvId = A, piLastTotalStatus =\x01, piLastItemStatus = B)";
    const Texts log{
        "\t\tQLIB_DIAG_NV_WRITE_FlushBatchQueue() start",
        "\tQLIB_DIAG_NV_WRITE_FlushBatchQueue(piLastErrorNvId =  - Completed successfully\n",
        "\t\tQLIB_DIAG_NV_WRITE_F() start",
        "\tQLIB_DIAG_NV_WRITE_F(iItemID = 321, pItemData = @, iLength = 1) - Completed successfully\n",
        "\t\tQLIB_DIAG_NV_WRITE_FlushBatchQueue() start",
        "\tQLIB_DIAG_NV_WRITE_FlushBatchQueue" + values + " - Completed successfully\n",
        "\t_iLastTotalStatus != (int)DIAG_MNVW_Status_OK - Failure\n",
    };
    EXPECT_EQ(Log(), log);
}

class RegisterTest : public ProcedureTest
{
protected:
    static constexpr uint32_t address = 0x84000100;  // 2214592768

    static void SetMemory(uint32_t value)
    {
        for (uint32_t i = 0; i < 4; ++i)
            Phone().memory[address + i] = static_cast<uint8_t>(value >> (8 * i));
    }
};

TEST_F(RegisterTest, BitsAreSetAndClearedAndReadBackAndOnlyTheEightBitFormChecksTheConnection)
{
    for (const bool dword : {false, true})
    {
        FreshBench();
        SetMemory(0x80000081);
        const auto set = [&](uint32_t mask, uint8_t on)
        {
            return dword ? SetBitState_32_Reg(handle, address, mask, on)
                         : SetBitState_8_Reg(handle, address, static_cast<uint8_t>(mask), on);
        };
        EXPECT_EQ(set(0x80000006, 1), 1);
        const std::string form = dword ? "_DWORD_F" : "_F";
        const std::string result
            = form + "(iAddress = 2214592768, iNumItems = 1, pItemArray = @) - Completed successfully\n";
        const Texts log{
            "\t\tQLIB_DIAG_MEMORY_PEEK" + form + "() start", "\tQLIB_DIAG_MEMORY_PEEK" + result,
            "\t\tQLIB_DIAG_MEMORY_POKE" + form + "() start", "\tQLIB_DIAG_MEMORY_POKE" + result,
            "\t\tQLIB_DIAG_MEMORY_PEEK" + form + "() start", "\tQLIB_DIAG_MEMORY_PEEK" + result,
        };
        EXPECT_EQ(Log(), log);
        const std::string peek = "QLIB_DIAG_MEMORY_PEEK" + form + "(2214592768, 1)";
        Texts calls{peek, "QLIB_DIAG_MEMORY_POKE" + form + "(2214592768, 1, " + (dword ? "2147483783)" : "87)"), peek};
        if (!dword)
            calls.insert(calls.begin(), "QLIB_IsPhoneConnected() x3");
        EXPECT_EQ(Calls(), calls);
        EXPECT_EQ(set(0x80000085, 0), 1);
        EXPECT_EQ(Phone().memory[address], 0x02);
        EXPECT_EQ(Phone().memory[address + 3], dword ? 0 : 0x80);
    }
}

TEST_F(RegisterTest, PokeIsMadeThoughNothingChangesAndOnlyMaskedBitsMustReadBackAsWritten)
{
    const auto readsBack = [](const char* operation, uint32_t value)
    { simulator::BeforeCall(operation, 2, [value] { SetMemory(value); }); };
    SetMemory(0x0F);
    readsBack("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0xFF00000F);
    EXPECT_EQ(SetBitState_32_Reg(handle, address, 0x0F, 1), 1);
    EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_MEMORY_POKE_DWORD_F"), 1);
    readsBack("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 0x07);
    EXPECT_EQ(SetBitState_32_Reg(handle, address, 0x0F, 1), 0);
    readsBack("QLIB_DIAG_MEMORY_PEEK_F", 0xF0);
    EXPECT_EQ(SetBitState_8_Reg(handle, address, 0x0F, 0), 1);
    simulator::ForgetLog();
    readsBack("QLIB_DIAG_MEMORY_PEEK_F", 0xF8);
    EXPECT_EQ(SetBitState_8_Reg(handle, address, 0x0F, 0), 0);
    EXPECT_EQ(LastLogText(), "\t(_iPokeStorage != _iPeekStorage) - Failure\n");
}

TEST_F(RegisterTest, BitIsGivenAsACharacterAndOneAbove32IsRefusedWithAPlainRemark)
{
    SetMemory(0x80000001);
    uint32_t reg = 0;
    std::string bits = "xxxxxx";
    size_t place = 0;
    for (const uint16_t bitNum : std::initializer_list<uint16_t>{0, 1, 30, 31, 32})
        EXPECT_TRUE(TK_GetBitState_32_Reg(handle, address, bitNum, &reg, &bits[place++]));
    EXPECT_EQ(simulator::LogTexts().back(),
              "\tQLIB_DIAG_MEMORY_PEEK_DWORD_F(iAddress = 2214592768, iNumItems = 1, pItemArray = " + Address(&reg)
                  + ") - Completed successfully\n");
    simulator::ForgetCalls();
    EXPECT_FALSE(TK_GetBitState_32_Reg(handle, address, 33, &reg, &bits[5]));
    EXPECT_EQ(LastLogText(), "\tbitNum over the range: 33");
    EXPECT_EQ(Calls(), Texts{"QLIB_IsPhoneConnected() x3"});
    EXPECT_EQ(bits, "10010x");
    EXPECT_EQ(reg, 0x80000001U);
}

}  // namespace tandekor::test
