#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>
#include <vector>

/// Messages about alarms and the inputs and outputs of devices.
namespace protocol {

/// Registers a component for alarms.
struct AlarmRegisterData : CMessage<AlarmRegisterData, IInboundData>
{
    static constexpr const char* kKey = "alarmRegister";
    std::string componentId;
    std::vector<std::int32_t> alarmTypes; ///< empty: all

    static constexpr auto Fields()
    {
        using T = AlarmRegisterData;
        return std::make_tuple(Must("componentId", &T::componentId), May("alarmTypes", &T::alarmTypes));
    }
};

struct AlarmInputInfo
{
    std::string guid;
    std::string deviceGuid;
    std::string name;
    std::int32_t number = 0; ///< at the device, from 1

    static constexpr auto Fields()
    {
        using T = AlarmInputInfo;
        return std::make_tuple(Must("guid", &T::guid), Must("deviceGuid", &T::deviceGuid),
                               May("name", &T::name), Must("number", &T::number));
    }
};

/// The alarm inputs of a device.
struct AlarmInputInfoData : CMessage<AlarmInputInfoData, IInboundData>
{
    static constexpr const char* kKey = "alarmInputList";
    std::vector<AlarmInputInfo> inputs;

    static constexpr auto Fields() { return Whole(&AlarmInputInfoData::inputs); }
};

struct AlarmOutputInfo
{
    std::string guid;
    std::string deviceGuid;
    std::string name;
    std::int32_t number = 0; ///< at the device, from 1
    bool active = false;     ///< whether it is switched on

    static constexpr auto Fields()
    {
        using T = AlarmOutputInfo;
        return std::make_tuple(Must("guid", &T::guid), Must("deviceGuid", &T::deviceGuid),
                               May("name", &T::name), Must("number", &T::number), May("active", &T::active));
    }
};

/// The alarm outputs of one device or of all.
struct AlarmOutputInfoData : CMessage<AlarmOutputInfoData, IInboundData>
{
    static constexpr const char* kKey = "alarmOutputList";
    std::vector<AlarmOutputInfo> outputs;

    static constexpr auto Fields() { return Whole(&AlarmOutputInfoData::outputs); }
};

/// Switches an alarm output.
struct AlarmOutputControlData : CMessage<AlarmOutputControlData, IInboundData>
{
    static constexpr const char* kKey = "alarmOutputControl";
    bool active = false;

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("active", &AlarmOutputControlData::active));
    }
};

} // namespace protocol
