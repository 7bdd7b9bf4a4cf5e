// Connect, the way to a folder and disconnect; what every operation sends, what it makes of failures and of replies
// that lie.
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

// A file operation without a name only opens a session, goes to the folder, and closes it.
Call Walk(const std::string& folder) { return With(TANDEKOR_OBEX_DeleteFile, {folder, ""}); }
const Call walkNowhere = Walk("");

using ObexSessionTest = ObexTest;

// An operation that goes well with these turns, and the bits of what goes wrong in it.
struct Operation
{
    const char* name;
    Call call;
    std::string turns;
    uint16_t noExchange, otherCode, forbidden, notFound;

    bool walks = turns.starts_with("path 02");
    bool isSend = turns.find("put id name:f size:") != std::string::npos;  // looks at its bits, and goes on
    std::vector<Bytes> replies = {};                                       // of the whole session
};

class ObexOperationsTest : public ObexTest
{
protected:
    ObexOperationsTest()
    {
        WriteHostFile("f", Noise(8135));
        for (Operation& operation : operations)
        {
            for (const Turn& turn : Turns(InSession(operation.turns)))
                operation.replies.push_back(Hex(turn.reply));
        }
    }

    // The operation's session with this reply in the place of another.
    CallResult Run(const Operation& operation, size_t place, const simulator::Reply& reply, bool ends,
                   bool disconnectFails = false)
    {
        simulator::ForgetCalls();
        const size_t last = operation.replies.size() - 1;
        for (size_t i = 0; i <= last; ++i)
        {
            if (i == place)
                simulator::QueueReply(reply);
            else if (i < place || !ends || (i == last && place != 0))
                simulator::QueueReply({operation.replies[i], i < last || !disconnectFails, {}});
        }
        return operation.call(handle);
    }

    // The same, with these bits; what ends the operation leaves only the disconnect.
    void Expect(const Operation& operation, int bits, size_t place, const simulator::Reply& reply, bool ends,
                bool disconnectFails = false)
    {
        const std::string shown = reply.result == 0 ? "not" : "with (" + ToHex(reply.bytes) + ")";
        SCOPED_TRACE(operation.name + (" exchange " + std::to_string(place)) + " answered " + shown);
        const CallResult made = Run(operation, place, reply, ends, disconnectFails);
        EXPECT_EQ(made.result, (bits & 3) != 0 || (operation.isSend && bits != 0) ? 0 : 1);
        EXPECT_EQ(made.outs.back(), U16(static_cast<uint16_t>(bits)));
        const size_t all = operation.replies.size();
        EXPECT_EQ(CountExchanges(), bits == 1 ? 1 : ends ? std::min(place + 2, all) : all);
        EXPECT_EQ(LastRequest(), Turns(bits == 1 ? connected : disconnected)[0].request);
    }

