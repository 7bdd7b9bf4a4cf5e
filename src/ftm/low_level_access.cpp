// The phone's low-level peripherals: pins, I2C devices, ADC, fuel gauge, headset amplifier.
#include "channels/ftm_channel.h"

namespace tandekor
{

namespace
{

constexpr uint16_t pinCommandWord = 256;

constexpr uint8_t i2cRead = 0;
constexpr uint8_t i2cWrite = 1;
constexpr int replyHeaderLength = 10;

}  // namespace

// --- pins

template <typename Text>
uint8_t FtmChannel::Gpio(Text text, uint32_t operationCode, std::initializer_list<uint8_t> requestBytes,
                         uint8_t* iStatus, std::initializer_list<uint8_t*> values)
{
    WriteToLog(hResourceContext, text().Text());
    BuildOemHeader(pinCommandWord, operationCode);
    for (const uint8_t byte : requestBytes)
        packetBuffer.AddByte(byte);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return ErrorCode(text(), errorByte);
    packetBuffer.PopByte(iStatus);
    if (*iStatus != 0)
    {
        Trace(hResourceContext, "\t%s - Wrong status = %i", text().Text(), *iStatus);
        return 0;
    }
    for (uint8_t* value : values)
        packetBuffer.PopByte(value);
    return Completed(text());
}

uint8_t FtmChannel::GetPin(const char* name, uint32_t operationCode, uint8_t iGPIONum, uint8_t* iValue,
                           uint8_t* iStatus)
{
    const auto text = [&]
    { return FormattedText("%s(iGPIONum = %i, iValue = %i, iStatus = %i)", name, iGPIONum, *iValue, *iStatus); };
    return Gpio(text, operationCode, {iGPIONum}, iStatus, {iValue});
}

uint8_t FtmChannel::SetPin(const char* name, uint32_t operationCode, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    const auto text = [&]
    { return FormattedText("%s(iGPIONum = %i, iValue = %i, iStatus = %i)", name, iGPIONum, iValue, *iStatus); };
    return Gpio(text, operationCode, {iGPIONum, iValue}, iStatus, {});
}

uint8_t FtmChannel::GPIO_GET_OUT(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin("TANDEKOR_GPIO_GET_OUT", 0, iGPIONum, iValue, iStatus);
}

uint8_t FtmChannel::GPIO_SET_OUT(uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return SetPin("TANDEKOR_GPIO_SET_OUT", 1, iGPIONum, iValue, iStatus);
}

uint8_t FtmChannel::GPIO_GET_IN(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin("TANDEKOR_GPIO_GET_IN", 2, iGPIONum, iValue, iStatus);
}

uint8_t FtmChannel::GPIO_GET_OE(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus)
{
    return GetPin("TANDEKOR_GPIO_GET_OE", 3, iGPIONum, iValue, iStatus);
}

uint8_t FtmChannel::GPIO_SET_OE(uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus)
{
    return SetPin("TANDEKOR_GPIO_SET_OE", 4, iGPIONum, iValue, iStatus);
}

uint8_t FtmChannel::GPIO_GET_CFG(uint8_t iGPIONum, uint8_t* iSelect, uint8_t* iPullUD, uint8_t* iPullEn, uint8_t* iDir,
                                 uint8_t* iStatus)
{
    const auto text = [&]
    {
        return FormattedText(
            "TANDEKOR_GPIO_GET_CFG(iGPIONum = %i, iSelect = %i, iPullUD = %i, iPullEn = %i, "
            "iDir = %i, iStatus = %i)",
            iGPIONum, *iSelect, *iPullUD, *iPullEn, *iDir, *iStatus);
    };
    return Gpio(text, 5, {iGPIONum}, iStatus, {iDir, iPullEn, iPullUD, iSelect});
}

uint8_t FtmChannel::GPIO_SET_CFG(uint8_t iGPIONum, uint8_t iSelect, uint8_t iPullUD, uint8_t iPullEn, uint8_t iDir,
                                 uint8_t* iStatus)
{
    const auto text = [&]
    {
        return FormattedText(
            "TANDEKOR_GPIO_SET_CFG(iGPIONum = %i, iSelect = %i, iPullUD = %i, iPullEn = %i, "
            "iDir = %i, iStatus = %i)",
            iGPIONum, iSelect, iPullUD, iPullEn, iDir, *iStatus);
    };
    return Gpio(text, 6, {iGPIONum, iSelect, iPullUD, iPullEn, iDir}, iStatus, {});
}

// --- I2C

uint8_t FtmChannel::I2C_DATA_ACCESS(uint8_t iI2C_AccessType, uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen,
                                    uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen, uint8_t* piI2C_Data)
{
    return I2C_DATA_ACCESS2(iI2C_AccessType, 0, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen,
                            piI2C_Data);
}

// The entry text is that of the other function, without the selector; the closing texts are this one's, for both.
uint8_t FtmChannel::I2C_DATA_ACCESS2(uint8_t iI2C_AccessType, uint8_t iI2C_Selector, uint8_t iI2C_SlaveAddr,
                                     uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen,
                                     uint8_t* piI2C_Data)
{
    Trace(hResourceContext,
          "TANDEKOR_FTM_I2C_DATA_ACCESS(iI2C_AccessType = 0x%X, iI2C_SlaveAddr = 0x%X, iI2C_RegAddrLen = 0x%X, "
          "iI2C_RegAddr = 0x%X, iI2C_DataLen = 0x%X, piI2C_Data[0] = 0x%X)",
          iI2C_AccessType, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen,
          piI2C_Data == nullptr ? 0 : piI2C_Data[0]);
    const FormattedText closing(
        "TANDEKOR_FTM_I2C_DATA_ACCESS2(iI2C_AccessType = 0x%X, iI2C_SlaveAddr = 0x%X, iI2C_RegAddrLen = 0x%X, "
        "iI2C_RegAddr = 0x%X, iI2C_DataLen = 0x%X)",
        iI2C_AccessType, iI2C_SlaveAddr, iI2C_RegAddrLen, iI2C_RegAddr, iI2C_DataLen);

    catalogue::Command command = catalogue::I2cDataAccess;
    uint16_t& dataSide = iI2C_AccessType == i2cRead ? command.responseLength : command.dataLength;
    dataSide = static_cast<uint16_t>(dataSide + iI2C_DataLen);
    BuildFtmHeader(command);
    packetBuffer.AddByte(iI2C_AccessType);
    packetBuffer.AddByte(iI2C_Selector);
    packetBuffer.AddByte(iI2C_SlaveAddr);
    packetBuffer.AddByte(iI2C_RegAddrLen);
    packetBuffer.AddWord(iI2C_RegAddr);
    packetBuffer.AddByte(iI2C_DataLen);
    if (iI2C_AccessType == i2cWrite)
        packetBuffer.AddBytes(piI2C_Data, iI2C_DataLen);

    uint8_t errorByte = 0;
    uint16_t status = 0;
    if (Exchange(&errorByte) != 0)
    {
        if (iI2C_AccessType != i2cRead)
            return Completed(closing);
        // The status word in front of the data is not counted here.
        if (packetBuffer.ResponseLength() >= iI2C_DataLen + replyHeaderLength)
        {
            packetBuffer.PopBytes(piI2C_Data, iI2C_DataLen);
            packetBuffer.PopWord(&status);
            if (status == 0)
                return Completed(closing);
        }
    }
    return errorByte != 0 ? NoReply(closing, errorByte) : ErrorCode(closing, status);
}

// --- ADC

uint8_t FtmChannel::MGET_ADC_VAL(uint16_t iADC_Channel, uint16_t iReadCount, uint32_t* iADC_Sum)
{
    const auto closing = [&]
    {
        return FormattedText("TANDEKOR_FTM_MGET_ADC_VAL(iADC_Channel = %d, iReadCount = %d, iADC_Sum = %d)",
                             iADC_Channel, iReadCount, *iADC_Sum);
    };
    Trace(hResourceContext, "TANDEKOR_FTM_MGET_ADC_VAL(iADC_Channel = %d, iReadCount = %d)", iADC_Channel, iReadCount);
    BuildFtmHeader(catalogue::MgetAdcVal);
    packetBuffer.AddWord(iADC_Channel);
    packetBuffer.AddWord(iReadCount);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
        return NoReply(closing(), errorByte);
    packetBuffer.PopDword(iADC_Sum);
    const uint16_t status = PopStatus({});
    return status != 0 ? ErrorCode(closing(), status) : Completed(closing());
}

// --- fuel gauge

uint8_t FtmChannel::GG_READ_REG(uint8_t eNum, uint8_t* sStatus, uint16_t* iValue)
{
    const auto text = [&] {
        return FormattedText("TANDEKOR_FTM_GG_READ_REG(eNum = %i, sStatus = %i, iValue = %i)", eNum, *sStatus, *iValue);
    };
    WriteToLog(hResourceContext, text().Text());
    BuildFtmHeader(catalogue::GgReadReg);
    packetBuffer.AddByte(eNum);
    packetBuffer.AddByte(*sStatus);
    packetBuffer.AddWord(*iValue);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
    {
        Trace(hResourceContext, "\t%s - error code = %d\n", text().Text(), errorByte);
        return 0;
    }
    packetBuffer.PopWord(iValue);
    packetBuffer.PopByte(sStatus);
    if (*sStatus == 0)
        return Completed(text());
    Trace(hResourceContext, "\t%s - Wrong status (%d)\n", text().Text(), *sStatus);
    return 0;
}

// The phone repeats the value.
uint8_t FtmChannel::GG_MODE(uint8_t* iSwitch)
{
    const uint8_t sent = *iSwitch;
    const FormattedText text("TANDEKOR_FTM_GG_MODE(iSwitch = %i)", sent);
    WriteToLog(hResourceContext, text.Text());
    BuildFtmHeader(catalogue::GgMode);
    packetBuffer.AddByte(sent);
    uint8_t errorByte = 0;
    if (Exchange(&errorByte) == 0)
    {
        Trace(hResourceContext, "\t%s - error code = %d\n", text.Text(), errorByte);
        return 0;
    }
    uint8_t received = 0;
    packetBuffer.PopByte(&received);
    if (received == sent)
        return Completed(text);
    Trace(hResourceContext, "\t%s - Wrong iSwitch value received (%i) = %d\n", text.Text(), received, errorByte);
    return 0;
}

// --- headset amplifier. The reply is not unpacked.

uint8_t FtmChannel::HEADSET_AMP_READ(uint32_t* iHeadsetReg)
{
    const FormattedText text("TANDEKOR_FTM_HEADSET_AMP_READ(iHeadsetReg = %d)", *iHeadsetReg);
    WriteToLog(hResourceContext, text.Text());
    BuildFtmHeader(catalogue::HeadsetAmpRead);
    packetBuffer.AddDword(*iHeadsetReg);
    uint8_t errorByte = 0;
    const uint8_t result = Exchange(&errorByte);
    result == 0 ? ErrorCode(text, errorByte) : Completed(text);
    return result;
}

uint8_t FtmChannel::HEADSET_AMP_WRITE(uint32_t* iHeadsetReg)
{
    Trace(hResourceContext, "TANDEKOR_FTM_HEADSET_AMP_WRITE(iHeadsetReg = %d)", *iHeadsetReg);
    const FormattedText closing("TANDEKOR_FTM_HEADSET_AMP_WRITE(iHeadsetReg = %u)", *iHeadsetReg);
    BuildFtmHeader(catalogue::HeadsetAmpWrite);
    packetBuffer.AddDword(*iHeadsetReg);
    uint8_t errorByte = 0;
    const uint8_t result = Exchange(&errorByte);
    result == 0 ? ErrorCode(closing, errorByte) : Completed(closing);
    return result;
}

}  // namespace tandekor
