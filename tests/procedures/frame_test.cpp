// What all procedures share: the connection check and the start of the log.
#include <cstdio>
#include <fstream>
#include <iterator>

#include "procedures/phone_procedure.h"
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

using ProcedureFrameTest = ProcedureTest;

TEST_F(ProcedureFrameTest, CheckAsksThreeTimesAndOnlyTheThirdAnswerCounts)
{
    simulator::RefuseCall("QLIB_IsPhoneConnected", 1);
    simulator::RefuseCall("QLIB_IsPhoneConnected", 2);
    EXPECT_TRUE(PhoneProcedure(handle).CheckConnection());
    EXPECT_EQ(Log(), Texts{});
    simulator::RefuseCall("QLIB_IsPhoneConnected", 3);
    EXPECT_FALSE(PhoneProcedure(handle).CheckConnection());
    EXPECT_EQ(Log(), Texts{"\tInvalid handle - Failure\n"});
    EXPECT_EQ(Calls(), Texts{"QLIB_IsPhoneConnected() x6"});
}

TEST_F(ProcedureFrameTest, LogIsStartedWithTheVersionBeforeThePhoneAnswersAndEvenWithoutAFile)
{
    const std::string file = ::testing::TempDir() + "tandekor_start_log.txt";
    Phone().on = false;
    EXPECT_EQ(TANDEKOR_Start_LOG(handle, file.c_str()), 1);
    EXPECT_EQ(simulator::LogFlags(), 2U);
    EXPECT_EQ(Calls(), Texts{});
    std::ifstream content(file);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(content), {}),
              "\tTANDEKOR DLL Version: TANDEKOR V02.4.15,QPHONEMS\n");
    std::remove(file.c_str());

    TANDEKOR_SetLibraryMode(1);
    EXPECT_EQ(TANDEKOR_Start_LOG(handle, "/no such folder/log.txt"), 1);
    EXPECT_EQ(Log(), (Texts{"\tTANDEKOR DLL Version: TANDEKOR V02.4.15,QPHONEMS",
                            "\tTANDEKOR DLL Version: TANDEKOR V02.4.15,QPST"}));
}

}  // namespace tandekor::test
