#pragma once

#include "Base/MessageLoop.h"
#include "Base/ThreadPool.h"
#include "DeviceSessions/TryDevice.h"
#include "framework/core/Resources.h"

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace framework {

/// The sessions with the devices of the resources: what a device tells goes into the resources, and what is
/// changed in them is followed here. Any thread; nobody waits for a device, Stop excepted.
class CDeviceLinks : Base::CNoncopyable
{
public:
    using OnTried = std::function<void(const devices::TriedDevice& tried)>;

    /// onStatus: some status is another one. On a thread of this class.
    /// trustFile: keeps the certificates of devices.
    CDeviceLinks(CResources& resources, std::string trustFile, std::function<void()> onStatus,
                 const devices::SessionLimits& limits = {});
    ~CDeviceLinks();

    /// Logs in to all devices.
    void Start();
    /// The device was added, changed or removed.
    void Follow(const std::string& guid);
    void TryNow(const std::string& guid);

    /// How a device stands; one that nothing is known of yet is connecting.
    devices::DeviceStatus Status(const std::string& guid) const;
    /// See CDeviceSessions::Session.
    std::int32_t Session(const std::string& guid) const;

    /// Tries to reach a device as it was entered, which need not be one of the resources. onTried is called
    /// on a thread of this class, some seconds later at most, and not after Stop; it must
    /// only post.
    void Test(const DeviceEntry& entry, OnTried onTried);

    /// Ends the sessions and the tests under way; waits for the logouts, a second or so. May be called again,
    /// by the same thread.
    void Stop();

private:
    void Hear(const devices::DeviceStatus& status);
    void Update(const std::string& guid);
    bool IsStopped() const;
    std::shared_ptr<devices::CDeviceSessions> Sessions() const;

    CResources& m_resources;
    const std::string m_trustFile;
    const std::function<void()> m_onStatus;
    const devices::SessionLimits m_limits;
    Base::CMessageLoop m_loop{"device-links"};
    Base::CThreadPool m_tests{"device-test", 4};
    mutable std::mutex m_mutex;
    bool m_isStopped = false;
    std::map<std::string, devices::DeviceStatus> m_statuses;
    std::shared_ptr<devices::CDeviceSessions> m_sessions; ///< set at the start, until the end; only the
                                                          ///< loop holds it for a while
};

} // namespace framework
