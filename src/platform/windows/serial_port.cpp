#include "platform/serial_port.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdio>

namespace tandekor::platform
{

namespace
{

HANDLE Native(SerialHandle port) { return reinterpret_cast<HANDLE>(port); }

}  // namespace

// From 10 on a port is found only by its device name.
SerialHandle OpenSerialPort(uint16_t portNumber)
{
    char name[16];
    std::snprintf(name, sizeof name, portNumber < 10 ? "COM%d" : R"(\\.\COM%d)", portNumber);
    const HANDLE port = ::CreateFileA(name, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    return port == INVALID_HANDLE_VALUE ? invalidSerialHandle : reinterpret_cast<SerialHandle>(port);
}

bool ConfigureSerialPort(SerialHandle port)
{
    DCB control{};
    control.DCBlength = sizeof control;
    ::GetCommState(Native(port), &control);
    control.BaudRate = 115200;
    control.ByteSize = 8;
    control.Parity = NOPARITY;
    // The code for one and a half stop bits. Most drivers refuse it with eight data bits and then apply nothing of the
    // block: the port keeps the settings that it had.
    control.StopBits = 1;
    control.XonLim = 0;
    control.XoffLim = 0;
    control.EofChar = 0;
    control.fBinary = 1;
    control.fParity = 1;
    control.fOutxCtsFlow = 0;
    control.fOutxDsrFlow = 0;
    control.fDtrControl = DTR_CONTROL_DISABLE;
    control.fDsrSensitivity = 0;
    control.fTXContinueOnXoff = 1;
    control.fOutX = 0;
    control.fInX = 0;
    control.fErrorChar = 0;
    control.fNull = 0;
    control.fRtsControl = RTS_CONTROL_ENABLE;
    control.fAbortOnError = 0;
    return ::SetCommState(Native(port), &control) != 0;
}

bool PurgeSerialPort(SerialHandle port) { return ::PurgeComm(Native(port), PURGE_TXCLEAR | PURGE_RXCLEAR) != 0; }

bool SetSerialLine(SerialHandle port, SerialLine line, bool raised)
{
    const DWORD function = line == SerialLine::Dtr ? (raised ? SETDTR : CLRDTR) : (raised ? SETRTS : CLRRTS);
    return ::EscapeCommFunction(Native(port), function) != 0;
}

bool CloseSerialPort(SerialHandle port) { return ::CloseHandle(Native(port)) != 0; }

}  // namespace tandekor::platform
