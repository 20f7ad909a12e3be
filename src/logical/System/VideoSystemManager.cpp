#include "logical/System/VideoSystemManager.h"

#include "Base/Singleton.h"
#include "logical/Local/LocalDataPath.h"
#include "logical/Local/LocalFile.h"

#include <stdexcept>
#include <utility>

namespace video {

struct CVideoSystemManager::Stores
{
    explicit Stores(const Parts& parts)
        : path(parts.foldersFile, parts.defaults), files(parts.connection),
          config(parts.connection, path, parts.notifications, parts.defaults, parts.announce),
          toolbar(parts.connection, parts.notifications, parts.announce)
    {
        config.Load();
        toolbar.Load();
    }

    CLocalDataPath path;
    CLocalFile files;
    CSystemConfig config;
    CToolbarConfig toolbar;
};

CVideoSystemManager& CVideoSystemManager::Instance()
{
    return Base::CSingleton<CVideoSystemManager>::Instance();
}

CVideoSystemManager::CVideoSystemManager(std::chrono::milliseconds waitLimit)
    : m_waitLimit(waitLimit), m_delegate([this]() -> vantor::ILocalFile& { return LocalFile(); },
                                         [this]() -> vantor::ILocalDataPath& { return LocalDataPath(); },
                                         [this]() -> vantor::IVideoSystemConfig& { return SystemConfig(); })
{}

CVideoSystemManager::~CVideoSystemManager() = default;

void CVideoSystemManager::Init(const Parts& parts)
{
    auto stores = std::make_unique<Stores>(parts);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_stores)
        m_stores = std::move(stores);
    m_done.notify_all();
}

void CVideoSystemManager::UnInit()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_ended = true;
    m_done.notify_all();
}

CVideoSystemManager::Stores& CVideoSystemManager::Wait()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_done.wait_for(lock, m_waitLimit, [this] { return m_stores || m_ended; });
    if (!m_stores)
        throw std::runtime_error("the stores are not open");
    return *m_stores;
}

vantor::ILocalFile& CVideoSystemManager::LocalFile()
{
    return Wait().files;
}

vantor::ILocalDataPath& CVideoSystemManager::LocalDataPath()
{
    return Wait().path;
}

CSystemConfig& CVideoSystemManager::SystemConfig()
{
    return Wait().config;
}

CToolbarConfig& CVideoSystemManager::ToolbarConfig()
{
    return Wait().toolbar;
}

} // namespace video
