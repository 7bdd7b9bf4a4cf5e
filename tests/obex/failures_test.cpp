// What every file operation makes of failures and of replies that lie, packet by packet.
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

class ObexFailuresTest;

// An operation that goes well with these replies, and the bits of what goes wrong in it.
struct Operation
{
    const char* name;
    uint8_t (ObexFailuresTest::*call)();
    bool walks;
    std::vector<std::string> replies;
    uint16_t noExchange, otherCode, forbidden, notFound;
};

class ObexFailuresTest : public ObexTest
{
protected:
    ObexFailuresTest() { WriteHostFile("f", Noise(4053)); }

    // All replies of the operation's session.
    static std::vector<std::string> Session(const Operation& operation)
    {
        std::vector<std::string> replies = operation.replies;
        if (operation.walks)
            replies.insert(replies.begin(), done);
        replies.insert(replies.begin(), connect.reply);
        replies.push_back(disconnect.reply);
        return replies;
    }

    void Expect(const Operation& operation, uint16_t bits, size_t exchanges)
    {
        simulator::ForgetCalls();
        const bool failed = (bits & 3) != 0 || (IsSend(operation) && bits != 0);
        EXPECT_EQ((this->*operation.call)(), failed ? 0 : 1);
        EXPECT_EQ(error, bits);
        EXPECT_EQ(CountExchanges(), exchanges);
        EXPECT_EQ(LastRequest(), bits == 1 ? connect.request : disconnect.request);
    }

    // Its result looks at the bits, and no response code ends it.
    static bool IsSend(const Operation& operation) { return operation.call == &ObexFailuresTest::Send; }

    uint8_t List() { return TANDEKOR_OBEX_ListDir(handle, "a\\", listing.Data(), &(listingSize = 64), &error); }
    uint8_t Get() { return TANDEKOR_OBEX_GetFile(handle, "a\\", "g", host, &error); }
    uint8_t Send() { return TANDEKOR_OBEX_SendFile(handle, host, "f", "a\\", &error); }
    uint8_t Delete() { return TANDEKOR_OBEX_DeleteFile(handle, "a\\", "f", &error); }
    uint8_t Create() { return TANDEKOR_OBEX_CreateFolder(handle, "a\\", "b", &error); }
    uint8_t Copy() { return TANDEKOR_OBEX_CopyFile(handle, "a\\", "f", "b\\", &error); }
    uint8_t Move() { return TANDEKOR_OBEX_MoveFile(handle, "a\\", "f", "b\\", &error); }
    uint8_t Permit() { return TANDEKOR_OBEX_SetAttr(handle, "a\\", "f", 7, 1, &error); }
    uint8_t Free()
    {
        return TANDEKOR_OBEX_FreeSpaceCheck(handle, reinterpret_cast<uint32_t*>(freeSpace.Data()), &error);
    }

    GuardedBuffer listing{64};
    GuardedBuffer freeSpace{4};
    uint32_t listingSize = 0;

    const std::vector<std::string> object
        = {"90 00 12 CB 00 00 00 05 C3 00 00 00 02 48 00 05 3C 3E", "A0 00 0B CB 00 00 00 05 49 00 03"};
    const std::vector<std::string> space = {"A0 00 0C 4C 00 09 32 04 00 00 10 00"};
    const std::vector<Operation> operations = {
        {"list", &ObexFailuresTest::List, true, object, 8, 8, 8, 8},
        {"get", &ObexFailuresTest::Get, true, object, 32, 32, 32, 64},
        {"send", &ObexFailuresTest::Send, true, {"90 00 03", done}, 64, 0, 0, 0},
        {"delete", &ObexFailuresTest::Delete, true, {done}, 256, 0, 0, 64},
        {"create", &ObexFailuresTest::Create, true, {done}, 512, 512, 512, 512},
        {"copy", &ObexFailuresTest::Copy, false, {done}, 1024, 1024, 4096, 1024},
        {"move", &ObexFailuresTest::Move, false, {done}, 2048, 2048, 4096, 2048},
        {"permissions", &ObexFailuresTest::Permit, true, {done}, 8192, 8192, 4096, 8192},
        {"free space", &ObexFailuresTest::Free, false, space, 16384, 16384, 16384, 32768},
    };
};

