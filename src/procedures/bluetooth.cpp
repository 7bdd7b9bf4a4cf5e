// The Bluetooth module: continuous wave, start with the phone's own address, identification.
#include <cstdio>
#include <cstring>

#include "platform/qmsl.h"
#include "procedures/internal_functions.h"
#include "procedures/phone_procedures.h"
#include "tandekor/ftm.h"

namespace tandekor
{

namespace
{

constexpr uint16_t addressItem = 447;
constexpr size_t addressSize = 6;
constexpr size_t addressTextSize = 2 * addressSize + 1;

// HCI commands: packet type, opcode with its low byte first, parameters. The reset goes without its length byte.
constexpr uint8_t hciReset[] = {0x01, 0x03, 0x0C};
constexpr uint8_t hciScanOff[] = {0x01, 0x1A, 0x0C, 0x01, 0x00};

char UpperCase(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

// The value of an upper-case hexadecimal digit, 0 for any other character.
int HexDigit(char character)
{
    if (character >= '0' && character <= '9')
        return character - '0';
    return character >= 'A' && character <= 'F' ? character - 'A' + 10 : 0;
}

}  // namespace

template <size_t size>
bool PhoneProcedures::SendHci(const uint8_t (&packet)[size])
{
    constexpr uint8_t length = size;
    return Step(
        "QLIB_FTM_BT_HCI_USER_CMD", "(pBuffer = %s, iLength = %c)",
        [&] { return QLIB_FTM_BT_HCI_USER_CMD(hResourceContext, packet, length); }, ItemText<size>(packet), length);
}

uint8_t PhoneProcedures::SetCWPowerBluetooth(uint8_t iChannel)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && CallStep("QLIB_FTM_BT_SetCW", QLIB_FTM_BT_SetCW, "(iChannel = %c)", iChannel) && SendHci(hciReset);
}

// The text begins with the address's last byte.
uint8_t PhoneProcedures::BluetoothTestConnect(char* szAddr)
{
    uint8_t address[addressSize] = {};
    if (TANDEKOR_CheckConnection(hResourceContext) == 0
        || !Step(
            "TANDEKOR_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %s, iLength = 6)",
            [&] { return TANDEKOR_DIAG_NV_READ_F(hResourceContext, addressItem, address, addressSize); }, addressItem,
            ItemText<addressSize>(address)))
        return 0;
    std::snprintf(szAddr, addressTextSize, "%02X%02X%02X%02X%02X%02X", address[5], address[4], address[3], address[2],
                  address[1], address[0]);
    return Step(
               "TANDEKOR_FtmBtSetAddr", "(szAddr = %s)",
               [&] { return TANDEKOR_FtmBtSetAddr(hResourceContext, szAddr); }, ItemText<addressTextSize>(szAddr))
           && CallStep("QLIB_FTM_BT_Enable_Bluetooth", QLIB_FTM_BT_Enable_Bluetooth, "()") && SendHci(hciScanOff);
}

bool PhoneProcedures::FtmBtSetAddr(char* szAddr)
{
    if (TANDEKOR_CheckConnection(hResourceContext) == 0)
        return false;
    if (std::strlen(szAddr) < 2 * addressSize)
    {
        StepTrace(STEP_FAILURE, "QLIB_FTM_BT_SetAddr(strlen(szAddr) < 12)");
        return false;
    }
    for (char* character = szAddr; *character != '\0'; ++character)
        *character = UpperCase(*character);
    uint8_t address[addressSize] = {};
    for (size_t i = 0; i < addressSize; ++i)
        address[i] = static_cast<uint8_t>(HexDigit(szAddr[10 - 2 * i]) << 4 | HexDigit(szAddr[11 - 2 * i]));
    return Step(
        "QLIB_FTM_BT_SetAddr", "(iAddr=%s)", [&] { return QLIB_FTM_BT_SetAddr(hResourceContext, address); },
        ItemText<textAreaSize>(szAddr));
}

uint8_t PhoneProcedures::Bluetooth_HW_ID(void* pModuleVersion, uint16_t* piBtStatus, uint8_t* piBtParam1,
                                         uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    return TANDEKOR_CheckConnection(hResourceContext) != 0
           && Step("QLIB_BT_GetModuleVersion", "()",
                   [&] { return QLIB_BT_GetModuleVersion(hResourceContext, pModuleVersion); })
           && Step(
               "TANDEKOR_FTM_GET_BT_PARAM", "()",
               [&]
               { return TANDEKOR_FTM_GET_BT_PARAM(hResourceContext, piBtStatus, piBtParam1, piBtParam2, piBtParam3); });
}

}  // namespace tandekor
