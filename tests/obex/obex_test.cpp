#include "tests/obex/obex_test.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <sstream>

namespace tandekor::test
{

namespace
{

std::string NewFolder()
{
    const auto path = std::filesystem::temp_directory_path() / ("tandekor-" + std::to_string(std::random_device()()));
    EXPECT_TRUE(std::filesystem::create_directory(path));
    return path.string() + static_cast<char>(std::filesystem::path::preferred_separator);
}

const std::map<std::string, uint8_t> starts
    = {{"put", 0x02},      {"last-put", 0x82}, {"get", 0x83},     {"path", 0x85},      {"disconnect", 0x81},
       {"continue", 0x90}, {"done", 0xA0},     {"refused", 0xD0}, {"forbidden", 0xC3}, {"missing", 0xC4}};
const std::map<std::string, uint8_t> headers = {{"time", 0x44}, {"body", 0x48}, {"end", 0x49}};

Bytes Word(size_t number) { return {static_cast<uint8_t>(number >> 8), static_cast<uint8_t>(number)}; }

Bytes Wide(const std::string& text)
{
    Bytes bytes;
    for (const char character : text)
        bytes.insert(bytes.end(), {0, static_cast<uint8_t>(character)});
    return bytes;
}

}  // namespace

std::string Packet(const std::string& parts)
{
    Bytes packet;
    bool counted = false;
    const auto add = [&](const Bytes& bytes) { packet.insert(packet.end(), bytes.begin(), bytes.end()); };
    std::istringstream stream(parts);
    for (std::string part; stream >> part;)
    {
        const size_t colon = part.find(':');
        const std::string word = part.substr(0, colon), text = colon == std::string::npos ? "" : part.substr(colon + 1);
        if (starts.contains(part))
            counted = true, add({starts.at(part), 0, 0});
        else if (headers.contains(word))
            add({headers.at(word)}), add(Word(text.size() + 3)), add(Ascii(text));
        else if (word == "size")
            add({0xC3}), add(Word(std::stoul(text) >> 16)), add(Word(std::stoul(text)));
        else if (word == "name")
            add({0x01}), add(Word(2 * text.size() + 5)), add(Wide(text)), add({0, 0});
        else
            add(word == "wide"   ? Wide(text)
                : word == "text" ? Ascii(text)
                                 : Hex(part == "id" ? "CB 00 00 00 05" : part));
    }
    const Bytes length = Word(packet.size());
    if (counted)
        std::copy(length.begin(), length.end(), packet.begin() + 1);
    return ToHex(packet);
}

std::vector<Turn> Turns(const std::string& turns)
{
    std::vector<Turn> all;
    std::istringstream stream(turns);
    for (std::string turn; std::getline(stream, turn, ';');)
    {
        const size_t reply = turn.find('>'), timeout = turn.find('@');
        if (reply != std::string::npos)
            all.push_back({Packet(turn.substr(0, reply)), Packet(turn.substr(reply + 1, timeout - reply - 1)),
                           timeout == std::string::npos ? "3000" : turn.substr(timeout + 1)});
    }
    return all;
}

ObexTest::ObexTest() : hostFolder(NewFolder()) {}

ObexTest::~ObexTest()
{
    std::error_code ignored;
    std::filesystem::remove_all(hostFolder, ignored);
}

void ObexTest::ExpectTurns(const Session& session)
{
    SCOPED_TRACE(session.turns.substr(0, 500));
    simulator::ForgetCalls();
    std::string expected, sent;
    const std::vector<Turn> turns = Turns(session.turns);
    for (const Turn& turn : turns)
    {
        Replies(Hex(turn.reply));
        expected += turn.request + " @" + turn.timeoutMs + "; ";
    }
    const CallResult made = session.call(handle);
    EXPECT_EQ(made.result, session.result);
    EXPECT_EQ(made.outs.back(), U16(session.bits));
    EXPECT_TRUE(session.outs.empty() || std::equal(session.outs.begin(), session.outs.end(), made.outs.begin()))
        << ToHex(made.outs[0]);
    EXPECT_TRUE(made.guardsIntact);
    for (const simulator::Exchange& exchange : simulator::Exchanges())
        sent += ToHex(exchange.request) + " @" + std::to_string(exchange.timeoutMs) + "; ";
    const auto differs = std::mismatch(sent.begin(), sent.end(), expected.begin(), expected.end()).first - sent.begin();
    EXPECT_TRUE(sent == expected) << "sent, from byte " << differs / 3 << " on: " << sent.substr(differs, 200);
    // A reply that was not fetched must not answer the next call.
    for (size_t i = CountExchanges(); i < turns.size(); ++i)
        With(TANDEKOR_OBEX_2_AT)(handle);
}

void ObexTest::ExpectSessions(const std::vector<Session>& sessions)
{
    for (Session session : sessions)
    {
        session.turns = InSession(session.turns);
        ExpectTurns(session);
    }
}

std::vector<Bytes> ObexTest::Outs(const Call& call, uint16_t bits) const
{
    const CallResult made = call(handle);
    EXPECT_EQ(made.result, 1);
    EXPECT_EQ(made.outs.back(), U16(bits));
    return made.outs;
}

void ObexTest::WriteHostFile(const std::string& name, const Bytes& content) const
{
    std::ofstream file(HostPath(name), std::ios::binary);
    file.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
}

std::string ObexTest::HostText(const std::string& name) const
{
    std::ifstream file(HostPath(name), std::ios::binary);
    return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "none";
}

Bytes Noise(size_t size)
{
    std::minstd_rand random(1);
    Bytes bytes(size);
    for (uint8_t& byte : bytes)
        byte = static_cast<uint8_t>(random() >> 8);
    return bytes;
}

std::string NoisePart(size_t from, size_t count)
{
    const Bytes noise = Noise(from + count);
    return ToHex({noise.begin() + static_cast<ptrdiff_t>(from), noise.end()});
}

}  // namespace tandekor::test
