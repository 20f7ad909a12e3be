#pragma once

#include "QxNetSDK/QxNetSDK.h"

#include <string>

/// The abilities of simulated devices.
namespace simulator::abilities {

/// The document that a device answers for a channel (0: the device itself) and a kind (QXNET_ABILITY_...).
/// Empty when it has none: a kind that this device does not know, or a channel that it has not. What it is
/// (QXNET_DEVICE_...) decides:
///
/// - an encoder has two streams, no holidays, no second disk to record to and the short record parameters;
/// - a recorder has everything; its odd channels are network cameras, its even ones analog;
/// - a storage server only tells of itself.
///
/// One with the type code 102, or 15 and the sub-type 6, cannot record or take pictures by itself, and no
/// storage server records its channels; none does those of the type code 107 either. The number of alarm
/// inputs and the like are the device's own. Any thread.
std::string AbilityDocument(std::uint32_t deviceKind, const QxNetDeviceInfo& device, std::int32_t channel,
                            std::uint32_t kind);

} // namespace simulator::abilities
