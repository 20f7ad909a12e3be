#pragma once

#include "Base/Noncopyable.h"
#include "logical/Local/LocalDataManagerDelegate.h"
#include "logical/System/SystemConfig.h"
#include "logical/System/ToolbarConfig.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace video {

/// The component's stores as a whole: made and loaded at start-up, there until the process ends. Any thread.
///
/// Whoever asks for one before Init is done waits for it, up to a limit; std::runtime_error where there is
/// none, as after a start that failed.
class CVideoSystemManager : Base::CNoncopyable
{
public:
    /// What the stores work with; it lives as long as the process.
    struct Parts
    {
        CBaseDBConn& connection;
        Base::CMessageLoop& notifications; ///< calls the observers
        vantor::SaveFolders defaults;      ///< until the user chooses others
        std::string foldersFile;           ///< keeps the chosen ones; in the local code page
        std::function<void()> announce;    ///< tells the framework that settings changed
    };

    static CVideoSystemManager& Instance();

    explicit CVideoSystemManager(std::chrono::milliseconds waitLimit = std::chrono::seconds(30));
    ~CVideoSystemManager();

    /// Start-up on a worker thread, after the databases were checked.
    void Init(const Parts& parts);

    /// Nobody waits any more. What was made stays, for those who still hold it. May be called again.
    void UnInit();

    vantor::ILocalFile& LocalFile();
    vantor::ILocalDataPath& LocalDataPath();
    CSystemConfig& SystemConfig();
    CToolbarConfig& ToolbarConfig();

    /// For the logical libraries. This function does not wait; what it gives does.
    vantor::ILocalDataManager& LocalDataManager() { return m_delegate; }

private:
    struct Stores;

    Stores& Wait();

    const std::chrono::milliseconds m_waitLimit;
    std::mutex m_mutex; ///< of what follows
    std::condition_variable m_done;
    bool m_ended = false;
    std::unique_ptr<Stores> m_stores;

    CLocalDataManagerDelegate m_delegate;
};

} // namespace video
