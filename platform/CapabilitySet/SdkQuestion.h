#pragma once

#include "CapabilitySet/AbilityCache.h"

namespace CapabilitySet {

/// Asks the device through the SDK; what CAbilityCache wants. One log line when it fails.
[[nodiscard]] bool AskSdk(std::int32_t login, std::uint32_t kind, std::int32_t channel, std::string& document,
                          AbilityError& error);

} // namespace CapabilitySet
