#pragma once

namespace vantor {

/// The tree of devices, channels and groups that the user sees. Owned by the application; any thread.
class IResourceTreeManager
{
public:
    virtual ~IResourceTreeManager() = default;
};

} // namespace vantor
