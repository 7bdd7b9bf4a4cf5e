// The file operations on the simulated phone and its files, and how strict its server is.
#include "platform/qmsl.h"
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

class TransferTest : public ObexTest
{
protected:
    TransferTest()
    {
        EXPECT_EQ(With(TANDEKOR_AT_2_OBEX)(handle).result, 1);
        simulator::ForgetCalls();
    }

    static simulator::SimulatedFile* OnPhone(const std::string& path)
    {
        const auto file = simulator::ThePhone().files.find(path);
        return file == simulator::ThePhone().files.end() ? nullptr : &file->second;
    }

    // The out-arguments of a call that goes well but for these bits.
    std::vector<Bytes> Outs(const Call& call, uint16_t bits = 0)
    {
        const CallResult made = call(handle);
        EXPECT_EQ(made.result, 1);
        EXPECT_EQ(made.outs.back(), U16(bits));
        return made.outs;
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
        "85 00 0B 02 00" + id,                                  // the packet's length
        "85 00 11 02 00" + id + " 01 00 08 00 61 00 00",        // a header's length
        "83 00 0E" + id + " 4C 00 06 32 02 02",                 // a tag's length
        "85 00 0F 02 00" + id + " 01 00 05 00 61",              // a name without its end
        "85 00 13 02 00" + id + " 01 00 09 00 61 00 2F 00 00",  // a name with a slash
        "85 00 05 02 00",                                       // no connection identifier
        "85 00 0A 01 00" + id,                                  // flags
        "82 00 12" + id + " 01 00 07 00 61 00 00 49 00 03",     // headers that are none of an operation
        "83 00 08" + id,                                        // a get that was not begun
    };
    for (const std::string& packet : malformed)
        EXPECT_EQ(Answer(packet), "C0 00 03") << packet;
    EXPECT_EQ(Answer("85 00 0A 02 00 CB 00 00 00 02"), "D3 00 03");
    EXPECT_EQ(Answer("81 00 08" + id), "A0 00 08" + id);
    EXPECT_EQ(Answer("85 00 0A 02 00" + id), "D3 00 03");
}

}  // namespace tandekor::test
