// The phone's file server. Each test takes the port to OBEX and back, and leaves no file on it.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tandekor/at.h"
#include "tandekor/obex.h"
#include "test.h"

namespace tandekor::line
{

namespace
{

constexpr char fileName[] = "line-test.bin";
constexpr char testFolder[] = "LineTest";
constexpr size_t fileSize = 64 * 1024;

std::string Meaning(uint16_t error)
{
    static constexpr struct
    {
        uint16_t bit;
        const char* text;
    } meanings[] = {
        {TANDEKOR_OBEX_CONNECT_FAILED, "no session"},
        {TANDEKOR_OBEX_DISCONNECT_FAILED, "session not closed"},
        {TANDEKOR_OBEX_WALK_FAILED, "no such folder"},
        {TANDEKOR_OBEX_LISTING_TOO_LARGE, "listing too large"},
        {TANDEKOR_OBEX_NO_SUCH_FILE_OR_PUT_FAILED, "no such file, or not sent"},
        {TANDEKOR_OBEX_FORBIDDEN, "forbidden"},
    };
    std::string text;
    for (const auto& meaning : meanings)
    {
        if ((error & meaning.bit) != 0)
            text += std::string(text.empty() ? "" : ", ") + meaning.text;
    }
    return text.empty() ? "refused" : text;
}

// The calls of a test. The first one that fails decides its outcome.
struct Calls
{
    const Context& context;
    uint16_t error = 0;
    Outcome outcome = Done("%s", "");

    bool Good(uint8_t result, const char* function)
    {
        if ((result == 0 || error != 0) && !outcome.Is(Verdict::Failed))
            outcome = Failed(function, "%s (result %u, error bits %u)", Meaning(error).c_str(), result, error);
        return result != 0 && error == 0;
    }

