#pragma once

#include "Base/Noncopyable.h"

#include <functional>
#include <memory>
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
/// passwords (scrypt). At the first start there are "admin" (everything), "operator" (live view, playback,
/// local files, broadcast, alarm outputs, wiper) and "guest" (live view only), each with an empty password;
/// "admin" is at work. Any thread.
class CUsers : Base::CNoncopyable
{
public:
    /// path: of the file; its folder exists. onChanged is called after each change, without a lock held.
    CUsers(std::string path, std::function<void()> onChanged);
    ~CUsers();

    /// Why the file of an earlier start was set aside, in one sentence; empty when it was not.
    const std::string& LoadProblem() const;

    std::vector<User> All() const;
    User Current() const;

    /// Makes the user the current one, which changes nothing when it is that already; false for an unknown
    /// name or a wrong password, which take the same time (about a tenth of a second). beforeChange is called
    /// before another user takes over, with who leaves.
    [[nodiscard]] bool Login(const std::string& name, const std::string& password,
                             const std::function<void(const User& leaving)>& beforeChange = {});

    /// Adds the user (without a password: with an empty one) or replaces permissions and, when given, the
    /// password. False with the reason: a bad name, an unknown permission, or the last user that may manage
    /// users would lose that.
    [[nodiscard]] bool Put(const User& user, const std::optional<std::string>& password, std::string& error);
    /// False with the reason: there is no such user, it is at work, or it is the last that may manage users.
    [[nodiscard]] bool Remove(const std::string& name, std::string& error);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace framework
