#include "PlainClient.h"
#include "support/DeviceSim.h"

#include <gtest/gtest.h>

#include <fstream>

namespace {

TEST(DeviceSimState, SurvivesAKillAndALossOfAFile)
{
    DeviceSim sim({"--devices", "1", "--channels", "2"}, DeviceSim::Keeps::State);
    std::string structure;
    {
        PlainClient client(sim.Port());
        ASSERT_EQ(client.Login().status, 200);
        structure = client.Ask("GET", "config/6118?channel=2").body;
        ASSERT_EQ(structure.size(), 36U);
        structure[4] = static_cast<char>(structure[4] ^ 1);
        EXPECT_EQ(client.Ask("PUT", "config/6119?channel=2", structure).status, 204);
        sim.Kill();
    }
    ASSERT_TRUE(sim.Restart()) << sim.Output();
    PlainClient client(sim.Port());
    EXPECT_EQ(client.Ask("GET", "config/6118?channel=2").Header("Vantor-Session"), "ended");
    ASSERT_EQ(client.Login().status, 200);
    EXPECT_EQ(client.Ask("GET", "config/6118?channel=2").body, structure);
    EXPECT_NE(client.Ask("GET", "config/6118?channel=1").body, structure);

    ASSERT_EQ(sim.Stop(), 0);
    std::ofstream(sim.StateFolder() + "device-0/6118-2.state", std::ios::in | std::ios::ate) << "x";
    ASSERT_TRUE(sim.Restart()) << sim.Output();
    PlainClient after(sim.Port());
    ASSERT_EQ(after.Login().status, 200);
    EXPECT_NE(after.Ask("GET", "config/6118?channel=2").body, structure);
    EXPECT_NE(sim.Output().find("6118-2.state is damaged and was set aside"), std::string::npos);
}

} // namespace
