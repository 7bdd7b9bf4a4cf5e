// The storing of a whole receiver calibration, in one batch of NV writes.
#include "phone/wcdma_bands.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

constexpr size_t shortRangeSize = 16;  // GSM 900 and 850
constexpr size_t longRangeSize = 32;   // GSM 1900 and 1800

struct RangeItem
{
    uint16_t iItemID;
    int32_t size;
};
// In the order of the pointers.
constexpr RangeItem rangeItems[16] = {
    {726, 16},  {727, 16},  {728, 16},  {729, 16},   // GSM 900
    {1058, 32}, {1059, 32}, {1060, 32}, {1061, 32},  // GSM 1900
    {730, 32},  {731, 32},  {732, 32},  {733, 32},   // GSM 1800
    {1102, 16}, {1103, 16}, {1104, 16}, {1105, 16},  // GSM 850
};

using ShortRange = ItemOf<shortRangeSize>;
using LongRange = ItemOf<longRangeSize>;
using VsFreq = ItemOf<bandTableSize>;

}  // namespace

// A failure before the flush leaves in the host library's queue what it has taken so far.
uint8_t TANDEKOR_Write_RX_Adjustment_Values(
    ResourceContext hResourceContext, uint8_t bStartBatchMode, const uint8_t* Gsm900Range1, const uint8_t* Gsm900Range2,
    const uint8_t* Gsm900Range3, const uint8_t* Gsm900Range4, const uint8_t* Gsm1900Range1,
    const uint8_t* Gsm1900Range2, const uint8_t* Gsm1900Range3, const uint8_t* Gsm1900Range4,
    const uint8_t* Gsm1800Range1, const uint8_t* Gsm1800Range2, const uint8_t* Gsm1800Range3,
    const uint8_t* Gsm1800Range4, const uint8_t* Gsm850Range1, const uint8_t* Gsm850Range2, const uint8_t* Gsm850Range3,
    const uint8_t* Gsm850Range4, uint8_t eNvBand, int16_t iOffset1, const uint8_t* piVsFreq1, int16_t iOffset2,
    const uint8_t* piVsFreq2, int16_t iOffset3, const uint8_t* piVsFreq3, uint16_t eVgaNvBand, uint16_t iOffset,
    const uint8_t* piVsFreq)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection()
           && phone.CallStep("QLIB_DIAG_NV_WRITE_SetBatchMode", QLIB_DIAG_NV_WRITE_SetBatchMode,
                             "(bStartBatchMode = %c)", bStartBatchMode)
           && phone.Step(
               "TANDEKOR_NV_WRITE_GSM_RX_GAIN_RANGE",
               "(Gsm900Range1 = %s, Gsm900Range2 = %s, Gsm900Range3 = %s, Gsm900Range4 = %s, "
               "Gsm1900Range1 = %s, Gsm1900Range2 = %s, Gsm1900Range3 = %s, Gsm1900Range4 = %s, "
               "Gsm1800Range1 = %s, Gsm1800Range2 = %s, Gsm1800Range3 = %s, Gsm1800Range4 = %s, "
               "Gsm850Range1 = %s, Gsm850Range2 = %s, Gsm850Range3 = %s, Gsm850Range4 = %s)",
               [&]
               {
                   return NV_WRITE_GSM_RX_GAIN_RANGE(
                       hResourceContext, Gsm900Range1, Gsm900Range2, Gsm900Range3, Gsm900Range4, Gsm1900Range1,
                       Gsm1900Range2, Gsm1900Range3, Gsm1900Range4, Gsm1800Range1, Gsm1800Range2, Gsm1800Range3,
                       Gsm1800Range4, Gsm850Range1, Gsm850Range2, Gsm850Range3, Gsm850Range4);
               },
               ShortRange(Gsm900Range1), ShortRange(Gsm900Range2), ShortRange(Gsm900Range3), ShortRange(Gsm900Range4),
               LongRange(Gsm1900Range1), LongRange(Gsm1900Range2), LongRange(Gsm1900Range3), LongRange(Gsm1900Range4),
               LongRange(Gsm1800Range1), LongRange(Gsm1800Range2), LongRange(Gsm1800Range3), LongRange(Gsm1800Range4),
               ShortRange(Gsm850Range1), ShortRange(Gsm850Range2), ShortRange(Gsm850Range3), ShortRange(Gsm850Range4))
           && phone.Step(
               "TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET",
               "(eNvBand = %c, iOffset1 = %d, piVsFreq1 = %s, iOffset2 = %d, piVsFreq2 = %s, iOffset3 = %d, "
               "piVsFreq3 = %s)",
               [&]
               {
                   return NV_WRITE_WCDMA_LNA_OFFSET(hResourceContext, eNvBand, iOffset1, piVsFreq1, iOffset2, piVsFreq2,
                                                    iOffset3, piVsFreq3);
               },
               eNvBand, iOffset1, VsFreq(piVsFreq1), iOffset2, VsFreq(piVsFreq2), iOffset3, VsFreq(piVsFreq3))
           && phone.Step(
               "TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN", "(eNvBand = %d, iOffset = %d, piVsFreq = %s)",
               [&] { return NV_WRITE_WCDMA_VGA_GAIN(hResourceContext, eVgaNvBand, iOffset, piVsFreq); }, eVgaNvBand,
               iOffset, VsFreq(piVsFreq))
           && phone.CallStep("TANDEKOR_DIAG_NV_WRITE_FLUSH_BATCH_QUEUE", DIAG_NV_WRITE_FLUSH_BATCH_QUEUE, "()");
}

