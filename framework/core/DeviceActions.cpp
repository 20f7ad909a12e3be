#include "framework/core/DeviceActions.h"

#include "Base/TimeUtil.h"
#include "QxNetSDK/QxNetSDK.h"

#include <cstdio>
#include <ctime>

namespace framework {

using protocol::ResultCode;

namespace {

ResultCode LastError()
{
    ResultCode result;
    result.errorCode = static_cast<std::int32_t>(NET_DVR_GetLastError());
    result.errorModuleCode = static_cast<std::int32_t>(NET_DVR_GetLastErrorModelCode(nullptr));
    return result;
}

template<typename Structure>
bool Read(std::int32_t login, std::uint32_t command, int channel, Structure& structure)
{
    return NET_DVR_GetDVRConfig(login, command, channel, &structure, sizeof structure) != 0;
}

template<typename Structure>
ResultCode Write(std::int32_t login, std::uint32_t command, int channel, Structure& structure)
{
    structure.size = sizeof structure;
    const bool isDone = NET_DVR_SetDVRConfig(login, command, channel, &structure, sizeof structure) != 0;
    return isDone ? ResultCode{} : LastError();
}

} // namespace

ResultCode SetDeviceClock(std::int32_t login)
{
    QxNetClock clock{};
    if (!Read(login, QXNET_GET_CLOCK, 0, clock))
        return LastError();
    const std::string time =
        Base::TimeUtil::TimeT2StrDatetime(std::time(nullptr) + std::int64_t{clock.zone} * 60);
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    std::sscanf(time.c_str(), "%4u-%2u-%2u %2u:%2u:%2u", &year, &month, &day, &hour, &minute, &second);
    clock.year = static_cast<std::uint16_t>(year);
    clock.month = static_cast<std::uint8_t>(month);
    clock.day = static_cast<std::uint8_t>(day);
    clock.hour = static_cast<std::uint8_t>(hour);
    clock.minute = static_cast<std::uint8_t>(minute);
    clock.second = static_cast<std::uint8_t>(second);
    return Write(login, QXNET_SET_CLOCK, 0, clock);
}

// A wiper that is started wipes at the interval that the device has.
ResultCode MoveWiper(std::int32_t login, int channel, protocol::WiperAction action)
{
    QxNetWiper wiper{};
    if (!Read(login, QXNET_GET_WIPER, channel, wiper))
        return LastError();
    switch (action) {
    case protocol::WiperAction::Stop:
        wiper.mode = QXNET_WIPER_OFF;
        break;
    case protocol::WiperAction::Start:
        wiper.mode = QXNET_WIPER_INTERVAL;
        break;
    case protocol::WiperAction::Once:
        wiper.mode = QXNET_WIPER_ONCE;
        break;
    }
    return Write(login, QXNET_SET_WIPER, channel, wiper);
}

ResultCode SwitchDeviceOutput(std::int32_t login, int output, bool active)
{
    QxNetOutputSwitch change{};
    change.on = active ? 1 : 0;
    return Write(login, QXNET_SWITCH_ALARM_OUTPUT, output, change);
}

} // namespace framework
