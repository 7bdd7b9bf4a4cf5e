// The receiver: its measurements, and the NV items of its calibration.
#include <algorithm>
#include <array>

#include "procedures/procedure_steps.h"
#include "tests/procedures/chain_lines.h"

namespace tandekor::test
{

namespace
{

using simulator::Mode;

std::string Repeated(char character, size_t count) { return std::string(count, character); }

// A caller's table, exactly as long as its item: a NUL nowhere, guard bytes behind it.
class Table
{
public:
    Table(char content, size_t size) : buffer(size) { std::fill_n(buffer.Data(), size, static_cast<uint8_t>(content)); }

    operator uint8_t*() { return buffer.Data(); }
    bool GuardsIntact() const { return buffer.GuardsIntact(); }

private:
    GuardedBuffer buffer;
};

std::string WriteCall(int item, const Bytes& data)
{
    return "QLIB_DIAG_NV_WRITE_F(" + std::to_string(item) + ", " + ToHex(data) + ", " + std::to_string(data.size())
           + ')';
}
std::string WriteCall(int item, char content, size_t size)
{
    return WriteCall(item, Bytes(size, static_cast<uint8_t>(content)));
}

class ReceiverTest : public ProcedureTest
{
protected:
    ReceiverTest() { Phone().mode = Mode::Ftm; }

    // The measurement of a WCDMA receiver, each in-argument with a value of its own.
    uint8_t AdjustWcdma(uint16_t vgaBand = 4, uint8_t* vsFreq = nullptr, uint16_t fallBand = 5, uint16_t riseBand = 6,
                        uint16_t lnaIndex = 2)
    {
        uint8_t written[] = {'d', 'a', 't', 'a'};
        return TANDEKOR_RX_WCDMA_Adjust(handle, 'L', -106, dvga.Data(), 0xEA60, written, 3, &writeStatus, vgaBand,
                                        0xE241, vsFreq, fallBand, fall[0].Data(), fall[1].Data(), fall[2].Data(),
                                        0xEA61, item.Data(), 5, &readStatus, riseBand, rise[0].Data(), rise[1].Data(),
                                        rise[2].Data(), lnaIndex, -75, &lnaOffset);
    }

    // Items that a band's thresholds are read from.
    void StoreThresholds()
    {
        const struct
        {
            uint16_t item;
            Bytes value;
        } rows[] = {{1164, {'f', 'F'}}, {1148, {'g', 0}},    {1149, {0, 1}},
                    {1834, {'r', 'R'}}, {1817, {'s', 0x80}}, {1818, {0xFF, 0xFF}}};
        for (const auto& row : rows)
            Phone().nvItems[row.item] = row.value;
        Phone().nvItems[0xEA61] = Ascii("hello");
    }

