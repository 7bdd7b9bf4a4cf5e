#include "allocations.h"

#include <cstddef>

namespace
{
uint64_t allocations = 0;
}  // namespace

uint64_t CountAllocations() { return allocations; }

// In the place of the C library's; operator new comes here as well.
extern "C"
{
    void* __libc_malloc(size_t size);
    void* __libc_calloc(size_t count, size_t size);
    void* __libc_realloc(void* old, size_t size);

    [[gnu::visibility("default")]] void* malloc(size_t size)
    {
        ++allocations;
        return __libc_malloc(size);
    }
    [[gnu::visibility("default")]] void* calloc(size_t count, size_t size)
    {
        ++allocations;
        return __libc_calloc(count, size);
    }
    [[gnu::visibility("default")]] void* realloc(void* old, size_t size)
    {
        ++allocations;
        return __libc_realloc(old, size);
    }
}
