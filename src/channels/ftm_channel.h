// The phone maker's factory requests: the two headers, the exchange, the standard procedure of a command, and the
// commands themselves. The exported functions of the same names document them.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "core/packet_buffer.h"
#include "core/text_log.h"
#include "phone/catalogue.h"

namespace tandekor
{

constexpr uint32_t ftmReplyTimeMs = 3000;

// In what a command differs from the standard procedure.
struct Difference
{
    uint16_t* statusWord = nullptr;  // handed out as well, where the reply holds one
    bool statusIsByte = false;
    uint32_t timeoutMs = ftmReplyTimeMs;
};

class FtmChannel
{
public:
    explicit FtmChannel(ResourceContext handle) : hResourceContext(handle) {}

    // Identification.
    uint8_t GET_HARDWARE_VERSION(uint32_t* piHardwareVersion);
    uint8_t GET_HW_ID(uint16_t* piHwId);
    uint8_t GET_NAND_FLASH_ID(uint16_t* piNandFlashId);
    uint8_t GET_FUEL_GAUGE_VERSION(uint8_t* piFuelGaugeVersion);
    uint8_t GET_BT_PARAM(uint16_t* piBtStatus, uint8_t* piBtParam1, uint8_t* piBtParam2, uint8_t* piBtParam3);

    // Switches and supporting circuits.
    uint8_t CONFIGURE_SWITCH(uint8_t iSwitchID, uint8_t iSwitchState);
    uint8_t SET_LOW_POWER_MODE(uint8_t iLowPowerMode);
    uint8_t TEST_FTM_PMIC_USB(uint8_t iUSB_UART_Mode);
    uint8_t IRDA_ON_OFF(uint8_t iTurnLED_On);
    uint8_t IRDA_HIGH_CURRENT_TEST(uint16_t* piErrorCode, uint16_t iIrdaLength_ms);
    uint8_t TEST_IRDA_TX_RX(uint8_t iIrdaTestByte, uint32_t iIrdaReservedWord, uint32_t* piIrdaResult1,
                            uint32_t* piIrdaResult2);
    uint8_t START_AGPS_CTON_MEAS(uint16_t* piStatusWord);
    uint8_t GET_AGPS_CTON_MEAS(uint16_t* piCtoNValue, uint16_t* piErrorCode);
    uint8_t RTC_START(uint8_t* bStatus, uint16_t iTime);
    uint8_t RTC_OSC_CTRL(uint8_t* bStatus, uint8_t bSwitch);
    uint8_t TRACER_CONTROL(uint8_t bStatus, uint8_t bSwitch);

    // Pins, I2C, ADC, fuel gauge, headset amplifier.
    uint8_t GPIO_GET_OUT(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus);
    uint8_t GPIO_SET_OUT(uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus);
    uint8_t GPIO_GET_IN(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus);
    uint8_t GPIO_GET_OE(uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus);
    uint8_t GPIO_SET_OE(uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus);
    uint8_t GPIO_GET_CFG(uint8_t iGPIONum, uint8_t* iSelect, uint8_t* iPullUD, uint8_t* iPullEn, uint8_t* iDir,
                         uint8_t* iStatus);
    uint8_t GPIO_SET_CFG(uint8_t iGPIONum, uint8_t iSelect, uint8_t iPullUD, uint8_t iPullEn, uint8_t iDir,
                         uint8_t* iStatus);
    uint8_t I2C_DATA_ACCESS(uint8_t iI2C_AccessType, uint8_t iI2C_SlaveAddr, uint8_t iI2C_RegAddrLen,
                            uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen, uint8_t* piI2C_Data);
    uint8_t I2C_DATA_ACCESS2(uint8_t iI2C_AccessType, uint8_t iI2C_Selector, uint8_t iI2C_SlaveAddr,
                             uint8_t iI2C_RegAddrLen, uint16_t iI2C_RegAddr, uint8_t iI2C_DataLen, uint8_t* piI2C_Data);
    uint8_t MGET_ADC_VAL(uint16_t iADC_Channel, uint16_t iReadCount, uint32_t* iADC_Sum);
    uint8_t GG_READ_REG(uint8_t eNum, uint8_t* sStatus, uint16_t* iValue);
    uint8_t GG_MODE(uint8_t* iSwitch);
    uint8_t HEADSET_AMP_READ(uint32_t* iHeadsetReg);
    uint8_t HEADSET_AMP_WRITE(uint32_t* iHeadsetReg);

