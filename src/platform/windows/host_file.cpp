#include "platform/host_file.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstring>

namespace tandekor::platform
{

namespace
{

// Whether the path is the name of a device, as NUL and COM1 are in every folder.
bool IsDevice(const char* path)
{
    char full[MAX_PATH] = {};
    return ::GetFullPathNameA(path, sizeof full, full, nullptr) < sizeof full && std::strncmp(full, R"(\\.\)", 4) == 0;
}

// Opens nothing but a plain file: a device could block the call, or react to being opened. A folder cannot be opened
// so.
HANDLE OpenPlainFile(const char* path, DWORD access, DWORD disposition)
{
    if (IsDevice(path))
        return INVALID_HANDLE_VALUE;
    const HANDLE file = ::CreateFileA(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE || ::GetFileType(file) == FILE_TYPE_DISK)
        return file;
    ::CloseHandle(file);
    return INVALID_HANDLE_VALUE;
}

bool WriteToFile(const char* path, DWORD access, DWORD disposition, const void* bytes, size_t count)
{
    const HANDLE file = OpenPlainFile(path, access, disposition);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    DWORD written = 0;
    const bool done = ::WriteFile(file, bytes, static_cast<DWORD>(count), &written, nullptr) != 0;
    return ::CloseHandle(file) != 0 && done && written == count;
}

}  // namespace

// The attributes can also be read of a file that another program holds for itself, or that must not be read.
bool FileSize(const char* path, uint64_t* size)
{
    const HANDLE file = OpenPlainFile(path, FILE_READ_ATTRIBUTES, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    LARGE_INTEGER length{};
    const bool found = ::GetFileSizeEx(file, &length) != 0;
    ::CloseHandle(file);
    *size = static_cast<uint64_t>(length.QuadPart);
    return found;
}

size_t ReadFromFile(const char* path, uint64_t position, void* bytes, size_t count)
{
    const HANDLE file = OpenPlainFile(path, GENERIC_READ, OPEN_EXISTING);
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
