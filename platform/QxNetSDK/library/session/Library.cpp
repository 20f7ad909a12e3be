#include "QxNetSDK/library/session/Library.h"

#include <libxml/parser.h>
#include <limits>
#include <openssl/ssl.h>
#include <thread>

namespace sdk {

namespace {

constexpr std::size_t kMostSessions = 4096;
constexpr std::size_t kMostFarewells = 16;
constexpr std::chrono::milliseconds kLogoutTime{1000};

/// Tells the devices of many sessions side by side, all within the time of one.
void LogOutAll(const std::vector<std::shared_ptr<CSession>>& sessions)
{
    const Deadline deadline = Clock::now() + kLogoutTime;
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t i = next++; i < sessions.size(); i = next++)
            sessions[i]->LogOut(deadline);
    };
    std::vector<std::thread> threads;
    try {
        while (threads.size() + 1 < std::min(kMostFarewells, sessions.size()))
            threads.emplace_back(work);
    } catch (const std::system_error&) {
        // With fewer threads fewer devices hear of it in time; the others end the session by themselves.
    }
    work();
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace

CLibrary& CLibrary::Instance()
{
    static CLibrary& library = *new CLibrary;
    return library;
}

void CLibrary::Init()
{
    static std::once_flag once;
    std::call_once(once, [] {
        system::StartSockets();
        // They clean up when the process ends, in the opposite order: so after us.
        (void)OPENSSL_init_ssl(0, nullptr);
        xmlInitParser();
        system::AtExit([] { Instance().EndWithProcess(); });
    });
    const std::lock_guard lock(m_mutex);
    ++m_inits;
}

Failure CLibrary::Cleanup()
{
    std::vector<SessionPointer> ending;
    {
        const std::lock_guard lock(m_mutex);
        if (m_inits == 0)
            return {QXNET_ERROR_NOT_INITIALISED};
        if (--m_inits > 0)
            return {};
        ending = TakeAll();
    }
    m_voice.End();
    for (const SessionPointer& session : ending)
        session->Close();
    LogOutAll(ending);
    return {};
}

std::vector<CLibrary::SessionPointer> CLibrary::TakeAll()
{
    std::vector<SessionPointer> all = std::move(m_beginning);
    m_beginning.clear();
    for (auto& [handle, session] : m_sessions)
        all.push_back(std::move(session));
    m_sessions.clear();
    return all;
}

void CLibrary::EndWithProcess()
{
    {
        const std::lock_guard lock(m_mutex);
        m_inits = 0;
        m_outlived = TakeAll();
    }
    for (const SessionPointer& session : m_outlived)
        session->Close();
    for (const SessionPointer& session : m_outlived)
        session->WaitForCalls();
}

Failure CLibrary::SetTrustFile(const char* path)
{
    if (!IsInitialised())
        return {QXNET_ERROR_NOT_INITIALISED};
    return m_trust.UseFile(path ? path : "");
}

bool CLibrary::IsInitialised()
{
    const std::lock_guard lock(m_mutex);
    return m_inits > 0;
}

Failure CLibrary::LogIn(LoginSettings settings, QxNetDeviceInfo* info, std::int32_t& handle)
{
    const auto session = std::make_shared<CSession>(std::move(settings), m_trust);
    if (const Failure failure = Begin(session))
        return failure;
    QxNetDeviceInfo told{};
    Failure failure = session->LogIn(told);
    if (failure)
        Forget(session);
    else
        failure = Admit(session, handle);
    if (!failure && info)
        *info = told;
    return failure;
}

Failure CLibrary::Begin(const SessionPointer& session)
{
    const std::lock_guard lock(m_mutex);
    if (m_inits == 0)
        return {QXNET_ERROR_NOT_INITIALISED};
    if (m_sessions.size() + m_beginning.size() >= kMostSessions ||
        m_nextHandle > std::numeric_limits<std::int32_t>::max())
        return {QXNET_ERROR_TOO_MANY_SESSIONS};
    m_beginning.push_back(session);
    return {};
}

Failure CLibrary::Admit(const SessionPointer& session, std::int32_t& handle)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find(m_beginning.begin(), m_beginning.end(), session);
    // A clean-up took it over, and tells the device.
    if (found == m_beginning.end())
        return {QXNET_ERROR_CLOSED};
    m_beginning.erase(found);
    handle = static_cast<std::int32_t>(m_nextHandle++);
    m_sessions.emplace(handle, session);
    return {};
}

void CLibrary::Forget(const SessionPointer& session)
{
    const std::lock_guard lock(m_mutex);
    m_beginning.erase(std::remove(m_beginning.begin(), m_beginning.end(), session), m_beginning.end());
}

Failure CLibrary::LogOut(std::int32_t handle)
{
    SessionPointer session;
    {
        const std::lock_guard lock(m_mutex);
        if (const Failure failure = FindLocked(handle, session))
            return failure;
        m_sessions.erase(handle);
    }
    m_voice.RemoveAllOf(handle);
    session->Close();
    session->LogOut(Clock::now() + kLogoutTime);
    return {};
}

Failure CLibrary::Find(std::int32_t handle, std::shared_ptr<CSession>& session)
{
    const std::lock_guard lock(m_mutex);
    return FindLocked(handle, session);
}

Failure CLibrary::FindLocked(std::int32_t handle, SessionPointer& session) const
{
    if (m_inits == 0)
        return {QXNET_ERROR_NOT_INITIALISED};
    const auto found = m_sessions.find(handle);
    if (found == m_sessions.end())
        return {QXNET_ERROR_HANDLE};
    session = found->second;
    return {};
}

Failure CallDevice(std::int32_t login, const Request& request, Answer& answer)
{
    std::shared_ptr<CSession> session;
    if (const Failure failure = CLibrary::Instance().Find(login, session))
        return failure;
    return session->Call(request, answer);
}

} // namespace sdk
