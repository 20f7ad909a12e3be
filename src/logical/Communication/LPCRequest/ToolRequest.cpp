#include "logical/Communication/LPCRequest/ToolRequest.h"

#include "Base/Log.h"
#include "CommunicationLayer/TypedRequest.h"

namespace video {

namespace {

using namespace commlayer;
namespace route = protocol::route;

/// Names in the failure lines, as they stand; two of them serve requests of another kind as well.
constexpr const char* kTimeSyncText = "requestAlarmControl";
constexpr const char* kWiperText = "wiperequest";
constexpr const char* kAllOutputsText = "wiperequest";
constexpr const char* kSingleOutputsText = "requestAlarm";
constexpr const char* kControlText = "requestAlarmControl";

bool Logged(bool done, const char* text)
{
    if (!done)
        BASE_ERROR_TO("VideoLogger", "Failed to LPCSendData. msg:[ %s ]", text);
    return done;
}

std::string ControlUrl(const std::string& deviceId, const std::string& outputId)
{
    const std::string output = PathSegment(outputId);
    return output.empty()
               ? output
               : DeviceUrl(deviceId, std::string(route::kAlarmOutputs) + "/" + output + route::kControls);
}

} // namespace

bool CTimeSyncComm::Request(const protocol::DeviceList& devices,
                            protocol::TimeSyncResultListData& results) const
{
    const Call call{kPost, route::kBatchTimeSynchronization, kDeviceTimeoutMs};
    return Logged(Exchange(m_transport, call, devices, results), kTimeSyncText);
}

bool CWiperComm::Request(protocol::WiperControlResultListData& results,
                         const protocol::WiperControlData& control) const
{
    const Call call{kPost, route::kWipers, kDeviceTimeoutMs};
    return Logged(Exchange(m_transport, call, control, results), kWiperText);
}

bool CAlarmoutputComm::RequestAllDeviceAlarmoutput(protocol::AlarmOutputInfoData& outputs) const
{
    const Call call{kGet, route::kAllAlarmOutputs, kDeviceTimeoutMs};
    return Logged(Exchange(m_transport, call, std::string(), outputs), kAllOutputsText);
}

bool CAlarmoutputComm::RequestSingleDeviceAlarmoutput(const std::string& deviceId,
                                                      protocol::AlarmOutputInfoData& outputs) const
{
    const Call call{kGet, DeviceUrl(deviceId, route::kAlarmOutputs), kDeviceTimeoutMs};
    return Logged(Exchange(m_transport, call, std::string(), outputs), kSingleOutputsText);
}

bool CAlarmoutputComm::RequestControl(const std::string& deviceId, const std::string& outputId,
                                      const protocol::AlarmOutputControlData& control,
                                      protocol::CommonResponseData& result) const
{
    const Call call{kPut, ControlUrl(deviceId, outputId), kDeviceTimeoutMs};
    return Logged(Command(m_transport, call, control, result), kControlText);
}

} // namespace video
