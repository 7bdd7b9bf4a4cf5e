// The phone's OBEX file server, reached on the port that otherwise takes AT commands: sessions, packets and the file
// operations. The exported functions of the same names document the operations. Multi-byte fields are big-endian.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/packet_buffer.h"

namespace tandekor
{

class ObexChannel
{
public:
    explicit ObexChannel(ResourceContext handle) : hResourceContext(handle) {}

    uint8_t Switch_2_AT(uint16_t* piFirstByte);

    uint8_t ListDir(const char* psPhoneFolder, uint8_t* pListing, uint32_t* piListingSize, uint16_t* piObexError);
    uint8_t GetFile(const char* psPhoneFolder, const char* psFileName, const char* psLocalFolder,
                    uint16_t* piObexError);
    uint8_t SendFile(const char* psLocalFolder, const char* psFileName, const char* psPhoneFolder,
                     uint16_t* piObexError);
    uint8_t DeleteFile(const char* psPhoneFolder, const char* psFileName, uint16_t* piObexError);
    uint8_t CreateFolder(const char* psPhoneFolder, const char* psFolderName, uint16_t* piObexError);
    uint8_t CopyFile(const char* psSourceFolder, const char* psFileName, const char* psDestinationFolder,
                     uint16_t* piObexError);
    uint8_t MoveFile(const char* psSourceFolder, const char* psFileName, const char* psDestinationFolder,
                     uint16_t* piObexError);
    uint8_t SetAttr(const char* psPhoneFolder, const char* psFileName, uint32_t iFirstPermissions,
                    uint32_t iSecondPermissions, uint16_t* piObexError);
    uint8_t FreeSpaceCheck(uint32_t* piFreeSpace, uint16_t* piObexError);

private:
    static constexpr uint32_t maxPacketLength = 4093;  // announced to the phone, and the limit of our Put packets
    static constexpr uint32_t replyTimeMs = 3000;
    static constexpr uint32_t getTimeMs = 5000;
    static constexpr uint32_t copyTimeMs = 6000;
    static constexpr uint32_t putTimeMs = 9000;

    // --- building a packet

    // Empties the buffer and appends the operation, and a place for the packet length, which the sending fills in.
    void StartPacket(uint8_t operation);
    void AddBigEndianWord(uint16_t value);
    void AddBigEndianDword(uint32_t value);
    void AddConnectionId();
    void AddWidened(const char* text, size_t length);
    void AddName(const char* name) { AddName(name, TextLength(name)); }
    void AddName(const char* name, size_t length);
    static size_t TextLength(const char* text);

    // Exchanges the packet. *responseCode is the first byte of the response area whatever the result is: the response
    // code of a reply, or the fill 0xBB when nothing arrived. A packet that outgrew the buffer is not sent.
    bool SendPacket(uint16_t* responseCode) { return SendPacketWithTimeout(replyTimeMs, responseCode); }
    bool SendPacketWithTimeout(uint32_t timeoutMs, uint16_t* responseCode);
    bool Exchange(uint32_t timeoutMs, uint16_t* responseCode);

    // --- a session. Each gives the response code of its last exchange.

    bool ObexConnect(uint16_t* responseCode);
    bool ObexDisconnect(uint16_t* responseCode);
    // Goes down a folder path, one component after the other. A component that is not closed by a backslash fails.
    bool WalkPath(const char* path, uint16_t* responseCode);

    // Runs an operation in a session of its own, in the folder (none for null). The operation gives its error bits.
    template <typename Operation>
    uint8_t InSession(const char* psPhoneFolder, uint16_t* piObexError, Operation operation);

    // --- the operations

    bool GetFolderListing(uint8_t* pListing, uint32_t* piListingSize, uint16_t* responseCode);
    bool GetFileToHost(const char* psFileName, const char* psLocalFolder, uint16_t* responseCode);
    bool PutFileFromHost(const char* psLocalFolder, const char* psFileName, uint16_t* responseCode);
    bool DeleteObject(const char* psFileName, uint16_t* responseCode);
    bool MakeFolder(const char* psFolderName, uint16_t* responseCode);
    bool CopyOrMoveObject(bool isMove, const char* psSourceFolder, const char* psFileName,
                          const char* psDestinationFolder, uint16_t* responseCode);
    bool SetObjectPermissions(const char* psFileName, uint32_t iFirstPermissions, uint32_t iSecondPermissions,
                              uint16_t* responseCode);
    bool QueryFreeSpace(uint32_t* piFreeSpace, uint16_t* responseCode);

    // The next packet of a Get: the first names the object, the following ones only continue.
    template <typename AddObject>
    bool ContinueGet(bool first, AddObject addObject, uint16_t* responseCode);
    bool EndOfBodyFollows() const;

    ResourceContext hResourceContext;
    uint32_t connectionId = 0;  // of the last session, also behind its end
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
