// What holds for every function that goes through a channel, whatever it does.
#include "tests/frame/guarded_call.h"

namespace tandekor::test
{

namespace
{

std::vector<GuardedCall> operator+(std::vector<GuardedCall> calls, const std::vector<GuardedCall>& more)
{
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
}

class EveryFunctionTest : public BenchTest
{
protected:
    static void ExpectNothingFrom(const std::vector<GuardedCall>& calls, ResourceContext resourceContext)
    {
        simulator::ForgetCalls();
        for (size_t i = 0; i < calls.size(); ++i)
        {
            const CallResult call = calls[i](resourceContext);
            EXPECT_EQ(call.result, 0) << "call " << i;
            EXPECT_TRUE(call.outsUntouched) << "call " << i;
        }
        EXPECT_TRUE(simulator::Calls().empty());
        EXPECT_TRUE(simulator::TheClock().sleeps.empty());
        EXPECT_TRUE(Log().empty());
    }

    const std::vector<GuardedCall> rawCalls = AtSingleValueCalls() + std::vector{Call(TANDEKOR_OBEX_2_AT)};
};

}  // namespace

TEST_F(EveryFunctionTest, UnknownHandleTouchesNothing)
{
    const std::vector<GuardedCall> procedures = {Call(TANDEKOR_Phone_Model), Call(TANDEKOR_FTM_TO_ONLINE)};
    ExpectNothingFrom(rawCalls + FtmCalls() + procedures, unknownHandle);
}

TEST_F(EveryFunctionTest, QpstModeShutsOutAtAndObexAndNothingElse)
{
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    TANDEKOR_SetLibraryMode(1);
    ExpectNothingFrom(rawCalls, handle);
    EXPECT_EQ(Call(TANDEKOR_FTM_GET_HW_ID)(handle).result, 1);
    EXPECT_EQ(Call(TANDEKOR_Phone_Model)(handle).result, 1);
    TANDEKOR_SetLibraryMode(0);
    EXPECT_EQ(Call(TANDEKOR_AT_Get_CVIB)(handle).result, 1);
}

// What a reader does outside its areas shows in the guard bytes and under the address sanitizer.
TEST_F(EveryFunctionTest, NoReplyLeadsAReaderOutOfItsArea)
{
    for (const char fill : {'\0', '\xFF', '9', 'A', ','})
    {
        for (const size_t size : {0U, 1U, 2U, 8U, 4096U})
        {
            for (const size_t claimed : {size, size_t{4097}, size_t{65535}})
            {
                const Bytes bytes(size, static_cast<uint8_t>(fill));
                simulator::RepeatReply({bytes, 1, static_cast<uint16_t>(claimed)});
                for (const GuardedCall& call : rawCalls + FtmCalls())
                {
                    simulator::ForgetLog();
                    EXPECT_TRUE(call(handle).guardsIntact) << Log().front() << " with " << size << " bytes";
                }
            }
        }
    }
}

}  // namespace tandekor::test
