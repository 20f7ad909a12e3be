#include "device/Tool.h"

#include "DeviceStructures/Commands.h"
#include "DeviceStructures/Values.h"
#include "QxNetSDK/QxNetSDK.h"
#include "support/FakeSdk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace {

using testing::HasSubstr;

class DeviceTool : public testing::Test
{
protected:
    int Run(std::vector<std::string> arguments, const std::string& typed = "correct horse\n")
    {
        arguments.insert(arguments.begin(), {"--password-file", "-", "admin@cam:80"});
        std::istringstream in(typed);
        out.str("");
        err.str("");
        return devicetool::RunTool(arguments, in, out, err);
    }

    template<typename Structure>
    Structure Fresh(std::uint32_t command)
    {
        Structure structure;
        const auto octets = devices::Defaults(devices::FindCommand(command)->layout());
        std::memcpy(&structure, octets.data(), sizeof(structure));
        return structure;
    }

    /// The only Set that was made; its function is empty when there was none or more.
    FakeSdk::Call OnlySet() const
    {
        FakeSdk::Call set;
        int count = 0;
        for (const auto& call : sdk.Calls())
            if (call.function == "NET_DVR_SetDVRConfig" && ++count == 1)
                set = call;
        return count == 1 ? set : FakeSdk::Call();
    }

    FakeSdk sdk;
    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(DeviceTool, ChangesOnlyTheNamedMembersOfWhatItRead)
{
    auto record = Fresh<NET_DVR_RECORD_V40>(QXNET_GET_RECORD_V40);
    record.duration = 12;
    sdk.Answer(QXNET_GET_RECORD_V40, record);
    ASSERT_EQ(Run({"set", "record-v40", "--channel", "3", "audio=no"}), devicetool::kGood) << err.str();
    const auto set = OnlySet();
    ASSERT_EQ(set.input.size(), sizeof(record));
    EXPECT_EQ(set.command, QXNET_SET_RECORD_V40);
    EXPECT_EQ(set.channel, 3);
    record.audio = 0;
    EXPECT_EQ(std::memcmp(set.input.data(), &record, sizeof(record)), 0);
}

TEST_F(DeviceTool, WritesWhatJsonSaysWithoutReading)
{
    ASSERT_EQ(Run({"set", "cabac", "--from", "-"}, "correct horse\n{\"enabled\":0}"), devicetool::kGood)
        << err.str();
    EXPECT_EQ(OnlySet().input.at(4), 0);
    for (const auto& call : sdk.Calls())
        EXPECT_NE(call.function, "NET_DVR_GetDVRConfig");
}

TEST_F(DeviceTool, SetsNothingWhenTheReadOrAValueIsBad)
{
    sdk.Answer(QXNET_GET_CABAC, Fresh<tagNET_DVR_STREAM_CABAC>(QXNET_GET_CABAC));
    EXPECT_EQ(Run({"set", "cabac", "enabled=2"}), devicetool::kWrongUse);
    EXPECT_THAT(err.str(), HasSubstr("enabled: 2 is not within 0 to 1"));
    sdk.Fail("NET_DVR_GetDVRConfig", {QXNET_ERROR_BUSY, 7, 9});
    EXPECT_EQ(Run({"set", "cabac", "enabled=1"}), devicetool::kFailed);
    EXPECT_EQ(err.str(), "vantor-device: cabac: the device is busy [503]-[7], the device's own number 9\n");
    EXPECT_TRUE(OnlySet().function.empty());
}

TEST_F(DeviceTool, ShowsNoStructureThatIsOutOfItsRanges)
{
    auto record = Fresh<NET_DVR_RECORD_V40>(QXNET_GET_RECORD_V40);
    record.week.days[6].segments[7].endMinute = 200;
    sdk.Answer(QXNET_GET_RECORD_V40, record);
    EXPECT_EQ(Run({"--json", "get", "1008"}), devicetool::kFailed);
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(err.str(), HasSubstr("\"error\":304,"));
    EXPECT_THAT(err.str(), HasSubstr("week.days[6].segments[7].endMinute: 200"));
}

TEST_F(DeviceTool, TellsOfEachItemOfABatch)
{
    const auto face = Fresh<tagNET_DVR_DETECT_FACE>(QXNET_GET_FACE_DETECTION);
    FakeSdk::Bytes both(2 * sizeof(face));
    std::memcpy(both.data(), &face, sizeof(face));
    sdk.Answer(QXNET_GET_FACE_DETECTION, both);
    sdk.AnswerStatus({0, QXNET_ERROR_CHANNEL});
    EXPECT_EQ(Run({"--json", "batch", "face-detection", "--channels", "4,8"}), devicetool::kFailed);
    EXPECT_THAT(out.str(), testing::StartsWith(R"([{"channel":4,"error":0,"value":{"enabled":0,)"));
    EXPECT_THAT(out.str(), testing::EndsWith(R"({"channel":8,"error":501,"value":null}])"
                                             "\n"));
}

TEST_F(DeviceTool, ListsAndSwitchesOutputs)
{
    auto states = Fresh<QxNetAlarmStates>(QXNET_GET_ALARM_STATES);
    states.outputCount = 2;
    states.outputs[0] = 2;
    sdk.Answer(QXNET_GET_ALARM_STATES, states);
    auto output = Fresh<QxNetAlarmOutput>(QXNET_GET_ALARM_OUTPUT);
    std::strcpy(output.name, "Horn");
    sdk.Answer(QXNET_GET_ALARM_OUTPUT, output);
    ASSERT_EQ(Run({"outputs"}), devicetool::kGood) << err.str();
    EXPECT_EQ(out.str(), "output  state  name\n1       off    Horn\n2       on     Horn\n");
    ASSERT_EQ(Run({"outputs", "on", "2"}), devicetool::kGood);
    EXPECT_EQ(OnlySet().channel, 2);
    EXPECT_EQ(OnlySet().input.at(4), 1);
}

TEST_F(DeviceTool, SetsTheClockToTheGivenTimeAndKeepsItsZone)
{
    auto clock = Fresh<QxNetClock>(QXNET_GET_CLOCK);
    clock.zone = -210;
    sdk.Answer(QXNET_GET_CLOCK, clock);
    ASSERT_EQ(Run({"time", "2026-03-01", "12:30:59"}), devicetool::kGood) << err.str();
    QxNetClock set{};
    ASSERT_EQ(OnlySet().input.size(), sizeof(set));
    std::memcpy(&set, OnlySet().input.data(), sizeof(set));
    EXPECT_EQ(set.month * 100 + set.day, 301);
    EXPECT_EQ(set.hour * 3600 + set.minute * 60 + set.second, 45059);
    EXPECT_EQ(set.zone, -210);
    EXPECT_EQ(Run({"time", "2026-02-30", "12:30:59"}), devicetool::kWrongUse);
}

TEST_F(DeviceTool, PrintsAbilitiesAsTheyComeAndEndsWhenOneFails)
{
    const std::string document = "<RecordAbility>\"x\"</RecordAbility>";
    sdk.Answer(QXNET_ABILITY_RECORD, FakeSdk::Bytes(document.begin(), document.end()));
    ASSERT_EQ(Run({"abilities", "record"}), devicetool::kGood) << err.str();
    EXPECT_EQ(out.str(), document + "\n");
    ASSERT_EQ(Run({"abilities", "record", "--json"}), devicetool::kGood) << err.str();
    EXPECT_EQ(out.str(), R"({"record":"<RecordAbility>\"x\"</RecordAbility>"})"
                         "\n");
    EXPECT_EQ(Run({"abilities", "colour"}), devicetool::kWrongUse);
    sdk.Fail("QxNet_GetAbility", {QXNET_ERROR_NOT_SUPPORTED, 0, 0});
    EXPECT_EQ(Run({"abilities", "record"}), devicetool::kFailed);
    EXPECT_EQ(Run({"abilities"}), devicetool::kGood); // those that a device lacks are left out
    EXPECT_EQ(out.str(), "");
}

