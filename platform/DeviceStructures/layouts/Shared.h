#pragma once

#include "DeviceStructures/Commands.h"
#include "QxNetSDK/Structures.h"

namespace devices {

template<>
const Layout& LayoutOf<QxNetDay>();
template<>
const Layout& LayoutOf<QxNetWeek>();
template<>
const Layout& LayoutOf<QxNetPoint>();
template<>
const Layout& LayoutOf<QxNetRegion>();
template<>
const Layout& LayoutOf<QxNetAlarmActions>();
template<>
const Layout& LayoutOf<QxNetAlarmHandling>();
template<>
const Layout& LayoutOf<tagNET_DVR_HOLIDAY_HANDLE>();

} // namespace devices
