#include "simulator/device/Clock.h"

#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"

#include <cstdio>

namespace simulator {

QxNetClock ClockAt(const ClockSetting& setting, std::int64_t now)
{
    QxNetClock clock = setting.asSet;
    const std::string text = Base::TimeUtil::TimeT2StrDatetime(now + setting.aheadSeconds + clock.zone * 60);
    unsigned parts[6] = {};
    std::sscanf(text.c_str(), "%u-%u-%u %u:%u:%u", &parts[0], &parts[1], &parts[2], &parts[3], &parts[4],
                &parts[5]);
    clock.year = static_cast<std::uint16_t>(parts[0]);
    clock.month = static_cast<std::uint8_t>(parts[1]);
    clock.day = static_cast<std::uint8_t>(parts[2]);
    clock.hour = static_cast<std::uint8_t>(parts[3]);
    clock.minute = static_cast<std::uint8_t>(parts[4]);
    clock.second = static_cast<std::uint8_t>(parts[5]);
    return clock;
}

std::optional<ClockSetting> SettingOf(const QxNetClock& clock, std::int64_t now)
{
    const std::string text =
        Base::StringUtil::Format("%04u-%02u-%02u %02u:%02u:%02u", clock.year, clock.month, clock.day,
                                 clock.hour, clock.minute, clock.second);
    const auto time = Base::TimeUtil::StrDatetime2TimeT(text);
    if (!time)
        return std::nullopt;
    return ClockSetting{clock, clock.timeServer ? 0 : *time - clock.zone * 60 - now};
}

} // namespace simulator
