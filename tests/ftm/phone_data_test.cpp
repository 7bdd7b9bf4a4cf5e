// SIM, memory card, factory data and RF items.
#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call imsi = With(TANDEKOR_FTM_SIM_READ_IMSI, {Hex("00 01 02 03 04 05 06 07 FF")});
const Call simMode = With(TANDEKOR_FTM_SIM_GET_MODE), loadItems = With(TANDEKOR_FTM_LOAD_RF_NV);

// The file is a text without a NUL.
const Call readKc = With(TANDEKOR_FTM_SIM_READ_KC_FILE, {Ascii("Kc file 9"), Bytes{3}});
const Call writeKc = With(TANDEKOR_FTM_SIM_WRITE_KC_FILE, {Ascii("Kc file 9"), Bytes{3}});

Call Card(uint8_t accessType, const Bytes& data, const std::string& name = "Test.bin")
{
    return With(TANDEKOR_FTM_MMC_FILE_ACCESS, {accessType, data.size(), name, data});
}

// An access by the bytes in front of the name, which are type and length, and those behind it.
FtmRequest CardRequest(uint8_t accessType, const Bytes& data, const std::string& start, const std::string& end = "",
                       const std::string& name = "Test.bin")
{
    Bytes sent = Ascii(name);
    sent.resize(128);
    return {Card(accessType, data, name), "12 00 " + start + " 00 00 00 " + ToHex(sent) + end,
            "FTM_MMC_FILE_ACCESS(iAccessType = " + std::to_string(accessType)
                + ", iMMC_DataLength = " + std::to_string(data.size()) + ", psFileName= '" + name + "')"};
}

const Call writeFactoryByte = ReadOnly(With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {1, 0x0102, Bytes{0xA7}}));

// The values 0x8000, 0x8001 and so on, as they stand in memory and on the wire.
const Bytes linearizer = []
{
    Bytes bytes;
    for (int i = 0; i < 174; ++i)
        bytes.insert(bytes.end(), {static_cast<uint8_t>(i), 0x80});
    return bytes;
}();
const Call writeLinearizer = ReadOnly(With(TANDEKOR_FTM_WRITE_GSM_TX_LINEARIZER, {2, linearizer, 60000}));

}  // namespace

std::vector<FtmRequest> PhoneDataRequests()
{
    return {
        {imsi, "11 00 00 00 15 00", "FTM_SIM_READ_IMSI(iIMSI_number[9] = {0, 1, 2, 3, 4, 5, 6, 7, 255 })"},
        {simMode, "CB 00 0A 00 0C 00", "FTM_SIM_GET_MODE(SIM_MODE = 85)"},
        {readKc, "CC 00 16 00 16 00", "\nTANDEKOR_FTM_SIM_READ_KC_FILE(KC_File = Kc file 9, Status = 3)"},
        {writeKc, "CD 00 16 00 16 00 00 00 09 4B 63 20 66 69 6C 65 20 39",
         "\nTANDEKOR_FTM_SIM_WRITE_KC_FILE(KC_File = Kc file 9, Status = 3)"},
        CardRequest(0, Bytes(4), "85 00 10 00 00 04"),
        CardRequest(0, {}, "85 00 0C 00 00 00"),
        CardRequest(1, Hex("A1 B2"), "87 00 0C 00 01 02", " A1 B2"),
        CardRequest(2, Hex("A1 B2"), "87 00 0C 00 02 02"),
        CardRequest(2, {}, "85 00 0C 00 02 00", "", std::string(128, 'n')),
        CardRequest(2, {}, "85 00 0C 00 02 00", "", std::string(300, 'n')),
        {With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {0, 0x0102}), "15 00 04 00 0D 00 00 02 01",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 0, iDataAddress = 258)", 1},
        {With(TANDEKOR_FTM_READ_WRITE_FACTORY_DATA, {255, 65535}), "15 00 04 00 0D 00 FF FF FF",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 255, iDataAddress = 65535)", 1},
        {writeFactoryByte, "15 00 04 00 0D 00 01 02 01 A7",
         "FTM_READ_WRITE_FACTORY_DATA(iOperationType = 1, iDataAddress = 258)", 0},
        {loadItems, "23 00 00 00 0C 00", "FTM_LOAD_RF_NV() ", 0, 3000, "FTM_LOAD_RF_NV()"},
        {writeLinearizer, "1A 00 5D 01 0C 00 02 " + ToHex(linearizer),
         "FTM_WRITE_GSM_TX_LINEARIZER(iGSM_Band = 2, iGSM_DACvsPower[0] = 32768, iDelay_ms = 60000)", 0, 60000},
    };
}

using PhoneDataTest = FtmTest;

