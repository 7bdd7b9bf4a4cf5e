#pragma once

#include "test.h"

namespace tandekor::line
{

// A test that needs the phone online: takes it there from FTM mode by a reset, runs the test, and takes it back,
// whatever came out. A phone that does not come back is not ready any more.
Outcome RunOnline(Context& context, Outcome (*test)(Context& context));

}  // namespace tandekor::line