TEST_F(DeviceTool, CallsNoDeviceForAWrongParameterOrValue)
{
    EXPECT_EQ(Run({"get", "colour"}), devicetool::kWrongUse);
    EXPECT_EQ(Run({"batch", "cabac", "--channels", "1-4", "enabled=2"}), devicetool::kWrongUse);
    EXPECT_EQ(Run({"--json", "set", "cabac", "enabled=2"}), devicetool::kWrongUse);
    EXPECT_EQ(err.str(), R"({"error":101,"module":0,"own":0,"text":)"
                         "\"a wrong argument [101]-[0]: enabled: 2 is not within 0 to 1\"}\n");
    EXPECT_TRUE(sdk.Calls().empty());
}

TEST_F(DeviceTool, WaitsOnceOnlyForADeviceThatWentAway)
{
    sdk.Fail("NET_DVR_GetDVRConfig", {QXNET_ERROR_CONNECT_TIMEOUT, 0, 0});
    EXPECT_EQ(Run({"--json", "batch", "cabac", "--channels", "1-256"}), devicetool::kFailed);
    EXPECT_THAT(out.str(), HasSubstr(R"({"channel":256,"error":202,"value":null})"));
    const auto calls = sdk.Calls();
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                            [](const auto& call) { return call.function == "NET_DVR_GetDVRConfig"; }),
              1);
}

TEST_F(DeviceTool, ShowsControlCharactersOfADeviceAsText)
{
    auto info = Fresh<QxNetDeviceInfo>(QXNET_GET_DEVICE_INFO);
    std::strcpy(info.name, "\x1b[2J\nGate \xc2\x9b \xc3\x9f");
    sdk.Answer(QXNET_GET_DEVICE_INFO, info);
    ASSERT_EQ(Run({"info"}), devicetool::kGood) << err.str();
    EXPECT_THAT(out.str(), HasSubstr(R"(\u001b[2J\u000aGate \u009b )"
                                     "\xc3\x9f\n"));
}

struct MisuseRow
{
    std::vector<std::string> arguments;
    const char* complaint;
};

class Misuse : public DeviceTool, public testing::WithParamInterface<MisuseRow>
{};

TEST_P(Misuse, IsRefusedBeforeAnythingIsSet)
{
    EXPECT_EQ(Run(GetParam().arguments), devicetool::kWrongUse);
    EXPECT_THAT(err.str(), HasSubstr(GetParam().complaint));
    EXPECT_TRUE(OnlySet().function.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Misuse,
    testing::Values(MisuseRow{{"set", "disks", "count=1"}, "disks can only be read"},
                    MisuseRow{{"get", "reboot"}, "reboot can only be set"},
                    MisuseRow{{"set", "cabac"}, "set needs either"},
                    MisuseRow{{"set", "user-password", "password=12345678"}, "is secret"},
                    MisuseRow{{"get", "network", "--channel", "1"}, "network is of the device"},
                    MisuseRow{{"get", "cabac", "--from", "x"}, "--from is no option of get"},
                    MisuseRow{{"batch", "cabac", "--channels", "0-4"}, "batch needs --channels"},
                    MisuseRow{{"outputs", "on"}, "outputs takes on or off"},
                    MisuseRow{{"commands"}, "commands is of no device"},
                    MisuseRow{{"info", "--timeout", "99"}, "--timeout must be"}));

} // namespace
