#include "simulator/device/Users.h"

#include "simulator/device/Refused.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace simulator {

namespace {

constexpr ParameterKey kListKey{QXNET_GET_USERS, 0};
/// Lines of a name, a tab and the secret of its password.
constexpr ParameterKey kSecretsKey{QXNET_SET_USER_PASSWORD, 0};

bool IsAdministrator(const QxNetUser& user)
{
    return user.enabled && user.level == QXNET_USER_ADMINISTRATOR;
}

} // namespace

CUsers::CUsers(const DoorSettings& door, CParameters& parameters) : m_door(door), m_parameters(parameters) {}

QxNetUserList CUsers::List() const
{
    const Octets kept = m_parameters.Find(kListKey);
    if (kept && kept->size() == sizeof(QxNetUserList))
        return StructureOf<QxNetUserList>(*kept);
    QxNetUserList list{};
    list.size = sizeof list;
    QxNetUser& first = list.users[0];
    std::memcpy(first.name, m_door.user.data(), std::min(m_door.user.size(), sizeof first.name - 1));
    first.level = QXNET_USER_ADMINISTRATOR;
    for (UserRight right :
         {&QxNetUser::enabled, &QxNetUser::live, &QxNetUser::playback, &QxNetUser::movement,
          &QxNetUser::voice, &QxNetUser::alarmOutputs, &QxNetUser::configuration, &QxNetUser::maintenance})
        first.*right = 1;
    return list;
}

/// The user of the settings has their password unless the device keeps another, or none.
CUsers::Secrets CUsers::ReadSecrets() const
{
    Secrets secrets;
    const Octets kept = m_parameters.Find(kSecretsKey);
    std::istringstream lines(kept ? *kept : std::string());
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = std::min(line.rfind('\t'), line.size());
        secrets[line.substr(0, tab)] = line.substr(std::min(tab + 1, line.size()));
    }
    secrets.emplace(m_door.user, DigestSecret(m_door.user, m_door.password));
    return secrets;
}

bool CUsers::KeepSecrets(const Secrets& secrets)
{
    const std::string ofSettings = DigestSecret(m_door.user, m_door.password);
    std::string lines;
    for (const auto& [name, secret] : secrets)
        if (secret != (name == m_door.user ? ofSettings : ""))
            lines.append(name).append("\t").append(secret).append("\n");
    return m_parameters.Set(kSecretsKey, std::make_shared<const std::string>(std::move(lines)));
}

bool CUsers::Takes(const QxNetUserList& list) const
{
    Secrets secrets = ReadSecrets();
    std::set<std::string> names;
    bool hasAdministrator = false;
    for (const QxNetUser& user : list.users) {
        const std::string name = user.name;
        if (name.find_first_of("\t\n") != std::string::npos || (!name.empty() && !names.insert(name).second))
            return false;
        hasAdministrator |= IsAdministrator(user) && !secrets[name].empty();
    }
    return hasAdministrator;
}

bool CUsers::Set(const QxNetUserList& list)
{
    std::lock_guard<std::mutex> lock(m_changing);
    if (!m_parameters.Set(kListKey, OctetsOf(list)))
        return false;
    const Secrets before = ReadSecrets();
    Secrets secrets = before;
    for (auto& [name, secret] : secrets)
        if (!Knows(name))
            secret.clear();
    return secrets == before || KeepSecrets(secrets);
}

std::optional<QxNetUser> CUsers::Find(const std::string& name) const
{
    const QxNetUserList list = List();
    const auto user = std::find_if(std::begin(list.users), std::end(list.users),
                                   [&](const QxNetUser& entry) { return name == entry.name; });
    return name.empty() || user == std::end(list.users) ? std::nullopt : std::optional<QxNetUser>(*user);
}

bool CUsers::SetPassword(const std::string& user, const std::string& password)
{
    std::lock_guard<std::mutex> lock(m_changing);
    if (!Knows(user))
        return false;
    Secrets secrets = ReadSecrets();
    secrets[user] = DigestSecret(user, password);
    return KeepSecrets(secrets);
}

bool CUsers::LetsIn(const std::string& name) const
{
    const auto user = Find(name);
    return user && user->enabled;
}

bool CUsers::May(const std::string& name, UserRight right) const
{
    const auto user = Find(name);
    return user && (IsAdministrator(*user) || (right && (*user).*right));
}

std::string CUsers::SecretOf(const std::string& name) const
{
    const Secrets secrets = ReadSecrets();
    const auto secret = secrets.find(name);
    return LetsIn(name) && secret != secrets.end() ? secret->second : std::string();
}

} // namespace simulator
