// Every procedure on any phone: refused calls of the host library, NV items, memory, registers, readings and replies
// as the input says.
// Inputs of up to 384 bytes.
#include <functional>

#include "fuzz/support/input.h"
#include "simulator/control.h"
#include "tandekor/tandekor.h"

namespace
{

using fuzz::Bytes;
using fuzz::Input;
using simulator::ThePhone;

Bytes ShortBytes(Input& input) { return input.Some(input.Byte()); }

simulator::Reply TakeReply(Input& input)
{
    simulator::Reply reply;
    const uint8_t flags = input.Byte();
    if ((flags & 2) != 0)
        reply.claimedLength = input.Word();
    reply.bytes = ShortBytes(input);
    reply.result = (flags & 4) != 0 ? 0 : 1;
    return reply;
}

// One thing that is not as on a fresh phone.
void TakeChange(Input& input)
{
    switch (input.Byte())
    {
        case 'r':
            return simulator::RefuseAnyCall(input.Byte());
        case 'R':
            return simulator::RefuseCallsFrom("", input.Byte());
        case 'n':
        {
            const uint16_t item = input.Word();
            ThePhone().nvItems[item] = ShortBytes(input);
            return;
        }
        case 's':
        {
            const uint16_t item = input.Word();
            ThePhone().nvStatus[item] = input.Word();
            return;
        }
        case 'm':
            for (uint32_t address = input.Dword(); const uint8_t byte : ShortBytes(input))
                ThePhone().memory[address++] = byte;
            return;
        case 'i':
        {
            const uint8_t device = input.Byte();
            const uint16_t address = input.Word();
            ThePhone().factory.i2c[{device, address}] = ShortBytes(input);
            return;
        }
        case 'a':
        {
            const uint16_t channel = input.Word();
            ThePhone().radio.adc[channel] = input.Word();
            return;
        }
        case 'q':
            return simulator::QueueReply(TakeReply(input));
        case 'S':
            return simulator::Silence(input.Byte());
        case 'M':
            simulator::BecomeModel(ThePhone(), input.Byte());
            return;
        case 'h':
            ThePhone().hardwareId = input.Word();
            ThePhone().msmHardwareVersion = input.Dword();
            ThePhone().hardwareVersion = input.Dword();
            return;
        case 'o':
            ThePhone().mode = static_cast<simulator::Mode>(input.Byte() % 3);
            ThePhone().switchesModeDirectly = input.Byte() % 2 == 0;
            ThePhone().goesOffline = input.Byte() % 2 == 0;
            return;
        case 'f':
            ThePhone().files[input.Line()] = {};
            return;
        case 'b':
            ThePhone().buildId = input.Line();
            ThePhone().buildModel = input.Line();
            return;
        case 'c':
            ThePhone().security.status = input.Byte();
            ThePhone().security.commandStatus = input.Byte();
            ThePhone().security.result = input.Byte();
            return;
        case 'k':
            ThePhone().keypad.queue.push_back({input.Word(), input.Byte()});
            return;
        default:
            return;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::vector<const fuzz::Function*> functions = fuzz::Family("procedures");
    TANDEKOR_DisconnectAllServers();
    simulator::Reset();
    simulator::Record(0);
    const ResourceContext handle = TANDEKOR_ConnectServer(1);
    ThePhone().mode = simulator::Mode::Ftm;
    simulator::RefuseCallsFrom("", 300);  // an average over 65,000 readings shows nothing new
    Input input(data, size);
    const fuzz::Call call = fuzz::TakeCall(input, functions);
    while (!input.AtEnd())
        TakeChange(input);
    fuzz::Make(call, handle);
    return 0;
}
