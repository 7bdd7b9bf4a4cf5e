#include "procedures/upload_callback.h"
#include "tests/support/bench_test.h"

namespace tandekor::test
{

namespace
{

using Texts = std::vector<std::string>;

class ConnectionRegistryTest : public BenchTest
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

TEST_F(ConnectionRegistryTest, ConnectsHandOnTheirArgumentsAndKeepConnectionsApart)
{
    simulator::SetConnectHandle(handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServer(0xFFFFFFFF), handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServerWithWait(3, 2500), handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServer_LogicalPort(9), handle + 1);
    const std::string version = "QLIB_GetLibraryVersion()";
    EXPECT_EQ(simulator::Calls(),
              (Texts{version, "QLIB_ConnectServer(4294967295)", version, "QLIB_ConnectServerWithWait(3, 2500)", version,
                     "QLIB_ConnectServer_LogicalPort(9)"}));
    for (const ResourceContext each : {handle + 1, handle})
    {
        EXPECT_TRUE(Knows(each));
        EXPECT_EQ(simulator::Exchanges().back().handle, each);
    }
}

TEST_F(ConnectionRegistryTest, HostVersionIsComparedUpToItsOwnComma)
{
    struct
    {
        std::string version;
        int connects;
    } const cases[] = {
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
        for (const auto& row : cases)
        {
            simulator::SetLibraryVersion(row.version);
            simulator::ForgetCalls();
            EXPECT_EQ(TANDEKOR_ConnectServer(comPort) != 0, row.connects != 0) << row.version;
            EXPECT_EQ(simulator::CountCalls("QLIB_ConnectServer"), row.connects) << row.version;
        }
    }
    EXPECT_TRUE(Log().empty());
}

TEST_F(ConnectionRegistryTest, RefusedConnectLeavesNoRecord)
{
    simulator::SetConnectHandle(0);
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), 0u);
    EXPECT_FALSE(Knows(0));
    EXPECT_TRUE(Knows(handle));
}

TEST_F(ConnectionRegistryTest, ConnectionStaysUntilItWasDisconnectedAsOftenAsConnected)
{
    OpenPort();
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), handle);
    simulator::ForgetCalls();
    TANDEKOR_DisconnectServer(handle);
    EXPECT_TRUE(PortIsOpen()) << "the second connect keeps the first one's service objects";
    EXPECT_TRUE(Knows(handle));
    TANDEKOR_DisconnectServer(handle);
    EXPECT_FALSE(PortIsOpen());
    EXPECT_FALSE(Knows(handle));
    TANDEKOR_DisconnectServer(handle);
    TANDEKOR_DisconnectServer(0);
    EXPECT_EQ(simulator::CountCalls("QLIB_DisconnectServer"), 4) << "the host library is told in every case";
}

TEST_F(ConnectionRegistryTest, DisconnectAllForgetsEveryHandleWhateverItsUse)
{
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), handle);
    simulator::SetConnectHandle(handle + 1);
    EXPECT_EQ(TANDEKOR_ConnectServer(comPort), handle + 1);
    simulator::ForgetCalls();
    TANDEKOR_DisconnectAllServers();
    EXPECT_EQ(simulator::Calls(), Texts{"QLIB_DisconnectAllServers()"});
    EXPECT_FALSE(Knows(handle) || Knows(handle + 1));
}

TEST_F(ConnectionRegistryTest, RecordGoesBeforeTheHostLibraryLetsGoOfThePhone)
{
    bool openAtHostCall = true;
    const auto look = [&] { openAtHostCall = PortIsOpen(); };
    OpenPort();
    simulator::BeforeCall("QLIB_DisconnectServer", 1, look);
    TANDEKOR_DisconnectServer(handle);
    EXPECT_FALSE(openAtHostCall);

    openAtHostCall = true;
    TANDEKOR_ConnectServer(comPort);
    OpenPort();
    simulator::BeforeCall("QLIB_DisconnectAllServers", 1, look);
    TANDEKOR_DisconnectAllServers();
    EXPECT_FALSE(openAtHostCall);
}

TEST_F(ConnectionRegistryTest, OnlyModeOneIsQpst)
{
    for (const uint8_t mode : Bytes{1, 2, 1, 255, 1, 0})
    {
        simulator::ForgetCalls();
        TANDEKOR_SetLibraryMode(mode);
        EXPECT_EQ(simulator::Calls(), Texts{mode == 1 ? "QLIB_SetLibraryMode(1)" : "QLIB_SetLibraryMode(0)"});
        EXPECT_EQ(Knows(handle), mode != 1) << int{mode};
    }
}

TEST_F(ConnectionRegistryTest, CallbackIsStoredWhateverTheHandleAndSurvivesTheConnection)
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

}  // namespace tandekor::test
