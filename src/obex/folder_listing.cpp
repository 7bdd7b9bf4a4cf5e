// The listing of a folder: an OBEX Get whose object goes to the caller's buffer unread.
#include <algorithm>

#include "channels/obex_session.h"
#include "channels/reply_reader.h"

namespace tandekor
{

uint8_t ObexChannel::ListDir(const char* psPhoneFolder, uint8_t* pListing, uint32_t* piListingSize,
                             uint16_t* piObexError)
{
    return InSession(psPhoneFolder, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         if (GetFolderListing(pListing, piListingSize, &responseCode))
                             return TANDEKOR_OBEX_NO_ERROR;
                         return responseCode != 0 ? TANDEKOR_OBEX_LISTING_FAILED : TANDEKOR_OBEX_LISTING_TOO_LARGE;
                     });
}

// A listing that is larger than the buffer ends with the response code 0, whether the phone announced its size or not.
bool ObexChannel::GetFolderListing(uint8_t* pListing, uint32_t* piListingSize, uint16_t* responseCode)
{
    constexpr char listingType[] = "x-obex/folder-listing";  // sent with its NUL
    const uint32_t capacity = *piListingSize;
    uint32_t received = 0;
    *responseCode = 0;
    for (bool first = true;; first = false)
    {
        const auto addType = [&]
        {
            packetBuffer.AddByte(typeHeader);
            AddBigEndianWord(sizeof listingType + 3);
            packetBuffer.AddBytes(listingType, sizeof listingType);
        };
        if (!ContinueGet(first, addType, responseCode))
            return false;
        if (*responseCode == successCode)
        {
            if (!EndOfBodyFollows())
                return false;
            *piListingSize = received;
            return true;
        }
        ReplyReader reply(packetBuffer, 3);
        if (*responseCode != continueCode || !reply.PassConnectionId(connectionId))
            return false;
        if (reply.NextIs(lengthHeader))
        {
            const uint32_t size = *piListingSize;
            if (!reply.DwordFollows(piListingSize))
                return false;
            if (*piListingSize > size)
            {
                *responseCode = 0;
                return false;
            }
            reply.Skip(5);
        }
        // The data go to the end of the packet, which has to be there, whatever the length of the Body header is.
        uint16_t unused = 0;
        if (!reply.NextIs(bodyHeader) || !reply.WordFollows(&unused))
            return false;
        reply.Skip(3);
        if (reply.PacketLength() > packetBuffer.ResponseLength())
            return false;
        reply.EndWithPacket();
        const auto count = static_cast<uint32_t>(reply.Left());
        const uint32_t taken = std::min(count, capacity - received);
        std::copy_n(packetBuffer.ResponseFrom(reply.Position()), taken, pListing + received);
        received += taken;
        if (taken < count)
        {
            *responseCode = 0;
            return false;
        }
    }
}

}  // namespace tandekor
