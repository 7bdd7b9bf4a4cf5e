// The phone's low-level peripherals: pins, I2C devices, ADC, fuel gauge, headset amplifier.
#include "channels/ftm_channel.h"
#include "connection/forward.h"
#include "tandekor/ftm.h"

using namespace tandekor;

namespace
{

constexpr uint16_t pinCommandWord = 256;

constexpr uint8_t i2cRead = 0;
constexpr uint8_t i2cWrite = 1;
constexpr int replyHeaderLength = 10;

// A pin command. The text shows its arguments as they stand each time; the values are taken only if the phone's status,
// the last byte of the reply, is 0.
template <typename Text>
uint8_t Pin(ResourceContext hResourceContext, Text text, uint32_t operationCode, std::initializer_list<uint8_t> data,
            uint8_t* iStatus, std::initializer_list<ReplyField> values)
{
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    FormattedText line;
                    const auto current = [&]() -> const FormattedText& { return text(line); };
                    ftm.Start(current());
                    if (ftm.ExchangeOem(pinCommandWord, operationCode, data) == 0)
                        return ftm.ErrorCode(current(), ftm.ErrorByte());
                    ftm.Take({iStatus});
                    if (*iStatus != 0)
                    {
                        current().WriteWithEnding(hResourceContext, " - Wrong status = %i", *iStatus);
                        return false;
                    }
                    ftm.Take(values);
                    return ftm.Completed(current());
                });
}

uint8_t GetPin(ResourceContext hResourceContext, const char* name, uint32_t operationCode, uint8_t iGPIONum,
               uint8_t* iValue, uint8_t* iStatus)
{
    const auto text = [&](FormattedText& line) -> const FormattedText&
    { return line.Format("%s(iGPIONum = %i, iValue = %i, iStatus = %i)", name, iGPIONum, *iValue, *iStatus); };
    return Pin(hResourceContext, text, operationCode, {iGPIONum}, iStatus, {iValue});
}

uint8_t SetPin(ResourceContext hResourceContext, const char* name, uint32_t operationCode, uint8_t iGPIONum,
               uint8_t iValue, uint8_t* iStatus)
{
    const auto text = [&](FormattedText& line) -> const FormattedText&
    { return line.Format("%s(iGPIONum = %i, iValue = %i, iStatus = %i)", name, iGPIONum, iValue, *iStatus); };
    return Pin(hResourceContext, text, operationCode, {iGPIONum, iValue}, iStatus, {});
}

}  // namespace

// --- pins

