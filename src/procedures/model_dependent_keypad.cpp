// Keypad light and slider by factory requests that depend on the phone model.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "core/operator_output.h"
#include "phone/phone_models.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

// What a reply word means; the first row that fits counts.
constexpr uint32_t anyWord = UINT32_MAX;
struct SliderRow
{
    Slider slider;
    uint32_t word;
    uint8_t state;
};
constexpr SliderRow sliderStates[] = {
    {Slider::Dravok, 0, 1},           {Slider::Dravok, anyWord, 0},                              //
    {Slider::Kolt52, 3, 1},           {Slider::Kolt52, 1, 2},       {Slider::Kolt52, 0, 0},      //
    {Slider::Kolt52, anyWord, 3},                                                                //
    {Slider::Kolt53To55, 1, 1},       {Slider::Kolt53To55, 2, 0},   {Slider::Kolt53To55, 3, 2},  //
    {Slider::Kolt53To55, anyWord, 3},                                                            //
};

const SliderRow* FindSliderState(Slider slider, uint16_t word)
{
    for (const SliderRow& row : sliderStates)
    {
        if (row.slider == slider && (row.word == word || row.word == anyWord))
            return &row;
    }
    return nullptr;
}

bool AskPhoneModel(ResourceContext hResourceContext, uint32_t* piPhoneModel)
{
    uint32_t verNumber = 0;
    uint32_t msmModel = 0;
    *piPhoneModel = 0;
    Trace(hResourceContext, "\tTANDEKOR_Phone_Model() start");
    const bool asked = TANDEKOR_Phone_Model(hResourceContext, &verNumber, &msmModel, piPhoneModel) != 0;
    Trace(hResourceContext, "TANDEKOR_Phone_Model(piVerNumber = %i, piMSMModel = %i, piPhoneModel = %i)%s", verNumber,
          msmModel, *piPhoneModel, asked ? completedEnding : " - Failure");
    return asked;
}

// Never inlined, as the next one, so that their texts are not on the stack while the phone's model is asked for.
[[gnu::noinline]] bool SendBackLight(FtmChannel& ftm, uint16_t rowNumber, uint8_t backLightOn)
{
    return ftm.StandardAfterStart(
        FormattedText("TANDEKOR_FTM_SetKeyPadBackLight(rowNumber = %d, backLightOn = %d)", rowNumber, backLightOn),
        factory::SetKeyPadBackLight, {.send = {rowNumber * 10u + backLightOn}});
}

[[gnu::noinline]] uint8_t ReadSliderWord(FtmChannel& ftm, uint16_t* word)
{
    const FormattedText entry("TANDEKOR_FTM_GetSliderState()");
    ftm.Start(entry);
    const uint8_t result = ftm.Exchange(factory::GetSliderState, {});
    if (result != 0)
    {
        ftm.Take({word});
        ftm.Completed(entry);
    }
    else
        ftm.NoReply(entry);
    return result;
}

}  // namespace

uint8_t TANDEKOR_FTM_SetKeyPadBackLight(ResourceContext hResourceContext, uint16_t rowNumber, uint8_t backLightOn)
{
    return With(
        Ftm(hResourceContext),
        [&](FtmChannel& ftm)
        {
            Trace(hResourceContext, "TANDEKOR_FTM_SetKeyPadBackLight()");
            uint32_t model = 0;
            if (!AskPhoneModel(hResourceContext, &model))
                return false;
            if (IsDravok(model) && (rowNumber == 5 || rowNumber == 7))
            {
                const bool done = TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext, rowNumber, backLightOn) != 0;
                Trace(hResourceContext,
                      "TANDEKOR_FTM_SetKeyPadBackLightGPIO(hResourceContext = %i, rowNumber = %i, backLightOn= %i)%s",
                      hResourceContext, rowNumber, backLightOn, done ? completedEnding : " - Failure");
                return done;
            }
            if (IsDravok(model))
                PrintForOperator("\nDRAVOK not support, only row 5 and 7! ");

            if (rowNumber < 1 || rowNumber > 7)
            {
                Trace(hResourceContext, "\tParameter RowNumber over the range (1-7).");
                return false;
            }
            if (backLightOn > 1)
            {
                Trace(hResourceContext, "\tParameter BackLightOn over the range (0-1).");
                return false;
            }
            return SendBackLight(ftm, rowNumber, backLightOn);
        });
}

// The request goes out before the model is judged, and a missing reply is mapped like the word 0.
uint8_t TANDEKOR_FTM_GetSliderState(ResourceContext hResourceContext, uint8_t* sState, uint8_t iPhoneModelHint)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "ZR_GetSliderState() start");
                    uint32_t model = iPhoneModelHint;
                    if (!IsKolt(iPhoneModelHint) && !AskPhoneModel(hResourceContext, &model))
                        return uint8_t{0};

                    uint16_t word = 0;
                    const uint8_t result = ReadSliderWord(ftm, &word);
                    const SliderRow* row = FindSliderState(PhoneModelOf(model).slider, word);
                    if (row == nullptr)
                    {
                        Trace(hResourceContext, "\tTANDEKOR_FTM_GetSliderState(sState = %c)", *sState);
                        return uint8_t{0};
                    }
                    *sState = row->state;
                    return result;
                });
}
