#include "WindowEmbedding/posix/GuestDialogs.h"

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

xcb_atom_t Atom(std::string_view name)
{
    xcb_connection_t* connection = QX11Info::connection();
    const auto request = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const auto reply = Own(xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// nullptr when there is no such window. Of a missing property, the type is none.
auto Property(WindowId window, xcb_atom_t name)
{
    xcb_connection_t* connection = QX11Info::connection();
    const auto request = xcb_get_property(connection, 0, static_cast<xcb_window_t>(window), name,
                                          XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    xcb_generic_error_t* error = nullptr;
    auto reply = Own(xcb_get_property_reply(connection, request, &error));
    std::free(error);
    return reply;
}

/// A window manager marks every window that it manages.
bool IsManaged(WindowId window)
{
    static const xcb_atom_t mark = Atom("WM_STATE");
    const auto state = Property(window, mark);
    return state && state->type != XCB_ATOM_NONE;
}

/// One that has ended may have left its property behind, but not its window.
bool HasWindowManager()
{
    static const xcb_atom_t check = Atom("_NET_SUPPORTING_WM_CHECK");
    const auto window = Property(QX11Info::appRootWindow(), check);
    return window && window->type == XCB_ATOM_WINDOW && window->value_len == 1 &&
           Exists(*static_cast<const xcb_window_t*>(xcb_get_property_value(window.get())));
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

bool IsFocusLost()
{
    xcb_connection_t* connection = QX11Info::connection();
    const auto focus = Own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    const bool lost =
        focus && (focus->focus == XCB_INPUT_FOCUS_NONE || focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT ||
                  focus->focus == QX11Info::appRootWindow());
    return lost && !HasWindowManager();
}

} // namespace embedding::native
