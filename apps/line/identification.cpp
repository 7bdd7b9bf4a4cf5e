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
    return Passed("%s", version);
}

// A connection stands for the host library's version: any other version is not connected to.
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
        return Failed("the software build could not be read\nTANDEKOR_CheckSWBuild gave 0");
    return Passed("build %.511s, model %.511s (%u), chip 0x%04X\ncompiled %s %s, directory %s\nreleased %s %s", buildId,
                  buildModel, mobModel, msmHardwareVersion, compileDate, compileTime, versionDir, releaseDate,
                  releaseTime);
}

Outcome PhoneModel(Context& context)
{
    uint32_t variant = 0;
    uint32_t chipFamily = 0;
    uint32_t model = 0;
    if (TANDEKOR_Phone_Model(context.handle, &variant, &chipFamily, &model) == 0)
        return Failed("the phone could not be identified\nTANDEKOR_Phone_Model gave 0");
    if (model == 0)
        return Failed("unknown phone\nTANDEKOR_Phone_Model gave hardware variant %u, chip family %u, no model", variant,
                      chipFamily);
    return Passed("phone model %u (hardware variant %u, chip family %u)", model, variant, chipFamily);
}

constexpr Test versionTests[] = {
    {"library", "version of the library", LibraryVersion, State::Unconnected},
    {"host-library", "version of the host library", HostVersion, State::Connected},
    {"software", "software build of the phone", SoftwareBuild},
};

constexpr Test identificationTests[] = {
    {"model", "phone model by chip family and hardware variant", PhoneModel},
};

}  // namespace

extern const Group versionsGroup, identificationGroup;
constinit const Group versionsGroup{"versions", "versions of the libraries and of the phone's software", versionTests};
constinit const Group identificationGroup{"identification", "which phone this is", identificationTests};

}  // namespace tandekor::line
