#pragma once

namespace vantor {

class ILocalDataPath;
class ILocalFile;
class IVideoSystemConfig;

/// Hands out the stores of this computer's pictures, clips and settings. They live as long as the process.
/// Any thread.
class ILocalDataManager
{
public:
    virtual ~ILocalDataManager() = default;

    virtual ILocalFile& LocalFile() = 0;
    virtual ILocalDataPath& LocalDataPath() = 0;
    virtual IVideoSystemConfig& SystemConfig() = 0;

    /// Does nothing: what it hands out is not given back.
    virtual void Release() = 0;
};

} // namespace vantor
