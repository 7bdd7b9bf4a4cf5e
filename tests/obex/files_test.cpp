// Listings and files to the host and files back, packet by packet, host files that are not as they should be; and the
// same on the simulated phone and its files, and how strict its server is.
#include <algorithm>
#include <filesystem>
#include <regex>

#include "platform/qmsl.h"
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

namespace fs = std::filesystem;

// The turns of a Get: the first request, and the same request again for each further reply.
std::string GetTurns(const std::string& first, const std::string& replies)
{
    return "get id " + first + " > " + std::regex_replace(replies, std::regex("\\|"), " @5000;get id > ") + " @5000";
}

// Rows of "reply|reply = value ... text", parted by semicolons or line ends.
std::vector<std::smatch> Rows(const std::string& rows, const std::string& values)
{
    const std::regex row("([^\\s;][^=;\n]*) = " + values);
    std::vector<std::smatch> all{std::sregex_iterator(rows.begin(), rows.end(), row), {}};
    EXPECT_EQ(all.size(), static_cast<size_t>(std::count(rows.begin(), rows.end(), '='))) << "each row is read";
    return all;
}

class FileOperationsTest : public ObexTest
{
protected:
    Call GetTo(const std::string& folder) { return With(TANDEKOR_OBEX_GetFile, {"", "f", folder}); }
    Call Send(const std::string& at, const std::string& name) { return With(TANDEKOR_OBEX_SendFile, {at, name, ""}); }

    // Sends f to a phone that takes all. The start and the length of each packet; and their data.
    std::string SentPackets(Bytes& data)
    {
        simulator::ForgetCalls();
        simulator::RepeatReply({Hex(Packet("done 10 00 10 00 id" + who)), 1, {}});
        EXPECT_EQ(Send(hostFolder, "f")(handle).result, 1);
        std::string sent;
        for (size_t i = 1; i + 1 < CountExchanges(); ++i)
        {
            const Bytes& request = simulator::Exchanges()[i].request;
            sent += ToHex({request.begin(), request.begin() + 3}) + ", " + std::to_string(request.size()) + "; ";
            data.insert(data.end(), request.begin() + (i == 1 ? 41 : 11), request.end());
        }
        return sent;
    }
};

class TransferTest : public ObexTest
{
protected:
    TransferTest() { EXPECT_EQ(With(TANDEKOR_AT_2_OBEX)(handle).result, 1); }

    static simulator::SimulatedFile* OnPhone(const std::string& path)
    {
        const auto file = simulator::ThePhone().files.find(path);
        return file == simulator::ThePhone().files.end() ? nullptr : &file->second;
    }
    bool Lists(const char* folder, const std::string& line)
    {
        const Bytes listing = Outs(With(TANDEKOR_OBEX_ListDir, {folder, Out{20'000}, U32(20'000)}))[0];
        return std::string(listing.begin(), listing.end()).find(line) != std::string::npos;
    }
    uint32_t FreeSpace() { return Values(Outs(With(TANDEKOR_OBEX_FreeSpaceCheck)))[0]; }

    // What the phone answers to a packet of its own.
    std::string Answer(const std::string& packet) const
    {
        Bytes request = Hex(packet);
        Bytes response(4096);
        uint16_t length = 4096;
        QLIB_SendRAW(handle, static_cast<uint16_t>(request.size()), request.data(), &length, response.data(), 1000);
        return ToHex({response.begin(), response.begin() + length});
    }
};

}  // namespace

