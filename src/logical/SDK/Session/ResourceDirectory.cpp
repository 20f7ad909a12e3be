#include "logical/SDK/Session/ResourceDirectory.h"

namespace video {

// A device whose credentials do not open is there all the same.
bool CFrameworkDirectory::Devices(std::vector<protocol::DeviceResponseData>& devices) const
{
    protocol::DeviceResponseListData list;
    const bool isGood = m_requests.RequestDevices(list) || !list.devices.empty();
    devices = std::move(list.devices);
    return isGood;
}

bool CFrameworkDirectory::Device(const std::string& id, protocol::DeviceResponseData& device) const
{
    protocol::DeviceResponseData answer;
    if (!m_requests.RequestDevice(id, answer) && answer.guid.empty())
        return false;
    device = std::move(answer);
    return true;
}

bool CFrameworkDirectory::Channels(const std::string& deviceId,
                                   std::vector<protocol::DeviceChannelInfo>& channels) const
{
    protocol::DeviceChannelListData list;
    const bool isGood = m_requests.RequestChannels(deviceId, list);
    channels = std::move(list.channels);
    return isGood;
}

bool CFrameworkDirectory::Groups(std::vector<protocol::GroupInfo>& groups) const
{
    protocol::GroupListData list;
    const bool isGood = m_requests.RequestGroups(list);
    groups = std::move(list.groups);
    return isGood;
}

} // namespace video
