/* A line application in C: one call of each family, on whatever host library it finds. */
#include <stdio.h>

#include "tandekor/tandekor.h"

static int failures = 0;

static void Expect(int holds, const char* what)
{
    if (!holds)
    {
        fprintf(stderr, "not so: %s\n", what);
        failures++;
    }
}

int main(void)
{
    uint16_t status = 0xFFFF;
    uint32_t hardwareVersion = 0xFFFFFFFF;

    const ResourceContext handle = TANDEKOR_ConnectServer(5);
    Expect(handle == 77, "the connection has the recorder's handle");
    Expect(TANDEKOR_Start_LOG(handle, "preload.txt") != 0, "the log starts");
    Expect(TANDEKOR_AT_CHUP(handle, &status) != 0, "the AT command is exchanged");
    Expect(TANDEKOR_FTM_GET_HARDWARE_VERSION(handle, &hardwareVersion) != 0, "the factory request is exchanged");
    Expect(TANDEKOR_ONLINE_TO_FTM(handle) != 0, "the procedure passes");
    TANDEKOR_DisconnectServer(handle);
    Expect(TANDEKOR_AT_CHUP(handle, &status) == 0, "nothing is sent after the disconnect");
    return failures == 0 ? 0 : 1;
}
