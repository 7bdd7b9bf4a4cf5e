// What the phone's server does with files and folders by itself: delete, create, copy, move, permissions, free space.
// The last four are the server's own, asked for by Application Parameters that only it knows.
#include <cstring>

#include "channels/obex_session.h"
#include "channels/reply_reader.h"

namespace tandekor
{

namespace
{

// Tags of the server's Application Parameters.
constexpr uint8_t freeSpaceTag = 0x32;
constexpr uint8_t actionTag = 0x34;
constexpr uint8_t sourcePathTag = 0x35;
constexpr uint8_t destinationPathTag = 0x36;
constexpr uint8_t permissionsTag = 0x38;

constexpr uint8_t createFolder = 0x00;
constexpr size_t mostPathCharacters = 127;  // a tag's length is one byte, and a character takes two

// A folder with its backslashes turned into slashes, and a file name behind it.
class ServerPath
{
public:
    ServerPath(const char* folder, const char* name) : length(std::strlen(folder) + std::strlen(name))
    {
        if (!Fits())
            return;
        std::strcpy(text, folder);
        for (char* character = text; *character != '\0'; ++character)
        {
            if (*character == '\\')
                *character = '/';
        }
        std::strcat(text, name);
    }

    bool Fits() const { return length <= mostPathCharacters; }
    size_t Length() const { return length; }
    const char* Text() const { return text; }

private:
    size_t length;
    char text[mostPathCharacters + 1] = {};
};

// The letters of a permission mask between double quotes; no letter for 0 and for every value above 7.
class PermissionText
{
public:
    explicit PermissionText(uint32_t mask)
    {
        Add('"');
        if (mask <= 7)
        {
            if ((mask & 1) != 0)
                Add('R');
            if ((mask & 2) != 0)
                Add('W');
            if ((mask & 4) != 0)
                Add('D');
        }
        Add('"');
    }

    size_t Length() const { return length; }
    const char* Text() const { return text; }

private:
    void Add(char character) { text[length++] = character; }

    char text[5] = {};
    size_t length = 0;
};

// The error bits of an operation by the phone's response code, of which one refusal has a bit of its own.
int ErrorOf(bool exchanged, uint16_t responseCode, int failed, uint16_t refusalCode, int refused)
{
    if (exchanged && responseCode == successCode)
        return 0;
    return exchanged && responseCode == refusalCode ? refused : failed;
}

}  // namespace

uint8_t ObexChannel::DeleteFile(const char* psPhoneFolder, const char* psFileName, uint16_t* piObexError)
{
    return InSession(psPhoneFolder, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         if (!DeleteObject(psFileName, &responseCode))
                             return TANDEKOR_OBEX_DELETE_FAILED;
                         return responseCode == notFoundCode ? TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED
                                                             : TANDEKOR_OBEX_NO_ERROR;
                     });
}

// A Put without a body.
bool ObexChannel::DeleteObject(const char* psFileName, uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psFileName == '\0')
        return true;
    StartPacket(finalPutOperation);
    AddConnectionId();
    AddName(psFileName);
    return SendPacketWithTimeout(getTimeMs, responseCode);
}

uint8_t ObexChannel::CreateFolder(const char* psPhoneFolder, const char* psFolderName, uint16_t* piObexError)
{
    return InSession(psPhoneFolder, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         return MakeFolder(psFolderName, &responseCode) ? TANDEKOR_OBEX_NO_ERROR
                                                                        : TANDEKOR_OBEX_CREATE_FAILED;
                     });
}

bool ObexChannel::MakeFolder(const char* psFolderName, uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psFolderName == '\0')
        return true;
    StartPacket(setPathOperation);
    packetBuffer.AddByte(createFolder);
    packetBuffer.AddByte(0);  // constants
    AddConnectionId();
    AddName(psFolderName);
    return SendPacket(responseCode) && *responseCode == successCode;
}

uint8_t ObexChannel::CopyFile(const char* psSourceFolder, const char* psFileName, const char* psDestinationFolder,
                              uint16_t* piObexError)
{
    return InSession(nullptr, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         const bool exchanged
                             = CopyOrMoveObject(false, psSourceFolder, psFileName, psDestinationFolder, &responseCode);
                         return ErrorOf(exchanged, responseCode, TANDEKOR_OBEX_COPY_FAILED, forbiddenCode,
                                        TANDEKOR_OBEX_FORBIDDEN);
                     });
}

uint8_t ObexChannel::MoveFile(const char* psSourceFolder, const char* psFileName, const char* psDestinationFolder,
                              uint16_t* piObexError)
{
    return InSession(nullptr, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         const bool exchanged
                             = CopyOrMoveObject(true, psSourceFolder, psFileName, psDestinationFolder, &responseCode);
                         return ErrorOf(exchanged, responseCode, TANDEKOR_OBEX_MOVE_FAILED, forbiddenCode,
                                        TANDEKOR_OBEX_FORBIDDEN);
                     });
}

