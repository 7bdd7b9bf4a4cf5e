#include "tests/procedures/transcript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "simulator/control.h"
#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

namespace
{

// The text with "@" for the address of a buffer, and without random bytes for a memory card.
std::string Repeatable(std::string text)
{
    for (const std::string name : {"pItemData = ", "pItemArray = ", "piRequestBytes = "})
    {
        const size_t at = text.find(name);
        if (at == std::string::npos)
            continue;
        const size_t first = at + name.size();
        const size_t end = std::min(text.find_first_not_of("0123456789", first), text.size());
        if (end > first)
            text.replace(first, end - first, "@");
    }
    const size_t cardFile = text.find("5C 54 65 73 74 2E 62 69 6E");  // \Test.bin
    return cardFile == std::string::npos ? text : text.substr(0, cardFile);
}

std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char character : text)
    {
        if (character >= ' ' && character <= '~')
            escaped += character;
        else
            escaped += '\\' + ToHex({static_cast<uint8_t>(character)});
    }
    return escaped;
}

// What repeats in short: "4B *259 4B" for bytes, "p*128" for characters; the longest prefixes of names by their letter.
std::string Shortened(std::string text)
{
    for (const auto& [name, letter] : {std::pair("TANDEKOR_", "T_"), std::pair("QLIB_", "Q_")})
    {
        for (size_t at = text.find(name); at != std::string::npos; at = text.find(name))
            text.replace(at, std::string(name).size(), letter);
    }
    for (const size_t unit : {size_t{3}, size_t{1}})
    {
        for (size_t first = 0; first + unit <= text.size(); ++first)
        {
            const std::string part = text.substr(first, unit);
            size_t count = 1;
            while (text.compare(first + count * unit, unit, part) == 0)
                ++count;
            if (count * unit > 11 && (unit == 1 || part[2] == ' '))
                text.replace(first, count * unit, part + '*' + std::to_string(count) + (unit == 3 ? " " : ""));
        }
    }
    return text;
}

}  // namespace

Observation Observe(const ProcedureRun& run, const Call& call, const Change& change)
{
    TANDEKOR_DisconnectAllServers();
    simulator::Reset();
    TANDEKOR_SetLibraryMode(0);
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    const ResourceContext handle = TANDEKOR_ConnectServer(7);
    MarkPhone();
    if (run.change)
        run.change();
    simulator::TheBootBox().events.clear();
    simulator::ForgetCalls();
    simulator::ForgetLog();
    simulator::ForgetTimeline();
    if (change)
        change();
    testing::internal::CaptureStdout();
    Observation seen;
    seen.call = call(handle);
    const std::string output = testing::internal::GetCapturedStdout();
    for (const std::string& event : simulator::Timeline())
        seen.events.push_back(Repeatable(event));
    for (const auto& flags : simulator::LogFlagsChanges())
        seen.events.push_back("flags " + std::to_string(flags.flags) + " after " + std::to_string(flags.textsBefore));
    for (const std::string& event : simulator::TheBootBox().events)
        seen.events.push_back("box: " + event);
    for (const simulator::Exchange& exchange : simulator::Exchanges())
        seen.events.push_back("room " + std::to_string(exchange.capacity));
    if (!output.empty())
        seen.events.push_back("stdout: " + output);
    for (size_t i = 0; i < seen.call.outs.size(); ++i)
        seen.events.push_back("out " + (seen.call.written[i] ? ToHex(seen.call.outs[i]) : "-"));
    seen.events.push_back("= " + std::to_string(seen.call.result));
    seen.calls = simulator::Calls();
    seen.lastLogText = simulator::LogTexts().empty() ? "nothing logged" : simulator::LogTexts().back();
    EXPECT_TRUE(seen.call.guardsIntact) << run.name;
    const std::vector<simulator::LogArguments> usual(simulator::LogTexts().size(), {handle, 2, 0});
    EXPECT_TRUE(simulator::LogTextArguments() == usual) << run.name << " writes with another handle or level";
    return seen;
}

std::string ShortForm(const std::vector<std::string>& events)
{
    std::vector<std::string> words, open;
    for (const std::string& event : events)
    {
        std::string word = event;
        const auto takeEnding = [&](const std::string& start, const std::string& ending)
        {
            const bool fits = word.starts_with(start) && word.ends_with(ending);
            if (fits)
                word = word.substr(start.size(), word.size() - start.size() - ending.size());
            return fits;
        };
        const auto shortenName = [&]
        {
            if (!open.empty() && word.starts_with(open.back()))
                word.replace(0, open.back().size(), "~");
        };
        if (takeEnding("\t\t", "() start"))
        {
            open.push_back(word);
            word.insert(0, 1, '[');
        }
        else if (const bool good = takeEnding("\t", " - Completed successfully\n");
                 good || takeEnding("\t", " - Failure\n"))
        {
            shortenName();
            if (!open.empty())
                open.pop_back();
            word += good ? "]" : "!]";
        }
        else if (word == "QLIB_IsPhoneConnected()")
            word = "?";
        else if (word.starts_with("QLIB_"))
            shortenName();
        else if (word.starts_with('\t') || word.ends_with('\n'))
            word.insert(0, 1, '"').push_back('"');
        words.push_back(Shortened(Escaped(word)));
    }
    std::string text, line;
    for (size_t first = 0, next = 0; first < words.size(); first = next)
    {
        while (next < words.size() && words[next] == words[first] && (next == first || !words[first].ends_with(']')))
            ++next;
        const std::string word = ' ' + words[first] + (next - first > 1 ? " x" + std::to_string(next - first) : "");
        if (!line.empty() && line.size() + word.size() > 116)
            text += "  " + std::exchange(line, "") + '\n';
        line += word;
    }
    return text + "  " + line + '\n';
}

}  // namespace tandekor::test
