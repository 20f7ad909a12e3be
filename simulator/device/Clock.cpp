#include "simulator/device/Clock.h"

#include "DeviceStructures/ClockTime.h"

namespace simulator {

QxNetClock ClockAt(const ClockSetting& setting, std::int64_t now)
{
    QxNetClock clock = setting.asSet;
    devices::PutClockTime(now + setting.aheadSeconds + std::int64_t{clock.zone} * 60, clock);
    return clock;
}

std::optional<ClockSetting> SettingOf(const QxNetClock& clock, std::int64_t now)
{
    const auto time = devices::ClockTime(clock);
    if (!time)
        return std::nullopt;
    return ClockSetting{clock, clock.timeServer ? 0 : *time - clock.zone * 60 - now};
}

} // namespace simulator
