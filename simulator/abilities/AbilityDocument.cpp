#include "simulator/abilities/AbilityDocument.h"

#include "simulator/abilities/AbilityWriter.h"
#include "simulator/abilities/Channels.h"

namespace simulator::abilities {

namespace {

/// What of a device decides on its abilities.
struct Model
{
    bool recorder = false;
    bool storageServer = false; ///< it is one
    bool recordsItself = true;  ///< it records, and takes pictures, by a schedule
    bool recordedElsewhere = true;
};

Model ModelOf(std::uint32_t deviceKind, const QxNetDeviceInfo& device)
{
    Model model;
    model.recorder = deviceKind == QXNET_DEVICE_RECORDER;
    model.storageServer = deviceKind == QXNET_DEVICE_STORAGE_SERVER;
    model.recordsItself = device.typeCode != 102 && !(device.typeCode == 15 && device.subType == 6);
    model.recordedElsewhere = device.typeCode != 107;
    return model;
}

Source SourceOf(const Model& model, std::int32_t channel)
{
    if (!model.recorder)
        return Source::Encoder;
    return channel % 2 == 1 ? Source::Network : Source::Analog;
}

CapabilitySet::BasicFeatures StorageServerFeatures(const QxNetDeviceInfo& device)
{
    CapabilitySet::BasicFeatures features;
    features.diskQuota = true;
    features.disks = device.disks;
    features.users = 64;
    return features;
}

CapabilitySet::BasicFeatures FeaturesOf(const Model& model, const QxNetDeviceInfo& device)
{
    if (model.storageServer)
        return StorageServerFeatures(device);
    CapabilitySet::BasicFeatures features;
    features.extendedRecord = model.recorder;
    features.scheduledCapture = model.recordsItself;
    features.cabac = model.recorder;
    features.storageServer = model.recordedElsewhere && model.recordsItself;
    features.diskQuota = model.recorder;
    features.panTiltZoomLock = model.recorder;
    features.pirAlarm = !model.recorder;
    features.callHelpAlarm = !model.recorder;
    features.wirelessAlarms = model.recorder ? 0 : 8;
    features.holidays = model.recorder ? 32 : 0;
    features.alarmInputs = device.alarmInputs;
    features.alarmOutputs = device.alarmOutputs;
    features.voiceChannels = device.voiceChannels;
    features.disks = device.disks;
    features.users = model.recorder ? 32 : 16;
    return features;
}

} // namespace

std::string AbilityDocument(std::uint32_t deviceKind, const QxNetDeviceInfo& device, std::int32_t channel,
                            std::uint32_t kind)
{
    const Model model = ModelOf(deviceKind, device);
    const std::uint32_t channels = model.storageServer ? 0 : device.channels;
    if (channel < 0 || static_cast<std::uint32_t>(channel) > channels)
        return {};
    if (kind == QXNET_ABILITY_BASIC)
        return WriteAbility(FeaturesOf(model, device));
    if (channel == 0)
        return {};
    const Source source = SourceOf(model, channel);
    switch (kind) {
    case QXNET_ABILITY_CHANNEL_INPUT:
        return WriteAbility(InputOf(source));
    case QXNET_ABILITY_RECORD:
        return model.recordsItself ? WriteAbility(RecordingOf(source)) : std::string();
    case QXNET_ABILITY_JPEG_CAPTURE:
        return model.recordsItself ? WriteAbility(CapturesOf(source)) : std::string();
    case QXNET_ABILITY_VCA:
        return WriteAbility(DetectionsOf(source));
    default:
        return {};
    }
}

} // namespace simulator::abilities
