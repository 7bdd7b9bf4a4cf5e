#include "fuzz/support/input.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

#include <unistd.h>

namespace fuzz
{

uint8_t Input::Byte()
{
    if (left == 0)
        return 0;
    --left;
    return *next++;
}

uint16_t Input::Word()
{
    const uint8_t low = Byte();
    return static_cast<uint16_t>(low | Byte() << 8);
}

uint32_t Input::Dword()
{
    const uint32_t low = Word();
    return low | static_cast<uint32_t>(Word()) << 16;
}

Bytes Input::Some(size_t most)
{
    const size_t count = std::min(most, left);
    const Bytes bytes(next, next + count);
    next += count;
    left -= count;
    return bytes;
}

std::string Input::Line()
{
    std::string line;
    for (char character = 0; !AtEnd() && (character = static_cast<char>(Byte())) != '\n';)
        line += character;
    return line;
}

std::vector<const Function*> Family(const std::string& header)
{
    std::vector<const Function*> functions;
    for (const Function& function : tandekor::test::EveryFunction())
    {
        if (function.family == header)
            functions.push_back(&function);
    }
    return functions;
}

const std::string& HostFolder()
{
    struct Folder
    {
        Folder()
        {
            std::filesystem::create_directory(path);
            std::ofstream(path + 'f') << "what is sent";
        }
        ~Folder() { std::filesystem::remove_all(path); }

        std::string path
            = std::filesystem::temp_directory_path() / ("tandekor-fuzz-" + std::to_string(::getpid()) + '/');
    };
    static const Folder folder;
    return folder.path;
}

Call TakeCall(Input& input, const std::vector<const Function*>& functions)
{
    const std::string name = input.Line();
    const auto named = std::ranges::find(functions, name, &Function::name);
    const Function& function
        = **(named != functions.end() ? named : functions.begin() + std::ptrdiff_t(name.size() % functions.size()));
    // Digits, a path on the phone, what stands for a parameter left out, what is too long for a packet.
    static const std::vector<std::string> texts
        = {"5551234", "f", "a\\b\\", "", "-", "0123456789AB", std::string(130, 'n'), std::string(2100, 'N')};
    tandekor::test::Choices choices;
    choices.numbers.clear();
    for (int i = 0; i < 4; ++i)
        choices.numbers.push_back(static_cast<int8_t>(input.Byte()));
    choices.numbers[3] *= 257;
    choices.nulls = choices.numbers[0] % 2 != 0;
    const size_t start = input.Byte(), step = input.Byte();
    choices.texts.clear();
    for (size_t i = 0; i < texts.size(); ++i)
        choices.texts.push_back(texts[(start + i * step) % texts.size()]);
    choices.hostFolder = HostFolder();
    return tandekor::test::CallOf(function, choices);
}

void Make(const Call& call, ResourceContext handle)
{
    if (!call(handle).guardsIntact)
    {
        std::fputs("a function wrote beyond a caller's buffer\n", stderr);
        std::abort();
    }
}

}  // namespace fuzz

// A short memory of what was freed is enough for one call, and makes it several times as fast.
extern "C" const char* __asan_default_options() { return "quarantine_size_mb=1:malloc_context_size=4"; }
