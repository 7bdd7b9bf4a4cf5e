// The phone's AT side: queries give a setting, set commands change it.
#include <algorithm>
#include <string>

#include "simulator/operation.h"

namespace simulator
{

namespace
{

constexpr char ok[] = "\r\nOK";
constexpr char error[] = "\r\nERROR";

// Commands that only do something.
constexpr const char* actions[] = {"", "+CHUP", "+CRMP", "+CHLD"};

// Settings that are not answered to "<name>?" with "<name>: <value>".
struct Form
{
    const char* name;
    const char* query;
    const char* prefix;
};
constexpr Form forms[] = {
    {"+CPAS", "+CPAS", "+CPAS: "},
    {"+WS46", "+WS46?", ""},
    {"^SICO", "^SICO?", "^SICO: 0, "},
};

std::string AnswerToQuery(const std::string& line) { return "\r\n" + line + "\r\n" + ok; }

// A set command that gives the first of several values leaves the others as they are.
void Keep(std::string& setting, const std::string& value)
{
    const size_t comma = value.find(',') == std::string::npos ? setting.find(',') : std::string::npos;
    setting = value + (comma == std::string::npos ? "" : setting.substr(comma));
}

// The result of the command, which is what stands behind the letters AT.
std::string ResultOf(const std::string& command)
{
    Phone& phone = ThePhone();
    if (command == "E0" || command == "E1")
    {
        phone.atEcho = command == "E1";
        return ok;
    }
    if (command == "^SQWE=3")
    {
        phone.obexMode = true;
        return ok;
    }
    const std::string name = command.substr(0, command.find_first_of("?="));
    const std::string rest = command.substr(name.size());
    if (std::ranges::find(actions, name) != std::end(actions))
        return ok;
    const auto setting = phone.atSettings.find(name);
    if (setting == phone.atSettings.end())
        return error;
    const auto* form = std::ranges::find(forms, name, &Form::name);
    if (form != std::end(forms) && command == form->query)
        return AnswerToQuery(form->prefix + setting->second);
    if (form == std::end(forms) && rest == "?")
        return AnswerToQuery(name + ": " + setting->second);
    if (rest.starts_with('=') && rest != "=?")
        Keep(setting->second, rest.substr(1));
    else if (!rest.empty())
        return error;
    return ok;
}

}  // namespace

std::map<std::string, std::string> FreshAtSettings()
{
    return {
        // Call and sound
        {"+CALM", "0"},
        {"+CAOC", "1"},
        {"+CCWA", "0"},
        {"+CLIP", "0"},
        {"+CLVL", "4"},
        {"+CMUT", "0"},
        {"+COLP", "0,0"},
        {"+CPAS", "0"},
        {"+CRSL", "3"},
        {"+CSSN", "0,0"},
        {"+CVIB", "1"},
        {"^SACM", "0,\"000000\",\"000000\""},
        {"^SNFS", "1"},
        {"^SNFV", "3"},
        {"^SRMP", "1,1"},
        // Network and data
        {"+CBST", "7,0,1"},
        {"+CGATT", "1"},
        {"+CGEREP", "0,0"},
        {"+CGREG", "0,1"},
        {"+CR", "0"},
        {"+CREG", "0,1"},
        {"+CTZR", "0"},
        {"+CTZU", "1"},
        {"+IPR", "115200"},
        {"+WS46", "12"},
        // The phone itself
        {"+CMEC", "0"},
        {"+CMEE", "0"},
        {"^SCKA", "1"},
        {"^SCKS", "0, 1"},
        {"^SICO", "0"},
        {"^SKPD", "0"},
        {"^SLNG", "1"},
        {"^SMSO", "0"},
    };
}

// Echo, and a result without anything behind its last word. A request that is no whole command gets no answer.
Bytes AnswerAt(const Bytes& request)
{
    Phone& phone = ThePhone();
    if (phone.obexMode)
    {
        if (request == Bytes{'+', '+', '+', 0})
            phone.obexMode = false;
        else
            ReportNotSimulated("OBEX");
        return {};
    }
    const std::string text(request.begin(), std::ranges::find(request, uint8_t{'\r'}));
    if (!text.starts_with("AT") || text.size() == request.size())
        return {};
    std::string reply = phone.atEcho ? text + '\r' : "";
    reply += ResultOf(text.substr(2));
    return {reply.begin(), reply.end()};
}

}  // namespace simulator
