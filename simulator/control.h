// The simulator's own face, for tests and for applications that run without a phone: set the phone up, script what it
// or the host library does wrong, and read what was asked of them. One process has one simulator with one phone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "simulator/phone_parts.h"
#include "tandekor/common.h"

namespace simulator
{

using Bytes = std::vector<uint8_t>;

// Puts everything back to the state in which a process finds it: a fresh phone, no connection, nothing scripted,
// nothing recorded, the clock at its start, the boot box closed. From then on everything is recorded.
void Reset();

// Puts back the phone, the scripts and the records, and leaves the connections, the log's file and the clock as they
// are.
void ResetPhone();

// How many calls, exchanges and log texts are kept: after twice as many the older half is dropped. 0 keeps none. A
// process begins with 1,000.
constexpr size_t everything = SIZE_MAX;
void Record(size_t most);

// --- the phone

enum class Mode : uint8_t
{
    Offline,
    Online,
    Ftm
};

// The NV items of a fresh phone.
std::map<uint16_t, Bytes> FreshNvItems();

// What a fresh phone answers to AT queries.
std::map<std::string, std::string> FreshAtSettings();

// A file or folder on the phone.
struct SimulatedFile
{
    bool folder = false;
    Bytes content = {};
    std::string time = "20070315T100000";  // of the last change, as a Put told it
    // Both permission texts. The first one binds the file server: R is needed to get and copy the file, W to put
    // another in its place, D to delete and move it.
    std::string permissions = "\"RWD\"\"R\"";
};

// The files of a fresh phone.
std::map<std::string, SimulatedFile> FreshFiles();

// A short message in the phone's store.
struct SimulatedMessage
{
    char stat;        // '0' received and unread, '1' read, '2' stored and unsent, '3' sent
    std::string pdu;  // as hexadecimal digits, with the service centre's address in front
};

// The files of a fresh SIM card: hexadecimal digits by number of the file.
std::map<uint16_t, std::string> FreshSimFiles();

// The SIM card.
struct SimCard
{
    std::string pin = "1234";  // and the password of all facility locks
    std::string puk = "12345678";
    bool waitsForPin = false;
    int attemptsLeft = 3;  // at the PIN; with none left the PUK is wanted
    std::map<uint16_t, std::string> files = FreshSimFiles();
};

// The messages of a fresh phone: one unread, one unsent.
std::map<uint32_t, SimulatedMessage> FreshMessages();

// Made fresh it is a phone of model 52, on and online.
struct Phone
{
    Phone();  // texts and numbers that are not 0 stand in fresh_phone.cpp

