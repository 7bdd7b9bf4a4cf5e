// The simulator where the tests of the library lean on it, and the time limit on its played clock.
#include "platform/clock.h"
#include "platform/qmsl.h"
#include "tests/support/bench_test.h"

namespace tandekor::test
{

class SimulatorTest : public BenchTest
{
protected:
    bool AnswersAfter(uint32_t milliseconds)
    {
        simulator::TheClock().now += milliseconds;
        return QLIB_IsPhoneConnected(handle) != 0;
    }
};

TEST_F(SimulatorTest, PhoneTakesItsTimeToStartAndToGoOff)
{
    simulator::ThePhone().on = false;
    simulator::ThePhone().nvItems[453] = {1};
    simulator::SwitchSupply(true);
    EXPECT_FALSE(AnswersAfter(3999));
    EXPECT_TRUE(AnswersAfter(1));
    EXPECT_EQ(simulator::ThePhone().mode, simulator::Mode::Ftm);
    simulator::SwitchSupply(false);
    EXPECT_TRUE(AnswersAfter(499));
    simulator::SwitchSupply(true);
    EXPECT_TRUE(AnswersAfter(1000)) << "the supply came back in time";
    simulator::SwitchSupply(false);
    EXPECT_FALSE(AnswersAfter(500));
    simulator::SwitchSupply(true);
    EXPECT_TRUE(AnswersAfter(4000));
    QLIB_DIAG_CONTROL_F(handle, 2);
    EXPECT_FALSE(AnswersAfter(3999)) << "reset";
    EXPECT_TRUE(AnswersAfter(1));
    QLIB_DIAG_CONTROL_F(handle, 6);
    EXPECT_FALSE(AnswersAfter(1'000'000)) << "powered down";
}

TEST_F(SimulatorTest, RefusalsCountFromTheirScriptOnAndAreRecordedWithoutEffect)
{
    EXPECT_TRUE(AnswersAfter(0));
    simulator::RefuseCall("QLIB_IsPhoneConnected", 2);
    EXPECT_TRUE(AnswersAfter(0));
    EXPECT_FALSE(AnswersAfter(0));
    EXPECT_TRUE(AnswersAfter(0));
    simulator::RefuseAnyCall(2);
    simulator::RefuseCallsFrom("QLIB_DIAG_CONTROL_F");
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 0), 0);
    EXPECT_FALSE(AnswersAfter(0));
    EXPECT_TRUE(AnswersAfter(0));
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 3), 0);
    EXPECT_EQ(simulator::Calls().back(), "QLIB_DIAG_CONTROL_F(3)");
    EXPECT_EQ(simulator::CountCalls("QLIB_IsPhoneConnected"), 6);
    EXPECT_EQ(simulator::ThePhone().mode, simulator::Mode::Online);
}

TEST_F(SimulatorTest, WhatIsNotSimulatedFailsAndSaysSo)
{
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 5), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "SIMULATOR: QLIB_DIAG_CONTROL_F(5) is not simulated\n");
    EXPECT_EQ(simulator::Calls().back(), "QLIB_DIAG_CONTROL_F(5)");
}

TEST_F(SimulatorTest, TimeLimitHoldsOverAWrapOfTheCounter)
{
    simulator::TheClock().now = 0xFFFFFF00;
    const platform::TimeLimit limit(1000);
    platform::Sleep(999);
    EXPECT_EQ(platform::TickCount(), 743U);
    EXPECT_TRUE(limit.Running());
    platform::Sleep(1);
    EXPECT_FALSE(limit.Running() || limit.Passed()) << "neither at the limit itself";
    platform::Sleep(1);
    EXPECT_TRUE(limit.Passed());
}

}  // namespace tandekor::test
