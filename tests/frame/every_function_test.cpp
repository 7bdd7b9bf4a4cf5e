// What holds for every function that goes through a channel, whatever it does.
#include <pthread.h>

#include <algorithm>
#include <cstring>

#include "tests/at/at_test.h"
#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

// Functions that send over the channel of AT commands, and those that send factory requests.
std::vector<Call> RawCalls()
{
    std::vector<Call> calls = {With(TANDEKOR_OBEX_2_AT),
                               With(TANDEKOR_OBEX_ListDir, {"a\\", Out{64}, U32(64)}),
                               With(TANDEKOR_OBEX_GetFile, {"", "f", ""}),
                               With(TANDEKOR_OBEX_SendFile, {"", "f", ""}),
                               With(TANDEKOR_OBEX_DeleteFile, {"", "f"}),
                               With(TANDEKOR_OBEX_CreateFolder, {"", "f"}),
                               With(TANDEKOR_OBEX_CopyFile, {"a", "f", "b"}),
                               With(TANDEKOR_OBEX_MoveFile, {"a", "f", "b"}),
                               With(TANDEKOR_OBEX_SetAttr, {"", "f", 1, 1}),
                               With(TANDEKOR_OBEX_FreeSpaceCheck)};
    for (const AtTable& table : AllAtCommands())
    {
        for (const SentCommand& command : table.commands)
            calls.push_back(command.call);
    }
    return calls;
}
std::vector<Call> AllCalls(std::vector<Call> calls = FtmCalls())
{
    const std::vector<Call> raw = RawCalls();
    calls.insert(calls.end(), raw.begin(), raw.end());
    return calls;
}

class EveryFunctionTest : public BenchTest
{
protected:
    static void ExpectNothingFrom(const std::vector<Call>& calls, ResourceContext resourceContext)
    {
        simulator::ForgetCalls();
        for (size_t i = 0; i < calls.size(); ++i)
        {
            const CallResult call = calls[i](resourceContext);
            EXPECT_EQ(call.result, 0) << "call " << i;
            EXPECT_EQ(call.written, std::vector<bool>(call.outs.size())) << "call " << i;
        }
        EXPECT_TRUE(simulator::Calls().empty());
        EXPECT_TRUE(simulator::TheClock().sleeps.empty());
        EXPECT_TRUE(Log().empty());
    }

    void ExpectGuardsHold(const Call& call, const simulator::Reply& reply)
    {
        simulator::ForgetLog();
        simulator::RepeatReply(reply);
        EXPECT_TRUE(call(handle).guardsIntact) << Log().front() << " on " << ToHex(reply.bytes).substr(0, 200);
    }
};

// The bytes of stack that a call takes: what lies untouched at the far end of a painted stack was not needed.
size_t StackOf(std::function<void()> run)
{
    constexpr uint8_t paint = 0xD5;
    alignas(4096) static uint8_t stack[256 * 1024];
    std::memset(stack, paint, sizeof stack);
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstack(&attributes, stack, sizeof stack);
    const auto start = [](void* argument) -> void*
    {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_t thread{};
    EXPECT_EQ(::pthread_create(&thread, &attributes, start, &run), 0);
    ::pthread_join(thread, nullptr);
    ::pthread_attr_destroy(&attributes);
    const auto* deepest = std::find_if(stack, std::end(stack), [](uint8_t byte) { return byte != paint; });
    return static_cast<size_t>(std::end(stack) - deepest);
}

}  // namespace

TEST_F(EveryFunctionTest, UnknownHandleTouchesNothing)
{
    ExpectNothingFrom(AllCalls(), unknownHandle);
    ExpectNothingFrom({With(TANDEKOR_Phone_Model), With(TANDEKOR_FTM_TO_ONLINE)}, unknownHandle);
}

TEST_F(EveryFunctionTest, QpstModeShutsOutAtAndObexAndNothingElse)
{
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    TANDEKOR_SetLibraryMode(1);
    ExpectNothingFrom(RawCalls(), handle);
    EXPECT_EQ(With(TANDEKOR_FTM_GET_HW_ID)(handle).result, 1);
    EXPECT_EQ(With(TANDEKOR_Phone_Model)(handle).result, 1);
    TANDEKOR_SetLibraryMode(0);
    EXPECT_EQ(With(TANDEKOR_AT_Get_CVIB)(handle).result, 1);
}

// What a reader does outside its areas shows in the guard bytes and under the address sanitizer.
TEST_F(EveryFunctionTest, NoReplyLeadsAReaderOutOfItsArea)
{
    for (const AtTable& table : AllAtCommands())
    {
        for (const ReadReply& row : table.replies)
        {
            for (size_t length = 0; length <= std::min<size_t>(row.reply.size(), 128); ++length)
                ExpectGuardsHold(row.call, {Ascii(row.reply.substr(0, length)), 1, {}});
        }
        for (const std::string& text : table.dense)
        {
            for (const SentCommand& command : table.commands)
                ExpectGuardsHold(command.call, {Ascii(text), 1, {}});
        }
    }
    const std::vector<Call> calls = AllCalls();
    for (const char fill : {'\0', '\xFF', '7', 'A', ',', ':', '"', '\r'})
    {
        const Bytes area(4096, static_cast<uint8_t>(fill));
        for (const uint16_t claimed : std::initializer_list<uint16_t>{0, 1, 2, 8, 4096, 4097, 65535})
        {
            for (const Call& call : calls)
                ExpectGuardsHold(call, {area, 1, claimed});
        }
    }
}

TEST_F(EveryFunctionTest, NeedsNoMoreThan32KilobytesOfStack)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(__clang__)
    GTEST_SKIP() << "the frames of sanitizers are larger";
#endif
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    const size_t ofTheThread = StackOf([] {});
    std::vector<Call> calls = AllCalls();
    calls.insert(calls.end(), {With(TANDEKOR_Virtual_SIM, {"000000"}), With(TANDEKOR_SetCWPowerBluetooth, {1}),
                               With(TANDEKOR_NetworkAndChannelPreselection, {2, 3, 4}),
                               With(TANDEKOR_BootBox_SwitchMobileOn, {4, 1}), With(TANDEKOR_AudioTest, {15, 1})});
    for (const Call& call : calls)
    {
        simulator::ForgetLog();
        EXPECT_LE(StackOf([&] { call(handle); }) - ofTheThread, 32 * 1024) << Log().front();
    }
}

}  // namespace tandekor::test
