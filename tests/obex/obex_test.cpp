#include "tests/obex/obex_test.h"

#include <fstream>
#include <iterator>
#include <random>

namespace tandekor::test
{

namespace
{

std::string NewFolder()
{
    namespace fs = std::filesystem;
    std::random_device random;
    fs::path path;
    do
        path = fs::temp_directory_path() / ("tandekor-" + std::to_string(random()));
    while (!fs::create_directory(path));
    return path.string() + static_cast<char>(fs::path::preferred_separator);
}

}  // namespace

ObexTest::ObexTest() : hostFolder(NewFolder()) {}

ObexTest::~ObexTest()
{
    std::error_code ignored;
    std::filesystem::remove_all(hostFolder, ignored);
}

void ObexTest::ExpectTurns(const std::vector<Turn>& turns, uint8_t result, uint16_t bits,
                           const std::function<uint8_t()>& call)
{
    simulator::ForgetCalls();
    std::vector<std::string> expected;
    for (const Turn& turn : turns)
    {
        Replies(Hex(turn.reply));
        expected.push_back(turn.request + " within " + std::to_string(turn.timeoutMs));
    }
    EXPECT_EQ(call(), result);
    EXPECT_EQ(error, bits);
    std::vector<std::string> sent;
    for (const simulator::Exchange& exchange : simulator::Exchanges())
        sent.push_back(ToHex(exchange.request) + " within " + std::to_string(exchange.timeoutMs));
    EXPECT_EQ(sent, expected);
    // A reply that was not fetched must not answer the next call.
    uint16_t firstByte = 0;
    for (size_t i = sent.size(); i < turns.size(); ++i)
        TANDEKOR_OBEX_2_AT(handle, &firstByte);
}

void ObexTest::ExpectSession(const std::vector<Turn>& turns, uint8_t result, uint16_t bits,
                             const std::function<uint8_t()>& call)
{
    std::vector<Turn> all = {connect};
    all.insert(all.end(), turns.begin(), turns.end());
    all.push_back(disconnect);
    ExpectTurns(all, result, bits, call);
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

Bytes ObexTest::HostContent(const std::string& name) const { return Ascii(HostText(name)); }

Bytes Noise(size_t size)
{
    std::minstd_rand random(1);
    Bytes bytes(size);
    for (uint8_t& byte : bytes)
        byte = static_cast<uint8_t>(random() >> 8);
    return bytes;
}

std::string Wide(const std::string& text)
{
    Bytes bytes;
    for (const char character : text)
    {
        bytes.push_back(0);
        bytes.push_back(static_cast<uint8_t>(character));
    }
    return ToHex(bytes);
}

}  // namespace tandekor::test
