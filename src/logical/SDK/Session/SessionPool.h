#pragma once

#include "DeviceSessions/DeviceSessions.h"
#include "UiDataController/Model/DeviceLogins.h"

#include <memory>
#include <shared_mutex>
#include <string>

namespace video {

/// The sessions with devices, as the feed needs them. Any thread, but for Start and End.
class ISessionPool : public UiDataController::IDeviceLogins
{
public:
    using OnStatus = devices::CDeviceSessions::OnStatus;

    /// False, with one log line, when there can be no sessions; the other functions then do nothing.
    [[nodiscard]] virtual bool Start(OnStatus onStatus) = 0;
    /// Logs everybody out; no status comes afterwards. May be called again.
    virtual void End() = 0;

    virtual void Set(const devices::DeviceAddress& address) = 0;
    virtual void Remove(const std::string& id) = 0;
};

/// Real ones, over the device SDK, which it starts and ends. What is known of the abilities behind a session
/// is forgotten with it.
class CSessionPool final : public ISessionPool
{
public:
    /// trustFile: where the certificates of devices are kept, in the platform's file name encoding.
    explicit CSessionPool(std::string trustFile, const devices::SessionLimits& limits = {})
        : m_trustFile(std::move(trustFile)), m_limits(limits)
    {}
    ~CSessionPool() override { End(); }

    bool Start(OnStatus onStatus) override;
    void End() override;
    void Set(const devices::DeviceAddress& address) override;
    void Remove(const std::string& id) override;
    std::int32_t Session(const std::string& deviceId) const override;

private:
    std::shared_ptr<devices::CDeviceSessions> Sessions() const;

    const std::string m_trustFile;
    const devices::SessionLimits m_limits;
    mutable std::shared_mutex m_mutex; ///< of the pointer
    std::shared_ptr<devices::CDeviceSessions> m_sessions;
};

} // namespace video
