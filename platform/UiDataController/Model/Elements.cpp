#include "UiDataController/Model/Elements.h"

#include <tuple>

namespace UiDataController {

bool LinkedStorageServer::operator==(const LinkedStorageServer& other) const
{
    return std::tie(serverId, name, address, diskGroupName, diskGroup) ==
           std::tie(other.serverId, other.name, other.address, other.diskGroupName, other.diskGroup);
}

CModelElement::CModelElement(ElementInfo element, const IDeviceLogins& logins)
    : m_element(std::move(element)), m_logins(logins)
{}

void CModelElement::Update(const ElementInfo& element)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_element = element;
}

void CModelElement::Detach()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isRemoved = true;
}

ElementInfo CModelElement::Element() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_element;
}

DeviceInfoRecord CModelElement::Device() const
{
    const ElementInfo element = Element();
    const bool isDevice = element.type != ElementType::Channel;
    return {isDevice ? element.id : element.deviceId, element.typeCode, element.subType};
}

/// Asks under the lock, so that nobody asks after Detach has returned.
std::int32_t CModelElement::Session(const QID& deviceId) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isRemoved || deviceId.isEmpty() ? kNoDevice : m_logins.Session(deviceId.toStdString());
}

std::int32_t CModelElement::OwnSession() const
{
    const std::int32_t session = Session(Device().deviceId);
    const std::lock_guard<std::mutex> lock(m_mutex);
    return session == kNoDevice && !m_isRemoved ? kLoginFailed : session;
}

std::int32_t CCamera::Login(int whose) const
{
    return whose == kLoginOfDevice ? OwnSession() : Session(LinkedServerId());
}

bool CCamera::SetLinkedServerId(const QID& serverId)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isRemoved && m_server.serverId != serverId) {
        m_server = {};
        m_server.serverId = serverId;
    }
    return !m_isRemoved;
}

LinkedStorageServer CCamera::LinkedServer() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_server;
}

bool CCamera::SetLinkedServer(const LinkedStorageServer& server)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isRemoved)
        m_server = server;
    return !m_isRemoved;
}

bool CCamera::Get(const bool& flag) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return flag;
}

bool CCamera::Set(bool& flag, bool value)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isRemoved)
        flag = value;
    return !m_isRemoved;
}

CTask::CTask(ElementInfo element, const IDeviceLogins& logins, QString address)
    : CModelElement(std::move(element), logins), m_address(std::move(address))
{}

} // namespace UiDataController