TEST_F(FileOperationsTest, GetWritesBodiesToTheHostFileAndLeavesWhatCame)
{
    WriteHostFile("f", Ascii("what was there before, and is longer"));
    // The data are found by the Body header and not by the packet's length.
    const std::string rows = R"(
        continue 48 00 05 65 66 67 68|done id end:ij = 0 ef; continue body:|done end: = 0 -
        90 FF FF body:ab|A0 FF FF end: = 0 ab; 90 00 00 body:cd|A0 00 00 end: = 0 cd; done end: = 0 none
        missing = 64 none; forbidden = 32 none; continue CB 00 00 00 06 body:ab = 32 none
        continue id 42 00 05 61 62 = 32 none; continue end:ab = 32 none; continue id = 32 none; 90 = 32 none
        continue body:ab|done CB 00 00 00 06 end: = 32 ab; continue body:ab|done body: = 32 ab
        continue body:ab|done = 32 ab; continue body:ab|done id = 32 ab; continue body:ab|A0 = 32 ab
        continue body:ab|refused = 32 ab; continue body:ab|continue body:cd|missing = 64 abcd
    )";
    const std::string whole
        = "continue id size:9 body:ab|continue size:0 body:cd|continue body:|continue id 48 00 05 0D 0A|done end:";
    ExpectSessions({{GetTo(hostFolder), GetTurns("name:f", whole)}});
    EXPECT_EQ(HostText("f"), "abcd\r\n");
    for (const std::smatch& row : Rows(rows, "(\\d+) (-|\\w+)"))
    {
        if (row[3] == "none")
            fs::remove(HostPath("f"));
        ExpectSessions({{GetTo(hostFolder), GetTurns("name:f", row[1]), static_cast<uint16_t>(std::stoi(row[2]))}});
        EXPECT_EQ(HostText("f"), row[3] == "-" ? "" : row[3].str());
    }
}

TEST_F(FileOperationsTest, ListingIsPutTogetherInTheCallersBuffer)
{
    const auto expect = [&](const std::string& replies, size_t capacity, int bits, size_t size, Bytes written)
    {
        written.resize(capacity, 0x55);
        const Call list = With(TANDEKOR_OBEX_ListDir, {"", Out{capacity}, U32(capacity)});
        const std::string turns = GetTurns("42 00 19 text:x-obex/folder-listing 00", replies);
        ExpectSessions({{list, turns, static_cast<uint16_t>(bits), 1, {written, U32(size)}}});
    };
    // The size of the buffer, the error, the size that is told, and what is written.
    const std::string rows = R"(
        continue body:abcd|done end: = 8 0 4 abcd
        continue id body:abcd|continue body:ef|continue body:|done id end: = 8 0 6 abcdef; done end: = 8 0 0 -
        continue body:ab|done end:cd = 8 0 2 ab; continue 48 00 04 text:abcd|done end: = 8 0 4 abcd
        continue 48 00 07 text:ab|done end: = 8 0 2 ab
        continue size:4 body:ab|continue body:cd|done end: = 4 0 4 abcd; continue size:5 body:ab = 4 16 5 -
        continue size:4294967295 body:ab = 4 16 4294967295 -; continue body:abcde = 4 16 4 abcd
        continue body:abcd|continue body:ef = 4 16 4 abcd; continue size:1 body:abcde = 4 16 1 abcd
        continue body:a = 0 16 0 -; continue CB 00 00 00 06 body:ab = 8 8 8 -
        continue body:ab|done CB 00 00 00 06 end: = 8 8 8 ab; continue body:ab|done = 8 8 8 ab
        continue body:ab|done body: = 8 8 8 ab; continue end: = 8 8 8 -; continue size:4 42 00 05 61 62 = 8 8 4 -
        continue size:4 body:ab|C1 00 03 = 8 8 4 ab; continue id = 8 8 8 -; continue body:ab|done id = 8 8 8 ab
    )";
    for (const std::smatch& row : Rows(rows, "(\\d+) (\\d+) (\\d+) (-|\\w+)"))
        expect(row[1], std::stoul(row[2]), std::stoi(row[3]), std::stoul(row[4]),
               row[5] == "-" ? Bytes() : Ascii(row[5]));
    expect("continue body:ab size:2|A0", 16, 8, 16, Hex("61 62 C3 00 00 00 02"));
}

TEST_F(FileOperationsTest, GetGoesOnWhenTheHostFileCannotBeWritten)
{
    const std::string turns = GetTurns("name:f", "continue body:ab|continue body:cd|done end:");
    const std::string nowhere = HostPath("no such folder/");
    fs::create_directory(HostPath("f"));
    ExpectSessions({{GetTo(hostFolder), turns}, {GetTo(nowhere), turns}});
    EXPECT_FALSE(fs::exists(nowhere));
    // A file that cannot be opened for its second part.
    fs::remove(HostPath("f"));
    simulator::BeforeCall("QLIB_SendRAW", 3, [&] { fs::remove(HostPath("f")), fs::create_directory(HostPath("f")); });
    ExpectSessions({{GetTo(hostFolder), turns}});
}

