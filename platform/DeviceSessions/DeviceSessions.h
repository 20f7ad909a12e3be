#pragma once

#include "Base/Noncopyable.h"
#include "QxNetSDK/QxNetSDK.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

/// Sessions with many devices, kept alive in the background.
namespace devices {

/// How to reach a device.
struct DeviceAddress
{
    std::string id; ///< as the framework issues it
    std::string host;
    std::uint16_t port = 0;
    std::string user;
    std::string password;
    bool useTls = false;

    bool operator==(const DeviceAddress& other) const;
};

enum class SessionState {
    Connecting, ///< not tried yet since it was added or changed
    Online,
    Offline, ///< error and moduleError say why
};

/// A channel as its device tells of it.
struct ChannelState
{
    int number = 0;   ///< from 1
    int state = 0;    ///< QXNET_CHANNEL_...
    std::string name; ///< UTF-8; may be empty
};

/// How a device stands.
struct DeviceStatus
{
    std::string id;
    SessionState state = SessionState::Connecting;
    std::uint32_t error = 0; ///< the SDK's pair when offline
    std::uint32_t moduleError = 0;
    QxNetDeviceInfo info{};             ///< of the last session
    std::vector<ChannelState> channels; ///< as they were last heard of
};

/// How often to look, and how long to wait.
struct SessionLimits
{
    std::chrono::milliseconds watch{3000};    ///< between two looks at a device that is online
    std::chrono::milliseconds answer{3000};   ///< for a login or a look
    std::chrono::milliseconds again{2000};    ///< first pause before a device that is offline is tried again
    std::chrono::milliseconds longest{8000};  ///< the pauses double up to this
    std::chrono::milliseconds refused{60000}; ///< pause after a wrong password, so that nobody is locked out
    std::size_t threads = 64;                 ///< at most; there are fewer for few devices
};

/// Logs devices in, watches those that are logged in and comes back to those that are not. The session of a
/// device is there at once for anybody who asks; nobody waits for a login here.
///
/// Threads: the calls are for any thread and never wait for a device. Remove waits for an event that is being
/// told, and the destructor for the logouts, a second or so. Events come one at a time, on a thread of this
/// class.
class CDeviceSessions : Base::CNoncopyable
{
public:
    /// Told of every change of a status. Must return soon; may call everything here but the destructor.
    using OnStatus = std::function<void(const DeviceStatus& status)>;

    /// Told of every login handle that has ended, on any thread of this class. Must call nothing here.
    using OnSessionEnd = std::function<void(std::int32_t login)>;

    explicit CDeviceSessions(OnStatus onStatus, SessionLimits limits = {}, OnSessionEnd onSessionEnd = {});
    /// Logs everybody out, and ends all calls of the SDK that are under way where nobody else has started it.
    /// No event comes afterwards.
    ~CDeviceSessions();

    /// Adds a device, or changes how one is reached: then its old session ends. Unchanged: nothing happens.
    void Set(const DeviceAddress& address);
    /// Forgets a device and logs it out. No event of it comes afterwards.
    void Remove(const std::string& id);
    /// Tries an offline device again now.
    void TryNow(const std::string& id);

    /// The login handle at this moment; -1 when there is none, -999 when the device is not known.
    std::int32_t Session(const std::string& id) const;
    /// False when it is not known.
    [[nodiscard]] bool Status(const std::string& id, DeviceStatus& status) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace devices
