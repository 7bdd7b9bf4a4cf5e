// Which phone this is: the chip family and the hardware variant, the phone model that follows from both, and the
// identity of its software.
#include <cstring>

#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

struct MsmModelRow
{
    uint32_t hardwareVersion;
    uint32_t msmModel;
};

constexpr MsmModelRow msmModels[] = {
    {0x40, 1},  {0x403, 1},                    //
    {0x405, 2}, {0x2040, 2}, {0x120400E1, 2},  //
    {0x60, 3},  {0x601, 3},                    //
    {0xC0, 4},  {0xC00, 4},                    //
};

struct PhoneModelRow
{
    uint32_t msmModel;
    uint32_t firstVersion;
    uint32_t lastVersion;
    uint32_t phoneModel;
};

// The first row that fits counts.
constexpr PhoneModelRow phoneModels[] = {
    {1, 0, 1, 23},         {1, 2, 4, 24},   {1, 5, 6, 25},   {1, 8, 9, 13},   {1, 12, 12, 15}, {1, 15, 15, 15},
    {2, 0, 0, 52},         {2, 1, 1, 53},   {2, 2, 3, 3},    {2, 8, 8, 3},    {2, 7, 7, 2},    {2, 9, 9, 54},
    {2, 10, 10, 34},       {2, 11, 11, 35}, {2, 12, 12, 55}, {2, 13, 13, 36}, {2, 14, 14, 40}, {3, 12, 12, 62},
    {3, 0, UINT32_MAX, 1}, {4, 1, 1, 71},   {4, 2, 2, 72},   {4, 3, 3, 73},   {4, 4, 4, 74},   {4, 5, 5, 75},
    {4, 6, 6, 76},         {4, 7, 7, 77},   {4, 8, 8, 78},
};

uint32_t MsmModelOf(uint32_t hardwareVersion)
{
    for (const MsmModelRow& row : msmModels)
    {
        if (row.hardwareVersion == hardwareVersion)
            return row.msmModel;
    }
    return 0;
}

uint32_t PhoneModelOf(uint32_t version, uint32_t msmModel)
{
    for (const PhoneModelRow& row : phoneModels)
    {
        if (row.msmModel == msmModel && version >= row.firstVersion && version <= row.lastVersion)
            return row.phoneModel;
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
    *piPhoneModel = PhoneModelOf(iVerNumber, iMSMModel);
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
