/* A caller in C: the public headers have to serve it as they stand. */
#include "tandekor/tandekor.h"

int ConnectionServesCaller(uint8_t* piValue, uint32_t* piHardwareVersion, char* sVersion);

/* One call of each family through a connection of its own. 1 if all of them went well. */
int ConnectionServesCaller(uint8_t* piValue, uint32_t* piHardwareVersion, char* sVersion)
{
    const TandekorCallback none = 0;
    uint16_t status = 0xFFFF;
    int good = 0;
    const ResourceContext handle = TANDEKOR_ConnectServer(7);

    TANDEKOR_GetExtensionVersion(sVersion);
    TANDEKOR_SetCallback(handle, none);
    good = handle != 0 && TANDEKOR_AT_Get_CMUT(handle, piValue, &status) == 1 && status == 0
           && TANDEKOR_FTM_GET_HARDWARE_VERSION(handle, piHardwareVersion) == 1
           && TANDEKOR_OBEX_2_AT(handle, &status) == 1;
    TANDEKOR_DisconnectServer(handle);
    return good;
}
