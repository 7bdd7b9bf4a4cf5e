// The phone's audio path: microphone bias, loopback, tone, PCM capture, and one register of it.
#include "phone/factory_requests.h"
#include "platform/qmsl.h"
#include "procedures/host_word.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr uint32_t rawRequestTimeMs = 2000;

// Device 15 needs a request of its own.
constexpr uint16_t deviceWithRequest = 15;
constexpr int biasStatus = 10;

constexpr uint32_t disabledBitsRegister = 0x84001308;

}  // namespace

uint8_t TANDEKOR_MicrophoneBiasVoltages(ResourceContext hResourceContext, uint16_t iAudioDevice)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection()
        || !phone.CallStep("QLIB_FTM_AUDIO_SET_PATH", QLIB_FTM_AUDIO_SET_PATH, "(iAudioDevice = %d)", iAudioDevice))
        return 0;
    if (iAudioDevice != deviceWithRequest)
        return 1;

    auto request = factory::BytesOf(factory::MicrophoneBias, 0x00, 0x0B, 0x01, 0x00);
    uint8_t response[request.size()] = {};
    HostWord responseSize(sizeof response);
    constexpr int requestSize = request.size();
    if (!phone.Step(
            "QLIB_SendSync", "(iRequestSize = %i, piRequestBytes = %s, piResponseSize = %d, iTimeout = 2000)",
            [&]
            {
                return QLIB_SendSync(hResourceContext, requestSize, request.data(), responseSize.Out(), response,
                                     rawRequestTimeMs);
            },
            requestSize, ItemOf<requestSize>(request.data()), *responseSize.Out()))
        return 0;
    if (response[biasStatus] != 0)
    {
        phone.StepTrace(STEP_FAILURE, "QLIB_SendSync <cResponse[10] != 0>");
        return 0;
    }
    return 1;
}

uint8_t TANDEKOR_AudioTest(ResourceContext hResourceContext, uint16_t iAudioDevice, uint8_t bLoopbackOn)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.SetMicrophoneBias(iAudioDevice)
           && phone.CallStep("QLIB_FTM_AUDIO_PCM_LOOPBACK", QLIB_FTM_AUDIO_PCM_LOOPBACK, "(bLoopbackOn = %c)",
                             bLoopbackOn);
}

// The tone is stopped at once.
uint8_t TANDEKOR_TestSpeaker(ResourceContext hResourceContext, uint16_t iAudioDevice, uint8_t iVolume, uint16_t iHiFreq,
                             uint16_t iLoFreq)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint16_t method = 0;
    return phone.CheckConnection() && phone.SetMicrophoneBias(iAudioDevice)
           && phone.CallStep("QLIB_FTM_AUDIO_SET_VOLUME", QLIB_FTM_AUDIO_SET_VOLUME, "(iVolume = %c)", iVolume)
           && phone.CallStep("QLIB_FTM_AUDIO_TONES_PLAY", QLIB_FTM_AUDIO_TONES_PLAY,
                             "(iHiFreq = %d, iLoFreq = %d, iMethod = %d)", iHiFreq, iLoFreq, method)
           && phone.CallStep("QLIB_FTM_AUDIO_TONES_STOP", QLIB_FTM_AUDIO_TONES_STOP, "()");
}

// The capture is not stopped after a failed fetch. The success line of its start has no closing bracket.
uint8_t TANDEKOR_TestMicrophone(ResourceContext hResourceContext, uint16_t iNumBuffers, uint32_t iDataOffset,
                                uint16_t iDataSize, void* pBuffer, uint16_t iItemID, const uint8_t* pItemData,
                                int32_t iLength, uint32_t /*iReservedWord*/, int16_t iCodecTxGainAdjust)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint32_t delayMs = 1000;
    const auto startCapture = [&]
    {
        phone.StepTrace(STEP_START, "\tQLIB_FTM_AUDIO_PCM_CAPTURE() start");
        const bool done = QLIB_FTM_AUDIO_PCM_CAPTURE(hResourceContext, iNumBuffers, delayMs) != 0;
        phone.StepTrace(done ? STEP_SUCCESS : STEP_FAILURE,
                        "QLIB_FTM_AUDIO_PCM_CAPTURE(iNumBuffers = %d, iDelay_ms = 1000%s", iNumBuffers,
                        done ? "" : ")");
        return done;
    };
    return phone.CheckConnection() && startCapture()
           && phone.Step(
               "QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA", "(iDataOffset = %d, iDataSize = %d, pBuffer = %s)",
               [&] { return QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(hResourceContext, iDataOffset, iDataSize, pBuffer); },
               iDataOffset, iDataSize, ItemOf<textBufferSize>(pBuffer, iDataSize))
           && phone.CallStep("QLIB_FTM_AUDIO_PCM_STOP_CAPTURE", QLIB_FTM_AUDIO_PCM_STOP_CAPTURE, "()")
           && phone.WriteItem(iItemID, pItemData, iLength)
           && phone.CallStep("QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST", QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST,
                             "(iCodecTxGainAdjust = %d)", iCodecTxGainAdjust);
}

// Neither checks the connection nor writes to the log; the result of the write is ignored.
uint8_t TANDEKOR_DIAG_DISABLE_48KHz(ResourceContext hResourceContext)
{
    uint32_t value = 0;
    if (!PhoneProcedure(hResourceContext).IsKnown()
        || QLIB_DIAG_MEMORY_PEEK_DWORD_F(hResourceContext, disabledBitsRegister, 1, &value) == 0)
        return 0;
    value = (value & ~uint32_t{0x01}) | 0x0E;

    constexpr uint8_t pokeDword = 0x05;
    constexpr uint8_t count = 1;
    uint8_t request[] = {pokeDword,
                         static_cast<uint8_t>(disabledBitsRegister),
                         static_cast<uint8_t>(disabledBitsRegister >> 8),
                         static_cast<uint8_t>(disabledBitsRegister >> 16),
                         static_cast<uint8_t>(disabledBitsRegister >> 24),
                         count,
                         static_cast<uint8_t>(value),
                         static_cast<uint8_t>(value >> 8),
                         static_cast<uint8_t>(value >> 16),
                         static_cast<uint8_t>(value >> 24)};
    uint8_t response[12] = {};
    HostWord responseSize(10);
    QLIB_SendSync(hResourceContext, sizeof request, request, responseSize.Out(), response, rawRequestTimeMs);
    return 1;
}
