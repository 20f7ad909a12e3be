#include "GuestDialogs.h"

#include "WindowEmbedding/WindowSystem.h"

#include <QGuiApplication>
#include <QWindow>
#include <QX11Info>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace embedding::native {

namespace {

template<typename T>
std::unique_ptr<T, decltype(&std::free)> Own(T* reply)
{
    return {reply, &std::free};
}

/// The property that a window manager keeps at every window that it manages.
xcb_atom_t ManagedMark()
{
    constexpr std::string_view kName = "WM_STATE";
    static const xcb_atom_t atom = [&] {
        xcb_connection_t* connection = QX11Info::connection();
        const auto request = xcb_intern_atom(connection, 0, kName.size(), kName.data());
        const auto reply = Own(xcb_intern_atom_reply(connection, request, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }();
    return atom;
}

bool IsManaged(WindowId window)
{
    xcb_connection_t* connection = QX11Info::connection();
    const auto request = xcb_get_property(connection, 0, static_cast<xcb_window_t>(window), ManagedMark(),
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, 0);
    xcb_generic_error_t* error = nullptr;
    const auto reply = Own(xcb_get_property_reply(connection, request, &error));
    std::free(error);
    return reply && reply->type != XCB_ATOM_NONE;
}

/// The managed window that a window stands in; 0 when it stands in none.
WindowId HostOf(WindowId window)
{
    WindowId host = 0;
    for (WindowId holder = HolderOf(window); holder != 0; holder = HolderOf(holder))
        if (IsManaged(holder))
            host = holder;
    return host;
}

/// A modal dialog without a parent belongs to whatever page of this process is seen.
WindowId HostOfDialog(const QWindow& dialog)
{
    if (const QWindow* parent = dialog.transientParent())
        return HostOf(parent->winId());
    if (dialog.modality() == Qt::NonModal)
        return 0;
    for (const QWindow* page : QGuiApplication::topLevelWindows())
        if (page->isVisible() && page->handle())
            if (const WindowId host = HostOf(page->winId()))
                return host;
    return 0;
}

} // namespace

QWindow* OwnWindow(xcb_window_t window)
{
    for (QWindow* candidate : QGuiApplication::allWindows())
        if (candidate->handle() && candidate->winId() == window)
            return candidate;
    return nullptr;
}

void KeepAboveHost(const QWindow& dialog)
{
    const auto host = static_cast<xcb_window_t>(HostOfDialog(dialog));
    if (host == 0)
        return;
    xcb_connection_t* connection = QX11Info::connection();
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(dialog.winId()),
                        XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 32, 1, &host);
    xcb_flush(connection);
}

} // namespace embedding::native
