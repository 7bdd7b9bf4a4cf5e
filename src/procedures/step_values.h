// What the result text of a step may show. A value is taken when the text is written, behind the call of the step, so
// that an out-value is shown as the call left it.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tandekor
{

// A field of %d, %i, %u, %x or %c.
template <std::integral Value>
requires(sizeof(Value) <= sizeof(uint32_t)) Value Shown(const Value& value) { return value; }

// A field of %u for the address of a buffer, which is cut to 32 bits.
struct AddressOf
{
    const void* address;
};

inline uint32_t Shown(const AddressOf& value)
{
    return static_cast<uint32_t>(reinterpret_cast<uintptr_t>(value.address));
}

// A field of %s for bytes that need not end in a NUL: shown up to their first NUL, at most all of them. A null pointer
// is shown as "(null)".
template <size_t mostBytes>
class ItemText
{
public:
    explicit ItemText(const void* item, size_t itemLength = mostBytes)
        : bytes(item), length(std::min(itemLength, mostBytes))
    {
    }

    const char* Text() const
    {
        if (bytes == nullptr)
            return "(null)";
        std::memcpy(text, bytes, length);
        text[length] = '\0';
        return text;
    }

private:
    const void* bytes;
    size_t length;
    mutable char text[mostBytes + 1];
};

template <size_t mostBytes>
const char* Shown(const ItemText<mostBytes>& value)
{
    return value.Text();
}

}  // namespace tandekor
