// A caller's buffer between guard bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tandekor::test
{

using Bytes = std::vector<uint8_t>;

// The characters of a text as bytes, without its NUL.
inline Bytes Ascii(const std::string& text) { return {text.begin(), text.end()}; }

// A caller's buffer between guard bytes. One without a content starts filled with 0x55.
class GuardedBuffer
{
public:
    explicit GuardedBuffer(size_t bufferSize) : GuardedBuffer(Bytes(bufferSize, 0x55)) {}
    explicit GuardedBuffer(const Bytes& content) : memory(content.size() + 2 * guardSize, 0xA5)
    {
        std::copy(content.begin(), content.end(), memory.begin() + guardSize);
    }

    uint8_t* Data() { return memory.data() + guardSize; }
    char* Text() { return reinterpret_cast<char*>(Data()); }
    Bytes Content() const { return {memory.begin() + guardSize, memory.end() - guardSize}; }
    bool GuardsIntact() const
    {
        const auto intact = [](uint8_t byte) { return byte == 0xA5; };
        return std::all_of(memory.begin(), memory.begin() + guardSize, intact)
               && std::all_of(memory.end() - guardSize, memory.end(), intact);
    }

private:
    static constexpr ptrdiff_t guardSize = 64;
    Bytes memory;
};

}  // namespace tandekor::test
