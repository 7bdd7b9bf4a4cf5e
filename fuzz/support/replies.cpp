#include "fuzz/support/replies.h"

#include <algorithm>

#include "platform/qmsl.h"
#include "simulator/control.h"
#include "tandekor/tandekor.h"

namespace
{

fuzz::Input* replies = nullptr;

uint8_t Exchange(uint16_t requestLength, const uint8_t* request, uint16_t* responseLength, uint8_t* response)
{
    if (replies == nullptr || replies->AtEnd())
        return 0;
    const uint8_t flags = replies->Byte();
    const uint16_t claimed = replies->Word();
    const uint16_t count = replies->Word();
    fuzz::Bytes bytes;
    if ((flags & 1) != 0)
        bytes.assign(request, request + std::max(requestLength - 1, 0));
    const fuzz::Bytes own = replies->Some(count);
    bytes.insert(bytes.end(), own.begin(), own.end());
    bytes.resize(std::min<size_t>(bytes.size(), *responseLength));
    std::copy(bytes.begin(), bytes.end(), response);
    *responseLength = (flags & 2) != 0 ? claimed : static_cast<uint16_t>(bytes.size());
    return (flags & 4) != 0 ? 0 : 1;
}

}  // namespace

// In the place of the simulator's two exchanges.
uint8_t QLIB_SendRAW(ResourceContext, uint16_t requestLength, uint8_t* request, uint16_t* responseLength,
                     uint8_t* response, uint32_t)
{
    return Exchange(requestLength, request, responseLength, response);
}

uint8_t QLIB_SendSync(ResourceContext, uint16_t requestLength, uint8_t* request, uint16_t* responseLength,
                      uint8_t* response, uint32_t)
{
    return Exchange(requestLength, request, responseLength, response);
}

namespace fuzz
{

int CallOnReplies(const char* header, const uint8_t* data, size_t size)
{
    static const std::vector<const Function*> functions = [](const char* name)
    {
        simulator::Reset();
        simulator::Record(0);
        return Family(name);
    }(header);
    simulator::TheClock().sleeps.clear();
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    TANDEKOR_DisconnectAllServers();
    const ResourceContext handle = TANDEKOR_ConnectServer(1);
    Input input(data, size);
    const Call call = TakeCall(input, functions);
    replies = &input;
    Make(call, handle);
    replies = nullptr;
    return 0;
}

}  // namespace fuzz
