// Files there and back, packet by packet, and host files that are not as they should be.
#include <filesystem>

#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

class FileOperationsTest : public ObexTest
{
protected:
    static inline const std::string getF = "83 00 0F CB 00 00 00 05 01 00 07 00 66 00 00";
    static inline const std::string next = "83 00 08 CB 00 00 00 05";
    static inline const std::string end = "A0 00 06 49 00 03";

    uint8_t Get() { return TANDEKOR_OBEX_GetFile(handle, "", "f", hostFolder.c_str(), &error); }
    uint8_t Send(const std::string& name) { return SendFrom(hostFolder, name); }
    uint8_t SendFrom(const std::string& folder, const std::string& name)
    {
        return TANDEKOR_OBEX_SendFile(handle, folder.c_str(), name.c_str(), "", &error);
    }

    // Gets the file f with these replies.
    void ExpectGet(const std::vector<std::string>& replies, uint16_t bits, const std::string& hostText)
    {
        SCOPED_TRACE(::testing::PrintToString(replies));
        std::vector<Turn> turns;
        turns.reserve(replies.size());
        for (const std::string& reply : replies)
            turns.push_back({turns.empty() ? getF : next, reply, 5000});
        ExpectSession(turns, 1, bits, [&] { return Get(); });
        EXPECT_EQ(HostText("f"), hostText);
    }

    // The first bytes of each packet after the connect, up to its identifier, with its real length.
    std::vector<std::string> SentPackets() const
    {
        std::vector<std::string> packets;
        for (size_t i = 1; i + 1 < CountExchanges(); ++i)
        {
            const Bytes& request = simulator::Exchanges()[i].request;
            packets.push_back(ToHex({request.begin(), request.begin() + 3}) + ", " + std::to_string(request.size()));
        }
        return packets;
    }

    // Sends f to a phone that takes every packet.
    void SendAll(size_t packets)
    {
        simulator::ForgetCalls();
        Replies(Hex(connect.reply));
        for (size_t i = 0; i < packets; ++i)
            Replies(Hex(done));
        Replies(Hex(disconnect.reply));
        EXPECT_EQ(Send("f"), 1);
        EXPECT_EQ(error, 0);
    }
};

}  // namespace

TEST_F(FileOperationsTest, GetWritesBodiesToTheHostFile)
{
    WriteHostFile("f", Ascii("what was there before, and is longer"));
    ExpectGet({"90 00 12 CB 00 00 00 05 C3 00 00 00 09 48 00 05 61 62", "90 00 0D C3 00 00 00 00 48 00 05 63 64",
               "90 00 06 48 00 03", "90 00 0D CB 00 00 00 05 48 00 05 0D 0A", end},
              0, "abcd\r\n");
    ExpectGet({"90 00 0A 48 00 05 65 66 67 68", "A0 00 0D CB 00 00 00 05 49 00 05 69 6A"}, 0, "ef");
    ExpectGet({"90 00 06 48 00 03", end}, 0, "");
    std::filesystem::remove(HostPath("f"));
    ExpectGet({end}, 0, "none");
}

TEST_F(FileOperationsTest, GetThatFailsLeavesWhatCame)
{
    const std::string ab = "90 00 08 48 00 05 61 62";
    ExpectGet({"C4 00 03"}, 64, "none");
    ExpectGet({"C3 00 03"}, 32, "none");
    ExpectGet({"90 00 0D CB 00 00 00 06 48 00 05 61 62"}, 32, "none");
    ExpectGet({"90 00 0D CB 00 00 00 05 42 00 05 61 62"}, 32, "none");
    ExpectGet({"90 00 08 49 00 05 61 62"}, 32, "none");
    ExpectGet({"90 00 0D CB 00 00 00 05"}, 32, "none");
    ExpectGet({"90"}, 32, "none");
    for (const char* bad : {"A0 00 0B CB 00 00 00 06 49 00 03", "A0 00 06 48 00 03", "A0 00 03",
                            "A0 00 0B CB 00 00 00 05", "A0", "D0 00 03"})
    {
        ExpectGet({ab, bad}, 32, "ab");
    }
    ExpectGet({ab, "90 00 08 48 00 05 63 64", "C4 00 03"}, 64, "abcd");
}

