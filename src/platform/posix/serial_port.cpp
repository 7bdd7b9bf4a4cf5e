#include "platform/serial_port.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace tandekor::platform
{

namespace
{

int Native(SerialHandle port) { return static_cast<int>(port); }

class DeviceName
{
public:
    DeviceName(const char* format, int number) { std::snprintf(name, sizeof name, format, number); }

    // Also for a link that leads nowhere.
    bool Exists() const
    {
        struct stat status = {};
        return ::lstat(name, &status) == 0;
    }
    // Without O_NONBLOCK the open would wait for a carrier that a boot box never raises.
    int Open() const { return HeldByThisProcess() ? -1 : ::open(name, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC); }

private:
    // Whether one of the process's files is this device: an open would raise its lines before it could be refused.
    bool HeldByThisProcess() const
    {
        struct stat device = {};
        if (::stat(name, &device) != 0)
            return false;
        constexpr long mostFiles = 65536;
        const long files = std::min(::sysconf(_SC_OPEN_MAX), mostFiles);
        for (int file = 0; file < files; ++file)
        {
            struct stat held = {};
            if (::fstat(file, &held) == 0 && S_ISCHR(held.st_mode) && held.st_rdev == device.st_rdev)
                return true;
        }
        return false;
    }

    char name[32];
};

// TIOCEXCL keeps out the processes that open the device later, except those of root; the lock keeps out those too.
bool ClaimForThisProcess(int port) { return ::flock(port, LOCK_EX | LOCK_NB) == 0 && ::ioctl(port, TIOCEXCL) == 0; }

}  // namespace

SerialHandle OpenSerialPort(uint16_t portNumber)
{
    // A link that is there decides, also when it cannot be opened: another device must not be driven in its place.
    const DeviceName linked("/dev/com%d", portNumber);
    const int port = linked.Exists() ? linked.Open() : DeviceName("/dev/ttyS%d", portNumber - 1).Open();
    if (port < 0)
        return invalidSerialHandle;
    if (!ClaimForThisProcess(port))
    {
        ::close(port);
        return invalidSerialHandle;
    }
    return port;
}

bool ConfigureSerialPort(SerialHandle port)
{
    termios control{};
    if (::tcgetattr(Native(port), &control) != 0)
        return false;
    ::cfmakeraw(&control);
    control.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY);
    // One stop bit: one and a half exist here only for five data bits, and no byte is ever sent.
    // Without HUPCL the close leaves the lines as they are, and without CRTSCTS the driver does not move RTS by itself.
    control.c_cflag &= ~static_cast<tcflag_t>(HUPCL | CRTSCTS | CSTOPB | PARENB);
    control.c_cflag |= CLOCAL | CREAD;
    ::cfsetspeed(&control, B115200);
    return ::tcsetattr(Native(port), TCSANOW, &control) == 0;
}

bool PurgeSerialPort(SerialHandle port) { return ::tcflush(Native(port), TCIOFLUSH) == 0; }

bool SetSerialLine(SerialHandle port, SerialLine line, bool raised)
{
    const int bit = line == SerialLine::Dtr ? TIOCM_DTR : TIOCM_RTS;
    return ::ioctl(Native(port), raised ? TIOCMBIS : TIOCMBIC, &bit) == 0;
}

bool CloseSerialPort(SerialHandle port) { return ::close(Native(port)) == 0; }

}  // namespace tandekor::platform
