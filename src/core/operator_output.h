// Refusals that go to standard output and not to the text log.
#pragma once

#include <cstdio>

namespace tandekor
{

inline void PrintForOperator(const char* text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

}  // namespace tandekor
