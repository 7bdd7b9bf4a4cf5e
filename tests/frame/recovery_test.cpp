// Every function with each of its host calls disturbed in turn. Whatever happens, it writes only where it may, and then
// the same call on the same connection goes as it does on a connection that has seen nothing.
#include <algorithm>
#include <optional>

#include "tests/support/bench_test.h"
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
};

Bytes Noise()
{
    Bytes bytes(4096);
    uint32_t state = 1;
    for (uint8_t& byte : bytes)
        byte = static_cast<uint8_t>((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

// In the place of what the phone replies.
const std::vector<simulator::Reply>& WrongReplies()
{
    static const std::vector<simulator::Reply> replies = []
    {
        std::vector<simulator::Reply> all;
        for (const Bytes& bytes :
             {Bytes{}, Bytes{0xA0}, Bytes(4096, '7'), Bytes(4096, 0xA0), Bytes(4096, 0x90), Noise()})
        {
            all.push_back({bytes, 1, {}});
            all.push_back({bytes, 1, 0xFFFF});
            all.push_back({bytes, 0, {}});
        }
        return all;
    }();
    return replies;
}

// Addresses of buffers differ from run to run.
std::vector<std::string> WithoutDigits(std::vector<std::string> log)
{
    for (std::string& text : log)
        std::erase_if(text, [](char character) { return character >= '0' && character <= '9'; });
    return log;
}

class RecoveryTest : public BenchTest
{
protected:
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
        Course run{call(handle), WithoutDigits(Log()), {}};
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

}  // namespace

TEST_F(RecoveryTest, NoDisturbedHostCallIsFeltByTheNextCallOfTheFunction)
{
    for (const Function& function : EveryFunction())
    {
        SCOPED_TRACE(function.name);
        const Call call = BestCall(function);
        const Course undisturbed = Make(call);
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
            for (const simulator::Reply& reply : WrongReplies())
            {
                const auto answer = [&reply] { simulator::QueueReply(reply); };
                ExpectRecovery(call, undisturbed,
                               [&] { simulator::BeforeCall(operation, static_cast<int>(ofThisKind), answer); });
            }
        }
    }
}

}  // namespace tandekor::test
