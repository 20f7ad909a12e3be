#pragma once

namespace vantor {

/// Hands out the stores of this computer's pictures, clips and settings. Owned by the application; any
/// thread.
class ILocalDataManager
{
public:
    virtual ~ILocalDataManager() = default;
};

} // namespace vantor
