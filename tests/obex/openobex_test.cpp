// The library against an independent implementation of the protocol.
#include <set>

#include "tests/obex/obex_test.h"
#include "tests/obex/openobex_server.h"

namespace tandekor::test
{

namespace
{

class OpenObexTest : public ObexTest
{
protected:
    OpenObexTest()
    {
        simulator::ThePhone().obexMode = true;
        simulator::ThePhone().obexPeer = [this](const Bytes& packet)
        {
            Bytes answer = server.Answer(packet);
            codes.insert(answer.empty() ? 0 : answer[0]);
            return answer;
        };
    }
    ~OpenObexTest() override { simulator::ThePhone().obexPeer = nullptr; }

    void ExpectGood(uint8_t result)
    {
        EXPECT_EQ(result, 1);
        EXPECT_EQ(error, 0);
    }

    OpenObexServer server;
    std::set<int> codes;  // with which the server answered
};

}  // namespace

TEST_F(OpenObexTest, ServerTakesEveryPacketAndHasTheSameFiles)
{
    const std::string name = "f\xE4 .x";
    ExpectGood(TANDEKOR_OBEX_CreateFolder(handle, "", "a", &error));
    ExpectGood(TANDEKOR_OBEX_CreateFolder(handle, "a\\", "b", &error));
    EXPECT_EQ(server.folders, (std::set<std::string>{"", "a/", "a/b/"}));
    for (const size_t size : {0, 1, 4043, 4044, 4045, 4044 + 4082, 100'000})
    {
        SCOPED_TRACE(size);
        const Bytes content = Noise(size);
        WriteHostFile(name, content);
        ExpectGood(TANDEKOR_OBEX_SendFile(handle, host, name.c_str(), "\\a\\b\\", &error));
        ASSERT_EQ(server.files.size(), 1U);
        EXPECT_TRUE(server.files["a/b/" + name] == content);
        std::filesystem::remove(HostPath(name));
        ExpectGood(TANDEKOR_OBEX_GetFile(handle, "a\\b\\", name.c_str(), host, &error));
        EXPECT_TRUE(HostContent(name) == content);
    }
    ExpectGood(TANDEKOR_OBEX_DeleteFile(handle, "a\\b\\", name.c_str(), &error));
    EXPECT_TRUE(server.files.empty());
    EXPECT_EQ(codes, (std::set<int>{0x90, 0xA0}));
}

}  // namespace tandekor::test
