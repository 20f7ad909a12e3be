#pragma once

#include <QIcon>
#include <QString>

namespace VantorGUIToolkit {

/// An icon of the skin by its name, such as "device": ":/VantorGUIToolKit/Icons/device.svg", with the
/// pictures "device-disabled.svg" and "device-selected.svg" for these states where the skin has them. Empty,
/// with one log line for each name, when the skin has no such icon or none is loaded. GUI thread, after the
/// skin is loaded.
QIcon icon(const QString& name);

/// The same for a button of kind "primary", whose fill is the accent colour.
QIcon iconOnAccent(const QString& name);

/// The same for a thing that is away: the disabled picture where nothing is selected.
QIcon fadedIcon(const QString& name);

} // namespace VantorGUIToolkit
