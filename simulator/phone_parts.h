// The parts of the simulated phone behind its factory requests and host operations, as tests and applications see them.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace simulator
{

// Transmitter and receiver.
struct Radio
{
    Radio();

    uint16_t mode = 0;
    uint16_t channel = 0;
    bool transmitting = false;
    uint8_t powerLevel = 0;
    uint32_t bursts = 0;
    uint16_t paDac = 0;
    uint16_t paRange = 0;
    bool cwWaveform = false;
    std::map<uint16_t, uint16_t> pdm;  // by type
    uint8_t lnaRange = 0;
    int16_t rssi = 0;
    int16_t dvgaOffset = 0;
    std::array<int16_t, 4> lnaOffsets = {};  // by LNA index; another index is refused
    std::map<uint16_t, uint16_t> adc;        // readings by type; another type is refused
};

// Test calls of each bearer.
struct TestCalls
{
    bool gsmSession = false;
    bool gsmTraffic = false;
    bool wcdmaSession = false;
    bool hsdpaSession = false;
    bool edgeIdle = false;
    bool edgeLoopback = false;
    bool callUp = false;  // on the normal call stack
    uint16_t channel = 0;
    uint8_t rxLevel = 40;
    uint8_t rxQuality = 0;
    uint8_t state = 1;  // of every BER session
};

struct Audio
{
    uint16_t path = 0;
    uint8_t volume = 0;
    bool loopback = false;
    bool tone = false;
    bool capturing = false;
    int16_t codecTxGain = 0;
    uint8_t biasStatus = 0;  // what the request of audio device 15 answers
};

struct KeyEvent
{
    uint16_t key = 0;
    uint8_t event = 0;
};

struct Keypad
{
    std::vector<std::pair<uint16_t, uint8_t>> map;  // hardware code and key
    bool detecting = false;
    std::deque<KeyEvent> queue;  // an empty queue reports key 0, event 0
    uint16_t hangingKey = 0;     // reports itself as soon as the queue was emptied, unless it is 0
};

struct Bluetooth
{
    std::vector<uint8_t> address;
    bool enabled = false;
    uint8_t cwChannel = 0;
    uint8_t moduleVersion = 5;
};

struct Charger
{
    std::map<uint32_t, uint8_t> switches;  // commands by switch type
    uint8_t maxCurrent = 0;                // indices
    uint8_t maxVoltage = 0;
    std::map<uint8_t, uint8_t> driveLevels;
};

struct Camera
{
    uint8_t sensor = 0;
    bool running = false;
    uint32_t status = 0;  // what the camera operations deliver
    std::string id;
};

// The calendar as the phone keeps it.
struct PhoneClock
{
    uint16_t year = 0;
    uint8_t month = 0, day = 0, hour = 0, minute = 0, second = 0;
    uint8_t result = 1;  // of setting and reading it, where that is carried out
};

struct Security
{
    bool onChipSim = false;
    std::vector<uint8_t> rootKey;
    bool secured = false;
    uint32_t status = 0;         // what the security commands deliver
    uint32_t commandStatus = 0;  // and the SIM's
    uint8_t result = 1;          // of the security commands, where they are carried out
};

// How an upload goes: its events are told step by step.
struct UploadScript
{
    uint32_t totalSize = 100000;
    uint32_t steps = 10;
    uint32_t stepTimeMs = 400;
    uint32_t lastStatus = 2;
    uint8_t result = 1;
};

struct Pin
{
    uint8_t out = 0, in = 1, outputEnabled = 0;
    std::array<uint8_t, 4> configuration = {};  // function, pull up or down, pull enable, direction
};

// What the factory requests reach. What is not 0 or empty when fresh stands in fresh_phone.cpp.
struct Factory
{
    Factory();

    std::map<uint8_t, Pin> pins;
    // Registers of the I2C devices by device and register address: the cameras' identifications, the radio chip.
    std::map<std::pair<uint8_t, uint16_t>, std::vector<uint8_t>> i2c;
    std::map<uint8_t, uint16_t> fuelGaugeRegisters;  // 0 voltage in mV, 1 charge in percent
    uint32_t headsetRegister = 0;
    std::vector<uint8_t> imsi;
    uint8_t simMode = 1;
    std::vector<uint8_t> kcFile;
    std::map<std::string, std::vector<uint8_t>> card;  // files of the memory card by name
    std::map<uint16_t, uint8_t> data;                  // factory bytes by address
    std::vector<uint16_t> linearizer;
    uint16_t fmChip = 0;
    uint16_t fmChannel = 0;
    std::vector<uint16_t> fmStations;
    std::string fmProgram;
    std::string image;  // file name last shown
    uint8_t display = 0;
    uint8_t backlight = 0, contrast = 0;
    bool backlightOn = false;
    uint32_t keypadLight = 0;  // row times 10 and state, as sent last
    uint16_t slider = 1;
    uint16_t flashLevel = 0;
    uint8_t focus = 0;
};

}  // namespace simulator
