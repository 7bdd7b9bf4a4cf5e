// Numbers of phone models on which procedures decide.
#pragma once

#include <cstdint>

namespace tandekor
{

// The two kinds of phone that have a name.
constexpr uint32_t dravok = 3;
constexpr bool IsKolt(uint32_t model) { return model >= 52 && model <= 55; }

}  // namespace tandekor
