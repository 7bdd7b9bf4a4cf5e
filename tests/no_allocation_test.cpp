// No call of the library allocates after the connect. The two shared libraries run as they are; a request for memory
// counts if it comes out of the library's own code. The clock of the machine does not wait here.
#include <gtest/gtest.h>
#include <link.h>
#include <time.h>

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "tandekor/simulator.h"
#include "tandekor/tandekor.h"
#include "tests/support/every_function.h"

namespace
{

uintptr_t start = 0, end = 0;  // of the library in memory
int allocations = 0;           // out of the library
uint64_t nanoseconds = 0;

int FindLibrary(dl_phdr_info* object, size_t, void*)
{
    if (std::strstr(object->dlpi_name, "Tandekor6R") == nullptr)
        return 0;
    for (int i = 0; i < object->dlpi_phnum; ++i)
    {
        const auto& segment = object->dlpi_phdr[i];
        const uintptr_t first = object->dlpi_addr + segment.p_vaddr;
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0)
            start = first, end = first + segment.p_memsz;
    }
    return 1;
}

void Count(const void* caller)
{
    const auto place = reinterpret_cast<uintptr_t>(caller);
    allocations += place >= start && place < end ? 1 : 0;
}

}  // namespace

void* operator new(size_t size)
{
    Count(__builtin_return_address(0));
    return std::malloc(size);
}
void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    Count(__builtin_return_address(0));
    return std::malloc(size);
}
// Not inlined, where compilers would take it for the wrong end of an operator new.
[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept { std::free(block); }

extern "C" int nanosleep(const timespec* time, timespec*)
{
    nanoseconds += static_cast<uint64_t>(time->tv_sec) * 1000000000 + static_cast<uint64_t>(time->tv_nsec);
    return 0;
}
extern "C" int clock_gettime(clockid_t, timespec* time) noexcept
{
    nanoseconds += 1000;
    *time = {static_cast<time_t>(nanoseconds / 1000000000), static_cast<long>(nanoseconds % 1000000000)};
    return 0;
}

namespace tandekor::test
{

TEST(Memory, NoFunctionAllocatesAfterTheConnect)
{
    ::dl_iterate_phdr(FindLibrary, nullptr);
    ASSERT_NE(start, end);
    const ResourceContext handle = TANDEKOR_ConnectServer(1);
    EXPECT_GE(allocations, 6) << "the connect's own are not seen";
    int succeeded = 0;
    for (const Function& function : EveryFunction())
    {
        for (const int64_t number : {1, 2, 7})
        {
            PHONE_Reset();
            PHONE_Set("mode", "ftm");
            const Call call = CallOf(function, {{number}, {"", "contrast.bmp"}, false, "/dev/shm/"});
            allocations = 0;
            succeeded += call(handle).result != 0 ? 1 : 0;
            EXPECT_EQ(allocations, 0) << function.name;
        }
    }
    EXPECT_GT(succeeded, 300);
    std::remove("/dev/shm/contrast.bmp");
}

}  // namespace tandekor::test
