#include "WindowEmbedding/WindowSystem.h"

#include "WindowEmbedding/posix/WindowPlace.h"

#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace embedding::native {

namespace {

template<typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template<typename T>
Reply<T> Own(T* reply)
{
    return Reply<T>(reply, &std::free);
}

xcb_connection_t* Connection()
{
    return QX11Info::connection();
}

xcb_window_t Root()
{
    return static_cast<xcb_window_t>(QX11Info::appRootWindow());
}

xcb_window_t Id(WindowId window)
{
    return static_cast<xcb_window_t>(window);
}

/// For requests on windows that may be gone: their errors are nobody's concern.
void Forget(xcb_void_cookie_t request)
{
    xcb_discard_reply(Connection(), request.sequence);
}

bool Succeeded(xcb_void_cookie_t request)
{
    return Own(xcb_request_check(Connection(), request)) == nullptr;
}

Reply<xcb_get_window_attributes_reply_t> Attributes(WindowId window)
{
    const auto request = xcb_get_window_attributes(Connection(), Id(window));
    xcb_generic_error_t* error = nullptr;
    auto reply = Own(xcb_get_window_attributes_reply(Connection(), request, &error));
    std::free(error);
    return reply;
}

} // namespace

bool Available()
{
    return QX11Info::isPlatformX11();
}

bool Exists(WindowId window)
{
    return Available() && window != 0 && window <= UINT32_MAX && Attributes(window) != nullptr;
}

bool IsMapped(WindowId window)
{
    const auto attributes = Attributes(window);
    return attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED;
}

WindowId HolderOf(WindowId window)
{
    xcb_generic_error_t* error = nullptr;
    const auto request = xcb_query_tree(Connection(), Id(window));
    const auto tree = Own(xcb_query_tree_reply(Connection(), request, &error));
    std::free(error);
    return !tree || tree->parent == tree->root ? 0 : tree->parent;
}

bool Adopt(WindowId window, WindowId holder)
{
    Forget(xcb_unmap_window_checked(Connection(), Id(window)));
    return Succeeded(xcb_reparent_window_checked(Connection(), Id(window), Id(holder), 0, 0));
}

void GiveBack(WindowId window)
{
    Forget(xcb_unmap_window_checked(Connection(), Id(window)));
    Forget(xcb_reparent_window_checked(Connection(), Id(window), Root(), 0, 0));
    xcb_flush(Connection());
}

std::optional<Area> AreaOnScreen(WindowId window)
{
    const auto askSize = xcb_get_geometry(Connection(), Id(window));
    const auto askPlace = xcb_translate_coordinates(Connection(), Id(window), Root(), 0, 0);
    xcb_generic_error_t* sizeError = nullptr;
    xcb_generic_error_t* placeError = nullptr;
    const auto size = Own(xcb_get_geometry_reply(Connection(), askSize, &sizeError));
    const auto place = Own(xcb_translate_coordinates_reply(Connection(), askPlace, &placeError));
    std::free(sizeError);
    std::free(placeError);
    if (!size || !place)
        return std::nullopt;
    return Area{place->dst_x, place->dst_y, size->width, size->height};
}

void TellPlace(WindowId window, const Area& onScreen)
{
    xcb_configure_notify_event_t notice = {};
    notice.response_type = XCB_CONFIGURE_NOTIFY;
    notice.event = Id(window);
    notice.window = Id(window);
    notice.x = static_cast<int16_t>(onScreen.x);
    notice.y = static_cast<int16_t>(onScreen.y);
    notice.width = static_cast<uint16_t>(onScreen.width);
    notice.height = static_cast<uint16_t>(onScreen.height);
    Forget(xcb_send_event_checked(Connection(), 0, Id(window), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                                  reinterpret_cast<const char*>(&notice)));
}

void Fit(WindowId window, const Area& holderOnScreen)
{
    const uint32_t values[] = {0, 0, static_cast<uint32_t>(holderOnScreen.width),
                               static_cast<uint32_t>(holderOnScreen.height), 0};
    const uint16_t mask = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                          XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_BORDER_WIDTH;
    Forget(xcb_configure_window_checked(Connection(), Id(window), mask, values));
    TellPlace(window, holderOnScreen);
    xcb_flush(Connection());
}

void Map(WindowId window)
{
    Forget(xcb_map_window_checked(Connection(), Id(window)));
    xcb_flush(Connection());
}

} // namespace embedding::native
