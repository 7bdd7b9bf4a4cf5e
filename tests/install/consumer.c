#include <string.h>
#include <tandekor/tandekor.h>

/* Exit status 0 for a connected phone with a charged battery. */
int main(void)
{
    char version[TANDEKOR_EXTENSION_VERSION_SIZE];
    uint8_t state = 0, charge = 0;
    uint16_t status = TANDEKOR_AT_OTHER;
    TANDEKOR_GetExtensionVersion(version);
    const ResourceContext phone = TANDEKOR_ConnectServer(1);
    const uint8_t answered = TANDEKOR_AT_Get_CBC(phone, &state, &charge, &status);
    TANDEKOR_DisconnectServer(phone);
    return strstr(version, TANDEKOR_VERSION_TEXT) != NULL && answered && status == TANDEKOR_AT_OK && charge > 0 ? 0 : 1;
}
