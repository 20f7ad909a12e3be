#pragma once

#include "framework/core/Users.h"

#include <QString>

#include <vector>

namespace framework {

/// The groups of the navigation, in the order in which they are shown.
enum class WindowGroup { Start, LiveView, Playback, Recording, Devices, Tools, System };

/// "Live view" and so on in the language of the user; empty for Start.
QString TitleOf(WindowGroup group);

/// A tab that can be opened.
struct WindowRow
{
    const char* name;  ///< the component's window name, or the name of a tab of the framework's own
    const char* title; ///< in English
    const char* icon;  ///< see VantorGUIToolkit/Icons.h
    WindowGroup group;
    const char* permission; ///< what the user must be allowed to do; empty: everybody may open it
    bool isOwn;             ///< the framework's own, not a window of the component

    /// In the language of the user.
    QString Title() const;
    bool MayOpen(const User& user) const;
};

/// Every tab, in the order of the navigation. The one place that knows them.
const std::vector<WindowRow>& AllWindows();

/// The title of a tab in the language of the user; empty for an unknown name.
QString TitleOf(const QString& window);

/// The row of a name; nullptr for none.
const WindowRow* FindWindow(const QString& name);

} // namespace framework
