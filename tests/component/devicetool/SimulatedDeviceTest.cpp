#include "device/Tool.h"

#include "DeviceStructures/Commands.h"
#include "support/DeviceSim.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

/// The tool against a simulated recorder.
class SimulatedDevice : public testing::Test
{
protected:
    int Run(std::vector<std::string> arguments, const std::string& json = {})
    {
        arguments.insert(arguments.begin(), {"--password-file", "-", "--timeout", "20000",
                                             "admin@127.0.0.1:" + std::to_string(device.Port())});
        std::istringstream in("vantor-device\n" + json);
        out.str("");
        err.str("");
        return devicetool::RunTool(arguments, in, out, err);
    }

    DeviceSim device{{"--devices", "1", "--channels", "2", "--first-kind", "recorder"}};
    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(SimulatedDevice, KeepsEveryParameterThatItIsGiven)
{
    for (const auto& command : devices::ConfigCommands()) {
        if (!command.get)
            continue;
        ASSERT_EQ(Run({"--json", "get", command.parameter}), devicetool::kGood)
            << command.parameter << err.str();
        const std::string read = out.str();
        const std::string parameter = command.parameter;
        if (!command.set || parameter == "clock") // which goes on
            continue;
        EXPECT_EQ(Run({"set", parameter, "--from", "-"}, read), devicetool::kGood) << parameter << err.str();
        ASSERT_EQ(Run({"--json", "get", parameter}), devicetool::kGood) << parameter;
        EXPECT_EQ(out.str(), read) << parameter;
    }
}

TEST_F(SimulatedDevice, TakesMembersBatchesOutputsAndTime)
{
    ASSERT_EQ(Run({"set", "record-v40", "--channel", "2", "week.days[5-6].allDay=no", "duration=14"}), 0)
        << err.str();
    ASSERT_EQ(Run({"get", "record-v40", "--channel", "2"}), 0);
    EXPECT_THAT(out.str(), testing::AllOf(testing::HasSubstr("duration                      14 d"),
                                          testing::HasSubstr("week.days[0-4].allDay         yes")));
    EXPECT_EQ(Run({"batch", "face-detection", "--channels", "1-3", "enabled=yes"}), devicetool::kFailed);
    EXPECT_THAT(err.str(), testing::HasSubstr("channel 3: the device has no such channel"));
    ASSERT_EQ(Run({"outputs", "on", "1"}), 0) << err.str();
    ASSERT_EQ(Run({"get", "alarm-states"}), 0);
    EXPECT_THAT(out.str(), testing::HasSubstr("outputs      1\n"));
    ASSERT_EQ(Run({"time", "2026-03-01 12:00:00"}), 0) << err.str();
    ASSERT_EQ(Run({"time"}), 0);
    EXPECT_THAT(out.str(), testing::StartsWith("2026-03-01 12:0"));
    ASSERT_EQ(Run({"channels"}), 0);
    EXPECT_THAT(out.str(), testing::AllOf(testing::HasSubstr("Loading Dock\n"), testing::HasSubstr("\n2  "),
                                          testing::Not(testing::HasSubstr("\n3  "))));
}

TEST_F(SimulatedDevice, ShowsTheAbilitiesThatItHas)
{
    for (const char* kind : {"input", "basic", "record", "picture", "detection"}) {
        ASSERT_EQ(Run({"abilities", kind, "--channel", "2"}), 0) << kind << err.str();
        EXPECT_THAT(out.str(), testing::StartsWith("<?xml ")) << kind;
    }
    ASSERT_EQ(Run({"--json", "abilities"}), 0) << err.str();
    EXPECT_THAT(out.str(), testing::StartsWith(R"({"input":"<?xml )"));
    EXPECT_EQ(Run({"abilities", "record", "--channel", "9"}), devicetool::kFailed);
}

TEST(SimulatedTlsDevice, IsTrustedUntilItShowsAnotherCertificate)
{
    DeviceSim device({"--devices", "1", "--tls"}, DeviceSim::Keeps::State);
    const std::string target = "admin@127.0.0.1:" + std::to_string(device.Port());
    const auto run = [&](std::vector<std::string> way) {
        std::vector<std::string> arguments{"--password-file", "-",   "--timeout", "20000", target,
                                           "--json",          "get", "cabac"};
        arguments.insert(arguments.end(), way.begin(), way.end());
        std::istringstream in("vantor-device\n");
        std::ostringstream out;
        std::ostringstream err;
        const int code = devicetool::RunTool(arguments, in, out, err);
        return std::to_string(code) + ' ' + out.str() + err.str();
    };
    const std::vector<std::string> tls{"--tls", "--trust-file", device.StateFolder() + "trusted"};
    EXPECT_EQ(run(tls), "0 {\"enabled\":1}\n");
    EXPECT_THAT(run({}), testing::StartsWith("1 {\"error\":"));
    ASSERT_EQ(device.Stop(), 0);
    ASSERT_TRUE(device.Restart({"--new-certificate"}));
    EXPECT_THAT(run(tls), testing::StartsWith("1 {\"error\":211,"));
}

} // namespace
