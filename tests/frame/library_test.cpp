#include "core/text_log.h"
#include "tests/support/bench_test.h"

// In public_header.c.
extern "C" int ConnectionServesCaller(uint8_t* piValue, uint32_t* piHardwareVersion, char* sVersion);

namespace tandekor::test
{

namespace
{

using LibraryTest = BenchTest;

}  // namespace

TEST_F(LibraryTest, VersionTextsFollowTheModeAndWriteNoMoreThanThemselves)
{
    TANDEKOR_DisconnectAllServers();
    for (const uint8_t mode : Bytes{0, 1})
    {
        TANDEKOR_SetLibraryMode(mode);
        GuardedBuffer extension(27), supported(22);
        TANDEKOR_GetExtensionVersion(extension.Text());
        TANDEKOR_GetSupportedQLibVersion(supported.Text());
        const std::string word = mode == 1 ? std::string("QPST\0UUUU", 9) : std::string("QPHONEMS\0", 9);
        EXPECT_EQ(extension.Content(), Ascii("TANDEKOR V02.4.15," + word));
        EXPECT_EQ(supported.Content(), Ascii("QLIB V5.0.40," + word));
        EXPECT_TRUE(extension.GuardsIntact() && supported.GuardsIntact());
    }
}

TEST_F(LibraryTest, LibraryModeIsReadFromTheHostLibrarysText)
{
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 0);
    simulator::SetLibraryVersion("of QPST, in front of the comma");
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 1);
    TANDEKOR_SetLibraryMode(1);
    simulator::SetLibraryVersion("QLIB V5.0.40,QPHONEMS");
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 0);
}

TEST_F(LibraryTest, TextsOfTheLogAreCutTo12291Characters)
{
    const std::string fits(12291, 'x');
    Trace(handle, "%s", fits.c_str());
    Trace(handle, "%sy", fits.c_str());
    EXPECT_EQ(Log(), (std::vector<std::string>{fits, fits}));
}

TEST_F(LibraryTest, PublicHeadersServeCallersInC)
{
    simulator::ThePhone().mode = simulator::Mode::Ftm;
    simulator::ThePhone().hardwareVersion = 0x12345678;
    Replies("AT+CMUT?\r\r\n+CMUT: 1\r\n\r\nOK");
    uint8_t value = 0;
    uint32_t hardwareVersion = 0;
    char version[27] = {};
    EXPECT_EQ(ConnectionServesCaller(&value, &hardwareVersion, version), 1);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(hardwareVersion, 0x12345678u);
    EXPECT_STREQ(version, "TANDEKOR V02.4.15,QPHONEMS");
}

}  // namespace tandekor::test
