#pragma once

#include "UiDataController/Model/Element.h"
#include "VantorGUIToolkit/Widgets/Dress.h"

class QColor;
class QPainter;
class QRectF;

namespace UiDataController {

/// What an element's state means to the user.
VantorGUIToolkit::Tone stateTone(ElementState state);

/// Draws the sign of a state into the middle of place, at most 12 by 12 pixels: a dot for online, one in a
/// ring for recording, a cross for offline, a bar for not supported, a ring while nobody knows yet.
void paintStateMark(QPainter& painter, const QRectF& place, ElementState state, const QColor& color);

} // namespace UiDataController
