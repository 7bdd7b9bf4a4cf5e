/* Whether the phone's battery is charged: the program of docs/write-a-line-application.md. */
#include <stdio.h>
#include "tandekor/tandekor.h"

int main(void)
{
    uint8_t charging = 0, charge = 0;
    uint16_t status = TANDEKOR_AT_OTHER;
    int good = 0;
    ResourceContext phone = TANDEKOR_ConnectServer(1);
    TANDEKOR_Start_LOG(phone, "line.log");
    if (TANDEKOR_AT_Get_CBC(phone, &charging, &charge, &status) != 0 && status == TANDEKOR_AT_OK)
        good = charge >= 50;
    printf("battery %u %%: %s\n", charge, good ? "PASS" : "FAIL");
    TANDEKOR_DisconnectServer(phone);
    return good ? 0 : 1;
}
