#pragma once

#include "WindowEmbedding/WindowSystem.h"

class QWidget;
class QWindow;

namespace embedding {

/// The guest that had the keyboard last is noted at its host's top-level window, so that it gets the keyboard
/// again when the window manager activates that window. GUI thread.
void RememberFocus(const QWidget* container, native::WindowId guest);

/// Takes the keyboard from a guest that goes away: if it had it last, the host's top-level window gets it.
void TakeFocusBack(const QWidget* container, native::WindowId guest);

} // namespace embedding
