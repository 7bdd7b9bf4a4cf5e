// Connections and their records, modes, versions, the text log, and a caller in C.
#include "core/text_log.h"
#include "procedures/upload_callback.h"
#include "tests/support/bench_test.h"

// In public_header.c.
extern "C" int ConnectionServesCaller(uint8_t* piValue, uint32_t* piHardwareVersion, char* sVersion);

namespace tandekor::test
{

namespace
{

using Texts = std::vector<std::string>;

class LibraryTest : public BenchTest
{
protected:
    // Whether the library has a record of the handle: only then does a command reach the log.
    static bool Knows(ResourceContext resourceContext)
    {
        simulator::ForgetLog();
        uint16_t status = 0;
        TANDEKOR_AT_CHUP(resourceContext, &status);
        return !Log().empty();
    }

    static bool PortIsOpen() { return simulator::TheBootBox().open; }
    void OpenPort() { ASSERT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 2), 1); }
};

std::vector<uint32_t> percentages;
void KeepPercentage(uint32_t, uint32_t percent) { percentages.push_back(percent); }

}  // namespace

TEST_F(LibraryTest, ConnectsHandOnTheirArgumentsAndDisconnectAllForgetsEveryHandle)
{
    simulator::SetConnectHandle(handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServer(0xFFFFFFFF), handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServerWithWait(3, 2500), handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServer_LogicalPort(9), handle + 1);
    simulator::SetConnectHandle(0);
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), 0U);
    const std::string version = "QLIB_GetLibraryVersion()";
    EXPECT_EQ(simulator::Calls(),
              (Texts{version, "QLIB_ConnectServer(4294967295)", version, "QLIB_ConnectServerWithWait(3, 2500)", version,
                     "QLIB_ConnectServer_LogicalPort(9)", version, "QLIB_ConnectServer(7)"}));
    EXPECT_FALSE(Knows(0)) << "a refused connect leaves no record";
    for (const ResourceContext each : {handle + 1, handle})
    {
        EXPECT_TRUE(Knows(each));
        EXPECT_EQ(simulator::Exchanges().back().handle, each);
    }
    simulator::ForgetCalls();
    TANDEKOR_DisconnectAllServers();
    EXPECT_EQ(simulator::Calls(), Texts{"QLIB_DisconnectAllServers()"});
    EXPECT_FALSE(Knows(handle) || Knows(handle + 1));
}

TEST_F(LibraryTest, HostVersionIsComparedUpToItsOwnComma)
{
    const std::pair<const char*, int> versions[] = {
        {"QLIB V5.0.40,QPST", 1},
        {"QLIB V5.0.40,QPHONEMS", 1},
        {"QLIB V5.0.40", 1},
        {"QLIB V5.0.4,QPST", 1},
        {",", 1},
        {"", 1},
        {"QLIB V5.0.41,QPST", 0},
        {"QLIB V5.1.40,QPST", 0},
        {"QLIB V5.0.400,QPST", 0},
        {"qlib V5.0.40,QPHONEMS", 0},
        {"QLIB V5.0.4 ,QPST", 0},
        {"QLIB V5.0.40 longer than the other one", 0},
    };
    for (const uint8_t mode : Bytes{0, 1})
    {
        TANDEKOR_SetLibraryMode(mode);
        for (const auto& [version, connects] : versions)
        {
            simulator::SetLibraryVersion(version);
            simulator::ForgetCalls();
            EXPECT_EQ(TANDEKOR_ConnectServer(comPort) != 0, connects != 0) << version;
            EXPECT_EQ(simulator::CountCalls("QLIB_ConnectServer"), connects) << version;
        }
    }
    EXPECT_TRUE(Log().empty());
}