    const std::string copied = " 35 14 wide:Data/Sub/x 36 08 wide:/B/x > done @6000";
    const std::string put = walk + "put id name:f size:8135 time:20240309T070502 48 0F D7 " + NoisePart(0, 4052)
                            + " > continue @9000;put id 48 0F F5 " + NoisePart(4052, 4082)
                            + " > continue @9000;last-put id 49 00 04 " + NoisePart(8134, 1) + " > done @9000";
    const std::string list = "get id 42 00 19 text:x-obex/folder-listing 00 > ", get = "get id name:g > ";
    const std::string body = "continue size:2 48 00 05 3C 3E @5000;get id > done id end: @5000";
    std::vector<Operation> operations = {
        {"list", With(TANDEKOR_OBEX_ListDir, {"a\\", Out{64}, U32(64)}), walk + list + body, 8, 8, 8, 8},
        {"get", With(TANDEKOR_OBEX_GetFile, {"a\\", "g", host}), walk + get + body, 32, 32, 32, 64},
        {"send", With(TANDEKOR_OBEX_SendFile, {host, "f", "a\\"}), put, 64, 0, 0, 0},
        {"delete", With(TANDEKOR_OBEX_DeleteFile, {"a\\", "f.\xFFx"}), walk + "last-put id name:f.\xFFx > done @5000",
         256, 0, 0, 64},
        {"create", With(TANDEKOR_OBEX_CreateFolder, {"a\\", "ne"}), walk + "path 00 00 id name:ne > done", 512, 512,
         512, 512},
        {"copy", With(TANDEKOR_OBEX_CopyFile, {"Data\\Sub\\", "x", "\\B\\"}),
         "last-put id 4C 00 29 34 04 text:copy" + copied, 1024, 1024, 4096, 1024},
        {"move", With(TANDEKOR_OBEX_MoveFile, {"Data\\Sub\\", "x", "\\B\\"}),
         "last-put id 4C 00 29 34 04 text:move" + copied, 2048, 2048, 4096, 2048},
        {"permissions", With(TANDEKOR_OBEX_SetAttr, {"a\\", "f", 7, 1}),
         walk + "last-put id name:f 4C 00 0D 38 08 text:\"RWD\"\"R\" > done", 8192, 8192, 4096, 8192},
        {"free space", With(TANDEKOR_OBEX_FreeSpaceCheck),
         "get id 4C 00 06 32 01 02 > done 4C 00 09 32 04 80 00 10 07 @5000", 16384, 16384, 16384, 32768},
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

TEST_F(ObexSessionTest, ConnectRepliesAreScannedByteByByte)
{
    const auto bad = [this](const std::string& reply) { ExpectTurns({walkNowhere, connect + reply, 1, 0}); };
    // An identifier of 0 and no Who header; and replies that are good only with the identifier of an earlier session.
    for (const char* reply : {"done 10 00 10 00 CB 00 00 00 00", "done 10 00 10 00", "A0"})
        bad(reply);
    const std::string good[]
        = {"done 10 00 10 00 id", "done 10 00 10 00", "A0", "done 10 00 10 00 id CB 00 00",
           "A0 FF FF 10 00 10 00 id" + who,
           // Headers past the packet's end, Who before the identifier, and one inside another header.
           "A0 00 08 10 00 10 00 id", "A0 00 0D 10 00 10 00 id" + who, "A0 00 0C 10 00 10 00 id 4A 00 13 00",
           "done 10 00 10 00" + who + " CB 00 00 00 09", "done 10 00 10 00 42 00 08 id C0 C0 C0 C0 C0"};
    for (const std::string& reply : good)
        ExpectTurns({walkNowhere, (connect + reply).append(disconnected)});
    // A Who header inside another, and of another server; other responses, and nothing.
    bad("done 10 00 10 00 id 42 00 06 id 4A 00 00 00");
    bad("done 10 00 10 00 id" + who.substr(0, who.size() - 1) + "E");
    bad("continue 10 00 10 00 id" + who);
    bad("C1 00 1F 10 00 10 00 id" + who);
    bad("");
}

TEST_F(ObexSessionTest, DisconnectReplyHasToRepeatTheIdentifierIfItHasOne)
{
    for (const char* good : {"done", "A0 00 02", "A0 00", "A0", "A0 00 05 id", "done id", "done 42 00 03",
                             "done 42 00 08 id", "done id CB 00 00 00 06", "A0 FF FF id", "A0 FF FF"})
        ExpectTurns({walkNowhere, connected + disconnect + good});
    for (const char* bad :
         {"done CB 00 00 00 06", "done CB 00 00 00 06 id", "continue", "refused", "A0 00 05 CB 00 00", ""})
        ExpectTurns({walkNowhere, connected + disconnect + bad, 2, 0});
}

TEST_F(ObexSessionTest, WalkSendsASetPathForEachComponent)
{
    const std::string root = "path 02 00 id > done;", b = "path 02 00 id 01 00 09 00 E4 00 20 00 00 > done;";
    const std::string longest(2040, 'x');
    ExpectSessions({
        {walkNowhere, ""},
        {Walk("\\"), root},
        {Walk("a\\\xE4 \\"), walk + b},
        {Walk("\\a\\\\\xE4 \\"), root + walk + root + b},
        {Walk("a\\b"), walk, 4},
        {Walk("a\\b\\"), "path 02 00 id name:a > continue", 4},
        // What outgrows the packet is not sent.
        {Walk(longest + "\\"), "path 02 00 id name:" + longest + " > done"},
        {Walk(longest + "x\\"), "", 4},
        {Walk(std::string(100'000, 'x') + "\\"), "", 4},
    });
}

TEST_F(ObexSessionTest, EscapeSequenceGoesOutBetweenTwoPausesAndSilenceIsNoFailure)
{
    std::vector<size_t> sentAtPause;
    simulator::TheClock().onSleep = [&](uint32_t) { sentAtPause.push_back(CountExchanges()); };
    Replies("OK");
    FailsToReply();
    for (const uint32_t firstByte : {uint32_t{'O'}, 187U})
    {
        const CallResult made = With(TANDEKOR_OBEX_2_AT)(handle);
        EXPECT_EQ(made.result, 1);
        EXPECT_EQ(Values(made.outs), Numbers{firstByte});
    }
    EXPECT_EQ(simulator::Exchanges().back().operation, "QLIB_SendRAW");
    EXPECT_EQ(LastRequest(), "2B 2B 2B 00");
    EXPECT_EQ(LastTimeoutMs(), 3000u);
    EXPECT_EQ(simulator::TheClock().sleeps, std::vector<uint32_t>(4, 1000));
    EXPECT_EQ(sentAtPause, (std::vector<size_t>{0, 1, 1, 2}));
    EXPECT_EQ(Log(), std::vector<std::string>(2, "TANDEKOR_OBEX_2_AT()"));
}

TEST_F(ObexOperationsTest, EachSendsItsPacketsAndFailuresSetItsBitsAndTheDisconnectFollows)
{
    for (const Operation& operation : operations)
    {
        const size_t last = operation.replies.size() - 1;
        // A file has one time, though the clock goes on while it is sent.
        simulator::TheClock().now = 0;
        simulator::BeforeCall("QLIB_SendRAW", static_cast<int>(last), [] { simulator::TheClock().now += 60'000; });
        ExpectSessions({{operation.call, operation.turns}});
        Expect(operation, 1, 0, {operation.replies[0], 0, {}}, true);
        Expect(operation, 2, last, {operation.replies[last], 0, {}}, true);
        for (size_t place = 1; place < last; ++place)
        {
            const bool isWalk = place == 1 && operation.walks;
            const int bits = isWalk ? 4 : operation.noExchange;
            for (const bool both : {false, true})
                Expect(operation, both ? bits | 2 : bits, place, {operation.replies[place], 0, {}}, true, both);
            for (const auto& [reply, refused] : {std::pair("refused", operation.otherCode),
                                                 {"20 00 03", operation.otherCode},
                                                 {"", operation.otherCode},
                                                 {"forbidden", operation.forbidden},
                                                 {"missing", operation.notFound}})
                Expect(operation, isWalk ? 4 : refused, place, {Hex(Packet(reply)), 1, {}},
                       isWalk || !operation.isSend);
        }
    }
}

// That nothing is read or written outside its buffer shows in the guard bytes and under the address sanitizer.
TEST_F(ObexOperationsTest, RepliesThatLieDoNoHarm)
{
    for (const Operation& operation : operations)
    {
        const int possible = 7 | operation.noExchange | operation.otherCode | operation.forbidden | operation.notFound
                             | (operation.noExchange == 8 ? 16 : 0);
        for (size_t lying = 0; lying < operation.replies.size(); ++lying)
        {
            for (const simulator::Reply& lie : Lies(operation.replies[lying]))
            {
                SCOPED_TRACE(operation.name + std::to_string(lying) + ": " + ToHex(lie.bytes));
                simulator::Reset();
                TANDEKOR_DisconnectAllServers();
                handle = TANDEKOR_ConnectServer(comPort);
                const CallResult made = Run(operation, lying, lie, false);
                const uint32_t bits = Values({made.outs.back()})[0];
                EXPECT_EQ(bits & ~static_cast<uint32_t>(possible), 0U);
                EXPECT_TRUE(made.guardsIntact);
                EXPECT_TRUE(bits == 1 ? CountExchanges() == 1 : LastRequest().starts_with("81 00 08 CB "));
            }
        }
    }
}

TEST_F(ObexOperationsTest, TextsOfPathsAndMasks)
{
    // The name keeps its backslash.
    ExpectSessions({{With(TANDEKOR_OBEX_CopyFile, {"a", "\\b", "c"}),
                     "last-put id 4C 00 19 34 04 text:copy 35 06 wide:a\\b 36 06 wide:c\\b > done @6000"}});
    for (const auto& [first, second, text] : {std::tuple(5U, 0U, "0B 38 06 text:\"RD\"\"\""),
                                              {1, 2, "0B 38 06 text:\"R\"\"W\""},
                                              {3, 4, "0C 38 07 text:\"RW\"\"D\""},
                                              {6, 7, "0E 38 09 text:\"WD\"\"RWD\""},
                                              {8, 0xFFFFFFFF, "09 38 04 text:\"\"\"\""}})
        ExpectSessions({{With(TANDEKOR_OBEX_SetAttr, {"a\\", "f", first, second}),
                         walk + "last-put id name:f 4C 00 " + text + " > done"}});
}

TEST_F(ObexOperationsTest, TextsThatAreEmptyOrNameNoFileSendNothing)
{
    std::filesystem::create_directory(HostPath("folder"));
    ExpectSessions({
        {With(TANDEKOR_OBEX_DeleteFile, {"a\\", ""}), walk},
        {With(TANDEKOR_OBEX_CreateFolder, {"a\\", ""}), walk},
        {With(TANDEKOR_OBEX_GetFile, {"a\\", "", host}), walk},
        {With(TANDEKOR_OBEX_SendFile, {host, "", "a\\"}), walk},
        {With(TANDEKOR_OBEX_SendFile, {"", "f", "a\\"}), walk},
        {With(TANDEKOR_OBEX_SetAttr, {"a\\", "", 1, 1}), walk, 8192},
        {With(TANDEKOR_OBEX_CopyFile, {"", "f", "b\\"}), "", 1024},
        {With(TANDEKOR_OBEX_CopyFile, {"a\\", "", "b\\"}), "", 1024},
        {With(TANDEKOR_OBEX_MoveFile, {"a\\", "f", ""}), "", 2048},
        {With(TANDEKOR_OBEX_SendFile, {host, "missing", ""}), "", 64, 0},
        {With(TANDEKOR_OBEX_SendFile, {host, "folder", ""}), "", 64, 0},
        {With(TANDEKOR_OBEX_SendFile, {HostPath("no such folder/"), "f", ""}), "", 64, 0},
    });
}

// A path of copy has at most 127 characters, a name as many as the packet takes.
TEST_F(ObexOperationsTest, TextsThatAreTooLongAreNotSent)
{
    const std::string folder(125, 'd'), path = " FE wide:" + folder + "/f", name(2040, 'x');
    ExpectSessions({
        {With(TANDEKOR_OBEX_CopyFile, {folder + "\\", "f", folder + "\\"}),
         "last-put id 4C 02 09 34 04 text:copy 35" + path + " 36" + path + " > done @6000"},
        {With(TANDEKOR_OBEX_DeleteFile, {"", name}), "last-put id name:" + name + " > done @5000"},
        {With(TANDEKOR_OBEX_CreateFolder, {"", name}), "path 00 00 id name:" + name + " > done"},
    });
    for (const size_t length : {126, 127, 257, 259, 260, 70'000})
    {
        const std::string tooLong = std::string(length, 'd') + "\\";
        ExpectSessions({{With(TANDEKOR_OBEX_CopyFile, {tooLong, "f", "b\\"}), "", 1024},
                        {With(TANDEKOR_OBEX_MoveFile, {"a\\", "f", tooLong}), "", 2048}});
    }
    for (const size_t length : {2042, 32'766, 70'000})
    {
        const std::string tooLong(length, 'x');
        ExpectSessions({{With(TANDEKOR_OBEX_DeleteFile, {"", tooLong}), "", 256},
                        {With(TANDEKOR_OBEX_CreateFolder, {"", tooLong}), "", 512},
                        {With(TANDEKOR_OBEX_SetAttr, {"", tooLong, 7, 7}), "", 8192}});
    }
}

TEST_F(ObexOperationsTest, FreeSpaceIsTheEndOfAReplyOfLessThan256Bytes)
{
    for (const auto& [reply, space, bits] : {std::tuple("done id 4C 00 09 32 04 80 00 10 07", 0x80001007U, 0),
                                             {"A0 00 07 FF FE FD FC FB", 0xFFFEFDFCU, 0},
                                             {"done", 0x55555555U, 16384},
                                             {"A0 00 00", 0x55555555U, 16384},
                                             {"missing 11 22 33 44", 0x55555555U, 32768}})
        ExpectSessions({{With(TANDEKOR_OBEX_FreeSpaceCheck),
                         "get id 4C 00 06 32 01 02 > " + std::string(reply) + " @5000",
                         static_cast<uint16_t>(bits),
                         1,
                         {U32(space)}}});
}

}  // namespace tandekor::test
