// The machine's own clock and serial port.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "platform/clock.h"
#include "platform/serial_port.h"

namespace tandekor::platform
{

TEST(NativeClockTest, CountsTheMillisecondsOfAWait)
{
    const uint32_t start = TickCount();
    Sleep(20);
    const uint32_t passed = TickCount() - start;
    EXPECT_GE(passed, 20U);
    EXPECT_LT(passed, 10'000U) << "also on a busy machine";
}

// The port is a pseudo terminal. It has no lines, so a line change must fail.
TEST(NativeSerialPortTest, IsOpenedForOneUserAtATimeWithNothingThatMovesALineByItself)
{
    constexpr uint16_t number = 60417;
    const std::string link = "/dev/com" + std::to_string(number);
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY);
    ::unlockpt(terminal);
    ::unlink(link.c_str());
    if (terminal < 0 || ::symlink(::ptsname(terminal), link.c_str()) != 0)
        GTEST_SKIP() << "no pseudo terminal, or /dev is not writable";

    SerialHandle port = OpenSerialPort(number);
    EXPECT_NE(port, invalidSerialHandle);
    EXPECT_EQ(OpenSerialPort(number), invalidSerialHandle);
    EXPECT_TRUE(CloseSerialPort(port));
    port = OpenSerialPort(number);
    EXPECT_TRUE(ConfigureSerialPort(port));
    EXPECT_TRUE(PurgeSerialPort(port));
    termios control{};
    EXPECT_EQ(::tcgetattr(static_cast<int>(port), &control), 0);
    EXPECT_EQ(::cfgetospeed(&control), speed_t{B115200});
    EXPECT_EQ(control.c_cflag & (CSIZE | PARENB | HUPCL | CRTSCTS), tcflag_t{CS8});
    EXPECT_FALSE(SetSerialLine(port, SerialLine::Dtr, true));
    EXPECT_FALSE(SetSerialLine(port, SerialLine::Rts, false));
    EXPECT_TRUE(CloseSerialPort(port));
    ::unlink(link.c_str());
    ::close(terminal);
}

TEST(NativeSerialPortTest, RefusesAnInvalidHandle)
{
    EXPECT_FALSE(ConfigureSerialPort(invalidSerialHandle));
    EXPECT_FALSE(PurgeSerialPort(invalidSerialHandle));
    EXPECT_FALSE(SetSerialLine(invalidSerialHandle, SerialLine::Dtr, true));
    EXPECT_FALSE(SetSerialLine(invalidSerialHandle, SerialLine::Rts, false));
    EXPECT_FALSE(CloseSerialPort(invalidSerialHandle));
}

}  // namespace tandekor::platform
