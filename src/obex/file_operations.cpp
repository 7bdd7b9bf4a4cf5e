// Files there and back: Get to the host, Put from the host.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "channels/obex_session.h"
#include "channels/reply_reader.h"
#include "platform/clock.h"
#include "platform/host_file.h"

namespace tandekor
{

namespace
{

// A folder and a file name, put together without anything between.
class JoinedPath
{
public:
    JoinedPath(const char* folder, const char* name) : length(std::snprintf(text, sizeof text, "%s%s", folder, name)) {}

    bool Fits() const { return length >= 0 && length < static_cast<int>(sizeof text); }
    const char* Text() const { return text; }

private:
    char text[260];
    int length;
};

// The value of a Time header: UTC, without a closing Z.
class ObexTime
{
public:
    static constexpr size_t length = 15;

    ObexTime()
    {
        const platform::UtcTime now = platform::CurrentUtcTime();
        std::snprintf(text, sizeof text, "%04u%02u%02uT%02u%02u%02u", now.year, now.month, now.day, now.hour,
                      now.minute, now.second);
    }

    const char* Text() const { return text; }

private:
    char text[40];
};

}  // namespace

uint8_t ObexChannel::GetFile(const char* psPhoneFolder, const char* psFileName, const char* psLocalFolder,
                             uint16_t* piObexError)
{
    return InSession(psPhoneFolder, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         if (GetFileToHost(psFileName, psLocalFolder, &responseCode))
                             return TANDEKOR_OBEX_NO_ERROR;
                         return responseCode == missingFileCode ? TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED
                                                                : TANDEKOR_OBEX_GET_FAILED;
                     });
}

uint8_t ObexChannel::SendFile(const char* psLocalFolder, const char* psFileName, const char* psPhoneFolder,
                              uint16_t* piObexError)
{
    const uint8_t closed = InSession(psPhoneFolder, piObexError,
                                     [&]
                                     {
                                         uint16_t responseCode = 0;
                                         return PutFileFromHost(psLocalFolder, psFileName, &responseCode)
                                                    ? TANDEKOR_OBEX_NO_ERROR
                                                    : TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED;
                                     });
    return closed != 0 && *piObexError == 0;
}

// The reply that ends a Get has to hold an End of Body; data in it are not taken.
bool ObexChannel::EndOfBodyFollows() const
{
    ReplyReader reply(packetBuffer, 3);
    return reply.PassConnectionId(connectionId) && reply.NextIs(endOfBodyHeader);
}

// From the first data on that cannot be written to the host file all are dropped, and the transfer goes on.
bool ObexChannel::GetFileToHost(const char* psFileName, const char* psLocalFolder, uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psFileName == '\0')
        return true;
    const JoinedPath hostPath(psLocalFolder, psFileName);
    if (!hostPath.Fits())
        return false;
    bool written = false;
    for (bool first = true;; first = false)
    {
        if (!ContinueGet(
                first, [&] { AddName(psFileName); }, responseCode))
            return false;
        if (*responseCode == successCode)
            return EndOfBodyFollows();
        if (*responseCode == notFoundCode)
            *responseCode = missingFileCode;
        ReplyReader reply(packetBuffer, 3);
        if (*responseCode != continueCode || !reply.PassConnectionId(connectionId))
            return false;
        if (reply.NextIs(lengthHeader))
            reply.Skip(5);
        uint16_t headerLength = 0;
        if (!reply.NextIs(bodyHeader) || !reply.WordFollows(&headerLength) || headerLength < 3
            || headerLength > reply.Left())
            return false;
        const uint8_t* data = packetBuffer.ResponseFrom(reply.Position() + 3);
        const size_t count = headerLength - 3u;
        written = first ? platform::OverwriteFile(hostPath.Text(), data, count)
                        : written && platform::AppendToFile(hostPath.Text(), data, count);
    }
}

// The phone's response code is not looked at. A packet holds the bytes that the file really has at its place: a file
// that became shorter during the transfer gives shorter packets, and nothing else is sent in their place.
bool ObexChannel::PutFileFromHost(const char* psLocalFolder, const char* psFileName, uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psLocalFolder == '\0' || *psFileName == '\0')
        return true;
    const JoinedPath hostPath(psLocalFolder, psFileName);
    if (!hostPath.Fits())
        return false;
    uint64_t size = 0;
    if (!platform::FileSize(hostPath.Text(), &size) || size > UINT32_MAX)
    {
        *responseCode = missingFileCode;
        return false;
    }

    const ObexTime time;
    uint64_t sent = 0;
    size_t overhead = 2 * std::strlen(psFileName) + 39;  // with the headers of the first packet
    if (overhead >= maxPacketLength)
        return false;
    for (;;)
    {
        uint8_t chunk[maxPacketLength];
        const auto count = static_cast<size_t>(std::min<uint64_t>(size - sent, maxPacketLength - overhead));
        const bool last = sent + count == size;
        const size_t got = platform::ReadFromFile(hostPath.Text(), sent, chunk, count);

        StartPacket(last ? finalPutOperation : putOperation);
        AddConnectionId();
        if (sent == 0)
        {
            AddName(psFileName);
            packetBuffer.AddByte(lengthHeader);
            AddBigEndianDword(static_cast<uint32_t>(size));
            packetBuffer.AddByte(timeHeader);
            AddBigEndianWord(ObexTime::length + 3);
            packetBuffer.AddBytes(time.Text(), ObexTime::length);
        }
        packetBuffer.AddByte(last ? endOfBodyHeader : bodyHeader);
        AddBigEndianWord(static_cast<uint16_t>(got + 3));
        packetBuffer.AddBytes(chunk, got);
        if (!SendPacketWithTimeout(putTimeMs, responseCode))
            return false;
        sent += count;
        overhead = 11;
        if (last)
            return true;
    }
}

}  // namespace tandekor
