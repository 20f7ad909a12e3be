#pragma once

#include "Base/Noncopyable.h"

#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

namespace UiDataController {

/// The login handles of the devices that are logged in, by the device's identifier. Any thread. It logs
/// nobody in or out: who adds a handle, logs out what remove returns.
class CDeviceUserIDManager : Base::CNoncopyable
{
public:
    static CDeviceUserIDManager& Instance();

    /// Starts with the folder for the device library's own logs (local code page), which is created when
    /// missing. False, with one log line, when there can be no such folder; handles are kept all the same.
    bool init(const std::string& logPath);
    std::string logPath() const;

    /// Keeps the handle of a device. False when the device has one already, the identifier is empty or the
    /// handle is negative, which stands for a failed login.
    [[nodiscard]] bool add(const std::string& deviceId, int userId);
    /// Nothing when the device is not logged in.
    std::optional<int> find(const std::string& deviceId) const;
    /// Forgets the device and returns its handle.
    std::optional<int> remove(const std::string& deviceId);
    std::size_t count() const;

    /// Forgets everything. May be called again.
    void UnInit();

private:
    mutable std::mutex m_mutex;
    std::string m_logPath;
    std::unordered_map<std::string, int> m_userIds;
};

} // namespace UiDataController
