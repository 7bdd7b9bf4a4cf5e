// The phone's identity and its storage: IMEI, freezing, flash, memory card.
#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "phone/nv_items.h"
#include "platform/qmsl.h"
#include "procedures/host_word.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/ftm.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr size_t publicKeySize = 260;
constexpr size_t imeiTextSize = 16;
constexpr size_t longestIdentitySize = nv::serialNumber.size;

constexpr uint8_t imeiLengthByte = 8;
constexpr uint8_t imeiFirstLowNibble = 0x0A;

// Two nibbles, of which the first may carry more bits than are kept.
uint8_t Nibbles(int high, int low) { return static_cast<uint8_t>(high << 4 | low); }

// Compares as texts are compared: up to the first zero byte of the expected value, that included.
bool SameText(const uint8_t* expected, const uint8_t* actual, size_t most)
{
    for (size_t i = 0; i < most; ++i)
    {
        if (expected[i] != actual[i])
            return false;
        if (expected[i] == 0)
            return true;
    }
    return true;
}

}  // namespace

// --- IMEI

uint8_t TANDEKOR_NV_READ_IMEI(ResourceContext hResourceContext, char* sImei)
{
    const PhoneProcedure phone(hResourceContext);
    uint8_t item[nv::imei.size] = {};
    HostWord status;
    if (!phone.CheckConnection()
        || !phone.Step(
            "QLIB_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %s, iLength = 9)",
            [&] { return QLIB_DIAG_NV_READ_F(hResourceContext, nv::imei.number, item, nv::imei.size, status.Out()); },
            nv::imei.number, ItemOf<nv::imei.size>(item)))
        return 0;
    if (status.Value() != 0)
    {
        std::fill_n(sImei, imeiTextSize, '\0');
        phone.StepTrace(STEP_FAILURE, "QLIB_DIAG_NV_READ_F(iNvStatus = %i)", status.Value());
        return 0;
    }
    char* digit = sImei;
    *digit++ = static_cast<char>('0' + (item[1] >> 4));
    for (size_t i = 2; i < nv::imei.size; ++i)
    {
        *digit++ = static_cast<char>('0' + (item[i] & 0x0F));
        *digit++ = static_cast<char>('0' + (item[i] >> 4));
    }
    *digit = '\0';
    return 1;
}

// Of each character the low four bits count, so numbers do as well as digits.
uint8_t TANDEKOR_NV_WRITE_IMEI(ResourceContext hResourceContext, const char* sImei)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return 0;
    uint8_t item[nv::imei.size] = {imeiLengthByte, static_cast<uint8_t>(Nibbles(sImei[0], 0) | imeiFirstLowNibble)};
    for (size_t i = 2; i < nv::imei.size; ++i)
        item[i] = Nibbles(sImei[2 * i - 2], sImei[2 * i - 3] & 0x0F);
    uint8_t readBack[nv::imei.size] = {};
    if (!phone.WriteItem(nv::imei.number, item, nv::imei.size)
        || !phone.Step(
            "TANDEKOR_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %s, iLength = 9)",
            [&] { return DIAG_NV_READ_F(hResourceContext, nv::imei.number, readBack, nv::imei.size); }, nv::imei.number,
            ItemOf<nv::imei.size>(readBack)))
        return 0;
    if (!std::equal(std::begin(item), std::end(item), readBack))
    {
        phone.StepTrace(STEP_FAILURE, "cImei[i] != cImeiRead[i]");
        return 0;
    }
    return 1;
}

// --- freezing

namespace
{

bool Remark(const PhoneProcedure& phone, bool passed, const char* passedText, const char* failedText)
{
    phone.StepTrace(STEP_START, "%s", passed ? passedText : failedText);
    return passed;
}

bool ReadIdentity(const PhoneProcedure& phone, const nv::Item& id, uint8_t* item, const char* what)
{
    std::fill_n(item, id.size, uint8_t{0});
    const bool passed = DIAG_NV_READ_F(phone.hResourceContext, id.number, item, id.size) != 0;
    phone.StepTrace(STEP_START, "\tTANDEKOR_DIAG_NV_READ_F() - read %s %s\n", what,
                    passed ? "Completed successfully" : "Failure");
    return passed;
}

}  // namespace

