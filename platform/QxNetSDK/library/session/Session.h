#pragma once

#include "QxNetSDK/QxNetSDK.h"
#include "QxNetSDK/library/http/Limits.h"
#include "QxNetSDK/library/session/ConnectionPool.h"

namespace sdk {

/// How to log in, checked.
struct LoginSettings
{
    DeviceEndpoint device;
    std::string user;
    std::string password;
    std::chrono::milliseconds connectTimeout{3000};
    std::chrono::milliseconds exchangeTimeout{5000};
};

/// A session with a device. For any thread.
class CSession
{
public:
    CSession(LoginSettings settings, CTrustStore& trust);
    ~CSession();
    CSession(const CSession&) = delete;
    CSession& operator=(const CSession&) = delete;

    /// The first login.
    Failure LogIn(QxNetDeviceInfo& info);

    /// One request and its answer, which is the expected one: refusals are failures. Takes at most the
    /// connect timeout and the exchange timeout together. When the device has ended the session, logs in once
    /// more and repeats the request; no more when the password was refused then. CLOSED when the session is
    /// ended meanwhile, HANDLE when it was before.
    Failure Call(const Request& request, Answer& answer);

    /// A request whose body is sent while it is made; see Upload.h.
    class CUpload;

    /// Makes calls under way fail, and all to come.
    void Close();
    /// After Close: waits until no call is under way any more, which is soon.
    void WaitForCalls();
    /// After Close: waits for the calls, and tells the device until the deadline.
    void LogOut(Deadline deadline);

private:
    class CUse;

    /// The device's name for the session. Each login has another number.
    struct Ticket
    {
        std::string session;
        unsigned login = 0;
    };
    struct Renewal;

    Deadline CallDeadline() const;
    Ticket CurrentTicket();
    Failure CallWithTicket(const Request& request, Deadline deadline, Answer& answer);
    Failure Send(const Request& request, const RequestContext& context, Deadline deadline,
                 CInterrupt& interrupt, Answer& answer);
    Failure SendOnce(const Request& request, const RequestContext& context, bool mustBeFresh,
                     Deadline deadline, CInterrupt& interrupt, Answer& answer, bool& mayRepeat);
    Failure Authenticate(Deadline deadline, QxNetDeviceInfo& info, std::string& session);
    Failure Converse(Deadline deadline, QxNetDeviceInfo& info, std::string& session);
    Failure Renew(unsigned staleLogin, Deadline deadline);
    Failure Explained(Failure failure) const;

    const LoginSettings m_settings;
    const std::string m_host;
    CConnectionPool m_pool;
    CInterrupt m_interrupt;
    const CInterrupt::CGuard m_poolGuard{m_interrupt, m_pool};

    std::mutex m_mutex;
    std::condition_variable m_changed;
    Ticket m_ticket;
    std::shared_ptr<Renewal> m_renewal; ///< under way
    Failure m_refusal;                  ///< of the password, when logging in again
    unsigned m_uses = 0;
    bool m_isClosed = false;
};

} // namespace sdk
