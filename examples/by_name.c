/* A line application in C that loads the two libraries by name and finds its functions in them, one or two of each
 * family. It prints results and values, which are the same on every system, as is its log, by_name.log. Usage: by_name
 * FOLDER */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "tandekor/simulator.h"
#include "tandekor/tandekor.h"

typedef void (*Function)(void);

#ifdef _WIN32
#include <windows.h>
static void* Load(const char* folder, const char* name)
{
    char path[MAX_PATH];
    snprintf(path, sizeof path, "%s\\%s.dll", folder, name);
    return LoadLibraryExA(path, NULL, LOAD_WITH_ALTERED_SEARCH_PATH);
}
static Function Find(void* library, const char* name) { return (Function)GetProcAddress(library, name); }
static unsigned long Problem(void) { return GetLastError(); }
#else
#include <dlfcn.h>
static void* Load(const char* folder, const char* name)
{
    char path[4096];
    snprintf(path, sizeof path, "%s/lib%s.so", folder, name);
    return dlopen(path, RTLD_NOW | RTLD_LOCAL);
}
static Function Find(void* library, const char* name)
{
    Function function;
    void* const found = dlsym(library, name);
    memcpy(&function, &found, sizeof function);
    return function;
}
static unsigned long Problem(void) { return fprintf(stderr, "%s\n", dlerror()) > 0; }
#endif

static void* library;
static void* host;

static Function Needed(void* from, const char* name)
{
    const Function function = from == NULL ? NULL : Find(from, name);
    if (function == NULL)
    {
        fprintf(stderr, "%s is not to be had: error %lu\n", name, Problem());
        exit(1);
    }
    return function;
}

#define CALL(name) ((__typeof__(&TANDEKOR_##name))Needed(library, "TANDEKOR_" #name))
#define STEER(name) ((__typeof__(&PHONE_##name))Needed(host, "PHONE_" #name))
#define SHOW(name, ...) printf(#name ": %u\n", CALL(name)(__VA_ARGS__))

static void TANDEKOR_CALL Progress(uint32_t status, uint32_t percent) { printf("\t%u %u %%\n", status, percent); }

static void ShowBytes(const char* what, const uint8_t* bytes, uint32_t count)
{
    printf("\t%s:", what);
    while (count-- > 0)
        printf(" %02X", *bytes++);
    printf("\n");
}

static void ShowAt(ResourceContext phone)
{
    static char rows[TANDEKOR_AT_MOST_MESSAGES][TANDEKOR_AT_MESSAGE_SIZE];
    static uint32_t numbers[4][TANDEKOR_AT_MOST_MESSAGES];
    static char text[TANDEKOR_AT_TEXT_SIZE];
    uint8_t first = 0;
    uint8_t second = 0;
    uint16_t status = 0xFFFF;
    uint32_t count = 0;
    SHOW(AT_Get_CBC, phone, &first, &second, &status);
    printf("\t%u %u %u\n", first, second, status);
    SHOW(AT_Get_CGMI, phone, text, &status);
    printf("\t%s %u\n", text, status);
    SHOW(AT_CMGL, phone, TANDEKOR_AT_MESSAGE_ALL, numbers[0], numbers[1], numbers[2], numbers[3], rows, &count,
         &status);
    while (count-- > 0)
        printf("\t%u %u %u %u %.1024s\n", numbers[0][count], numbers[1][count], numbers[2][count], numbers[3][count],
               rows[count]);
    SHOW(AT_Set_CMUT, phone, 7, &status);
    printf("\t%u\n", status);
}

static void ShowFiles(ResourceContext phone)
{
    static uint8_t listing[4096];
    uint32_t size = sizeof listing;
    uint16_t status = 0;
    uint8_t byte = 0;
    SHOW(AT_2_OBEX, phone, &status);
    SHOW(OBEX_ListDir, phone, "Pictures\\Holiday\\", listing, &size, &status);
    printf("\t%.*s %u\n", (int)size, (const char*)listing, status);
    SHOW(OBEX_GetFile, phone, "Pictures\\Holiday\\", "beach.jpg", "", &status);
    printf("\t%u\n", status);
    SHOW(OBEX_DeleteFile, phone, "Pictures\\", "none.jpg", &status);
    printf("\t%u\n", status);
    SHOW(OBEX_2_AT, phone, &status);
    FILE* const file = fopen("beach.jpg", "rb");
    for (size = 0; file != NULL && fread(&byte, 1, 1, file) == 1; size = size * 31 + byte)
        ;
    printf("\tcontent %08X\n", size);
    if (file != NULL)
        fclose(file);
    remove("beach.jpg");
}

static void ShowUpload(ResourceContext phone)
{
    static const char image[2048] = "image";
    const char* const name = "by_name.image";
    FILE* const file = fopen(name, "wb");
    if (file == NULL || fwrite(image, sizeof image, 1, file) != 1 || fclose(file) != 0)
        exit(1);
    CALL(SetCallback)(phone, Progress);
    SHOW(UploadCEFS_File, phone, (TandekorUploadArgument)name, 0);
    CALL(SetCallback)(phone, NULL);
    remove(name);
}

static void ShowFactoryMode(ResourceContext phone)
{
    uint8_t bytes[4] = {0x12, 0x34, 0x56, 0x78};
    uint8_t value = 0;
    uint8_t status = 0;
    uint32_t numbers[3] = {0};
    SHOW(ONLINE_TO_FTM, phone);
    SHOW(Phone_Model, phone, &numbers[0], &numbers[1], &numbers[2]);
    printf("\t%08X %u %u\n", numbers[0], numbers[1], numbers[2]);
    SHOW(FTM_GET_HARDWARE_VERSION, phone, numbers);
    printf("\t%u\n", numbers[0]);
    SHOW(GPIO_GET_IN, phone, 30, &value, &status);
    printf("\t%u %u\n", value, status);
    SHOW(FTM_I2C_DATA_ACCESS, phone, TANDEKOR_ACCESS_WRITE, 0x51, 1, 7, 4, bytes);
    memset(bytes, 0, sizeof bytes);
    SHOW(FTM_I2C_DATA_ACCESS, phone, TANDEKOR_ACCESS_READ, 0x51, 1, 7, 4, bytes);
    ShowBytes("register", bytes, sizeof bytes);
    SHOW(AFC_Deviation, phone, 9, 10700, 3, 1, 0, 256);
    STEER(RefuseFrom)("QLIB_DIAG_CONTROL_F", 1);
    SHOW(FTM_TO_ONLINE, phone);
}

int main(int count, char** arguments)
{
    static char text[16384];
    const char* const folder = count > 1 ? arguments[1] : ".";
    library = Load(folder, "Tandekor6R");
    host = Load(folder, "QMSL_MSVC6R");
    CALL(GetExtensionVersion)(text);
    printf("%s\n", text);
    SHOW(AT_Get_CBC, 99, NULL, NULL, NULL);
    const ResourceContext phone = CALL(ConnectServer)(5);
    printf("connected: %u\n", phone);
    SHOW(Start_LOG, phone, "by_name.log");
    ShowAt(phone);
    ShowFiles(phone);
    ShowUpload(phone);
    ShowFactoryMode(phone);
    CALL(DisconnectServer)(phone);
    return 0;
}
