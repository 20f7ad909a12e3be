#pragma once

#include "QxNetSDK/Structures.h"
#include "simulator/device/Parameters.h"
#include "simulator/protocol/Sessions.h"

namespace simulator {

/// A right of a user, as a member of the structure.
using UserRight = std::uint8_t QxNetUser::*;

/// Who may log in to a device, and what they may do there. Any thread.
class CUsers : public IUserSecrets
{
public:
    /// The user of the settings is the first one, with all rights, until the list is changed.
    CUsers(const DoorSettings& door, CParameters& parameters);

    QxNetUserList List() const;

    /// Whether the list can take the place of this one: names are there once, and one administrator at least
    /// may log in and has a password.
    bool Takes(const QxNetUserList& list) const;
    /// Whoever is not in the list has no password any more. False when it can't be kept.
    [[nodiscard]] bool Set(const QxNetUserList& list);

    /// False when the password can't be kept or there is no such user.
    [[nodiscard]] bool SetPassword(const std::string& user, const std::string& password);
    bool Knows(const std::string& user) const { return Find(user).has_value(); }
    /// Whether it is a user who may log in.
    bool LetsIn(const std::string& user) const;

    /// right: null for what only administrators may.
    bool May(const std::string& user, UserRight right) const;

    std::string SecretOf(const std::string& user) const override;

private:
    /// By name; an empty one lets nobody in.
    using Secrets = std::map<std::string, std::string>;
    Secrets ReadSecrets() const;
    [[nodiscard]] bool KeepSecrets(const Secrets& secrets);
    std::optional<QxNetUser> Find(const std::string& user) const;

    const DoorSettings& m_door;
    CParameters& m_parameters;
    std::mutex m_changing;
};

} // namespace simulator
