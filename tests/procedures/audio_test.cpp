// The audio path: microphone bias, loopback, tone, PCM capture, and the register of the sample rate.
#include "tests/procedures/step_lines.h"

namespace tandekor::test
{

namespace
{

const Lines pathCalls{"QLIB_FTM_AUDIO_SET_PATH(15)",
                      "QLIB_SendSync(14, 4B 0B 01 80 70 04 0E 00 0E 00 00 0B 01 00, 2000)"};
const Lines pathLines = Step("QLIB_FTM_AUDIO_SET_PATH(iAudioDevice = 15)")
                        + Step(
                            "QLIB_SendSync(iRequestSize = 14, piRequestBytes = K\x0B\x01\x80p\x04\x0E, "
                            "piResponseSize = 14, iTimeout = 2000)");

}  // namespace

using AudioTest = ProcedureTest;

TEST_F(AudioTest, BiasOfAudioDevice15TakesARequestMore)
{
    for (const uint16_t device : std::initializer_list<uint16_t>{0, 14, 16, 0x10F})
    {
        EXPECT_EQ(TANDEKOR_MicrophoneBiasVoltages(handle, device), 1);
        EXPECT_EQ(Phone().audio.path, device);
    }
    EXPECT_EQ(CountExchanges(), 0U);
    simulator::ForgetCalls();
    simulator::ForgetLog();
    EXPECT_EQ(TANDEKOR_MicrophoneBiasVoltages(handle, 15), 1);
    EXPECT_EQ(Calls(), check + pathCalls);
    EXPECT_EQ(Log(), pathLines);
    EXPECT_EQ(simulator::Exchanges().back().capacity, 14);
}

TEST_F(AudioTest, BiasStatusIsByte10OfTheReplyAndZeroWhereTheReplyIsShorter)
{
    const struct
    {
        const char* reply;
        uint8_t result;
    } cases[] = {
        {"FF FF FF FF FF FF FF FF FF FF 00 FF FF FF", 1},
        {"4B 0B 01 80 70 04 0E 00 0E 00 01 00 00 00", 0},
        {"4B 0B 01 80 70 04 0E 00 0E 00", 1},
        {"4B 0B 01 80 70 04 0E 00 0E 00 80", 0},
    };
    for (const auto& row : cases)
    {
        for (const auto& call : {+[](ResourceContext h) { return TANDEKOR_AudioTest(h, 15, 1); },
                                 +[](ResourceContext h) { return TANDEKOR_TestSpeaker(h, 15, 1, 2, 3); }})
        {
            simulator::ForgetLog();
            Replies(Hex(row.reply));
            EXPECT_EQ(call(handle), row.result) << row.reply;
            if (row.result != 0)
                continue;
            const Texts log = Log();
            EXPECT_EQ(log[log.size() - 2], "\tQLIB_SendSync <cResponse[10] != 0> - Failure\n");
            EXPECT_EQ(log.back(), "\tTANDEKOR_MicrophoneBiasVoltages(iAudioDevice = 15) - Failure\n");
        }
    }
    EXPECT_EQ(simulator::CountCalls("QLIB_FTM_AUDIO_PCM_LOOPBACK"), 2);
    EXPECT_EQ(simulator::CountCalls("QLIB_FTM_AUDIO_SET_VOLUME"), 2);
}

TEST_F(AudioTest, LoopbackAndTone)
{
    const Lines bias = Step("TANDEKOR_MicrophoneBiasVoltages(iAudioDevice = 15)", pathLines);
    EXPECT_EQ(TANDEKOR_AudioTest(handle, 15, 'y'), 1);
    EXPECT_EQ(Calls(), (checkTwice + pathCalls + Lines{"QLIB_FTM_AUDIO_PCM_LOOPBACK(121)"}));
    EXPECT_EQ(Log(), bias + Step("QLIB_FTM_AUDIO_PCM_LOOPBACK(bLoopbackOn = y)"));
    simulator::ForgetLog();
    EXPECT_EQ(TANDEKOR_AudioTest(handle, 3, 0), 1);
    EXPECT_EQ(LastLogText(), "\tQLIB_FTM_AUDIO_PCM_LOOPBACK(bLoopbackOn =  - Completed successfully\n")
        << "a zero byte ends the text";

    FreshBench();
    EXPECT_EQ(TANDEKOR_TestSpeaker(handle, 15, 'V', 0xFFFF, 440), 1);
    EXPECT_EQ(Calls(), (checkTwice + pathCalls
                        + Lines{"QLIB_FTM_AUDIO_SET_VOLUME(86)", "QLIB_FTM_AUDIO_TONES_PLAY(65535, 440, 0)",
                                "QLIB_FTM_AUDIO_TONES_STOP()"}));
    EXPECT_EQ(Log(), bias + Step("QLIB_FTM_AUDIO_SET_VOLUME(iVolume = V)")
                         + Step("QLIB_FTM_AUDIO_TONES_PLAY(iHiFreq = 65535, iLoFreq = 440, iMethod = 0)")
                         + Step("QLIB_FTM_AUDIO_TONES_STOP()"));
    EXPECT_EQ(Sleeps(), Waits{}) << "the tone is stopped at once";
}

TEST_F(AudioTest, MicrophoneDataAreHandedOnAndTheItemIsWrittenBehindThem)
{
    for (const uint32_t reservedWord : {0U, 0xFFFFFFFFU})
    {
        FreshBench();
        GuardedBuffer pcm(5);
        uint8_t item[] = {'a', 'b'};
        EXPECT_EQ(TANDEKOR_TestMicrophone(handle, 3, 65, 5, pcm.Data(), 1000, item, 2, reservedWord, -300), 1);
        EXPECT_EQ(pcm.Content(), Ascii("ABCDE"));
        EXPECT_TRUE(pcm.GuardsIntact());
        EXPECT_EQ(
            Calls(),
            (check
             + Lines{"QLIB_FTM_AUDIO_PCM_CAPTURE(3, 1000)", "QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(65, 5)",
                     "QLIB_FTM_AUDIO_PCM_STOP_CAPTURE()"}
             + check + Lines{"QLIB_DIAG_NV_WRITE_F(1000, 61 62, 2)", "QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST(-300)"}));
        EXPECT_EQ(Log(), Step("QLIB_FTM_AUDIO_PCM_CAPTURE(iNumBuffers = 3, iDelay_ms = 1000")
                             + Step("QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA(iDataOffset = 65, iDataSize = 5, "
                                    "pBuffer = ABCDE)")
                             + Step("QLIB_FTM_AUDIO_PCM_STOP_CAPTURE()")
                             + Step("TANDEKOR_DIAG_NV_WRITE_F(iItemID = 1000, pItemData = ab, iLength = 2)",
                                    Step("QLIB_DIAG_NV_WRITE_F(iItemID = 1000, pItemData = @, iLength = 2)"))
                             + Step("QLIB_FTM_AUDIO_SET_CODECTXGAIN_ADJUST(iCodecTxGainAdjust = -300)"));
    }
}

TEST_F(AudioTest, MicrophoneThatCannotBeCaptured)
{
    uint8_t byte = 0;
    simulator::RefuseCall("QLIB_FTM_AUDIO_PCM_CAPTURE");
    EXPECT_EQ(TANDEKOR_TestMicrophone(handle, 3, 0, 1, &byte, 1000, &byte, 1, 0, 0), 0);
    EXPECT_EQ(LastLogText(), "\tQLIB_FTM_AUDIO_PCM_CAPTURE(iNumBuffers = 3, iDelay_ms = 1000) - Failure\n");
    simulator::RefuseCall("QLIB_FTM_AUDIO_GET_PCM_CAPTURE_DATA");
    EXPECT_EQ(TANDEKOR_TestMicrophone(handle, 3, 0, 1, &byte, 1000, &byte, 1, 0, 0), 0);
    EXPECT_TRUE(Phone().audio.capturing) << "nobody stops it";
    EXPECT_FALSE(Phone().nvItems.contains(1000));
}

TEST_F(AudioTest, Disable48KHzChangesTheLowBitsOfItsRegisterAndSaysNothing)
{
    const Bytes before = Hex("F1 C3 F0 A5");
    for (uint32_t i = 0; i < 4; ++i)
        Phone().memory[0x84001308 + i] = before[i];
    EXPECT_EQ(TANDEKOR_DIAG_DISABLE_48KHz(handle), 1);
    const Texts calls{"QLIB_DIAG_MEMORY_PEEK_DWORD_F(2214597384, 1)",
                      "QLIB_SendSync(10, 05 08 13 00 84 01 FE C3 F0 A5, 2000)"};
    EXPECT_EQ(Calls(), calls);
    EXPECT_EQ(simulator::Exchanges().back().capacity, 10);
    EXPECT_EQ(Phone().memory[0x84001308], 0xFE);
    FailsToReply();
    EXPECT_EQ(TANDEKOR_DIAG_DISABLE_48KHz(handle), 1) << "what becomes of the write does not count";
    simulator::RefuseCall("QLIB_DIAG_MEMORY_PEEK_DWORD_F");
    EXPECT_EQ(TANDEKOR_DIAG_DISABLE_48KHz(handle), 0);
    EXPECT_EQ(CountExchanges(), 2U);
    EXPECT_EQ(Log(), (Texts{}));
}

}  // namespace tandekor::test
