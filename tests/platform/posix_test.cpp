// The machine's own files and serial port. Calls of the system are wrapped: the port names of /dev lead to a
// folder of the test, and what no pseudo terminal or file does here is played.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "platform/host_file.h"
#include "platform/serial_port.h"

namespace
{

std::string portFolder;
int opens = 0;
std::vector<std::pair<unsigned long, int>> lineChanges;
std::vector<ssize_t> writeResults;  // of the next calls: a count, or a negative errno; then the real ones
bool statFindsNothing = false;
bool refuseExclusiveUse = false;

std::string Redirected(const char* path)
{
    const std::string text = path;
    return text.starts_with("/dev/com") || text.starts_with("/dev/ttyS") ? portFolder + text.substr(5) : text;
}

}  // namespace

extern "C"
{
    int __real_open(const char* path, int flags, mode_t mode);
    int __real_stat(const char* path, struct stat* status);
    int __real_lstat(const char* path, struct stat* status);
    int __real_ioctl(int file, unsigned long request, void* argument);
    ssize_t __real_write(int file, const void* bytes, size_t count);

    int __wrap_open(const char* path, int flags, mode_t mode)
    {
        ++opens;
        return __real_open(Redirected(path).c_str(), flags, mode);
    }
    int __wrap_stat(const char* path, struct stat* status)
    {
        return statFindsNothing ? -1 : __real_stat(Redirected(path).c_str(), status);
    }
    int __wrap_lstat(const char* path, struct stat* status) { return __real_lstat(Redirected(path).c_str(), status); }
    int __wrap_ioctl(int file, unsigned long request, void* argument)
    {
        if (request == TIOCEXCL && refuseExclusiveUse)
            return -1;
        if (request != TIOCMBIS && request != TIOCMBIC)
            return __real_ioctl(file, request, argument);
        lineChanges.emplace_back(request, *static_cast<const int*>(argument));
        return __real_ioctl(file, TIOCOUTQ, argument);  // fails for what is no terminal
    }
    ssize_t __wrap_write(int file, const void* bytes, size_t count)
    {
        if (writeResults.empty())
            return __real_write(file, bytes, count);
        const ssize_t result = writeResults.front();
        writeResults.erase(writeResults.begin());
        if (result >= 0)
            return __real_write(file, bytes, static_cast<size_t>(result));
        errno = static_cast<int>(-result);
        return -1;
    }
}

namespace tandekor::platform
{

namespace
{

class PlatformTest : public ::testing::Test
{
protected:
    PlatformTest()
    {
        std::string path = (std::filesystem::temp_directory_path() / "tandekor-XXXXXX").string();
        EXPECT_NE(::mkdtemp(path.data()), nullptr);
        portFolder = path + "/";
    }
    ~PlatformTest() override { std::filesystem::remove_all(portFolder); }

    const std::string& folder = portFolder;
};

using NativeSerialPortTest = PlatformTest;

class NativeHostFileTest : public PlatformTest
{
protected:
    const std::string file = folder + "f";
    const char* const path = file.c_str();

    std::string Content() const
    {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

}  // namespace

TEST_F(NativeSerialPortTest, IsOpenedForOneUserAtATimeWithNothingThatMovesALineByItself)
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ::unlockpt(terminal);
    ASSERT_EQ(::symlink(::ptsname(terminal), (folder + "com5").c_str()), 0);
    ASSERT_EQ(::symlink(::ptsname(terminal), (folder + "ttyS11").c_str()), 0);
    SerialHandle port = OpenSerialPort(5);
    const int file = static_cast<int>(port);
    EXPECT_NE(port, invalidSerialHandle);
    opens = 0;
    EXPECT_EQ(OpenSerialPort(5), invalidSerialHandle);
    EXPECT_EQ(OpenSerialPort(12), invalidSerialHandle) << "the same port by its other name";
    EXPECT_EQ(opens, 0) << "an open would have raised the lines";
    const int other = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
    EXPECT_EQ(::flock(other, LOCK_EX | LOCK_NB), -1) << "locked against other processes";
    ::close(other);

