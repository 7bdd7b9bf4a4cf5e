// An upload, which the host library has only in its QPST mode.
#include <atomic>
#include <filesystem>

#include "tandekor/tandekor.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

// What the library's callback was told; it has no room for a context of its own.
struct
{
    std::atomic<int>* percent;
    uint32_t status;
    int reports;
} told;

void Progress(uint32_t status, uint32_t percent)
{
    told.status = status;
    ++told.reports;
    *told.percent = static_cast<int>(percent);
}

// No AT command and no file can be had in the QPST mode, so it does not outlast the test.
Outcome Upload(Context& context)
{
    told = {&context.percent, 0, 0};
    const std::string& file = context.options.uploadFile;
    TANDEKOR_SetLibraryMode(1);
    TANDEKOR_SetCallback(context.handle, Progress);
    const uint8_t result
        = TANDEKOR_UploadCEFS_File(context.handle, reinterpret_cast<TandekorUploadArgument>(file.c_str()), 0);
    TANDEKOR_SetCallback(context.handle, nullptr);
    TANDEKOR_SetLibraryMode(0);
    const int percent = context.percent.exchange(-1);
    if (result == 0)
        return Failed("TANDEKOR_UploadCEFS_File", "the upload of %s broke off at %d %%, status %u", file.c_str(),
                      percent < 0 ? 0 : percent, told.status);
    if (TANDEKOR_GetLibraryMode() != 0)
        return Failed("TANDEKOR_GetLibraryMode", "the host library stays in its QPST mode");
    return Done("complete, last status %u, %d progress reports", told.status, told.reports);
}

std::string MissingImage(const Options& options)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(options.uploadFile, ignored)
               ? ""
               : "upload needs a file system image: --upload FILE";
}

constexpr Test tests[] = {
    {.name = "upload",
     .description = "uploads a file system image, in the QPST mode",
     .run = Upload,
     .changes = Changes::Storage,
     .waitsFor = "host library to upload",
     .missing = MissingImage},
};

}  // namespace

extern const Group uploadGroup;
constinit const Group uploadGroup{"upload", "an upload to the phone", tests};

}  // namespace tandekor::line