TEST_F(FileOperationsTest, GetTakesItsDataByTheBodyHeaderAndNotByThePacketLength)
{
    ExpectGet({"90 FF FF 48 00 05 61 62", "A0 FF FF 49 00 03"}, 0, "ab");
    ExpectGet({"90 00 00 48 00 05 63 64", "A0 00 00 49 00 03"}, 0, "cd");
}

TEST_F(FileOperationsTest, GetGoesOnWhenTheHostFileCannotBeWritten)
{
    std::filesystem::create_directory(HostPath("f"));
    const std::vector<Turn> turns
        = {{getF, "90 00 08 48 00 05 61 62", 5000}, {next, "90 00 08 48 00 05 63 64", 5000}, {next, end, 5000}};
    ExpectSession(turns, [&] { return Get(); });
    const std::string nowhere = HostPath("no such folder/");
    ExpectSession(turns, [&] { return TANDEKOR_OBEX_GetFile(handle, "", "f", nowhere.c_str(), &error); });
    EXPECT_FALSE(std::filesystem::exists(nowhere));
    // A file that cannot be opened for its second part.
    std::filesystem::remove(HostPath("f"));
    simulator::BeforeCall("QLIB_SendRAW", 3,
                          [&]
                          {
                              std::filesystem::remove(HostPath("f"));
                              std::filesystem::create_directory(HostPath("f"));
                          });
    ExpectSession(turns, [&] { return Get(); });
}

TEST_F(FileOperationsTest, SmallFileGoesInOnePacketWithItsTime)
{
    WriteHostFile("f.txt", Ascii("0123456789"));
    const std::string start = " CB 00 00 00 05 01 00 0F 00 66 00 2E 00 74 00 78 00 74 00 00 C3 00 00 00 ";
    ExpectSession(
        {{"82 00 3B" + start
              + "0A 44 00 12 32 30 32 34 30 33 30 39 54 30 37 30 35 30 32 49 00 0D 30 31 32 33 34 35 36 37 38 39",
          "A0 00 03", 9000}},
        [&] { return Send("f.txt"); });
    // The last second of a year, on a leap day's other side; and nothing to send.
    simulator::TheClock().utcStart = 1735689599;
    WriteHostFile("f.txt", {});
    ExpectSession(
        {{"82 00 31" + start + "00 44 00 12 32 30 32 34 31 32 33 31 54 32 33 35 39 35 39 49 00 03", "A0 00 03", 9000}},
        [&] { return Send("f.txt"); });
}

