// The FM radio: chip, tuning, and three requests whose reply is one block of fields.
#include <algorithm>

#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "tandekor/ftm.h"

using namespace tandekor;

namespace
{

constexpr uint16_t tunedElsewhere = 3;  // a status of the tuning that counts as success too

constexpr uint8_t stationInfo = 0;
constexpr uint8_t programInfo = 1;
constexpr uint8_t scan = 2;
constexpr uint32_t blockTimeMs = 20000;

constexpr size_t mostScanEntries = 48;

// A reply block; zero throughout after a reply that is too short.
struct FmReply
{
    static constexpr size_t size = 111;

    uint8_t bytes[size] = {};

    uint8_t Byte(size_t position) const { return bytes[position]; }
    uint16_t Word(size_t position) const { return static_cast<uint16_t>(bytes[position] | bytes[position + 1] << 8); }
};

// The result lines begin with a line end. The fields are taken whatever the status is.
template <typename Take>
uint8_t FmBlock(ResourceContext hResourceContext, const char* startName, const char* name, uint8_t subCommand,
                Take take)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    constexpr size_t dataLength = 101;
                    Trace(hResourceContext, "%s()", startName);
                    const uint8_t data[dataLength] = {0, subCommand};
                    if (ftm.Exchange(factory::FmRadioBlock, {SentBytes(data, dataLength)}, blockTimeMs) == 0)
                    {
                        Trace(hResourceContext, "\n%s() - SendSync() fail (error code = %i)", name, ftm.ErrorByte());
                        return false;
                    }
                    FmReply reply;
                    ftm.Take({ReplyBytes(reply.bytes, FmReply::size)});
                    take(reply);
                    const uint8_t status = reply.Byte(10);
                    if (status != 0)
                    {
                        Trace(hResourceContext, "\n%s() - error code = %d", name, status);
                        return false;
                    }
                    Trace(hResourceContext, "\n%s()%s", name, completedEnding);
                    return true;
                });
}

}  // namespace

uint8_t TANDEKOR_FTM_GET_FM_RADIO_ID(ResourceContext hResourceContext, uint16_t* iChip_Id)
{
    const FormattedText text("%s()", __func__);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "TANDEKOR_FTM_GET_FM_RADIO_ID(iChip_Id = %d)", *iChip_Id);
                    return ftm.StandardAfterStart(text, factory::GetFmRadioId, {.reply = {iChip_Id}});
                });
}

// The status word is taken from whatever arrived, also after a failed exchange.
uint8_t TANDEKOR_FTM_TUNE_FM_RADIO(ResourceContext hResourceContext, uint16_t iChannel, uint16_t* piStatusWord)
{
    const FormattedText text("%s(iChannel = %d)", __func__, iChannel);
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    ftm.Start(text);
                    const uint8_t result = ftm.Exchange(factory::TuneFmRadio, {iChannel});
                    const uint16_t status = ftm.TakeStatus(piStatusWord);
                    if (result == 0)
                        return ftm.NoReply(text);
                    return status == 0 || status == tunedElsewhere ? ftm.Completed(text) : ftm.ErrorCode(text, status);
                });
}

uint8_t TANDEKOR_FTM_RM_RADIO_RDS_TEST(ResourceContext hResourceContext, uint16_t* piStatusWord)
{
    return Forward(Ftm(hResourceContext), &FtmChannel::Standard, FormattedText("%s()", __func__), factory::RadioRdsTest,
                   {.statusWord = piStatusWord});
}

uint8_t TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF(ResourceContext hResourceContext, uint8_t* piFmStatus, uint8_t* piFmScanValid,
                                          uint8_t* piFmScanCount, uint16_t* piFmScanList)
{
    return FmBlock(hResourceContext, "TANDEKOR_FTM_FM_RADIO_SCAN_RF", __func__, scan,
                   [&](const FmReply& reply)
                   {
                       *piFmStatus = reply.Byte(10);
                       *piFmScanValid = reply.Byte(13);
                       *piFmScanCount = static_cast<uint8_t>(std::min<size_t>(reply.Byte(14), mostScanEntries));
                       if (*piFmScanValid != 1)
                           return;
                       for (size_t i = 0; i < *piFmScanCount; ++i)
                           piFmScanList[i] = reply.Word(15 + 2 * i);
                   });
}

uint8_t TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                               uint8_t* piStationField1, uint16_t* piStationField2,
                                               uint8_t* piStationField3, uint8_t* piStationField4,
                                               uint16_t* piStationField5, uint8_t* piStationField6,
                                               uint8_t* piStationField7, uint8_t* piStationField8,
                                               uint8_t* piStationField9, uint16_t* piStationField10)
{
    return FmBlock(hResourceContext, __func__, __func__, stationInfo,
                   [&](const FmReply& reply)
                   {
                       *piFmStatus = reply.Byte(10);
                       *piStationField1 = reply.Byte(13);
                       *piStationField2 = reply.Word(14);
                       *piStationField3 = reply.Byte(16);
                       *piStationField4 = reply.Byte(17);
                       *piStationField5 = reply.Word(18);
                       *piStationField6 = reply.Byte(20);
                       *piStationField7 = reply.Byte(21);
                       *piStationField8 = reply.Byte(22);
                       *piStationField9 = reply.Byte(23);
                       *piStationField10 = reply.Word(24);
                   });
}

// A program text without a NUL ends with the block.
uint8_t TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO(ResourceContext hResourceContext, uint8_t* piFmStatus,
                                               uint16_t* piProgramField1, uint8_t* piProgramField2, char* psProgramText,
                                               uint8_t* piProgramField3, uint8_t* piProgramField4)
{
    return FmBlock(hResourceContext, __func__, __func__, programInfo,
                   [&](const FmReply& reply)
                   {
                       *piFmStatus = reply.Byte(10);
                       *piProgramField1 = reply.Word(13);
                       *piProgramField2 = reply.Byte(15);
                       const uint8_t* text = reply.bytes + 16;
                       const uint8_t* end = std::find(text, reply.bytes + FmReply::size, uint8_t{0});
                       *std::copy(text, end, psProgramText) = '\0';
                       *piProgramField3 = reply.Byte(25);
                       *piProgramField4 = reply.Byte(26);
                   });
}
