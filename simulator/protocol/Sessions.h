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

/// The sessions of one device: challenges, logins, lock-out, ends. Any thread.
class CSessions
{
public:
    using Clock = std::chrono::steady_clock;

    explicit CSessions(const DoorSettings& settings);

    /// Serves a request for a session. The answer has no body; status 200 means that one was made.
    HttpAnswer Open(const HttpRequest& request, Clock::time_point now = Clock::now());

    /// Whether the session is alive; it is from now on for another while.
    bool Touch(const std::string& token, Clock::time_point now = Clock::now());
    void End(const std::string& token);
    void EndAll();

private:
    HttpAnswer Challenge(bool isStale, Clock::time_point now) const;
    std::string MakeNonce(Clock::time_point now) const;
    bool TakeNonce(const std::string& nonce, Clock::time_point now);
    void CountWrong(Clock::time_point now);
    HttpAnswer Begin(Clock::time_point now);

    const DoorSettings m_settings;
    const CDigestSecret m_secret;
    const std::string m_nonceKey;
    std::mutex m_mutex;
    std::unordered_map<std::string, Clock::time_point> m_sessions;   ///< when each was last used
    std::unordered_map<std::string, Clock::time_point> m_usedNonces; ///< when each was used
    unsigned m_wrongInARow = 0;
    std::optional<Clock::time_point> m_lockedUntil;
};

} // namespace simulator
