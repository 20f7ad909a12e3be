#pragma once

#include <array>

/// The types of the framework's notifications about resources and devices.
namespace clientcommon {

constexpr std::array kResourceNotifyTypes{
    "deviceAdd",      "deviceRemove",      "deviceChange",      //
    "channelAdd",     "channelRemove",     "channelChange",     //
    "groupAdd",       "groupRemove",       "groupChange",       //
    "alarmInputAdd",  "alarmInputRemove",  "alarmInputChange",  //
    "alarmOutputAdd", "alarmOutputRemove", "alarmOutputChange", //
    "elementAdd",     "elementRemove",     "elementChange",     //
    "cloudLogin",     "cloudLogout",
};

} // namespace clientcommon