uint8_t TANDEKOR_GPIO_GET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin(hResourceContext, __func__, 0, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_SET_OUT(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return SetPin(hResourceContext, __func__, 1, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_IN(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin(hResourceContext, __func__, 2, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin(hResourceContext, __func__, 3, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_SET_OE(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return SetPin(hResourceContext, __func__, 4, iGPIONum, iValue, iStatus);
}

uint8_t TANDEKOR_GPIO_GET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t* iSelect, uint8_t* iPullUD,
                              uint8_t* iPullEn, uint8_t* iDir, uint8_t* iStatus)
{
    const char* const name = __func__;
    const auto text = [&](FormattedText& line) -> const FormattedText&
    {
        return line.Format("%s(iGPIONum = %i, iSelect = %i, iPullUD = %i, iPullEn = %i, iDir = %i, iStatus = %i)", name,
                           iGPIONum, *iSelect, *iPullUD, *iPullEn, *iDir, *iStatus);
    };
    return Pin(hResourceContext, text, 5, {iGPIONum}, iStatus, {iSelect, iPullUD, iPullEn, iDir});
}

uint8_t TANDEKOR_GPIO_SET_CFG(ResourceContext hResourceContext, uint8_t iGPIONum, uint8_t iSelect, uint8_t iPullUD,
                              uint8_t iPullEn, uint8_t iDir, uint8_t* iStatus)
{
    const char* const name = __func__;
    const auto text = [&](FormattedText& line) -> const FormattedText&
    {
        return line.Format("%s(iGPIONum = %i, iSelect = %i, iPullUD = %i, iPullEn = %i, iDir = %i, iStatus = %i)", name,
                           iGPIONum, iSelect, iPullUD, iPullEn, iDir, *iStatus);
    };
    return Pin(hResourceContext, text, 6, {iGPIONum, iSelect, iPullUD, iPullEn, iDir}, iStatus, {});
}

// --- I2C

uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS(ResourceContext hResourceContext, uint8_t iI2C_AccessType, uint8_t iI2C_SlaveAddr,
                                     uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen,
                                     uint8_t* piI2C_Data)
{
    return TANDEKOR_FTM_I2C_DATA_ACCESS2(hResourceContext, iI2C_AccessType, 0, iI2C_SlaveAddr, iI2C_RegAddrLen,
                                         iI2C_RegAddr, iI2C_DataLen, piI2C_Data);
}

// The start line is that of the other function, without the selector; the result lines are this one's, for both.
uint8_t TANDEKOR_FTM_I2C_DATA_ACCESS2(ResourceContext hResourceContext, uint8_t iI2C_AccessType, uint8_t iI2C_Selector,
                                      uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr,
                                      uint8_t iI2C_DataLen, uint8_t* piI2C_Data)
{
    const FormattedText text(
        "%s(iI2C_AccessType = 0x%X, iI2C_SlaveAddr = 0x%X, iI2C_RegAddrLen = 0x%X, iI2C_RegAddr = 0x%X, "
        "iI2C_DataLen = 0x%X)",
        __func__, iI2C_AccessType, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen);
    return With(
        Ftm(hResourceContext),
        [&](FtmChannel& ftm)
        {
            Trace(hResourceContext,
                  "TANDEKOR_FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0x%X, iI2C_SlaveAddr = 0x%X, iI2C_RegAddrLen = 0x%X, "
                  "iI2C_RegAddr = 0x%X, iI2C_DataLen = 0x%X, piI2C_Data[0] = 0x%X)",
                  iI2C_AccessType, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen,
                  piI2C_Data == nullptr ? 0 : piI2C_Data[0]);

            factory::Request request = factory::I2cDataAccess;
            uint16_t& dataSide = iI2C_AccessType == i2cRead ? request.responseLength : request.dataLength;
            dataSide = static_cast<uint16_t>(dataSide + iI2C_DataLen);
            const size_t sentLength = iI2C_AccessType == i2cWrite ? iI2C_DataLen : 0;
            uint16_t status = 0;
            if (ftm.Exchange(request, {iI2C_AccessType, iI2C_Selector, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr,
                                       iI2C_DataLen, SentBytes(piI2C_Data, sentLength)})
                != 0)
            {
                if (iI2C_AccessType != i2cRead)
                    return ftm.Completed(text);
                // The status word before the data is not counted here.
                if (ftm.ReplyLength() >= iI2C_DataLen + replyHeaderLength)
                {
                    ftm.Take({ReplyBytes(piI2C_Data, iI2C_DataLen)});
                    status = ftm.TakeStatus();
                    if (status == 0)
                        return ftm.Completed(text);
                }
            }
            return ftm.ErrorByte() != 0 ? ftm.NoReply(text) : ftm.ErrorCode(text, status);
        });
}

// --- ADC

uint8_t TANDEKOR_FTM_MGET_ADC_VAL(ResourceContext hResourceContext, uint16_t iADC_Channel, uint16_t iReadCount,
                                  uint32_t* iADC_Sum)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    FormattedText line;
                    const auto text = [&]() -> const FormattedText&
                    {
                        return line.Format("%s(iADC_Channel = %d, iReadCount = %d, iADC_Sum = %d)", name, iADC_Channel,
                                           iReadCount, *iADC_Sum);
                    };
                    Trace(hResourceContext, "%s(iADC_Channel = %d, iReadCount = %d)", name, iADC_Channel, iReadCount);
                    if (ftm.Exchange(factory::MgetAdcVal, {iADC_Channel, iReadCount}) == 0)
                        return ftm.NoReply(text());
                    ftm.Take({iADC_Sum});
                    const uint16_t status = ftm.TakeStatus();
                    return status != 0 ? ftm.ErrorCode(text(), status) : ftm.Completed(text());
                });
}

// --- fuel gauge

uint8_t TANDEKOR_FTM_GG_READ_REG(ResourceContext hResourceContext, uint8_t eNum, uint8_t* sStatus, uint16_t* iValue)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    FormattedText line;
                    const auto text = [&]() -> const FormattedText&
                    { return line.Format("%s(eNum = %i, sStatus = %i, iValue = %i)", name, eNum, *sStatus, *iValue); };
                    ftm.Start(text());
                    if (ftm.Exchange(factory::GgReadReg, {eNum, *sStatus, *iValue}) == 0)
                    {
                        text().WriteWithEnding(hResourceContext, " - error code = %d\n", ftm.ErrorByte());
                        return false;
                    }
                    ftm.Take({sStatus, iValue});
                    if (*sStatus == 0)
                        return ftm.Completed(text());
                    text().WriteWithEnding(hResourceContext, " - Wrong status (%d)\n", *sStatus);
                    return false;
                });
}

// The phone repeats the value.
uint8_t TANDEKOR_FTM_GG_MODE(ResourceContext hResourceContext, const uint8_t* iSwitch)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    const uint8_t sent = *iSwitch;
                    const FormattedText text("%s(iSwitch = %i)", name, sent);
                    ftm.Start(text);
                    if (ftm.Exchange(factory::GgMode, {sent}) == 0)
                    {
                        text.WriteWithEnding(hResourceContext, " - error code = %d\n", ftm.ErrorByte());
                        return false;
                    }
                    uint8_t received = 0;
                    ftm.Take({&received});
                    if (received == sent)
                        return ftm.Completed(text);
                    // The number at the end is an error code, which no reply has.
                    text.WriteWithEnding(hResourceContext, " - Wrong iSwitch value received (%i) = 0\n", received);
                    return false;
                });
}

// --- headset amplifier. The reply is not unpacked.

uint8_t TANDEKOR_FTM_HEADSET_AMP_READ(ResourceContext hResourceContext, const uint32_t* iHeadsetReg)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    const FormattedText text("%s(iHeadsetReg = %d)", name, *iHeadsetReg);
                    ftm.Start(text);
                    const uint8_t result = ftm.Exchange(factory::HeadsetAmpRead, {*iHeadsetReg});
                    result == 0 ? ftm.ErrorCode(text, ftm.ErrorByte()) : ftm.Completed(text);
                    return result;
                });
}

uint8_t TANDEKOR_FTM_HEADSET_AMP_WRITE(ResourceContext hResourceContext, const uint32_t* iHeadsetReg)
{
    const char* const name = __func__;
    return With(Ftm(hResourceContext),
                [&](FtmChannel& ftm)
                {
                    Trace(hResourceContext, "%s(iHeadsetReg = %d)", name, *iHeadsetReg);
                    const FormattedText text("%s(iHeadsetReg = %u)", name, *iHeadsetReg);
                    const uint8_t result = ftm.Exchange(factory::HeadsetAmpWrite, {*iHeadsetReg});
                    result == 0 ? ftm.ErrorCode(text, ftm.ErrorByte()) : ftm.Completed(text);
                    return result;
                });
}