    GuardedBuffer dvga{2}, item{5};
    std::array<GuardedBuffer, 3> fall{GuardedBuffer(2), GuardedBuffer(2), GuardedBuffer(2)};
    std::array<GuardedBuffer, 3> rise{GuardedBuffer(2), GuardedBuffer(2), GuardedBuffer(2)};
    uint16_t writeStatus = 91, readStatus = 92;
    int16_t lnaOffset = 93;
};

}  // namespace

TEST_F(ReceiverTest, GsmMeasurementReadsTheOffsetsThenSetsTheReceiverUp)
{
    const std::string offsets = Repeated('o', 127) + 'z';
    Phone().nvItems[2499] = Ascii(offsets);
    GuardedBuffer bin(128), rssi(2);
    EXPECT_EQ(TANDEKOR_RX_GSM_Adjust(handle, bin.Data(), 0xE003, 0xE004, 'S', -5, 'L', rssi.Data()), 1);
    EXPECT_EQ(bin.Content(), Ascii(offsets));
    EXPECT_EQ(rssi.Content(), Hex("B8 FF"));
    EXPECT_TRUE(bin.GuardsIntact() && rssi.GuardsIntact());
    const Texts calls{"QLIB_IsPhoneConnected() x9", "QLIB_DIAG_NV_READ_F(2499, 128)",
                      "QLIB_FTM_SET_TX_OFF()",      "QLIB_FTM_SET_MODE(57347)",
                      "QLIB_FTM_SET_CHAN(57348)",   "QLIB_FTM_SET_RX_BURST(83, -5)",
                      "QLIB_FTM_SET_LNA_RANGE(76)", "QLIB_FTM_GET_RSSI()"};
    EXPECT_EQ(Calls(), calls);
    const Texts log
        = Chain({NvRead(2499, offsets, 128), "QLIB_FTM_SET_TX_OFF()", "QLIB_FTM_SET_MODE(eNewMode = 57347)",
                 "QLIB_FTM_SET_CHAN(iChannel = 57348)", "QLIB_FTM_SET_RX_BURST(iSlotNum = S, iRxFunction = -5)",
                 "QLIB_FTM_SET_LNA_RANGE(iLNArange = L)", "QLIB_FTM_GET_RSSI()"});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(Sleeps(), Waits{});
}

TEST_F(ReceiverTest, WcdmaMeasurementWritesAndReadsOnItsWayAndShowsTheValuesReadBehindEachCall)
{
    StoreThresholds();
    Table vsFreq('v', 16);
    EXPECT_EQ(AdjustWcdma(4, vsFreq), 1);
    const Texts calls{
        "QLIB_IsPhoneConnected() x3",
        "QLIB_FTM_SET_TX_OFF()",
        "QLIB_FTM_SET_LNA_RANGE(76)",
        "QLIB_FTM_GET_DVGA_OFFSET(-106)",
        "QLIB_DIAG_NV_WRITE_F(60000, 64 61 74, 3)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_WRITE_F(856, 41 E2, 2)",
        "QLIB_IsPhoneConnected() x3",
        WriteCall(857, 'v', 16),
        "QLIB_IsPhoneConnected() x9",
        "QLIB_DIAG_NV_READ_F(1164, 2)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_READ_F(1148, 2)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_READ_F(1149, 2)",
        "QLIB_DIAG_NV_READ_F(60001, 5)",
        "QLIB_IsPhoneConnected() x9",
        "QLIB_DIAG_NV_READ_F(1834, 2)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_READ_F(1817, 2)",
        "QLIB_IsPhoneConnected() x6",
        "QLIB_DIAG_NV_READ_F(1818, 2)",
        "QLIB_FTM_GET_LNA_OFFSET(2, -75)",
    };
    EXPECT_EQ(Calls(), calls);
    const Texts log = Chain(
        {"QLIB_FTM_SET_TX_OFF()", "QLIB_FTM_SET_LNA_RANGE(iLNArange = L)",
         "QLIB_FTM_GET_DVGA_OFFSET(iExpectedRX_AGC = -106)",
         "QLIB_DIAG_NV_WRITE_F(iItemID = 60000, pItemData = dat, iLength = 3)",
         Step("TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(eNvBand = 4, iOffset = 57921, piVsFreq = v)",
              Chain({NvWrite(856, "A\xE2", 2), NvWrite(857, Repeated('v', 16), 16)})),
         Step("TANDEKOR_NV_READ_WCDMA_LNA_RANGE_FALL(eNvBand = 5, piFall1 = 18022, piFall2 = 103, piFall3 = 256)",
              Chain({NvRead(1164, "fF", 2), NvRead(1148, "g", 2), NvRead(1149, "", 2)})),
         "QLIB_DIAG_NV_READ_F(iItemID = 60001, pItemData = @, iLength = 5)",
         Step("TANDEKOR_NV_READ_WCDMA_LNA_RANGE_RISE(eNvBand = 6, piRise1 = 21106, piRise2 = 32883, piRise3 = 65535)",
              Chain({NvRead(1834, "rR", 2), NvRead(1817, "s\x80", 2), NvRead(1818, "\xFF\xFF", 2)})),
         "QLIB_FTM_GET_LNA_OFFSET(iLNAindex = 2 , iExpectedRX_AGC = -75, piLNAoffsetValue = 8)"});
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(dvga.Content(), Hex("0E 00"));
    EXPECT_EQ(item.Content(), Ascii("hello"));
    EXPECT_EQ(fall[0].Content(), Ascii("fF"));
    EXPECT_EQ(rise[2].Content(), Hex("FF FF"));
    EXPECT_EQ(writeStatus, 0);
    EXPECT_EQ(readStatus, 0);
    EXPECT_EQ(lnaOffset, 8);
    for (const auto* buffer : {&dvga, &item, &fall.front(), &fall[1], &fall[2], &rise.front(), &rise[1], &rise[2]})
        EXPECT_TRUE(buffer->GuardsIntact());
}

TEST_F(ReceiverTest, StatusOfTheDirectOperationsIsForTheCallerAlone)
{
    StoreThresholds();
    Phone().nvStatus = {{0xEA60, 4}, {0xEA61, 6}};
    EXPECT_EQ(AdjustWcdma(), 1);
    EXPECT_EQ(writeStatus, 4);
    EXPECT_EQ(readStatus, 6);
    EXPECT_EQ(item.Content(), Bytes(5, 0x55));
}

TEST_F(ReceiverTest, WithoutATableTheGainOffsetAloneIsStoredAndTheShownTableEndsTheText)
{
    StoreThresholds();
    EXPECT_EQ(AdjustWcdma(6), 1);
    EXPECT_EQ(Phone().nvItems.at(1814), Hex("41 E2"));
    EXPECT_FALSE(Phone().nvItems.contains(1815));
    const Texts log = Log();
    const auto shown
        = std::ranges::find(log, Success("TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(eNvBand = 6, iOffset = 57921, piVsFreq = "));
    EXPECT_NE(shown, log.end());
}

TEST_F(ReceiverTest, AFailureEndsTheMeasurementWithWhatWasDoneInFrontOfIt)
{
    const struct
    {
        uint16_t vgaBand, fallBand, riseBand, lnaIndex;
        std::string last;
        int writes, reads;
    } cases[] = {
        {7, 5, 6, 0, "VGA_GAIN(eNvBand = 7, iOffset = 57921, piVsFreq = ", 1, 0},
        {4, 3, 6, 0, "LNA_RANGE_FALL(eNvBand = 3, piFall1 = 21845, piFall2 = 21845, piFall3 = 21845)", 2, 0},
        {4, 5, 7, 0, "LNA_RANGE_RISE(eNvBand = 7, piRise1 = 21845, piRise2 = 21845, piRise3 = 21845)", 2, 4},
        {4, 5, 6, 4, "LNA_OFFSET(iLNAindex = 4 , iExpectedRX_AGC = -75, piLNAoffsetValue = 93)", 2, 7},
    };
    StoreThresholds();
    for (const auto& row : cases)
    {
        simulator::ForgetCalls();
        EXPECT_EQ(AdjustWcdma(row.vgaBand, nullptr, row.fallBand, row.riseBand, row.lnaIndex), 0);
        EXPECT_TRUE(LastLogText().ends_with(row.last + " - Failure\n")) << LastLogText();
        EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_WRITE_F"), row.writes) << row.last;
        EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_READ_F"), row.reads) << row.last;
    }
}

// --- NV items of a WCDMA band

TEST_F(ReceiverTest, EachWcdmaBandHasItsItems)
{
    const struct
    {
        uint16_t band;
        int gain, gainTable, fall[3], rise[3], lna[6];
    } bands[] = {
        {4, 856, 857, {520, 861, 862}, {519, 859, 860}, {524, 525, 865, 867, 866, 868}},
        {5, 1143, 1144, {1164, 1148, 1149}, {1163, 1146, 1147}, {1168, 1169, 1152, 1154, 1153, 1155}},
        {6, 1814, 1815, {1835, 1819, 1820}, {1834, 1817, 1818}, {1839, 1840, 1823, 1825, 1824, 1826}},
    };
    for (const auto& band : bands)
    {
        SCOPED_TRACE(band.band);
        FreshBench();
        Table gainTable('t', 16), first('1', 16), second('2', 16), third('3', 16);
        EXPECT_EQ(NV_WRITE_WCDMA_VGA_GAIN(handle, band.band, 0x1234, gainTable), 1);
        EXPECT_EQ(NV_WRITE_WCDMA_LNA_OFFSET(handle, static_cast<uint8_t>(band.band), 0x0102, first, -2, second, -0x8000,
                                            third),
                  1);
        const Texts writes{
            "QLIB_IsPhoneConnected() x6", WriteCall(band.gain, {0x34, 0x12}),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.gainTable, 't', 16),
            "QLIB_IsPhoneConnected() x6", WriteCall(band.lna[0], {0x02, 0x01}),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.lna[1], '1', 16),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.lna[2], {0xFE, 0xFF}),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.lna[3], '2', 16),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.lna[4], {0x00, 0x80}),
            "QLIB_IsPhoneConnected() x3", WriteCall(band.lna[5], '3', 16),
        };
        EXPECT_EQ(Calls(), writes);

        for (int i = 0; i < 3; ++i)
        {
            Phone().nvItems[static_cast<uint16_t>(band.fall[i])] = {'f', static_cast<uint8_t>('1' + i)};
            Phone().nvItems[static_cast<uint16_t>(band.rise[i])] = {'r', static_cast<uint8_t>('1' + i)};
        }
        for (const bool falls : {true, false})
        {
            simulator::ForgetCalls();
            simulator::ForgetLog();
            auto& outs = falls ? fall : rise;
            const auto readRange = falls ? NV_READ_WCDMA_LNA_RANGE_FALL : NV_READ_WCDMA_LNA_RANGE_RISE;
            EXPECT_EQ(readRange(handle, band.band, outs[0].Data(), outs[1].Data(), outs[2].Data()), 1);
            const int(&items)[3] = falls ? band.fall : band.rise;
            const std::string shown = falls ? "f" : "r";
            EXPECT_EQ(Log(), Chain({NvRead(items[0], shown + '1', 2), NvRead(items[1], shown + '2', 2),
                                    NvRead(items[2], shown + '3', 2)}));
            for (size_t i = 0; i < 3; ++i)
            {
                EXPECT_EQ(outs[i].Content(), Ascii(shown + std::to_string(i + 1)));
                EXPECT_TRUE(outs[i].GuardsIntact());
            }
            EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_READ_F"), 3);
        }
    }
}

