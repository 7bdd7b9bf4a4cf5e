// The phone's AT side, as its commands see it: what was asked, and the forms of an answer.
#pragma once

#include "simulator/control.h"

namespace simulator
{

// What follows the letters AT.
struct AtCommand
{
    enum class Kind : uint8_t
    {
        Execute,
        Read,
        Set,
        Other
    };

    std::string name;  // as in "+CLCK"
    Kind kind;
    std::string value;  // what follows the equals sign

    bool Sets() const { return kind == Kind::Set; }
    bool Reads() const { return kind == Kind::Read; }
};

// Replies without their echo, up to the last character of the result word.
std::string Done();
std::string Answer(const std::string& lines);  // lines are parted by "\r\n"
// ERROR, or with +CMEE set the number or the text by TS 27.007 (kind "+CME") or TS 27.005 ("+CMS").
std::string Refused(int number, const char* kind = "+CME");

constexpr int operationNotAllowed = 3;
constexpr int operationNotSupported = 4;
constexpr int incorrectPassword = 16;
constexpr int pukWanted = 12;
constexpr int incorrectParameters = 50;
constexpr int invalidMessageIndex = 321;

// The fields of a parameter text, parted by commas outside quotes. No text has one empty field.
std::vector<std::string> FieldsOf(const std::string& text);
std::string Joined(const std::vector<std::string>& fields);
std::string FieldAt(const std::vector<std::string>& fields, size_t index, const char* missing = "");
std::string Quoted(const std::string& text);
std::string Unquoted(const std::string& field);

// Reads or changes a value of Phone::atSettings.
std::string AnswerSetting(const AtCommand& command);

// Commands that are more than a setting, by their subject.
std::string AnswerClock(const AtCommand& command);         // at_services.cpp
std::string AnswerRegistration(const AtCommand& command);  // "
std::string AnswerOperator(const AtCommand& command);      // "
std::string AnswerSignal(const AtCommand& command);        // "
std::string AnswerForwarding(const AtCommand& command);    // "
std::string AnswerCallWaiting(const AtCommand& command);   // "
std::string PressKeys(const AtCommand& command);           // "
std::string AnswerLock(const AtCommand& command);          // at_card.cpp
std::string AnswerPin(const AtCommand& command);           // "
std::string AnswerCardAccess(const AtCommand& command);    // "
std::string ListMessages(const AtCommand& command);        // at_messages.cpp
std::string ReadMessage(const AtCommand& command);         // "
std::string SendMessage(const AtCommand& command);         // "

std::string SerialNumber();  // the IMEI of NV item 550

}  // namespace simulator
