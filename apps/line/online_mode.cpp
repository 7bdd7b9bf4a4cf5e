#include "online_mode.h"

#include "tandekor/procedures.h"

namespace tandekor::line
{

Outcome RunOnline(Context& context, Outcome (*test)(Context& context))
{
    const bool online = TANDEKOR_ModeChangeResetMobile(context.handle, 0) != 0;
    Outcome outcome = online ? test(context)
                             : Failed("the phone did not go online by a reset\nTANDEKOR_ModeChangeResetMobile gave 0");
    if (TANDEKOR_ModeChangeResetMobile(context.handle, 1) != 0)
        return outcome;
    context.state = State::Powered;
    if (!outcome.passed)
        return outcome;
    return Failed("%s, but the phone did not come back to FTM mode\nTANDEKOR_ModeChangeResetMobile gave 0",
                  outcome.text.c_str());
}

}  // namespace tandekor::line
