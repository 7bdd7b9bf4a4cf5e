#include "channels/boot_box_port.h"

#include "platform/clock.h"

namespace tandekor
{

using platform::SerialLine;

platform::SerialHandle BootBoxPort::OpenPort(uint16_t iPort)
{
    const platform::SerialHandle port = platform::OpenSerialPort(iPort);
    if (port == platform::invalidSerialHandle)
        return port;
    platform::ConfigureSerialPort(port);
    platform::PurgeSerialPort(port);
    platform::SetSerialLine(port, SerialLine::Dtr, false);
    platform::SetSerialLine(port, SerialLine::Rts, false);
    return port;
}

bool BootBoxPort::ClosePort(platform::SerialHandle port) const
{
    platform::SetSerialLine(port, SerialLine::Rts, true);
    return !bPortOpen || platform::CloseSerialPort(port);
}

bool BootBoxPort::EnsurePortOpen(uint16_t iPort)
{
    if (bPortOpen)
        return iPort == iPortNumber;
    hPort = OpenPort(iPort);
    if (hPort == platform::invalidSerialHandle)
        return false;
    iPortNumber = iPort;
    bPortOpen = true;
    return true;
}

bool BootBoxPort::ReleasePort()
{
    if (!bPortOpen || !ClosePort(hPort))
        return false;
    hPort = platform::invalidSerialHandle;
    bPortOpen = false;
    iPortNumber = 0;
    return true;
}

bool BootBoxPort::SetDtr(bool raised) const
{
    if (!platform::SetSerialLine(hPort, SerialLine::Dtr, raised))
        return false;
    platform::Sleep(0);
    return true;
}

bool BootBoxPort::SwitchPhoneOn(uint16_t iBootBoxPort) { return EnsurePortOpen(iBootBoxPort) && SetDtr(true); }

bool BootBoxPort::SwitchPhoneOff(uint16_t iBootBoxPort) { return iBootBoxPort == iPortNumber && SetDtr(false); }

}  // namespace tandekor
