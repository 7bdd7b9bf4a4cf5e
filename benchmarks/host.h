// A host library that costs next to nothing: it delivers bytes that lie ready and takes the length of a log text. Its
// operations stand in the place of the stand-in's, so that what is measured is the library.
#pragma once

#include <string>
#include <string_view>

#include "tandekor/common.h"

namespace host
{

// What every exchange delivers from now on. The bytes must stay where they are.
void DeliverOn(std::string_view reply);

// The handle that connects give.
void ConnectAs(ResourceContext handle);

// Keeps everything that was asked of the host library, for a comparison; null keeps nothing.
void RecordIn(std::string* record);

}  // namespace host
