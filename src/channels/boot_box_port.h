// The serial port of the boot box, whose DTR line switches the phone's power. No byte is ever sent on it.
#pragma once

#include <cstdint>

#include "platform/serial_port.h"

namespace tandekor
{

// At most one port is open per object: from the first SwitchPhoneOn to the end of the connection.
class BootBoxPort
{
public:
    BootBoxPort() = default;
    ~BootBoxPort() { ReleasePort(); }
    BootBoxPort(const BootBoxPort&) = delete;
    BootBoxPort& operator=(const BootBoxPort&) = delete;

    // Raises DTR, on the port that is open or else on this one, which it opens. Another open port is a failure.
    bool SwitchPhoneOn(uint16_t iBootBoxPort);
    // Drops DTR on the open port, which must be this one.
    bool SwitchPhoneOff(uint16_t iBootBoxPort);
    bool ReleasePort();

private:
    // Returns a port with both lines dropped.
    static platform::SerialHandle OpenPort(uint16_t iPort);
    bool ClosePort(platform::SerialHandle port) const;
    bool EnsurePortOpen(uint16_t iPort);
    bool SetDtr(bool raised) const;

    uint16_t iPortNumber = 0;
    platform::SerialHandle hPort = platform::invalidSerialHandle;
    bool bPortOpen = false;
};

}  // namespace tandekor
