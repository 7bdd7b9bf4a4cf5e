#include <tandekor/tandekor.h>

// Exit status 0 for a phone of a known model, asked in factory mode.
int main()
{
    uint32_t version = 0;
    uint32_t chip = 0;
    uint32_t model = TANDEKOR_MODEL_UNKNOWN;
    const ResourceContext phone = TANDEKOR_ConnectServer(1);
    const bool passed = TANDEKOR_ONLINE_TO_FTM(phone) != 0 && TANDEKOR_Phone_Model(phone, &version, &chip, &model) != 0;
    TANDEKOR_DisconnectServer(phone);
    return passed && model != TANDEKOR_MODEL_UNKNOWN ? 0 : 1;
}
