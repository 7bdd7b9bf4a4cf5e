// Bytes that are shown as text in the log.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace tandekor
{

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

}  // namespace tandekor
