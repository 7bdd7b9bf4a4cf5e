// What this program asks of the machine that it runs on, in one file for each kind of system.
#pragma once

#include <string>

namespace tandekor::line::machine
{

bool OutputIsTerminal();  // the output of errors, too
bool InputIsTerminal();

// Waits for a line of input. False if the input ends or the program is interrupted.
bool ReadLine(std::string& line);

std::string HostName();
unsigned ProcessId();
void SetVariable(const char* name, const std::string& value);  // of the environment

// From now on an interruption (Ctrl-C, Ctrl-Break, a request to end, a terminal that closes) is only counted, and the
// second one ends the program at once. Writing to a closed pipe fails without ending it.
void CatchInterruptions(int statusOfSecond);
bool WasInterrupted();

// Lets this program use the host library of that file. Starts the program anew where that is needed. Returns an empty
// text, or why it cannot be used.
std::string UseHostLibrary(const std::string& file, char** arguments);

}  // namespace tandekor::line::machine