TEST_F(ReceiverTest, UnknownWcdmaBandIsRefusedInSilenceBehindTheCheck)
{
    uint8_t out[2] = {1, 2};
    Table table('t', 16);
    for (const uint16_t band : std::initializer_list<uint16_t>{0, 3, 7, 0x0104, 0xFFFF})
    {
        SCOPED_TRACE(band);
        simulator::ForgetCalls();
        EXPECT_EQ(NV_WRITE_WCDMA_VGA_GAIN(handle, band, 1, table), 0);
        EXPECT_EQ(NV_READ_WCDMA_LNA_RANGE_FALL(handle, band, out, out, out), 0);
        EXPECT_EQ(NV_READ_WCDMA_LNA_RANGE_RISE(handle, band, out, out, out), 0);
        EXPECT_EQ(Calls(), Texts{"QLIB_IsPhoneConnected() x9"});
    }
    for (const uint8_t band : std::initializer_list<uint8_t>{0, 3, 7, 255})
        EXPECT_EQ(NV_WRITE_WCDMA_LNA_OFFSET(handle, band, 1, table, 2, table, 3, table), 0);
    EXPECT_EQ(Log(), Texts{});
    EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_WRITE_F"), 0);
    EXPECT_EQ(Bytes(out, out + 2), Hex("01 02"));
}

