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

// A reply in which each byte is its position, but for the status 0 and these changes.
std::string Block(const std::vector<std::pair<size_t, uint8_t>>& changes = {})
{
    Bytes block(111);
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<uint8_t>(i == 10 ? 0 : i);
    for (const auto& [position, byte] : changes)
        block[position] = byte;
    return ToHex(block);
}

// The outs of a scan and of a program: the bytes of the block that are written, from this one on, in an area of 96.
Numbers Area(uint32_t from, uint32_t count)
{
    Numbers area(96, 0x55);
    for (uint32_t i = 0; i < count; ++i)
        area[i] = from + i;
    return area;
}
Numbers Scan(const Numbers& first, uint32_t written)
{
    Numbers outs = Area(15, written);
    outs.insert(outs.begin(), first.begin(), first.end());
    return outs;
}
Numbers Program(const Numbers& first, uint32_t written, const Numbers& last)
{
    Numbers outs = Area(16, written);
    outs[written] = 0;
    outs.insert(outs.begin(), first.begin(), first.end());
    outs.insert(outs.end(), last.begin(), last.end());
    return outs;
}

const Numbers station{0, 13, 0x0F0E, 16, 17, 0x1312, 20, 21, 22, 23, 0x1918};
const std::string blocks = "\nTANDEKOR_FTM_FM_RADIO_";

}  // namespace

std::vector<FtmRequest> FmRadioRequests()
{
    return {
        {With(TANDEKOR_FTM_GET_FM_RADIO_ID), "16 00 00 00 0E 00", "FTM_GET_FM_RADIO_ID(iChip_Id = 21845)", 2, 3000,
         "FTM_GET_FM_RADIO_ID()"},
        {tune, "1C 00 02 00 0C 00 2E 22", "FTM_TUNE_FM_RADIO(iChannel = 8750)"},
        {rds, "22 00 00 00 0C 00", "FTM_RM_RADIO_RDS_TEST()", 0},
        {scan, BlockRequest(2), "FTM_FM_RADIO_SCAN_RF()", ownProcedure, 20000},
        {stationInfo, BlockRequest(0), "FTM_FM_RADIO_GET_STATION_INFO()", ownProcedure, 20000},
        {programInfo, BlockRequest(1), "FTM_FM_RADIO_GET_PROGRAM_INFO()", ownProcedure, 20000},
    };
}

using FmRadioTest = FtmTest;

TEST_F(FmRadioTest, TuningTakesItsStatusFromWhateverArrivesAnd3IsGoodToo)
{
    ExpectAnswers({
        {tune, "00 00", 1, {0}, {done}},
        {tune, "03 00", 1, {3}, {done}},
        {tune, "01 00", 0, {1}, {" - error code = 1"}},
        {tune, "03 81", 0, {0x8103}, {" - error code = 33027"}},
        {tune, "=", 1, {0x5555}, {done}},
        {tune, "!", 0, {0x5555}, {noReply}},
        {tune, "! 4B 03 00", 0, {3}, {" - SendSync() fail (error code = 75)"}},
        {rds, "07 81", 0, {0x8107}, {" - error code = 33031"}},
    });
}

TEST_F(FmRadioTest, BlocksAreTakenWhateverTheirStatusIsAndCloseWithTextsOfTheirOwnLine)
{
    const struct
    {
        Call call;
        std::string name;
        Numbers outs, ofAShortReply;
    } rows[] = {
        {scan, "SCAN_ALL_RF()", Scan({0, 13, 14}, 0), Scan({0, 0, 0}, 0)},
        {stationInfo, "GET_STATION_INFO()", station, Numbers(11)},
        {programInfo, "GET_PROGRAM_INFO()", Program({0, 0x0E0D, 15}, 95, {25, 26}), Program({0, 0, 0}, 0, {0, 0})},
    };
    for (const auto& row : rows)
    {
        Numbers refused = row.outs, untouched = row.outs;
        refused[0] = 200;
        for (uint32_t& number : untouched)
            number = number > 0xFF ? 0x5555 : 0x55;
        ExpectAnswers({
            {row.call, "=" + Block(), 1, row.outs, {blocks + row.name + done}},
            {row.call, "=" + Block({{10, 200}}), 0, refused, {blocks + row.name + " - error code = 200"}},
            {row.call, "=" + ToHex(Bytes(110, 7)), 1, row.ofAShortReply, {blocks + row.name + done}},
            {row.call, "!" + Block(), 0, untouched, {blocks + row.name + " - SendSync() fail (error code = 0)"}},
        });
    }
}

TEST_F(FmRadioTest, ScanListIsWrittenIfValidIs1AndTextsEndAtTheirNul)
{
    // Valid and count in the block, the count that is shown, and how many bytes are written.
    const Bytes cases[]
        = {{1, 3, 3, 6}, {1, 48, 48, 96}, {1, 49, 48, 96}, {1, 255, 48, 96}, {1, 0, 0, 0}, {0, 3, 3, 0}, {2, 3, 3, 0}};
    for (const Bytes& row : cases)
        ExpectAnswers({{scan,
                        "=" + Block({{13, row[0]}, {14, row[1]}}),
                        1,
                        Scan({0, row[0], row[2]}, row[3]),
                        {blocks + "SCAN_ALL_RF()" + done}}});
    ExpectAnswers({
        {programInfo,
         "=" + Block({{20, 0}}),
         1,
         Program({0, 0x0E0D, 15}, 4, {25, 26}),
         {blocks + "GET_PROGRAM_INFO()" + done}},
        // The last 111 bytes count.
        {stationInfo, "=EE EE EE EE EE " + Block(), 1, station, {blocks + "GET_STATION_INFO()" + done}},
    });
}

}  // namespace tandekor::test