    // SIM, memory card, factory data, RF items.
    uint8_t SIM_READ_IMSI(uint8_t* iIMSI_number);
    uint8_t SIM_GET_MODE(uint8_t* SIM_MODE);
    uint8_t SIM_READ_KC_FILE(uint8_t* KC_File, uint8_t* Status);
    uint8_t SIM_WRITE_KC_FILE(uint8_t* KC_File, uint8_t* Status);
    uint8_t MMC_FILE_ACCESS(uint8_t iAccessType, uint16_t iMMC_DataLength, const char* psFileName, uint8_t* pData);
    uint8_t READ_WRITE_FACTORY_DATA(uint8_t iOperationType, uint16_t iDataAddress, uint8_t* pData);
    uint8_t LOAD_RF_NV(uint16_t* piStatusWord);
    uint8_t WRITE_GSM_TX_LINEARIZER(uint8_t iGSM_Band, const uint16_t* iGSM_DACvsPower, uint16_t iDelay_ms);
    uint8_t WRITE_WCDMA_RF_CAL(uint32_t i1, uint32_t i2, uint32_t i3, uint32_t i4, uint32_t i5, uint32_t i6,
                               uint32_t i7, uint32_t i8, uint32_t i9, uint32_t i10, uint32_t i11, uint32_t i12,
                               uint32_t i13, uint32_t i14, uint32_t i15);

    // FM radio.
    uint8_t GET_FM_RADIO_ID(uint16_t* iChip_Id);
    uint8_t TUNE_FM_RADIO(uint16_t iChannel, uint16_t* piStatusWord);
    uint8_t RM_RADIO_RDS_TEST(uint16_t* piStatusWord);
    uint8_t FM_RADIO_SCAN_ALL_RF(uint8_t* piFmStatus, uint8_t* piFmScanValid, uint8_t* piFmScanCount,
                                 uint16_t* piFmScanList);
    uint8_t FM_RADIO_GET_STATION_INFO(uint8_t* piFmStatus, uint8_t* piStationField1, uint16_t* piStationField2,
                                      uint8_t* piStationField3, uint8_t* piStationField4, uint16_t* piStationField5,
                                      uint8_t* piStationField6, uint8_t* piStationField7, uint8_t* piStationField8,
                                      uint8_t* piStationField9, uint16_t* piStationField10);
    uint8_t FM_RADIO_GET_PROGRAM_INFO(uint8_t* piFmStatus, uint16_t* piProgramField1, uint8_t* piProgramField2,
                                      char* psProgramText, uint8_t* piProgramField3, uint8_t* piProgramField4);

    // Display, backlights, slider, camera.
    uint8_t DISPLAY_IMAGE(char* sFileName);
    uint8_t DISPLAY_IMAGE_24BIT(char* sFileName);
    uint8_t SET_LCD_BACKLIGHT_LEVEL(uint8_t iLevel);
    uint8_t SWITCH_LCD_BACKLIGHT(uint8_t iSwitchLcdOn);
    uint8_t SET_LCD_CONTRAST(uint8_t iLcdContrastLevel);
    uint8_t SetKeyPadBackLight(uint16_t rowNumber, uint8_t backLightOn);
    uint8_t GetSliderState(uint8_t* sState, uint8_t iPhoneModelHint);
    uint8_t TEST_CAMERA_FLASH(uint8_t iFlashByte1, uint8_t iFlashByte2, uint16_t* piErrorCode);
    uint8_t SET_FLASH_LIGHT_LEVEL(uint16_t iLevel);
    uint8_t I2C_SET_CAMERA_FOCUS(uint8_t focusLevel);
    uint8_t GetCameraIDString(char* sId);
    uint8_t LTM_GetCameraIdString(char* sId);

private:
    // Empties the buffer and appends the ten header bytes; the command's data follow.
    void BuildFtmHeader(const catalogue::Command& command);
    // The same for a request of the OEM format, which declares no lengths.
    void BuildOemHeader(uint16_t commandWord, uint32_t operationCode);

