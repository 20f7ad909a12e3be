#pragma once

#include "UiDataController/Model/Element.h"

#include <QIcon>

namespace UiDataController {

/// What an element's state is called, in the user's language.
QString stateText(ElementState state);

/// The text of an element's tool tip: name, device if it is given, state and problem. Markup that keeps what
/// comes from a device as it is.
QString elementToolTip(const ElementInfo& info, const QString& deviceName);

/// The skin's picture of an element, faded when the element is away. GUI thread.
QIcon elementIcon(ElementType type, ElementState state);

/// Whether the state says that pictures of the element can be had.
bool isReachable(ElementState state);

} // namespace UiDataController