    termios control{};
    control.c_iflag = IXON | IXOFF | IXANY;
    control.c_cflag = HUPCL | CRTSCTS | CSTOPB | PARENB | CS7 | B9600;
    EXPECT_EQ(::tcsetattr(file, TCSANOW, &control), 0);
    EXPECT_TRUE(ConfigureSerialPort(port));
    EXPECT_TRUE(PurgeSerialPort(port));
    EXPECT_EQ(::tcgetattr(file, &control), 0);
    EXPECT_EQ(::cfgetospeed(&control), speed_t{B115200});
    EXPECT_EQ(control.c_iflag & (IXON | IXOFF | IXANY), tcflag_t{0});
    EXPECT_EQ(control.c_cflag & (CSIZE | PARENB | CSTOPB | HUPCL | CRTSCTS | CLOCAL | CREAD),
              tcflag_t{CS8 | CLOCAL | CREAD});

    EXPECT_TRUE(CloseSerialPort(port));
    refuseExclusiveUse = true;
    EXPECT_EQ(OpenSerialPort(5), invalidSerialHandle);
    refuseExclusiveUse = false;
    port = OpenSerialPort(12);
    EXPECT_NE(port, invalidSerialHandle);
    EXPECT_TRUE(CloseSerialPort(port));
    // A link that leads nowhere is no reason to drive another port.
    ASSERT_EQ(::symlink("nothing", (folder + "com12").c_str()), 0);
    EXPECT_EQ(OpenSerialPort(12), invalidSerialHandle);
    ::close(terminal);
}

TEST_F(NativeSerialPortTest, MovesEachLineByItselfAndRefusesAnInvalidHandle)
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    lineChanges.clear();
    EXPECT_TRUE(SetSerialLine(terminal, SerialLine::Dtr, true));
    EXPECT_TRUE(SetSerialLine(terminal, SerialLine::Dtr, false));
    EXPECT_TRUE(SetSerialLine(terminal, SerialLine::Rts, true));
    EXPECT_TRUE(SetSerialLine(terminal, SerialLine::Rts, false));
    EXPECT_EQ(lineChanges,
              (std::vector<std::pair<unsigned long, int>>{
                  {TIOCMBIS, TIOCM_DTR}, {TIOCMBIC, TIOCM_DTR}, {TIOCMBIS, TIOCM_RTS}, {TIOCMBIC, TIOCM_RTS}}));
    ::close(terminal);

    EXPECT_FALSE(ConfigureSerialPort(invalidSerialHandle));
    EXPECT_FALSE(PurgeSerialPort(invalidSerialHandle));
    EXPECT_FALSE(SetSerialLine(invalidSerialHandle, SerialLine::Dtr, true));
    EXPECT_FALSE(CloseSerialPort(invalidSerialHandle));
}

TEST_F(NativeHostFileTest, WritesAllOrReportsThatItCouldNot)
{
    writeResults = {1, -EINTR, 2};
    EXPECT_TRUE(OverwriteFile(path, "abcdef", 6));
    EXPECT_TRUE(AppendToFile(path, "gh", 2));
    EXPECT_EQ(Content(), "abcdefgh");
    writeResults = {2, -ENOSPC};
    EXPECT_FALSE(OverwriteFile(path, "ijk", 3));
    writeResults = {0};
    EXPECT_FALSE(AppendToFile(path, "l", 1));
    EXPECT_EQ(Content(), "ij");
}

// Whoever opens a FIFO waits for its other end.
TEST_F(NativeHostFileTest, NothingButAPlainFileIsOpened)
{
    ::alarm(20);
    ASSERT_EQ(::mkfifo(path, 0666), 0);
    const int reader = ::open(path, O_RDONLY | O_NONBLOCK);
    char bytes[4] = {};
    uint64_t size = 0;
    for (const char* special : {path, "/dev/full", folder.c_str()})
    {
        opens = 0;
        EXPECT_FALSE(OverwriteFile(special, "ab", 2));
        EXPECT_FALSE(AppendToFile(special, "ab", 2));
        EXPECT_FALSE(FileSize(special, &size));
        EXPECT_EQ(ReadFromFile(special, 0, bytes, 4), 0U);
        EXPECT_EQ(opens, 0) << special;
    }
    // The file turns into a FIFO right after its check.
    statFindsNothing = true;
    EXPECT_FALSE(OverwriteFile(path, "ab", 2));
    EXPECT_EQ(::read(reader, bytes, 4), 0);
    ::close(reader);
    EXPECT_FALSE(AppendToFile(path, "ab", 2));
    EXPECT_EQ(ReadFromFile(path, 0, bytes, 4), 0U);
    statFindsNothing = false;
    ::alarm(0);
}

}  // namespace tandekor::platform
