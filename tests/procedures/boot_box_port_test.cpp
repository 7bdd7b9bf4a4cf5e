// The boot box port: what the port is told and in which order.
#include "channels/boot_box_port.h"

#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

class BootBoxPortTest : public ProcedureTest
{
protected:
    BootBoxPort port;
};

TEST_F(BootBoxPortTest, FirstSwitchOnOpensThePortAndLaterOnesOnlyMoveDtr)
{
    EXPECT_TRUE(port.SwitchPhoneOn(4));
    EXPECT_EQ(BootBox().events, (Texts{"open 4", "configure", "purge", "DTR 0", "RTS 0", "DTR 1"}));
    EXPECT_EQ(Sleeps(), Waits{0});
    BootBox().events.clear();
    EXPECT_TRUE(port.SwitchPhoneOn(4));
    EXPECT_TRUE(port.SwitchPhoneOff(4));
    EXPECT_EQ(BootBox().events, (Texts{"DTR 1", "DTR 0"}));
    EXPECT_EQ(Sleeps(), (Waits{0, 0, 0}));
}

TEST_F(BootBoxPortTest, AnotherPortIsRefusedUntilTheOpenOneIsReleased)
{
    BootBox().ports = {4, 5};
    port.SwitchPhoneOn(4);
    BootBox().events.clear();
    EXPECT_FALSE(port.SwitchPhoneOn(5));
    EXPECT_FALSE(port.SwitchPhoneOff(5));
    EXPECT_EQ(BootBox().events, Texts{});
    EXPECT_TRUE(port.ReleasePort());
    EXPECT_FALSE(port.ReleasePort()) << "nothing is open any more";
    EXPECT_TRUE(port.SwitchPhoneOn(5));
}

TEST_F(BootBoxPortTest, ClosedPortIsOpenedByNothingButASwitchOnThatFindsIt)
{
    EXPECT_FALSE(port.SwitchPhoneOff(4));
    EXPECT_FALSE(port.SwitchPhoneOff(0)) << "the number fits a closed object, but there is no line to drop";
    EXPECT_FALSE(port.SwitchPhoneOn(9));
    EXPECT_FALSE(port.SwitchPhoneOff(9));
    EXPECT_EQ(BootBox().events, Texts{});
    EXPECT_EQ(Sleeps(), Waits{});
    EXPECT_TRUE(port.SwitchPhoneOn(4));
}

TEST_F(BootBoxPortTest, RefusedLineChangeFailsTheSwitchAndRefusedCloseKeepsThePort)
{
    BootBox().refuseLineChanges = true;
    EXPECT_FALSE(port.SwitchPhoneOn(4));
    EXPECT_FALSE(port.SwitchPhoneOff(4));
    EXPECT_EQ(Sleeps(), Waits{});
    BootBox().refuseLineChanges = false;
    EXPECT_TRUE(port.SwitchPhoneOff(4)) << "the port was opened all the same";
    BootBox().refuseClose = true;
    EXPECT_FALSE(port.ReleasePort());
    EXPECT_TRUE(port.SwitchPhoneOff(4));
    BootBox().refuseClose = false;
    EXPECT_TRUE(port.ReleasePort());
}

TEST_F(BootBoxPortTest, LastDisconnectRaisesRtsAndClosesAndLeavesDtrAsItIs)
{
    ASSERT_EQ(TANDEKOR_BootBox_SwitchMobileOn(handle, 4, 2), 1);
    ASSERT_EQ(TANDEKOR_ConnectServer(comPort), handle);
    BootBox().events.clear();
    TANDEKOR_DisconnectServer(handle);
    EXPECT_EQ(BootBox().events, Texts{});
    TANDEKOR_DisconnectServer(handle);
    EXPECT_EQ(BootBox().events, (Texts{"RTS 1", "close"}));
    EXPECT_TRUE(BootBox().dtr);
}

}  // namespace tandekor::test
