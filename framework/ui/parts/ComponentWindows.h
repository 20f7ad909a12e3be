#pragma once

#include "framework/core/FrameworkCore.h"

#include <QString>

#include <functional>

namespace framework {

/// The component as the tabs see it. GUI thread; answers arrive there too, later, and none after the end.
class IComponentWindows
{
public:
    virtual ~IComponentWindows() = default;

    using Answer = std::function<void(std::optional<ComponentWindow> window)>;

    virtual void Ask(const QString& name, Answer onAnswer) = 0;
    virtual void Show(const QString& name) = 0;
    virtual void Removed(const QString& name) = 0;
    virtual void Start() = 0;
    virtual ComponentState State() const = 0;
};

} // namespace framework
