#pragma once

#include "Protocol/JSONStruct/HTTP/DeviceJSONStruct.h"
#include "logical/Communication/LPCRequest/DeviceRequest.h"

#include <string>

namespace video {

/// What can be asked about resources. Each question waits for its answer; false where there is none, which
/// has been logged.
class IResourceDirectory
{
public:
    virtual ~IResourceDirectory() = default;

    /// Credentials come opened, or empty where they do not open.
    [[nodiscard]] virtual bool Devices(std::vector<protocol::DeviceResponseData>& devices) const = 0;
    [[nodiscard]] virtual bool Device(const std::string& id, protocol::DeviceResponseData& device) const = 0;
    [[nodiscard]] virtual bool Channels(const std::string& deviceId,
                                        std::vector<protocol::DeviceChannelInfo>& channels) const = 0;
    [[nodiscard]] virtual bool Groups(std::vector<protocol::GroupInfo>& groups) const = 0;
};

/// Asks the framework.
class CFrameworkDirectory : public IResourceDirectory
{
public:
    explicit CFrameworkDirectory(commlayer::ITransport& transport = commlayer::CurrentTransport())
        : m_requests(transport)
    {}

    bool Devices(std::vector<protocol::DeviceResponseData>& devices) const override;
    bool Device(const std::string& id, protocol::DeviceResponseData& device) const override;
    bool Channels(const std::string& deviceId,
                  std::vector<protocol::DeviceChannelInfo>& channels) const override;
    bool Groups(std::vector<protocol::GroupInfo>& groups) const override;

private:
    const CDeviceComm m_requests;
};

} // namespace video
