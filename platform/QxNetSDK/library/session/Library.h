#pragma once

#include "QxNetSDK/library/voice/Voice.h"

#include <map>

namespace sdk {

/// All sessions of the process, and what they share. For any thread; there is one, which is never destroyed,
/// as threads of the program may still call when it ends: from then on nothing is initialised any more.
class CLibrary
{
public:
    static CLibrary& Instance();

    void Init();
    /// NOT_INITIALISED when there is nothing to clean up.
    Failure Cleanup();
    Failure SetTrustFile(const char* path);
    bool IsInitialised();

    /// Logs in and gives the handle. TOO_MANY_SESSIONS, CLOSED by a clean-up meanwhile, or why it failed.
    Failure LogIn(LoginSettings settings, QxNetDeviceInfo* info, std::int32_t& handle);
    Failure LogOut(std::int32_t handle);
    /// HANDLE when there is none.
    Failure Find(std::int32_t handle, std::shared_ptr<CSession>& session);

    CVoice& Voice() { return m_voice; }

private:
    using SessionPointer = std::shared_ptr<CSession>;

    Failure FindLocked(std::int32_t handle, SessionPointer& session) const;
    std::vector<SessionPointer> TakeAll();
    /// Ends the calls under way, before what they use is cleaned up. The devices hear nothing: they would
    /// hold the process up.
    void EndWithProcess();
    Failure Begin(const SessionPointer& session);
    Failure Admit(const SessionPointer& session, std::int32_t& handle);
    void Forget(const SessionPointer& session);

    CTrustStore m_trust;
    CVoice m_voice;
    std::mutex m_mutex;
    unsigned m_inits = 0;
    std::int64_t m_nextHandle = 0;
    std::vector<SessionPointer> m_beginning; ///< being logged in
    std::map<std::int32_t, SessionPointer> m_sessions;
    std::vector<SessionPointer> m_outlived; ///< at the end of the process; must not close TLS any more
};

/// One call of a session that is known by its handle; see CSession::Call.
Failure CallDevice(std::int32_t login, const Request& request, Answer& answer);

} // namespace sdk
