#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <cstdint>
#include <string>
#include <vector>

/// Messages about the components that a framework runs.
namespace protocol {

/// Asks the framework to load components.
struct LoadComponentsRequestData : CMessage<LoadComponentsRequestData, ILPCData>
{
    static constexpr const char* kKey = "loadComponents";
    std::vector<std::string> componentList; ///< component names
    std::int32_t timeOut = 0;               ///< milliseconds; 0: the framework's own limit

    static constexpr auto Fields()
    {
        using T = LoadComponentsRequestData;
        return std::make_tuple(Must("componentList", &T::componentList), May("timeOut", &T::timeOut));
    }
};

struct LoadComponentsResponseData : CMessage<LoadComponentsResponseData, ILPCData>
{
    static constexpr const char* kKey = "loadComponents";
    bool complete = false; ///< whether all that can be loaded is
    std::vector<std::string> componentLoaded;
    std::vector<std::string> componentUnloaded;
    std::int32_t componentsLoadingPercent = 0; ///< 0 to 100

    static constexpr auto Fields()
    {
        using T = LoadComponentsResponseData;
        return std::make_tuple(Must("complete", &T::complete), May("componentLoaded", &T::componentLoaded),
                               May("componentUnloaded", &T::componentUnloaded),
                               May("componentsLoadingPercent", &T::componentsLoadingPercent));
    }
};

/// Registers the routes that this component serves.
struct ComponentRegisterInfo : CMessage<ComponentRegisterInfo, IInboundData>
{
    static constexpr const char* kKey = "componentRegisterInfo";
    std::vector<std::string> supportUrlList;

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("supportUrlList", &ComponentRegisterInfo::supportUrlList));
    }
};

/// One component of the framework.
struct ComponentInfo
{
    std::string componentId;
    std::string name;
    std::string version;
    bool loaded = false;

    static constexpr auto Fields()
    {
        using T = ComponentInfo;
        return std::make_tuple(Must("componentId", &T::componentId), May("name", &T::name),
                               May("version", &T::version), May("loaded", &T::loaded));
    }
};

/// The answer to the components query.
struct ComponentListData : CMessage<ComponentListData, IInboundData>
{
    static constexpr const char* kKey = "componentList";
    std::vector<ComponentInfo> components;

    static constexpr auto Fields() { return Whole(&ComponentListData::components); }
};

/// How the component does: its link, and the devices that it knows.
struct ComponentStateData : CMessage<ComponentStateData, IInboundData>
{
    static constexpr const char* kKey = "componentState";
    std::int64_t runningSeconds = 0;
    std::uint64_t messagesTaken = 0;    ///< from the framework since the start
    std::uint64_t messagesUnderWay = 0; ///< of them, those that wait or are being served
    std::uint64_t devices = 0;          ///< storage servers included
    std::uint64_t devicesOnline = 0;    ///< those that the component is logged in to
    std::uint64_t channels = 0;
    std::uint64_t channelsOnline = 0;

    static constexpr auto Fields()
    {
        using T = ComponentStateData;
        return std::make_tuple(Must("runningSeconds", &T::runningSeconds),
                               Must("messagesTaken", &T::messagesTaken),
                               Must("messagesUnderWay", &T::messagesUnderWay), May("devices", &T::devices),
                               May("devicesOnline", &T::devicesOnline), May("channels", &T::channels),
                               May("channelsOnline", &T::channelsOnline));
    }
};

} // namespace protocol
