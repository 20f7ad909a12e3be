#pragma once

#include "QxNetSDK/library/session/Session.h"

namespace sdk {

/// A call under way, while it lives: none is granted when the session has been closed.
class CSession::CUse
{
public:
    explicit CUse(CSession& session) : m_session(session)
    {
        const std::lock_guard lock(session.m_mutex);
        m_isGranted = !session.m_isClosed;
        session.m_uses += m_isGranted ? 1 : 0;
    }
    ~CUse()
    {
        if (!m_isGranted)
            return;
        const std::lock_guard lock(m_session.m_mutex);
        if (--m_session.m_uses == 0)
            m_session.m_changed.notify_all();
    }
    CUse(const CUse&) = delete;
    CUse& operator=(const CUse&) = delete;

    bool IsGranted() const { return m_isGranted; }

private:
    CSession& m_session;
    bool m_isGranted = false;
};

} // namespace sdk
