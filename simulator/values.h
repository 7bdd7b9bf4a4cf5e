// Values of the phone by name, as scripts and the C face set and read them.
#pragma once

#include <optional>
#include <string>

namespace simulator
{

// A number in decimal, or in hexadecimal after 0x, from 0 or least to most; nothing for any other text.
std::optional<int64_t> NumberIn(const std::string& text, int64_t least, int64_t most);

// Empty when it is done, else why not.
std::string SetValue(const std::string& name, const std::string& value);

std::optional<std::string> ValueOf(const std::string& name);

}  // namespace simulator
