#pragma once

#include "QxNetSDK/Structures.h"

#include <cstdint>
#include <optional>

namespace devices {

/// Sets date and time of a clock to a moment in seconds since 1970, counted as the clock's zone shows it: UTC
/// with 60 * zone added.
void PutClockTime(std::int64_t shown, QxNetClock& clock);

/// The moment of a clock's date and time, counted the same; none for a day that does not exist.
std::optional<std::int64_t> ClockTime(const QxNetClock& clock);

} // namespace devices
