#pragma once

#include "logical/SDK/Session/ResourceFeed.h"

namespace video {

/// The component's devices as a whole: the logic model, what feeds it, and the sessions with the devices.
/// Start and Stop are for one thread, everything else for any.
class CResourceCentre : Base::CNoncopyable
{
public:
    /// What is given must outlive the centre.
    CResourceCentre(Base::CMessageLoop& notifications, const IResourceDirectory& directory,
                    ISessionPool& sessions, FeedPauses pauses = {});
    ~CResourceCentre() { Stop(); }

    /// Begins to read the devices and to log in to them, in the background. Calls after the first do nothing.
    void Start();
    /// Ends both. The model stays, without sessions. May be called again, also without a start.
    void Stop();

    void OnNotification(const protocol::WebSocketNotifyData& notification);

    UiDataController::CLogicModel& Model() { return m_model; }

private:
    ISessionPool& m_sessions;
    bool m_isStarted = false;
    UiDataController::CLogicModel m_model;
    CResourceFeed m_feed;
};

} // namespace video
