#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// One channel as it is at the first start.
struct ChannelPlan
{
    std::string name;
    std::uint32_t state = 1; ///< QXNET_CHANNEL_...
};

/// How a device takes voice: encoding and thousands of samples a second.
struct VoicePlan
{
    std::uint32_t encoding = 0; ///< QXNET_AUDIO_...
    std::uint32_t rate = 8;
};

/// What one device is.
struct DevicePlan
{
    unsigned index = 0;
    std::uint32_t kind = 1; ///< QXNET_DEVICE_...
    std::uint32_t typeCode = 1;
    std::uint32_t subType = 0;
    std::string name;
    std::string serial;
    std::vector<ChannelPlan> channels;
    unsigned alarmInputs = 0;
    unsigned alarmOutputs = 0;
    unsigned voiceChannels = 0;
    VoicePlan voice;
    unsigned disks = 0;
};

/// "encoder", "recorder" or "storage".
const char* KindName(std::uint32_t kind);

/// A device's type code and sub-type in place of its kind's.
struct TypeCode
{
    std::uint32_t code = 0;
    std::uint32_t subType = 0;
};

/// Encoders and recorders in turn, starting with the given kind; the last of two or more is a storage server.
/// A recorder gets three times an encoder's share of the cameras; what the division leaves over goes one by
/// one to the recorders, or to the encoders where there is none. types: by device; none keeps the kind's.
std::vector<DevicePlan> PlanDevices(unsigned devices, unsigned cameras, std::uint32_t firstKind,
                                    const std::vector<std::optional<TypeCode>>& types);

} // namespace simulator
