// Delete, create, copy, move, permissions and free space: their packets and their limits.
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

using ObjectOperationsTest = ObexTest;

const Turn setPath = {"85 00 11 02 00 CB 00 00 00 05 01 00 07 00 61 00 00", "A0 00 03"};

}  // namespace

TEST_F(ObjectOperationsTest, PacketsOfEachOperation)
{
    ExpectSession({setPath, {"82 00 15 CB 00 00 00 05 01 00 0D 00 66 00 2E 00 FF 00 78 00 00", done, 5000}},
                  [&] { return TANDEKOR_OBEX_DeleteFile(handle, "a\\", "f.\xFFx", &error); });
    ExpectSession({setPath, {"85 00 13 00 00 CB 00 00 00 05 01 00 09 00 6E 00 65 00 00", done}},
                  [&] { return TANDEKOR_OBEX_CreateFolder(handle, "a\\", "ne", &error); });
    const std::string paths
        = "35 14 00 44 00 61 00 74 00 61 00 2F 00 53 00 75 00 62 00 2F 00 78 "
          "36 08 00 2F 00 42 00 2F 00 78";
    ExpectSession({{"82 00 31 CB 00 00 00 05 4C 00 29 34 04 63 6F 70 79 " + paths, done, 6000}},
                  [&] { return TANDEKOR_OBEX_CopyFile(handle, "Data\\Sub\\", "x", "\\B\\", &error); });
    ExpectSession({{"82 00 31 CB 00 00 00 05 4C 00 29 34 04 6D 6F 76 65 " + paths, done, 6000}},
                  [&] { return TANDEKOR_OBEX_MoveFile(handle, "Data\\Sub\\", "x", "\\B\\", &error); });
    // The name keeps its backslash.
    ExpectSession(
        {{"82 00 21 CB 00 00 00 05 4C 00 19 34 04 63 6F 70 79 35 06 00 61 00 5C 00 62 36 06 00 63 00 5C 00 62", done,
          6000}},
        [&] { return TANDEKOR_OBEX_CopyFile(handle, "a", "\\b", "c", &error); });
    uint32_t freeSpace = 0x55555555;
    ExpectSession({{"83 00 0E CB 00 00 00 05 4C 00 06 32 01 02", "A0 00 0C 4C 00 09 32 04 80 00 10 07", 5000}},
                  [&] { return TANDEKOR_OBEX_FreeSpaceCheck(handle, &freeSpace, &error); });
    EXPECT_EQ(freeSpace, 0x80001007U);
}

TEST_F(ObjectOperationsTest, PermissionMasksAreTexts)
{
    const std::string start = " CB 00 00 00 05 01 00 07 00 66 00 00 4C 00 ";
    const std::tuple<uint32_t, uint32_t, std::string> cases[] = {
        {5, 0, "82 00 1A" + start + "0B 38 06 22 52 44 22 22 22"},
        {1, 2, "82 00 1A" + start + "0B 38 06 22 52 22 22 57 22"},
        {3, 4, "82 00 1B" + start + "0C 38 07 22 52 57 22 22 44 22"},
        {6, 7, "82 00 1D" + start + "0E 38 09 22 57 44 22 22 52 57 44 22"},
        {8, 0xFFFFFFFF, "82 00 18" + start + "09 38 04 22 22 22 22"},
    };
    for (const auto& [firstMask, secondMask, request] : cases)
        ExpectSession({setPath, {request, done}}, [&, masks = std::pair(firstMask, secondMask)]
                      { return TANDEKOR_OBEX_SetAttr(handle, "a\\", "f", masks.first, masks.second, &error); });
}