    // Sends the request and gives the host library's result. After a failure *errorByte is the first byte of the
    // response area, which is the fill 0xBB when nothing arrived; else it is 0.
    uint8_t Exchange(uint8_t* errorByte) { return ExchangeWithTimeout(ftmReplyTimeMs, errorByte); }
    uint8_t ExchangeWithTimeout(uint32_t timeoutMs, uint8_t* errorByte);

    // The closing texts of a command, behind the text that names it and its arguments. Each gives the result that
    // belongs to it.
    uint8_t NoReply(const FormattedText& entry, uint16_t code);
    uint8_t ErrorCode(const FormattedText& entry, uint16_t code);
    uint8_t Completed(const FormattedText& entry);

    // A command with nothing of its own: entry text, request, exchange, pop of the value fields (what append and pop
    // do), pop of the status word, closing text. A reply too short to hold a status word counts as success.
    template <typename Append, typename Pop>
    uint8_t Standard(const FormattedText& entry, const catalogue::Command& command, Append append, Pop pop,
                     const Difference& difference = {})
    {
        WriteToLog(hResourceContext, entry.Text());
        return StandardBehindEntry(entry, command, append, pop, difference);
    }

    // The same for a command whose entry text differs from the one that its closing texts repeat, and is written.
    template <typename Append, typename Pop>
    uint8_t StandardBehindEntry(const FormattedText& entry, const catalogue::Command& command, Append append, Pop pop,
                                const Difference& difference = {})
    {
        BuildFtmHeader(command);
        append();
        uint8_t errorByte = 0;
        if (ExchangeWithTimeout(difference.timeoutMs, &errorByte) == 0)
            return NoReply(entry, errorByte);
        pop();
        const uint16_t status = PopStatus(difference);
        return status != 0 ? ErrorCode(entry, status) : Completed(entry);
    }

    uint16_t PopStatus(const Difference& difference);

    // --- families of commands

    // A pin command. The text shows its arguments as they stand each time; the values are popped only if the phone's
    // status is 0, in the order in which they are given, from the last field of the reply to the first.
    template <typename Text>
    uint8_t Gpio(Text text, uint32_t operationCode, std::initializer_list<uint8_t> requestBytes, uint8_t* iStatus,
                 std::initializer_list<uint8_t*> values);
    uint8_t GetPin(const char* name, uint32_t operationCode, uint8_t iGPIONum, uint8_t* iValue, uint8_t* iStatus);
    uint8_t SetPin(const char* name, uint32_t operationCode, uint8_t iGPIONum, uint8_t iValue, uint8_t* iStatus);
    uint8_t KcFile(const char* name, const catalogue::Command& command, bool write, uint8_t* KC_File, uint8_t* Status);
    uint8_t DisplayFile(const char* name, const catalogue::Command& command, const char* sFileName);
    template <typename Take>
    uint8_t FmBlock(const char* entryName, const char* name, uint8_t subCommand, Take take);
    uint8_t CameraId(const char* name, const catalogue::Command& command, const char* wrongId, char* sId);
    // Asks the phone for its model by the procedure of that name, and says so in the log.
    bool AskPhoneModel(uint32_t* piPhoneModel);

    ResourceContext hResourceContext;
    PacketBuffer packetBuffer;
};

}  // namespace tandekor
