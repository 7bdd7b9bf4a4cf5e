// Clock, registration, call forwarding and waiting, keys.
#include <chrono>
#include <cstdio>

#include "phone/nv_items.h"
#include "platform/clock.h"
#include "simulator/at.h"

namespace simulator
{

using namespace std::chrono;

namespace
{

constexpr int firstYear = 2000;

sys_seconds TimeOf(int yearNumber, unsigned monthNumber, unsigned dayNumber, unsigned hour, unsigned minute,
                   unsigned second)
{
    const sys_days date = year(yearNumber) / month(monthNumber) / day(dayNumber);
    return date + hours(hour) + minutes(minute) + seconds(second);
}

sys_seconds Calendar()
{
    const tandekor::platform::UtcTime now = tandekor::platform::CurrentUtcTime();
    return TimeOf(now.year, now.month, now.day, now.hour, now.minute, now.second);
}

std::string SetClock(const std::string& value)
{
    unsigned yearInCentury = 0;
    unsigned monthNumber = 0;
    unsigned dayNumber = 0;
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    int zone = 0;
    char quote = 0;
    const int read = std::sscanf(value.c_str(), "\"%2u/%2u/%2u,%2u:%2u:%2u%3d%c", &yearInCentury, &monthNumber,
                                 &dayNumber, &hour, &minute, &second, &zone, &quote);
    const int yearNumber = firstYear + static_cast<int>(yearInCentury);
    const year_month_day date = year(yearNumber) / month(monthNumber) / day(dayNumber);
    if (read != 8 || quote != '"' || !date.ok() || hour > 23 || minute > 59 || second > 59)
        return Refused(incorrectParameters);
    ThePhone().clockAhead = (TimeOf(yearNumber, monthNumber, dayNumber, hour, minute, second) - Calendar()).count();
    ThePhone().clockZone = zone;
    return Done();
}

// State and class where nothing is registered, and the class of a registration that names none: voice, data and fax.
constexpr char notForwarded[] = "0,7";
constexpr char allClasses[] = "7";

}  // namespace

std::string AnswerClock(const AtCommand& command)
{
    if (!command.Reads())
        return command.Sets() ? SetClock(command.value) : Refused(operationNotAllowed);
    const sys_seconds now = Calendar() + seconds(ThePhone().clockAhead);
    const year_month_day date(floor<days>(now));
    const hh_mm_ss<seconds> time(now - floor<days>(now));
    char text[64];
    std::snprintf(
        text, sizeof text, "+CCLK: \"%02d/%02u/%02u,%02d:%02d:%02d%+03d\"", static_cast<int>(date.year()) % 100,
        static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
        static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()), ThePhone().clockZone);
    return Answer(text);
}

namespace
{

bool HasNetwork() { return ThePhone().mode == Mode::Online; }

constexpr char notRegistered[] = "0";

}  // namespace

// Location area and cell are shown with the reports that include them, in the two characters each that are read of
// them. Without a network the phone is not registered, whatever its setting says.
std::string AnswerRegistration(const AtCommand& command)
{
    if (!command.Reads() || !ThePhone().atSettings.contains(command.name))
        return AnswerSetting(command);
    std::vector<std::string> fields = FieldsOf(ThePhone().atSettings[command.name]);
    if (!HasNetwork() && fields.size() > 1)
        fields[1] = notRegistered;
    else if (fields[0] == "2" && command.name == "+CREG")
        fields.insert(fields.end(), {"1A", "2B"});
    return Answer(command.name + ": " + Joined(fields));
}

// Mode 3 sets only the format. Without a network there is no operator to show.
std::string AnswerOperator(const AtCommand& command)
{
    constexpr char setFormat[] = "3";
    const std::vector<std::string> given = FieldsOf(command.value);
    if (command.Sets() && given[0] == setFormat)
        return given.size() == 2 ? AnswerSetting({command.name, command.kind, ',' + given[1]})
                                 : Refused(incorrectParameters);
    if (command.Reads() && !HasNetwork() && ThePhone().atSettings.contains(command.name))
        return Answer(command.name + ": " + FieldsOf(ThePhone().atSettings[command.name])[0]);
    return AnswerSetting(command);
}

std::string AnswerSignal(const AtCommand& command)
{
    constexpr char notKnown[] = "99,99";
    if (command.kind == AtCommand::Kind::Execute && !HasNetwork() && ThePhone().atSettings.contains(command.name))
        return Answer(command.name + ": " + notKnown);
    return AnswerSetting(command);
}

// The number of a forwarding is given out without quotes, and the time right after the type.
std::string AnswerForwarding(const AtCommand& command)
{
    const std::vector<std::string> fields = FieldsOf(command.value);  // reason, mode, number, type, class, time
    const std::string reason = FieldAt(fields, 0);
    const std::string mode = FieldAt(fields, 1);
    const std::string number = Unquoted(FieldAt(fields, 2));
    if (!command.Sets() || reason.size() != 1 || reason < "0" || reason > "5")
        return Refused(incorrectParameters);
    std::string& forwarding = ThePhone().forwardings.try_emplace(reason, notForwarded).first->second;
    const bool registered = FieldsOf(forwarding).size() > 2;
    if (mode == "2")
        return Answer("+CCFC: " + forwarding);
    if (mode == "3" && !number.empty())
    {
        const std::string time = FieldAt(fields, 5);
        forwarding = "1," + FieldAt(fields, 4, allClasses) + ',' + number + ',' + FieldAt(fields, 3, "129");
        forwarding += time.empty() ? "" : ',' + time;
    }
    else if (mode == "4")
        forwarding = notForwarded;
    else if ((mode == "0" || mode == "1") && registered)
        forwarding.front() = mode.front();
    else
        return Refused(operationNotAllowed);
    return Done();
}

std::string AnswerCallWaiting(const AtCommand& command)
{
    const std::vector<std::string> fields = FieldsOf(command.value);  // n, mode, class
    const std::string mode = FieldAt(fields, 1);
    if (!command.Sets() || mode.empty())
        return AnswerSetting(command);
    if (mode == "2")
        return Answer(std::string("+CCWA: ") + (ThePhone().callWaiting ? '1' : '0') + ",1");
    if (mode != "0" && mode != "1")
        return Refused(incorrectParameters);
    ThePhone().callWaiting = mode == "1";
    return AnswerSetting({command.name, command.kind, fields[0]});
}

std::string PressKeys(const AtCommand& command)
{
    const std::string keys = Unquoted(FieldsOf(command.value)[0]);
    if (!command.Sets() || keys.empty())
        return Refused(incorrectParameters);
    ThePhone().pressedKeys += keys;
    return Done();
}

// The IMEI's first digit shares its byte with the type of the identity; each further byte holds two, the low one first.
std::string SerialNumber()
{
    std::string digits;
    for (const uint8_t byte : ThePhone().nvItems[tandekor::nv::imei.number])
    {
        digits += static_cast<char>('0' + (byte & 0x0F));
        digits += static_cast<char>('0' + (byte >> 4));
    }
    constexpr size_t lengthAndType = 3;
    return digits.size() > lengthAndType ? digits.substr(lengthAndType) : "";
}

}  // namespace simulator
