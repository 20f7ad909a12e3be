#pragma once

#include <QIcon>
#include <QString>

namespace VantorGUIToolkit {

/// The icon of the loaded skin, "<name><suffix>.svg", with the pictures "<name>-disabled" and "<name>-selected"
/// for these states where the skin has them. Empty when it has no such icon. GUI thread.
QIcon skinIcon(const QString& name, const QString& suffix = {});

} // namespace VantorGUIToolkit