bool tandekor::NV_WRITE_GSM_RX_GAIN_RANGE(ResourceContext hResourceContext, const uint8_t* Gsm900Range1,
                                          const uint8_t* Gsm900Range2, const uint8_t* Gsm900Range3,
                                          const uint8_t* Gsm900Range4, const uint8_t* Gsm1900Range1,
                                          const uint8_t* Gsm1900Range2, const uint8_t* Gsm1900Range3,
                                          const uint8_t* Gsm1900Range4, const uint8_t* Gsm1800Range1,
                                          const uint8_t* Gsm1800Range2, const uint8_t* Gsm1800Range3,
                                          const uint8_t* Gsm1800Range4, const uint8_t* Gsm850Range1,
                                          const uint8_t* Gsm850Range2, const uint8_t* Gsm850Range3,
                                          const uint8_t* Gsm850Range4)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    const RangeItem* item = rangeItems;
    for (const uint8_t* range : {Gsm900Range1, Gsm900Range2, Gsm900Range3, Gsm900Range4, Gsm1900Range1, Gsm1900Range2,
                                 Gsm1900Range3, Gsm1900Range4, Gsm1800Range1, Gsm1800Range2, Gsm1800Range3,
                                 Gsm1800Range4, Gsm850Range1, Gsm850Range2, Gsm850Range3, Gsm850Range4})
    {
        if (range != nullptr && !phone.WriteItem(item->iItemID, range, item->size))
            return false;
        ++item;
    }
    return true;
}

bool tandekor::NV_WRITE_WCDMA_LNA_OFFSET(ResourceContext hResourceContext, uint8_t eNvBand, int16_t iOffset1,
                                         const uint8_t* piVsFreq1, int16_t iOffset2, const uint8_t* piVsFreq2,
                                         int16_t iOffset3, const uint8_t* piVsFreq3)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return false;
    const int16_t offsets[] = {iOffset1, iOffset2, iOffset3};
    const uint8_t* tables[] = {piVsFreq1, piVsFreq2, piVsFreq3};
    const WcdmaBand* band = FindWcdmaBand(eNvBand);
    if (band == nullptr)
        return false;
    for (int i = 0; i < 3; ++i)
    {
        const uint8_t offset[] = {static_cast<uint8_t>(offsets[i]), static_cast<uint8_t>(offsets[i] >> 8)};
        if (!phone.WriteItem(band->lnaOffset[i], offset, bandValueSize)
            || (tables[i] != nullptr && !phone.WriteItem(band->lnaVsFreq[i], tables[i], bandTableSize)))
            return false;
    }
    return true;
}
