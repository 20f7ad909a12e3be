#pragma once

#include "VideoInterfaces/ToolbarStruct.h"

#include <cstdint>

namespace vantor {

/// Hears of changes of the toolbar's layout, on the notification loop.
class IToolbarConfigObserver
{
public:
    struct Param
    {
        std::int32_t type; ///< always 0
    };

    virtual ~IToolbarConfigObserver() = default;
    virtual void OnToolbarConfigChanged(const Param& param) = 0;
};

/// The component's one owner of the toolbar's layout.
class IToolbarConfig
{
public:
    virtual ~IToolbarConfig() = default;

    /// The working layout. GUI thread; an observer asks for it there.
    virtual const ToolbarStruct& Layout() const = 0;

    /// False for null, else true. Any thread; see Base/ObserverRegistry.h.
    virtual bool AddObserver(IToolbarConfigObserver* observer) = 0;
    virtual bool RemoveObserver(IToolbarConfigObserver* observer) = 0;
    /// The same without a look at the pointer: always true.
    virtual bool RemoveObserverUnchecked(IToolbarConfigObserver* observer) = 0;
};

} // namespace vantor
