// A serial port of which only the control lines are used.
#pragma once

#include <cstdint>

namespace tandekor::platform
{

using SerialHandle = intptr_t;

constexpr SerialHandle invalidSerialHandle = -1;

enum class SerialLine
{
    Dtr,
    Rts
};

// Opens the port for this process alone (elsewhere than on Windows, a process that holds it already without a lock is
// not seen); the lines are not touched on purpose, but a driver may raise both.
// Windows: the device "COM<number>". POSIX: /dev/com<number> where it exists, which is how a USB adapter gets a number
// (a link, made by hand or by a udev rule: /dev/com5 -> ttyUSB0), also when it cannot be opened; else the on-board port
// /dev/ttyS<number - 1>.
SerialHandle OpenSerialPort(uint16_t portNumber);

// Sets 115200 baud, 8 data bits, no parity, no flow control, and lets the lines be driven one by one.
bool ConfigureSerialPort(SerialHandle port);

// Drops what stands in both buffers.
bool PurgeSerialPort(SerialHandle port);

// Raises or drops one line and leaves the other alone. An invalid handle is refused.
bool SetSerialLine(SerialHandle port, SerialLine line, bool raised);

// Closes the port and leaves both lines as they are.
bool CloseSerialPort(SerialHandle port);

}  // namespace tandekor::platform
