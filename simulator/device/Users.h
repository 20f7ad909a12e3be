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

    /// Whether the list leaves an administrator who may log in.
    static bool HasAdministrator(const QxNetUserList& list);

    /// False when the password can't be kept or there is no such user.
    [[nodiscard]] bool SetPassword(const std::string& user, const std::string& password);
    bool Knows(const std::string& user) const { return Find(user).has_value(); }

    /// right: null for what only administrators may.
    bool May(const std::string& user, UserRight right) const;

    std::string SecretOf(const std::string& user) const override;

private:
    std::optional<QxNetUser> Find(const std::string& user) const;

    const DoorSettings& m_door;
    CParameters& m_parameters;
    std::mutex m_settingPassword;
};

} // namespace simulator
