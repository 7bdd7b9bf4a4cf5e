// What a procedure is written with: its lines in the log, its steps, and the steps that several procedures share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "channels/boot_box_port.h"
#include "core/text_log.h"
#include "procedures/step_values.h"

namespace tandekor
{

// First argument of StepTrace. Any other value acts as STEP_START, which is also the level of plain remarks.
constexpr uint8_t STEP_FAILURE = 0;
constexpr uint8_t STEP_SUCCESS = 1;
constexpr uint8_t STEP_START = 2;

// One run of a procedure on one phone. On an unknown handle every verb fails, and nothing is called or logged.
class PhoneProcedure
{
public:
    explicit PhoneProcedure(ResourceContext handle);

    const ResourceContext hResourceContext;

    bool IsKnown() const { return bootBoxPort != nullptr; }
    BootBoxPort& BootBox() const { return *bootBoxPort; }

    // Whether the phone answers; said in the log if it does not.
    bool CheckConnection() const;

    // --- reporting

    // Writes one line to the log, in the form of its level. Returns whether the handle is known.
    bool StepTrace(uint8_t iLevel, const char* sFormat, ...) const __attribute__((format(printf, 3, 4)));

    // One step: its start line, the call, the line that says how it ended. The result line is the callee's name with
    // its arguments as a format, filled with the values as they stand after the call.
    template <typename Call, typename... Values>
    bool Step(std::string_view name, const char* arguments, Call call, const Values&... values) const
    {
        return StepStart(name) && StepWithoutStart(name, arguments, call, values...);
    }

    template <typename Call, typename... Values>
    bool StepWithoutStart(std::string_view name, const char* arguments, Call call, const Values&... values) const
    {
        if (!IsKnown())
            return false;
        const bool done = call() != 0;
        TraceResult(done, name, arguments, values...);
        return done;
    }

    // A step whose call takes the values that are shown, and nothing else after the handle.
    template <typename Function, typename... Values>
    bool CallStep(std::string_view name, Function function, const char* arguments, Values... values) const
    {
        return Step(
            name, arguments, [&] { return function(hResourceContext, values...); }, values...);
    }

    // --- steps that several procedures share

    bool SendControl(uint32_t eMode) const;
    // Asks for the phone's state until it is offline.
    bool WaitForOffline(bool (*askState)(const PhoneProcedure&, uint8_t*), const char* reachedText,
                        const char* missedText) const;
    // NV items, shown as text. iLength is in bytes.
    bool WriteItem(uint16_t iItemID, const uint8_t* pItemData, int32_t iLength) const;
    bool ReadItem(uint16_t iItemID, uint8_t* cBin3, int32_t iLength) const;
    bool SetMode(uint16_t eNewMode) const;
    bool SetChannel(uint16_t iChannel) const;
    bool SetLnaRange(uint8_t iLNArange) const;
    bool TxOn() const;
    bool TxOff() const;
    bool SetMicrophoneBias(uint16_t iAudioDevice) const;
    bool AskPhoneModel(uint32_t* piPhoneModel) const;

private:
    bool StepStart(std::string_view name) const;

    // The result line of a step. Never inlined, so that its buffers are not on the stack during the call of the step.
    template <typename... Values>
    [[gnu::noinline]] void TraceResult(bool done, std::string_view name, const char* arguments,
                                       const Values&... values) const
    {
        if constexpr (sizeof...(values) == 0)
            WritePlainResult(done, name, arguments);
        else
            WriteResult(done, name, arguments, ShownValue(values).Argument()...);
    }

    void WriteResult(bool done, std::string_view name, const char* arguments, ...) const;
    // The same with arguments that are no format.
    void WritePlainResult(bool done, std::string_view name, const char* arguments) const;

    BootBoxPort* const bootBoxPort;
};

}  // namespace tandekor
