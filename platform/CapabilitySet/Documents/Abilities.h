#pragma once

#include "CapabilitySet/Documents/BasicFeatures.h"
#include "CapabilitySet/Documents/CaptureOptions.h"
#include "CapabilitySet/Documents/ChannelInput.h"
#include "CapabilitySet/Documents/DetectionOptions.h"
#include "CapabilitySet/Documents/RecordOptions.h"

#include <variant>

namespace CapabilitySet {

/// Every ability that there is. A new one stands here and at the end of AbilityCache.cpp; tests and fuzz
/// target have it then.
using AnyAbility = std::variant<ChannelInput, BasicFeatures, RecordOptions, CaptureOptions, DetectionOptions>;

} // namespace CapabilitySet
