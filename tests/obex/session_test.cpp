// Connect, the way to a folder, disconnect, their error bits, and the way back to AT commands.
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

// A file operation without a name only opens a session, goes to the folder, and closes it.
Call Walk(const std::string& folder) { return With(TANDEKOR_OBEX_DeleteFile, {folder, ""}); }
const Call walkNowhere = Walk("");

using ObexSessionTest = ObexTest;

}  // namespace

TEST_F(ObexSessionTest, ConnectRepliesAreScannedByteByByte)
{
    const struct
    {
        const char* what;
        std::string reply;
        bool good;
    } rows[] = {
        {"identifier 0 and no Who header", "done 10 00 10 00 CB 00 00 00 00", false},
        {"no headers, and no identifier of an earlier session", "done 10 00 10 00", false},
        {"one byte, and no identifier of an earlier session", "A0", false},
        {"identifier and no Who header", "done 10 00 10 00 id", true},
        {"no headers, but the identifier of an earlier session", "done 10 00 10 00", true},
        {"one byte, but the identifier of an earlier session", "A0", true},
        {"an identifier and one that is cut", "done 10 00 10 00 id CB 00 00", true},
        {"an identifier that reaches past the packet", "A0 00 08 10 00 10 00 id", true},
        {"a Who header that reaches past the packet", "A0 00 0D 10 00 10 00 id" + who, true},
        {"an identifier after the Who header", "done 10 00 10 00" + who + " CB 00 00 00 09", true},
        {"a Who header inside another header", "done 10 00 10 00 id 42 00 06 id 4A 00 00 00", false},
        {"an identifier inside another header", "done 10 00 10 00 42 00 08 id C0 C0 C0 C0 C0", true},
        {"another server", "done 10 00 10 00 id" + who.substr(0, who.size() - 1) + "E", false},
        {"bytes after the packet's end", "A0 00 0C 10 00 10 00 id 4A 00 13 00", true},
        {"longer than delivered", "A0 FF FF 10 00 10 00 id" + who, true},
        {"Continue", "continue 10 00 10 00 id" + who, false},
        {"refused", "C1 00 1F 10 00 10 00 id" + who, false},
        {"nothing", "", false},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.what);
        if (row.good)
            ExpectTurns({walkNowhere, connect + row.reply + disconnected});
        else
            ExpectTurns({walkNowhere, connect + row.reply, 1, 0});
    }
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
        {Walk("a\\b\\"), "path 02 00 id name:a > missing", 4},
        {Walk("a\\b\\"), "path 02 00 id name:a > continue", 4},
        {Walk("a\\b\\"), "path 02 00 id name:a >", 4},
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

}  // namespace tandekor::test
