#include "framework/core/Users.h"

#include "framework/core/PasswordHash.h"
#include "framework/core/Stored.h"
#include "framework/core/Texts.h"

#include <algorithm>

namespace framework {

namespace {

constexpr std::size_t kNameLimit = 32;
constexpr std::size_t kMostUsers = 100;

/// A user as the file has it.
struct Record
{
    std::string name;
    std::string passwordHash; ///< see PasswordHash.h
    std::vector<std::string> permissions;

    static constexpr auto Fields()
    {
        using T = Record;
        using protocol::Must;
        return std::make_tuple(Must("name", &T::name), Must("passwordHash", &T::passwordHash),
                               Must("permissions", &T::permissions));
    }
};

struct UserFile
{
    std::string current;
    std::vector<Record> users;

    static constexpr auto Fields()
    {
        using T = UserFile;
        return std::make_tuple(protocol::Must("current", &T::current), protocol::Must("users", &T::users));
    }
};

bool Contains(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

template<typename File>
auto Find(File& file, const std::string& name)
{
    return std::find_if(file.users.begin(), file.users.end(),
                        [&](const Record& record) { return record.name == name; });
}

bool HasManager(const UserFile& file)
{
    return std::any_of(file.users.begin(), file.users.end(),
                       [](const Record& record) { return Contains(record.permissions, permission::kUsers); });
}

std::string ProblemOf(const UserFile& file)
{
    if (Find(file, file.current) == file.users.end())
        return "the current user is missing";
    return HasManager(file) ? "" : "nobody may manage users";
}

// Everybody knows that these have no password, so one salt does for all.
UserFile FirstUsers()
{
    using namespace permission;
    const std::string noPassword = HashPassword({});
    UserFile file;
    file.current = "admin";
    file.users = {
        {"admin", noPassword, AllPermissions()},
        {"operator", noPassword, {kLiveView, kPlayback, kLocalFiles, kBroadcast, kAlarmOutput, kWiper}},
        {"guest", noPassword, {kLiveView}}};
    return file;
}

bool Refuse(std::string& error, const char* reason)
{
    error = reason;
    return false;
}

bool IsUserSound(const User& user, std::string& error)
{
    if (!IsName(user.name, kNameLimit))
        return Refuse(error, "The name must have 1 to 32 characters.");
    const auto known = [](const std::string& what) { return Contains(AllPermissions(), what); };
    if (!std::all_of(user.permissions.begin(), user.permissions.end(), known))
        return Refuse(error, "There is no such permission.");
    return true;
}

} // namespace

const std::vector<std::string>& AllPermissions()
{
    using namespace permission;
    static const std::vector<std::string> all{kLiveView, kPlayback,     kLocalFiles, kRecordSchedule,
                                              kStorage,  kDevices,      kBroadcast,  kAlarmOutput,
                                              kWiper,    kSystemConfig, kUsers};
    return all;
}

bool User::May(const std::string& what) const
{
    return Contains(permissions, what);
}

struct CUsers::State
{
    std::function<void()> onChanged;
    TStored<UserFile> stored;

    /// As TStored::Change; error, when work has left none, says that it could not be saved.
    template<typename Work>
    bool Change(Work work, std::string& error)
    {
        error.clear();
        if (!stored.Change(std::move(work))) {
            if (error.empty())
                error = "The users cannot be saved.";
            return false;
        }
        if (onChanged)
            onChanged();
        return true;
    }
};

CUsers::CUsers(std::string path, std::function<void()> onChanged)
    : m_state(new State{std::move(onChanged), {std::move(path), FirstUsers, ProblemOf}})
{
    if (m_state->stored.IsNew())
        (void)m_state->stored.Change([](UserFile&) { return true; });
}

CUsers::~CUsers() = default;

const std::string& CUsers::LoadProblem() const
{
    return m_state->stored.LoadProblem();
}

std::vector<User> CUsers::All() const
{
    return m_state->stored.With([](const UserFile& file) {
        std::vector<User> users;
        for (const Record& record : file.users)
            users.push_back({record.name, record.permissions});
        return users;
    });
}

User CUsers::Current() const
{
    return m_state->stored.With([](const UserFile& file) {
        const auto record = Find(file, file.current);
        return User{record->name, record->permissions};
    });
}

bool CUsers::Login(const std::string& name, const std::string& password,
                   const std::function<void(const User&)>& beforeChange)
{
    const std::string hash = m_state->stored.With([&](const UserFile& file) {
        const auto record = Find(file, name);
        return record == file.users.end() ? std::string() : record->passwordHash;
    });
    if (!PasswordMatches(password, hash))
        return false;
    if (Current().name == name)
        return true;
    if (beforeChange)
        beforeChange(Current());
    std::string error;
    const auto take = [&](UserFile& file) {
        if (Find(file, name) == file.users.end())
            return false;
        file.current = name;
        return true;
    };
    return m_state->Change(take, error);
}

bool CUsers::Put(const User& user, const std::optional<std::string>& password, std::string& error)
{
    if (!IsUserSound(user, error))
        return false;
    const std::string hash = password ? HashPassword(*password) : std::string();
    const auto put = [&](UserFile& file) {
        auto record = Find(file, user.name);
        if (record == file.users.end()) {
            if (file.users.size() >= kMostUsers)
                return Refuse(error, "There are too many users.");
            record = file.users.insert(file.users.end(), {user.name, password ? hash : HashPassword({}), {}});
        } else if (password) {
            record->passwordHash = hash;
        }
        record->permissions = user.permissions;
        return HasManager(file) || Refuse(error, "Somebody must be allowed to manage users.");
    };
    return m_state->Change(put, error);
}

bool CUsers::Remove(const std::string& name, std::string& error)
{
    const auto remove = [&](UserFile& file) {
        const auto record = Find(file, name);
        if (record == file.users.end())
            return Refuse(error, "There is no such user.");
        if (file.current == name)
            return Refuse(error, "The user is at work.");
        file.users.erase(record);
        return HasManager(file) || Refuse(error, "Somebody must be allowed to manage users.");
    };
    return m_state->Change(remove, error);
}

} // namespace framework
