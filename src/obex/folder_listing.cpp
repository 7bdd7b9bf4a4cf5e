// The listing of a folder: an OBEX Get whose object goes to the caller's buffer unread.
#include <algorithm>

#include "obex/in_session.h"

namespace tandekor
{

namespace
{

// A listing larger than the buffer is reported as such, whether the phone announced its size or not; so is a failure
// with the response code 0.
TandekorObexError GetFolderListing(ObexChannel& obex, uint8_t* pListing, uint32_t* piListingSize)
{
    constexpr char listingType[] = "x-obex/folder-listing";  // sent with its NUL
    const uint32_t capacity = *piListingSize;
    uint32_t received = 0;
    for (bool first = true;; first = false)
    {
        obex.StartRequest(getOperation);
        if (first)
        {
            obex.AddByte(typeHeader);
            obex.AddWord(sizeof listingType + 3);
            obex.AddBytes(listingType, sizeof listingType);
        }
        const Outcome outcome = obex.SendPacket(ObexChannel::getTimeMs);
        if (outcome.Is(successCode))
        {
            if (!obex.EndOfBodyFollows())
                return TANDEKOR_OBEX_LISTING_FAILED;
            *piListingSize = received;
            return TANDEKOR_OBEX_NO_ERROR;
        }
        if (!outcome.Is(continueCode))
            return outcome.code != 0 ? TANDEKOR_OBEX_LISTING_FAILED : TANDEKOR_OBEX_LISTING_TOO_LARGE;

        ReplyReader reply = obex.ReplyFrom(3);
        if (!reply.PassConnectionId(obex.ConnectionId()))
            return TANDEKOR_OBEX_LISTING_FAILED;
        if (reply.NextIs(lengthHeader))
        {
            const uint32_t size = *piListingSize;
            if (!reply.DwordFollows(piListingSize))
                return TANDEKOR_OBEX_LISTING_FAILED;
            if (*piListingSize > size)
                return TANDEKOR_OBEX_LISTING_TOO_LARGE;
            reply.Skip(5);
        }
        // The data go to the end of the packet, which has to be there, whatever the length of the Body header is.
        uint16_t unused = 0;
        if (!reply.NextIs(bodyHeader) || !reply.WordFollows(&unused) || !reply.PacketIsWhole())
            return TANDEKOR_OBEX_LISTING_FAILED;
        reply.Skip(3);
        const auto count = static_cast<uint32_t>(reply.LeftOfPacket());
        const uint32_t taken = std::min(count, capacity - received);
        std::copy_n(reply.Bytes(), taken, pListing + received);
        received += taken;
        if (taken < count)
            return TANDEKOR_OBEX_LISTING_TOO_LARGE;
    }
}

}  // namespace

}  // namespace tandekor

using namespace tandekor;

uint8_t TANDEKOR_OBEX_ListDir(ResourceContext hResourceContext, const char* psPhoneFolder, uint8_t* pListing,
                              uint32_t* piListingSize, uint16_t* piObexError)
{
    return InSession(hResourceContext, psPhoneFolder, piObexError,
                     [&](ObexChannel& obex) { return GetFolderListing(obex, pListing, piListingSize); });
}
