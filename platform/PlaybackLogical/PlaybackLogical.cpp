#include "PlaybackLogical/PlaybackLogical.h"

#include "Base/Log.h"
#include "Base/Singleton.h"

namespace PlaybackLogical {

CPlaybackLogical& CPlaybackLogical::Instance()
{
    return Base::CSingleton<CPlaybackLogical>::Instance();
}

bool CPlaybackLogical::init(vantor::IGroupManager* groups, vantor::ILocalDataManager* localData)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_init && (m_groups != groups || m_localData != localData)) {
        BASE_ERROR("The playback logic was started already with other managers.");
        return false;
    }
    m_init = true;
    m_groups = groups;
    m_localData = localData;
    return true;
}

bool CPlaybackLogical::isInit() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_init;
}

vantor::IGroupManager* CPlaybackLogical::GroupManager() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_groups;
}

vantor::ILocalDataManager* CPlaybackLogical::LocalDataManager() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_localData;
}

void CPlaybackLogical::UnInit()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_init = false;
    m_groups = nullptr;
    m_localData = nullptr;
}

} // namespace PlaybackLogical
