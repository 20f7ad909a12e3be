#include "framework/core/DeviceActions.h"

#include "DeviceStructures/ClockTime.h"
#include "QxNetSDK/QxNetSDK.h"

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
    devices::PutClockTime(std::time(nullptr) + std::int64_t{clock.zone} * 60, clock);
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
