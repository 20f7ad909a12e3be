#pragma once

#include "QxNetSDK/QxNetSDK.h"

#include <string>

/// The abilities of simulated devices.
namespace simulator::abilities {

/// The document that a device answers for a channel (0: the device itself) and a kind (QXNET_ABILITY_...).
/// Empty when it has none: a kind that this device does not know, or a channel that it has not. Its type
/// decides:
///
/// - an encoder has two streams, no holidays, no second disk to record to and the short record parameters;
/// - a recorder has everything; its odd channels are network cameras, its even ones analog;
/// - a storage server only tells of itself;
/// - type 102, and type 15 with sub-type 6, cannot record or take pictures by themselves;
/// - type 107 is a recorder whose channels no storage server records.
///
/// The number of alarm inputs and the like are the device's own. Any thread.
std::string AbilityDocument(const QxNetDeviceInfo& device, std::int32_t channel, std::uint32_t kind);

} // namespace simulator::abilities
