#pragma once

#include "WindowEmbedding/WindowSystem.h"

namespace embedding::native {

/// Tells the window's process where on the screen the window is. The process takes its place from this; the
/// server itself tells it only of changes within the holder.
void TellPlace(WindowId window, const Area& onScreen);

} // namespace embedding::native
