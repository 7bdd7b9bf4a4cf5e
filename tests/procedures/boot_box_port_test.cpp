// The boot box port: what the port is told and in which order.
#include "channels/boot_box_port.h"

#include "tests/procedures/procedure_test.h"

namespace tandekor::test
{

class BootBoxPortTest : public ProcedureTest
{
protected:
    // What the port is told by an action, with its result.
    std::string Told(bool (BootBoxPort::*action)(uint16_t), uint16_t number)
    {
        BootBox().events.clear();
        std::string told = (port.*action)(number) ? "yes" : "no";
        for (const std::string& event : BootBox().events)
            told += ", " + event;
        return told;
    }
    std::string On(uint16_t number) { return Told(&BootBoxPort::SwitchPhoneOn, number); }
    std::string Off(uint16_t number) { return Told(&BootBoxPort::SwitchPhoneOff, number); }

    BootBoxPort port;
};

TEST_F(BootBoxPortTest, IsOpenedByTheFirstSwitchOnAndNothingElseAndKeptUntilItIsReleased)
{
    const std::vector<uint32_t>& sleeps = simulator::TheClock().sleeps;
    BootBox().ports = {4, 5};
    EXPECT_EQ(Off(4), "no");
    EXPECT_EQ(Off(0), "no") << "the number fits a closed object, but there is no line to drop";
    EXPECT_EQ(On(9), "no");
    EXPECT_EQ(sleeps.size(), 0U);
    EXPECT_EQ(On(4), "yes, open 4, configure, purge, DTR 0, RTS 0, DTR 1");
    EXPECT_EQ(On(4), "yes, DTR 1");
    EXPECT_EQ(Off(4), "yes, DTR 0");
    EXPECT_EQ(sleeps, (std::vector<uint32_t>{0, 0, 0}));
    EXPECT_EQ(On(5), "no");
    EXPECT_EQ(Off(5), "no");
    EXPECT_TRUE(port.ReleasePort());
    EXPECT_FALSE(port.ReleasePort()) << "nothing is open any more";
    EXPECT_EQ(On(5).substr(0, 11), "yes, open 5");
}

TEST_F(BootBoxPortTest, RefusedLineChangeFailsTheSwitchAndRefusedCloseKeepsThePort)
{
    BootBox().refuseLineChanges = true;
    EXPECT_FALSE(port.SwitchPhoneOn(4));
    EXPECT_FALSE(port.SwitchPhoneOff(4));
    EXPECT_TRUE(simulator::TheClock().sleeps.empty());
    BootBox().refuseLineChanges = false;
    EXPECT_EQ(Off(4), "yes, DTR 0") << "the port was opened all the same";
    BootBox().refuseClose = true;
    EXPECT_FALSE(port.ReleasePort());
    EXPECT_EQ(Off(4), "yes, DTR 0");
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
