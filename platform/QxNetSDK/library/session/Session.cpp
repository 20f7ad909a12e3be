#include "QxNetSDK/library/session/SessionUse.h"

#include <openssl/crypto.h>

namespace sdk {

CSession::CSession(LoginSettings settings, CTrustStore& trust)
    : m_settings(std::move(settings)), m_host(HostText(m_settings.device.address, m_settings.device.port)),
      m_pool(m_settings.device, m_settings.connectTimeout, trust)
{}

CSession::~CSession()
{
    OPENSSL_cleanse(const_cast<char*>(m_settings.password.data()), m_settings.password.size());
}

Failure CSession::LogIn(QxNetDeviceInfo& info)
{
    const CUse use(*this);
    if (!use.IsGranted())
        return {QXNET_ERROR_CLOSED};
    std::string session;
    if (const Failure failure = Authenticate(CallDeadline(), info, session))
        return Explained(failure);
    const std::lock_guard lock(m_mutex);
    m_ticket = {session, 1};
    return {};
}

Failure CSession::Call(const Request& request, Answer& answer)
{
    const CUse use(*this);
    if (!use.IsGranted())
        return {QXNET_ERROR_HANDLE};
    return Explained(CallWithTicket(request, CallDeadline(), answer));
}

Failure CSession::CallWithTicket(const Request& request, Deadline deadline, Answer& answer)
{
    for (bool isRenewed = false;; isRenewed = true) {
        const Ticket ticket = CurrentTicket();
        if (const Failure failure =
                Send(request, {m_host, ticket.session, {}}, deadline, m_interrupt, answer))
            return failure;
        if (answer.status < 400)
            return {};
        if (answer.status != 401)
            return answer.refusal;
        if (answer.session != "ended")
            return {QXNET_ERROR_PASSWORD, answer.status};
        if (isRenewed)
            return {QXNET_ERROR_CONNECTION_LOST};
        if (const Failure failure = Renew(ticket.login, deadline))
            return failure;
    }
}

Failure CSession::Send(const Request& request, const RequestContext& context, Deadline deadline,
                       CInterrupt& interrupt, Answer& answer)
{
    bool mayRepeat = false;
    const Failure failure = SendOnce(request, context, false, deadline, interrupt, answer, mayRepeat);
    if (!failure || !mayRepeat || !request.isRead || interrupt.IsSet())
        return failure;
    return SendOnce(request, context, true, deadline, interrupt, answer, mayRepeat);
}

Failure CSession::SendOnce(const Request& request, const RequestContext& context, bool mustBeFresh,
                           Deadline deadline, CInterrupt& interrupt, Answer& answer, bool& mayRepeat)
{
    CConnectionPool::CLease lease(m_pool);
    if (const Failure failure = m_pool.Take(lease, mustBeFresh, deadline, interrupt))
        return failure;
    CAnswerReader reader(request.expected);
    const Deadline exchangeDeadline = std::min(deadline, Clock::now() + m_settings.exchangeTimeout);
    const Failure failure = lease.Connection().Exchange(RequestHead(request, context) + request.body, reader,
                                                        exchangeDeadline, interrupt);
    // A device may close an idle connection at any time, also just now.
    mayRepeat = failure.code == QXNET_ERROR_CONNECTION_LOST && !reader.HasBegun() && lease.IsUsed();
    if (failure)
        return failure;
    answer = std::move(reader.Result());
    if (answer.keepsAlive)
        lease.Keep();
    return {};
}

void CSession::Close()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isClosed = true;
    }
    m_interrupt.Set();
    const std::lock_guard lock(m_mutex);
    m_changed.notify_all();
}

void CSession::WaitForCalls()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_uses == 0; });
}

void CSession::LogOut(Deadline deadline)
{
    WaitForCalls();
    Ticket ticket;
    {
        const std::lock_guard lock(m_mutex);
        std::swap(ticket, m_ticket);
    }
    if (ticket.session.empty())
        return;
    try {
        const Request request{"DELETE", kSessionTarget, {}, {204, 0, 0}, true};
        Answer ignored;
        CInterrupt never;
        (void)Send(request, {m_host, ticket.session, {}}, deadline, never, ignored);
    } catch (const std::exception&) {
        // The device ends the session by itself.
    }
}

Deadline CSession::CallDeadline() const
{
    return Clock::now() + m_settings.connectTimeout + m_settings.exchangeTimeout;
}

CSession::Ticket CSession::CurrentTicket()
{
    const std::lock_guard lock(m_mutex);
    return m_ticket;
}

Failure CSession::Explained(Failure failure) const
{
    // Whatever a wait ended with after it was woken: what ended it is that.
    return failure && m_interrupt.IsSet() ? Failure{QXNET_ERROR_CLOSED} : failure;
}

} // namespace sdk
