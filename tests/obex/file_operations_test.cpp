// Listings and files to the host and files back, packet by packet, and host files that are not as they should be.
#include <filesystem>
#include <sstream>

#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

// The turns of a Get: the first request, and the same request again for each further reply.
std::string GetTurns(const std::string& first, const std::string& replies)
{
    std::string turns;
    std::istringstream stream(replies);
    for (std::string reply; std::getline(stream, reply, ';');)
        turns += (turns.empty() ? "get id " + first : ";get id") + " > " + reply + " @5000";
    return turns;
}

class FileOperationsTest : public ObexTest
{
protected:
    Call GetTo(const std::string& folder) { return With(TANDEKOR_OBEX_GetFile, {"", "f", folder}); }
    Call SendFrom(const std::string& folder, const std::string& name)
    {
        return With(TANDEKOR_OBEX_SendFile, {folder, name, ""});
    }

    // Sends f to a phone that takes this many packets. The start and the real length of each; and their data.
    std::vector<std::string> SentPackets(size_t packets, Bytes& data)
    {
        simulator::ForgetCalls();
        for (const Turn& turn : Turns(connected))
            Replies(Hex(turn.reply));
        for (size_t i = 0; i < packets; ++i)
            Replies(Hex("A0 00 03"));
        Replies(Hex(Packet("done id")));
        EXPECT_EQ(SendFrom(hostFolder, "f")(handle).result, 1);
        std::vector<std::string> sent;
        for (size_t i = 1; i + 1 < CountExchanges(); ++i)
        {
            const Bytes& request = simulator::Exchanges()[i].request;
            sent.push_back(ToHex({request.begin(), request.begin() + 3}) + ", " + std::to_string(request.size()));
            data.insert(data.end(), request.begin() + (i == 1 ? 41 : 11), request.end());
        }
        return sent;
    }
};

}  // namespace

TEST_F(FileOperationsTest, GetWritesBodiesToTheHostFileAndLeavesWhatCame)
{
    WriteHostFile("f", Ascii("what was there before, and is longer"));
    const struct
    {
        const char* replies;
        uint16_t bits;
        const char* text;  // none: there is no host file
    } rows[] = {
        {"continue id size:9 body:ab;continue size:0 body:cd;continue body:;continue id 48 00 05 0D 0A;done end:", 0,
         "abcd\r\n"},
        {"continue 48 00 05 65 66 67 68;done id end:ij", 0, "ef"},
        {"continue body:;done end:", 0, ""},
        // The data are found by the Body header and not by the packet's length.
        {"90 FF FF body:ab;A0 FF FF end:", 0, "ab"},
        {"90 00 00 body:cd;A0 00 00 end:", 0, "cd"},
        {"done end:", 0, "none"},
        {"missing", 64, "none"},
        {"forbidden", 32, "none"},
        {"continue CB 00 00 00 06 body:ab", 32, "none"},
        {"continue id 42 00 05 61 62", 32, "none"},
        {"continue end:ab", 32, "none"},
        {"continue id", 32, "none"},
        {"90", 32, "none"},
        {"continue body:ab;done CB 00 00 00 06 end:", 32, "ab"},
        {"continue body:ab;done body:", 32, "ab"},
        {"continue body:ab;done", 32, "ab"},
        {"continue body:ab;done id", 32, "ab"},
        {"continue body:ab;A0", 32, "ab"},
        {"continue body:ab;refused", 32, "ab"},
        {"continue body:ab;continue body:cd;missing", 64, "abcd"},
    };
    for (const auto& row : rows)
    {
        if (row.text == std::string("none"))
            std::filesystem::remove(HostPath("f"));
        ExpectSessions({{GetTo(hostFolder), GetTurns("name:f", row.replies), row.bits}});
        EXPECT_EQ(HostText("f"), row.text);
    }
}

TEST_F(FileOperationsTest, ListingIsPutTogetherInTheCallersBuffer)
{
    const struct
    {
        const char* replies;
        uint32_t capacity;
        uint16_t bits;
        uint32_t sizeAfter;
        std::string content;
    } rows[] = {
        {"continue body:abcd;done end:", 8, 0, 4, "abcd"},
        {"continue id body:abcd;continue body:ef;continue body:;done id end:", 8, 0, 6, "abcdef"},
        {"done end:", 8, 0, 0, ""},
        {"continue body:ab;done end:cd", 8, 0, 2, "ab"},
        {"continue 48 00 04 text:abcd;done end:", 8, 0, 4, "abcd"},
        {"continue 48 00 07 text:ab;done end:", 8, 0, 2, "ab"},
        // Larger than the buffer, announced; unannounced, at once and later; more than was announced.
        {"continue size:4 body:ab;continue body:cd;done end:", 4, 0, 4, "abcd"},
        {"continue size:5 body:ab", 4, 16, 5, ""},
        {"continue size:4294967295 body:ab", 4, 16, 0xFFFFFFFF, ""},
        {"continue body:abcde", 4, 16, 4, "abcd"},
        {"continue body:abcd;continue body:ef", 4, 16, 4, "abcd"},
        {"continue size:1 body:abcde", 4, 16, 1, "abcd"},
        {"continue body:a", 0, 16, 0, ""},
        // Of another form, or cut before the Body or the End of Body.
        {"continue CB 00 00 00 06 body:ab", 8, 8, 8, ""},
        {"continue body:ab;done CB 00 00 00 06 end:", 8, 8, 8, "ab"},
        {"continue body:ab;done", 8, 8, 8, "ab"},
        {"continue body:ab;done body:", 8, 8, 8, "ab"},
        {"continue end:", 8, 8, 8, ""},
        {"continue body:ab size:2;A0", 16, 8, 16, "ab\xC3" + std::string("\0\0\0\2", 4)},
        {"continue size:4 42 00 05 61 62", 8, 8, 4, ""},
        {"continue size:4 body:ab;C1 00 03", 8, 8, 4, "ab"},
        {"continue id", 8, 8, 8, ""},
        {"continue body:ab;done id", 8, 8, 8, "ab"},
    };
    for (const auto& row : rows)
    {
        Bytes expected = Ascii(row.content);
        expected.resize(row.capacity, 0x55);
        ExpectSessions({{With(TANDEKOR_OBEX_ListDir, {"", Out{row.capacity}, U32(row.capacity)}),
                         GetTurns("42 00 19 text:x-obex/folder-listing 00", row.replies),
                         row.bits,
                         1,
                         {expected, U32(row.sizeAfter)}}});
    }
}