// Nothing is written to the phone before all three identity values were found equal, and the last command goes out only
// after the key was read back and found equal. Nothing of the key goes to the log. The three key commands share their
// values, so the status that a command leaves unchanged is that of the one before.
uint8_t TANDEKOR_DIAG_FREEZE_PHONE(ResourceContext hResourceContext, const uint8_t* pExpectedImei,
                                   const uint8_t* pExpectedBtAddress, const uint8_t* pExpectedSerial,
                                   const uint8_t* pPublicKey)
{
    const PhoneProcedure phone(hResourceContext);
    uint8_t item[longestIdentitySize] = {};
    const auto same = [&](const uint8_t* expected, size_t size) { return SameText(expected, item, size); };
    phone.StepTrace(STEP_START, "\nTANDEKOR_DIAG_FREEZE_PHONE() - Started\n");
    if (!ReadIdentity(phone, nv::imei, item, "IMEI")
        || !Remark(phone, same(pExpectedImei, nv::imei.size), "\tIMEI Correct\n", "\tIMEI Mismatch\n")
        || !ReadIdentity(phone, nv::bluetoothAddress, item, "BT Address")
        || !Remark(phone, same(pExpectedBtAddress, nv::bluetoothAddress.size), "\tBT Address Correct\n",
                   "\tBT Address Mismatch\n")
        || !ReadIdentity(phone, nv::serialNumber, item, "Device Serial Number")
        || !Remark(phone, same(pExpectedSerial, nv::serialNumber.size), "\tDevice Serial Number Correct\n",
                   "\tDevice Serial Number Mismatch\n"))
        return 0;

    uint8_t block[16] = {};
    uint32_t gsdiValue = 1;
    uint32_t status = 1;
    uint32_t keyLength = 0;
    uint8_t keyRead[publicKeySize] = {};
    const auto report = [&](uint8_t result, const char* passedText, const char* failedText)
    {
        const bool passed = result != 0 && status == 0;
        phone.StepTrace(STEP_START, "%s: %d\n", passed ? passedText : failedText, status);
        return passed;
    };
    if (!report(QLIB_GSDIDIAG_ROOT_KEY_WRITE_CMD(hResourceContext, 0, 0, block, publicKeySize, pPublicKey, &gsdiValue,
                                                 &status),
                "\tRoot Key Write PASS, status", "\tRoot Key Write FAILED status")
        || !report(
            QLIB_GSDIDIAG_ROOT_KEY_READ_CMD(hResourceContext, 0, 0, block, &keyLength, keyRead, &gsdiValue, &status),
            "\tRoot Key Read PASS, status", "\tRoot Key Read FAILED, status")
        || !Remark(phone, SameText(pPublicKey, keyRead, publicKeySize), "\tPublic Key Correct\n",
                   "\tPublic Key Mismatch\n"))
        return 0;
    const uint8_t result = QLIB_GSDIDIAG_SECURE_DEVICE_INFO_CMD(hResourceContext, 0, 0, block, &gsdiValue, &status);
    if (!report(result, "\tSecure Device Info PASS, status", "\t\tSecure Device Info FAILED, status"))
        return 0;
    phone.StepTrace(STEP_START, "\nTANDEKOR_DIAG_FREEZE_PHONE() - Finished, Result = %d\n", result);
    return result;
}

// --- storage

uint8_t TANDEKOR_FlashTest(ResourceContext hResourceContext, uint32_t* piFlashId)
{
    const PhoneProcedure phone(hResourceContext);
    uint32_t values[7] = {};
    uint8_t byte = 0;
    char name[100] = {};
    if (!phone.CheckConnection()
        || !phone.Step("QLIB_EFS2_DIAG_DEV_INFO", "()",
                       [&]
                       {
                           return QLIB_EFS2_DIAG_DEV_INFO(hResourceContext, &values[0], &values[1], &values[2],
                                                          &values[3], &values[4], &values[5], &values[6], &byte, name);
                       }))
        return 0;
    *piFlashId = (values[5] << 8) + values[6];
    return 1;
}

uint8_t TANDEKOR_SpecialMmcTest(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr char fileName[] = "\\Test.bin";
    constexpr uint16_t dataSize = 16;
    constexpr uint8_t readAccess = 0;
    constexpr uint8_t writeAccess = 1;

    phone.StepTrace(STEP_START, "\tTANDEKOR_SpecialMmcTest - start");
    if (!phone.CheckConnection())
        return 0;
    uint8_t written[dataSize];
    uint8_t readBack[dataSize] = {};
    for (uint8_t& byte : written)
        byte = static_cast<uint8_t>(0x40 + std::rand() % 56);
    if (TANDEKOR_FTM_MMC_FILE_ACCESS(hResourceContext, writeAccess, dataSize, fileName, written) == 0
        || TANDEKOR_FTM_MMC_FILE_ACCESS(hResourceContext, readAccess, dataSize, fileName, readBack) == 0)
        return 0;
    for (int i = 0; i < dataSize; ++i)
    {
        if (written[i] != readBack[i])
        {
            phone.StepTrace(STEP_START, "\tcOutData[%i] != cInData[%i]", i, i);
            return 0;
        }
    }
    phone.StepTrace(STEP_START, "\tTANDEKOR_SpecialMmcTest - finish");
    return 1;
}
