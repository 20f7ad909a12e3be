#pragma once

#include "Base/Noncopyable.h"
#include "Protocol/JSONStruct/WebSocket/WebSocketCommonJSONStruct.h"
#include "UiDataController/Model/LogicModel.h"
#include "logical/SDK/Session/ResourceDirectory.h"
#include "logical/SDK/Session/SessionPool.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace video {

/// How long to wait before a question that failed is asked again; doubled each time up to the longest.
struct FeedPauses
{
    std::chrono::milliseconds first{1000};
    std::chrono::milliseconds longest{60000};
};

/// Keeps the logic model and the sessions as the framework has it: reads everything once, and then follows
/// the framework's notifications in their order. None that comes during the reading is lost. What cannot be
/// read is asked for again later.
///
/// All questions are asked on a thread of its own. OnNotification is for any thread and returns at once;
/// Start and Stop are for one thread.
class CResourceFeed : Base::CNoncopyable
{
public:
    /// Notifications that may wait, and their bytes; with more of them everything is read anew instead.
    static constexpr std::size_t kMostWaiting = 10000;
    static constexpr std::size_t kMostWaitingBytes = 8 * 1024 * 1024;

    /// What is given must outlive the feed.
    CResourceFeed(const IResourceDirectory& directory, ISessionPool& sessions,
                  UiDataController::CLogicModel& model, FeedPauses pauses = {});
    ~CResourceFeed() { Stop(); }

    void Start();
    /// Waits for a question that is under way. May be called again.
    void Stop();

    /// Takes a change of a device, channel or group; other types are ignored.
    void OnNotification(const protocol::WebSocketNotifyData& notification);

private:
    using Clock = std::chrono::steady_clock;
    using Notifications = std::vector<protocol::WebSocketNotifyData>;

    void Run();
    bool WaitForWork();
    bool IsDue() const { return m_againAt && Clock::now() >= *m_againAt; }
    bool IsStopped();
    void AskAgainLater();

    void ReadEverything();
    void TakeDevices(std::vector<protocol::DeviceResponseData> devices);
    void TakeGroups();
    void FollowNotifications();
    void AskForTheMissing();

    using Handler = void (CResourceFeed::*)(const protocol::WebSocketNotifyData&);
    /// Null for a type that the feed does not follow.
    static Handler HandlerOf(const std::string& type);

    Notifications TakeWaiting();
    void DeviceChanged(const protocol::WebSocketNotifyData& notification);
    void DeviceRemoved(const protocol::WebSocketNotifyData& notification);
    void ChannelChanged(const protocol::WebSocketNotifyData& notification);
    void GroupChanged(const protocol::WebSocketNotifyData& notification);
    void Removed(const protocol::WebSocketNotifyData& notification);

    void AskForDevice(const std::string& id);
    void AskForChannels(const std::string& deviceId);
    void TakeDevice(const protocol::DeviceResponseData& device);
    void ForgetDevice(const std::string& id);
    void Flush();

    const IResourceDirectory& m_directory;
    ISessionPool& m_sessions;
    UiDataController::CLogicModel& m_model;
    const FeedPauses m_pauses;

    std::mutex m_mutex; ///< of what follows, up to the thread
    std::condition_variable m_wake;
    Notifications m_waiting;
    std::size_t m_waitingBytes = 0;
    bool m_isStopped = false;
    bool m_mustRead = true; ///< everything
    std::thread m_thread;

    // Of the feed's thread.
    std::set<std::string> m_devices;
    std::set<std::string> m_groups;
    std::set<std::string> m_missing; ///< devices of which something could not be read
    std::optional<Clock::time_point> m_againAt;
    std::chrono::milliseconds m_pause;
    UiDataController::ModelEdits m_edits;               ///< not yet made
    std::vector<std::function<void()>> m_afterTheEdits; ///< for the sessions
};

} // namespace video
