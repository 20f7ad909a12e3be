#include "WindowEmbedding/WindowSystem.h"

#include <windows.h>

namespace embedding::native {

namespace {

HWND Handle(WindowId window)
{
    return reinterpret_cast<HWND>(window);
}

/// The style decides whether Windows treats it as a part of another window; the two must agree with the
/// holder.
void SetChildStyle(HWND window, bool child)
{
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
    const LONG_PTR frame =
        WS_POPUP | WS_CAPTION | WS_THICKFRAME | WS_SYSMENU | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;
    const LONG_PTR next =
        child ? (style & ~frame) | WS_CHILD | WS_CLIPSIBLINGS : (style & ~WS_CHILD) | WS_POPUP;
    SetWindowLongPtrW(window, GWL_STYLE, next);
}

} // namespace

bool Available()
{
    return true;
}

bool Exists(WindowId window)
{
    return IsWindow(Handle(window)) != FALSE;
}

bool IsMapped(WindowId window)
{
    return (GetWindowLongPtrW(Handle(window), GWL_STYLE) & WS_VISIBLE) != 0;
}

WindowId HolderOf(WindowId window)
{
    const HWND holder = GetAncestor(Handle(window), GA_PARENT);
    return holder == GetDesktopWindow() ? 0 : reinterpret_cast<WindowId>(holder);
}

bool Adopt(WindowId window, WindowId holder)
{
    const HWND guest = Handle(window);
    if (!IsWindow(guest) || !IsWindow(Handle(holder)) || IsChild(guest, Handle(holder)))
        return false;
    ShowWindowAsync(guest, SW_HIDE);
    SetChildStyle(guest, true);
    return SetParent(guest, Handle(holder)) != nullptr;
}

void GiveBack(WindowId window)
{
    ShowWindowAsync(Handle(window), SW_HIDE);
    SetParent(Handle(window), nullptr);
    SetChildStyle(Handle(window), false);
}

std::optional<Area> AreaOnScreen(WindowId window)
{
    RECT inside = {};
    POINT corner = {0, 0};
    if (!GetClientRect(Handle(window), &inside) || !ClientToScreen(Handle(window), &corner))
        return std::nullopt;
    return Area{corner.x, corner.y, inside.right, inside.bottom};
}

/// A guest that is busy must not hold up its host: nothing here waits for it. The move tells its process to
/// ask anew where it is.
void Fit(WindowId window, const Area& holderOnScreen)
{
    SetWindowPos(Handle(window), nullptr, 0, 0, holderOnScreen.width, holderOnScreen.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | SWP_ASYNCWINDOWPOS);
    PostMessageW(Handle(window), WM_MOVE, 0, 0);
}

void Map(WindowId window)
{
    ShowWindowAsync(Handle(window), SW_SHOWNA);
}

/// Embedding has joined the keyboard queues of the two processes.
void Focus(WindowId window)
{
    SetFocus(Handle(window));
}

/// Windows gives the keyboard to a dialog's owner.
bool IsFocusLost()
{
    return false;
}

} // namespace embedding::native
