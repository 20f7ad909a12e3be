#pragma once

#include "QxNetSDK/Structures.h"
#include "simulator/device/Refused.h"

#include <ctime>

namespace simulator {

/// The device's clock as seconds that it is ahead of this computer's, which is how it is kept.
struct ClockSetting
{
    QxNetClock asSet; ///< all but the time counts
    std::int64_t aheadSeconds;
};

/// The clock that shows the device's time now.
QxNetClock ClockAt(const ClockSetting& setting, std::int64_t now);

/// The setting of a clock whose time is now; none for a day that does not exist.
std::optional<ClockSetting> SettingOf(const QxNetClock& clock, std::int64_t now);

} // namespace simulator
