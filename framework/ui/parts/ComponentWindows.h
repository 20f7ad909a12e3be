#pragma once

#include "framework/core/FrameworkEvents.h"

#include <QString>
#include <QtGlobal>

#include <functional>

namespace framework {

/// What the component answered about one of its windows.
struct WindowHandle
{
    quint64 wnd = 0;       ///< 0: there is no such window
    bool available = true; ///< false: the page only says that it does not exist yet
};

/// The component as the tabs see it. GUI thread; answers arrive there too, later, and none after the end.
class IComponentWindows
{
public:
    virtual ~IComponentWindows() = default;

    virtual void Ask(const QString& name, std::function<void(const WindowHandle&)> onAnswer) = 0;
    virtual void Show(const QString& name) = 0;
    virtual void Removed(const QString& name) = 0;
    virtual void Start() = 0;
    virtual ComponentState State() const = 0;
};

} // namespace framework
