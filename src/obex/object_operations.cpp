// What the phone's server does with files and folders by itself: delete, create, copy, move, permissions, free space.
// The last four are the server's own, requested by Application Parameters that only it knows.
#include <cstring>

#include "obex/in_session.h"

namespace tandekor
{

namespace
{

constexpr size_t mostPathCharacters = 127;  // a tag's length is one byte, and a character takes two

// A folder with its backslashes turned into slashes, and a file name after it.
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

// The error bits of an operation, of whose refusals one has a bit of its own.
TandekorObexError ErrorOf(Outcome outcome, TandekorObexError failed, uint8_t refusalCode, TandekorObexError refused)
{
    if (outcome.Is(successCode))
        return TANDEKOR_OBEX_NO_ERROR;
    return outcome.Is(refusalCode) ? refused : failed;
}

// The last four bytes of a reply that is shorter than 256 bytes.
bool LastDword(ReplyReader reply, uint32_t* value)
{
    const int left = reply.LeftOfPacket();
    if (reply.PacketLength() > 255 || !reply.PacketIsWhole() || left < 4)
        return false;
    reply.Skip(left - 5);
    return reply.DwordFollows(value);
}

uint8_t CopyOrMove(ResourceContext hResourceContext, const char* action, TandekorObexError failed,
                   const char* psSourceFolder, const char* psFileName, const char* psDestinationFolder,
                   uint16_t* piObexError)
{
    const auto copyOrMove = [&](ObexChannel& obex)
    {
        const ServerPath source(psSourceFolder, psFileName);
        const ServerPath destination(psDestinationFolder, psFileName);
        if (*psSourceFolder == '\0' || *psFileName == '\0' || *psDestinationFolder == '\0' || !source.Fits()
            || !destination.Fits())
            return failed;
        const size_t m = source.Length();
        const size_t k = destination.Length();

        obex.StartRequest(finalPutOperation);
        obex.AddByte(applicationParametersHeader);
        obex.AddWord(static_cast<uint16_t>(2 * m + 2 * k + 13));
        obex.AddByte(actionTag);
        obex.AddByte(4);
        obex.AddBytes(action, 4);
        obex.AddByte(sourcePathTag);
        obex.AddByte(static_cast<uint8_t>(2 * m));
        obex.AddWidened(source.Text(), m);
        obex.AddByte(destinationPathTag);
        obex.AddByte(static_cast<uint8_t>(2 * k));
        obex.AddWidened(destination.Text(), k);
        return ErrorOf(obex.SendPacket(ObexChannel::copyTimeMs), failed, forbiddenCode, TANDEKOR_OBEX_FORBIDDEN);
    };
    return InSession(hResourceContext, nullptr, piObexError, copyOrMove);
}

}  // namespace

}  // namespace tandekor

using namespace tandekor;

// A Put without a body.
uint8_t TANDEKOR_OBEX_DeleteFile(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                                 uint16_t* piObexError)
{
    const auto deleteObject = [&](ObexChannel& obex)
    {
        if (*psFileName == '\0')
            return TANDEKOR_OBEX_NO_ERROR;
        obex.StartRequest(finalPutOperation);
        obex.AddName(psFileName);
        const Outcome outcome = obex.SendPacket(ObexChannel::getTimeMs);
        if (!outcome.exchanged)
            return TANDEKOR_OBEX_DELETE_FAILED;
        return outcome.code == notFoundCode ? TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED : TANDEKOR_OBEX_NO_ERROR;
    };
    return InSession(hResourceContext, psPhoneFolder, piObexError, deleteObject);
}

uint8_t TANDEKOR_OBEX_CreateFolder(ResourceContext hResourceContext, const char* psPhoneFolder,
                                   const char* psFolderName, uint16_t* piObexError)
{
    const auto makeFolder = [&](ObexChannel& obex)
    {
        if (*psFolderName == '\0')
            return TANDEKOR_OBEX_NO_ERROR;
        obex.StartSetPath(createFolder);
        obex.AddName(psFolderName);
        return obex.SendPacket().Is(successCode) ? TANDEKOR_OBEX_NO_ERROR : TANDEKOR_OBEX_CREATE_FAILED;
    };
    return InSession(hResourceContext, psPhoneFolder, piObexError, makeFolder);
}

uint8_t TANDEKOR_OBEX_CopyFile(ResourceContext hResourceContext, const char* psSourceFolder, const char* psFileName,
                               const char* psDestinationFolder, uint16_t* piObexError)
{
    return CopyOrMove(hResourceContext, "copy", TANDEKOR_OBEX_COPY_FAILED, psSourceFolder, psFileName,
                      psDestinationFolder, piObexError);
}

uint8_t TANDEKOR_OBEX_MoveFile(ResourceContext hResourceContext, const char* psSourceFolder, const char* psFileName,
                               const char* psDestinationFolder, uint16_t* piObexError)
{
    return CopyOrMove(hResourceContext, "move", TANDEKOR_OBEX_MOVE_FAILED, psSourceFolder, psFileName,
                      psDestinationFolder, piObexError);
}

uint8_t TANDEKOR_OBEX_SetAttr(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                              uint32_t iFirstPermissions, uint32_t iSecondPermissions, uint16_t* piObexError)
{
    const auto setPermissions = [&](ObexChannel& obex)
    {
        if (*psFileName == '\0')
            return TANDEKOR_OBEX_PERMISSIONS_FAILED;
        const PermissionText first(iFirstPermissions);
        const PermissionText second(iSecondPermissions);
        const size_t count = first.Length() + second.Length();

        obex.StartRequest(finalPutOperation);
        obex.AddName(psFileName);
        obex.AddByte(applicationParametersHeader);
        obex.AddWord(static_cast<uint16_t>(count + 5));
        obex.AddByte(permissionsTag);
        obex.AddByte(static_cast<uint8_t>(count));
        obex.AddBytes(first.Text(), first.Length());
        obex.AddBytes(second.Text(), second.Length());
        return ErrorOf(obex.SendPacket(), TANDEKOR_OBEX_PERMISSIONS_FAILED, forbiddenCode, TANDEKOR_OBEX_FORBIDDEN);
    };
    return InSession(hResourceContext, psPhoneFolder, piObexError, setPermissions);
}

uint8_t TANDEKOR_OBEX_FreeSpaceCheck(ResourceContext hResourceContext, uint32_t* piFreeSpace, uint16_t* piObexError)
{
    const auto queryFreeSpace = [&](ObexChannel& obex)
    {
        constexpr uint8_t query[] = {applicationParametersHeader, 0x00, 0x06, freeSpaceTag, 0x01, 0x02};
        obex.StartRequest(getOperation);
        obex.AddBytes(query, sizeof query);
        const Outcome outcome = obex.SendPacket(ObexChannel::getTimeMs);
        if (outcome.Is(successCode) && !LastDword(obex.ReplyFrom(3), piFreeSpace))
            return TANDEKOR_OBEX_FREE_SPACE_FAILED;
        return ErrorOf(outcome, TANDEKOR_OBEX_FREE_SPACE_FAILED, notFoundCode, TANDEKOR_OBEX_FREE_SPACE_NOT_FOUND);
    };
    return InSession(hResourceContext, nullptr, piObexError, queryFreeSpace);
}
