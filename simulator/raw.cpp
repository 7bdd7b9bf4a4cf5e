// The two raw exchanges: scripted replies, else what the phone answers on the port.
#include <algorithm>

#include "platform/qmsl.h"
#include "simulator/operation.h"
#include "simulator/state.h"

using namespace simulator;

namespace
{

using Answer = std::optional<Bytes> (*)(const Bytes& request);

std::optional<Reply> ScriptedReply(const std::string& operation)
{
    CallState& state = TheState().calls;
    const auto queued = std::ranges::find_if(state.queuedReplies, [&](const Reply& reply)
                                             { return reply.operation.empty() || reply.operation == operation; });
    if (queued == state.queuedReplies.end())
        return state.repeatedReply;
    Reply reply = *queued;
    state.queuedReplies.erase(queued);
    return reply;
}

bool StaysSilent()
{
    uint32_t& exchanges = TheState().calls.silentExchanges;
    if (exchanges == 0)
        return !PhoneAnswers();
    if (exchanges != UINT32_MAX)
        --exchanges;
    return true;
}

// A scripted reply, if there is one; else the phone's own. A phone that stays silent costs the whole time-out.
Reply NextReply(const Exchange& exchange, Answer answer)
{
    if (std::optional<Reply> reply = ScriptedReply(exchange.operation))
        return *reply;
    const std::optional<Bytes> bytes = StaysSilent() ? std::nullopt : answer(exchange.request);
    TakeTime(bytes ? ThePhone().latencyMs : exchange.timeoutMs);
    return {bytes.value_or(Bytes()), bytes && !bytes->empty(), std::nullopt};
}

uint8_t MakeExchange(const Exchange& exchange, Answer answer, uint16_t* responseLength, uint8_t* response)
{
    Keep(TheState().calls.exchanges, exchange);
    const Bytes& request = exchange.request;
    if (!Admits(exchange.handle, exchange.operation.c_str(), request.size(), request, exchange.timeoutMs))
        return 0;
    const Reply reply = NextReply(exchange, answer);
    const size_t delivered = std::min<size_t>(reply.bytes.size(), exchange.capacity);
    if (response != nullptr)
        std::copy_n(reply.bytes.begin(), delivered, response);
    Put(responseLength, reply.claimedLength.value_or(static_cast<uint16_t>(delivered)));
    if (auto& exchanges = TheState().calls.exchanges; !exchanges.empty())
        exchanges.back().response.assign(reply.bytes.begin(),
                                         reply.bytes.begin() + static_cast<std::ptrdiff_t>(delivered));
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
