#include "simulator/protocol/Sessions.h"

#include <algorithm>
#include <cstdlib>

namespace simulator {

namespace {

constexpr unsigned kWrongAllowed = 5;
constexpr std::chrono::seconds kNonceTime{60};
constexpr std::size_t kNoncesKept = 65536;

long long Milliseconds(CSessions::Clock::time_point time)
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
}

} // namespace

template<class Uses>
void CSessions::RemoveBefore(Uses& uses, Clock::time_point oldest)
{
    for (auto use = uses.begin(); use != uses.end();)
        use = use->second.used < oldest ? uses.erase(use) : std::next(use);
}

CSessions::CSessions(const DoorSettings& settings, const IUserSecrets& users)
    : m_settings(settings), m_users(users), m_nonceKey(RandomHex(32))
{}

/// A nonce tells its own age and maker, so that none has to be kept for those who never come back.
std::string CSessions::MakeNonce(Clock::time_point now) const
{
    const std::string text = std::to_string(Milliseconds(now)) + '-' + RandomHex(8);
    return text + '-' + Sha256Hex(m_nonceKey + text + m_nonceKey).substr(0, 32);
}

bool CSessions::TakeNonce(const std::string& nonce, Clock::time_point now)
{
    const std::size_t dash = nonce.rfind('-');
    if (dash == std::string::npos)
        return false;
    const std::string text = nonce.substr(0, dash);
    const std::string proof = Sha256Hex(m_nonceKey + text + m_nonceKey).substr(0, 32);
    const long long age = Milliseconds(now) - std::atoll(text.c_str());
    if (!EqualsSecretly(proof, nonce.substr(dash + 1)) || std::chrono::milliseconds(age) > kNonceTime)
        return false;
    if (m_usedNonces.size() >= kNoncesKept)
        RemoveBefore(m_usedNonces, now - kNonceTime);
    return m_usedNonces.size() < kNoncesKept && m_usedNonces.emplace(nonce, Use{now}).second;
}

HttpAnswer CSessions::Challenge(bool isStale, Clock::time_point now) const
{
    HttpAnswer answer;
    answer.status = 401;
    answer.headers = {{"WWW-Authenticate", std::string("Digest realm=\"") + kRealm +
                                               "\", qop=\"auth\", algorithm=SHA-256, nonce=\"" +
                                               MakeNonce(now) + '"' + (isStale ? ", stale=true" : "")}};
    return answer;
}

HttpAnswer CSessions::Open(const HttpRequest& request, Clock::time_point now)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_lockedUntil && now < *m_lockedUntil)
        return Refusal(423, 401);
    if (request.authorization.empty())
        return Challenge(false, now);
    const auto credentials = ParseDigestCredentials(request.authorization);
    const auto user = credentials.find("username");
    if (user == credentials.end() ||
        !ProvesSecret(credentials, m_users.SecretOf(user->second), request.method, request.path)) {
        CountWrong(now);
        return Challenge(false, now);
    }
    if (!TakeNonce(credentials.at("nonce"), now))
        return Challenge(true, now);
    m_wrongInARow = 0;
    return Begin(user->second, now);
}

void CSessions::CountWrong(Clock::time_point now)
{
    if (++m_wrongInARow < kWrongAllowed)
        return;
    m_wrongInARow = 0;
    m_lockedUntil = now + m_settings.lockTime;
}

HttpAnswer CSessions::Begin(const std::string& user, Clock::time_point now)
{
    if (m_sessions.size() >= m_settings.sessions)
        RemoveBefore(m_sessions, now - m_settings.sessionTime);
    if (m_sessions.size() >= m_settings.sessions)
        return Refusal(429, 403);
    const std::string token = RandomHex(16);
    m_sessions.emplace(token, Session{{now}, user});
    HttpAnswer answer;
    answer.headers = {{"Vantor-Session", token}};
    return answer;
}

std::optional<std::string> CSessions::Touch(const std::string& token, Clock::time_point now)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto session = m_sessions.find(token);
    if (session == m_sessions.end())
        return std::nullopt;
    if (now - session->second.used > m_settings.sessionTime) {
        m_sessions.erase(session);
        return std::nullopt;
    }
    session->second.used = now;
    return session->second.user;
}

void CSessions::End(const std::string& token)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_sessions.erase(token);
}

void CSessions::EndAll()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_sessions.clear();
}

} // namespace simulator
