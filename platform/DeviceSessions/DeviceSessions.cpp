#include "DeviceSessions/DeviceSessions.h"

#include "Base/Log.h"
#include "Base/MessageLoop.h"
#include "Base/ProcessUtil.h"
#include "DeviceSessions/SessionSchedule.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace devices {

namespace {

constexpr std::int32_t kNoSession = -1;
constexpr std::int32_t kNoDevice = -999;
constexpr std::size_t kFewThreads = 16;

} // namespace

bool DeviceAddress::operator==(const DeviceAddress& other) const
{
    return id == other.id && host == other.host && port == other.port && user == other.user &&
           password == other.password && useTls == other.useTls;
}

// Half of the threads may be held up by logins to devices that do not answer; the others are left for those
// that do.
struct CDeviceSessions::State
{
    State(OnStatus listener, const SessionLimits& given, OnSessionEnd endListener)
        : onStatus(std::move(listener)), onSessionEnd(std::move(endListener)), limits(given)
    {}

    const OnStatus onStatus;
    const OnSessionEnd onSessionEnd;
    const SessionLimits limits;

    mutable std::mutex mutex;
    std::condition_variable changed;
    std::map<std::string, WatchedPtr> devices;
    CSessionSchedule schedule;
    std::vector<std::int32_t> leaving; ///< sessions to be ended
    std::size_t slowCalls = 0;         ///< logins and logouts under way
    bool isStopping = false;
    std::vector<std::thread> threads;

    std::recursive_mutex telling; ///< held while an event is told
    Base::CMessageLoop events{"device-events"};

    std::size_t SlowLimit() const { return std::max<std::size_t>(threads.size() / 2, 1); }
    void StartThreads();
    void Stop();
    void Work();
    bool WorkOnce(std::unique_lock<std::mutex>& lock);
    void EndSession(std::unique_lock<std::mutex>& lock);
    void LogInTo(const WatchedPtr& device, std::unique_lock<std::mutex>& lock);
    void LookAt(const WatchedPtr& device, std::unique_lock<std::mutex>& lock);
    void TakeOnline(const WatchedPtr& device, std::int32_t login, Heard heard);
    void TakeOffline(const WatchedPtr& device, const CallError& error);
    void Retire(const WatchedPtr& device);
    void Leave(std::int32_t login);
    void Announce(const WatchedPtr& device);
    void Tell(const WatchedPtr& device, const DeviceStatus& status);
};

void CDeviceSessions::State::StartThreads()
{
    const std::size_t wanted = std::min(std::max(devices.size(), kFewThreads), limits.threads);
    while (threads.size() < std::max<std::size_t>(wanted, 1))
        threads.emplace_back([this] {
            Base::ProcessUtil::NameThisThread("device-session");
            Work();
        });
}

void CDeviceSessions::State::Stop()
{
    {
        std::lock_guard<std::mutex> lock(mutex);
        isStopping = true;
        for (const auto& [id, device] : devices)
            Retire(device);
        devices.clear();
    }
    changed.notify_all();
    // Calls to devices that do not answer end by this; the logouts that are left then have nothing to do.
    (void)QxNet_Cleanup();
    for (std::thread& thread : threads)
        thread.join();
    events.Stop();
}

void CDeviceSessions::State::Work()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (true) {
        if (WorkOnce(lock))
            continue;
        if (isStopping && leaving.empty())
            return;
        const Clock::time_point next = schedule.Next(slowCalls < SlowLimit());
        if (next == Clock::time_point::max())
            changed.wait(lock);
        else
            changed.wait_until(lock, next);
    }
}

bool CDeviceSessions::State::WorkOnce(std::unique_lock<std::mutex>& lock)
{
    const bool mayBeSlow = slowCalls < SlowLimit();
    if (!leaving.empty() && (mayBeSlow || isStopping)) {
        EndSession(lock);
        return true;
    }
    const WatchedPtr device = schedule.Take(Clock::now(), mayBeSlow);
    if (!device)
        return false;
    if (device->login < 0)
        LogInTo(device, lock);
    else
        LookAt(device, lock);
    return true;
}

void CDeviceSessions::State::EndSession(std::unique_lock<std::mutex>& lock)
{
    const std::int32_t login = leaving.back();
    leaving.pop_back();
    ++slowCalls;
    lock.unlock();
    LogOut(login);
    if (onSessionEnd)
        onSessionEnd(login);
    lock.lock();
    --slowCalls;
    changed.notify_all();
}

void CDeviceSessions::State::LogInTo(const WatchedPtr& device, std::unique_lock<std::mutex>& lock)
{
    const DeviceAddress address = device->address;
    Heard heard = device->heard;
    heard.looks = -1;
    ++slowCalls;
    lock.unlock();
    CallError error;
    std::int32_t login = LogIn(address, limits.answer, heard.info, error);
    if (login >= 0)
        error = Look(login, heard);
    lock.lock();
    --slowCalls;
    changed.notify_all();
    device->isBusy = false;
    if (login >= 0 && (error || device->isGone))
        Leave(login);
    if (device->isGone)
        return;
    if (error)
        TakeOffline(device, error);
    else
        TakeOnline(device, login, std::move(heard));
}

