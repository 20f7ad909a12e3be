#include "PlainClient.h"
#include "support/DeviceSim.h"
#include "support/FileContent.h"
#include "support/TestDataRoot.h"
#include "support/WaitUntil.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

TEST(DeviceSimProgram, SaysWhyItDoesNotRun)
{
    const TestDataRoot root;
    const DeviceSim other({"--devices", "1"}, DeviceSim::Keeps::State);
    struct Row
    {
        std::vector<std::string> options;
        int status;
        std::string says;
    };
    const Row rows[] = {
        {{"--port", std::to_string(other.Port())}, 1, "cannot listen on 127.0.0.1 port"},
        {{"--faults", other.StateFolder() + "none"}, 1, "cannot be read"},
        {{"--state", "/proc/nowhere"}, 1, "state folder /proc/nowhere/ cannot be used"},
        {{"--state", other.StateFolder()}, 1, "is in use by another program"},
        {{"--devices", "0"}, 2, "--devices"},
        {{"--channels", "600"}, 2, "more than 512"},
        {{"--channels", ""}, 2, "--channels"},
        {{"--type-code", "1x"}, 2, "--type-code"},
        {{"--type-code", "-1"}, 2, "--type-code"},
        {{"--user", ""}, 2, "--user"},
        {{"--what"}, 2, "unknown argument --what"},
    };
    for (const Row& row : rows) {
        CChildProcess program;
        std::vector<std::string> command{DeviceSim::Program()};
        command.insert(command.end(), row.options.begin(), row.options.end());
        const std::string output = root.Path() + "output";
        std::string error;
        ASSERT_TRUE(program.Start(command, output, error));
        EXPECT_EQ(program.WaitForExit(10000), row.status) << row.says;
        const std::string text = FileContent(output);
        EXPECT_NE(text.find(row.says), std::string::npos) << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    }
}

TEST(DeviceSimProgram, DealsCamerasToWhatHasThem)
{
    const DeviceSim sim({"--devices", "4", "--channels", "16", "--type-code", "102,15/6"});
    std::vector<std::string> kinds;
    unsigned cameras = 0;
    for (const DeviceSim::Device& device : sim.Devices()) {
        kinds.push_back(device.kind);
        cameras += device.channels;
    }
    EXPECT_EQ(kinds, (std::vector<std::string>{"encoder", "recorder", "encoder", "storage"}));
    EXPECT_EQ(cameras, 16U);
    EXPECT_GT(sim.Devices()[1].channels, sim.Devices()[0].channels);
    EXPECT_EQ(sim.Devices()[3].channels, 0U);
    EXPECT_EQ(sim.Devices()[0].typeCode, 102U);
    EXPECT_EQ(sim.Devices()[1].subType, 6U);
    EXPECT_EQ(sim.Devices()[2].typeCode, 1U);
}

TEST(DeviceSimProgram, KeepsItsCertificateUntilAnotherIsWanted)
{
    DeviceSim sim({"--devices", "1", "--tls"}, DeviceSim::Keeps::State);
    const std::string first = sim.Devices()[0].fingerprint;
    EXPECT_EQ(first.size(), 64U);
    ASSERT_EQ(sim.Stop(), 0);
    ASSERT_TRUE(sim.Restart());
    EXPECT_EQ(sim.Devices()[0].fingerprint, first);
    sim.Kill();
    ASSERT_TRUE(sim.Restart({"--new-certificate"}));
    EXPECT_NE(sim.Devices()[0].fingerprint, first);
}

TEST(DeviceSimProgram, VoiceIsKeptAlsoWhenItIsCut)
{
    DeviceSim sim({"--devices", "1"}, DeviceSim::Keeps::State);
    const std::string path = "voice/1?encoding=0&rate=8000";
    PlainClient speaker(sim.Port());
    ASSERT_EQ(speaker.Login().status, 200);
    const std::string chunk("3\r\n\xff\x80\0\r\n", 8);
    ASSERT_TRUE(speaker.Send(speaker.Head("POST", path, "Transfer-Encoding: chunked\r\n") + chunk));
    PlainClient second(sim.Port());
    ASSERT_EQ(second.Login().status, 200);
    ASSERT_TRUE(WaitUntil([&] { return FileContent(sim.StateFolder() + "voice-0-1.wav").size() == 50; }));
    ASSERT_TRUE(second.Send(second.Head("POST", path, "Transfer-Encoding: chunked\r\n")));
    EXPECT_EQ(second.Receive().status, 409);
    sim.Kill();
    const std::string wav = FileContent(sim.StateFolder() + "voice-0-1.wav");
    EXPECT_EQ(wav.substr(0, 4), "RIFF");
    EXPECT_EQ(wav[40], 6);
    // ITU-T G.711: 0xff is silence, 0x80 and 0x00 the loudest.
    EXPECT_EQ(wav.substr(44), std::string("\0\0\x7c\x7d\x84\x82", 6));
}

} // namespace
