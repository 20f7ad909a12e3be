#pragma once

#include "Base/Noncopyable.h"
#include "VideoInterfaces/ILocalDataManager.h"
#include "UiDataController/IResourceTreeManager.h"

#include <mutex>

namespace PreviewLogical {

/// What the live-view windows work with, between start-up and shut-down of the application. Any thread.
class CPreviewLogical : Base::CNoncopyable
{
public:
    static CPreviewLogical& Instance();

    /// Starts with what the windows need; not owned, must stay until UnInit. nullptr when the application
    /// does not serve it. False, with one log line and no effect, when it was started already with others.
    bool init(vantor::IResourceTreeManager* resourceTree, vantor::ILocalDataManager* localData);
    bool isInit() const;

    /// nullptr before init and after UnInit.
    vantor::IResourceTreeManager* ResourceTreeManager() const;
    vantor::ILocalDataManager* LocalDataManager() const;

    /// Lets go of what init was given. May be called again.
    void UnInit();

private:
    mutable std::mutex m_mutex;
    bool m_init = false;
    vantor::IResourceTreeManager* m_resourceTree = nullptr;
    vantor::ILocalDataManager* m_localData = nullptr;
};

} // namespace PreviewLogical