TEST_F(FileOperationsTest, GetGoesOnWhenTheHostFileCannotBeWritten)
{
    const std::string turns = GetTurns("name:f", "continue body:ab;continue body:cd;done end:");
    const std::string nowhere = HostPath("no such folder/");
    std::filesystem::create_directory(HostPath("f"));
    ExpectSessions({{GetTo(hostFolder), turns}, {GetTo(nowhere), turns}});
    EXPECT_FALSE(std::filesystem::exists(nowhere));
    // A file that cannot be opened for its second part.
    std::filesystem::remove(HostPath("f"));
    const auto replace
        = [&] { std::filesystem::remove(HostPath("f")), std::filesystem::create_directory(HostPath("f")); };
    simulator::BeforeCall("QLIB_SendRAW", 3, replace);
    ExpectSessions({{GetTo(hostFolder), turns}});
}

TEST_F(FileOperationsTest, SmallFileGoesInOnePacketWithItsTime)
{
    WriteHostFile("f.txt", Ascii("0123456789"));
    const std::string start = "last-put id name:f.txt size:";
    ExpectSessions({{SendFrom(hostFolder, "f.txt"), start + "10 time:20240309T070502 end:0123456789 > done @9000"}});
    // The last second of a year, on a leap day's other side; and nothing to send.
    simulator::TheClock().utcStart = 1735689599;
    WriteHostFile("f.txt", {});
    ExpectSessions({{SendFrom(hostFolder, "f.txt"), start + "0 time:20241231T235959 end: > done @9000"}});
}

// A packet is as long as it says, also where the file has less for it than was announced.
TEST_F(FileOperationsTest, PacketsBySizeOfTheFileAndWhatIsLeftOfIt)
{
    const std::string full = "02 0F FD, 4093", empty = "82 00 0B, 11";
    const struct
    {
        size_t size, kept;  // kept 0: the file is removed after its first packet
        std::vector<std::string> packets;
    } rows[] = {
        {4051, 4051, {"82 0F FC, 4092"}},
        {4052, 4052, {"82 0F FD, 4093"}},
        {4053, 4053, {full, "82 00 0C, 12"}},
        {4052 + 4082, 4052 + 4082, {full, "82 0F FD, 4093"}},
        {10'000, 5000, {full, "02 03 BF, 959", empty}},
        {10'000, 0, {full, "02 00 0B, 11", empty}},
    };
    for (const auto& row : rows)
    {
        WriteHostFile("f", Noise(row.size));
        if (row.packets.size() == 3)
            simulator::BeforeCall("QLIB_SendRAW", 2,
                                  [&, kept = row.kept]
                                  {
                                      if (kept == 0)
                                          std::filesystem::remove(HostPath("f"));
                                      else
                                          std::filesystem::resize_file(HostPath("f"), kept);
                                  });
        Bytes data;
        EXPECT_EQ(SentPackets(row.packets.size(), data), row.packets);
        EXPECT_TRUE(data == Noise(row.kept == 0 ? 4052 : row.kept)) << data.size();
    }
}

TEST_F(FileOperationsTest, HostPathHasAtMost259Characters)
{
    // A folder whose path leaves room for a name of one character.
    const char separator = hostFolder.back();
    const std::string inner = std::string(100, 'd') + separator + std::string(258 - hostFolder.size() - 102, 'd');
    const std::string folder = hostFolder + inner + separator, longest = inner + separator;
    std::filesystem::create_directories(folder);
    WriteHostFile(longest + "f", Ascii("ab"));
    ExpectSessions({{SendFrom(folder, "f"), "last-put id name:f size:2 time:20240309T070502 end:ab > done @9000"},
                    {GetTo(folder), GetTurns("name:f", "continue body:cd;done end:")}});
    EXPECT_EQ(HostText(longest + "f"), "cd");

    // One character more, and many.
    WriteHostFile(longest + "ff", Ascii("ab"));
    for (const std::string& name : {std::string("ff"), std::string(70'000, 'f')})
        ExpectSessions(
            {{SendFrom(folder, name), "", 64, 0}, {With(TANDEKOR_OBEX_GetFile, {"", name, folder}), "", 32}});
    EXPECT_EQ(HostText(longest + "ff"), "ab");
}

}  // namespace tandekor::test
