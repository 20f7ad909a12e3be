#include "DeviceStructures/layouts/Shared.h"

namespace devices {

QXNET_LAYOUT(QxNetDeviceInfo, "What a device tells of itself; also the answer of a login",
    QXNET_FIELD(size),
    QXNET_FIELD(typeCode).Default(QXNET_DEVICE_RECORDER)
        .Note("1 encoder, 2 recorder, 128 storage server, or another maker's number"),
    QXNET_FIELD(subType),
    QXNET_FIELD(channels).Range(0, 512).Note("cameras, numbered from 1; the same for those below"),
    QXNET_FIELD(alarmInputs).Range(0, 512),
    QXNET_FIELD(alarmOutputs).Range(0, 512),
    QXNET_FIELD(voiceChannels).Range(0, 16),
    QXNET_FIELD(disks).Range(0, 64),
    QXNET_FIELD(name).Default("Device"),
    QXNET_FIELD(serial),
    QXNET_FIELD(model),
    QXNET_FIELD(firmware),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetChannelState, "A channel of a page",
    QXNET_FIELD(channel).Range(0, 512).Note("from 1; 0 in an unused entry"),
    QXNET_FIELD(state).Named("offline|online|recording||not-supported"),
    QXNET_FIELD(name),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetChannelPage,
    "Names and states of up to 64 channels, those from the channel asked for on; none behind the last one",
    QXNET_FIELD(size),
    QXNET_FIELD(total).Range(0, 512).Note("channels of the device"),
    QXNET_FIELD(count).Range(0, 64).Note("of this page"),
    QXNET_FIELD(changes).Note("counts up whenever a name, a state or the total changes"),
    QXNET_FIELD(channels),
    QXNET_FIELD(reserved))

QXNET_LAYOUT(QxNetAudioCompress, "The encoding in which the device takes voice; this structure has no size member",
    QXNET_FIELD(encoding).Named("g711-mu|g711-a|g722|pcm|mp2|mp3|g726|opus|aac|adpcm-ima"),
    QXNET_FIELD(sampleRate).Range(8, 48).In("kHz").Note("8, 16, 32 or 48"),
    QXNET_FIELD(bitRate).Range(16, 192).Default(64).In("kbit/s"),
    QXNET_FIELD(reserved))

std::vector<ConfigCommand> DeviceCommands()
{
    return {
        Parameter<QxNetDeviceInfo>("device-info", Scope::Device, QXNET_GET_DEVICE_INFO, 0),
        Parameter<QxNetChannelPage>("channel-page", Scope::Channel, QXNET_GET_CHANNEL_PAGE, 0),
        Parameter<QxNetAudioCompress>("audio-compress", Scope::Device, QXNET_GET_AUDIO_COMPRESS, 0),
    };
}

} // namespace devices
