// The fixture of the tests of procedures: a phone in FTM mode, where nothing else is said.
#pragma once

#include <string>
#include <vector>

#include "tests/support/bench_test.h"

namespace tandekor::test
{

using Texts = std::vector<std::string>;

class ProcedureTest : public BenchTest
{
protected:
    ProcedureTest() { Phone().mode = simulator::Mode::Ftm; }

    static simulator::Phone& Phone() { return simulator::ThePhone(); }
    static simulator::BootBox& BootBox() { return simulator::TheBootBox(); }
};

}  // namespace tandekor::test
