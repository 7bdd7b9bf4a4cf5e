// The exported OBEX functions.
#include "channels/obex_channel.h"
#include "connection/forward.h"
#include "tandekor/obex.h"

using tandekor::Forward;
using tandekor::Obex;
using tandekor::ObexChannel;

uint8_t TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte)
{
    return Forward(Obex(hResourceContext), &ObexChannel::Switch_2_AT, piFirstByte);
}

uint8_t TANDEKOR_OBEX_ListDir(ResourceContext hResourceContext, const char* psPhoneFolder, uint8_t* pListing,
                              uint32_t* piListingSize, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::ListDir, psPhoneFolder, pListing, piListingSize, piObexError);
}

uint8_t TANDEKOR_OBEX_GetFile(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                              const char* psLocalFolder, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::GetFile, psPhoneFolder, psFileName, psLocalFolder,
                   piObexError);
}

uint8_t TANDEKOR_OBEX_SendFile(ResourceContext hResourceContext, const char* psLocalFolder, const char* psFileName,
                               const char* psPhoneFolder, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::SendFile, psLocalFolder, psFileName, psPhoneFolder,
                   piObexError);
}

uint8_t TANDEKOR_OBEX_DeleteFile(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                                 uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::DeleteFile, psPhoneFolder, psFileName, piObexError);
}

uint8_t TANDEKOR_OBEX_CreateFolder(ResourceContext hResourceContext, const char* psPhoneFolder,
                                   const char* psFolderName, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::CreateFolder, psPhoneFolder, psFolderName, piObexError);
}

uint8_t TANDEKOR_OBEX_CopyFile(ResourceContext hResourceContext, const char* psSourceFolder, const char* psFileName,
                               const char* psDestinationFolder, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::CopyFile, psSourceFolder, psFileName, psDestinationFolder,
                   piObexError);
}

uint8_t TANDEKOR_OBEX_MoveFile(ResourceContext hResourceContext, const char* psSourceFolder, const char* psFileName,
                               const char* psDestinationFolder, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::MoveFile, psSourceFolder, psFileName, psDestinationFolder,
                   piObexError);
}

uint8_t TANDEKOR_OBEX_SetAttr(ResourceContext hResourceContext, const char* psPhoneFolder, const char* psFileName,
                              uint32_t iFirstPermissions, uint32_t iSecondPermissions, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::SetAttr, psPhoneFolder, psFileName, iFirstPermissions,
                   iSecondPermissions, piObexError);
}

uint8_t TANDEKOR_OBEX_FreeSpaceCheck(ResourceContext hResourceContext, uint32_t* piFreeSpace, uint16_t* piObexError)
{
    return Forward(Obex(hResourceContext), &ObexChannel::FreeSpaceCheck, piFreeSpace, piObexError);
}