TEST_F(FileOperationsTest, LargerFileGoesInPacketsOf4093Bytes)
{
    const Bytes content = Noise(4052 + 4082 + 1);
    WriteHostFile("f", content);
    const auto part = [&](size_t from, size_t count)
    {
        const auto start = content.begin() + static_cast<ptrdiff_t>(from);
        return ToHex({start, start + static_cast<ptrdiff_t>(count)});
    };
    // The clock goes on during the transfer. Refusals of the phone do not end it.
    simulator::BeforeCall("QLIB_SendRAW", 3, [] { simulator::TheClock().now += 60'000; });
    ExpectSession(
        {{"02 0F FD CB 00 00 00 05 01 00 07 00 66 00 00 C3 00 00 1F C7 44 00 12 32 30 32 34 30 33 30 39 54 30 "
          "37 30 35 30 32 48 0F D7 "
              + part(0, 4052),
          "90 00 03", 9000},
         {"02 0F FD CB 00 00 00 05 48 0F F5 " + part(4052, 4082), "C3 00 03", 9000},
         {"82 00 0C CB 00 00 00 05 49 00 04 " + part(8134, 1), "", 9000}},
        [&] { return Send("f"); });
}

TEST_F(FileOperationsTest, SizesAroundOnePacket)
{
    using Packets = std::vector<std::string>;
    const std::pair<size_t, Packets> cases[] = {
        {4051, {"82 0F FC, 4092"}},
        {4052, {"82 0F FD, 4093"}},
        {4053, {"02 0F FD, 4093", "82 00 0C, 12"}},
        {4052 + 4082, {"02 0F FD, 4093", "82 0F FD, 4093"}},
    };
    for (const auto& [size, packets] : cases)
    {
        WriteHostFile("f", Noise(size));
        SendAll(packets.size());
        EXPECT_EQ(SentPackets(), packets);
    }
}

TEST_F(FileOperationsTest, SourceThatIsNoFileSendsNothing)
{
    std::filesystem::create_directory(HostPath("folder"));
    ExpectSession({}, 0, 64, [&] { return Send("missing"); });
    ExpectSession({}, 0, 64, [&] { return Send("folder"); });
    ExpectSession({}, 0, 64, [&] { return SendFrom(HostPath("no such folder/"), "f"); });
}

// A packet is as long as it says, also where the file has less for it than was announced.
TEST_F(FileOperationsTest, SourceThatGetsShorterArrivesShortWithNothingInItsPlace)
{
    const Bytes content = Noise(10'000);
    const struct
    {
        size_t kept;
        std::function<void()> change;
        std::vector<std::string> packets;
    } changes[] = {
        {5000,
         [&] { std::filesystem::resize_file(HostPath("f"), 5000); },
         {"02 0F FD, 4093", "02 03 BF, 959", "82 00 0B, 11"}},
        {4052, [&] { std::filesystem::remove(HostPath("f")); }, {"02 0F FD, 4093", "02 00 0B, 11", "82 00 0B, 11"}},
    };
    for (const auto& row : changes)
    {
        WriteHostFile("f", content);
        simulator::BeforeCall("QLIB_SendRAW", 2, row.change);
        SendAll(3);
        EXPECT_EQ(SentPackets(), row.packets);
        Bytes sent;
        for (size_t packet = 1; packet <= 3; ++packet)
        {
            const Bytes& request = simulator::Exchanges()[packet].request;
            sent.insert(sent.end(), request.begin() + (packet == 1 ? 41 : 11), request.end());
        }
        EXPECT_TRUE(sent == Bytes(content.begin(), content.begin() + static_cast<ptrdiff_t>(row.kept))) << sent.size();
    }
}

TEST_F(FileOperationsTest, HostPathHasAtMost259Characters)
{
    // A folder whose path leaves room for a name of one character.
    const char separator = hostFolder.back();
    const std::string inner = std::string(100, 'd') + separator + std::string(258 - hostFolder.size() - 102, 'd');
    const std::string folder = hostFolder + inner + separator;
    std::filesystem::create_directories(folder);
    const std::string longest = inner + separator;
    WriteHostFile(longest + "f", Ascii("ab"));
    const std::vector<Turn> put
        = {{"82 00 2B CB 00 00 00 05 01 00 07 00 66 00 00 C3 00 00 00 02 44 00 12 32 30 32 34 30 "
            "33 30 39 54 30 37 30 35 30 32 49 00 05 61 62",
            "A0 00 03", 9000}};
    ExpectSession(put, [&] { return SendFrom(folder, "f"); });
    ExpectSession({{getF, "90 00 08 48 00 05 63 64", 5000}, {next, end, 5000}},
                  [&] { return TANDEKOR_OBEX_GetFile(handle, "", "f", folder.c_str(), &error); });
    EXPECT_EQ(HostText(longest + "f"), "cd");

    // One character more, and many.
    WriteHostFile(longest + "ff", Ascii("ab"));
    for (const std::string& name : {std::string("ff"), std::string(70'000, 'f')})
    {
        ExpectSession({}, 0, 64, [&] { return SendFrom(folder, name); });
        ExpectSession({}, 1, 32,
                      [&] { return TANDEKOR_OBEX_GetFile(handle, "", name.c_str(), folder.c_str(), &error); });
    }
    EXPECT_EQ(HostText(longest + "ff"), "ab");
}

}  // namespace tandekor::test
