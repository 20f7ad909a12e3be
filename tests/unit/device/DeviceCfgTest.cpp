#include "ui/Public/RemoteConfigBusiness/DeviceCfgBusiness.h"
#include "unit/device/OperationRows.h"

using namespace rows;
using Business = video::CDeviceCfgBusiness;

namespace {

/// A row without a channel: the device's own, 0, arrives.
template<class Structure>
Operation OfDevice(const char* name, const std::string& function, uint32_t command, uint32_t size,
                   int (*operation)(int, Structure*))
{
    return {name,
            function,
            command,
            size,
            [operation](int login, int, void* structure) {
                return operation(login, static_cast<Structure*>(structure));
            },
            0};
}

const std::vector<Operation> kOperations = {
    OfDevice("GetDeviceParameter", kGet, 20001, 256, Business::GetDeviceParameter),
    OfDevice("GetStorageCapability", kGet, 20120, 32, Business::GetStorageCapability),
    OfDevice("GetNetwork", kGet, 20100, 512, Business::GetNetwork),
    OfDevice("SetNetwork", kSet, 20101, 512, Business::SetNetwork),
    OfDevice("GetUsers", kGet, 20104, 4640, Business::GetUsers),
    OfDevice("SetUsers", kSet, 20105, 4640, Business::SetUsers),
    OfDevice("SetUserPassword", kSet, 20107, 200, Business::SetUserPassword),
    OfDevice("GetClock", kGet, 20108, 192, Business::GetClock),
    OfDevice("SetClock", kSet, 20109, 192, Business::SetClock),
    OfDevice("GetDisks", kGet, 20102, 4128, Business::GetDisks),
    OfDevice("FormatDisk", kSet, 20103, 16, Business::FormatDisk),
    OfDevice("GetAlarmStates", kGet, 20114, 160, Business::GetAlarmStates),
    OfDevice("Reboot", kSet, 20117, 16, Business::Reboot),
    OfDevice("Reset", kSet, 20119, 16, Business::Reset),
    {"GetChannelPage", kGet, 20002, 5152, On(Business::GetChannelPage)},
    {"GetAlarmInput", kGet, 20110, 704, On(Business::GetAlarmInput)},
    {"SetAlarmInput", kSet, 20111, 704, On(Business::SetAlarmInput)},
    {"GetAlarmOutput", kGet, 20112, 576, On(Business::GetAlarmOutput)},
    {"SetAlarmOutput", kSet, 20113, 576, On(Business::SetAlarmOutput)},
    {"SwitchAlarmOutput", kSet, 20115, 16, On(Business::SwitchAlarmOutput)},
    {"GetWiper", kGet, 20130, 16, On(Business::GetWiper)},
    {"SetWiper", kSet, 20131, 16, On(Business::SetWiper)},
};

} // namespace

TEST(DeviceCfg, EveryOperationIsOneRequestWithItsCommandAndSize)
{
    ExpectUniform(kOperations);
}

TEST(DeviceCfg, TheVoiceEncodingIsWhatTheDeviceSays)
{
    FakeSdk sdk;
    CapturedLog log;
    sdk.Answer(QXNET_GET_AUDIO_COMPRESS, QxNetAudioCompress{QXNET_AUDIO_OPUS, 48, 64, {}});
    QxNetAudioCompress compress{};
    EXPECT_EQ(-1, Business::GetAudioCompress(-1, &compress));
    EXPECT_EQ(-1, Business::GetAudioCompress(kLogin, nullptr));
    ExpectNothingDone(sdk, log);
    EXPECT_EQ(0, Business::GetAudioCompress(kLogin, &compress));
    EXPECT_EQ(QXNET_AUDIO_OPUS, compress.encoding);
    sdk.Fail("NET_DVR_GetCurrentAudioCompress", {QXNET_ERROR_HANDLE, 0, 0});
    EXPECT_EQ(-1, Business::GetAudioCompress(kLogin, &compress));
    ExpectOneErrorLine(log, "NET_DVR_GetCurrentAudioCompress failed, [102]-[0].");
}
