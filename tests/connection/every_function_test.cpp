// What holds for every function, whatever it does: an unknown handle touches nothing, no reply leads a reader out of
// its buffers, and a call that was disturbed is not felt by the next one.
#include <pthread.h>

#include <algorithm>
#include <cstring>
#include <optional>

#include "tests/at/at_test.h"
#include "tests/support/every_function.h"

namespace tandekor::test
{

namespace
{

struct Course
{
    CallResult result;
    std::vector<std::string> log;
    std::vector<std::string> calls;
    std::vector<simulator::Exchange> exchanges;
};

Bytes Noise()
{
    Bytes bytes(4096);
    uint32_t state = 1;
    for (uint8_t& byte : bytes)
        byte = static_cast<uint8_t>((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

// In the place of what the phone replies: its reply cut at each byte as far as headers and fields reach, and others.
std::vector<simulator::Reply> WrongReplies(const Bytes& right)
{
    std::vector<simulator::Reply> all;
    for (const Bytes& bytes : {Bytes{}, Bytes{0xA0}, Bytes(4096, '7'), Bytes(4096, 0xA0), Bytes(4096, 0x90), Noise()})
    {
        all.push_back({bytes, 1, {}});
        all.push_back({bytes, 1, 0xFFFF});
        all.push_back({bytes, 0, {}});
    }
    for (size_t length = 1; length < std::min<size_t>(right.size(), 64); ++length)
        all.push_back({Bytes(right.begin(), right.begin() + static_cast<std::ptrdiff_t>(length)), 1, {}});
    return all;
}

// Addresses of buffers differ from run to run.
std::vector<std::string> WithoutDigits(std::vector<std::string> log)
{
    for (std::string& text : log)
        std::erase_if(text, [](char character) { return character >= '0' && character <= '9'; });
    return log;
}

// The functions that talk to the phone by AT commands and OBEX packets.
bool IsRaw(const Function& function)
{
    return function.family == std::string("at") || function.family == std::string("obex");
}

class EveryFunctionTest : public BenchTest
{
protected:
    static void ExpectNothingFrom(const Function& function, ResourceContext resourceContext)
    {
        simulator::ForgetTimeline();
        const CallResult call = CallOf(function, {})(resourceContext);
        EXPECT_EQ(call.result, 0) << function.name;
        EXPECT_EQ(call.written, std::vector<bool>(call.outs.size())) << function.name;
        EXPECT_TRUE(simulator::Timeline().empty()) << function.name << ": " << simulator::Timeline().front();
    }

    void ExpectGuardsHold(const Call& call, const simulator::Reply& reply)
    {
        simulator::ForgetLog();
        simulator::RepeatReply(reply);
        EXPECT_TRUE(call(handle).guardsIntact) << Log().front() << " on " << ToHex(reply.bytes).substr(0, 200);
    }

    // An open boot box port belongs to the connection.
    Course Make(
        const Call& call, const std::function<void()>& disturb = [] {})
    {
        simulator::ResetPhone();
        simulator::TheClock() = {};
        if (simulator::TheBootBox().open)
        {
            TANDEKOR_DisconnectServer(handle);
            TANDEKOR_ConnectServer(comPort);
        }
        TANDEKOR_SetLibraryMode(0);
        simulator::ForgetCalls();
        simulator::ThePhone().mode = simulator::Mode::Ftm;
        disturb();
        Course run{call(handle), WithoutDigits(Log()), {}, simulator::Exchanges()};
        for (const std::string& text : simulator::Calls())
            run.calls.push_back(text.substr(0, text.find('(')));
        return run;
    }

    // Of some arguments those with which the function succeeds, if it does, and calls most.
    Call BestCall(const Function& function)
    {
        std::optional<Call> best;
        std::pair<bool, size_t> most;
        for (const int64_t number : {1, 0, 2, 4, 5, 7, 8, 15})
        {
            for (const auto& texts :
                 {std::vector<std::string>{"", "contrast.bmp"}, {"Pictures\\Holiday\\", "beach.jpg"}})
            {
                const Call call = CallOf(function, {{number}, texts});
                const Course run = Make(call);
                const std::pair<bool, size_t> reached(run.result.result != 0, run.calls.size());
                if (!best || reached > most)
                    best = call, most = reached;
            }
        }
        return *best;
    }

    void ExpectRecovery(const Call& call, const Course& undisturbed, const std::function<void()>& disturb)
    {
        EXPECT_TRUE(Make(call, disturb).result.guardsIntact);
        const Course after = Make(call);
        EXPECT_EQ(after.result.result, undisturbed.result.result);
        EXPECT_EQ(after.result.outs, undisturbed.result.outs);
        EXPECT_EQ(after.log, undisturbed.log);
        EXPECT_EQ(after.calls, undisturbed.calls);
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
    for (const Function& function : EveryFunction())
        ExpectNothingFrom(function, unknownHandle);
}

TEST_F(EveryFunctionTest, QpstModeShutsOutAtAndObexAndNothingElse)
{
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    TANDEKOR_SetLibraryMode(1);
    for (const Function& function : EveryFunction())
    {
        if (IsRaw(function))
            ExpectNothingFrom(function, handle);
    }
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
    std::vector<Call> calls;
    for (const Function& function : EveryFunction())
    {
        if (IsRaw(function) || function.family == std::string("ftm"))
            calls.push_back(CallOf(function, {{7}}));
    }
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
    const size_t ofTheThread = StackOf([] {});
    for (const Function& function : EveryFunction())
    {
        const Call call = BestCall(function);
        EXPECT_LE(StackOf([&] { Make(call); }) - ofTheThread, 32 * 1024) << function.name;
    }
}

TEST_F(EveryFunctionTest, NoDisturbedHostCallIsFeltByTheNextCallOfTheFunction)
{
    for (const Function& function : EveryFunction())
    {
        SCOPED_TRACE(function.name);
        const Call call = BestCall(function);
        const Course undisturbed = Make(call);
        auto exchange = undisturbed.exchanges.begin();
        for (size_t n = 1; n <= undisturbed.calls.size() && !HasFailure(); ++n)
        {
            const int number = static_cast<int>(n);
            SCOPED_TRACE("call " + std::to_string(n) + ", " + undisturbed.calls[n - 1]);
            ExpectRecovery(call, undisturbed, [number] { simulator::RefuseAnyCall(number); });
            ExpectRecovery(call, undisturbed, [number] { simulator::RefuseCallsFrom("", number); });
            const std::string& operation = undisturbed.calls[n - 1];
            if (operation != "QLIB_SendRAW" && operation != "QLIB_SendSync")
                continue;
            const auto ofThisKind
                = std::count(undisturbed.calls.begin(), undisturbed.calls.begin() + number, operation);
            for (const simulator::Reply& reply : WrongReplies((exchange++)->response))
            {
                const auto answer = [&reply] { simulator::QueueReply(reply); };
                ExpectRecovery(call, undisturbed,
                               [&] { simulator::BeforeCall(operation, static_cast<int>(ofThisKind), answer); });
            }
        }
    }
}

}  // namespace tandekor::test
