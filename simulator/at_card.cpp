// Facility locks, PIN and the files of the SIM card.
#include "simulator/at.h"
#include "simulator/values.h"

namespace simulator
{

namespace
{

constexpr int attempts = 3;

std::string WrongPassword() { return Refused(incorrectPassword); }

// The bars on calls are shown for each class: voice, data, fax.
std::string LockLines(const std::string& command, const std::string& facility, bool locked)
{
    const std::string line = command + (locked ? ": 1" : ": 0");
    return facility.starts_with('A') ? line + ",1\r\n" + line + ",2\r\n" + line + ",4" : line;
}

// Status words of the card.
constexpr char normalEnd[] = "144,0";
constexpr char fileNotFound[] = "148,4";
constexpr char unknownInstruction[] = "109,0";

constexpr char readBinary[] = "176";
constexpr char askStatus[] = "242";

}  // namespace

// Both commands have the same locks.
std::string AnswerLock(const AtCommand& command)
{
    const std::vector<std::string> fields = FieldsOf(command.value);  // facility, mode, password, class
    const std::string facility = Unquoted(fields[0]);
    const std::string mode = FieldAt(fields, 1);
    auto& locks = ThePhone().locks;
    const auto lock = locks.find(facility);
    if (!command.Sets() || lock == locks.end() || mode.size() != 1 || mode < "0" || mode > "2")
        return Refused(incorrectParameters);
    if (mode == "2")
        return Answer(LockLines(command.name, facility, lock->second));
    if (Unquoted(FieldAt(fields, 2)) != ThePhone().card.pin)
        return WrongPassword();
    lock->second = mode == "1";
    return Done();
}

std::string AnswerPin(const AtCommand& command)
{
    SimCard& card = ThePhone().card;
    const bool blocked = card.attemptsLeft == 0;
    if (command.Reads())
        return Answer(std::string("+CPIN: ") + (blocked ? "SIM PUK" : card.waitsForPin ? "SIM PIN" : "READY"));
    if (!command.Sets() || !(blocked || card.waitsForPin))
        return Refused(operationNotAllowed);
    const std::vector<std::string> fields = FieldsOf(command.value);  // code, new PIN
    const std::string code = Unquoted(fields[0]);
    const std::string newPin = Unquoted(FieldAt(fields, 1));
    if (blocked && (code != card.puk || newPin.empty()))
        return WrongPassword();
    if (!blocked && code != card.pin)
    {
        --card.attemptsLeft;
        return card.attemptsLeft == 0 ? Refused(pukWanted) : WrongPassword();
    }
    if (!newPin.empty())
        card.pin = newPin;
    card.waitsForPin = false;
    card.attemptsLeft = attempts;
    return Done();
}

// Reads whole files only.
std::string AnswerCardAccess(const AtCommand& command)
{
    const std::vector<std::string> fields = FieldsOf(command.value);  // instruction, file, three parameters, data
    if (!command.Sets())
        return Refused(operationNotAllowed);
    if (fields[0] == askStatus)
        return Answer(std::string("+CRSM: ") + normalEnd);
    if (fields[0] != readBinary)
        return Answer(std::string("+CRSM: ") + unknownInstruction);
    const auto& files = ThePhone().card.files;
    const auto file = files.find(static_cast<uint16_t>(NumberIn(FieldAt(fields, 1, "0"), 0, UINT16_MAX).value_or(0)));
    if (file == files.end())
        return Answer(std::string("+CRSM: ") + fileNotFound);
    return Answer(std::string("+CRSM: ") + normalEnd + ',' + Quoted(file->second));
}

}  // namespace simulator
