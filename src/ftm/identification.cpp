// What the phone says about its own hardware.
#include <cstring>

#include "channels/ftm_channel.h"
#include "platform/qmsl.h"

namespace tandekor
{

namespace
{

// A phone whose software build text holds this name has no factory request for its hardware id.
constexpr char buildWithoutHwId[] = "DraK2F";
constexpr uint16_t hwIdOfThatBuild = 8;

}  // namespace

uint8_t FtmChannel::GET_HARDWARE_VERSION(uint32_t* piHardwareVersion)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_GET_HARDWARE_VERSION()"), catalogue::GetHardwareVersion, [] {},
        [&] { packetBuffer.PopDword(piHardwareVersion); });
}

uint8_t FtmChannel::GET_HW_ID(uint16_t* piHwId)
{
    const FormattedText entry("TANDEKOR_FTM_GET_HW_ID()");
    WriteToLog(hResourceContext, entry.Text());

    uint32_t hardwareVersion = 0;
    uint32_t mobModel = 0;
    char buildId[512] = {};
    char buildModel[512] = {};
    if (QLIB_DIAG_EXT_BUILD_ID_F(hResourceContext, &hardwareVersion, &mobModel, buildId, buildModel) != 0)
    {
        Trace(hResourceContext, "QLIB_DIAG_EXT_BUILD_ID_F()");
        buildId[sizeof buildId - 1] = '\0';
        if (std::strstr(buildId, buildWithoutHwId) != nullptr)
        {
            *piHwId = hwIdOfThatBuild;
            return 1;
        }
    }
    return StandardBehindEntry(
        entry, catalogue::GetHwId, [] {}, [&] { packetBuffer.PopWord(piHwId); });
}

uint8_t FtmChannel::GET_NAND_FLASH_ID(uint16_t* piNandFlashId)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_GET_NAND_FLASH_ID()"), catalogue::GetNandFlashId, [] {},
        [&] { packetBuffer.PopWord(piNandFlashId); });
}

// A phone that refuses the request is asked once more in the LTM form. A missing reply leaves no text.
uint8_t FtmChannel::GET_FUEL_GAUGE_VERSION(uint8_t* piFuelGaugeVersion)
{
    uint16_t status = 0;
    const auto askForVersion = [&]
    {
        uint8_t errorByte = 0;
        if (Exchange(&errorByte) == 0)
            return false;
        packetBuffer.PopByte(piFuelGaugeVersion);
        status = 0;
        packetBuffer.PopWord(&status);
        return true;
    };

    const FormattedText entry("TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION()");
    WriteToLog(hResourceContext, entry.Text());
    BuildFtmHeader(catalogue::GetFuelGaugeVersion);
    if (!askForVersion())
        return 0;
    if (status == 0)
        return Completed(entry);
    ErrorCode(entry, status);

    const FormattedText ltmEntry("TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()");
    BuildFtmHeader(catalogue::LtmGetFuelGaugeVersion);
    WriteToLog(hResourceContext, ltmEntry.Text());
    if (!askForVersion())
        return 0;
    return status != 0 ? ErrorCode(ltmEntry, status) : Completed(ltmEntry);
}

uint8_t FtmChannel::GET_BT_PARAM(uint16_t* piBtStatus, uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_GET_BT_PARAM()"), catalogue::GetBtParam, [] {},
        [&]
        {
            packetBuffer.PopByte(piBtParam3);
            packetBuffer.PopByte(piBtParam2);
            packetBuffer.PopByte(piBtParam1);
        },
        {.statusWord = piBtStatus});
}

}  // namespace tandekor
