// Bytes that are shown as text in the log.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tandekor
{

// A field of %s for bytes that need not end in a NUL: shown up to their first NUL, at most all of them. A null pointer
// is shown as "(null)".
template <size_t mostBytes>
class ItemText
{
public:
    explicit ItemText(const void* item, int64_t itemLength = mostBytes)
        : bytes(static_cast<const char*>(item)),
          length(static_cast<size_t>(std::clamp<int64_t>(itemLength, 0, mostBytes)))
    {
    }

    const char* Text() const
    {
        if (bytes == nullptr)
            return "(null)";
        const void* end = std::memchr(bytes, '\0', length);
        const size_t shown = end == nullptr ? length : static_cast<size_t>(static_cast<const char*>(end) - bytes);
        std::memcpy(text, bytes, shown);
        text[shown] = '\0';
        return text;
    }

private:
    const char* bytes;
    size_t length;
    mutable char text[mostBytes + 1];
};

}  // namespace tandekor