TEST_F(FileOperationsTest, SmallFileGoesInOnePacketWithItsTime)
{
    WriteHostFile("f.txt", Ascii("0123456789"));
    const std::string start = "last-put id name:f.txt size:";
    ExpectSessions({{Send(hostFolder, "f.txt"), start + "10 time:20240309T070502 end:0123456789 > done @9000"}});
    // The last second of a year, on a leap day's other side; and nothing to send.
    simulator::TheClock().utcStart = 1735689599;
    WriteHostFile("f.txt", {});
    ExpectSessions({{Send(hostFolder, "f.txt"), start + "0 time:20241231T235959 end: > done @9000"}});
}

// A packet is as long as it says, also where the file has less for it than was announced.
TEST_F(FileOperationsTest, PacketsBySizeOfTheFileAndWhatIsLeftOfIt)
{
    // The size, and what is kept after the first packet, which is nothing if the file is removed.
    const std::tuple<size_t, size_t, const char*> rows[] = {
        {4051, 4051, "82 0F FC, 4092; "},
        {4052, 4052, "82 0F FD, 4093; "},
        {4053, 4053, "02 0F FD, 4093; 82 00 0C, 12; "},
        {4052 + 4082, 4052 + 4082, "02 0F FD, 4093; 82 0F FD, 4093; "},
        {10'000, 5000, "02 0F FD, 4093; 02 03 BF, 959; 82 00 0B, 11; "},
        {10'000, 0, "02 0F FD, 4093; 02 00 0B, 11; 82 00 0B, 11; "},
    };
    for (const auto& [size, kept, packets] : rows)
    {
        WriteHostFile("f", Noise(size));
        const auto cut
            = [&, left = kept] { left == 0 ? void(fs::remove(HostPath("f"))) : fs::resize_file(HostPath("f"), left); };
        simulator::BeforeCall("QLIB_SendRAW", 2, cut);
        Bytes data;
        EXPECT_EQ(SentPackets(data), packets);
        EXPECT_TRUE(data == Noise(kept == 0 ? 4052 : kept)) << data.size();
    }
}

TEST_F(FileOperationsTest, HostPathHasAtMost259Characters)
{
    // A folder whose path leaves room for a name of one character.
    const char separator = hostFolder.back();
    const std::string inner = std::string(100, 'd') + separator + std::string(258 - hostFolder.size() - 102, 'd');
    const std::string folder = hostFolder + inner + separator, longest = inner + separator;
    fs::create_directories(folder);
    WriteHostFile(longest + "f", Ascii("ab"));
    ExpectSessions({{Send(folder, "f"), "last-put id name:f size:2 time:20240309T070502 end:ab > done @9000"},
                    {GetTo(folder), GetTurns("name:f", "continue body:cd|done end:")}});
    EXPECT_EQ(HostText(longest + "f"), "cd");

    // One character more, and many.
    WriteHostFile(longest + "ff", Ascii("ab"));
    for (const std::string& name : {std::string("ff"), std::string(70'000, 'f')})
        ExpectSessions({{Send(folder, name), "", 64, 0}, {With(TANDEKOR_OBEX_GetFile, {"", name, folder}), "", 32}});
    EXPECT_EQ(HostText(longest + "ff"), "ab");
}

TEST_F(TransferTest, FilesOfAllSizesGoThereAndBack)
{
    for (const bool announced : {true, false})
    {
        simulator::ThePhone().announcesLength = announced;
        for (const size_t size : {0, 1, 4051, 4052, 4053, 4052 + 4082, 1024 * 1024})
        {
            SCOPED_TRACE(size);
            const Bytes content = Noise(size);
            WriteHostFile("f", content);
            Outs(With(TANDEKOR_OBEX_SendFile, {host, "f", "Pictures\\Holiday\\"}));
            ASSERT_NE(OnPhone("Pictures/Holiday/f"), nullptr);
            EXPECT_TRUE(OnPhone("Pictures/Holiday/f")->content == content);
            EXPECT_EQ(OnPhone("Pictures/Holiday/f")->time, "20240309T070502");
            WriteHostFile("f", {});
            Outs(With(TANDEKOR_OBEX_GetFile, {"\\Pictures\\Holiday\\", "f", host}));
            EXPECT_TRUE(HostContent("f") == content);
        }
    }
}

TEST_F(TransferTest, PhoneIsRearranged)
{
    const std::string made = "Pictures\\N\xE4\"w\\";
    const Call remove = With(TANDEKOR_OBEX_DeleteFile, {"Sounds\\", "beach.jpg"});
    const uint32_t before = FreeSpace();
    Outs(With(TANDEKOR_OBEX_CreateFolder, {"Pictures\\", "N\xE4\"w"}));
    EXPECT_TRUE(Lists("Pictures\\", "<folder name=\"N&#228;&#34;w\"/>"));
    Outs(With(TANDEKOR_OBEX_CopyFile, {"Pictures\\Holiday\\", "beach.jpg", "Sounds\\"}));
    Outs(With(TANDEKOR_OBEX_MoveFile, {"\\Pictures\\Holiday\\", "beach.jpg", "\\" + made}));
    EXPECT_TRUE(OnPhone("Sounds/beach.jpg") != nullptr && OnPhone("Pictures/N\xE4\"w/beach.jpg") != nullptr);
    EXPECT_EQ(OnPhone("Pictures/Holiday/beach.jpg"), nullptr);
    EXPECT_EQ(before - FreeSpace(), 12'000U);
    EXPECT_TRUE(Lists("Sounds\\", "<file name=\"beach.jpg\" size=\"12000\""));

    Outs(With(TANDEKOR_OBEX_SetAttr, {"Sounds\\", "beach.jpg", 3, 0}));
    EXPECT_EQ(OnPhone("Sounds/beach.jpg")->permissions, "\"RW\"\"\"");
    Outs(With(TANDEKOR_OBEX_MoveFile, {"Sounds\\", "beach.jpg", "Pictures\\"}), 4096);
    Outs(remove);
    EXPECT_NE(OnPhone("Sounds/beach.jpg"), nullptr) << "refused, which is no error bit";
    Outs(With(TANDEKOR_OBEX_SetAttr, {"Sounds\\", "beach.jpg", 4, 0}));
    Outs(remove);
    EXPECT_EQ(OnPhone("Sounds/beach.jpg"), nullptr);
}

TEST_F(TransferTest, ServerOfThePhoneIsStrict)
{
    const std::string id = " CB 00 00 00 01";
    EXPECT_EQ(Answer(Turns(connected)[0].request).substr(0, 35), "A0 00 1F 10 00 10 00" + id);
    EXPECT_EQ(Answer("85 00 0A 02 00" + id), "A0 00 03");
    const std::string malformed[] = {
        // The length of the packet, of a header, of a tag; a name without its end and one with a slash.
        "85 00 0B 02 00" + id, "85 00 11 02 00" + id + " 01 00 08 00 61 00 00", "83 00 0E" + id + " 4C 00 06 32 02 02",
        "85 00 0F 02 00" + id + " 01 00 05 00 61", "85 00 13 02 00" + id + " 01 00 09 00 61 00 2F 00 00",
        // No connection identifier, flags, headers that are none of an operation, a get that was not begun.
        "85 00 05 02 00", "85 00 0A 01 00" + id, "82 00 12" + id + " 01 00 07 00 61 00 00 49 00 03", "83 00 08" + id};
    for (const std::string& packet : malformed)
        EXPECT_EQ(Answer(packet), "C0 00 03") << packet;
    EXPECT_EQ(Answer("85 00 0A 02 00 CB 00 00 00 02"), "D3 00 03");
    EXPECT_EQ(Answer("81 00 08" + id), "A0 00 08" + id);
    EXPECT_EQ(Answer("85 00 0A 02 00" + id), "D3 00 03");
}

}  // namespace tandekor::test
