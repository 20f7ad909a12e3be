#include "UiDataController/DeviceUserIDManager.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Base/Singleton.h"

namespace UiDataController {

CDeviceUserIDManager& CDeviceUserIDManager::Instance()
{
    return Base::CSingleton<CDeviceUserIDManager>::Instance();
}

bool CDeviceUserIDManager::init(const std::string& logPath)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_logPath = logPath;
    }
    if (!logPath.empty() && Base::FileUtil::MakeDirs(logPath))
        return true;
    BASE_ERROR("Failed to create the device log folder [%s].", logPath.c_str());
    return false;
}

std::string CDeviceUserIDManager::logPath() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_logPath;
}

bool CDeviceUserIDManager::add(const std::string& deviceId, int userId)
{
    if (deviceId.empty() || userId < 0)
        return false;
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_userIds.emplace(deviceId, userId).second;
}

std::optional<int> CDeviceUserIDManager::find(const std::string& deviceId) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_userIds.find(deviceId);
    return found == m_userIds.end() ? std::nullopt : std::optional<int>(found->second);
}

std::optional<int> CDeviceUserIDManager::remove(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto node = m_userIds.extract(deviceId);
    return node.empty() ? std::nullopt : std::optional<int>(node.mapped());
}

std::size_t CDeviceUserIDManager::count() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_userIds.size();
}

void CDeviceUserIDManager::UnInit()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_userIds.clear();
    m_logPath.clear();
}

} // namespace UiDataController
