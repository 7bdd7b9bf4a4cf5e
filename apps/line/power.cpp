// What every run begins and ends with: connecting and switching on, switching off and disconnecting.
#include <filesystem>

#include "tandekor/tandekor.h"
#include "test.h"
#include "transmitter.h"

namespace tandekor::line
{

namespace
{

Outcome Connect(Context& context)
{
    const uint32_t port = context.options.port;
    context.handle = TANDEKOR_ConnectServer(port);
    char version[64] = {};
    TANDEKOR_GetSupportedQLibVersion(version);
    if (context.handle == 0)
        return Failed("TANDEKOR_ConnectServer", "the host library refuses COM %u, or is not %s", port, version);
    context.state = State::Connected;
    context.run.hostVersion = version;  // no other version is connected to
    return Passed("COM %u, handle %u", port, context.handle);
}

// The function succeeds whether the file can be written or not, but its first line is there if so. The file was made
// empty for this run.
Outcome StartLog(Context& context)
{
    const std::string& file = context.run.logFile;
    if (TANDEKOR_Start_LOG(context.handle, file.c_str()) == 0)
        return Failed("TANDEKOR_Start_LOG", "the log was not started: %s", file.c_str());
    std::error_code error;
    if (std::filesystem::file_size(file, error) == 0 || error)
        return Failed("", "the log cannot be written: %s", file.c_str());
    return Passed("%s", file.c_str());
}

Outcome SwitchOn(Context& context)
{
    const uint16_t box = context.options.bootBox;
    context.state = State::Powered;
    if (TANDEKOR_BootBox_SwitchMobileOn(context.handle, box, 1) == 0)
        return Failed("TANDEKOR_BootBox_SwitchMobileOn", "the phone did not come up in FTM mode (boot box %u)", box);
    context.state = State::Ready;
    return Passed("on by boot box %u, in FTM mode", box);
}

// The name under which the phone is on record, and what runs on it.
Outcome NamePhone(Context& context)
{
    uint8_t fields[7][512] = {};
    char dates[5][32] = {};
    char buildId[512] = {};
    char buildModel[512] = {};
    uint32_t chip = 0;
    uint32_t model = 0;
    if (TANDEKOR_CheckSWBuild(context.handle, dates[0], dates[1], dates[2], dates[3], dates[4], fields[0], fields[1],
                              fields[2], fields[3], fields[4], fields[5], fields[6], &chip, &model, buildId, buildModel)
        != 0)
        context.run.phoneVersion = std::string(buildId) + ", " + buildModel;
    if (!context.run.dut.empty())
        return Passed("%s, as --dut says", context.run.dut.c_str());
    char imei[16] = {};
    if (TANDEKOR_NV_READ_IMEI(context.handle, imei) == 0)
        return Failed("TANDEKOR_NV_READ_IMEI", "the phone reports no IMEI; --dut names it");
    context.run.dut = imei;
    return Passed("%s, its IMEI", imei);
}

Outcome SwitchOff(Context& context)
{
    const uint16_t box = context.options.bootBox;
    if (TANDEKOR_BootBox_SwitchMobileOff(context.handle, box) == 0)
        return Failed("TANDEKOR_BootBox_SwitchMobileOff", "the phone may still be on (boot box %u)", box);
    context.state = State::Connected;
    return Passed("off");
}

// A handle that is forgotten serves no command any more.
Outcome Disconnect(Context& context)
{
    TANDEKOR_DisconnectServer(context.handle);
    context.state = State::Unconnected;
    uint32_t activity = 0;
    uint16_t status = 0;
    if (TANDEKOR_AT_Get_CPAS(context.handle, &activity, &status) != 0)
        return Failed("TANDEKOR_DisconnectServer", "the connection is still there");
    return Passed("connection closed");
}

constexpr Test startTests[] = {
    {.name = "connect",
     .description = "connects to the phone on its COM port",
     .run = Connect,
     .needs = State::Unconnected,
     .fixtureOf = State::Connected,
     .waitsFor = "host library to connect"},
    {.name = "log",
     .description = "starts the text log and looks whether its file is written",
     .run = StartLog,
     .needs = State::Connected,
     .fixtureOf = State::Connected,
     .waitsFor = "log's file"},
    {.name = "switch-on",
     .description = "switches the phone on by the boot box, into FTM mode",
     .run = SwitchOn,
     .needs = State::Connected,
     .fixtureOf = State::Ready,
     .waitsFor = "phone to answer in FTM mode"},
    {.name = "dut",
     .description = "the phone's name for the record, which is its IMEI if --dut says nothing else",
     .run = NamePhone,
     .fixtureOf = State::Ready},
};

constexpr Test endTests[] = {
    {.name = "transmitter-off",
     .description = "switches off a transmitter that a test has left on",
     .run = TransmitterOff,
     .fixtureOf = State::Ready},
    {.name = "switch-off",
     .description = "switches the phone off by the boot box",
     .run = SwitchOff,
     .needs = State::Powered,
     .fixtureOf = State::Ready,
     .waitsFor = "phone to fall silent"},
    {.name = "disconnect",
     .description = "ends the connection",
     .run = Disconnect,
     .needs = State::Connected,
     .fixtureOf = State::Connected,
     .waitsFor = "host library to disconnect"},
};

}  // namespace

extern const Group startGroup, endGroup;
constinit const Group startGroup{"start", "connects and switches on", startTests};
constinit const Group endGroup{"end", "switches off and disconnects, whatever has happened", endTests};

}  // namespace tandekor::line
