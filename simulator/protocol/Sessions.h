#pragma once

#include "simulator/protocol/Digest.h"
#include "simulator/server/Http.h"

#include <mutex>
#include <unordered_map>

namespace simulator {

/// How a device lets users in.
struct DoorSettings
{
    std::string user = "admin";
    std::string password = "vantor-device";
    std::size_t sessions = 1024;          ///< at once
    std::chrono::seconds sessionTime{60}; ///< without a request
    std::chrono::seconds lockTime{30};    ///< after five wrong passwords in a row
};

/// Who may log in.
class IUserSecrets
{
public:
    virtual ~IUserSecrets() = default;
    /// DigestSecret of the user's password; empty for somebody who may not log in.
    virtual std::string SecretOf(const std::string& user) const = 0;
};

/// The sessions of one device: challenges, logins, lock-out, ends. Any thread.
class CSessions
{
public:
    using Clock = std::chrono::steady_clock;

    CSessions(const DoorSettings& settings, const IUserSecrets& users);

    /// Serves a request for a session. The answer has no body; status 200 means that one was made.
    HttpAnswer Open(const HttpRequest& request, Clock::time_point now = Clock::now());

    /// The user of a session that is alive; it is from now on for another while.
    std::optional<std::string> Touch(const std::string& token, Clock::time_point now = Clock::now());
    void End(const std::string& token);
    void EndAll();

private:
    struct Use
    {
        Clock::time_point used; ///< the last time
    };
    struct Session : Use
    {
        std::string user;
    };

    /// Removes what was not used since then.
    template<class Uses>
    static void RemoveBefore(Uses& uses, Clock::time_point oldest);

    HttpAnswer Challenge(bool isStale, Clock::time_point now) const;
    std::string MakeNonce(Clock::time_point now) const;
    bool TakeNonce(const std::string& nonce, Clock::time_point now);
    void CountWrong(Clock::time_point now);
    HttpAnswer Begin(const std::string& user, Clock::time_point now);

    const DoorSettings m_settings;
    const IUserSecrets& m_users;
    const std::string m_nonceKey;
    std::mutex m_mutex;
    std::unordered_map<std::string, Session> m_sessions;
    std::unordered_map<std::string, Use> m_usedNonces;
    unsigned m_wrongInARow = 0;
    std::optional<Clock::time_point> m_lockedUntil;
};

} // namespace simulator
