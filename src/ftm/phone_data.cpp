// Data that the phone keeps: SIM, memory card files, factory data, RF items.
#include <algorithm>
#include <cstring>

#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "core/item_text.h"
#include "tandekor/ftm.h"

using namespace tandekor;

namespace
{

constexpr size_t imsiSize = 9;
constexpr size_t kcFileSize = 9;
constexpr size_t fileNameSize = 128;
constexpr size_t linearizerValues = 174;

constexpr uint8_t mmcRead = 0;
constexpr uint8_t mmcWrite = 1;
constexpr uint8_t factoryWrite = 1;

const FormattedText& ImsiText(FormattedText& line, const uint8_t* imsi)
{
    return line.Format("TANDEKOR_FTM_SIM_READ_IMSI(iIMSI_number[9] = {%d, %d, %d, %d, %d, %d, %d, %d, %d })", imsi[0],
                       imsi[1], imsi[2], imsi[3], imsi[4], imsi[5], imsi[6], imsi[7], imsi[8]);
}

// The reply's file replaces the caller's, also in the write and whatever the status is.
uint8_t KcFile(ResourceContext hResourceContext, const char* name, const factory::Request& request,
               std::initializer_list<SentField> data, uint8_t* KC_File, uint8_t* Status)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "\n%s(KC_File = %s, Status = %d)", name,
                          ItemText<kcFileSize>(KC_File).Text(), *Status);
                    if (ftm.Exchange(request, data) == 0)
                        return ftm.NoReply(FormattedText("%s()", name));
                    uint8_t unused = 0;
                    ftm.Take({Status, &unused, &unused, ReplyBytes(KC_File, kcFileSize)});
                    Trace(hResourceContext, *Status == 0 ? "\t%s(Status = %d)" : "\t%s() - (Status = %d)", name,
                          *Status);
                    return *Status == 0;
                });
}

}  // namespace

// --- SIM

// A status word other than 0 is logged like a missing reply.
uint8_t TANDEKOR_FTM_SIM_READ_IMSI(ResourceContext hResourceContext, uint8_t* iIMSI_number)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    FormattedText line;
                    ftm.Start(ImsiText(line, iIMSI_number));
                    if (ftm.Exchange(factory::SimReadImsi, {}) == 0)
                        return ftm.NoReply(line.Format("%s()", name));
                    ftm.Take({ReplyBytes(iIMSI_number, imsiSize)});
                    const uint16_t status = ftm.TakeStatus();
                    return status != 0 ? ftm.NoReply(line.Format("%s()", name), status)
                                       : ftm.Completed(ImsiText(line, iIMSI_number));
                });
}

// The one word of the reply is the mode; there is no status.
uint8_t TANDEKOR_FTM_SIM_GET_MODE(ResourceContext hResourceContext, uint8_t* SIM_MODE)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "%s(SIM_MODE = %d)", name, *SIM_MODE);
                    if (ftm.Exchange(factory::SimGetMode, {}) == 0)
                        return ftm.NoReply(FormattedText("%s()", name));
                    uint16_t mode = 0;
                    ftm.Take({&mode});
                    *SIM_MODE = static_cast<uint8_t>(mode);
                    Trace(hResourceContext, "\t%s(SIM_MODE = %d ", name, *SIM_MODE);
                    return true;
                });
}

uint8_t TANDEKOR_FTM_SIM_READ_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File, uint8_t* Status)
{
    return KcFile(hResourceContext, __func__, factory::SimReadKcFile, {}, KC_File, Status);
}

uint8_t TANDEKOR_FTM_SIM_WRITE_KC_FILE(ResourceContext hResourceContext, uint8_t* KC_File, uint8_t* Status)
{
    return KcFile(hResourceContext, __func__, factory::SimWriteKcFile,
                  {uint8_t{0} /* status */, uint8_t{0}, uint8_t{kcFileSize}, SentBytes(KC_File, kcFileSize)}, KC_File,
                  Status);
}

// --- memory card

// A write that does not fit the request buffer is not sent. A read that asks for more than the reply holds leaves the
// data unchanged. A status word other than 0 is logged like a missing reply.
uint8_t TANDEKOR_FTM_MMC_FILE_ACCESS(ResourceContext hResourceContext, uint8_t iAccessType, uint16_t iMMC_DataLength,
                                     const char* psFileName, uint8_t* pData)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext,
                          "TANDEKOR_FTM_MMC_FILE_ACCESS(iAccessType = %d, iMMC_DataLength = %d, psFileName= '%s')",
                          iAccessType, iMMC_DataLength, psFileName);

                    factory::Request request = factory::MmcFileAccess;
                    uint16_t& dataSide = iAccessType == mmcRead ? request.responseLength : request.dataLength;
                    dataSide = static_cast<uint16_t>(dataSide + iMMC_DataLength);
                    char fileName[fileNameSize] = {};
                    std::copy_n(psFileName, std::min(std::strlen(psFileName), fileNameSize), fileName);
                    const size_t sentLength = iAccessType == mmcWrite ? iMMC_DataLength : 0;
                    if (ftm.Exchange(request, {iAccessType, uint32_t{iMMC_DataLength},
                                               SentBytes(fileName, fileNameSize), SentBytes(pData, sentLength)})
                        == 0)
                        return ftm.NoReply(text);
                    if (iAccessType == mmcRead)
                    {
                        ftm.Take({ReplyBytes(pData, iMMC_DataLength)});
                        const uint16_t status = ftm.TakeStatus();
                        if (status != 0)
                            return ftm.NoReply(text, status);
                    }
                    return ftm.Completed(text);
                });
}

// --- factory data and RF items

uint8_t TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(ResourceContext hResourceContext, uint8_t iOperationType,
                                             uint16_t iDataAddress, uint8_t* pData)
{
    const bool write = iOperationType == factoryWrite;
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard,
                   FormattedText("%s(iOperationType = %d, iDataAddress = %d)", __func__, iOperationType, iDataAddress),
                   factory::ReadWriteFactoryData,
                   {.send = {iOperationType, iDataAddress, SentBytes(pData, write ? 1 : 0)},
                    .reply = {ReplyBytes(pData, write ? 0 : 1)}});
}

uint8_t TANDEKOR_FTM_LOAD_RF_NV(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "%s ", text.Text());
                    return ftm.StandardAfterStart(text, factory::LoadRfNv, {.statusWord = piStatusWord});
                });
}

uint8_t TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER(ResourceContext hResourceContext, uint8_t iGSM_Band,
                                             const uint16_t* iGSM_DACvsPower, uint16_t iDelay_ms)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    const FormattedText text("%s(iGSM_Band = %d, iGSM_DACvsPower[0] = %d, iDelay_ms = %d)", name,
                                             iGSM_Band, iGSM_DACvsPower[0], iDelay_ms);
                    return ftm.Standard(
                        text, factory::WriteGsmTxLinearizer,
                        {.send = {iGSM_Band, std::span(iGSM_DACvsPower, linearizerValues)}, .timeoutMs = iDelay_ms});
                });
}

// Nothing is known of this request: it is never sent, and fails.
uint8_t TANDEKOR_FTM_WRITE_WCDMA_RF_CAL(ResourceContext hResourceContext, uint32_t, uint32_t, uint32_t, uint32_t,
                                        uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t,
                                        uint32_t, uint32_t, uint32_t)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel&)
                {
                    Trace(hResourceContext, "%s()", name);
                    return false;
                });
}
