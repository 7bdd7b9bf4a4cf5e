/* A line application in C, on the two shared libraries: a phone that fails in four ways, and a record that stops
 * growing. Usage: steer FOLDER [quick] */
#include <stdio.h>
#include <string.h>

#include "tandekor/simulator.h"
#include "tandekor/tandekor.h"

static int failures = 0;

static void Expect(int holds, const char* what)
{
    if (!holds && ++failures > 0)
        fprintf(stderr, "not so: %s (%s)\n", what, PHONE_LastError());
}

static const char* LastLogText(void)
{
    static char text[256];
    Expect(PHONE_GetLogText(PHONE_CountLogTexts(), text, sizeof text), "a text is logged");
    return text;
}

/* Pages that the process has in memory. */
static long Size(void)
{
    long all = 0, inMemory = 0;
    FILE* file = fopen("/proc/self/statm", "r");
    Expect(file != NULL && fscanf(file, "%ld %ld", &all, &inMemory) == 2 && fclose(file) == 0, "the size is known");
    return inMemory;
}

static void RunCommands(ResourceContext handle, int count)
{
    uint8_t step = 0;
    uint16_t status = 0;
    while (count-- > 0)
        TANDEKOR_AT_Get_CMUT(handle, &step, &status);
}

int main(int count, char** arguments)
{
    const uint8_t stuck[] = {0x7F};
    uint8_t written[] = {0x12}, charge = 0xFF, charging = 0;
    uint16_t status = 0xFFFF, obexError = 0;
    char path[512], call[128];
    long size = 0;

    const char* const folder = count > 1 ? arguments[1] : "";
    const ResourceContext handle = TANDEKOR_ConnectServer(5);
    Expect(handle != 0, "the phone is connected");
    snprintf(path, sizeof path, "%sbeach.jpg", folder);
    remove(path);

    PHONE_RefuseFrom("QLIB_DIAG_CONTROL_F", 1);
    Expect(TANDEKOR_ModeChangeResetMobile(handle, 1) == 0, "the boot fails");
    Expect(strstr(LastLogText(), "QLIB_DIAG_CONTROL_F") != NULL, "the log names what failed");
    Expect(PHONE_LastCall("QLIB_DIAG_CONTROL_F", call, sizeof call) && strcmp(call, "QLIB_DIAG_CONTROL_F(0)") == 0,
           "it was the way offline");

    PHONE_Reset();
    PHONE_Set("mode", "ftm");
    Expect(TANDEKOR_FTM_I2C_DATA_ACCESS(handle, 1, 0x51, 1, 7, 1, written) != 0, "the register is written");
    PHONE_SetI2cRegister(0x51, 7, stuck, 1);
    Expect(TANDEKOR_FTM_I2C_DATA_ACCESS(handle, 0, 0x51, 1, 7, 1, written) != 0 && written[0] == 0x7F,
           "the register reads what was not written");

    PHONE_Set("mode", "online");
    PHONE_Set("battery", "0");
    Expect(TANDEKOR_AT_Get_CBC(handle, &charging, &charge, &status) != 0 && charge == 0, "the battery is empty");

    TANDEKOR_AT_2_OBEX(handle, &status);
    PHONE_Refuse("QLIB_SendRAW", 6);
    TANDEKOR_OBEX_GetFile(handle, "Pictures\\Holiday\\", "beach.jpg", folder, &obexError);
    Expect(obexError == TANDEKOR_OBEX_GET_FAILED, "the transfer breaks off");
    remove(path);

    Expect(PHONE_Refuse("QLIB_NoSuch", 1) == 0 && strstr(PHONE_LastError(), "QLIB_NoSuch") != NULL,
           "an operation that does not exist is not refused");
    PHONE_Set("obex-mode", "0");
    RunCommands(handle, 10000);
    size = Size();
    RunCommands(handle, count > 2 ? 10000 : 1000000);
#ifndef __SANITIZE_ADDRESS__ /* which keeps what was freed */
    Expect(Size() - size < 64, "a million commands leave the process as large as ten thousand");
#else
    (void)size;
#endif
    TANDEKOR_DisconnectServer(handle);
    return failures == 0 ? 0 : 1;
}
