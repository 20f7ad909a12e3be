#include "framework/core/Routes.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/HTTP/Routes.h"
#include "Protocol/JSONStruct/HTTP/SystemJSONStruct.h"
#include "Protocol/JSONStruct/LPC/ComponentJSONStruct.h"

namespace framework {

namespace {

namespace route = protocol::route;

constexpr int kLargestSide = 32767; ///< of a window under X11

lpc::Message Components(bool isReady)
{
    protocol::ComponentListData list;
    list.components = {{"Video.C", "Video", VANTOR_VERSION, isReady}};
    return Found(list);
}

lpc::Message FilePath(const FrameworkChoices& choices)
{
    protocol::DefaultFilePathData paths;
    paths.videoPath = choices.videoPath;
    paths.picturePath = choices.picturePath;
    return Found(paths);
}

lpc::Message DateTimeFormat(const FrameworkChoices& choices)
{
    protocol::DateTimeFormatData formats;
    formats.dateFormat = choices.dateFormat;
    formats.timeFormat = choices.timeFormat;
    return Found(formats);
}

lpc::Message FrameResize(const RouteServices& services, const protocol::FrameResizeData& size)
{
    const auto isSide = [](int pixels) { return pixels > 0 && pixels <= kLargestSide; };
    if (size.type.empty() || !isSide(size.width) || !isSide(size.height)) {
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "A window cannot have the size [%d x %d].", size.width,
                     size.height);
        return Failed(400, "A window's size is 1 to 32767 pixels.");
    }
    services.onFrameResize(size.type, size.width, size.height);
    return Done();
}

} // namespace

void AddFrameworkRoutes(CRouteTable& routes, CFrameworkSettings& settings, const RouteServices& services)
{
    routes.Add("GET", route::kComponents,
               [services](const RouteRequest&) { return Components(services.isComponentReady()); });
    routes.Add("GET", route::kFilePath,
               [&settings](const RouteRequest&) { return FilePath(settings.Get()); });
    routes.Add("GET", route::kDateTimeFormat,
               [&settings](const RouteRequest&) { return DateTimeFormat(settings.Get()); });
    routes.Add("PUT", route::kFrameResize,
               WithBody<protocol::FrameResizeData>(
                   [services](const RouteRequest&, const protocol::FrameResizeData& size) {
                       return FrameResize(services, size);
                   }));
}

} // namespace framework
