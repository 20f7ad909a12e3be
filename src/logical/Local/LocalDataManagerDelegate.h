#pragma once

#include "Base/Noncopyable.h"
#include "VideoInterfaces/ILocalDataManager.h"

namespace video {

/// Hands out the process-wide stores, which must outlive it. Any thread.
class CLocalDataManagerDelegate : public vantor::ILocalDataManager, Base::CNoncopyable
{
public:
    CLocalDataManagerDelegate(vantor::ILocalFile& files, vantor::ILocalDataPath& paths,
                              vantor::IVideoSystemConfig& config)
        : m_files(files), m_paths(paths), m_config(config)
    {}

    vantor::ILocalFile& LocalFile() override { return m_files; }
    vantor::ILocalDataPath& LocalDataPath() override { return m_paths; }
    vantor::IVideoSystemConfig& SystemConfig() override { return m_config; }
    void Release() override {}

private:
    vantor::ILocalFile& m_files;
    vantor::ILocalDataPath& m_paths;
    vantor::IVideoSystemConfig& m_config;
};

} // namespace video
