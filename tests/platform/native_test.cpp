// The machine's own clock and files, as they are on every system.
#include <gtest/gtest.h>

#include <cstring>
#include <ctime>
#include <filesystem>
#include <string>

#include "platform/clock.h"
#include "platform/host_file.h"

namespace tandekor::platform
{

TEST(NativeClockTest, CountsTheMillisecondsOfAWait)
{
    const uint32_t start = TickCount();
    Sleep(50);
    const uint32_t passed = TickCount() - start;
    EXPECT_GE(passed, 50U - 16U) << "Windows counts in steps of up to 16 ms";
    EXPECT_LT(passed, 10'000U) << "also on a busy machine";
}

TEST(NativeClockTest, ShowsTheCalendarInUtc)
{
    std::time_t before = 0;
    UtcTime now{};
    do
    {
        before = std::time(nullptr);
        now = CurrentUtcTime();
    } while (std::time(nullptr) != before);
    char expected[40] = {};
    std::strftime(expected, sizeof expected, "%Y %m %d %H %M %S", std::gmtime(&before));
    char shown[40] = {};
    std::snprintf(shown, sizeof shown, "%04u %02u %02u %02u %02u %02u", now.year, now.month, now.day, now.hour,
                  now.minute, now.second);
    EXPECT_STREQ(shown, expected);
}

TEST(HostFileTest, IsWrittenAppendedToAndReadFromAnyPosition)
{
    const std::string file = (std::filesystem::temp_directory_path() / "tandekor-native-test").string();
    const char* const path = file.c_str();
    std::filesystem::remove(file);
    uint64_t size = 0;
    char bytes[8] = {};
    EXPECT_FALSE(FileSize(path, &size));
    EXPECT_EQ(ReadFromFile(path, 0, bytes, sizeof bytes), 0U);
    EXPECT_FALSE(OverwriteFile((file + "/no/folder").c_str(), "ab", 2));

    EXPECT_TRUE(AppendToFile(path, "old and ", 8));
    EXPECT_TRUE(OverwriteFile(path, "ab\r\n", 4));
    EXPECT_TRUE(AppendToFile(path, "\x1A\n", 2));
    EXPECT_TRUE(FileSize(path, &size));
    EXPECT_EQ(size, 6U);
    EXPECT_EQ(ReadFromFile(path, 1, bytes, sizeof bytes), 5U);
    EXPECT_EQ(std::memcmp(bytes, "b\r\n\x1A\n", 5), 0);
    EXPECT_EQ(ReadFromFile(path, 6, bytes, sizeof bytes), 0U);
    std::filesystem::remove(file);
}

}  // namespace tandekor::platform
