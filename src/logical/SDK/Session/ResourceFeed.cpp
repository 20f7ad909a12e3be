#include "logical/SDK/Session/ResourceFeed.h"

#include "Base/Encrypt.h"
#include "Base/Log.h"
#include "Base/ProcessUtil.h"
#include "Base/RateLimit.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "logical/SDK/Session/ResourceEdits.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace video {

namespace {

using UiDataController::KeepOnly;
using UiDataController::Removal;

/// With more devices to ask for again, reading all of them is simpler.
constexpr std::size_t kMostMissing = 16;

/// In bytes; a longer one cannot be asked for.
constexpr std::size_t kLongestId = 256;

/// Reads the thing that a notification is about. False after one log line.
template<typename Thing>
bool Read(const protocol::WebSocketNotifyData& notification, Thing& thing)
{
    std::string problem;
    protocol::json::ReadError error;
    const protocol::json::Tree tree = protocol::json::ParseText(notification.data.text, problem);
    if (tree && protocol::json::Kind<Thing>::Read(tree.get(), thing, error))
        return true;
    BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "The notification [%s] of [%s] cannot be read. [msg-%s]",
                 notification.type.c_str(), protocol::LoggableText(notification.guid).c_str(),
                 protocol::LoggableText(tree ? error.path + ": " + error.reason : problem).c_str());
    return false;
}

QString IdOf(const protocol::WebSocketNotifyData& notification)
{
    return QString::fromStdString(notification.guid);
}

} // namespace

CResourceFeed::CResourceFeed(const IResourceDirectory& directory, ISessionPool& sessions,
                             UiDataController::CLogicModel& model, FeedPauses pauses)
    : m_directory(directory), m_sessions(sessions), m_model(model), m_pauses(pauses), m_pause(pauses.first)
{}

void CResourceFeed::Start()
{
    m_thread = std::thread([this] { Run(); });
}

void CResourceFeed::Stop()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStopped = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void CResourceFeed::OnNotification(const protocol::WebSocketNotifyData& notification)
{
    if (!HandlerOf(notification.type))
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_isStopped)
            return;
        m_waiting.push_back(notification);
        m_waitingBytes += notification.guid.size() + notification.data.text.size();
        if (m_waiting.size() > kMostWaiting || m_waitingBytes > kMostWaitingBytes) {
            TakeWaiting();
            m_mustRead = true;
        }
    }
    m_wake.notify_all();
}

/// Under the lock.
CResourceFeed::Notifications CResourceFeed::TakeWaiting()
{
    m_waitingBytes = 0;
    return std::exchange(m_waiting, {});
}

// ---- the thread ----

void CResourceFeed::Run()
{
    Base::ProcessUtil::NameThisThread("resource-feed");
    while (WaitForWork()) {
        bool mustRead = false;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            mustRead = m_mustRead;
        }
        if (mustRead)
            ReadEverything();
        else
            FollowNotifications();
        if (!mustRead && IsDue())
            AskForTheMissing();
        Flush();
    }
}

/// False when the feed is to stop.
bool CResourceFeed::WaitForWork()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto hasWork = [this] {
        const bool mayAskNow = !m_againAt || IsDue();
        return m_isStopped || (m_mustRead ? mayAskNow : !m_waiting.empty() || IsDue());
    };
    while (!hasWork()) {
        if (m_againAt)
            m_wake.wait_until(lock, *m_againAt);
        else
            m_wake.wait(lock);
    }
    return !m_isStopped;
}

bool CResourceFeed::IsStopped()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isStopped;
}

/// Once for everything that fails until then.
void CResourceFeed::AskAgainLater()
{
    if (m_againAt && !IsDue())
        return;
    m_againAt = Clock::now() + m_pause;
    m_pause = std::min(2 * m_pause, m_pauses.longest);
}

void CResourceFeed::ReadEverything()
{
    {
        // What came before the questions is in their answers.
        const std::lock_guard<std::mutex> lock(m_mutex);
        TakeWaiting();
        m_mustRead = false;
    }
    std::vector<protocol::DeviceResponseData> devices;
    if (!m_directory.Devices(devices)) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_mustRead = true;
        return AskAgainLater();
    }
    m_againAt.reset();
    m_missing.clear();
    TakeDevices(std::move(devices));
    TakeGroups();
    if (m_missing.empty())
        m_pause = m_pauses.first;
}

/// The devices first, so that logins begin while the channels are read.
void CResourceFeed::TakeDevices(std::vector<protocol::DeviceResponseData> devices)
{
    std::set<std::string> gone = m_devices;
    std::vector<std::string> ids;
    for (protocol::DeviceResponseData& device : devices) {
        TakeDevice(device);
        Base::Encrypt::Wipe(device.password);
        gone.erase(device.guid);
        ids.push_back(device.guid);
    }
    for (const std::string& id : gone)
        ForgetDevice(id);
    Flush();
    for (const std::string& id : ids)
        if (!IsStopped())
            AskForChannels(id);
}

/// Groups that cannot be read stay as they are; a framework need not have any.
void CResourceFeed::TakeGroups()
{
    std::vector<protocol::GroupInfo> groups;
    if (IsStopped() || !m_directory.Groups(groups))
        return;
    std::set<std::string> gone = std::move(m_groups);
    m_groups.clear();
    for (const protocol::GroupInfo& group : groups) {
        AppendEdits(group, m_edits);
        gone.erase(group.guid);
        m_groups.insert(group.guid);
    }
    for (const std::string& id : gone)
        m_edits.push_back(Removal{QString::fromStdString(id)});
}

