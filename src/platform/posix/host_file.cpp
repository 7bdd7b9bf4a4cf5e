#include "platform/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace tandekor::platform
{

namespace
{

// Opens nothing but a plain file: a FIFO or a device could block the call, or react to being opened.
int OpenPlainFile(const char* path, int flags)
{
    struct stat status = {};
    if (::stat(path, &status) == 0 && !S_ISREG(status.st_mode))
        return -1;
    const int file = ::open(path, flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
    // Another object may have taken the name since.
    if (file >= 0 && (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode)))
    {
        ::close(file);
        return -1;
    }
    return file;
}

bool WriteToFile(const char* path, int mode, const void* bytes, size_t count)
{
    const int file = OpenPlainFile(path, O_WRONLY | O_CREAT | mode);
    if (file < 0)
        return false;
    const auto* next = static_cast<const uint8_t*>(bytes);
    size_t left = count;
    while (left > 0)
    {
        const ssize_t written = ::write(file, next, left);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            break;
        next += written;
        left -= static_cast<size_t>(written);
    }
    return ::close(file) == 0 && left == 0;
}

}  // namespace

bool FileSize(const char* path, uint64_t* size)
{
    struct stat status = {};
    if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    *size = static_cast<uint64_t>(status.st_size);
    return true;
}

size_t ReadFromFile(const char* path, uint64_t position, void* bytes, size_t count)
{
    const int file = OpenPlainFile(path, O_RDONLY);
    if (file < 0)
        return 0;
    size_t done = 0;
    while (done < count)
    {
        const ssize_t got
            = ::pread(file, static_cast<uint8_t*>(bytes) + done, count - done, static_cast<off_t>(position + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += static_cast<size_t>(got);
    }
    ::close(file);
    return done;
}

bool AppendToFile(const char* path, const void* bytes, size_t count)
{
    return WriteToFile(path, O_APPEND, bytes, count);
}

bool OverwriteFile(const char* path, const void* bytes, size_t count)
{
    return WriteToFile(path, O_TRUNC, bytes, count);
}

}  // namespace tandekor::platform
