#pragma once

#include "Base/Noncopyable.h"
#include "UiDataController/IGroupManager.h"
#include "VideoInterfaces/ILocalDataManager.h"

#include <mutex>

namespace PlaybackLogical {

/// What the playback windows work with, between start-up and shut-down of the application. Any thread.
class CPlaybackLogical : Base::CNoncopyable
{
public:
    static CPlaybackLogical& Instance();

    /// Starts with what the windows need; not owned, must stay until UnInit. nullptr when the application
    /// does not serve it. False, with one log line and no effect, when it was started already with others.
    bool init(vantor::IGroupManager* groups, vantor::ILocalDataManager* localData);
    bool isInit() const;

    /// nullptr before init and after UnInit.
    vantor::IGroupManager* GroupManager() const;
    vantor::ILocalDataManager* LocalDataManager() const;

    /// Lets go of what init was given. May be called again.
    void UnInit();

private:
    mutable std::mutex m_mutex;
    bool m_init = false;
    vantor::IGroupManager* m_groups = nullptr;
    vantor::ILocalDataManager* m_localData = nullptr;
};

} // namespace PlaybackLogical
