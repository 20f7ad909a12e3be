#include "logical/Communication/LPCRequest/DeviceRequest.h"

#include "CommonMethod/DecryptionComm.h"

namespace video {

bool CDeviceComm::RequestDevices(protocol::DeviceResponseListData& devices) const
{
    return commlayer::CGetDevices::request(devices, m_transport) &&
           comm_method::decryptDeviceResponseList(devices);
}

bool CDeviceComm::RequestDevice(const std::string& deviceId, protocol::DeviceResponseData& device) const
{
    return commlayer::CGetDevice::request(deviceId, device, m_transport) &&
           comm_method::decryptDeviceResponse(device);
}

bool CDeviceComm::RequestChannels(const std::string& deviceId,
                                  protocol::DeviceChannelListData& channels) const
{
    return commlayer::CGetDeviceChannels::request(deviceId, channels, m_transport);
}

bool CDeviceComm::RequestAlarmInputs(const std::string& deviceId, protocol::AlarmInputInfoData& inputs) const
{
    return commlayer::CGetDeviceAlarmInputs::request(deviceId, inputs, m_transport);
}

} // namespace video
