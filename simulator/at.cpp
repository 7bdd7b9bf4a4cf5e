// The phone's AT side: what a command is, the settings, and the answers that are one line by TS 27.007.
#include "simulator/at.h"

#include <algorithm>

#include "simulator/operation.h"

namespace simulator
{

namespace
{

std::string AnswerText(const AtCommand& command, const std::string& text)
{
    return command.kind == AtCommand::Kind::Execute ? Answer(text) : Refused(operationNotAllowed);
}

// For a command of which nothing could be read back.
std::string Accept(const AtCommand& command)
{
    ReportNoEffect("AT" + command.name);
    return Done();
}

// Commands that are more than a setting.
struct Special
{
    const char* name;
    std::string (*answer)(const AtCommand& command);
};
constexpr Special specials[] = {
    {"", [](const AtCommand&) { return Done(); }},
    {"+CHLD", Accept},
    {"+CHUP", Accept},
    {"+CRMP", Accept},
    {"^SMSO",
     [](const AtCommand&)
     {
         PowerDown();
         return Done();
     }},
    {"+CGMM", [](const AtCommand& command) { return AnswerText(command, ThePhone().buildModel); }},
    {"+CGMR", [](const AtCommand& command) { return AnswerText(command, ThePhone().buildId); }},
    {"+CGSN", [](const AtCommand& command) { return AnswerText(command, SerialNumber()); }},
    {"+GSN", [](const AtCommand& command) { return AnswerText(command, SerialNumber()); }},
    {"+CCLK", AnswerClock},
    {"+CREG", AnswerRegistration},
    {"+CGREG", AnswerRegistration},
    {"+COPS", AnswerOperator},
    {"+CSQ", AnswerSignal},
    {"+CCFC", AnswerForwarding},
    {"+CCWA", AnswerCallWaiting},
    {"+CKPD", PressKeys},
    {"+CLCK", AnswerLock},
    {"^SLCK", AnswerLock},
    {"+CPIN", AnswerPin},
    {"+CRSM", AnswerCardAccess},
    {"+CMGL", ListMessages},
    {"^SMGL", ListMessages},
    {"+CMGR", ReadMessage},
    {"^SMGR", ReadMessage},
    {"+CMSS", SendMessage},
};

// Settings that are not answered to "<name>?" with "<name>: <value>". Those that the bare command asks for
// cannot be set, and neither can lists.
struct Form
{
    const char* name;
    AtCommand::Kind asked;
    const char* prefix;
};
constexpr Form forms[] = {
    {"+CBC", AtCommand::Kind::Execute, "+CBC: "},   {"+CEER", AtCommand::Kind::Execute, "+CEER: "},
    {"+CGMI", AtCommand::Kind::Execute, ""},        {"+CIMI", AtCommand::Kind::Execute, ""},
    {"+CPAS", AtCommand::Kind::Execute, "+CPAS: "}, {"+CSQ", AtCommand::Kind::Execute, "+CSQ: "},
    {"+WS46", AtCommand::Kind::Read, ""},           {"^SCID", AtCommand::Kind::Execute, "^SCID: "},
    {"^SICO", AtCommand::Kind::Read, "^SICO: 0, "}, {"^SIFS", AtCommand::Kind::Execute, "^SIFS: "},
};

// What +CMEE=2 has in the place of the numbers.
struct ErrorText
{
    int number;
    const char* text;
};
constexpr ErrorText errorTexts[] = {
    {operationNotAllowed, "operation not allowed"},
    {operationNotSupported, "operation not supported"},
    {pukWanted, "SIM PUK required"},
    {incorrectPassword, "incorrect password"},
    {incorrectParameters, "incorrect parameters"},
    {invalidMessageIndex, "invalid memory index"},
};

AtCommand CommandOf(const std::string& text)
{
    const std::string name = text.substr(0, text.find_first_of("?="));
    const std::string rest = text.substr(name.size());
    if (rest.empty())
        return {name, AtCommand::Kind::Execute, ""};
    if (rest == "?")
        return {name, AtCommand::Kind::Read, ""};
    if (rest.front() == '=' && rest != "=?")
        return {name, AtCommand::Kind::Set, rest.substr(1)};
    return {name, AtCommand::Kind::Other, ""};
}

// Fields that are left out, empty or after the last one, keep their values; and a text keeps its quotes.
void Keep(std::string& setting, const std::string& value)
{
    std::vector<std::string> fields = FieldsOf(setting);
    const std::vector<std::string> given = FieldsOf(value);
    for (size_t i = 0; i < given.size(); ++i)
    {
        if (given[i].empty())
            continue;
        if (i >= fields.size())
            fields.resize(i + 1);
        const bool text = fields[i].starts_with('"');
        fields[i] = text ? Quoted(Unquoted(given[i])) : Unquoted(given[i]);
    }
    setting = Joined(fields);
}

// What the phone says after its echo.
std::string ResultOf(const std::string& text)
{
    if (text == "E0" || text == "E1")
    {
        ThePhone().atEcho = text == "E1";
        return Done();
    }
    if (text == "^SQWE=3")
    {
        ThePhone().obexMode = true;
        return Done();
    }
    const AtCommand command = CommandOf(text);
    const auto* special = std::ranges::find(specials, command.name, &Special::name);
    return special != std::end(specials) ? special->answer(command) : AnswerSetting(command);
}

}  // namespace

std::string Done() { return "\r\nOK"; }

std::string Answer(const std::string& lines) { return "\r\n" + lines + "\r\n" + Done(); }

std::string Refused(int number, const char* kind)
{
    const std::string& wanted = ThePhone().atSettings["+CMEE"];
    if (wanted == "0")
        return "\r\nERROR";
    const auto* text = wanted == "2" ? std::ranges::find(errorTexts, number, &ErrorText::number) : std::end(errorTexts);
    const std::string what = text == std::end(errorTexts) ? std::to_string(number) : text->text;
    return std::string("\r\n") + kind + " ERROR: " + what;
}

std::vector<std::string> FieldsOf(const std::string& text)
{
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (const char character : text)
    {
        quoted ^= character == '"';
        if (character == ',' && !quoted)
            fields.emplace_back();
        else
            fields.back() += character;
    }
    return fields;
}

std::string Joined(const std::vector<std::string>& fields)
{
    std::string text = fields[0];
    for (size_t i = 1; i < fields.size(); ++i)
        text += ',' + fields[i];
    return text;
}

std::string FieldAt(const std::vector<std::string>& fields, size_t index, const char* missing)
{
    return index < fields.size() && !fields[index].empty() ? fields[index] : missing;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string Unquoted(const std::string& field)
{
    const bool quoted = field.size() >= 2 && field.front() == '"' && field.back() == '"';
    return quoted ? field.substr(1, field.size() - 2) : field;
}

std::string AnswerSetting(const AtCommand& command)
{
    auto& settings = ThePhone().atSettings;
    const auto setting = settings.find(command.name);
    const auto* form = std::ranges::find(forms, command.name, &Form::name);
    const bool formed = form != std::end(forms);
    if (setting == settings.end() || command.kind == AtCommand::Kind::Other)
        return Refused(operationNotSupported);
    const bool list = setting->second.find('\r') != std::string::npos;
    if (command.kind == (formed ? form->asked : AtCommand::Kind::Read))
        return Answer((formed ? form->prefix : command.name + ": ") + setting->second);
    if (list || (formed && form->asked == AtCommand::Kind::Execute))
        return Refused(operationNotAllowed);
    if (command.Sets())
        Keep(setting->second, command.value);
    return Done();
}

std::map<std::string, std::string> FreshAtSettings()
{
    return {
        // Call and sound
        {"+CACM", "\"000123\""},
        {"+CALM", "0"},
        {"+CAMM", "\"070000\""},
        {"+CAOC", "1"},
        {"+CCWA", "0"},
        {"+CEER", "Normal call clearing"},
        {"+CLIP", "0"},
        {"+CLVL", "4"},
        {"+CMUT", "0"},
        {"+COLP", "0,0"},
        {"+CPAS", "0"},
        {"+CRSL", "3"},
        {"+CSSN", "0,0"},
        {"+CVIB", "1"},
        {"^SACM", "0,\"000123\",\"000200\""},
        {"^SNFS", "1"},
        {"^SNFV", "3"},
        {"^SRMP", "1,1"},
        // Network and data
        {"+CBST", "7,0,1"},
        {"+CGACT", "1,1\r\n+CGACT: 2,0"},
        {"+CGATT", "1"},
        {"+CGEREP", "0,0"},
        {"+CGREG", "0,1"},
        {"+COPS", "0,0,\"SIMULATED NET\""},
        {"+CR", "0"},
        {"+CREG", "0,1"},
        {"+CSCA", "\"+491722270000\",145"},
        {"+CSCB", "0,\"0,50,320-324\",\"0-3\""},
        {"+CSQ", "21,0"},
        {"+CTZR", "0"},
        {"+CTZU", "1"},
        {"+IPR", "115200"},
        {"+WS46", "12"},
        // The phone itself
        {"+CBC", "0,85"},
        {"+CGMI", "SIMULATED"},
        {"+CIMI", "262019876543210"},
        {"+CIND", "4,3,1,0,0,0,1,0"},
        {"+CMEC", "0"},
        {"+CMEE", "0"},
        {"+CMER", "0,0,0,0,0"},
        {"+CSCS", "\"GSM\""},
        {"^SCID", "89490200001234567890"},
        {"^SCKA", "1"},
        {"^SCKS", "0, 1"},
        {"^SICO", "0"},
        {"^SIFS", "Wire"},
        {"^SKPD", "0"},
        {"^SLNG", "1"},
    };
}

// Echo, and a result without anything after its last word. A request that is no whole command gets no answer.
std::optional<Bytes> AnswerAt(const Bytes& request)
{
    const Phone& phone = ThePhone();
    if (phone.obexMode)
        return AnswerObex(request);
    const std::string text(request.begin(), std::ranges::find(request, uint8_t{'\r'}));
    if (!text.starts_with("AT") || text.size() == request.size())
        return {};
    std::string reply = phone.atEcho ? text + '\r' : "";
    reply += ResultOf(text.substr(2));
    return Bytes(reply.begin(), reply.end());
}

}  // namespace simulator
