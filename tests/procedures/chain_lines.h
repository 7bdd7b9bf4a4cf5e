// The log of longer chains: their flat steps as texts, and the NV items within them.
#pragma once

#include <initializer_list>
#include <utility>

#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

// A text stands for a step that succeeds.
struct ChainPart
{
    ChainPart(const char* text) : lines(Step(text)) {}
    ChainPart(const std::string& text) : lines(Step(text)) {}
    ChainPart(Lines further) : lines(std::move(further)) {}

    Lines lines;
};

inline Lines Chain(std::initializer_list<ChainPart> parts)
{
    Lines lines;
    for (const ChainPart& part : parts)
        lines = lines + part.lines;
    return lines;
}

inline std::string Success(const std::string& text) { return "\t" + text + " - Completed successfully\n"; }
inline std::string Failure(const std::string& text) { return "\t" + text + " - Failure\n"; }

// An NV item that is written or read, with its content as the log shows it.
inline Lines NvWrite(int item, const std::string& shown, int length)
{
    const std::string start = "(iItemID = " + std::to_string(item) + ", pItemData = ";
    const std::string end = ", iLength = " + std::to_string(length) + ')';
    return Step("TANDEKOR_DIAG_NV_WRITE_F" + start + shown + end, Step("QLIB_DIAG_NV_WRITE_F" + start + '@' + end));
}

inline Lines NvRead(int item, const std::string& shown, int length)
{
    const std::string start = "(iItemID = " + std::to_string(item);
    const std::string end = " = " + shown + ", iLength = " + std::to_string(length) + ')';
    const Lines inner{"\t\tQLIB_DIAG_NV_READ_F() start", "\t\tQLIB_DIAG_NV_READ_F() start",
                      Success("QLIB_DIAG_NV_READ_F"), Success("TANDEKOR_DIAG_NV_READ_F" + start + ", pItemData" + end)};
    return Step("TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS" + start + ", cBin3" + end, inner);
}

}  // namespace tandekor::test
