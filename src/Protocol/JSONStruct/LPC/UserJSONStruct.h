#pragma once

#include "Protocol/JSONStruct/JSONMessage.h"

#include <string>
#include <vector>

/// Messages about the user of the client, and about what happens to the framework's window.
namespace protocol {

/// Tells that another user is about to take over: work in the name of the present one stops.
struct SwitchUserStopWorkingData : CMessage<SwitchUserStopWorkingData, ILPCData>
{
    static constexpr const char* kKey = "switchUserStopWorking";
    std::string userName; ///< who leaves

    static constexpr auto Fields()
    {
        return std::make_tuple(May("userName", &SwitchUserStopWorkingData::userName));
    }
};

/// Tells who the user is now: pages are brought up to date with that user's permissions.
struct SwitchUserUpdateFrameData : CMessage<SwitchUserUpdateFrameData, ILPCData>
{
    static constexpr const char* kKey = "switchUserUpdateFrame";
    std::string userName;
    std::vector<std::string> permissions; ///< for example "liveView"; see framework/core/Users.h

    static constexpr auto Fields()
    {
        using T = SwitchUserUpdateFrameData;
        return std::make_tuple(Must("userName", &T::userName), Must("permissions", &T::permissions));
    }
};

/// Tells that the user closed a tab of the component.
struct AppTabRemovedData : CMessage<AppTabRemovedData, ILPCData>
{
    static constexpr const char* kKey = "appTabRemoved";
    std::string type; ///< the window's name

    static constexpr auto Fields() { return std::make_tuple(Must("type", &AppTabRemovedData::type)); }
};

/// Tells which tab is in front now.
struct TabSwitchData : CMessage<TabSwitchData, ILPCData>
{
    static constexpr const char* kKey = "tabSwitch";
    std::string type; ///< the window's name; empty for a tab of the framework's own

    static constexpr auto Fields() { return std::make_tuple(May("type", &TabSwitchData::type)); }
};

/// Tells where the framework's window is now, in pixels of the screen.
struct FrameworkMoveData : CMessage<FrameworkMoveData, ILPCData>
{
    static constexpr const char* kKey = "frameworkMove";
    std::int32_t x = 0;
    std::int32_t y = 0;

    static constexpr auto Fields()
    {
        return std::make_tuple(Must("x", &FrameworkMoveData::x), Must("y", &FrameworkMoveData::y));
    }
};

} // namespace protocol
