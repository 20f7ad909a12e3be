#include "QxNetSDK/library/http/Digest.h"
#include "QxNetSDK/library/session/DeviceChecks.h"
#include "QxNetSDK/library/session/Session.h"

#include <cstring>

namespace sdk {

namespace {

Request LoginRequest(bool isAuthorized)
{
    // Without credentials the device does nothing but ask for them.
    return {
        "POST", kSessionTarget, {}, {200, sizeof(QxNetDeviceInfo), sizeof(QxNetDeviceInfo)}, !isAuthorized};
}

Failure ReadLogin(const Answer& answer, QxNetDeviceInfo& info, std::string& session)
{
    if (answer.session.empty() || answer.session == "ended")
        return {QXNET_ERROR_UNREADABLE};
    std::memcpy(&info, answer.body.data(), sizeof info);
    session = answer.session;
    return CheckDeviceInfo(info);
}

} // namespace

/// A login in the middle of a session, shared by all calls that found the old one ended.
struct CSession::Renewal
{
    bool isDone = false;
    Failure failure;
};

Failure CSession::Authenticate(Deadline deadline, QxNetDeviceInfo& info, std::string& session)
{
    // Others wait for how it ends, so that it must end.
    try {
        return Converse(deadline, info, session);
    } catch (const std::exception&) {
        return {QXNET_ERROR_MEMORY};
    }
}

Failure CSession::Converse(Deadline deadline, QxNetDeviceInfo& info, std::string& session)
{
    RequestContext context{m_host, {}, {}};
    Answer answer;
    DigestChallenge challenge;
    // Once without credentials, once with them, and once more when the nonce was too old.
    for (int attempt = 0; attempt < 3; ++attempt) {
        const Request request = LoginRequest(attempt > 0);
        if (const Failure failure = Send(request, context, deadline, m_interrupt, answer))
            return failure;
        if (answer.status != 401)
            break;
        if (!ReadChallenge(answer.challenge, challenge))
            return {QXNET_ERROR_NOT_A_DEVICE, answer.status};
        if (attempt > 0 && !challenge.isStale)
            return {QXNET_ERROR_PASSWORD, answer.status};
        context.authorization =
            DigestAuthorization(challenge, {m_settings.user, m_settings.password, request.method,
                                            request.target, NewClientNonce()});
    }
    if (answer.status == 401)
        return {QXNET_ERROR_PASSWORD, answer.status};
    if (answer.status >= 400)
        return answer.refusal;
    // Who lets everybody in has not proved to know anything of sessions.
    if (context.authorization.empty())
        return {QXNET_ERROR_NOT_A_DEVICE, answer.status};
    if (const Failure failure = ReadLogin(answer, info, session))
        return failure;
    return m_pool.Trust();
}

Failure CSession::Renew(unsigned staleLogin, Deadline deadline)
{
    std::unique_lock lock(m_mutex);
    if (m_ticket.login != staleLogin)
        return {};
    // Each call would be one more wrong password, until the device locks the user out.
    if (m_refusal)
        return m_refusal;
    if (const std::shared_ptr<Renewal> renewal = m_renewal) {
        const auto isOver = [&] { return renewal->isDone || m_isClosed; };
        if (!m_changed.wait_until(lock, deadline, isOver))
            return {QXNET_ERROR_ANSWER_TIMEOUT};
        return renewal->isDone ? renewal->failure : Failure{QXNET_ERROR_CLOSED};
    }
    const auto renewal = std::make_shared<Renewal>();
    m_renewal = renewal;
    lock.unlock();
    QxNetDeviceInfo ignored{};
    std::string session;
    const Failure failure = Authenticate(deadline, ignored, session);
    lock.lock();
    if (!failure)
        m_ticket = {std::move(session), staleLogin + 1};
    if (failure.code == QXNET_ERROR_PASSWORD)
        m_refusal = failure;
    renewal->failure = failure;
    renewal->isDone = true;
    m_renewal.reset();
    m_changed.notify_all();
    return failure;
}

} // namespace sdk