TEST_F(ObjectOperationsTest, EmptyTextsSendNothing)
{
    WriteHostFile("f", {1});
    ExpectSession({setPath}, [&] { return TANDEKOR_OBEX_DeleteFile(handle, "a\\", "", &error); });
    ExpectSession({setPath}, [&] { return TANDEKOR_OBEX_CreateFolder(handle, "a\\", "", &error); });
    ExpectSession({setPath}, [&] { return TANDEKOR_OBEX_GetFile(handle, "a\\", "", host, &error); });
    ExpectSession({setPath}, [&] { return TANDEKOR_OBEX_SendFile(handle, host, "", "a\\", &error); });
    ExpectSession({setPath}, [&] { return TANDEKOR_OBEX_SendFile(handle, "", "f", "a\\", &error); });
    ExpectSession({setPath}, 1, 8192, [&] { return TANDEKOR_OBEX_SetAttr(handle, "a\\", "", 1, 1, &error); });
    ExpectSession({}, 1, 1024, [&] { return TANDEKOR_OBEX_CopyFile(handle, "", "f", "b\\", &error); });
    ExpectSession({}, 1, 1024, [&] { return TANDEKOR_OBEX_CopyFile(handle, "a\\", "", "b\\", &error); });
    ExpectSession({}, 1, 2048, [&] { return TANDEKOR_OBEX_MoveFile(handle, "a\\", "f", "", &error); });
}

TEST_F(ObjectOperationsTest, PathOfCopyHasAtMost127Characters)
{
    const std::string folder(125, 'd');
    const std::string path = " FE " + Wide(folder + "/f");
    ExpectSession(
        {{"82 02 11 CB 00 00 00 05 4C 02 09 34 04 63 6F 70 79 35" + path + " 36" + path, done, 6000}},
        [&] { return TANDEKOR_OBEX_CopyFile(handle, (folder + "\\").c_str(), "f", (folder + "\\").c_str(), &error); });
    for (const size_t length : {126, 127, 257, 259, 260, 70'000})
    {
        const std::string tooLong = std::string(length, 'd') + "\\";
        ExpectSession({}, 1, 1024, [&] { return TANDEKOR_OBEX_CopyFile(handle, tooLong.c_str(), "f", "b\\", &error); });
        ExpectSession({}, 1, 2048, [&] { return TANDEKOR_OBEX_MoveFile(handle, "a\\", "f", tooLong.c_str(), &error); });
    }
}

TEST_F(ObjectOperationsTest, NameThatOutgrowsThePacketIsNotSent)
{
    const std::string name(2040, 'x');
    const std::string wide = Wide(name);
    ExpectSession({{"82 0F FD CB 00 00 00 05 01 0F F5 " + wide + " 00 00", done, 5000}},
                  [&] { return TANDEKOR_OBEX_DeleteFile(handle, "", name.c_str(), &error); });
    ExpectSession({{"85 0F FF 00 00 CB 00 00 00 05 01 0F F5 " + wide + " 00 00", done}},
                  [&] { return TANDEKOR_OBEX_CreateFolder(handle, "", name.c_str(), &error); });
    for (const size_t length : {2042, 32'766, 70'000})
    {
        const std::string tooLong(length, 'x');
        const char* text = tooLong.c_str();
        ExpectSession({}, 1, 256, [&] { return TANDEKOR_OBEX_DeleteFile(handle, "", text, &error); });
        ExpectSession({}, 1, 512, [&] { return TANDEKOR_OBEX_CreateFolder(handle, "", text, &error); });
        ExpectSession({}, 1, 8192, [&] { return TANDEKOR_OBEX_SetAttr(handle, "", text, 7, 7, &error); });
    }
}

TEST_F(ObjectOperationsTest, FreeSpaceIsTheEndOfAReplyOfLessThan256Bytes)
{
    const std::string request = "83 00 0E CB 00 00 00 05 4C 00 06 32 01 02";
    uint32_t freeSpace = 0;
    const auto query = [&] { return TANDEKOR_OBEX_FreeSpaceCheck(handle, &freeSpace, &error); };
    ExpectSession({{request, "A0 00 11 CB 00 00 00 05 4C 00 09 32 04 00 00 10 00", 5000}}, query);
    EXPECT_EQ(freeSpace, 0x1000U);
    ExpectSession({{request, "A0 00 07 FF FE FD FC FB", 5000}}, query);
    EXPECT_EQ(freeSpace, 0xFFFEFDFCU);
    for (const char* reply : {"A0 00 03", "A0 00 00"})
        ExpectSession({{request, reply, 5000}}, 1, 16384, query);
    ExpectSession({{request, "C4 00 07 11 22 33 44", 5000}}, 1, 32768, query);
    EXPECT_EQ(freeSpace, 0xFFFEFDFCU);
}

}  // namespace tandekor::test
