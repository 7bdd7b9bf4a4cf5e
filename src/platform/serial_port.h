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

// Opens the port for one user at a time: a port that this process holds is refused untouched. Elsewhere than on Windows
// the port of another process is opened before it is refused, by which its driver may raise both lines, and one that is
// held without a lock may not be refused. The lines are not touched on purpose, but a driver may raise both.
// Windows: the device "COM<number>". POSIX: /dev/com<number> where it exists, which is how a USB adapter gets a number
// (a link, made by hand or by a udev rule: /dev/com5 -> ttyUSB0), also when it cannot be opened; else the on-board port
// /dev/ttyS<number - 1>.
SerialHandle OpenSerialPort(uint16_t portNumber);

// Sets 115200 baud, 8 data bits, no parity, no flow control, and lets the lines be driven one by one.
bool ConfigureSerialPort(SerialHandle port);

// Discards the contents of both buffers.
bool PurgeSerialPort(SerialHandle port);

// Raises or drops one line and leaves the other unchanged. An invalid handle is refused.
bool SetSerialLine(SerialHandle port, SerialLine line, bool raised);

// Closes the port and leaves both lines unchanged.
bool CloseSerialPort(SerialHandle port);

}  // namespace tandekor::platform
