#include "record_files.h"

#include <fstream>
#include <system_error>

#include "record_formats.h"
#include "record_text.h"

namespace tandekor::line
{

namespace
{

namespace fs = std::filesystem;

constexpr size_t longestPhoneName = 64;
constexpr int mostOfOneName = 10'000;

fs::path With(const fs::path& base, const char* extension)
{
    fs::path path = base;
    path += extension;
    return path;
}

std::string FileName(const std::string& dut, std::chrono::system_clock::time_point time)
{
    std::string name = TimeText(time).substr(0, 19);
    std::erase(name, '-');
    std::erase(name, ':');
    name += "Z_";
    for (const char character : dut.empty() ? std::string{"unnamed"} : dut.substr(0, longestPhoneName))
    {
        const bool plain = (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z')
                           || (character >= 'a' && character <= 'z') || character == '-';
        name += plain ? character : '_';
    }
    return name;
}

RecordNames NamesOf(const fs::path& base)
{
    return {{}, base, With(base, ".log"), With(base, ".json"), With(base, ".xml"), With(base, ".html")};
}

bool IsFree(const RecordNames& names)
{
    const auto exists = [](const fs::path& path)
    {
        std::error_code error;
        return fs::exists(path, error) || error;
    };
    return !exists(names.log) && !exists(names.json) && !exists(names.junit) && !exists(names.page);
}

}  // namespace

std::string PrepareRecordFolder(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error))
        return "the record folder " + folder.string() + " cannot be made";
    // Taking a name and giving it back tells whether a run can do so.
    const RecordNames names = ReserveRecord(folder, "try", std::chrono::system_clock::now());
    if (!names.problem.empty())
        return names.problem;
    fs::remove(names.log, error);
    fs::remove(With(names.base, ".part"), error);
    return {};
}

RecordNames ReserveRecord(const fs::path& folder, const std::string& dut, std::chrono::system_clock::time_point time)
{
    const std::string name = FileName(dut, time);
    for (int number = 1; number <= mostOfOneName; ++number)
    {
        RecordNames names = NamesOf(folder / (number == 1 ? name : name + "-" + std::to_string(number)));

        // Of all that a file system does, making a folder is what only one of two can succeed in everywhere. The folder
        // stays until the record is written: it holds what is not complete yet.
        const fs::path part = With(names.base, ".part");
        std::error_code error;
        if (!fs::create_directory(part, error))
        {
            if (error)
                return {"cannot write in the record folder " + folder.string() + ": " + error.message(),
                        {},
                        {},
                        {},
                        {},
                        {}};
            continue;
        }
        if (IsFree(names) && std::ofstream(names.log, std::ios::app).good())
            return names;
        const bool taken = !IsFree(names);
        fs::remove(part, error);
        if (!taken)
            return {"cannot write " + names.log.string(), {}, {}, {}, {}, {}};
    }
    return {"too many records are called " + name, {}, {}, {}, {}, {}};
}

std::string WriteWhole(const fs::path& path, const fs::path& unfinished, const std::string& content)
{
    std::ofstream file(unfinished, std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    std::error_code error;
    if (file)
        fs::rename(unfinished, path, error);
    return !file || error ? "cannot write " + path.string() : std::string{};
}

std::string WriteRecords(const RunRecord& record, const fs::path& base)
{
    const RecordNames names = NamesOf(base);
    const fs::path part = With(base, ".part");
    std::error_code error;
    fs::create_directories(part, error);
    const auto write = [&part](const fs::path& path, const std::string& content)
    { return WriteWhole(path, part / path.filename(), content); };

    // The JSON comes last: where it is, the record is whole.
    for (const std::string& problem :
         {write(names.page, PageOf(record)), write(names.junit, JunitOf(record)), write(names.json, JsonOf(record))})
        if (!problem.empty())
            return problem;
    fs::remove(part, error);
    return {};
}

}  // namespace tandekor::line
