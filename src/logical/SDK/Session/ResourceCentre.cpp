#include "logical/SDK/Session/ResourceCentre.h"

#include "logical/SDK/Session/ResourceEdits.h"

#include <utility>

namespace video {

CResourceCentre::CResourceCentre(Base::CMessageLoop& notifications, const IResourceDirectory& directory,
                                 ISessionPool& sessions, FeedPauses pauses)
    : m_sessions(sessions), m_model(notifications, sessions), m_feed(directory, sessions, m_model, pauses)
{}

/// Without sessions the devices are shown all the same, as ones that nobody has connected to.
void CResourceCentre::Start()
{
    if (std::exchange(m_isStarted, true))
        return;
    (void)m_sessions.Start([this](const devices::DeviceStatus& status) { m_model.Apply({HeardOf(status)}); });
    m_feed.Start();
}

void CResourceCentre::Stop()
{
    m_feed.Stop();
    m_sessions.End();
}

void CResourceCentre::OnNotification(const protocol::WebSocketNotifyData& notification)
{
    m_feed.OnNotification(notification);
}

} // namespace video
