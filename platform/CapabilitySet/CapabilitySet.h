#pragma once

#include "CapabilitySet/AbilityCache.h"

/// What a channel of a device can do, for the pages that offer it. docs/device-abilities.md tells the
/// documents behind it.
///
/// Each question takes a login handle of the SDK and a channel from 1 (0: the device itself). The first one
/// waits for the device, later ones are answered from memory until Forget. On failure there was one log
/// line, result is as it was, and LastError tells why. Any thread but the GUI's.
namespace CapabilitySet {

namespace ChannelInputAbility {
[[nodiscard]] bool GetChannelInputAbility(std::int32_t login, std::int32_t channel, ChannelInput& result);
}

namespace BasicCapability {
[[nodiscard]] bool GetBasicCapability(std::int32_t login, std::int32_t channel, BasicFeatures& result);
}

namespace RecordAbility {
[[nodiscard]] bool GetRecordAbility(std::int32_t login, std::int32_t channel, RecordOptions& result);
}

namespace JpegCaptureAbility {
[[nodiscard]] bool GetJpegCaptureAbility(std::int32_t login, std::int32_t channel, CaptureOptions& result);
}

namespace VcaAbility {
[[nodiscard]] bool GetVcaAbility(std::int32_t login, std::int32_t channel, DetectionOptions& result);
}

/// Why the calling thread's last question that failed did so. The SDK's own pair tells the same only when
/// the SDK failed, not when a document could not be read.
AbilityError LastError();

/// For a session that has ended, or whose device may have changed.
void Forget(std::int32_t login);

} // namespace CapabilitySet