TEST_F(ReceiverTest, ThresholdsBehindOneThatCannotBeReadAreNotRead)
{
    Phone().nvItems[859] = {7, 7};
    Phone().nvItems[519] = {'r', 0};
    Phone().nvStatus[859] = 5;
    EXPECT_EQ(NV_READ_WCDMA_LNA_RANGE_RISE(handle, 4, rise[0].Data(), rise[1].Data(), rise[2].Data()), 0);
    EXPECT_EQ(LastLogText(), Failure("TANDEKOR_NV_READ_GSM_RX_REL_OFFSETS(iItemID = 859, cBin3 = UU, iLength = 2)"));
    EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_READ_F"), 2);
}

// --- storing of a calibration

namespace
{

// In the order of the arguments.
constexpr int rangeItems[16] = {726, 727, 728, 729, 1058, 1059, 1060, 1061, 730, 731, 732, 733, 1102, 1103, 1104, 1105};

size_t RangeSize(size_t index) { return index < 4 || index >= 12 ? 16 : 32; }
char RangeContent(size_t index) { return static_cast<char>('a' + index); }

class CalibrationTest : public ReceiverTest
{
protected:
    CalibrationTest()
    {
        for (size_t i = 0; i < 16; ++i)
            ranges.emplace_back(RangeContent(i), RangeSize(i));
    }

