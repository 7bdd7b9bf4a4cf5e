// Lines of the log, put together as the steps of a procedure are nested.
#pragma once

#include <string>

#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

struct Lines : Texts
{
    using Texts::Texts;

    friend Lines operator+(Lines first, const Lines& further)
    {
        first.insert(first.end(), further.begin(), further.end());
        return first;
    }
};

// A step by its result text, with the lines that the call itself writes.
inline Lines Step(const std::string& text, const Lines& inner = {}, const char* ending = " - Completed successfully\n")
{
    return Lines{"\t\t" + text.substr(0, text.find('(')) + "() start"} + inner + Lines{"\t" + text + ending};
}

inline Lines FailedStep(const std::string& text, const Lines& inner = {}) { return Step(text, inner, " - Failure\n"); }

// A factory request by its entry text, and by its closing text where that is another.
inline Lines Request(const std::string& entry, const std::string& closing)
{
    return {entry, "\t" + closing + " - Completed successfully\n"};
}
inline Lines Request(const std::string& entry) { return Request(entry, entry); }

// The question for the phone model, of a phone that tells its chip family by the build answer.
inline Lines ModelLines(const std::string& version, const std::string& msm)
{
    const std::string id = "TANDEKOR_FTM_GET_HW_ID()", build = "QLIB_DIAG_EXT_BUILD_ID_F()";
    return Lines{"\t" + build + " start", "\t" + build + " - Completed successfully\n"}
           + Step(id, Lines{id, build, "\t" + id + " - Completed successfully\n"})
           + Step("TANDEKOR_GetPhoneModel(ver_number = " + version + ", msm_model = " + msm + ")");
}
inline const Lines modelCalls{"QLIB_DIAG_EXT_BUILD_ID_F() x2",
                              "QLIB_SendSync(10, 4B 0B 00 80 1D 00 00 00 0E 00, 3000)"};

inline const Lines check{"QLIB_IsPhoneConnected() x3"}, checkTwice{"QLIB_IsPhoneConnected() x6"};

// The phone that answers with this chip's version and this hardware identifier.
inline void BecomePhone(uint32_t chip, uint16_t hardwareId)
{
    simulator::ThePhone().msmHardwareVersion = chip;
    simulator::ThePhone().hardwareId = hardwareId;
}

}  // namespace tandekor::test
