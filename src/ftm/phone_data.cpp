// Data that the phone keeps: SIM, memory card files, factory data, RF items.
#include <algorithm>
#include <cstring>

#include "channels/ftm_channel.h"
#include "core/item_text.h"

namespace tandekor
{

namespace
{

constexpr size_t imsiSize = 9;
constexpr size_t kcFileSize = 9;
constexpr size_t fileNameSize = 128;
constexpr size_t linearizerValues = 174;

constexpr uint8_t mmcRead = 0;
constexpr uint8_t mmcWrite = 1;
constexpr uint8_t factoryWrite = 1;

FormattedText ImsiText(const uint8_t* imsi)
{
    return FormattedText("TANDEKOR_FTM_SIM_READ_IMSI(iIMSI_number[9] = {%d, %d, %d, %d, %d, %d, %d, %d, %d })", imsi[0],
                         imsi[1], imsi[2], imsi[3], imsi[4], imsi[5], imsi[6], imsi[7], imsi[8]);
}

}  // namespace

// --- SIM

// A status word other than 0 is logged like a missing reply.
uint8_t FtmChannel::SIM_READ_IMSI(uint8_t* iIMSI_number)
{
    const FormattedText failure("TANDEKOR_FTM_SIM_READ_IMSI()");
    WriteToLog(hResourceContext, ImsiText(iIMSI_number).Text());
    BuildFtmHeader(catalogue::SimReadImsi);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(failure, errorByte);
    packetBuffer.PopBytes(iIMSI_number, imsiSize);
    const uint16_t status = PopStatus({});
    return status != 0 ? NoReply(failure, status) : Completed(ImsiText(iIMSI_number));
}

// The one word of the reply is the mode; there is no status.
uint8_t FtmChannel::SIM_GET_MODE(uint8_t* SIM_MODE)
{
    Trace(hResourceContext, "TANDEKOR_FTM_SIM_GET_MODE(SIM_MODE = %d)", *SIM_MODE);
    BuildFtmHeader(catalogue::SimGetMode);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(FormattedText("TANDEKOR_FTM_SIM_GET_MODE()"), errorByte);
    uint16_t mode = 0;
    packetBuffer.PopWord(&mode);
    *SIM_MODE = static_cast<uint8_t>(mode);
    Trace(hResourceContext, "\tTANDEKOR_FTM_SIM_GET_MODE(SIM_MODE = %d ", *SIM_MODE);
    return 1;
}

// The reply's file takes the place of the caller's also in the write, and before the status is looked at.
uint8_t FtmChannel::KcFile(const char* name, const catalogue::Command& command, bool write, uint8_t* KC_File,
                           uint8_t* Status)
{
    Trace(hResourceContext, "\n%s(KC_File = %s, Status = %d)", name, ItemText<kcFileSize>(KC_File).Text(), *Status);
    BuildFtmHeader(command);
    if (write)
    {
        packetBuffer.AddByte(0);  // status
        packetBuffer.AddByte(0);
        packetBuffer.AddByte(kcFileSize);
        packetBuffer.AddBytes(KC_File, kcFileSize);
    }
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(FormattedText("%s()", name), errorByte);
    uint8_t unused = 0;
    packetBuffer.PopBytes(KC_File, kcFileSize);
    packetBuffer.PopByte(&unused);
    packetBuffer.PopByte(&unused);
    packetBuffer.PopByte(Status);
    Trace(hResourceContext, *Status == 0 ? "\t%s(Status = %d)" : "\t%s() - (Status = %d)", name, *Status);
    return *Status == 0;
}

uint8_t FtmChannel::SIM_READ_KC_FILE(uint8_t* KC_File, uint8_t* Status)
{
    return KcFile("TANDEKOR_FTM_SIM_READ_KC_FILE", catalogue::SimReadKcFile, false, KC_File, Status);
}

uint8_t FtmChannel::SIM_WRITE_KC_FILE(uint8_t* KC_File, uint8_t* Status)
{
    return KcFile("TANDEKOR_FTM_SIM_WRITE_KC_FILE", catalogue::SimWriteKcFile, true, KC_File, Status);
}

// --- memory card

// A write that does not fit the request area is not sent. A read that asks for more than the reply holds leaves the
// data alone. A status word other than 0 is logged like a missing reply.
uint8_t FtmChannel::MMC_FILE_ACCESS(uint8_t iAccessType, uint16_t iMMC_DataLength, const char* psFileName,
                                    uint8_t* pData)
{
    const FormattedText closing("TANDEKOR_FTM_MMC_FILE_ACCESS()");
    Trace(hResourceContext, "TANDEKOR_FTM_MMC_FILE_ACCESS(iAccessType = %d, iMMC_DataLength = %d, psFileName= '%s')",
          iAccessType, iMMC_DataLength, psFileName);

    catalogue::Command command = catalogue::MmcFileAccess;
    uint16_t& dataSide = iAccessType == mmcRead ? command.responseLength : command.dataLength;
    dataSide = static_cast<uint16_t>(dataSide + iMMC_DataLength);
    char fileName[fileNameSize] = {};
    std::copy_n(psFileName, std::min(std::strlen(psFileName), fileNameSize), fileName);

    BuildFtmHeader(command);
    packetBuffer.AddByte(iAccessType);
    packetBuffer.AddDword(iMMC_DataLength);
    packetBuffer.AddBytes(fileName, fileNameSize);
    if (iAccessType == mmcWrite)
        packetBuffer.AddBytes(pData, iMMC_DataLength);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(closing, errorByte);
    if (iAccessType == mmcRead)
    {
        packetBuffer.PopBytes(pData, iMMC_DataLength);
        const uint16_t status = PopStatus({});
        if (status != 0)
            return NoReply(closing, status);
    }
    return Completed(closing);
}

// --- factory data and RF items

uint8_t FtmChannel::READ_WRITE_FACTORY_DATA(uint8_t iOperationType, uint16_t iDataAddress, uint8_t* pData)
{
    const bool write = iOperationType == factoryWrite;
    return Standard(
        FormattedText("TANDEKOR_FTM_READ_WRITE_FACTORY_DATA(iOperationType = %d, iDataAddress = %d)", iOperationType,
                      iDataAddress),
        catalogue::ReadWriteFactoryData,
        [&]
        {
            packetBuffer.AddByte(iOperationType);
            packetBuffer.AddWord(iDataAddress);
            if (write)
                packetBuffer.AddByte(*pData);
        },
        [&]
        {
            if (!write)
                packetBuffer.PopByte(pData);
        });
}

uint8_t FtmChannel::LOAD_RF_NV(uint16_t* piStatusWord)
{
    Trace(hResourceContext, "TANDEKOR_FTM_LOAD_RF_NV() ");
    return StandardBehindEntry(
        FormattedText("TANDEKOR_FTM_LOAD_RF_NV()"), catalogue::LoadRfNv, [] {}, [] {}, {.statusWord = piStatusWord});
}

uint8_t FtmChannel::WRITE_GSM_TX_LINEARIZER(uint8_t iGSM_Band, const uint16_t* iGSM_DACvsPower, uint16_t iDelay_ms)
{
    return Standard(
        FormattedText("TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER(iGSM_Band = %d, iGSM_DACvsPower[0] = %d, "
                      "iDelay_ms = %d)",
                      iGSM_Band, iGSM_DACvsPower[0], iDelay_ms),
        catalogue::WriteGsmTxLinearizer,
        [&]
        {
            packetBuffer.AddByte(iGSM_Band);
            for (size_t i = 0; i < linearizerValues; ++i)
                packetBuffer.AddWord(iGSM_DACvsPower[i]);
        },
        [] {}, {.timeoutMs = iDelay_ms});
}

// Nothing is known of this request: it is never sent, and fails.
uint8_t FtmChannel::WRITE_WCDMA_RF_CAL(uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t,
                                       uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t)
{
    Trace(hResourceContext, "TANDEKOR_FTM_WRITE_WCDMA_RF_CAL()");
    return 0;
}

}  // namespace tandekor
