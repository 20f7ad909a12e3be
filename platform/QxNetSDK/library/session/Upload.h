#pragma once

#include "QxNetSDK/library/session/SessionUse.h"

namespace sdk {

/// A request whose body is sent piece by piece while it is made, over a connection of its own. It is a call
/// under way of its session as long as it lives. One thread at a time.
class CSession::CUpload
{
public:
    /// Sends the head. A device that takes the body says nothing; one that refuses says so at once: its
    /// refusal is the failure.
    static Failure Begin(std::shared_ptr<CSession> session, const std::string& target,
                         std::unique_ptr<CUpload>& upload);

    explicit CUpload(std::shared_ptr<CSession> session);
    CUpload(const CUpload&) = delete;
    CUpload& operator=(const CUpload&) = delete;

    /// Sends a chunk; after a failure the upload is of no more use.
    Failure Send(const std::string& chunk);
    /// Whether the device still takes what is sent: it has neither closed the connection nor answered.
    Failure Look();
    /// Ends the body and waits for the answer.
    Failure Finish(Deadline deadline);

    /// Makes the others fail soon. From any thread.
    void Abort() { m_lease->Connection().Socket().Wake(); }

    /// Set when the session is ended.
    CInterrupt& Interrupt() { return m_session->m_interrupt; }

private:
    Failure Open(const std::string& target);
    Failure Offer(const Request& request, const Ticket& ticket, Deadline deadline, bool& isTaken);
    Failure SendBytes(const std::string& bytes, Deadline deadline);
    Failure OfAnswer() const;

    const std::shared_ptr<CSession> m_session;
    const CUse m_use{*m_session};
    std::unique_ptr<CAnswerReader> m_reader;
    std::unique_ptr<CConnectionPool::CLease> m_lease;
    std::unique_ptr<CInterrupt::CGuard> m_guard; ///< of the connection
};

} // namespace sdk
