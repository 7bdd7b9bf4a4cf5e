// NV items and hardware registers of the phone, with the checks that a host call does not make.
#include "platform/qmsl.h"
#include "procedures/host_word.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"

using namespace tandekor;

namespace
{

// One width of the host library's register access.
template <typename Value>
struct RegisterAccess
{
    const char* peekName;
    uint8_t (*peek)(ResourceContext, uint32_t, uint16_t, Value*);
    const char* pokeName;
    uint8_t (*poke)(ResourceContext, uint32_t, uint16_t, const Value*);
};

constexpr RegisterAccess<uint8_t> byteAccess{"QLIB_DIAG_MEMORY_PEEK_F", QLIB_DIAG_MEMORY_PEEK_F,
                                             "QLIB_DIAG_MEMORY_POKE_F", QLIB_DIAG_MEMORY_POKE_F};
constexpr RegisterAccess<uint32_t> dwordAccess{"QLIB_DIAG_MEMORY_PEEK_DWORD_F", QLIB_DIAG_MEMORY_PEEK_DWORD_F,
                                               "QLIB_DIAG_MEMORY_POKE_DWORD_F", QLIB_DIAG_MEMORY_POKE_DWORD_F};

constexpr char registerArguments[] = "(iAddress = %u, iNumItems = 1, pItemArray = %u)";

}  // namespace

bool tandekor::DIAG_NV_WRITE_F(ResourceContext hResourceContext, uint16_t iItemID, const uint8_t* pItemData,
                               int32_t iLength)
{
    const PhoneProcedure phone(hResourceContext);
    HostWord status;
    if (!phone.CheckConnection()
        || !phone.Step(
            "QLIB_DIAG_NV_WRITE_F", "(iItemID = %d, pItemData = %u, iLength = %i)",
            [&] { return QLIB_DIAG_NV_WRITE_F(hResourceContext, iItemID, pItemData, iLength, status.Out()); }, iItemID,
            AddressOf{pItemData}, iLength))
        return false;
    if (status.Value() != 0)
    {
        phone.StepTrace(STEP_FAILURE, "QLIB_DIAG_NV_WRITE_F(iNvStatus = %i)", status.Value());
        return false;
    }
    return true;
}

bool tandekor::DIAG_NV_READ_F(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* pItemData, int32_t iLength)
{
    const PhoneProcedure phone(hResourceContext);
    HostWord status;
    if (!phone.CheckConnection()
        || !phone.Step("QLIB_DIAG_NV_READ_F", "",
                       [&]
                       { return QLIB_DIAG_NV_READ_F(hResourceContext, iItemID, pItemData, iLength, status.Out()); }))
        return false;
    if (status.Value() != 0)
    {
        phone.StepTrace(STEP_FAILURE, "QLIB_DIAG_NV_READ_F(iNvStatus = %i)", status.Value());
        return false;
    }
    return true;
}

bool tandekor::NV_READ_GSM_RX_REL_OFFSETS(ResourceContext hResourceContext, uint16_t iItemID, uint8_t* cBin3,
                                          int32_t iLength)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.StepTrace(STEP_START, "\tQLIB_DIAG_NV_READ_F() start")
           && phone.StepWithoutStart(
               "TANDEKOR_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %s, iLength = %i)",
               [&] { return DIAG_NV_READ_F(hResourceContext, iItemID, cBin3, iLength); }, iItemID,
               ItemOf<textBufferSize>(cBin3, iLength), iLength);
}

bool tandekor::DIAG_NV_WRITE_FLUSH_BATCH_QUEUE(ResourceContext hResourceContext)
{
    const PhoneProcedure phone(hResourceContext);
    constexpr uint16_t DIAG_MNVW_Status_OK = 0;
    uint32_t lastErrorNvId = 0;
    uint32_t lastTotalStatus = 0;
    uint8_t lastItemStatus = 0;
    if (!phone.CheckConnection()
        || !phone.Step(
            "QLIB_DIAG_NV_WRITE_FlushBatchQueue",
            "(piLastErrorNvId = %c, piLastTotalStatus =%c, piLastItemStatus = %c)",
            [&] {
                return QLIB_DIAG_NV_WRITE_FlushBatchQueue(hResourceContext, &lastErrorNvId, &lastTotalStatus,
                                                          &lastItemStatus);
            },
            lastErrorNvId, lastTotalStatus, lastItemStatus))
        return false;
    if (static_cast<uint16_t>(lastTotalStatus) != DIAG_MNVW_Status_OK)
    {
        phone.StepTrace(STEP_FAILURE, "_iLastTotalStatus != (int)DIAG_MNVW_Status_OK");
        return false;
    }
    return true;
}

namespace
{

// The poke is made even if it changes nothing, and only the masked bits must read back as written.
template <typename Value, typename Access>
bool SetBits(const PhoneProcedure& phone, const Access& access, uint32_t iAddress, Value iMask, uint8_t bOnOff)
{
    Value peeked = 0;
    Value poked = 0;
    const auto peek = [&]
    {
        return phone.Step(
            access.peekName, registerArguments,
            [&] { return access.peek(phone.hResourceContext, iAddress, 1, &peeked); }, iAddress, AddressOf{&peeked});
    };
    if (!peek())
        return false;
    poked = static_cast<Value>(bOnOff != 0 ? peeked | iMask : peeked & ~iMask);
    if (!phone.Step(
            access.pokeName, registerArguments,
            [&] { return access.poke(phone.hResourceContext, iAddress, 1, &poked); }, iAddress, AddressOf{&poked})
        || !peek())
        return false;
    if ((poked & iMask) != (peeked & iMask))
    {
        phone.StepTrace(STEP_FAILURE, "(_iPokeStorage != _iPeekStorage)");
        return false;
    }
    return true;
}

}  // namespace

bool tandekor::SetBitState_8_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint8_t iMask, uint8_t bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && SetBits(phone, byteAccess, iAddress, iMask, bOnOff);
}

bool tandekor::SetBitState_32_Reg(ResourceContext hResourceContext, uint32_t iAddress, uint32_t iMask, uint8_t bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    return SetBits(phone, dwordAccess, iAddress, iMask, bOnOff);
}

bool tandekor::TK_GetBitState_32_Reg(ResourceContext hResourceContext, uint32_t Address, uint16_t bitNum, uint32_t* reg,
                                     char* bOnOff)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    if (bitNum > 32)
    {
        phone.StepTrace(STEP_START, "bitNum over the range: %d", bitNum);
        return false;
    }
    if (!phone.Step(
            dwordAccess.peekName, registerArguments,
            [&] { return dwordAccess.peek(hResourceContext, Address, 1, reg); }, Address, AddressOf{reg}))
        return false;
    const auto mask = static_cast<uint32_t>(uint64_t{1} << bitNum);
    *bOnOff = (*reg & mask) != 0 ? '1' : '0';
    return true;
}
