#include "online_mode.h"

#include "tandekor/procedures.h"

namespace tandekor::line
{

Outcome RunOnline(Context& context, Outcome (*test)(Context& context))
{
    const bool online = TANDEKOR_ModeChangeResetMobile(context.handle, 0) != 0;
    Outcome outcome
        = online ? test(context) : Failed("TANDEKOR_ModeChangeResetMobile", "the phone did not go online by a reset");
    if (TANDEKOR_ModeChangeResetMobile(context.handle, 1) != 0)
        return outcome;
    context.state = State::Powered;
    if (outcome.Is(Verdict::Failed))
        return outcome;
    return Failed("TANDEKOR_ModeChangeResetMobile", "%s, but the phone did not come back to FTM mode",
                  outcome.text.c_str());
}

}  // namespace tandekor::line
