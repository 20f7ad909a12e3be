#include "logical/Communication/LPCRequest/DeviceRequest.h"

#include "Base/Error.h"
#include "CommonMethod/DecryptionComm.h"

namespace video {

namespace {

bool Opened(bool opened)
{
    if (!opened)
        Base::Error::SetLastError(commlayer::kBadAnswer);
    return opened;
}

} // namespace

bool CDeviceComm::RequestDevices(protocol::DeviceResponseListData& devices) const
{
    return commlayer::CGetDevices::request(devices, m_transport) &&
           Opened(comm_method::decryptDeviceResponseList(devices));
}

bool CDeviceComm::RequestDevice(const std::string& deviceId, protocol::DeviceResponseData& device) const
{
    return commlayer::CGetDevice::request(deviceId, device, m_transport) &&
           Opened(comm_method::decryptDeviceResponse(device));
}

bool CDeviceComm::RequestChannels(const std::string& deviceId,
                                  protocol::DeviceChannelListData& channels) const
{
    return commlayer::CGetDeviceChannels::request(deviceId, channels, m_transport);
}

bool CDeviceComm::RequestGroups(protocol::GroupListData& groups) const
{
    return commlayer::CGetGroups::request(groups, m_transport);
}

bool CDeviceComm::RequestAlarmInputs(const std::string& deviceId, protocol::AlarmInputInfoData& inputs) const
{
    return commlayer::CGetDeviceAlarmInputs::request(deviceId, inputs, m_transport);
}

} // namespace video