    uint8_t Write(uint8_t batch, uint8_t lnaBand = 5, uint16_t vgaBand = 6)
    {
        std::array<uint8_t*, 16> r{};
        std::copy(ranges.begin(), ranges.end(), r.begin());
        return TANDEKOR_Write_RX_Adjustment_Values(handle, batch, r[0], r[1], r[2], r[3], r[4], r[5], r[6], r[7], r[8],
                                                   r[9], r[10], r[11], r[12], r[13], r[14], r[15], lnaBand, -1, first,
                                                   0x4142, second, -0x7F9D, third, vgaBand, 0x4344, gain);
    }

    uint8_t WriteWithoutTables(uint8_t batch)
    {
        return TANDEKOR_Write_RX_Adjustment_Values(handle, batch, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                   nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                   nullptr, nullptr, nullptr, 4, 1, nullptr, 0, nullptr, -1, nullptr, 4,
                                                   0, nullptr);
    }

    // The result text of the GSM ranges, filled with what is shown of each.
    template <typename ShownRange>
    static std::string RangesText(ShownRange shown)
    {
        std::string text = "TANDEKOR_NV_WRITE_GSM_RX_GAIN_RANGE(";
        const char* bands[] = {"Gsm900Range", "Gsm1900Range", "Gsm1800Range", "Gsm850Range"};
        for (size_t i = 0; i < 16; ++i)
            text += (i == 0 ? "" : ", ") + std::string(bands[i / 4]) + std::to_string(i % 4 + 1) + " = " + shown(i);
        return text + ')';
    }

    static std::string ShownRange(size_t index) { return Repeated(RangeContent(index), RangeSize(index)); }

    std::vector<Table> ranges;
    Table first{'x', 16}, second{'y', 16}, third{'z', 16}, gain{'g', 16};
};

const Lines flush
    = Step("TANDEKOR_DIAG_NV_WRITE_FLUSH_BATCH_QUEUE()", Step("QLIB_DIAG_NV_WRITE_FlushBatchQueue(piLastErrorNvId = "));

}  // namespace

TEST_F(CalibrationTest, GoesOutInOneBatchWithEachValueForItsItem)
{
    simulator::BeforeCall("QLIB_DIAG_NV_WRITE_FlushBatchQueue", 1,
                          [] { EXPECT_FALSE(Phone().nvItems.contains(726)) << "queued only"; });
    EXPECT_EQ(Write('B'), 1);
    Texts calls{"QLIB_IsPhoneConnected() x3", "QLIB_DIAG_NV_WRITE_SetBatchMode(66)", "QLIB_IsPhoneConnected() x6"};
    for (size_t i = 0; i < 16; ++i)
    {
        calls.push_back(WriteCall(rangeItems[i], RangeContent(i), RangeSize(i)));
        calls.emplace_back(i < 15 ? "QLIB_IsPhoneConnected() x3" : "QLIB_IsPhoneConnected() x6");
    }
    const Texts rest{
        WriteCall(1168, {0xFF, 0xFF}),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1169, 'x', 16),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1152, {0x42, 0x41}),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1154, 'y', 16),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1153, {0x63, 0x80}),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1155, 'z', 16),
        "QLIB_IsPhoneConnected() x6",
        WriteCall(1814, {0x44, 0x43}),
        "QLIB_IsPhoneConnected() x3",
        WriteCall(1815, 'g', 16),
        "QLIB_IsPhoneConnected() x3",
        "QLIB_DIAG_NV_WRITE_FlushBatchQueue()",
    };
    calls.insert(calls.end(), rest.begin(), rest.end());
    EXPECT_EQ(Calls(), calls);

    Lines rangeWrites;
    for (size_t i = 0; i < 16; ++i)
        rangeWrites = rangeWrites + NvWrite(rangeItems[i], ShownRange(i), static_cast<int>(RangeSize(i)));
    const std::string x = Repeated('x', 16), y = Repeated('y', 16), z = Repeated('z', 16), g = Repeated('g', 16);
    const Texts log = Chain({
        "QLIB_DIAG_NV_WRITE_SetBatchMode(bStartBatchMode = B)",
        Step(RangesText(ShownRange), rangeWrites),
        Step("TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET(eNvBand = \x05, iOffset1 = -1, piVsFreq1 = " + x
                 + ", iOffset2 = 16706, piVsFreq2 = " + y + ", iOffset3 = -32669, piVsFreq3 = " + z + ')',
             Chain({NvWrite(1168, "\xFF\xFF", 2), NvWrite(1169, x, 16), NvWrite(1152, "BA", 2), NvWrite(1154, y, 16),
                    NvWrite(1153, "c\x80", 2), NvWrite(1155, z, 16)})),
        Step("TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(eNvBand = 6, iOffset = 17220, piVsFreq = " + g + ')',
             Chain({NvWrite(1814, "DC", 2), NvWrite(1815, g, 16)})),
        flush,
    });
    EXPECT_EQ(Log(), log);
    EXPECT_EQ(Phone().nvItems.at(733), Bytes(32, 'l'));
}

