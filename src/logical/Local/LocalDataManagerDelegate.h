#pragma once

#include "Base/Noncopyable.h"
#include "VideoInterfaces/ILocalDataManager.h"

#include <functional>
#include <utility>

namespace video {

/// Hands out the process-wide stores. Each call asks the source for its store, which may wait until the store
/// is there, so that the object itself can be given away before. Any thread.
class CLocalDataManagerDelegate : public vantor::ILocalDataManager, Base::CNoncopyable
{
public:
    template<typename Store>
    using Source = std::function<Store&()>;

    CLocalDataManagerDelegate(Source<vantor::ILocalFile> files, Source<vantor::ILocalDataPath> paths,
                              Source<vantor::IVideoSystemConfig> config)
        : m_files(std::move(files)), m_paths(std::move(paths)), m_config(std::move(config))
    {}

    vantor::ILocalFile& LocalFile() override { return m_files(); }
    vantor::ILocalDataPath& LocalDataPath() override { return m_paths(); }
    vantor::IVideoSystemConfig& SystemConfig() override { return m_config(); }
    void Release() override {}

private:
    const Source<vantor::ILocalFile> m_files;
    const Source<vantor::ILocalDataPath> m_paths;
    const Source<vantor::IVideoSystemConfig> m_config;
};

} // namespace video
