#include "simulator/device/Users.h"

#include "simulator/device/Refused.h"

#include <algorithm>
#include <sstream>

namespace simulator {

namespace {

constexpr ParameterKey kListKey{QXNET_GET_USERS, 0};
/// Lines of a name, a tab and the secret of its password.
constexpr ParameterKey kSecretsKey{QXNET_SET_USER_PASSWORD, 0};

std::map<std::string, std::string> ParseSecrets(const Octets& kept)
{
    std::map<std::string, std::string> secrets;
    std::istringstream lines(kept ? *kept : std::string());
    for (std::string line; std::getline(lines, line);) {
        const std::size_t tab = std::min(line.rfind('\t'), line.size());
        secrets[line.substr(0, tab)] = line.substr(std::min(tab + 1, line.size()));
    }
    return secrets;
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

bool CUsers::HasAdministrator(const QxNetUserList& list)
{
    return std::any_of(std::begin(list.users), std::end(list.users), [](const QxNetUser& user) {
        return user.name[0] != '\0' && user.enabled && user.level == QXNET_USER_ADMINISTRATOR;
    });
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
    if (!Knows(user) || user.find_first_of("\t\n") != std::string::npos)
        return false;
    std::lock_guard<std::mutex> lock(m_settingPassword);
    auto secrets = ParseSecrets(m_parameters.Find(kSecretsKey));
    secrets[user] = DigestSecret(user, password);
    std::string lines;
    for (const auto& [name, secret] : secrets)
        lines.append(name).append("\t").append(secret).append("\n");
    return m_parameters.Set(kSecretsKey, std::make_shared<const std::string>(std::move(lines)));
}

bool CUsers::May(const std::string& name, UserRight right) const
{
    const auto user = Find(name);
    return user && (user->level == QXNET_USER_ADMINISTRATOR || (right && (*user).*right));
}

std::string CUsers::SecretOf(const std::string& name) const
{
    const auto user = Find(name);
    if (!user || !user->enabled)
        return {};
    const auto secrets = ParseSecrets(m_parameters.Find(kSecretsKey));
    if (const auto secret = secrets.find(name); secret != secrets.end())
        return secret->second;
    return name == m_door.user ? DigestSecret(name, m_door.password) : std::string();
}

} // namespace simulator
