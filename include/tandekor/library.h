/*
 * Connecting to a phone, library mode, versions.
 *
 * Example:
 *
 *     char version[TANDEKOR_EXTENSION_VERSION_SIZE];
 *     ResourceContext phone = TANDEKOR_ConnectServer(1);
 *     if (phone == 0)
 *         ...                                     no phone, or a host library of another version
 *     TANDEKOR_GetExtensionVersion(version);      "TANDEKOR V02.4.15,QPHONEMS"
 *     ...
 *     TANDEKOR_DisconnectServer(phone);
 */
#ifndef TANDEKOR_LIBRARY_H
#define TANDEKOR_LIBRARY_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /* Library modes. */
    enum TandekorLibraryMode
    {
        TANDEKOR_LIBRARY_QPHONEMS = 0,
        TANDEKOR_LIBRARY_QPST = 1
    };

    /* Buffer sizes of the version texts, NUL included. */
    enum TandekorVersionSize
    {
        TANDEKOR_EXTENSION_VERSION_SIZE = 27,
        TANDEKOR_QLIB_VERSION_SIZE = 22
    };

    /* --- Connection */

    /*
     * Connect to the phone on a COM port or a logical port of the host library. Return the handle for all further
     * calls, or 0 if the host library is not of the supported version (it is then not asked to connect), refuses the
     * connection, or memory for it is short. If memory runs out for only one family of functions, the handle is valid
     * and the functions of that family return 0 until the handle's last disconnect. Nothing is logged. A second connect
     * to the same phone returns the same handle and counts one use more; the connection stays until it has been
     * disconnected as many times.
     *
     * [in] iComPort      number of the COM port
     * [in] iLogicalPort  number of the host library's logical port
     * [in] iWaitMs       how long the host library may wait for the phone, in milliseconds
     */
    TANDEKOR_API ResourceContext TANDEKOR_CALL TANDEKOR_ConnectServer(uint32_t iComPort);
    TANDEKOR_API ResourceContext TANDEKOR_CALL TANDEKOR_ConnectServerWithWait(uint32_t iComPort, uint32_t iWaitMs);
    TANDEKOR_API ResourceContext TANDEKOR_CALL TANDEKOR_ConnectServer_LogicalPort(uint32_t iLogicalPort);

    /*
     * Ends one use of the handle; the last use closes the boot box port and forgets the handle. The host library is
     * told in every case, also of a handle that is not known here.
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_DisconnectServer(ResourceContext hResourceContext);

    /*
     * Ends every connection, however often it is in use. A program that ends without this leaves its phones connected.
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_DisconnectAllServers(void);

    /* --- Mode and versions */

    /*
     * Selects the mode of this library and of the host library, which is QPHONEMS at the start. In the QPST mode every
     * AT and OBEX function returns 0; the uploads need it. Connections stay as they are.
     *
     * [in] bMode  1 for QPST, any other value for QPHONEMS (TandekorLibraryMode)
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_SetLibraryMode(uint8_t bMode);

    /*
     * Returns the mode of the host library: 1 if its version text names QPST, else 0. (It is asked, so it says what the
     * host library does and not what was last set.)
     */
    TANDEKOR_API uint8_t TANDEKOR_CALL TANDEKOR_GetLibraryMode(void);

    /*
     * The version of this library, with the mode, as in "TANDEKOR V02.4.15,QPHONEMS".
     *
     * [out] sVersion[TANDEKOR_EXTENSION_VERSION_SIZE]  text with a NUL
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_GetExtensionVersion(char* sVersion);

    /*
     * The supported version of the host library, with the mode, as in "QLIB V5.0.40,QPHONEMS".
     *
     * [out] sVersion[TANDEKOR_QLIB_VERSION_SIZE]  text with a NUL
     */
    TANDEKOR_API void TANDEKOR_CALL TANDEKOR_GetSupportedQLibVersion(char* sVersion);

#ifdef __cplusplus
}
#endif

#endif
