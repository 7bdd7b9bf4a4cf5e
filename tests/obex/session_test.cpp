// Connect, the way to a folder, disconnect, and their error bits.
#include "tests/obex/obex_test.h"

namespace tandekor::test
{

namespace
{

class ObexSessionTest : public ObexTest
{
protected:
    // A file operation without a name only opens a session, goes to the folder, and closes it.
    uint8_t Walk(const std::string& folder) { return TANDEKOR_OBEX_DeleteFile(handle, folder.c_str(), "", &error); }

    void ExpectConnect(const std::string& reply, bool good, const char* what)
    {
        SCOPED_TRACE(what);
        if (good)
            ExpectTurns({{connect.request, reply}, disconnect}, 1, 0, [&] { return Walk(""); });
        else
            ExpectTurns({{connect.request, reply}}, 0, 1, [&] { return Walk(""); });
    }
};

const std::string who = "4A 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1F";

}  // namespace

TEST_F(ObexSessionTest, ConnectRepliesAreScannedByteByByte)
{
    ExpectConnect("A0 00 0C 10 00 10 00 CB 00 00 00 00", false, "identifier 0 and no Who header");
    ExpectConnect("A0 00 07 10 00 10 00", false, "no headers, and no identifier of an earlier session");
    ExpectConnect("A0", false, "one byte, and no identifier of an earlier session");
    ExpectConnect("A0 00 0C 10 00 10 00 CB 00 00 00 05", true, "identifier and no Who header");
    ExpectConnect("A0 00 07 10 00 10 00", true, "no headers, but the identifier of an earlier session");
    ExpectConnect("A0", true, "one byte, but the identifier of an earlier session");
    ExpectConnect("A0 00 0F 10 00 10 00 CB 00 00 00 05 CB 00 00", true, "an identifier and one that is cut");
    ExpectConnect("A0 00 08 10 00 10 00 CB 00 00 00 05", true, "an identifier that reaches past the packet");
    ExpectConnect("A0 00 0D 10 00 10 00 CB 00 00 00 05 " + who, true, "a Who header that reaches past the packet");
    ExpectConnect("A0 00 1F 10 00 10 00 " + who + " CB 00 00 00 09", true, "an identifier after the Who header");
    ExpectConnect("A0 00 18 10 00 10 00 CB 00 00 00 05 42 00 06 CB 00 00 00 05 4A 00 00 00", false,
                  "a Who header inside the content of another header");
    ExpectConnect("A0 00 14 10 00 10 00 42 00 08 CB 00 00 00 05 C0 C0 C0 C0 C0", true,
                  "an identifier inside the content of another header");
    ExpectConnect("A0 00 1F 10 00 10 00 CB 00 00 00 05 4A 00 13 6B 01 CB 31 41 06 11 D4 9A 77 00 50 DA 3F 47 1E", false,
                  "another server");
    ExpectConnect("A0 00 0C 10 00 10 00 CB 00 00 00 05 4A 00 13 00", true, "bytes after the packet's end");
    ExpectConnect("90 00 1F 10 00 10 00 CB 00 00 00 05 " + who, false, "Continue");
    ExpectConnect("C1 00 1F 10 00 10 00 CB 00 00 00 05 " + who, false, "refused");
    ExpectConnect("", false, "nothing");
}

TEST_F(ObexSessionTest, PacketLengthIsNotComparedWithWhatWasDelivered)
{
    ExpectConnect("A0 FF FF 10 00 10 00 CB 00 00 00 05 " + who, true, "longer than delivered");
    const auto walkNowhere = [&] { return Walk(""); };
    ExpectTurns({connect, {disconnect.request, "A0 FF FF CB 00 00 00 05"}}, 1, 0, walkNowhere);
    ExpectTurns({connect, {disconnect.request, "A0 FF FF"}}, 1, 0, walkNowhere);
}

TEST_F(ObexSessionTest, DisconnectReplyHasToRepeatTheIdentifierIfItHasOne)
{
    const auto walkNowhere = [&] { return Walk(""); };
    for (const char* good :
         {"A0 00 03", "A0 00 02", "A0 00", "A0", "A0 00 05 CB 00 00 00 05", "A0 00 08 CB 00 00 00 05",
          "A0 00 06 42 00 03", "A0 00 0B 42 00 08 CB 00 00 00 05", "A0 00 0D CB 00 00 00 05 CB 00 00 00 06"})
        ExpectTurns({connect, {disconnect.request, good}}, 1, 0, walkNowhere);
    for (const char* bad : {"A0 00 08 CB 00 00 00 06", "A0 00 0D CB 00 00 00 06 CB 00 00 00 05", "90 00 03", "D0 00 03",
                            "A0 00 05 CB 00 00", ""})
        ExpectTurns({connect, {disconnect.request, bad}}, 0, 2, walkNowhere);
}

TEST_F(ObexSessionTest, WalkSendsASetPathForEachComponent)
{
    const Turn root = {"85 00 0A 02 00 CB 00 00 00 05", "A0 00 03"};
    const Turn a = {"85 00 11 02 00 CB 00 00 00 05 01 00 07 00 61 00 00", "A0 00 03"};
    const Turn b = {"85 00 13 02 00 CB 00 00 00 05 01 00 09 00 E4 00 20 00 00", "A0 00 03"};
    ExpectSession({}, [&] { return Walk(""); });
    ExpectSession({root}, [&] { return Walk("\\"); });
    ExpectSession({a, b}, [&] { return Walk("a\\\xE4 \\"); });
    ExpectSession({root, a, root, b}, [&] { return Walk("\\a\\\\\xE4 \\"); });
    ExpectSession({a}, 1, 4, [&] { return Walk("a\\b"); });
    ExpectSession({{a.request, "C4 00 03"}}, 1, 4, [&] { return Walk("a\\b\\"); });
    ExpectSession({{a.request, "90 00 03"}}, 1, 4, [&] { return Walk("a\\b\\"); });
    ExpectSession({{a.request, ""}}, 1, 4, [&] { return Walk("a\\b\\"); });
}

TEST_F(ObexSessionTest, ComponentThatOutgrowsThePacketIsNotSent)
{
    const std::string longest(2040, 'x');
    ExpectSession({{"85 0F FF 02 00 CB 00 00 00 05 01 0F F5 " + Wide(longest) + " 00 00", "A0 00 03"}},
                  [&] { return Walk(longest + "\\"); });
    ExpectSession({}, 1, 4, [&] { return Walk(longest + "x\\"); });
    ExpectSession({}, 1, 4, [&] { return Walk(std::string(100'000, 'x') + "\\"); });
}

}  // namespace tandekor::test
