// Procedures that return the host library's byte as it is, and what a failed step shows of the step before.
#include "tests/procedures/procedure_test.h"
#include "tests/support/call.h"

namespace tandekor::test
{

using HostResultsTest = ProcedureTest;

TEST_F(HostResultsTest, UploadsAndClockReturnTheByteOfTheHostLibrary)
{
    const struct
    {
        const char* name;
        Call call;
    } rows[] = {
        {"UploadCEFS_File2", With(TANDEKOR_UploadCEFS_File2, {1, 2, 3})},
        {"UploadCEFS_File", With(TANDEKOR_UploadCEFS_File, {1, 2})},
        {"UploadMultiImage", With(TANDEKOR_UploadMultiImage, std::vector<Given>(23, 1))},
        {"SpecialSetRtcActualTime", With(TANDEKOR_SpecialSetRtcActualTime)},
    };
    simulator::SetLibraryVersion("QLIB V5.0.40,QPST");
    for (const auto& [name, call] : rows)
    {
        for (const uint8_t result : Bytes{0, 1, 2, 255})
        {
            Phone().upload.result = result;
            Phone().clock.result = result;
            EXPECT_EQ(int{call(handle).result}, int{result}) << name;
            EXPECT_TRUE(LastLogText().ends_with(result == 0 ? "- Failure\n" : "- Completed successfully\n"))
                << name << ": " << LastLogText();
        }
    }
}

TEST_F(HostResultsTest, FailureOfTheSecondFlipReadShowsWhatTheFirstRead)
{
    simulator::BecomeModel(Phone(), 3);
    for (uint32_t byte = 0; byte < 4; ++byte)
        Phone().memory[0x48000004 + byte] = static_cast<uint8_t>(0x12 + byte);
    simulator::RefuseCall("QLIB_DIAG_MEMORY_PEEK_DWORD_F", 2);
    char state = 'x';
    EXPECT_EQ(TANDEKOR_FTM_TestFlip(handle, &state, 0), 0);
    EXPECT_EQ(state, '1');
    EXPECT_EQ(LastLogText(),
              "\tTK_GetBitState_32_Reg(Address = 1207959564, bitNum = 9, reg = 353637138, bOnOff = 1) - Failure\n");
}

}  // namespace tandekor::test
