#include "CapabilitySet/Documents/Abilities.h"
#include "CapabilitySet/Documents/Parse.h"
#include "simulator/abilities/AbilityDocument.h"

#include <gtest/gtest.h>

using namespace CapabilitySet;
using simulator::abilities::AbilityDocument;

namespace {

struct Row
{
    const char* name;
    std::uint32_t deviceKind;
    std::uint32_t typeCode;
    std::uint32_t subType;
    std::int32_t channel;
    const char* kinds; ///< that the channel has
    bool holidays;
    bool storageServer;
    std::size_t recordStreams;
    std::size_t preRecordTimes;
};

const Row kRows[] = {
    {"encoder", QXNET_DEVICE_ENCODER, QXNET_DEVICE_ENCODER, 0, 1, "12345", false, true, 0, 7},
    {"recorder, network camera", QXNET_DEVICE_RECORDER, QXNET_DEVICE_RECORDER, 0, 1, "12345", true, true, 7,
     8},
    {"recorder, analog camera", QXNET_DEVICE_RECORDER, QXNET_DEVICE_RECORDER, 0, 4, "12345", true, true, 3,
     8},
    {"recorder itself", QXNET_DEVICE_RECORDER, QXNET_DEVICE_RECORDER, 0, 0, "2", true, true, 0, 0},
    {"no such channel", QXNET_DEVICE_RECORDER, QXNET_DEVICE_RECORDER, 0, 5, "", false, false, 0, 0},
    {"storage server", QXNET_DEVICE_STORAGE_SERVER, QXNET_DEVICE_STORAGE_SERVER, 0, 0, "2", false, false, 0,
     0},
    {"its channels", QXNET_DEVICE_STORAGE_SERVER, QXNET_DEVICE_STORAGE_SERVER, 0, 1, "", false, false, 0, 0},
    {"type 102", QXNET_DEVICE_ENCODER, 102, 0, 1, "125", false, false, 0, 0},
    {"type 15, sub-type 6", QXNET_DEVICE_ENCODER, 15, 6, 1, "125", false, false, 0, 0},
    {"type 15", QXNET_DEVICE_ENCODER, 15, 5, 1, "12345", false, true, 0, 7},
    {"type 107", QXNET_DEVICE_RECORDER, 107, 0, 1, "12345", true, false, 7, 8},
};

/// The ability that the channel has, or what one has whose every element is missing; notes the kind.
template<typename Ability>
Ability Get(const Row& row, std::string& kinds)
{
    QxNetDeviceInfo device{};
    device.typeCode = row.typeCode;
    device.subType = row.subType;
    device.channels = 4;
    const std::string document = AbilityDocument(row.deviceKind, device, row.channel, Ability::kKind);
    Ability ability;
    std::string problem;
    if (!document.empty()) {
        EXPECT_TRUE(ParseAbility(document, ability, problem)) << problem;
        kinds += std::to_string(Ability::kKind);
    }
    return ability;
}

TEST(SimulatedAbilities, DifferByTheDevicesTypeAndChannel)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        std::string kinds;
        const auto input = Get<ChannelInput>(row, kinds);
        const auto basic = Get<BasicFeatures>(row, kinds);
        const auto record = Get<RecordOptions>(row, kinds);
        const auto capture = Get<CaptureOptions>(row, kinds);
        const auto detections = Get<DetectionOptions>(row, kinds);
        EXPECT_EQ(kinds, row.kinds);
        EXPECT_EQ(basic.holidays > 0, row.holidays);
        EXPECT_EQ(basic.storageServer, row.storageServer);
        EXPECT_EQ(record.streamType.size(), row.recordStreams);
        EXPECT_EQ(record.preRecordTime.size(), row.preRecordTimes);
        const bool records = !record.preRecordTime.empty();
        EXPECT_EQ(record.holidayRecord, records && row.holidays);
        EXPECT_EQ(capture.continuous && capture.event && !capture.event->resolutions.empty(), records);
        EXPECT_EQ(input.streams.empty(), !detections.motion.has_value());
    }
}

} // namespace