TEST_F(LibraryTest, ConnectionStaysUntilItWasDisconnectedAsOftenAsConnected)
{
    OpenPort();
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), handle);
    simulator::ForgetCalls();
    TANDEKOR_DisconnectServer(handle);
    EXPECT_TRUE(PortIsOpen()) << "the second connect keeps the first one's service objects";
    EXPECT_TRUE(Knows(handle));
    // The record goes before the host library lets go of the phone.
    bool openAtHostCall = true;
    const auto look = [&] { openAtHostCall = PortIsOpen(); };
    simulator::BeforeCall("QLIB_DisconnectServer", 1, look);
    TANDEKOR_DisconnectServer(handle);
    EXPECT_FALSE(openAtHostCall || PortIsOpen() || Knows(handle));
    TANDEKOR_DisconnectServer(handle);
    TANDEKOR_DisconnectServer(0);
    EXPECT_EQ(simulator::CountCalls("QLIB_DisconnectServer"), 4) << "the host library is told in every case";

    openAtHostCall = true;
    TANDEKOR_ConnectServer(comPort);
    OpenPort();
    simulator::BeforeCall("QLIB_DisconnectAllServers", 1, look);
    TANDEKOR_DisconnectAllServers();
    EXPECT_FALSE(openAtHostCall);
}

TEST_F(LibraryTest, CallbackIsStoredWhateverTheHandleAndSurvivesTheConnection)
{
    const uint32_t total[] = {11, 0, 4000}, quarter[] = {12, 0, 1000};
    percentages.clear();
    TANDEKOR_SetCallback(unknownHandle, KeepPercentage);
    TANDEKOR_DisconnectAllServers();
    UploadProgressCallback(total);
    UploadProgressCallback(quarter);
    TANDEKOR_SetCallback(handle, nullptr);
    UploadProgressCallback(quarter);
    EXPECT_EQ(percentages, std::vector<uint32_t>{25});
}

TEST_F(LibraryTest, OnlyModeOneIsQpstAndVersionTextsFollowIt)
{
    for (const uint8_t mode : Bytes{1, 2, 1, 255, 1, 0})
    {
        simulator::ForgetCalls();
        TANDEKOR_SetLibraryMode(mode);
        EXPECT_EQ(simulator::Calls(), Texts{mode == 1 ? "QLIB_SetLibraryMode(1)" : "QLIB_SetLibraryMode(0)"});
        EXPECT_EQ(Knows(handle), mode != 1) << int{mode};
        GuardedBuffer extension(27), supported(22);
        TANDEKOR_GetExtensionVersion(extension.Text());
        TANDEKOR_GetSupportedQLibVersion(supported.Text());
        const std::string word = mode == 1 ? std::string("QPST\0UUUU", 9) : std::string("QPHONEMS\0", 9);
        EXPECT_EQ(extension.Content(), Ascii("TANDEKOR V02.4.15," + word));
        EXPECT_EQ(supported.Content(), Ascii("QLIB V5.0.40," + word));
        EXPECT_TRUE(extension.GuardsIntact() && supported.GuardsIntact());
    }
    // The mode is read from the host library's text.
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 0);
    simulator::SetLibraryVersion("of QPST, in front of the comma");
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 1);
    TANDEKOR_SetLibraryMode(1);
    simulator::SetLibraryVersion("QLIB V5.0.40,QPHONEMS");
    EXPECT_EQ(TANDEKOR_GetLibraryMode(), 0);
}

TEST_F(LibraryTest, TextsOfTheLogAreCutTo12291CharactersAndGoToThePhonesLog)
{
    const std::string fits(12291, 'x');
    Trace(handle, "%s", fits.c_str());
    Trace(handle + 1, "%sy", fits.c_str());
    EXPECT_EQ(Log(), (Texts{fits, fits}));
    EXPECT_EQ(simulator::LogTextArguments(),
              (std::vector<simulator::LogArguments>{{handle, 2, 0}, {handle + 1, 2, 0}}));
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
    EXPECT_TRUE(value == 1 && hardwareVersion == 0x12345678) << hardwareVersion;
    EXPECT_STREQ(version, "TANDEKOR V02.4.15,QPHONEMS");
}

}  // namespace tandekor::test
