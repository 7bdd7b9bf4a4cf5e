// The choice of a display by its number, and a test image on it.
#include "phone/factory_requests.h"
#include "phone/phone_models.h"
#include "platform/qmsl.h"
#include "procedures/host_word.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr size_t fileNameSize = 128;
constexpr uint32_t rawRequestTimeMs = 2000;

// Never inlined, so that the response is not on the stack while the phone's model is asked for.
[[gnu::noinline]] bool SelectDisplay(const PhoneProcedure& phone, HostWord responseSize, uint8_t uiDsplNum)
{
    auto request = factory::BytesOf(factory::SelectDisplay, uiDsplNum);
    uint8_t response[4096] = {};
    constexpr int requestSize = request.size();
    return phone.Step(
        "QLIB_SendSync", "(iRequestSize = %i, piRequestBytes = %u, piResponseSize = %i, iTimeout = %i)",
        [&]
        {
            return QLIB_SendSync(phone.hResourceContext, requestSize, request.data(), responseSize.Out(), response,
                                 rawRequestTimeMs);
        },
        requestSize, AddressOf{request.data()}, SignedWordOf{responseSize.Out()}, rawRequestTimeMs);
}

}  // namespace

uint8_t TANDEKOR_SpecialSwitchDisplay(ResourceContext hResourceContext, uint8_t uiDsplNum)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t verNumber = 0;
    uint32_t msmModel = 0;
    uint32_t phoneModel = 0;
    if (!phone.CheckConnection()
        || !phone.Step(
            "TANDEKOR_Phone_Model", "(piVerNumber = %i, piMobModel = %i)",
            [&] { return TANDEKOR_Phone_Model(hResourceContext, &verNumber, &msmModel, &phoneModel); }, verNumber,
            msmModel))
        return 0;

    const HostWord responseSize(PhoneModelOf(phoneModel).displayResponse);
    if (responseSize.Value() == 0)
    {
        if (uiDsplNum == 0)
            return 1;
        phone.StepTrace(STEP_FAILURE, "ERROR: Mobile not supported");
        return 0;
    }
    return SelectDisplay(phone, responseSize, uiDsplNum);
}

uint8_t TANDEKOR_FTM_DrawContrastPattern(ResourceContext hResourceContext, const char* sFileName, uint8_t uiDsplNum)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("TANDEKOR_SpecialSwitchDisplay", TANDEKOR_SpecialSwitchDisplay, "(uiDsplNum = %i)",
                             uiDsplNum)
           && phone.Step(
               "TANDEKOR_FTM_DISPLAY_IMAGE", "(sFileName = %s)",
               [&] { return TANDEKOR_FTM_DISPLAY_IMAGE(hResourceContext, sFileName); },
               ItemOf<fileNameSize>(sFileName));
}

uint8_t TANDEKOR_FTM_DrawContrastPattern24Bit(ResourceContext hResourceContext, const char* sFileName,
                                              uint8_t uiDsplNum)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("TANDEKOR_SpecialSwitchDisplay", TANDEKOR_SpecialSwitchDisplay, "(uiDsplNum = %i)",
                             uiDsplNum)
           && phone.Step(
               "TANDEKOR_FTM_DISPLAY_IMAGE_24BIT", "(sFileName = %s)",
               [&] { return TANDEKOR_FTM_DISPLAY_IMAGE_24BIT(hResourceContext, sFileName); },
               ItemOf<fileNameSize>(sFileName));
}
