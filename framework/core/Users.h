#pragma once

#include "Base/Noncopyable.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace framework {

/// What a user may be allowed to do. The component's pages and the framework's own tabs each need one of
/// them.
namespace permission {
inline constexpr char kLiveView[] = "liveView";
inline constexpr char kPlayback[] = "playback";
inline constexpr char kLocalFiles[] = "localFiles";
inline constexpr char kRecordSchedule[] = "recordSchedule";
inline constexpr char kStorage[] = "storage";
inline constexpr char kDevices[] = "devices";
inline constexpr char kBroadcast[] = "broadcast";
inline constexpr char kAlarmOutput[] = "alarmOutput";
inline constexpr char kWiper[] = "wiper";
inline constexpr char kSystemConfig[] = "systemConfig";
inline constexpr char kUsers[] = "users";
} // namespace permission

/// All of them, in the order in which they are shown.
const std::vector<std::string>& AllPermissions();

struct User
{
    std::string name;                     ///< 1 to 32 characters, unique
    std::vector<std::string> permissions; ///< out of AllPermissions()

    bool May(const std::string& what) const;
};

/// The users of the client and who of them is at work. Kept on disk with salted, stretched hashes of the
/// passwords. At the first start there are "admin" (everything), "operator" (live view, playback, local
/// files, broadcast, alarm outputs, wiper) and "guest" (live view only), each with an empty password; "admin"
/// is at work. Any thread.
class CUsers : Base::CNoncopyable
{
public:
    /// path: of the file; its folder exists. onChanged is called after each change, without a lock held.
    CUsers(std::string path, std::function<void()> onChanged);

    std::vector<User> All() const;
    User Current() const;

    /// Makes another user the current one; false for an unknown name or a wrong password, which take the same
    /// time.
    [[nodiscard]] bool Login(const std::string& name, const std::string& password);

    /// Adds the user or replaces permissions and, when given, the password. False with the reason: a bad
    /// name, or the last user that may manage users would lose that.
    [[nodiscard]] bool Put(const User& user, const std::optional<std::string>& password, std::string& error);
    [[nodiscard]] bool Remove(const std::string& name, std::string& error);

private:
    struct Record;

    const std::string m_path;
    const std::function<void()> m_onChanged;
    mutable std::mutex m_mutex;
    std::vector<Record> m_records;
    std::string m_current;
};

} // namespace framework
