#pragma once

#include "CommunicationLayer/DeviceRequests.h"

#include <string>

namespace video {

/// The component's requests about devices. Credentials come opened, or empty where they do not open. Each
/// waits for its answer; a failure has been logged and is the thread's last error. Any thread.
class CDeviceComm
{
public:
    explicit CDeviceComm(commlayer::ITransport& transport = commlayer::CurrentTransport())
        : m_transport(transport)
    {}

    /// The result is false, but the answer filled, when only credentials do not open.
    [[nodiscard]] bool RequestDevices(protocol::DeviceResponseListData& devices) const;
    [[nodiscard]] bool RequestDevice(const std::string& deviceId, protocol::DeviceResponseData& device) const;

    [[nodiscard]] bool RequestChannels(const std::string& deviceId,
                                       protocol::DeviceChannelListData& channels) const;
    [[nodiscard]] bool RequestGroups(protocol::GroupListData& groups) const;
    [[nodiscard]] bool RequestAlarmInputs(const std::string& deviceId,
                                          protocol::AlarmInputInfoData& inputs) const;

private:
    commlayer::ITransport& m_transport;
};

} // namespace video
