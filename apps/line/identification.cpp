// Which phone this is and what runs on it.
#include "tandekor/tandekor.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

Outcome LibraryVersion(Context&)
{
    char version[64] = {};
    TANDEKOR_GetExtensionVersion(version);
    return Done("%s", "").Add("version", version);
}

// A connection stands for the host library's version, as any other version is not connected to.
Outcome HostVersion(Context&)
{
    char version[64] = {};
    TANDEKOR_GetSupportedQLibVersion(version);
    return Passed("%s, as supported", version);
}

Outcome SoftwareBuild(Context& context)
{
    char compileDate[32] = {};
    char compileTime[32] = {};
    char releaseDate[32] = {};
    char releaseTime[32] = {};
    char versionDir[32] = {};
    uint8_t fields[7][512] = {};
    uint32_t msmHardwareVersion = 0;
    uint32_t mobModel = 0;
    char buildId[512] = {};
    char buildModel[512] = {};
    if (TANDEKOR_CheckSWBuild(context.handle, compileDate, compileTime, releaseDate, releaseTime, versionDir, fields[0],
                              fields[1], fields[2], fields[3], fields[4], fields[5], fields[6], &msmHardwareVersion,
                              &mobModel, buildId, buildModel)
        == 0)
        return Failed("TANDEKOR_CheckSWBuild", "the software build could not be read");
    return Done("model %u, chip 0x%04X, directory %s\ncompiled %s %s, released %s %s", mobModel, msmHardwareVersion,
                versionDir, compileDate, compileTime, releaseDate, releaseTime)
        .Add("build", buildId)
        .Add("model", buildModel);
}

Outcome PhoneModel(Context& context)
{
    uint32_t variant = 0;
    uint32_t chipFamily = 0;
    uint32_t model = 0;
    if (TANDEKOR_Phone_Model(context.handle, &variant, &chipFamily, &model) == 0)
        return Failed("TANDEKOR_Phone_Model", "the phone could not be identified");
    if (model == 0)
        return Failed("TANDEKOR_Phone_Model", "unknown phone: hardware variant %u, chip family %u", variant,
                      chipFamily);
    return Done("hardware variant %u, chip family %u", variant, chipFamily).Add("model", model);
}

constexpr Test versionTests[] = {
    {"library",
     "version of the library",
     LibraryVersion,
     {{"version", textUnit}},
     Changes::Nothing,
     nullptr,
     State::Unconnected},
    {"host-library", "version of the host library", HostVersion, {}, Changes::Nothing, nullptr, State::Connected},
    {"software", "software build of the phone", SoftwareBuild, {{"build", textUnit}, {"model", textUnit}}},
};

constexpr Test identificationTests[] = {
    {"model", "phone model by chip family and hardware variant", PhoneModel, {{"model"}}},
};

}  // namespace

extern const Group versionsGroup, identificationGroup;
constinit const Group versionsGroup{"versions", "versions of the libraries and of the phone's software", versionTests};
constinit const Group identificationGroup{"identification", "which phone this is", identificationTests};

}  // namespace tandekor::line
