// Which model the phone is, asked in factory mode.
#include <cstdio>

#include "tandekor/tandekor.h"

int main()
{
    uint32_t version = 0;
    uint32_t chip = 0;
    uint32_t model = TANDEKOR_MODEL_UNKNOWN;
    const ResourceContext phone = TANDEKOR_ConnectServer(1);
    const bool passed = TANDEKOR_ONLINE_TO_FTM(phone) != 0 && TANDEKOR_Phone_Model(phone, &version, &chip, &model) != 0
                        && model != TANDEKOR_MODEL_UNKNOWN;
    TANDEKOR_DisconnectServer(phone);
    std::printf("model %u: %s\n", model, passed ? "PASS" : "FAIL");
    return passed ? 0 : 1;
}
