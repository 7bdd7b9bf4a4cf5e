// Files there and back: Get to the host, Put from the host.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "obex/in_session.h"
#include "platform/clock.h"
#include "platform/host_file.h"

namespace tandekor
{

namespace
{

// A folder and a file name, joined without anything between.
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

// After the first failed write the remaining data are discarded; the transfer continues.
TandekorObexError GetFileToHost(ObexChannel& obex, const char* psFileName, const char* psLocalFolder)
{
    if (*psFileName == '\0')
        return TANDEKOR_OBEX_NO_ERROR;
    const JoinedPath hostPath(psLocalFolder, psFileName);
    if (!hostPath.Fits())
        return TANDEKOR_OBEX_GET_FAILED;
    bool written = false;
    for (bool first = true;; first = false)
    {
        obex.StartRequest(getOperation);
        if (first)
            obex.AddName(psFileName);
        const Outcome outcome = obex.SendPacket(ObexChannel::getTimeMs);
        if (outcome.Is(successCode))
            return obex.EndOfBodyFollows() ? TANDEKOR_OBEX_NO_ERROR : TANDEKOR_OBEX_GET_FAILED;
        if (outcome.Is(notFoundCode))
            return TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED;
        if (!outcome.Is(continueCode))
            return TANDEKOR_OBEX_GET_FAILED;

        ReplyReader reply = obex.ReplyFrom(3);
        if (!reply.PassConnectionId(obex.ConnectionId()))
            return TANDEKOR_OBEX_GET_FAILED;
        if (reply.NextIs(lengthHeader))
            reply.Skip(5);
        uint16_t headerLength = 0;
        if (!reply.NextIs(bodyHeader) || !reply.WordFollows(&headerLength) || headerLength < 3
            || headerLength > reply.Left())
            return TANDEKOR_OBEX_GET_FAILED;
        reply.Skip(3);
        const size_t count = headerLength - 3u;
        written = first ? platform::OverwriteFile(hostPath.Text(), reply.Bytes(), count)
                        : written && platform::AppendToFile(hostPath.Text(), reply.Bytes(), count);
    }
}

// The phone's response code is not checked. A packet holds the bytes that the file really has at its position: a file
// that became shorter during the transfer makes shorter packets, and nothing else is sent instead.
TandekorObexError PutFileFromHost(ObexChannel& obex, const char* psLocalFolder, const char* psFileName)
{
    if (*psLocalFolder == '\0' || *psFileName == '\0')
        return TANDEKOR_OBEX_NO_ERROR;
    const JoinedPath hostPath(psLocalFolder, psFileName);
    uint64_t size = 0;
    if (!hostPath.Fits() || !platform::FileSize(hostPath.Text(), &size) || size > UINT32_MAX)
        return TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED;

    const ObexTime time;
    uint64_t sent = 0;
    size_t overhead = 2 * std::strlen(psFileName) + 39;  // with the headers of the first packet
    for (;;)
    {
        uint8_t chunk[ObexChannel::maxPacketLength];
        const auto count = static_cast<size_t>(std::min<uint64_t>(size - sent, sizeof chunk - overhead));
        const bool last = sent + count == size;
        const size_t got = platform::ReadFromFile(hostPath.Text(), sent, chunk, count);

        obex.StartRequest(last ? finalPutOperation : putOperation);
        if (sent == 0)
        {
            obex.AddName(psFileName);
            obex.AddByte(lengthHeader);
            obex.AddDword(static_cast<uint32_t>(size));
            obex.AddByte(timeHeader);
            obex.AddWord(ObexTime::length + 3);
            obex.AddBytes(time.Text(), ObexTime::length);
        }
        obex.AddByte(last ? endOfBodyHeader : bodyHeader);
        obex.AddWord(static_cast<uint16_t>(got + 3));
        obex.AddBytes(chunk, got);
        if (!obex.SendPacket(ObexChannel::putTimeMs).exchanged)
            return TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED;
        sent += count;
        overhead = 11;
        if (last)
            return TANDEKOR_OBEX_NO_ERROR;
    }
}

}  // namespace

}  // namespace tandekor

using namespace tandekor;

uint8_t TANDEKOR_OBEX_GetFile(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                              const char* psLocalFolder, uint16_t* piObexError)
{
    return InSession(hResourceContext, psPhoneFolder, piObexError,
                     [&](ObexChannel& obex) { return GetFileToHost(obex, psFileName, psLocalFolder); });
}

uint8_t TANDEKOR_OBEX_SendFile(ResourceContext hResourceContext, const char* psLocalFolder, const char* psFileName,
                               const char* psPhoneFolder, uint16_t* piObexError)
{
    const uint8_t closed
        = InSession(hResourceContext, psPhoneFolder, piObexError,
                    [&](ObexChannel& obex) { return PutFileFromHost(obex, psLocalFolder, psFileName); });
    return closed != 0 && *piObexError == 0;
}
