/*
 * The phone's own file server (IrDA OBEX), on the port that otherwise takes AT commands. TANDEKOR_AT_2_OBEX brings the
 * port there, TANDEKOR_OBEX_2_AT back; the library does not keep track of it.
 *
 * Each file function runs in a session of its own: connect, go to the folder, do the one thing, disconnect. The result
 * 1 says only that the session was opened and closed. Whether the work was done stands in *piObexError (out, always the
 * last argument), a sum of the bits below, 0 if all went well; look at both. Nothing is logged.
 *
 * Phone folders are paths from the root with a backslash behind every component ("Pictures\Holiday\"); "" is the root,
 * and a backslash in front goes to the root as well. A last component without its backslash is refused. Names and paths
 * are bytes, which go to the phone without any code conversion. A component or name that is too long for its packet
 * is refused and not sent. Local folders end in the host's own separator: the file name is put right
 * behind them, and both together have at most 259 characters.
 *
 * A reply is read only as far as it was delivered: where its fields count, one that is shorter than they say fails the
 * operation. Data that come with the reply that ends a transfer, in an End of Body header, are not taken.
 * In the QPST library mode every function gives 0, sends nothing and leaves its arguments alone.
 */
#ifndef TANDEKOR_OBEX_H
#define TANDEKOR_OBEX_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* Bits of *piObexError. */
    enum TandekorObexError
    {
        TANDEKOR_OBEX_NO_ERROR = 0,
        TANDEKOR_OBEX_CONNECT_FAILED = 1,    /* no session: result 0, nothing else was sent */
        TANDEKOR_OBEX_DISCONNECT_FAILED = 2, /* result 0 */
        TANDEKOR_OBEX_WALK_FAILED = 4,       /* no such folder, or a part that cannot be sent */
        TANDEKOR_OBEX_LISTING_FAILED = 8,
        TANDEKOR_OBEX_LISTING_TOO_LARGE = 16, /* larger than the caller's buffer */
        TANDEKOR_OBEX_GET_FAILED = 32,
        TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED = 64, /* get, delete: no such file on the phone; send: failed */
        TANDEKOR_OBEX_DELETE_FAILED = 256,
        TANDEKOR_OBEX_CREATE_FAILED = 512,
        TANDEKOR_OBEX_COPY_FAILED = 1024,
        TANDEKOR_OBEX_MOVE_FAILED = 2048,
        TANDEKOR_OBEX_FORBIDDEN = 4096, /* copy, move, permissions: the phone says Forbidden */
        TANDEKOR_OBEX_PERMISSIONS_FAILED = 8192,
        TANDEKOR_OBEX_FREE_SPACE_FAILED = 16384,
        TANDEKOR_OBEX_FREE_SPACE_NOT_FOUND = 32768 /* the phone says Not Found */
    };

    /*
     * Takes the port from OBEX back to AT commands by the escape sequence "+++", with a pause of a second on each
     * side. Gives 1 whether the phone answers or not: whether the port has changed shows at the next AT command.
     * piFirstByte: out, the first byte that the phone sent, 187 if it sent none.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte);

    /*
     * Fetches the listing of a folder, an XML text (x-obex/folder-listing) without a NUL behind it. pListing: out, of
     * *piListingSize bytes. *piListingSize: in, that capacity; out, the length of the listing. A listing that is larger
     * gives TANDEKOR_OBEX_LISTING_TOO_LARGE: *piListingSize is then the size that the phone announced, or still the
     * capacity if it announced none, and pListing may hold the listing's beginning.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_ListDir(ResourceContext hResourceContext, const char* psPhoneFolder,
                                               uint8_t* pListing, uint32_t* piListingSize, uint16_t* piObexError);

    /*
     * Fetches a file of the phone to a local folder, where it takes the place of a file of that name. A local file that
     * cannot be written does not stop the transfer and is no error here. A transfer that breaks off leaves what came.
     * A file that the phone ends at once, without a Body header, makes no local file. An empty name does nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_GetFile(ResourceContext hResourceContext, const char* psPhoneFolder,
                                               const char* psFileName, const char* psLocalFolder,
                                               uint16_t* piObexError);

    /*
     * Sends a local file to a folder of the phone, with its size and the time now (UTC). Unlike with the other
     * functions, the result is 0 if any error bit is set. The phone's answers to the packets are not looked at: only a
     * missing answer ends the transfer. A missing local file, or one that is no plain file or of 4 GiB and more, sends
     * nothing. What cannot be read of the local file is left out: such a file arrives short, or empty, without an
     * error. An empty name or local folder does nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_SendFile(ResourceContext hResourceContext, const char* psLocalFolder,
                                                const char* psFileName, const char* psPhoneFolder,
                                                uint16_t* piObexError);

    /*
     * Deletes an object of the phone. Of the phone's refusals only Not Found is an error here. An empty
     * name does nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_DeleteFile(ResourceContext hResourceContext, const char* psPhoneFolder,
                                                  const char* psFileName, uint16_t* piObexError);

    /* Makes a folder in a folder of the phone. An empty name does nothing. */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_CreateFolder(ResourceContext hResourceContext, const char* psPhoneFolder,
                                                    const char* psFolderName, uint16_t* piObexError);

    /*
     * Copy or move a file on the phone to another folder, under the same name. Each folder and the name together have
     * at most 127 characters. An empty text fails without a request.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_CopyFile(ResourceContext hResourceContext, const char* psSourceFolder,
                                                const char* psFileName, const char* psDestinationFolder,
                                                uint16_t* piObexError);
    TANDEKOR_API uint8_t TANDEKOR_OBEX_MoveFile(ResourceContext hResourceContext, const char* psSourceFolder,
                                                const char* psFileName, const char* psDestinationFolder,
                                                uint16_t* piObexError);

    /*
     * Sets the two permissions of a file, each a sum of 1 (read), 2 (write) and 4 (delete); 0 and every value above 7
     * stand for none. An empty name fails without a request.
     */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_SetAttr(ResourceContext hResourceContext, const char* psPhoneFolder,
                                               const char* psFileName, uint32_t iFirstPermissions,
                                               uint32_t iSecondPermissions, uint16_t* piObexError);

    /* The free space of the phone, in the phone's unit. *piFreeSpace is written if the phone tells it. */
    TANDEKOR_API uint8_t TANDEKOR_OBEX_FreeSpaceCheck(ResourceContext hResourceContext, uint32_t* piFreeSpace,
                                                      uint16_t* piObexError);

#ifdef __cplusplus
}
#endif

#endif
