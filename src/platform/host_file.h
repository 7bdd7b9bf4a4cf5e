// Files of the host, opened and closed for each access. Folders, devices, FIFOs and the like are never opened: they
// have no size, nothing can be read of them, and writing to them fails. Nothing is allocated.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tandekor::platform
{

// False if there is no such file. It need not be readable.
bool FileSize(const char* path, uint64_t* size);

// Reads up to count bytes from a position on; returns how many there were, 0 also if the file cannot be read.
size_t ReadFromFile(const char* path, uint64_t position, void* bytes, size_t count);

// Writes the bytes after what the file holds, or in its place; makes the file if there is none.
bool AppendToFile(const char* path, const void* bytes, size_t count);
bool OverwriteFile(const char* path, const void* bytes, size_t count);

}  // namespace tandekor::platform