void CResourceFeed::FollowNotifications()
{
    Notifications waiting;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        waiting = TakeWaiting();
    }
    for (const protocol::WebSocketNotifyData& notification : waiting)
        if (!IsStopped())
            (this->*HandlerOf(notification.type))(notification);
}

void CResourceFeed::AskForTheMissing()
{
    m_againAt.reset();
    if (m_missing.size() > kMostMissing)
        return ReadEverything();
    for (const std::string& id : std::exchange(m_missing, {}))
        if (!IsStopped())
            AskForDevice(id);
    if (m_missing.empty())
        m_pause = m_pauses.first;
}

/// Makes the edits, and tells the sessions what follows from them.
void CResourceFeed::Flush()
{
    m_model.Apply(std::exchange(m_edits, {}));
    for (const auto& tell : std::exchange(m_afterTheEdits, {}))
        tell();
}

// ---- notifications ----

CResourceFeed::Handler CResourceFeed::HandlerOf(const std::string& type)
{
    static const std::unordered_map<std::string, Handler> kHandlers = {
        {"deviceAdd", &CResourceFeed::DeviceChanged},      {"deviceChange", &CResourceFeed::DeviceChanged},
        {"deviceRemove", &CResourceFeed::DeviceRemoved},   {"channelAdd", &CResourceFeed::ChannelChanged},
        {"channelChange", &CResourceFeed::ChannelChanged}, {"channelRemove", &CResourceFeed::Removed},
        {"groupAdd", &CResourceFeed::GroupChanged},        {"groupChange", &CResourceFeed::GroupChanged},
        {"groupRemove", &CResourceFeed::Removed},
    };
    const auto handler = kHandlers.find(type);
    return handler != kHandlers.end() ? handler->second : nullptr;
}

/// It carries no credentials. Those that wait to be asked for again are not asked for sooner, so that a flood
/// of them does no harm.
void CResourceFeed::DeviceChanged(const protocol::WebSocketNotifyData& notification)
{
    if (notification.guid.empty() || notification.guid.size() > kLongestId)
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "The notification [%s] is of no device.",
                     notification.type.c_str());
    else if (m_missing.size() <= kMostMissing && !m_missing.count(notification.guid))
        AskForDevice(notification.guid);
}

void CResourceFeed::DeviceRemoved(const protocol::WebSocketNotifyData& notification)
{
    ForgetDevice(notification.guid);
}

/// Those of a device that could not be asked for yet will be read with it.
void CResourceFeed::ChannelChanged(const protocol::WebSocketNotifyData& notification)
{
    protocol::DeviceChannelInfo channel;
    if (Read(notification, channel) && m_devices.count(channel.deviceGuid))
        m_edits.push_back(ResourceOf(channel));
}

void CResourceFeed::GroupChanged(const protocol::WebSocketNotifyData& notification)
{
    protocol::GroupInfo group;
    if (!Read(notification, group))
        return;
    AppendEdits(group, m_edits);
    m_groups.insert(group.guid);
}

void CResourceFeed::Removed(const protocol::WebSocketNotifyData& notification)
{
    m_groups.erase(notification.guid);
    m_edits.push_back(Removal{IdOf(notification)});
}

// ---- devices ----

void CResourceFeed::AskForDevice(const std::string& id)
{
    protocol::DeviceResponseData device;
    if (!m_directory.Device(id, device)) {
        m_missing.insert(id);
        return AskAgainLater();
    }
    if (device.guid != id) {
        BASE_LIMITED(Base::CFaultLimit, BASE_ERROR, "The framework answers with another device than [%s].",
                     protocol::LoggableText(id).c_str());
        return;
    }
    TakeDevice(device);
    Base::Encrypt::Wipe(device.password);
    AskForChannels(id);
}

void CResourceFeed::AskForChannels(const std::string& deviceId)
{
    std::vector<protocol::DeviceChannelInfo> channels;
    if (!m_directory.Channels(deviceId, channels)) {
        m_missing.insert(deviceId);
        return AskAgainLater();
    }
    KeepOnly keep{QString::fromStdString(deviceId), {}};
    for (const protocol::DeviceChannelInfo& channel : channels) {
        m_edits.push_back(ResourceOf(channel));
        keep.ids.insert(QString::fromStdString(channel.guid));
    }
    m_edits.push_back(std::move(keep));
}

void CResourceFeed::TakeDevice(const protocol::DeviceResponseData& device)
{
    m_devices.insert(device.guid);
    m_edits.push_back(ResourceOf(device));
    if (device.userName.empty()) {
        m_edits.push_back(WithoutUser(device.guid));
        m_afterTheEdits.push_back([this, id = device.guid] { m_sessions.Remove(id); });
        return;
    }
    m_afterTheEdits.push_back([this, address = AddressOf(device)] { m_sessions.Set(address); });
}

void CResourceFeed::ForgetDevice(const std::string& id)
{
    m_devices.erase(id);
    m_missing.erase(id);
    m_edits.push_back(Removal{QString::fromStdString(id)});
    m_afterTheEdits.push_back([this, id] { m_sessions.Remove(id); });
}

} // namespace video
