/*
 * The phone's own file server (IrDA OBEX), on the port that otherwise takes AT commands. TANDEKOR_AT_2_OBEX brings the
 * port there, TANDEKOR_OBEX_2_AT back; the library does not keep track of it.
 *
 * Each file function runs in a session of its own: connect, go to the folder, do the one thing, disconnect. The result
 * 1 says only that the session was opened and closed. Whether the work was done stands in *piObexError; look at both.
 * Nothing is logged.
 *
 *     uint16_t status = 0, error = 0;
 *     TANDEKOR_AT_2_OBEX(phone, &status);
 *     if (TANDEKOR_OBEX_GetFile(phone, "Pictures\\", "Test.jpg", "/tmp/", &error) == 0 || error != 0)
 *         ...                                   the bits of error say what failed
 *     TANDEKOR_OBEX_2_AT(phone, &status);
 *
 * Phone folders are paths from the root with a backslash after every component ("Pictures\Holiday\"); "" is the root,
 * and a leading backslash goes to the root as well. A last component without its backslash is refused. The same bytes
 * name a file on both sides: each byte of a name becomes one character for the phone, so a UTF-8 name with other than
 * ASCII characters is not what the phone shows. A component or name that is too long for its packet is refused and not
 * sent. Local folders end in the host's own separator: the file name is put right after them, and both together have at
 * most 259 characters.
 *
 * A reply is read only as far as it was delivered: where its fields count, one that is shorter than they say fails the
 * operation. A reply of length 0 counts as the response code 187, which is no success. Data that come with the reply
 * that ends a transfer, in an End of Body header, are not taken. In the QPST library mode every function returns 0,
 * sends nothing and leaves its arguments unchanged.
 *
 * [out] piObexError    a sum of the bits of TandekorObexError, 0 if all went well
 * [in]  psPhoneFolder  folder on the phone
 * [in]  psFileName     name of the file, without a folder
 * [in]  psLocalFolder  folder on the host, with its closing separator
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

    /* Permissions of a file, to be added up. */
    enum TandekorObexPermission
    {
        TANDEKOR_OBEX_PERMIT_NONE = 0,
        TANDEKOR_OBEX_PERMIT_READ = 1,
        TANDEKOR_OBEX_PERMIT_WRITE = 2,
        TANDEKOR_OBEX_PERMIT_DELETE = 4
    };

    /* Limits and fixed values. */
    enum TandekorObexSize
    {
        TANDEKOR_OBEX_LONGEST_LOCAL_PATH = 259,
        TANDEKOR_OBEX_LONGEST_MOVED_PATH = 127,
        TANDEKOR_OBEX_NO_BYTE = 187 /* TANDEKOR_OBEX_2_AT: the phone sent nothing */
    };

    /*
     * Takes the port from OBEX back to AT commands by the escape sequence "+++", with a pause of a second on each side.
     * Returns 1 whether the phone answers or not: whether the port has changed shows at the next AT command.
     *
     * [out] piFirstByte  the first byte that the phone sent, TANDEKOR_OBEX_NO_BYTE if it sent none
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_2_AT(ResourceContext hResourceContext, uint16_t* piFirstByte);

    /*
     * Fetches the listing of a folder, an XML text (x-obex/folder-listing).
     *
     * [out]    pListing[*piListingSize]  the listing, without a NUL after it. One that is larger than the buffer gives
     *                                    TANDEKOR_OBEX_LISTING_TOO_LARGE, and the buffer may hold its beginning
     * [in,out] piListingSize  size of the buffer; then the length of the listing. If the listing is too large, or the
     *                         transfer fails after the phone has announced a size, it is that size; without one it is
     *                         unchanged
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_ListDir(ResourceContext hResourceContext,
                                                             const char* psPhoneFolder, uint8_t* pListing,
                                                             uint32_t* piListingSize, uint16_t* piObexError);

    /*
     * Fetches a file of the phone to a local folder, where it replaces a file of that name. The transfer goes on as
     * long as the phone answers Continue. A local file that cannot be written does not stop it and is no error here:
     * after the first failed write the remaining data are dropped. A transfer that breaks off leaves what came. A file
     * that the phone ends at once, without a Body header, makes no local file, and a local file of that name stays. An
     * empty name does nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_GetFile(ResourceContext hResourceContext,
                                                             const char* psPhoneFolder, const char* psFileName,
                                                             const char* psLocalFolder, uint16_t* piObexError);

    /*
     * Sends a local file to a folder of the phone, with its size and the time now (UTC). Unlike with the other
     * functions, the result is 0 if any error bit is set. The phone's answers to the packets are not checked: a phone
     * that refuses them is not noticed, and only a missing answer ends the transfer. The packet size that the phone
     * asks for is not regarded either. A missing local file, or one that is no plain file or of 4 GiB and more, sends
     * nothing. What cannot be read of the local file is left out: such a file arrives short, or empty, without an
     * error. An empty name or local folder does nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_SendFile(ResourceContext hResourceContext,
                                                              const char* psLocalFolder, const char* psFileName,
                                                              const char* psPhoneFolder, uint16_t* piObexError);

    /*
     * Deletes an object of the phone. Of the phone's refusals only Not Found is an error here. An empty name does
     * nothing.
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_DeleteFile(ResourceContext hResourceContext,
                                                                const char* psPhoneFolder, const char* psFileName,
                                                                uint16_t* piObexError);

    /*
     * Makes a folder in a folder of the phone. An empty name does nothing.
     *
     * [in] psFolderName  name of the new folder
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_CreateFolder(ResourceContext hResourceContext,
                                                                  const char* psPhoneFolder, const char* psFolderName,
                                                                  uint16_t* piObexError);

    /*
     * Copy or move a file on the phone to another folder, under the same name. Each folder and the name together have
     * at most 127 characters. An empty text fails without a request.
     *
     * [in] psSourceFolder       folder in which the file is
     * [in] psDestinationFolder  folder to which it goes
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_CopyFile(ResourceContext hResourceContext,
                                                              const char* psSourceFolder, const char* psFileName,
                                                              const char* psDestinationFolder, uint16_t* piObexError);
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_MoveFile(ResourceContext hResourceContext,
                                                              const char* psSourceFolder, const char* psFileName,
                                                              const char* psDestinationFolder, uint16_t* piObexError);

    /*
     * Sets the two permissions of a file. An empty name fails without a request.
     *
     * [in] iFirstPermissions   sum of TandekorObexPermission; 0 and every value above 7 stand for none
     * [in] iSecondPermissions  as the first
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_SetAttr(ResourceContext hResourceContext,
                                                             const char* psPhoneFolder, const char* psFileName,
                                                             uint32_t iFirstPermissions, uint32_t iSecondPermissions,
                                                             uint16_t* piObexError);

    /*
     * The free space of the phone. A reply that does not fit its own length gives TANDEKOR_OBEX_FREE_SPACE_FAILED.
     *
     * [out] piFreeSpace  in the phone's unit; written if the phone reports it
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_OBEX_FreeSpaceCheck(ResourceContext hResourceContext,
                                                                    uint32_t* piFreeSpace, uint16_t* piObexError);

#ifdef __cplusplus
}
#endif

#endif
