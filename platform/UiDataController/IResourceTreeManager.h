#pragma once

#include "UiDataController/Model/Element.h"

namespace vantor {

/// The tree of devices, channels and groups that the user sees. Owned by the application; any thread.
class IResourceTreeManager
{
public:
    virtual ~IResourceTreeManager() = default;

    /// What the tree shows.
    virtual UiDataController::IElementSource& Elements() = 0;
};

} // namespace vantor
