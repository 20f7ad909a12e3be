#include "SdkClient.h"
#include "support/DeviceSim.h"
#include "support/TestDataRoot.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <thread>

namespace {

QxNetLogin ToSim(const DeviceSim& sim, std::size_t device = 0)
{
    QxNetLogin login = CSdk::To(sim.Port(device), 10000);
    std::strcpy(login.password, "vantor-device");
    return login;
}

std::int32_t LogIn(const QxNetLogin& login)
{
    return QxNet_Login(&login, nullptr);
}

} // namespace

TEST(SdkWithSimulator, TwoHundredLoginsAtOnceGetHandlesOfTheirOwn)
{
    CSdk sdk;
    DeviceSim sim({"--devices", "4", "--channels", "16"});
    std::vector<std::int32_t> handles(200, -1);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        threads.emplace_back([&, i] {
            handles[i] = LogIn(ToSim(sim, i % 4));
            EXPECT_GE(handles[i], 0) << testing::PrintToString(LastError());
            QxNetChannelPage page;
            EXPECT_EQ(NET_DVR_GetDVRConfig(handles[i], QXNET_GET_CHANNEL_PAGE, 1, &page, sizeof page), 1)
                << testing::PrintToString(LastError());
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(std::set<std::int32_t>(handles.begin(), handles.end()).size(), handles.size());
}

TEST(SdkWithSimulator, WhatIsSetInABatchOrByStandardConfigurationIsReadBack)
{
    CSdk sdk;
    DeviceSim sim({"--devices", "1", "--channels", "2"});
    const std::int32_t session = LogIn(ToSim(sim));
    tagNET_DVR_CHANNEL_GROUP groups[2] = {};
    groups[0].size = groups[1].size = sizeof groups[0];
    groups[0].channel = 2;
    groups[1].channel = 9;
    std::uint32_t status[2] = {};
    tagNET_DVR_AUDIO_EXCEPTION sounds[2];
    const auto batch = [&](auto call, std::uint32_t command) {
        ASSERT_EQ(call(session, command, 2, groups, sizeof groups, status, sounds, sizeof sounds), 1)
            << testing::PrintToString(LastError());
        EXPECT_THAT(status, testing::ElementsAre(0, QXNET_ERROR_CHANNEL));
    };
    batch(NET_DVR_GetDeviceConfig, QXNET_GET_AUDIO_EXCEPTION);
    sounds[1] = sounds[0];
    const std::uint8_t enabled = sounds[0].enabled ^= 1;
    batch(NET_DVR_SetDeviceConfig, QXNET_SET_AUDIO_EXCEPTION);
    sounds[0] = {};
    batch(NET_DVR_GetDeviceConfig, QXNET_GET_AUDIO_EXCEPTION);
    EXPECT_EQ(sounds[0].enabled, enabled);

    tagNET_DVR_STREAM_CABAC cabac{};
    tagNET_DVR_STD_CONFIG config{};
    const std::uint32_t channel = 2;
    config.condition = &channel;
    config.conditionSize = sizeof channel;
    config.input = config.output = &cabac;
    config.inputSize = config.outputSize = sizeof cabac;
    ASSERT_EQ(NET_DVR_GetSTDConfig(session, QXNET_GET_CABAC, &config), 1);
    EXPECT_EQ(config.outputLength, sizeof cabac);
    const std::uint8_t coded = cabac.enabled ^= 1;
    ASSERT_EQ(NET_DVR_SetSTDConfig(session, QXNET_SET_CABAC, &config), 1);
    ASSERT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_CABAC, 2, &cabac, sizeof cabac), 1);
    EXPECT_EQ(cabac.enabled, coded);
}

TEST(SdkWithSimulator, TheSessionOutlivesARestartOfTheDevice)
{
    CSdk sdk;
    DeviceSim sim({"--devices", "1", "--channels", "2"});
    const std::int32_t session = LogIn(ToSim(sim));
    QxNetDeviceInfo info;
    ASSERT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_DEVICE_INFO, 0, &info, sizeof info), 1);
    sim.Kill();
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_DEVICE_INFO, 0, &info, sizeof info), 0);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_UNREACHABLE));
    ASSERT_TRUE(sim.Restart());
    EXPECT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_DEVICE_INFO, 0, &info, sizeof info), 1)
        << testing::PrintToString(LastError());
}

TEST(SdkWithSimulator, ACertificateIsPinnedAtTheFirstSessionAndAnotherIsRefused)
{
    TestDataRoot root;
    const std::string file = root.Path() + "trusted";
    DeviceSim sim({"--devices", "1", "--channels", "1", "--tls"});
    QxNetLogin login = ToSim(sim);
    login.useTls = 1;
    const std::string name = "127.0.0.1:" + std::to_string(sim.Port());
    {
        CSdk sdk;
        ASSERT_EQ(QxNet_SetTrustFile(file.c_str()), 1);
        const std::int32_t session = LogIn(login);
        ASSERT_GE(session, 0) << testing::PrintToString(LastError());
        QxNetDeviceInfo info;
        EXPECT_EQ(NET_DVR_GetDVRConfig(session, QXNET_GET_DEVICE_INFO, 0, &info, sizeof info), 1);
    }
    std::string line;
    std::getline(std::ifstream(file), line);
    EXPECT_EQ(line, name + " " + sim.Devices()[0].fingerprint);
    EXPECT_EQ(std::filesystem::status(file).permissions() & std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

    std::ofstream(file) << name << " " << std::string(64, '0') << "\n";
    CSdk sdk;
    ASSERT_EQ(QxNet_SetTrustFile(file.c_str()), 1);
    EXPECT_EQ(LogIn(login), -1);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_CERTIFICATE_CHANGED, 0, 0}));
    login.useTls = 0;
    EXPECT_EQ(LogIn(login), -1);
    std::ofstream(file) << "no pins\n";
    EXPECT_EQ(QxNet_SetTrustFile(file.c_str()), 0);
    EXPECT_EQ(LastError().code, static_cast<std::uint32_t>(QXNET_ERROR_TRUST_FILE));
    EXPECT_EQ(QxNet_SetTrustFile(nullptr), 1);
}
