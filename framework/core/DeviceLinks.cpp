#include "framework/core/DeviceLinks.h"

#include "Base/Log.h"

#include <utility>

namespace framework {

namespace {

devices::DeviceAddress AddressOf(const std::string& guid, const DeviceEntry& entry)
{
    return {guid,           entry.address,  static_cast<std::uint16_t>(entry.port),
            entry.userName, entry.password, entry.useTls};
}

} // namespace

CDeviceLinks::CDeviceLinks(CResources& resources, std::string trustFile, std::function<void()> onStatus,
                           const devices::SessionLimits& limits)
    : m_resources(resources), m_trustFile(std::move(trustFile)), m_onStatus(std::move(onStatus)),
      m_limits(limits)
{
    if (!QxNet_Init())
        BASE_ERROR("The device SDK cannot be used, [%u].", NET_DVR_GetLastError());
}

CDeviceLinks::~CDeviceLinks()
{
    Stop();
}

void CDeviceLinks::Start()
{
    if (!QxNet_SetTrustFile(m_trustFile.c_str()))
        BASE_ERROR("The certificates of devices cannot be kept in %s, [%u].", m_trustFile.c_str(),
                   NET_DVR_GetLastError());
    auto sessions = std::make_shared<devices::CDeviceSessions>(
        [this](const devices::DeviceStatus& status) { Hear(status); }, m_limits);
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_sessions = std::move(sessions);
    }
    for (const auto& device : m_resources.Devices())
        Follow(device.guid);
}

void CDeviceLinks::Stop()
{
    std::shared_ptr<devices::CDeviceSessions> ending;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (std::exchange(m_isStopped, true))
            return;
    }
    m_loop.Stop();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        ending = std::move(m_sessions);
    }
    // Whoever is the last to let go of the SDK ends the calls that are under way, those of tests as well.
    (void)QxNet_Cleanup();
    ending.reset();
    m_tests.Stop();
}

std::shared_ptr<devices::CDeviceSessions> CDeviceLinks::Sessions() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_sessions;
}

// The session follows on a loop, as the resources tell of a change while they wait for nobody.
void CDeviceLinks::Follow(const std::string& guid)
{
    (void)m_loop.PostTask([this, guid] { Update(guid); });
}

void CDeviceLinks::Update(const std::string& guid)
{
    const auto sessions = Sessions();
    if (!sessions)
        return;
    DeviceEntry entry;
    if (m_resources.EntryOf(guid, entry))
        return sessions->Set(AddressOf(guid, entry));
    sessions->Remove(guid);
    std::lock_guard<std::mutex> lock(m_mutex);
    m_statuses.erase(guid);
}

void CDeviceLinks::Hear(const devices::DeviceStatus& status)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isStopped)
            return;
        m_statuses[status.id] = status;
    }
    m_resources.Hear(status);
    m_onStatus();
}

bool CDeviceLinks::IsStopped() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_isStopped;
}

void CDeviceLinks::TryNow(const std::string& guid)
{
    (void)m_loop.PostTask([this, guid] {
        if (const auto sessions = Sessions())
            sessions->TryNow(guid);
    });
}

devices::DeviceStatus CDeviceLinks::Status(const std::string& guid) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_statuses.find(guid);
    if (found != m_statuses.end())
        return found->second;
    devices::DeviceStatus unknown;
    unknown.id = guid;
    return unknown;
}

std::int32_t CDeviceLinks::Session(const std::string& guid) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_sessions ? m_sessions->Session(guid) : -1;
}

void CDeviceLinks::Test(const DeviceEntry& entry, OnTried onTried)
{
    (void)m_tests.PostTask([this, entry, onTried = std::move(onTried)] {
        if (IsStopped())
            return;
        const devices::TriedDevice tried = devices::TryDevice(AddressOf({}, entry));
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_isStopped)
            onTried(tried);
    });
}

} // namespace framework
