#include "logical/SDK/Session/SessionPool.h"

#include "Base/Log.h"
#include "CapabilitySet/CapabilitySet.h"

#include <mutex>

namespace video {

bool CSessionPool::Start(OnStatus onStatus)
{
    if (!QxNet_Init()) {
        BASE_ERROR("QxNet_Init failed, [%u].", NET_DVR_GetLastError());
        return false;
    }
    // Without the file no device is let in by TLS.
    if (!QxNet_SetTrustFile(m_trustFile.c_str()))
        BASE_ERROR("QxNet_SetTrustFile failed, [%u].", NET_DVR_GetLastError());
    auto sessions =
        std::make_shared<devices::CDeviceSessions>(std::move(onStatus), m_limits, &CapabilitySet::Forget);
    // From here on the SDK is the sessions' alone, so that their end is the end of every call to a device.
    (void)QxNet_Cleanup();
    const std::lock_guard<std::shared_mutex> lock(m_mutex);
    m_sessions = std::move(sessions);
    return true;
}

void CSessionPool::End()
{
    std::shared_ptr<devices::CDeviceSessions> sessions;
    {
        const std::lock_guard<std::shared_mutex> lock(m_mutex);
        sessions.swap(m_sessions);
    }
}

void CSessionPool::Set(const devices::DeviceAddress& address)
{
    if (const auto sessions = Sessions())
        sessions->Set(address);
}

void CSessionPool::Remove(const std::string& id)
{
    if (const auto sessions = Sessions())
        sessions->Remove(id);
}

/// Under the lock, so that nobody but End lets go of the last reference.
std::int32_t CSessionPool::Session(const std::string& deviceId) const
{
    const std::shared_lock<std::shared_mutex> lock(m_mutex);
    return m_sessions ? m_sessions->Session(deviceId) : UiDataController::kNoDevice;
}

std::shared_ptr<devices::CDeviceSessions> CSessionPool::Sessions() const
{
    const std::shared_lock<std::shared_mutex> lock(m_mutex);
    return m_sessions;
}

} // namespace video