TEST_F(CalibrationTest, WithoutTablesTheFourOffsetsAreWrittenAndTheFlushRunsWithoutABatchToo)
{
    EXPECT_EQ(WriteWithoutTables(0), 1);
    const Texts log = Chain({
        "QLIB_DIAG_NV_WRITE_SetBatchMode(bStartBatchMode = ",
        RangesText([](size_t) { return std::string("(null)"); }),
        Step("TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET(eNvBand = \x04, iOffset1 = 1, piVsFreq1 = (null), iOffset2 = 0, "
             "piVsFreq2 = (null), iOffset3 = -1, piVsFreq3 = (null))",
             Chain({NvWrite(524, "\x01", 2), NvWrite(865, "", 2), NvWrite(866, "\xFF\xFF", 2)})),
        Step("TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(eNvBand = 4, iOffset = 0, piVsFreq = (null))", NvWrite(856, "", 2)),
        flush,
    });
    EXPECT_EQ(Log(), log);
}

TEST_F(CalibrationTest, AFailureInFrontOfTheFlushLeavesTheQueueUnwritten)
{
    const struct
    {
        uint8_t lnaBand;
        uint16_t vgaBand;
        int writes;
        std::string last;
    } cases[] = {
        {7, 4, 16, "TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET(eNvBand = \x07, iOffset1 = -1, "},
        {0, 4, 16, "TANDEKOR_NV_WRITE_WCDMA_LNA_OFFSET(eNvBand =  - Failure\n"},
        {4, 0x0104, 22, "TANDEKOR_NV_WRITE_WCDMA_VGA_GAIN(eNvBand = 260, iOffset = 17220, "},
    };
    for (const auto& row : cases)
    {
        FreshBench();
        EXPECT_EQ(Write(1, row.lnaBand, row.vgaBand), 0);
        EXPECT_TRUE(LastLogText().starts_with('\t' + row.last)) << LastLogText();
        EXPECT_TRUE(LastLogText().ends_with(" - Failure\n")) << LastLogText();
        EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_WRITE_F"), row.writes);
        EXPECT_EQ(simulator::CountCalls("QLIB_DIAG_NV_WRITE_FlushBatchQueue"), 0);
        EXPECT_FALSE(Phone().nvItems.contains(726));
    }
}

TEST_F(CalibrationTest, AnItemThatThePhoneRefusesShowsAtTheFlushOfABatchAndElseAtItsWrite)
{
    Phone().nvStatus[1115] = 3;
    Phone().nvStatus[1103] = 'C';
    EXPECT_EQ(Write(1), 0);
    const Texts log = Log();
    ASSERT_GE(log.size(), 3U);
    EXPECT_EQ(Texts(log.end() - 3, log.end()),
              Chain({Lines{Success("QLIB_DIAG_NV_WRITE_FlushBatchQueue(piLastErrorNvId = O, piLastTotalStatus =\x01, "
                                   "piLastItemStatus = C)")},
                     Lines{Failure("_iLastTotalStatus != (int)DIAG_MNVW_Status_OK")},
                     Lines{Failure("TANDEKOR_DIAG_NV_WRITE_FLUSH_BATCH_QUEUE()")}}));
    simulator::ForgetCalls();
    EXPECT_EQ(Write(0), 0);
    EXPECT_EQ(Calls().back(), WriteCall(1103, 'n', 16)) << "the tables behind it are not tried";
    EXPECT_EQ(LastLogText(), Failure(RangesText(ShownRange)));
}

}  // namespace tandekor::test
