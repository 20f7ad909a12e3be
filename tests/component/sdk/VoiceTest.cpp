#include "SdkClient.h"
#include "support/DeviceSim.h"

namespace {

std::int32_t LogIn(const DeviceSim& sim, std::size_t device = 0)
{
    QxNetLogin login = CSdk::To(sim.Port(device), 10000);
    std::strcpy(login.password, "vantor-device");
    return QxNet_Login(&login, nullptr);
}

} // namespace

TEST(SdkVoice, ADeviceTellsHowItTakesVoice)
{
    CSdk sdk;
    DeviceSim sim({"--devices", "1", "--channels", "1"});
    const std::int32_t session = LogIn(sim);
    QxNetAudioCompress compress{};
    ASSERT_EQ(NET_DVR_GetCurrentAudioCompress(session, &compress), 1) << testing::PrintToString(LastError());
    EXPECT_EQ(compress.encoding, QXNET_AUDIO_G711_MU);
    EXPECT_EQ(compress.sampleRate, 8);
    EXPECT_EQ(NET_DVR_GetCurrentAudioCompress(session, nullptr), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_ARGUMENT, 0, 0}));
    ASSERT_EQ(QxNet_Logout(session), 1);
    EXPECT_EQ(NET_DVR_GetCurrentAudioCompress(session, &compress), 0);
    EXPECT_EQ(LastError(), (ErrorTriple{QXNET_ERROR_HANDLE, 0, 0}));
}
