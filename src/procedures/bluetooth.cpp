// The Bluetooth module: continuous wave, start with the phone's own address, identification.
#include <cstdio>
#include <cstring>

#include "phone/nv_items.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr size_t addressSize = nv::bluetoothAddress.size;
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

template <size_t size>
bool SendHci(const PhoneProcedure& phone, const uint8_t (&packet)[size])
{
    constexpr uint8_t length = size;
    return phone.Step(
        "QLIB_FTM_BT_HCI_USER_CMD", "(pBuffer = %s, iLength = %c)",
        [&] { return QLIB_FTM_BT_HCI_USER_CMD(phone.hResourceContext, packet, length); }, ItemOf<size>(packet), length);
}

}  // namespace

uint8_t TANDEKOR_SetCWPowerBluetooth(ResourceContext hResourceContext, uint8_t iChannel)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("QLIB_FTM_BT_SetCW", QLIB_FTM_BT_SetCW, "(iChannel = %c)", iChannel)
           && SendHci(phone, hciReset);
}

// The text begins with the address's last byte.
uint8_t TANDEKOR_BluetoothTestConnect(ResourceContext hResourceContext, char* szAddr)
{
    const PhoneProcedure phone(hResourceContext);
    uint8_t address[addressSize] = {};
    if (!phone.CheckConnection()
        || !phone.Step(
            "TANDEKOR_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %s, iLength = 6)",
            [&] { return DIAG_NV_READ_F(hResourceContext, nv::bluetoothAddress.number, address, addressSize); },
            nv::bluetoothAddress.number, ItemOf<addressSize>(address)))
        return 0;
    std::snprintf(szAddr, addressTextSize, "%02X%02X%02X%02X%02X%02X", address[5], address[4], address[3], address[2],
                  address[1], address[0]);
    return phone.Step(
               "TANDEKOR_FtmBtSetAddr", "(szAddr = %s)", [&] { return FtmBtSetAddr(hResourceContext, szAddr); },
               ItemOf<addressTextSize>(szAddr))
           && phone.CallStep("QLIB_FTM_BT_Enable_Bluetooth", QLIB_FTM_BT_Enable_Bluetooth, "()")
           && SendHci(phone, hciScanOff);
}

bool tandekor::FtmBtSetAddr(ResourceContext hResourceContext, char* szAddr)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    if (std::strlen(szAddr) < 2 * addressSize)
    {
        phone.StepTrace(STEP_FAILURE, "QLIB_FTM_BT_SetAddr(strlen(szAddr) < 12)");
        return false;
    }
    for (char* character = szAddr; *character != '\0'; ++character)
        *character = UpperCase(*character);
    uint8_t address[addressSize] = {};
    for (size_t i = 0; i < addressSize; ++i)
        address[i] = static_cast<uint8_t>(HexDigit(szAddr[10 - 2 * i]) << 4 | HexDigit(szAddr[11 - 2 * i]));
    return phone.Step(
        "QLIB_FTM_BT_SetAddr", "(iAddr=%s)", [&] { return QLIB_FTM_BT_SetAddr(hResourceContext, address); },
        ItemOf<textBufferSize>(szAddr));
}

uint8_t TANDEKOR_Bluetooth_HW_ID(ResourceContext hResourceContext, void* pModuleVersion, uint16_t* piBtStatus,
                                 uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.Step("QLIB_BT_GetModuleVersion", "()",
                         [&] { return QLIB_BT_GetModuleVersion(hResourceContext, pModuleVersion); })
           && phone.Step(
               "TANDEKOR_FTM_GET_BT_PARAM", "()",
               [&]
               { return TANDEKOR_FTM_GET_BT_PARAM(hResourceContext, piBtStatus, piBtParam1, piBtParam2, piBtParam3); });
}
