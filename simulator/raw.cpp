// The two raw exchanges: scripted replies, else what the phone answers on the port.
#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

// A scripted reply, if there is one; else the phone's own, or that it stays silent.
Reply NextReply(const Bytes& request, Bytes (*answer)(const Bytes&))
{
    CallState& state = TheState().calls;
    if (!state.queuedReplies.empty())
    {
        Reply reply = state.queuedReplies.front();
        state.queuedReplies.pop_front();
        return reply;
    }
    if (state.repeatedReply)
        return *state.repeatedReply;
    const Bytes bytes = PhoneAnswers() ? answer(request) : Bytes();
    return {bytes, !bytes.empty(), std::nullopt};
}

uint8_t MakeExchange(const Exchange& exchange, Bytes (*answer)(const Bytes&), uint16_t* responseLength,
                     uint8_t* response)
{
    TheState().calls.exchanges.push_back(exchange);
    const Bytes& request = exchange.request;
    if (!Admits(exchange.handle, exchange.operation.c_str(), request.size(), request, exchange.timeoutMs))
        return 0;
    const Reply reply = NextReply(request, answer);
    const size_t delivered = std::min<size_t>(reply.bytes.size(), exchange.capacity);
    if (response != nullptr)
        std::copy_n(reply.bytes.begin(), delivered, response);
    Put(responseLength, reply.claimedLength.value_or(static_cast<uint16_t>(delivered)));
    return reply.result;
}

}  // namespace

uint8_t QLIB_SendRAW(ResourceContext hResourceContext, uint16_t iRequestLength, uint8_t* piRequest,
                     uint16_t* piResponseLength, uint8_t* piResponse, uint32_t iTimeout_ms)
{
    const uint16_t capacity = piResponseLength == nullptr ? uint16_t{0} : *piResponseLength;
    return MakeExchange({__func__, hResourceContext, BytesAt(piRequest, iRequestLength), capacity, iTimeout_ms},
                        AnswerAt, piResponseLength, piResponse);
}

uint8_t QLIB_SendSync(ResourceContext hResourceContext, uint16_t iRequestLength, uint8_t* piRequest,
                      uint16_t* piResponseLength, uint8_t* piResponse, uint32_t iTimeout_ms)
{
    const uint16_t capacity = piResponseLength == nullptr ? uint16_t{0} : *piResponseLength;
    return MakeExchange({__func__, hResourceContext, BytesAt(piRequest, iRequestLength), capacity, iTimeout_ms},
                        AnswerDiagnostic, piResponseLength, piResponse);
}
