#include "platform/host_file.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace tandekor::platform
{

namespace
{

constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE;

// A folder cannot be opened so.
HANDLE OpenForReading(const char* path)
{
    return ::CreateFileA(path, GENERIC_READ, shared, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool WriteToFile(const char* path, DWORD access, DWORD disposition, const void* bytes, size_t count)
{
    const HANDLE file = ::CreateFileA(path, access, shared, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool done = ::WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) != 0;
    return ::CloseHandle(file) != 0 && done && written == count;
}

}  // namespace

bool FileSize(const char* path, uint64_t* size)
{
    const HANDLE file = OpenForReading(path);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER length{};
    const bool found = ::GetFileType(file) == FILE_TYPE_DISK && ::GetFileSizeEx(file, &length) != 0;
    ::CloseHandle(file);
    *size = static_cast<uint64_t>(length.QuadPart);
    return found;
}

size_t ReadFromFile(const char* path, uint64_t position, void* bytes, size_t count)
{
    const HANDLE file = OpenForReading(path);
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
