#pragma once

namespace vantor {

/// The groups of channels. Owned by the application; any thread.
class IGroupManager
{
public:
    virtual ~IGroupManager() = default;
};

} // namespace vantor
