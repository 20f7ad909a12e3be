#pragma once

#include "UiDataController/Model/Element.h"

#include <vector>

namespace vantor {

/// The groups of channels. Owned by the application; any thread.
class IGroupManager
{
public:
    virtual ~IGroupManager() = default;

    /// Groups above before those below.
    virtual std::vector<UiDataController::ElementInfo> Groups() const = 0;
};

} // namespace vantor
