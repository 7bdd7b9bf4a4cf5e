// How often this program has asked for memory so far, whoever asked.
#pragma once

#include <cstdint>

uint64_t CountAllocations();
