// How the simulated phone is steered: by the lines of scripts, by model, and what it then does as a phone does; and the
// time limit on its played clock.
#include <fstream>
#include <functional>
#include <regex>
#include <sstream>

#include "platform/clock.h"
#include "platform/qmsl.h"
#include "tandekor/simulator.h"
#include "tests/support/bench_test.h"
#include "tests/support/call.h"

namespace tandekor::test
{

namespace
{

std::string Manual()
{
    std::ifstream file(SIMULATOR_MANUAL);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// All matches of the pattern's first group.
std::vector<std::string> Matches(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        found.push_back(match->str(1));
    return found;
}

}  // namespace

using SteeringTest = BenchTest;

TEST_F(SteeringTest, ManualShowsLinesAndNamesThatThereAre)
{
    const std::string manual = Manual();
    const auto scripts = Matches(manual, "```phone\n([^`]*)```");
    EXPECT_GE(scripts.size(), 5U);
    for (const std::string& script : scripts)
    {
        std::istringstream lines(script);
        for (std::string line; std::getline(lines, line);)
            EXPECT_EQ(PHONE_Run(line.c_str()), 1) << line << ": " << PHONE_LastError();
    }
    simulator::ThePhone().obexMode = false;
    PHONE_Silence(0);
    With(TANDEKOR_AT_Get_CBC)(handle);  // the reply that is queued
    EXPECT_EQ(Values(With(TANDEKOR_AT_Get_CBC)(handle).outs)[1], 3U);
    char value[64];
    for (const std::string& row : Matches(manual, "\n\\| (`[^|]*)\\|"))
    {
        for (const std::string& name : Matches(row, "`([^`]*)`"))
            EXPECT_EQ(PHONE_Get(name.c_str(), value, sizeof value), 1) << name;
    }
}

TEST_F(SteeringTest, WrongLinesAreRefusedWithTheReason)
{
    const std::string noOperation = " is no operation of the host library that is counted or can be refused";
    const std::pair<const char*, std::string> cases[] = {
        {"fly 1", "there is no verb \"fly\""},
        {"refuse QLIB_NoSuch 1", "\"QLIB_NoSuch\"" + noOperation},
        {"refuse QLIB_SetLogFlags 1", "\"QLIB_SetLogFlags\"" + noOperation},
        {"refuse QLIB_SendRAW 0", "calls are counted from 1 to 2147483647"},
        {"refuse QLIB_SendRAW", "the line reads: refuse OPERATION CALL"},
        {"refuse QLIB_SendRAW 1 2", "the line reads: refuse OPERATION CALL"},
        {"nv 70000 01", "the line reads: nv ITEM BYTES"},
        {"nv 453 1", "the line reads: nv ITEM BYTES"},
        {"set mode loud", "mode is offline, online or ftm, not \"loud\""},
        {"set battery 101", "battery is 0 to 100, not \"101\""},
        {"set +NOSUCH 1", "the phone has no AT setting +NOSUCH"},
        {"set colour 1", "there is no value colour"},
        {"model 99", "there is no model 99"},
        {"pin 1 2", "the level of a pin is 0 or 1, not 2"},
        {"reply QLIB_DIAG_SPC_F 1 - 00",
         "replies are those of QLIB_SendRAW or QLIB_SendSync, not of \"QLIB_DIAG_SPC_F\""},
        {"file /a 00", "\"/a\" is no path as in Pictures/Holiday/beach.jpg"},
        {"delete nothing", "the phone has no file \"nothing\""},
    };
    for (const auto& [line, error] : cases)
    {
        EXPECT_EQ(PHONE_Run(line), 0) << line;
        EXPECT_EQ(PHONE_LastError(), error);
    }
    EXPECT_EQ(QLIB_IsPhoneConnected(handle), 1) << "nothing was changed";
}

TEST_F(SteeringTest, EveryModelIsToldByTheLibrary)
{
    uint32_t models = 0;
    for (uint32_t model = 0; model < 100; ++model)
    {
        if (PHONE_SetModel(model) == 0)
            continue;
        ++models;
        PHONE_Run("set mode ftm");
        const CallResult made = With(TANDEKOR_Phone_Model)(handle);
        EXPECT_EQ(made.result, 1);
        EXPECT_EQ(Values(made.outs)[2], model);
    }
    EXPECT_EQ(models, 25U);
}

TEST_F(SteeringTest, OtherModesHaveNoFactoryRequestsAndFtmHasNoNetwork)
{
    for (const char* mode : {"online", "offline", "ftm"})
    {
        SCOPED_TRACE(mode);
        const bool ftm = mode == std::string("ftm");
        const bool online = mode == std::string("online");
        PHONE_Set("mode", mode);
        EXPECT_EQ(With(TANDEKOR_FTM_GET_HARDWARE_VERSION)(handle).result, ftm);
        EXPECT_EQ(QLIB_FTM_AUDIO_SET_VOLUME(handle, 1), ftm);
        EXPECT_EQ(QLIB_FTM_SET_TX_ON(handle), ftm);
        EXPECT_EQ(Values(With(TANDEKOR_AT_Get_CREG, {Out{1}, Out{1}, Out{2}, Out{2}})(handle).outs)[1],
                  online ? 1U : 0U);
        EXPECT_EQ(Values(With(TANDEKOR_AT_Get_CSQ)(handle).outs)[0], online ? 21U : 99U);
    }
    const auto show = [&](std::string name)
    { return name.resize(128), With(TANDEKOR_FTM_DISPLAY_IMAGE, {Ascii(name)})(handle).result; };
    EXPECT_TRUE(show("contrast.bmp") == 1 && show("missing.bmp") == 0);
}

TEST_F(SteeringTest, AnswersTakeTheirLatencyAndSilenceTheTimeOut)
{
    const auto takes = [&](uint8_t result)
    {
        const uint32_t start = simulator::TheClock().now;
        EXPECT_EQ(With(TANDEKOR_AT_CHUP)(handle).result, result);
        return simulator::TheClock().now - start;
    };
    EXPECT_EQ(takes(1), 0U);
    PHONE_Set("latency", "20");
    PHONE_Delay("QLIB_SendRAW", 2, 500);
    EXPECT_EQ(takes(1), 20U);
    EXPECT_EQ(takes(1), 520U);
    PHONE_Silence(1);
    EXPECT_EQ(takes(0), 3000U);
    EXPECT_EQ(takes(1), 20U);
    PHONE_Set("power", "0");
    EXPECT_EQ(takes(0), 3000U);
    EXPECT_TRUE(simulator::TheClock().sleeps.empty()) << "none of it is a wait of the library";
}

TEST_F(SteeringTest, QueuedRepliesServeTheirOperation)
{
    PHONE_Run("set mode ftm");
    PHONE_Run("reply QLIB_SendRAW 1 - 0D 0A 45 52 52 4F 52");
    EXPECT_EQ(With(TANDEKOR_FTM_GET_HARDWARE_VERSION)(handle).result, 1) << "of the phone's own";
    for (const uint32_t status : {1U, 0U})
        EXPECT_EQ(Values(With(TANDEKOR_AT_CHUP)(handle).outs), Numbers{status});
}

TEST_F(SteeringTest, CallsTextsAndWaitsStandInOneListThatIsBounded)
{
    PHONE_Record(3);
    QLIB_DIAG_CONTROL_F(handle, 0);
    QLIB_AddUserMessageToTextLog(handle, 5, "a text", 7);
    platform::Sleep(40);
    EXPECT_EQ(simulator::Timeline(), (std::vector<std::string>{"QLIB_DIAG_CONTROL_F(0)", "a text", "Sleep(40)"}));
    EXPECT_EQ(simulator::LogTextArguments(), (std::vector<simulator::LogArguments>{{handle, 5, 7}}));
    for (int i = 0; i < 100; ++i)
        QLIB_IsPhoneConnected(handle);
    EXPECT_LE(simulator::Calls().size(), 6U);
    EXPECT_EQ(simulator::Calls().back(), "QLIB_IsPhoneConnected()");
    EXPECT_EQ(PHONE_CountCalls("QLIB_IsPhoneConnected"), 100U);
}

TEST_F(SteeringTest, PhoneTakesItsTimeToStartAndToGoOff)
{
    simulator::ThePhone().on = false;
    simulator::ThePhone().nvItems[453] = {1};
    const std::function<void()> on = [] { simulator::SwitchSupply(true); },
                                off = [] { simulator::SwitchSupply(false); };
    const std::function<void()> none = [] {}, reset = [&] { QLIB_DIAG_CONTROL_F(handle, 2); };
    const std::function<void()> powerDown = [&] { QLIB_DIAG_CONTROL_F(handle, 6); };
    // What is done, and whether the phone answers so many milliseconds later. A supply may come back in time.
    const std::tuple<std::function<void()>, uint32_t, bool> steps[] = {
        {on, 3999, false},    {none, 1, true},   {off, 499, true},
        {on, 1000, true},     {off, 500, false}, {on, 4000, true},
        {reset, 3999, false}, {none, 1, true},   {powerDown, 1'000'000, false},
    };
    for (const auto& [act, milliseconds, answers] : steps)
    {
        act();
        simulator::TheClock().now += milliseconds;
        EXPECT_EQ(QLIB_IsPhoneConnected(handle) != 0, answers) << "at " << simulator::TheClock().now;
        EXPECT_TRUE(!answers || simulator::ThePhone().mode == simulator::Mode::Ftm);
    }
}

TEST_F(SteeringTest, RefusalsCountFromTheirScriptOnAndAreRecordedWithoutEffect)
{
    const auto connected = [&] { return int{QLIB_IsPhoneConnected(handle)}; };
    EXPECT_EQ(connected(), 1);
    simulator::RefuseCall("QLIB_IsPhoneConnected", 2);
    for (const int answer : {1, 0, 1})
        EXPECT_EQ(connected(), answer);
    simulator::RefuseAnyCall(2);
    simulator::RefuseCallsFrom("QLIB_DIAG_CONTROL_F");
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 0), 0);
    EXPECT_EQ(connected(), 0);
    EXPECT_EQ(connected(), 1);
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 3), 0);
    EXPECT_EQ(simulator::Calls().back(), "QLIB_DIAG_CONTROL_F(3)");
    EXPECT_EQ(simulator::CountCalls("QLIB_IsPhoneConnected"), 6);
    EXPECT_EQ(simulator::ThePhone().mode, simulator::Mode::Online);
}

TEST_F(SteeringTest, WhatIsNotSimulatedFailsAndSaysSo)
{
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(QLIB_DIAG_CONTROL_F(handle, 5), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "SIMULATOR: QLIB_DIAG_CONTROL_F(5) is not simulated\n");
    EXPECT_EQ(simulator::Calls().back(), "QLIB_DIAG_CONTROL_F(5)");
}

TEST_F(SteeringTest, TimeLimitHoldsOverAWrapOfTheCounter)
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
