#include "DeviceStructures/ClockTime.h"

#include "Base/StringUtil.h"
#include "Base/TimeUtil.h"

#include <cstdio>

namespace devices {

void PutClockTime(std::int64_t shown, QxNetClock& clock)
{
    unsigned year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    std::sscanf(Base::TimeUtil::TimeT2StrDatetime(shown).c_str(), "%u-%u-%u %u:%u:%u", &year, &month, &day,
                &hour, &minute, &second);
    clock.year = static_cast<std::uint16_t>(year);
    clock.month = static_cast<std::uint8_t>(month);
    clock.day = static_cast<std::uint8_t>(day);
    clock.hour = static_cast<std::uint8_t>(hour);
    clock.minute = static_cast<std::uint8_t>(minute);
    clock.second = static_cast<std::uint8_t>(second);
}

std::optional<std::int64_t> ClockTime(const QxNetClock& clock)
{
    return Base::TimeUtil::StrDatetime2TimeT(
        Base::StringUtil::Format("%04u-%02u-%02u %02u:%02u:%02u", clock.year, clock.month, clock.day,
                                 clock.hour, clock.minute, clock.second));
}

} // namespace devices
