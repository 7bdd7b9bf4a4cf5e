#include "tests/ftm/ftm_test.h"

namespace tandekor::test
{

namespace
{

const Call tune = With(TANDEKOR_FTM_TUNE_FM_RADIO, {8750}), rds = With(TANDEKOR_FTM_RM_RADIO_RDS_TEST);
const Call stationInfo = With(TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO);

// Status, valid, count; then a list of 48 words.
const Call scan = With(TANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF, {Out{1}, Out{1}, Out{1}, Out{96}});

// Status, field 1, field 2; then the text, field 3 and field 4.
const Call programInfo
    = With(TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO, {Out{1}, Out{2}, Out{1}, Out{96}, Out{1}, Out{1}});

std::string BlockRequest(uint8_t subCommand)
{
    Bytes bytes = Hex("4B 0B 00 80 CA 00 6F 00 6F 00 00");
    bytes.push_back(subCommand);
    bytes.resize(111);
    return ToHex(bytes);
}

// A reply in which each byte is its position, with this status.
Bytes BlockReply(uint8_t status)
{
    Bytes block(111);
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<uint8_t>(i);
    block[10] = status;
    return block;
}

}  // namespace

std::vector<FtmRequest> FmRadioRequests()
{
    return {
        {With(TANDEKOR_FTM_GET_FM_RADIO_ID), "4B 0B 00 80 16 00 00 00 0E 00",
         "TANDEKOR_FTM_GET_FM_RADIO_ID(iChip_Id = 21845)", 2, 3000, "TANDEKOR_FTM_GET_FM_RADIO_ID()"},
        {tune, "4B 0B 00 80 1C 00 02 00 0C 00 2E 22", "TANDEKOR_FTM_TUNE_FM_RADIO(iChannel = 8750)"},
        {rds, "4B 0B 00 80 22 00 00 00 0C 00", "TANDEKOR_FTM_RM_RADIO_RDS_TEST()", 0},
        {scan, BlockRequest(2), "TANDEKOR_FTM_FM_RADIO_SCAN_RF()", ownProcedure, 20000},
        {stationInfo, BlockRequest(0), "TANDEKOR_FTM_FM_RADIO_GET_STATION_INFO()", ownProcedure, 20000},
        {programInfo, BlockRequest(1), "TANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO()", ownProcedure, 20000},
    };
}

class FmRadioTest : public FtmTest
{
protected:
    CallResult Ask(const Call& call, const Bytes& reply)
    {
        Replies(reply);
        CallResult answered = call(handle);
        EXPECT_TRUE(answered.guardsIntact);
        return answered;
    }
};

TEST_F(FmRadioTest, TuningTakesItsStatusFromWhateverArrivesAnd3IsGoodToo)
{
    const std::string text = "\tTANDEKOR_FTM_TUNE_FM_RADIO(iChannel = 8750)";
    ExpectAnswers({
        {tune, {"00 00"}, 1, {0}, {text + done}},
        {tune, {"03 00"}, 1, {3}, {text + done}},
        {tune, {"01 00"}, 0, {1}, {text + " - error code = 1"}},
        {tune, {"03 81"}, 0, {0x8103}, {text + " - error code = 33027"}},
        {tune, {nothing}, 1, {0x5555}, {text + done}},
        {tune, {silence}, 0, {0x5555}, {text + noReply}},
        {tune, {"! 4B 03 00"}, 0, {3}, {text + " - SendSync() fail (error code = 75)"}},
    });
    EXPECT_EQ(Values(Ask(rds, Hex("07 81")).outs), Numbers{0x8107});
}

TEST_F(FmRadioTest, BlockCommandsCloseWithTextsOfTheirOwnLine)
{
    for (const auto& [call, name] : {std::pair(scan, "\nTANDEKOR_FTM_FM_RADIO_SCAN_ALL_RF()"),
                                     std::pair(stationInfo, "\nTANDEKOR_FTM_FM_RADIO_GET_STATION_INFO()"),
                                     std::pair(programInfo, "\nTANDEKOR_FTM_FM_RADIO_GET_PROGRAM_INFO()")})
    {
        const auto expect
            = [&, text = std::string(name)](const CallResult& answered, uint8_t result, const char* ending)
        {
            EXPECT_EQ(answered.result, result);
            EXPECT_EQ(Log().back(), text + ending);
        };
        expect(Ask(call, BlockReply(0)), 1, done);
        const CallResult refused = Ask(call, BlockReply(200));
        expect(refused, 0, " - error code = 200");
        EXPECT_EQ(refused.outs[0], Bytes{200});
        EXPECT_EQ(Values(refused.outs)[1] & 0xFF, 13U) << "written all the same";
        const CallResult tooShort = Ask(call, Bytes(110, 7));
        expect(tooShort, 1, done);
        EXPECT_EQ(Values(tooShort.outs)[0], 0U);
        EXPECT_EQ(Values(tooShort.outs)[1], 0U);
        FailsToReply(BlockReply(200));
        const CallResult silent = call(handle);
        expect(silent, 0, " - SendSync() fail (error code = 0)");
        EXPECT_EQ(silent.written, std::vector<bool>(silent.outs.size()));
    }
}

TEST_F(FmRadioTest, FieldsOfTheStation)
{
    const Numbers fields{0, 13, 0x0F0E, 16, 17, 0x1312, 20, 21, 22, 23, 0x1918};
    EXPECT_EQ(Values(Ask(stationInfo, BlockReply(0)).outs), fields);
    Bytes longer = BlockReply(0);
    longer.insert(longer.begin(), 5, 0xEE);
    EXPECT_EQ(Values(Ask(stationInfo, longer).outs), fields) << "the last 111 bytes count";
}

TEST_F(FmRadioTest, ScanListIsWrittenIfValidIs1AndHeldTo48Entries)
{
    const struct
    {
        uint8_t valid, count;
        uint32_t shown;
        size_t bytesWritten;
    } cases[]
        = {{1, 3, 3, 6}, {1, 48, 48, 96}, {1, 49, 48, 96}, {1, 255, 48, 96}, {1, 0, 0, 0}, {0, 3, 3, 0}, {2, 3, 3, 0}};
    for (const auto& row : cases)
    {
        Bytes reply = BlockReply(0);
        reply[13] = row.valid;
        reply[14] = row.count;
        Numbers expected{0, row.valid, row.shown};
        for (uint32_t i = 0; i < 96; ++i)
            expected.push_back(i < row.bytesWritten ? 15 + i : 0x55);
        EXPECT_EQ(Values(Ask(scan, reply).outs), expected) << int{row.valid} << ' ' << int{row.count};
    }
}

TEST_F(FmRadioTest, ProgramTextEndsAtItsNulOrElseWithTheBlock)
{
    for (const bool ends : {true, false})
    {
        Bytes reply = BlockReply(0);
        if (ends)
            reply[20] = 0;
        Numbers expected{0, 0x0E0D, 15};
        for (uint32_t i = 16; i < (ends ? 20 : 111); ++i)
            expected.push_back(i);
        expected.push_back(0);
        expected.resize(3 + 96, 0x55);
        expected.insert(expected.end(), {25, 26});
        EXPECT_EQ(Values(Ask(programInfo, reply).outs), expected);
    }
}

}  // namespace tandekor::test
