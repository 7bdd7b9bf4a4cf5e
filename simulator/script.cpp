#include "simulator/script.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <tuple>
#include <type_traits>

#include "simulator/state.h"
#include "simulator/values.h"
#include "tandekor/simulator.h"

namespace simulator
{

namespace
{

// The words of a line, as the arguments of a function take them one after the other.
class Words
{
public:
    explicit Words(const std::string& line);

    bool Wrong() const { return wrong || next < words.size(); }

    template <typename Argument>
    Argument Take()
    {
        if constexpr (std::is_same_v<Argument, const char*>)
            return TakeWord().c_str();
        else if constexpr (std::is_same_v<Argument, const uint8_t*>)
            return TakeBytes();
        else
            return bytesTaken ? static_cast<Argument>(bytes.size()) : TakeNumber<Argument>();
    }

private:
    const std::string& TakeWord()
    {
        static const std::string none;
        wrong |= next == words.size();
        return wrong ? none : words[next++];
    }

    template <typename Number>
    Number TakeNumber()
    {
        const std::string& word = TakeWord();
        if (std::is_signed_v<Number> && word == "-")
            return static_cast<Number>(-1);
        const auto number = NumberIn(word, 0, std::numeric_limits<Number>::max());
        wrong |= !number;
        return static_cast<Number>(number.value_or(0));
    }

    // The rest of the line: bytes of two hexadecimal digits, or one text in double quotes. Their number is the next
    // argument.
    const uint8_t* TakeBytes();

    std::vector<std::string> words;
    std::vector<bool> quoted;
    size_t next = 0;
    bool wrong = false;
    Bytes bytes;
    bool bytesTaken = false;
};

Words::Words(const std::string& line)
{
    size_t position = 0;
    const auto isSpace = [](char character) { return character == ' ' || character == '\t' || character == '\r'; };
    while (position < line.size())
    {
        if (isSpace(line[position]))
        {
            ++position;
            continue;
        }
        const bool inQuotes = line[position] == '"';
        const size_t start = position + inQuotes;
        position = start;
        while (position < line.size() && (inQuotes ? line[position] != '"' : !isSpace(line[position])))
            ++position;
        wrong |= inQuotes && position == line.size();
        words.push_back(line.substr(start, position - start));
        quoted.push_back(inQuotes);
        position += inQuotes;
    }
}

const uint8_t* Words::TakeBytes()
{
    bytesTaken = true;
    for (; next < words.size() && !wrong; ++next)
    {
        const std::string& word = words[next];
        const auto byte = word.size() == 2 ? NumberIn("0x" + word, 0, UINT8_MAX) : std::nullopt;
        if (quoted[next] && bytes.empty() && next + 1 == words.size())
            bytes.assign(word.begin(), word.end());
        else if (byte && !quoted[next])
            bytes.push_back(static_cast<uint8_t>(*byte));
        else
            wrong = true;
    }
    return bytes.data();
}

constexpr char wrongArguments[] = "wrong arguments";

// Calls a function of the C face with the words as its arguments.
template <typename... Arguments>
std::string Call(uint8_t (*function)(Arguments...), Words& words)
{
    const std::tuple<Arguments...> arguments{words.Take<Arguments>()...};
    if (words.Wrong())
        return wrongArguments;
    return std::apply(function, arguments) != 0 ? "" : PHONE_LastError();
}

struct Verb
{
    const char* name;
    const char* arguments;
    std::string (*call)(Words& words);
};

template <auto function>
constexpr Verb Row(const char* name, const char* arguments)
{
    return {name, arguments, [](Words& words) { return Call(function, words); }};
}

constexpr Verb verbs[] = {
    Row<PHONE_Reset>("reset", ""),
    Row<PHONE_SetModel>("model", "NUMBER"),
    Row<PHONE_Set>("set", "NAME VALUE"),
    Row<PHONE_SetNvItem>("nv", "ITEM BYTES"),
    Row<PHONE_SetNvStatus>("nv-status", "ITEM STATUS"),
    Row<PHONE_SetMemory>("memory", "ADDRESS BYTES"),
    Row<PHONE_SetI2cRegister>("i2c", "DEVICE REGISTER BYTES"),
    Row<PHONE_SetAdc>("adc", "CHANNEL VALUE"),
    Row<PHONE_SetPin>("pin", "PIN LEVEL"),
    Row<PHONE_QueueKey>("key", "KEY EVENT"),
    Row<PHONE_SetSimFile>("sim-file", "FILE DIGITS"),
    Row<PHONE_SetCardFile>("card-file", "NAME BYTES"),
    Row<PHONE_SetFile>("file", "PATH BYTES"),
    Row<PHONE_DeleteFile>("delete", "PATH"),
    Row<PHONE_Refuse>("refuse", "OPERATION CALL"),
    Row<PHONE_RefuseFrom>("refuse-from", "OPERATION CALL"),
    Row<PHONE_Delay>("delay", "OPERATION CALL MILLISECONDS"),
    Row<PHONE_Silence>("silence", "EXCHANGES"),
    Row<PHONE_QueueReply>("reply", "OPERATION RESULT CLAIMED-LENGTH BYTES"),
    Row<PHONE_SetObexResponse>("obex-response", "OPERATION-CODE RESPONSE-CODE"),
    Row<PHONE_Record>("record", "ENTRIES"),
};

}  // namespace

std::string RunLine(const std::string& line)
{
    const size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string::npos || line[start] == '#')
        return "";
    Words words(line);
    const std::string name = words.Take<const char*>();
    const auto* verb = std::ranges::find(verbs, name, &Verb::name);
    if (verb == std::end(verbs))
        return "there is no verb \"" + name + '"';
    const std::string error = verb->call(words);
    return error == wrongArguments ? "the line reads: " + name + ' ' + verb->arguments : error;
}

std::string RunScript(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        return path + ": the file cannot be opened";
    std::string line;
    for (int number = 1; std::getline(file, line); ++number)
    {
        if (const std::string error = RunLine(line); !error.empty())
            return std::string(path).append(":").append(std::to_string(number)).append(": ").append(error);
    }
    return "";
}

bool RunEnvironmentScript()
{
    std::optional<bool>& succeeded = TheState().library.scriptSucceeded;
    if (succeeded)
        return *succeeded;
    const char* path = std::getenv("TANDEKOR_PHONE");
    const std::string error = path == nullptr ? "" : RunScript(path);
    if (!error.empty())
        std::fprintf(stderr, "SIMULATOR: %s\n", error.c_str());
    TheState().library.scriptSucceeded = error.empty();
    return error.empty();
}

}  // namespace simulator
