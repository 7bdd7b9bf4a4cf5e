// Memory that runs out at each point of a connect. A program of its own, since it replaces operator new; the host
// library is played by the few operations below.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <new>

#include "platform/qmsl.h"
#include "tandekor/tandekor.h"

namespace
{

int allocationsLeft = -1;  // until one fails; none does if it is negative
bool goesOnFailing = false;
int blocks = 0;  // that are allocated
bool ranOut = false;

constexpr ResourceContext handle = 7;
bool connected = false;
int calls = 0;

}  // namespace

void* operator new(size_t size)
{
    if (allocationsLeft == 0)
    {
        ranOut = true;
        allocationsLeft = goesOnFailing ? 0 : -1;
        throw std::bad_alloc();
    }
    allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
    ++blocks;
    return std::malloc(size);
}
void* operator new(size_t size, const std::nothrow_t&) noexcept
{
    try
    {
        return operator new(size);
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}
// Not inlined, where compilers would take it for the wrong end of an operator new.
[[gnu::noinline]] void operator delete(void* block) noexcept
{
    blocks -= block != nullptr ? 1 : 0;
    std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept { operator delete(block); }

void QLIB_GetLibraryVersion(char* text) { std::strcpy(text, "QLIB V5.0.40,QPHONEMS"); }
ResourceContext QLIB_ConnectServer(uint32_t)
{
    connected = true;
    return handle;
}
void QLIB_DisconnectServer(ResourceContext) { connected = false; }
uint8_t QLIB_AddUserMessageToTextLog(ResourceContext, uint32_t, const char*, uint32_t) { return 1; }
uint8_t QLIB_SendRAW(ResourceContext, uint16_t, uint8_t*, uint16_t* length, uint8_t* response, uint32_t)
{
    ++calls;
    *length = 3;
    std::memcpy(response, "\xA0\0\3", *length);
    return 1;
}
uint8_t QLIB_SendSync(ResourceContext, uint16_t, uint8_t*, uint16_t* length, uint8_t* response, uint32_t)
{
    ++calls;
    *length = 12;
    std::memset(response, 0, *length);
    return 1;
}
uint8_t QLIB_IsPhoneConnected(ResourceContext)
{
    ++calls;
    return 0;
}

namespace
{

// How many host calls a function of each channel makes.
std::array<int, 4> CallsOfChannels()
{
    const auto count = [](auto call)
    {
        calls = 0;
        call();
        return calls;
    };
    uint16_t status = 0;
    uint32_t value = 0;
    return {count([&] { TANDEKOR_AT_CHUP(handle, &status); }), count([] { TANDEKOR_FTM_SET_LCD_CONTRAST(handle, 1); }),
            count([&] { TANDEKOR_OBEX_FreeSpaceCheck(handle, &value, &status); }),
            count([] { TANDEKOR_AudioTest(handle, 1, 1); })};
}

}  // namespace

TEST(Allocation, AConnectThatRunsOutOfMemoryIsUndoneOrLeavesOutOneChannel)
{
    TANDEKOR_DisconnectServer(TANDEKOR_ConnectServer(1));
    TANDEKOR_ConnectServer(1);
    const auto all = CallsOfChannels();
    TANDEKOR_DisconnectServer(handle);
    for (const bool goesOn : {false, true})
    {
        int refused = 0, withoutChannel = 0, n = 0;
        for (ranOut = true; ranOut; ++n)
        {
            SCOPED_TRACE(n);
            ranOut = false;
            const int blocksBefore = blocks;
            goesOnFailing = goesOn;
            allocationsLeft = n;
            const ResourceContext result = TANDEKOR_ConnectServer(1);
            allocationsLeft = -1;
            const auto reached = CallsOfChannels();
            EXPECT_EQ(connected, result != 0);
            int missing = 0;
            for (size_t i = 0; i < all.size(); ++i)
                missing += reached[i] == all[i] ? 0 : reached[i] == 0 ? 1 : 100;
            EXPECT_EQ(missing, result == 0 ? 4 : ranOut ? 1 : 0);
            (result == 0 ? refused : withoutChannel) += ranOut ? 1 : 0;
            TANDEKOR_DisconnectServer(handle);
            EXPECT_EQ(blocks, blocksBefore);
        }
        EXPECT_EQ(withoutChannel, goesOn ? 0 : 4);
        EXPECT_GE(refused, 2) << "the record and its place in the table";
    }
}
