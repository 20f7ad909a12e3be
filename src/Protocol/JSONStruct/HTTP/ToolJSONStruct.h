#pragma once

#include "Protocol/JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "Protocol/JSONStruct/JSONMessage.h"

#include <string>
#include <vector>

/// Messages of the small tools: time synchronisation and wiper.
namespace protocol {

/// Devices that take part in an action.
struct DeviceList : CMessage<DeviceList, IInboundData>
{
    static constexpr const char* kKey = "deviceGuidList";
    std::vector<std::string> deviceGuids;

    static constexpr auto Fields() { return Whole(&DeviceList::deviceGuids); }
};

struct TimeSyncResult
{
    std::string deviceGuid;
    ResultCode result;

    static constexpr auto Fields()
    {
        using T = TimeSyncResult;
        return std::make_tuple(Must("deviceGuid", &T::deviceGuid), Must("result", &T::result));
    }
};

/// The outcome of a time synchronisation, device by device.
struct TimeSyncResultListData : CMessage<TimeSyncResultListData, IInboundData>
{
    static constexpr const char* kKey = "timeSyncResultList";
    std::vector<TimeSyncResult> results;

    static constexpr auto Fields() { return Whole(&TimeSyncResultListData::results); }
};

enum class WiperAction { Stop = 0, Start = 1, Once = 2 };
constexpr EnumRange<WiperAction> JSONEnum(WiperAction)
{
    return {WiperAction::Stop, WiperAction::Once};
}

/// Moves the wipers of cameras.
struct WiperControlData : CMessage<WiperControlData, IInboundData>
{
    static constexpr const char* kKey = "wiperControl";
    std::vector<std::string> channelGuids;
    WiperAction action = WiperAction::Once;

    static constexpr auto Fields()
    {
        using T = WiperControlData;
        return std::make_tuple(Must("channelGuids", &T::channelGuids), Must("action", &T::action));
    }
};

struct WiperControlResult
{
    std::string channelGuid;
    ResultCode result;

    static constexpr auto Fields()
    {
        using T = WiperControlResult;
        return std::make_tuple(Must("channelGuid", &T::channelGuid), Must("result", &T::result));
    }
};

/// The outcome, camera by camera.
struct WiperControlResultListData : CMessage<WiperControlResultListData, IInboundData>
{
    static constexpr const char* kKey = "wiperControlResultList";
    std::vector<WiperControlResult> results;

    static constexpr auto Fields() { return Whole(&WiperControlResultListData::results); }
};

} // namespace protocol
