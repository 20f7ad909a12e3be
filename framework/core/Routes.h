#pragma once

#include "framework/core/FrameworkSettings.h"
#include "framework/core/Resources.h"
#include "framework/core/RouteTable.h"

#include <functional>
#include <string>

/// What the framework serves, one row a route. See docs/framework.md. Handlers run on one of the link's
/// workers.
namespace framework {

/// What routes need beside the settings and resources.
struct RouteServices
{
    Base::Encrypt::AESParams seal; ///< for credentials in answers
    std::function<bool()> isComponentReady;
    std::function<void(const std::string& window, int width, int height)> onFrameResize;
    std::function<void(const std::string& text)> logOperation;
    std::function<std::int32_t(const std::string& guid)> session; ///< of a device; negative: there is none
};

/// Components, default folders, date and time formats, sizes of windows.
void AddFrameworkRoutes(CRouteTable& routes, CFrameworkSettings& settings, const RouteServices& services);

/// Devices, channels, alarm inputs and outputs, groups, time synchronisation, wipers.
void AddDeviceRoutes(CRouteTable& routes, CResources& resources, const RouteServices& services);

} // namespace framework
