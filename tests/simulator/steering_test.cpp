// How the simulated phone is steered: by the lines of scripts, by model, and what it then does as a phone does.
#include <fstream>
#include <regex>
#include <sstream>

#include "platform/clock.h"
#include "platform/qmsl.h"
#include "tandekor/simulator.h"
#include "tests/support/bench_test.h"

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
    uint8_t battery = 0;
    uint8_t charging = 0;
    uint16_t status = 0;
    simulator::ThePhone().obexMode = false;
    PHONE_Silence(0);
    TANDEKOR_AT_Get_CBC(handle, &charging, &battery, &status);  // the reply that is queued
    EXPECT_EQ(TANDEKOR_AT_Get_CBC(handle, &charging, &battery, &status), 1);
    EXPECT_EQ(battery, 3);
    char value[64];
    for (const std::string& row : Matches(manual, "\n\\| (`[^|]*)\\|"))
    {
        for (const std::string& name : Matches(row, "`([^`]*)`"))
            EXPECT_EQ(PHONE_Get(name.c_str(), value, sizeof value), 1) << name;
    }
}

TEST_F(SteeringTest, WrongLinesAreRefusedWithTheReason)
{
    const struct
    {
        const char* line;
        const char* error;
    } cases[] = {
        {"fly 1", "there is no verb \"fly\""},
        {"refuse QLIB_NoSuch 1",
         "\"QLIB_NoSuch\" is no operation of the host library that is counted or can be refused"},
        {"refuse QLIB_SetLogFlags 1",
         "\"QLIB_SetLogFlags\" is no operation of the host library that is counted or can be refused"},
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
    for (const auto& row : cases)
    {
        EXPECT_EQ(PHONE_Run(row.line), 0) << row.line;
        EXPECT_STREQ(PHONE_LastError(), row.error);
    }
    EXPECT_EQ(QLIB_IsPhoneConnected(handle), 1) << "nothing was changed";
}

TEST_F(SteeringTest, EveryModelIsToldByTheLibrary)
{
    int models = 0;
    for (uint32_t model = 0; model < 100; ++model)
    {
        if (PHONE_SetModel(model) == 0)
            continue;
        ++models;
        PHONE_Set("mode", "ftm");
        uint32_t version = 0;
        uint32_t msmModel = 0;
        uint32_t told = 0;
        EXPECT_EQ(TANDEKOR_Phone_Model(handle, &version, &msmModel, &told), 1);
        EXPECT_EQ(told, model);
    }
    EXPECT_EQ(models, 25);
}

TEST_F(SteeringTest, OtherModesHaveNoFactoryRequestsAndFtmHasNoNetwork)
{
    uint32_t version = 0;
    uint8_t reporting = 0, state = 0, area[2] = {}, cell[2] = {}, level = 0, errors = 0;
    uint16_t status = 0;
    for (const char* mode : {"online", "offline", "ftm"})
    {
        SCOPED_TRACE(mode);
        const bool ftm = mode == std::string("ftm");
        const bool online = mode == std::string("online");
        PHONE_Set("mode", mode);
        EXPECT_EQ(TANDEKOR_FTM_GET_HARDWARE_VERSION(handle, &version), ftm);
        EXPECT_EQ(QLIB_FTM_AUDIO_SET_VOLUME(handle, 1), ftm);
        EXPECT_EQ(QLIB_FTM_SET_TX_ON(handle), ftm);
        TANDEKOR_AT_Get_CREG(handle, &reporting, &state, area, cell, &status);
        EXPECT_EQ(state, online ? 1 : 0);
        TANDEKOR_AT_Get_CSQ(handle, &level, &errors, &status);
        EXPECT_EQ(level, online ? 21 : 99);
    }
    char missing[128] = "missing.bmp";
    char present[128] = "contrast.bmp";
    EXPECT_EQ(TANDEKOR_FTM_DISPLAY_IMAGE(handle, missing), 0);
    EXPECT_EQ(TANDEKOR_FTM_DISPLAY_IMAGE(handle, present), 1);
}

TEST_F(SteeringTest, AnswersTakeTheirLatencyAndSilenceTheTimeOut)
{
    uint16_t status = 0;
    const auto takes = [&](uint8_t result)
    {
        const uint32_t start = simulator::TheClock().now;
        EXPECT_EQ(TANDEKOR_AT_CHUP(handle, &status), result);
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
    uint16_t status = 0;
    uint32_t version = 0;
    const uint8_t error[] = {'\r', '\n', 'E', 'R', 'R', 'O', 'R'};
    PHONE_Set("mode", "ftm");
    PHONE_QueueReply("QLIB_SendRAW", 1, -1, error, sizeof error);
    EXPECT_EQ(TANDEKOR_FTM_GET_HARDWARE_VERSION(handle, &version), 1) << "of the phone's own";
    TANDEKOR_AT_CHUP(handle, &status);
    EXPECT_EQ(status, 1);
    TANDEKOR_AT_CHUP(handle, &status);
    EXPECT_EQ(status, 0);
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

}  // namespace tandekor::test
