// The phone maker's factory requests as verbs: one exchange, the fields of its reply, the lines of the log, and the
// standard course of a command, which is all of these.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <variant>

#include "core/packet_buffer.h"
#include "core/text_log.h"
#include "phone/factory_requests.h"

namespace tandekor
{

constexpr uint32_t ftmReplyTimeMs = 3000;

// One field of a request's data, as wide as its type; and one field of a reply, which goes to where it points. Both
// are listed in the order of the wire.
using SentField = std::variant<uint8_t, uint16_t, uint32_t, std::span<const std::byte>, std::span<const uint16_t>>;
using ReplyField = std::variant<uint8_t*, uint16_t*, uint32_t*, std::span<std::byte>>;

template <typename Byte>
SentField SentBytes(const Byte* bytes, size_t count)
{
    return std::as_bytes(std::span(bytes, count));
}

template <typename Byte>
ReplyField ReplyBytes(Byte* bytes, size_t count)
{
    return std::as_writable_bytes(std::span(bytes, count));
}

// What a command of the standard course sends and receives.
struct StandardFields
{
    std::initializer_list<SentField> send = {};
    std::initializer_list<ReplyField> reply = {};  // what follows the status word
    uint16_t* statusWord = nullptr;                // handed out as well, if the reply holds one
    bool statusIsByte = false;
    uint32_t timeoutMs = ftmReplyTimeMs;
};

class FtmChannel
{
public:
    explicit FtmChannel(ResourceContext handle) : hResourceContext(handle) {}

    // A command with nothing of its own: start line, request, exchange, reply fields, status, result line. A reply too
    // short to hold a status counts as success. `text` names the command and its arguments.
    bool Standard(const FormattedText& text, const factory::Request& request, const StandardFields& fields);
    // The same for a command that has written its start line, because it differs from the text of the result line.
    bool StandardAfterStart(const FormattedText& text, const factory::Request& request, const StandardFields& fields);

    // Builds a request and sends it, in one step, so that nothing can come between the two. Returns the host library's
    // result.
    uint8_t Exchange(const factory::Request& request, std::initializer_list<SentField> data,
                     uint32_t timeoutMs = ftmReplyTimeMs);
    // The same for a request of the OEM format, which declares no lengths.
    uint8_t ExchangeOem(uint16_t commandWord, uint32_t operationCode, std::initializer_list<uint8_t> data);

    // After a failed exchange the first byte of the response buffer, which is the fill 0xBB if nothing arrived; else 0.
    uint8_t ErrorByte() const { return errorByte; }
    uint16_t ReplyLength() const { return packetBuffer.ResponseLength(); }

    // Take the last unread fields of the reply. A field that finds too few bytes is left unchanged.
    void Take(std::initializer_list<ReplyField> fields);
    // The status word, which is 0 if the reply is too short; then *statusWord is unchanged.
    uint16_t TakeStatus(uint16_t* statusWord = nullptr);

    void Start(const FormattedText& text) { WriteToLog(hResourceContext, text.Text()); }
    // The result lines, each with the result that belongs to it.
    bool NoReply(const FormattedText& text) { return NoReply(text, errorByte); }
    bool NoReply(const FormattedText& text, uint16_t code);
    bool ErrorCode(const FormattedText& text, uint16_t code);
    bool Completed(const FormattedText& text);

private:
    uint8_t Send(uint32_t timeoutMs);

    ResourceContext hResourceContext;
    PacketBuffer packetBuffer;
    uint8_t errorByte = 0;
};

}  // namespace tandekor
