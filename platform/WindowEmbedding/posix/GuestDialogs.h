#pragma once

#include <xcb/xcb.h>

class QWindow;

namespace embedding::native {

/// This process's window of a number; nullptr for another process's, or when there is none.
QWindow* OwnWindow(xcb_window_t window);

/// Tells the window manager that a dialog of an embedded page belongs above the host's window. By itself it
/// sees the dialog of a window that it does not manage, and lets the host's cover it at the next click.
/// For a window that the window manager has just mapped.
void KeepAboveHost(const QWindow& dialog);

} // namespace embedding::native
