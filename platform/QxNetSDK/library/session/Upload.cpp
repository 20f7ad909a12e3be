#include "QxNetSDK/library/session/Upload.h"

#include <cstdio>

namespace sdk {

namespace {

/// A device refuses within this time; see docs/device-protocol.md.
constexpr std::chrono::milliseconds kRefusalTime{300};

/// What the system may keep of a slow connection, so that nobody hears what was said long ago.
constexpr int kMostUnsentBytes = 16 * 1024;

std::string Chunk(const std::string& octets)
{
    char length[16];
    const int digits = std::snprintf(length, sizeof length, "%zx\r\n", octets.size());
    return std::string(length, static_cast<std::size_t>(digits)) + octets + "\r\n";
}

} // namespace

CSession::CUpload::CUpload(std::shared_ptr<CSession> session) : m_session(std::move(session)) {}

Failure CSession::CUpload::Begin(std::shared_ptr<CSession> session, const std::string& target,
                                 std::unique_ptr<CUpload>& upload)
{
    auto begun = std::make_unique<CUpload>(std::move(session));
    if (!begun->m_use.IsGranted())
        return {QXNET_ERROR_HANDLE};
    if (const Failure failure = begun->Open(target))
        return begun->m_session->Explained(failure);
    upload = std::move(begun);
    return {};
}

Failure CSession::CUpload::Open(const std::string& target)
{
    const Request request{"POST", target, {}, {204, 0, 0}, false, true};
    const Deadline deadline = m_session->CallDeadline();
    for (bool isRenewed = false;; isRenewed = true) {
        const Ticket ticket = m_session->CurrentTicket();
        bool isTaken = false;
        if (const Failure failure = Offer(request, ticket, deadline, isTaken))
            return failure;
        if (isTaken)
            return {};
        const Answer& answer = m_reader->Result();
        if (answer.status != 401 || isRenewed || answer.session != "ended")
            return OfAnswer();
        if (const Failure failure = m_session->Renew(ticket.login, deadline))
            return failure;
    }
}

Failure CSession::CUpload::Offer(const Request& request, const Ticket& ticket, Deadline deadline,
                                 bool& isTaken)
{
    m_guard.reset();
    m_lease = std::make_unique<CConnectionPool::CLease>(m_session->m_pool);
    m_reader = std::make_unique<CAnswerReader>(request.expected);
    if (const Failure failure = m_session->m_pool.TakeExtra(*m_lease, deadline, m_session->m_interrupt))
        return failure;
    CConnection& connection = m_lease->Connection();
    connection.Socket().LimitUnsent(kMostUnsentBytes);
    m_guard = std::make_unique<CInterrupt::CGuard>(m_session->m_interrupt, connection.Socket());
    bool isSent = false;
    const std::string head = RequestHead(request, {m_session->m_host, ticket.session, {}});
    if (const Failure failure = connection.Send(head, *m_reader, deadline, isSent))
        return failure;
    const Failure failure = connection.Receive(*m_reader, Clock::now() + kRefusalTime);
    isTaken = isSent && failure.code == QXNET_ERROR_ANSWER_TIMEOUT && !m_reader->HasBegun();
    if (isTaken)
        return m_session->m_interrupt.IsSet() ? Failure{QXNET_ERROR_CLOSED} : Failure{};
    return failure.code == QXNET_ERROR_ANSWER_TIMEOUT ? connection.Receive(*m_reader, deadline) : failure;
}

Failure CSession::CUpload::Send(const std::string& chunk)
{
    if (const Failure failure = Look())
        return failure;
    return SendBytes(Chunk(chunk), Clock::now() + m_session->m_settings.exchangeTimeout);
}

Failure CSession::CUpload::Look()
{
    if (const Failure failure = m_lease->Connection().Look(*m_reader))
        return failure;
    return m_reader->HasBegun() ? Failure{QXNET_ERROR_CONNECTION_LOST} : Failure{};
}

Failure CSession::CUpload::SendBytes(const std::string& bytes, Deadline deadline)
{
    bool isSent = false;
    if (const Failure failure = m_lease->Connection().Send(bytes, *m_reader, deadline, isSent))
        return failure;
    return isSent ? Failure{} : Failure{QXNET_ERROR_CONNECTION_LOST};
}

Failure CSession::CUpload::Finish(Deadline deadline)
{
    if (const Failure failure = SendBytes("0\r\n\r\n", deadline))
        return failure;
    if (const Failure failure = m_lease->Connection().Receive(*m_reader, deadline))
        return failure;
    return m_reader->Result().status >= 400 ? OfAnswer() : Failure{};
}

Failure CSession::CUpload::OfAnswer() const
{
    const Answer& answer = m_reader->Result();
    if (answer.status == 401)
        return {QXNET_ERROR_PASSWORD, answer.status};
    return answer.status >= 400 ? answer.refusal : Failure{QXNET_ERROR_NOT_A_DEVICE, answer.status};
}

} // namespace sdk