// A reply with each of its bytes and lengths told wrong, and cut after each of its bytes.
std::vector<simulator::Reply> Lies(const Bytes& good)
{
    std::vector<simulator::Reply> lies = {{good, 1, 0}, {good, 1, 3}, {good, 1, 4096}, {good, 1, 65535}};
    for (size_t i = 0; i < good.size(); ++i)
    {
        lies.push_back({{good.begin(), good.begin() + static_cast<ptrdiff_t>(i)}, 1, {}});
        for (const uint8_t byte : Hex("00 49 C3 CB FF"))
        {
            lies.push_back({good, 1, {}});
            lies.back().bytes[i] = byte;
        }
    }
    return lies;
}

}  // namespace

TEST_F(ObexFailuresTest, EachExchangeThatFailsSetsItsBitAndTheDisconnectFollows)
{
    for (const Operation& operation : operations)
    {
        const std::vector<std::string> replies = Session(operation);
        const size_t last = replies.size() - 1;
        for (size_t failing = 0; failing <= last; ++failing)
        {
            for (const bool disconnectFails : {false, true})
            {
                SCOPED_TRACE(operation.name + std::to_string(failing) + (disconnectFails ? " and disconnect" : ""));
                for (size_t i = 0; i < failing; ++i)
                    Replies(Hex(replies[i]));
                FailsToReply(Hex(replies[failing]));
                if (failing > 0 && failing < last)
                    simulator::QueueReply({Hex(disconnect.reply), !disconnectFails, {}});
                if (failing == 0)
                    Expect(operation, 1, 1);
                else if (failing == last)
                    Expect(operation, 2, failing + 1);
                else
                    Expect(operation,
                           static_cast<uint16_t>((failing == 1 && operation.walks ? 4 : operation.noExchange)
                                                 | (disconnectFails ? 2 : 0)),
                           failing + 2);
            }
        }
    }
}

TEST_F(ObexFailuresTest, RefusalsSetTheBitsOfTheirOperation)
{
    for (const Operation& operation : operations)
    {
        const std::vector<std::string> replies = Session(operation);
        const size_t last = replies.size() - 1;
        const std::pair<const char*, uint16_t> refusals[] = {{"D0 00 03", operation.otherCode},
                                                             {"20 00 03", operation.otherCode},
                                                             {"", operation.otherCode},
                                                             {"C3 00 03", operation.forbidden},
                                                             {"C4 00 03", operation.notFound}};
        for (size_t refused = last - operation.replies.size(); refused < last; ++refused)
        {
            for (const auto& [reply, bits] : refusals)
            {
                SCOPED_TRACE(operation.name + std::to_string(refused) + " answered with " + reply);
                const size_t next = IsSend(operation) ? refused + 1 : last;
                for (size_t i = 0; i < refused; ++i)
                    Replies(Hex(replies[i]));
                Replies(Hex(reply));
                for (size_t i = next; i <= last; ++i)
                    Replies(Hex(replies[i]));
                Expect(operation, bits, refused + 1 + last + 1 - next);
            }
        }
    }
}

// That nothing is read or written outside its buffer shows in the guard bytes and under the address sanitizer.
TEST_F(ObexFailuresTest, RepliesThatLieDoNoHarm)
{
    for (const Operation& operation : operations)
    {
        const auto possible = static_cast<uint16_t>(7 | operation.noExchange | operation.otherCode | operation.forbidden
                                                    | operation.notFound | (operation.noExchange == 8 ? 16 : 0));
        const std::vector<std::string> replies = Session(operation);
        for (size_t lying = 0; lying < replies.size(); ++lying)
        {
            for (const simulator::Reply& lie : Lies(Hex(replies[lying])))
            {
                SCOPED_TRACE(operation.name + std::to_string(lying) + ": " + ToHex(lie.bytes));
                simulator::Reset();
                TANDEKOR_DisconnectAllServers();
                handle = TANDEKOR_ConnectServer(comPort);
                for (size_t i = 0; i < replies.size(); ++i)
                    i == lying ? simulator::QueueReply(lie) : Replies(Hex(replies[i]));
                (this->*operation.call)();
                EXPECT_EQ(error & ~possible, 0) << error;
                EXPECT_TRUE(listing.GuardsIntact() && freeSpace.GuardsIntact());
                EXPECT_TRUE(error == 1 ? CountExchanges() == 1 : LastRequest().starts_with("81 00 08 CB "));
            }
        }
    }
}

}  // namespace tandekor::test
