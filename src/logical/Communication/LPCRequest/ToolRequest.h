#pragma once

#include "CommunicationLayer/CommunicationLayer.h"
#include "Protocol/JSONStruct/HTTP/AlarmJSONStruct.h"
#include "Protocol/JSONStruct/HTTP/ToolJSONStruct.h"

#include <string>

/// The requests of the small tools. Each waits for its answer, up to half a minute for slow devices; a
/// failure has been logged with the request's fixed text and is the thread's last error. Any thread.
namespace video {

/// Sets the clocks of devices to this computer's time.
class CTimeSyncComm
{
public:
    explicit CTimeSyncComm(commlayer::ITransport& transport = commlayer::CurrentTransport())
        : m_transport(transport)
    {}

    /// results tells the outcome of each device.
    [[nodiscard]] bool Request(const protocol::DeviceList& devices,
                               protocol::TimeSyncResultListData& results) const;

private:
    commlayer::ITransport& m_transport;
};

/// Moves the wipers of cameras.
class CWiperComm
{
public:
    explicit CWiperComm(commlayer::ITransport& transport = commlayer::CurrentTransport())
        : m_transport(transport)
    {}

    /// results tells the outcome of each camera.
    [[nodiscard]] bool Request(protocol::WiperControlResultListData& results,
                               const protocol::WiperControlData& control) const;

private:
    commlayer::ITransport& m_transport;
};

/// Lists and switches the alarm outputs of devices.
class CAlarmoutputComm
{
public:
    explicit CAlarmoutputComm(commlayer::ITransport& transport = commlayer::CurrentTransport())
        : m_transport(transport)
    {}

    [[nodiscard]] bool RequestAllDeviceAlarmoutput(protocol::AlarmOutputInfoData& outputs) const;
    [[nodiscard]] bool RequestSingleDeviceAlarmoutput(const std::string& deviceId,
                                                      protocol::AlarmOutputInfoData& outputs) const;

    /// False also when the device refused; result then holds its pair of error numbers.
    [[nodiscard]] bool RequestControl(const std::string& deviceId, const std::string& outputId,
                                      const protocol::AlarmOutputControlData& control,
                                      protocol::CommonResponseData& result) const;

private:
    commlayer::ITransport& m_transport;
};

} // namespace video
