#include "platform/host_file.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace tandekor::platform
{

namespace
{

bool WriteToFile(const char* path, DWORD access, DWORD disposition, const void* bytes, size_t count)
{
    const HANDLE file
        = ::CreateFileA(path, access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool done = ::WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) != 0;
    return ::CloseHandle(file) != 0 && done && written == count;
}

}  // namespace

bool FileSize(const char* path, uint64_t* size)
{
    WIN32_FILE_ATTRIBUTE_DATA status{};
    if (::GetFileAttributesExA(path, GetFileExInfoStandard, &status) == 0
        || (status.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0)
        return false;
    *size = uint64_t{status.nFileSizeHigh} << 32 | status.nFileSizeLow;
    return true;
}

size_t ReadFromFile(const char* path, uint64_t position, void* bytes, size_t count)
{
    const HANDLE file = ::CreateFileA(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 0;
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(position);
    place.OffsetHigh = static_cast<DWORD>(position >> 32);
    DWORD got = 0;
    if (::ReadFile(file, bytes, static_cast<DWORD>(count), &got, &place) == 0)
        got = 0;
    ::CloseHandle(file);
    return got;
}

bool AppendToFile(const char* path, const void* bytes, size_t count)
{
    return WriteToFile(path, FILE_APPEND_DATA, OPEN_ALWAYS, bytes, count);
}

bool OverwriteFile(const char* path, const void* bytes, size_t count)
{
    return WriteToFile(path, GENERIC_WRITE, CREATE_ALWAYS, bytes, count);
}

}  // namespace tandekor::platform
