// What the result text of a step may show. A value is taken when the text is written, after the call of the step, so
// that an out-value is shown as the call left it.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>

#include "core/item_text.h"

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

// A field of %d for a 32-bit out-value of which the low 16 bits count.
struct LowWordOf
{
    const uint32_t* value;
};

inline uint16_t Shown(const LowWordOf& value) { return static_cast<uint16_t>(*value.value); }

// A field of %i for an unsigned 16-bit out-value that is shown with a sign.
struct SignedWordOf
{
    const uint16_t* value;
};

inline int16_t Shown(const SignedWordOf& value) { return static_cast<int16_t>(*value.value); }

// A field of %d for a 16-bit value in an item's bytes, low byte first.
struct WordAt
{
    const uint8_t* bytes;
};

inline uint16_t Shown(const WordAt& value) { return static_cast<uint16_t>(value.bytes[0] | value.bytes[1] << 8); }

// A field of %s for bytes that need not end in a NUL; see ItemText, which is made when the line is written.
template <size_t mostBytes>
class ItemOf
{
public:
    explicit ItemOf(const void* itemBytes, int64_t itemLength = mostBytes) : item(itemBytes), length(itemLength) {}

    const void* const item;
    const int64_t length;
};

// A value as an argument of a format, for as long as the format is filled.
template <typename Value>
class ShownValue
{
public:
    explicit ShownValue(const Value& shown) : value(shown) {}
    auto Argument() const { return Shown(value); }

private:
    const Value& value;
};

template <size_t mostBytes>
class ShownValue<ItemOf<mostBytes>>
{
public:
    explicit ShownValue(const ItemOf<mostBytes>& shown) : text(shown.item, shown.length) {}
    const char* Argument() const { return text.Text(); }

private:
    ItemText<mostBytes> text;
};

}  // namespace tandekor