void CDeviceSessions::State::LookAt(const WatchedPtr& device, std::unique_lock<std::mutex>& lock)
{
    const std::int32_t login = device->login;
    Heard heard = device->heard;
    lock.unlock();
    const CallError error = Look(login, heard);
    lock.lock();
    device->isBusy = false;
    if (device->isGone)
        return;
    if (!error || IsRefusalOfADevice(error.error))
        return TakeOnline(device, login, std::move(heard));
    Leave(login);
    device->login = kNoSession;
    device->pause = limits.again;
    TakeOffline(device, error);
}

void CDeviceSessions::State::TakeOnline(const WatchedPtr& device, std::int32_t login, Heard heard)
{
    const bool isNew = device->status.state != SessionState::Online || !(device->heard == heard);
    device->login = login;
    device->pause = limits.again;
    device->isHasty = false;
    device->heard = std::move(heard);
    if (isNew) {
        device->status = {device->address.id, SessionState::Online,  0, 0,
                          device->heard.info, device->heard.channels};
        Announce(device);
    }
    schedule.PutAfter(device, limits.watch);
}

void CDeviceSessions::State::TakeOffline(const WatchedPtr& device, const CallError& error)
{
    DeviceStatus& status = device->status;
    const bool isNew = status.state != SessionState::Offline || status.error != error.error ||
                       status.moduleError != error.module;
    status.state = SessionState::Offline;
    status.error = error.error;
    status.moduleError = error.module;
    if (isNew)
        Announce(device);
    if (std::exchange(device->isHasty, false))
        return schedule.PutFirst(device);
    schedule.PutAfter(device, IsRefusalOfTheUser(error.error) ? limits.refused : device->pause);
    device->pause = std::min(device->pause * 2, limits.longest);
}

void CDeviceSessions::State::Retire(const WatchedPtr& device)
{
    device->isGone = true;
    if (device->login >= 0)
        Leave(std::exchange(device->login, kNoSession));
}

void CDeviceSessions::State::Leave(std::int32_t login)
{
    leaving.push_back(login);
    changed.notify_all();
}

void CDeviceSessions::State::Announce(const WatchedPtr& device)
{
    (void)events.PostTask([this, device, status = device->status] { Tell(device, status); });
}

void CDeviceSessions::State::Tell(const WatchedPtr& device, const DeviceStatus& status)
{
    std::lock_guard<std::recursive_mutex> telling_(telling);
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (device->isGone)
            return;
    }
    onStatus(status);
}

CDeviceSessions::CDeviceSessions(OnStatus onStatus, SessionLimits limits, OnSessionEnd onSessionEnd)
    : m_state(std::make_shared<State>(std::move(onStatus), limits, std::move(onSessionEnd)))
{
    if (!QxNet_Init())
        BASE_ERROR("The device SDK cannot be used, [%u].", NET_DVR_GetLastError());
}

CDeviceSessions::~CDeviceSessions()
{
    m_state->Stop();
}

void CDeviceSessions::Set(const DeviceAddress& address)
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    WatchedPtr& place = m_state->devices[address.id];
    if (place && place->address == address)
        return;
    if (place)
        m_state->Retire(place);
    place = std::make_shared<Watched>();
    place->address = address;
    place->status.id = address.id;
    place->heard.looks = -1;
    place->pause = m_state->limits.again;
    m_state->Announce(place);
    m_state->schedule.PutFirst(place);
    m_state->StartThreads();
    m_state->changed.notify_all();
}

void CDeviceSessions::Remove(const std::string& id)
{
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        const auto found = m_state->devices.find(id);
        if (found == m_state->devices.end())
            return;
        m_state->Retire(found->second);
        m_state->devices.erase(found);
    }
    std::lock_guard<std::recursive_mutex> untilTold(m_state->telling);
}

void CDeviceSessions::TryNow(const std::string& id)
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    const auto found = m_state->devices.find(id);
    if (found == m_state->devices.end() || found->second->login >= 0)
        return;
    if (found->second->isBusy)
        found->second->isHasty = true;
    else
        m_state->schedule.PutFirst(found->second);
    m_state->changed.notify_all();
}

std::int32_t CDeviceSessions::Session(const std::string& id) const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    const auto found = m_state->devices.find(id);
    return found == m_state->devices.end() ? kNoDevice : found->second->login;
}

bool CDeviceSessions::Status(const std::string& id, DeviceStatus& status) const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    const auto found = m_state->devices.find(id);
    if (found == m_state->devices.end())
        return false;
    status = found->second->status;
    return true;
}

} // namespace devices