TEST_F(PhoneDataTest, SimAndRfItems)
{
    const std::string imsiText = "(iIMSI_number[9] = {8, 41, 38, 16, 0, 0, 0, 0, 255 })", called = "()";
    const Numbers number{8, 41, 38, 16, 0, 0, 0, 0, 255}, untouched{0, 1, 2, 3, 4, 5, 6, 7, 255};
    const Numbers file{1, 2, 3, 4, 5, 6, 7, 8, 9, 0}, refused{1, 2, 3, 4, 5, 6, 7, 8, 9, 7};
    const Numbers kept{'K', 'c', ' ', 'f', 'i', 'l', 'e', ' ', '9', 3};
    ExpectAnswers({
        {imsi, "00 00 08 29 26 10 00 00 00 00 FF", 1, number, {imsiText + done}},
        {imsi, "07 81 08 29 26 10 00 00 00 00 FF", 0, number, {"() - SendSync() fail (error code = 33031)"}},
        {imsi, "!", 0, untouched, {called + noReply}},
        {simMode, "00 00 02 81", 1, {2}, {"(SIM_MODE = 2 "}},
        {simMode, "=", 1, {0}, {"(SIM_MODE = 0 "}},
        {simMode, "!", 0, {0x55}, {called + noReply}},
        {loadItems, "07 81", 0, {0x8107}, {"() - error code = 33031"}},
        {With(TANDEKOR_FTM_WRITE_WCDMA_RF_CAL, std::vector<Given>(15, 1)), "", 0, {}, {}},  // is never sent
    });
    // The reply's file replaces the caller's, whatever its status is.
    for (const Call& call : {readKc, writeKc})
        ExpectAnswers({
            {call, "00 EE FF 01 02 03 04 05 06 07 08 09", 1, file, {"(Status = 0)"}},
            {call, "07 00 00 01 02 03 04 05 06 07 08 09", 0, refused, {"() - (Status = 7)"}},
            {call, "=", 0, kept, {"() - (Status = 3)"}},
            {call, "!", 0, kept, {called + noReply}},
        });
}

TEST_F(PhoneDataTest, CardReadTakesDataAndStatusAndOtherAccessLooksAtTheExchangeAlone)
{
    const Call read = Card(0, Bytes(4)), readMore = Card(0, Bytes(20));
    const std::string called = "()", refused = "() - SendSync() fail (error code = ";
    ExpectAnswers({
        {read, "00 00 A1 A2 A3 A4", 1, {0xA4A3A2A1}, {called + done}},
        {read, "07 81 A1 A2 A3 A4", 0, {0xA4A3A2A1}, {refused + "33031)"}},
        {read, "=", 1, {0}, {called + done}},
        {read, "!", 0, {0}, {called + noReply}},
        {readMore, "00 00 A1 A2 A3 A4 00 00", 1, Numbers(20), {called + done}},
        {readMore, "00 00 A1 A2 A3 A4 07 00", 0, Numbers(20), {refused + "7)"}},
        {Card(0, {}), "05 00", 0, {}, {refused + "5)"}},
        {Card(1, {0xA1}), "05 00", 1, {0xA1}, {called + done}},
        {Card(1, {0xA1}), "!", 0, {0xA1}, {called + noReply}},
        {Card(2, {0xA1}), "05 00", 1, {0xA1}, {called + done}},
        {Card(1, Bytes(3954)), "", 0, Numbers(3954), {called + noReply}},  // nothing is cut and sent
        {Card(1, Bytes(65535)), "", 0, Numbers(65535), {called + noReply}},
    });
}

TEST_F(PhoneDataTest, CardDataAreHeldToTheRequestAndReplyAreas)
{
    RepliesWith("00 00");
    EXPECT_EQ(Card(1, Bytes(3953, 0xD5))(handle).result, 1);
    const Bytes request = simulator::Exchanges().back().request;
    EXPECT_EQ(request.size(), 4096U);
    EXPECT_EQ(ToHex({request.begin() + 4, request.begin() + 15}), "12 00 F6 0F 0C 00 01 71 0F 00 00");
    EXPECT_EQ(ToHex({request.end() - 3954, request.end() - 3952}), "00 D5");

    const Bytes fullReply(4096, 0x01);
    Replies(fullReply);
    CallResult call = Card(0, Bytes(4094))(handle);
    EXPECT_EQ(call.outs[0], Bytes(4094, 0x01));
    EXPECT_TRUE(call.guardsIntact);
    Replies(fullReply);
    call = Card(0, Bytes(65535))(handle);
    EXPECT_FALSE(call.written[0]);
    EXPECT_EQ(Log().back(), "\tTANDEKOR_FTM_MMC_FILE_ACCESS() - SendSync() fail (error code = 257)");
    EXPECT_TRUE(LastRequest().starts_with("4B 0B 00 80 12 00 85 00 0B 00 00 FF FF 00 00 ")) << "65547 as 16 bits";
}

}  // namespace tandekor::test
