// What reads texts and bytes in the simulator: scripts, the AT side, the file server, the factory requests. An input is
// of parts, each with a letter for its reader, the number of its bytes, low byte first, and the bytes.
// Inputs of up to 1024 bytes.
#include <algorithm>

#include "fuzz/support/input.h"
#include "platform/qmsl.h"
#include "simulator/control.h"
#include "simulator/script.h"

namespace
{

using Exchange = decltype(QLIB_SendRAW)*;

void Send(Exchange operation, ResourceContext handle, fuzz::Bytes request)
{
    uint8_t response[4096];
    uint16_t length = sizeof response;
    operation(handle, static_cast<uint16_t>(request.size()), request.data(), &length, response, 1000);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    simulator::Reset();
    simulator::Record(0);
    const ResourceContext handle = QLIB_ConnectServer(1);
    fuzz::Input input(data, size);
    while (!input.AtEnd())
    {
        const uint8_t reader = input.Byte();
        const fuzz::Bytes part = input.Some(input.Word());
        simulator::ThePhone().obexMode = reader == 'o';
        switch (reader)
        {
            case 's':
                simulator::RunLine({part.begin(), part.end()});
                break;
            case 'f':
                simulator::ThePhone().mode = simulator::Mode::Ftm;
                Send(QLIB_SendSync, handle, part);
                break;
            default:
                Send(QLIB_SendRAW, handle, part);
        }
    }
    return 0;
}
