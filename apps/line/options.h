// The command line and the station file.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "radio_values.h"
#include "record.h"

namespace tandekor::line
{

constexpr int statusPassed = 0;
constexpr int statusFailed = 1;
constexpr int statusBadOptions = 2;
constexpr int statusInterrupted = 130;

struct Options
{
    std::vector<std::string> names;  // of tests and groups
    bool all = false;
    bool list = false;
    bool askOperator = false;
    std::string dut;
    std::string operatorName;

    std::string station;
    uint32_t port = 1;
    uint16_t bootBox = 4;
    std::string hostLibrary;
    std::string recordFolder = "records";
    std::string summaryFolder;

    uint32_t repeat = 1;
    uint32_t retry = 0;
    bool stopOnFail = false;
    uint32_t timeLimit = 0;                      // in seconds; 0 is none
    std::map<std::string, uint32_t> retries;     // by test
    std::map<std::string, uint32_t> timeLimits;  // by test
    std::map<std::string, Limit> limits;         // by test.measure

    RadioValues radio;
    uint16_t keyMap = 1;
    uint16_t lowPowerMode = 0;
    std::string uploadFile;
    std::optional<uint16_t> vgaGain;
    std::string imei;
    std::string freezeFile;
    bool mayFreeze = false;

    std::vector<std::string> refusals;  // of the simulated phone: NAME or NAME:N
    std::string phoneScript;
};

// Returns the status with which the program ends at once, or nothing if it goes on.
std::optional<int> Parse(int argc, char** argv, Options& options);

}  // namespace tandekor::line