// With an empty text nothing is sent; the response code 0 then counts as a failure.
bool ObexChannel::CopyOrMoveObject(bool isMove, const char* psSourceFolder, const char* psFileName,
                                   const char* psDestinationFolder, uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psSourceFolder == '\0' || *psFileName == '\0' || *psDestinationFolder == '\0')
        return true;
    const ServerPath source(psSourceFolder, psFileName);
    const ServerPath destination(psDestinationFolder, psFileName);
    if (!source.Fits() || !destination.Fits())
        return false;
    const size_t m = source.Length();
    const size_t k = destination.Length();

    StartPacket(finalPutOperation);
    AddConnectionId();
    packetBuffer.AddByte(applicationParametersHeader);
    AddBigEndianWord(static_cast<uint16_t>(2 * m + 2 * k + 13));
    packetBuffer.AddByte(actionTag);
    packetBuffer.AddByte(4);
    packetBuffer.AddBytes(isMove ? "move" : "copy", 4);
    packetBuffer.AddByte(sourcePathTag);
    packetBuffer.AddByte(static_cast<uint8_t>(2 * m));
    AddWidened(source.Text(), m);
    packetBuffer.AddByte(destinationPathTag);
    packetBuffer.AddByte(static_cast<uint8_t>(2 * k));
    AddWidened(destination.Text(), k);
    return SendPacketWithTimeout(copyTimeMs, responseCode);
}

uint8_t ObexChannel::SetAttr(const char* psPhoneFolder, const char* psFileName, uint32_t iFirstPermissions,
                             uint32_t iSecondPermissions, uint16_t* piObexError)
{
    return InSession(psPhoneFolder, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         const bool exchanged
                             = SetObjectPermissions(psFileName, iFirstPermissions, iSecondPermissions, &responseCode);
                         return ErrorOf(exchanged, responseCode, TANDEKOR_OBEX_PERMISSIONS_FAILED, forbiddenCode,
                                        TANDEKOR_OBEX_FORBIDDEN);
                     });
}

bool ObexChannel::SetObjectPermissions(const char* psFileName, uint32_t iFirstPermissions, uint32_t iSecondPermissions,
                                       uint16_t* responseCode)
{
    *responseCode = 0;
    if (*psFileName == '\0')
        return true;
    const PermissionText first(iFirstPermissions);
    const PermissionText second(iSecondPermissions);
    const size_t count = first.Length() + second.Length();

    StartPacket(finalPutOperation);
    AddConnectionId();
    AddName(psFileName);
    packetBuffer.AddByte(applicationParametersHeader);
    AddBigEndianWord(static_cast<uint16_t>(count + 5));
    packetBuffer.AddByte(permissionsTag);
    packetBuffer.AddByte(static_cast<uint8_t>(count));
    packetBuffer.AddBytes(first.Text(), first.Length());
    packetBuffer.AddBytes(second.Text(), second.Length());
    return SendPacket(responseCode);
}

uint8_t ObexChannel::FreeSpaceCheck(uint32_t* piFreeSpace, uint16_t* piObexError)
{
    return InSession(nullptr, piObexError,
                     [&]
                     {
                         uint16_t responseCode = 0;
                         const bool exchanged = QueryFreeSpace(piFreeSpace, &responseCode);
                         return ErrorOf(exchanged, responseCode, TANDEKOR_OBEX_FREE_SPACE_FAILED, notFoundCode,
                                        TANDEKOR_OBEX_FREE_SPACE_NOT_FOUND);
                     });
}

// The value is the last four bytes of the reply, which is shorter than 256 bytes.
bool ObexChannel::QueryFreeSpace(uint32_t* piFreeSpace, uint16_t* responseCode)
{
    constexpr uint8_t query[] = {applicationParametersHeader, 0x00, 0x06, freeSpaceTag, 0x01, 0x02};
    *responseCode = 0;
    StartPacket(getOperation);
    AddConnectionId();
    packetBuffer.AddBytes(query, sizeof query);
    if (!SendPacketWithTimeout(getTimeMs, responseCode))
        return false;
    if (*responseCode == successCode)
    {
        const int length = packetBuffer.ResponseAt(2);
        if (packetBuffer.ResponseAt(1) != 0 || length < 3 + 4 || length > packetBuffer.ResponseLength())
            return false;
        *piFreeSpace = 0;
        for (int i = length - 4; i < length; ++i)
            *piFreeSpace = *piFreeSpace << 8 | packetBuffer.ResponseAt(i);
    }
    return true;
}

}  // namespace tandekor