    bool on = true;  // has power; while it starts it does not answer yet
    Mode mode = Mode::Online;
    bool atEcho = true;
    bool obexMode = false;             // the port talks OBEX, and AT commands are not answered
    bool switchesModeDirectly = true;  // false: mode commands 3 and 4 are accepted without effect
    bool goesOffline = true;           // false: mode command 0 is accepted without effect
    uint32_t startTimeMs = 0;          // from power or reset to the first answer
    uint32_t latencyMs = 0;            // what each answer takes
    uint32_t runOnTimeMs = 0;          // how long it lives on after its supply was dropped
    // Content by item number.
    std::map<uint16_t, Bytes> nvItems = FreshNvItems();
    std::map<uint16_t, uint16_t> nvStatus;  // status by item number, where it is not 0: the item is refused with it
    std::map<uint32_t, uint8_t> memory;     // bytes by address; what is not there reads as 0
    std::string buildId, buildModel;
    uint32_t msmHardwareVersion = 0;
    uint32_t buildMobModel = 0;
    std::string compileDate, compileTime, releaseDate, releaseTime, versionDir;
    uint32_t hardwareVersion = 0;  // factory request 10; bits 12 to 27 hold the chip's version
    uint16_t hardwareId = 0;       // factory request 29
    uint16_t nandFlashId = 0;
    uint8_t fuelGaugeVersion = 0;
    std::string spc;  // service programming code
    // What the factory requests and host operations reach, by subject.
    Radio radio;
    TestCalls testCalls;
    Audio audio;
    Keypad keypad;
    Bluetooth bluetooth;
    Charger charger;
    PhoneClock clock;
    Camera camera;
    Security security;
    Factory factory;
    UploadScript upload;
    // Value text by command name, as in {"+CMUT", "0"}. A command whose name is not here is answered with ERROR.
    std::map<std::string, std::string> atSettings = FreshAtSettings();
    int64_t clockAhead = 0;  // seconds by which its clock (+CCLK) is ahead of the calendar
    int clockZone = 0;       // quarters of an hour
    SimCard card;
    std::map<std::string, bool> locks;  // by facility
    // By reason, 0 to 5: state, class, and where a number is registered number, type and time.
    std::map<std::string, std::string> forwardings;
    bool callWaiting = false;
    std::string pressedKeys;                                          // by +CKPD so far
    std::map<uint32_t, SimulatedMessage> messages = FreshMessages();  // by place
    // The file server, on the port in OBEX mode. Files and folders by path, as in "Pictures/Holiday/beach.jpg".
    std::map<std::string, SimulatedFile> files = FreshFiles();
    uint32_t storageSize = 0;                     // what no file takes up is free
    bool announcesLength = true;                  // the first reply to a Get has a Length header
    std::map<uint8_t, uint8_t> obexResponses;     // response code by operation byte, where it is not carried out
    std::function<Bytes(const Bytes&)> obexPeer;  // answers the packets in the place of the phone's own server
};

// A fresh phone of a model, or nothing for a number that no model has. BecomeModel changes only what identifies the
// model.
std::optional<Phone> MakePhone(uint32_t model);
bool BecomeModel(Phone& phone, uint32_t model);

// The phone as it stands at this moment, to look at and to change. The reference stays good, but what time does to the
// phone (start, end of supply) shows only with the next call.
Phone& ThePhone();

// The supply of the phone, as the boot box switches it; at first it is off, and the phone lives without it. Switching
// on starts the phone if it is off; a supply that is on already starts nothing.
void SwitchSupply(bool on);

// --- what the host library answers

// "QLIB V5.0.40,QPHONEMS" at start. Given out as it stands, cut to the 39 characters that callers have room for; what
// follows its comma is replaced when the library mode is set.
void SetLibraryVersion(const std::string& version);
void SetConnectHandle(ResourceContext handle);  // what the next connects return; 0 refuses them

// A reply that QLIB_SendRAW or QLIB_SendSync returns instead of the phone's own, also when the phone is off, and with
// its bytes also when the result is 0. Bytes beyond the capacity that the caller offers are not delivered.
// claimedLength, where set, is reported as the length whatever was delivered.
struct Reply
{
    Bytes bytes;
    uint8_t result = 1;
    std::optional<uint16_t> claimedLength;
    std::string operation = {};  // serves its exchanges only; empty: those of both
};
void QueueReply(const Reply& reply);   // each reply serves one exchange, first in, first out
void RepeatReply(const Reply& reply);  // serves every exchange for which no reply is queued, until Reset

// The next exchanges, of either operation, are not answered, and each costs its time-out. UINT32_MAX: all of them.
void Silence(uint32_t exchanges);

// Whether the host library has an operation of this name that is recorded and can be refused.
bool IsOperation(const std::string& name);

// Refusal: the call is recorded, has no effect and returns 0. Calls count from 1, from now on. Calls of the text log
// operations are neither recorded nor refused.
void RefuseCall(const std::string& operation, int n = 1);       // the n-th call of this operation
void RefuseCallsFrom(const std::string& operation, int n = 1);  // the n-th and all later ones
void RefuseAnyCall(int n);                                      // the n-th recorded call of those that have a result

// Runs before the n-th call from now of an operation, for a phone that changes in the middle of a procedure.
void BeforeCall(const std::string& operation, int n, std::function<void()> action);

// --- what was asked

// Every call of a host operation but those of the text log, in order, as "QLIB_DIAG_CONTROL_F(2)": the arguments
// after the handle, numbers in decimal, texts in double quotes, bytes in hexadecimal, what an opaque pointer points to
// as 1 or, for null, 0; out-arguments and capacities left out.
const std::vector<std::string>& Calls();
int CountCalls(const std::string& operation);  // all of them, also those that are not kept
void ForgetCalls();                            // and the exchanges

struct Exchange
{
    std::string operation;  // "QLIB_SendRAW" or "QLIB_SendSync"
    ResourceContext handle = 0;
    Bytes request;
    uint16_t capacity = 0;
    uint32_t timeoutMs = 0;
    Bytes response = {};  // as far as it was delivered
};
const std::vector<Exchange>& Exchanges();

// The texts that were given to the text log, as they were given, muted or not; the flags set last; and all flags that
// were set, each with the number of texts before it.
struct LogFlagsChange
{
    uint32_t flags;
    size_t textsBefore;

    bool operator==(const LogFlagsChange&) const = default;
};
const std::vector<std::string>& LogTexts();
// What each text was given with.
struct LogArguments
{
    ResourceContext handle;
    uint32_t level;
    uint32_t last;

    bool operator==(const LogArguments&) const = default;
};
const std::vector<LogArguments>& LogTextArguments();
std::optional<uint32_t> LogFlags();
const std::vector<LogFlagsChange>& LogFlagsChanges();
void ForgetLog();  // texts and changes of the flags

// Calls, log texts and the library's waits in one list, as they came: "QLIB_DIAG_CONTROL_F(2)", the text,
// "Sleep(1000)". Waits are known on the simulated clock only.
const std::vector<std::string>& Timeline();
void ForgetTimeline();

// --- scripts: the verbs of tandekor/simulator.h, one a line, as docs/simulator.md shows them

// Carries out the lines of a file up to the first that is wrong. Empty for success, else "FILE:LINE: what is wrong".
std::string RunScript(const std::string& path);

// --- simulated clock and boot box, in programs that are linked with them

struct Clock
{
    uint32_t now = 0;                       // milliseconds
    int64_t utcStart = 1709967902;          // the calendar at 0 ms, in seconds since 1970: 2024-03-09 07:05:02 UTC
    std::vector<uint32_t> sleeps;           // every wait, in order
    std::function<void(uint32_t)> onSleep;  // called with the length of each wait before the time goes on
};
Clock& TheClock();

// The boot box: which ports exist, what they were told, and how the lines stand. One port is open at a time; opening it
// raises both lines, as drivers do. DTR switches the phone's supply.
struct BootBox
{
    std::vector<uint16_t> ports = {4};
    bool refuseLineChanges = false;
    bool refuseClose = false;
    bool open = false;
    bool dtr = false;
    bool rts = false;
    std::vector<std::string> events;  // what an open port was told, refused or not: "open 4", "configure", "purge",
                                      // "DTR 0", "RTS 1", "close"
};
BootBox& TheBootBox();

}  // namespace simulator
