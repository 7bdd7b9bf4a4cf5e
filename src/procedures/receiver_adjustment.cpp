// One measurement of the receiver for an application that adjusts it, and the NV functions of a WCDMA band.
#include "phone/nv_items.h"
#include "phone/wcdma_bands.h"
#include "platform/qmsl.h"
#include "procedures/phone_procedure.h"
#include "procedures/procedure_steps.h"
#include "tandekor/procedures.h"

using namespace tandekor;

namespace
{

// Null without a phone, or for a band that is not known.
const WcdmaBand* ConnectedBand(ResourceContext hResourceContext, uint16_t eNvBand)
{
    return PhoneProcedure(hResourceContext).CheckConnection() ? FindWcdmaBand(eNvBand) : nullptr;
}

}  // namespace

uint8_t TANDEKOR_RX_GSM_Adjust(ResourceContext hResourceContext, uint8_t* cBin3, uint16_t eNewMode, uint16_t iChannel,
                               uint8_t iSlotNum, int16_t iRxFunction, uint8_t iLNArange, void* piRSSI)
{
    const PhoneProcedure phone(hResourceContext);
    return phone.CheckConnection() && phone.ReadItem(nv::gsmRxRelOffsets.number, cBin3, nv::gsmRxRelOffsets.size)
           && phone.TxOff() && phone.SetMode(eNewMode) && phone.SetChannel(iChannel)
           && phone.CallStep("QLIB_FTM_SET_RX_BURST", QLIB_FTM_SET_RX_BURST, "(iSlotNum = %c, iRxFunction = %d)",
                             iSlotNum, iRxFunction)
           && phone.SetLnaRange(iLNArange)
           && phone.Step("QLIB_FTM_GET_RSSI", "()", [&] { return QLIB_FTM_GET_RSSI(hResourceContext, piRSSI); });
}

// The two direct NV operations hand their status to the caller and go on whatever it is.
uint8_t TANDEKOR_RX_WCDMA_Adjust(ResourceContext hResourceContext, uint8_t iLNArange, int16_t iDvgaExpectedRX_AGC,
                                 void* piDVGAoffsetValue, uint16_t iWriteItemID, const uint8_t* pWriteItemData,
                                 int32_t iWriteLength, uint16_t* piWriteStatus, uint16_t eVgaNvBand, uint16_t iOffset,
                                 const uint8_t* piVsFreq, uint16_t eFallNvBand, uint8_t* piFall1, uint8_t* piFall2,
                                 uint8_t* piFall3, uint16_t iReadItemID, uint8_t* pReadItemData, int32_t iReadLength,
                                 uint16_t* piReadStatus, uint16_t eRiseNvBand, uint8_t* piRise1, uint8_t* piRise2,
                                 uint8_t* piRise3, uint16_t iLNAindex, int16_t iLnaExpectedRX_AGC,
                                 int16_t* piLNAoffsetValue)
{
    const PhoneProcedure phone(hResourceContext);
    if (!phone.CheckConnection())
        return 0;
    const uint8_t firstOfTable = piVsFreq == nullptr ? uint8_t{0} : piVsFreq[0];
    return phone.TxOff() && phone.SetLnaRange(iLNArange)
           && phone.Step(
               "QLIB_FTM_GET_DVGA_OFFSET", "(iExpectedRX_AGC = %d)",
               [&] { return QLIB_FTM_GET_DVGA_OFFSET(hResourceContext, iDvgaExpectedRX_AGC, piDVGAoffsetValue); },
               iDvgaExpectedRX_AGC)
           && phone.Step(
               "QLIB_DIAG_NV_WRITE_F", "(iItemID = %d, pItemData = %s, iLength = %i)",
               [&] {
                   return QLIB_DIAG_NV_WRITE_F(hResourceContext, iWriteItemID, pWriteItemData, iWriteLength,
                                               piWriteStatus);
               },
               iWriteItemID, ItemOf<textBufferSize>(pWriteItemData, iWriteLength), iWriteLength)
           && phone.Step(
               "TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN", "(eNvBand = %d, iOffset = %d, piVsFreq = %c)",
               [&] { return NV_WRITE_WCDMA_VGA_GAIN(hResourceContext, eVgaNvBand, iOffset, piVsFreq); }, eVgaNvBand,
               iOffset, firstOfTable)
           && phone.Step(
               "TANDEKOR_NV_READ_WCDMA_LNA_RANGE_FALL", "(eNvBand = %d, piFall1 = %d, piFall2 = %d, piFall3 = %d)",
               [&] { return NV_READ_WCDMA_LNA_RANGE_FALL(hResourceContext, eFallNvBand, piFall1, piFall2, piFall3); },
               eFallNvBand, WordAt{piFall1}, WordAt{piFall2}, WordAt{piFall3})
           && phone.Step(
               "QLIB_DIAG_NV_READ_F", "(iItemID = %d, pItemData = %u, iLength = %i)",
               [&]
               { return QLIB_DIAG_NV_READ_F(hResourceContext, iReadItemID, pReadItemData, iReadLength, piReadStatus); },
               iReadItemID, AddressOf{pReadItemData}, iReadLength)
           && phone.Step(
               "TANDEKOR_NV_READ_WCDMA_LNA_RANGE_RISE", "(eNvBand = %d, piRise1 = %d, piRise2 = %d, piRise3 = %d)",
               [&] { return NV_READ_WCDMA_LNA_RANGE_RISE(hResourceContext, eRiseNvBand, piRise1, piRise2, piRise3); },
               eRiseNvBand, WordAt{piRise1}, WordAt{piRise2}, WordAt{piRise3})
           && phone.Step(
               "QLIB_FTM_GET_LNA_OFFSET", "(iLNAindex = %d , iExpectedRX_AGC = %d, piLNAoffsetValue = %d)",
               [&]
               { return QLIB_FTM_GET_LNA_OFFSET(hResourceContext, iLNAindex, iLnaExpectedRX_AGC, piLNAoffsetValue); },
               iLNAindex, iLnaExpectedRX_AGC, *piLNAoffsetValue);
}

