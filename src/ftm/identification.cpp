// What the phone says about its own hardware.
#include <cstring>

#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "platform/qmsl.h"
#include "tandekor/ftm.h"

using namespace tandekor;

namespace
{

// A phone whose software build text holds this name has no factory request for its hardware id.
constexpr char buildWithoutHwId[] = "DraK2F";
constexpr uint16_t hwIdOfThatBuild = 8;

}  // namespace

uint8_t TANDEKOR_FTM_GET_HARDWARE_VERSION(ResourceContext hResourceContext, uint32_t* piHardwareVersion)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s()", __func__),
                   factory::GetHardwareVersion, {.reply = {piHardwareVersion}});
}

uint8_t TANDEKOR_FTM_GET_HW_ID(ResourceContext hResourceContext, uint16_t* piHwId)
{
    const FormattedText text("%s()", __func__);
    return With(
        Ftm(hResourceContext),
        [&](FtmChannel& ftm)
        {
            ftm.Start(text);
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
                    return true;
                }
            }
            return ftm.StandardAfterStart(text, factory::GetHwId, {.reply = {piHwId}});
        });
}

uint8_t TANDEKOR_FTM_GET_NAND_FLASH_ID(ResourceContext hResourceContext, uint16_t* piNandFlashId)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s()", __func__),
                   factory::GetNandFlashId, {.reply = {piNandFlashId}});
}

// A phone that refuses the request is asked once more in the LTM form. A missing reply leaves no result line.
uint8_t TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION(ResourceContext hResourceContext, uint8_t* piFuelGaugeVersion)
{
    const auto ask = [&](FtmChannel& ftm, const char* text, const factory::Request& request, uint16_t* status)
    {
        const FormattedText line("%s", text);
        ftm.Start(line);
        if (ftm.Exchange(request, {}) == 0)
            return false;
        ftm.Take({piFuelGaugeVersion});
        *status = ftm.TakeStatus();
        return *status != 0 ? ftm.ErrorCode(line, *status) : ftm.Completed(line);
    };
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    uint16_t status = 0;
                    if (ask(ftm, "TANDEKOR_FTM_GET_FUEL_GAUGE_VERSION()", factory::GetFuelGaugeVersion, &status))
                        return true;
                    return status != 0
                           && ask(ftm, "TANDEKOR_LTM_GET_FUEL_GAUGE_VERSION()", factory::LtmGetFuelGaugeVersion,
                                  &status);
                });
}

uint8_t TANDEKOR_FTM_GET_BT_PARAM(ResourceContext hResourceContext, uint16_t* piBtStatus, uint8_t* piBtParam1,
                                  uint8_t* piBtParam2, uint8_t* piBtParam3)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s()", __func__), factory::GetBtParam,
                   {.reply = {piBtParam1, piBtParam2, piBtParam3}, .statusWord = piBtStatus});
}
