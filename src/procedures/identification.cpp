// Which phone this is: the chip family and the hardware variant, the phone model that follows from both, and the
// identity of its software.
#include <algorithm>
#include <cstring>

#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

uint32_t MsmModelOf(uint32_t hardwareVersion)
{
    for (const ChipVersion& chip : chipVersions)
    {
        if (chip.hardwareVersion == hardwareVersion)
            return chip.msmModel;
    }
    return 0;
}

uint32_t PhoneModelNumber(uint32_t version, uint32_t msmModel)
{
    for (const PhoneModel& model : phoneModels)
    {
        if (model.msmModel == msmModel
            && std::ranges::any_of(model.versions, [&](const VersionRange& range) { return range.Holds(version); }))
            return model.number;
    }
    return 0;
}

bool ReadHardwareVersion(const PhoneProcedure& phone, uint32_t* value)
{
    uint32_t mobModel = 0;
    char buildId[512] = {};
    char buildModel[512] = {};
    *value = 0;
    phone.StepTrace(STEP_START, "QLIB_DIAG_EXT_BUILD_ID_F() start");
    if (phone.StepWithoutStart(
            "QLIB_DIAG_EXT_BUILD_ID_F", "()",
            [&] { return QLIB_DIAG_EXT_BUILD_ID_F(phone.hResourceContext, value, &mobModel, buildId, buildModel); })
        && *value != 0)
        return true;

    uint32_t word = 0;
    phone.StepTrace(STEP_START, "TANDEKOR_FTM_GET_HARDWARE_VERSION() start");
    if (!phone.StepWithoutStart("TANDEKOR_FTM_GET_HARDWARE_VERSION", "()",
                                [&] { return TANDEKOR_FTM_GET_HARDWARE_VERSION(phone.hResourceContext, &word); }))
        return false;
    *value = word >> 12 & 0xFFFF;
    return true;
}

}  // namespace

uint8_t TANDEKOR_Phone_Model(ResourceContext hResourceContext, uint32_t* piVerNumber, uint32_t* piMSMModel,
                             uint32_t* piPhoneModel)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t hardwareVersion = 0;
    if (!ReadHardwareVersion(phone, &hardwareVersion))
        return 0;
    *piMSMModel = MsmModelOf(hardwareVersion);

    uint16_t hwId = 0;
    if (!phone.Step("TANDEKOR_FTM_GET_HW_ID", "()", [&] { return TANDEKOR_FTM_GET_HW_ID(hResourceContext, &hwId); }))
        return 0;
    *piVerNumber = hwId;

    return phone.Step(
        "TANDEKOR_GetPhoneModel", "(ver_number = %i, msm_model = %i)",
        [&] { return TANDEKOR_GetPhoneModel(hResourceContext, *piVerNumber, *piMSMModel, piPhoneModel); }, *piVerNumber,
        *piMSMModel);
}

uint8_t TANDEKOR_GetPhoneModel(ResourceContext hResourceContext, uint32_t iVerNumber, uint32_t iMSMModel,
                               uint32_t* piPhoneModel)
{
    if (!PhoneProcedure(hResourceContext).IsKnown())
        return 0;
    *piPhoneModel = PhoneModelNumber(iVerNumber, iMSMModel);
    return 1;
}

uint8_t TANDEKOR_CheckSWBuild(ResourceContext hResourceContext, char* sCompileDate, char* sCompileTime,
                              char* sReleaseDate, char* sReleaseTime, char* sVersionDir, void* pVernoField6,
                              void* pVernoField7, void* pVernoField8, void* pVernoField9, void* pVernoField10,
                              void* pVernoField11, void* pVernoField12, uint32_t* iMSMHardwareVersion,
                              uint32_t* iBuildMobModel, char* sBuildId, char* sBuildModel)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr size_t textSize = 32;
    constexpr size_t dateLength = 11;
    constexpr size_t timeLength = 8;

    if (!phone.CheckConnection())
        return 0;
    for (char* text : {sCompileDate, sCompileTime, sReleaseDate, sReleaseTime, sVersionDir})
        std::memset(text, 0, textSize);
    if (!phone.Step("QLIB_DIAG_VERNO_F", "()",
                    [&]
                    {
                        return QLIB_DIAG_VERNO_F(hResourceContext, sCompileDate, sCompileTime, sReleaseDate,
                                                 sReleaseTime, sVersionDir, pVernoField6, pVernoField7, pVernoField8,
                                                 pVernoField9, pVernoField10, pVernoField11, pVernoField12);
                    }))
        return 0;
    for (char* date : {sCompileDate, sReleaseDate})
        date[dateLength] = '\0';
    for (char* text : {sCompileTime, sReleaseTime, sVersionDir})
        text[timeLength] = '\0';
    return phone.Step("QLIB_DIAG_EXT_BUILD_ID_F", "()",
                      [&] {
                          return QLIB_DIAG_EXT_BUILD_ID_F(hResourceContext, iMSMHardwareVersion, iBuildMobModel,
                                                          sBuildId, sBuildModel);
                      });
}
