/* Connecting to a phone, library mode, versions. */
#ifndef TANDEKOR_LIBRARY_H
#define TANDEKOR_LIBRARY_H

#include "tandekor/common.h"

#ifdef __cplusplus
extern "C"
{
#endif

    /*
     * Connect to the phone on a COM port or a logical port of the host library. Gives the handle for all further
     * calls, or 0 if the host library is not of the supported version (it is then not asked to connect), refuses the
     * connection, or memory for it is short. Where memory lacks for one family of functions only, the handle is good
     * and that family gives 0. Nothing is logged. A second connect to the same phone gives the same handle and counts
     * one use more; the connection stays until it was disconnected as often. iWaitMs is how long the host library may
     * wait for the phone, in milliseconds.
     */
    TANDEKOR_API ResourceContext TANDEKOR_ConnectServer(uint32_t iComPort);
    TANDEKOR_API ResourceContext TANDEKOR_ConnectServerWithWait(uint32_t iComPort, uint32_t iWaitMs);
    TANDEKOR_API ResourceContext TANDEKOR_ConnectServer_LogicalPort(uint32_t iLogicalPort);

    /*
     * Ends one use of the handle; the last use closes the boot box port and forgets the handle. The host library is
     * told in every case, also of a handle that is not known here.
     */
    TANDEKOR_API void TANDEKOR_DisconnectServer(ResourceContext hResourceContext);

    /* Ends every connection, however often it is in use. A program that ends without this leaves its phones connected.
     */
    TANDEKOR_API void TANDEKOR_DisconnectAllServers(void);

    /*
     * Selects the mode of this library and of the host library: 1 for QPST, any other value for QPHONEMS, which is the
     * mode at the start. In the QPST mode every AT and OBEX function gives 0. Connections stay as they are.
     */
    TANDEKOR_API void TANDEKOR_SetLibraryMode(uint8_t bMode);

    /* 1 if the host library's version text names the QPST mode, else 0. */
    TANDEKOR_API uint8_t TANDEKOR_GetLibraryMode(void);

    /*
     * The version of this library and the supported version of the host library, each with the mode, as in
     * "TANDEKOR V02.4.15,QPHONEMS" and "QLIB V5.0.40,QPHONEMS". sVersion: out, at least 27 and 22 bytes, NUL included.
     */
    TANDEKOR_API void TANDEKOR_GetExtensionVersion(char* sVersion);
    TANDEKOR_API void TANDEKOR_GetSupportedQLibVersion(char* sVersion);

#ifdef __cplusplus
}
#endif

#endif