bool tandekor::NV_WRITE_WCDMA_VGA_GAIN(ResourceContext hResourceContext, uint16_t eNvBand, uint16_t iOffset,
                                       const uint8_t* piVsFreq)
{
    const PhoneProcedure phone(hResourceContext);
    const WcdmaBand* band = ConnectedBand(hResourceContext, eNvBand);
    if (band == nullptr)
        return false;
    const uint8_t offset[] = {static_cast<uint8_t>(iOffset), static_cast<uint8_t>(iOffset >> 8)};
    return phone.WriteItem(band->vgaGainOffset, offset, bandValueSize)
           && (piVsFreq == nullptr || phone.WriteItem(band->vgaGainVsFreq, piVsFreq, bandTableSize));
}

namespace
{

// Stops at the first threshold that cannot be read.
bool ReadThresholds(const PhoneProcedure& phone, const uint16_t (&items)[3], uint8_t* first, uint8_t* second,
                    uint8_t* third)
{
    return phone.ReadItem(items[0], first, bandValueSize) && phone.ReadItem(items[1], second, bandValueSize)
           && phone.ReadItem(items[2], third, bandValueSize);
}

}  // namespace

bool tandekor::NV_READ_WCDMA_LNA_RANGE_FALL(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piFall1,
                                            uint8_t* piFall2, uint8_t* piFall3)
{
    const PhoneProcedure phone(hResourceContext);
    const WcdmaBand* band = ConnectedBand(hResourceContext, eNvBand);
    return band != nullptr && ReadThresholds(phone, band->fall, piFall1, piFall2, piFall3);
}

bool tandekor::NV_READ_WCDMA_LNA_RANGE_RISE(ResourceContext hResourceContext, uint16_t eNvBand, uint8_t* piRise1,
                                            uint8_t* piRise2, uint8_t* piRise3)
{
    const PhoneProcedure phone(hResourceContext);
    const WcdmaBand* band = ConnectedBand(hResourceContext, eNvBand);
    return band != nullptr && ReadThresholds(phone, band->rise, piRise1, piRise2, piRise3);
}
