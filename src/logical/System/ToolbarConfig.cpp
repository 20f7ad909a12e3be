#include "logical/System/ToolbarConfig.h"

#include <utility>

namespace video {
namespace {

constexpr std::int32_t kLayoutChanged = 0;

} // namespace

CToolbarConfig::CToolbarConfig(CBaseDBConn& connection, Base::CMessageLoop& notifications,
                               std::function<void()> announce)
    : m_session(connection), m_announce(std::move(announce)), m_observers(notifications)
{}

void CToolbarConfig::Load()
{
    if (m_session.Query(m_working))
        m_saved = m_working;
    else
        m_working = m_saved;
}

void CToolbarConfig::Apply()
{
    if (m_working == m_saved)
        return;
    m_observers.Post({kLayoutChanged});
    if (m_session.Begin()) {
        m_session.Save(m_working);
        m_session.Commit();
    }
    m_saved = m_working;
    m_announce();
}

void CToolbarConfig::RestoreDefaults()
{
    m_working = vantor::ToolbarStruct();
    if (m_working != m_saved)
        m_observers.Post({kLayoutChanged});
    m_saved = m_working;
    m_session.Clear();
    m_announce();
}

} // namespace video
