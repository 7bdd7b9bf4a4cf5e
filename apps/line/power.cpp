// The frame of every run: connecting and switching on in front, switching off and disconnecting behind.
#include <filesystem>

#include "tandekor/tandekor.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

Outcome Connect(Context& context)
{
    const uint32_t port = context.options.port;
    context.handle = TANDEKOR_ConnectServer(port);
    if (context.handle == 0)
    {
        char version[64] = {};
        TANDEKOR_GetSupportedQLibVersion(version);
        return Failed("the host library refuses COM %u, or is not %s\nTANDEKOR_ConnectServer gave no handle", port,
                      version);
    }
    context.state = State::Connected;
    return Passed("COM %u, handle %u", port, context.handle);
}

// The function succeeds whether the file can be written or not, so that the file itself has to tell.
Outcome StartLog(Context& context)
{
    const std::string& file = context.options.logFile;
    std::error_code ignored;
    const auto writtenBefore = std::filesystem::last_write_time(file, ignored);
    if (TANDEKOR_Start_LOG(context.handle, file.c_str()) == 0)
        return Failed("TANDEKOR_Start_LOG gave 0");
    if (std::filesystem::is_empty(file, ignored) || std::filesystem::last_write_time(file, ignored) == writtenBefore)
        return Failed("the log cannot be written: %s", file.c_str());
    context.logStarted = true;
    return Passed("%s", file.c_str());
}

Outcome SwitchOn(Context& context)
{
    const uint16_t box = context.options.bootBox;
    context.state = State::Powered;
    if (TANDEKOR_BootBox_SwitchMobileOn(context.handle, box, 1) == 0)
        return Failed("the phone did not come up in FTM mode (boot box %u)\nTANDEKOR_BootBox_SwitchMobileOn gave 0",
                      box);
    context.state = State::Ready;
    return Passed("on by boot box %u, in FTM mode", box);
}

Outcome GoOnline(Context& context)
{
    if (TANDEKOR_FTM_TO_ONLINE(context.handle) == 0)
        return Failed("the phone did not go online\nTANDEKOR_FTM_TO_ONLINE gave 0");
    return Passed("in online mode");
}

Outcome SwitchOff(Context& context)
{
    const uint16_t box = context.options.bootBox;
    if (TANDEKOR_BootBox_SwitchMobileOff(context.handle, box) == 0)
        return Failed("the phone may still be on (boot box %u)\nTANDEKOR_BootBox_SwitchMobileOff gave 0", box);
    context.state = State::Connected;
    return Passed("off");
}

Outcome Disconnect(Context& context)
{
    TANDEKOR_DisconnectServer(context.handle);
    context.state = State::Unconnected;
    return Passed("connection closed");
}

constexpr Test startTests[] = {
    {"connect", "connects to the phone on its COM port", Connect, State::Unconnected, State::Connected,
     "host library to connect"},
    {"log", "starts the text log and looks whether its file is written", StartLog, State::Connected, State::Connected,
     "log's file"},
    {"switch-on", "switches the phone on by the boot box, into FTM mode", SwitchOn, State::Connected, State::Ready,
     "phone to answer in FTM mode"},
};

constexpr Test endTests[] = {
    {.name = "online",
     .description = "takes the phone from FTM mode to online mode",
     .run = GoOnline,
     .awaited = "phone to go online"},
    {"switch-off", "switches the phone off by the boot box", SwitchOff, State::Powered, State::Ready,
     "phone to fall silent"},
    {"disconnect", "ends the connection", Disconnect, State::Connected, State::Connected, "host library to disconnect"},
};

}  // namespace

extern const Group startGroup, endGroup;
constinit const Group startGroup{"start", "connects and switches on", startTests};
constinit const Group endGroup{"end", "goes online, switches off, disconnects", endTests};

}  // namespace tandekor::line