    bool List(const std::string& folder, std::string& listing)
    {
        std::vector<uint8_t> buffer(32 * 1024);
        auto size = static_cast<uint32_t>(buffer.size());
        if (!Good(TANDEKOR_OBEX_ListDir(context.handle, folder.c_str(), buffer.data(), &size, &error),
                  "TANDEKOR_OBEX_ListDir"))
            return false;
        listing.assign(buffer.begin(), buffer.begin() + static_cast<ptrdiff_t>(size));
        return true;
    }
};

size_t CountOf(const std::string& text, const char* part)
{
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

// Only the next AT command shows whether the port has come back.
Outcome InObexMode(Context& context, void (*work)(Calls& calls))
{
    uint16_t status = 0;
    const uint8_t switched = TANDEKOR_AT_2_OBEX(context.handle, &status);
    if (switched == 0 || status != 0)
        return Failed("TANDEKOR_AT_2_OBEX", "the port did not go to OBEX (status %u)", status);
    Calls calls{context};
    work(calls);
    uint16_t firstByte = 0;
    TANDEKOR_OBEX_2_AT(context.handle, &firstByte);
    uint32_t activity = 0;
    const uint8_t answered = TANDEKOR_AT_Get_CPAS(context.handle, &activity, &status);
    if (!calls.outcome.Is(Verdict::Failed) && (answered == 0 || status != 0))
        return Failed("TANDEKOR_AT_Get_CPAS", "the port did not come back to AT commands (status %u)", status);
    return calls.outcome;
}

void ListRoot(Calls& calls)
{
    std::string listing;
    if (calls.List("", listing))
        calls.outcome = Done("listed in %zu bytes", listing.size())
                            .Add("folders", CountOf(listing, "<folder "))
                            .Add("files", CountOf(listing, "<file "));
}

void ShowFreeSpace(Calls& calls)
{
    uint32_t bytes = 0;
    if (calls.Good(TANDEKOR_OBEX_FreeSpaceCheck(calls.context.handle, &bytes, &calls.error),
                   "TANDEKOR_OBEX_FreeSpaceCheck"))
        calls.outcome = Done("%s", "").Add("free", bytes / 1024);
}

// A folder of this machine that is gone after the test.
class HostFolder
{
public:
    HostFolder()
    {
        std::error_code ignored;
        std::random_device random;
        const std::filesystem::path folder = std::filesystem::temp_directory_path(ignored)
                                             / ("tandekor-line-" + std::to_string(random()) + std::to_string(random()));
        if (std::filesystem::create_directory(folder, ignored))
            path = folder.string() + '/';
    }
    ~HostFolder()
    {
        std::error_code ignored;
        if (!path.empty())
            std::filesystem::remove_all(path, ignored);
    }
    HostFolder(const HostFolder&) = delete;
    HostFolder& operator=(const HostFolder&) = delete;

    std::string path;
};

std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool SendCopyAndFetch(Calls& calls, const std::string& folder, const std::string& copies)
{
    const ResourceContext handle = calls.context.handle;
    uint16_t* error = &calls.error;
    const HostFolder host;
    if (host.path.empty())
    {
        calls.outcome = Failed("", "no folder for the file can be made on this machine");
        return false;
    }
    std::string content(fileSize, '\0');
    for (size_t i = 0; i < fileSize; ++i)
        content[i] = static_cast<char>(i ^ i >> 8);
    std::ofstream(host.path + fileName, std::ios::binary) << content;
    std::string listing;
    if (!calls.Good(TANDEKOR_OBEX_CreateFolder(handle, "", testFolder, error), "TANDEKOR_OBEX_CreateFolder")
        || !calls.Good(TANDEKOR_OBEX_CreateFolder(handle, folder.c_str(), "Copy", error), "TANDEKOR_OBEX_CreateFolder")
        || !calls.Good(TANDEKOR_OBEX_SendFile(handle, host.path.c_str(), fileName, folder.c_str(), error),
                       "TANDEKOR_OBEX_SendFile")
        || !calls.Good(TANDEKOR_OBEX_CopyFile(handle, folder.c_str(), fileName, copies.c_str(), error),
                       "TANDEKOR_OBEX_CopyFile")
        || !calls.List(copies, listing))
        return false;
    if (listing.find(fileName) == std::string::npos)
    {
        calls.outcome = Failed("", "the copied file is not in the listing of %s", copies.c_str());
        return false;
    }
    std::error_code ignored;
    std::filesystem::remove(host.path + fileName, ignored);
    if (!calls.Good(TANDEKOR_OBEX_GetFile(handle, copies.c_str(), fileName, host.path.c_str(), error),
                    "TANDEKOR_OBEX_GetFile"))
        return false;
    if (ContentOf(host.path + fileName) != content)
    {
        calls.outcome = Failed("", "the file came back changed");
        return false;
    }
    return true;
}

// What was made is deleted, also when something failed in between.
void Transfer(Calls& calls)
{
    const std::string folder = std::string(testFolder) + '\\';
    const std::string copies = folder + "Copy\\";
    const bool transferred = SendCopyAndFetch(calls, folder, copies);
    const std::pair<std::string, const char*> made[]
        = {{copies, fileName}, {folder, fileName}, {folder, "Copy"}, {"", testFolder}};
    bool deleted = true;
    for (const auto& [place, name] : made)
        deleted = calls.Good(TANDEKOR_OBEX_DeleteFile(calls.context.handle, place.c_str(), name, &calls.error),
                             "TANDEKOR_OBEX_DeleteFile")
                  && deleted;
    std::string listing;
    if (!transferred || !deleted || !calls.List("", listing))
        return;
    if (listing.find(testFolder) != std::string::npos)
        calls.outcome = Failed("", "the folder %s is still there after it was deleted", testFolder);
    else
        calls.outcome = Passed("%zu KiB sent, copied, fetched unchanged and deleted", fileSize / 1024);
}

constexpr Test tests[] = {
    {"root-folder",
     "listing of the root folder",
     [](Context& context) { return InObexMode(context, ListRoot); },
     {{"folders"}, {"files"}}},
    {.name = "file-transfer",
     .description = "sends a file to a new folder, copies and fetches it, and deletes all",
     .run = [](Context& context) { return InObexMode(context, Transfer); },
     .waitsFor = "phone to take the file and to give it back"},
    {"free-space",
     "free space for files",
     [](Context& context) { return InObexMode(context, ShowFreeSpace); },
     {{"free", "KiB"}}},
};

}  // namespace

extern const Group filesGroup;
constinit const Group filesGroup{"files", "the phone's file server, by OBEX", tests};

}  // namespace tandekor::line
